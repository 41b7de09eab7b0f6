#include <gtest/gtest.h>

#include <cmath>

#include "kern_desk.h"

using namespace polarkreis;

namespace {

/// A two-stage R404A plant at about -35 and 35 °C.
struct Zweistufige : KernDesk {
  explicit Zweistufige(VerbCapt funktion = VerbCapt::Zweistufig) : KernDesk("R404A") {
    einheit(1, funktion, funktion == VerbCapt::Zweistufig ? " 2st." : "");
    messung.Hub_Volumen = 60;
  }
  void rechnen(const Zellen& anders = {}) {
    laufend({{2, "0.6"}, {4, "-30"}, {5, "-20"}, {6, "15"}, {8, "75"}, {9, "32"}});
    setze({{31, ""}, {36, ""}, {39, ""}, {40, ""}, {41, ""}, {42, ""}});
    setze(anders);
    rechne();
  }
};

}  // namespace

TEST(KernZweistufig, TheSecondPressureOfTheUnitWins) {
  Zweistufige d;
  d.rechnen({{39, "4.4"}, {41, "4"}});
  EXPECT_DOUBLE_EQ(d.km.z.p_m, 5);
  EXPECT_EQ(d.km.z.t_m, d.km.Sat_TausP(5, 177));
}

TEST(KernZweistufig, BelowItsLimitTheFirstStandsIn) {
  Zweistufige d;
  d.rechnen({{39, "4.4"}, {41, "0.29"}});
  EXPECT_DOUBLE_EQ(d.km.z.p_m, 5.4);
  d.rechnen({{39, "4.4"}, {41, "0.3"}});  // at the limit it isn't below it
  EXPECT_DOUBLE_EQ(d.km.z.p_m, 1.3);
  EXPECT_EQ(d.km.z.t_m, d.km.Sat_TausP(1.3, 177));
}

// (1.613 * 16.013)^0.45 = 25.828969^0.45 = 4.31947; shown as Int(431.947 + 0.005)/100 - 1.
TEST(KernZweistufig, WithoutAnyTheMiddleOfTheMainPressuresIsTakenAndShown) {
  Zweistufige d;
  d.rechnen({{39, "0.2"}, {41, "  -"}});
  EXPECT_NEAR(d.km.z.p_m, std::exp(0.45 * std::log(1.613 * 16.013)), 1e-9);
  EXPECT_EQ(d.zelle(41), "3.31");
  EXPECT_EQ(d.zelle(39), "0.2");
}

TEST(KernZweistufig, UnmeasuredCellsOfTheHighStageAreFilled) {
  for (const char* keiner : {"", "-", "0", "  -"}) {
    Zweistufige d;
    d.rechnen({{31, keiner}, {36, keiner}, {41, "4"}});
    EXPECT_EQ(d.zahl(31), Int(10 * (d.zahl(7) - 2) + 0.05) / 10);
    EXPECT_EQ(d.zahl(36), Int(10 * (d.km.z.t_m + 7.05)) / 10);
    EXPECT_DOUBLE_EQ(d.kern.werte().dT_m, 7);
  }
}

TEST(KernZweistufig, MeasuredCellsOfTheHighStageStay) {
  Zweistufige d;
  d.rechnen({{31, "29.5"}, {36, "12"}, {41, "4"}});
  EXPECT_EQ(d.zelle(31), "29.5");
  EXPECT_EQ(d.zelle(36), "12");
  EXPECT_DOUBLE_EQ(d.kern.werte().dT_m, 12 - d.km.z.t_m);
}

TEST(KernZweistufig, SingleStageLeavesTheUnitsCells) {
  Zweistufige d(VerbCapt::Economiser);
  d.rechnen({{41, ""}});
  for (int spalte : {31, 36, 41}) EXPECT_EQ(d.zelle(spalte), "") << spalte;
}

TEST(KernZweistufig, TheHighStageBeginsAtTheMiddleTemperature) {
  for (VerbCapt funktion :
       {VerbCapt::Zweistufig, VerbCapt::Zweistufig_Booster, VerbCapt::Zweistufig_Zwischenkuehler}) {
    Zweistufige d(funktion);
    d.rechnen({{41, "4"}, {36, "5"}});
    const KMZustand& z = d.km.z;
    EXPECT_DOUBLE_EQ(z.T0, z.t_m + 273.15);
    EXPECT_EQ(z.t_s, 5);
    const Kernwerte& w = d.kern.werte();
    EXPECT_DOUBLE_EQ(w.h_Mischung, z.h_v0 + (5 - z.t_m) * z.cp_v0 * 0.99);
    EXPECT_DOUBLE_EQ(w.h_Ende1, z.h_v0 + (w.t_d1 - z.t_m) * z.cp_v0 * 1.01);
    EXPECT_DOUBLE_EQ(w.P_mod, w.P_1 + w.P_2);
    EXPECT_DOUBLE_EQ(w.P_ist, w.P_1 + w.P_2i);
    EXPECT_DOUBLE_EQ(w.eta_mod, (w.eta_1 + w.eta_2) / 2);
    EXPECT_DOUBLE_EQ(w.eta, (w.eta_1 + w.eta_2i) / 2);
    EXPECT_EQ(d.kreis.gespeicherte_Leistung, 5);
  }
}

// Without an economiser's flow the high stage takes the low one's vapour alone.
TEST(KernZweistufig, InjectionWithoutEconomiserMixesNothing) {
  Zweistufige d(VerbCapt::Zweistufig_Einspritzung);
  d.rechnen({{41, "4"}, {36, "5"}});
  const Kernwerte& w = d.kern.werte();
  EXPECT_DOUBLE_EQ(w.dT_m, w.t_d1 - d.km.z.t_m);
  EXPECT_DOUBLE_EQ(d.km.z.t_s, 5 + w.dT_m);
}

TEST(KernZweistufig, InjectionMixesBothFlows) {
  Zweistufige d(VerbCapt::Zweistufig_Einspritzung);
  d.messung.ECO_OPT = 2;
  d.rechnen({{41, "4"}, {36, "5"}});
  const Kernwerte& w = d.kern.werte();
  const KMZustand& z = d.km.z;
  ASSERT_GT(z.m_eco, 0);
  const double dT_e = 5 - z.t_m, dT_d1 = w.t_d1 - z.t_m;
  EXPECT_DOUBLE_EQ(w.dT_m, (z.m_eco * dT_e + z.m_punkt * dT_d1) / (z.m_eco + z.m_punkt));
}

TEST(KernZweistufig, AnEconomiserFlowOfAnEarlierRunIsForgotten) {
  Zweistufige d(VerbCapt::Zweistufig_Einspritzung);
  d.km.z.m_eco = 3;
  d.rechnen({{41, "4"}, {36, "5"}});
  EXPECT_DOUBLE_EQ(d.kern.werte().dT_m, d.kern.werte().t_d1 - d.km.z.t_m);
}
