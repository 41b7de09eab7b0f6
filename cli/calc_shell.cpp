#include <array>
#include <optional>

#include "calc.h"
#include "shell/text.h"

namespace polarkreis::cli {

namespace {

std::optional<Stamm> stamm_von(std::string_view name) {
  for (std::size_t i = 0; i < Stammzahl; ++i) {
    const auto stamm = static_cast<Stamm>(i);
    if (gleich(stammform(stamm).name, name)) return stamm;
  }
  return std::nullopt;
}

// The empty text is the whole number 0, any other a double.
Antwort wert(Rechenstand&, const Argumente& a) {
  const std::string text = a.text("text");
  if (getrimmt(text).empty()) return {0, {}};
  return {zahl(Wert(text)), {}};
}

Antwort ganze(Rechenstand&, const Argumente& a) {
  return {zahl(Int(a.zahl("x"))), {}};
}

Antwort uebersetzen(Rechenstand& r, const Argumente& a) {
  const std::optional<Stamm> stamm = stamm_von(a.text("stem"));
  if (!stamm) return misslingt("\"stem\" is none of the caption files, as \"JMapCap\" is one");
  return {r.captions.Caption_Uebersetzen(*stamm, a.text("from"), a.text("to"), a.text("text")), {}};
}

Antwort dateigroesse(Rechenstand& r, const Argumente& a) {
  return {r.ablage.Dateigroesse(a.text("name")), {}};
}

constexpr std::array<Operation, 4> kOperationen{{
    {"Wert", "text", "", wert},
    {"Int", "x", "", ganze},
    {"Caption_Uebersetzen", "stem from to text", "", uebersetzen},
    {"Dateigroesse", "name", "", dateigroesse},
}};

}  // namespace

std::span<const Operation> Grundoperationen() {
  return kOperationen;
}

}  // namespace polarkreis::cli
