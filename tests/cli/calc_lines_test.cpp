#include <gtest/gtest.h>

#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <random>
#include <set>

#include "gespraech.h"

namespace {

using nlohmann::json;

TEST(CalcLines, AnErrorNamesItsCauseAndTheNextLineWorks) {
  const Datenkopie daten;
  const std::vector<std::pair<std::string, std::string>> schlecht{
      {"no json", "JSON object"},
      {"[1]", "JSON object"},
      {"{}", "\"op\""},
      {R"({"op":5})", "\"op\""},
      {R"({"op":"Nichts"})", "Nichts"},
      {R"({"op":"Int"})", "\"x\""},
      {R"({"op":"Int","x":1e999})", "number"},
      {R"({"op":"Int","x":[1]})", "\"x\""},
      {R"({"op":"Sat_Suchen","key":263.15})", "\"mode\""},
      {R"({"op":"Sat_Wert","column":"q","key":1})", "column"},
      {R"({"op":"Caption_Uebersetzen","stem":"X","from":"ENG","to":"GER","text":"a"})", "stem"},
      {"{\"op\":\"Int\",\"x\":\"\xff\"}", "JSON"},
      {std::string(2'000'000, '['), "megabyte"},
      {std::string(1'000'000, '['), "JSON"}};
  for (const auto& [zeile, ursache] : schlecht) {
    const auto a = rechne(daten, {zeile, R"({"op":"Int","x":1.5})"});
    ASSERT_EQ(a.size(), 2U) << ursache;
    ASSERT_TRUE(a[0].contains("error")) << ursache;
    EXPECT_NE(a[0]["error"].get<std::string>().find(ursache), std::string::npos) << a[0];
    EXPECT_FALSE(a[0].contains("state"));
    EXPECT_EQ(a[1]["result"], 1);
  }
}

TEST(CalcLines, BlankLinesAreSkippedAndTheLastLineNeedsNoEnd) {
  const Datenkopie daten;
  const Antwort a =
      daten.rufe({"calc"}, "\n  \r\n\n{\"op\":\"Int\",\"x\":1}\r\n{\"op\":\"Int\",\"x\":2}");
  EXPECT_EQ(a.status, 0);
  EXPECT_EQ(std::ranges::count(a.ausgabe, '\n'), 2);
  EXPECT_EQ(daten.rufe({"calc"}).status, 0);
}

TEST(CalcState, SetTakesAllFieldsOfALineOrNone) {
  const Datenkopie daten;
  const auto a = rechne(
      daten, {R"({"op":"set","RefName":"R404A","dT_sh":"8,5","Bauart":2,"ECO_OPT":1,)"
              R"("modul":"DiaG","gespeicherte_Leistung":4,"Frequenz_Option":2,"Unten":{"T":250}})",
              R"({"op":"set","dT_sh":3,"dT_shx":8})", R"({"op":"set","dT_sh":3,"Unten":{"x":1}})",
              R"({"op":"set","dT_sh":3,"Dichte_Faktor":1})", R"({"op":"set","dT_sh":3,"tc":[]})",
              R"({"op":"get"})", R"({"op":"set","dT_sh":null,"Unten":null,"P_hoch":null})"});
  ASSERT_EQ(a.size(), 7U);
  for (std::size_t i = 1; i <= 4; ++i) EXPECT_TRUE(a[i].contains("error")) << i;
  EXPECT_NE(a[1]["error"].get<std::string>().find("dT_shx"), std::string::npos);
  const json& z = a[5]["result"];
  EXPECT_EQ(z, a[5]["state"]);
  EXPECT_EQ(z["RefName"], "R404A");
  EXPECT_EQ(z["dT_sh"], 8.5);
  EXPECT_EQ(z["Bauart"], 2);
  EXPECT_EQ(z["ECO_OPT"], 1);
  EXPECT_EQ(z["Frequenz_Option"], 2);
  EXPECT_EQ(z["modul"], "DiaG");
  EXPECT_EQ(z["gespeicherte_Leistung"], 4);
  EXPECT_EQ(z["Unten"]["T"], 250);
  for (const char* name : {"dT_sh", "P_hoch"}) EXPECT_TRUE(a[6]["state"][name].is_null()) << name;
  EXPECT_TRUE(a[6]["state"]["Unten"]["T"].is_null());
}

TEST(CalcState, EveryFieldThatGetShowsCanBeSetBack) {
  const Datenkopie daten;
  json z = ergebnis(daten, R"({"op":"get"})");
  z.erase("Dichte_Faktor");
  for (auto& [name, wert] : z.items())
    if (wert.is_number() || wert.is_null()) wert = 2;
  z["op"] = "set";
  const json danach = letzte(daten, {z.dump()});
  ASSERT_TRUE(danach.contains("state")) << danach;
  z.erase("op");
  for (const auto& [name, wert] : z.items()) EXPECT_EQ(danach["state"][name], wert) << name;
}

TEST(CalcState, ResetStartsAfresh) {
  const Datenkopie daten;
  const auto a =
      rechne(daten, {R"({"op":"get"})", R"({"op":"set","RefName":"R22","Land":"Spain"})",
                     R"({"op":"Sat_Suchen","key":263.15,"mode":0})",
                     R"({"op":"Temperaturverlauf_rechnen","Spitze":1})", R"({"op":"reset"})"});
  ASSERT_EQ(a.size(), 5U);
  EXPECT_TRUE(a[4]["result"].is_null());
  EXPECT_EQ(a[4]["state"], a[0]["state"]);
  EXPECT_NE(a[2]["state"], a[0]["state"]);
}

TEST(CalcState, NumbersForModesAreCutAndHeldInRange) {
  const Datenkopie daten;
  const auto a =
      rechne(daten, {R"({"op":"set","RefName":"R22","Bauart":1e300,"Antrieb":2.9})",
                     R"({"op":"Sat_Suchen","key":0,"mode":33.7})",
                     R"({"op":"Stundenlast","Last_Tag":1,"Last_Nacht":1,"Stunde":-1e18})"});
  ASSERT_EQ(a.size(), 3U);
  EXPECT_EQ(a[0]["state"]["Antrieb"], 2);
  EXPECT_EQ(a[1]["state"]["SatGeladen"], 31);
  EXPECT_TRUE(a[2]["result"].is_null());
}

/// A conversation: the next line goes out only when the answer to the last is there.
class Unterhaltung {
 public:
  explicit Unterhaltung(const Datenkopie& daten) : ausgabe_(daten.pfad("answers.txt")) {
    const std::string befehl = std::string("'") + POLARKREIS_BIN + "/polarkreis-cli' --data '" +
                               daten.pfad() + "' calc > '" + ausgabe_ + "'";
    rohr_ = ::popen(befehl.c_str(), "w");
  }
  ~Unterhaltung() {
    if (rohr_) ::pclose(rohr_);
  }
  Unterhaltung(const Unterhaltung&) = delete;
  Unterhaltung& operator=(const Unterhaltung&) = delete;

