#include "cycle/logp_lauf.h"

#include <algorithm>
#include <cmath>

namespace polarkreis {
namespace {

constexpr double nullpunkt = 273.15;
constexpr double kritisch_CO2 = 304.15;  // K; from here up R744 has no condensing line
constexpr double offener_Eingang = -90;  // °C; a sensor below it is none
constexpr double Abstand_ueblich = 5;    // bar, of the intermediate pressure from the low one
constexpr double Vorpunkt_dT = 7;        // K, of the low stage's point of R744
constexpr double Unterkuehlung_CO2 = 3;  // K, there
constexpr double Schritt_cp = 5;         // K below the condensing temperature that are looked at
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
  if (!pruefen()) return Hindernis::Temperatur;
  vorgeben();
  if (gestuft) {
    const Hindernis hindernis = zwischendruck();
    if (hindernis != Hindernis::keines) return hindernis;
  }
  hauptpunkt();
  innerer_WT();
  zwischenstufe();
  verdichtung();
  abschliessen();
  return e.P > 0 && std::isfinite(e.Qc) ? Hindernis::keines : Hindernis::Kreis;
}

double LogpLauf::T_liq() const {
  const bool Tank = gestuft && !Economiser;
  return Tank ? e.t_m + nullpunkt : haupt.Tc - haupt.dT_sc;
}

// ------------------------------------------------------------------------------ preparation

/// Both temperatures lie inside the table; the gas cooler of R744 may lie above it.
bool LogpLauf::pruefen() {
  const std::vector<SatZeile>& tabelle = km.Tabellenzeilen();
  const double T0 = f.t0F + nullpunkt, Tc = f.tcF + nullpunkt;
  const bool oben = Tc <= tabelle.back().T || km.ist_CO2();
  return f.t0F < f.tcF && T0 > tabelle.front().T && Tc - Schritt_cp > tabelle.front().T && oben;
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
  dT_liquid = f.Innen_WT ? f.dT_liquid : 0;
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
  z.Zweistufig = f.Zweistufig;
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
  if (ist_leer(z.p0) || ist_leer(z.pc)) return Hindernis::Kreis;
  kreis.KM_Massenstrom(1, logp_H::Q0);
  if (Economiser) u = oder_null(z.u);
  e.p_m = p_m_Regel();
  km.Sat_Suchen(e.p_m, 1);
  e.t_m = leer;
  setze(e.t_m, km.Sat_Wert(&SatZeile::p_d, e.p_m) - nullpunkt);
  const bool zwischen = z.p0 < e.p_m && e.p_m < z.pc && f.t0F < e.t_m && e.t_m < f.tcF;
  const std::vector<SatZeile>& tabelle = km.Tabellenzeilen();
  const double T_m = e.t_m + nullpunkt;
  if (!zwischen || T_m > tabelle.back().T || T_m - Schritt_cp <= tabelle.front().T)
    return Hindernis::Mitteldruck;
  if (km.ist_CO2() && f.Zweistufig != 0) {
    unterkuehlung = Unterkuehlung_CO2;
    kreis.KreisPunkt(f.t0F, f.t0F + Vorpunkt_dT, t_s_ohne, unterkuehlung);
    z.pc = z.P_hoch;
  }
  return Hindernis::keines;
}

double LogpLauf::p_m_Regel() const {
  const bool zweistufig = f.modul == "2stage";
  const double p0 = gemessen ? oder(f.p0F, z.p0) : z.p0, pc = gemessen ? oder(f.pcF, z.pc) : z.pc;
  const double economiser = std::pow(p0 * pc, 0.45);
  if (Economiser && !zweistufig) return economiser;
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
  e.transkritisch = km.ist_CO2() && z.Tc >= kritisch_CO2;
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
    if (!Economiser) e.h_l = z.h_lc;
    setze(e.m, logp_H::Q0 / ((z.h_v0 + dT_sh * z.cp_v0) - e.h_l));
    const double Flashgas = e.m * (e.h_liq - e.h_l) / (z.h_vc - e.h_liq);
    setze(e.m_zu, Economiser ? haupt.m_eco : std::max(Flashgas, 0.0));
    Dampf = {e.t_m, z.h_vc, z.rho_vc};
  }
  e.m_hoch = e.m + e.m_zu;
}

void LogpLauf::verdichtung() {
  leitungen();
  const bool Flashgas = f.modul == "SIM_PRO" && e.transkritisch && !Economiser;
  if (f.Zweistufig == 0) {
    e.Art = gestuft ? Schaltung::Einspritzung : Schaltung::einstufig;
    ein_Verdichter();
  } else if (Flashgas) {
    f.ParaL_Check ? Flashgas_eigen() : Flashgas_in_Saug();
  } else {
    e.Art = Schaltung::zweistufig;
    unterste_Stufe();
    zweite_Stufe();
  }
}

