#pragma once

#include <string>

#include "shell/start/programm.h"

namespace polarkreis::cli {

/// Names the refrigerant in the state. Throws `Abbruch` with what to do for a designation that the
/// catalogue doesn't hold, and for one whose table is missing or has no readable row. No absent
/// table is opened.
void stoff_waehlen(Programm& p, const std::string& name);

/// Which table of the current refrigerant is missing, and where; R744 has two.
std::string tabelle_fehlt(const Programm& p);

/// Checks the temperatures of a point in °C against the refrigerant's limits of use. Throws
/// `Abbruch` with the program's own words.
void grenzen_pruefen(Programm& p, double t0, double tc);

}  // namespace polarkreis::cli
