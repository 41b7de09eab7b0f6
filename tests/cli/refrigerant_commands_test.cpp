#include <gtest/gtest.h>

#include "aufruf.h"

namespace {

using nlohmann::json;

bool hat(const std::string& text, const std::string& teil) {
  return text.find(teil) != std::string::npos;
}

TEST(Refrigerants, ListsTheCatalogueWithAliasesInOneRow) {
  const Antwort a = rufe({"refrigerants", "--json"});
  ASSERT_EQ(a.status, 0);
  const json liste = a.json();
  ASSERT_EQ(liste.size(), 62U);
  json propan;
  for (const json& stoff : liste)
    if (stoff["RefName"] == "R290") propan = stoff;
  EXPECT_EQ(propan, json::parse(R"({"RefName":"R290","Aliases":["PROPAN"],"RefFile":"PROPAN.DAT",
                                    "GWP":3,"tmin":-70,"tmax":85})"));
  EXPECT_TRUE(hat(rufe({"refrigerants"}).ausgabe, "ETHYLEN"));
}

TEST(Saturation, AtATemperatureGivesTheTablesColumns) {
  const Datenkopie daten;
  const Antwort a = daten.rufe({"saturation", "r134a", "--t", "-12,5", "--json"});
  ASSERT_EQ(a.status, 0) << a.fehler;
  EXPECT_NEAR(a.json()["h_v"].get<double>(), (389.63 + 392.66) / 2, 1e-9);
  EXPECT_NEAR(a.json()["p_d"].get<double>(), (1.6394 + 2.00603) / 2, 1e-9);
  EXPECT_TRUE(hat(daten.rufe({"saturation", "R134A", "--t", "-10"}).ausgabe, "392.66"));
}

TEST(Saturation, TheFirstAndTheLastRowBelongToTheTable) {
  const Datenkopie daten;
  EXPECT_EQ(daten.rufe({"saturation", "R134A", "--t", "-65", "--json"}).json()["p_d"], .113802);
  EXPECT_EQ(daten.rufe({"saturation", "R134A", "--t", "95", "--json"}).json()["p_d"], 35.9123);
  EXPECT_EQ(daten.rufe({"saturation", "R134A", "--p", "0.113802", "--json"}).json()["t_d"], -65);
}

TEST(Saturation, AtAPressureABlendHasTwoTemperaturesAndTheirMean) {
  const Datenkopie daten;
  const json z = daten.rufe({"saturation", "R407C", "--p", "5", "--json"}).json();
  EXPECT_GT(z["t_d"].get<double>(), z["t_b"].get<double>() + 5);
  EXPECT_NEAR(z["t_m"].get<double>(), (z["t_d"].get<double>() + z["t_b"].get<double>()) / 2, .011);
  EXPECT_EQ(z["p_b"], 5);
}

TEST(Saturation, OutsideTheTableSaysItsRange) {
  const Datenkopie daten;
  for (const char* t : {"-66", "96"}) {
    const Antwort a = daten.rufe({"saturation", "R134A", "--t", t});
    EXPECT_EQ(a.status, 1);
    EXPECT_TRUE(hat(a.fehler, "-65 to 95")) << a.fehler;
    EXPECT_TRUE(a.ausgabe.empty());
  }
  EXPECT_EQ(daten.rufe({"saturation", "R134A", "--p", "99"}).status, 1);
}

TEST(Saturation, WrongCallsEndWithTwo) {
  const Datenkopie daten;
  EXPECT_EQ(daten.rufe({"saturation", "R134A"}).status, 2);
  EXPECT_EQ(daten.rufe({"saturation", "R134A", "--t", "1e999"}).status, 2);
  EXPECT_EQ(daten.rufe({"saturation", "R134A", "--t", "--"}).status, 2);
  EXPECT_EQ(daten.rufe({"saturation", "R134A", "--t", "1", "--p", "1"}).status, 2);
  EXPECT_EQ(daten.rufe({"cycle", "R134A", "--t0", "1"}).status, 2);
}

TEST(Saturation, AnUnknownDesignationPointsToTheCatalogue) {
  const Datenkopie daten;
  const Antwort a = daten.rufe({"saturation", "R999", "--t", "0"});
  EXPECT_EQ(a.status, 1);
  EXPECT_TRUE(hat(a.fehler, "R999 is not a known refrigerant.")) << a.fehler;
  EXPECT_TRUE(hat(a.fehler, "polarkreis-cli refrigerants"));
}

TEST(Saturation, AMissingOrBrokenTableIsTold) {
  const Datenkopie daten;
  std::filesystem::remove(daten.pfad("R22.DAT"));
  daten.schreib("R134A.DAT", std::string(1000, '\0'));
  for (const char* name : {"R22", "R134A"}) {
    const Antwort a = daten.rufe({"saturation", name, "--t", "0"});
    EXPECT_EQ(a.status, 1);
    EXPECT_TRUE(hat(a.fehler, "error 24")) << a.fehler;
  }
}

TEST(MissingTable, IsNamedAndNotMade) {
  const Datenkopie daten;
  const std::string ordner = daten.pfad();
  std::filesystem::remove(daten.pfad("R134A.DAT"));
  std::filesystem::remove(daten.pfad("CO2_sh01.dat"));
  for (const std::vector<std::string>& aufruf :
       {std::vector<std::string>{"saturation", "R134A", "--t", "0"},
        {"saturation", "R134A", "--p", "3"},
        {"cycle", "R134A", "--t0", "-10", "--tc", "40"}}) {
    const Antwort a = daten.rufe(aufruf);
    EXPECT_EQ(a.status, 1);
    EXPECT_TRUE(hat(a.fehler, "R134A.DAT") && hat(a.fehler, ordner)) << a.fehler;
  }
  const Antwort a = daten.rufe({"cycle", "R744", "--t0", "-10", "--tc", "20"});
  EXPECT_EQ(a.status, 1);
  EXPECT_TRUE(hat(a.fehler, "CO2_sh01.dat") && hat(a.fehler, ordner)) << a.fehler;
  EXPECT_FALSE(hat(a.fehler, "CO2.DAT"));
  EXPECT_FALSE(daten.da("R134A.DAT"));
  EXPECT_FALSE(daten.da("CO2_sh01.dat"));
  // Saturation needs the first table alone.
  EXPECT_EQ(daten.rufe({"saturation", "R744", "--t", "-10"}).status, 0);
}

TEST(Cycle, HoldsTheEnergyBalance) {
  const Datenkopie daten;
  const Antwort a =
      daten.rufe({"cycle", "R134A", "--t0", "-10", "--tc", "40", "--q0", "20", "--json"});
  ASSERT_EQ(a.status, 0) << a.fehler;
  const json z = a.json();
  EXPECT_EQ(z["p0"], 2.00603);
  EXPECT_EQ(z["t_s"], 0);
  EXPECT_EQ(z["dT_sc"], 3);
  const double dh = 392.66 + 10 * z["cp_v0"].get<double>() - (256.41 - 3 * z["cp_l"].get<double>());
  EXPECT_NEAR(z["m_punkt"].get<double>(), 20 / dh, 1e-12);
  EXPECT_NEAR(z["COP"].get<double>(), 20 / z["P_verd"].get<double>(), 1e-12);
  EXPECT_TRUE(hat(daten.rufe({"cycle", "R134A", "--t0", "-10", "--tc", "40"}).ausgabe, "10.16"));
}

TEST(Cycle, TranscriticalR744TakesNinetyBarOrTheGivenHighPressure) {
  const Datenkopie daten;
  const std::vector<std::string> aufruf{"cycle", "R744", "--t0", "-10", "--tc", "36", "--json"};
  EXPECT_EQ(daten.rufe(aufruf).json()["P_hoch"], 90);
  auto mit_druck = aufruf;
  mit_druck.insert(mit_druck.end(), {"--p-high", "100"});
  EXPECT_EQ(daten.rufe(mit_druck).json()["pc"], 100);
  mit_druck.back() = "4000";
  EXPECT_EQ(daten.rufe(mit_druck).status, 1);
}

TEST(Cycle, LimitsAreToldInTheProgramsWords) {
  const Datenkopie daten;
  const auto fehler = [&](const char* t0, const char* tc) {
    const Antwort a = daten.rufe({"cycle", "R134A", "--t0", t0, "--tc", tc});
    EXPECT_EQ(a.status, 1);
    EXPECT_TRUE(a.ausgabe.empty());
    return a.fehler;
  };
  EXPECT_TRUE(hat(fehler("-61", "40"), "tmin = -60 °C !"));
  EXPECT_TRUE(hat(fehler("0", "86"), "tmax = 85 °C !"));
  EXPECT_TRUE(
      hat(fehler("0", "-1"), "Condensing temperature is below the evaporating temperature."));
}

}  // namespace
