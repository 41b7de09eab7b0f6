#include <gtest/gtest.h>

#include <algorithm>

#include "gespraech.h"
#include "messordner.h"
#include "reports/svg_leser.h"

namespace {

using Json = nlohmann::json;
using Namen = std::vector<std::string>;

constexpr const char* kMarkt = "Supermarket medium temperature.prj";
constexpr const char* kCO2 = "CO2 supermarket.prj";

Namen stoff(const std::string& mittel, const std::string& t0, const std::string& tc,
            const Namen& mehr = {}) {
  Namen alle{"logph", "--refrigerant", mittel, "--t0", t0, "--tc", tc};
  alle.insert(alle.end(), mehr.begin(), mehr.end());
  return alle;
}

/// The JSON of a call that works.
Json figuren(const Datenkopie& daten, Namen aufruf) {
  aufruf.emplace_back("--json");
  const Antwort a = daten.rufe(aufruf);
  EXPECT_EQ(a.status, 0) << a.fehler;
  return a.json();
}

/// The answer of one calculation of a script that begins afresh.
Json skript(const Datenkopie& daten, const std::string& mittel, const std::string& felder) {
  return letzte(daten, {R"({"op":"set","RefName":")" + mittel + R"("})",
                        R"({"op":"logp_H",)" + felder + "}"});
}

/// A state point by its name.
Json punkt(const Json& j, const std::string& name) {
  for (const Json& p : j["points"])
    if (p["name"] == name) return p;
  ADD_FAILURE() << "no point " << name;
  return Json::object();
}

double zahl_von(const Json& j, const char* name) {
  return j["result"][name].get<double>();
}

}  // namespace

TEST(Logph, APlantByItsRefrigerantEqualsTheRoutineForScripts) {
  const Datenkopie daten;
  struct Fall {
    Namen aufruf;
    std::string mittel, felder;
  };
  const std::vector<Fall> faelle{
      {stoff("R134A", "-10", "40"), "R134A", R"("t0F":-10,"tcF":40,"dT_sh":10,"dT_sc":3)"},
      {stoff("R407C", "-10", "40",
             {"--superheat", "6", "--subcooling", "5", "--ihx", "4", "--t-suction", "3", "--pipe",
              "1.5", "--dp-liquid", "200", "--bauart", "2", "--antrieb", "1"}),
       "R407C",
       R"("t0F":-10,"tcF":40,"dT_sh":6,"dT_sc":5,"Innen_WT":1,"dT_liquid":4,"t_s":3,"C":1.5,)"
       R"("dp_Fl":200,"Bauart":2,"Antrieb":1)"},
      {stoff("R134A", "-30", "40", {"--stages", "2", "--p-m", "4"}), "R134A",
       R"("modul":"2stage","t0F":-30,"tcF":40,"dT_sh":10,"dT_sc":3,"Zweistufig":1,"p_m":4)"},
      {stoff("R134A", "-30", "40",
             {"--mode", "MonoF", "--stages", "2", "--p-int", "2", "--p-int-2", "1", "--second",
              "--ihx", "5"}),
       "R134A",
       R"("t0F":-30,"tcF":40,"dT_sh":10,"dT_sc":3,"Zweistufig":1,"p_Int_Scroll":2,)"
       R"("p_Int_Scroll2":1,"Auswahl2":1,"Innen_WT":1,"dT_liquid":5)"},
      {stoff("R134A", "-10", "40", {"--economiser", "3"}), "R134A",
       R"("t0F":-10,"tcF":40,"dT_sh":10,"dT_sc":3,"ECO_OPT":3)"},
      {stoff("R744", "-10", "36",
             {"--mode", "SIM_PRO", "--stages", "2", "--parallel", "--p-high", "95"}),
       "R744",
       R"("modul":"SIM_PRO","t0F":-10,"tcF":36,"dT_sh":10,"dT_sc":3,"Zweistufig":1,)"
       R"("ParaL_Check":1,"P_hoch":95)"}};
  for (const Fall& fall : faelle) {
    Json j = figuren(daten, fall.aufruf);
    const Json antwort = skript(daten, fall.mittel, fall.felder);
    EXPECT_EQ(j["state"]["p0"], antwort["state"]["p0"]) << fall.felder;
    EXPECT_EQ(j["state"]["h_lc"], antwort["state"]["h_lc"]) << fall.felder;
    EXPECT_EQ(j["state"]["Zweistufig"], antwort["state"]["Zweistufig"]) << fall.felder;
    j.erase("state");
    j.erase("lines");
    EXPECT_EQ(j, antwort["result"]) << fall.felder;
  }
}

