#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "diagnostics/methode.h"
#include "kern_desk.h"

using namespace polarkreis;

namespace {

struct Anlage : KernDesk {
  using KernDesk::KernDesk;
  /// Measures a discharge temperature that gives this efficiency; the fit is to 1e-9.
  void wirkungsgrad(double eta) {
    double kalt = 41, heiss = 500;  // the efficiency falls with the temperature
    for (int i = 0; i < 60; ++i) {
      const double t = (kalt + heiss) / 2;
      laufend({{8, Zahl_Text(t)}});
      rechne();
      (kern.werte().eta > eta ? kalt : heiss) = t;
    }
  }
  /// 0 to 10 V of the first free input are 0 to 1000 kg/h.
  void skalierung() {
    std::string text = "\"0\"\r\n\"10\"\r\n\"V\"\r\n\"0\"\r\n\"1000\"\r\n\"kg/h\"\r\n";
    for (int i = 6; i < 25; ++i) text += "\"0\"\r\n";
    eingaenge.schreib("FMD_SP_CAL.dat", text);
  }
  double dh() const {
    const KMZustand& z = km.z;
    return (z.h_v0 + z.dT_sh * z.cp_v0) - (z.h_lc - z.cp_l * z.dT_sc);
  }
};

}  // namespace

TEST(KernKreis, SuctionDensityLosesWithTheSuperheatAndAKelvinOfPressure) {
  Anlage d;
  d.laufend();
  d.rechne();
  // Without the correction: saturated vapour at -9.92 °C, warmed to 3 °C.
  const KMZustand& z = d.km.z;
  const double rho_s = z.rho_v0 * z.T0 / 276.15 * (1 - (3 - d.zahl(3)) / 1500);
  EXPECT_DOUBLE_EQ(z.rho_s, rho_s);
  EXPECT_DOUBLE_EQ(d.kern.werte().rho2, rho_s * (2.013 - z.dpdT0) / 2.013);
  EXPECT_EQ(d.km.z.Antrieb, 2);  // 0 is taken as the second
  EXPECT_EQ(d.kreis.modul, "DiaG");
}

TEST(KernMassenstrom, WithoutASweptVolumeThereIsNone) {
  Anlage d;
  d.laufend();
  d.rechne();
  EXPECT_EQ(d.zelle(139), "0");
  EXPECT_EQ(d.kern.Sum_zeit_messung, 0);
}

// 30 m³/h at a pressure ratio of 10.013/2.013 = 4.97417:
// lambda = (1 + ((4.85 - 4.97417)/4.85)/14) * 0.8 * (1 - 1/(1.2 * 24 + 10)) = 0.777956.
TEST(KernMassenstrom, FollowsFromTheSweptVolume) {
  Anlage d;
  d.messung.Hub_Volumen = 30;
  d.laufend();
  d.rechne();
  const Kernwerte& w = d.kern.werte();
  EXPECT_NEAR(w.lambda, 0.777956198, 1e-9);
  EXPECT_NEAR(w.V_eff, 23.33868593, 1e-8);
  // First design above 4.85: (1 - 0.0256021/10) * 0.796 * (1 - 1/(1.2 * 23.3387^0.92 + 10)) * 1.02
  EXPECT_NEAR(w.e, 0.784348709, 1e-9);
  EXPECT_EQ(w.f, 1);
  EXPECT_DOUBLE_EQ(w.m, 30 * w.rho2 * w.e);
  EXPECT_EQ(d.zelle(139), "214.46");
  EXPECT_EQ(w.Qo, Int(100 * (w.m / 3600) * d.dh()) / 100);
  EXPECT_EQ(d.km.z.Q0, w.Qo);
  EXPECT_NEAR(d.km.z.m_punkt, w.m / 3600, 1e-4);  // of the cut capacity
}

TEST(KernMassenstrom, PartLoadIsAShareOfIt) {
  Anlage d;
  d.messung.Hub_Volumen = 30;
  d.messung.Combo4 = Combo4_Text(M_Teillast, d.captions);
  d.laufend({{37, "50"}});
  d.rechne();
  EXPECT_EQ(d.zelle(139), "107.23");
}

// (1000 - 0)/((10 - 0) - 0) = 100 kg/h a volt.
TEST(KernMassenstrom, AMeasuredOneNeedsNoSweptVolume) {
  Anlage d;
  d.skalierung();
  d.messung.Combo4 = Combo4_Text(M_Messwert, d.captions);
  d.laufend({{37, "3.5"}});
  d.rechne();
  EXPECT_EQ(d.zelle(139), "350");
  EXPECT_EQ(d.kern.werte().Qo, Int(100 * (350.0 / 3600) * d.dh()) / 100);
}

