#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>

#include "aufruf.h"

namespace {

using Json = nlohmann::json;

constexpr const char* kMarkt = "Supermarket medium temperature.prj";

bool hat(const std::string& text, const std::string& teil) {
  return text.find(teil) != std::string::npos;
}

std::map<std::string, std::string> ohne(std::map<std::string, std::string> inhalt,
                                        std::initializer_list<const char*> namen) {
  for (const char* name : namen) inhalt.erase(name);
  return inhalt;
}

TEST(Simulate, AYearAgreesWithItsOwnTotals) {
  const Datenkopie daten;
  const Antwort a = daten.rufe({"simulate", kMarkt, "--json"});
  ASSERT_EQ(a.status, 0) << a.fehler;
  const Json j = a.json();
  const auto zahl = [&](const char* name) { return j.at(name).get<double>(); };
  const double hilfen =
      zahl("E_Abtau") + zahl("E_VFl_Luefter") + zahl("E_VDa_Luefter") + zahl("E_Pumpe");
  EXPECT_EQ(j["Rechart"], 1);
  EXPECT_EQ(j["Bewertung"], "SEER/SEPR");
  EXPECT_NEAR(zahl("Anteil"), zahl("E_Verd") / (zahl("E_Verd") + hilfen), 1e-12);
  EXPECT_NEAR(zahl("SCOP"), zahl("Anteil") * zahl("COP_Sum") / zahl("Vollast_Tage"), 1e-12);
  EXPECT_DOUBLE_EQ(zahl("LeistZ"), std::floor((zahl("SCOP") + .005) * 100) / 100);
  // The charge is right in the sample, so its factor is 1.
  EXPECT_EQ(zahl("kWstunden"), std::floor(zahl("E_Verd") + hilfen));
  EXPECT_DOUBLE_EQ(j["shares"]["Anteil_Verd"].get<double>(),
                   std::floor(10000 * zahl("E_Verd") / zahl("kWstunden")) / 100);
  EXPECT_EQ(j["ERG_Spread"].size(), 9u);
  EXPECT_DOUBLE_EQ(j["MEPS_label"][0].get<double>(), std::floor(100 * zahl("MEPS") / 2) / 100);
  EXPECT_EQ(j["MEPS_Ist"], j["LeistZ"]);
  EXPECT_NEAR(j["auslegung"]["COP"].get<double>(),
              j["auslegung"]["Q0"].get<double>() / j["auslegung"]["P"].get<double>(), 1e-12);
  EXPECT_EQ(j["auslegung"]["COP"], j["COP"]);
}

TEST(Simulate, LeavesReportHoursAndNoOtherProjectState) {
  const Datenkopie daten;
  const auto vorher = daten.inhalt();
  ASSERT_EQ(daten.rufe({"simulate", kMarkt}).status, 0);
  EXPECT_TRUE(daten.da("ergEN1.DAT"));
  EXPECT_TRUE(daten.da("ERG_TEMP.DAT"));
  const auto laufdateien = {"ergEN1.DAT", "ERG_TEMP.DAT", "JG_Temp.dat", "SPEZBK.DAT",
                            "energk.dat"};
  EXPECT_EQ(ohne(daten.inhalt(), laufdateien), ohne(vorher, laufdateien));
}

TEST(Simulate, WithoutANameRunsTheWorkingProject) {
  const Datenkopie daten;
  const std::string arbeitsprojekt = daten.lies("Temp_Sim.dat");
  const Antwort a = daten.rufe({"simulate", "--json"});
  const Antwort b = daten.rufe({"simulate", kMarkt, "--json"});
  ASSERT_EQ(a.status, 0) << a.fehler;
  // The delivered working project is that sample.
  EXPECT_EQ(a.json()["SCOP"], b.json()["SCOP"]);
  EXPECT_EQ(daten.lies("Temp_Sim.dat"), arbeitsprojekt);
}

TEST(Simulate, AnotherLanguageGivesTheSameFiguresAndKeepsTheProject) {
  const Datenkopie daten;
  const auto vorher = daten.lies("Temp_Sim.dat");
  const Json englisch = daten.rufe({"simulate", "--new-course", "--json"}).json();
  const Antwort a = daten.rufe({"simulate", "--new-course", "--json"}, {}, "GER");
  ASSERT_EQ(a.status, 0) << a.fehler;
  EXPECT_EQ(a.json()["SCOP"], englisch["SCOP"]);
  EXPECT_EQ(a.json()["kWstunden"], englisch["kWstunden"]);
  EXPECT_NE(a.json()["Rechart_combo"], englisch["Rechart_combo"]);
  EXPECT_EQ(daten.lies("Temp_Sim.dat"), vorher);
}

TEST(Simulate, ADesignKindLeavesTheHoursAlone) {
  const Datenkopie daten;
  daten.schreib("ERG_TEMP.DAT", "of the last year");
  daten.schreib("o.json", R"({"Rechart_combo": 0})");
  const Antwort a = daten.rufe({"simulate", kMarkt, "--options", "o.json", "--json"});
  ASSERT_EQ(a.status, 0) << a.fehler;
  const Json j = a.json();
  EXPECT_EQ(j["Rechart"], 0);
  EXPECT_EQ(j["Bewertung"], "ESEER");
  EXPECT_TRUE(j["SCOP"].is_null());
  for (const char* name :
       {"E_Verd", "E_Abtau", "E_VFl_Luefter", "E_VDa_Luefter", "E_Pumpe", "Wasser_Adiabat",
        "E_FreeCool_Spar", "Q_Wasser", "Q_Heiz", "Q_Heiz_Bedarf", "Vollast_Tage", "COP_Sum",
        "COP_min", "COP_max", "Q_WW_Tag", "t_abtau"})
    EXPECT_TRUE(j.at(name).is_null()) << name;
  EXPECT_TRUE(j["ERG_Spread"].is_array() && j["ERG_Spread"].empty());
  EXPECT_TRUE(j["kWstunden"].is_number());
  EXPECT_GT(j["COP"].get<double>(), 1);
  EXPECT_EQ(daten.lies("ERG_TEMP.DAT"), "of the last year");
  EXPECT_TRUE(daten.da("ergEN1.DAT"));
  EXPECT_FALSE(daten.da("JG_Temp.dat"));
}

TEST(Simulate, TheCourseOnDiskIsUsedForItsOwnPlaceOnly) {
  const Datenkopie daten;
  const Antwort erster = daten.rufe({"simulate", kMarkt});
  EXPECT_TRUE(hat(erster.fehler, "Cologne"));
  std::string gang = daten.lies("JG_Temp.dat");
  ASSERT_FALSE(gang.empty());
  // A mark that a course made anew would not hold.
  const std::size_t ort = gang.find("January");
  ASSERT_NE(ort, std::string::npos);
  gang.replace(ort, 7, "JANUARY");
  daten.schreib("JG_Temp.dat", gang);
  daten.rufe({"simulate", kMarkt});
  EXPECT_EQ(daten.lies("JG_Temp.dat"), gang);
  const Antwort neu = daten.rufe({"simulate", kMarkt, "--new-course"});
  EXPECT_TRUE(hat(neu.fehler, "JG_Temp.dat"));
  EXPECT_NE(daten.lies("JG_Temp.dat"), gang);
  daten.rufe({"simulate", "CO2 supermarket.prj"});
  EXPECT_TRUE(hat(daten.lies("JG_Temp.dat"), "Copenhagen"));
}

TEST(Simulate, EverySampleRuns) {
  const Datenkopie daten;
  int anzahl = 0;
  for (const auto& [name, inhalt] : daten.inhalt()) {
    if (!name.ends_with(".prj")) continue;
    const Antwort a = daten.rufe({"simulate", name, "--json"});
    ASSERT_EQ(a.status, 0) << name << a.fehler;
    EXPECT_GT(a.json()["SCOP"].get<double>(), 1) << name;
    EXPECT_EQ(daten.lies(name), inhalt) << name;
    ++anzahl;
  }
  EXPECT_GT(anzahl, 0);
}

TEST(Simulate, ForPeopleNamesTableFilesAndRating) {
  const Datenkopie daten;
  const Antwort a = daten.rufe({"simulate", kMarkt});
  for (const char* teil : {"R448A", "Cologne", "kWh", "SEER/SEPR", "CO2", "ergEN1.DAT"})
    EXPECT_TRUE(hat(a.ausgabe, teil)) << teil << "\n" << a.ausgabe;
}

TEST(SimulateOptions, TextsNumbersAndBooleansCheckAControl) {
  const Datenkopie daten;
  for (const char* wert : {"1", "\"1\"", "true"}) {
    daten.schreib("o.json", std::string("{\"HeizCheck\": ") + wert + "}");
    const Antwort a =
        daten.rufe({"simulate", "Propane air conditioning.prj", "--options", "o.json", "--json"});
    ASSERT_EQ(a.status, 0) << wert << a.fehler;
    EXPECT_TRUE(a.json()["Anteil_Heiz"].is_number()) << wert;
  }
  daten.schreib("o.json", "{\"HeizCheck\": false}");
  const Antwort a =
      daten.rufe({"simulate", "Propane air conditioning.prj", "--options", "o.json", "--json"});
  EXPECT_TRUE(a.json()["Anteil_Heiz"].is_null());
}

TEST(SimulateOptions, AKindOfCalculationIsChosenByItsText) {
  const Datenkopie daten;
  const Json j = daten.rufe({"simulate", kMarkt, "--json"}).json();
  daten.schreib("o.json", Json{{"Rechart_combo", j["Rechart_combo"]}}.dump());
  const Antwort a = daten.rufe({"simulate", kMarkt, "--options", "o.json", "--json"});
  EXPECT_EQ(a.json()["SCOP"], j["SCOP"]);
}

TEST(SimulateOptions, ABadFileTellsTheNames) {
  const Datenkopie daten;
  daten.schreib("unknown.json", R"({"Check3D1": 1, "Heating": 1})");
  daten.schreib("array.json", "[1, 2]");
  daten.schreib("broken.json", "{\"HeizCheck\": ");
  daten.schreib("huge.json", "{\"HeizCheck\": 1e999}");
  for (const char* datei : {"unknown.json", "array.json", "broken.json", "huge.json"}) {
    const Antwort a = daten.rufe({"simulate", kMarkt, "--options", datei});
    EXPECT_EQ(a.status, 1) << datei;
    for (const char* name : {"HeizCheck", "Gleitopt", "Lamm_AB_combo", "Rechart_combo"})
      EXPECT_TRUE(hat(a.fehler, name)) << datei << a.fehler;
  }
  daten.schreib("list.json", R"({"HeizCheck": [1]})");
  for (const char* datei : {"none.json", "list.json", "."})
    EXPECT_EQ(daten.rufe({"simulate", kMarkt, "--options", datei}).status, 1) << datei;
  EXPECT_FALSE(daten.da("ergEN1.DAT"));
  EXPECT_FALSE(daten.da("none.json"));
}

TEST(SimulateFailure, AStoppedRunWritesNothing) {
  const Datenkopie daten;
  const std::vector<std::string> aenderungen{"t0=-70", "Tc=90", "Tc=-40"};
  const auto vorher = daten.inhalt();
  for (const std::string& aenderung : aenderungen) {
    ASSERT_EQ(daten.rufe({"project", "save", "hot.prj"}).status, 0);
    ASSERT_EQ(daten.rufe({"project", "derive", "hot.prj", "--set", aenderung, "--write"}).status,
              0);
    const Antwort a = daten.rufe({"simulate", "hot.prj"});
    EXPECT_EQ(a.status, 1) << aenderung;
    EXPECT_GT(a.fehler.size(), 40u);
    EXPECT_EQ(ohne(daten.inhalt(), {"hot.prj", "energk.dat"}), ohne(vorher, {"energk.dat"}));
  }
}

TEST(SimulateFailure, AnUnknownRefrigerantIsTold) {
  const Datenkopie daten;
  std::string projekt = daten.lies(kMarkt);
  projekt.replace(projekt.find("\"R448A\"\r\n"), 7, "\"R999\"");
  daten.schreib("unknown.prj", projekt);
  const Antwort a = daten.rufe({"simulate", "unknown.prj"});
  EXPECT_EQ(a.status, 1);
  EXPECT_TRUE(hat(a.fehler, "R999"));
  EXPECT_FALSE(daten.da("ergEN1.DAT"));
}

TEST(SimulateFailure, ResultsThatCanNotBeWrittenAreAFailure) {
  const Datenkopie daten;
  std::filesystem::create_directory(daten.pfad("ergEN1.DAT"));
  const Antwort a = daten.rufe({"simulate", kMarkt, "--json"});
  EXPECT_EQ(a.status, 1);
  EXPECT_TRUE(hat(a.fehler, "ergEN1.DAT"));
  EXPECT_TRUE(a.json()["SCOP"].is_number());
}

TEST(SimulateFailure, ACourseThatCanNotBeWrittenStopsTheRun) {
  const Datenkopie daten;
  std::filesystem::create_directory(daten.pfad("JG_Temp.dat"));
  const Antwort a = daten.rufe({"simulate", kMarkt});
  EXPECT_EQ(a.status, 1);
  EXPECT_TRUE(hat(a.fehler, "JG_Temp.dat"));
  EXPECT_FALSE(daten.da("ERG_TEMP.DAT"));
}

TEST(Simulate, ACourseOfAnotherLanguageGivesTheSameFigures) {
  // A tower asks for the humidity of each month by its name.
  const char* kTurm = "Ammonia process cooling.prj";
  const Datenkopie daten;
  const Antwort englisch = daten.rufe({"simulate", kTurm, "--new-course", "--json"});
  ASSERT_EQ(englisch.status, 0) << englisch.fehler;
  const std::string kurs = daten.lies("JG_Temp.dat");
  ASSERT_TRUE(hat(kurs, "January"));
  const Antwort deutsch = daten.rufe({"simulate", kTurm, "--json"}, {}, "GER");
  ASSERT_EQ(deutsch.status, 0) << deutsch.fehler;
  EXPECT_EQ(deutsch.fehler, "");
  EXPECT_EQ(daten.lies("JG_Temp.dat"), kurs);
  for (const char* name : {"SCOP", "E_Verd", "E_VFl_Luefter", "Wasser_Adiabat"})
    EXPECT_NEAR(deutsch.json()[name].get<double>(), englisch.json()[name].get<double>(), 1e-9)
        << name;
  EXPECT_GT(englisch.json()["Wasser_Adiabat"].get<double>(), 0);
}

TEST(Simulate, ControlsBesideAProjectAreMentionedOnly) {
  const Datenkopie daten;
  const char* kCO2 = "CO2 supermarket.prj";
  const std::string satz = "Controls for this project stand in \"" +
                           daten.pfad("CO2 supermarket.json") + "\"; --options takes them.";
  const TempOrdner anderswo;
  const Antwort a = daten.rufe({"simulate", kCO2, "--json"});
  EXPECT_EQ(a.status, 0);
  EXPECT_TRUE(hat(a.fehler, "Controls for this project stand in") &&
              hat(a.fehler, "CO2 supermarket.json\"; --options takes them."))
      << a.fehler;
  EXPECT_TRUE(hat(daten.rufe({"simulate", daten.pfad(kCO2)}).fehler, satz));
  EXPECT_FALSE(
      hat(daten.rufe({"simulate", kCO2, "--options", "CO2 supermarket.json"}).fehler, "Controls"));
  EXPECT_FALSE(hat(daten.rufe({"simulate", kMarkt}).fehler, "Controls"));
  EXPECT_FALSE(hat(daten.rufe({"simulate"}).fehler, "Controls"));
}

TEST(Simulate, SomeHoursWithoutACopAreToldAndTheRunStands) {
  const Datenkopie daten;
  ASSERT_EQ(daten.rufe({"simulate", kMarkt}).status, 0);
  // A day so hot that no condensation is left in its warmest hours.
  std::string kurs = daten.lies("JG_Temp.dat");
  const std::size_t ort = kurs.find('\n', kurs.find("January")) + 1;
  kurs.replace(ort, kurs.find('\r', ort) - ort, "\"400\"");
  daten.schreib("JG_Temp.dat", kurs);
  const Antwort a = daten.rufe({"--verbose", "simulate", kMarkt, "--json"});
  EXPECT_EQ(a.status, 0) << a.fehler;
  EXPECT_TRUE(hat(a.fehler, " of 288 hours have no COP; --verbose tells more.")) << a.fehler;
  EXPECT_FALSE(hat(a.fehler, "288 of 288"));
  EXPECT_TRUE(hat(a.fehler, "COP: ")) << a.fehler;
}

TEST(SimulateFailure, HoursWithoutACopAreTold) {
  const Datenkopie daten;
  daten.setze_item(kMarkt, 44, "1e999");  // DT_v_combo: no evaporating temperature comes out
  const Antwort a = daten.rufe({"simulate", kMarkt, "--json"});
  EXPECT_EQ(a.status, 1);
  EXPECT_TRUE(hat(a.fehler, "288 of 288 hours have no COP; --verbose tells more.")) << a.fehler;
  EXPECT_TRUE(a.json().contains("SCOP"));
  daten.schreib("o.json", R"({"Rechart_combo": 0})");
  const Antwort b = daten.rufe({"simulate", kMarkt, "--options", "o.json"});
  EXPECT_EQ(b.status, 1);
  EXPECT_TRUE(hat(b.fehler, "No COP comes out at the design point")) << b.fehler;
}

TEST(Simulate, PrintsTheReportOnRequest) {
  const Datenkopie daten;
  const Antwort a = daten.rufe({"simulate", kMarkt, "--report"});
  ASSERT_EQ(a.status, 0) << a.fehler;
  EXPECT_TRUE(hat(a.ausgabe, "\nEvaporator\n  Size of the evaporator :"));
  EXPECT_FALSE(hat(a.ausgabe, "&$$"));
  EXPECT_FALSE(hat(a.ausgabe, "\u00a7$&"));
  EXPECT_EQ(daten.rufe({"simulate", kMarkt, "--report", "--json"}).status, 2);
}

}  // namespace
