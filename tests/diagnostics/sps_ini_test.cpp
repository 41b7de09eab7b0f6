#include "diagnostics/sps_ini.h"

#include <gtest/gtest.h>

#include "support/temp_folder.h"

using namespace polarkreis;

namespace {

/// One line of quoted items: `vorne` and the numbers from `erster` on.
std::string zeile(std::string vorne, int erster, int anzahl) {
  for (int i = 0; i < anzahl; ++i) {
    if (!vorne.empty()) vorne += ',';
    vorne += "\"" + std::to_string(erster + i) + "\"";
  }
  return vorne + "\r\n";
}

/// A list whose every text is another one; plant 4 is called `vierte`.
std::string liste(const std::string& vierte) {
  std::string text = zeile("", 1, 9);
  for (int k = 1; k <= 9; ++k)
    text += zeile("\"" + (k == 4 ? vierte : "Plant " + std::to_string(k)) + "\"", 100 * k, 32);
  for (int k = 1; k <= 4; ++k) text += zeile("", 1000 * k, 32);
  return text;
}

struct SpsIniTest : testing::Test {
  TempOrdner ordner;
  Meldungen meldungen;
  Ablage ablage{ordner.pfad(), meldungen};
};

}  // namespace

TEST_F(SpsIniTest, IsReadRecordByRecord) {
  ordner.schreib("SPS_ini.dat", liste("Plant 4"));
  const SPS_Ini ini = SPS_Ini_Lesen(ablage);
  EXPECT_EQ(ini.Kopf[0], "1");
  EXPECT_EQ(ini.Kopf[8], "9");
  EXPECT_EQ(ini.Anlagen[0].Name, "Plant 1");
  EXPECT_EQ(ini.Anlagen[8].Kanal[31], "931");
  EXPECT_EQ(ini.Kanalnummern[0][0], "1000");
  EXPECT_EQ(ini.Kanalnummern[3][31], "4031");
}

TEST_F(SpsIniTest, AbsentListIsEmptyAndNotMade) {
  EXPECT_EQ(SPS_Ini_Lesen(ablage), SPS_Ini{});
  EXPECT_TRUE(ordner.namen().empty());
}

TEST_F(SpsIniTest, EditingChangesOnePlantAndLeavesExactlyTheList) {
  ordner.schreib("SPS_ini.dat", liste("Plant 4"));
  SPS_Ini::Anlage vierte = SPS_Ini_Lesen(ablage).Anlagen[3];
  vierte.Name = "Dairy";
  EXPECT_TRUE(ISS_KKP_Settings(ablage, 4, vierte));
  EXPECT_EQ(ordner.lies("SPS_ini.dat"), liste("Dairy"));
  EXPECT_EQ(ordner.namen(), std::vector<std::string>{"SPS_ini.dat"});
}

TEST_F(SpsIniTest, EditingBeginsTheListWhereThereIsNone) {
  SPS_Ini::Anlage anlage;
  anlage.Name = "Dairy \"North\"";
  EXPECT_TRUE(ISS_KKP_Settings(ablage, 9, anlage));
  EXPECT_EQ(SPS_Ini_Lesen(ablage).Anlagen[8], anlage);
}

TEST_F(SpsIniTest, PlantOutsideTheListIsRefused) {
  EXPECT_FALSE(ISS_KKP_Settings(ablage, 0, {}));
  EXPECT_FALSE(ISS_KKP_Settings(ablage, 10, {}));
  EXPECT_TRUE(ordner.namen().empty());
}

TEST(SpsNamensliste, ShowsTheCaptionAndNumbers1To9) {
  Meldungen meldungen;
  Ablage ablage(POLARKREIS_DATA, meldungen);
  Captions captions(ablage);
  captions.Captions_Laden();
  const auto namen = SPS_Namensliste(captions);
  ASSERT_EQ(namen.size(), 9U);
  EXPECT_EQ(namen.front(), "Measuring unit 1");
  EXPECT_EQ(namen.back(), "Measuring unit 9");
}

TEST(KkpSystemnummer, FollowsThePlaceOfThePoint) {
  EXPECT_EQ(KKP_Systemnummer("KKP_FMD_TEMP.txt"), 1);
  EXPECT_EQ(KKP_Systemnummer("KKP_FMD_TEMP_3.txt"), 3);
  EXPECT_EQ(KKP_Systemnummer("C:\\Daten\\KKP_FMD_TEMP_5.txt"), 5);
  EXPECT_EQ(KKP_Systemnummer("/data/KKP_FMD_TEMP.txt"), 1);
  EXPECT_EQ(KKP_Systemnummer("other.txt"), 0);
  EXPECT_EQ(KKP_Systemnummer(""), 0);
}
