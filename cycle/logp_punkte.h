#pragma once

#include <string_view>
#include <vector>

#include "shell/wert.h"

namespace polarkreis {

/// The pressure level that a state point lies on.
enum class Druckstufe { Niederdruck, Mitteldruck, Hochdruck };

/// Where a state point lies against the saturation lines.
enum class Lage { unterkuehlt, Siedelinie, nass, Taulinie, ueberhitzt, ueberkritisch };

/// One state point of a log p-h diagram.
struct Zustandspunkt {
  std::string_view Name;  ///< such as "compressor inlet"
  double p = leer;        ///< bar absolute
  double t = leer;        ///< °C
  double h = leer;        ///< kJ/kg
  double rho = leer;      ///< kg/m³, where the tables give it
  Druckstufe Stufe = Druckstufe::Niederdruck;
  Lage Ort = Lage::nass;
};

/// The state points of a cycle in the order in which the refrigerant passes them, and the paths
/// that a diagram draws through them.
struct Zustandspunkte {
  std::vector<Zustandspunkt> Punkte;
  /// Indices into `Punkte`; the first path is the main circuit and ends where it began.
  std::vector<std::vector<std::size_t>> Wege;

  /// The first point of that name, or null.
  const Zustandspunkt* finde(std::string_view name) const;
};

/// "low", "intermediate", "high".
std::string_view Name_von(Druckstufe stufe);
/// "subcooled liquid", "bubble line", "wet vapour", "dew line", "superheated vapour",
/// "supercritical".
std::string_view Name_von(Lage ort);

}  // namespace polarkreis
