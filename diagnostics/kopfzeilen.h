#pragma once

#include "diagnostics/messung.h"
#include "shell/captions.h"

namespace polarkreis {

/// Writes rows 1 and 2 of the columns: captions with units in the language in force, and measuring
/// points. `unit` 1: base unit, `Orbiter 1` and the computed columns; 2: `Orbiter 2`; 3 to 5 the
/// further units. `kind` 1 is the wiring of a plain base unit, 2 follows `Box_Typ`.
void Col_Standard(Messung& messung, const Captions& captions, int kind, int unit, int Box_Typ);

}  // namespace polarkreis
