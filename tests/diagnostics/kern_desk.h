#pragma once

#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "diagnostics/kern.h"
#include "support/temp_folder.h"

/// A kernel of its own on the project's data folder, with a table to fill. Row 3 is the row at hand
/// where none is named.
struct KernDesk {
  TempOrdner eingaenge;  // where the scaling of the free inputs stands
  polarkreis::Meldungen meldungen;
  polarkreis::Ablage ablage{POLARKREIS_DATA, meldungen};
  polarkreis::Ablage ablage_eingaenge{eingaenge.pfad(), meldungen};
  polarkreis::Captions captions{ablage};
  polarkreis::Kaeltemittel km{ablage};
  polarkreis::Kreis kreis{km};
  polarkreis::Messung messung;
  polarkreis::Kanaele kanaele{ablage_eingaenge};
  polarkreis::Solen solen{ablage, captions};
  polarkreis::Luftzustand luft{ablage};
  polarkreis::Kern kern{messung, kanaele, kreis, solen, luft, captions};

  using Zellen = std::vector<std::pair<int, std::string>>;

  explicit KernDesk(std::string refrigerant = "R134A") {
    captions.Captions_Laden();
    messung.KaelteM = std::move(refrigerant);
  }

  /// Unit i gets a function by its text.
  void einheit(int i, std::string_view funktion) {
    using T = polarkreis::Einheitentabelle;
    messung.OrbiN_spread(3 + i, T::Einheit) = "Orbiter " + std::to_string(i);
    messung.OrbiN_spread(3 + i, T::Funktion) = funktion;
  }
  void einheit(int i, polarkreis::VerbCapt funktion, std::string_view zusatz = "") {
    einheit(i, captions.text(funktion) + std::string(zusatz));
  }
  void setze(const Zellen& zellen, int zeile = 3) {
    for (const auto& [spalte, text] : zellen) messung.DiaSpread.setze(zeile, spalte, text);
  }
  /// A row of a small R134A plant that runs well, with changes.
  void laufend(const Zellen& anders = {}, int zeile = 3) {
    setze({{1, "12:00:00"},
           {2, "1"},
           {4, "-4"},
           {5, "3"},
           {6, "9"},
           {8, "70"},
           {9, "36"},
           {14, "230"},
           {15, "230"},
           {16, "230"},
           {17, "10"},
           {18, "10"},
           {19, "10"}},
          zeile);
    setze(anders, zeile);
  }
  /// Computes row 3 as the first of a series.
  void rechne() {
    kern.beginnen();
    kern.Kern_Zeile(3);
  }
  const std::string& zelle(int spalte, int zeile = 3) const {
    return messung.DiaSpread.text(zeile, spalte);
  }
  double zahl(int spalte, int zeile = 3) const { return messung.DiaSpread.zahl(zeile, spalte); }
  /// Lines of the message log that hold the text.
  int gemeldet(std::string_view text) const {
    int zahl = 0;
    for (const std::string& zeile : meldungen.zeilen())
      if (zeile.find(text) != std::string::npos) ++zahl;
    return zahl;
  }
};
