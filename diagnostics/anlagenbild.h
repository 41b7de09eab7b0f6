#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "diagnostics/einheiten_funktion.h"
#include "diagnostics/messung.h"
#include "shell/captions.h"

namespace polarkreis {

/// Where a value stands on the plant's scheme.
enum class Schemaort {
  Verdampfer,
  Saugleitung,
  Verdichter,
  Druckleitung,
  Verfluessiger,
  Fluessigkeitsleitung,
  Sekundaerseite_Verdampfer,
  Sekundaerseite_Verfluessiger,
  Anlage,         ///< of the whole plant
  Zwischenstufe,  ///< between the stages of a two-stage plant
  Economiser,
  Einheit,  ///< beside a remote unit
};

/// A value on the scheme.
struct Schemawert {
  Schemaort ort = Schemaort::Anlage;
  int Einheit = 0;  ///< remote unit that measures it; 0 is the base unit
  int Spalte = 0;   ///< its column in the table
  std::string Bezeichnung;
  std::string Text;       ///< the cell with its unit; "-" where it is no measurement
  std::string Messpunkt;  ///< such as "- 1.9 -"; empty for a computed value
  bool rot = false;       ///< shown in red
};

/// The kind of plant that a scheme text names.
struct Schemaart {
  bool zweistufig = false, Economiser = false, transkritisch = false;
};
Schemaart Schemaart_von(std::string_view Combo3, const Captions& captions);

/// The values of a row on the present scheme: all those of the base unit, then of each remote unit
/// with a function those of its function that were measured. A row outside the table has no
/// measurement.
std::vector<Schemawert> RI_Chart(const Messung& messung, const Captions& captions,
                                 const Einheitenfunktion& funktion, int zeile);

}  // namespace polarkreis
