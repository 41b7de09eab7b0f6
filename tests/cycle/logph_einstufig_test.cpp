#include "logph_platz.h"

using namespace polarkreis;

namespace {

// R134A at -10 and 40 °C, by its table.
constexpr double h_l0 = 186.70, h_v0 = 392.66, h_lc = 256.41, h_vc = 419.43;
constexpr double cp_l = (256.41 - 249.01) / 5;

}  // namespace

TEST(LogphEinstufig, FlowAndReadoutsStandOnTheTable) {
  LogphPlatz p;
  const logp_H::Ergebnis& e = p.rechne();
  Schritte s(p);
  s.punkt(-10, 40, 0, 3);
  const double h_aus = h_v0 + 10 * s.z.cp_v0, h_liq = h_lc - 3 * cp_l;
  EXPECT_EQ(e.Art, Schaltung::einstufig);
  EXPECT_FALSE(e.transkritisch);
  EXPECT_EQ(e.p0, 2.00603);
  EXPECT_EQ(e.pc, 10.1659);
  EXPECT_NEAR(e.h_liq, h_liq, 1e-9);
  EXPECT_EQ(e.h_l, e.h_liq);
  EXPECT_NEAR(e.m, 10 / (h_aus - h_liq), 1e-12);
  EXPECT_EQ(e.m_Modell, e.m);
  EXPECT_EQ(e.m_hoch, e.m);
  EXPECT_EQ(e.m_zu, 0);
  EXPECT_EQ(p.form.hsF, h_v0);
  EXPECT_NEAR(p.form.hTF, h_aus, 1e-9);
  EXPECT_NEAR(p.form.rhoSF, 10.04, 1e-12);  // the table's 10.0412, cut
  EXPECT_NEAR(p.form.rhoTF, 10.04 * 263.15 / 273.15, 1e-12);
  EXPECT_NEAR(p.form.EnthDiff, h_aus - h_liq, 1e-9);
  EXPECT_NEAR(p.form.xDampf, (h_liq - h_l0) / (h_v0 - h_l0), 1e-12);
  EXPECT_TRUE(ist_leer(p.form.tGlide));
}

TEST(LogphEinstufig, CompressionFollowsItsModelsWithThePointsValues) {
  LogphPlatz p;
  p.form.t_s = 5;
  p.form.C = 1.5;
  p.form.Bauart = 3;
  p.form.Antrieb = 3;
  const logp_H::Ergebnis& e = p.rechne();
  Schritte s(p);
  s.punkt(-10, 40, 5, 3);
  const double p_s = 2.00603 - 1.5 * s.z.dpdT0;
  const double p_d = 10.1659 + 1.5 * 0.5 * s.z.dpdT0 * s.z.dpdT_ratio;
  EXPECT_NEAR(e.p_s, p_s, 1e-12);
  EXPECT_NEAR(e.p_d, p_d, 1e-12);
  const double t_d = s.Ende(p_s, p_d, 5);
  EXPECT_NEAR(e.t_d, t_d, 1e-9);
  EXPECT_NEAR(e.h_d, h_vc + s.z.cp_d * (t_d - 40), 1e-9);
  EXPECT_NEAR(e.P, s.Leistung(p_s, p_d, e.m, 5), 1e-12);
  EXPECT_NEAR(e.eta, s.z.eta_is, 1e-12);
  EXPECT_EQ(e.P_1, e.P);
  EXPECT_EQ(e.P_2, 0);
}

TEST(LogphEinstufig, TheSuctionLineWarmsTheVapourAndAddsNoCooling) {
  LogphPlatz kurz, lang;
  lang.form.t_s = 8;  // 8 K above the evaporator's outlet of 0 °C
  const logp_H::Ergebnis& e = lang.rechne();
  Schritte s(lang);
  s.punkt(-10, 40, 8, 3);
  EXPECT_NEAR(e.Q_SL, e.m * 8 * s.z.cp_v0, 1e-12);
  EXPECT_NEAR(e.m, 10 / (h_v0 + 10 * s.z.cp_v0 - (h_lc - 3 * cp_l)), 1e-12);
  EXPECT_EQ(kurz.rechne().Q_SL, 0);
  EXPECT_EQ(kurz.form.ergebnis().t_s, 0);
  EXPECT_GT(e.t_d, kurz.form.ergebnis().t_d + 5);
}

