#include <gtest/gtest.h>

#include "climate/jahresgang.h"
#include "climate_desk.h"

using namespace polarkreis;

namespace {

struct ProfilTest : testing::Test {
  ClimateDesk desk;
  JahresGang form{desk.ablage, desk.captions, desk.klima};
  std::string application(int n) const { return Anwendung_Text(desk.captions, n); }
  std::string loads() const {
    std::string text;
    for (const std::size_t s : {3u, 4u}) {
      for (const auto& month : form.Spread1) text += month[s] + " ";
      text += "/ ";
    }
    return text;
  }
};

// Day, then night, January to December.
const std::array<std::string, 7> defaults{
    "0 0 0 20 50 80 100 80 30 0 0 0 / 0 0 0 0 0 20 40 20 0 0 0 0 / ",
    "0 0 20 30 50 80 100 80 50 30 0 0 / 0 0 0 10 10 20 40 20 10 0 0 0 / ",
    "0 0 20 40 60 80 100 80 60 30 0 0 / 0 0 0 10 10 20 40 20 10 0 0 0 / ",
    "50 55 60 65 70 80 100 80 70 65 60 55 / 40 45 50 55 60 65 80 65 60 55 50 45 / ",
    "65 65 65 70 80 90 100 90 80 70 70 80 / 35 35 40 45 50 60 70 60 50 45 40 35 / ",
    "75 75 80 85 90 95 100 95 90 85 80 75 / 65 65 70 70 75 85 90 80 85 75 70 65 / ",
    "75 75 80 85 90 95 100 95 90 85 80 75 / 65 65 70 75 80 85 90 85 80 75 70 65 / "};

TEST_F(ProfilTest, ApplicationsStandInTheOrderOfTheSelection) {
  const JMapCap order[] = {JMapCap::Klima_Sommer,    JMapCap::Klima_lang,
                           JMapCap::Klima_laenger,   JMapCap::Produktionskuehlung,
                           JMapCap::Prozesskuehlung, JMapCap::Kaelteraum,
                           JMapCap::Kaelteraum_zwei};
  for (int n = 1; n <= 7; ++n) {
    EXPECT_EQ(application(n), desk.captions.text(order[n - 1]));
    EXPECT_EQ(Anwendung_Nummer(desk.captions, application(n)), n);
  }
  EXPECT_EQ(application(0), "");
  EXPECT_EQ(application(8), "");
  EXPECT_EQ(Anwendung_Nummer(desk.captions, "something else"), 0);
  EXPECT_EQ(Anwendung_Nummer(desk.captions, ""), 0);
}

TEST_F(ProfilTest, MissingFileIsWrittenWithItsDefaults) {
  for (int n = 1; n <= 7; ++n) {
    const std::string file = "Profil" + std::to_string(n) + ".prf";
    EXPECT_FALSE(desk.folder.da(file));
    form.Profil_laden(application(n));
    EXPECT_EQ(loads(), defaults[static_cast<std::size_t>(n - 1)]) << n;
    EXPECT_TRUE(desk.folder.da(file));
  }
}

TEST_F(ProfilTest, DefaultFileByteByByte) {
  form.Profil_laden(application(1));
  EXPECT_EQ(desk.folder.lies("Profil1.prf"),
            quoted_lines({"0", "0", "0", "20", "50", "80", "100", "80", "30", "0", "0", "0",
                          "0", "0", "0", "0",  "0",  "20", "40",  "20", "0",  "0", "0", "0"}));
}

TEST_F(ProfilTest, EmptyFileIsReplacedByTheDefaults) {
  desk.folder.schreib("Profil3.prf", "");
  form.AnwendBereich_aendern(application(3));
  EXPECT_EQ(loads(), defaults[2]);
  EXPECT_GT(desk.ablage.Dateigroesse("Profil3.prf"), 0);
}

TEST_F(ProfilTest, OwnProfileIsKept) {
  form.Profil_laden(application(4));
  form.AnwendBereich = application(4);
  form.Spread1[0][3] = "12,5";
  form.Spread1[11][4] = "33";
  EXPECT_TRUE(form.SpeichButt());
  form.Profil_laden(application(5));
  form.Profil_laden(application(4));
  EXPECT_EQ(form.Spread1[0][3], "12,5");
  EXPECT_EQ(form.Spread1[11][4], "33");
}

TEST_F(ProfilTest, ShortFileLeavesTheRestOfTheColumns) {
  form.Profil_laden(application(4));
  desk.folder.schreib("Profil1.prf", quoted_lines({"1", "2"}));
  form.Profil_laden(application(1));
  EXPECT_EQ(loads(), "1 2 60 65 70 80 100 80 70 65 60 55 / 40 45 50 55 60 65 80 65 60 55 50 45 / ");
}

TEST_F(ProfilTest, UnknownApplicationLeavesTheColumnsAndWritesNothing) {
  form.Profil_laden(application(2));
  const auto names = desk.folder.namen();
  form.AnwendBereich_aendern("something else");
  EXPECT_EQ(loads(), defaults[1]);
  EXPECT_FALSE(form.SpeichButt());
  EXPECT_EQ(desk.folder.namen(), names);
}

TEST_F(ProfilTest, UnwritableFileStillGivesTheDefaults) {
  std::filesystem::create_directory(desk.folder.pfad("Profil6.prf"));
  form.Profil_laden(application(6));
  EXPECT_EQ(loads(), defaults[5]);
  EXPECT_FALSE(form.Profil_speichern(application(6)));
}

}  // namespace
