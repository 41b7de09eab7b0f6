#include "diagnostics/messtabelle.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <utility>

#include "shell/wert.h"

namespace polarkreis {

namespace {

const std::string Nichts;

bool ist_Spalte(int spalte) {
  return spalte >= 0 && spalte <= Spalte::Angelegt;
}

std::size_t index(int nummer) {
  return static_cast<std::size_t>(nummer);
}

}  // namespace

bool Messtabelle::da(int zeile) const {
  return zeile >= 1 && zeile <= Zeilenzahl() && zeilen_[index(zeile)];
}

Messtabelle::Zeile& Messtabelle::hol(int zeile) {
  if (zeile > Zeilenzahl()) setze_Zeilenzahl(zeile);
  auto& platz = zeilen_[index(zeile)];
  if (!platz) platz = std::make_unique<Zeile>();
  return *platz;
}

void Messtabelle::setze_Zeilenzahl(int anzahl) {
  zeilen_.resize(index(std::max(anzahl, Erste)) + 1);
}

const std::string& Messtabelle::text(int zeile, int spalte) const {
  return da(zeile) && ist_Spalte(spalte) ? zeilen_[index(zeile)]->zellen[index(spalte)] : Nichts;
}

double Messtabelle::zahl(int zeile, int spalte) const {
  return Wert(text(zeile, spalte));
}

void Messtabelle::setze(int zeile, int spalte, std::string text) {
  if (zeile < 1 || !ist_Spalte(spalte) || (text.empty() && !da(zeile))) return;
  hol(zeile).zellen[index(spalte)] = std::move(text);
}

void Messtabelle::setze_Zahl(int zeile, int spalte, double zahl) {
  if (!std::isfinite(zahl) || zeile < 1 || !ist_Spalte(spalte)) return;
  std::string& zelle = hol(zeile).zellen[index(spalte)];
  zelle.clear();
  Zahl_anhaengen(zelle, zahl);
}

bool Messtabelle::gefuellt(int zeile) const {
  if (!da(zeile)) return false;
  const auto& zellen = zeilen_[index(zeile)]->zellen;
  return std::any_of(zellen.begin() + 1, zellen.begin() + 11,
                     [](const std::string& zelle) { return !zelle.empty(); });
}

int Messtabelle::letzte_gefuellte() const {
  int zeile = Erste;
  while (gefuellt(zeile)) ++zeile;
  return zeile - 1;
}

void Messtabelle::einfuegen(int zeile, int anzahl) {
  if (zeile < 1 || anzahl <= 0) return;
  if (zeile > Zeilenzahl() + 1) setze_Zeilenzahl(zeile - 1);
  const std::size_t alte = zeilen_.size();
  zeilen_.resize(alte + index(anzahl));
  std::move_backward(zeilen_.begin() + zeile, zeilen_.begin() + static_cast<std::ptrdiff_t>(alte),
                     zeilen_.end());
}

void Messtabelle::entfernen(int zeile, int anzahl) {
  if (zeile < 1 || zeile > Zeilenzahl() || anzahl <= 0) return;
  const int ende = zeile + std::min(anzahl, Zeilenzahl() + 1 - zeile);
  zeilen_.erase(zeilen_.begin() + zeile, zeilen_.begin() + ende);
  if (Zeilenzahl() < Erste) setze_Zeilenzahl(Erste);
}

void Messtabelle::leeren(int zeile) {
  if (zeile >= 1 && zeile <= Zeilenzahl()) zeilen_[index(zeile)].reset();
}

void Messtabelle::leeren() {
  for (int zeile = Erste; zeile <= Zeilenzahl(); ++zeile) leeren(zeile);
}

void Messtabelle::kopieren(int quelle, int ziel) {
  if (quelle == ziel || ziel < 1) return;
  if (!da(quelle)) {
    leeren(ziel);
    return;
  }
  Zeile& neu = hol(ziel);  // may move the rows' places, so the source is looked up after it
  neu = *zeilen_[index(quelle)];
}

unsigned Messtabelle::rot(int zeile) const {
  return da(zeile) ? zeilen_[index(zeile)]->rot : 0U;
}

void Messtabelle::setze_rot(int zeile, unsigned bits) {
  if (zeile >= 1 && (bits != 0 || da(zeile))) hol(zeile).rot = bits;
}

}  // namespace polarkreis
