#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>

#include "aufruf.h"

namespace {

using Json = nlohmann::json;

bool hat(const std::string& text, const std::string& teil) {
  return text.find(teil) != std::string::npos;
}

double wert(const Datenkopie& daten, int selektor) {
  return daten.rufe({"climate", "value", "Germany", "Berlin", std::to_string(selektor), "--json"})
      .json()["value"];
}

TEST(Climate, CountriesAndCities) {
  const Datenkopie daten;
  const auto vorher = daten.inhalt();
  EXPECT_EQ(daten.rufe({"climate", "countries", "--json"}).json().size(), 138u);
  EXPECT_TRUE(hat(daten.rufe({"climate", "cities", "france"}).ausgabe, "Paris\n"));
  EXPECT_EQ(daten.inhalt(), vorher);
}

TEST(Climate, AValueIsPrintedAsANumber) {
  const Datenkopie daten;
  const double hoch = wert(daten, 1);
  EXPECT_GT(hoch, 20);
  EXPECT_EQ(std::stod(daten.rufe({"climate", "value", "Germany", "Berlin", "1"}).ausgabe), hoch);
}

TEST(Climate, TheHumidityNeedsAMonth) {
  const Datenkopie daten;
  EXPECT_EQ(daten.rufe({"climate", "value", "Germany", "Berlin", "8"}).status, 2);
  const Antwort a =
      daten.rufe({"climate", "value", "Germany", "Berlin", "8", "--month", "january"});
  EXPECT_EQ(a.ausgabe, "80\n");
  const Antwort b = daten.rufe({"climate", "value", "Germany", "Berlin", "8", "--month", "Janus"});
  EXPECT_EQ(b.status, 1);
  EXPECT_TRUE(hat(b.fehler, "January"));
}

TEST(Climate, UnknownPlacesAreToldWithNamesThatAreLikeThem) {
  const Datenkopie daten;
  const auto vorher = daten.inhalt();
  const Antwort a = daten.rufe({"climate", "cities", "Germony"});
  EXPECT_EQ(a.status, 1);
  EXPECT_TRUE(hat(a.fehler, "Germany"));
  const Antwort b = daten.rufe({"climate", "value", "Germany", "Berlyn", "1"});
  EXPECT_EQ(b.status, 1);
  EXPECT_TRUE(hat(b.fehler, "Berlin"));
  EXPECT_EQ(daten.rufe({"climate", "cities", "../../etc"}).status, 1);
  EXPECT_EQ(daten.inhalt(), vorher);
}

TEST(Climate, ABrokenTableStillAnswers) {
  const Datenkopie daten;
  daten.schreib("France__.DAT", "\"Paris\",\"abc\",\"--\",\"1e999\"\r\n\"Lyon\"");
  const Antwort a = daten.rufe({"climate", "value", "France", "Paris", "1"});
  EXPECT_EQ(a.status, 0);
  EXPECT_EQ(a.ausgabe, "0\n");
  EXPECT_EQ(daten.rufe({"climate", "value", "France", "Paris", "3"}).status, 1);
}

TEST(Course, TheTableFollowsFromTheClimate) {
  const Datenkopie daten;
  const Antwort a = daten.rufe({"course", "--country", "germany", "--city", "Berlin",
                                "--application", "1", "--winter", "6", "--json"});
  ASSERT_EQ(a.status, 0) << a.fehler;
  const Json j = a.json();
  ASSERT_EQ(j["rows"].size(), 12u);
  const double D = wert(daten, 3), spitze = wert(daten, 1) - D / 3;
  const Json juli = j["rows"][6];
  EXPECT_NEAR(juli["T_Tag"].get<double>(), std::floor(10 * (spitze + .05)) / 10, 1e-9);
  EXPECT_NEAR(juli["T_Nacht"].get<double>(),
              juli["T_Tag"].get<double>() - std::floor(10 * (.05 + D)) / 10, 1e-9);
  EXPECT_NEAR(j["rows"][0]["T_Tag"].get<double>(), wert(daten, 2), .1);
  EXPECT_EQ(juli["Last_Tag"], 100.0);
  EXPECT_EQ(juli["Last_Nacht"], 40.0);
  EXPECT_EQ(j["Spread1"][6][0], "July");
  EXPECT_TRUE(daten.lies("JG_Temp.dat").starts_with("\"Germany\"\r\n\"Berlin\"\r\n"));
}

TEST(Course, TheRunTakesItAsItStands) {
  const Datenkopie daten;
  ASSERT_EQ(daten
                .rufe({"course", "--country", "Germany", "--city", "Cologne", "--application", "1",
                       "--summer", "1"})
                .status,
            0);
  const std::string gang = daten.lies("JG_Temp.dat");
  const Antwort a = daten.rufe({"simulate"});
  EXPECT_EQ(a.status, 0);
  EXPECT_EQ(a.fehler, "");
  EXPECT_EQ(daten.lies("JG_Temp.dat"), gang);
}

TEST(Course, ARecordThatIsCutOffIsTold) {
  const Datenkopie daten;
  daten.schreib("France__.DAT", "\"Paris\"\r\n\"32\"\r\n");
  const Antwort a =
      daten.rufe({"course", "--country", "France", "--city", "Paris", "--application", "1"});
  EXPECT_EQ(a.status, 0);
  EXPECT_TRUE(hat(a.fehler, "every figure of Paris")) << a.fehler;
  // Upper summer temperature 32 in July, 0 in winter.
  EXPECT_TRUE(hat(daten.lies("JG_Temp.dat"), "\"July\"\r\n\"32\"\r\n")) << a.ausgabe;
  EXPECT_EQ(daten.rufe({"climate", "value", "France", "Paris", "2"}).status, 1);
}

TEST(Course, AYearInSuchACityHasFiguresAndIsTold) {
  const Datenkopie daten;
  daten.schreib("AC_CITY.DAT", "\"Cologne\"\r\n\"32\"\r\n");
  const Antwort a = daten.rufe({"--verbose", "simulate", "--json"});
  EXPECT_EQ(a.status, 0);
  EXPECT_TRUE(hat(a.fehler, "every figure of Cologne")) << a.fehler;
  EXPECT_TRUE(hat(a.fehler, "ends within the record of Cologne")) << a.fehler;
  EXPECT_GT(a.json()["SCOP"].get<double>(), 1);
  EXPECT_GT(a.json()["kWstunden"].get<double>(), 0);
  for (const char* name : {"LeistZ", "BetrKo", "co2consum", "E_Verd", "E_VFl_Luefter", "COP_min"})
    EXPECT_TRUE(a.json()[name].is_number()) << name;
}

TEST(Course, AProjectsCountryThatIsAPathIsToldAndOpensNothing) {
  const Datenkopie daten;
  daten.setze_item("Supermarket medium temperature.prj", 19, "../far");
  const auto vorher = std::filesystem::exists(daten.pfad("../far__.DAT"));
  const Antwort a = daten.rufe({"simulate", "Supermarket medium temperature.prj", "--json"});
  EXPECT_EQ(a.status, 0);
  EXPECT_TRUE(hat(a.fehler, "is no country")) << a.fehler;
  EXPECT_TRUE(a.json()["kWstunden"].is_number());
  EXPECT_FALSE(vorher);
  EXPECT_FALSE(std::filesystem::exists(daten.pfad("../far__.DAT")));
}

TEST(Course, AnUnknownPlaceWritesNothing) {
  const Datenkopie daten;
  EXPECT_EQ(
      daten.rufe({"course", "--country", "Germany", "--city", "Atlantis", "--application", "1"})
          .status,
      1);
  EXPECT_FALSE(daten.da("JG_Temp.dat"));
}

TEST(Course, AFolderInPlaceOfTheFileIsTold) {
  const Datenkopie daten;
  std::filesystem::create_directory(daten.pfad("JG_Temp.dat"));
  const Antwort a =
      daten.rufe({"course", "--country", "Germany", "--city", "Berlin", "--application", "1"});
  EXPECT_EQ(a.status, 1);
  EXPECT_TRUE(hat(a.fehler, "JG_Temp.dat"));
}

}  // namespace
