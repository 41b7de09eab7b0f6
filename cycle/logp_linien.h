#pragma once

#include <vector>

#include "refrigerant/kaeltemittel.h"

namespace polarkreis {

/// A place of a log p-h diagram: enthalpy in kJ/kg, pressure in bar absolute.
struct Diagrammort {
  double h = leer, p = leer;
};

/// A line of one value: a temperature in °C, or a vapour content from 0 to 1.
struct Wertlinie {
  double Wert = leer;
  std::vector<Diagrammort> Orte;
};

/// What a log p-h diagram shows of a refrigerant whatever the cycle, all of it from its tables.
struct Logp_Linien {
  std::vector<Diagrammort> Siedelinie, Taulinie;  ///< rising with the temperature
  /// Inside the two-phase region, one for each temperature of the table that is a multiple of 10
  /// °C: from the bubble to the dew line. The two ends of a blend differ in pressure.
  std::vector<Wertlinie> Isothermen;
  /// Vapour contents 0.1 to 0.9, rising with the temperature.
  std::vector<Wertlinie> Gehalte;
  /// R744: lines of one temperature above the critical one, from "CO2_sh01.dat", each rising with
  /// the pressure. Empty for any other refrigerant.
  std::vector<Wertlinie> Ueberkritisch;
};

/// The lines of the current refrigerant; empty ones for an unknown designation or a missing table.
Logp_Linien logp_Linien(Kaeltemittel& km);

}  // namespace polarkreis
