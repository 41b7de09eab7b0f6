#include <gtest/gtest.h>

#include <filesystem>

#include "aufruf.h"

namespace {

constexpr const char* kMarkt = "Supermarket medium temperature.prj";

using Worte = std::vector<std::string>;

/// Every command that reads a project.
const std::vector<Worte>& leser() {
  static const std::vector<Worte> befehle{{"simulate"},
                                          {"point"},
                                          {"fans", "11"},
                                          {"project", "show"},
                                          {"project", "open"},
                                          {"project", "derive"},
                                          {"project", "translate", "--to", "GER"}};
  return befehle;
}

Worte mit(Worte befehl, const std::string& datei) {
  befehl.push_back(datei);
  return befehl;
}

void alle_lehnen_ab(const Datenkopie& daten, const std::string& datei) {
  const auto vorher = daten.inhalt();
  for (const Worte& befehl : leser()) {
    const Antwort a = daten.rufe(mit(befehl, datei));
    EXPECT_EQ(a.status, 1) << befehl.back() << " " << datei << a.ausgabe;
    EXPECT_NE(a.fehler.find(datei), std::string::npos) << befehl.back() << a.fehler;
  }
  EXPECT_EQ(daten.inhalt(), vorher);
}

TEST(BadProject, AnAbsentFileIsToldAndNotMade) {
  const Datenkopie daten;
  alle_lehnen_ab(daten, "none.prj");
  alle_lehnen_ab(daten, daten.pfad("none.prj"));
}

TEST(BadProject, AFolderIsTold) {
  const Datenkopie daten;
  std::filesystem::create_directory(daten.pfad("folder.prj"));
  alle_lehnen_ab(daten, "folder.prj");
}

TEST(BadProject, AnEmptyABinaryOrAForeignFileIsTold) {
  const Datenkopie daten;
  daten.schreib("empty.prj", "");
  std::string bytes;
  for (int i = 0; i < 4000; ++i) bytes += static_cast<char>(i * 7 % 256);
  daten.schreib("binary.prj", bytes);
  daten.schreib("text.prj", "A letter to nobody, with commas, and more\n");
  for (const char* datei : {"empty.prj", "binary.prj", "text.prj"}) alle_lehnen_ab(daten, datei);
  daten.schreib("other.prj", "\"a\",\"b\",\"\",\"DiaG\"\r\n\"1\"\r\n");
  const Antwort a = daten.rufe({"simulate", "other.prj"});
  EXPECT_EQ(a.status, 1);
  EXPECT_NE(a.fehler.find("DiaG"), std::string::npos);
}

TEST(BadProject, AHundredMegabytesAreNoProject) {
  const Datenkopie daten;
  daten.schreib("large.prj", "\"a\",\"b\",\"\",\"SIM_PRO\"\r\n");
  std::filesystem::resize_file(daten.pfad("large.prj"), 100'000'000);
  for (const Worte& befehl : leser())
    EXPECT_EQ(daten.rufe(mit(befehl, "large.prj")).status, 1) << befehl.back();
  const Antwort liste = daten.rufe({"project", "list", "."});
  EXPECT_EQ(liste.status, 0);
}

TEST(BadProject, CutOffAnywhereItEndsWithAMessageOrTheFallbacks) {
  const Datenkopie daten;
  const std::string ganz = daten.lies(kMarkt);
  for (std::size_t n = 1; n < ganz.size(); n += 29) {
    daten.schreib("cut.prj", ganz.substr(0, n));
    const Antwort a = daten.rufe({"simulate", "cut.prj", "--json"});
    EXPECT_TRUE(a.status == 0 || a.status == 1) << n << " " << a.status << a.fehler;
    EXPECT_TRUE(a.status == 0 || !a.fehler.empty()) << n;
    EXPECT_EQ(daten.lies("cut.prj"), ganz.substr(0, n));
  }
}

TEST(BadProject, AnOldFileGetsItsFallbacks) {
  const Datenkopie daten;
  std::string alt = daten.lies(kMarkt);
  // Items 36 to 46 stand behind line 36 of the file, the heading being the first.
  std::size_t ort = 0;
  for (int zeile = 0; zeile < 36; ++zeile) ort = alt.find('\n', ort) + 1;
  daten.schreib("old.prj", alt.substr(0, ort));
  const auto items = daten.rufe({"project", "show", "old.prj", "--json"}).json()["items"];
  EXPECT_EQ(items["dt_freeC"], "5");
  EXPECT_EQ(items["DT_v_combo"], "8");
  EXPECT_EQ(items["VERFL_Eff_combo"], "B");
  EXPECT_EQ(items["ProjektNam"], "Supermarket");
}

TEST(BadProject, NumbersThatAreNoneNeverCrash) {
  const Datenkopie daten;
  for (const char* wert : {"1e999", "--", "-1e999", "abc", "", "0", "1e-320", "nan"}) {
    for (const char* item : {"Q0", "t0", "Tc", "dtVerfl", "DT_v_combo", "Lueftcap", "PumpCap"}) {
      daten.schreib("bad.prj", daten.lies(kMarkt));
      daten.rufe(
          {"project", "derive", "bad.prj", "--set", std::string(item) + "=" + wert, "--write"});
      const Antwort a = daten.rufe({"simulate", "bad.prj", "--json"});
      EXPECT_TRUE(a.status == 0 || a.status == 1) << item << "=" << wert << " " << a.status;
      if (a.status == 0) {
        EXPECT_FALSE(a.json().is_discarded()) << item << "=" << wert;
      }
    }
  }
}

TEST(BadProject, AMissingWorkingProjectIsTold) {
  const Datenkopie daten;
  std::filesystem::remove(daten.pfad("Temp_Sim.dat"));
  for (const Worte& befehl : {Worte{"simulate"}, Worte{"point"}, Worte{"fans", "11"},
                              Worte{"project", "save", "x"}, Worte{"project", "show", "-"}}) {
    const Antwort a = daten.rufe(befehl);
    EXPECT_EQ(a.status, 1) << befehl.back();
    EXPECT_NE(a.fehler.find("Temp_Sim.dat"), std::string::npos);
  }
  EXPECT_FALSE(daten.da("Temp_Sim.dat"));
  EXPECT_FALSE(daten.da("x.prj"));
}

TEST(BadTable, ABrokenRowOrAMissingTableEndsWithAMessageOrFigures) {
  const Datenkopie daten;
  std::string tabelle = daten.lies("R448A.DAT");
  tabelle.replace(tabelle.size() / 2, 40, "\"broken,,--,1e999\r\n");
  daten.schreib("R448A.DAT", tabelle);
  EXPECT_EQ(daten.rufe({"point", "--json"}).status, 0);
  std::filesystem::remove(daten.pfad("R448A.DAT"));
  const Antwort a = daten.rufe({"simulate"});
  EXPECT_EQ(a.status, 1);
  EXPECT_NE(a.fehler.find("File not existing."), std::string::npos);
}

TEST(BadTable, ABrokenCourseRuns) {
  const Datenkopie daten;
  daten.schreib("JG_Temp.dat", "\"Germany\"\r\n\"Cologne\"\r\n\"\",\"1e999\",\"--\"\r\n\"Jan");
  const Antwort a = daten.rufe({"simulate", "--json"});
  EXPECT_EQ(a.status, 0) << a.fehler;
  EXPECT_FALSE(a.json().is_discarded());
}

TEST(BadTable, AHundredMegabytesOfSettingsDoNoHarm) {
  const Datenkopie daten;
  std::filesystem::resize_file(daten.pfad("SubAct.dat"), 100'000'000);
  const Antwort a = daten.rufe({"point", "--json"});
  EXPECT_EQ(a.status, 0) << a.fehler;
}

}  // namespace
