#include "logph_platz.h"

using namespace polarkreis;

namespace {

/// R134A at -30 and 40 °C with a tank at 4 bar: 8.8755 °C on the table's line between 5 and 10 °C.
struct Zweistufige : LogphPlatz {
  explicit Zweistufige(const std::string& modul = "2stage") : LogphPlatz("R134A", -30, 40) {
    form.modul = modul;
    form.Zweistufig = 1;
    form.p_m = 4;
  }
};
constexpr double anteil = (4 - 3.49659) / (4.14607 - 3.49659);
constexpr double t_m = 5 + 5 * anteil;
constexpr double h_Tank = 206.75 + (213.58 - 206.75) * anteil;
constexpr double h_Dampf = 401.49 + (404.32 - 401.49) * anteil;
constexpr double h_v0 = 380.32, h_lc = 256.41, cp_l = (256.41 - 249.01) / 5;
constexpr double h_liq = h_lc - 3 * cp_l;

}  // namespace

TEST(LogphZweistufig, TheTankPartsLiquidAndFlashGas) {
  Zweistufige p;
  const logp_H::Ergebnis& e = p.rechne();
  Schritte s(p);
  s.punkt(-30, t_m, -20);
  EXPECT_EQ(e.Art, Schaltung::zweistufig);
  EXPECT_NEAR(e.t_m, t_m, 1e-9);
  EXPECT_NEAR(e.h_l, h_Tank, 1e-9);
  EXPECT_NEAR(e.h_liq, h_liq, 1e-9);
  const double m = 10 / (h_v0 + 10 * s.z.cp_v0 - h_Tank);
  EXPECT_NEAR(e.m, m, 1e-12);
  EXPECT_NEAR(e.m_zu, m * (h_liq - h_Tank) / (h_Dampf - h_liq), 1e-12);
  EXPECT_NEAR(e.m_hoch, e.m + e.m_zu, 1e-15);
  EXPECT_NEAR(p.form.EnthDiff, h_v0 + 10 * s.z.cp_v0 - h_Tank, 1e-9);
}

TEST(LogphZweistufig, BothStagesCompressWhatReachesThem) {
  Zweistufige p;
  p.form.Bauart = 2;
  p.form.Antrieb = 1;
  const logp_H::Ergebnis& e = p.rechne();
  Schritte s(p);
  s.punkt(-30, t_m, -20);
  const double p0 = 0.843777, pc = 10.1659;
  const double t_d1 = s.Ende(p0, 4, -20), cp_d1 = s.z.cp_d;
  const double P_1 = s.Leistung(p0, 4, e.m, -20), eta_1 = s.z.eta_is;
  EXPECT_NEAR(e.t_d1, t_d1, 1e-9);
  EXPECT_NEAR(e.P_1, P_1, 1e-12);
  EXPECT_NEAR(p.punkt("low stage outlet").h, h_Dampf + cp_d1 * (t_d1 - t_m), 1e-9);

  const double dT = e.m * (t_d1 - t_m) / e.m_hoch;
  s.punkt(t_m, 40, t_m + dT, 3);
  const double t_d = s.Ende(4, pc, t_m + dT), cp_d2 = s.z.cp_d;
  s.z.cp_d = (cp_d1 + cp_d2) / 2;
  const double P_2 = s.Leistung(4, pc, e.m_hoch, t_m + dT);
  EXPECT_NEAR(p.punkt("high stage inlet").t, t_m + dT, 1e-9);
  EXPECT_NEAR(p.punkt("high stage inlet").h, h_Dampf + dT * s.z.cp_v0, 1e-9);
  EXPECT_NEAR(e.t_d, t_d, 1e-9);
  EXPECT_NEAR(e.P_2, P_2, 1e-12);
  EXPECT_EQ(e.P, e.P_1 + e.P_2);
  EXPECT_NEAR(e.eta, (eta_1 + s.z.eta_is) / 2, 1e-12);
  EXPECT_NEAR(p.z.cp_d, (cp_d1 + cp_d2) / 2, 1e-12) << "the mean of what the stages gave";
  EXPECT_NEAR(e.h_d, 419.43 + p.z.cp_d * (t_d - 40), 1e-9);
}

