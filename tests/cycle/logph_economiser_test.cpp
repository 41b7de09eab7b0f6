#include <cmath>

#include "logph_platz.h"

using namespace polarkreis;

namespace {

// R134A at -10 and 40 °C, by its table.
constexpr double h_l0 = 186.70, h_v0 = 392.66, h_lc = 256.41;
constexpr double cp_l = (256.41 - 249.01) / 5;
// Half of the liquid's way down to the evaporator, less 8 K: 69.71 / 2.96 - 8 = 15.5507.
constexpr double u = (h_lc - h_l0) / (2 * cp_l) - 8;

struct Economiser : LogphPlatz {
  Economiser() { form.ECO_OPT = 1; }
};

}  // namespace

TEST(LogphEconomiser, SubcoolsTheLiquidBehindTheCondenser) {
  Economiser p;
  const logp_H::Ergebnis& e = p.rechne();
  EXPECT_EQ(e.Art, Schaltung::Einspritzung);
  EXPECT_NEAR(p.z.u, u, 1e-9);
  EXPECT_NEAR(p.z.dT_sc, 3 + u, 1e-9);
  EXPECT_NEAR(e.h_liq, h_lc - (3 + u) * cp_l, 1e-9);
  EXPECT_EQ(e.h_l, e.h_liq);
  EXPECT_NEAR(p.punkt("condenser outlet").h, h_lc - 3 * cp_l, 1e-9);
  EXPECT_NEAR(p.punkt("economiser outlet").h, e.h_liq, 1e-9);
  EXPECT_NEAR(p.punkt("economiser outlet").t, 40 - 3 - u, 1e-9);
}

TEST(LogphEconomiser, FlowsAreTheEvaporatorsBalanceAndTheModels) {
  Economiser p;
  const logp_H::Ergebnis& e = p.rechne();
  Schritte s(p);
  s.punkt(-10, 40, 0, 3);
  // What the model works out for this point, from dh(u) on.
  const double dh = (h_v0 + 10 * s.z.cp_v0) - (h_lc - cp_l * u);
  const double Q_eco = 10 / dh * u * cp_l;
  const double rho_m = std::sqrt(s.z.rho_vc * s.z.rho_s);
  EXPECT_NEAR(e.m_Modell, 10 / dh / ((10 - s.z.rho_s / rho_m * Q_eco) / 10), 1e-9);
  EXPECT_NEAR(e.m_zu, Q_eco / dh, 1e-9);
  EXPECT_NEAR(p.z.m_eco, Q_eco / dh, 1e-9);
  s.punkt(-10, e.t_m, 0);
  EXPECT_NEAR(e.m, 10 / (h_v0 + 10 * s.z.cp_v0 - (h_lc - (3 + u) * cp_l)), 1e-9);
  EXPECT_EQ(e.m_hoch, e.m + e.m_zu);
}

TEST(LogphEconomiser, ItsVapourIsSaturatedAtTheIntermediatePressure) {
  Economiser p;
  const logp_H::Ergebnis& e = p.rechne();
  const Zustandspunkt dampf = p.punkt("economiser vapour");
  EXPECT_EQ(dampf.Ort, Lage::Taulinie);
  EXPECT_EQ(dampf.p, e.p_m);
  EXPECT_EQ(dampf.t, e.t_m);
  // 3.8839 bar lie between the rows of 5 and 10 °C.
  EXPECT_NEAR(dampf.h, 401.49 + (404.32 - 401.49) * (e.t_m - 5) / 5, 1e-9);
  EXPECT_NEAR(p.punkt("economiser valve outlet").h, h_lc - 3 * cp_l, 1e-9);
}

// The flow of the model stands for what comes in at the suction side and for what is injected.
TEST(LogphEconomiser, OneCompressorWorksOverTheWholePressureRange) {
  Economiser p;
  const logp_H::Ergebnis& e = p.rechne();
  Schritte s(p);
  s.punkt(-10, 40, 0, 3);
  const double m = s.kreis.KM_Massenstrom(1, 10);
  EXPECT_NEAR(e.m_Modell, m, 1e-15);
  EXPECT_NEAR(e.t_d, s.Ende(2.00603, 10.1659, 0), 1e-9);
  EXPECT_NEAR(e.P, s.Leistung(2.00603, 10.1659, m, 0), 1e-12);
  EXPECT_EQ(e.P_1, e.P);
  EXPECT_EQ(e.P_2, 0);
  EXPECT_NEAR(e.h_d, s.h_Ende(e.t_d), 1e-9);
}

