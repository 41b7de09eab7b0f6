#include <gtest/gtest.h>

#include <cmath>

#include "loggerordner.h"

namespace {

using Json = nlohmann::json;
using messdateien::Inhalt;
using messdateien::zelle;

/// A run with a planned end on the stand-in; its figures.
Json messe(const Loggerordner& daten, const Stellvertreter& geraet) {
  const Antwort a = daten.rufe(daten.lauf(geraet, {"--json"}));
  EXPECT_EQ(a.status, 0) << a.fehler;
  return a.json();
}

TEST(LoggerPorts, TellsWhichOneAnswers) {
  const Loggerordner daten;
  const Stellvertreter geraet({"--step", "5"});
  const Loggerordner::Worte befehl = Loggerordner::geduldig(
      {"logger", "ports", "--port", "2=/dev/null", "--port", "3=" + geraet.geraet()});
  Loggerordner::Worte mit_json = befehl;
  mit_json.push_back("--json");
  const Antwort a = daten.rufe(mit_json);
  ASSERT_EQ(a.status, 0) << a.fehler;
  Json zwei, drei;
  for (const Json& port : a.json()) {
    if (port["number"] == 2) zwei = port;
    if (port["number"] == 3) drei = port;
  }
  EXPECT_EQ(zwei["device"], "/dev/null");
  EXPECT_EQ(zwei["logger"], false);
  EXPECT_EQ(drei["device"], geraet.geraet());
  EXPECT_EQ(drei["logger"], true);
  EXPECT_TRUE(drei["description"].is_string());
  const std::string text = daten.rufe(befehl).ausgabe;
  EXPECT_TRUE(hat(text, "COM3") && hat(text, geraet.geraet()) && hat(text, "answers")) << text;
  EXPECT_FALSE(daten.da("FM_diag.dat"));
}

TEST(LoggerPorts, TheHighestOneCounts) {
  const Loggerordner daten;
  daten.planen(2);
  const Stellvertreter anlage({"--step", "5"}), bad({"--bath", "20", "--step", "5"});
  const Antwort a = daten.rufe(
      Loggerordner::geduldig({"logger", "run", "--port", "3=" + anlage.geraet(), "--port",
                              "7=" + bad.geraet(), "--settings", "s.json", "--json"}));
  ASSERT_EQ(a.status, 0) << a.fehler;
  EXPECT_NEAR(zelle(a.json(), 3, 2), 5, .1) << "the bath's pressure";
}

TEST(LoggerPorts, WhatIsNoAssignmentIsRefusedAndAMissingDeviceTold) {
  const Loggerordner daten;
  const auto vorher = daten.inhalt();
  for (const char* port : {"1", "=/dev/null", "0=/dev/null", "17=/dev/null", "1=", "a=/dev/null",
                           "-1=/dev/null", "99999999999=/dev/null", "1x=/dev/null"}) {
    const Antwort a = daten.rufe({"logger", "run", "--port", port, "--settings", "s.json"});
    EXPECT_EQ(a.status, 1) << port;
    EXPECT_TRUE(hat(a.fehler, "number from 1 to 16")) << a.fehler;
  }
  for (const char* port : {"1=/nowhere/tty", "1=s.json", "1=."}) {
    const Antwort a = daten.rufe({"logger", "run", "--port", port, "--settings", "s.json"});
    EXPECT_EQ(a.status, 1) << port;
    EXPECT_TRUE(hat(a.fehler, "there is no such device")) << a.fehler;
    EXPECT_TRUE(hat(a.fehler, "DiaGnostics Divice found")) << a.fehler;
  }
  EXPECT_EQ(daten.rufe({"logger", "run", "--port"}).status, 2);
  EXPECT_EQ(daten.rufe({"logger"}).status, 2);
  EXPECT_TRUE(daten.inhalt() == vorher);
}

// --- A run

// An eighth of a second fifteen times is the planned length; one sample more is taken.
TEST(LoggerRun, EndsOneSampleAfterThePlannedNumber) {
  const Loggerordner daten;
  daten.einstellen("R404A", {{"Combo2", "0.125s"}, {"Combo5", "0.03125min"}});
  const Stellvertreter geraet({"--step", "5", "--seed", "1"});
  const Antwort a = daten.rufe(daten.lauf(geraet, {"--out", "run"}));
  EXPECT_EQ(a.status, 0) << a.fehler;
  EXPECT_TRUE(hat(a.ausgabe, "\n16 rows\n")) << a.ausgabe;
  const Inhalt kopie = daten.arbeitskopie();
  EXPECT_EQ(kopie.gezaehlt(), 18);
  EXPECT_GE(kopie.ganze_Zeilen, 16);
  EXPECT_EQ(kopie.rest, 0);
  EXPECT_EQ(daten.lies("run.fmd"), daten.lies("FM_diag.dat"));
  EXPECT_TRUE(hat(daten.lies("ergDiaG.DAT"), "Messpunkte§$&16"));
  const Json wieder = daten.rufe({"diagnose", "run.fmd", "--json"}).json();
  EXPECT_EQ(wieder["Mess_Zeilen"], 18);
  EXPECT_TRUE(daten.beiseite().empty());
}

TEST(LoggerRun, ShowsEachSampleAndKeepsTheNewestOnTop) {
  const Loggerordner daten;
  daten.planen(4);
  const Stellvertreter geraet({"--step", "60", "--seed", "1", "--phase", "start"});
  const Antwort a = daten.rufe(daten.lauf(geraet, {"--out", "run.fmd"}));
  ASSERT_EQ(a.status, 0) << a.fehler;
  std::vector<std::string> druecke;
  std::istringstream zeilen(a.ausgabe);
  for (std::string zeile; std::getline(zeilen, zeile);)
    if (const std::size_t ort = zeile.find("  p0 "); ort != std::string::npos)
      druecke.push_back(zeile.substr(ort + 5, zeile.find(" bar") - ort - 5));
  ASSERT_EQ(druecke.size(), 4U) << a.ausgabe;
  const Inhalt inhalt(daten.lies("run.fmd"));
  for (int n = 0; n < 4; ++n)
    EXPECT_EQ(inhalt.zelle(n, 2), druecke[static_cast<std::size_t>(3 - n)]) << n;
}

TEST(LoggerRun, WithJsonKeepsStandardOutputForIt) {
  const Loggerordner daten;
  daten.planen(3);
  const Stellvertreter geraet({"--step", "5"});
  const Json j = messe(daten, geraet);
  EXPECT_EQ(j["Mess_Zeilen"], 5);
  EXPECT_EQ(j["cells"].size(), 3U);
  EXPECT_EQ(j["asked"], false);
  EXPECT_TRUE(j["means"].contains("2"));
}

TEST(LoggerRun, ASignalEndsItWithTheFileWhole) {
  for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
    const Loggerordner daten;
    const Stellvertreter geraet({"--step", "5"});
    Prozess p(daten.aufruf(daten.lauf(geraet, {"--out", "run.fmd"})), daten.pfad());
    ASSERT_TRUE(p.warte_auf_zeilen(4)) << p.fehler();
    p.signal(signal);
    EXPECT_EQ(p.ende(), 0) << signal << p.fehler();
    const Inhalt kopie = daten.arbeitskopie();
    EXPECT_GE(kopie.gezaehlt(), 6);
    EXPECT_TRUE(hat(p.ausgabe(), "\n" + std::to_string(kopie.gezaehlt() - 2) + " rows\n"));
    EXPECT_EQ(daten.lies("run.fmd"), daten.lies("FM_diag.dat"));
    const Json j = daten.rufe({"diagnose", "run.fmd", "--json"}).json();
    EXPECT_EQ(j["Mess_Zeilen"], kopie.gezaehlt());
  }
}

