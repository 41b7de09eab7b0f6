#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "loggerordner.h"

namespace {

using Json = nlohmann::json;
using messdateien::Inhalt;

constexpr std::size_t kTote = 32;

/// The pressure that each shown line tells, in order.
std::vector<std::string> gezeigte_Druecke(const std::string& ausgabe) {
  std::vector<std::string> druecke;
  for (std::size_t ort = 0, ende; (ende = ausgabe.find('\n', ort)) != std::string::npos;
       ort = ende + 1) {
    const std::string zeile = ausgabe.substr(ort, ende - ort);
    const std::size_t von = zeile.find("  p0 ") + 5;
    druecke.push_back(zeile.substr(von, zeile.find(" bar") - von));
  }
  return druecke;
}

/// What a killed run left: a whole heading, and every row that it had shown.
void pruefe(const Loggerordner& daten, const std::string& ausgabe) {
  const Inhalt kopie = daten.arbeitskopie();
  ASSERT_GE(kopie.alle.size(), 100U);
  EXPECT_EQ(kopie.gezaehlt(), 65459);
  EXPECT_EQ(kopie.alle.at(4), "R404A");
  const std::vector<std::string> druecke = gezeigte_Druecke(ausgabe);
  EXPECT_GE(kopie.ganze_Zeilen, static_cast<int>(druecke.size()));
  EXPECT_LE(kopie.ganze_Zeilen, static_cast<int>(druecke.size()) + 1) << "written, not yet shown";
  for (std::size_t n = 0; n < druecke.size() && static_cast<int>(n) < kopie.ganze_Zeilen; ++n)
    EXPECT_EQ(kopie.zelle(static_cast<int>(n), 2), druecke[n]) << n;

  const std::string bytes = daten.lies("FM_diag.dat");
  const Antwort a = daten.rufe({"diagnose", "FM_diag.dat", "--yes", "--json"});
  ASSERT_EQ(a.status, 0) << a.fehler;
  EXPECT_EQ(a.json()["Mess_Zeilen"], kopie.ganze_Zeilen + 2);
  EXPECT_EQ(a.json()["cells"].size(), static_cast<std::size_t>(kopie.ganze_Zeilen));
  EXPECT_EQ(daten.lies("FM_diag.dat"), bytes);
}

/// Kills a run again and again, somewhere in the first `hoechstens` ms behind its first row.
void toete(const Loggerordner& daten, const Loggerordner::Worte& lauf, int hoechstens) {
  std::mt19937 zufall(20260102);
  std::uniform_int_distribution<int> pause_ms(0, hoechstens);
  std::string vorher;
  for (std::size_t n = 0; n < kTote; ++n) {
    SCOPED_TRACE(n);
    Prozess p(daten.aufruf(lauf), daten.pfad());
    ASSERT_TRUE(p.warte_auf_zeilen(1)) << p.fehler();
    Prozess::schlafe(pause_ms(zufall));
    p.signal(SIGKILL);
    ASSERT_EQ(p.ende(), 128 + SIGKILL);
    pruefe(daten, p.ausgabe());
    const Loggerordner::Worte beiseite = daten.beiseite();
    ASSERT_EQ(beiseite.size(), n) << "each run keeps the one before";
    EXPECT_TRUE(n == 0 || std::ranges::any_of(beiseite, [&](const std::string& name) {
                  return daten.lies(name) == vorher;
                }));
    vorher = daten.lies("FM_diag.dat");
  }
}

TEST(KilledRun, LosesAtMostTheRowBeingWritten) {
  const Loggerordner daten;
  const Stellvertreter geraet({"--step", "5", "--phase", "run", "--seed", "1"});
  toete(daten, daten.lauf(geraet), 250);
}

// Nothing waits for a line here, so that most of the time goes into the file.
TEST(KilledRun, LosesNoMoreWhereRowsComeFast) {
  const Loggerordner daten;
  daten.schreib("feed.txt", quelle("1.3", "78"));
  toete(daten, {"logger", "run", "--feed", "feed.txt", "--settings", "s.json"}, 40);
}

TEST(KilledRun, IsContinuedByTheNextUnderItsOwnName) {
  const Loggerordner daten;
  const Stellvertreter geraet({"--step", "5", "--phase", "run"});
  // A row that was cut off in the middle, and what a power failure leaves behind it.
  const std::string alt = [] {
    messdateien::Datei datei = messdateien::kuehlhaus_datei(3);
    datei.gezaehlt = 65459;
    return datei.text() + "\"08:00:15\"\r\n\"1.";
  }();
  for (const std::string& rest : {std::string(), std::string(4096, '\0')}) {
    daten.schreib("FM_diag.dat", alt + rest);
    daten.planen(2);
    EXPECT_EQ(daten.rufe({"diagnose", "FM_diag.dat", "--json"}).json()["Mess_Zeilen"], 5);
    ASSERT_EQ(daten.rufe(daten.lauf(geraet)).status, 0);
    const std::string name = daten.beiseite().back();
    EXPECT_EQ(daten.lies(name), alt + rest);
    EXPECT_EQ(daten.rufe({"diagnose", name, "--json"}).json()["Mess_Zeilen"], 5);
    EXPECT_EQ(daten.arbeitskopie().gezaehlt(), 4);
    std::filesystem::remove(daten.pfad(name));
  }
}

}  // namespace
