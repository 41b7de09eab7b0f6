#pragma once

#include "cycle/logp_h.h"
#include "diagnostics/einheiten_funktion.h"
#include "diagnostics/messung.h"

namespace polarkreis {

/// Puts a computed row of the measurement into the form of the log p-h analysis, as caller "DiaG":
/// pressures and temperatures as measured, superheat and subcooling as the kernel worked them out.
/// Two stages where the first unit's function says so, between them the unit's pressure and
/// temperature. R744 above the pressures of its table is judged by the temperature behind the gas
/// cooler. False, and the form as it was, for a row without figures of the cycle: a sensor is open,
/// or the row was never computed.
bool Real_logp_h(const Messung& messung, const Einheitenfunktion& funktion, int zeile,
                 Kaeltemittel& km, logp_H& form);

}  // namespace polarkreis
