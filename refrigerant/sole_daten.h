#pragma once

#include <array>
#include <span>
#include <string_view>

namespace polarkreis {

/// A property over temperature and concentration: the sum of
/// a[i][j] (t - t0)^i ((c - c0)/100)^j, with t in °C and c in %.
struct Solepolynom {
  double t0, c0;
  std::array<std::array<double, 6>, 4> a;

  double wert(double t, double c) const;
};

/// A point of the freezing curve: the first crystals form at `t` [°C] where the concentration is
/// `c` [%].
struct Gefrierstelle {
  double c, t;
};

/// How the concentration follows from the frost protection temperature.
enum class Konzentrationsregel {
  Glykol,      ///< a base value with a correction for the distance to -15 °C
  Konzentrat,  ///< a straight line, for a fluid diluted from a concentrate
  fertig       ///< sold ready for use
};

/// The figures of one brine. Where they come from and how good they are: docs/data-brines.md.
struct Soledaten {
  std::string_view name;  ///< the name in every language; empty where each language has its own
  double tmin;            ///< lowest frost protection temperature, °C
  Konzentrationsregel regel;
  int Korrekturen;  ///< how many correction terms a glycol takes
  double Basis;     ///< base value of a glycol
  double t_bis;     ///< highest temperature of the published figures, °C
  /// From the lowest to the highest published concentration; falling.
  std::span<const Gefrierstelle> Gefrierkurve;
  Solepolynom Dichte;  ///< kg/m³
  Solepolynom Waerme;  ///< J/(kg K)

  double c_von() const { return Gefrierkurve.front().c; }
  double c_bis() const { return Gefrierkurve.back().c; }
  /// Freezing temperature in °C, on the straight line between two points of the curve.
  double Gefriertemperatur(double c) const;
};

/// The brines in the order of the names in "SoleBez".
std::span<const Soledaten> Sole_Daten();

}  // namespace polarkreis
