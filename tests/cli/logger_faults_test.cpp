#include <gtest/gtest.h>

#include <cmath>

#include "loggerordner.h"

namespace {

using Json = nlohmann::json;
using messdateien::Inhalt;
using messdateien::zelle;
using messdateien::zelle_text;

constexpr const char* kKein_Logger = "DiaGnostics Divice found";

TEST(LoggerFaults, ADeadLineIsNoLogger) {
  const Loggerordner daten;
  const auto vorher = daten.inhalt();
  for (const char* stoerung : {"--dead", "--echo-only"}) {
    const Stellvertreter geraet({stoerung});
    for (const Loggerordner::Worte& befehl : {Loggerordner::Worte{"run"},
                                              {"files"},
                                              {"download", "RECORD01.adc"},
                                              {"calibrate", "temperature"},
                                              {"calibrate", "pressure"}}) {
      Loggerordner::Worte alle{"logger"};
      alle.insert(alle.end(), befehl.begin(), befehl.end());
      alle.insert(alle.end(), {"--port", "1=" + geraet.geraet(), "--settings", "s.json"});
      const Antwort a = daten.rufe(alle);
      EXPECT_EQ(a.status, 1) << stoerung << befehl.front();
      EXPECT_EQ(a.ausgabe, "") << befehl.front();
      EXPECT_TRUE(hat(a.fehler, kKein_Logger)) << a.fehler;
    }
  }
  EXPECT_TRUE(daten.inhalt() == vorher);
}

TEST(LoggerFaults, ALineThatDiesInMidReplyLosesNothing) {
  const Loggerordner daten;
  // The search takes the first sample.
  const Stellvertreter geraet({"--die-after", "9", "--step", "5"});
  const Antwort a = daten.rufe(daten.lauf(geraet, {"--out", "run.fmd"}));
  EXPECT_EQ(a.status, 1);
  EXPECT_TRUE(hat(a.fehler, "no longer answers") && hat(a.fehler, "8 rows")) << a.fehler;
  EXPECT_TRUE(hat(a.ausgabe, "\n8 rows\n")) << a.ausgabe;
  const Inhalt kopie = daten.arbeitskopie();
  EXPECT_EQ(kopie.gezaehlt(), 10);
  EXPECT_EQ(kopie.rest, 0);
  EXPECT_EQ(daten.lies("run.fmd"), daten.lies("FM_diag.dat"));
  const Json j = daten.rufe({"diagnose", "run.fmd", "--json"}).json();
  EXPECT_EQ(j["cells"].size(), 8U);
  for (int zeile = 3; zeile <= 10; ++zeile) EXPECT_GT(zelle(j, zeile, 2), 0) << zeile;
}

TEST(LoggerFaults, ALineThatDiesBeforeTheFirstSampleLeavesAnEmptyMeasurement) {
  const Loggerordner daten;
  const Stellvertreter geraet({"--die-after", "1", "--step", "5"});
  const Antwort a = daten.rufe(daten.lauf(geraet));
  EXPECT_EQ(a.status, 1);
  EXPECT_NE(a.fehler, "");
  EXPECT_EQ(daten.rufe({"diagnose", "FM_diag.dat", "--json"}).json()["Mess_Zeilen"], 2);
}

TEST(LoggerFaults, RepliesThatAreNoneAreAskedForAgain) {
  for (const Loggerordner::Worte& stoerung :
       {Loggerordner::Worte{"--short", "0.4", "--seed", "3"},
        {"--long", "0.4", "--seed", "2"},
        {"--echo-only", "0.4", "--seed", "2"},
        {"--late", "120", "--late-rate", "0.3", "--seed", "4"}}) {
    const Loggerordner daten;
    daten.planen(10);
    Loggerordner::Worte argumente{"--step", "5", "--phase", "run"};
    argumente.insert(argumente.end(), stoerung.begin(), stoerung.end());
    const Stellvertreter geraet(argumente);
    const Antwort a = daten.rufe(daten.lauf(geraet, {"--json"}));
    ASSERT_EQ(a.status, 0) << stoerung.front() << a.fehler;
    EXPECT_EQ(a.json()["Mess_Zeilen"], 12) << stoerung.front();
    for (int zeile = 3; zeile <= 12; ++zeile) {
      EXPECT_NEAR(zelle(a.json(), zeile, 2), 1.3, .4) << stoerung.front() << zeile;
      EXPECT_NEAR(zelle(a.json(), zeile, 14), 231.4, 3) << stoerung.front() << zeile;
    }
  }
}

TEST(LoggerFaults, NoiseEndsNoRun) {
  const Loggerordner daten;
  daten.planen(12);
  const Stellvertreter geraet({"--noise", "0.5", "--seed", "5", "--step", "5", "--phase", "run"});
  const Antwort a = daten.rufe(daten.lauf(geraet, {"--out", "run.fmd", "--json"}));
  ASSERT_EQ(a.status, 0) << a.fehler;
  EXPECT_EQ(a.json()["Mess_Zeilen"], 14);
  const Inhalt inhalt(daten.lies("run.fmd"));
  EXPECT_EQ(inhalt.rest, 0) << "whatever came over the line, the file is whole";
  EXPECT_GE(inhalt.ganze_Zeilen, 12);
}

/// Rows of a run among spikes, and what of them no plant can have.
struct Ausreisser {
  int zeilen = 0, unmoeglich = 0, offen = 0;
  explicit Ausreisser(int pruefung) {
    const Loggerordner daten;
    daten.planen(40, "R404A", {{"Auto_corr_Check", pruefung}});
    const Stellvertreter geraet({"--spike", "0.4", "--seed", "7", "--step", "5", "--phase", "run"});
    const Antwort a = daten.rufe(daten.lauf(geraet, {"--json"}));
    EXPECT_EQ(a.status, 0) << a.fehler;
    const Json j = a.json();
    zeilen = static_cast<int>(j["cells"].size());
    for (int zeile = 3; zeile < 3 + zeilen; ++zeile) {
      const bool ohne_Druck = zelle(j, zeile, 2) <= 0 && zelle(j, zeile, 6) <= 0;
      if (zelle(j, zeile, 14) > 750 || zelle(j, zeile, 2) > 17 || zelle(j, zeile, 6) > 86 ||
          ohne_Druck)
        ++unmoeglich;
      if (zelle_text(j, zeile, 5) == "  -") ++offen;
    }
  }
};

TEST(LoggerFaults, SpikesAreTakenAgainWhileTheCheckIsOn) {
  const Ausreisser mit(1), ohne(0);
  EXPECT_EQ(mit.zeilen, 40);
  EXPECT_EQ(mit.unmoeglich, 0);
  EXPECT_GT(mit.offen, 0) << "an open temperature input is no reason to ask again";
  EXPECT_EQ(ohne.zeilen, 40);
  EXPECT_GT(ohne.unmoeglich, 3);
}

TEST(LoggerFaults, ARunBesideABusyTargetIsKept) {
  const Loggerordner daten;
  daten.planen(3);
  std::filesystem::create_directory(daten.pfad("taken.fmd"));
  const Stellvertreter geraet({"--step", "5"});
  const Antwort a = daten.rufe(daten.lauf(geraet, {"--out", "taken.fmd"}));
  EXPECT_EQ(a.status, 1);
  EXPECT_TRUE(hat(a.fehler, "taken.fmd")) << a.fehler;
  EXPECT_EQ(daten.arbeitskopie().gezaehlt(), 5) << "the working copy has the rows";
}

}  // namespace
