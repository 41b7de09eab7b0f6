#include "diagnostics/kern.h"

#include <algorithm>
#include <array>
#include <limits>

#include "diagnostics/messformat.h"
#include "diagnostics/methode.h"
#include "diagnostics/mittelwerte.h"
#include "diagnostics/zeiten.h"
#include "shell/text.h"

namespace polarkreis {

namespace {

constexpr double Kleinster_Strom = 0.1;      // A; at or below it a phase carries nothing
constexpr double Kleinste_Spannung = 10;     // V
constexpr double Frostschutz_ueblich = -15;  // °C

/// Pressure range of the state's table, bar: the last dew pressure. The bracket is left as it was,
/// because searches outside the table work with it.
double letzter_Druck(Kaeltemittel& km) {
  const SatKlammer davor = km.z.Klammer;
  km.Sat_Suchen(std::numeric_limits<double>::max(), 1);
  const double p = km.z.Klammer.Unten.T;
  km.z.Klammer = davor;
  return p;
}

bool hat_weite_Grenzen(std::string_view RefName) {
  constexpr std::array<std::string_view, 12> namen = {"R290",   "PROPAN",   "R600A", "AMMONIAK",
                                                      "R717",   "R290_600", "ETHAN", "ETHYLEN",
                                                      "METHAN", "R50",      "R170",  "R1150"};
  return std::any_of(namen.begin(), namen.end(),
                     [&](std::string_view name) { return gleich(name, RefName); });
}

/// Three places, rounded.
double auf_Watt(double kW) {
  return Int((kW + 0.0005) * 1000) / 1000;
}

}  // namespace

void Kern::beginnen() {
  kreis_.modul = "DiaG";
  kreis_.ECO_OPT = messung_.ECO_OPT;
  kreis_.Frequenz_Option = 0;
  kreis_.gespeicherte_Leistung = 0;
  KMZustand& z = km_.z;
  z.Bauart = messung_.Bauart;
  z.Antrieb = messung_.Antrieb;
  setze(z.Q0, messung_.Q0);
  z.m_eco = leer;
  kaeltemittel_uebernehmen();
  Funktion = SP_Zuweis(messung_.OrbiN_spread, captions_);
  auswahl_ = {};
  messung_.skala = {};
  w_ = {};
  Summe_Energ = 0;
  Sum_zeit_messung = 0;
  boxen_zeigen();
}

void Kern::kaeltemittel_uebernehmen() {
  Meldungen& log = km_.ablage().meldungen();
  km_.z.RefName = messung_.KaelteM;
  const bool bekannt = km_.KM_Datei() != 0;
  Tabelle_da_ = bekannt && km_.KM_Tabelle_da();
  weite_Grenzen_ = hat_weite_Grenzen(km_.z.RefName);
  ueberdruck_.beginnen(km_.z.RefFile, Tabelle_da_ ? letzter_Druck(km_) : leer);
  if (Tabelle_da_) return;
  log.melde("Kern_Zeile", bekannt ? km_.z.RefFile : std::string(),
            "refrigerant \"" + messung_.KaelteM + "\" " +
                (bekannt ? "has no table" : "isn't in the catalogue") +
                "; the columns that need its values stay as they were");
}

bool Kern::rechenkern(Fortschritt& fortschritt) {
  Schrittfolge folge(km_.ablage());
  beginnen();
  messung_.MittelW_Spread.leeren();
  ueberdruck_.sammeln();
  const int letzte = messung_.letzte_Zeile();
  const int anzahl = messung_.Messpunkte();
  bool weiter = true;
  for (int zeile = Messtabelle::Erste; weiter && zeile <= letzte; ++zeile) {
    if (messung_.DiaSpread.text(zeile, Spalte::Zeit).empty()) break;
    const int nummer = zeile - Messtabelle::Erste + 1;
    weiter = fortschritt.schritt(Zaehltext(nummer, anzahl), nummer, anzahl);
    folge.naechster();
    if (weiter) Kern_Zeile(zeile);
  }
  ueberdruck_.melden(km_.ablage().meldungen());
  boxen_zeigen();
  return weiter && MW_Bildung(messung_, fortschritt);
}

void Kern::Kern_Zeile(int zeile) {
  zeile_ = std::max<int>(zeile, Messtabelle::Erste);
  if (zeile_ > messung_.DiaSpread.Zeilenzahl()) return;
  const Schrittfolge eine_Zeile(km_.ablage());
  zeile_beginnen();
  druecke();
  if (Tabelle_da_) {
    saettigung();
    mitteldruck();
  }
  fuehlerwahl();
  if (Tabelle_da_) ueberhitzung();
  if (fuehler_gueltig()) {
    if (Tabelle_da_) unterkuehlung();
    stromaufnahme();
    stromaufnahme_zeigen();
    if (Tabelle_da_) {
      abstaende_zeigen();
      kreiszustand();
      foerderung();
      verdichtungsart();
      endtemperatur();
      verdichterleistung();
      leistungszahlen();
      verdichter_zeigen();
      anlage_zeigen();
    }
  }
  sekundaerseite_Verd();
  sekundaerseite_Verfl();
  geraete();
}

void Kern::zeile_beginnen() {
  auswahl_lesen();
  km_.z.Zweistufig = 0;
  w_.P_el = w_.P_rest = 0;
  w_.m = w_.Qo = 0;
}

void Kern::auswahl_lesen() {
  Auswahl& a = auswahl_;
  const Messung& m = messung_;
  medium_lesen(a.Verd, m.Medium_Verd, m.Konz_Verd);
  medium_lesen(a.Verfl, m.Medium_Verfl, m.Konz_Verfl);
  const std::string& anlage = m.OrbiN_spread(1, Einheitentabelle::Liste);
  if (a.Combo4 == m.Combo4 && a.RGCombo == m.RGCombo && a.Anlage == anlage) return;
  a.Combo4 = m.Combo4;
  a.RGCombo = m.RGCombo;
  a.Anlage = anlage;
  a.Mass_Art = Mass_Art(m.Combo4, captions_);
  // A language without that caption has no empty text mean it.
  a.gestuft = !m.RGCombo.empty() && gleich(m.RGCombo, captions_.text(JMapCap::Regelung_Stufen));
  a.einphasig = gleich(anlage, captions_.text(VerbCapt::Verdichter) + " - 1 ph.");
}

void Kern::medium_lesen(Sekundaerseite& seite, const std::string& name, double Konz) {
  const bool gleiche_Konz =
      seite.Konz_gegeben == Konz || (ist_leer(seite.Konz_gegeben) && ist_leer(Konz));
  if (seite.name == name && gleiche_Konz) return;
  const bool neuer_Name = seite.name != name;
  seite.name = name;
  seite.Konz_gegeben = seite.Konz = Konz;
  seite.art = medium_von(name);
  if (seite.art == Medium::Sole && ist_leer(Konz))
    seite.Konz = solen_.Konzentration(name, Frostschutz_ueblich);
  if (neuer_Name && seite.art == Medium::unbekannt) {
    km_.ablage().meldungen().melde("Kern_Zeile", "SoleBez",
                                   "no fluid \"" + name + "\"; its side gives no capacity");
  }
}

Kern::Medium Kern::medium_von(const std::string& name) {
  if (getrimmt(name).empty() || gleich(name, "water")) return Medium::Wasser;
  if (gleich(name, captions_.text(SoleCapt::Wasser))) return Medium::Wasser;
  if (gleich(name, "air")) return Medium::Luft;
  return solen_.bekannt(name) ? Medium::Sole : Medium::unbekannt;
}

void Kern::boxen_zeigen() {
  Energie_Box = Zahl_Text(geschnitten(Summe_Energ));
  Zeit_Box = FM_timer(Sum_zeit_messung);
}

bool Kern::gemessen(int spalte) const {
  const std::string_view text = getrimmt(messung_.DiaSpread.text(zeile_, spalte));
  return !text.empty() && text != "-" && text != "0";
}

void Kern::faerbe(unsigned bits, unsigned davon) {
  Messtabelle& t = messung_.DiaSpread;
  t.setze_rot(zeile_, (t.rot(zeile_) & ~davon) | bits);
}

bool Kern::misst_Zwischendruck() const {
  return code() == F_Booster || code() == F_zweistufig || code() == F_Zwischenkuehler;
}

void Kern::druecke() {
  setze(w_.p0, zahl(Spalte::p0) + Atmosphaere);
  setze(w_.pc, zahl(Spalte::pc) + Atmosphaere);
  messung_.skala.p_max = std::max(messung_.skala.p_max, w_.pc);
}

void Kern::saettigung() {
  ueberdruck_.zeile(zeile_, w_.pc, km_.ablage().meldungen());
  setze(w_.t0, km_.Sat_TausP(w_.p0, 177));
  setze(w_.tc, km_.Sat_TausP(w_.pc, 177));
  zeige(Spalte::tc, w_.tc);
  zeige(Spalte::t0, w_.t0);
  Skala& s = messung_.skala;
  s.t0_min = std::min(s.t0_min, w_.t0);
  s.tc_max = std::max(s.tc_max, w_.tc);
}

/// The air side's flag 1 stands for a plant whose middle pressure is measured by the first unit.
void Kern::mitteldruck() {
  mitteltemperatur_ = Funktion.Druck_Art == 1;
  if (!mitteltemperatur_) return;
  const int spalte = Spalte::von(Spalte::E_P2, 1);
  if (zahl(spalte) == 0) zeige(spalte, zahl(Spalte::p0) + 5);
  setze(km_.z.p_m, zahl(spalte) + Atmosphaere);
  setze(km_.z.t_m, km_.Sat_TausP(km_.z.p_m, 177));
}

/// Remote sensors stand nearer to the evaporator and the valve than those of the base unit.
void Kern::fuehlerwahl() {
  const int t_Exp = Spalte::von(Spalte::E_t_Exp, 1);
  const int t_liq = Spalte::von(Spalte::E_t_liq, 1);
  const bool fern = code() == F_Verdichter || code() == F_Fernfuehler;
  lies(w_.t_Exp, Spalte::t_Exp);
  if (fern && gemessen(t_Exp)) lies(w_.t_Exp, t_Exp);
  lies(w_.t_SL, Spalte::t_SL);
  lies(w_.t_liq, Spalte::t_liq);
  if (code() == F_Verdichter && gemessen(t_liq)) lies(w_.t_liq, t_liq);
}

void Kern::ueberhitzung() {
  setze(km_.z.dT_sh, geschnitten(w_.t_Exp - w_.t0));
}

bool Kern::fuehler_gueltig() const {
  return !(w_.t_Exp < Kein_Fuehler || w_.t_SL < Kein_Fuehler || w_.t_liq < Kein_Fuehler);
}

void Kern::unterkuehlung() {
  setze(km_.z.dT_sc, geschnitten((mitteltemperatur_ ? km_.z.t_m : w_.tc) - w_.t_liq));
}

/// The imbalance of the phases is taken for a single-phase auxiliary on the same feed, unless one
/// phase carries less than half: that is a fault and no auxiliary.
void Kern::stromaufnahme() {
  auto& [U1, U2, U3] = w_.U;
  auto& [I1, I2, I3] = w_.I;
  for (int phase = 0; phase < 3; ++phase) {
    setze(w_.U[phase], std::max(zahl(Spalte::U_L1 + phase), 0.0));
    setze(w_.I[phase], std::max(zahl(Spalte::I_L1 + phase), 0.0));
  }
  const auto [I_min, I_max] = std::minmax({I1, I2, I3});
  setze(w_.cosphi, Cos_phi(3 * I_max));
  if (auswahl_.einphasig) {
    setze(w_.P_el, U1 * I1 / 1000 * w_.cosphi);
    return;
  }
  if (!(I_min > Kleinster_Strom && std::min({U1, U2, U3}) > Kleinste_Spannung)) return;
  double d = (I1 - I_min) + (I2 - I_min) + (I3 - I_min);
  if (I_min < 0.5 * I_max) d = 0;
  const double S = (U1 * I1 + U2 * I2 + U3 * I3) / 1000;
  setze(w_.P_el, S * w_.cosphi - d * ((U1 + U2 + U3) / 3000) * w_.cosphi);
  setze(w_.P_rest, d * ((U1 + U2 + U3) / 3000) * w_.cosphi);
}

double Kern::Cos_phi(double strom) const {
  if (strom <= 0) strom = 10;
  const int antrieb = km_.z.Antrieb;
  const double b = antrieb == 1 ? 0.93 : antrieb == 3 ? 0.805 : 0.87;
  return b - 2 / (3 * strom);
}

void Kern::stromaufnahme_zeigen() {
  zeige(Spalte::P_el, auf_Watt(w_.P_el));
  zeige(Spalte::P_rest, auf_Watt(w_.P_rest));
}

void Kern::abstaende_zeigen() {
  const KMZustand& z = km_.z;
  zeige(Spalte::dT_sh, z.dT_sh);
  zeige(Spalte::dT_sc, z.dT_sc);
  const bool rot_sh = z.dT_sh < 3 || z.dT_sh > 11;
  const bool rot_sc = z.dT_sc < 0;
  faerbe((rot_sh ? Rot_sh : 0U) | (rot_sc ? Rot_sc : 0U), Rot_sh | Rot_sc);
}

void Kern::kreiszustand() {
  KMZustand& z = km_.z;
  if (z.Antrieb == 0) z.Antrieb = 2;
  kreis_.KreisPunkt(w_.t0, w_.tc, w_.t_SL, z.dT_sc);
  setze(z.rho_s, z.rho_s * (1 - (w_.t_SL - w_.t0) / 1500));
  setze(w_.rho2, z.rho_s * (w_.p0 - z.dpdT0) / w_.p0);
}

}  // namespace polarkreis
