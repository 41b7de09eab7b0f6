#include "diagnostics/diagramm.h"

#include <algorithm>
#include <limits>

#include "diagnostics/diagrammplan.h"
#include "diagnostics/messzeiten.h"

namespace polarkreis {

namespace {

/// The axis of a quantity; made where the chart has none yet.
std::size_t Achse(Diagramm& bild, Groesse groesse, const Captions& captions) {
  for (std::size_t k = 0; k < bild.achsen.size(); ++k)
    if (bild.achsen[k].groesse == groesse) return k;
  bild.achsen.push_back({groesse, Groesse_Name(groesse, captions), Groesse_Einheit(groesse), {}});
  return bild.achsen.size() - 1;
}

Diagrammreihe Reihe(const Reihenplan& plan, const Messtabelle& tabelle,
                    const std::vector<Messzeit>& zeiten) {
  Diagrammreihe reihe{plan.Name, Groesse_Einheit(plan.groesse), plan.farbe, 0, {}};
  reihe.punkte.reserve(zeiten.size());
  for (const Messzeit& z : zeiten)
    reihe.punkte.push_back({z.s, plan.wert(tabelle, z.zeile, plan.nummer), z.zeile});
  return reihe;
}

void Achsen_anpassen(Diagramm& bild, const Diagrammplan& plan, const Skala& skala) {
  for (Diagrammachse& achse : bild.achsen)
    if (plan.Anlagenskala) achse.bereich = Skalenbereich(achse.groesse, skala);
  for (const Diagrammreihe& reihe : bild.reihen)
    for (const Diagrammpunkt& punkt : reihe.punkte)
      bild.achsen[reihe.achse].bereich.nimm(punkt.wert);
  for (Diagrammachse& achse : bild.achsen) achse.bereich = geglaettet(achse.bereich);
}

Diagramm Bild(const Messung& messung, const Captions& captions, std::string_view Combo8,
              const std::vector<Messzeit>& zeiten) {
  const Diagrammwahl wahl = Combo8_Wahl(Combo8, captions);
  const Diagrammplan plan = Diagrammplan_von(wahl, captions);
  Diagramm bild;
  bild.Titel = Combo8_Liste(captions)[static_cast<std::size_t>(wahl)];
  for (const Reihenplan& r : plan.reihen) {
    bild.reihen.push_back(Reihe(r, messung.DiaSpread, zeiten));
    bild.reihen.back().achse = Achse(bild, r.groesse, captions);
  }
  Achsen_anpassen(bild, plan, messung.skala);
  return bild;
}

/// A whole number from a field, at least 0; nothing where it holds none.
std::optional<int> ganze_Zahl(std::string_view text) {
  const double zahl = Int(Wert(text));
  if (!ist_Messwert(text) || ist_leer(zahl)) return std::nullopt;
  return static_cast<int>(std::clamp(zahl, 0.0, double{std::numeric_limits<int>::max()}));
}

int letzter_Punkt(const std::vector<Messzeit>& zeiten) {
  int punkt = 0;
  for (const Messzeit& z : zeiten) punkt = std::max(punkt, z.zeile - Messtabelle::Erste + 1);
  return punkt;
}

}  // namespace

void DiaG_Dia::Chart_Darstell() {
  bild = Bild(messung_, captions_, Combo8, Messzeiten(messung_));
}

void DiaG_Dia::Real_time_DiaG(int points, int bis_zeile) {
  std::vector<Messzeit> zeiten = Messzeiten(messung_);
  const auto letzte = std::find_if(zeiten.begin(), zeiten.end(),
                                   [&](const Messzeit& z) { return z.zeile == bis_zeile; });
  if (letzte != zeiten.end()) zeiten.erase(letzte + 1, zeiten.end());
  const auto zuviel = static_cast<std::ptrdiff_t>(zeiten.size()) - std::max(points, 1);
  if (zuviel > 0) zeiten.erase(zeiten.begin(), zeiten.begin() + zuviel);
  bild = Bild(messung_, captions_, Combo8, zeiten);
}

void DiaG_Dia::Zoom_DiaG() {
  std::vector<Messzeit> zeiten = Messzeiten(messung_);
  const int anzahl = letzter_Punkt(zeiten);
  if (anzahl < 1) return Chart_Darstell();
  int von = std::clamp(von_.value_or(1), 1, anzahl);
  int bis = std::clamp(bis_.value_or(anzahl), 1, anzahl);
  if (von > bis) std::swap(von, bis);
  min_point = std::to_string(von);
  max_point = std::to_string(bis);
  std::erase_if(zeiten, [&](const Messzeit& z) {
    const int punkt = z.zeile - Messtabelle::Erste + 1;
    return punkt < von || punkt > bis;
  });
  bild = Bild(messung_, captions_, Combo8, zeiten);
}

void DiaG_Dia::min_point_KeyPress(int taste) {
  if (taste == Eingabetaste) von_ = ganze_Zahl(min_point);
}

void DiaG_Dia::max_point_KeyPress(int taste) {
  if (taste == Eingabetaste) bis_ = ganze_Zahl(max_point);
}

}  // namespace polarkreis
