#pragma once

#include <array>
#include <string>
#include <string_view>

#include "simulation/punkt.h"

namespace polarkreis {

/// Temperature class of the minimum-efficiency table.
enum class Bereichsklasse { hoch, tief, mittel, klima };
Bereichsklasse Bereichsklasse_von(const Captions& captions, std::string_view tempbereich);

/// Minimum efficiency performance standard of a capacity in kW; `streng` takes the "2018" column.
double MEPS_Tabelle(bool luft, Bereichsklasse klasse, double Q0, bool streng);

/// The comparison with the minimum efficiency.
struct MEPS {
  double wert = leer;              ///< the minimum
  std::array<double, 4> marken{};  ///< marks of the scale, from left to right
  double Ist = leer;               ///< the plant's figure
  double position = leer;          ///< its place on the bar, share of the width from the top mark
  double gruen_ab = leer;          ///< where the green part begins, share of the width
  /// The four marks with fixed gaps of blanks between them.
  std::string MEPS_label() const;
};
/// `LeistZ` is the plant's figure as shown.
MEPS MEPS_find(const Projektdaten& projekt, std::string_view LeistZ);

/// A fan class and the figure that it stands for.
struct Ventilatorklasse {
  double R = leer;  ///< heat or cold per fan power at the reference temperature difference, kW/kW
  std::string klasse;      ///< "A+", "A" ... "F"
  double leistung = leer;  ///< fan power, kW
};
/// Fan efficiency classes at full load. Code 11: class of the condenser from `Lueftcap`; 12:
/// `Lueftcap` from the class; 21 and 22 the same of the evaporator. The result goes into the
/// project's fields; any other code does nothing.
Ventilatorklasse Eff_class(Punkt& punkt, Projektdaten& projekt, int code);

}  // namespace polarkreis
