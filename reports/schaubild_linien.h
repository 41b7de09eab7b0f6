#pragma once

#include <vector>

#include "reports/svg_blatt.h"

namespace polarkreis {

/// What of a line lies in the rectangle, piece by piece, each of at least two places. A place that
/// isn't finite ends a piece.
std::vector<Linienzug> im_Ausschnitt(const Linienzug& zug, const Bildflaeche& flaeche);

/// The line led smoothly through the same places: a table's rows are few where a curve bends most.
Linienzug geglaettet(const Linienzug& zug);

double Laenge(const Linienzug& zug);

/// The place on a line at this length from its beginning, at most its end. The line isn't empty.
Bildort Ort_bei(const Linienzug& zug, double laenge);

/// A place on a line and the line's direction there, in degrees clockwise from level.
struct Richtungsort {
  Bildort ort;
  double winkel = 0;
};

/// Where arrows show the direction of a line: in the middle between two corners, where there is
/// room for one.
std::vector<Richtungsort> Pfeilorte(const Linienzug& zug);

/// Where a text of this width can be written along a line, the middle first, never upside down.
/// Where the line bends too much for it there is none.
std::vector<Richtungsort> Textorte(const Linienzug& zug, double breite);

}  // namespace polarkreis
