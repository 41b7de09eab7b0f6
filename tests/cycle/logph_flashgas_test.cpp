#include "logph_platz.h"

using namespace polarkreis;

namespace {

// R744 by its tables: -10 °C, and 35 °C at 90 bar behind the gas cooler.
constexpr double p0 = 26.4868, h_v0 = 435.14, h_liq = 299.04;
// The tank 5 bar higher: 31.4868 bar lie between the rows of -5 and 0 °C.
constexpr double p_m = p0 + 5;
constexpr double anteil = (p_m - 30.4588) / (34.8514 - 30.4588);
constexpr double t_m = -5 + 5 * anteil;
constexpr double h_Tank = 188.05 + (200.00 - 188.05) * anteil;
constexpr double h_Flashgas = 433.38 + (430.89 - 433.38) * anteil;

/// A transcritical plant of the annual simulation, with 4 K of suction line.
struct Markt : LogphPlatz {
  Markt() : LogphPlatz("R744", -10, 35) {
    form.modul = "SIM_PRO";
    form.Zweistufig = 1;
    form.P_hoch = 90;
    form.t_s = 4;
  }
};

/// The same with a compressor for the flash gas.
struct Parallel : Markt {
  Parallel() { form.ParaL_Check = true; }
};

}  // namespace

TEST(LogphFlashgas, TheTankLiesFiveBarAboveTheEvaporator) {
  for (const bool eigener : {false, true}) {
    Markt p;
    p.form.ParaL_Check = eigener;
    const logp_H::Ergebnis& e = p.rechne();
    Schritte s(p);
    s.punkt(-10, t_m, 4);
    EXPECT_DOUBLE_EQ(e.p_m, p_m);
    EXPECT_NEAR(e.t_m, t_m, 1e-9);
    EXPECT_NEAR(e.h_l, h_Tank, 1e-9);
    EXPECT_NEAR(e.m, 10 / (h_v0 + 10 * s.z.cp_v0 - h_Tank), 1e-12);
    EXPECT_NEAR(e.m_zu, e.m * (h_liq - h_Tank) / (h_Flashgas - h_liq), 1e-12);
    EXPECT_TRUE(p.bilanz("flash tank").schliesst());
  }
}

TEST(LogphFlashgas, WithoutACompressorOfItsOwnItCoolsTheSuctionVapour) {
  Markt p;
  const logp_H::Ergebnis& e = p.rechne();
  Schritte s(p);
  s.punkt(-10, 35, 4);
  const double h_vor = s.h_Dampf(4);
  const double h_misch = (e.m * h_vor + e.m_zu * h_Flashgas) / e.m_hoch;
  EXPECT_EQ(e.Art, Schaltung::Flashgas_Saug);
  const Zustandspunkt ein = p.punkt("compressor inlet");
  EXPECT_NEAR(ein.h, h_misch, 1e-9);
  EXPECT_NEAR(ein.t, -10 + (h_misch - h_v0) / s.z.cp_v0, 1e-9);
  EXPECT_LT(ein.t, 4);
  EXPECT_EQ(e.t_s, 4) << "in front of where it joins";
  EXPECT_NEAR(p.punkt("suction line outlet").h, h_vor, 1e-9);
  EXPECT_NEAR(p.punkt("flash gas throttled").h, h_Flashgas, 1e-9);
  EXPECT_NEAR(e.t_d, s.Ende(p0, 90, ein.t), 1e-9);
  EXPECT_NEAR(e.P, s.Leistung(p0, 90, e.m_hoch, ein.t), 1e-12);
  EXPECT_EQ(e.P_2, 0);
}

// -2 °C: vapour of the tank holds less than saturated vapour of the evaporator and throttles wet.
TEST(LogphFlashgas, ThrottledItMayBeWet) {
  Markt p;
  p.rechne();
  ASSERT_LT(h_Flashgas, h_v0);
  EXPECT_EQ(p.punkt("flash gas throttled").Ort, Lage::nass);
  EXPECT_EQ(p.punkt("flash gas throttled").t, -10);
  // Below about -25 °C the enthalpy of saturated vapour rises with the temperature.
  p.form.t0F = -45;
  p.form.p_Int_Scroll = 3;
  p.form.t_s = leer;
  p.rechne();
  EXPECT_EQ(p.punkt("flash gas throttled").Ort, Lage::ueberhitzt);
  EXPECT_GT(p.punkt("flash gas throttled").t, -45);
}