/// Losses of the lines, by the slopes of the whole pressure range; and the pressures behind them.
void LogpLauf::leitungen() {
  z = haupt;
  kreis.Leitungsverlust(f.C, 1);
  haupt.dp_s = nieder.dp_s = z.dp_s;
  haupt.dp_d = nieder.dp_d = z.dp_d;
  e.p0 = nieder.p0;
  e.pc = haupt.pc;
  e.p_s = e.p0 - oder_null(z.dp_s) / 1000;
  e.p_d = e.pc + oder_null(z.dp_d) / 1000;
}

/// What a compression with that inlet comes to; sets the record's reference temperature.
LogpLauf::Ort LogpLauf::Ende_auf(double p_s, double p_d, double t_ein) {
  Ort ende;
  setze(ende.t, kreis.Verd_Endtemp(logp_H::Q0, p_s, p_d, t_ein + nullpunkt, z.kappa) - nullpunkt);
  setze(ende.h, z.h_vc + z.cp_d * (ende.t - (z.Tc - nullpunkt)));
  ende.rho = z.rho_d;
  return ende;
}

/// The discharge on the high side: transcritical R744 has it in its table.
LogpLauf::Ort LogpLauf::Hochdruckende(double t_d) {
  Ort ende{t_d, leer, z.rho_d};
  if (e.transkritisch) {
    km.CO2_Tabelle(t_d + nullpunkt, z.P_hoch, 2);
    return {t_d, z.h_d_co2, z.rho_d};
  }
  setze(ende.h, z.h_vc + z.cp_d * (t_d - (z.Tc - nullpunkt)));
  return ende;
}

/// Power of a loss-free compression of an ideal gas with the inlet's density and the record's
/// exponent, kW.
double LogpLauf::ideal(const Ort& ein, double p_s, double p_d, double m) const {
  constexpr double kPa_je_bar = 100;
  const double n = z.kappa / (z.kappa - 1);
  return m * n * (p_s * kPa_je_bar / ein.rho) * (std::pow(p_d / p_s, 1 / n) - 1);
}

double LogpLauf::Leistung(const Ort& ein, double p_s, double p_d, double m, double t_d, int mode) {
  return kreis.Verd_Leistung(p_s, p_d, z.T0, z.Tc, m, dT_sh, ein.t, z.h_vc, z.h_v0, t_d, mode);
}

/// One compressor over the whole pressure range. With an economiser it works as if the flow of
/// `KM_Massenstrom` came in at the suction side: that stands for the injected vapour.
void LogpLauf::ein_Verdichter() {
  z = haupt;
  Saug = {e.t_s, z.h_v0 + (e.t_s - f.t0F) * z.cp_v0, z.rho_s};
  const bool t_end_da = gemessen && f.t_end >= offener_Eingang;
  const double t_d = Ende_auf(e.p_s, e.p_d, Saug.t).t;
  e.t_d1 = t_end_da ? f.t_end : t_d;
  e.P = e.P_1 = Leistung(Saug, e.p_s, e.p_d, e.m_Modell, e.t_d1, t_end_da ? 1 : 0);
  e.P_ideal_1 = ideal(Saug, e.p_s, e.p_d, e.m_Modell);
  Ende1 = Hochdruckende(e.t_d1);
  e.t_d = Ende1.t;
  e.h_d = Ende1.h;
  e.eta = z.eta_is;
}

void LogpLauf::unterste_Stufe() {
  z = nieder;
  Saug = {e.t_s, z.h_v0 + (e.t_s - f.t0F) * z.cp_v0, z.rho_s};
  Ende1 = Ende_auf(e.p_s, e.p_m, Saug.t);
  e.t_d1 = Ende1.t;
  e.P_1 = Leistung(Saug, e.p_s, e.p_m, e.m, e.t_d1, 0);
  e.P_ideal_1 = ideal(Saug, e.p_s, e.p_m, e.m);
  e.eta = z.eta_is;
}

