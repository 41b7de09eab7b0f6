#include "shell/captions.h"

#include <numeric>

#include "shell/text.h"

namespace polarkreis {

namespace {

constexpr std::array<StammForm, Stammzahl> Formen = {{{"VerbCapt", 24},
                                                      {"SoleCapt", 28},
                                                      {"Caption", 249},
                                                      {"HXCapt", 20},
                                                      {"AirCoCap", 118},
                                                      {"JMapCap", 67},
                                                      {"heatcap", 56},
                                                      {"DrawCap", 22},
                                                      {"PEDcap", 30}}};

constexpr std::array<std::string_view, 21> Codes = {
    "GER", "ENG", "FRA", "ESP", "ITA", "POR", "NDL", "SWE", "NOR", "DAN", "POL",
    "CZH", "HUN", "SVK", "ROM", "RUS", "BUL", "GRE", "TRK", "TWA", "ARA"};

constexpr int Monate = 12;
const std::string leerer_text;

}  // namespace

const StammForm& stammform(Stamm stamm) {
  return Formen[static_cast<std::size_t>(stamm)];
}

std::span<const std::string_view> Sprachen() {
  return Codes;
}

void Captions::Captions_Laden() {
  for (std::size_t i = 0; i < Stammzahl; ++i) texte_[i] = lade(static_cast<Stamm>(i), Sprache);
}

const std::string& Captions::text(Stamm stamm, int zeile) const {
  const Zeilen& zeilen = texte_[static_cast<std::size_t>(stamm)];
  const bool da = zeile >= 1 && static_cast<std::size_t>(zeile) <= zeilen.size();
  return da ? zeilen[static_cast<std::size_t>(zeile - 1)] : leerer_text;
}

bool Captions::vorhanden(std::string_view sprache) const {
  return ablage_.vorhanden(std::string(stammform(Stamm::JMapCap).name) + "." +
                           std::string(sprache));
}

const std::string& Captions::monat(int m) const {
  return m >= 1 && m <= Monate ? text(Stamm::AirCoCap, static_cast<int>(AirCoCap::Januar) + m - 1)
                               : leerer_text;
}

Captions::Zeilen Captions::lade(Stamm stamm, std::string_view sprache) const {
  const StammForm& form = stammform(stamm);
  Zeilen zeilen(static_cast<std::size_t>(form.zeilen));
  // A language comes from files and arguments: it must not lead out of the data folder.
  if (sprache.empty() || sprache.find_first_of("/\\") != std::string_view::npos) return zeilen;
  const std::string inhalt =
      ablage_.lies_ganz(std::string(form.name) + "." + std::string(sprache)).value_or("");
  ItemLeser leser(inhalt);
  for (std::string& zeile : zeilen)
    if (!leser.lies(zeile)) break;
  return zeilen;
}

namespace {

std::vector<int> alle_zeilen(Stamm stamm) {
  std::vector<int> alle(static_cast<std::size_t>(stammform(stamm).zeilen));
  std::iota(alle.begin(), alle.end(), 1);
  return alle;
}

}  // namespace

std::string Captions::Caption_Uebersetzen(Stamm stamm, std::string_view von, std::string_view nach,
                                          std::string_view text) const {
  return Caption_Uebersetzen(stamm, alle_zeilen(stamm), von, nach, text);
}

std::string Captions::Caption_Uebersetzen(Stamm stamm, std::span<const int> zeilen,
                                          std::string_view von, std::string_view nach,
                                          std::string_view text) const {
  return suche(stamm, zeilen, von, nach, text).value_or(std::string(text));
}

std::string Captions::Caption_Uebersetzen(std::string_view von, std::string_view nach,
                                          std::string_view text) const {
  for (std::size_t n = 0; n < Stammzahl; ++n) {
    const auto stamm = static_cast<Stamm>(n);
    if (auto neu = suche(stamm, alle_zeilen(stamm), von, nach, text)) return *std::move(neu);
  }
  return std::string(text);
}

// The text in the new language, or nothing where the old file doesn't hold it.
std::optional<std::string> Captions::suche(Stamm stamm, std::span<const int> zeilen,
                                           std::string_view von, std::string_view nach,
                                           std::string_view text) const {
  if (getrimmt(text).empty()) return std::nullopt;
  const Zeilen alte = lade(stamm, von);
  for (int zeile : zeilen) {
    if (zeile < 1 || static_cast<std::size_t>(zeile) > alte.size()) continue;
    const auto i = static_cast<std::size_t>(zeile - 1);
    if (!gleich(alte[i], text)) continue;
    // Where the new language has no such line, the old word is better than none.
    const Zeilen neue = lade(stamm, nach);
    return getrimmt(neue[i]).empty() ? std::string(text) : neue[i];
  }
  return std::nullopt;
}

}  // namespace polarkreis
