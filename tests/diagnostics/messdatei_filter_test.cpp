// What a load does to values and rows that can't be.

#include <gtest/gtest.h>

#include "diagnostics/messdatei_desk.h"

using namespace polarkreis;

namespace {

struct LoadDiaGFilter : testing::Test {
  MessdateiDesk desk;
  Messung& m = desk.m;
  Messinhalt inhalt;

  /// Adds rows of these pressures, each named in column 13.
  void zeilen(std::initializer_list<std::pair<const char*, const char*>> druecke) {
    for (const auto& [p0, pc] : druecke) {
      inhalt.zeile(p0, pc);
      inhalt.zelle(13, "row " + std::to_string(inhalt.zeilen.size()));
    }
  }
  Messdatei::Ladung lade() { return ::lade(desk, inhalt); }
  /// The names of the table's rows.
  std::vector<std::string> namen() const {
    std::vector<std::string> alle;
    for (int zeile = 3; zeile <= m.DiaSpread.letzte_gefuellte(); ++zeile)
      alle.push_back(desk.zelle(zeile, 13));
    return alle;
  }
};

using Namen = std::vector<std::string>;

}  // namespace

TEST_F(LoadDiaGFilter, ExactlyTwoHundredIsKept) {
  zeilen({{"2", "10"}});
  inhalt.zelle(4, "200");
  lade();
  EXPECT_EQ(desk.zelle(3, 4), "200");
}

TEST_F(LoadDiaGFilter, MoreThanTwoHundredIsNoMeasurement) {
  zeilen({{"2", "10"}});
  inhalt.zelle(4, "200.5").zelle(5, "200,5").zelle(36, "1E400");
  lade();
  EXPECT_EQ(desk.zelle(3, 4), "  -");
  EXPECT_EQ(desk.zelle(3, 5), "  -");
  EXPECT_EQ(desk.zelle(3, 36), "1E400");
}

TEST_F(LoadDiaGFilter, LimitOfTwoHundredHoldsForTwelveColumns) {
  zeilen({{"2", "10"}});
  for (int spalte = 3; spalte <= 169; ++spalte)
    if (spalte != 6) inhalt.zelle(spalte, "201");
  lade();
  std::vector<int> begrenzt;
  for (int spalte = 1; spalte <= 169; ++spalte)
    if (desk.zelle(3, spalte) == "  -") begrenzt.push_back(spalte);
  EXPECT_EQ(begrenzt, (std::vector<int>{4, 5, 8, 9, 11, 12, 31, 32, 33, 34, 35, 36}));
}

TEST_F(LoadDiaGFilter, HighPressureOfATranscriticalPlantIsGood) {
  inhalt(8) = "Single-stage - CO2 Transkritisch";
  zeilen({{"20", "70"}, {"30", "120"}, {"67", "135"}});
  EXPECT_EQ(lade().ersetzt, 0);
  EXPECT_EQ(desk.zelle(4, 6), "120");
  EXPECT_EQ(namen(), (Namen{"row 1", "row 2", "row 3"}));
}

TEST_F(LoadDiaGFilter, HighPressureOfAnotherPlantRepeatsTheRowBefore) {
  inhalt(8) = "Single-stage";
  zeilen({{"2", "10"}, {"2", "120"}, {"2", "11"}});
  EXPECT_EQ(lade().ersetzt, 1);
  EXPECT_EQ(desk.zelle(4, 6), "10");
  EXPECT_EQ(desk.zelle(4, Spalte::Zeilenkopf), "2");
  EXPECT_EQ(namen(), (Namen{"row 1", "row 1", "row 3"}));
  EXPECT_TRUE(desk.gemeldet("taken as the row before: 1"));
}

TEST_F(LoadDiaGFilter, TranscriticalTextIsComparedAsItStands) {
  inhalt(8) = "Single-stage - co2 transkritisch";
  zeilen({{"2", "10"}, {"2", "120"}});
  EXPECT_EQ(lade().ersetzt, 1);
}

TEST_F(LoadDiaGFilter, LimitsAreStillGood) {
  zeilen({{"2", "10"}, {"18", "87"}, {"18.1", "87"}, {"18", "87.1"}});
  EXPECT_EQ(lade().ersetzt, 2);
  EXPECT_EQ(namen(), (Namen{"row 1", "row 2", "row 2", "row 2"}));
}

TEST_F(LoadDiaGFilter, LimitsOfATranscriticalPlantAreStillGood) {
  inhalt(8) = "CO2 Transkritisch";
  zeilen({{"30", "90"}, {"67.1", "90"}, {"30", "135.1"}});
  EXPECT_EQ(lade().ersetzt, 2);
}

