#pragma once

#include <string>
#include <vector>

#include "shell/wert.h"

namespace polarkreis {

/// What a curve stands for; the writer gives each kind its colour, width and dashes.
enum class Kurvenart {
  Grenze,         ///< boundary of the two-phase region; led smoothly through its places
  Isotherme,      ///< line of one temperature
  Gehalt,         ///< line of one vapour content; led smoothly through its places
  Ueberkritisch,  ///< line of one temperature above the critical one
  Prozess,        ///< what the plant does; drawn bold, with an arrow in its direction
  Hilfslinie      ///< what only leads the eye; dashed
};

/// A place in the units of the axes. One that isn't finite parts a curve in two.
struct Kurvenpunkt {
  double x = leer, y = leer;
};

struct Kurve {
  Kurvenart Art = Kurvenart::Hilfslinie;
  std::string Legende;       ///< entry of the legend; curves of equal text share it, none if empty
  std::string Beschriftung;  ///< short text at the curve, such as "40 °C"; none if empty
  std::vector<Kurvenpunkt> Punkte;
};

/// A marked place with its number; the panel beside the plot lists it with the cells of its row.
struct Marke {
  double x = leer, y = leer;
  std::string Nummer;
  std::vector<std::string> Zellen;
};

struct Schaubildachse {
  std::string Titel;  ///< with its unit, such as "Pressure [bar a]"
  bool log = false;
  double von = leer, bis = leer;  ///< empty: from what is drawn, with a margin
};

/// A chart as plain data: whoever draws it needs to know nothing of what it shows.
struct Schaubild {
  std::string Titel, Untertitel;
  Schaubildachse x, y;
  std::vector<Kurve> Kurven;  ///< drawn in this order
  std::vector<Marke> Marken;
  /// Headings of the marks' table: the number's, then those of the cells, a unit in brackets.
  std::vector<std::string> Markenkopf;
  std::vector<std::string> Texte;  ///< lines of the text block; a tab parts label and value
};

}  // namespace polarkreis
