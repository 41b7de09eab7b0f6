#include <filesystem>

#include "start_fixture.h"

namespace polarkreis {
namespace {

using StartOrdner = StartTest;

TEST_F(StartOrdner, AGivenFolderIsUsedAsItStands) {
  TempOrdner anderer;
  daten.schreib("kparam.dat", kparam("ENG", anderer.pfad()));
  bool gefuellt = false;
  Startangaben angaben;
  angaben.datenordner = daten.pfad() + "/";
  angaben.gefundener_ordner = anderer.pfad();
  angaben.fuellen = [&](const std::string&) {
    gefuellt = true;
    return true;
  };
  EXPECT_TRUE(start.starten(angaben));
  EXPECT_EQ(programm.ablage.Datenordner, daten.pfad());
  EXPECT_FALSE(gefuellt);
  EXPECT_EQ(daten.lies("kparam.dat"), kparam("ENG", anderer.pfad()));
  EXPECT_TRUE(anderer.namen().empty());
}

TEST_F(StartOrdner, TheFoundFolderGetsAnEmptyAccountFileThatIsNeverReplaced) {
  Startangaben angaben;
  angaben.gefundener_ordner = daten.pfad();
  EXPECT_TRUE(start.starten(angaben));
  EXPECT_EQ(daten.lies("ftp_default.ini"), "\"\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n");
  EXPECT_EQ(std::filesystem::status(daten.pfad("ftp_default.ini")).permissions(),
            std::filesystem::perms::owner_read | std::filesystem::perms::owner_write);
  daten.schreib("ftp_default.ini", "mine");
  EXPECT_TRUE(start.starten(angaben));
  EXPECT_EQ(daten.lies("ftp_default.ini"), "mine");
}

TEST_F(StartOrdner, AGivenFolderGetsNoAccountFile) {
  Startangaben angaben;
  angaben.datenordner = daten.pfad();
  EXPECT_TRUE(start.starten(angaben));
  EXPECT_FALSE(daten.da("ftp_default.ini"));
}

TEST_F(StartOrdner, AGivenFolderThatIsNotThereIsToldAndNotMade) {
  Startangaben angaben;
  angaben.datenordner = daten.pfad("absent");
  EXPECT_FALSE(start.starten(angaben));
  ASSERT_EQ(dialog.texte.size(), 1u);
  EXPECT_NE(dialog.texte[0].find(daten.pfad("absent")), std::string::npos);
  EXPECT_FALSE(daten.da("absent"));
}

TEST_F(StartOrdner, AFillThatFailsIsToldAndEndsTheStart) {
  Startangaben angaben;
  angaben.gefundener_ordner = daten.pfad();
  angaben.fuellen = [](const std::string&) { return false; };
  EXPECT_FALSE(start.starten(angaben));
  ASSERT_FALSE(dialog.texte.empty());
  EXPECT_EQ(dialog.texte.back(), "Can not overwrite existing file.");
}

TEST_F(StartOrdner, TheFoundFolderIsFilledAtTheFirstStartOnly) {
  int gefuellt = 0;
  Startangaben angaben;
  angaben.gefundener_ordner = daten.pfad("found");
  angaben.fuellen = [&](const std::string& ordner) {
    ++gefuellt;
    EXPECT_EQ(ordner, daten.pfad("found"));
    daten.schreib("found/COUNTRY.DAT", "x");
    return true;
  };
  EXPECT_TRUE(start.starten(angaben));
  EXPECT_EQ(gefuellt, 1);
  EXPECT_TRUE(programm.einstellungen.erster_Start);
  daten.schreib("found/kparam.dat", kparam("ENG"));
  EXPECT_TRUE(start.starten(angaben));
  EXPECT_EQ(gefuellt, 1);
}

TEST_F(StartOrdner, AFolderThatCannotBeFilledGivesTheFixedMessage) {
  daten.schreib("file", "x");
  Startangaben angaben;
  angaben.gefundener_ordner = daten.pfad("file/below");
  angaben.fuellen = [](const std::string&) { return true; };
  EXPECT_FALSE(start.starten(angaben));
  EXPECT_EQ(dialog.texte, std::vector<std::string>{"Can not overwrite existing file."});
  EXPECT_EQ(dialog.symbole, std::vector<Symbol>{Symbol::fehler});
}

TEST_F(StartOrdner, TheStoredFolderLeadsOnceToAnotherThatIsThere) {
  TempOrdner zweiter, dritter;
  daten.schreib("kparam.dat", kparam("ENG", zweiter.pfad()));
  zweiter.schreib("kparam.dat", kparam("GER", dritter.pfad()));
  Startangaben angaben;
  angaben.gefundener_ordner = daten.pfad();
  EXPECT_TRUE(start.starten(angaben));
  EXPECT_EQ(programm.ablage.Datenordner, zweiter.pfad());
  EXPECT_EQ(programm.captions.Sprache, "GER");
}

TEST_F(StartOrdner, AStoredFolderThatIsGoneIsFoundAfresh) {
  daten.schreib("kparam.dat", kparam("ENG", daten.pfad("gone")));
  Startangaben angaben;
  angaben.gefundener_ordner = daten.pfad();
  EXPECT_TRUE(start.starten(angaben));
  EXPECT_EQ(programm.ablage.Datenordner, daten.pfad());
  ASSERT_FALSE(programm.meldungen.zeilen().empty());
  EXPECT_NE(programm.meldungen.zeilen().front().find(daten.pfad("gone")), std::string::npos);
  EXPECT_TRUE(daten.da("log/polarkreis.log"));
}

using StartSprache = StartTest;

TEST_F(StartSprache, ComesFromTheSettings) {
  liefere_captions();
  daten.schreib("kparam.dat", kparam("GER"));
  EXPECT_TRUE(starten());
  EXPECT_EQ(programm.captions.Sprache, "GER");
  EXPECT_EQ(start.Beschriftung(Menuepunkt::ProjNix), "Energiesimulation");
  EXPECT_EQ(start.Beschriftung(Menuepunkt::ende), "Ende");
}

TEST_F(StartSprache, OfTheRunBeatsTheStoredOneAndIsNotStored) {
  liefere_captions();
  daten.schreib("kparam.dat", kparam("GER"));
  EXPECT_TRUE(starten("eng"));
  EXPECT_EQ(programm.captions.Sprache, "ENG");
  EXPECT_EQ(start.Beschriftung(Menuepunkt::ProjNix), "Energy simulation");
  start.ende();
  EXPECT_EQ(item(daten.lies("kparam.dat"), Einstellungen::Sprache), "GER");
}

TEST_F(StartSprache, EachButtonHasItsText) {
  liefere_captions();
  EXPECT_TRUE(starten("ENG"));
  const std::vector<std::string> texte = {"Energy simulation", "Diagnostics",  "Remote monitoring",
                                          "Defaults",          "Print set-up", "Print",
                                          "Information",       "Help",         "End"};
  for (int n = 1; n <= 9; ++n)
    EXPECT_EQ(start.Beschriftung(static_cast<Menuepunkt>(n)),
              texte[static_cast<std::size_t>(n - 1)]);
}

TEST_F(StartSprache, OfAnotherWorkingProjectTranslatesItAtTheStart) {
  liefere_captions();
  programm.ablage.Datenordner = daten.pfad();
  programm.captions.Sprache = "GER";
  programm.captions.Captions_Laden();
  const std::string deutsch = programm.captions.text(JMapCap::Wartung_mittel);
  daten.schreib("Temp_Sim.dat", arbeitsprojekt("GER", deutsch));
  daten.schreib("kparam.dat", kparam("ENG"));

  EXPECT_TRUE(starten());
  const std::string neu = daten.lies("Temp_Sim.dat");
  EXPECT_EQ(item(neu, 23), "ENG");
  EXPECT_EQ(item(neu, 11), programm.captions.text(JMapCap::Wartung_mittel));
  EXPECT_NE(item(neu, 11), deutsch);
  EXPECT_EQ(start.Arbeits_KaelteM, "R134A");
}

TEST_F(StartSprache, OfTheSameOrNoLanguageLeavesTheWorkingProjectAlone) {
  liefere_captions();
  for (const char* code : {"ENG", "eng", "", "EN"}) {
    const std::string vorher = arbeitsprojekt(code, "Wartungstext");
    daten.schreib("Temp_Sim.dat", vorher);
    EXPECT_TRUE(starten("ENG"));
    EXPECT_EQ(daten.lies("Temp_Sim.dat"), vorher) << code;
  }
}

TEST_F(StartSprache, AWorkingProjectThatCannotBeRewrittenIsTold) {
  liefere_captions();
  daten.schreib("Temp_Sim.dat", arbeitsprojekt("GER", ""));
  std::filesystem::permissions(daten.pfad("Temp_Sim.dat"), std::filesystem::perms::owner_read);
  EXPECT_TRUE(starten("ENG"));
  EXPECT_EQ(dialog.texte, std::vector<std::string>{"Can not overwrite existing file."});
  EXPECT_EQ(dialog.symbole, std::vector<Symbol>{Symbol::fehler});
  EXPECT_EQ(daten.lies("Temp_Sim.dat"), arbeitsprojekt("GER", ""));
}

TEST_F(StartSprache, WithoutCaptionsLeavesTheWorkingProjectInItsOwn) {
  liefere_captions();
  daten.schreib("Temp_Sim.dat", arbeitsprojekt("GER", "Text"));
  EXPECT_TRUE(starten("FRA"));
  EXPECT_EQ(daten.lies("Temp_Sim.dat"), arbeitsprojekt("GER", "Text"));
}

using StartUebergabe = StartTest;

TEST_F(StartUebergabe, IsKeptForTheFormAndTakenOnce) {
  liefere({"R404A.DAT", "R134A.DAT"});
  daten.schreib("Temp_Sim.dat", arbeitsprojekt("ENG", ""));
  daten.schreib(
      "FRIGData.dat",
      "1\r\n117\r\n0\r\n-12.5\r\n41\r\n33\r\n0\r\nFrom sibling\r\ntwo rooms\r\nR404A\r\n");
  EXPECT_TRUE(starten("ENG"));
  EXPECT_TRUE(start.von_Geschwister());
  EXPECT_EQ(item(daten.lies("FRIGData.dat"), 2), "117");

  start.ProjNix();
  EXPECT_EQ(start.gewaehlt, Menuepunkt::ProjNix);
  EXPECT_EQ(programm.projekt.t0, "-12.5");
  EXPECT_EQ(programm.projekt.Q0, "33");
  EXPECT_EQ(programm.projekt.KaelteM, "R404A");
  EXPECT_EQ(programm.projekt.ProjektNam, "From sibling");
  EXPECT_EQ(daten.lies("FRIGData.dat"), "\"0\"\r\n\"0\"\r\n");

  daten.schreib("Temp_Sim.dat", arbeitsprojekt("ENG", ""));
  start.ProjNix();
  EXPECT_EQ(programm.projekt.KaelteM, "R134A");
}

TEST_F(StartUebergabe, AnyOtherCodeIsNone) {
  for (const char* code : {"0", "116", "118", "216", "218", ""}) {
    const std::string datei = std::string("0\r\n") + code + "\r\n0\r\n-12.5\r\n";
    daten.schreib("FRIGData.dat", datei);
    EXPECT_TRUE(starten("ENG"));
    EXPECT_FALSE(start.von_Geschwister()) << code;
    start.ProjNix();
    EXPECT_EQ(daten.lies("FRIGData.dat"), datei) << code;
  }
}

TEST_F(StartUebergabe, LeavingHandsBackAndEnds) {
  for (const char* code : {"117", "217"}) {
    daten.schreib("Temp_Sim.dat", arbeitsprojekt("ENG", ""));
    daten.schreib("FRIGData.dat", std::string("7\r\n") + code +
                                      "\r\n3\r\n-12.5\r\n25\r\n33\r\nseven\r\nName\r\nText\r\nR134A"
                                      "\r\n\r\n\r\n\r\n\r\nfifteen\r\n");
    start.beendet = false;
    EXPECT_TRUE(starten("ENG"));
    start.ProjNix();
    programm.projekt.Q0 = "44";
    EXPECT_TRUE(start.Simulation_verlassen());
    EXPECT_TRUE(start.beendet) << code;
    const std::string zurueck = daten.lies("FRIGData.dat");
    EXPECT_EQ(item(zurueck, 1), "7");
    EXPECT_EQ(item(zurueck, 2), code);
    EXPECT_EQ(item(zurueck, 3), "3");
    EXPECT_EQ(item(zurueck, 4), "-12.5");
    EXPECT_EQ(item(zurueck, 5), "25") << code;
    EXPECT_EQ(item(zurueck, 6), "44");
    EXPECT_EQ(item(zurueck, 7), "seven");
    EXPECT_EQ(item(zurueck, 8), "Name");
    EXPECT_EQ(item(zurueck, 15), "fifteen");
    EXPECT_EQ(item(daten.lies("Temp_Sim.dat"), 2), "44");
  }
}

TEST_F(StartUebergabe, WithoutASiblingLeavingReturnsToTheMenu) {
  EXPECT_TRUE(starten("ENG"));
  start.ProjNix();
  programm.projekt.Q0 = "44";
  programm.projekt.energie.EnergKost = ".33";
  programm.projekt.Projektordner = daten.pfad("elsewhere/");
  programm.projekt.Dateiname_aktuell = "open.prj";
  EXPECT_TRUE(start.Simulation_verlassen());
  EXPECT_FALSE(start.beendet);
  EXPECT_EQ(start.gewaehlt, Menuepunkt::keiner);
  EXPECT_EQ(item(daten.lies("Temp_Sim.dat"), 2), "44");
  EXPECT_EQ(item(daten.lies("energk.dat"), 3), ".33");
  EXPECT_FALSE(daten.da("elsewhere"));
  EXPECT_EQ(programm.projekt.Projektordner, "");
  EXPECT_EQ(programm.projekt.Dateiname_aktuell, "");
  EXPECT_FALSE(daten.da("FRIGData.dat"));
}

TEST_F(StartUebergabe, AFailingSaveOnLeavingIsTold) {
  EXPECT_TRUE(starten("ENG"));
  start.ProjNix();
  std::filesystem::remove(daten.pfad("Temp_Sim.dat"));
  std::filesystem::create_directories(daten.pfad("Temp_Sim.dat"));
  EXPECT_FALSE(start.Simulation_verlassen());
  ASSERT_EQ(dialog.texte.size(), 1u);
  EXPECT_EQ(dialog.symbole, std::vector<Symbol>{Symbol::fehler});
}

}  // namespace
}  // namespace polarkreis
