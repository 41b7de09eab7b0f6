#pragma once

#include "ausgabe.h"
#include "simulation/ergebnis.h"

namespace polarkreis::cli {

/// Every figure of a state point under its name, then the fields of the refrigerant state that have
/// no namesake among them. `WinterRGart` is the text that the point leaves, or else the project's.
Json punkt_json(const Punktwerte& punkt, const KMZustand& zustand, const std::string& WinterRGart);

/// Every total and result of a finished run under its name. What a design kind doesn't work out is
/// null, and its result table is empty.
Json rechnung_json(const Rechnung& rechnung, const Projektdaten& projekt);

}  // namespace polarkreis::cli
