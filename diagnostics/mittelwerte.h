#pragma once

#include <string_view>

#include "diagnostics/messung.h"
#include "shell/warten.h"

namespace polarkreis {

/// Condenses the table: lowest, highest and mean of each stored column into rows 3, 4 and 5 of
/// `MittelW_Spread`. The last row in use is left out; cells that are no numbers count as 0. False
/// if the progress asked to stop.
bool MW_Bildung(Messung& messung, Fortschritt& fortschritt);

/// Mean of up to three readings of one quantity; empty, "0" and "-" are none. 0 without a reading.
double Mittel_wert(std::string_view a, std::string_view b, std::string_view c);

}  // namespace polarkreis
