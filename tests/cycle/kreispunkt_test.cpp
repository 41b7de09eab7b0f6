#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <cstring>
#include <new>

#include "cycle/kreis.h"
#include "support/kaeltemittel_umgebung.h"
#include "support/temp_folder.h"

using namespace polarkreis;

namespace {

struct Aufbau {
  KaeltemittelUmgebung u;
  Kreis kreis;
  KMZustand& z;
  explicit Aufbau(const std::string& name, const std::string& ordner = POLARKREIS_DATA)
      : u(name, ordner), kreis(u.km), z(u.km.z) {
    z.dT_sh = 6;
  }
  double punkt(double t0, double tc, double t_s, double dT_sc = 2) {
    kreis.KreisPunkt(t0, tc, t_s, dT_sc);
    return dT_sc;
  }
};

TEST(KreisPunkt, PureFluidKeepsTheTablesPressures) {
  Aufbau a("R22");
  EXPECT_EQ(a.punkt(-10, 40, 0), 2);
  EXPECT_EQ(a.z.T0, 263.15);
  EXPECT_DOUBLE_EQ(a.z.p0, 3.54786);
  EXPECT_EQ(a.z.p0, a.z.p0_b);
  EXPECT_DOUBLE_EQ(a.z.h_v0, 401.20);
  EXPECT_DOUBLE_EQ(a.z.rho_v0, 15.32);
  EXPECT_DOUBLE_EQ(a.z.rho_s, 15.32 * 263.15 / 273.15);
  EXPECT_EQ(a.z.t_s, 0);
  EXPECT_EQ(a.z.dT_sc, 2);
  EXPECT_EQ(a.z.dT_sh, 6) << "the caller's";
  KaeltemittelUmgebung tafel("R22");
  tafel.km.Sat_Suchen(313.15, 0);
  EXPECT_DOUBLE_EQ(a.z.pc, tafel.km.z.Klammer.Oben.p_d);
  EXPECT_DOUBLE_EQ(a.z.h_lc, tafel.km.z.Klammer.Oben.h_l);
  // rows are 5 K apart, and 35 °C is a row as well
  EXPECT_DOUBLE_EQ(a.z.cp_l, (tafel.km.z.Klammer.Oben.h_l - tafel.km.z.Klammer.Unten.h_l) / 5);
}

// Rows of 5 K whose columns are straight lines, so that every step can be followed by hand.
constexpr const char* gerade_mit_glide =
    "250,2,2.5,100,350,1300,10\n255,3,3.5,110,352,1290,15\n260,4,4.5,120,354,1280,20\n"
    "295,11,11.5,190,368,1210,55\n300,12,12.5,200,370,1200,60\n305,13,13.5,210,372,1190,65\n"
    "310,14,14.5,220,374,1180,70\n";

TEST(KreisPunkt, BlendTakesMeanPressuresAndTheValuesThere) {
  TempOrdner ordner;
  ordner.schreib("R407C.DAT", gerade_mit_glide);
  Aufbau a("R407C", ordner.pfad());
  a.punkt(252 - 273.15, 302 - 273.15, -10);
  // At T0 = 252 K: p_d 2.4, p_b 2.9, h_l 104, h_v 350.8. At Tc = 302 K: p_d 12.4, h_l 204.
  // w = ((350.8 - 204)/(350.8 - 104))/2 = 0.29740681
  const double w = 0.5 * (350.8 - 204) / (350.8 - 104);
  EXPECT_NEAR(a.z.p0, 2.4 + 0.5 * w, 1e-12);
  EXPECT_NEAR(a.z.p0_b, 2.9, 1e-12);
  EXPECT_NEAR(a.z.pc, 12.4 + 0.5 / 2, 1e-12);
  // 12.65 bar on the bubble line is 300 + 5·(12.65 - 12.5)/1 = 300.75 K: h_l 201.5, rho_v 60.75
  EXPECT_NEAR(a.z.h_lc, 201.5, 1e-10);
  EXPECT_NEAR(a.z.rho_vc, 60.75, 1e-10);
  EXPECT_NEAR(a.z.h_vc, 370.8, 1e-10) << "h_vc stays at Tc";
  // 5 K lower: 11.4 + 0.25 bar on the bubble line, 295.75 K, h_l 191.5
  EXPECT_NEAR(a.z.cp_l, 2, 1e-11);
  // p0 on the dew line: T = 250 + 5·(p0 - 2)
  const double T = 250 + 5 * (a.z.p0 - 2);
  EXPECT_NEAR(a.z.h_v0, 350 + 0.4 * (T - 250), 1e-10);
  EXPECT_NEAR(a.z.rho_v0, 10 + (T - 250), 1e-10);
  EXPECT_NEAR(a.z.rho_s, a.z.rho_v0 * 252 / 263.15, 1e-10) << "with the final density";
  EXPECT_NEAR(a.z.dpdT0, 0.2, 1e-10);    // 1 K on the dew line
  EXPECT_NEAR(a.z.dpdT_ratio, 1, 1e-9);  // 12.6 - 12.4 on the high side
}

TEST(KreisPunkt, R744JustBelowTheCriticalPointIsMovedToIt) {
  Aufbau a("R744");
  EXPECT_EQ(a.punkt(-10, 30.5, 0), 0);
  EXPECT_EQ(a.z.Tc, 304.15);
  EXPECT_EQ(a.z.P_hoch, 90) << "a high pressure that is not set";
  EXPECT_EQ(a.z.pc, 90);
  EXPECT_EQ(a.z.h_lc, a.z.h_vc);
  EXPECT_EQ(a.z.dT_sc, 0);
}

TEST(KreisPunkt, R744BelowTheCriticalPointSubcoolsByThree) {
  for (const char* name : {"R744", "co2 "}) {
    Aufbau a(name);
    EXPECT_EQ(a.punkt(-10, 25, 0), 3) << name;
    EXPECT_EQ(a.z.dT_sc, 3);
    EXPECT_EQ(a.z.P_hoch, 0);
    EXPECT_EQ(a.punkt(-10, 40, 0), 0) << name;
    EXPECT_EQ(a.z.dT_sc, 0);
    EXPECT_EQ(a.z.P_hoch, 90);
  }
}

TEST(KreisPunkt, TranscriticalTakesTheGivenHighPressure) {
  Aufbau a("R744");
  a.z.P_hoch = 95.5;
  a.punkt(-10, 36, 0);
  EXPECT_EQ(a.z.pc, 95.5);
  EXPECT_EQ(a.z.P_hoch, 95.5);
  // The discharge row stands at the end: its density is no longer the fitted one.
  KaeltemittelUmgebung tafel("R744");
  Kreis kreis(tafel.km);
  const double T_d = a.kreis.Verd_Endtemp(10, a.z.p0, a.z.pc, 273.15, a.z.kappa);
  tafel.km.CO2_Tabelle(T_d, 95.5, 2);
  EXPECT_EQ(a.z.rho_d, tafel.km.z.rho_d);
  EXPECT_EQ(a.z.eta_vd, tafel.km.z.eta_vd);
  EXPECT_EQ(a.z.h_d_co2, tafel.km.z.h_d_co2);
}

TEST(KreisPunkt, SubcriticalR744KeepsTheExponentOfTheFirstPass) {
  Aufbau a("R744");
  a.punkt(-10, 20, 5);
  KaeltemittelUmgebung erster("R744");
  erster.km.z.T0 = a.z.T0;
  erster.km.z.dT_sh = 6;
  erster.km.Dampf_Korrelation(a.z.Tc, 5, 5, 5);
  EXPECT_EQ(a.z.kappa, erster.km.z.kappa);
  // and the third viscosity at the discharge temperature, where others take t_s
  const double T_d = a.kreis.Verd_Endtemp(10, a.z.p0, a.z.pc, 278.15, a.z.kappa);
  EXPECT_DOUBLE_EQ(a.z.eta_vd, 1.1 * Poly3(-0.00534835, 0.00011418, -3.35825e-7, 4.72675e-10, T_d));
}

TEST(KreisPunkt, ThirdViscosityTakesDegreesForKelvin) {
  Aufbau a("R22");
  a.punkt(-10, 40, 5);
  EXPECT_DOUBLE_EQ(a.z.eta_vd, Poly3(-0.031501, 0.000420115, -1.5084e-6, 2.02506e-9, 5));
}

TEST(KreisPunkt, EmptyInputLeavesItsFieldAsItWas) {
  Aufbau a("R22");
  a.punkt(-10, 40, 0);
  const double p0 = a.z.p0;
  a.punkt(leer, 45, 0);
  EXPECT_EQ(a.z.T0, 263.15);
  EXPECT_EQ(a.z.p0, p0);
  EXPECT_GT(a.z.pc, 16);
}

TEST(KreisPunkt, MissingTableLeavesTheRecordEmpty) {
  TempOrdner ordner;
  Aufbau a("R404A", ordner.pfad());
  EXPECT_EQ(a.punkt(-10, 40, 0), 2);
  EXPECT_TRUE(ist_leer(a.z.p0));
  EXPECT_TRUE(ist_leer(a.z.cp_l));
  EXPECT_EQ(a.z.M, 97.6);
  EXPECT_GT(a.z.kappa, 1);
}

TEST(KreisPunkt, OutsideTheTableWorksOnWithTheRowsOfTheSearchBefore) {
  TempOrdner ordner;
  ordner.schreib("R22.DAT",
                 "250,2,2,100,350,1300,10\n255,3,3,110,352,1290,15\n260,4,4,120,354,1280,20\n");
  Aufbau a("R22", ordner.pfad());
  a.punkt(252 - 273.15, 270 - 273.15, -10);
  // Tc - 5 = 265 K: Unten 260 K, Oben still 255 K of the search at T0; Tc = 270 K the same.
  // f = (270 - 260)/(255 - 260) = -2: p = 4 - 2·(3 - 4)
  EXPECT_NEAR(a.z.pc, 6, 1e-9);
  EXPECT_NEAR(a.z.h_lc, 140, 1e-9);
}

bool gleiche_bits(const KMZustand& a, const KMZustand& b) {
  // All doubles of the record stand side by side from T0 to u.
  const auto bytes = reinterpret_cast<const char*>(&a.u) - reinterpret_cast<const char*>(&a.T0);
  return std::memcmp(&a.T0, &b.T0, static_cast<std::size_t>(bytes) + sizeof(double)) == 0 &&
         std::memcmp(&a.Klammer, &b.Klammer, sizeof a.Klammer) == 0;
}

TEST(KreisPunkt, SecondPassOfTheCorrelationsFindsNothingToChange) {
  for (const KMEintrag& e : KM_Katalog()) {
    Aufbau a{std::string(e.name)};
    if (a.u.km.ist_CO2()) continue;
    const double t0 = e.tmin + 15, tc = t0 + 35;
    a.punkt(t0, tc, t0 + 12);
    const double T_d = a.kreis.Verd_Endtemp(10, a.z.p0, a.z.pc, t0 + 12 + 273.15, a.z.kappa);
    const KMZustand vorher = a.z;
    a.u.km.Dampf_Korrelation(a.z.Tc, T_d, t0 + 12, t0 + 12);
    EXPECT_TRUE(gleiche_bits(vorher, a.z)) << e.name;
  }
}

TEST(KreisPunkt, ParsedCopyGivesTheBitsOfATableReadAnew) {
  for (const char* name : {"R22", "R404A", "R717", "R744", "R123", "R12"}) {
    Aufbau kopie(name), neu(name);
    neu.u.ablage.immer_neu_lesen = true;
    double dT_sc = 2;
    for (const double tc : {-40.0, 12.3, 30.2, 38.0, 47.7, 80.0}) {
      kopie.punkt(-20.5, tc, -4);
      neu.punkt(-20.5, tc, -4, dT_sc);
      EXPECT_TRUE(gleiche_bits(kopie.z, neu.z)) << name << " " << tc;
    }
  }
}

TEST(KreisPunkt, EditedTableTakesEffectAtTheNextCall) {
  TempOrdner ordner;
  ordner.schreib("R407C.DAT", gerade_mit_glide);
  Aufbau a("R407C", ordner.pfad());
  a.punkt(252 - 273.15, 302 - 273.15, -10);
  EXPECT_NEAR(a.z.p0_b, 2.9, 1e-12);
  std::string andere = gerade_mit_glide;
  andere.replace(andere.find("2.5"), 3, "2.2");
  ordner.schreib("R407C.DAT", andere);
  a.punkt(252 - 273.15, 302 - 273.15, -10);
  EXPECT_NEAR(a.z.p0_b, 2.2 + 0.4 * 1.3, 1e-12);
}

}  // namespace
