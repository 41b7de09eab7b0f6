#pragma once

#include <array>
#include <string>

#include "shell/ablage.h"

namespace polarkreis {

/// The shared settings, "kparam.dat": items 1 to 6, 7 to 13 and 14 to 22 on three lines, then one a
/// line. All are kept as texts in the order of the file, so that what this program doesn't use
/// survives a rewrite.
class Einstellungen {
 public:
  explicit Einstellungen(Ablage& ablage) : ablage_(ablage) {}

  /// Item numbers of the file.
  enum Item {
    Datenordner = 2,
    Sprache = 4,
    Waehrung = 5,
    Schrift = 6,
    Projektname_Start = 11,
    Laufwerk = 13,
    Rechenzeit = 17,
    Fenstermass = 18,
    Projektordner = 19,
    Bildpfad = 23,
    Einheiten = 24,
    Schriftgroesse = 26
  };
  static constexpr int Itemzahl = 29;

  /// Reads the file and applies the defaults: a language that is empty is "GER" where the file is
  /// missing and "ENG" where it is there with a shorter value; currency "EUR", font "Arial" ...
  void Parameter_Lesen();
  /// Rewrites the file; false on a failure (see the file store's message).
  bool Parameter_Schreiben();

  /// Item n (from 1) as text.
  std::string& operator[](int item) { return werte_[static_cast<std::size_t>(item - 1)]; }
  const std::string& operator[](int item) const {
    return werte_[static_cast<std::size_t>(item - 1)];
  }

  /// True if no settings file was there: the language is not yet fixed.
  bool erster_Start = false;

 private:
  Ablage& ablage_;
  std::array<std::string, Itemzahl> werte_;
};

}  // namespace polarkreis
