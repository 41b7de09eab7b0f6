#include <gtest/gtest.h>

#include <cmath>

#include "messordner.h"

namespace {

using Json = nlohmann::json;
using messdateien::Inhalt;
using messdateien::zelle;

TEST(DiagnoseSettings, OverrideTheFileUnderTheirNames) {
  const Messordner daten;
  daten.schreib("s.json", R"({"KaelteM":"R134A","Combo2":"10s","Combo3":"Two-stage",
    "Combo4":"typed method","Combo5":"30 min","Combo7":"19200","RGCombo":"cylinders",
    "Off_line_Check":true,"OrbiN_spread":[["list","Compressor","Rack 9","Leitkiste","4.2","x"],
    ["","","","Base"]]})");
  const Antwort a =
      daten.rufe({"diagnose", "m.fmd", "--settings", "s.json", "--out", "o.fmd", "--json"});
  ASSERT_EQ(a.status, 0) << a.fehler;
  EXPECT_EQ(a.json()["KaelteM"], "R134A");
  EXPECT_EQ(a.json()["Combo3"], "Two-stage");
  EXPECT_EQ(a.json()["Sum_zeit_messung"], 40.0) << "four rows";
  const Inhalt o(daten.lies("o.fmd"));
  const std::vector<std::pair<std::size_t, const char*>> zeilen{
      {5, "R134A"}, {6, "1"},          {8, "Two-stage"},   {9, "typed method"}, {10, "30 min"},
      {12, "10s"},  {13, "cylinders"}, {18, "Compressor"}, {19, "Rack 9"},      {20, "4.2"},
      {39, "list"}, {46, "Leitkiste"}, {47, "Base"}};
  for (const auto& [nummer, text] : zeilen) EXPECT_EQ(o.alle.at(nummer - 1), text) << nummer;
}

TEST(DiagnoseSettings, IntervalAndSweptVolumeMakeTheSums) {
  const Messordner daten;
  EXPECT_EQ(daten.figuren("m.fmd", R"({"Hub_Volumen":60,"Combo2":"10s"})")["Sum_zeit_messung"],
            40.0);
  const Json j = daten.figuren("m.fmd", R"({"Hub_Volumen":"60,0"})");
  EXPECT_EQ(j["Sum_zeit_messung"], 20.0);
  // Twice the volume gives more than twice the mass flow: the volumetric figure rises with size.
  const Json doppelt = daten.figuren("m.fmd", R"({"Hub_Volumen":120})");
  const double verhaeltnis = zelle(doppelt, 3, 139) / zelle(j, 3, 139);
  EXPECT_GT(verhaeltnis, 2);
  EXPECT_LT(verhaeltnis, 2.2);
}

TEST(DiagnoseSettings, DriveSetsThePowerFactor) {
  const Messordner daten;
  const auto basis = [&](int antrieb) {
    const Json j = daten.figuren("m.fmd", R"({"Antrieb":)" + std::to_string(antrieb) + "}");
    const double S = (231.4 * 16.2 + 230.2 * 14.6 + 232 * 14.7) / 1000, d = 1.7 * 693.6 / 3000;
    return zelle(j, 3, 12) / (S - d) + 2 / (9 * 16.2);
  };
  EXPECT_NEAR(basis(0), .87, 2e-4);
  EXPECT_NEAR(basis(1), .93, 2e-4);
  EXPECT_NEAR(basis(2), .87, 2e-4);
  EXPECT_NEAR(basis(3), .805, 2e-4);
}

TEST(DiagnoseSettings, EachFigureActsOnTheResult) {
  const Messordner daten;
  const std::string basis = R"({"Hub_Volumen":60,"Medium_Verd":"Ethylene glycol","Konz_Verd":34,
    "Medium_Verfl":"Ethylene glycol","Konz_Verfl":34,"OrbiN_spread":
    [[],["","","","","4.2"],["","","","","3"]])";
  const Json ohne = daten.figuren("m.fmd", basis + "}");
  for (const char* mehr : {R"("Bauart":3)", R"("C":2)", R"("KaelteM":"R134A")", R"("Mass_Art":87)"})
    EXPECT_NE(daten.figuren("m.fmd", basis + "," + mehr + "}")["cells"], ohne["cells"]) << mehr;
  std::string weniger = basis;
  weniger.replace(weniger.find("34"), 2, "30");
  EXPECT_NE(zelle(daten.figuren("m.fmd", weniger + "}"), 3, 146), zelle(ohne, 3, 146));
  std::string anders = basis;
  anders.replace(anders.rfind("34"), 2, "30");
  EXPECT_NE(zelle(daten.figuren("m.fmd", anders + "}"), 3, 148), zelle(ohne, 3, 148));
}

