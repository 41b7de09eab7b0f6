#pragma once

#include <string>
#include <vector>

#include "diagnostics/diagramm.h"

namespace polarkreis {

/// A series of a chart before it has points.
struct Reihenplan {
  std::string Name;
  Groesse groesse = Groesse::Druck;
  Farbrolle farbe = Farbrolle::Reihe_1;
  /// The value of a row, empty where it has none; `nummer` is a column or a unit.
  double (*wert)(const Messtabelle& tabelle, int zeile, int nummer) = nullptr;
  int nummer = 0;
};

/// What an entry of `Combo8` shows.
struct Diagrammplan {
  bool Anlagenskala = false;  ///< the scale values of the plant bound its axes
  std::vector<Reihenplan> reihen;
};
Diagrammplan Diagrammplan_von(Diagrammwahl wahl, const Captions& captions);

}  // namespace polarkreis
