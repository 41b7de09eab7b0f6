#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "shell/ablage.h"
#include "shell/captions.h"

namespace polarkreis {

/// "SPS_ini.dat", the list of the plants that control systems feed: quoted items, a record of nine
/// fields, nine records of a plant's name and its 32 channels, four records of 32 channel numbers.
/// All are kept as texts, so that what this program doesn't use survives a rewrite.
struct SPS_Ini {
  static constexpr std::size_t Anlagenzahl = 9, Kanalzahl = 32, Felderzahl = 4;
  struct Anlage {
    std::string Name;
    std::array<std::string, Kanalzahl> Kanal;
    bool operator==(const Anlage&) const = default;
  };
  std::array<std::string, Anlagenzahl> Kopf;  ///< field k belongs to plant k
  std::array<Anlage, Anlagenzahl> Anlagen;
  std::array<std::array<std::string, Kanalzahl>, Felderzahl> Kanalnummern;
  bool operator==(const SPS_Ini&) const = default;
};

/// Texts of an absent or short file are empty.
SPS_Ini SPS_Ini_Lesen(Ablage& ablage);
/// Puts the changed plant `nummer` (1 to 9) into the file, all else stays. False for another
/// number, for a list that can't be read, and if it could not be written (see the message log).
bool ISS_KKP_Settings(Ablage& ablage, int nummer, const SPS_Ini::Anlage& anlage);
/// The list of names to choose from: the caption and " 1" to " 9".
std::vector<std::string> SPS_Namensliste(const Captions& captions);

/// The control system's number in the name of its file: 1 with a "." at place 13, the 14th
/// character with a "." at place 15, else 0. Folders before the name don't count.
int KKP_Systemnummer(std::string_view pfad);

}  // namespace polarkreis
