#pragma once

#include <string>

#include "simulation/jahreslauf.h"
#include "sitzung.h"

namespace polarkreis::cli {

/// A state point of the energy simulation, ready to be worked out: the project's refrigerant,
/// tables and limits are checked. Throws `Abbruch` with the text `wenn_nicht` where one of them
/// fails; what is wrong was told then.
Punkt punkt_bereit(Programm& p, Projektdaten& projekt, const std::string& wenn_nicht);

/// Throws `Abbruch` where no COP above 0 came out: such a point has no figures to go by.
void COP_verlangen(const Punktwerte& werte);

}  // namespace polarkreis::cli
