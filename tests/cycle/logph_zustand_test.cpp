#include <cstring>

#include "logph_platz.h"

using namespace polarkreis;

namespace {

/// All that a calculation shows, number by number.
std::vector<double> gezeigtes(const logp_H& f) {
  const logp_H::Ergebnis& e = f.ergebnis();
  std::vector<double> alle{e.p0,   e.pc,   e.p_s,    e.p_d,      e.t_s,   e.t_m,   e.p_m,
                           e.m,    e.m_zu, e.m_hoch, e.m_Modell, e.h_liq, e.h_l,   e.t_d1,
                           e.t_d2, e.t_d,  e.h_d,    e.P_1,      e.P_2,   e.P,     e.eta,
                           e.Q_SL, e.Qc,   f.hsF,    f.hTF,      f.rhoSF, f.rhoTF, f.tGlide};
  for (const double feld : {f.t0_Punkt, f.xDampf, f.EnthDiff, f.VerdLeist_DIN, f.EER_ACT})
    alle.push_back(feld);
  for (const Zustandspunkt& p : f.punkte().Punkte) alle.insert(alle.end(), {p.p, p.t, p.h, p.rho});
  for (const Bilanz& b : f.bilanzen()) alle.insert(alle.end(), {b.zu, b.ab});
  return alle;
}

bool gleiche_bits(const std::vector<double>& a, const std::vector<double>& b) {
  return a.size() == b.size() && std::memcmp(a.data(), b.data(), a.size() * sizeof(double)) == 0;
}

/// What else may have been worked out with the same objects, or stand in the record.
void anderes(LogphPlatz& p) {
  const std::string mittel = p.z.RefName;
  p.z.RefName = "R717";
  logp_H andere(p.kreis);
  andere.modul = "DiaG";
  andere.t0F = -33;
  andere.tcF = 31;
  andere.Zweistufig = 9;
  andere.t_end = 120;
  andere.t_s2 = 10;
  andere.p_m = 4;
  EXPECT_TRUE(andere.Rechnen());
  p.kreis.ECO_OPT = 4;
  p.kreis.gespeicherte_Leistung = 30;
  p.z.Klammer = {};
  p.z.P_hoch = 77;
  p.z.m_eco = 5;
  p.z.h_d_co2 = 1;
  p.z.RefName = mittel;
  p.form.tcF -= 2;
  EXPECT_TRUE(p.form.Rechnen());
  p.form.tcF += 2;
}

}  // namespace

TEST(LogphZustand, TheSettingsOfTheCycleComeBack) {
  LogphPlatz p;
  p.kreis.modul = "VERB";
  p.kreis.ECO_OPT = 7;
  p.kreis.gespeicherte_Leistung = 12.5;
  p.form.modul = "DiaG";
  p.form.ECO_OPT = 2;
  p.form.t_end = 80;
  for (const double tc : {40.0, -50.0}) {  // with a result, and without
    p.form.tcF = tc;
    EXPECT_EQ(p.form.Rechnen(), tc > 0);
    EXPECT_EQ(p.kreis.modul, "VERB");
    EXPECT_EQ(p.kreis.ECO_OPT, 7);
    EXPECT_EQ(p.kreis.gespeicherte_Leistung, 12.5);
  }
}

TEST(LogphZustand, TheFormsOwnFieldsStay) {
  LogphPlatz p;
  p.form.t0F = -10;
  p.form.Zweistufig = 1;
  p.form.Auswahl2 = true;
  p.form.Innen_WT = true;
  p.form.dT_liquid = 5;
  p.rechne();
  EXPECT_EQ(p.form.Zweistufig, 1);
  EXPECT_EQ(p.form.dT_sc, 3);
  EXPECT_TRUE(ist_leer(p.form.t_s));
  EXPECT_TRUE(ist_leer(p.form.p_m));
  EXPECT_EQ(p.form.P_hoch, 0);
  EXPECT_EQ(p.form.modul, "MonoF");
}

