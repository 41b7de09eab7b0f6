// The small files that stand behind the calculation.

#include "simulation/parameter.h"

#include <gtest/gtest.h>

#include "support/temp_folder.h"

using namespace polarkreis;

namespace {

struct Parameter : testing::Test {
  TempOrdner folder;
  Meldungen log;
  Ablage ablage{folder.pfad(), log};

  /// Forty records of five characters, each holding its number and a mark.
  void write_start_values() const {
    std::string records;
    for (int n = 1; n <= 40; ++n) {
      std::string record = "." + std::to_string(n);
      record.resize(5, ' ');
      records += record;
    }
    folder.schreib("Armstd.rdm", records);
  }
};

constexpr std::string_view kSeeded =
    "\".24\"\r\n\".25\"\r\n\".26\"\r\n\".33\"\r\n\".34\"\r\n\".35\"\r\n"
    "\"\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n";

}  // namespace

TEST_F(Parameter, EmptyPressureDifferencesTakeTheirDefaults) {
  const Druckdifferenzen d = JMapOpt_lesen("");
  EXPECT_EQ(d.thermostatisch(), 7);
  EXPECT_EQ(d.andere(), 3);
  EXPECT_EQ(d.leitung(), 1);
  EXPECT_EQ(d.verteiler(), 1);
}

TEST_F(Parameter, OneEmptyPressureDifferenceTakesItsOwnDefault) {
  const Druckdifferenzen d = JMapOpt_lesen("\"6,5\"\r\n\"\"\r\n\"0\"\r\n");
  EXPECT_EQ(d.thermostatisch(), 6.5);
  EXPECT_EQ(d.andere(), 3);
  EXPECT_EQ(d.leitung(), 0);
  EXPECT_EQ(d.verteiler(), 1);
}

TEST_F(Parameter, PressureDifferenceEmptiedInTheDialogCountsAsItsDefault) {
  EXPECT_EQ((Druckdifferenzen{{"", "2", " ", "0.5"}}.thermostatisch()), 7);
  EXPECT_EQ((Druckdifferenzen{{"", "2", " ", "0.5"}}.andere()), 2);
  EXPECT_EQ((Druckdifferenzen{{"", "2", " ", "0.5"}}.leitung()), 1);
}

TEST_F(Parameter, PressureDifferencesStandOneALine) {
  ASSERT_TRUE(JMapOpt_schreiben(ablage, {{"6", "2,5", "1", "0"}}));
  EXPECT_EQ(folder.lies("JMapOpt.dat"), "\"6\"\r\n\"2,5\"\r\n\"1\"\r\n\"0\"\r\n");
  EXPECT_EQ(JMapOpt_lesen(*ablage.lies_ganz("JMapOpt.dat")).andere(), 2.5);
}

TEST_F(Parameter, RunTakesItemsTwoToFour) {
  const Zusatzwerte z = SubAct_lesen("\"9\"\r\n\"1,5\"\r\n\"2\"\r\n\"5\"\r\n");
  EXPECT_EQ(z.zahlen().Ueberhitzung_Zusatz, 1.5);
  EXPECT_EQ(z.zahlen().Unterkuehlung, 2);
  EXPECT_EQ(z.zahlen().dT_Innen_WT, 5);
}

TEST_F(Parameter, ElevenItemsSurviveARewrite) {
  const std::string content =
      "\"0\"\r\n\"1\"\r\n\"2\"\r\n\"3\"\r\n\"4\"\r\n\"5\"\r\n\"6\"\r\n"
      "\"a\"\r\n\"b\"\r\n\"c\"\r\n\"d\"\r\n";
  ASSERT_TRUE(SubAct_schreiben(ablage, SubAct_lesen(std::string(content))));
  EXPECT_EQ(folder.lies("SubAct.dat"), content);
}

TEST_F(Parameter, MissingListIsSeededFromTheStartValues) {
  write_start_values();
  SubAct_sicherstellen(ablage, "SIM_PRO");
  EXPECT_EQ(folder.lies("SubAct.dat"), kSeeded);
}

TEST_F(Parameter, EmptyListCountsAsMissing) {
  write_start_values();
  folder.schreib("SubAct.dat", "");
  SubAct_sicherstellen(ablage, "SIM_PRO");
  EXPECT_EQ(folder.lies("SubAct.dat"), kSeeded);
}

TEST_F(Parameter, PlantMonitoringWritesTheListTwice) {
  write_start_values();
  SubAct_sicherstellen(ablage, "MonoF");
  EXPECT_EQ(folder.lies("SubAct.dat"), std::string(kSeeded) + std::string(kSeeded));
}

TEST_F(Parameter, ListThatIsThereStays) {
  write_start_values();
  folder.schreib("SubAct.dat", "\"1\"\r\n");
  SubAct_sicherstellen(ablage, "SIM_PRO");
  EXPECT_EQ(folder.lies("SubAct.dat"), "\"1\"\r\n");
}

TEST_F(Parameter, WithoutStartValuesNoListIsMade) {
  SubAct_sicherstellen(ablage, "SIM_PRO");
  EXPECT_FALSE(folder.da("SubAct.dat"));
}

TEST_F(Parameter, StartValuesThatEndEarlyLeaveTheRestEmpty) {
  folder.schreib("Armstd.rdm", std::string(23 * 5, ' ') + "1    2  ");
  SubAct_sicherstellen(ablage, "SIM_PRO");
  const Zusatzwerte z = SubAct_lesen(folder.lies("SubAct.dat"));
  EXPECT_EQ(z.werte[0], "1");
  EXPECT_EQ(z.werte[1], "2");
  EXPECT_EQ(z.werte[2], "");
}

// The records are bytes: what stands before them must not move them, however it reads as a text.
TEST_F(Parameter, StartValuesKeepTheirPlacesBehindForeignBytes) {
  write_start_values();
  std::string records = folder.lies("Armstd.rdm");
  records.replace(0, 5, "\x81\xE1\xFF\x94\x84");
  records.replace(32 * 5, 5, "\xEF\xBB\xBF\xC3\xBC");
  folder.schreib("Armstd.rdm", records);
  const Zusatzwerte z = SubAct_Startwerte(ablage);
  EXPECT_EQ(z.werte[0], ".24");
  EXPECT_EQ(z.werte[2], ".26");
  EXPECT_EQ(z.werte[4], ".34");
  EXPECT_EQ(z.werte[5], ".35");
}

TEST_F(Parameter, StartValuesOfAMissingFileAreEmptyAndMakeNone) {
  EXPECT_EQ(SubAct_Startwerte(ablage).werte, Zusatzwerte().werte);
  EXPECT_FALSE(folder.da("Armstd.rdm"));
}
