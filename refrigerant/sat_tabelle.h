#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "refrigerant/kmzustand.h"

namespace polarkreis {

/// A refrigerant table as read: rows in the file's order, columns converted as the table file
/// demands, densities cut.
struct SatTabelle {
  std::vector<SatZeile> zeilen;
};

/// Reads the rows of a table file; `datei` decides the conversions. A row with `T` and `p_b` 0 as
/// read ends the data, and so does a row with fewer than seven items left or with a text that has
/// no leading number (told by `bruch`).
SatTabelle sat_tabelle_lesen(std::string_view datei, std::optional<std::string>&& text);

}  // namespace polarkreis