TEST(LogphZweistufig, NeedsLessPowerThanOneStage) {
  Zweistufige zwei;
  LogphPlatz eine("R134A", -30, 40);
  EXPECT_LT(zwei.rechne().P, eine.rechne().P);
  EXPECT_LT(zwei.form.ergebnis().t_d, eine.form.ergebnis().t_d - 10);
  EXPECT_EQ(zwei.form.EER_ACT, Int(1000 / zwei.form.ergebnis().P) / 100);
}

TEST(LogphZweistufig, OnlyTheSuctionLineLoses) {
  Zweistufige p;
  p.form.C = 2;
  const logp_H::Ergebnis& e = p.rechne();
  Schritte s(p);
  s.punkt(-30, 40, -20);
  EXPECT_NEAR(e.p_s, 0.843777 - 2 * s.z.dpdT0, 1e-12);
  EXPECT_EQ(e.p_d, 10.1659);
  EXPECT_EQ(p.z.dp_d, 0);
  EXPECT_NEAR(p.z.dp_s, 2 * s.z.dpdT0 * 1000, 1e-9);
}

TEST(LogphZweistufig, LiquidColderThanTheTankMakesNoFlashGas) {
  Zweistufige p;
  p.form.dT_sc = 35;  // 5 °C, below the tank's 8.9 °C
  const logp_H::Ergebnis& e = p.rechne();
  EXPECT_EQ(e.m_zu, 0);
  EXPECT_EQ(e.m_hoch, e.m);
  EXPECT_FALSE(p.hat("tank vapour"));
  EXPECT_FALSE(p.hat("tank liquid"));
  EXPECT_EQ(e.h_l, e.h_liq);
  EXPECT_EQ(p.punkt("tank inlet").Ort, Lage::unterkuehlt);
  EXPECT_NEAR(p.punkt("tank inlet").t, 5, 1e-9);
  EXPECT_TRUE(p.bilanz("flash tank").schliesst());
  EXPECT_EQ(p.form.punkte().Wege.size(), 1u);
}

// A blend's liquid is that of the bubble line at the tank's pressure, and its vapour of the dew
// line.
TEST(LogphZweistufig, ABlendsTankHoldsBothLines) {
  LogphPlatz p("R455A", -30, 40);
  p.form.Zweistufig = 1;
  const logp_H::Ergebnis& e = p.rechne();
  p.u.km.Sat_Suchen(e.p_m, 2);
  EXPECT_NEAR(p.punkt("tank liquid").h, p.u.km.Sat_Wert(&SatZeile::h_l, e.p_m), 1e-9);
  EXPECT_NEAR(p.punkt("tank liquid").t, p.u.km.Sat_Wert(&SatZeile::p_b, e.p_m) - 273.15, 1e-9);
  EXPECT_NEAR(p.punkt("tank vapour").t, e.t_m, 1e-9);
  EXPECT_LT(p.punkt("tank liquid").t, p.punkt("tank inlet").t);
  EXPECT_LT(p.punkt("tank inlet").t, p.punkt("tank vapour").t);
}

TEST(LogphZweistufig, AMeasuredMiddlePressureGoesByTheMeasuredOnes) {
  LogphPlatz p;
  p.form.modul = "DiaG";
  p.form.Zweistufig = 1;
  p.form.p0F = 1.8;
  p.form.pcF = 9;
  p.form.p_m = 1.7;
  EXPECT_EQ(p.hindernis(), Hindernis::Mitteldruck);
  p.form.p_m = 9.5;
  EXPECT_EQ(p.hindernis(), Hindernis::Mitteldruck);
  p.form.p_m = 4;
  EXPECT_TRUE(p.form.Rechnen());
}

TEST(LogphZweistufig, AMeasuredInletOfTheHighStageIsThatOfTheMixture) {
  for (const int code : {8, 9, 10}) {
    Zweistufige p("DiaG");
    p.form.Zweistufig = code;
    p.form.t_s2 = 14;
    const logp_H::Ergebnis& e = p.rechne();
    EXPECT_NEAR(p.punkt("high stage inlet").t, 14, 1e-12) << code;
    EXPECT_EQ(p.punkt("tank vapour").Ort, Lage::Taulinie);
    Schritte s(p);
    s.punkt(e.t_m, 40, 14, 3);
    EXPECT_NEAR(e.t_d, s.Ende(4, 10.1659, 14), 1e-9) << code;
  }
}