TEST(KernMassenstrom, AMeasuredOneWithoutScalingIsNone) {
  Anlage d;
  d.messung.Combo4 = Combo4_Text(M_Messwert, d.captions);
  d.laufend({{37, "3.5"}});
  d.rechne();
  EXPECT_EQ(d.zelle(139), "0");
}

TEST(KernMassenstrom, TwoStagesDeliverToTheMiddlePressure) {
  Anlage d;
  d.messung.Hub_Volumen = 30;
  d.einheit(1, VerbCapt::Zweistufig, " 2st.");
  d.laufend({{41, "4"}});
  d.rechne();
  const Kernwerte& w = d.kern.werte();
  EXPECT_DOUBLE_EQ(w.p_up, 5.013);
  EXPECT_DOUBLE_EQ(w.f, 2.013 / 5.013);

  d.laufend({{41, "0"}});
  d.rechne();
  EXPECT_DOUBLE_EQ(w.p_up, 1.013);
  EXPECT_EQ(w.f, 1);
}

TEST(KernMassenstrom, OtherFunctionsDeliverToTheHighPressure) {
  Anlage d;
  d.messung.Hub_Volumen = 30;
  d.einheit(1, VerbCapt::Economiser);
  d.laufend({{41, "4"}});
  d.rechne();
  EXPECT_DOUBLE_EQ(d.kern.werte().p_up, 10.013);
  EXPECT_EQ(d.kern.werte().f, 1);
}

TEST(KernEnergie, GrowsByCapacityAndInterval) {
  Anlage d;
  d.messung.Hub_Volumen = 30;
  d.messung.Combo2 = "90s";
  d.laufend();
  d.rechne();
  const double Qo = d.kern.werte().Qo;
  ASSERT_GT(Qo, 5);
  d.kern.Kern_Zeile(3);
  EXPECT_DOUBLE_EQ(d.kern.Summe_Energ, 2 * (Int(1000 * Qo) / 1000) * (90.0 / 3600));
  EXPECT_EQ(d.kern.Sum_zeit_messung, 180);
  EXPECT_EQ(d.kern.Zeit_Box, "00:03:00");
  EXPECT_EQ(d.kern.Energie_Box, Zahl_Text(Int(d.kern.Summe_Energ * 100) / 100));
}

TEST(KernVerdichtungsart, FollowsTheFirstUnit) {
  const struct {
    int code, art;
  } arten[] = {{0, 0},   {1, 0},  {2, 0},  {3, 0},  {4, 1},   {8, 8},  {9, 9},
               {10, 10}, {11, 7}, {12, 0}, {13, 0}, {15, 15}, {26, 26}};
  for (const auto& [code, art] : arten) {
    Anlage d;
    d.laufend();
    d.kern.beginnen();
    d.kern.Funktion.Sensor_Code[1] = code;
    d.kern.Kern_Zeile(3);
    EXPECT_EQ(d.km.z.Zweistufig, art) << code;
  }
}

TEST(KernKapazitaet, ARowWithoutOneKeepsTheOneBefore) {
  Anlage d;
  d.messung.Q0 = 7.5;
  d.messung.Hub_Volumen = 30;
  d.messung.Combo4 = Combo4_Text(M_Teillast, d.captions);
  d.laufend({{37, "0"}}, 3);
  d.laufend({{37, "80"}}, 4);
  d.laufend({{37, "0"}}, 5);
  d.kern.beginnen();
  d.kern.Kern_Zeile(3);
  EXPECT_EQ(d.km.z.Q0, 7.5);
  d.kern.Kern_Zeile(4);
  const double Qo = d.kern.werte().Qo;
  EXPECT_EQ(d.km.z.Q0, Qo);
  EXPECT_NE(Qo, 7.5);
  d.kern.Kern_Zeile(5);
  EXPECT_EQ(d.kern.werte().Qo, 0);
  EXPECT_EQ(d.km.z.Q0, Qo);
}

TEST(KernKapazitaet, WithNoneAtAllOneKilogramASecondStandsIn) {
  Anlage d;
  d.laufend();
  d.rechne();
  EXPECT_EQ(d.km.z.Q0, 0);
  EXPECT_EQ(d.km.z.m_punkt, 1);
  EXPECT_EQ(d.zelle(141), "0");
}

