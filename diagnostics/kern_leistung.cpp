#include <algorithm>
#include <cmath>

#include "diagnostics/kern.h"
#include "diagnostics/methode.h"

namespace polarkreis {

namespace {

constexpr double Groesse_unbekannt = 5;  // kW
constexpr double Nullpunkt = 273.15;     // K
constexpr double Groesster_Wirkungsgrad = 1.67;
constexpr double Hoechste_Endtemperatur = 180;  // °C

/// An efficiency that stands for a running compressor.
bool glaubhaft(double eta) {
  return eta > 0 && eta < Groesster_Wirkungsgrad;
}

}  // namespace

// -------------------------------------------------------------------- mass flow and capacity

void Kern::foerderung() {
  if (!(messung_.Hub_Volumen > 0 || auswahl_.Mass_Art != M_Hubvolumen)) return;
  massenstrom();
  kaelteleistung();
}

/// The compressor figure gets the size as a volume flow.
void Kern::massenstrom() {
  const double V = messung_.Hub_Volumen;
  const double P2 = zahl(Spalte::von(Spalte::E_P2, 1));
  setze(w_.p_up, w_.pc);
  if (misst_Zwischendruck()) setze(w_.p_up, P2 + Atmosphaere);
  setze(w_.lambda,
        (1 + ((4.85 - w_.p_up / w_.p0) / 4.85) / 14) * 0.8 * (1 - 1 / (1.2 * (V * 0.8) + 10)));
  setze(w_.V_eff, V * w_.lambda);
  setze(w_.e, kreis_.Verd_Wirkungsgrad(w_.p_up, 0, w_.p0, 0, w_.V_eff));
  const double x = zahl(Spalte::von(Spalte::E_inx7, 1));
  w_.f = 1;
  if (auswahl_.Mass_Art == M_Messwert) {
    setze(w_.m, kanaele_.Kablib_x7_8(x, 0, 1));
    return;
  }
  setze(w_.m, hub_massenstrom(auswahl_.Mass_Art == M_Teillast ? (x / 100) * V : V));
  if (P2 > 0 && misst_Zwischendruck()) setze(w_.f, w_.p0 / (P2 + Atmosphaere));
}

double Kern::hub_massenstrom(double volumen) const {
  return volumen * w_.rho2 * w_.e;
}

void Kern::kaelteleistung() {
  const KMZustand& z = km_.z;
  setze(w_.Qo, Int(100 * ((w_.f * w_.m) / 3600) *
                   ((z.h_v0 + z.dT_sh * z.cp_v0) - (z.h_lc - z.cp_l * z.dT_sc))) /
                   100);
  const double dt = messung_.Messintervall_s();
  setze(Summe_Energ, Summe_Energ + (Int(1000 * w_.Qo) / 1000) * (dt / 3600));
  setze(Sum_zeit_messung, Sum_zeit_messung + dt);
  boxen_zeigen();
}

// ---------------------------------------------------------------------- kind of compression

void Kern::verdichtungsart() {
  KMZustand& z = km_.z;
  switch (code()) {
    case F_Einspritzung:
      z.Zweistufig = 1;
      setze(w_.Qo, Int(100 * w_.Qo * (w_.m / 3600) / kreis_.KM_Massenstrom(1, w_.Qo)) / 100);
      break;
    case F_Booster:
    case F_zweistufig:
    case F_Zwischenkuehler:
    case F_transkritisch:
    case F_Luftseite:
      z.Zweistufig = code();
      break;
    case F_Fernfuehler:
      z.Zweistufig = 7;
      break;
    default:
      z.Zweistufig = 0;
  }
  if (w_.Qo != 0) z.Q0 = w_.Qo;
  if (ist_leer(z.Q0)) z.Q0 = 0;  // no capacity was ever handed in
  kreis_.KM_Massenstrom(1, z.Q0);
}

void Kern::endtemperatur() {
  lies(w_.t_end, Spalte::t_end);
  double& hoechste = messung_.skala.t_end_max;
  if (w_.t_end > hoechste && w_.t_end < Hoechste_Endtemperatur) hoechste = w_.t_end;
}

// ------------------------------------------------------------------------ compressor power

void Kern::verdichterleistung() {
  KMZustand& z = km_.z;
  const double C = messung_.C;
  setze(z.dp_s, C * z.dpdT0 * 1000);
  setze(z.dp_d, C * 0.5 * z.dpdT0 * z.dpdT_ratio * 1000);
  if (z.Zweistufig == 1 || misst_Zwischendruck())
    zweistufig();
  else
    einstufig();
}

double Kern::leistung(double p_s, double p_d, double m, double t_s, double t_d, int modus) {
  const KMZustand& z = km_.z;
  return kreis_.Verd_Leistung(p_s, p_d, z.T0, z.Tc, m, z.dT_sh, t_s, z.h_vc, z.h_v0, t_d, modus);
}

void Kern::einstufig() {
  const KMZustand& z = km_.z;
  const double p_s = w_.p0 - z.dp_s / 1000;
  const double p_d = w_.pc + z.dp_d / 1000;
  setze(w_.P_mod, leistung(p_s, p_d, z.m_punkt, w_.t_SL, w_.t_end, 0));
  setze(w_.eta_mod, z.eta_is);
  setze(w_.P_ist, leistung(p_s, p_d, z.m_punkt, w_.t_SL, w_.t_end, 1));
  setze(w_.eta, z.eta_is);
}

void Kern::zweistufig() {
  const int t_liq = Spalte::von(Spalte::E_t_liq, 1);
  if (!gemessen(t_liq)) zeige(t_liq, Int(10 * (w_.tc - 2) + 0.05) / 10);
  zwischendruck();
  zwischentemperatur();
  erste_stufe();
  mischung();
  zweite_stufe();
}

/// A pressure of the unit in bar absolute, its saturation temperature shown beside it.
double Kern::stufendruck(Spalte::Einheit P, Spalte::Einheit t_P) {
  double p = 0;
  setze(p, zahl(Spalte::von(P, 1)) + Atmosphaere_Stufe);
  if (p > Kleinste_Stufe) zeige(Spalte::von(t_P, 1), Int(10 * km_.Sat_TausP(p, 177)) / 10);
  return p;
}

/// The middle pressure: the second measured one, else the first, else one between the main
/// pressures.
void Kern::zwischendruck() {
  KMZustand& z = km_.z;
  const double P1 = stufendruck(Spalte::E_P1, Spalte::E_t_P1);
  const double P2 = stufendruck(Spalte::E_P2, Spalte::E_t_P2);
  z.p_m = P2 < Kleinste_Stufe ? P1 : P2;
  if (z.p_m < Kleinste_Stufe) {
    setze(z.p_m, std::pow(w_.p0 * w_.pc, 0.45));
    zeige(Spalte::von(Spalte::E_P2, 1), Int(100 * z.p_m + 0.005) / 100 - Atmosphaere_Stufe);
    zeige(Spalte::von(Spalte::E_t_P2, 1), Int(10 * km_.Sat_TausP(z.p_m, 177)) / 10);
  }
  setze(z.t_m, km_.Sat_TausP(z.p_m, 177));
}

void Kern::zwischentemperatur() {
  const int spalte = Spalte::von(Spalte::E_t_Exp, 1);
  if (gemessen(spalte)) {
    lies(w_.t_s2, spalte);
    return;
  }
  setze(w_.t_s2, km_.z.t_m + 7);
  zeige(spalte, Int(10 * (km_.z.t_m + 7.05)) / 10);
}

void Kern::erste_stufe() {
  KMZustand& z = km_.z;
  kreis_.KreisPunkt(w_.t0, z.t_m, w_.t_SL, z.dT_sc);
  double& groesse = kreis_.gespeicherte_Leistung;
  if (groesse >= 0) groesse = Groesse_unbekannt;
  setze(w_.t_d1,
        kreis_.Verd_Endtemp(groesse, w_.p0, z.p_m, w_.t_SL + Nullpunkt, z.kappa) - Nullpunkt);
  setze(w_.P_1, leistung(w_.p0, z.p_m, z.m_punkt, w_.t_SL, w_.t_d1, 0));
  setze(w_.eta_1, z.eta_is);
}

double Kern::m_eco() const {
  return ist_leer(km_.z.m_eco) ? 0 : km_.z.m_eco;
}

/// The vapour that the high stage takes: with injection the low stage's and the economiser's mixed.
void Kern::mischung() {
  KMZustand& z = km_.z;
  const double dT_e = w_.t_s2 - z.t_m;
  const double dT_d1 = w_.t_d1 - z.t_m;
  if (z.Zweistufig == 1) {
    setze(w_.dT_m, (m_eco() * dT_e + z.m_punkt * dT_d1) / (m_eco() + z.m_punkt));
    kreis_.KreisPunkt(z.t_m, w_.tc, w_.t_s2 + w_.dT_m, z.dT_sc);
  } else {
    setze(w_.dT_m, dT_e);
    kreis_.KreisPunkt(z.t_m, w_.tc, w_.t_s2, z.dT_sc);
  }
  setze(w_.h_Mischung, z.h_v0 + w_.dT_m * z.cp_v0 * 0.99);
  setze(w_.h_Ende1, z.h_v0 + dT_d1 * z.cp_v0 * 1.01);
}

void Kern::zweite_stufe() {
  const KMZustand& z = km_.z;
  const double m = m_eco() + z.m_punkt;
  setze(w_.P_2, leistung(z.p_m, w_.pc, m, z.t_s, w_.t_end, 0));
  setze(w_.eta_2, z.eta_is);
  setze(w_.P_2i, leistung(z.p_m, w_.pc, m, z.t_s, w_.t_end, 1));
  setze(w_.eta_2i, z.eta_is);
  setze(w_.P_mod, w_.P_1 + w_.P_2);
  setze(w_.P_ist, w_.P_1 + w_.P_2i);
  setze(w_.eta_mod, (w_.eta_1 + w_.eta_2) / 2);
  setze(w_.eta, (w_.eta_1 + w_.eta_2i) / 2);
}

// ------------------------------------------------------------------------------- judgement

void Kern::leistungszahlen() {
  const KMZustand& z = km_.z;
  setze(w_.eta_min, 0.9 * Int(100 * w_.eta_mod) / 100);
  setze(w_.eta_max, 1.1 * Int(100 * w_.eta_mod) / 100);
  if (weite_Grenzen_) {
    w_.eta_min *= 1.08;
    w_.eta_max *= 1.08;
  }
  setze(w_.EER_1, Int(100 * z.Q0 / w_.P_ist) / 100);
  if (glaubhaft(w_.eta)) {
    const double Q_s = z.m_punkt * (w_.t_SL - w_.t_Exp) * z.cp_v0;
    setze(w_.EER_2, Int(100 * (z.Q0 + w_.P_ist + Q_s) / w_.P_ist) / 100);
  } else {
    w_.EER_1 = w_.EER_2 = 0;
  }
  const bool rot = w_.eta < w_.eta_min || w_.eta > w_.eta_max;
  faerbe(rot ? Rot_eta : 0U, Rot_eta);
}

void Kern::verdichter_zeigen() {
  Skala& s = messung_.skala;
  zeige(Spalte::m_KM, geschnitten(w_.m));
  zeige(Spalte::EER_1, w_.EER_1);
  zeige(Spalte::EER_2, w_.EER_2);
  s.EER_max = std::max(s.EER_max, w_.EER_1);
  if (glaubhaft(w_.eta))
    zeige(Spalte::eta, Int(10000 * w_.eta / 100));
  else
    zeige(Spalte::eta, " - -");

  const double S = w_.P_el / w_.cosphi;
  if (w_.eta < 0 || w_.eta > Groesster_Wirkungsgrad) {
    zeige(Spalte::Qo_COP, " - - - ");
  } else {
    const double k = auswahl_.gestuft ? 0.96 : 1;
    const double Q = Int(100 * k * w_.eta_mod * S * w_.EER_1) / 100;
    zeige(Spalte::Qo_COP, Q);
    if (w_.P_el > 0) s.Q_max = std::max(s.Q_max, Q);
  }
  if (w_.eta < 0.4 || w_.eta > Groesster_Wirkungsgrad)
    zeige(Spalte::Qc_COP, " - - - ");
  else
    zeige(Spalte::Qc_COP, Int(100 * S * w_.eta_mod * w_.EER_2) / 100);
}

void Kern::anlage_zeigen() {
  const double P = w_.P_el + w_.P_rest;
  const double Q = zahl(Spalte::Qo_COP);
  if (P > 0 && Q > 0) {
    zeige(Spalte::P_rest, Int(100 * (P - Q / w_.EER_1)) / 100);
    zeige(Spalte::EER_Anlage, Int(100 * Q / P) / 100);
  } else if (P <= 0 && Q <= 0) {
    zeige(Spalte::EER_Anlage, " - -");
  }
}

}  // namespace polarkreis