TEST(Logph, JsonHasAllThatADiagramNeeds) {
  const Datenkopie daten;
  const Json j = figuren(daten, stoff("R407C", "-10", "40"));
  for (const char* name : {"mode",          "table",   "refrigerant", "arrangement", "t0F",
                           "tcF",           "result",  "hsF",         "hTF",         "rhoSF",
                           "rhoTF",         "tGlide",  "t0_Punkt",    "xDampf",      "EnthDiff",
                           "VerdLeist_DIN", "EER_ACT", "p_GC_Scroll", "tu_Scroll",   "figures",
                           "points",        "paths",   "balances",    "lines",       "state"})
    EXPECT_TRUE(j.contains(name)) << name;
  EXPECT_EQ(j["mode"], "MonoF");
  EXPECT_EQ(j["table"], "R407C.DAT");
  EXPECT_EQ(j["refrigerant"], "R407C / GWP =1774");
  EXPECT_EQ(j["arrangement"], "single stage");
  EXPECT_TRUE(j["p_GC_Scroll"].is_null());
  EXPECT_TRUE(j["result"]["p_m"].is_null());
  for (const char* name :
       {"transcritical", "p0",   "pc",        "p_s",         "p_d",     "p_m",   "t_m",
        "t_s",           "m",    "m_joining", "m_condenser", "m_model", "h_liq", "h_l",
        "t_d1",          "t_d2", "t_d",       "h_d",         "P_1",     "P_2",   "P_ideal_1",
        "P_ideal_2",     "P",    "eta_is",    "Q0",          "Q_SL",    "Qc"})
    EXPECT_TRUE(j["result"].contains(name)) << name;
  for (const Json& p : j["points"])
    for (const char* name : {"name", "p", "t", "h", "rho", "level", "line"})
      EXPECT_TRUE(p.contains(name)) << name;
  for (const Json& b : j["balances"])
    for (const char* name : {"component", "of", "in", "out", "rest", "closes"})
      EXPECT_TRUE(b.contains(name)) << name;
  const Json& weg = j["paths"][0];
  EXPECT_EQ(weg.front(), weg.back());
  EXPECT_EQ(weg.size(), j["points"].size() + 1);
}

// R134A's table: 33 rows from -65 to 95 °C.
TEST(Logph, JsonsLinesAreTheTables) {
  const Datenkopie daten;
  const Json l = figuren(daten, stoff("R134A", "-10", "40"))["lines"];
  ASSERT_EQ(l["bubble"].size(), 33U);
  EXPECT_EQ(l["bubble"][11], Json::parse("[186.7, 2.00603]"));
  EXPECT_EQ(l["dew"][11], Json::parse("[392.66, 2.00603]"));
  ASSERT_EQ(l["vapour_contents"].size(), 9U);
  EXPECT_EQ(l["vapour_contents"][4]["x"], 0.5);
  ASSERT_EQ(l["isotherms"].size(), 16U);
  EXPECT_EQ(l["isotherms"][0]["t"], -60);
  EXPECT_TRUE(l["supercritical"].empty());
  EXPECT_FALSE(figuren(daten, stoff("R744", "-10", "20"))["lines"]["supercritical"].empty());
}

TEST(Logph, PressuresStandInForTemperatures) {
  const Datenkopie daten;
  const Json j =
      figuren(daten, {"logph", "--refrigerant", "R134A", "--p0", "2.00603", "--pc", "10,1659"});
  EXPECT_NEAR(j["t0F"].get<double>(), -10, 0.0101);
  EXPECT_NEAR(j["tcF"].get<double>(), 40, 0.0101);
  EXPECT_NEAR(zahl_von(j, "p0"), 2.00603, 0.001);
  // The two may be mixed, and a pressure is the base of the intermediate one.
  const Json k = figuren(daten, {"logph", "--refrigerant", "R134A", "--p0", "2.2", "--tc", "40",
                                 "--mode", "MonoF", "--stages", "2", "--p-int", "2"});
  EXPECT_NEAR(zahl_von(k, "p_m"), 4.2, 1e-12);
}

