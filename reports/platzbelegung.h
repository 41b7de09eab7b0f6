#pragma once

#include <cstddef>
#include <vector>

#include "reports/schaubild_linien.h"
#include "reports/svg_blatt.h"

namespace polarkreis {

/// What already stands where on a drawing, on a fine raster, so that texts find a free place.
class Platzbelegung {
 public:
  /// From this weight on a place is taken; a lighter one may be written over if need be.
  static constexpr double Vergeben = 1000;

  explicit Platzbelegung(const Bildflaeche& flaeche);

  /// A line takes the places along it.
  void belege(const Linienzug& zug, double gewicht);
  /// A rectangle takes its places; it is turned about its middle.
  void belege(const Richtungsort& mitte, double breite, double hoehe, double gewicht);

  /// The sum of the weights under a rectangle; what lies outside the drawing counts as taken.
  double Kosten(const Richtungsort& mitte, double breite, double hoehe) const;

 private:
  /// Index of the field at a place; one beyond the last outside the drawing.
  std::size_t Feld(const Bildort& ort) const;
  void belege(const Bildort& ort, double gewicht);

  Bildflaeche gebiet_;
  std::size_t spalten_, zeilen_;
  std::vector<double> felder_;
};

}  // namespace polarkreis