// Injection: the swept flow of the low stage is larger than what the capacity asks for.
TEST(KernKapazitaet, InjectionRebuildsItFromTheFlowWithEconomiser) {
  Anlage d;
  d.messung.Hub_Volumen = 30;
  d.messung.ECO_OPT = 1;
  d.einheit(1, VerbCapt::Zweistufig_Einspritzung);
  d.laufend();
  Anlage einfach;
  einfach.messung.Hub_Volumen = 30;
  einfach.messung.ECO_OPT = 1;
  einfach.laufend();
  d.rechne();
  einfach.rechne();
  const Kernwerte& w = einfach.kern.werte();
  EXPECT_EQ(d.kern.werte().Qo,
            Int(100 * w.Qo * (w.m / 3600) / einfach.kreis.KM_Massenstrom(1, w.Qo)) / 100);
}

TEST(KernLeistung, PressureDropsLowerTheSuctionAndRaiseTheDischarge) {
  Anlage ohne, mit;
  mit.messung.C = 2;
  for (Anlage* d : {&ohne, &mit}) {
    d->messung.Hub_Volumen = 30;
    d->laufend();
    d->rechne();
  }
  const KMZustand& z = mit.km.z;
  EXPECT_DOUBLE_EQ(z.dp_s, 2 * z.dpdT0 * 1000);
  EXPECT_DOUBLE_EQ(z.dp_d, 2 * 0.5 * z.dpdT0 * z.dpdT_ratio * 1000);
  EXPECT_EQ(ohne.km.z.dp_s, 0);
  EXPECT_GT(mit.kern.werte().P_mod, ohne.kern.werte().P_mod);
}

TEST(KernLeistung, TheSizeOfTheFirstRowStaysAndARunBeginsWithoutOne) {
  Anlage d;
  d.messung.Hub_Volumen = 30;
  d.laufend();
  d.kern.beginnen();
  EXPECT_EQ(d.kreis.gespeicherte_Leistung, 0);
  d.kern.Kern_Zeile(3);
  const double groesse = d.kreis.gespeicherte_Leistung;
  EXPECT_GT(groesse, 0);
  d.laufend({{2, "2"}});
  d.kern.Kern_Zeile(3);
  EXPECT_EQ(d.kreis.gespeicherte_Leistung, groesse);
  d.kern.beginnen();
  EXPECT_EQ(d.kreis.gespeicherte_Leistung, 0);
}

TEST(KernWirkungsgrad, BelowTheLimitItGivesNumbers) {
  Anlage d;
  d.messung.Q0 = 10;
  d.wirkungsgrad(1.66);
  EXPECT_NEAR(d.kern.werte().eta, 1.66, 1e-6);
  EXPECT_TRUE(d.zelle(143) == "165" || d.zelle(143) == "166") << d.zelle(143);
  EXPECT_GT(d.zahl(141), 0);
  EXPECT_GT(d.zahl(142), d.zahl(141));
  EXPECT_GT(d.zahl(147), d.zahl(144));
}

TEST(KernWirkungsgrad, AboveTheLimitItGivesNone) {
  Anlage d;
  d.messung.Q0 = 10;
  d.wirkungsgrad(1.67001);
  EXPECT_NEAR(d.kern.werte().eta, 1.67001, 1e-6);
  EXPECT_EQ(d.zelle(143), " - -");
  EXPECT_EQ(d.zelle(144), " - - - ");
  EXPECT_EQ(d.zelle(147), " - - - ");
  EXPECT_EQ(d.zelle(141), "0");
  EXPECT_EQ(d.zelle(142), "0");
}

TEST(KernWirkungsgrad, BelowZeroItGivesNone) {
  Anlage d;
  d.messung.Q0 = 10;
  d.laufend({{8, "0"}});  // colder than the saturated vapour
  d.rechne();
  ASSERT_LT(d.kern.werte().eta, 0);
  EXPECT_EQ(d.zelle(143), " - -");
  EXPECT_EQ(d.zelle(144), " - - - ");
  EXPECT_EQ(d.zelle(147), " - - - ");
}

TEST(KernWirkungsgrad, BelowFortyPercentTheCondenserShowsNothing) {
  Anlage d;
  d.messung.Q0 = 10;
  d.wirkungsgrad(0.39);
  EXPECT_GT(d.zahl(144), 0);
  EXPECT_EQ(d.zelle(147), " - - - ");
  d.wirkungsgrad(0.41);
  EXPECT_GT(d.zahl(144), 0);
  EXPECT_GT(d.zahl(147), 0);
}

TEST(KernWirkungsgrad, FarFromTheModelItIsRedAndTheNumbersStand) {
  Anlage d;
  d.messung.Q0 = 10;
  const auto rot = [&](double eta) {
    d.wirkungsgrad(eta);
    return (d.messung.DiaSpread.rot(3) & Rot_eta) != 0;
  };
  rot(0.8);
  const double mitte = Int(100 * d.kern.werte().eta_mod) / 100;
  EXPECT_FALSE(rot(mitte));
  EXPECT_FALSE(rot(0.9 * mitte + 0.001));
  EXPECT_TRUE(rot(0.9 * mitte - 0.001));
  EXPECT_GT(d.zahl(141), 0);
  EXPECT_FALSE(rot(1.1 * mitte - 0.001));
  EXPECT_TRUE(rot(1.1 * mitte + 0.001));
}

