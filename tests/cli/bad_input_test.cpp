#include <gtest/gtest.h>

#include <algorithm>
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

bool hat(const std::string& text, const std::string& teil) {
  return text.find(teil) != std::string::npos;
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
  const std::size_t kopf = ganz.find("SIM_PRO") + 7, erstes = ganz.find('\n') + 1;
  for (std::size_t n = 1; n < ganz.size(); n += 29) {
    const std::string rest = ganz.substr(0, n);
    daten.schreib("cut.prj", rest);
    const Antwort a = daten.rufe({"simulate", "cut.prj", "--json"});
    const std::string items = rest.size() > erstes ? rest.substr(erstes) : "";
    const auto anzahl = std::count(items.begin(), items.end(), '\n') +
                        (items.empty() || items.ends_with('\n') ? 0 : 1);
    const std::string gezaehlt = "The project holds " + std::to_string(anzahl) + " of 46 items; ";
    if (n < kopf || anzahl == 0) {
      EXPECT_EQ(a.status, 1) << n;
      EXPECT_TRUE(hat(a.fehler, "\"cut.prj\"") || hat(a.fehler, "cut.prj\" is")) << n << a.fehler;
      EXPECT_TRUE(hat(a.fehler, "is no project")) << n << a.fehler;
    } else {
      EXPECT_EQ(hat(a.fehler, gezaehlt), anzahl < 35) << n << a.fehler;
      EXPECT_TRUE(a.status == 0 ? a.json()["COP"].is_number()
                                : hat(a.fehler, "refrigerant") || hat(a.fehler, "COP"))
          << n << a.fehler;
    }
    EXPECT_EQ(daten.lies("cut.prj"), rest);
  }
}

TEST(BadProject, ACutOffOneIsToldByEveryReaderAndStillOpens) {
  const Datenkopie daten;
  std::string kurz = daten.lies(kMarkt);
  std::size_t ort = 0;
  for (int zeile = 0; zeile < 31; ++zeile) ort = kurz.find('\n', ort) + 1;
  kurz.resize(ort);
  for (const Worte& befehl : leser()) {
    daten.schreib("cut.prj", kurz);
    const Antwort a = daten.rufe(mit(befehl, "cut.prj"));
    EXPECT_EQ(a.status, 0) << befehl.back() << a.fehler;
    EXPECT_TRUE(hat(a.fehler,
                    "The project holds 30 of 46 items; the others are empty or take their "
                    "fallbacks."))
        << befehl.back() << a.fehler;
  }
  EXPECT_TRUE(daten.lies("Temp_Sim.dat").starts_with("\"R448A\""));
}

TEST(BadProject, AWorkingProjectThatIsNoneIsTold) {
  const Datenkopie daten;
  std::filesystem::create_directory(daten.pfad("there"));
  const std::string binaer = "\"R448A\"\r\n" + std::string(2, '\0') + "\"12\"\r\n";
  const std::vector<std::pair<std::string, std::string>> faelle{
      {binaer, "binary"}, {" \r\n\r\n\"\"\r\n", "holds no items"}};
  for (const auto& [inhalt, grund] : faelle) {
    daten.schreib("Temp_Sim.dat", inhalt);
    daten.schreib("there/Temp_Sim.dat", inhalt);
    for (Worte befehl : leser()) {
      if (befehl[0] == "project") continue;
      const Antwort a = daten.rufe(befehl);
      EXPECT_EQ(a.status, 1) << befehl.back();
      EXPECT_TRUE(hat(a.fehler, "Temp_Sim.dat") && hat(a.fehler, grund)) << a.fehler;
    }
    for (const char* datei : {"-", "there/Temp_Sim.dat"}) {
      const Antwort a = daten.rufe({"project", "show", datei});
      EXPECT_EQ(a.status, 1) << datei;
      EXPECT_TRUE(hat(a.fehler, "Temp_Sim.dat") && hat(a.fehler, grund)) << a.fehler;
    }
    EXPECT_EQ(daten.lies("Temp_Sim.dat"), inhalt);
  }
  // Another one takes its place without its being read.
  EXPECT_EQ(daten.rufe({"project", "open", kMarkt}).status, 0);
  EXPECT_EQ(daten.rufe({"point"}).status, 0);
}

