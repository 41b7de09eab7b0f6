#include <filesystem>
#include <map>

#include "shell/start/version.h"
#include "start_fixture.h"

namespace polarkreis {
namespace {

using Menue = StartTest;

TEST_F(Menue, TellsWhichJobWasChosen) {
  EXPECT_TRUE(starten("ENG"));
  EXPECT_EQ(start.gewaehlt, Menuepunkt::keiner);
  start.DiaGnos();
  EXPECT_EQ(start.gewaehlt, Menuepunkt::DiaGnos);
  start.FTPServ();
  EXPECT_EQ(start.gewaehlt, Menuepunkt::FTPServ);
  start.Printset();
  EXPECT_EQ(start.gewaehlt, Menuepunkt::Printset);
  start.PriButt();
  EXPECT_EQ(start.gewaehlt, Menuepunkt::PriButt);
  start.VorGab();
  EXPECT_EQ(start.gewaehlt, Menuepunkt::VorGab);
  EXPECT_TRUE(start.vorgaben.offen);
  start.zum_Menue();
  EXPECT_EQ(start.gewaehlt, Menuepunkt::keiner);
}

TEST_F(Menue, InformationShowsNameAndVersion) {
  EXPECT_TRUE(starten("ENG"));
  start.InfoP();
  EXPECT_EQ(dialog.texte, std::vector<std::string>{"Polarkreis 0.1.0"});
}

TEST_F(Menue, HelpShowsTheLanguagesFileOrTheFixedMessage) {
  EXPECT_TRUE(starten("ENG"));
  start.StartHelp();
  EXPECT_EQ(dialog.texte.back(), fehlertext(Fehler::Datei_fehlt));
  EXPECT_FALSE(daten.da("Frighelp.ENG"));
  daten.schreib("Frighelp.eng", "\"First line\"\r\n\"Second, line\"\r\n");
  start.StartHelp();
  EXPECT_EQ(dialog.texte.back(), "First line\r\nSecond, line\r\n");
}

TEST_F(Menue, EndAsksFirst) {
  liefere_captions();
  EXPECT_TRUE(starten("ENG"));
  dialog.antwort = false;
  start.ende();
  EXPECT_EQ(dialog.fragen, std::vector<std::string>{"Really end the program?"});
  EXPECT_FALSE(start.beendet);
  EXPECT_FALSE(daten.da("kparam.dat"));
  EXPECT_TRUE(uhr.gewartet.empty());
}

TEST_F(Menue, EndWritesTheSettingsWaitsAndClosesTheChildrenBetween) {
  EXPECT_TRUE(starten("ENG"));
  std::vector<std::size_t> gewartet_bis;
  for (int kind = 0; kind < 2; ++kind)
    start.Kinder.push_back([&] {
      EXPECT_TRUE(daten.da("kparam.dat"));
      EXPECT_FALSE(start.beendet);
      gewartet_bis.push_back(uhr.gewartet.size());
    });
  start.ende();
  EXPECT_EQ(uhr.gewartet, (std::vector<int>{50, 50}));
  EXPECT_EQ(gewartet_bis, (std::vector<std::size_t>{1, 1}));
  EXPECT_TRUE(start.beendet);
  EXPECT_EQ(item(daten.lies("kparam.dat"), Einstellungen::Datenordner), daten.pfad());
}

TEST_F(Menue, EndWithSettingsThatCannotBeWrittenIsToldAndStillEnds) {
  EXPECT_TRUE(starten("ENG"));
  std::filesystem::create_directories(daten.pfad("kparam.dat"));
  start.ende();
  EXPECT_EQ(dialog.symbole, std::vector<Symbol>{Symbol::fehler});
  EXPECT_TRUE(start.beendet);
}

using Flaggen = StartTest;

TEST_F(Flaggen, StandForTheirLanguages) {
  const std::map<std::string_view, std::string_view> erwartet = {
      {"German", "GER"},     {"ENGlish", "ENG"}, {"French", "FRA"},     {"Spain", "ESP"},
      {"Portuguese", "POR"}, {"swedish", "SWE"}, {"PappaGallo", "ITA"}, {"KäsKopp", "NDL"}};
  std::map<std::string_view, std::string_view> alle;
  for (const Start::Flagge& flagge : Start::Flaggen()) alle[flagge.name] = flagge.code;
  EXPECT_EQ(alle, erwartet);
}

TEST_F(Flaggen, AClickStoresTranslatesAndReloads) {
  liefere_captions();
  daten.schreib("kparam.dat", kparam("ENG"));
  EXPECT_TRUE(starten());
  const std::string englisch = programm.captions.text(JMapCap::Wartung_schlecht);
  daten.schreib("Temp_Sim.dat", arbeitsprojekt("ENG", englisch));

  EXPECT_TRUE(start.Flagge_klicken("German"));
  EXPECT_EQ(item(daten.lies("kparam.dat"), Einstellungen::Sprache), "GER");
  EXPECT_EQ(programm.captions.Sprache, "GER");
  EXPECT_EQ(start.Beschriftung(Menuepunkt::DiaGnos), "Diagnose");
  EXPECT_EQ(item(daten.lies("Temp_Sim.dat"), 23), "GER");
  EXPECT_EQ(item(daten.lies("Temp_Sim.dat"), 11),
            programm.captions.text(JMapCap::Wartung_schlecht));
  EXPECT_NE(item(daten.lies("Temp_Sim.dat"), 11), englisch);
}

TEST_F(Flaggen, AnUnknownFlagOrCodeChangesNothing) {
  daten.schreib("kparam.dat", kparam("ENG"));
  EXPECT_TRUE(starten());
  EXPECT_FALSE(start.Flagge_klicken("Martian"));
  EXPECT_FALSE(start.Sprache_waehlen("ZZZ"));
  EXPECT_EQ(programm.captions.Sprache, "ENG");
  EXPECT_EQ(daten.lies("kparam.dat"), kparam("ENG"));
}

TEST_F(Flaggen, ALanguageWithoutCaptionsIsToldAndNotTaken) {
  liefere_captions();
  daten.schreib("kparam.dat", kparam("ENG"));
  daten.schreib("Temp_Sim.dat", arbeitsprojekt("ENG", "text"));
  EXPECT_TRUE(starten());
  EXPECT_FALSE(start.Flagge_klicken("French"));
  EXPECT_EQ(dialog.texte, std::vector<std::string>{fehlertext(Fehler::Datei_fehlt)});
  EXPECT_EQ(programm.captions.Sprache, "ENG");
  EXPECT_EQ(daten.lies("kparam.dat"), kparam("ENG"));
  EXPECT_EQ(daten.lies("Temp_Sim.dat"), arbeitsprojekt("ENG", "text"));
}

TEST_F(Flaggen, AWorkingProjectThatCannotBeRewrittenKeepsTheLanguage) {
  liefere_captions();
  daten.schreib("kparam.dat", kparam("ENG"));
  daten.schreib("Temp_Sim.dat", arbeitsprojekt("ENG", ""));
  std::filesystem::permissions(daten.pfad("Temp_Sim.dat"), std::filesystem::perms::owner_read);
  EXPECT_TRUE(starten());
  EXPECT_FALSE(start.Sprache_waehlen("GER"));
  EXPECT_EQ(programm.captions.Sprache, "ENG");
  EXPECT_EQ(item(daten.lies("kparam.dat"), Einstellungen::Sprache), "ENG");
  EXPECT_EQ(dialog.symbole, std::vector<Symbol>{Symbol::fehler});
}

using Geschwister = StartTest;

TEST_F(Geschwister, GetTheProjectsValuesBeforeTheyStart) {
  daten.schreib("Temp_Sim.dat", arbeitsprojekt("ENG", ""));
  EXPECT_TRUE(starten("ENG"));
  EXPECT_TRUE(start.Geschwister_starten(Zeichenprogramm));
  EXPECT_EQ(geschwister.gestartet, std::vector<std::string>{"frigdraw.exe"});
  EXPECT_EQ(item(geschwister.uebergabe, 2), "117");
  EXPECT_EQ(item(geschwister.uebergabe, 10), "R134A");
  EXPECT_TRUE(dialog.texte.empty());
}

TEST_F(Geschwister, AMissingOneIsToldInCapitalsAndLeavesNoHandOver) {
  geschwister.da = false;
  EXPECT_TRUE(starten("ENG"));
  EXPECT_FALSE(start.Geschwister_starten(Lastprogramm));
  EXPECT_EQ(dialog.texte,
            std::vector<std::string>{fehlertext(Fehler::Modul_fehlt, "LASTMODUL.EXE")});
  EXPECT_NE(dialog.texte[0].find("error 32: Module not available."), std::string::npos);
  EXPECT_NE(dialog.texte[0].find("LASTMODUL.EXE"), std::string::npos);
  EXPECT_EQ(daten.lies("FRIGData.dat"), "\"0\"\r\n\"0\"\r\n");
}

TEST_F(Geschwister, AreNotStartedWithoutTheirValues) {
  EXPECT_TRUE(starten("ENG"));
  std::filesystem::create_directories(daten.pfad("FRIGData.dat"));
  EXPECT_FALSE(start.Geschwister_starten(Lastprogramm));
  EXPECT_TRUE(geschwister.gestartet.empty());
  EXPECT_EQ(dialog.symbole, std::vector<Symbol>{Symbol::fehler});
}

}  // namespace
}  // namespace polarkreis
