#include <gtest/gtest.h>

#include "loggerordner.h"

namespace {

using Json = nlohmann::json;

/// Puts the content in place in one step, as a careful control system does.
void stelle_bereit(const Loggerordner& daten, const std::string& inhalt) {
  daten.schreib("feed.new", inhalt);
  std::filesystem::rename(daten.pfad("feed.new"), daten.pfad("feed.txt"));
}

Loggerordner::Worte lauf(const Loggerordner::Worte& mehr = {}) {
  Loggerordner::Worte alle{"logger", "run", "--feed", "feed.txt", "--settings", "s.json"};
  alle.insert(alle.end(), mehr.begin(), mehr.end());
  return alle;
}

TEST(LoggerFeed, MeasuresWhatTheFileHoldsNow) {
  const Loggerordner daten;
  stelle_bereit(daten, quelle("1.3", "78"));
  Prozess p(daten.aufruf(lauf({"--out", "run.fmd", "--json"})), daten.pfad());
  const auto reihen = [&] { return daten.arbeitskopie().ganze_Zeilen; };
  ASSERT_TRUE(p.warte_auf([&] { return reihen() >= 5; })) << p.fehler();
  stelle_bereit(daten, quelle("1.7", "90"));
  const int bisher = reihen();
  ASSERT_TRUE(p.warte_auf([&] { return reihen() >= bisher + 5; })) << p.fehler();
  p.signal(SIGINT);
  ASSERT_EQ(p.ende(), 0) << p.fehler();
  const Json zellen = Json::parse(p.ausgabe(), nullptr, false)["cells"];
  const std::string letzte = std::to_string(zellen.size() + 2);
  EXPECT_EQ(zellen["3"]["2"], "1.7") << "the newest";
  EXPECT_EQ(zellen["3"]["8"], "90");
  EXPECT_EQ(zellen[letzte]["2"], "1.3") << "the oldest";
  EXPECT_EQ(zellen[letzte]["8"], "78");
  EXPECT_EQ(zellen["3"]["14"], "231");
  EXPECT_EQ(daten.lies("run.fmd"), daten.lies("FM_diag.dat"));
}

TEST(LoggerFeed, ARunOfAPlannedLengthKeepsItsNewestRows) {
  const Loggerordner daten;
  daten.planen(25);
  stelle_bereit(daten, quelle("1.3", "78"));
  const Antwort a = daten.rufe(lauf({"--json"}));
  ASSERT_EQ(a.status, 0) << a.fehler;
  // 24.5 samples are planned; above 14.5 the table is cut to row 14, and the next row is added.
  EXPECT_EQ(a.json()["Mess_Zeilen"], 15);
  EXPECT_EQ(daten.arbeitskopie().gezaehlt(), 15);
}

TEST(LoggerFeed, AFileThatGoesAwayIsALostDevice) {
  const Loggerordner daten;
  stelle_bereit(daten, quelle("1.3", "78"));
  Prozess p(daten.aufruf(lauf({"--out", "run.fmd"})), daten.pfad());
  ASSERT_TRUE(p.warte_auf_zeilen(3)) << p.fehler();
  std::filesystem::remove(daten.pfad("feed.txt"));
  EXPECT_EQ(p.ende(), 1);
  EXPECT_TRUE(hat(p.fehler(), "no longer answers")) << p.fehler();
  EXPECT_GE(daten.arbeitskopie().gezaehlt(), 5);
  EXPECT_EQ(daten.lies("run.fmd"), daten.lies("FM_diag.dat"));
}

TEST(LoggerFeed, AFileThatHoldsNothingIsTold) {
  const Loggerordner daten;
  daten.schreib("feed.txt", "");
  for (const char* datei : {"feed.txt", "none.txt", "."}) {
    const Antwort a = daten.rufe({"logger", "run", "--feed", datei, "--settings", "s.json"});
    EXPECT_EQ(a.status, 1) << datei;
    EXPECT_TRUE(hat(a.fehler, datei) && hat(a.fehler, "not there or empty")) << a.fehler;
  }
  EXPECT_FALSE(daten.da("FM_diag.dat"));
  EXPECT_FALSE(daten.da("none.txt"));
}

}  // namespace
