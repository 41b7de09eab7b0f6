#pragma once

#include "refrigerant/kaeltemittel.h"

namespace polarkreis {

/// What both saturation lines hold at one pressure.
struct Saettigung {
  double t_b = leer, t_d = leer;      ///< bubble and dew temperature, °C
  double h_l = leer, h_v = leer;      ///< kJ/kg
  double rho_l = leer, rho_v = leer;  ///< kg/m³
};
/// Both lines at `p` bar absolute, interpolated in the current refrigerant's table; outside it by
/// the rule of the lookup.
Saettigung Saettigung_bei(Kaeltemittel& km, double p);

}  // namespace polarkreis
