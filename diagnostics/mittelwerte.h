#pragma once

#include <string_view>

#include "diagnostics/messung.h"
#include "shell/warten.h"

namespace polarkreis {

/// The rows of `MittelW_Spread` that hold the three results of a column.
enum Mittelzeile : int { Mittel_kleinster = 3, Mittel_groesster = 4, Mittel_wert_zeile = 5 };

/// Condenses the table: lowest, highest and mean of each stored column into rows 3, 4 and 5 of
/// `MittelW_Spread`. The last row in use is left out; cells that are no numbers count as 0. With
/// fewer than two rows there is nothing to divide by, and the cells are empty. The progress gets
/// the column's caption. False if it asked to stop: the columns not reached are empty.
bool MW_Bildung(Messung& messung, Fortschritt& fortschritt);

/// Mean of up to three readings of one quantity; empty, "0" and "-" are none. 0 without a reading.
double Mittel_wert(std::string_view a, std::string_view b, std::string_view c);

}  // namespace polarkreis