TEST(LoggerRun, ASignalInALongPauseEndsItAtOnce) {
  const Loggerordner daten;
  daten.einstellen("R404A", {{"Combo2", "3600s"}, {"Combo5", "oo"}});
  const Stellvertreter geraet({"--step", "5"});
  Prozess p(daten.aufruf(daten.lauf(geraet)), daten.pfad());
  ASSERT_TRUE(p.warte_auf_zeilen(1)) << p.fehler();
  p.signal(SIGINT);
  EXPECT_EQ(p.ende(), 0) << p.fehler();
  EXPECT_EQ(daten.arbeitskopie().gezaehlt(), 3);
}

TEST(LoggerRun, StartedToOutliveItsTerminalItDoes) {
  const Loggerordner daten;
  const Stellvertreter geraet({"--step", "5"});
  Loggerordner::Worte befehl{"/bin/sh", "-c", "trap '' HUP; exec \"$@\"", "sh"};
  for (const std::string& wort : daten.aufruf(daten.lauf(geraet))) befehl.push_back(wort);
  Prozess p(befehl, daten.pfad());
  ASSERT_TRUE(p.warte_auf_zeilen(2)) << p.fehler();
  p.signal(SIGHUP);
  const int bisher = p.zeilen();
  EXPECT_TRUE(p.warte_auf_zeilen(bisher + 20)) << p.fehler();
  p.signal(SIGINT);
  EXPECT_EQ(p.ende(), 0);
}