  json operator()(const std::string& zeile) {
    if (!rohr_) return {};
    std::fprintf(rohr_, "%s\n", zeile.c_str());
    std::fflush(rohr_);
    ++zeilen_;
    for (int versuch = 0; versuch < 10'000; ++versuch) {
      std::ifstream datei(ausgabe_);
      std::string antwort;
      int n = 0;
      while (n < zeilen_ && std::getline(datei, antwort) && !datei.eof()) ++n;
      if (n == zeilen_) return json::parse(antwort, nullptr, false);
      ::usleep(1000);
    }
    return {};
  }

 private:
  std::string ausgabe_;
  FILE* rohr_ = nullptr;
  int zeilen_ = 0;
};

TEST(CalcLines, AnEditedTableTakesEffectAtTheNextLine) {
  const Datenkopie daten;
  Unterhaltung calc(daten);
  const std::string suche = R"({"op":"Sat_Suchen","key":263.15,"mode":0})";
  calc(R"({"op":"set","RefName":"R134A"})");
  EXPECT_EQ(calc(suche)["state"]["Oben"]["p_d"], 2.00603);
  std::string tabelle = daten.lies("R134A.DAT");
  tabelle.replace(tabelle.find("2.00603"), 7, "2.11111");
  daten.schreib("R134A.DAT", tabelle);
  EXPECT_EQ(calc(suche)["state"]["Oben"]["p_d"], 2.11111);
}

TEST(CalcLines, JunkOfEveryKindGetsOneAnswerALine) {
  const Datenkopie daten;
  std::mt19937 zufall(20240229);
  const std::string gut = R"({"op":"Sat_Suchen","key":263.15,"mode":0,"RefName":"R22"})";
  const std::vector<std::string> ops{
      "set",          "get",        "Sat_TausP",       "KreisPunkt",
      "CO2_Tabelle",  "Klima_Wert", "Klima_Dateiname", "Motor_Faktor",
      "Feuchte_Luft", "Stundenlast"};
  const std::vector<std::string> werte{"null",   "1e308", "-1e308",   "\"\"",    "\"--\"",
                                       "0",      "{}",    "[]",       "\"R22\"", "-0.0",
                                       "1e-320", "true",  "\"1e999\""};
  const std::vector<std::string> namen{"p",        "mode",       "t0",      "tc",    "t_s",
                                       "dT_sc",    "T",          "row",     "Stadt", "Selektor",
                                       "Land",     "size",       "phi",     "t",     "Stunde",
                                       "Last_Tag", "Last_Nacht", "RefName", "Unten"};
  const auto eines = [&](const std::vector<std::string>& aus) {
    return aus[zufall() % aus.size()];
  };
  std::string eingabe;
  constexpr int zeilen = 100'000;
  for (int i = 0; i < zeilen; ++i) {
    std::string zeile = gut;
    if (i % 3 == 0) {
      for (int n = 0; n < 4; ++n)
        zeile[zufall() % zeile.size()] = static_cast<char>(zufall() % 256);
    } else if (i % 3 == 1) {
      zeile.resize(1 + zufall() % zeile.size());
    } else {
      zeile = R"({"op":")" + eines(ops) + "\"";
      for (int n = 0; n < 5; ++n) zeile += ",\"" + eines(namen) + "\":" + eines(werte);
      zeile += "}";
    }
    std::ranges::replace(zeile, '\n', ' ');
    eingabe += zeile + "\n";
  }
  const Antwort a = daten.rufe({"calc"}, eingabe + R"({"op":"CO2_pOpt","t":31})" + "\n");
  EXPECT_EQ(a.status, 0) << a.fehler.substr(0, 2000);
  EXPECT_EQ(std::ranges::count(a.ausgabe, '\n'), zeilen + 1);
  const std::size_t vorletzte = a.ausgabe.rfind('\n', a.ausgabe.size() - 2);
  EXPECT_EQ(json::parse(a.ausgabe.substr(vorletzte + 1))["result"], 79.5);
}

