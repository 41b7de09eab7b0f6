#include <algorithm>
#include <array>
#include <cmath>
#include <span>

#include "shell/text.h"
#include "shell/wert.h"
#include "simulation/auswahltexte.h"
#include "simulation/projektdaten.h"

namespace polarkreis {

namespace {

/// What a selection's text stands for.
struct Bedeutung {
  Auswahltext text;
  double zahl;
};

double Zahl_zu(const Captions& captions, std::span<const Bedeutung> tabelle, std::string_view text,
               double sonst) {
  for (const Bedeutung& bedeutung : tabelle)
    if (benennt(bedeutung.text.text(captions), text)) return bedeutung.zahl;
  return sonst;
}

using J = JMapCap;

constexpr std::array<Bedeutung, 3> kWartung_dT{
    {{J::Wartung_gut, 0}, {J::Wartung_mittel, 3}, {J::Wartung_schlecht, 8}}};
constexpr std::array<Bedeutung, 3> kFuellfaktor{
    {{J::Fuellung_richtig, 1}, {J::Fuellung_knapp, 1.12}, {J::Fuellung_Mangel, 1.25}}};
constexpr std::array<Bedeutung, 3> kLeitung{
    {{Heatcap::Klein, 2}, {PedCap::Mittel, 1}, {Heatcap::Gross, 0.5}}};
constexpr std::array<Bedeutung, 4> kIsolier_dT{
    {{PedCap::Ohne, 20}, {PedCap::Niedrig, 10}, {Heatcap::Normal, 5}, {PedCap::Hoch, 0}}};
constexpr std::array<Bedeutung, 3> kBezug{
    {{J::Bereich_hoch, -2}, {J::Bereich_mittel, -8}, {J::Bereich_tief, -30}}};
constexpr std::array<Bedeutung, 4> kKlima{
    {{PedCap::Niedrig, 30}, {Heatcap::Normal, 35}, {PedCap::Hoch, 38}, {Heatcap::Sehr_hoch, 40}}};
constexpr std::array<Bedeutung, 3> kUeberhitzung{
    {{Heatcap::Klein, 11 * 0.8}, {PedCap::Mittel, 8 * 0.8}, {Heatcap::Gross, 5}}};
constexpr std::array<Bedeutung, 3> kVerdampfer{
    {{Heatcap::Klein, 11}, {PedCap::Mittel, 8}, {Heatcap::Gross, 5}}};

/// A condenser's differences by size class; another text counts as the middle one.
struct Verfluessigersatz {
  double klein, mittel, gross;
};
constexpr Verfluessigersatz kGaskuehler_Wasser{7, 5, 3};
constexpr Verfluessigersatz kLuftseitig{18, 13, 10};
constexpr Verfluessigersatz kWasserseitig{15, 10, 7};

/// Above it R744 gives its heat off without condensing, °C.
constexpr double kTranskritisch_ab = 31;

bool eines_von(std::string_view name, std::span<const std::string_view> liste) {
  return std::any_of(liste.begin(), liste.end(),
                     [name](std::string_view eintrag) { return gleich(eintrag, name); });
}

/// Every designation outside these groups has the factor 1.
double Verdampferfaktor(std::string_view kaeltemittel) {
  if (ist_Ammoniak(kaeltemittel)) return 0.92;
  if (ist_Kohlenwasserstoff(kaeltemittel)) return 0.88;
  return 1;
}

double Verfluessigerfaktor(std::string_view kaeltemittel) {
  static constexpr std::array<std::string_view, 11> kGleitend{"R409A", "R401A", "R401B", "ISC_49",
                                                              "R413A", "R134A", "R407C", "R407F",
                                                              "R448A", "R449A", "R427A"};
  if (eines_von(kaeltemittel, kGleitend)) return 1.08;
  if (ist_Ammoniak(kaeltemittel)) return 0.82;
  if (ist_Kohlenwasserstoff(kaeltemittel)) return 0.83;
  if (ist_CO2(kaeltemittel)) return 0.78;
  return 1;
}

double eine_Dezimale(double zahl) {
  return Int(zahl * 10) / 10;
}

/// The number's text; where the statement before failed, the target stays.
void zeige(std::string& target, double zahl) {
  if (std::isfinite(zahl)) target = Zahl_Text(zahl);
}

/// "05 °C"
std::string zweistellig(double zahl) {
  std::string text = Zahl_Text(zahl);
  if (text.size() < 2) text.insert(text.begin(), '0');
  return text + " °C";
}

}  // namespace

bool ist_Kohlenwasserstoff(std::string_view kaeltemittel) {
  static constexpr std::array<std::string_view, 10> kNamen{
      "R290", "PROPAN", "R600A", "R290_600", "ETHAN", "ETHYLEN", "METHAN", "R50", "R170", "R1150"};
  return eines_von(kaeltemittel, kNamen);
}

bool ist_Ammoniak(std::string_view kaeltemittel) {
  static constexpr std::array<std::string_view, 3> kNamen{"AMMONIAK", "R717", "R723"};
  return eines_von(kaeltemittel, kNamen);
}

bool ist_CO2(std::string_view kaeltemittel) {
  static constexpr std::array<std::string_view, 2> kNamen{"CO2", "R744"};
  return eines_von(kaeltemittel, kNamen);
}

void Projektdaten::tambient_ableiten() {
  tambient = Zahl_Text(Zahl_zu(captions, kKlima, AmbientT, 35));
}

void Projektdaten::Zahlen_ableiten() {
  const bool kaelteraum = ist_Kaelteraum(captions, AnwendBereich);
  ableitung.Wartung_dT = Zahl_zu(captions, kWartung_dT, WartungI, 0);
  ableitung.f_F = Zahl_zu(captions, kFuellfaktor, Fullzustand, 1);
  ableitung.pipe = Zahl_zu(captions, kLeitung, Leitungsdimension, 1) * (kaelteraum ? 2 : 1);
  ableitung.Isolier_dT = Zahl_zu(captions, kIsolier_dT, WaermeD, 0);
  ableitung.Ueberhitzung = Zahl_zu(captions, kUeberhitzung, vdsize, 8 * 0.8);
  if (benennt(captions.text(J::Klima_Sommer), AnwendBereich))
    ableitung.Bezug = 2;
  else
    ableitung.Bezug = kaelteraum ? Zahl_zu(captions, kBezug, Tempbereich, 5) : 5;
}

double Projektdaten::Verdampfer_dT() const {
  return eine_Dezimale(Zahl_zu(captions, kVerdampfer, vdsize, 8) * Verdampferfaktor(KaelteM));
}

double Projektdaten::Verfluessiger_dT() const {
  const Verfluessigerart art = Verfluessigerart_von(captions, Vfl_typ);
  const bool wasser = art == Verfluessigerart::Wasser;
  const Verfluessigersatz satz = wasser && ist_CO2(KaelteM) && Wert(Tc) > kTranskritisch_ab
                                     ? kGaskuehler_Wasser
                                 : wasser || art == Verfluessigerart::Kuehlturm ? kWasserseitig
                                                                                : kLuftseitig;
  const std::array<Bedeutung, 3> klassen{
      {{Heatcap::Klein, satz.klein}, {PedCap::Mittel, satz.mittel}, {Heatcap::Gross, satz.gross}}};
  return eine_Dezimale(Zahl_zu(captions, klassen, VFlsize, satz.mittel) *
                       Verfluessigerfaktor(KaelteM));
}

double Projektdaten::Verfluessiger_Basis() const {
  const bool wasser = Verfluessigerart_von(captions, Vfl_typ) == Verfluessigerart::Wasser;
  const double basis = Wert(wasser ? t_K_wasser : tambient);
  if (basis == 0) return wasser ? 28 : 35;
  return basis;
}

void Projektdaten::Verdampfer_ableiten() {
  const double dT = Verdampfer_dT();
  zeige(DT_v_combo, dT);
  zeige(t0, ableitung.Bezug + 8 - dT);
}

void Projektdaten::Verfluessiger_ableiten() {
  // The difference depends on `Tc` as it stands, so it is taken before `Tc` moves.
  const double dT = Verfluessiger_dT();
  zeige(dtVerfl, dT);
  zeige(Tc, Verfluessiger_Basis() + dT);
  P_gasK_ableiten();
  WinterRGart_begrenzen();
}

void Projektdaten::WinterRGart_begrenzen() {
  const std::string_view text = getrimmt(WinterRGart);
  if (text.empty() || benennt(captions.text(PedCap::Ohne), text)) return;
  const std::string_view ziffern = erste_zeichen(text, 2);
  // A text that begins with no number holds no limit.
  if (ziffern.find_first_of("0123456789") == std::string_view::npos) return;
  const double grenze = Wert(ziffern), tc = Wert(Tc);
  WinterRGart = zweistellig(tc < grenze ? Int(tc) : grenze);
}

void Projektdaten::WinterRGart_setzen(std::string_view temperatur) {
  const double grenze = Int(Wert(temperatur));
  if (benennt(captions.text(PedCap::Ohne), temperatur))
    WinterRGart = captions.text(PedCap::Ohne);
  else if (std::isfinite(grenze))
    WinterRGart = zweistellig(grenze);
}

void Projektdaten::P_gasK_ableiten() {
  if (ist_CO2(KaelteM)) zeige(P_gasK, Kaeltemittel::CO2_pOpt(Wert(Tc)));
}

void Projektdaten::Ableiten() {
  Zahlen_ableiten();
  if (tambient.empty()) tambient_ableiten();
  if (t0.empty()) zeige(t0, ableitung.Bezug + 8 - Verdampfer_dT());
  const double dT = Verfluessiger_dT();
  if (dtVerfl.empty()) zeige(dtVerfl, dT);
  if (!Tc.empty()) return;
  zeige(Tc, Verfluessiger_Basis() + dT);
  if (P_gasK.empty()) P_gasK_ableiten();
}

}  // namespace polarkreis
