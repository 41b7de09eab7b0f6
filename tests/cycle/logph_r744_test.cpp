#include "logph_platz.h"

using namespace polarkreis;

namespace {

// R744 by its tables: at -10 and -30 °C, and 35 °C at 90 bar behind a gas cooler.
constexpr double p0_10 = 26.4868, h_v0_10 = 435.14;
constexpr double p0_30 = 14.2776, h_v0_30 = 436.82;
constexpr double h_Gaskuehler = 299.04;

/// R744 at -10 and 35 °C, 90 bar.
struct Transkritisch : LogphPlatz {
  explicit Transkritisch(double t0 = -10, double tc = 35) : LogphPlatz("R744", t0, tc) {
    form.P_hoch = 90;
  }
};

/// -30 and 35 °C in two stages, the tank 5 bar above the evaporator.
struct Zweistufig : Transkritisch {
  Zweistufig() : Transkritisch(-30) { form.Zweistufig = 1; }
};
// 19.2776 bar lie between 16.8274 at -25 °C and 19.6963 at -20 °C.
constexpr double anteil = (p0_30 + 5 - 16.8274) / (19.6963 - 16.8274);
constexpr double t_m = -25 + 5 * anteil;
constexpr double h_Tank = 143.79 + (154.45 - 143.79) * anteil;
constexpr double h_Flashgas = 437.06 + (436.89 - 437.06) * anteil;

}  // namespace

TEST(LogphR744, BelowItsCriticalPointItSubcoolsByThree) {
  LogphPlatz p("R744", -30, 20);
  p.form.dT_sc = 12;
  const logp_H::Ergebnis& e = p.rechne();
  const double cp_l = (255.87 - 239.99) / 5;
  EXPECT_FALSE(e.transkritisch);
  EXPECT_EQ(e.pc, 57.2905);
  EXPECT_EQ(p.z.dT_sc, 3);
  EXPECT_NEAR(e.h_l, 255.87 - 3 * cp_l, 1e-9);
  EXPECT_NEAR(p.punkt("condenser outlet").t, 17, 1e-9);
  EXPECT_NEAR(p.punkt("condenser outlet").h, 255.87 - 3 * cp_l, 1e-9);
  p.form.Innen_WT = true;
  p.form.dT_liquid = 4;
  EXPECT_NEAR(p.rechne().h_l, 255.87 - 7 * cp_l, 1e-9);
}

TEST(LogphR744, AboveItTheGasCoolersOutletStandsInTheTable) {
  Transkritisch p;
  const logp_H::Ergebnis& e = p.rechne();
  EXPECT_TRUE(e.transkritisch);
  EXPECT_EQ(e.pc, 90);
  EXPECT_EQ(p.z.dT_sc, 0);
  EXPECT_EQ(e.h_l, h_Gaskuehler);
  const Zustandspunkt aus = p.punkt("gas cooler outlet");
  EXPECT_EQ(aus.h, h_Gaskuehler);
  EXPECT_EQ(aus.t, 35);
  EXPECT_EQ(aus.p, 90);
  EXPECT_EQ(aus.Ort, Lage::ueberkritisch);
  EXPECT_FALSE(p.hat("condensation begins"));
  EXPECT_FALSE(p.hat("condenser outlet"));
  Schritte s(p);
  s.punkt(-10, 35, 0);
  EXPECT_NEAR(e.m, 10 / (h_v0_10 + 10 * s.z.cp_v0 - h_Gaskuehler), 1e-12);
}

