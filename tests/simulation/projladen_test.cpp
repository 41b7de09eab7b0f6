#include "simulation/projladen.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "shell/ablage.h"
#include "shell/meldungen.h"
#include "support/temp_folder.h"
#include "support/test_dialog.h"

namespace polarkreis {
namespace {

struct Browser : testing::Test {
  TempOrdner daten;
  TempOrdner projekte;
  Meldungen meldungen;
  Ablage ablage{daten.pfad(), meldungen};
  Captions captions{ablage};
  TestDialog dialog;
  ProjLaden browser{ablage, captions, dialog};

  static std::string kopf(const std::string& name, const std::string& text,
                          const std::string& tag) {
    return "\"" + name + "\",\"" + text + "\",\"\",\"" + tag + "\"\r\n";
  }
  std::vector<std::string> dateien() const {
    std::vector<std::string> namen;
    for (const Projekteintrag& e : browser.eintraege) namen.push_back(e.datei);
    return namen;
  }
  // Lines 1 to 44 are their own numbers.
  void nummerierte_captions() {
    std::string zeilen;
    for (int n = 1; n <= 44; ++n) zeilen += "\"line " + std::to_string(n) + "\"\r\n";
    daten.schreib("Caption.ENG", zeilen);
    captions.Captions_Laden();
  }
};

using ProjLadenListe = Browser;

TEST_F(ProjLadenListe, HoldsOnlyTheModulesFiles) {
  projekte.schreib("b.prj", kopf("Cold store", "two rooms", "SIM_PRO") + "\"R134A\"\r\n");
  projekte.schreib("A.PRJ", kopf("Dairy", "milk", "SIM_PRO"));
  projekte.schreib("load.prj", kopf("Office", "third floor", "AC"));
  projekte.schreib("old.prj", kopf("Old", "no tag", ""));
  projekte.schreib("note.txt", kopf("Note", "", "SIM_PRO"));
  projekte.schreib("empty.prj", "");
  browser.oeffnen(Browsermodus::oeffnen, "SIM_PRO", projekte.pfad());
  EXPECT_EQ(dateien(), (std::vector<std::string>{"A.PRJ", "b.prj"}));
  EXPECT_EQ(browser.eintraege[1], (Projekteintrag{"b.prj", "Cold store", "two rooms"}));
}

TEST_F(ProjLadenListe, AcceptsAnEmptyTagForTheOldCompressorModulesOnly) {
  projekte.schreib("old.prj", kopf("Old", "no tag", ""));
  for (const char* modul : {"KOMP", "VERB"}) {
    browser.oeffnen(Browsermodus::oeffnen, modul, projekte.pfad());
    EXPECT_EQ(dateien(), std::vector<std::string>{"old.prj"}) << modul;
  }
  for (const char* modul : {"SIM_PRO", "PUMP", "2STAGE", "HeatP", "MonoF"}) {
    browser.oeffnen(Browsermodus::oeffnen, modul, projekte.pfad());
    EXPECT_TRUE(browser.eintraege.empty()) << modul;
  }
}

TEST_F(ProjLadenListe, AnEmptyFolderTextIsTheDataFolder) {
  daten.schreib("here.prj", kopf("Here", "", "SIM_PRO"));
  browser.oeffnen(Browsermodus::oeffnen, "SIM_PRO", "");
  EXPECT_EQ(dateien(), std::vector<std::string>{"here.prj"});
  browser.waehlen(0);
  EXPECT_EQ(browser.projektdatei(), daten.pfad("here.prj"));
}

TEST_F(ProjLadenListe, ALoadProjectWithoutLinesIsToldAndLeavesTheLoadFile) {
  nummerierte_captions();
  daten.schreib("KlimaL.dat", "as it was");
  projekte.schreib("bare.prj", kopf("Office", "", "AC"));
  browser.oeffnen(Browsermodus::oeffnen, "AC", projekte.pfad());
  browser.waehlen(0);
  EXPECT_FALSE(browser.bestaetigen());
  EXPECT_EQ(dialog.texte.back(), "line 43");
  EXPECT_EQ(daten.lies("KlimaL.dat"), "as it was");
}

TEST_F(ProjLadenListe, TheSelectedLineIsShownWithTheProjectWord) {
  nummerierte_captions();
  projekte.schreib("a.prj", kopf("Dairy", "milk, cheese", "SIM_PRO"));
  browser.oeffnen(Browsermodus::oeffnen, "SIM_PRO", projekte.pfad());
  EXPECT_EQ(browser.auswahl_text(), "");
  browser.waehlen(0);
  EXPECT_EQ(browser.auswahl_text(), "line 25 Dairy, milk, cheese");
  EXPECT_EQ(browser.projektdatei(), projekte.pfad("a.prj"));
  EXPECT_EQ(browser.ProjektNam, "Dairy");
  EXPECT_EQ(browser.ProBeschr, "milk, cheese");
}

TEST_F(ProjLadenListe, SavingKeepsTheFormsNameWhenALineIsSelected) {
  projekte.schreib("a.prj", kopf("Dairy", "milk", "SIM_PRO"));
  browser.ProjektNam = "Mine";
  browser.oeffnen(Browsermodus::speichern, "SIM_PRO", projekte.pfad() + "/");
  browser.waehlen(0);
  EXPECT_EQ(browser.Dateiname, "a.prj");
  EXPECT_EQ(browser.ProjektNam, "Mine");
}

TEST(ProjektdateiName, GetsItsExtension) {
  EXPECT_EQ(Projektdatei_Name("plant"), "plant.prj");
  EXPECT_EQ(Projektdatei_Name("plant.prj"), "plant.prj");
  EXPECT_EQ(Projektdatei_Name("plant.PRJ"), "plant.PRJ");
  EXPECT_EQ(Projektdatei_Name("  plant.Prj "), "plant.Prj");
}

TEST(ProjektdateiName, AnotherExtensionIsCutAtTheFirstPoint) {
  EXPECT_EQ(Projektdatei_Name("plant.txt"), "plant.prj");
  EXPECT_EQ(Projektdatei_Name("plant.v2.txt"), "plant.prj");
  EXPECT_EQ(Projektdatei_Name("plant."), "plant.prj");
  EXPECT_EQ(Projektdatei_Name("plant.prjx"), "plant.prj");
}

TEST(ProjektdateiName, ThePointOfAFolderIsNoExtension) {
  EXPECT_EQ(Projektdatei_Name("/home/a.b/plant"), "/home/a.b/plant.prj");
  EXPECT_EQ(Projektdatei_Name("C:\\a.b\\plant.x"), "C:\\a.b\\plant.prj");
}

TEST(ProjektdateiName, ABlankNameStaysEmpty) {
  EXPECT_EQ(Projektdatei_Name("   "), "");
}

using ProjLadenAuswahl = Browser;

TEST_F(ProjLadenAuswahl, ASaveWithoutANameIsRefused) {
  nummerierte_captions();
  for (const char* name : {"", "  ", ".PRJ", ".prj", ".txt"}) {
    browser.oeffnen(Browsermodus::speichern, "SIM_PRO", projekte.pfad());
    browser.Dateiname = name;
    EXPECT_FALSE(browser.bestaetigen()) << name;
  }
  EXPECT_EQ(dialog.texte, std::vector<std::string>(5, "line 44"));
}

TEST_F(ProjLadenAuswahl, ASaveGivesTheNameItsExtensionAndWritesNothing) {
  browser.oeffnen(Browsermodus::speichern, "SIM_PRO", projekte.pfad());
  browser.Dateiname = "dairy.old";
  EXPECT_TRUE(browser.bestaetigen());
  EXPECT_EQ(browser.projektdatei(), projekte.pfad("dairy.prj"));
  EXPECT_TRUE(projekte.namen().empty());
}

TEST_F(ProjLadenAuswahl, DeletingRemovesTheChosenFileOnly) {
  projekte.schreib("a.prj", kopf("A", "", "SIM_PRO"));
  projekte.schreib("b.prj", kopf("B", "", "SIM_PRO"));
  browser.oeffnen(Browsermodus::loeschen, "SIM_PRO", projekte.pfad());
  browser.waehlen(1);
  EXPECT_TRUE(browser.bestaetigen());
  EXPECT_EQ(projekte.namen(), std::vector<std::string>{"a.prj"});
  EXPECT_EQ(dateien(), std::vector<std::string>{"a.prj"});
  EXPECT_TRUE(dialog.texte.empty());
}

TEST_F(ProjLadenAuswahl, ARefusedDeletionIsToldWithTheErrorIcon) {
  std::filesystem::create_directories(projekte.pfad("a.prj"));
  projekte.schreib("a.prj/inside", "x");
  browser.oeffnen(Browsermodus::loeschen, "SIM_PRO", projekte.pfad());
  browser.Dateiname = "a.prj";
  EXPECT_FALSE(browser.bestaetigen());
  const std::string name = projekte.pfad("a.prj");
  EXPECT_EQ(dialog.texte,
            std::vector<std::string>{"\r\nCan not delete/overwrite file:   - " + name + " - "});
  EXPECT_EQ(dialog.symbole, std::vector<Symbol>{Symbol::fehler});
}

TEST_F(ProjLadenAuswahl, DeletingWithoutAChoiceDoesNothing) {
  projekte.schreib("a.prj", kopf("A", "", "SIM_PRO"));
  browser.oeffnen(Browsermodus::loeschen, "SIM_PRO", projekte.pfad());
  EXPECT_FALSE(browser.bestaetigen());
  EXPECT_TRUE(projekte.da("a.prj"));
}

TEST_F(ProjLadenAuswahl, OpeningAFileThatIsGoneGivesTheFixedMessage) {
  browser.oeffnen(Browsermodus::oeffnen, "SIM_PRO", projekte.pfad());
  browser.Dateiname = "gone.prj";
  EXPECT_FALSE(browser.bestaetigen());
  EXPECT_EQ(dialog.texte, std::vector<std::string>{fehlertext(Fehler::Datei_fehlt)});
  EXPECT_FALSE(projekte.da("gone.prj"));
}

using ProjektPfad = Browser;

TEST_F(ProjektPfad, ABareNameIsSoughtInTheCurrentFolderFirst) {
  daten.schreib("polarkreis_test_both.prj", "data");
  const std::filesystem::path vorher = std::filesystem::current_path();
  std::filesystem::current_path(projekte.pfad());
  EXPECT_EQ(Projektdatei_Pfad(ablage, "polarkreis_test_both.prj"), "polarkreis_test_both.prj");
  projekte.schreib("Polarkreis_Test_Both.PRJ", "current");
  const std::string hier = Projektdatei_Pfad(ablage, "polarkreis_test_both.prj");
  EXPECT_EQ(ablage.lies_ganz(hier), "current");
  std::filesystem::current_path(vorher);
}

TEST_F(ProjektPfad, APathStaysAndNamesTheFolder) {
  EXPECT_EQ(Projektdatei_Pfad(ablage, "/some/where.prj"), "/some/where.prj");
  EXPECT_EQ(Ordner_von("/some/where.prj"), "/some/");
  EXPECT_EQ(Ordner_von("C:\\some\\where.prj"), "C:\\some\\");
  EXPECT_EQ(Ordner_von("where.prj"), "");
}

using Park = Browser;

TEST_F(Park, IsRenamedBesideTheProjectOnSavingAndBackOnOpening) {
  const std::string bytes = "\"84.5\"\r\n\x80\xff\n raw";
  daten.schreib("VerDpark.dat", bytes);
  const std::string projekt = projekte.pfad("dairy.prj");
  EXPECT_TRUE(park_sichern(ablage, "VERB", projekt));
  EXPECT_FALSE(daten.da("VerDpark.dat"));
  EXPECT_EQ(projekte.lies("dairy.VDD"), bytes);
  std::string beiseite;
  EXPECT_TRUE(park_laden(ablage, "VERB", projekt, beiseite));
  EXPECT_EQ(beiseite, "");
  EXPECT_FALSE(projekte.da("dairy.VDD"));
  EXPECT_EQ(daten.lies("VerDpark.dat"), bytes);
}

TEST_F(Park, BelongsToTheCompressorModulesAndNotToTheSimulation) {
  for (const char* modul : {"KOMP", "2STAGE", "2stage", "VERB", "PUMP", "HeatP", "MonoF"})
    EXPECT_TRUE(Modul_mit_Park(modul)) << modul;
  for (const char* modul : {"SIM_PRO", "SIM", "DiaG", "AC", ""})
    EXPECT_FALSE(Modul_mit_Park(modul)) << modul;
  daten.schreib("VerDpark.dat", "park");
  EXPECT_TRUE(park_sichern(ablage, "SIM_PRO", projekte.pfad("dairy.prj")));
  EXPECT_EQ(daten.lies("VerDpark.dat"), "park");
  EXPECT_TRUE(projekte.namen().empty());
}

TEST_F(Park, StaysWhereItIsWhenTheTargetCannotBeWritten) {
  std::filesystem::create_directories(projekte.pfad("dairy.VDD"));
  daten.schreib("VerDpark.dat", "park");
  EXPECT_FALSE(park_sichern(ablage, "KOMP", projekte.pfad("dairy.prj")));
  EXPECT_EQ(daten.lies("VerDpark.dat"), "park");

  projekte.schreib("mine.VDD", "mine");
  std::filesystem::remove(daten.pfad("VerDpark.dat"));
  std::filesystem::create_directories(daten.pfad("VerDpark.dat"));
  std::string beiseite;
  EXPECT_FALSE(park_laden(ablage, "KOMP", projekte.pfad("mine.prj"), beiseite));
  EXPECT_EQ(projekte.lies("mine.VDD"), "mine");
}

TEST_F(Park, AProjectWithoutOneLeavesTheDataFolderAlone) {
  daten.schreib("VerDpark.dat", "park");
  std::string beiseite;
  EXPECT_TRUE(park_laden(ablage, "KOMP", projekte.pfad("dairy.prj"), beiseite));
  EXPECT_EQ(daten.lies("VerDpark.dat"), "park");
}

TEST_F(Park, OfOtherContentIsKeptBesideUnderAFreeName) {
  std::string beiseite;
  for (const char* inhalt : {"first \xff", "second", "second", "third"}) {
    projekte.schreib("dairy.VDD", inhalt);
    EXPECT_TRUE(park_laden(ablage, "KOMP", projekte.pfad("dairy.prj"), beiseite));
    EXPECT_EQ(daten.lies("VerDpark.dat"), inhalt);
  }
  EXPECT_EQ(daten.lies("VerDpark kept.VDD"), "first \xff");
  EXPECT_EQ(daten.lies("VerDpark kept 2.VDD"), "second");
  EXPECT_FALSE(daten.da("VerDpark kept 3.VDD"));
  EXPECT_EQ(beiseite, "VerDpark kept 2.VDD");
}

TEST_F(Park, ThatCannotBeKeptBesideStays) {
  projekte.schreib("dairy.VDD", "its park");
  daten.schreib("VerDpark.dat", "another");
  std::filesystem::resize_file(daten.pfad("VerDpark.dat"), (std::uintmax_t{1} << 30) + 1);
  std::string beiseite;
  EXPECT_FALSE(park_laden(ablage, "KOMP", projekte.pfad("dairy.prj"), beiseite));
  EXPECT_EQ(projekte.lies("dairy.VDD"), "its park");
  EXPECT_GT(std::filesystem::file_size(daten.pfad("VerDpark.dat")), std::uintmax_t{1} << 30);
  EXPECT_EQ(beiseite, "");
}

TEST_F(Park, ComesBackWhenTheBrowserOpensItsProject) {
  projekte.schreib("dairy.prj", kopf("Dairy", "", "KOMP"));
  projekte.schreib("DAIRY.vdd", "its park");
  daten.schreib("VerDpark.dat", "another");
  browser.oeffnen(Browsermodus::oeffnen, "KOMP", projekte.pfad());
  browser.waehlen(0);
  EXPECT_TRUE(browser.bestaetigen());
  EXPECT_EQ(daten.lies("VerDpark.dat"), "its park");
  EXPECT_EQ(browser.Park_beiseite, "VerDpark kept.VDD");
  EXPECT_EQ(daten.lies("VerDpark kept.VDD"), "another");
  EXPECT_EQ(projekte.namen(), std::vector<std::string>{"dairy.prj"});
}

}  // namespace
}  // namespace polarkreis
