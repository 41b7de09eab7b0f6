#include "simulation/punkt.h"

#include <cmath>

#include "werkstatt.h"

using namespace polarkreis;

namespace {

class PunktRechnen : public ::testing::Test {
 protected:
  Werkstatt w;
  Anlage anlage() {
    w.km.z.RefName = w.projekt.KaelteM;
    return Anlage_von(w.projekt);
  }
  Punktwerte rechne(int modus, double last = 1) {
    Anlage a = anlage();
    return w.punkt.Punkt_Rechnen(a, modus, last, last * 100);
  }
  double dh() const {
    const KMZustand& z = w.km.z;
    return (z.h_v0 + z.dT_sh * z.cp_v0) - (z.h_lc - z.cp_l * z.dT_sc);
  }
};

}  // namespace

// The supermarket: stepped control 0.98, 8 K: t0 = -8 + 8 - 7.84; suction -7.84 + 6.4 + 5 + 0.
TEST_F(PunktRechnen, AddsThePlantsOffsets) {
  w.projekt.aendern("WartungI", w.text(JMapCap::Wartung_mittel));
  const Punktwerte p = rechne(0);
  EXPECT_NEAR(p.t0_eff, -7.84, 1e-12);
  EXPECT_NEAR(p.tc_eff, 52, 1e-12);
  EXPECT_NEAR(p.t_saug, 3.56, 1e-12);
  EXPECT_EQ(p.dt_Winter, 0);
}

TEST_F(PunktRechnen, BalancesMassAndEnergy) {
  const Punktwerte p = rechne(0);
  const KMZustand& z = w.km.z;
  EXPECT_NEAR(p.m_0, 120 / dh(), 1e-12);
  EXPECT_NEAR(p.m_punkt, p.m_0, 1e-12);
  EXPECT_NEAR(p.Hub_Volumen, 3600 * p.m_0 / z.rho_s, 1e-9);
  // Pipe factor 1, doubled for a cold room: 2 K on the suction line, 1 K on the discharge line.
  EXPECT_NEAR(p.dp_s, 2 * z.dpdT0 * 1000, 1e-9);
  EXPECT_NEAR(p.dp_d, 2 * 0.5 * z.dpdT0 * z.dpdT_ratio * 1000, 1e-9);
  const double welle = w.kreis.Verd_Leistung(z.p0 - p.dp_s / 1000, z.pc + p.dp_d / 1000, z.T0, z.Tc,
                                             p.m_punkt, 6.4, p.t_saug, z.h_vc, z.h_v0, 0, 0);
  EXPECT_NEAR(p.P, welle * 1.01, 1e-9);  // semi-hermetic 1, reciprocating 1.01
  EXPECT_NEAR(p.COP, 120 / p.P, 1e-12);
}

TEST_F(PunktRechnen, PartLoadShrinksTheLineLossesWithItsSquare) {
  const double voll = rechne(0, 1).dp_s;
  EXPECT_NEAR(rechne(0, 0.5).dp_s, voll / 4, 1e-9);
}

TEST_F(PunktRechnen, DensityIsCorrectedForTheSuperheat) {
  const Punktwerte p = rechne(0);
  const KMZustand& z = w.km.z;
  const double ohne = z.rho_v0 * z.T0 / (p.t_saug + 273.15);
  EXPECT_NEAR(z.rho_s, ohne * (1 - (p.t_saug - p.t0_eff) / 1500), 1e-12);
  EXPECT_NEAR(p.rho2, z.rho_s * (z.p0 - z.dpdT0) / z.p0, 1e-12);
}

TEST_F(PunktRechnen, LowestCondensingTemperatureFollowsTheExpansionDevice) {
  w.projekt.Combo1 = w.text(JMapCap::Ventil_thermostatisch);
  Punktwerte p = rechne(2);
  EXPECT_DOUBLE_EQ(p.tmin, w.km.Sat_TausP(w.km.z.p0 + 7 + 1 + 1, 177) + 1);
  EXPECT_EQ(p.WinterRGart, Zahl_Text(Int(p.tmin)) + " °C");
  w.projekt.Combo1 = w.text(JMapCap::Ventil_elektronisch);
  p = rechne(2);
  EXPECT_DOUBLE_EQ(p.tmin, w.km.Sat_TausP(w.km.z.p0 + 3 + 1 + 1, 177) + 1);
  EXPECT_TRUE(w.dialog.fragen.empty());
  EXPECT_TRUE(rechne(0).WinterRGart.empty());
  EXPECT_TRUE(rechne(3).WinterRGart.empty());
}

TEST_F(PunktRechnen, ModusOneAsksAndNoKeepsTheLimit) {
  Anlage a = anlage();
  w.dialog.antwort = false;
  EXPECT_TRUE(w.punkt.Punkt_Rechnen(a, 1, 1, 100).WinterRGart.empty());
  EXPECT_EQ(a.tmin_gemerkt, 0);
  ASSERT_EQ(w.dialog.fragen.size(), 1u);
  w.dialog.antwort = true;
  EXPECT_FALSE(w.punkt.Punkt_Rechnen(a, 1, 1, 100).WinterRGart.empty());
  EXPECT_GT(a.tmin_gemerkt, 0);
}

TEST_F(PunktRechnen, DefaultsStandInForAnEmptyParameterFile) {
  w.ordner.schreib("JMapOpt.dat", "\"\"\r\n\"4\"\r\n");
  w.projekt.Combo1 = w.text(JMapCap::Ventil_thermostatisch);
  Punktwerte p = rechne(2);
  EXPECT_DOUBLE_EQ(p.tmin, w.km.Sat_TausP(w.km.z.p0 + 9, 177) + 1);
  w.projekt.Combo1 = w.captions.text(Caption::Schwimmerventil);
  p = rechne(2);
  EXPECT_DOUBLE_EQ(p.tmin, w.km.Sat_TausP(w.km.z.p0 + 6, 177) + 1);
}