TEST(Logph, WithoutOptionsAPlantHasTenKelvinOfSuperheatAndThreeOfSubcooling) {
  const Datenkopie daten;
  const Json j = figuren(daten, stoff("r134a", "-10", "40"));
  EXPECT_EQ(j["mode"], "MonoF");
  EXPECT_EQ(punkt(j, "evaporator outlet")["t"], 0);
  EXPECT_EQ(punkt(j, "condenser outlet")["t"], 37);
  EXPECT_EQ(zahl_von(j, "t_s"), 0);
  EXPECT_EQ(figuren(daten, stoff("R134A", "-30", "40", {"--stages", "2"}))["mode"], "2stage");
  // A new superheat moves the compressor's inlet, too.
  EXPECT_EQ(zahl_von(figuren(daten, stoff("R134A", "-10", "40", {"--superheat", "4"})), "t_s"), -6);
}

TEST(Logph, R744InTwoStagesHasItsBestHighPressure) {
  const Datenkopie daten;
  const Json j = figuren(daten, stoff("R744", "-30", "35", {"--stages", "2"}));
  EXPECT_EQ(zahl_von(j, "pc"), 89);
  EXPECT_EQ(j["p_GC_Scroll"], 89);
  EXPECT_TRUE(j["result"]["transcritical"].get<bool>());
  const Json k = figuren(daten, stoff("R744", "-30", "35", {"--stages", "2", "--p-high", "95"}));
  EXPECT_EQ(zahl_von(k, "pc"), 95);
  EXPECT_EQ(zahl_von(figuren(daten, stoff("R744", "-10", "35")), "pc"), 90);
}

TEST(Logph, AProjectBeginsWithItsPointsFigures) {
  const Datenkopie daten;
  const auto vorher = daten.inhalt();
  for (const char* projekt : {kMarkt, kCO2, "Ammonia process cooling.prj"}) {
    const Json j = figuren(daten, {"logph", projekt}), p = figuren(daten, {"point", projekt});
    EXPECT_EQ(j["mode"], "SIM_PRO");
    EXPECT_EQ(j["t0F"], p["t0_eff"]) << projekt;
    EXPECT_EQ(j["tcF"], p["tc_eff"]) << projekt;
    EXPECT_NEAR(zahl_von(j, "t_s"), p["t_saug"].get<double>(), 1e-9) << projekt;
    EXPECT_NEAR(zahl_von(j, "p0"), p["p0"].get<double>(), 1e-9) << projekt;
    EXPECT_NEAR(zahl_von(j, "pc"), p["pc"].get<double>(), 1e-9) << projekt;
  }
  EXPECT_EQ(daten.inhalt(), vorher) << "no file is made or changed";
}

TEST(Logph, OptionsOfTheProjectAndOfTheCallWin) {
  const Datenkopie daten;
  EXPECT_EQ(figuren(daten, {"logph", kCO2})["arrangement"], "flash gas to the suction line");
  const Json j = figuren(daten, {"logph", kCO2, "--options", "CO2 supermarket.json"});
  EXPECT_EQ(j["arrangement"], "flash gas compressor");
  const Json k = figuren(daten, {"logph", kMarkt, "--t0", "-12", "--tc", "38", "--superheat", "5",
                                 "--ihx", "3", "--mode", "SIM_PRO"});
  EXPECT_EQ(k["t0F"], -12);
  EXPECT_EQ(k["tcF"], 38);
  EXPECT_EQ(punkt(k, "evaporator outlet")["t"], -7);
  EXPECT_TRUE(std::ranges::any_of(
      k["points"], [](const Json& p) { return p["name"] == "internal heat exchanger outlet"; }));
}

TEST(Logph, WithoutANameItIsTheWorkingProject) {
  const Datenkopie daten;
  ASSERT_EQ(daten.rufe({"project", "open", "Ammonia process cooling.prj"}).status, 0);
  const Json j = figuren(daten, {"logph"});
  EXPECT_EQ(j["refrigerant"], "R717 / GWP =0");
  EXPECT_EQ(j["result"], figuren(daten, {"logph", "Ammonia process cooling.prj"})["result"]);
  EXPECT_EQ(j, figuren(daten, {"logph", "-"}));
}

