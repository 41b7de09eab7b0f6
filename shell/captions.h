#pragma once

#include <array>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "shell/ablage.h"
#include "shell/caption_lines.h"

namespace polarkreis {

/// The nine caption files, in their load order.
enum class Stamm {
  VerbCapt,
  SoleCapt,
  Caption,
  HXCapt,
  AirCoCap,
  JMapCap,
  heatcap,
  DrawCap,
  PEDcap
};
inline constexpr std::size_t Stammzahl = 9;

/// File stem and number of lines read.
struct StammForm {
  std::string_view name;
  int zeilen;
};
const StammForm& stammform(Stamm stamm);

/// The 21 language codes, in the order of the language form's options.
std::span<const std::string_view> Sprachen();

/// The texts of one language.
class Captions {
 public:
  explicit Captions(Ablage& ablage) : ablage_(ablage) {}

  /// Three letters, upper case.
  std::string Sprache = "ENG";

  /// Reads the nine files of `Sprache` in order; a file that is absent or short leaves the rest of
  /// its texts empty.
  void Captions_Laden();

  const std::string& text(Stamm stamm, int zeile) const;
  const std::string& text(VerbCapt z) const { return text(Stamm::VerbCapt, static_cast<int>(z)); }
  const std::string& text(SoleCapt z) const { return text(Stamm::SoleCapt, static_cast<int>(z)); }
  const std::string& text(Caption z) const { return text(Stamm::Caption, static_cast<int>(z)); }
  const std::string& text(AirCoCap z) const { return text(Stamm::AirCoCap, static_cast<int>(z)); }
  const std::string& text(JMapCap z) const { return text(Stamm::JMapCap, static_cast<int>(z)); }
  const std::string& text(Heatcap z) const { return text(Stamm::heatcap, static_cast<int>(z)); }
  const std::string& text(PedCap z) const { return text(Stamm::PEDcap, static_cast<int>(z)); }

  /// True if the data folder has the texts of that language.
  bool vorhanden(std::string_view sprache) const;
  /// Month name, m = 1 to 12.
  const std::string& monat(int m) const;

  /// Looks `text` up in the file of the old language and gives that line's text in the new one:
  /// both trimmed, compared in upper case. An empty text stays, and so does a text that the old
  /// file doesn't hold.
  std::string Caption_Uebersetzen(Stamm stamm, std::string_view von, std::string_view nach,
                                  std::string_view text) const;
  /// The same for the given lines of a stem only.
  std::string Caption_Uebersetzen(Stamm stamm, std::span<const int> zeilen, std::string_view von,
                                  std::string_view nach, std::string_view text) const;
  /// The same in all nine files: the first, in their load order, that holds the text counts.
  std::string Caption_Uebersetzen(std::string_view von, std::string_view nach,
                                  std::string_view text) const;

 private:
  using Zeilen = std::vector<std::string>;
  Zeilen lade(Stamm stamm, std::string_view sprache) const;
  std::optional<std::string> suche(Stamm stamm, std::span<const int> zeilen, std::string_view von,
                                   std::string_view nach, std::string_view text) const;
  Ablage& ablage_;
  std::array<Zeilen, Stammzahl> texte_;
};

}  // namespace polarkreis
