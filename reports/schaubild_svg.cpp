#include "reports/schaubild_svg.h"

#include <algorithm>

#include "reports/schaubild_feld.h"
#include "reports/schaubild_tafel.h"
#include "reports/svg_blatt.h"

namespace polarkreis {

namespace {

constexpr double Blattbreite = 1200, Mindesthoehe = 800, Rand = 24;
constexpr double Titelschrift = 20, Untertitelschrift = 13;

/// The chart with texts that any reader of XML takes. The tabs of the text block stay: they part
/// its columns.
Schaubild mit_sauberen_Texten(Schaubild bild) {
  const auto saeubere = [](std::string& text) { text = saubere_Zeile(std::move(text)); };
  for (std::string* text : {&bild.Titel, &bild.Untertitel, &bild.x.Titel, &bild.y.Titel})
    saeubere(*text);
  for (Kurve& kurve : bild.Kurven) {
    saeubere(kurve.Legende);
    saeubere(kurve.Beschriftung);
  }
  for (Marke& marke : bild.Marken) {
    saeubere(marke.Nummer);
    std::ranges::for_each(marke.Zellen, saeubere);
  }
  std::ranges::for_each(bild.Markenkopf, saeubere);
  return bild;
}

Achsmass Mass_aus(const Schaubild& bild, const Schaubildachse& achse,
                  double Kurvenpunkt::*von_Kurve, double Marke::*von_Marke) {
  std::vector<double> werte;
  for (const Kurve& kurve : bild.Kurven)
    for (const Kurvenpunkt& punkt : kurve.Punkte) werte.push_back(punkt.*von_Kurve);
  for (const Marke& marke : bild.Marken) werte.push_back(marke.*von_Marke);
  return Achsmass_von(achse, werte);
}

double Titelhoehe(const Schaubild& bild) {
  return (bild.Titel.empty() ? 0 : 28) + (bild.Untertitel.empty() ? 0 : 22);
}

/// The plot fills what the titles, the panel and the texts of its axes leave of the sheet.
Schaubildfeld Feld_auf(const Schaubild& bild, double blatthoehe, double rechts) {
  constexpr double Unter_Feld = 74, Neben_Feld = 50;
  Schaubildfeld feld{{},
                     Mass_aus(bild, bild.x, &Kurvenpunkt::x, &Marke::x),
                     Mass_aus(bild, bild.y, &Kurvenpunkt::y, &Marke::y)};
  Bildflaeche& f = feld.flaeche;
  f.y = Rand + Titelhoehe(bild);
  f.hoehe = blatthoehe - Unter_Feld - f.y;
  feld.y.anfang = f.unten();
  feld.y.ende = f.y;
  double textbreite = 0;
  for (const Teilstrich& strich : Teilstriche(feld.y, Achsschrift))
    textbreite = std::max(textbreite, Textbreite(strich.text, Achsschrift));
  f.x = Neben_Feld + textbreite;
  f.breite = rechts - f.x;
  feld.x.anfang = f.x;
  feld.x.ende = f.rechts();
  return feld;
}

void zeichne_Titel(Svg_Blatt& blatt, const Schaubild& bild, double x) {
  const double breite = Blattbreite - Rand - x;
  double y = Rand + Titelschrift / 2;
  blatt.Text({x, y}, gekuerzt(bild.Titel, breite, Titelschrift, true),
             {Titelschrift, Anschlag::Anfang, "#222222", true});
  if (!bild.Titel.empty()) y += 25;
  blatt.Text({x, y}, gekuerzt(bild.Untertitel, breite, Untertitelschrift),
             {Untertitelschrift, Anschlag::Anfang, "#555555"});
}

}  // namespace

std::string SVG_Text(const Schaubild& schaubild) {
  const Schaubild bild = mit_sauberen_Texten(schaubild);
  const Tafel tafel(bild);
  const double oben = Rand + Titelhoehe(bild);
  const double hoehe = std::max(Mindesthoehe, oben + tafel.Hoehe() + Rand);
  const double tafelanfang = Blattbreite - Rand - tafel.Breite();
  const Schaubildfeld feld = Feld_auf(bild, hoehe, tafelanfang - (tafel.Breite() > 0 ? Rand : 0));

  Svg_Blatt blatt(Blattbreite, hoehe, bild.Titel);
  Platzbelegung belegung(feld.flaeche);
  zeichne_Titel(blatt, bild, feld.flaeche.x);
  zeichne_Raster(blatt, feld);
  zeichne_Kurven(blatt, feld, bild.Kurven, belegung);
  zeichne_Achsen(blatt, feld, bild);
  zeichne_Marken(blatt, feld, bild.Marken, belegung);
  beschrifte_Kurven(blatt, feld, bild.Kurven, belegung);
  tafel.zeichne(blatt, {tafelanfang, oben});
  return blatt.fertig();
}

}  // namespace polarkreis
