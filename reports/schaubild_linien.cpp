#include "reports/schaubild_linien.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace polarkreis {

namespace {

double Abstand(const Bildort& a, const Bildort& b) {
  return std::hypot(b.x - a.x, b.y - a.y);
}

double Winkel(const Bildort& von, const Bildort& nach) {
  return std::atan2(nach.y - von.y, nach.x - von.x) * 180 / std::numbers::pi;
}

Bildort zwischen(const Bildort& a, const Bildort& b, double anteil) {
  return {a.x + anteil * (b.x - a.x), a.y + anteil * (b.y - a.y)};
}

bool ist_endlich(const Bildort& ort) {
  return std::isfinite(ort.x) && std::isfinite(ort.y);
}

/// The part of a stretch, from 0 to 1, that lies inside.
struct Anteil {
  double von = 0, bis = 1;  ///< von > bis: none

  /// Cuts off what lies below `unten` or above `oben` on a stretch from a to b.
  void schneide(double a, double b, double unten, double oben) {
    if (a == b) {
      if (a < unten || a > oben) bis = -1;
      return;
    }
    const double erster = ((b > a ? unten : oben) - a) / (b - a);
    const double letzter = ((b > a ? oben : unten) - a) / (b - a);
    von = std::max(von, erster);
    bis = std::min(bis, letzter);
  }
};

Anteil Anteil_in(const Bildflaeche& flaeche, const Bildort& a, const Bildort& b) {
  if (!ist_endlich(a) || !ist_endlich(b)) return {1, 0};
  Anteil anteil;
  anteil.schneide(a.x, b.x, flaeche.x, flaeche.rechts());
  anteil.schneide(a.y, b.y, flaeche.y, flaeche.unten());
  return anteil;
}

/// The place within the rectangle: a cut of a very long stretch isn't exact.
Bildort hinein(const Bildort& ort, const Bildflaeche& flaeche) {
  return {std::clamp(ort.x, flaeche.x, flaeche.rechts()),
          std::clamp(ort.y, flaeche.y, flaeche.unten())};
}

/// The line without repeated places, and where it turns sharply.
struct Knickzug {
  Linienzug zug;
  std::vector<std::size_t> ecken;  ///< indices, first and last place among them
};

Knickzug mit_Ecken(const Linienzug& zug) {
  constexpr double Knick = 30;  // degrees
  Knickzug ergebnis;
  for (const Bildort& ort : zug)
    if (ergebnis.zug.empty() || Abstand(ergebnis.zug.back(), ort) > 0.1)
      ergebnis.zug.push_back(ort);
  const Linienzug& z = ergebnis.zug;
  for (std::size_t i = 0; i < z.size(); ++i) {
    const bool innen = i > 0 && i + 1 < z.size();
    const double wende = innen ? std::abs(Winkel(z[i - 1], z[i]) - Winkel(z[i], z[i + 1])) : 180;
    if (std::min(wende, 360 - wende) > Knick || !innen) ergebnis.ecken.push_back(i);
  }
  return ergebnis;
}

/// The direction in which a text isn't upside down; an upright one is read upward, and so is one
/// that is upright but for its last digit.
double lesbar(double winkel) {
  if (winkel > 88) return winkel - 180;
  return winkel <= -92 ? winkel + 180 : winkel;
}

/// Neighbour of an end of a stretch; where there is none, the stretch goes on as it is.
Bildort Nachbar(const Linienzug& zug, std::size_t ende, std::size_t gegenueber) {
  const std::size_t i = 2 * ende - gegenueber;  // wraps around before the first place
  const Bildort &b = zug[ende], &c = zug[gegenueber];
  if (i < zug.size() && ist_endlich(zug[i]) && Abstand(zug[i], b) > 0) return zug[i];
  return {2 * b.x - c.x, 2 * b.y - c.y};
}

/// Places between b and c on a centripetal Catmull-Rom spline, which makes no loops and hardly
/// swings out where the distances to the neighbours a and d differ much.
void runde(Linienzug& glatt, const Bildort& a, const Bildort& b, const Bildort& c,
           const Bildort& d) {
  constexpr double Teillaenge = 6;
  const double teile = std::clamp(std::round(Abstand(b, c) / Teillaenge), 1.0, 16.0);
  const double ab = std::sqrt(Abstand(a, b)), bc = std::sqrt(Abstand(b, c)),
               cd = std::sqrt(Abstand(c, d));
  const auto bei = [=](double s, double va, double vb, double vc, double vd) {
    const double anfang = vc - vb + bc * ((vb - va) / ab - (vc - va) / (ab + bc));
    const double ende = vc - vb + bc * ((vd - vc) / cd - (vd - vb) / (bc + cd));
    const double quadrat = anfang * -2 - ende + 3 * (vc - vb);
    const double kubus = anfang + ende - 2 * (vc - vb);
    return vb + s * (anfang + s * (quadrat + s * kubus));
  };
  for (double n = 1; n < teile; ++n) {
    const double s = n / teile;
    glatt.push_back({bei(s, a.x, b.x, c.x, d.x), bei(s, a.y, b.y, c.y, d.y)});
  }
}

}  // namespace