TEST(LogphR744, TheDischargeEnthalpyOfADiagramIsTheTables) {
  Transkritisch p;
  const logp_H::Ergebnis& e = p.rechne();
  Schritte s(p);
  s.z.Zweistufig = 2;
  s.punkt(-10, 35, 0);
  EXPECT_NEAR(e.t_d, s.Ende(p0_10, 90, 0), 1e-9);
  EXPECT_NEAR(e.P, s.Leistung(p0_10, 90, e.m, 0), 1e-12) << "from the table";
  s.u.km.CO2_Tabelle(e.t_d + 273.15, 90, 2);
  EXPECT_EQ(e.h_d, s.z.h_d_co2);
  EXPECT_EQ(p.z.h_d_co2, s.z.h_d_co2);
  EXPECT_EQ(p.punkt("compressor outlet").h, s.z.h_d_co2);
  EXPECT_EQ(p.punkt("compressor outlet").rho, s.z.rho_d);
  EXPECT_EQ(p.punkt("compressor outlet").Ort, Lage::ueberkritisch);
}

// Whatever the number of stages is called, the power is that of the table.
TEST(LogphR744, ATranscriticalCompressionTakesWhatItsPointsSay) {
  for (const int stufen : {0, 1, 8}) {
    Transkritisch p;
    p.form.Zweistufig = stufen;
    p.rechne();
    const Bilanz b = p.bilanz(stufen == 0 ? "compressor" : "high stage");
    EXPECT_NEAR(b.Rest(), 0, 0.05 * b.zu) << stufen;
  }
}

TEST(LogphR744, BetweenThirtyAndThirtyOneDegreesItIsMovedToTheCriticalPoint) {
  Transkritisch p(-10, 30.5);
  EXPECT_TRUE(p.rechne().transkritisch);
  EXPECT_NEAR(p.punkt("gas cooler outlet").t, 31, 1e-9);
  LogphPlatz darunter("R744", -10, 30);
  EXPECT_FALSE(darunter.rechne().transkritisch);
}

TEST(LogphR744, AHighPressureThatIsntSetIsNinety) {
  Transkritisch p;
  p.form.P_hoch = 0;
  EXPECT_EQ(p.rechne().pc, 90);
  EXPECT_EQ(p.z.P_hoch, 90);
  p.form.P_hoch = 100;
  EXPECT_EQ(p.rechne().pc, 100);
}

TEST(LogphR744, BothDesignationsAreOne) {
  Transkritisch p;
  const double P = p.rechne().P;
  p.z.RefName = "co2";
  EXPECT_EQ(p.rechne().P, P);
  EXPECT_TRUE(p.form.ergebnis().transkritisch);
}

TEST(LogphR744Zweistufig, TheTankTakesWhatComesFromTheGasCooler) {
  Zweistufig p;
  const logp_H::Ergebnis& e = p.rechne();
  EXPECT_EQ(e.Art, Schaltung::zweistufig);
  EXPECT_EQ(e.pc, 90);
  EXPECT_DOUBLE_EQ(e.p_m, p0_30 + 5);
  EXPECT_NEAR(e.t_m, t_m, 1e-9);
  EXPECT_EQ(e.h_liq, h_Gaskuehler);
  EXPECT_NEAR(e.h_l, h_Tank, 1e-9);
  Schritte s(p);
  s.punkt(-30, t_m, -20);
  EXPECT_NEAR(e.m, 10 / (h_v0_30 + 10 * s.z.cp_v0 - h_Tank), 1e-12);
  EXPECT_NEAR(e.m_zu, e.m * (h_Gaskuehler - h_Tank) / (h_Flashgas - h_Gaskuehler), 1e-12);
}

TEST(LogphR744Zweistufig, TheHighStagesPowerStandsOnTheTable) {
  Zweistufig p;
  const logp_H::Ergebnis& e = p.rechne();
  const Zustandspunkt ein = p.punkt("high stage inlet"), aus = p.punkt("compressor outlet");
  // The power's discharge temperature isn't the point's: its size is another.
  Schritte s(p);
  s.punkt(t_m, 35, ein.t);
  EXPECT_NEAR(e.t_d, s.Ende(e.p_m, 90, ein.t), 1e-9);
  EXPECT_NEAR(e.P_2, s.Leistung(e.p_m, 90, e.m_hoch, ein.t), 1e-12);
  EXPECT_NEAR(e.P_2, e.m_hoch * (s.z.h_d_co2 - ein.h), 1e-12);
  EXPECT_NEAR(aus.h, e.h_d, 1e-12);
  EXPECT_EQ(aus.Ort, Lage::ueberkritisch);
  EXPECT_EQ(ein.Ort, Lage::ueberhitzt);
}

