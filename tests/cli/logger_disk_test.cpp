#include <gtest/gtest.h>

#include "loggerordner.h"

namespace {

using Json = nlohmann::json;
using messdateien::Inhalt;

/// How often a text stands in another.
int anzahl(const std::string& text, const std::string& teil) {
  int n = 0;
  for (std::size_t ort = 0; (ort = text.find(teil, ort)) != std::string::npos; ++ort) ++n;
  return n;
}

/// The call where no file may become larger than so many blocks of 512 bytes.
Loggerordner::Worte begrenzt(int bloecke, const Loggerordner::Worte& aufruf) {
  Loggerordner::Worte befehl{"/bin/sh", "-c", "trap '' XFSZ; ulimit -f \"$1\"; shift; exec \"$@\"",
                             "sh", std::to_string(bloecke)};
  befehl.insert(befehl.end(), aufruf.begin(), aufruf.end());
  return befehl;
}

TEST(FullDiskRun, GoesOnAndKeepsTheRowsBefore) {
  const Loggerordner daten;
  const Stellvertreter geraet({"--step", "5", "--phase", "run", "--seed", "1"});
  // The heading and about eight rows.
  constexpr int kBloecke = 16;
  Prozess p(begrenzt(kBloecke, daten.aufruf(daten.lauf(geraet))), daten.pfad());
  ASSERT_TRUE(p.warte_auf_zeilen(30)) << p.fehler();
  EXPECT_EQ(anzahl(p.fehler(), "FM_diag.dat"), 1) << "told once: " << p.fehler();
  const Inhalt voll = daten.arbeitskopie();
  EXPECT_GE(voll.ganze_Zeilen, 4);
  EXPECT_LT(voll.ganze_Zeilen, 30);
  EXPECT_EQ(voll.rest, 0) << "no half row";
  EXPECT_TRUE(voll.ganz);
  p.signal(SIGINT);
  EXPECT_EQ(p.ende(), 1) << "the rows are not all kept";
  EXPECT_EQ(anzahl(p.fehler(), "FM_diag.dat"), 2) << p.fehler();
  const Inhalt nachher = daten.arbeitskopie();
  EXPECT_EQ(nachher.ganze_Zeilen, voll.ganze_Zeilen);
  EXPECT_EQ(nachher.alle, voll.alle);
  const Json j = daten.rufe({"diagnose", "FM_diag.dat", "--yes", "--json"}).json();
  EXPECT_EQ(j["Mess_Zeilen"], voll.ganze_Zeilen + 2);
}

TEST(FullDiskRun, AResultElsewhereIsComplete) {
  const Loggerordner daten;
  daten.planen(6);
  std::filesystem::create_symlink("/dev/full", daten.pfad("FM_diag.dat"));
  const Stellvertreter geraet({"--step", "5", "--phase", "run"});
  const Antwort a = daten.rufe(daten.lauf(geraet, {"--out", "run.fmd"}));
  EXPECT_EQ(a.status, 1);
  EXPECT_TRUE(hat(a.fehler, "FM_diag.dat")) << a.fehler;
  EXPECT_TRUE(std::filesystem::is_symlink(daten.pfad("FM_diag.dat")));
  const Inhalt ergebnis(daten.lies("run.fmd"));
  EXPECT_EQ(ergebnis.gezaehlt(), 8);
  EXPECT_GE(ergebnis.ganze_Zeilen, 6);
  EXPECT_EQ(ergebnis.rest, 0);
}

TEST(FullDiskRun, ThatGetsRoomAgainTakesAllRowsInTheirOrder) {
  const Loggerordner daten;
  std::filesystem::create_symlink("/dev/full", daten.pfad("FM_diag.dat"));
  const Stellvertreter geraet({"--step", "60", "--phase", "start", "--seed", "1"});
  Prozess p(daten.aufruf(daten.lauf(geraet)), daten.pfad());
  ASSERT_TRUE(p.warte_auf_zeilen(5)) << p.fehler();
  std::filesystem::remove(daten.pfad("FM_diag.dat"));
  ASSERT_TRUE(p.warte_auf([&] { return daten.arbeitskopie().ganze_Zeilen >= 8; })) << p.fehler();
  const Inhalt kopie = daten.arbeitskopie();
  EXPECT_EQ(kopie.gezaehlt(), 65459);
  std::istringstream zeilen(p.ausgabe());
  std::string zeile;
  for (int n = 0; n < 8 && std::getline(zeilen, zeile); ++n)
    EXPECT_TRUE(hat(zeile, "  p0 " + kopie.zelle(n, 2) + " bar")) << n << zeile;
  p.signal(SIGINT);
  EXPECT_EQ(p.ende(), 0) << p.fehler();
}

TEST(FullDiskRun, AResultThatDoesNotFitLeavesTheFormerOne) {
  const Loggerordner daten;
  const Stellvertreter geraet({"--step", "5", "--phase", "run"});
  daten.schreib("run.fmd", "former");
  constexpr int kBloecke = 16;
  Prozess p(begrenzt(kBloecke, daten.aufruf(daten.lauf(geraet, {"--out", "run.fmd"}))),
            daten.pfad());
  ASSERT_TRUE(p.warte_auf_zeilen(30)) << p.fehler();
  p.signal(SIGINT);
  EXPECT_EQ(p.ende(), 1);
  EXPECT_TRUE(hat(p.fehler(), "run.fmd")) << p.fehler();
  EXPECT_EQ(daten.lies("run.fmd"), "former");
}

}  // namespace
