#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>

#include "reports/schaubild_feld.h"

namespace polarkreis {

namespace {

constexpr double Punktradius = 3.5;
constexpr double Scheibenhoehe = 18;
constexpr double Nummernschrift = 11;
constexpr std::string_view Markenfarbe = "#222222";

bool liegt_im(const Bildflaeche& flaeche, const Bildort& ort) {
  return ort.x >= flaeche.x && ort.x <= flaeche.rechts() && ort.y >= flaeche.y &&
         ort.y <= flaeche.unten();
}

/// Where the disc of a mark covers least, around the mark and as near to it as may be.
Bildort Scheibenort(const Bildort& marke, double breite, const Platzbelegung& belegung) {
  constexpr int Richtungen = 16;
  const double nah = Punktradius + 4 + (Scheibenhoehe + breite) / 4;
  Bildort bester = marke;
  double geringste = std::numeric_limits<double>::infinity();
  for (int ring = 0; ring < 8; ++ring) {
    const double abstand = nah + ring * 9;
    for (int n = 0; n < Richtungen; ++n) {
      // The first direction is up and to the right, where a text is looked for.
      const double winkel = (2.0 * n / Richtungen - 0.25) * std::numbers::pi;
      const Bildort ort{marke.x + abstand * std::cos(winkel), marke.y + abstand * std::sin(winkel)};
      const double kosten = belegung.Kosten({ort}, breite + 5, Scheibenhoehe + 5) + ring * 12;
      if (kosten >= geringste) continue;
      geringste = kosten;
      bester = ort;
    }
  }
  return bester;
}

/// A mark within the frame and where its disc stands.
struct Gesetzte {
  const Marke* marke;
  Bildort ort, scheibe;
};

}  // namespace

double Nummernbreite(const std::string& nummer) {
  return std::max(Scheibenhoehe, Textbreite(nummer, Nummernschrift, true) + 6);
}

void zeichne_Nummer(Svg_Blatt& blatt, const Bildort& mitte, const std::string& nummer) {
  const double breite = Nummernbreite(nummer);
  blatt.Rechteck({mitte.x - breite / 2, mitte.y - Scheibenhoehe / 2, breite, Scheibenhoehe},
                 {Markenfarbe, "#ffffff", 2, Scheibenhoehe / 2});
  blatt.Text(mitte, nummer, {Nummernschrift, Anschlag::Mitte, "#ffffff", true});
}

void zeichne_Marken(Svg_Blatt& blatt, const Schaubildfeld& feld, const std::vector<Marke>& marken,
                    Platzbelegung& belegung) {
  std::vector<Gesetzte> gesetzt;
  for (const Marke& marke : marken) {
    const Bildort ort = feld.ort(marke.x, marke.y);
    if (!liegt_im(feld.flaeche, ort)) continue;
    gesetzt.push_back({&marke, ort, ort});
    belegung.belege(Richtungsort{ort}, 3 * Punktradius, 3 * Punktradius, Platzbelegung::Vergeben);
  }
  for (Gesetzte& g : gesetzt) {
    if (g.marke->Nummer.empty()) continue;
    const double breite = Nummernbreite(g.marke->Nummer);
    g.scheibe = Scheibenort(g.ort, breite, belegung);
    belegung.belege(Richtungsort{g.scheibe}, breite, Scheibenhoehe, Platzbelegung::Vergeben);
  }
  blatt.Gruppe("Marken");
  for (const Gesetzte& g : gesetzt)
    if (!g.marke->Nummer.empty()) blatt.Linie(g.ort, g.scheibe, {Markenfarbe, 1});
  for (const Gesetzte& g : gesetzt) blatt.Kreis(g.ort, Punktradius, {Markenfarbe, "#ffffff", 1.5});
  for (const Gesetzte& g : gesetzt)
    if (!g.marke->Nummer.empty()) zeichne_Nummer(blatt, g.scheibe, g.marke->Nummer);
  blatt.Gruppe_Ende();
}

}  // namespace polarkreis
