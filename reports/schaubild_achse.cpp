#include "reports/schaubild_achse.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <span>

#include "reports/svg_blatt.h"

namespace polarkreis {

namespace {

constexpr double Groesste_Zahl = 1e12;

bool ist_zeigbar(double wert, bool log) {
  if (!std::isfinite(wert) || std::abs(wert) > Groesste_Zahl) return false;
  return !log || wert >= 1 / Groesste_Zahl;
}

double gestreckt(double wert, bool log) {
  return log ? std::log10(wert) : wert;
}

double zurueck(double s, bool log) {
  return log ? std::pow(10, s) : s;
}

double Stelle(const Achsmass& mass, double wert) {
  const double unten = gestreckt(mass.von, mass.log);
  const double anteil =
      (gestreckt(wert, mass.log) - unten) / (gestreckt(mass.bis, mass.log) - unten);
  return mass.anfang + anteil * (mass.ende - mass.anfang);
}

/// The least length of an axis around this place: what is shorter can't be told apart.
double Mindestlaenge(double s, bool log) {
  return log ? 0.02 : std::max(std::abs(s) * 1e-4, 1e-9);
}

struct Bereich {
  double unten = 0, oben = 1;
  double laenge() const { return oben - unten; }
};

double Rand_um(const Bereich& bereich, bool log) {
  if (bereich.laenge() > 0) return 0.04 * bereich.laenge();
  if (log) return 0.2;
  return bereich.unten == 0 ? 1 : 0.1 * std::abs(bereich.unten);
}

/// What the values need, with a margin.
Bereich Datenbereich(const std::vector<double>& werte, bool log) {
  Bereich bereich{leer, leer};
  for (const double wert : werte) {
    if (!ist_zeigbar(wert, log)) continue;
    bereich.unten = std::fmin(bereich.unten, gestreckt(wert, log));
    bereich.oben = std::fmax(bereich.oben, gestreckt(wert, log));
  }
  if (ist_leer(bereich.unten)) return {};
  const double fehlt = Mindestlaenge(bereich.oben, log) - bereich.laenge();
  const double rand = std::max(Rand_um(bereich, log), fehlt / 2);
  return {bereich.unten - rand, bereich.oben + rand};
}

/// A step of 1, 2 or 5 times a power of ten.
struct Rundschritt {
  int ziffer = 1, zehner = 0;

