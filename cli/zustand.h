#pragma once

#include <span>
#include <string>

#include "ausgabe.h"
#include "refrigerant/kmzustand.h"

namespace polarkreis::cli {

/// A row of a refrigerant table; empty numbers are null.
Json satzeile_json(const SatZeile& zeile);
/// Every field of the refrigerant state under its name, the bracket's rows as `Unten` and `Oben`.
Json zustand_json(const KMZustand& zustand);

/// The fields of the state by name, for reading and setting alike.
struct Zustandszahl {
  const char* name;
  double KMZustand::*feld;
};
struct Zustandsganzzahl {
  const char* name;
  int KMZustand::*feld;
};
struct Zustandstext {
  const char* name;
  std::string KMZustand::*feld;
};
struct Zustandsfelder {
  std::span<const Zustandstext> texte;
  std::span<const Zustandszahl> zahlen;
  std::span<const Zustandsganzzahl> ganze;
};
Zustandsfelder zustandsfelder();

}  // namespace polarkreis::cli
