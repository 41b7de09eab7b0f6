#include <gtest/gtest.h>

#include <map>

#include "cycle/kreis.h"
#include "support/kaeltemittel_umgebung.h"
#include "support/referenz.h"

using namespace polarkreis;

namespace {

const std::map<std::string, double KMZustand::*> felder = {
    {"T0", &KMZustand::T0},         {"Tc", &KMZustand::Tc},
    {"p0", &KMZustand::p0},         {"p0_b", &KMZustand::p0_b},
    {"pc", &KMZustand::pc},         {"h_l0", &KMZustand::h_l0},
    {"h_v0", &KMZustand::h_v0},     {"h_lc", &KMZustand::h_lc},
    {"h_vc", &KMZustand::h_vc},     {"rho_l0", &KMZustand::rho_l0},
    {"rho_v0", &KMZustand::rho_v0}, {"rho_lc", &KMZustand::rho_lc},
    {"rho_vc", &KMZustand::rho_vc}, {"rho_s", &KMZustand::rho_s},
    {"rho_d", &KMZustand::rho_d},   {"cp_l", &KMZustand::cp_l},
    {"cp_d", &KMZustand::cp_d},     {"cp_v0", &KMZustand::cp_v0},
    {"cp_s", &KMZustand::cp_s},     {"eta_v0", &KMZustand::eta_v0},
    {"eta_vs", &KMZustand::eta_vs}, {"eta_vd", &KMZustand::eta_vd},
    {"eta_l0", &KMZustand::eta_l0}, {"eta_lc", &KMZustand::eta_lc},
    {"M", &KMZustand::M},           {"kappa", &KMZustand::kappa},
    {"kappa2", &KMZustand::kappa2}, {"dpdT0", &KMZustand::dpdT0},
    {"T_is", &KMZustand::T_is},     {"dpdT_ratio", &KMZustand::dpdT_ratio},
    {"dT_sc", &KMZustand::dT_sc},   {"h_d_co2", &KMZustand::h_d_co2},
    {"P_hoch", &KMZustand::P_hoch}};

void vergleiche(const Referenzzeile& r, const std::string& spalte, double wert) {
  EXPECT_TRUE(wie_referenz(wert, r(spalte)))
      << r.name << " " << r("t0") << "/" << r("tc") << " " << spalte << ": " << wert
      << " instead of " << r(spalte);
}

void eingeben(const Referenzzeile& r, KMZustand& z) {
  z.dT_sh = r("dT_sh");
  z.P_hoch = r("P_hoch_ein");
  z.Bauart = static_cast<int>(r("Bauart"));
  z.Antrieb = static_cast<int>(r("Antrieb"));
  z.Zweistufig = static_cast<int>(r("Zweistufig"));
}

// The compressor models, in the order of the annual run, and then once as on a measured point.
void verdichter_vergleichen(const Referenzzeile& r, Kreis& kreis) {
  const KMZustand& z = kreis.km.z;
  kreis.ECO_OPT = static_cast<int>(r("ECO_OPT"));
  kreis.Frequenz_Option = static_cast<int>(r("Frequenz_Option"));
  const double t_s = r("t_s"), Q0 = r("Q0");
  const double m = kreis.KM_Massenstrom(0, Q0);
  vergleiche(r, "m", m);
  vergleiche(r, "T_d", kreis.Verd_Endtemp(20, z.p0, z.pc, t_s + 273.15, z.kappa));
  const auto leistung = [&](double t_d, int mode) {
    return kreis.Verd_Leistung(z.p0, z.pc, z.T0, z.Tc, m, z.dT_sh, t_s, z.h_vc, z.h_v0, t_d, mode);
  };
  kreis.modul = "SIM";
  vergleiche(r, "P_welle", leistung(0, 0));
  vergleiche(r, "eta_welle", z.eta_is);
  kreis.modul = "DiaG";
  kreis.gespeicherte_Leistung = 4.5;
  vergleiche(r, "P_el", leistung(r("tc") + 40, 2));
  vergleiche(r, "P_el", z.P_verd);
  vergleiche(r, "eta_el", z.eta_is);
  vergleiche(r, "Q_eco", z.Q_eco);
  vergleiche(r, "m_eco", z.m_eco);
  vergleiche(r, "u", z.u);
  vergleiche(r, "eta_klasse", kreis.Verd_Wirkungsgrad(z.pc, 150, z.p0, 80, Q0 > 50 ? 7 : 3));
}

TEST(KreisPunkt, EveryDesignationAndModelMatchesTheReference) {
  const auto referenz = referenz_lesen("cycle/kreis_referenz.csv");
  ASSERT_GT(referenz.size(), 100u);
  for (const Referenzzeile& r : referenz) {
    KaeltemittelUmgebung u(r.name);
    eingeben(r, u.km.z);
    Kreis kreis(u.km);
    double dT_sc = r("dT_sc_ein");
    kreis.KreisPunkt(r("t0"), r("tc"), r("t_s"), dT_sc);
    for (const auto& [spalte, feld] : felder) vergleiche(r, spalte, u.km.z.*feld);
    vergleiche(r, "dT_sc", dT_sc);
    verdichter_vergleichen(r, kreis);
  }
}

TEST(KreisPunkt, EveryDesignationIsPhysicallyPlausibleAtASensiblePair) {
  const auto referenz = referenz_lesen("cycle/kreis_referenz.csv");
  const auto katalog = KM_Katalog();
  for (std::size_t i = 0; i < katalog.size(); ++i) {  // the first rows are the catalogue in order
    const Referenzzeile& r = referenz[i];
    ASSERT_EQ(r.name, katalog[i].name);
    KaeltemittelUmgebung u(r.name);
    eingeben(r, u.km.z);
    Kreis kreis(u.km);
    double dT_sc = 2;
    kreis.KreisPunkt(r("t0"), r("tc"), r("t_s"), dT_sc);
    const KMZustand& z = u.km.z;
    SCOPED_TRACE(r.name);
    EXPECT_GT(z.p0, 0);
    EXPECT_LT(z.p0, z.pc);
    EXPECT_GT(z.h_v0, z.h_l0);
    EXPECT_GT(z.h_vc, z.h_lc);
    EXPECT_GT(z.h_lc, z.h_l0);
    EXPECT_GT(z.rho_l0, z.rho_v0);
    EXPECT_GT(z.rho_lc, z.rho_vc);
    EXPECT_LT(z.rho_s, z.rho_v0);
    EXPECT_GT(z.dpdT0, 0);
    EXPECT_GT(z.dpdT_ratio, 1);
    EXPECT_GT(z.kappa, 1);
    EXPECT_LT(z.kappa, 1.7);
    EXPECT_GT(z.cp_l, 0.5);
    EXPECT_LT(z.cp_l, 7);
    const double T_d = kreis.Verd_Endtemp(10, z.p0, z.pc, r("t_s") + 273.15, z.kappa);
    EXPECT_GT(T_d, z.Tc);
    EXPECT_LT(T_d, z.Tc + (r.name == "R717" || r.name == "AMMONIAK" ? 200 : 130));
  }
}

}  // namespace
