#include "diagnostics/spaltenbreiten.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "diagnostics/kopfzeilen.h"

namespace polarkreis {

namespace {

constexpr const char* Datei = "Diagopt.dat";
constexpr std::int64_t Standard_unter = 50, Lesen_ueber = 500;  // bytes

constexpr int Breite_Zeilenkopf = 700, Breite_Spalte = 1100, Hoechstbreite = 32000;

int Breite_von(std::string_view text) {
  const double zahl = Int(Wert(text));
  return zahl > 0 ? static_cast<int>(std::min(zahl, double{Hoechstbreite})) : 0;
}

}  // namespace

Spaltenbreiten::Spaltenbreiten() {
  Breite.fill(Breite_Spalte);
  Breite[Spalte::Zeilenkopf] = Breite_Zeilenkopf;
}

Spaltenlage Spaltenbreiten_lesen(Spaltenbreiten& breiten, Messung& messung,
                                 const Captions& captions, Ablage& ablage) {
  const std::int64_t bytes = ablage.Dateigroesse(Datei);
  if (bytes < Standard_unter) {
    breiten = {};
    for (const int einheit : {1, 2}) Col_Standard(messung, captions, 1, einheit, 0);
    return Spaltenlage::Standard;
  }
  if (bytes <= Lesen_ueber) return Spaltenlage::belassen;
  const std::string inhalt = ablage.lies_ganz(Datei).value_or("");
  ItemLeser leser(inhalt);
  std::string item;
  for (auto breite = breiten.Breite.begin() + 1; breite != breiten.Breite.end(); ++breite) {
    if (!leser.lies(item)) break;
    *breite = Breite_von(item);
  }
  return Spaltenlage::gelesen;
}

bool Spaltenbreiten_schreiben(const Spaltenbreiten& breiten, Ablage& ablage) {
  std::string text;
  for (auto breite = breiten.Breite.begin() + 1; breite != breiten.Breite.end(); ++breite)
    zeile_anhaengen(text, {std::to_string(*breite)});
  return ablage.schreib_ganz(Datei, text, Haltbarkeit::wiederholbar);
}

}  // namespace polarkreis
