#include "cycle/logp_lauf.h"

#include <algorithm>
#include <cmath>

namespace polarkreis {
namespace {

constexpr double fast_kritisch = 303.15;  // K; what lies above counts as transcritical
constexpr double Abstand_ueblich = 5;     // bar, of the intermediate pressure from the low one
constexpr double Vorpunkt_dT = 7;         // K, of the low stage's point of R744
constexpr double Unterkuehlung_CO2 = 3;   // K, there
constexpr double Schritt_cp = 5;          // K below the condensing temperature that are looked at
constexpr int zweiter_Durchgang = 33;

double oder_null(double wert) {
  return ist_leer(wert) ? 0 : wert;
}

double oder(double wert, double sonst) {
  return ist_leer(wert) ? sonst : wert;
}

/// A record that holds nothing of another calculation but the refrigerant.
KMZustand frisch(const KMZustand& davor) {
  KMZustand z;
  z.RefName = davor.RefName;
  z.RefFile = davor.RefFile;
  z.GWP = davor.GWP;
  z.tmin = davor.tmin;
  z.tmax = davor.tmax;
  return z;
}

}  // namespace

LogpLauf::LogpLauf(Kreis& kreis_der_Form, const logp_H& form)
    : f(form),
      kreis(kreis_der_Form),
      km(kreis_der_Form.km),
      z(kreis_der_Form.km.z),
      modul_davor_(kreis.modul),
      ECO_OPT_davor_(kreis.ECO_OPT),
      Leistung_davor_(kreis.gespeicherte_Leistung) {}

LogpLauf::~LogpLauf() {
  kreis.modul = modul_davor_;
  kreis.ECO_OPT = ECO_OPT_davor_;
  kreis.gespeicherte_Leistung = Leistung_davor_;
}

Hindernis LogpLauf::rechne() {
  const Schrittfolge ein_Kreis(km.ablage());
  if (!km.KM_Tabelle_da()) return Hindernis::Mittel;
  if (const Hindernis hindernis = pruefen(); hindernis != Hindernis::keines) return hindernis;
  vorgeben();
  if (gestuft) {
    const Hindernis hindernis = zwischendruck();
    if (hindernis != Hindernis::keines) return hindernis;
  }
  hauptpunkt();
  innerer_WT();
  zwischenstufe();
  leitungen();
  if (!std::isfinite(e.p_d - e.p_s)) return Hindernis::Kreis;
  if (!Drucke_moeglich()) return Hindernis::Druck;
  if (e.h_l < nieder.h_l0) return Hindernis::Fluessigkeit;
  verdichtung();
  abschliessen();
  return Ergebnis_moeglich() ? Hindernis::keines : Hindernis::Kreis;
}

bool LogpLauf::Drucke_moeglich() const {
  const double p_Ventil = e.pc - oder_null(f.dp_Fl) / 1000;
  return e.p_s > 0 && e.p_s < e.p_d && p_Ventil > e.p0 &&
         (!gestuft || (e.p_s < e.p_m && e.p_m < e.p_d));
}

/// A flow or a power that isn't above 0 belongs to no plant.
bool LogpLauf::Ergebnis_moeglich() const {
  const bool zwei = e.Art == Schaltung::zweistufig || e.Art == Schaltung::Flashgas_eigen;
  const bool zweite_gut = !zwei || e.P_2 > 0 || (e.m_zu == 0 && e.Art == Schaltung::Flashgas_eigen);
  return e.m > 0 && e.m_zu >= 0 && e.m_Modell > 0 && e.P_1 > 0 && zweite_gut &&
         std::isfinite(e.h_liq) && std::isfinite(e.Qc);
}

double LogpLauf::T_liq() const {
  const bool Tank = gestuft && !Economiser;
  if (Tank && e.h_l < e.h_liq) return Mitte.t_b + nullpunkt;
  const double T = e.transkritisch ? haupt.Tc : Saettigung_bei(km, e.pc).t_b + nullpunkt;
  return T - haupt.dT_sc;
}

// ------------------------------------------------------------------------------ preparation

/// Both temperatures lie inside the table; the gas cooler of R744 may lie above it.
Hindernis LogpLauf::pruefen() {
  const std::vector<SatZeile>& tabelle = km.Tabellenzeilen();
  const double T0 = f.t0F + nullpunkt, Tc = f.tcF + nullpunkt;
  const bool oben = Tc <= tabelle.back().T || km.ist_CO2();
  if (!(f.t0F < f.tcF && T0 > tabelle.front().T && Tc - Schritt_cp > tabelle.front().T && oben))
    return Hindernis::Temperatur;
  const bool gemessen_da = f.modul == "DiaG" && !ist_leer(f.p0F) && !ist_leer(f.pcF);
  return gemessen_da && !(f.p0F > 0 && f.p0F < f.pcF) ? Hindernis::Druck : Hindernis::keines;
}

void LogpLauf::vorgeben() {
  z = frisch(z);
  km.KM_Datei();
  gestuft = f.Zweistufig != 0;
  gemessen = f.modul == "DiaG";
  Economiser = f.ECO_OPT >= 1 && f.ECO_OPT <= 9;
  const bool CO2_zweistufig = km.ist_CO2() && gestuft;
  gestuft = gestuft || Economiser;

  dT_sh = f.dT_sh;
  dT_liquid = f.Innen_WT ? oder_null(f.dT_liquid) : 0;
  t_s_ohne = oder(f.t_s, f.t0F + dT_sh);
  z.P_hoch = f.P_hoch;
  if (CO2_zweistufig) {
    const double Anstieg = oder(f.toh_SL_Scroll, t_s_ohne - (f.t0F + dT_sh));
    setze(dT_sh, f.toh_EV_Scroll);
    t_s_ohne = f.t0F + dT_sh + Anstieg;
    if (f.Innen_WT) setze(dT_liquid, f.tu_WT_Scroll);
    setze(z.P_hoch, f.p_GC_Scroll);
  }
  z.dT_sh = dT_sh;
  z.Q0 = logp_H::Q0;
  z.Bauart = f.Bauart;
  z.Antrieb = f.Antrieb;
  e.transkritisch = km.ist_CO2() && f.tcF + nullpunkt > fast_kritisch;
  z.Zweistufig = f.Zweistufig == 0 && e.transkritisch ? aus_der_Tabelle : f.Zweistufig;
  if (gemessen) setze(z.P_hoch, f.pcF);
  if (f.modul == "MonoF" && f.Auswahl2 && f.Zweistufig == 1) z.Zweistufig = zweiter_Durchgang;
  kreis.modul = f.modul;
  kreis.ECO_OPT = f.ECO_OPT;
  kreis.gespeicherte_Leistung = 0;
}

/// The intermediate pressure and its saturation temperature, and the economiser's subcooling.
/// Pressures of the single-point form count for its own rule only.
Hindernis LogpLauf::zwischendruck() {
  double unterkuehlung = f.dT_sc;
  kreis.KreisPunkt(f.t0F, f.tcF, t_s_ohne, unterkuehlung);
  const double p0 = gemessen ? oder(f.p0F, z.p0) : z.p0, pc = gemessen ? oder(f.pcF, z.pc) : z.pc;
  if (ist_leer(p0) || ist_leer(pc)) return Hindernis::Kreis;
  kreis.KM_Massenstrom(1, logp_H::Q0);
  if (Economiser) u = oder_null(z.u);
  if (u < 0) return Hindernis::Economiser;
  e.p_m = p_m_Regel(p0, pc);
  km.Sat_Suchen(e.p_m, 1);
  setze(e.t_m, km.Sat_Wert(&SatZeile::p_d, e.p_m) - nullpunkt);
  const std::vector<SatZeile>& tabelle = km.Tabellenzeilen();
  const double T_m = e.t_m + nullpunkt;
  const bool in_Tabelle = tabelle.front().p_d < e.p_m && e.p_m <= tabelle.back().p_d;
  const bool zwischen = in_Tabelle && p0 < e.p_m && e.p_m < pc && f.t0F < e.t_m && e.t_m < f.tcF;
  if (!zwischen || T_m - Schritt_cp <= tabelle.front().T) return Hindernis::Mitteldruck;
  // The order of R744's two stages; what counts is worked out anew behind it.
  if (km.ist_CO2() && f.Zweistufig != 0) {
    unterkuehlung = Unterkuehlung_CO2;
    kreis.KreisPunkt(f.t0F, f.t0F + Vorpunkt_dT, t_s_ohne, unterkuehlung);
    z.pc = z.P_hoch;
  }
  return Hindernis::keines;
}

double LogpLauf::p_m_Regel(double p0, double pc) const {
  const double economiser = std::pow(p0 * pc, 0.45);
  if (Economiser && f.modul != "2stage") return economiser;
  if (gemessen) return oder(f.p_m, economiser);
  const double summe = oder_null(f.p_Int_Scroll) + oder_null(f.p_Int_Scroll2);
  const double Abstand = summe == 0 ? Abstand_ueblich : summe;
  if (f.modul == "MonoF") return oder(f.p0F, p0) + Abstand;
  return oder(f.p_m, p0 + Abstand);
}

// ---------------------------------------------------------------------------------- the cycle

void LogpLauf::hauptpunkt() {
  dT_sc = f.dT_sc;
  kreis.KreisPunkt(f.t0F, f.tcF, t_s_ohne, dT_sc);
  Gemisch = z.p0 < z.p0_b || z.p0 > z.p0_b;
  if (gemessen) {
    setze(z.p0, f.p0F);
    setze(z.pc, f.pcF);
  }
  z.dT_sc = dT_sc + u + dT_liquid;
  setze(e.m_Modell, kreis.KM_Massenstrom(1, logp_H::Q0));
  h_lc = z.h_lc;
  setze(q, (z.h_v0 + z.cp_v0 * dT_sh) - (z.h_lc - z.cp_l * z.dT_sc));
}

/// The liquid gives its heat to the vapour in front of the compressor.
void LogpLauf::innerer_WT() {
  e.t_s = t_s_ohne;
  setze(e.h_liq, z.h_lc - z.dT_sc * z.cp_l);
  if (f.Innen_WT) {
    setze(e.t_s, t_s_ohne + (z.cp_l / z.cp_v0) * dT_liquid);
    setze(z.h_lc, e.h_liq);
    z.t_s = e.t_s;
    setze(z.rho_s, z.rho_v0 * z.T0 / (e.t_s + nullpunkt));
  }
  setze(q_DIN, z.h_v0 + z.cp_v0 * dT_sh - z.h_lc);
  haupt = nieder = z;
}

/// The second pass gives the low stage, and with it the evaporator's flow and low side.
void LogpLauf::zwischenstufe() {
  e.m = e.m_Modell;
  e.h_l = e.h_liq;
  if (gestuft) {
    double ohne = 0;
    kreis.KreisPunkt(f.t0F, e.t_m, e.t_s, ohne);
    if (gemessen) setze(z.p0, f.p0F);
    z.dT_sc = haupt.dT_sc;
    nieder = z;
    haupt.p0 = z.p0;
    haupt.h_v0 = z.h_v0;
    haupt.rho_v0 = z.rho_v0;
    haupt.rho_s = z.rho_s;
    Mitte = Saettigung_bei(km, e.p_m);
    if (!Gemisch) Mitte = {e.t_m, e.t_m, z.h_lc, z.h_vc, z.rho_lc, z.rho_vc};
    // Liquid colder than the tank gives no flash gas.
    if (!Economiser) e.h_l = std::min(Mitte.h_l, e.h_liq);
    setze(e.m, logp_H::Q0 / ((z.h_v0 + dT_sh * z.cp_v0) - e.h_l));
    setze(e.m_zu, Economiser ? haupt.m_eco : e.m * (e.h_liq - e.h_l) / (Mitte.h_v - e.h_liq));
    Dampf = {Mitte.t_d, Mitte.h_v, Mitte.rho_v};
  }
  e.m_hoch = e.m + e.m_zu;
}

/// Losses of the lines, by the slopes of the whole pressure range; and the pressures behind them.
void LogpLauf::leitungen() {
  z = haupt;
  kreis.Leitungsverlust(oder_null(f.C), 1);
  haupt.dp_s = nieder.dp_s = z.dp_s;
  haupt.dp_d = nieder.dp_d = z.dp_d;
  e.p0 = nieder.p0;
  e.pc = haupt.pc;
  e.p_s = e.p0 - oder_null(z.dp_s) / 1000;
  e.p_d = e.pc + oder_null(z.dp_d) / 1000;
}

/// Leaves the values of the whole pressure range in the record, with what the stages gave.
void LogpLauf::abschliessen() {
  constexpr double Verschiebung = 200;  // kJ/kg, of the second pass' reference
  const KMZustand zuletzt = z;
  z = haupt;
  z.cp_d = zuletzt.cp_d;
  z.T_is = zuletzt.T_is;
  z.h_d_co2 = zuletzt.h_d_co2;
  z.rho_d = zuletzt.rho_d;
  if (f.Zweistufig == 0) z.Zweistufig = 0;
  z.m_punkt = e.m;
  setze(z.m_eco, e.m_zu);
  z.p_m = e.p_m;
  z.t_m = e.t_m;
  z.P_verd = e.P;
  z.eta_is = e.eta;
  setze(e.Q_SL, e.m * (t_s_ohne - (f.t0F + dT_sh)) * nieder.cp_v0);
  const double h_Ende = h_lc - dT_sc * haupt.cp_l;
  setze(e.Qc, e.m_hoch * (e.h_d - h_Ende));
  if (f.Innen_WT && f.Auswahl2 && z.Zweistufig == zweiter_Durchgang) {
    z.h_lc += Verschiebung;
    z.h_l0 += Verschiebung;
    z.h_v0 += Verschiebung;
  }
}

}  // namespace polarkreis