// More than that no economiser gains between these temperatures.
TEST(LogphEconomiser, ItGainsAFewPercent) {
  for (const char* mittel : {"R134A", "R404A", "R407C", "R448A", "R22", "R717"}) {
    LogphPlatz ohne(mittel, -25, 40);
    const double P = ohne.rechne().P;
    LogphPlatz mit(mittel, -25, 40);
    mit.form.ECO_OPT = 1;
    const double gewinn = P / mit.rechne().P - 1;
    EXPECT_GT(gewinn, 0) << mittel;
    EXPECT_LT(gewinn, 0.2) << mittel;
  }
}

// A straight line between inlet and outlet in the logarithm of the pressure.
TEST(LogphEconomiser, TheInjectionIsDrawnOnTheCompression) {
  Economiser p;
  const logp_H::Ergebnis& e = p.rechne();
  const Zustandspunkt ein = p.punkt("compressor inlet"), aus = p.punkt("compressor outlet"),
                      dazu = p.punkt("vapour injection");
  EXPECT_EQ(dazu.p, e.p_m);
  EXPECT_TRUE(ist_leer(dazu.t));
  EXPECT_NEAR((dazu.h - ein.h) / (aus.h - ein.h),
              std::log(dazu.p / ein.p) / std::log(aus.p / ein.p), 1e-12);
}

TEST(LogphEconomiser, OptionsOneToNineAreOneAllOthersNone) {
  Economiser eins;
  const double P = eins.rechne().P;
  LogphPlatz ohne;
  const double P_ohne = ohne.rechne().P;
  ASSERT_NE(P, P_ohne);
  for (const int option : {2, 5, 9}) {
    Economiser p;
    p.form.ECO_OPT = option;
    EXPECT_EQ(p.rechne().P, P) << option;
  }
  for (const int option : {-1, 10, 99}) {
    Economiser p;
    p.form.ECO_OPT = option;
    EXPECT_EQ(p.rechne().P, P_ohne) << option;
    EXPECT_EQ(p.form.ergebnis().Art, Schaltung::einstufig) << option;
  }
}

TEST(LogphEconomiser, WithAHeatExchangerAllThreeSubcool) {
  Economiser p;
  p.form.Innen_WT = true;
  p.form.dT_liquid = 5;
  const logp_H::Ergebnis& e = p.rechne();
  EXPECT_NEAR(e.h_liq, h_lc - (3 + u + 5) * cp_l, 1e-9);
  EXPECT_NEAR(p.punkt("economiser outlet").h, h_lc - (3 + u) * cp_l, 1e-9);
  EXPECT_NEAR(p.punkt("internal heat exchanger outlet").h, e.h_liq, 1e-9);
  Schritte s(p);
  s.punkt(-10, 40, 0, 3);
  EXPECT_NEAR(e.t_s, cp_l / s.z.cp_v0 * 5, 1e-9);
}

// Two stages with an economiser: no tank, the liquid goes on subcooled.
TEST(LogphEconomiser, WinsOverTheTankOfTwoStages) {
  Economiser p;
  p.form.Zweistufig = 1;
  const logp_H::Ergebnis& e = p.rechne();
  EXPECT_EQ(e.Art, Schaltung::zweistufig);
  EXPECT_NEAR(e.h_l, h_lc - (3 + u) * cp_l, 1e-9);
  EXPECT_TRUE(p.hat("economiser vapour"));
  EXPECT_FALSE(p.hat("tank inlet"));
}

TEST(LogphEconomiser, InAMeasuredRowTheMeasuredPressuresStay) {
  Economiser p;
  p.form.modul = "DiaG";
  p.form.p0F = 2.1;
  p.form.pcF = 10.3;
  const logp_H::Ergebnis& e = p.rechne();
  EXPECT_EQ(e.p0, 2.1);
  EXPECT_EQ(e.pc, 10.3);
  EXPECT_NEAR(e.p_m, std::pow(2.1 * 10.3, 0.45), 1e-12);
  EXPECT_EQ(p.punkt("compressor inlet").p, 2.1);
  EXPECT_EQ(p.punkt("compressor outlet").p, 10.3);
}
