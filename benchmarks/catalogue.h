#pragma once

#include "cycle/kompsuch.h"
#include "plant.h"

namespace polarkreis::bench {

/// A search through a catalogue of 10,000 components, in a data folder of its own.
class Katalogsuche {
 public:
  static constexpr int Bauteilzahl = 10000;

  /// Writes the catalogue: its last component alone holds the text that is sought.
  Katalogsuche();

  /// Searches; the number of components found.
  std::size_t suchen();
  /// Searches for nothing in particular, which finds them all.
  std::size_t alle();

 private:
  Datenkopie daten_;
  Meldungen meldungen_;
  Ablage ablage_;
  KompSuch suche_;
};

}  // namespace polarkreis::bench
