#pragma once

#include <string>

#include "simulation/projektdaten.h"

namespace polarkreis::cli {

/// Takes the controls that are no project items from a JSON file and puts them into the form, in
/// the order of the file. Values are texts, numbers or booleans; 0 and 1 for `Rechart_combo` are
/// the project's `Rechart`. Throws `Abbruch` for a file that is missing or no JSON object and for
/// an unknown name; the form then has none of them.
void optionen_lesen(const std::string& datei, Projektdaten& projekt);

}  // namespace polarkreis::cli
