#include "cycle/logp_linien.h"

#include <algorithm>
#include <cmath>
#include <map>

namespace polarkreis {
namespace {

constexpr double nullpunkt = 273.15;
constexpr double kritisch_CO2 = 31;  // °C; from here up the table's states have no boundary
constexpr int Schritt = 10;          // °C from isotherm to isotherm
constexpr int Schritt_eng = 2;       // °C near the critical point, where they lie far apart
constexpr int eng_bis = 40;          // °C
constexpr int Gehalte = 9;

bool teilbar(double t, int schritt) {
  return std::abs(std::remainder(t, schritt)) < 0.01;
}

/// A place on the isotherm of a table's row, from the bubble to the dew line.
Diagrammort im_Nassdampf(const SatZeile& zeile, double x) {
  return {zeile.h_l + x * (zeile.h_v - zeile.h_l), zeile.p_b + x * (zeile.p_d - zeile.p_b)};
}

void saettigungslinien(const std::vector<SatZeile>& tabelle, Logp_Linien& linien) {
  for (int n = 1; n <= Gehalte; ++n)
    linien.Gehalte.push_back({static_cast<double>(n) / (Gehalte + 1), {}});
  for (const SatZeile& zeile : tabelle) {
    const Diagrammort siedend = im_Nassdampf(zeile, 0), trocken = im_Nassdampf(zeile, 1);
    linien.Siedelinie.push_back(siedend);
    linien.Taulinie.push_back(trocken);
    for (Wertlinie& gehalt : linien.Gehalte)
      gehalt.Orte.push_back(im_Nassdampf(zeile, gehalt.Wert));
    const double t = zeile.T - nullpunkt;
    if (teilbar(t, Schritt)) linien.Isothermen.push_back({std::round(t), {siedend, trocken}});
  }
}

bool gezeigt(double t) {
  return t >= kritisch_CO2 && teilbar(t, t <= eng_bis ? Schritt_eng : Schritt);
}

std::vector<Wertlinie> ueberkritisch(const std::vector<CO2Zeile>& zeilen) {
  std::map<double, std::vector<Diagrammort>> nach_t;
  for (const CO2Zeile& zeile : zeilen)
    if (gezeigt(zeile.t)) nach_t[zeile.t].push_back({zeile.h, zeile.p});
  std::vector<Wertlinie> linien;
  for (auto& [t, orte] : nach_t) {
    std::ranges::sort(orte, {}, &Diagrammort::p);
    linien.push_back({t, std::move(orte)});
  }
  return linien;
}

}  // namespace

Logp_Linien logp_Linien(Kaeltemittel& km) {
  const Schrittfolge eine_abfrage(km.ablage());
  Logp_Linien linien;
  saettigungslinien(km.Tabellenzeilen(), linien);
  if (km.ist_CO2()) linien.Ueberkritisch = ueberkritisch(km.CO2_Zeilen());
  if (linien.Siedelinie.empty()) linien.Gehalte.clear();
  return linien;
}

}  // namespace polarkreis