  double weite() const { return mal(1); }
  /// A division by a whole power of ten keeps 0.3 what it is, a product with 0.1 does not.
  double mal(double n) const {
    return zehner < 0 ? n * ziffer / std::pow(10, -zehner) : n * ziffer * std::pow(10, zehner);
  }
  Rundschritt groesser() const {
    if (ziffer == 1) return {2, zehner};
    return ziffer == 2 ? Rundschritt{5, zehner} : Rundschritt{1, zehner + 1};
  }
  /// The step of the lines between: a fifth, of 2 a quarter.
  Rundschritt feiner() const {
    if (ziffer == 5) return {1, zehner};
    return ziffer == 2 ? Rundschritt{5, zehner - 1} : Rundschritt{2, zehner - 1};
  }
};

/// The smallest step that parts the span into at most so many.
Rundschritt Rundschritt_von(double spanne, int hoechstens) {
  const double mindestens = spanne / hoechstens;
  Rundschritt schritt{1, static_cast<int>(std::floor(std::log10(mindestens)))};
  while (schritt.weite() < mindestens) schritt = schritt.groesser();
  return schritt;
}

/// With as many decimals as the steps need.
std::string Schritttext(double wert, const Rundschritt& schritt) {
  if (schritt.zehner < -6 || std::abs(wert) >= 1e7) return Zahl_Text(wert);
  std::array<char, 64> puffer{};
  const auto [ende, fehler] = std::to_chars(puffer.data(), puffer.data() + puffer.size(), wert,
                                            std::chars_format::fixed, std::max(-schritt.zehner, 0));
  return {puffer.data(), ende};
}

std::vector<Teilstrich> gleiche_Schritte(const Achsmass& mass, const Rundschritt& schritt,
                                         bool mit_Text) {
  std::vector<Teilstrich> striche;
  const double letzter = std::floor(mass.bis / schritt.weite() + 1e-9);
  for (double n = std::ceil(mass.von / schritt.weite() - 1e-9); n <= letzter; ++n) {
    const double wert = n == 0 ? 0 : schritt.mal(n);
    striche.push_back({wert, Stelle(mass, wert), mit_Text ? Schritttext(wert, schritt) : ""});
  }
  return striche;
}

/// The lines at these multiples of every so many-th power of ten.
std::vector<Teilstrich> Dekaden(const Achsmass& mass, std::span<const double> vielfache,
                                bool mit_Text, int jede = 1) {
  std::vector<Teilstrich> striche;
  const int letzte = static_cast<int>(std::floor(std::log10(mass.bis)));
  for (int dekade = static_cast<int>(std::floor(std::log10(mass.von))); dekade <= letzte;
       ++dekade) {
    if (dekade % jede != 0) continue;
    for (const double vielfaches : vielfache) {
      const double wert =
          dekade < 0 ? vielfaches / std::pow(10, -dekade) : vielfaches * std::pow(10, dekade);
      if (wert < mass.von * (1 - 1e-9) || wert > mass.bis * (1 + 1e-9)) continue;
      striche.push_back({wert, Stelle(mass, wert), mit_Text ? Zahl_Text(wert) : ""});
    }
  }
  return striche;
}

/// Half of what a text takes along its axis: those of a level axis stand side by side, those of an
/// upright one above one another.
double Platzbedarf(const Achsmass& mass, const Teilstrich& strich, double schriftgroesse) {
  const bool waagrecht = mass.ende > mass.anfang;
  return waagrecht ? Textbreite(strich.text, schriftgroesse) / 2 + 8 : 0.85 * schriftgroesse;
}

bool passen(const Achsmass& mass, const std::vector<Teilstrich>& striche, double schriftgroesse) {
  for (std::size_t i = 1; i < striche.size(); ++i) {
    const double abstand = std::abs(striche[i].lage - striche[i - 1].lage);
    if (abstand < Platzbedarf(mass, striche[i - 1], schriftgroesse) +
                      Platzbedarf(mass, striche[i], schriftgroesse))
      return false;
  }
  return true;
}

/// The lines with a text and those between them.
std::vector<Teilstrich> vereint(std::vector<Teilstrich> striche,
                                const std::vector<Teilstrich>& dazwischen) {
  striche.insert(striche.end(), dazwischen.begin(), dazwischen.end());
  std::ranges::stable_sort(striche, {}, &Teilstrich::wert);
  const auto gleich = [](const Teilstrich& a, const Teilstrich& b) {
    return std::abs(a.lage - b.lage) < 0.01;
  };
  striche.erase(std::unique(striche.begin(), striche.end(), gleich), striche.end());
  return striche;
}

std::vector<Teilstrich> ebene_Teilung(const Achsmass& mass, double schriftgroesse) {
  Rundschritt schritt = Rundschritt_von(mass.bis - mass.von, 14);
  std::vector<Teilstrich> striche = gleiche_Schritte(mass, schritt, true);
  while (!passen(mass, striche, schriftgroesse)) {
    schritt = schritt.groesser();
    striche = gleiche_Schritte(mass, schritt, true);
  }
  return vereint(striche, gleiche_Schritte(mass, schritt.feiner(), false));
}

constexpr std::array<double, 9> Ganze = {1, 2, 3, 4, 5, 6, 7, 8, 9};
/// What of a decade gets a text, from much room to little.
constexpr std::array<double, 10> Mit_Halben = {1, 1.5, 2, 3, 4, 5, 6, 7, 8, 9};
constexpr std::array<double, 8> Ausgewaehlte = {1, 1.5, 2, 3, 4, 5, 6, 8};
constexpr std::array<double, 6> Jede_zweite = {1, 2, 3, 4, 6, 8};
constexpr std::array<double, 3> Wenige = {1, 2, 5};
constexpr std::array<double, 1> Zehner = {1};

std::vector<Teilstrich> Dekadenteilung(const Achsmass& mass, double schriftgroesse) {
  const std::vector<Teilstrich> fein = Dekaden(mass, Ganze, false);
  if (fein.size() < 5) return ebene_Teilung(mass, schriftgroesse);
  for (const std::span<const double> vielfache :
       {std::span<const double>(Mit_Halben), std::span<const double>(Ausgewaehlte),
        std::span<const double>(Jede_zweite), std::span<const double>(Wenige)}) {
    const std::vector<Teilstrich> striche = Dekaden(mass, vielfache, true);
    if (passen(mass, striche, schriftgroesse)) return vereint(striche, fein);
  }
  int jede = 1;
  std::vector<Teilstrich> striche = Dekaden(mass, Zehner, true);
  while (!passen(mass, striche, schriftgroesse)) striche = Dekaden(mass, Zehner, true, ++jede);
  constexpr double Platz_fuer_Zwischenlinien = 60;
  const double dekade = std::abs(Stelle(mass, 10 * mass.von) - mass.anfang);
  const bool grob = dekade < Platz_fuer_Zwischenlinien;
  return vereint(striche, grob ? Dekaden(mass, Zehner, false) : fein);
}

}  // namespace

double Achsmass::lage(double wert) const {
  return ist_zeigbar(wert, log) ? Stelle(*this, wert) : leer;
}

Achsmass Achsmass_von(const Schaubildachse& achse, const std::vector<double>& werte) {
  const bool log = achse.log;
  const bool unten_fest = ist_zeigbar(achse.von, log), oben_fest = ist_zeigbar(achse.bis, log);
  const Bereich daten = Datenbereich(werte, log);
  const Bereich fest{unten_fest ? gestreckt(achse.von, log) : daten.unten,
                     oben_fest ? gestreckt(achse.bis, log) : daten.oben};
  if (fest.laenge() >= Mindestlaenge(fest.oben, log))
    return {log, unten_fest ? achse.von : zurueck(fest.unten, log),
            oben_fest ? achse.bis : zurueck(fest.oben, log)};
  const auto laenge_bei = [&](double s) { return std::max(daten.laenge(), Mindestlaenge(s, log)); };
  if (unten_fest && !oben_fest)
    return {log, achse.von, zurueck(fest.unten + laenge_bei(fest.unten), log)};
  if (oben_fest && !unten_fest)
    return {log, zurueck(fest.oben - laenge_bei(fest.oben), log), achse.bis};
  return {log, zurueck(daten.unten, log), zurueck(daten.oben, log)};
}

std::vector<Teilstrich> Teilstriche(const Achsmass& mass, double schriftgroesse) {
  return mass.log ? Dekadenteilung(mass, schriftgroesse) : ebene_Teilung(mass, schriftgroesse);
}

}  // namespace polarkreis
