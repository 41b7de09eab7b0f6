#pragma once

#include <array>
#include <string>

#include "shell/ablage.h"

namespace polarkreis {

/// The hand-over file "FRIGData.dat" between the sibling programs, one item a line. The first two
/// are numbers, the second the start code: 117 or 217 means that a sibling left project data.
struct Uebergabe {
  enum Item {
    Startcode = 2,
    t0 = 4,
    Tc_oder_Winter = 5,
    Q0 = 6,
    unbenutzt = 7,
    Projektname = 8,
    Beschreibung = 9,
    Kaeltemittel = 10,
    PumpCap = 11,
    Economiser = 12,
    Verdichtertyp = 13,
    Bauform = 14
  };
  static constexpr int Itemzahl = 32;
  std::array<std::string, Itemzahl> werte;

  const std::string& operator[](int item) const {
    return werte[static_cast<std::size_t>(item - 1)];
  }
  std::string& operator[](int item) { return werte[static_cast<std::size_t>(item - 1)]; }

  /// True with the start code 117 or 217.
  bool hat_Daten() const;
  /// True with 217: item 5 is a winter temperature, not `Tc`.
  bool mit_Winter() const;
};

/// Reads the file without changing it.
Uebergabe Uebergabe_Lesen(Ablage& ablage);
/// Writes two zeros: the hand-over has been taken.
bool Uebergabe_Leeren(Ablage& ablage);
/// Hands values to a sibling program.
bool Daten_Uebergabe(Ablage& ablage, const Uebergabe& daten);

}  // namespace polarkreis
