#include "diagnostics/mittelwerte.h"

#include <numeric>

#include "messreihe.h"

using namespace polarkreis;

namespace {

class MWBildung : public ::testing::Test, public Messreihe {
 protected:
  Schrittzaehler fortschritt;

  std::vector<std::string> mittel(int nummer) const {
    return {messung.MittelW_Spread.text(3, nummer), messung.MittelW_Spread.text(4, nummer),
            messung.MittelW_Spread.text(5, nummer)};
  }
};
using Drei = std::vector<std::string>;

}  // namespace

// 1, 2 and 2 of the rows 3 to 5: 5/3 = 1.666...; the 9 stands in the last row in use.
TEST_F(MWBildung, LastRowIsLeftOutAndTheMeanIsCut) {
  spalte(2, {"1", "2", "2", "9"});
  ASSERT_EQ(messung.Mess_Zeilen, 6);
  EXPECT_TRUE(MW_Bildung(messung, fortschritt));
  EXPECT_EQ(mittel(2), (Drei{"1", "2", "1.66"}));
}

// The cut is downward: -5/3 = -1.666... becomes -1.67.
TEST_F(MWBildung, NegativeMeanIsCutDownward) {
  spalte(2, {"-1", "-2", "-2", "5"});
  EXPECT_TRUE(MW_Bildung(messung, fortschritt));
  EXPECT_EQ(mittel(2), (Drei{"-2", "-1", "-1.67"}));
}

TEST_F(MWBildung, LowestAndHighestStandAsMeasured) {
  spalte(3, {"-10.123456", "-9.5", "-12,25", "0"});
  EXPECT_TRUE(MW_Bildung(messung, fortschritt));
  EXPECT_EQ(mittel(3), (Drei{"-12.25", "-9.5", "-10.63"}));  // -31.873456 / 3 = -10.624485...
}

// (4 + 0 + 0 + 8)/4
TEST_F(MWBildung, CellsThatAreNoNumbersCountAsZero) {
  spalte(2, {"1", "1", "1", "1", "1"});
  spalte(8, {"4", "  -", "", "8", "100"});
  EXPECT_TRUE(MW_Bildung(messung, fortschritt));
  EXPECT_EQ(mittel(8), (Drei{"0", "8", "3"}));
}

TEST_F(MWBildung, FirstRowSeedsLowestAndHighest) {
  spalte(2, {"7", "8", "9", "1"});
  EXPECT_TRUE(MW_Bildung(messung, fortschritt));
  EXPECT_EQ(mittel(2), (Drei{"7", "9", "8"}));
}

TEST_F(MWBildung, EveryStoredColumnIsCondensed) {
  spalte(2, {"1", "1", "1"});
  spalte(1, {"08:00:00", "09:00:00", "10:00:00"});
  spalte(169, {"3", "5", "1"});
  spalte(170, {"3", "5", "1"});
  EXPECT_TRUE(MW_Bildung(messung, fortschritt));
  EXPECT_EQ(mittel(1), (Drei{"8", "9", "8.5"}));  // a clock time reads as its hour
  EXPECT_EQ(mittel(100), (Drei{"0", "0", "0"}));
  EXPECT_EQ(mittel(169), (Drei{"3", "5", "4"}));
  EXPECT_EQ(mittel(170), (Drei{"", "", ""}));
}

TEST_F(MWBildung, TwoRowsGiveTheFirstOne) {
  spalte(2, {"4", "9"});
  EXPECT_TRUE(MW_Bildung(messung, fortschritt));
  EXPECT_EQ(mittel(2), (Drei{"4", "4", "4"}));
}

TEST_F(MWBildung, OneRowLeavesNothingOfAnEarlierMeasurement) {
  spalte(2, {"1", "2", "3"});
  EXPECT_TRUE(MW_Bildung(messung, fortschritt));
  messung.DiaG_loesch();
  spalte(2, {"5"});
  EXPECT_TRUE(MW_Bildung(messung, fortschritt));
  EXPECT_EQ(mittel(2), (Drei{"", "", ""}));
  messung.DiaG_loesch();
  EXPECT_TRUE(MW_Bildung(messung, fortschritt));
  EXPECT_EQ(mittel(2), (Drei{"", "", ""}));
}

// Rows behind the row count serve computing and saving, not the means.
TEST_F(MWBildung, RowsBehindTheRowCountDoNotCount) {
  spalte(2, {"1", "3", "100", "100"});
  messung.Mess_Zeilen = 5;
  EXPECT_TRUE(MW_Bildung(messung, fortschritt));
  EXPECT_EQ(mittel(2), (Drei{"1", "3", "2"}));
}

// (2 + 4)/3: the sum stays as it was where the addition fails.
TEST_F(MWBildung, NumberBeyondTheRangeAddsNothing) {
  spalte(2, {"2", "1E999", "4", "1"});
  EXPECT_TRUE(MW_Bildung(messung, fortschritt));
  EXPECT_EQ(mittel(2), (Drei{"2", "4", "2"}));
}

TEST_F(MWBildung, ProgressRunsThroughTheColumnsByTheirCaptions) {
  spalte(2, {"1", "2", "3"});
  messung.DiaSpread.setze(1, 2, "Po [bar]");
  EXPECT_TRUE(MW_Bildung(messung, fortschritt));
  std::vector<int> alle(169);
  std::iota(alle.begin(), alle.end(), 1);
  EXPECT_EQ(fortschritt.nummern, alle);
  EXPECT_EQ(fortschritt.anzahl, 169);
  EXPECT_EQ(fortschritt.texte[1], "Po [bar]");
}

TEST_F(MWBildung, StopLeavesTheColumnsBehindEmpty) {
  spalte(2, {"1", "2", "3"});
  spalte(4, {"1", "2", "3"});
  fortschritt.halt_bei = 2;
  EXPECT_FALSE(MW_Bildung(messung, fortschritt));
  EXPECT_EQ(fortschritt.nummern.size(), 2U);
  EXPECT_EQ(mittel(2), (Drei{"1", "2", "1.5"}));
  EXPECT_EQ(mittel(4), (Drei{"", "", ""}));
}

TEST_F(MWBildung, HeadingsOfTheMeansStay) {
  messung.MittelW_Spread.setze(1, 2, "Po");
  spalte(2, {"1", "2", "3"});
  EXPECT_TRUE(MW_Bildung(messung, fortschritt));
  EXPECT_EQ(messung.MittelW_Spread.text(1, 2), "Po");
}

TEST(MittelWert, MeanOfTheReadingsThatAreThere) {
  EXPECT_DOUBLE_EQ(Mittel_wert("1", "2", "6"), 3);
  EXPECT_DOUBLE_EQ(Mittel_wert("-", "2", "6"), 4);
  EXPECT_DOUBLE_EQ(Mittel_wert("1", "", "6"), 3.5);
  EXPECT_DOUBLE_EQ(Mittel_wert("1", "2", "0"), 1.5);
  EXPECT_DOUBLE_EQ(Mittel_wert("", "0", "6,5"), 6.5);
  EXPECT_DOUBLE_EQ(Mittel_wert("-4", "-", "-"), -4);
}

TEST(MittelWert, NoReadingGivesZero) {
  EXPECT_EQ(Mittel_wert("-", "", "0"), 0);
  EXPECT_EQ(Mittel_wert("  -", "", ""), 0);
}

// "0.0" reads as a measured nought: (0 + 4)/2.
TEST(MittelWert, OnlyTheTextZeroIsNoReading) {
  EXPECT_DOUBLE_EQ(Mittel_wert("0.0", "4", ""), 2);
}