TEST(Logph, AMeasuredRowKeepsWhatWasMeasured) {
  const Messordner daten;
  const auto vorher = daten.inhalt();
  const Json j =
      figuren(daten, {"logph", "m.fmd", "--row", "2", "--settings", "s.json", "--mode", "DiaG"});
  EXPECT_EQ(j["mode"], "DiaG");
  EXPECT_EQ(j["refrigerant"], "R404A / GWP =3922");
  EXPECT_NEAR(zahl_von(j, "p0"), 1.3 + 1.013, 1e-12);
  EXPECT_NEAR(zahl_von(j, "pc"), 16.5 + 1.013, 1e-12);
  EXPECT_EQ(zahl_von(j, "t_d"), 78.2);
  EXPECT_EQ(zahl_von(j, "t_s"), -16);
  const Json gerechnet = daten.figuren();
  EXPECT_EQ(j["t0F"].get<double>(), messdateien::zelle(gerechnet, 4, 3));
  EXPECT_EQ(j["tcF"].get<double>(), messdateien::zelle(gerechnet, 4, 7));
  EXPECT_NEAR(100 * zahl_von(j, "eta_is"), messdateien::zelle(gerechnet, 4, 143), 2);
  auto nachher = daten.inhalt();
  nachher.erase("ergDiaG.DAT");  // the protocol of `diagnose`
  EXPECT_EQ(nachher, vorher) << "the diagram itself leaves no file";
  EXPECT_TRUE(
      hat(daten.rufe({"logph", "m.fmd", "--row", "2"}).ausgabe, "measured row 2, 08:00:05"));
}

TEST(Logph, TheFirstRowIsTheUsualOneAndSettingsCount) {
  const Messordner daten;
  EXPECT_EQ(figuren(daten, {"logph", "m.fmd"}), figuren(daten, {"logph", "m.fmd", "--row", "1"}));
  daten.schreib("eco.json", R"({"ECO_OPT":2,"Bauart":3})");
  const Json j = figuren(daten, {"logph", "m.fmd", "--settings", "eco.json"});
  EXPECT_EQ(j["arrangement"], "economiser with vapour injection");
  EXPECT_EQ(j["state"]["Bauart"], 3);
}

TEST(Logph, ForPeopleShowsPointsFiguresAndBalances) {
  const Datenkopie daten;
  const Antwort a = daten.rufe(stoff("R407C", "-10", "40", {"--ihx", "5"}));
  ASSERT_EQ(a.status, 0) << a.fehler;
  EXPECT_TRUE(a.ausgabe.starts_with(
      "R407C / GWP =1774, single stage\nt0 = -10 °C, tc = 40 °C, flows and powers for 10 kW"))
      << a.ausgabe;
  const Json j = figuren(daten, stoff("R407C", "-10", "40", {"--ihx", "5"}));
  for (const Json& figur : j["figures"])
    EXPECT_TRUE(hat(a.ausgabe, "\n" + figur.get<std::string>() + "\n")) << figur;
  for (const Json& p : j["points"]) EXPECT_TRUE(hat(a.ausgabe, p["name"].get<std::string>())) << p;
  for (const Json& b : j["balances"])
    EXPECT_TRUE(hat(a.ausgabe, b["component"].get<std::string>())) << b;
  EXPECT_TRUE(hat(a.ausgabe, "p [bar a]") && hat(a.ausgabe, "t [°C]"));
}

TEST(Logph, FiguresThatNoPlantHasAreTold) {
  const Datenkopie daten;
  const auto hinweis = [&](const Namen& befehl) { return daten.rufe(befehl).fehler; };
  EXPECT_EQ(hinweis(stoff("R134A", "-10", "40", {})), "");
  EXPECT_TRUE(hat(hinweis(stoff("R404A", "-35", "40", {"--stages", "2", "--p-int", "4"})),
                  "gives the high stage"));
  EXPECT_TRUE(hat(hinweis(stoff("R134A", "-10", "40", {"--ihx", "25"})),
                  "The internal heat exchanger warms the suction vapour to"));
  EXPECT_TRUE(hat(hinweis(stoff("R134A", "-20", "40", {"--mode", "2stage", "--economiser", "1"})),
                  "The economiser evaporates at"));
  EXPECT_TRUE(hat(hinweis(stoff("R744", "-30", "45", {})), "the best one for this gas cooler is"));
  EXPECT_FALSE(hat(hinweis(stoff("R744", "-30", "45", {"--p-high", "115"})), "the best one"));
  EXPECT_TRUE(hat(hinweis(stoff("R717", "-60", "40", {})), "lie far from those it was fitted for"));
}

