#pragma once

#include <string_view>

#include "diagnostics/messung.h"
#include "shell/captions.h"

namespace polarkreis {

/// Puts the texts of a measurement that are captions into the language in force: plant scheme,
/// method, capacity control, and the functions and unit names in the table of the units. What the
/// files of language `von` don't hold stays as it is.
void Messung_uebersetzen(Messung& messung, const Captions& captions, std::string_view von);

}  // namespace polarkreis
