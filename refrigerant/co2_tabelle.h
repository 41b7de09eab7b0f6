#pragma once

#include <cstddef>
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

/// Rows `anfang` up to before `ende` that follow each other and share one pressure.
struct CO2Block {
  double p;
  std::size_t anfang, ende;
};

/// The table as read, and where its pressure blocks begin.
struct CO2Daten {
  std::vector<CO2Zeile> zeilen;
  std::vector<CO2Block> bloecke;
  bool geordnet = false;    ///< pressures rise from block to block, temperatures never fall in one
  bool h_geordnet = false;  ///< enthalpies never fall within a block, as temperatures don't
  int bruch = 0;            ///< number of the row that can't be read, from 1; 0 for none

  /// The first row in the file's order that reaches both the pressure [bar] and the temperature
  /// [°C], or null.
  const CO2Zeile* erste(double t, double p) const;

  /// The point on the high side where the enthalpy, followed over the rows from `t` - 1 K up, first
  /// comes down to `h_lc`: `h` there, and `h_prev` of the row considered before (0 for none).
  struct Abstieg {
    double h, h_prev;
  };
  std::optional<Abstieg> abstieg(double t, double h_lc) const;
};

/// Reads the rows; one with `t`, `p` or `h` equal to 0, or that can't be read as six numbers, ends
/// the data.
CO2Daten co2_daten_lesen(std::optional<std::string>&& text);

}  // namespace polarkreis
