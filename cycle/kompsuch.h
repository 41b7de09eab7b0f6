#pragma once

#include <optional>
#include <string>
#include <vector>

#include "cycle/bauteile.h"

namespace polarkreis {

/// The form of the component search. One of three index files, chosen by the search kind, names the
/// catalogues and where to begin in each; "Prodhide.dat" hides products: a catalogue whose code, or
/// its first two letters, is one of the file's items.
class KompSuch {
 public:
  /// Records that a row of the index reaches.
  static constexpr int Satzzahl = 48;

  explicit KompSuch(Ablage& ablage) : dateien_(ablage) {}

  int Suchart = 0;         ///< search kind, see `Indexdatei`
  std::string Suchtext;    ///< part of a component's first or second field; empty finds all
  std::string Hersteller;  ///< chosen maker; empty for all
  std::string Katalog;     ///< chosen catalogue's code; empty for all

  struct Katalogeintrag {
    std::string code;
    int Typ = 0;
    std::string Text;
  };
  std::vector<Katalogeintrag> Kataloglist;  ///< the catalogues of "katalg.lst"
  std::vector<std::string> Herstellerlist;  ///< the makers of the kind's index, each once

  /// What the search found in the row of a catalogue.
  struct Ergebnis {
    Indexzeile zeile;
    bool verborgen = false;  ///< a hidden product: not scanned, not found
    bool fehlt = false;      ///< its components' file is missing or can't be read
    std::optional<int> Typ;  ///< of a catalogue that was scanned
    std::vector<Bauteil> Treffer;
  };
  std::vector<Ergebnis> Ergebnisse;  ///< of the chosen rows, in the index's order

  /// Fills `Kataloglist` and `Herstellerlist`.
  void Listen_fuellen();
  /// Searches the chosen rows of the index.
  void Suchen();
  /// Components found.
  std::size_t Trefferzahl() const;

 private:
  Katalogdateien dateien_;
};

}  // namespace polarkreis
