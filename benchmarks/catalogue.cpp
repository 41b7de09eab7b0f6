#include "catalogue.h"

#include <algorithm>
#include <string>
#include <string_view>

#include "shell/items.h"

namespace polarkreis::bench {

namespace {

constexpr std::string_view kCode = "VIELEKD";
constexpr int kErster = 52;  // behind the record of the type
constexpr std::string_view kGesucht = "needle";

std::string gefuellt(std::string text, int laenge) {
  text.resize(static_cast<std::size_t>(laenge), ' ');
  return text;
}

std::string bauteil(int nummer) {
  constexpr int feld = 40;
  const std::string modell = "AX " + std::to_string(nummer) + " axial, quiet";
  std::string satz = gefuellt(modell, feld) + gefuellt("Gr\x94nstad Kyl, series GKV", feld);
  if (nummer == Katalogsuche::Bauteilzahl) satz.replace(0, kGesucht.size(), kGesucht);
  for (int i = 3; i <= 14; ++i)
    satz += gefuellt("Capacity: " + std::to_string(nummer) + " kW", feld);
  return gefuellt(satz, Bauteilsatz);
}

}  // namespace

Katalogsuche::Katalogsuche() : ablage_(daten_.ordner(), meldungen_), suche_(ablage_) {
  std::string saetze(static_cast<std::size_t>(kErster - 1) * Bauteilsatz, ' ');
  saetze[50 * Bauteilsatz] = '4';
  std::string index;
  for (int n = 1; n <= Bauteilzahl; ++n) {
    saetze += bauteil(n);
    if (n % KompSuch::Satzzahl == 1)
      zeile_anhaengen(index, {kCode, "Maker", "Condensers", std::to_string(kErster + n - 1)});
  }
  ablage_.schreib_ganz(Bauteildatei(kCode), saetze, Haltbarkeit::wiederholbar);
  suche_.Suchart = 2;
  ablage_.schreib_ganz(Indexdatei(suche_.Suchart), index, Haltbarkeit::wiederholbar);
}

std::size_t Katalogsuche::suchen() {
  suche_.Suchtext = kGesucht;
  suche_.Suchen();
  return suche_.Trefferzahl();
}

std::size_t Katalogsuche::alle() {
  suche_.Suchtext.clear();
  suche_.Suchen();
  return suche_.Trefferzahl();
}

}  // namespace polarkreis::bench