TEST(LoggerRun, OnATerminalOneLineIsRewritten) {
  const Loggerordner daten;
  daten.planen(3);
  const Stellvertreter geraet({"--step", "5"});
  Prozess p(daten.aufruf(daten.lauf(geraet)), daten.pfad(), Prozess::Art::terminal);
  EXPECT_EQ(p.ende(), 0) << p.fehler();
  std::size_t geloescht = 0;
  for (std::size_t ort = 0; (ort = p.fehler().find("\r\x1b[K", ort)) != std::string::npos; ++ort)
    ++geloescht;
  EXPECT_GE(geloescht, 4U);
  EXPECT_TRUE(hat(p.fehler(), "  p0 ") && hat(p.fehler(), "  EER ")) << p.fehler();
  EXPECT_FALSE(hat(p.ausgabe(), "  p0 ")) << p.ausgabe();
  EXPECT_TRUE(hat(p.ausgabe(), "3 rows"));
}

TEST(LoggerRun, TheFormerWorkingCopyIsKeptBeside) {
  const Loggerordner daten;
  daten.planen(2);
  const Stellvertreter geraet({"--step", "5"});
  messe(daten, geraet);
  const std::string erste = daten.lies("FM_diag.dat");
  messe(daten, geraet);
  ASSERT_EQ(daten.beiseite().size(), 1U);
  EXPECT_EQ(daten.lies(daten.beiseite().front()), erste);
  EXPECT_TRUE(daten.beiseite().front().ends_with(".fmd"));
}

TEST(LoggerRun, WithoutSettingsMeasuresWhatNeedsNoRefrigerant) {
  const Loggerordner daten;
  const Stellvertreter geraet({"--step", "5"});
  Prozess p(daten.aufruf(Loggerordner::geduldig(
                {"logger", "run", "--port", "1=" + geraet.geraet(), "--json"})),
            daten.pfad());
  ASSERT_TRUE(p.warte_auf([&] { return daten.arbeitskopie().ganze_Zeilen >= 1; })) << p.fehler();
  p.signal(SIGINT);
  EXPECT_EQ(p.ende(), 0) << p.fehler();
  EXPECT_GT(zelle(Json::parse(p.ausgabe(), nullptr, false), 3, 12), 0);
}

// --- Plants

TEST(LoggerPlant, R404AColdStoreOnAir) {
  const Loggerordner daten;
  daten.planen(3);
  const Stellvertreter geraet(
      {"--plant", "R404A", "--phase", "run", "--step", "600", "--seed", "1"});
  const Json j = messe(daten, geraet);
  EXPECT_EQ(j["Sensor_Code"], Json({0, 0, 0, 0}));
  EXPECT_NEAR(zelle(j, 3, 3), -28, 3);
  EXPECT_GT(zelle(j, 3, 146), 5) << "capacity of the air side";
  EXPECT_LT(zelle(j, 3, 148), -5);
  EXPECT_TRUE(std::isnan(zelle(j, 3, 31))) << "no remote unit";
}