TEST_F(LoadDiaGFilter, BothPressuresBelowHalfAreBad) {
  zeilen({{"4", "16"}, {"4", "16"}, {"1.9", "7.9"}, {"4", "16"}});
  EXPECT_EQ(lade().ersetzt, 1);
  EXPECT_EQ(namen(), (Namen{"row 1", "row 2", "row 2", "row 4"}));
}

TEST_F(LoadDiaGFilter, HalfIsNotBelowHalf) {
  zeilen({{"4", "16"}, {"4", "16"}, {"2", "7"}, {"4", "16"}, {"1", "8"}});
  EXPECT_EQ(lade().ersetzt, 0);
}

TEST_F(LoadDiaGFilter, WithoutCorrectionADropIsGoodButTheLimitsHold) {
  m.Auto_corr_Check = 0;
  zeilen({{"4", "16"}, {"4", "16"}, {"1.9", "7.9"}, {"19", "16"}});
  EXPECT_EQ(lade().ersetzt, 1);
  EXPECT_EQ(namen(), (Namen{"row 1", "row 2", "row 3", "row 3"}));
}

TEST_F(LoadDiaGFilter, RowFiveIsTheFirstThatIsCompared) {
  zeilen({{"10", "40"}, {"1", "4"}, {"0.4", "1.9"}});
  EXPECT_EQ(lade().ersetzt, 1);
  EXPECT_EQ(namen(), (Namen{"row 1", "row 2", "row 2"}));
}

TEST_F(LoadDiaGFilter, BadRowsPressuresAreComparedWithTheNext) {
  // Row 5 falls by 60 % and is bad; row 6 is as low, but no longer below half of row 5.
  zeilen({{"4", "16"}, {"4", "16"}, {"1.6", "6.4"}, {"1.6", "6.4"}});
  EXPECT_EQ(lade().ersetzt, 1);
  EXPECT_EQ(namen(), (Namen{"row 1", "row 2", "row 2", "row 4"}));
}

TEST_F(LoadDiaGFilter, DroppedRowsPressuresAreNotCompared) {
  zeilen({{"4", "16"}, {"4", "16"}, {"0", "0"}, {"1.9", "7.9"}});
  const Messdatei::Ladung ladung = lade();
  EXPECT_EQ(ladung.verworfen, 1);
  EXPECT_EQ(ladung.ersetzt, 1);
  EXPECT_EQ(namen(), (Namen{"row 1", "row 2", "row 2"}));
}

TEST_F(LoadDiaGFilter, RowWithoutPressuresVanishes) {
  zeilen({{"2", "10"}, {"0", "0"}, {"2", "10"}, {"  -", "-1"}, {"2", "10"}});
  EXPECT_EQ(lade().verworfen, 2);
  EXPECT_EQ(namen(), (Namen{"row 1", "row 3", "row 5"}));
  EXPECT_EQ(m.Mess_Zeilen, 5);
  EXPECT_EQ(desk.zelle(4, Spalte::Zeilenkopf), "2");
  EXPECT_TRUE(desk.gemeldet("left out: 2"));
}

TEST_F(LoadDiaGFilter, RowWithoutPressuresStaysWithoutCorrection) {
  m.Auto_corr_Check = 0;
  zeilen({{"2", "10"}, {"0", "0"}, {"2", "10"}});
  EXPECT_EQ(lade().verworfen, 0);
  EXPECT_EQ(namen(), (Namen{"row 1", "row 2", "row 3"}));
}

TEST_F(LoadDiaGFilter, OnePressureIsEnough) {
  zeilen({{"2", "10"}, {"0", "10"}, {"2", "0"}});
  EXPECT_EQ(lade().verworfen, 0);
  EXPECT_EQ(namen(), (Namen{"row 1", "row 2", "row 3"}));
}

TEST_F(LoadDiaGFilter, FirstRowIsNeverReplacedAndCountsAsGood) {
  zeilen({{"19", "100"}, {"19", "100"}, {"12", "60"}});
  EXPECT_EQ(lade().ersetzt, 1);
  EXPECT_EQ(desk.zelle(3, 2), "19");
  EXPECT_EQ(namen(), (Namen{"row 1", "row 1", "row 3"}));
}

TEST_F(LoadDiaGFilter, FirstRowWithoutPressuresVanishesToo) {
  zeilen({{"0", "0"}, {"2", "10"}});
  EXPECT_EQ(lade().verworfen, 1);
  EXPECT_EQ(namen(), Namen{"row 2"});
}

TEST_F(LoadDiaGFilter, BadRowRepeatsTheRowWithItsLimitedCells) {
  zeilen({{"2", "10"}});
  inhalt.zelle(4, "300");
  zeilen({{"2", "99"}});
  inhalt.zelle(4, "5");
  lade();
  EXPECT_EQ(desk.zelle(4, 4), "  -");
}