TEST(BadProject, ABinaryOneWithAHeadingIsTold) {
  const Datenkopie daten;
  daten.schreib("zero.prj", "\"a\",\"b\",\"\",\"SIM_PRO\"\r\n\"R448A\"\r\n" + std::string(3, '\0'));
  alle_lehnen_ab(daten, "zero.prj");
  EXPECT_TRUE(hat(daten.rufe({"simulate", "zero.prj"}).fehler, "binary"));
}

TEST(BadProject, ItsTextsReachATerminalWithoutEscapeSequencesAndShortened) {
  const Datenkopie daten;
  daten.schreib("wild.prj", daten.lies(kMarkt));
  daten.setze_item("wild.prj", 1, "R\x1b[31m\x07\xc2\x9b" + std::string(5000, 'x'));
  for (const Worte& befehl :
       {Worte{"simulate", "wild.prj"}, Worte{"point", "wild.prj"},
        Worte{"project", "show", "wild.prj"}, Worte{"project", "derive", "wild.prj"},
        Worte{"--verbose", "fans", "11", "wild.prj"}}) {
    const Antwort a = daten.rufe(befehl);
    const std::string alles = a.ausgabe + a.fehler;
    EXPECT_TRUE(hat(alles, "R?[31m??xxx")) << befehl.back() << alles.substr(0, 300);
    EXPECT_FALSE(hat(alles, "\x1b") || hat(alles, "\x07") || hat(alles, "\xc2\x9b"));
    EXPECT_TRUE(hat(alles, "...")) << befehl.back();
    EXPECT_FALSE(hat(a.fehler, std::string(61, 'x'))) << befehl.back();
    EXPECT_FALSE(hat(alles, std::string(201, 'x'))) << befehl.back();
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

struct Item {
  const char* name;
  int nummer;
};

TEST(BadProject, ATextThatIsNoNumberIsZero) {
  const Datenkopie daten;
  const std::string ganz = daten.lies(kMarkt);
  daten.rufe({"simulate", kMarkt});  // makes the course
  const auto lauf = [&](const Item& item, const std::string& wert) {
    daten.schreib("bad.prj", ganz);
    daten.setze_item("bad.prj", item.nummer, wert);
    return daten.rufe({"simulate", "bad.prj", "--json"});
  };
  for (const Item& item : {Item{"Q0", 2}, Item{"t0", 3}, Item{"Tc", 40}, Item{"dtVerfl", 41},
                           Item{"DT_v_combo", 44}, Item{"Lueftcap", 26}, Item{"PumpCap", 24}}) {
    const Antwort null = lauf(item, "0");
    EXPECT_TRUE(null.status == 0 || null.fehler.size() > 40) << item.name << null.fehler;
    for (const char* wert : {"--", "abc", "nan"}) {
      const Antwort a = lauf(item, wert);
      EXPECT_EQ(a.status, null.status) << item.name << "=" << wert << a.fehler;
      EXPECT_EQ(a.ausgabe, null.ausgabe) << item.name << "=" << wert;
    }
  }
}

TEST(BadProject, ANumberBeyondAllRangeIsToldOrLeftOut) {
  const Datenkopie daten;
  const std::string ganz = daten.lies(kMarkt);
  for (const char* wert : {"1e999", "-1e999"}) {
    for (const Item& item : {Item{"t0", 3}, Item{"Tc", 40}, Item{"Q0", 2}}) {
      daten.schreib("bad.prj", ganz);
      daten.setze_item("bad.prj", item.nummer, wert);
      for (const char* befehl : {"simulate", "point"}) {
        const Antwort a = daten.rufe({befehl, "bad.prj", "--json"});
        EXPECT_EQ(a.status, 1) << befehl << item.name;
        EXPECT_TRUE(hat(a.fehler, std::string(item.name) + " = " + wert)) << a.fehler;
        EXPECT_EQ(a.ausgabe, "");
      }
      EXPECT_FALSE(daten.da("ergEN1.DAT"));
    }
  }
  for (const Item& item :
       {Item{"dtVerfl", 41}, Item{"DT_v_combo", 44}, Item{"Lueftcap", 26}, Item{"PumpCap", 24}}) {
    daten.schreib("bad.prj", ganz);
    daten.setze_item("bad.prj", item.nummer, "1e999");
    const Antwort a = daten.rufe({"simulate", "bad.prj", "--json"});
    const auto SCOP = a.json()["SCOP"];
    const bool figur = SCOP.is_number() && SCOP.get<double>() > 0;
    EXPECT_EQ(a.status, figur ? 0 : 1) << item.name << a.fehler;
    EXPECT_TRUE(hat(a.fehler, std::string(item.name) + " = 1e999")) << a.fehler;
  }
}

TEST(BadProject, ACondensingTemperatureThatIsNoNumberIsZero) {
  const Datenkopie daten;
  daten.schreib("bad.prj", daten.lies(kMarkt));
  daten.setze_item("bad.prj", 40, "--");
  const Antwort a = daten.rufe({"point", "bad.prj", "--json"});
  EXPECT_EQ(a.status, 0) << a.fehler;
  EXPECT_EQ(a.json()["tc_eff"], 0.0);
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

TEST(BadTable, ABrokenRowEndsTheTableThereAndIsTold) {
  const Datenkopie daten;
  std::string tabelle = daten.lies("R448A.DAT");
  tabelle.replace(tabelle.size() / 2, 40, "\"broken,,--,1e999\r\n");
  daten.schreib("R448A.DAT", tabelle);
  const Antwort a = daten.rufe({"--verbose", "point", "--json"});
  daten.schreib("R448A.DAT", tabelle.substr(0, tabelle.rfind('\n', tabelle.find("broken")) + 1));
  const Antwort gekappt = daten.rufe({"point", "--json"});
  EXPECT_EQ(a.status, gekappt.status);
  EXPECT_EQ(a.ausgabe, gekappt.ausgabe);
  EXPECT_TRUE(hat(a.fehler, "R448A.DAT") && hat(a.fehler, "can't be read; the table ends there"))
      << a.fehler;
}

TEST(BadTable, AMissingOrEmptyOneIsNamedAndNotMade) {
  const Datenkopie daten;
  const std::string ordner = "in the data folder \"" + daten.pfad() + "\"";
  std::filesystem::remove(daten.pfad("R448A.DAT"));
  for (const Worte& befehl : {Worte{"simulate"}, Worte{"point"}, Worte{"fans", "12"}}) {
    const Antwort a = daten.rufe(befehl);
    EXPECT_EQ(a.status, 1) << befehl.front();
    EXPECT_TRUE(hat(a.fehler, "File not existing.")) << a.fehler;
    EXPECT_TRUE(hat(a.fehler, "The table R448A.DAT is missing or empty " + ordner)) << a.fehler;
  }
  EXPECT_FALSE(daten.da("R448A.DAT"));
  daten.schreib("R448A.DAT", "");
  EXPECT_TRUE(hat(daten.rufe({"simulate"}).fehler, "R448A.DAT is missing or empty"));
  std::filesystem::remove(daten.pfad("CO2_sh01.dat"));
  const Antwort a = daten.rufe({"simulate", "CO2 supermarket.prj"});
  EXPECT_EQ(a.status, 1);
  EXPECT_TRUE(hat(a.fehler, "The table CO2_sh01.dat is missing or empty " + ordner)) << a.fehler;
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