TEST(KernWirkungsgrad, HydrocarbonsAndAmmoniaHaveWiderLimits) {
  for (const char* name : {"R290", "propan", "R600A", "AMMONIAK", "R717", "R290_600", "ETHAN",
                           "ETHYLEN", "METHAN", "R50", "R170", "R1150", "R134A", "R1270"}) {
    Anlage d(name);
    d.laufend();
    d.rechne();
    const Kernwerte& w = d.kern.werte();
    const bool weit = name != std::string("R134A") && name != std::string("R1270");
    const double eta = Int(100 * w.eta_mod);
    EXPECT_DOUBLE_EQ(w.eta_min, 0.9 * eta / 100 * (weit ? 1.08 : 1)) << name;
    EXPECT_DOUBLE_EQ(w.eta_max, 1.1 * eta / 100 * (weit ? 1.08 : 1)) << name;
  }
}

TEST(KernKennzahlen, AreCutFromCapacityPowerAndSuctionGain) {
  Anlage d;
  d.messung.Q0 = 10;
  d.laufend();
  d.rechne();
  const Kernwerte& w = d.kern.werte();
  const KMZustand& z = d.km.z;
  EXPECT_EQ(d.zahl(141), Int(100 * 10 / w.P_ist) / 100);
  const double Q_s = z.m_punkt * (3 - -4) * z.cp_v0;
  EXPECT_EQ(d.zahl(142), Int(100 * (10 + w.P_ist + Q_s) / w.P_ist) / 100);
  EXPECT_EQ(d.zahl(143), Int(100 * w.eta));
  // Apparent power 6.9 kVA.
  EXPECT_EQ(d.zahl(144), Int(100 * w.eta_mod * 6.9 * d.zahl(141)) / 100);
  EXPECT_EQ(d.zahl(147), Int(100 * 6.9 * w.eta_mod * d.zahl(142)) / 100);
}

TEST(KernKennzahlen, CapacityInStepsLosesFourPercent) {
  Anlage glatt, gestuft;
  gestuft.messung.RGCombo = gestuft.captions.text(JMapCap::Regelung_Stufen);
  glatt.messung.RGCombo = glatt.captions.text(JMapCap::Regelung_Drehzahl);
  for (Anlage* d : {&glatt, &gestuft}) {
    d->messung.Q0 = 10;
    d->laufend();
    d->rechne();
  }
  const Kernwerte& w = glatt.kern.werte();
  EXPECT_EQ(gestuft.zahl(144), Int(100 * 0.96 * w.eta_mod * 6.9 * w.EER_1) / 100);
  EXPECT_EQ(gestuft.zelle(147), glatt.zelle(147));
}

TEST(KernKennzahlen, WithoutCaptionsAnEmptyControlIsNotTheOneInSteps) {
  Anlage mit, ohne;
  ohne.captions.Sprache = "ZZZ";
  ohne.captions.Captions_Laden();
  for (Anlage* d : {&mit, &ohne}) {
    d->messung.Q0 = 10;
    d->messung.Combo4 = "some method";
    d->laufend();
    d->rechne();
  }
  EXPECT_GT(mit.zahl(144), 0);
  EXPECT_EQ(ohne.zelle(144), mit.zelle(144));
}

TEST(KernKennzahlen, ThePlantsPowerLessTheCompressorsIsTheRest) {
  Anlage d;
  d.messung.Q0 = 10;
  d.laufend({{18, "12"}});
  d.rechne();
  const Kernwerte& w = d.kern.werte();
  const double P = w.P_el + w.P_rest;
  EXPECT_NEAR(P, 7.36 * w.cosphi, 1e-12);
  EXPECT_EQ(d.zahl(140), Int(100 * (P - d.zahl(144) / w.EER_1)) / 100);
  EXPECT_EQ(d.zahl(138), Int(100 * d.zahl(144) / P) / 100);
  EXPECT_EQ(d.zelle(145), "");
}

TEST(KernKennzahlen, PowerWithoutCapacityLeavesThePlantsFigure) {
  Anlage d;
  d.laufend({{138, "was"}});
  d.rechne();  // no capacity was handed in
  EXPECT_EQ(d.zelle(144), "0");
  EXPECT_EQ(d.zelle(138), "was");
  EXPECT_EQ(d.zelle(140), "0");
}