TEST(LogphR744Zweistufig, SubcriticalItCondensesAndIsSubcooledByThree) {
  LogphPlatz p("R744", -30, 20);
  p.form.Zweistufig = 1;
  const logp_H::Ergebnis& e = p.rechne();
  EXPECT_EQ(e.pc, 57.2905);
  EXPECT_NEAR(e.h_liq, 255.87 - 3 * (255.87 - 239.99) / 5, 1e-9);
  EXPECT_TRUE(p.hat("condensation begins"));
}

TEST(LogphR744Zweistufig, ItsOwnFieldsStandInPlaceOfTheOthers) {
  Zweistufig p, wie;
  p.form.toh_EV_Scroll = 6;
  p.form.toh_SL_Scroll = 4;
  p.form.p_GC_Scroll = 95;
  p.form.Innen_WT = wie.form.Innen_WT = true;
  p.form.dT_liquid = 1;
  p.form.tu_WT_Scroll = 3;
  wie.form.dT_sh = 6;
  wie.form.t_s = -20;  // 4 K above the evaporator's outlet
  wie.form.P_hoch = 95;
  wie.form.dT_liquid = 3;
  const logp_H::Ergebnis& e = p.rechne();
  EXPECT_EQ(e.P, wie.rechne().P);
  EXPECT_EQ(e.m, wie.form.ergebnis().m);
  EXPECT_EQ(e.pc, 95);
  EXPECT_EQ(p.z.dT_sh, 6);
  EXPECT_EQ(p.punkt("evaporator outlet").t, -24);
  EXPECT_EQ(p.figur("  toh = "), "  toh = 6 K");
}

// Without one of their own the rise in the suction line is the one of the given inlet.
TEST(LogphR744Zweistufig, ANewSuperheatKeepsTheSuctionLinesRise) {
  Zweistufig p;
  p.form.t_s = -15;  // 5 K above the outlet at 10 K superheat
  p.form.toh_EV_Scroll = 6;
  EXPECT_NEAR(p.rechne().t_s, -30 + 6 + 5, 1e-12);
}

TEST(LogphR744Zweistufig, OtherPlantsDontKnowThoseFields) {
  Transkritisch eine, eine_ohne;
  LogphPlatz andere("R134A", -30, 40), andere_ohne("R134A", -30, 40);
  andere.form.Zweistufig = andere_ohne.form.Zweistufig = 1;
  for (LogphPlatz* p : {static_cast<LogphPlatz*>(&eine), &andere}) {
    p->form.toh_EV_Scroll = 6;
    p->form.toh_SL_Scroll = 4;
    p->form.p_GC_Scroll = 95;
  }
  EXPECT_EQ(eine.rechne().P, eine_ohne.rechne().P);
  EXPECT_EQ(andere.rechne().P, andere_ohne.rechne().P);
}

TEST(LogphR744Zweistufig, AHeatExchangersSubcoolingNeedsTheHeatExchanger) {
  Zweistufig p, ohne;
  p.form.tu_WT_Scroll = 3;
  EXPECT_EQ(p.rechne().P, ohne.rechne().P);
}

TEST(LogphR744Zweistufig, TheCompanionValueIsOnlyShown) {
  Zweistufig p, ohne;
  p.form.tu_Scroll = 3;
  EXPECT_EQ(p.rechne().P, ohne.rechne().P);
}

TEST(LogphR744Zweistufig, TheGasCoolersBestPressureGoesIn) {
  Zweistufig p;
  p.form.GC_Druck(35);
  EXPECT_EQ(p.rechne().pc, 89);
  EXPECT_EQ(p.form.ergebnis().h_liq, 300.5);
}
