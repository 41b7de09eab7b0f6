#pragma once

#include "cycle/logp_h.h"
#include "simulation/anlage.h"

namespace polarkreis {

/// Puts a plant at full load into the form of the log p-h analysis, as caller "SIM_PRO", with the
/// values of "SubAct.dat" and the liquid line's loss of "JMapOpt.dat"; the refrigerant goes into
/// the state. Transcritical R744 has its tank 5 bar above the evaporator.
void Projekt_Uebernehmen(const Anlage& anlage, Kaeltemittel& km, logp_H& form);

}  // namespace polarkreis
