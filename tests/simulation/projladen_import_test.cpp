#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "shell/ablage.h"
#include "shell/meldungen.h"
#include "simulation/projladen.h"
#include "support/temp_folder.h"
#include "support/test_dialog.h"

namespace polarkreis {
namespace {

struct ProjLadenImport : testing::Test {
  TempOrdner daten;
  TempOrdner messungen;
  Meldungen meldungen;
  Ablage ablage{daten.pfad(), meldungen};
  Captions captions{ablage};
  TestDialog dialog;
  ProjLaden browser{ablage, captions, dialog};

  void SetUp() override {
    for (const char* name : {"b.adc", "A.ADC", "log.txt", "old.xls", "new.XLSX", "p.prj"})
      messungen.schreib(name, "x");
  }
  std::vector<std::string> liste(Browsermodus modus) {
    browser.oeffnen(modus, "DiaG", messungen.pfad());
    std::vector<std::string> namen;
    for (const Projekteintrag& e : browser.eintraege) namen.push_back(e.datei);
    return namen;
  }
};

TEST_F(ProjLadenImport, EachModeListsItsKindOfFileInAnyCase) {
  EXPECT_EQ(liste(Browsermodus::Loggerdatei), (std::vector<std::string>{"A.ADC", "b.adc"}));
  EXPECT_EQ(liste(Browsermodus::Steuertext), (std::vector<std::string>{"log.txt"}));
  EXPECT_EQ(liste(Browsermodus::Arbeitsblatt), (std::vector<std::string>{"new.XLSX", "old.xls"}));
}

TEST_F(ProjLadenImport, TheModesAreTheirNumbers) {
  EXPECT_EQ(static_cast<int>(Browsermodus::Arbeitsblatt), 161);
  EXPECT_EQ(static_cast<int>(Browsermodus::Loggerdatei), 171);
  EXPECT_EQ(static_cast<int>(Browsermodus::Steuertext), 178);
}

TEST_F(ProjLadenImport, ChoosingAFileTouchesNeitherNameNorDescription) {
  browser.ProjektNam = "Cold store";
  liste(Browsermodus::Loggerdatei);
  browser.waehlen(1);
  EXPECT_TRUE(browser.bestaetigen());
  EXPECT_EQ(browser.projektdatei(), messungen.pfad() + "/b.adc");
  EXPECT_EQ(browser.auswahl_text(), "b.adc");
  EXPECT_EQ(browser.ProjektNam, "Cold store");
}

TEST_F(ProjLadenImport, AMissingFileIsTold) {
  liste(Browsermodus::Loggerdatei);
  browser.Dateiname = "gone.adc";
  EXPECT_FALSE(browser.bestaetigen());
  EXPECT_EQ(dialog.texte.size(), 1U);
}

TEST_F(ProjLadenImport, OneOfThePartsMustBeChosen) {
  liste(Browsermodus::Loggerdatei);
  browser.waehlen(0);
  EXPECT_EQ(browser.Teil(), 0);
  browser.Teile_anbieten(3);
  ASSERT_EQ(browser.eintraege.size(), 3U);
  EXPECT_EQ(browser.eintraege[0].name, "Import Part 1");
  EXPECT_EQ(browser.eintraege[2].name, "Import Part 3");
  EXPECT_EQ(browser.Dateiname, "A.ADC");
  EXPECT_FALSE(browser.bestaetigen());
  browser.waehlen(1);
  EXPECT_EQ(browser.Teil(), 2);
  EXPECT_TRUE(browser.bestaetigen());
  EXPECT_EQ(browser.Dateiname, "A.ADC");
  browser.oeffnen(Browsermodus::Loggerdatei, "DiaG", messungen.pfad());
  EXPECT_EQ(browser.Teil(), 0);
}

}  // namespace
}  // namespace polarkreis