TEST(CalcLines, AFullDiskIsTold) {
  const Datenkopie daten;
  const Antwort voll =
      ::rufe({"--data", daten.pfad(), "calc"}, "{\"op\":\"get\"}\n", {}, "/dev/full");
  EXPECT_EQ(voll.status, 1);
  EXPECT_NE(voll.fehler.find("could not be written"), std::string::npos) << voll.fehler;
}

// The guide's first column of operations, and each of them exists.
TEST(ScriptingGuide, ListsOperationsThatExist) {
  const Datenkopie daten;
  std::ifstream datei(std::string(POLARKREIS_DATA) + "/../docs/scripting.md");
  std::set<std::string> ops;
  bool tabelle = false;
  for (std::string zeile; std::getline(datei, zeile);) {
    if (zeile.starts_with("| Operation")) tabelle = true;
    if (zeile.empty()) tabelle = false;
    if (tabelle && zeile.starts_with("| `")) ops.insert(zeile.substr(3, zeile.find('`', 3) - 3));
  }
  EXPECT_EQ(ops.size(), 81U);
  for (const std::string& op : ops) {
    const json a = letzte(daten, {R"({"op":")" + op + "\"}"});
    EXPECT_EQ(a.value("error", "").find("there is no operation"), std::string::npos) << op;
  }
}

}  // namespace