TEST_F(PunktRechnen, AnEditedParameterFileTakesEffectAtTheNextPoint) {
  const double vorher = rechne(0).t_saug;
  w.ordner.schreib("SubAct.dat", "\"0\"\r\n\"4\"\r\n\"2\"\r\n\"5\"\r\n");
  EXPECT_NEAR(rechne(0).t_saug, vorher + 4, 1e-12);
}

TEST_F(PunktRechnen, DisplacementGivesTheCapacityForOnePoint) {
  w.punkt.Hub_Volumen_gegeben = 100;
  const Punktwerte p = rechne(77);
  const KMZustand& z = w.km.z;
  const double pi = z.pc / z.p0;
  const double eta = (1 + ((4.85 - pi) / 4.85) / 14) * 0.8 * (1 - 1 / (1.2 * 0.8 * 100 + 10));
  EXPECT_DOUBLE_EQ(p.eta_vol, eta);
  EXPECT_DOUBLE_EQ(p.Q0, Int(100 * (100 * p.rho2 * eta / 3600) * dh()) / 100);
  EXPECT_DOUBLE_EQ(p.COP, p.Q0 / p.P);
  EXPECT_EQ(rechne(0).Q0, 120);
}

TEST_F(PunktRechnen, InternalHeatExchangerDoesNotDependOnWhatRanBefore) {
  w.projekt.Check3D1 = true;
  const Punktwerte erst = rechne(0);
  w.km.z.RefName = "R717";
  double dT_sc = 0;
  w.kreis.KreisPunkt(-30, 20, 0, dT_sc);
  const Punktwerte dann = rechne(0);
  EXPECT_EQ(erst.P, dann.P);
  EXPECT_EQ(erst.t_saug, dann.t_saug);
  EXPECT_GT(erst.t_saug, 3.56 + 5 * 0.5);  // 5 K times the ratio of the specific heats
  EXPECT_EQ(erst.subcooling, 7);
}

TEST_F(PunktRechnen, R744TakesItsSpecificHeatsFromASubcriticalPoint) {
  w.oeffne("CO2 supermarket.prj");
  w.projekt.Check3D1 = true;
  const Punktwerte p = rechne(0);
  KMZustand& z = w.km.z;
  const double t0 = -8 + 8 - 8 * 1.05;
  const double saug = t0 + 6.4 + 5;
  double dT_sc = 0;
  w.kreis.KreisPunkt(t0, t0 + 7, saug, dT_sc);
  EXPECT_NEAR(p.t_saug, saug + 5 * z.cp_l / z.cp_v0, 1e-12);
}

TEST_F(PunktRechnen, FlashTankLiesFiveBarAboveTheEvaporator) {
  w.oeffne("CO2 supermarket.prj");
  const Punktwerte p = rechne(0);
  const KMZustand& z = w.km.z;
  EXPECT_NEAR(p.p_m, z.p0 + 5, 1e-12);
  EXPECT_GT(p.t_m, p.t0_eff);
  EXPECT_EQ(z.h_lc, p.h_fl);
  EXPECT_GT(p.m_eco, 0);
  EXPECT_EQ(p.dp_d, 0);
  EXPECT_NEAR(p.Hub_Volumen, 3600 * (p.m_0 + p.m_eco) / z.rho_s, 1e-9);
  EXPECT_EQ(p.subcooling, 0);
}

TEST_F(PunktRechnen, ParallelCompressionAddsTheFlashGasCompressor) {
  w.oeffne("CO2 supermarket.prj");
  const double ohne = rechne(0).P;
  w.projekt.ParaL_Check = true;
  const Punktwerte mit = rechne(0);
  const KMZustand& z = w.km.z;
  const double dazu = w.kreis.Verd_Leistung(mit.p_m - mit.dp_s / 1000, z.pc, mit.t_m + 273.15, z.Tc,
                                            mit.m_eco, 2, mit.t_m + 2, z.h_vc, z.h_v0, 0, 0);
  EXPECT_NEAR(mit.P, ohne + dazu * 1.01, 1e-9);
  EXPECT_GT(mit.rho_fl, z.rho_s);
}

TEST_F(PunktRechnen, EconomiserSavesFivePercentWhereTranscritical) {
  w.oeffne("CO2 supermarket.prj");
  Anlage a = anlage();
  const double eco_frei = w.punkt.Punkt_Rechnen(a, 0, 1, 100).P;
  const double m_ohne = w.punkt.werte().m_punkt;
  a.ECO_OPT = 1;
  const Punktwerte p = w.punkt.Punkt_Rechnen(a, 0, 1, 100);
  // The economiser also changes the mass flow; per mass flow the power is 5 % less.
  EXPECT_NEAR(p.P / p.m_punkt, 0.95 * eco_frei / m_ohne, 0.02 * eco_frei / m_ohne);
  a.ECO_OPT = 10;
  EXPECT_EQ(w.punkt.Punkt_Rechnen(a, 0, 1, 100).P, eco_frei);
}

TEST_F(PunktRechnen, AFailingPowerLeavesTheCOPOfThePointBefore) {
  Anlage a = anlage();
  const double cop = w.punkt.Punkt_Rechnen(a, 0, 1, 100).COP;
  a.Kaeltemittel = w.km.z.RefName = "R0";
  w.km.z.h_v0 = leer;
  w.km.z.cp_v0 = leer;
  EXPECT_EQ(w.punkt.Punkt_Rechnen(a, 0, 1, 100).COP, cop);
}
