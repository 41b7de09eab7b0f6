#pragma once

#include <string>

#include "refrigerant/kaeltemittel.h"
#include "shell/captions.h"

namespace polarkreis::cli {

/// Names the refrigerant in the state. Throws `Abbruch` with what to do for a designation that the
/// catalogue doesn't hold, and for one whose table is missing or has no readable row.
void stoff_waehlen(Kaeltemittel& km, const Captions& captions, const std::string& name);

/// Checks the temperatures of a point in °C against the refrigerant's limits of use. Throws
/// `Abbruch` with the program's own words.
void grenzen_pruefen(Kaeltemittel& km, const Captions& captions, double t0, double tc);

}  // namespace polarkreis::cli
