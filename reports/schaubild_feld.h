#pragma once

#include <string>
#include <vector>

#include "reports/platzbelegung.h"
#include "reports/schaubild.h"
#include "reports/schaubild_achse.h"
#include "reports/svg_blatt.h"

namespace polarkreis {

/// Size of the letters at the axes.
inline constexpr double Achsschrift = 12;
inline constexpr double Achstitelschrift = 14;

/// Where curves are drawn, with the scales of both axes.
struct Schaubildfeld {
  Bildflaeche flaeche;
  Achsmass x, y;

  /// Where values lie; not finite if they can't be drawn.
  Bildort ort(double wert_x, double wert_y) const { return {x.lage(wert_x), y.lage(wert_y)}; }
};

struct Legendeneintrag {
  std::string text;
  Strich strich;
};

/// How each curve is drawn, in their order. Process lines with different entries of the legend
/// differ in colour; otherwise the kind alone decides.
std::vector<Strich> Kurvenstriche(const std::vector<Kurve>& kurven);

/// The entries of the legend: each text once, as its first curve is drawn.
std::vector<Legendeneintrag> Legende(const std::vector<Kurve>& kurven);

/// Grid, frame, figures and titles of the axes.
void zeichne_Raster(Svg_Blatt& blatt, const Schaubildfeld& feld);
void zeichne_Achsen(Svg_Blatt& blatt, const Schaubildfeld& feld, const Schaubild& bild);

/// The curves with their arrows, cut off at the frame; they take their places in `belegung`.
void zeichne_Kurven(Svg_Blatt& blatt, const Schaubildfeld& feld, const std::vector<Kurve>& kurven,
                    Platzbelegung& belegung);
/// The texts at the curves, each where it covers least; one without a free place is left out.
void beschrifte_Kurven(Svg_Blatt& blatt, const Schaubildfeld& feld,
                       const std::vector<Kurve>& kurven, Platzbelegung& belegung);

/// The marks within the frame, each with its number beside it where it covers least.
void zeichne_Marken(Svg_Blatt& blatt, const Schaubildfeld& feld, const std::vector<Marke>& marken,
                    Platzbelegung& belegung);
/// A number on its disc.
void zeichne_Nummer(Svg_Blatt& blatt, const Bildort& mitte, const std::string& nummer);
/// How wide its disc is.
double Nummernbreite(const std::string& nummer);

}  // namespace polarkreis
