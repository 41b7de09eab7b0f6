#include <gtest/gtest.h>

#include <cmath>

#include "gespraech.h"

namespace {

using nlohmann::json;

constexpr const char* kR134A = R"({"op":"set","RefName":"R134A","dT_sh":10})";
constexpr const char* kPunkt = R"({"op":"KreisPunkt","t0":-10,"tc":40,"t_s":0,"dT_sc":3})";

TEST(CalcValues, WertTakesBothDecimalSignsAndGivesTheWholeZeroForTheEmptyText) {
  const Datenkopie daten;
  EXPECT_EQ(ergebnis(daten, R"({"op":"Wert","text":"1,5"})"), 1.5);
  EXPECT_EQ(ergebnis(daten, R"({"op":"Wert","text":"1.234,5"})"), 1.234);
  EXPECT_EQ(ergebnis(daten, R"({"op":"Wert","text":"--"})"), 0);
  EXPECT_TRUE(ergebnis(daten, R"({"op":"Wert","text":""})").is_number_integer());
  EXPECT_TRUE(ergebnis(daten, R"({"op":"Wert","text":"0"})").is_number_float());
  EXPECT_TRUE(ergebnis(daten, R"({"op":"Wert","text":"1e999"})").is_null());
}

TEST(CalcValues, IntIsTheNextWholeNumberDownward) {
  const Datenkopie daten;
  EXPECT_EQ(ergebnis(daten, R"({"op":"Int","x":-3.2})"), -4);
  EXPECT_EQ(ergebnis(daten, R"({"op":"Int","x":"3,9"})"), 3);
  EXPECT_TRUE(ergebnis(daten, R"({"op":"Int","x":null})").is_null());
}

TEST(CalcValues, CaptionsAreTranslatedAndFilesMeasured) {
  const Datenkopie daten;
  daten.schreib("zehn.txt", "0123456789");
  EXPECT_EQ(ergebnis(daten, R"({"op":"Caption_Uebersetzen","stem":"JMapCap","from":"ENG",)"
                            R"("to":"GER","text":" cold room "})"),
            "Kühlraum");
  EXPECT_EQ(ergebnis(daten, R"({"op":"Caption_Uebersetzen","stem":"JMapCap","from":"ENG",)"
                            R"("to":"GER","text":"no caption"})"),
            "no caption");
  EXPECT_EQ(ergebnis(daten, R"({"op":"Dateigroesse","name":"zehn.txt"})"), 10);
}

TEST(CalcRefrigerant, CatalogueSetsFileNameAndLimits) {
  const Datenkopie daten;
  const auto a = rechne(daten, {R"({"op":"set","RefName":"METHAN"})", R"({"op":"KM_Datei"})",
                                R"({"op":"KM_Grenzen"})"});
  ASSERT_EQ(a.size(), 3U);
  EXPECT_EQ(a[1]["result"], 17);
  EXPECT_EQ(a[1]["state"]["RefName"], "R50");
  EXPECT_EQ(a[1]["state"]["GWP"], 21);
  EXPECT_TRUE(a[2]["result"].is_null());
  EXPECT_EQ(a[2]["state"]["tmin"], -160);
  EXPECT_EQ(a[2]["state"]["tmax"], -95);
  EXPECT_EQ(ergebnis(daten, R"({"op":"KM_Bekannt","name":"co2 "})"), true);
  EXPECT_EQ(ergebnis(daten, R"({"op":"KM_Bekannt","name":"R999"})"), false);
}

TEST(CalcRefrigerant, AnExactKeyLandsInObenAndGivesThatRow) {
  const Datenkopie daten;
  const auto a = rechne(daten, {kR134A, R"({"op":"Sat_Suchen","key":263.15,"mode":0})",
                                R"({"op":"Sat_Wert","column":"p_d","key":263.15})",
                                R"({"op":"Sat_Wert","column":"h_v","key":260.65})",
                                R"({"op":"Sat_TausP","p":2.00603,"mode":177})"});
  ASSERT_EQ(a.size(), 5U);
  EXPECT_EQ(a[1]["state"]["Oben"]["T"], 263.15);
  EXPECT_EQ(a[1]["state"]["Unten"]["T"], 258.15);
  EXPECT_DOUBLE_EQ(a[2]["result"].get<double>(), 2.00603);
  EXPECT_NEAR(a[3]["result"].get<double>(), (389.63 + 392.66) / 2, 1e-9);
  EXPECT_EQ(a[4]["result"], -10);
}

TEST(CalcRefrigerant, CorrelationsFollowTheirForms) {
  const Datenkopie daten;
  EXPECT_DOUBLE_EQ(ergebnis(daten, R"({"op":"Poly3","a":1,"b":2,"c":3,"d":4,"T":2})").get<double>(),
                   .049);
  EXPECT_DOUBLE_EQ(ergebnis(daten, R"({"op":"ExpVisk","a":1,"b":2,"c":4,"T":2})").get<double>(),
                   std::pow(2.71828, 3) * 1e-3);
  EXPECT_NEAR(ergebnis(daten, R"({"op":"CpA","k":0.812,"T":273.15})").get<double>(),
              0.6642219580154073, 1e-12);
  const json a = letzte(daten, {R"({"op":"set","RefName":"R22","T0":273.15,"dT_sh":0})",
                                R"({"op":"Dampf_Korrelation","T_a":313.15,"T_d":340,)"
                                R"("T_x":340,"t_s":0})"});
  EXPECT_TRUE(a["result"].is_null());
  EXPECT_EQ(a["state"]["M"], 86.48);
  // Without superheat the exponents' factor is 1.043 * 0.99556, and c_v = cp_s - 8.314 / M.
  const double cp = .785 / .812 * 0.6642219580154073, f = 1.043 * (.99 + 10. / 1800);
  EXPECT_NEAR(a["state"]["kappa"].get<double>(), cp / (cp - 8.314 / 86.48) * f, 1e-9);
}

TEST(CalcRefrigerant, TranscriticalR744) {
  const Datenkopie daten;
  EXPECT_EQ(ergebnis(daten, R"({"op":"CO2_pOpt","t":31})"), 79.5);
  EXPECT_EQ(ergebnis(daten, R"({"op":"CO2_pOpt","t":9.9})"), 0);
  // The table's first row: 30 °C, 40 bar, 467.15 kJ/kg, 0.011141 m³/kg.
  const json a = letzte(daten, {R"({"op":"set","RefName":"CO2"})",
                                R"({"op":"CO2_Tabelle","T":303.15,"p":40,"row":1})"});
  EXPECT_EQ(a["state"]["h_lc"], 467.15);
  EXPECT_DOUBLE_EQ(a["state"]["rho_lc"].get<double>(), 1 / 0.011141);
}

TEST(CalcCycle, PointFillsTheStateAndReturnsTheSubcoolingThere) {
  const Datenkopie daten;
  const json a = letzte(daten, {kR134A, kPunkt});
  EXPECT_TRUE(a["result"].is_null());
  EXPECT_EQ(a["state"]["p0"], 2.00603);
  EXPECT_EQ(a["state"]["pc"], 10.1659);
  EXPECT_EQ(a["state"]["dT_sc"], 3);
  EXPECT_NEAR(a["state"]["cp_l"].get<double>(), (256.41 - 249.01) / 5, 1e-9);
  const json co2 = letzte(daten, {R"({"op":"set","RefName":"CO2","dT_sh":10})",
                                  R"({"op":"KreisPunkt","t0":-10,"tc":30.5,"t_s":0,"dT_sc":3})"});
  EXPECT_EQ(co2["state"]["Tc"], 304.15);
  EXPECT_EQ(co2["state"]["P_hoch"], 90);
  EXPECT_EQ(co2["state"]["dT_sc"], 0);
}

TEST(CalcCycle, MassFlowAndPowerHoldTheEnergyBalance) {
  const Datenkopie daten;
  const auto a = rechne(
      daten, {kR134A, kPunkt, R"({"op":"KM_Massenstrom","fallback":1,"Q0":10})",
              R"({"op":"Verd_Leistung","p_s":2.00603,"p_d":10.1659,"T0":263.15,"Tc":313.15,)"
              R"("m":0.067,"dT_sh":10,"t_s":0,"h_vc":419.43,"h_v0":392.66,"t_d":70,"mode":1})",
              R"({"op":"Motor_Faktor","size":10})", R"({"op":"Motor_Faktor","size":0.01})"});
  ASSERT_EQ(a.size(), 6U);
  const json& z = a[1]["state"];
  const double dh = 392.66 + 10 * z["cp_v0"].get<double>() - (256.41 - 3 * 1.48);
  EXPECT_NEAR(a[2]["result"].get<double>(), 10 / dh, 1e-12);
  // Mode 1: the measured discharge temperature; the drive's and the design's factors make it
  // electric power.
  const double P =
      (419.43 + z["cp_d"].get<double>() * 30 - (392.66 + 10 * z["cp_v0"].get<double>())) * .067;
  const double g = 1 / (.905 - 1 / (48 * P));
  EXPECT_NEAR(a[3]["result"].get<double>(), P / .9 * g * .93, 1e-9);
  EXPECT_EQ(a[3]["state"]["P_verd"], a[3]["result"]);
  EXPECT_DOUBLE_EQ(a[4]["result"].get<double>(), 1 / (.905 - 1. / 480));
  EXPECT_EQ(a[5]["result"].get<double>() <= 1.52, true);
}

TEST(CalcCycle, DischargeTemperatureAndExpectedEfficiency) {
  const Datenkopie daten;
  const auto a = rechne(
      daten, {R"({"op":"set","Tc":313.15,"kappa2":1.2})",
              R"({"op":"Verd_Endtemp","size":10,"p_s":2,"p_d":9.7,"T_s":273.15,"kappa":1.2})",
              R"({"op":"Verd_Wirkungsgrad","p_d":9.7,"dp_d":0,"p_s":2,"dp_s":0,"size":10})"});
  ASSERT_EQ(a.size(), 3U);
  // A pressure ratio of 4.85 makes a = 1.
  const double T1 = 273.15 * std::pow(4.85, .2 / 1.2);
  const double d = (T1 - 313.15) / .9 / (.905 - 1. / 480);
  const double k = d * (1 - std::pow(7.7 / 13.7, .27));
  EXPECT_NEAR(a[1]["result"].get<double>(), 313.15 + d - k, 1e-9);
  EXPECT_NEAR(a[1]["state"]["T_is"].get<double>(), T1 - k, 1e-9);
  EXPECT_NEAR(a[2]["result"].get<double>(), .796 * (1 - 1 / (1.2 * std::pow(10, .92) + 10)) * 1.02,
              1e-9);
}

}  // namespace