TEST(LogphZweistufig, WithInjectionItIsThatOfTheVapourThatJoins) {
  Zweistufige p("DiaG");
  p.form.t_s2 = 14;
  const logp_H::Ergebnis& e = p.rechne();
  const Zustandspunkt dampf = p.punkt("tank vapour");
  EXPECT_EQ(dampf.t, 14);
  EXPECT_EQ(dampf.Ort, Lage::ueberhitzt);
  EXPECT_GT(dampf.h, h_Dampf);
  const double dT = (e.m_zu * (14 - e.t_m) + e.m * (e.t_d1 - e.t_m)) / e.m_hoch;
  EXPECT_NEAR(p.punkt("high stage inlet").t, e.t_m + dT, 1e-9);
}

TEST(LogphZweistufig, AMixtureLiesBetweenWhatItIsMixedFrom) {
  for (const char* mittel : {"R717", "R448A", "R744", "R134A", "R404A"})
    for (const double t0 : {-50.0, -40.0, -30.0}) {
      LogphPlatz p(mittel, t0, 20);
      p.form.modul = "2stage";
      p.form.Zweistufig = 1;
      p.form.p_Int_Scroll = 2;
      p.rechne();
      EXPECT_LT(p.punkt("high stage inlet").t, p.punkt("low stage outlet").t) << mittel << t0;
      EXPECT_GT(p.punkt("high stage inlet").t, p.punkt("tank vapour").t) << mittel << t0;
    }
}

TEST(LogphZweistufig, AnOpenSensorOrAnotherCallerLeavesTheMixtureToTheFlows) {
  Zweistufige ohne("DiaG"), offen("DiaG"), andere;
  ohne.form.Zweistufig = offen.form.Zweistufig = 9;
  offen.form.t_s2 = -99;
  andere.form.t_s2 = 14;
  const double t = ohne.rechne().t_d;
  EXPECT_EQ(offen.rechne().t_d, t);
  EXPECT_EQ(andere.rechne().t_d, t);
}

TEST(LogphZweistufig, AMeasuredEndOfCompressionIsTheHighStages) {
  Zweistufige p("DiaG");
  p.form.Zweistufig = 9;
  p.form.t_end = 70;
  const logp_H::Ergebnis& e = p.rechne();
  EXPECT_EQ(e.t_d, 70);
  EXPECT_LT(e.t_d1, 60) << "the low stage's is the model's";
  Zweistufige Modell("DiaG");
  Modell.form.Zweistufig = 9;
  EXPECT_EQ(e.P_1, Modell.rechne().P_1);
  EXPECT_NE(e.P_2, Modell.form.ergebnis().P_2);
}

// The tank hands on saturated liquid, whatever the heat exchanger does.
TEST(LogphZweistufig, AHeatExchangerInFrontOfTheTankLeavesLessFlashGas) {
  Zweistufige mit, ohne;
  mit.form.Innen_WT = true;
  mit.form.dT_liquid = 5;
  const logp_H::Ergebnis &a = mit.rechne(), &b = ohne.rechne();
  EXPECT_NEAR(a.h_liq, h_lc - 8 * cp_l, 1e-9);
  EXPECT_NEAR(a.h_l, h_Tank, 1e-9);
  EXPECT_LT(a.m_zu, b.m_zu);
  Schritte s(mit);
  s.punkt(-30, 40, -20, 3);
  EXPECT_NEAR(a.t_s, -20 + cp_l / s.z.cp_v0 * 5, 1e-9);
  // The low stage takes the warmer vapour.
  s.punkt(-30, t_m, a.t_s);
  EXPECT_NEAR(a.t_d1, s.Ende(a.p_s, 4, a.t_s), 1e-9);
  EXPECT_NEAR(a.P_1, s.Leistung(a.p_s, 4, a.m, a.t_s), 1e-12);
}
