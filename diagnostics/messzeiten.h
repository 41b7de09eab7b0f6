#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "diagnostics/messung.h"

namespace polarkreis {

/// True if the cell holds a number. Empty, "  -", " - -" and other words are no measurement.
bool ist_Messwert(std::string_view text);

/// Seconds since midnight of a clock text "hh:mm:ss" or "hh:mm"; nothing for any other text.
std::optional<double> Uhrzeit_s(std::string_view text);

/// A measured row on the real time axis.
struct Messzeit {
  int zeile = 0;
  double s = 0;  ///< seconds since midnight of the day on which the measurement began
  bool operator==(const Messzeit&) const = default;
};

/// The filled rows in time order, whatever the table's order: a live run has the newest on top, a
/// loaded or imported table the oldest. Clock times run on across midnight, gaps between two rows
/// may be up to 18 hours long. A row without a clock time lies one scan interval from its
/// neighbour.
std::vector<Messzeit> Messzeiten(const Messung& messung);

}  // namespace polarkreis