TEST(DiagnoseSettings, MethodOverridesTheListsText) {
  const Messordner daten;
  for (const auto& [art, ende] : {std::pair{"77", " inX7"}, {"87", " %"}}) {
    daten.schreib("s.json",
                  R"({"Mass_Art":)" + std::string(art) + R"(,"Combo4":"other","ECO_OPT":1})");
    ASSERT_EQ(daten.rufe({"diagnose", "m.fmd", "--settings", "s.json", "--out", "o.fmd"}).status,
              0);
    EXPECT_TRUE(Inhalt(daten.lies("o.fmd")).alle.at(8).ends_with(ende)) << art;
  }
}

// A capacity stands in where none can be worked out: here there is no swept volume.
TEST(DiagnoseSettings, CapacityStandsInWhereNoneComesOut) {
  const Messordner daten;
  daten.schreib("VerDpark.dat", "");
  const auto EER = [&](const char* Q0) {
    return zelle(daten.figuren("m.fmd", R"({"Q0":)" + std::string(Q0) + "}"), 3, 141);
  };
  const double klein = EER("1"), gross = EER("400");
  EXPECT_GT(klein, 0);
  EXPECT_GT(gross, klein) << "a large machine is the better one";
}

TEST(DiagnoseSettings, WhatDoesNotFitIsToldAndNothingIsWritten) {
  const Messordner daten;
  const auto vorher = daten.inhalt();
  const std::vector<std::pair<const char*, const char*>> falsch{
      {R"({"Kaeltemittel":"R22"})", "unknown name \"Kaeltemittel\""},
      {R"({"Q0":"much"})", "\"Q0\" must be a number"},
      {R"({"Q0":[1]})", "\"Q0\" must be a text, a number, true or false"},
      {R"({"KaelteM":{}})", "\"KaelteM\""},
      {R"({"KaelteM":null})", "\"KaelteM\""},
      {R"({"Bauart":9})", "\"Bauart\" must be a whole number from 0 to 4"},
      {R"({"Antrieb":1.5})", "\"Antrieb\" must be a whole number"},
      {R"({"Auto_corr_Check":2})", "\"Auto_corr_Check\""},
      {R"({"Off_line_Check":-1})", "\"Off_line_Check\""},
      {R"({"ECO_OPT":1e300})", "\"ECO_OPT\""},
      {R"({"Hub_Volumen":""})", "\"Hub_Volumen\""},
      {R"({"Konz_Verd":150})", "between 0 and 100"},
      {R"({"Mass_Art":5})", "must be 0 (swept volume), 77"},
      {R"({"OrbiN_spread":"x"})", "at most 7 rows"},
      {R"({"OrbiN_spread":[[],[],[],[],[],[],[],[]]})", "at most 7 rows"},
      {R"({"OrbiN_spread":[["","","","","","",""]]})", "at most 6 texts"},
      {R"({"OrbiN_spread":[[[]]]})", "\"OrbiN_spread\""},
      {R"({"Medium_Verd":"beer"})", "\"beer\" is no secondary fluid. Choose one of: water, air"},
      {R"({"Medium_Verfl":"beer"})", "\"beer\" is no secondary fluid"},
      {"[1]", "is no JSON object"},
      {"", "is no JSON object"},
      {"{\"Q0\":", "is no JSON object"}};
  for (const auto& [json, meldung] : falsch) {
    const Antwort a = daten.mit(json);
    EXPECT_EQ(a.status, 1) << json;
    EXPECT_EQ(a.ausgabe, "") << json;
    EXPECT_TRUE(hat(a.fehler, meldung)) << json << a.fehler;
  }
  const Antwort fehlt = daten.rufe({"diagnose", "m.fmd", "--settings", "none.json"});
  EXPECT_EQ(fehlt.status, 1);
  EXPECT_TRUE(hat(fehlt.fehler, "none.json")) << fehlt.fehler;
  EXPECT_EQ(daten.rufe({"diagnose", "m.fmd", "--settings", "."}).status, 1);
  daten.schreib("s.json", vorher.at("s.json"));
  EXPECT_TRUE(daten.inhalt() == vorher);
}

TEST(DiagnoseSettings, AnUnknownRefrigerantIsToldAndTheRestIsEvaluated) {
  const Messordner daten;
  for (const auto& [json, meldung] :
       {std::pair{R"({"KaelteM":"R999"})", "\"R999\" is not a known refrigerant"},
        {R"({"KaelteM":""})", "names no refrigerant"}}) {
    const Antwort a = daten.mit(json);
    EXPECT_EQ(a.status, 0);
    EXPECT_TRUE(hat(a.fehler, meldung) && hat(a.fehler, "KaelteM")) << a.fehler;
    EXPECT_FALSE(a.json()["cells"]["3"].contains("3")) << "no evaporating temperature";
    EXPECT_GT(zelle(a.json(), 3, 12), 8) << "but its power";
  }
}

}  // namespace
