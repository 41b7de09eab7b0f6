#include <gtest/gtest.h>

#include <string>

#include "gespraech.h"

namespace {

using nlohmann::json;

/// A folder whose country "Probe" has the city "Hof" with figures that are easy to work with.
struct Probeland : Datenkopie {
  Probeland() {
    std::string datei;
    for (const char* item : {"Hof", "32", "40", "10", "28", "50", "5", "-10", "100", "S33,9"})
      datei += "\"" + std::string(item) + "\"\r\n";
    schreib("Probe___.DAT", datei);
  }
};

constexpr const char* kOrt = R"({"op":"set","Land":"Probe","Stadt":"Hof","Monat_aktuell":"March"})";

std::string wert(int selektor) {
  return R"({"op":"Klima_Wert","Stadt":"Hof","Selektor":)" + std::to_string(selektor) + "}";
}

TEST(CalcClimate, FileNamePadsTheSharedCountry) {
  const Datenkopie daten;
  const json a = letzte(daten, {R"({"op":"Klima_Dateiname","Land":"Spain"})"});
  EXPECT_EQ(a["result"], "Spain___.DAT");
  EXPECT_EQ(a["state"]["Land"], "Spain___");
  EXPECT_EQ(ergebnis(daten, R"({"op":"Klima_Dateiname","Land":"germany"})"), "AC_CITY.DAT");
  EXPECT_EQ(ergebnis(daten, R"({"op":"Klima_Dateiname","Land":"Deutschland"})"), "Deutschl.DAT");
}

TEST(CalcClimate, EachSelectorGivesItsFigure) {
  const Probeland daten;
  const auto a = rechne(daten, {kOrt, wert(1), wert(2), wert(3), wert(4), wert(5), wert(6), wert(7),
                                wert(8), wert(9), wert(10)});
  ASSERT_EQ(a.size(), 11U);
  const std::vector<double> figuren{32, -10, 10, 33.9, 28, 5, 100, 66, 50};
  for (std::size_t i = 0; i < figuren.size(); ++i) EXPECT_EQ(a[i + 1]["result"], figuren[i]) << i;
  EXPECT_TRUE(a[10]["result"].is_null());
}

TEST(CalcClimate, CourseFollowsItsOptionsAndKeepsThem) {
  const Probeland daten;
  const auto a =
      rechne(daten, {kOrt, R"({"op":"Temperaturverlauf_rechnen","Spitze":"Option3d2","Sockel":6})",
                     R"({"op":"Temperaturverlauf_rechnen"})",
                     R"({"op":"Temperaturverlauf_rechnen","Spitze":7})"});
  ASSERT_EQ(a.size(), 4U);
  const json& monate = a[1]["result"];
  ASSERT_EQ(monate.size(), 12U);
  EXPECT_EQ(monate[0]["T_Tag"], -10);   // the winter level
  EXPECT_EQ(monate[1]["T_Tag"], -3.3);  // Int(10 * (28.67 + 0.05 - 32)) / 10
  EXPECT_EQ(monate[6]["T_Tag"], 28.7);  // the summer level
  EXPECT_NEAR(monate[6]["T_Nacht"].get<double>(), 18.7, 1e-12);
  EXPECT_EQ(a[2]["result"], monate);
  EXPECT_TRUE(a[3].contains("error"));
}

TEST(CalcClimate, ProfilesAndTheMonthTableAreStored) {
  const Probeland daten;
  const std::string zwoelf = "[1,2,3,4,5,6,7,8,9,10,11,12]";
  const auto a = rechne(
      daten, {kOrt, R"({"op":"Profil_laden","Anwendung":5})",
              R"({"op":"Profil_laden","Anwendung":"Process cooling"})",
              R"({"op":"Profil_speichern","Anwendung":1,"Last_Tag":)" + zwoelf + "}",
              R"({"op":"Profil_laden","Anwendung":"1"})", R"({"op":"Temperaturverlauf_rechnen"})",
              R"({"op":"Monatstabelle_schreiben"})", R"({"op":"Profil_laden","Anwendung":8})",
              R"({"op":"Profil_speichern","Anwendung":2,"Last_Tag":[1]})"});
  ASSERT_EQ(a.size(), 9U);
  EXPECT_EQ(a[1]["result"]["Last_Tag"][11], 80);  // profile 5 has 80 % in December
  EXPECT_EQ(a[1]["result"], a[2]["result"]);
  EXPECT_TRUE(a[3]["result"].is_null());
  EXPECT_EQ(a[4]["result"]["Last_Tag"], json::parse(zwoelf));
  EXPECT_EQ(a[4]["result"]["Last_Nacht"][6], 70);  // column of the profile loaded before
  EXPECT_TRUE(a[6]["result"].is_null());
  EXPECT_TRUE(a[7].contains("error"));
  EXPECT_TRUE(a[8].contains("error"));
  const std::string tabelle = daten.lies("JG_Temp.dat");
  EXPECT_TRUE(tabelle.starts_with("\"Probe\"\r\n\"Hof\"\r\n")) << tabelle;
}

TEST(CalcClimate, AFileThatCantBeWrittenIsToldAndTheNextLineWorks) {
  const Probeland daten;
  std::filesystem::create_directory(daten.pfad("JG_Temp.dat"));
  const auto a = rechne(daten, {kOrt, R"({"op":"Monatstabelle_schreiben"})", wert(1)});
  ASSERT_EQ(a.size(), 3U);
  EXPECT_TRUE(a[1].contains("error"));
  EXPECT_EQ(a[2]["result"], 32);
}

TEST(CalcClimate, HoursRunBetweenDayAndNight) {
  const Datenkopie daten;
  EXPECT_EQ(ergebnis(daten, R"({"op":"Stundentemperatur","T_Tag":30,"T_Nacht":20,"Stunde":15})"),
            30);
  EXPECT_EQ(ergebnis(daten, R"({"op":"Stundentemperatur","T_Tag":30,"T_Nacht":20,"Stunde":5})"),
            20);
  EXPECT_EQ(ergebnis(daten, R"({"op":"Stundenlast","Last_Tag":100,"Last_Nacht":40,"Stunde":11})"),
            70);
  EXPECT_EQ(ergebnis(daten, R"({"op":"Stundenfeuchte","R":50,"T":20,"T_Tag":30,"T_Nacht":20})"),
            92);
  EXPECT_TRUE(ergebnis(daten, R"({"op":"Stundenfeuchte","R":50,"T":20,"T_Tag":20,"T_Nacht":20})")
                  .is_null());
  EXPECT_TRUE(
      ergebnis(daten, R"({"op":"Stundenlast","Last_Tag":1,"Last_Nacht":1,"Stunde":25})").is_null());
}

TEST(CalcHeat, ProposalsTakeTheEntriesByNumber) {
  const Datenkopie daten;
  const auto a = rechne(daten, {R"({"op":"WirkGK_vorschlag","Combo1_1":4,"Combo3_1":1})",
                                R"({"op":"WirkGK_vorschlag","Combo1_1":1,"Combo3_1":3})",
                                R"({"op":"WirkGK_vorschlag","Combo1_1":9,"Combo3_1":1})",
                                R"({"op":"Verlust_vorschlag","Combo2_1":3})",
                                R"({"op":"Verlust_vorschlag","Combo2_1":0})"});
  ASSERT_EQ(a.size(), 5U);
  const std::vector<double> erwartet{105, 75, 90, 12, 8};
  for (std::size_t i = 0; i < erwartet.size(); ++i) EXPECT_EQ(a[i]["result"], erwartet[i]) << i;
}

TEST(CalcHeat, FuelFiguresAreFixed) {
  const Datenkopie daten;
  EXPECT_EQ(ergebnis(daten, R"({"op":"Heizwert","Brennstoff":2,"Welche":1})"), 9.85);
  EXPECT_EQ(ergebnis(daten, R"({"op":"Heizwert","Brennstoff":1,"Welche":2})"), 2.66);
  EXPECT_TRUE(ergebnis(daten, R"({"op":"Heizwert","Brennstoff":5,"Welche":1})").is_null());
}

TEST(CalcHeat, ItemsComeWithTheirDefaultsAndAreStoredByName) {
  const Datenkopie daten;
  const auto a = rechne(
      daten, {R"({"op":"WRG_laden"})", R"({"op":"WRG_speichern","tWasser":12,"Combo3_1":2})"});
  ASSERT_EQ(a.size(), 2U);
  EXPECT_EQ(a[0]["result"]["tWasser"], 15);
  EXPECT_EQ(a[0]["result"]["Preis"], .55);
  EXPECT_EQ(a[1]["result"]["tWasser"], 12);
  EXPECT_EQ(a[1]["result"]["Heizwert"], 9.85);
  EXPECT_EQ(ergebnis(daten, R"({"op":"WRG_laden"})"), a[1]["result"]);
  EXPECT_TRUE(daten.lies("SPEZBK.DAT").starts_with("\"12\"\r\n\"6\"\r\n"));
}

TEST(CalcHeat, SavingOneItemKeepsTheStoredOthers) {
  const Datenkopie daten;
  rechne(daten, {R"({"op":"WRG_speichern","Verlust":11})"});
  const json a = ergebnis(daten, R"({"op":"WRG_speichern","WirkGK":77})");
  EXPECT_EQ(a["Verlust"], 11);
  EXPECT_EQ(a["WirkGK"], 77);
}

TEST(CalcHeat, MoistAirAnswersItsFiveFigures) {
  const Datenkopie daten;
  const json a = ergebnis(daten, R"({"op":"Feuchte_Luft","phi":0.5,"t":20,"p":1.013})");
  // Published: 38.5 kJ/kg, 7.3 g/kg; saturation pressure 23.39 mbar.
  EXPECT_NEAR(a["h"].get<double>(), 38.5, .2);
  EXPECT_NEAR(a["x"].get<double>(), 7.27, .03);
  EXPECT_NEAR(a["p_d"].get<double>(), .0117, .0001);
  EXPECT_DOUBLE_EQ(a["p_d"].get<double>() + a["p_l"].get<double>(), 1.013);
  EXPECT_NEAR(a["rho"].get<double>(), 1.199, .002);
  EXPECT_TRUE(ergebnis(daten, R"({"op":"Feuchte_Luft","phi":0.5,"t":900,"p":1})").is_null());
}

}  // namespace
