#include <cmath>

#include "cycle/kreis.h"

namespace polarkreis {
namespace {

constexpr double nullpunkt = 273.15;
constexpr double kritisch_CO2 = 304.15;     // K; from here up R744 has no condensing line
constexpr double groesse_ungenannt = 10;    // kW, for the discharge temperature of the point
constexpr double hochdruck_ungenannt = 90;  // bar

/// What one step of the point leaves for the next, beside the record.
struct Zwischen {
  double T_dp = 0;                      // K, where the slope on the low side ends
  double h_l5 = 0, p_d5 = 0, p_b5 = 0;  // 5 K below the condensing temperature
  double p_cb = 0, pc_d = 0;            // bubble and dew pressure at Tc
  double w = 0;                         // weight of the evaporator's inlet
};

using Spalte = double SatZeile::*;

/// One search and the values that it gives: `ziel` is set from `spalte` at the key.
class Suche {
 public:
  Suche(Kaeltemittel& km, double key, int mode) : km_(km) {
    km.Sat_Suchen(key, mode);
    f_ = km.Sat_f(key);
  }
  void setze_aus(double& ziel, Spalte spalte) const { setze(ziel, km_.Sat_Wert_f(spalte, f_)); }

 private:
  const Kaeltemittel& km_;
  double f_;
};

void saugdichte(KMZustand& z, double t_s) {
  setze(z.rho_s, z.rho_v0 * z.T0 / (t_s + nullpunkt));
}

void niederdruck(Kaeltemittel& km, double t_s, Zwischen& l) {
  KMZustand& z = km.z;
  const Suche s(km, z.T0, 0);
  s.setze_aus(z.p0, &SatZeile::p_d);
  s.setze_aus(z.p0_b, &SatZeile::p_b);
  s.setze_aus(z.h_l0, &SatZeile::h_l);
  s.setze_aus(z.h_v0, &SatZeile::h_v);
  s.setze_aus(z.rho_v0, &SatZeile::rho_v);
  s.setze_aus(z.rho_l0, &SatZeile::rho_l);
  saugdichte(z, t_s);
  setze(l.T_dp, z.T0 + 1);
}

// True if the point is transcritical; the high side then comes from the table of superheated
// states.
bool transkritisch(Kaeltemittel& km) {
  KMZustand& z = km.z;
  if (!km.ist_CO2()) return false;
  if (z.Tc > 303.15 && z.Tc < kritisch_CO2) z.Tc = kritisch_CO2;
  if (!(z.Tc >= kritisch_CO2)) return false;
  if (z.P_hoch == 0) z.P_hoch = hochdruck_ungenannt;
  km.CO2_Tabelle(z.Tc, z.P_hoch, 1);
  return true;
}

void fuenf_unter_hochdruck(Kaeltemittel& km, Zwischen& l) {
  const Suche s(km, km.z.Tc - 5, 0);
  s.setze_aus(l.h_l5, &SatZeile::h_l);
  s.setze_aus(l.p_d5, &SatZeile::p_d);
  s.setze_aus(l.p_b5, &SatZeile::p_b);
}

void hochdruck(Kaeltemittel& km, Zwischen& l) {
  KMZustand& z = km.z;
  const Suche s(km, z.Tc, 0);
  s.setze_aus(z.pc, &SatZeile::p_d);
  s.setze_aus(l.p_cb, &SatZeile::p_b);
  s.setze_aus(z.h_lc, &SatZeile::h_l);
  s.setze_aus(z.h_vc, &SatZeile::h_v);
  s.setze_aus(z.rho_vc, &SatZeile::rho_v);
  s.setze_aus(z.rho_lc, &SatZeile::rho_l);
  setze(l.pc_d, z.pc);
  setze(l.w, ((z.h_v0 - z.h_lc) / (z.h_v0 - z.h_l0)) / 2);
}

// Both pressures of a blend lie between the dew and the bubble line, and the values there with
// them.
void gemisch(Kaeltemittel& km, Zwischen& l) {
  KMZustand& z = km.z;
  Suche(km, l.p_d5 + std::abs(l.p_d5 - l.p_b5) / 2, 2).setze_aus(l.h_l5, &SatZeile::h_l);
  setze(z.p0, z.p0 + std::abs(z.p0 - z.p0_b) * l.w);
  setze(z.pc, z.pc + std::abs(z.pc - l.p_cb) / 2);
  const Suche oben(km, z.pc, 2);
  oben.setze_aus(z.h_lc, &SatZeile::h_l);
  oben.setze_aus(z.rho_vc, &SatZeile::rho_v);
  const Suche unten(km, z.p0, 1);
  unten.setze_aus(z.rho_v0, &SatZeile::rho_v);
  unten.setze_aus(z.h_v0, &SatZeile::h_v);
  // In a search by dew pressure that column holds the temperature.
  setze(l.T_dp, km.Sat_Wert(&SatZeile::p_d, z.p0) + 1);
}

void steigungen(Kaeltemittel& km, const Zwischen& l) {
  KMZustand& z = km.z;
  km.Sat_Suchen(l.T_dp, 0);
  setze(z.dpdT0, km.Sat_Wert(&SatZeile::p_d, l.T_dp) - z.p0);
  km.Sat_Suchen(z.Tc + 1, 0);
  setze(z.dpdT_ratio, (km.Sat_Wert(&SatZeile::p_d, z.Tc + 1) - l.pc_d) / z.dpdT0);
}

// The last step, for R744 alone: it settles the discharge and the subcooling.
void austritt_CO2(Kaeltemittel& km, double T_d, double t_s, double kappa, double& dT_sc) {
  KMZustand& z = km.z;
  if (z.Tc >= kritisch_CO2) {
    km.CO2_Tabelle(T_d, z.P_hoch, 2);
    km.CO2_Tabelle(z.Tc, z.P_hoch, 3);
    dT_sc = 0;
  } else if (z.Tc < kritisch_CO2) {
    km.Dampf_Korrelation(z.Tc, T_d, T_d, t_s);
    setze(z.kappa, kappa);
    dT_sc = 3;
  }
}

}  // namespace

double Kreis::Dichte_Faktor() const {
  if (km.z.Antrieb == 0 || km.z.Antrieb == 2) return 1.28;
  return km.z.Antrieb == 3 ? 1.4 : 1.14;
}

void Kreis::KreisPunkt(double t0, double tc, double t_s, double& dT_sc) {
  const Schrittfolge ein_punkt(km.ablage());
  KMZustand& z = km.z;
  Zwischen l;
  setze(z.T0, t0 + nullpunkt);
  setze(z.Tc, tc + nullpunkt);
  setze(z.t_s, t_s);
  niederdruck(km, t_s, l);
  if (!transkritisch(km)) {
    fuenf_unter_hochdruck(km, l);
    hochdruck(km, l);
    if (z.p0 < z.p0_b || z.p0 > z.p0_b) gemisch(km, l);  // not for an empty pressure
    setze(z.cp_l, std::abs(z.h_lc - l.h_l5) / 5);
  }
  saugdichte(z, t_s);
  steigungen(km, l);

  // The discharge temperature is a place holder; the third viscosity takes the suction temperature
  // in °C where kelvin are meant: so it is fitted.
  km.Dampf_Korrelation(z.Tc, t_s, t_s, t_s);
  const double kappa = z.kappa;
  double T_d = 0;
  setze(T_d, Verd_Endtemp(groesse_ungenannt, z.p0, z.pc, t_s + nullpunkt, kappa));
  km.Dampf_Waerme(z.Tc, T_d, t_s);  // all of the second pass that the new T_d reaches
  setze(z.rho_d, (z.rho_vc * z.Tc) / (T_d * Dichte_Faktor()));
  if (km.ist_CO2()) austritt_CO2(km, T_d, t_s, kappa, dT_sc);
  setze(z.dT_sc, dT_sc);
}

}  // namespace polarkreis
