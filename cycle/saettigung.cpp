#include "cycle/saettigung.h"

namespace polarkreis {

namespace {

constexpr double nullpunkt = 273.15;

}  // namespace

Saettigung Saettigung_bei(Kaeltemittel& km, double p) {
  Saettigung s;
  km.Sat_Suchen(p, 2);
  setze(s.t_b, km.Sat_Wert(&SatZeile::p_b, p) - nullpunkt);
  setze(s.h_l, km.Sat_Wert(&SatZeile::h_l, p));
  setze(s.rho_l, km.Sat_Wert(&SatZeile::rho_l, p));
  km.Sat_Suchen(p, 1);
  setze(s.t_d, km.Sat_Wert(&SatZeile::p_d, p) - nullpunkt);
  setze(s.h_v, km.Sat_Wert(&SatZeile::h_v, p));
  setze(s.rho_v, km.Sat_Wert(&SatZeile::rho_v, p));
  return s;
}

}  // namespace polarkreis
