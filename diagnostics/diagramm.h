#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "diagnostics/diagrammachse.h"
#include "diagnostics/messung.h"
#include "shell/captions.h"

namespace polarkreis {

/// What a series stands for; a view gives each role a colour that suits its background.
enum class Farbrolle {
  kalt,     ///< low side of the plant
  kalt_2,   ///< the same by its secondary side
  heiss,    ///< high side of the plant
  heiss_2,  ///< the same by its secondary side
  Antrieb,  ///< electrical power
  Nebenantrieb,
  Kennzahl,
  Reihe_1,  ///< series of equal rank, such as inputs of a unit, units, phases
  Reihe_2,
  Reihe_3,
  Reihe_4,
  Reihe_5,
  Reihe_6,
  Reihe_7,
  Reihe_8,
};

/// A measured value in a chart.
struct Diagrammpunkt {
  double s = 0;     ///< seconds since midnight of the measurement's first day
  double wert = 0;  ///< NaN where the cell is no measurement: the line has a gap there
  int zeile = 0;    ///< row of the table
};

/// A vertical axis, its bounds neat numbers around what it shows. The first one of a chart stands
/// on the left, the others on the right.
struct Diagrammachse {
  Groesse groesse = Groesse::Druck;
  std::string Name, Einheit;
  Achsbereich bereich;
};

struct Diagrammreihe {
  std::string Name, Einheit;
  Farbrolle farbe = Farbrolle::Reihe_1;
  std::size_t achse = 0;  ///< index of its axis
  std::vector<Diagrammpunkt> punkte;
};

/// A time chart as plain data: a view draws it.
struct Diagramm {
  std::string Titel;
  std::vector<Diagrammachse> achsen;
  std::vector<Diagrammreihe> reihen;
};

/// The entries of the list `Combo8`, in its order.
enum class Diagrammwahl {
  Druckpaar,
  Temperaturpaar,
  Leistung,
  Orbiter_1_Temperatur,
  Elektrische_Leistung,
  Orbiter_1_bis_5,
  Orbiter_1_elektrisch,
  Orbiter_2_elektrisch,
};
std::vector<std::string> Combo8_Liste(const Captions& captions);
/// The entry of a list text; the pressure pair for any other text.
Diagrammwahl Combo8_Wahl(std::string_view Combo8, const Captions& captions);

/// The time chart of a measurement. Points stand in time order on an axis of real time, whatever
/// the table's order.
class DiaG_Dia {
 public:
  DiaG_Dia(const Messung& messung, const Captions& captions)
      : messung_(messung), captions_(captions) {}

  static constexpr int Eingabetaste = 13;

  std::string Combo8;                ///< what is shown, an entry of `Combo8_Liste`
  std::string min_point, max_point;  ///< bounds of the zoom: measured rows, the first is 1
  Diagramm bild;                     ///< what the last operation drew

  /// The whole measurement.
  void Chart_Darstell();
  /// The last points, at least one, up to a row (0: up to the newest).
  void Real_time_DiaG(int points, int bis_zeile = 0);
  /// The rows between the two bounds that were taken. Bounds that stand the wrong way round change
  /// places, bounds outside the measurement are moved to its ends, and one that was not taken is
  /// its end; the two fields show what was used.
  void Zoom_DiaG();
  /// A key in a field of the bounds: the Enter key takes its whole number, cut; a text without a
  /// number takes the bound back.
  void min_point_KeyPress(int taste);
  void max_point_KeyPress(int taste);

 private:
  const Messung& messung_;
  const Captions& captions_;
  std::optional<int> von_, bis_;  // bounds taken
};

}  // namespace polarkreis
