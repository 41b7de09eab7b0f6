#include "logph_platz.h"

using namespace polarkreis;

namespace {

// R134A at -10 and 40 °C, by its table.
constexpr double h_l0 = 186.70, h_v0 = 392.66, h_lc = 256.41;
constexpr double cp_l = (256.41 - 249.01) / 5;

/// 3 K of subcooling behind the condenser, 5 K more by the internal heat exchanger.
struct Waermetauscher : LogphPlatz {
  Waermetauscher() {
    form.Innen_WT = true;
    form.dT_liquid = 5;
  }
};

/// Two stages whose pass is, or isn't, the second one.
struct Durchgang : Waermetauscher {
  Durchgang() {
    form.Zweistufig = 1;
    form.Auswahl2 = true;
  }
};

}  // namespace

TEST(LogphInnenWT, TheVapourTakesWhatTheLiquidGives) {
  Waermetauscher w;
  const logp_H::Ergebnis& e = w.rechne();
  Schritte s(w);
  s.punkt(-10, 40, 0, 8);
  EXPECT_NEAR(e.t_s, 0 + (cp_l / s.z.cp_v0) * 5, 1e-12);
  EXPECT_EQ(w.z.t_s, e.t_s);
  EXPECT_NEAR(w.form.rhoTF, 10.04 * 263.15 / (e.t_s + 273.15), 1e-12);
  EXPECT_TRUE(w.bilanz("internal heat exchanger").schliesst());
  EXPECT_NEAR(w.bilanz("internal heat exchanger").zu, e.m * 5 * cp_l, 1e-12);
}

TEST(LogphInnenWT, TheLiquidIsLoweredByTheWholeSubcoolingOnce) {
  Waermetauscher w;
  const logp_H::Ergebnis& e = w.rechne();
  Schritte s(w);
  s.punkt(-10, 40, 0, 8);
  const double h_aus = h_v0 + 10 * s.z.cp_v0;
  EXPECT_NEAR(w.z.h_lc, h_lc - 8 * cp_l, 1e-9);
  EXPECT_NEAR(e.h_liq, h_lc - 8 * cp_l, 1e-9);
  EXPECT_NEAR(e.h_l, h_lc - 8 * cp_l, 1e-9);
  EXPECT_EQ(w.z.dT_sc, 8);
  EXPECT_NEAR(e.m, 10 / (h_aus - (h_lc - 8 * cp_l)), 1e-12);
  EXPECT_NEAR(w.form.EnthDiff, h_aus - (h_lc - 8 * cp_l), 1e-9);
  EXPECT_NEAR(w.form.xDampf, (h_lc - 8 * cp_l - h_l0) / (h_v0 - h_l0), 1e-12);
  EXPECT_NEAR(w.punkt("evaporator inlet").h, h_lc - 8 * cp_l, 1e-9);
  EXPECT_NEAR(w.punkt("condenser outlet").h, h_lc - 3 * cp_l, 1e-9) << "not in the condenser";
  EXPECT_NEAR(e.Qc, e.m * (e.h_d - (h_lc - 3 * cp_l)), 1e-9);
}

TEST(LogphInnenWT, WithoutOneTheRecordKeepsTheSaturatedLiquid) {
  Waermetauscher w;
  w.form.Innen_WT = false;
  const logp_H::Ergebnis& e = w.rechne();
  EXPECT_EQ(w.z.h_lc, h_lc);
  EXPECT_EQ(w.z.dT_sc, 3);
  EXPECT_NEAR(e.h_l, h_lc - 3 * cp_l, 1e-9);
  EXPECT_EQ(e.t_s, 0);
}

TEST(LogphInnenWT, ItsVapourIsWhatTheCompressorTakes) {
  Waermetauscher w;
  const logp_H::Ergebnis& e = w.rechne();
  Schritte s(w);
  s.punkt(-10, 40, 0, 8);
  EXPECT_NEAR(e.t_d, s.Ende(e.p_s, e.p_d, e.t_s), 1e-9);
  EXPECT_NEAR(e.P, s.Leistung(e.p_s, e.p_d, e.m, e.t_s), 1e-12);
  EXPECT_NEAR(w.punkt("compressor inlet").h, s.h_Dampf(e.t_s), 1e-9);
}

TEST(LogphInnenWT, TheSecondPassIsOneOfTheSinglePointFormAlone) {
  Durchgang d;
  d.rechne();
  EXPECT_EQ(d.z.Zweistufig, 33);
  EXPECT_EQ(d.form.Zweistufig, 1) << "the form keeps its own";
  d.form.Auswahl2 = false;
  d.rechne();
  EXPECT_EQ(d.z.Zweistufig, 1);
  for (const char* modul : {"SIM_PRO", "2stage", "DiaG"}) {
    Durchgang anderer;
    anderer.form.modul = modul;
    anderer.rechne();
    EXPECT_EQ(anderer.z.Zweistufig, 1) << modul;
  }
  Durchgang andere_Stufe;
  andere_Stufe.form.Zweistufig = 2;
  andere_Stufe.rechne();
  EXPECT_EQ(andere_Stufe.z.Zweistufig, 2);
  andere_Stufe.form.Zweistufig = 0;
  andere_Stufe.rechne();
  EXPECT_EQ(andere_Stufe.z.Zweistufig, 0);
}

TEST(LogphInnenWT, TheSecondPassMovesTheRecordsReferenceAndNothingElse) {
  Durchgang zweiter, erster;
  erster.form.Auswahl2 = false;
  const logp_H::Ergebnis &a = zweiter.rechne(), &b = erster.rechne();
  EXPECT_NEAR(zweiter.z.h_lc, erster.z.h_lc + 200, 1e-9);
  EXPECT_NEAR(zweiter.z.h_l0, erster.z.h_l0 + 200, 1e-9);
  EXPECT_NEAR(zweiter.z.h_v0, erster.z.h_v0 + 200, 1e-9);
  EXPECT_EQ(zweiter.z.h_vc, erster.z.h_vc);
  EXPECT_EQ(a.m, b.m);
  EXPECT_EQ(a.P, b.P);
  EXPECT_EQ(a.h_l, b.h_l);
  EXPECT_EQ(zweiter.form.hsF, erster.form.hsF);
  EXPECT_EQ(zweiter.form.xDampf, erster.form.xDampf);
  EXPECT_EQ(zweiter.form.VerdLeist_DIN, erster.form.VerdLeist_DIN);
  for (std::size_t n = 0; n < erster.form.punkte().Punkte.size(); ++n)
    EXPECT_EQ(zweiter.form.punkte().Punkte[n].h, erster.form.punkte().Punkte[n].h) << n;
}

TEST(LogphInnenWT, WithoutAHeatExchangerTheSecondPassMovesNothing) {
  Durchgang d;
  d.form.Innen_WT = false;
  d.rechne();
  EXPECT_EQ(d.z.Zweistufig, 33);
  EXPECT_EQ(d.z.h_lc, h_lc);
  EXPECT_EQ(d.z.h_l0, h_l0);
  EXPECT_EQ(d.z.h_v0, h_v0);
}