std::vector<Linienzug> im_Ausschnitt(const Linienzug& zug, const Bildflaeche& flaeche) {
  std::vector<Linienzug> stuecke;
  bool offen = false;
  for (std::size_t i = 1; i < zug.size(); ++i) {
    const Bildort &a = zug[i - 1], &b = zug[i];
    const Anteil anteil = Anteil_in(flaeche, a, b);
    if (anteil.von > anteil.bis) {
      offen = false;
      continue;
    }
    if (!offen) stuecke.push_back({hinein(zwischen(a, b, anteil.von), flaeche)});
    stuecke.back().push_back(hinein(zwischen(a, b, anteil.bis), flaeche));
    offen = anteil.bis == 1;
  }
  return stuecke;
}

Linienzug geglaettet(const Linienzug& zug) {
  Linienzug glatt;
  for (std::size_t i = 0; i < zug.size(); ++i) {
    glatt.push_back(zug[i]);
    if (i + 1 == zug.size() || !ist_endlich(zug[i]) || !ist_endlich(zug[i + 1])) continue;
    runde(glatt, Nachbar(zug, i, i + 1), zug[i], zug[i + 1], Nachbar(zug, i + 1, i));
  }
  return glatt;
}

double Laenge(const Linienzug& zug) {
  double summe = 0;
  for (std::size_t i = 1; i < zug.size(); ++i) summe += Abstand(zug[i - 1], zug[i]);
  return summe;
}

Bildort Ort_bei(const Linienzug& zug, double laenge) {
  for (std::size_t i = 1; i < zug.size(); ++i) {
    const double strecke = Abstand(zug[i - 1], zug[i]);
    if (laenge <= strecke && strecke > 0) return zwischen(zug[i - 1], zug[i], laenge / strecke);
    laenge -= strecke;
  }
  return zug.back();
}

std::vector<Richtungsort> Pfeilorte(const Linienzug& zug) {
  constexpr double Mindestens = 40;
  const Knickzug knickzug = mit_Ecken(zug);
  std::vector<Richtungsort> orte;
  for (std::size_t e = 1; e < knickzug.ecken.size(); ++e) {
    const auto anfang = knickzug.zug.begin();
    const Linienzug gerade(anfang + static_cast<std::ptrdiff_t>(knickzug.ecken[e - 1]),
                           anfang + static_cast<std::ptrdiff_t>(knickzug.ecken[e]) + 1);
    const double laenge = Laenge(gerade);
    if (laenge < Mindestens) continue;
    const Bildort davor = Ort_bei(gerade, laenge / 2 - 3);
    const Bildort dahinter = Ort_bei(gerade, laenge / 2 + 3);
    orte.push_back({Ort_bei(gerade, laenge / 2), Winkel(davor, dahinter)});
  }
  return orte;
}

std::vector<Richtungsort> Textorte(const Linienzug& zug, double breite) {
  constexpr std::array<double, 11> Anteile = {0.5, 0.4,  0.6,  0.3,  0.7, 0.2,
                                              0.8, 0.12, 0.88, 0.06, 0.94};
  constexpr double Biegung = 4, Rand = 6;
  const double laenge = Laenge(zug);
  std::vector<Richtungsort> orte;
  for (const double anteil : Anteile) {
    const double mitte = anteil * laenge;
    if (mitte < breite / 2 + Rand || mitte > laenge - breite / 2 - Rand) continue;
    const Bildort von = Ort_bei(zug, mitte - breite / 2);
    const Bildort bis = Ort_bei(zug, mitte + breite / 2);
    const Bildort auf_Sehne = zwischen(von, bis, 0.5), auf_Linie = Ort_bei(zug, mitte);
    if (Abstand(auf_Sehne, auf_Linie) > Biegung || Abstand(von, bis) < 0.95 * breite) continue;
    orte.push_back({zwischen(auf_Sehne, auf_Linie, 0.5), lesbar(Winkel(von, bis))});
  }
  return orte;
}

}  // namespace polarkreis
