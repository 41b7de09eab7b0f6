#include <gtest/gtest.h>

#include "messdateien.h"

namespace {

using Json = nlohmann::json;

// At -15 °C the glycols' rule gives the published concentration; the line of the freezing curve
// between 30 % and 35 % gives the first crystals.
TEST(Brine, TellsItsFiguresAtTheFrostProtectionTemperature) {
  const Datenkopie daten;
  const Antwort a = daten.rufe({"brine", "Ethylene glycol", "--t", "-15", "--json"});
  ASSERT_EQ(a.status, 0) << a.fehler;
  const Json j = a.json();
  EXPECT_EQ(j.size(), 5U);
  EXPECT_EQ(j["tmin"], -30.0);
  EXPECT_EQ(j["concentration"], 30.5);
  EXPECT_NEAR(j["freezing_point"].get<double>(), -15, .1);
  // Published: 1049 kg/m³ and 3.60 kJ/(kg K).
  EXPECT_NEAR(j["density"].get<double>(), 1049, 3);
  EXPECT_NEAR(j["specific_heat"].get<double>(), 3.6, .05);
}

TEST(Brine, FluidReadyForUseFollowsItsMakersLine) {
  const Datenkopie daten;
  const Json j = daten.rufe({"brine", "temper -20", "--t", "-20", "--json"}).json();
  EXPECT_EQ(j["tmin"], -20.0);
  EXPECT_EQ(j["concentration"], 100.0);
  EXPECT_EQ(j["freezing_point"], -20.0);
  EXPECT_GT(j["density"].get<double>(), 1100);
}

TEST(Brine, ConcentrationOfTheSettingsCounts) {
  const Datenkopie daten;
  const auto mit = [&](const char* name, const std::string& einstellungen) {
    daten.schreib("s.json", einstellungen);
    return daten.rufe({"brine", name, "--t", "-5", "--settings", "s.json", "--json"}).json();
  };
  EXPECT_EQ(mit("ethylene GLYCOL",
                R"({"Medium_Verd":"Ethylene glycol","Konz_Verd":34})")["concentration"],
            34.0);
  EXPECT_EQ(mit("Propylene glycol",
                R"({"Medium_Verd":"water","Medium_Verfl":"Propylene glycol","Konz_Verfl":38})")
                ["concentration"],
            38.0);
  EXPECT_EQ(mit("Propylene glycol",
                R"({"Medium_Verd":"Ethylene glycol","Konz_Verd":34})")["concentration"],
            30.5)
      << "another fluid's: the rule's, 33.2 at -15 and less above";
}

// -15 °C stands in for a temperature without frost; the figures are those of the temperature.
TEST(Brine, WithoutFrostTheConcentrationIsTheUsualOne) {
  const Datenkopie daten;
  const auto bei = [&](const char* t) {
    return daten.rufe({"brine", "Propylene glycol", "--t", t, "--json"}).json();
  };
  EXPECT_EQ(bei("0")["concentration"], 33.2);
  EXPECT_EQ(bei("20")["concentration"], 33.2);
  EXPECT_LT(bei("20")["density"].get<double>(), bei("0")["density"].get<double>());
  EXPECT_EQ(bei("0,5"), bei("0.5")) << "both decimal signs";
}

TEST(Brine, BelowItsLowestTemperatureOrUnknownIsRefused) {
  const Datenkopie daten;
  const Antwort kalt = daten.rufe({"brine", "Temper -20", "--t", "-20.1", "--json"});
  EXPECT_EQ(kalt.status, 1);
  EXPECT_EQ(kalt.ausgabe, "");
  EXPECT_TRUE(hat(kalt.fehler, "tmin =-20°C")) << kalt.fehler;
  const Antwort fremd = daten.rufe({"brine", "beer", "--t", "0"});
  EXPECT_EQ(fremd.status, 1);
  EXPECT_TRUE(hat(fremd.fehler, "\"beer\" is no secondary fluid") &&
              hat(fremd.fehler, "Thermera -40"))
      << fremd.fehler;
  EXPECT_EQ(daten.rufe({"brine", "Temper -20"}).status, 2);
  EXPECT_EQ(daten.rufe({"brine", "Temper -20", "--t", "cold"}).status, 2);
  EXPECT_EQ(daten.rufe({"brine", "Temper -20", "--t", "0", "--settings", "none.json"}).status, 1);
}

TEST(Brine, IsNamedInTheLanguageOfTheCallAndInOthers) {
  const Datenkopie daten;
  const std::vector<std::string> befehl{"brine", "Ethylenglykol", "--t", "-10", "--json"};
  const Json deutsch = daten.rufe(befehl, {}, "GER").json();
  EXPECT_EQ(deutsch["concentration"], 28.4);
  EXPECT_EQ(daten.rufe(befehl).json(), deutsch);
}

TEST(Brine, ForPeopleHasUnits) {
  const Datenkopie daten;
  const std::string text = daten.rufe({"brine", "Ethylene glycol", "--t", "-15"}).ausgabe;
  for (const char* teil : {"Lowest temperature", "-30  °C", "30.5  %", "kg/m³", "kJ/(kg K)"})
    EXPECT_TRUE(hat(text, teil)) << teil << text;
}

}  // namespace
