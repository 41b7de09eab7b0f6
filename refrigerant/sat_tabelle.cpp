#include "refrigerant/sat_tabelle.h"

#include <algorithm>
#include <cmath>

#include "refrigerant/zahlenzeile.h"
#include "shell/text.h"

namespace polarkreis {
namespace {

struct Umrechnung {
  bool spezifisches_volumen = false;   // densities stand as dm³/kg
  std::size_t negative_enthalpie = 0;  // so many first rows hold the magnitude of h_l
  bool celsius = false;                // temperatures stand in °C
};

Umrechnung umrechnung(std::string_view datei) {
  const std::string name = gross(datei);
  Umrechnung u;
  u.spezifisches_volumen =
      name == "R11.DAT" || name == "R12.DAT" || name == "R23.DAT" || name == "AMMONIAK.DAT";
  if (name == "AMMONIAK.DAT") u.negative_enthalpie = 8;
  u.celsius = name == "R123.DAT";
  return u;
}

SatZeile umgerechnet(SatZeile zeile, const Umrechnung& u, std::size_t nummer) {
  if (nummer <= u.negative_enthalpie) zeile.h_l = -zeile.h_l;
  if (u.spezifisches_volumen) {
    setze(zeile.rho_l, 1000 / zeile.rho_l);
    setze(zeile.rho_v, 1000 / zeile.rho_v);
  }
  if (u.celsius) zeile.T = zeile.T + 273.15;
  setze(zeile.rho_l, geschnitten(zeile.rho_l));
  setze(zeile.rho_v, geschnitten(zeile.rho_v));
  return zeile;
}

void schluessel_bilden(SatTabelle& tabelle) {
  constexpr double SatZeile::*spalten[] = {&SatZeile::T, &SatZeile::p_d, &SatZeile::p_b};
  for (std::size_t n = 0; n < SatTabelle::anzahl; ++n) {
    auto& schluessel = tabelle.schluessel[n];
    schluessel.reserve(tabelle.zeilen.size());
    for (const SatZeile& zeile : tabelle.zeilen) schluessel.push_back(zeile.*spalten[n]);
    tabelle.steigt[n] = std::is_sorted(schluessel.begin(), schluessel.end());
  }
}

SatTreffer durchgang(const std::vector<double>& schluessel, double key) {
  SatTreffer treffer;
  for (int i = 0; i < static_cast<int>(schluessel.size()); ++i) {
    if (schluessel[static_cast<std::size_t>(i)] < key) {
      treffer.unten = i;
    } else {
      treffer.oben = i;
      break;
    }
  }
  return treffer;
}

}  // namespace

SatTreffer SatTabelle::suche(double key, Schluessel spalte) const {
  const std::vector<double>& s = schluessel[spalte];
  if (std::isnan(key) || s.empty()) return {};  // no row is below an empty key, and none above it
  if (!steigt[spalte]) return durchgang(s, key);
  const auto erste = std::lower_bound(s.begin(), s.end(), key);
  const int i = static_cast<int>(erste - s.begin());
  return {i - 1, erste == s.end() ? -1 : i};
}

SatTabelle sat_tabelle_lesen(std::string_view datei, std::optional<std::string>&& text) {
  SatTabelle tabelle;
  if (!text) return tabelle;
  const Umrechnung u = umrechnung(datei);
  ItemLeser leser(*text);
  double w[7] = {};
  for (;;) {
    const Zeilenstand stand = zahlen_lesen(leser, w);
    const std::size_t nummer = tabelle.zeilen.size() + 1;
    if (stand == Zeilenstand::bruch) tabelle.bruch = static_cast<int>(nummer);
    if (stand != Zeilenstand::voll || (w[0] == 0 && w[2] == 0)) break;
    tabelle.zeilen.push_back(umgerechnet({w[0], w[1], w[2], w[3], w[4], w[5], w[6]}, u, nummer));
  }
  schluessel_bilden(tabelle);
  return tabelle;
}

}  // namespace polarkreis