// What hangs on the temperatures of a project goes with them.
TEST(Logph, AProjectAtAnotherPoint) {
  const Datenkopie daten;
  const Json wie = figuren(daten, {"logph", kMarkt});
  const double t0 = wie["t0F"].get<double>();
  const Json anders = figuren(daten, {"logph", kMarkt, "--t0", std::to_string(t0 - 10)});
  EXPECT_NEAR(anders["result"]["t_s"].get<double>(), wie["result"]["t_s"].get<double>() - 10, 1e-4);
  const std::string co2 = "CO2 supermarket.prj";
  EXPECT_EQ(figuren(daten, {"logph", co2, "--tc", "20"})["arrangement"], "single stage");
  const Json warm = figuren(daten, {"logph", co2, "--tc", "36"});
  EXPECT_EQ(warm["arrangement"], "flash gas to the suction line");
  EXPECT_GE(warm["result"]["pc"].get<double>(), 92);
  EXPECT_LT(warm["result"]["pc"].get<double>(), 94);
}

TEST(Logph, UnitsAreTheSettings) {
  const Datenkopie daten;
  const Antwort bar = daten.rufe(stoff("R134A", "-10", "40", {"--dp-liquid", "150"}));
  EXPECT_TRUE(hat(bar.ausgabe, "dpFl=150 mbar\n")) << bar.ausgabe;
  std::string einstellungen;
  for (int item = 1; item < 24; ++item) einstellungen += "\"\"\r\n";
  daten.schreib("kparam.dat", einstellungen + "\"2\"\r\n");
  const Antwort psi = daten.rufe(stoff("R134A", "-10", "40", {"--dp-liquid", "150"}));
  ASSERT_EQ(psi.status, 0) << psi.fehler;
  EXPECT_TRUE(hat(psi.ausgabe, "p [psi a]") && hat(psi.ausgabe, "t [°F]")) << psi.ausgabe;
  EXPECT_TRUE(hat(psi.ausgabe, "dpFl=2.17 psi\n"));
  EXPECT_TRUE(hat(psi.ausgabe, "  tSL = 32 °F\n"));
  EXPECT_TRUE(hat(psi.ausgabe, "147.44"));  // 10.1659 bar
}

TEST(Logph, TheDiagramIsAWellFormedPictureWithItsPointsNumbers) {
  const Datenkopie daten;
  for (const Namen& aufruf :
       {stoff("R407C", "-10", "40", {"--ihx", "5"}), stoff("R744", "-30", "35", {"--stages", "2"}),
        Namen{"logph", kCO2, "--parallel"}}) {
    Namen mit = aufruf;
    mit.insert(mit.end(), {"--svg", "d.svg"});
    const Antwort a = daten.rufe(mit);
    ASSERT_EQ(a.status, 0) << a.fehler;
    EXPECT_TRUE(hat(a.ausgabe, "\nDiagram: ")) << a.ausgabe;
    const std::string bild = daten.lies("d.svg");
    EXPECT_TRUE(bild.starts_with("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<svg "));
    EXPECT_TRUE(bild.ends_with("</svg>\n"));
    const SvgLeser svg(bild);
    const Json j = figuren(daten, aufruf);
    Namen nummern;
    for (std::size_t n = 1; n <= j["points"].size(); ++n) nummern.push_back(std::to_string(n));
    Namen gezeigt = svg.texte("Marken");
    std::ranges::sort(nummern);
    std::ranges::sort(gezeigt);
    EXPECT_EQ(gezeigt, nummern);
    const Namen tafel = svg.texte("Tabelle");
    for (const Json& p : j["points"])
      EXPECT_NE(std::ranges::find(tafel, p["name"].get<std::string>()), tafel.end()) << p["name"];
    std::filesystem::remove(daten.pfad("d.svg"));
  }
}

TEST(Logph, TheDiagramGoesBesideTheJson) {
  const Datenkopie daten;
  const Antwort a = daten.rufe(stoff("R134A", "-10", "40", {"--json", "--svg", "d.svg"}));
  ASSERT_EQ(a.status, 0) << a.fehler;
  EXPECT_TRUE(a.json().is_object()) << "nothing but JSON on standard output";
  EXPECT_TRUE(daten.da("d.svg"));
  const std::string erst = daten.lies("d.svg");
  ASSERT_EQ(daten.rufe(stoff("R134A", "-10", "40", {"--svg", "d.svg"})).status, 0);
  EXPECT_EQ(daten.lies("d.svg"), erst) << "equal calls give equal files";
}

TEST(Logph, TheDiagramsFolderIsMade) {
  const Datenkopie daten;
  const Antwort a = daten.rufe(stoff("R134A", "-10", "40", {"--svg", "new/folder/d.svg"}));
  ASSERT_EQ(a.status, 0) << a.fehler;
  EXPECT_TRUE(daten.lies("new/folder/d.svg").ends_with("</svg>\n"));
}