TEST(LogphFlashgas, ItsOwnCompressorTakesItAtTheTanksPressure) {
  Parallel p;
  const logp_H::Ergebnis& e = p.rechne();
  EXPECT_EQ(e.Art, Schaltung::Flashgas_eigen);
  Schritte haupt(p);
  haupt.punkt(-10, 35, 4);
  EXPECT_NEAR(e.t_d1, haupt.Ende(p0, 90, 4), 1e-9);
  EXPECT_NEAR(e.P_1, haupt.Leistung(p0, 90, e.m, 4), 1e-12);
  const double cp_d1 = haupt.z.cp_d, eta_1 = haupt.z.eta_is;
  Schritte eigen(p);
  eigen.punkt(t_m, 35, t_m + 2);
  EXPECT_NEAR(p.punkt("flash gas compressor inlet").t, t_m + 2, 1e-9);
  EXPECT_NEAR(p.punkt("flash gas compressor inlet").h, eigen.h_Dampf(t_m + 2), 1e-9);
  EXPECT_NEAR(e.t_d2, eigen.Ende(p_m, 90, t_m + 2), 1e-9);
  const double cp_d2 = eigen.z.cp_d;
  EXPECT_NEAR(e.P_2, eigen.Leistung(p_m, 90, e.m_zu, t_m + 2), 1e-12);
  EXPECT_EQ(e.P, e.P_1 + e.P_2);
  EXPECT_NEAR(e.eta, (eta_1 + eigen.z.eta_is) / 2, 1e-12);
  EXPECT_NEAR(p.z.cp_d, (cp_d1 + cp_d2) / 2, 1e-12);
}

TEST(LogphFlashgas, TheGasCoolerTakesWhatBothDeliver) {
  Parallel p;
  const logp_H::Ergebnis& e = p.rechne();
  const Zustandspunkt ein = p.punkt("gas cooler inlet");
  const double haupt = p.punkt("compressor outlet").h;
  const double eigen = p.punkt("flash gas compressor outlet").h;
  EXPECT_NEAR(ein.h, (e.m * haupt + e.m_zu * eigen) / e.m_hoch, 1e-9);
  EXPECT_NEAR(ein.t, (e.m * e.t_d1 + e.m_zu * e.t_d2) / e.m_hoch, 1e-9);
  EXPECT_EQ(e.h_d, ein.h);
  EXPECT_NEAR(e.Qc, e.m_hoch * (ein.h - h_liq), 1e-9);
}

TEST(LogphFlashgas, ALossOfTheSuctionLineReachesTheMainCompressorAlone) {
  Parallel p;
  p.form.C = 1;
  const logp_H::Ergebnis& e = p.rechne();
  Schritte s(p);
  s.punkt(-10, 35, 4);
  EXPECT_NEAR(e.p_s, p0 - s.z.dpdT0, 1e-9);
  EXPECT_NEAR(p.punkt("compressor inlet").p, p0 - s.z.dpdT0, 1e-9);
  EXPECT_DOUBLE_EQ(p.punkt("flash gas compressor inlet").p, p_m);
}

TEST(LogphFlashgas, OnlyTranscriticalPlantsOfTheSimulationAreBuiltSo) {
  Markt unterkritisch;
  unterkritisch.form.tcF = 20;
  EXPECT_EQ(unterkritisch.rechne().Art, Schaltung::zweistufig);
  Markt economiser;
  economiser.form.ECO_OPT = 1;
  EXPECT_EQ(economiser.rechne().Art, Schaltung::zweistufig);
  for (const char* modul : {"MonoF", "2stage", "DiaG"}) {
    Parallel p;
    p.form.modul = modul;
    if (p.form.modul == "DiaG") p.form.p_m = p_m;
    EXPECT_EQ(p.rechne().Art, Schaltung::zweistufig) << modul;
  }
  Parallel einstufig;
  einstufig.form.Zweistufig = 0;
  EXPECT_EQ(einstufig.rechne().Art, Schaltung::einstufig);
}
