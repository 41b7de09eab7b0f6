#include "simulation/bewertung.h"

#include <cmath>
#include <limits>
#include <span>

#include "shell/text.h"
#include "simulation/auswahltexte.h"

namespace polarkreis {

namespace {

constexpr double ohne_Ende = std::numeric_limits<double>::infinity();

/// A row of the table: it holds up to `bis` kW, that value included where `einschliesslich`.
struct Stufe {
  double bis;
  bool einschliesslich;
  double basis;
  double streng;
};

constexpr Stufe Wasser_hoch[] = {
    {400, false, 6.5, 7}, {1500, false, 7.5, 8}, {ohne_Ende, true, 8, 8.5}};
constexpr Stufe Wasser_tief[] = {{0.4, true, 0.95, 1.09}, {2, true, 1.08, 1.24},
                                 {8, true, 1.9, 2.18},    {20, true, 2.03, 2.22},
                                 {200, true, 1.82, 2.09}, {ohne_Ende, true, 2.1, 2.42}};
constexpr Stufe Wasser_mittel[] = {{1, true, 1.52, 1.75},   {5, true, 1.78, 2.05},
                                   {20, true, 2.86, 3.29},  {50, true, 2.98, 3.43},
                                   {300, true, 2.86, 3.29}, {ohne_Ende, true, 3.8, 4.37}};
constexpr Stufe Wasser_klima[] = {
    {400, true, 5, 5.1}, {1500, true, 5.8, 6.4}, {ohne_Ende, true, 6.2, 6.9}};
constexpr Stufe Luft_hoch[] = {{400, false, 4.5, 5}, {ohne_Ende, true, 5, 5.5}};
// Two rows of the low range have no stricter value.
constexpr Stufe Luft_tief[] = {{0.4, true, 0.75, 0.8}, {2, true, 0.85, 0.95},
                               {8, true, 1.5, 1.5},    {20, true, 1.6, 1.6},
                               {200, true, 1.48, 1.7}, {ohne_Ende, true, 1.6, 1.84}};
constexpr Stufe Luft_mittel[] = {{1, true, 1.2, 1.4},     {5, true, 1.4, 1.6},
                                 {20, true, 2.25, 2.55},  {50, true, 2.35, 2.65},
                                 {300, true, 2.24, 2.58}, {ohne_Ende, true, 2.8, 3.22}};
constexpr Stufe Luft_klima[] = {{400, true, 3.8, 4.1}, {ohne_Ende, true, 4.1, 4.6}};

std::span<const Stufe> Stufen(bool luft, Bereichsklasse klasse) {
  switch (klasse) {
    case Bereichsklasse::hoch:
      return luft ? std::span<const Stufe>(Luft_hoch) : Wasser_hoch;
    case Bereichsklasse::tief:
      return luft ? std::span<const Stufe>(Luft_tief) : Wasser_tief;
    case Bereichsklasse::mittel:
      return luft ? std::span<const Stufe>(Luft_mittel) : Wasser_mittel;
    default:
      return luft ? std::span<const Stufe>(Luft_klima) : Wasser_klima;
  }
}

}  // namespace

Bereichsklasse Bereichsklasse_von(const Captions& captions, std::string_view tempbereich) {
  if (benennt(captions.text(JMapCap::Bereich_hoch), tempbereich)) return Bereichsklasse::hoch;
  if (benennt(captions.text(JMapCap::Bereich_mittel), tempbereich)) return Bereichsklasse::mittel;
  if (benennt(captions.text(JMapCap::Bereich_tief), tempbereich)) return Bereichsklasse::tief;
  return Bereichsklasse::klima;
}

double MEPS_Tabelle(bool luft, Bereichsklasse klasse, double Q0, bool streng) {
  for (const Stufe& s : Stufen(luft, klasse)) {
    if (Q0 < s.bis || (s.einschliesslich && Q0 == s.bis)) return streng ? s.streng : s.basis;
  }
  return leer;
}

MEPS MEPS_find(const Projektdaten& projekt, std::string_view LeistZ) {
  const Captions& captions = projekt.captions;
  // Only these two texts count as air: the composed one of a dry cooler does not.
  const bool luft = benennt(captions.text(PedCap::Luftgekuehlt), projekt.Vfl_typ) ||
                    benennt(captions.text(SoleCapt::Trockenkuehler), projekt.Vfl_typ);
  MEPS m;
  m.wert = MEPS_Tabelle(luft, Bereichsklasse_von(captions, projekt.Tempbereich), Wert(projekt.Q0),
                        getrimmt(projekt.ErP_Vers) == "2018");
  m.marken = {Int(100 * m.wert / 2) / 100, m.wert, Int(100 * m.wert * 1.5) / 100,
              Int(100 * m.wert * 2) / 100};
  m.Ist = Wert(LeistZ);
  const double breite = m.marken[3] - m.marken[0];
  setze(m.position, (m.marken[3] - m.Ist) / breite);
  setze(m.gruen_ab, 1.026 * m.wert / breite);
  return m;
}

std::string MEPS::MEPS_label() const {
  constexpr std::size_t luecke = 12;
  std::string text;
  for (double marke : marken) {
    if (!text.empty()) text.append(luecke, ' ');
    text += Zahl_Text(marke);
  }
  return text;
}

namespace {

/// Lower limit of a class when it is judged, and the figure taken when the class is chosen.
struct Klasse {
  std::string_view name;
  double ab;
  double gewaehlt;
};
constexpr Klasse Verfluessigerklassen[] = {{"A+", 169, 226},     {"A", 109, 169}, {"B", 69, 109},
                                           {"C", 49, 69},        {"D", 37, 49},   {"E", 26, 37},
                                           {"F", -ohne_Ende, 26}};
constexpr Klasse Verdampferklassen[] = {{"A+", 47, 73},        {"A", 35, 47}, {"B", 25, 35},
                                        {"C", 18, 25},         {"D", 13, 18}, {"E", 9.5, 13},
                                        {"F", -ohne_Ende, 9.5}};

std::string Klasse_von(std::span<const Klasse> klassen, double R, const std::string& bisher) {
  for (const Klasse& k : klassen) {
    if (R >= k.ab) return std::string(k.name);
  }
  return bisher;
}

const Klasse& Klasse_gewaehlt(std::span<const Klasse> klassen, std::string_view name) {
  for (const Klasse& k : klassen) {
    if (getrimmt(name) == k.name) return k;
  }
  return klassen[2];  // "B"
}

/// One side's fields and the heat or cold that its fans move, brought to the reference temperature
/// difference.
struct Seite {
  std::span<const Klasse> klassen;
  double bezug;
  std::string& leistung;
  std::string& klasse;
};

Ventilatorklasse beurteilen(const Seite& s) {
  Ventilatorklasse v;
  v.leistung = Wert(s.leistung);
  setze(v.R, s.bezug / v.leistung);
  v.klasse = s.klasse = Klasse_von(s.klassen, v.R, s.klasse);
  return v;
}

Ventilatorklasse auslegen(const Seite& s) {
  const Klasse& k = Klasse_gewaehlt(s.klassen, s.klasse);
  Ventilatorklasse v;
  v.R = k.gewaehlt;
  v.klasse = s.klasse = std::string(k.name);
  setze(v.leistung, Int(s.bezug / v.R * 100) / 100);
  if (!ist_leer(v.leistung)) s.leistung = Zahl_Text(v.leistung);
  return v;
}

}  // namespace

Ventilatorklasse Eff_class(Punkt& punkt, Projektdaten& projekt, int code) {
  const bool verfluessiger = code == 11 || code == 12;
  if (!verfluessiger && code != 21 && code != 22) return {};
  Anlage a = Anlage_von(projekt);
  punkt.kreis().km.z.RefName = projekt.KaelteM;
  const double COP = punkt.Punkt_Rechnen(a, 0, 1, 100).COP;
  punkt.kreis().km.z.Zweistufig = 0;
  const double bezug = verfluessiger
                           ? a.Q0 * (1 + 1 / COP) * (15 / a.dtVerfl)
                           : std::sqrt(a.Lamellenabstand / 4.5) * a.Q0 * (8 / (a.dt_Verd * 1.25));
  const Seite seite =
      verfluessiger
          ? Seite{Verfluessigerklassen, bezug, projekt.Lueftcap, projekt.VERFL_Eff_combo}
          : Seite{Verdampferklassen, bezug, projekt.LueftcapVerDa, projekt.VERDA_Eff_combo};
  return code == 11 || code == 21 ? beurteilen(seite) : auslegen(seite);
}

}  // namespace polarkreis
