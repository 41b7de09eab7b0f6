#include "simulation/lastprojekt.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "simulation/projladen.h"
#include "support/temp_folder.h"
#include "support/test_dialog.h"

namespace polarkreis {
namespace {

struct Lastprojekt : testing::Test {
  TempOrdner daten;
  TempOrdner projekte;
  Meldungen meldungen;
  Ablage ablage{daten.pfad(), meldungen};
};

// Items, a bare line, bytes that are no UTF-8, and a last line without its end.
const std::string Zeilen = "\"12,5\",\"-4\"\r\nbare\n\"K\xe4lte\"\r\n\r\n\xef\xbb\xbftail";

TEST_F(Lastprojekt, EachTypeMarkHasItsLoadFile) {
  EXPECT_EQ(Lastdatei("AC"), "KlimaL.dat");
  EXPECT_EQ(Lastdatei("CR"), "KuehlL.dat");
  EXPECT_EQ(Lastdatei("HX"), "HX_ACT.dat");
  EXPECT_EQ(Lastdatei("SIM_PRO"), "");
  EXPECT_EQ(Lastdatei(""), "");
}

TEST_F(Lastprojekt, OpeningCopiesTheLinesBehindTheHeadingByteForByte) {
  projekte.schreib("load.prj", "\"Office, new\",\"3\"\"rd\",\"\",\"CR\"\r\n" + Zeilen);
  EXPECT_TRUE(Lastprojekt_Oeffnen(ablage, projekte.pfad("load.prj")));
  EXPECT_EQ(daten.lies("KuehlL.dat"), Zeilen);
  EXPECT_EQ(daten.namen().size(), 1u);
}

TEST_F(Lastprojekt, AHeadingMayHoldALineEndInsideAnItem) {
  projekte.schreib("load.prj", "\"Office\",\"two\r\nlines\",\"\",\"HX\"\n" + Zeilen);
  EXPECT_TRUE(Lastprojekt_Oeffnen(ablage, projekte.pfad("load.prj")));
  EXPECT_EQ(daten.lies("HX_ACT.dat"), Zeilen);
}

TEST_F(Lastprojekt, SavingPutsTheLinesBehindANewHeading) {
  daten.schreib("KlimaL.dat", Zeilen);
  projekte.schreib("load.prj", "\"old\",\"old\",\"\",\"AC\"\r\nold\r\n");
  EXPECT_TRUE(
      Lastprojekt_Speichern(ablage, projekte.pfad("load.prj"), "Office", "3\"rd floor", "AC"));
  EXPECT_EQ(projekte.lies("load.prj"), "\"Office\",\"3\"\"rd floor\",\"\",\"AC\"\r\n" + Zeilen);
}

TEST_F(Lastprojekt, SavedAndOpenedLinesAreTheSame) {
  daten.schreib("HX_ACT.dat", Zeilen);
  ASSERT_TRUE(Lastprojekt_Speichern(ablage, projekte.pfad("a.prj"), "A,\"B\"", "\n", "HX"));
  daten.schreib("HX_ACT.dat", "changed");
  EXPECT_TRUE(Lastprojekt_Oeffnen(ablage, projekte.pfad("a.prj")));
  EXPECT_EQ(daten.lies("HX_ACT.dat"), Zeilen);
}

TEST_F(Lastprojekt, AMissingLoadFileLeavesTheStoredProjectAlone) {
  projekte.schreib("load.prj", "stored");
  EXPECT_FALSE(Lastprojekt_Speichern(ablage, projekte.pfad("load.prj"), "A", "B", "AC"));
  EXPECT_EQ(projekte.lies("load.prj"), "stored");
}

TEST_F(Lastprojekt, AnotherMarkOrNoFileChangesNothing) {
  daten.schreib("KlimaL.dat", "kept");
  projekte.schreib("sim.prj", "\"A\",\"B\",\"\",\"SIM_PRO\"\r\nx\r\n");
  projekte.schreib("short.prj", "\"A\",\"B\"");
  EXPECT_FALSE(Lastprojekt_Oeffnen(ablage, projekte.pfad("sim.prj")));
  EXPECT_FALSE(Lastprojekt_Oeffnen(ablage, projekte.pfad("short.prj")));
  EXPECT_FALSE(Lastprojekt_Oeffnen(ablage, projekte.pfad("absent.prj")));
  EXPECT_EQ(daten.namen(), std::vector<std::string>{"KlimaL.dat"});
  EXPECT_EQ(daten.lies("KlimaL.dat"), "kept");
}

TEST_F(Lastprojekt, OneWithoutLinesLeavesTheLoadFile) {
  daten.schreib("KlimaL.dat", Zeilen);
  for (const char* rest : {"", "\r\n", "\n \t\r\n\r\n"}) {
    projekte.schreib("none.prj", std::string("\"A\",\"B\",\"\",\"AC\"") + rest);
    EXPECT_TRUE(Lastprojekt_ohne_Zeilen(ablage, projekte.pfad("none.prj")));
    EXPECT_FALSE(Lastprojekt_Oeffnen(ablage, projekte.pfad("none.prj")));
    EXPECT_EQ(daten.lies("KlimaL.dat"), Zeilen);
  }
  EXPECT_EQ(meldungen.zeilen().size(), 3u);
  EXPECT_FALSE(Lastprojekt_ohne_Zeilen(ablage, projekte.pfad("absent.prj")));
  projekte.schreib("one.prj", "\"A\",\"B\",\"\",\"AC\"\r\n\"\"\r\n");
  EXPECT_TRUE(Lastprojekt_Oeffnen(ablage, projekte.pfad("one.prj")));
  EXPECT_EQ(daten.lies("KlimaL.dat"), "\"\"\r\n");
}

TEST(LastprojektName, ABlankNameBecomesTheDefaultName) {
  EXPECT_EQ(Lastprojekt_Name("", "Site 4"), "Site 4.prj");
  EXPECT_EQ(Lastprojekt_Name("   ", ""), "Projekt.prj");
}

TEST(LastprojektName, AnEndingInAnyCaseStays) {
  EXPECT_EQ(Lastprojekt_Name("hall.prj", ""), "hall.prj");
  EXPECT_EQ(Lastprojekt_Name("hall.PrJ", ""), "hall.PrJ");
}

TEST(LastprojektName, TheLastFourCharactersGiveWayWhateverTheyAre) {
  EXPECT_EQ(Lastprojekt_Name("hall.txt", ""), "hall.PRJ");
  EXPECT_EQ(Lastprojekt_Name("warehouse", ""), "wareh.PRJ");
  EXPECT_EQ(Lastprojekt_Name("Kühlräume", ""), "Kühlr.PRJ");
  EXPECT_EQ(Lastprojekt_Name("hall", ""), ".PRJ");
  EXPECT_EQ(Lastprojekt_Name("ab", ""), ".PRJ");
}

struct Lastbrowser : Lastprojekt {
  Captions captions{ablage};
  TestDialog dialog;
  ProjLaden browser{ablage, captions, dialog};
};

TEST_F(Lastbrowser, OpensAndSavesALoadModulesProject) {
  projekte.schreib("office.prj", "\"Office\",\"3rd\",\"\",\"AC\"\r\n" + Zeilen);
  browser.oeffnen(Browsermodus::oeffnen, "AC", projekte.pfad());
  browser.waehlen(0);
  EXPECT_TRUE(browser.bestaetigen());
  EXPECT_EQ(daten.lies("KlimaL.dat"), Zeilen);

  browser.Projektname_Start = "Site";
  browser.oeffnen(Browsermodus::speichern, "AC", projekte.pfad());
  EXPECT_TRUE(browser.bestaetigen());
  EXPECT_EQ(projekte.lies("Site.prj"), projekte.lies("office.prj"));
}

TEST_F(Lastbrowser, TellsThatTheLoadFileIsMissing) {
  browser.oeffnen(Browsermodus::speichern, "HX", projekte.pfad());
  browser.Dateiname = "a.prj";
  EXPECT_FALSE(browser.bestaetigen());
  EXPECT_EQ(dialog.texte, std::vector<std::string>{fehlertext(Fehler::Datei_fehlt)});
  EXPECT_TRUE(projekte.namen().empty());
}

}  // namespace
}  // namespace polarkreis
