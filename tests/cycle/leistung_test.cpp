#include <gtest/gtest.h>

#include <cmath>

#include "cycle/kreis.h"
#include "support/kaeltemittel_umgebung.h"

using namespace polarkreis;

namespace {

/// A record whose balance can be done by hand: at the suction side h_1 = 400 + 10·0.5 = 405.
struct Aufbau {
  KaeltemittelUmgebung u;
  Kreis kreis;
  KMZustand& z;
  explicit Aufbau(const std::string& name = "R22") : u(name), kreis(u.km), z(u.km.z) {
    z.T0 = 263.15;
    z.Tc = 313.15;
    z.cp_v0 = 0.5;
    z.cp_d = 0.8;
    z.kappa = 1.2;
    z.kappa2 = 1.15;
    z.T_is = 340.15;
    z.h_l0 = 190;
    z.h_v0 = 400;
    z.h_lc = 250;
    z.cp_l = 1.3;
    z.dT_sh = 6;
    z.dT_sc = 2;
    z.rho_vc = 66;
    z.rho_s = 15;
  }
  double leistung(double m, double t_d, int mode) {
    return kreis.Verd_Leistung(3.5, 15, 263.15, 313.15, m, 6, 0, 420, 400, t_d, mode);
  }
};

TEST(KMMassenstrom, IsTheCapacityOverTheEnthalpyGained) {
  Aufbau a;
  // (400 + 6·0.5) - (250 - 1.3·2) = 155.6
  EXPECT_DOUBLE_EQ(a.kreis.KM_Massenstrom(9, 100), 100 / 155.6);
  EXPECT_DOUBLE_EQ(a.z.m_punkt, 100 / 155.6);
  a.kreis.ECO_OPT = 10;
  EXPECT_DOUBLE_EQ(a.kreis.KM_Massenstrom(9, 100), 100 / 155.6);
}

TEST(KMMassenstrom, CapacityOfZeroGivesTheFallback) {
  Aufbau a;
  EXPECT_EQ(a.kreis.KM_Massenstrom(0.123, 0), 0.123);
  EXPECT_EQ(a.z.m_punkt, 0.123);
  a.kreis.ECO_OPT = 3;
  EXPECT_EQ(a.kreis.KM_Massenstrom(0.123, 0), 0.123);
  a.kreis.ECO_OPT = 0;
  a.z.h_lc = 405.6;  // no enthalpy gained: the division fails
  EXPECT_EQ(a.kreis.KM_Massenstrom(0.5, 100), 0.5);
}

TEST(KMMassenstrom, EconomiserSubcoolsAndAddsItsOwnFlow) {
  for (const int option : {1, 9}) {
    Aufbau a;
    a.kreis.ECO_OPT = option;
    const double m = a.kreis.KM_Massenstrom(9, 100);
    // u = 60/2.6 - 8 = 15.0769231; dh = 403 - (250 - 19.6) = 172.6; m = 0.57937428;
    // Q_eco = m·u·1.3 = 11.3557358; rho_m = sqrt(990) = 31.4642654;
    // f = (100 - (15/31.4642654)·11.3557358)/100 = 0.94586365
    EXPECT_NEAR(a.z.u, 15.076923076923, 1e-10);
    EXPECT_NEAR(a.z.Q_eco, 11.3557358053, 1e-8);
    EXPECT_NEAR(a.z.m_eco, 11.3557358053 / 172.6, 1e-10);
    EXPECT_NEAR(m, 0.57937427578 / 0.94586365, 1e-8);
    EXPECT_EQ(a.z.m_punkt, m);
  }
}

TEST(Leitungsverlust, IsALossInKelvinTimesTheSlope) {
  Aufbau a;
  a.z.dpdT0 = 0.12;
  a.z.dpdT_ratio = 3;
  a.kreis.Leitungsverlust(2, 0.5);
  EXPECT_DOUBLE_EQ(a.z.dp_s, 60);  // 2·0.25·0.12·1000
  EXPECT_DOUBLE_EQ(a.z.dp_d, 90);
  a.z.Zweistufig = 1;
  a.kreis.Leitungsverlust(2, 1);
  EXPECT_DOUBLE_EQ(a.z.dp_s, 240);
  EXPECT_EQ(a.z.dp_d, 0);
}

TEST(VerdLeistung, MeasuredPointGivesElectricPower) {
  Aufbau a;
  // h_2 = 420 + 0.8·(80 - 40) = 452, P = 47·0.5 = 23.5; h_2is = 420 + 0.8·27 = 441.6, P_is = 18.3
  const double g = 1 / (0.905 - 1 / (48 * 23.5));
  for (const int mode : {1, 2}) {
    const double P = a.leistung(0.5, 80, mode);
    EXPECT_NEAR(P, 23.5 / 0.9 * g * 0.93, 1e-10);
    EXPECT_EQ(a.z.P_verd, P);
    EXPECT_NEAR(a.z.eta_is, 18.3 / 23.5, 1e-12) << "before the electric factors";
  }
  a.kreis.Frequenz_Option = 1;
  EXPECT_NEAR(a.leistung(0.5, 80, 1), 23.5 / 0.9 * g * 1.03 * 0.93, 1e-10);
  a.kreis.Frequenz_Option = 2;
  EXPECT_NEAR(a.leistung(0.5, 80, 1), 23.5 / 0.9 * g * 1.04 * 0.93, 1e-10);
  a.z.Bauart = 4;
  EXPECT_NEAR(a.leistung(0.5, 80, 1), 23.5 / 0.925 * g * 1.04 * 0.93, 1e-10);
}

TEST(VerdLeistung, ModeZeroRepeatsThePassWithItsOwnPower) {
  Aufbau a;
  const auto bei = [&](double size) {
    const double t_d = a.kreis.Verd_Endtemp(size, 3.5, 15, 273.15, 1.2) - 273.15;
    return (420 + 0.8 * (t_d - 40) - 405) * 0.5;
  };
  const double erster = bei(5), zweiter = bei(erster);
  EXPECT_NE(erster, zweiter);
  const double T_is = a.z.T_is;
  EXPECT_NEAR(a.leistung(0.5, 999, 0), zweiter, 1e-10) << "a given discharge temperature is unused";
  EXPECT_EQ(a.z.T_is, T_is) << "of the second pass";
  EXPECT_NEAR(a.z.eta_is, (420 + 0.8 * (T_is - 313.15) - 405) * 0.5 / zweiter, 1e-12);
}

TEST(VerdLeistung, SmallMachinesArePenalisedByTheFirstPassesPower) {
  Aufbau a;
  const auto bei = [&](double size) {
    const double t_d = a.kreis.Verd_Endtemp(size, 3.5, 15, 273.15, 1.2) - 273.15;
    return (420 + 0.8 * (t_d - 40) - 405) * 0.02;
  };
  const double erster = bei(5);
  ASSERT_LT(erster, 2);
  const double zweiter = bei(erster);
  EXPECT_NEAR(a.leistung(0.02, 0, 0), zweiter * (1 + 5.5 * (2 - erster) / 100), 1e-12);
}

TEST(VerdLeistung, PowerOfZeroOrBelowCountsAsTenKilowatt) {
  Aufbau a;
  const double P = a.leistung(0.5, 0, 1);  // h_2 = 420 - 32 = 388 < h_1
  const double g = 1 / (0.905 - 1.0 / 480);
  EXPECT_NEAR(P, -8.5 / 0.9 * g * 0.93, 1e-10);
}

TEST(VerdLeistung, DiagnosticModeKeepsItsPowerFromRowToRow) {
  Aufbau a;
  a.kreis.modul = "DiaG";
  a.leistung(0.5, 80, 2);
  EXPECT_NEAR(a.kreis.gespeicherte_Leistung, 23.5, 1e-12) << "estimated on the first row";
  // The next row takes the stored size as it is.
  const double P = a.leistung(0.25, 80, 2);
  EXPECT_NEAR(P, 11.75 / 0.9 * (1 / (0.905 - 1 / (48 * 23.5))) * 0.93, 1e-10);
  EXPECT_NEAR(a.kreis.gespeicherte_Leistung, 23.5, 1e-12);
  a.kreis.gespeicherte_Leistung = 0;
  a.leistung(0.25, 0, 2);
  EXPECT_EQ(a.kreis.gespeicherte_Leistung, 10) << "a power below 0 is kept as 10 kW";
  a.kreis.modul = "SIM";
  a.kreis.gespeicherte_Leistung = 0;
  a.leistung(0.25, 80, 2);
  EXPECT_EQ(a.kreis.gespeicherte_Leistung, 0);
}

TEST(VerdLeistung, FirstFailingStatementEndsItAndTheRecordStays) {
  Aufbau a;
  a.leistung(0.5, 80, 1);
  const double P = a.z.P_verd, eta = a.z.eta_is;
  EXPECT_FALSE(std::isfinite(a.leistung(leer, 80, 1)));
  EXPECT_FALSE(std::isfinite(a.leistung(0.5, leer, 1)));
  EXPECT_FALSE(std::isfinite(a.leistung(0, 80, 0))) << "0/0 in the efficiency";
  a.z.cp_d = leer;
  EXPECT_FALSE(std::isfinite(a.leistung(0.5, 80, 1)));
  EXPECT_EQ(a.z.P_verd, P);
  EXPECT_EQ(a.z.eta_is, eta);
}

TEST(VerdLeistung, TwoStageTranscriticalR744TakesTheTablesDischarge) {
  Aufbau a("R744");
  a.z.P_hoch = 86;
  a.z.Tc = 308.15;
  a.z.T_is = 320.15;
  const auto leistung = [&] {
    return a.kreis.Verd_Leistung(30, 86, 263.15, 308.15, 0.5, 6, 0, 300, 400, 60, 1);
  };
  // Row 60 °C, 86 bar: 449.18. P = (449.18 - 405)·0.5 = 22.09, P_is = 12/25 of it.
  for (const int stufe : {1, 2}) {
    a.z.Zweistufig = stufe;
    EXPECT_NEAR(leistung(), 22.09 / 0.9 * (1 / (0.905 - 1 / (48 * 22.09))) * 0.93, 1e-9);
    EXPECT_NEAR(a.z.eta_is, 0.48, 1e-12);
    EXPECT_EQ(a.z.h_d_co2, 449.18);
  }
  for (const int stufe : {0, 33}) {  // h_2 = 300 + 0.8·25 = 320
    a.z.Zweistufig = stufe;
    leistung();
    EXPECT_NEAR(a.z.eta_is, (300 + 0.8 * 12 - 405) / (320.0 - 405), 1e-12);
  }
}

}  // namespace
