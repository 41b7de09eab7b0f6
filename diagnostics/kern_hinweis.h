#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "shell/meldungen.h"

namespace polarkreis {

/// Tells the rows whose high pressure lies above the refrigerant's table, where there is no
/// saturation temperature. A run tells each stretch of such rows at its beginning; a whole table
/// gathers them, so that neighbours share an entry and many entries a line.
class Ueberdruck {
 public:
  /// A new series: the table's file and its last pressure in bar absolute (empty for none).
  void beginnen(std::string_view datei, double letzter_Druck);
  /// From here on rows are gathered until `melden`.
  void sammeln() { sammelt_ = true; }
  /// One row with its high pressure in bar absolute.
  void zeile(int zeile, double pc, Meldungen& meldungen);
  /// Tells what was gathered.
  void melden(Meldungen& meldungen);

 private:
  struct Strecke {
    int von, bis;
    double p_max;
    std::string text() const;
  };
  void schreiben(std::string_view zeilen, Meldungen& meldungen) const;

  std::string datei_;
  double grenze_ = 0;
  bool sammelt_ = false;
  bool darueber_ = false;  // the row before was above
  std::vector<Strecke> strecken_;
};

}  // namespace polarkreis
