#pragma once

#include <string>

#include "diagnostics/messung.h"
#include "shell/captions.h"
#include "shell/wert.h"

namespace polarkreis {

/// What an axis measures.
enum class Groesse { Druck, Temperatur, Leistung, Leistungszahl, Spannung, Strom };

/// Its name, and its unit: pressures are gauge pressures as in the table.
std::string Groesse_Name(Groesse groesse, const Captions& captions);
std::string Groesse_Einheit(Groesse groesse);

/// From where to where an axis goes; empty numbers as long as it holds nothing.
struct Achsbereich {
  double unten = leer, oben = leer;
  /// Grows so far that it holds the value; an empty one changes nothing.
  void nimm(double wert);
};

/// The range that the scale values give a quantity of the whole plant; empty where the kernel has
/// not set them.
Achsbereich Skalenbereich(Groesse groesse, const Skala& skala);

/// The range widened to neat bounds (1, 2 or 5 times a power of ten, some five to ten steps apart);
/// 0 to 1 for an empty one, and never of no extent.
Achsbereich geglaettet(Achsbereich bereich);

}  // namespace polarkreis