/// What the low stage delivers and the vapour that joins mix; the measured inlet of a plant without
/// injection is that of the mixture.
void LogpLauf::zweite_Stufe() {
  const bool t_s2_da = gemessen && f.t_s2 >= offener_Eingang;
  const double dT_Dampf = t_s2_da ? f.t_s2 - e.t_m : 0;
  double dT_m = 0;
  setze(dT_m, (e.m_zu * dT_Dampf + e.m * (Ende1.t - e.t_m)) / (e.m_zu + e.m));
  if (t_s2_da && f.Zweistufig != 1) dT_m = dT_Dampf;
  double unterkuehlung = f.dT_sc;
  kreis.KreisPunkt(e.t_m, f.tcF, e.t_m + dT_m, unterkuehlung);
  z.dT_sc = haupt.dT_sc;
  Mischung = {e.t_m + dT_m, z.h_v0 + dT_m * z.cp_v0, z.rho_s};
  if (t_s2_da && f.Zweistufig == 1)
    Dampf = {f.t_s2, nieder.h_vc + dT_Dampf * z.cp_v0, nieder.rho_vc};

  const bool t_end_da = gemessen && f.t_end >= offener_Eingang;
  const double t_d = Ende_auf(e.p_m, e.p_d, Mischung.t).t;
  setze(z.cp_d, (nieder.cp_d + z.cp_d) / 2);
  e.t_d = t_end_da ? f.t_end : t_d;
  e.P_2 = Leistung(Mischung, e.p_m, e.p_d, e.m_hoch, e.t_d, t_end_da ? 1 : 0);
  e.P_ideal_2 = ideal(Mischung, e.p_m, e.p_d, e.m_hoch);
  e.P = e.P_1 + e.P_2;
  setze(e.eta, (e.eta + z.eta_is) / 2);
  Ende2 = Hochdruckende(e.t_d);
  e.h_d = Ende2.h;
  hoch = z;
}

/// One compressor takes the flash gas, too: mixed with the suction vapour it comes in cooler.
void LogpLauf::Flashgas_in_Saug() {
  e.Art = Schaltung::Flashgas_Saug;
  z = haupt;
  const double h_s = z.h_v0 + (e.t_s - f.t0F) * z.cp_v0;
  Saug = {e.t_s, h_s, z.rho_s};
  setze(Saug.h, (e.m * h_s + e.m_zu * Dampf.h) / e.m_hoch);
  setze(Saug.t, f.t0F + (Saug.h - z.h_v0) / z.cp_v0);
  setze(Saug.rho, z.rho_v0 * z.T0 / (Saug.t + nullpunkt));
  e.t_d1 = Ende_auf(e.p_s, e.p_d, Saug.t).t;
  e.P = e.P_1 = Leistung(Saug, e.p_s, e.p_d, e.m_hoch, e.t_d1, 0);
  e.P_ideal_1 = ideal(Saug, e.p_s, e.p_d, e.m_hoch);
  Ende1 = Hochdruckende(e.t_d1);
  e.t_d = Ende1.t;
  e.h_d = Ende1.h;
  e.eta = z.eta_is;
}

/// Two compressors side by side; the gas cooler gets what both deliver.
void LogpLauf::Flashgas_eigen() {
  constexpr double Ueberhitzung = 2;  // K, of the flash gas in front of its compressor
  e.Art = Schaltung::Flashgas_eigen;
  z = haupt;
  Saug = {e.t_s, z.h_v0 + (e.t_s - f.t0F) * z.cp_v0, z.rho_s};
  e.t_d1 = Ende_auf(e.p_s, e.p_d, Saug.t).t;
  e.P_1 = Leistung(Saug, e.p_s, e.p_d, e.m, e.t_d1, 0);
  e.P_ideal_1 = ideal(Saug, e.p_s, e.p_d, e.m);
  Ende1 = Hochdruckende(e.t_d1);
  e.eta = z.eta_is;
  e.P = e.P_1;
  e.t_d = Ende1.t;
  e.h_d = Ende1.h;
  if (e.m_zu == 0) return;

  double unterkuehlung = f.dT_sc;
  kreis.KreisPunkt(e.t_m, f.tcF, e.t_m + Ueberhitzung, unterkuehlung);
  Mischung = {e.t_m + Ueberhitzung, z.h_v0 + Ueberhitzung * z.cp_v0, z.rho_s};
  e.t_d2 = Ende_auf(e.p_m, e.p_d, Mischung.t).t;
  setze(z.cp_d, (haupt.cp_d + z.cp_d) / 2);
  e.P_2 = Leistung(Mischung, e.p_m, e.p_d, e.m_zu, e.t_d2, 0);
  e.P_ideal_2 = ideal(Mischung, e.p_m, e.p_d, e.m_zu);
  Ende2 = Hochdruckende(e.t_d2);
  setze(e.eta, (e.eta + z.eta_is) / 2);
  e.P = e.P_1 + e.P_2;
  setze(e.t_d, (e.m * Ende1.t + e.m_zu * Ende2.t) / e.m_hoch);
  setze(e.h_d, (e.m * Ende1.h + e.m_zu * Ende2.h) / e.m_hoch);
  hoch = z;
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
