#include <cmath>

#include "cycle/kreis.h"

namespace polarkreis {
namespace {

/// Enthalpy gained in the evaporator, kJ/kg, by liquid subcooled by `x` kelvin.
double dh(const KMZustand& z, double x) {
  return (z.h_v0 + z.dT_sh * z.cp_v0) - (z.h_lc - z.cp_l * x);
}

double mit_economiser(KMZustand& z, double Q0) {
  double m = 0, rho_m = 0, f = 0;
  setze(z.u, ((z.h_lc - z.h_l0) / (2 * z.cp_l)) - 8);
  setze(m, Q0 / dh(z, z.u));
  setze(z.Q_eco, m * z.u * z.cp_l);
  setze(z.m_eco, z.Q_eco / dh(z, z.u));
  setze(rho_m, std::pow(z.rho_vc * z.rho_s, 0.5));
  setze(f, (Q0 - (z.rho_s / rho_m) * z.Q_eco) / Q0);
  setze(m, m / f);
  return m;
}

}  // namespace

double Kreis::KM_Massenstrom(double fallback, double Q0) {
  KMZustand& z = km.z;
  double m = 0;
  if (ECO_OPT >= 1 && ECO_OPT <= 9)
    m = mit_economiser(z, Q0);
  else
    setze(m, Q0 / dh(z, z.dT_sc));
  if (m == 0) m = fallback;
  setze(z.m_punkt, m);
  return m;
}

void Kreis::Leitungsverlust(double C, double L) {
  KMZustand& z = km.z;
  setze(z.dp_s, C * (L * L) * z.dpdT0 * 1000);
  if (z.Zweistufig != 0)
    z.dp_d = 0;
  else
    setze(z.dp_d, C * (L * L) * 0.5 * z.dpdT0 * z.dpdT_ratio * 1000);
}

}  // namespace polarkreis
