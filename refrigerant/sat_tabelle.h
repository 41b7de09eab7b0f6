#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "refrigerant/kmzustand.h"

namespace polarkreis {

/// The rows that a search finds, as indices into the table; -1 where no row fits.
struct SatTreffer {
  int unten = -1;  ///< the last row before `oben` whose key is below the search key
  int oben = -1;   ///< the first row whose key is at or above it
};

/// A refrigerant table as read: rows in the file's order, columns converted as the table file
/// demands, densities cut.
struct SatTabelle {
  /// The columns that a search can go by, in the order of the search modes 0, 1 and 2.
  enum Schluessel { nach_T, nach_p_d, nach_p_b, anzahl };

  std::vector<SatZeile> zeilen;
  std::array<std::vector<double>, anzahl> schluessel;  ///< the key columns, side by side
  std::array<bool, anzahl> steigt{};                   ///< no key of the column falls
  int bruch = 0;  ///< number of the row that can't be read, from 1; 0 for none

  /// What one scan of the rows in the file's order finds, also where the keys don't rise.
  SatTreffer suche(double key, Schluessel spalte) const;
};

/// Reads the rows of a table file; `datei` decides the conversions. A row with `T` and `p_b` 0 as
/// read ends the data, and so does a row with fewer than seven items left or with a text that has
/// no leading number (told by `bruch`).
SatTabelle sat_tabelle_lesen(std::string_view datei, std::optional<std::string>&& text);

}  // namespace polarkreis
