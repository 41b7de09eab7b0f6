#include "diagnostics/import_form.h"

#include <algorithm>
#include <array>
#include <string>

#include "diagnostics/import_zeilen.h"
#include "shell/wert.h"

namespace polarkreis {

namespace {

bool ist_Zahl(const Zellinhalt& zelle) {
  return !std::holds_alternative<Zeitwert>(zelle) && !ist_leer(Zahl_von(zelle));
}

bool ist_Zeit(const Zellinhalt& zelle) {
  const auto* text = std::get_if<std::string>(&zelle);
  return std::holds_alternative<Zeitwert>(zelle) || (text != nullptr && Uhrzeit_von(*text));
}

/// The first row of a ClimaCheck sheet, and how many of its rows are looked at.
constexpr int Erste_Messzeile = 25, Geprueft = 200;

/// Columns that ClimaCheck's sheets fill behind those of a Testo sheet.
constexpr std::array Hinter_H = {"Q25",  "V25",  "W25",  "X25",  "AG25", "AO25", "CD25",
                                 "CE25", "CF25", "CH25", "CI25", "CJ25", "CK25"};

}  // namespace

std::string_view Importform_Text(Importform form) {
  switch (form) {
    case Importform::Logger:
      return "a logger's own file (.adc)";
    case Importform::Steuertext:
      return "a text file of a control system";
    case Importform::ClimaCheck:
      return "a ClimaCheck worksheet";
    case Importform::Testo:
      return "a Testo 735 worksheet";
    case Importform::keine:
      break;
  }
  return {};
}

Importform Textform_von(std::string_view text) {
  std::size_t logger = 0, steuertext = 0, keine = 0;
  std::string_view zeile;
  for (Zeilenleser leser(text); leser.lies(zeile);) {
    if (zeile.starts_with('"')) zeile.remove_prefix(1);
    const auto uhr = Uhrzeit_von(zeile);
    if (!uhr) continue;
    const std::string_view werte = zeile.substr(uhr->ende);
    const bool tab = werte.find('\t') != std::string_view::npos;
    ++(tab ? logger : werte.find(',') != std::string_view::npos ? steuertext : keine);
  }
  if (logger > steuertext + keine) return Importform::Logger;
  return steuertext > logger + keine ? Importform::Steuertext : Importform::keine;
}

Importform Blattform_von(const Arbeitsmappe& mappe) {
  const auto Zahl_in = [&](const std::string& ort) { return ist_Zahl(mappe.Range(ort)); };
  const int letzte = std::min(mappe.letzte_Zeile(), Erste_Messzeile + Geprueft - 1);
  for (int n = Erste_Messzeile; n <= letzte; ++n) {
    const std::string zeile = std::to_string(n);
    if (ist_Zeit(mappe.Range("D" + zeile)) && Zahl_in("G" + zeile) && Zahl_in("X" + zeile))
      return Importform::ClimaCheck;
  }
  const bool voll = Zahl_in("D3") || Zahl_in("E3");
  return voll && std::ranges::none_of(Hinter_H, Zahl_in) ? Importform::Testo : Importform::keine;
}

}  // namespace polarkreis
