#include <gtest/gtest.h>

#include "gespraech.h"

namespace {

using nlohmann::json;

constexpr const char* kR134A = R"({"op":"set","RefName":"R134A"})";
constexpr const char* kR744 = R"({"op":"set","RefName":"R744"})";
constexpr const char* kKreis = R"({"op":"logp_H","t0F":-10,"tcF":40,"dT_sh":10,"dT_sc":3})";

json nach(const Datenkopie& daten, const char* mittel, const std::string& felder) {
  return letzte(daten, {mittel, R"({"op":"logp_H",)" + felder + "}"})["result"];
}

std::string hindernis(const Datenkopie& daten, const char* mittel, const std::string& felder) {
  return nach(daten, mittel, felder).value("hindrance", "none");
}

TEST(CalcLogph, WorksAPlantOutForTenKilowatt) {
  const Datenkopie daten;
  const json a = letzte(daten, {kR134A, kKreis});
  const json& e = a["result"]["result"];
  EXPECT_EQ(e["p0"], 2.00603);
  EXPECT_EQ(e["pc"], 10.1659);
  EXPECT_EQ(e["Q0"], 10);
  EXPECT_EQ(a["state"]["m_punkt"], e["m"]);
  EXPECT_EQ(a["state"]["P_verd"], e["P"]);
  EXPECT_EQ(a["state"]["modul"], "SIM_PRO") << "the cycle's own settings come back";
}

TEST(CalcLogph, FieldsAreKeptUntilAReset) {
  const Datenkopie daten;
  const auto a = rechne(daten, {kR134A, kKreis, R"({"op":"logp_H","tcF":45})",
                                R"({"op":"logp_H","Innen_WT":1,"dT_liquid":"5,0"})",
                                R"({"op":"reset"})", kR134A, R"({"op":"logp_H"})"});
  ASSERT_EQ(a.size(), 7U);
  EXPECT_EQ(a[2]["result"]["t0F"], -10);
  EXPECT_EQ(a[2]["result"]["tcF"], 45);
  EXPECT_EQ(a[3]["state"]["dT_sc"], 8);
  EXPECT_EQ(a[6]["result"], json::parse(R"({"hindrance":"temperature"})"));
}

TEST(CalcLogph, NamesWhatStandsInTheWay) {
  const Datenkopie daten;
  EXPECT_EQ(hindernis(daten, R"({"op":"set","RefName":"R999"})", R"("t0F":-10,"tcF":40)"),
            "refrigerant");
  EXPECT_EQ(hindernis(daten, kR134A, R"("t0F":-10,"tcF":null)"), "temperature");
  EXPECT_EQ(hindernis(daten, kR134A, R"("t0F":-10,"tcF":40,"C":60)"), "pressure");
  EXPECT_EQ(
      hindernis(daten, kR134A, R"("modul":"2stage","t0F":-30,"tcF":40,"Zweistufig":1,"p_m":12)"),
      "intermediate pressure");
  EXPECT_EQ(hindernis(daten, kR134A, R"("t0F":5,"tcF":20,"ECO_OPT":1)"), "economiser");
  EXPECT_EQ(hindernis(daten, kR744, R"("t0F":-10,"tcF":36,"P_hoch":4000)"), "cycle");
  EXPECT_EQ(hindernis(daten, kR134A, R"("t0F":-10,"tcF":40)"), "none");
}

TEST(CalcLogph, TheGasCoolersPressureGoesIntoTheNextCycle) {
  const Datenkopie daten;
  const auto a = rechne(daten, {kR744, R"({"op":"GC_Druck","t":35})",
                                R"({"op":"logp_H","t0F":-30,"tcF":35,"dT_sh":10,"Zweistufig":1})",
                                R"({"op":"GC_Druck","t":31})", R"({"op":"GC_Druck"})"});
  ASSERT_EQ(a.size(), 5U);
  EXPECT_EQ(a[1]["result"], json::parse(R"({"P_hoch":89.0,"p_GC_Scroll":89.0,"tu_Scroll":null})"));
  EXPECT_EQ(a[1]["state"]["P_hoch"], 89);
  EXPECT_EQ(a[2]["result"]["result"]["pc"], 89);
  EXPECT_EQ(a[3]["result"], json::parse(R"({"P_hoch":79.0,"p_GC_Scroll":79.0,"tu_Scroll":1.5})"));
  EXPECT_TRUE(a[4].contains("error")) << "it needs a temperature";
}

TEST(CalcLogph, TheTablesNameAndItsLines) {
  const Datenkopie daten;
  EXPECT_EQ(letzte(daten, {kR744, R"({"op":"Tabellenname"})"})["result"], "CO2.DAT");
  EXPECT_EQ(
      letzte(daten, {R"({"op":"set","RefName":"METHAN"})", R"({"op":"Tabellenname"})"})["result"],
      "R50.dat");
  const json l = letzte(daten, {kR134A, R"({"op":"logp_Linien"})"})["result"];
  EXPECT_EQ(l["dew"].size(), 33U);
  EXPECT_EQ(l,
            daten.rufe({"logph", "--refrigerant", "R134A", "--t0", "-10", "--tc", "40", "--json"})
                .json()["lines"]);
  const json keine =
      letzte(daten, {R"({"op":"set","RefName":"R999"})", R"({"op":"logp_Linien"})"})["result"];
  for (const char* name : {"bubble", "dew", "isotherms", "vapour_contents", "supercritical"})
    EXPECT_TRUE(keine[name].empty()) << name;
}

}  // namespace
