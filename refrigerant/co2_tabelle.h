#pragma once

#include <optional>
#include <string>
#include <vector>

namespace polarkreis {

/// One state point of "CO2_sh01.dat".
struct CO2Zeile {
  double t;    ///< °C
  double p;    ///< bar absolute
  double h;    ///< kJ/kg
  double v;    ///< m³/kg
  double cp;   ///< kJ/(kg K)
  double eta;  ///< Pa s
};

/// The table as read, and where its pressure blocks begin.
struct CO2Daten {
  std::vector<CO2Zeile> zeilen;
};

/// Reads the rows; one with `t`, `p` or `h` equal to 0, or that can't be read as six numbers, ends
/// the data.
CO2Daten co2_daten_lesen(std::optional<std::string>&& text);

}  // namespace polarkreis
