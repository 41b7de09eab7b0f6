#include "refrigerant/korrelation.h"

namespace polarkreis {
namespace {

constexpr double nullpunkt = 273.15;

// R_g of the ideal gas and cp_s give c_v, and so the two isentropic exponents.
void exponenten(KMZustand& z, double f, bool festes_verhaeltnis, double t_s) {
  double R_g = 0, c_v = 0;
  setze(R_g, 8.314 / z.M);
  if (festes_verhaeltnis)
    setze(c_v, z.cp_s / 1.13);
  else
    setze(c_v, z.cp_s - R_g);
  setze(f, f * (0.99 - ((t_s + nullpunkt - z.T0) - 10) / 1800));
  setze(z.kappa, (z.cp_s / c_v) * f);
  setze(z.kappa2, (z.cp_s / c_v) * (1.02 + f) / 2);
}

}  // namespace

void Kaeltemittel::Dampf_Korrelation(double T_a, double T_d, double T_x, double t_s) {
  double f = 1.043;
  bool festes_verhaeltnis = false;
  if (const KMEintrag* e = eintrag()) {
    const Korrelation& k = korrelation(*e);
    viskositaeten(z, k, T_a, T_x, t_s);
    waermekapazitaeten(z, k, T_a, T_d, t_s);
    setze(z.M, k.M);
    f = k.f;
    festes_verhaeltnis = k.waerme == Waerme::R124;
  }
  exponenten(z, f, festes_verhaeltnis, t_s);
}

void Kaeltemittel::Dampf_Waerme(double T_a, double T_d, double t_s) {
  if (const KMEintrag* e = eintrag()) waermekapazitaeten(z, korrelation(*e), T_a, T_d, t_s);
}

}  // namespace polarkreis
