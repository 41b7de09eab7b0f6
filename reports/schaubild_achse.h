#pragma once

#include <string>
#include <vector>

#include "reports/schaubild.h"

namespace polarkreis {

/// The scale of an axis: from values to places on the drawing.
struct Achsmass {
  bool log = false;
  double von = 0, bis = 1;      ///< von < bis; both positive on a logarithmic axis
  double anfang = 0, ende = 1;  ///< where they lie

  /// Where a value lies, also beyond the ends; empty for one that can't be drawn: not finite, not
  /// positive on a logarithmic axis, or of a magnitude above 1e12 (logarithmic: below 1e-12, too).
  double lage(double wert) const;
};

/// The scale of an axis with its limits; one that is empty, can't be drawn or doesn't fit the other
/// comes from the values, with a margin. Without values the axis goes from 0 to 1, a logarithmic
/// one from 1 to 10.
Achsmass Achsmass_von(const Schaubildachse& achse, const std::vector<double>& werte);

/// A line of the grid; one without a text is a minor one.
struct Teilstrich {
  double wert = 0, lage = 0;
  std::string text;
};

/// The grid of an axis in rising order: steps of 1, 2 or 5 times a power of ten. A logarithmic axis
/// has its decades and their parts, and even steps where it is too short for these. As many have a
/// text as fit beside one another in this size of letters.
std::vector<Teilstrich> Teilstriche(const Achsmass& mass, double schriftgroesse);

}  // namespace polarkreis
