#include "reports/platzbelegung.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace polarkreis {

namespace {

constexpr double Feldbreite = 4;

/// Calls `tu` for the middle of each part of a turned rectangle that is about as large as a field.
template <class Tun>
void fuer_jeden_Teil(const Richtungsort& mitte, double breite, double hoehe, Tun tu) {
  const double cosinus = std::cos(mitte.winkel * std::numbers::pi / 180);
  const double sinus = std::sin(mitte.winkel * std::numbers::pi / 180);
  const int spalten = std::max(1, static_cast<int>(std::ceil(breite / Feldbreite)));
  const int zeilen = std::max(1, static_cast<int>(std::ceil(hoehe / Feldbreite)));
  for (int zeile = 0; zeile < zeilen; ++zeile) {
    const double quer = ((zeile + 0.5) / zeilen - 0.5) * hoehe;
    for (int spalte = 0; spalte < spalten; ++spalte) {
      const double laengs = ((spalte + 0.5) / spalten - 0.5) * breite;
      tu(Bildort{mitte.ort.x + laengs * cosinus - quer * sinus,
                 mitte.ort.y + laengs * sinus + quer * cosinus});
    }
  }
}

}  // namespace

Platzbelegung::Platzbelegung(const Bildflaeche& flaeche)
    : gebiet_(flaeche),
      spalten_(static_cast<std::size_t>(flaeche.breite / Feldbreite)),
      zeilen_(static_cast<std::size_t>(flaeche.hoehe / Feldbreite)),
      felder_(spalten_ * zeilen_, 0) {}

std::size_t Platzbelegung::Feld(const Bildort& ort) const {
  const double x = ort.x - gebiet_.x, y = ort.y - gebiet_.y;
  if (x < 0 || y < 0) return felder_.size();
  const auto spalte = static_cast<std::size_t>(x / Feldbreite);
  const auto zeile = static_cast<std::size_t>(y / Feldbreite);
  return spalte < spalten_ && zeile < zeilen_ ? zeile * spalten_ + spalte : felder_.size();
}

void Platzbelegung::belege(const Bildort& ort, double gewicht) {
  const std::size_t feld = Feld(ort);
  if (feld < felder_.size()) felder_[feld] = std::max(felder_[feld], gewicht);
}

void Platzbelegung::belege(const Linienzug& zug, double gewicht) {
  for (std::size_t i = 1; i < zug.size(); ++i) {
    const Bildort &a = zug[i - 1], &b = zug[i];
    const double teile = std::ceil(std::hypot(b.x - a.x, b.y - a.y) / (Feldbreite / 2));
    for (double n = 0; n <= teile; ++n) {
      const double anteil = teile > 0 ? n / teile : 0;
      belege(Bildort{a.x + anteil * (b.x - a.x), a.y + anteil * (b.y - a.y)}, gewicht);
    }
  }
}

void Platzbelegung::belege(const Richtungsort& mitte, double breite, double hoehe, double gewicht) {
  fuer_jeden_Teil(mitte, breite, hoehe, [&](const Bildort& ort) { belege(ort, gewicht); });
}

double Platzbelegung::Kosten(const Richtungsort& mitte, double breite, double hoehe) const {
  double summe = 0;
  fuer_jeden_Teil(mitte, breite, hoehe, [&](const Bildort& ort) {
    const std::size_t feld = Feld(ort);
    summe += feld < felder_.size() ? felder_[feld] : Vergeben;
  });
  return summe;
}

}  // namespace polarkreis
