#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <optional>

#include "reports/schaubild_feld.h"
#include "reports/schaubild_linien.h"

namespace polarkreis {

namespace {

constexpr double Kurvenschrift = 11;

/// Told apart by colour-blind eyes, and in print by their darkness and dashes.
Strich Strich_der_Art(Kurvenart art) {
  switch (art) {
    case Kurvenart::Grenze:
      return {"#1a1a1a", 2};
    case Kurvenart::Isotherme:
      return {"#c04a00", 0.9};
    case Kurvenart::Gehalt:
      return {"#00805e", 0.9, "8 3 2 3"};
    case Kurvenart::Ueberkritisch:
      return {"#aa4499", 0.9, "12 3"};
    case Kurvenart::Prozess:
      return {"#0072b2", 3};
    case Kurvenart::Hilfslinie:
      break;
  }
  return {"#666666", 1.1, "4 4"};
}

constexpr std::array<std::string_view, 3> Prozessfarben = {"#0072b2", "#882255", "#806600"};

/// How much it disturbs to write over a curve. A text may cross a process line at worst, and never
/// lies on one.
double Gewicht(Kurvenart art) {
  if (art == Kurvenart::Prozess) return Platzbelegung::Vergeben / 10;
  return art == Kurvenart::Grenze ? 4 : 1;
}

std::vector<Linienzug> sichtbar(const Schaubildfeld& feld, const Kurve& kurve) {
  Linienzug zug;
  zug.reserve(kurve.Punkte.size());
  for (const Kurvenpunkt& punkt : kurve.Punkte) zug.push_back(feld.ort(punkt.x, punkt.y));
  const bool rund = kurve.Art == Kurvenart::Grenze || kurve.Art == Kurvenart::Gehalt;
  return im_Ausschnitt(rund ? geglaettet(zug) : zug, feld.flaeche);
}

/// The place so far along the direction and so far to its right.
Bildort verschoben(const Richtungsort& von, double laengs, double quer) {
  const double cosinus = std::cos(von.winkel * std::numbers::pi / 180);
  const double sinus = std::sin(von.winkel * std::numbers::pi / 180);
  return {von.ort.x + laengs * cosinus - quer * sinus, von.ort.y + laengs * sinus + quer * cosinus};
}

void zeichne_Pfeil(Svg_Blatt& blatt, const Richtungsort& ort, std::string_view farbe) {
  blatt.Vieleck({verschoben(ort, 9, 0), verschoben(ort, -7, 6.5), verschoben(ort, -7, -6.5)},
                {farbe, "#ffffff", 1});
}

/// Beside the ends of a line, for a text that doesn't fit along it.
void Endorte(std::vector<Richtungsort>& orte, const Linienzug& zug, double breite) {
  constexpr double Luft = 4;
  for (const Bildort& ende : {zug.back(), zug.front()}) {
    orte.push_back({{ende.x + breite / 2 + Luft, ende.y}});
    orte.push_back({{ende.x - breite / 2 - Luft, ende.y}});
    orte.push_back({{ende.x, ende.y - Kurvenschrift}});
    orte.push_back({{ende.x, ende.y + Kurvenschrift}});
  }
}

/// Where the text of a curve might stand, the best first: on a thin line, beside a bold one.
std::vector<Richtungsort> Kandidaten(const std::vector<Linienzug>& stuecke, Kurvenart art,
                                     double breite) {
  std::vector<Richtungsort> orte;
  for (const Linienzug& stueck : stuecke) {
    for (const Richtungsort& ort : Textorte(stueck, breite)) {
      if (art != Kurvenart::Prozess) {
        orte.push_back(ort);
        continue;
      }
      for (const double seite : {-1, 1})
        orte.push_back({verschoben(ort, 0, seite * (Kurvenschrift + 1)), ort.winkel});
    }
  }
  if (orte.empty())
    for (const Linienzug& stueck : stuecke) Endorte(orte, stueck, breite);
  return orte;
}

std::optional<Richtungsort> bester_Ort(const std::vector<Richtungsort>& orte, double breite,
                                       const Platzbelegung& belegung) {
  constexpr double Rang = 1.5;  // so much a place must be better than the one before it
  constexpr double Steil = 10;  // what stands upright is harder to read
  std::optional<Richtungsort> bester;
  double geringste = Platzbelegung::Vergeben;
  double rang = 0;
  for (const Richtungsort& ort : orte) {
    const double kosten = belegung.Kosten(ort, breite + 12, Kurvenschrift + 4) + rang +
                          Steil * std::abs(ort.winkel) / 90;
    if (kosten < geringste) {
      geringste = kosten;
      bester = ort;
    }
    rang += Rang;
  }
  return bester;
}

}  // namespace

std::vector<Strich> Kurvenstriche(const std::vector<Kurve>& kurven) {
  std::vector<Strich> striche;
  std::vector<std::string> prozesse;
  for (const Kurve& kurve : kurven) {
    striche.push_back(Strich_der_Art(kurve.Art));
    if (kurve.Art != Kurvenart::Prozess) continue;
    auto platz = std::ranges::find(prozesse, kurve.Legende);
    if (platz == prozesse.end()) platz = prozesse.insert(platz, kurve.Legende);
    const auto nummer = static_cast<std::size_t>(platz - prozesse.begin());
    striche.back().farbe = Prozessfarben[nummer % Prozessfarben.size()];
  }
  return striche;
}

std::vector<Legendeneintrag> Legende(const std::vector<Kurve>& kurven) {
  const std::vector<Strich> striche = Kurvenstriche(kurven);
  std::vector<Legendeneintrag> eintraege;
  for (std::size_t i = 0; i < kurven.size(); ++i) {
    const std::string& text = kurven[i].Legende;
    const bool schon_da = std::ranges::count(eintraege, text, &Legendeneintrag::text) > 0;
    if (!text.empty() && !schon_da) eintraege.push_back({text, striche[i]});
  }
  return eintraege;
}

void zeichne_Kurven(Svg_Blatt& blatt, const Schaubildfeld& feld, const std::vector<Kurve>& kurven,
                    Platzbelegung& belegung) {
  const std::vector<Strich> striche = Kurvenstriche(kurven);
  blatt.Gruppe_im_Fenster("Kurven", feld.flaeche);
  for (std::size_t i = 0; i < kurven.size(); ++i) {
    for (const Linienzug& stueck : sichtbar(feld, kurven[i])) {
      blatt.Zug(stueck, striche[i]);
      belegung.belege(stueck, Gewicht(kurven[i].Art));
      if (kurven[i].Art != Kurvenart::Prozess) continue;
      for (const Richtungsort& ort : Pfeilorte(stueck)) {
        zeichne_Pfeil(blatt, ort, striche[i].farbe);
        belegung.belege(ort, 16, 14, 2 * Gewicht(Kurvenart::Prozess));
      }
    }
  }
  blatt.Gruppe_Ende();
}

void beschrifte_Kurven(Svg_Blatt& blatt, const Schaubildfeld& feld,
                       const std::vector<Kurve>& kurven, Platzbelegung& belegung) {
  const std::vector<Strich> striche = Kurvenstriche(kurven);
  blatt.Gruppe("Kurventexte");
  for (std::size_t i = 0; i < kurven.size(); ++i) {
    const Kurve& kurve = kurven[i];
    if (kurve.Beschriftung.empty()) continue;
    const double breite = Textbreite(kurve.Beschriftung, Kurvenschrift);
    const auto ort =
        bester_Ort(Kandidaten(sichtbar(feld, kurve), kurve.Art, breite), breite, belegung);
    if (!ort) continue;
    const auto& [x, y] = ort->ort;
    blatt.Rechteck({x - breite / 2 - 4, y - Kurvenschrift / 2, breite + 8, Kurvenschrift},
                   {"#ffffff"}, ort->winkel);
    blatt.Text(ort->ort, kurve.Beschriftung,
               {Kurvenschrift, Anschlag::Mitte, striche[i].farbe, false, ort->winkel});
    belegung.belege(*ort, breite, Kurvenschrift, Platzbelegung::Vergeben);
  }
  blatt.Gruppe_Ende();
}

}  // namespace polarkreis
