#include <gtest/gtest.h>

#include <cmath>
#include <map>
#include <set>

#include "support/kaeltemittel_umgebung.h"
#include "support/referenz.h"

using namespace polarkreis;

namespace {

const std::map<std::string, double KMZustand::*> ausgaben = {
    {"eta_v0", &KMZustand::eta_v0}, {"eta_vs", &KMZustand::eta_vs}, {"eta_vd", &KMZustand::eta_vd},
    {"eta_l0", &KMZustand::eta_l0}, {"eta_lc", &KMZustand::eta_lc}, {"cp_v0", &KMZustand::cp_v0},
    {"cp_s", &KMZustand::cp_s},     {"cp_d", &KMZustand::cp_d},     {"M", &KMZustand::M},
    {"kappa", &KMZustand::kappa},   {"kappa2", &KMZustand::kappa2}, {"cp_l", &KMZustand::cp_l}};

/// The record after one call at the usual state: evaporation at -10 °C, condensation at 40 °C.
KMZustand bei(const std::string& name, double T0 = 263.15, double T_a = 313.15, double T_d = 343.15,
              double T_x = 283.15, double t_s = 8) {
  KaeltemittelUmgebung u(name);
  u.km.z.T0 = T0;
  u.km.z.dT_sh = 6;
  u.km.Dampf_Korrelation(T_a, T_d, T_x, t_s);
  return u.km.z;
}

TEST(DampfKorrelation, EveryDesignationMatchesTheReferenceAtFourStates) {
  const auto referenz = referenz_lesen("refrigerant/korrelation_referenz.csv");
  std::set<std::string> namen;
  for (const Referenzzeile& r : referenz) {
    namen.insert(r.name);
    KaeltemittelUmgebung u(r.name);
    u.km.z.T0 = r("T0");
    u.km.z.dT_sh = r("dT_sh");
    u.km.Dampf_Korrelation(r("T_a"), r("T_d"), r("T_x"), r("t_s"));
    for (const auto& [spalte, feld] : ausgaben)
      EXPECT_TRUE(wie_referenz(u.km.z.*feld, r(spalte)))
          << r.name << " " << spalte << " at T0 " << r("T0") << ": " << u.km.z.*feld
          << " instead of " << r(spalte);
  }
  for (const KMEintrag& e : KM_Katalog())
    EXPECT_TRUE(namen.contains(std::string(e.name))) << e.name;
}

TEST(DampfKorrelation, FormsMatchHandCalculation) {
  // (1 + 2·10 + 3·100 + 4·1000)/1000
  EXPECT_DOUBLE_EQ(Poly3(1, 2, 3, 4, 10), 4.321);
  // 2.71828^(1 + 300/300 + 90000/90000)/1000 = 2.71828³/1000
  EXPECT_DOUBLE_EQ(ExpVisk(1, 300, 90000, 300), std::pow(2.71828, 3) / 1000);
  EXPECT_EQ(ExpVisk(-3.6859, 840.172, 0, 0), ExpVisk(-3.6859, 840.172, 0, 273.15));
  // T = 250 K is 450 °R: 0.0282 + 0.177200955 - 0.0260072775 + 0.00505228889 = 0.18444596639;
  // times 4.1866 = 0.77220148...
  EXPECT_NEAR(CpA(1, 250), 0.772201482888, 1e-11);
  // third term 1.28431e-7·450 = 5.779395e-5: 0.21039544994 · 4.1866
  EXPECT_NEAR(CpA_linear(1, 250), 0.880841590712, 1e-11);
}

TEST(DampfKorrelation, R22SharesItsVapourViscosityWithTheLowTemperatureFluids) {
  const double R22 = bei("R22", 273.15).eta_v0;
  EXPECT_EQ(bei("R13", 273.15).eta_v0, R22);
  EXPECT_EQ(bei("R13B1", 273.15).eta_v0, R22);
  EXPECT_EQ(bei("ISC_89", 273.15).eta_v0, R22);
  // (-0.031501 + 0.11475441 - 0.11254290 + 0.04127046)/1000 Pa s
  EXPECT_NEAR(R22, 1.1980966e-5, 1e-12);
}

TEST(DampfKorrelation, ISC49HasItsOwnHeatWhileR413AKeepsR134As) {
  const KMZustand R134A = bei("R134A"), R413A = bei("R413A"), ISC_49 = bei("ISC_49");
  EXPECT_EQ(R413A.M, R134A.M);
  EXPECT_EQ(R413A.cp_s, R134A.cp_s);
  EXPECT_EQ(ISC_49.M, 102.46208805);
  EXPECT_DOUBLE_EQ(ISC_49.cp_s / R134A.cp_s, 0.92 / 1.029);
  EXPECT_EQ(ISC_49.eta_vs, R134A.eta_vs);
}

TEST(DampfKorrelation, R502ChoosesTheBranchByTaAndTakesTheValueAtT0) {
  for (const char* name : {"R502", "R403B", "ISC_69L"}) {
    const KMZustand z = bei(name, 260, 290);
    EXPECT_DOUBLE_EQ(z.eta_lc, ExpVisk(-13.586, 6104.13, -763533, 260)) << name;
    EXPECT_DOUBLE_EQ(z.eta_l0, ExpVisk(-3.88835, 666.021, 0, 260)) << name;
  }
}

TEST(DampfKorrelation, R507TestsAndTakesTheSameTemperature) {
  const KMZustand z = bei("R507", 260, 290);
  EXPECT_DOUBLE_EQ(z.eta_lc, 0.78 * ExpVisk(-13.586, 6104.13, -763533, 290));
  EXPECT_DOUBLE_EQ(z.eta_l0, 0.78 * ExpVisk(-3.88835, 666.021, 0, 260));
}

TEST(DampfKorrelation, R404AEndsWithThePlainValueAtTaInTheLowSideField) {
  for (const char* name : {"R404A", "HX4"}) {
    const KMZustand z = bei(name, 260, 290);
    EXPECT_DOUBLE_EQ(z.eta_l0, ExpVisk(-3.88835, 666.021, 0, 290)) << name;
    EXPECT_DOUBLE_EQ(z.eta_lc, 0.0001013 * (0.0001823266 / ExpVisk(-3.88835, 666.021, 0, 260)))
        << name;
  }
}

TEST(DampfKorrelation, PropaneGoesByT0ExceptAtTheDischarge) {
  const KMZustand kalt = bei("R290", 279.9), warm = bei("R290", 280);
  EXPECT_DOUBLE_EQ(warm.eta_v0, (0.05 * 280 - 6.1) * 1e-6);
  EXPECT_DOUBLE_EQ(warm.eta_vs, (0.05 * 281.15 - 6.1) * 1e-6);  // at its own temperature
  EXPECT_DOUBLE_EQ(kalt.eta_vs, Poly3(-0.8086, 0.00794972, -2.58451e-5, 2.80976e-8, 281.15));
  EXPECT_EQ(kalt.eta_vd, warm.eta_vd);
}

TEST(DampfKorrelation, ThirdTermIsLinearForFiveDesignations) {
  const std::map<std::string, double> faktoren = {
      {"R12", 0.648}, {"PROPYLEN", 1.616}, {"R1270", 1.616}, {"R227", 0.8}, {"HX4", 0.9}};
  for (const auto& [name, k] : faktoren)
    EXPECT_DOUBLE_EQ(bei(name).cp_s, CpA_linear(k, 281.15)) << name;
  EXPECT_DOUBLE_EQ(bei("R404A").cp_s, CpA(1.053, 281.15));
}

TEST(DampfKorrelation, SuperheatOfTenKelvinGivesTheMiddleOfTheFactor) {
  // f = 1.043·0.99 at 10 K and 1.043·(0.99 + 10/1800) at 0 K; cp_s/c_v cancels in the ratio.
  KMZustand z = bei("R22", 263.15, 313.15, 343.15, 283.15, 0);
  double c_v = z.cp_s - 8.314 / 86.48;
  EXPECT_DOUBLE_EQ(z.kappa, z.cp_s / c_v * (1.043 * 0.99));
  EXPECT_DOUBLE_EQ(z.kappa2, (z.cp_s / c_v) * (1.02 + 1.043 * 0.99) / 2);
  z = bei("R22", 263.15, 313.15, 343.15, 283.15, -10);
  c_v = z.cp_s - 8.314 / 86.48;
  EXPECT_NEAR(z.kappa * c_v / z.cp_s, 1.043 * 0.99556, 1e-5);
}

TEST(DampfKorrelation, R123LiquidComesOutSixOrdersOfMagnitudeAbove) {
  // t = -10 °C: 0.7763 + 12.886 + 90.295 + 589.72
  const KMZustand z = bei("R123");
  EXPECT_NEAR(z.eta_l0, 693.6773, 1e-9);
  EXPECT_GT(z.eta_lc / bei("R22").eta_lc, 1e6);
}

TEST(DampfKorrelation, R124LeavesTheLiquidHeatInItsOrdinaryRange) {
  KaeltemittelUmgebung u("R124");
  u.km.z.T0 = 283.15;
  u.km.z.dT_sh = 5;
  u.km.z.cp_l = 1.11;
  u.km.Dampf_Korrelation(333.15, 350, 300, 20);
  EXPECT_EQ(u.km.z.cp_l, 1.11);
  EXPECT_DOUBLE_EQ(u.km.z.kappa, 1.13 * (1 * (0.99 - ((20 + 273.15 - 283.15) - 10) / 1800)));
  u.km.Dampf_Korrelation(160, 350, 300, 20);
  EXPECT_DOUBLE_EQ(u.km.z.cp_l, 2.15);  // 1.15 + (160 - 40)/120
}

TEST(DampfKorrelation, UnknownDesignationKeepsOutputsButFormsTheExponents) {
  KaeltemittelUmgebung u("R22");
  u.km.z.T0 = 263.15;
  u.km.z.dT_sh = 6;
  u.km.Dampf_Korrelation(313.15, 343.15, 283.15, 8);
  const KMZustand vorher = u.km.z;
  u.km.z.RefName = "R999";
  u.km.Dampf_Korrelation(300, 320, 270, -10);
  EXPECT_EQ(u.km.z.eta_lc, vorher.eta_lc);
  EXPECT_EQ(u.km.z.cp_s, vorher.cp_s);
  EXPECT_EQ(u.km.z.M, vorher.M);
  const double c_v = vorher.cp_s - 8.314 / vorher.M;
  EXPECT_DOUBLE_EQ(u.km.z.kappa, vorher.cp_s / c_v * (1.043 * (0.99 + 10.0 / 1800)));
}

TEST(DampfKorrelation, FailingStatementKeepsItsTargetAlone) {
  KaeltemittelUmgebung u("R404A");
  u.km.z.T0 = 263.15;
  u.km.z.dT_sh = 6;
  u.km.Dampf_Korrelation(313.15, 343.15, 283.15, 8);
  const double eta_vd = u.km.z.eta_vd;
  u.km.Dampf_Korrelation(313.15, 343.15, 0, 12);  // the form divides by the temperature
  EXPECT_EQ(u.km.z.eta_vd, eta_vd);
  u.km.Dampf_Korrelation(313.15, 343.15, -5, 12);  // and takes its root
  EXPECT_EQ(u.km.z.eta_vd, eta_vd);
  EXPECT_EQ(u.km.z.eta_vs, bei("R404A", 263.15, 313.15, 343.15, 0, 12).eta_vs);
  EXPECT_TRUE(ist_leer(bei("R600A", 263.15, 313.15, 343.15, 0).eta_vd));
}

TEST(DampfKorrelation, AliasesShareAllCorrelations) {
  for (const auto& [alias, name] : {std::pair{"METHAN", "R50"},
                                    {"ETHAN", "R170"},
                                    {"ETHYLEN", "R1150"},
                                    {"CO2", "R744"},
                                    {"AC9000", "R407C"},
                                    {"PROPAN", "R290"},
                                    {"isc_69l ", "R403B"}}) {
    const KMZustand a = bei(alias), b = bei(name);
    for (const auto& [spalte, feld] : ausgaben)
      EXPECT_TRUE(a.*feld == b.*feld || (ist_leer(a.*feld) && ist_leer(b.*feld)))
          << alias << " " << spalte;
  }
}

}  // namespace
