#include <algorithm>

#include "shell/items.h"
#include "shell/text.h"
#include "simulation/bericht.h"

namespace polarkreis {

namespace {

/// Takes a table's columns off the line, so that the label is left.
std::vector<std::string> abgetrennt(std::string_view& zeile) {
  std::vector<std::string> spalten;
  std::size_t marke = zeile.find(Marke_Tabelle);
  std::string_view rest = zeile;
  zeile = zeile.substr(0, marke);
  while (marke != std::string_view::npos) {
    rest.remove_prefix(marke + Marke_Tabelle.size());
    marke = rest.find(Marke_Tabelle);
    spalten.emplace_back(getrimmt(rest.substr(0, marke)));
  }
  return spalten;
}

Berichtszeile zerlegt(std::string_view roh) {
  Berichtszeile z;
  roh = rechts_getrimmt(links_getrimmt(roh));
  z.lineal = roh.size() > 3 && roh.find_first_not_of('-') == std::string_view::npos;
  if (roh.starts_with(Marke_Kopf)) {
    z.kopf = true;
    roh.remove_prefix(Marke_Kopf.size());
  }
  z.spalten = abgetrennt(roh);
  const std::size_t spalte = roh.find(Marke_Spalte);
  z.text = std::string(roh.substr(0, spalte));
  if (spalte != std::string_view::npos) {
    z.wert = std::string(roh.substr(spalte + Marke_Spalte.size()));
  }
  return z;
}

}  // namespace

bool ErgebEdit::oeffnen(std::string_view name) {
  zeilen.clear();
  Seite = 1;
  const std::optional<std::string> text = ablage_.lies_ganz(name);
  if (!text) return false;
  std::string_view rest = *text;
  while (!rest.empty()) {
    const std::size_t ende = rest.find('\n');
    std::string_view zeile = rest.substr(0, ende);
    rest.remove_prefix(ende == std::string_view::npos ? rest.size() : ende + 1);
    if (zeile.ends_with('\r')) zeile.remove_suffix(1);
    zeilen.push_back(zeile.starts_with('"') ? zerlegt(ItemLeser(zeile).lies()) : zerlegt(zeile));
  }
  return !zeilen.empty();
}

int ErgebEdit::Seitenzahl() const {
  const int n = static_cast<int>(zeilen.size());
  return std::max(1, (n + Zeilen_je_Seite - 1) / Zeilen_je_Seite);
}

std::string ErgebEdit::PrintHead() const {
  const auto titel =
      std::find_if(zeilen.begin(), zeilen.end(), [](const Berichtszeile& z) { return z.kopf; });
  const std::string name = titel == zeilen.end() ? "" : titel->text;
  return name + "  " + std::to_string(Seite) + "/" + std::to_string(Seitenzahl());
}

std::vector<Berichtszeile> ErgebEdit::seite() const {
  std::vector<Berichtszeile> aus;
  aus.push_back({true, false, PrintHead(), ""});
  const std::size_t von =
      std::min(zeilen.size(), static_cast<std::size_t>((Seite - 1) * Zeilen_je_Seite));
  const std::size_t bis = std::min(zeilen.size(), von + static_cast<std::size_t>(Zeilen_je_Seite));
  aus.insert(aus.end(), zeilen.begin() + static_cast<std::ptrdiff_t>(von),
             zeilen.begin() + static_cast<std::ptrdiff_t>(bis));
  return aus;
}

void ErgebEdit::Command3D(int seiten) {
  Seite = std::clamp(Seite + seiten, 1, Seitenzahl());
}

}  // namespace polarkreis