TEST(LogphZustand, NoResultDependsOnWhatWasWorkedOutBefore) {
  struct Fall {
    const char* mittel;
    const char* modul;
    double tc;
    int Zweistufig, ECO_OPT;
  };
  for (const Fall& fall : {Fall{"R134A", "MonoF", 40, 0, 0},
                           {"R407C", "MonoF", 40, 1, 0},
                           {"R134A", "2stage", 40, 0, 3},
                           {"R744", "MonoF", 20, 0, 0},
                           {"R744", "MonoF", 36, 1, 0},
                           {"R744", "SIM_PRO", 36, 1, 0},
                           {"R134A", "DiaG", 40, 0, 0},
                           {"R134A", "DiaG", 40, 1, 1}}) {
    LogphPlatz p(fall.mittel, -25, fall.tc);
    p.form.modul = fall.modul;
    p.form.Zweistufig = fall.Zweistufig;
    p.form.ECO_OPT = fall.ECO_OPT;
    p.form.C = 1;
    p.rechne();
    const auto erst = gezeigtes(p.form);
    anderes(p);
    p.rechne();
    EXPECT_TRUE(gleiche_bits(gezeigtes(p.form), erst)) << fall.mittel << " " << fall.modul;
    p.rechne();
    EXPECT_TRUE(gleiche_bits(gezeigtes(p.form), erst)) << "at once again";
  }
}

TEST(LogphZustand, TheRecordHoldsTheWholePressureRangeShifted) {
  LogphPlatz p("R134A", -30, 40);
  p.form.modul = "2stage";
  p.form.Zweistufig = 1;
  p.form.p_m = 4;
  p.form.C = 1;
  const logp_H::Ergebnis& e = p.rechne();
  EXPECT_NEAR(p.z.T0, 243.15, 1e-9);
  EXPECT_NEAR(p.z.Tc, 313.15, 1e-9);
  EXPECT_NEAR(p.z.p0, 0.843777, 1e-12);
  EXPECT_NEAR(p.z.pc, 10.1659, 1e-12);
  EXPECT_EQ(p.z.p_m, 4);
  EXPECT_EQ(p.z.t_m, e.t_m);
  EXPECT_EQ(p.z.m_punkt, e.m);
  EXPECT_EQ(p.z.m_eco, e.m_zu);
  EXPECT_EQ(p.z.P_verd, e.P);
  EXPECT_EQ(p.z.eta_is, e.eta);
  EXPECT_NEAR(p.z.dp_s, (0.843777 - e.p_s) * 1000, 1e-9);
  EXPECT_EQ(p.z.Q0, 10);
  EXPECT_EQ(p.z.dT_sh, 10);
}

TEST(LogphZustand, TheRefrigerantsOwnDataStay) {
  LogphPlatz p("r134a ");
  p.rechne();
  EXPECT_EQ(p.z.RefFile, "R134A.DAT");
  EXPECT_EQ(p.z.GWP, 1430);
  LogphPlatz mit_Grenzen;
  mit_Grenzen.u.km.KM_Grenzen();
  mit_Grenzen.rechne();
  EXPECT_EQ(mit_Grenzen.z.tmin, -60);
  EXPECT_EQ(mit_Grenzen.z.tmax, 85);
}

TEST(LogphZustand, WhatAPlantHasntIsntLeftFromAnother) {
  LogphPlatz p("R134A", -30, 40);
  p.form.Zweistufig = 1;
  p.form.ECO_OPT = 1;
  p.rechne();
  ASSERT_FALSE(ist_leer(p.z.u));
  p.form.Zweistufig = p.form.ECO_OPT = 0;
  p.rechne();
  EXPECT_TRUE(ist_leer(p.z.u));
  EXPECT_TRUE(ist_leer(p.z.Q_eco));
  EXPECT_TRUE(ist_leer(p.z.p_m));
  EXPECT_EQ(p.z.m_eco, 0);
  EXPECT_EQ(p.z.Zweistufig, 0);
}
