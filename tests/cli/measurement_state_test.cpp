#include <gtest/gtest.h>

#include <sstream>
#include <string>

#include "aufruf.h"

namespace {

using Json = nlohmann::json;

std::vector<Json> zeilen(const std::string& ausgabe) {
  std::vector<Json> alle;
  std::istringstream strom(ausgabe);
  for (std::string zeile; std::getline(strom, zeile);)
    alle.push_back(Json::parse(zeile, nullptr, false));
  return alle;
}

/// A measurement of one row whose heading names so many.
std::string messung(int gezaehlt) {
  std::string text = "\"Plant\"\r\n\"\"\r\n\"" + std::to_string(gezaehlt) + "&$§ENG\"\r\n";
  for (int n = 4; n <= 100; ++n) text += n == 5 ? "\"R404A\"\r\n" : "\"\"\r\n";
  for (int spalte = 1; spalte <= 169; ++spalte)
    text += spalte == 1 ? "\"12:00:00\"\r\n" : spalte <= 9 ? "\"2\"\r\n" : "\"\"\r\n";
  return text;
}

}  // namespace

TEST(CalcMeasurement, SettingsThatAreRefusedChangeNothing) {
  const Antwort a = Datenkopie().rufe({"calc"},
                                      R"({"op":"Messung","Antrieb":1}
{"op":"Messung","Antrieb":3,"Medium_Verfl":"soup"}
{"op":"Cos_phi","current":10}
{"op":"Messung","KaelteM":"R134A"}
{"op":"Cos_phi","current":10}
)");
  const std::vector<Json> antworten = zeilen(a.ausgabe);
  ASSERT_EQ(antworten.size(), 5U) << a.fehler;
  EXPECT_TRUE(antworten[1].contains("error"));
  EXPECT_DOUBLE_EQ(antworten[2]["result"].get<double>(), 0.93 - 2.0 / 30);
  EXPECT_FALSE(antworten[3].contains("error")) << antworten[3];
  EXPECT_DOUBLE_EQ(antworten[4]["result"].get<double>(), 0.93 - 2.0 / 30);
}

TEST(DiagnoseWorkingCopy, ThatIsNotWantedIsNotKeptBesideByReadingIt) {
  const Datenkopie daten;
  daten.schreib("FM_diag.dat", messung(1001));
  const auto vorher = daten.inhalt();
  EXPECT_EQ(daten.rufe({"diagnose", "FM_diag.dat", "--no"}).status, 0);
  EXPECT_EQ(daten.rufe({"diagnose", "FM_diag.dat", "--no"}).status, 0);
  EXPECT_EQ(daten.inhalt(), vorher);
}

// -15 °C stands in for 5 °C, and this fluid goes down to -10 °C only.
TEST(BrineAboveZero, OfAWeakFluidReadyForUseHasItsFigures) {
  const Datenkopie daten;
  const Antwort a = daten.rufe({"brine", "Temper -10", "--t", "5", "--json"});
  EXPECT_EQ(a.status, 0) << a.fehler;
  const Json j = a.json();
  EXPECT_EQ(j["concentration"], 100);
  EXPECT_EQ(j["freezing_point"], -10);
  EXPECT_NEAR(j["density"].get<double>(), 1090 - 0.2 * 5, 1e-9);
}

// The run from the file takes two samples.
TEST(MeasurementRefrigerant, OneThatGivesNoFiguresIsToldByEveryCommandThatComputes) {
  const Datenkopie daten;
  daten.schreib("m.fmd", messung(1));
  const auto gemeldet = [&](const char* stoff, std::vector<std::string> befehl) {
    const Json einstellungen{{"KaelteM", stoff}, {"Combo2", "0.001s"}, {"Combo5", "0.0000003 h"}};
    daten.schreib("s.json", einstellungen.dump());
    befehl.insert(befehl.end(), {"--settings", "s.json"});
    const Antwort a = daten.rufe(befehl);
    EXPECT_EQ(a.status, 0) << a.fehler;
    return a.fehler.find("no figures of the cycle") != std::string::npos;
  };
  const std::vector<std::string> befehle[] = {
      {"diagnose", "m.fmd"},
      {"import", "adc", "R404A cold store.adc", "--out", "o.fmd"},
      {"logger", "run", "--feed", "KKP_FMD_TEMP_2.txt"}};
  for (const auto& befehl : befehle) {
    EXPECT_TRUE(gemeldet("R999", befehl)) << befehl.front();
    EXPECT_FALSE(gemeldet(" r404a ", befehl)) << befehl.front();
  }
}