TEST(LoggerPlant, R134AChillerWithARemoteUnit) {
  const Loggerordner daten;
  daten.planen(3, "R134A");
  const Stellvertreter geraet(
      {"--plant", "R134A", "--phase", "run", "--step", "600", "--seed", "1"});
  const Json j = messe(daten, geraet);
  EXPECT_EQ(j["Sensor_Code"], Json({1, 0, 0, 0}));
  EXPECT_NEAR(zelle(j, 3, 3), 3, 3);
  EXPECT_NEAR(zelle(j, 3, 31), zelle(j, 3, 9) + .2, .6) << "liquid of the unit";
  EXPECT_NEAR(zelle(j, 3, 40), zelle(j, 3, 3), 2) << "saturation temperature of P1";
  EXPECT_GT(zelle(j, 3, 132), 0) << "power of a phase";
  EXPECT_NEAR(zelle(j, 3, 146) / zelle(j, 3, 144), 1, .15) << "both sides agree on the capacity";
}

TEST(LoggerPlant, R717ProcessCoolingWithTwoRemoteUnits) {
  const Loggerordner daten;
  daten.planen(3, "R717");
  const Stellvertreter geraet(
      {"--plant", "R717", "--phase", "run", "--step", "600", "--seed", "1"});
  const Json j = messe(daten, geraet);
  EXPECT_EQ(j["Sensor_Code"], Json({1, 1, 0, 0}));
  EXPECT_NEAR(zelle(j, 3, 51), zelle(j, 3, 9) + .2, .6);
  EXPECT_NEAR(zelle(j, 3, 60), zelle(j, 3, 3), 2);
  EXPECT_GT(zelle(j, 3, 17), zelle(j, 3, 46)) << "the base unit's current has the last word";
  EXPECT_NEAR(zelle(j, 3, 146) / zelle(j, 3, 144), 1, .2);
}

TEST(LoggerPlant, R744AtNinetyBar) {
  const Loggerordner daten;
  daten.planen(3, "R744");
  const Stellvertreter geraet(
      {"--plant", "R744", "--phase", "run", "--step", "600", "--seed", "1"});
  const Json j = messe(daten, geraet);
  EXPECT_EQ(j["Sensor_Code"], Json({15, 0, 0, 0}));
  EXPECT_NEAR(zelle(j, 3, 6), 90, 3);
  EXPECT_NEAR(zelle(j, 3, 3), -9, 4);
  EXPECT_NEAR(zelle(j, 3, 41), 36, 3) << "flash pressure at the unit's second sensor";
}

TEST(LoggerPlant, RemoteUnitsFillTheirColumns) {
  const Loggerordner daten;
  daten.planen(2);
  for (const int einheiten : {0, 1, 2}) {
    const Stellvertreter geraet({"--orbiter", std::to_string(einheiten), "--step", "5"});
    const Json j = messe(daten, geraet);
    for (const int spalte : {31, 36, 39, 41, 44, 46})
      EXPECT_EQ(std::isnan(zelle(j, 3, spalte)), einheiten < 1) << einheiten << " " << spalte;
    for (const int spalte : {51, 56, 59, 61, 64, 68})
      EXPECT_EQ(std::isnan(zelle(j, 3, spalte)), einheiten < 2) << einheiten << " " << spalte;
  }
}

TEST(LoggerPlant, AMonitoringBoxHasItsOwnWiring) {
  const Loggerordner daten;
  daten.planen(3, "R134A");
  const Stellvertreter geraet({"--plant", "R134A", "--orbiter", "0", "--box", "M", "--phase", "run",
                               "--step", "300", "--seed", "1"});
  const Json j = messe(daten, geraet);
  EXPECT_NEAR(zelle(j, 3, 36), zelle(j, 3, 4), .5) << "position 10 is the bulb";
  EXPECT_NEAR(zelle(j, 3, 25), 30, .5) << "position 11 is the condenser's flow";
  EXPECT_TRUE(std::isnan(zelle(j, 3, 22)) && std::isnan(zelle(j, 3, 23)));
}

}  // namespace
