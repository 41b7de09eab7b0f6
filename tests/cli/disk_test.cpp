#include <gtest/gtest.h>

#include <filesystem>

#include "aufruf.h"

namespace {

constexpr const char* kMarkt = "Supermarket medium temperature.prj";

using Worte = std::vector<std::string>;

bool hat(const std::string& text, const std::string& teil) {
  return text.find(teil) != std::string::npos;
}

/// A command and its figures before and after a hundred megabytes were put behind a file's own
/// lines: what a reader doesn't need, it leaves.
void gleich_hinter_hundert_megabyte(const std::string& datei, const std::string& zeile) {
  const Datenkopie daten;
  const Worte befehl{"simulate", kMarkt, "--json"};
  daten.rufe(befehl);  // makes the course
  const Antwort vorher = daten.rufe(befehl);
  ASSERT_EQ(vorher.status, 0) << vorher.fehler;
  daten.verlaengere(datei, zeile);
  const Antwort nachher = daten.rufe(befehl);
  EXPECT_EQ(nachher.status, 0) << nachher.fehler;
  EXPECT_EQ(nachher.ausgabe, vorher.ausgabe) << datei;
}

TEST(HundredMegabytes, BehindACaptionFileAreLeft) {
  gleich_hinter_hundert_megabyte("JMapCap.ENG", "\"one text more, and one more after it\"\r\n");
}

TEST(HundredMegabytes, BehindACourseAreLeft) {
  gleich_hinter_hundert_megabyte("JG_Temp.dat", "\"January\"\r\n\"99\"\r\n\"98\"\r\n\"0\"\r\n");
}

TEST(HundredMegabytes, BehindACityFileAreLeft) {
  gleich_hinter_hundert_megabyte(
      "AC_CITY.DAT", "\"Nowhere\",\"1\",\"2\",\"3\",\"4\",\"5\",\"6\",\"7\",\"8\",\"9\"\r\n");
}

TEST(HundredMegabytes, BehindARefrigerantTableAreLeft) {
  gleich_hinter_hundert_megabyte("R448A.DAT", "\"one text more, and one more after it\"\r\n");
}

TEST(HundredMegabytes, AsTheWorkingProjectAreNone) {
  const Datenkopie daten;
  daten.schreib("Temp_Sim.dat", "");
  daten.verlaengere("Temp_Sim.dat", "\"R448A\"\r\n");
  for (const Worte& befehl :
       {Worte{"simulate"}, Worte{"point"}, Worte{"fans", "11"}, Worte{"project", "show", "-"},
        Worte{"project", "show", "Temp_Sim.dat"}, Worte{"project", "save", "x.prj"}}) {
    const Antwort a = daten.rufe(befehl);
    EXPECT_EQ(a.status, 1) << befehl.back();
    EXPECT_TRUE(hat(a.fehler, "Temp_Sim.dat") && hat(a.fehler, "too large to be a project"))
        << a.fehler;
  }
}

TEST(HundredMegabytes, InPlaceOfATableAreToldOrReplaced) {
  const Datenkopie daten;
  const std::string zeile = "\"one text over and over\"\r\n";
  const auto ersetzt = [&](const char* datei) {
    const std::string vorher = daten.lies(datei);
    daten.schreib(datei, "");
    daten.verlaengere(datei, zeile);
    const Antwort a = daten.rufe({"simulate", kMarkt, "--json"});
    daten.schreib(datei, vorher);
    return a;
  };
  const Antwort gut = daten.rufe({"simulate", kMarkt, "--json"});
  const Antwort kurs = ersetzt("JG_Temp.dat");
  EXPECT_TRUE(hat(kurs.fehler, "The annual course (JG_Temp.dat) was made")) << kurs.fehler;
  EXPECT_EQ(kurs.ausgabe, gut.ausgabe);
  const Antwort tabelle = ersetzt("R448A.DAT");
  EXPECT_EQ(tabelle.status, 1);
  EXPECT_TRUE(hat(tabelle.fehler, "The table R448A.DAT is missing or empty")) << tabelle.fehler;
  std::filesystem::remove(daten.pfad("JG_Temp.dat"));
  const Antwort stadt = ersetzt("AC_CITY.DAT");
  EXPECT_TRUE(hat(stadt.fehler, "The climate tables don't hold that city")) << stadt.fehler;
}

/// What was in the folder before, and only that.
void unversehrt(const Datenkopie& daten, const std::map<std::string, std::string>& vorher) {
  const auto nachher = daten.inhalt();
  for (const auto& [name, inhalt] : vorher) EXPECT_EQ(nachher.at(name), inhalt) << name;
  for (const auto& [name, inhalt] : nachher) EXPECT_TRUE(vorher.contains(name)) << name;
}

TEST(FullDisk, ResultsThatDoNotFitLeaveTheFormerOnes) {
  const Datenkopie daten;
  ASSERT_EQ(daten.rufe({"simulate", kMarkt}).status, 0);
  daten.schreib("ERG_TEMP.DAT", "the year before");
  daten.schreib("ergEN1.DAT", "its report");
  const auto vorher = daten.inhalt();
  const Antwort a = daten.rufe_mit_grenze(2, {"simulate", kMarkt, "--json"});
  EXPECT_EQ(a.status, 1);
  EXPECT_TRUE(hat(a.fehler, "ERG_TEMP.DAT") || hat(a.fehler, "ergEN1.DAT")) << a.fehler;
  EXPECT_TRUE(a.json()["SCOP"].is_number());
  unversehrt(daten, vorher);
}

TEST(FullDisk, AResultThatLeadsToAFullDeviceIsTold) {
  for (const char* datei : {"ergEN1.DAT", "ERG_TEMP.DAT"}) {
    const Datenkopie daten;
    std::filesystem::create_symlink("/dev/full", daten.pfad(datei));
    const Antwort a = daten.rufe({"simulate", kMarkt});
    EXPECT_EQ(a.status, 1) << datei;
    EXPECT_TRUE(hat(a.fehler, datei)) << a.fehler;
    EXPECT_TRUE(std::filesystem::is_symlink(daten.pfad(datei)));
  }
}

TEST(FullDisk, OpeningLeavesTheFormerWorkingProject) {
  const Datenkopie daten;
  const auto vorher = daten.inhalt();
  const Antwort a = daten.rufe_mit_grenze(0, {"project", "open", "Ammonia process cooling.prj"});
  EXPECT_EQ(a.status, 1);
  EXPECT_TRUE(hat(a.fehler, "Temp_Sim.dat")) << a.fehler;
  unversehrt(daten, vorher);
}

}  // namespace
