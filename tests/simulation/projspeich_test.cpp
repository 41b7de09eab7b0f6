#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "simulation/projladen.h"
#include "support/temp_folder.h"
#include "support/test_dialog.h"

namespace polarkreis {
namespace {

struct ProjSpeichKnopf : testing::Test {
  TempOrdner daten;
  TempOrdner projekte;
  Meldungen meldungen;
  Ablage ablage{daten.pfad(), meldungen};
  Captions captions{ablage};
  TestDialog dialog;
  Kaeltemittel km{ablage};
  Projektdaten form{ablage, captions, km, dialog};
  ProjLaden browser{ablage, captions, dialog};

  void SetUp() override {
    form.Projektordner = projekte.pfad() + "/";
    form.ProjektNam = "Dairy";
    form.ProBeschr = "milk";
  }
};

TEST_F(ProjSpeichKnopf, AsksForANameWhenThereIsNone) {
  for (const char* name : {"", "   ", ".PRJ", " .prj "}) {
    form.Dateiname_aktuell = name;
    browser.Dateiname = "left over";
    EXPECT_EQ(ProjSpeich(form, browser, "SIM_PRO"), Speicherung::Name_noetig) << name;
    EXPECT_EQ(browser.Dateiname, "");
    EXPECT_EQ(browser.ProjektNam, "Dairy");
    EXPECT_EQ(browser.ProBeschr, "milk");
    EXPECT_TRUE(projekte.namen().empty());
  }
}

TEST_F(ProjSpeichKnopf, SavesAtOnceUnderTheCurrentName) {
  form.Dateiname_aktuell = "dairy.prj";
  EXPECT_EQ(ProjSpeich(form, browser, "SIM_PRO"), Speicherung::gespeichert);
  EXPECT_TRUE(projekte.lies("dairy.prj").starts_with("\"Dairy\",\"milk\",\"\",\"SIM_PRO\"\r\n"));
  EXPECT_EQ(form.Projektname_aktuell, "Dairy");
}

TEST_F(ProjSpeichKnopf, TheBrowserCompletesASaveAndOpensIt) {
  form.Q0 = "77";
  ASSERT_EQ(ProjSpeich(form, browser, "SIM_PRO"), Speicherung::Name_noetig);
  browser.Dateiname = "dairy";
  browser.ProjektNam = "Dairy two";
  ASSERT_TRUE(Browser_bestaetigen(form, browser));
  EXPECT_EQ(form.Dateiname_aktuell, "dairy.prj");
  EXPECT_EQ(form.ProjektNam, "Dairy two");

  form.Q0 = "5";
  form.ProjektNam = "another";
  ProjLad(form, browser, "SIM_PRO");
  ASSERT_EQ(browser.eintraege.size(), 1u);
  browser.waehlen(0);
  ASSERT_TRUE(Browser_bestaetigen(form, browser));
  EXPECT_EQ(form.Q0, "77");
  EXPECT_EQ(form.ProjektNam, "Dairy two");
  EXPECT_EQ(form.Projektordner, projekte.pfad() + "/");

  PrLoesch(form, browser, "SIM_PRO");
  browser.waehlen(0);
  ASSERT_TRUE(Browser_bestaetigen(form, browser));
  EXPECT_FALSE(projekte.da("dairy.prj"));
}

TEST_F(ProjSpeichKnopf, TheFileOfTheDataFolderIsOpenedNotOneOfTheCurrentFolder) {
  form.Projektordner.clear();
  form.Dateiname_aktuell = "plant.prj";
  form.Q0 = "11";
  ASSERT_EQ(ProjSpeich(form, browser, "SIM_PRO"), Speicherung::gespeichert);
  const std::filesystem::path vorher = std::filesystem::current_path();
  projekte.schreib("plant.prj", "\"wrong\",\"\",\"\",\"SIM_PRO\"\r\n\"R22\"\r\n\"99\"\r\n");
  std::filesystem::current_path(projekte.pfad());
  ProjLad(form, browser, "SIM_PRO");
  browser.waehlen(0);
  EXPECT_TRUE(Browser_bestaetigen(form, browser));
  std::filesystem::current_path(vorher);
  EXPECT_EQ(form.Q0, "11");
}

TEST_F(ProjSpeichKnopf, TellsAFailureAndKeepsThePark) {
  std::filesystem::create_directories(projekte.pfad("dairy.prj"));
  daten.schreib("VerDpark.dat", "park");
  form.Dateiname_aktuell = "dairy.prj";
  EXPECT_EQ(ProjSpeich(form, browser, "KOMP"), Speicherung::misslungen);
  EXPECT_EQ(daten.lies("VerDpark.dat"), "park");
}

TEST_F(ProjSpeichKnopf, LeavesTheParkWithTheProjectThatStaysOpen) {
  daten.schreib("VerDpark.dat", "park");
  form.Dateiname_aktuell = "dairy.prj";
  for (const char* park : {"park", "more compressors"}) {
    daten.schreib("VerDpark.dat", park);
    EXPECT_EQ(ProjSpeich(form, browser, "KOMP"), Speicherung::gespeichert);
    EXPECT_EQ(daten.lies("VerDpark.dat"), park);
    EXPECT_EQ(projekte.lies("dairy.VDD"), park);
  }
}

TEST_F(ProjSpeichKnopf, StoresNoParkWithAProjectOfTheSimulation) {
  daten.schreib("VerDpark.dat", "park");
  form.Dateiname_aktuell = "dairy.prj";
  EXPECT_EQ(ProjSpeich(form, browser, "SIM_PRO"), Speicherung::gespeichert);
  EXPECT_EQ(daten.lies("VerDpark.dat"), "park");
  EXPECT_FALSE(projekte.da("dairy.VDD"));
}

TEST_F(ProjSpeichKnopf, AnotherProjectsParkTakesThePlaceOfASavedOneAndLosesNothing) {
  projekte.schreib("brewery.prj", "\"Brewery\",\"\",\"\",\"KOMP\"\r\n\"R717\"\r\n");
  projekte.schreib("brewery.VDD", "its park");
  daten.schreib("VerDpark.dat", "park");
  form.Dateiname_aktuell = "dairy.prj";
  ASSERT_EQ(ProjSpeich(form, browser, "KOMP"), Speicherung::gespeichert);
  ProjLad(form, browser, "KOMP");
  browser.waehlen(0);
  ASSERT_TRUE(Browser_bestaetigen(form, browser));
  EXPECT_EQ(daten.lies("VerDpark.dat"), "its park");
  EXPECT_EQ(projekte.lies("dairy.VDD"), "park");
}

TEST_F(ProjSpeichKnopf, TheBrowserPutsTheParkAwayWithTheProjectThatItSaves) {
  daten.schreib("VerDpark.dat", "park");
  ASSERT_EQ(ProjSpeich(form, browser, "KOMP"), Speicherung::Name_noetig);
  EXPECT_EQ(daten.lies("VerDpark.dat"), "park");
  browser.Dateiname = "dairy";
  ASSERT_TRUE(Browser_bestaetigen(form, browser));
  EXPECT_EQ(projekte.lies("dairy.VDD"), "park");
  EXPECT_FALSE(daten.da("VerDpark.dat"));
}

}  // namespace
}  // namespace polarkreis