TEST(LogphEinstufig, TheCondenserTakesAllUpToItsOutlet) {
  LogphPlatz p;
  const logp_H::Ergebnis& e = p.rechne();
  EXPECT_NEAR(e.Qc, e.m * (e.h_d - (h_lc - 3 * cp_l)), 1e-9);
}

TEST(LogphEinstufig, TheFiguresBelongToTenKilowatt) {
  LogphPlatz p;
  const double P = p.rechne().P;
  EXPECT_EQ(logp_H::Q0, 10);
  EXPECT_EQ(p.z.Q0, 10);
  EXPECT_EQ(p.form.EER_ACT, Int(1000 / P) / 100);
  EXPECT_GT(p.form.EER_ACT, 2.5);
  EXPECT_LT(p.form.EER_ACT, 263.15 / 50) << "Carnot";
}

TEST(LogphEinstufig, PressuresOfTheFormAreOnlyShownByTheirTemperatures) {
  LogphPlatz mit, ohne;
  mit.form.p0F = 2.5;
  mit.form.pcF = 9;
  EXPECT_EQ(mit.rechne().P, ohne.rechne().P);
  EXPECT_EQ(mit.form.ergebnis().pc, 10.1659);
}

TEST(LogphEinstufig, AMeasuredRowKeepsItsPressures) {
  LogphPlatz p;
  p.form.modul = "DiaG";
  p.form.p0F = 2;
  p.form.pcF = 10.2;
  const logp_H::Ergebnis& e = p.rechne();
  EXPECT_EQ(e.p0, 2);
  EXPECT_EQ(e.pc, 10.2);
  EXPECT_EQ(p.z.p0, 2);
  EXPECT_EQ(p.z.pc, 10.2);
  Schritte s(p);
  s.punkt(-10, 40, 0, 3);
  EXPECT_NEAR(e.t_d, s.Ende(2, 10.2, 0), 1e-9);
}

TEST(LogphEinstufig, AMeasuredEndOfCompressionGivesTheElectricPower) {
  LogphPlatz p;
  p.form.modul = "DiaG";
  p.form.Antrieb = 2;
  p.form.t_end = 75;
  const logp_H::Ergebnis& e = p.rechne();
  Schritte s(p);
  s.punkt(-10, 40, 0, 3);
  // Shaft power by the balance, behind it the losses of the design and of the drive.
  const double welle = e.m * (h_vc + s.z.cp_d * 35 - s.h_Dampf(0));
  const double motor = 1 / (0.905 - 1 / (48 * welle));
  EXPECT_EQ(e.t_d, 75);
  EXPECT_NEAR(e.P, welle / 0.9 * motor * 0.93, 1e-9);
  EXPECT_NEAR(e.h_d, h_vc + s.z.cp_d * 35, 1e-9);
}

TEST(LogphEinstufig, AnOpenSensorLeavesTheEndOfCompressionToTheModel) {
  for (const double offen : {-90.1, -999.0}) {
    LogphPlatz p, Modell;
    p.form.modul = Modell.form.modul = "DiaG";
    p.form.t_end = offen;
    EXPECT_EQ(p.rechne().P, Modell.rechne().P) << offen;
  }
  LogphPlatz p, Modell;  // and no other caller has measured one
  p.form.t_end = 75;
  EXPECT_EQ(p.rechne().t_d, Modell.rechne().t_d);
}

TEST(LogphEinstufig, WithoutSuperheatAndSubcoolingTheReadoutsAreTheTables) {
  LogphPlatz p;
  p.form.dT_sh = p.form.dT_sc = 0;
  const logp_H::Ergebnis& e = p.rechne();
  EXPECT_EQ(e.t_s, -10);
  EXPECT_EQ(p.form.hTF, h_v0);
  EXPECT_EQ(e.h_l, h_lc);
  EXPECT_NEAR(e.m, 10 / (392.66 - 256.41), 1e-12);
  EXPECT_NEAR(p.form.EnthDiff, 136.25, 1e-9);
  EXPECT_NEAR(p.form.xDampf, 69.71 / 205.96, 1e-12);
}
