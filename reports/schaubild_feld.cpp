#include "reports/schaubild_feld.h"

namespace polarkreis {

namespace {

constexpr Strich Hauptlinie{"#d0d0d0", 0.8};
constexpr Strich Zwischenlinie{"#ececec", 0.6};
constexpr Strich Teilung{"#444444", 1};

const Strich& Rasterlinie(const Teilstrich& strich) {
  return strich.text.empty() ? Zwischenlinie : Hauptlinie;
}

}  // namespace

void zeichne_Raster(Svg_Blatt& blatt, const Schaubildfeld& feld) {
  const Bildflaeche& f = feld.flaeche;
  blatt.Gruppe("Raster");
  for (const bool haupt : {false, true}) {
    for (const Teilstrich& s : Teilstriche(feld.x, Achsschrift))
      if (s.text.empty() != haupt) blatt.Linie({s.lage, f.y}, {s.lage, f.unten()}, Rasterlinie(s));
    for (const Teilstrich& s : Teilstriche(feld.y, Achsschrift))
      if (s.text.empty() != haupt) blatt.Linie({f.x, s.lage}, {f.rechts(), s.lage}, Rasterlinie(s));
  }
  blatt.Gruppe_Ende();
}

void zeichne_Achsen(Svg_Blatt& blatt, const Schaubildfeld& feld, const Schaubild& bild) {
  const Bildflaeche& f = feld.flaeche;
  blatt.Gruppe("Achsen");
  blatt.Rechteck(f, {"none", "#222222", 1.2});
  for (const Teilstrich& s : Teilstriche(feld.x, Achsschrift)) {
    blatt.Linie({s.lage, f.unten()}, {s.lage, f.unten() + (s.text.empty() ? 3 : 6)}, Teilung);
    blatt.Text({s.lage, f.unten() + 16}, s.text, {Achsschrift, Anschlag::Mitte});
  }
  for (const Teilstrich& s : Teilstriche(feld.y, Achsschrift)) {
    blatt.Linie({f.x - (s.text.empty() ? 3 : 6), s.lage}, {f.x, s.lage}, Teilung);
    blatt.Text({f.x - 9, s.lage}, s.text, {Achsschrift, Anschlag::Ende});
  }
  Schrift titel{Achstitelschrift, Anschlag::Mitte};
  const Bildort mitte{f.x + f.breite / 2, f.y + f.hoehe / 2};
  blatt.Text({mitte.x, f.unten() + 40}, gekuerzt(bild.x.Titel, f.breite, titel.groesse), titel);
  titel.winkel = -90;
  blatt.Text({30, mitte.y}, gekuerzt(bild.y.Titel, f.hoehe, titel.groesse), titel);
  blatt.Gruppe_Ende();
}

}  // namespace polarkreis
