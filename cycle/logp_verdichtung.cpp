#include <cmath>

#include "cycle/logp_lauf.h"

namespace polarkreis {

void LogpLauf::verdichtung() {
  const bool Flashgas = f.modul == "SIM_PRO" && e.transkritisch && !Economiser;
  z = haupt;
  Saug = Saugzustand(e.t_s);
  if (f.Zweistufig == 0) {
    // An economiser's compressor works as if the flow of `KM_Massenstrom` came in at the suction
    // side: that stands for the injected vapour.
    e.Art = gestuft ? Schaltung::Einspritzung : Schaltung::einstufig;
    ein_Verdichter(e.m_Modell);
  } else if (Flashgas) {
    f.ParaL_Check ? Flashgas_eigen() : Flashgas_in_Saug();
  } else {
    e.Art = Schaltung::zweistufig;
    unterste_Stufe();
    zweite_Stufe();
  }
}

/// Enthalpy of vapour of `t` °C on the high side of the record's point, kJ/kg.
double LogpLauf::h_Hochdruck(double t) const {
  return z.h_vc + z.cp_d * (t - (z.Tc - nullpunkt));
}

/// The compressor's inlet on the low side, at `t` °C.
LogpLauf::Ort LogpLauf::Saugzustand(double t) const {
  return {t, z.h_v0 + (t - f.t0F) * z.cp_v0, z.rho_s};
}

/// End of a compression with that inlet, °C; sets the record's reference temperature.
double LogpLauf::Endtemperatur(const Ort& ein, double p_s, double p_d) {
  double t = leer;
  setze(t, kreis.Verd_Endtemp(logp_H::Q0, p_s, p_d, ein.t + nullpunkt, z.kappa) - nullpunkt);
  return t;
}

/// The discharge on the high side: transcritical R744 has it in its table, as far as that reaches.
LogpLauf::Ort LogpLauf::Hochdruckende(double t_d) {
  if (!e.transkritisch) return {t_d, h_Hochdruck(t_d), z.rho_d};
  z.h_d_co2 = leer;
  km.CO2_Tabelle(t_d + nullpunkt, z.P_hoch, 2);
  return {t_d, z.h_d_co2, z.rho_d};
}

/// Power of a loss-free compression of an ideal gas with the inlet's density and the record's
/// exponent, kW.
double LogpLauf::ideal(const Ort& ein, double p_s, double p_d, double m) const {
  constexpr double kPa_je_bar = 100;
  const double n = z.kappa / (z.kappa - 1);
  return m * n * (p_s * kPa_je_bar / ein.rho) * (std::pow(p_d / p_s, 1 / n) - 1);
}

/// Power of one compressor, kW; empty where none comes out. With `t_end` as measured it is the
/// electric one.
double LogpLauf::Leistung(const Ort& ein, double p_s, double p_d, double m, double t_end) {
  const int davor = z.Zweistufig;
  if (e.transkritisch && z.Tc >= kritisch_CO2 && davor != 1) z.Zweistufig = aus_der_Tabelle;
  z.h_d_co2 = leer;  // beyond the table there is none
  const int mode = ist_leer(t_end) ? 0 : 1;
  const double P = kreis.Verd_Leistung(p_s, p_d, z.T0, z.Tc, m, dT_sh, ein.t, z.h_vc, z.h_v0,
                                       mode == 0 ? 0 : t_end, mode);
  z.Zweistufig = davor;
  return P;
}

double LogpLauf::gemessenes_Ende() const {
  return gemessen && f.t_end >= offener_Eingang ? f.t_end : leer;
}

/// One compressor from `Saug` over the whole pressure range.
void LogpLauf::ein_Verdichter(double m) {
  const double t_end = gemessenes_Ende();
  const double t_d = Endtemperatur(Saug, e.p_s, e.p_d);
  e.t_d1 = ist_leer(t_end) ? t_d : t_end;
  e.P = e.P_1 = Leistung(Saug, e.p_s, e.p_d, m, t_end);
  e.P_ideal_1 = ideal(Saug, e.p_s, e.p_d, m);
  e.eta = z.eta_is;
  Ende1 = Hochdruckende(e.t_d1);
  e.t_d = Ende1.t;
  e.h_d = Ende1.h;
}

void LogpLauf::unterste_Stufe() {
  z = nieder;
  Saug = Saugzustand(e.t_s);
  e.t_d1 = Endtemperatur(Saug, e.p_s, e.p_m);
  Ende1 = {e.t_d1, h_Hochdruck(e.t_d1), z.rho_d};
  e.P_1 = Leistung(Saug, e.p_s, e.p_m, e.m, leer);
  e.P_ideal_1 = ideal(Saug, e.p_s, e.p_m, e.m);
  e.eta = z.eta_is;
}

/// What the low stage delivers and the vapour that joins mix by their superheat, as in the
/// evaluation of a measured row; a measured inlet of a plant without injection is that of the
/// mixture. The record becomes the high stage's.
void LogpLauf::mische() {
  const bool t_s2_da = gemessen && f.t_s2 >= offener_Eingang;
  const bool Einspritzung = f.Zweistufig == 1;
  if (t_s2_da && Einspritzung) Dampf.t = f.t_s2;
  double dT = leer;
  setze(dT, (e.m_zu * (Dampf.t - e.t_m) + e.m * (Ende1.t - e.t_m)) / e.m_hoch);
  if (t_s2_da && !Einspritzung) dT = f.t_s2 - e.t_m;
  double unterkuehlung = f.dT_sc;
  kreis.KreisPunkt(e.t_m, f.tcF, e.t_m + dT, unterkuehlung);
  z.dT_sc = haupt.dT_sc;
  Dampf.h += (Dampf.t - Mitte.t_d) * z.cp_v0;
  Mischung = {e.t_m + dT, z.h_v0 + dT * z.cp_v0, z.rho_s};
}

void LogpLauf::zweite_Stufe() {
  mische();
  const double t_end = gemessenes_Ende();
  const double t_d = Endtemperatur(Mischung, e.p_m, e.p_d);
  setze(z.cp_d, (nieder.cp_d + z.cp_d) / 2);
  e.t_d = ist_leer(t_end) ? t_d : t_end;
  e.P_2 = Leistung(Mischung, e.p_m, e.p_d, e.m_hoch, t_end);
  e.P_ideal_2 = ideal(Mischung, e.p_m, e.p_d, e.m_hoch);
  e.P = e.P_1 + e.P_2;
  setze(e.eta, (e.eta + z.eta_is) / 2);
  Ende2 = Hochdruckende(e.t_d);
  e.h_d = Ende2.h;
}

/// One compressor takes the flash gas, too: mixed with the suction vapour it comes in cooler.
void LogpLauf::Flashgas_in_Saug() {
  e.Art = Schaltung::Flashgas_Saug;
  setze(Saug.h, (e.m * Saug.h + e.m_zu * Dampf.h) / e.m_hoch);
  setze(Saug.t, f.t0F + (Saug.h - z.h_v0) / z.cp_v0);
  setze(Saug.rho, z.rho_v0 * z.T0 / (Saug.t + nullpunkt));
  ein_Verdichter(e.m_hoch);
}

/// Two compressors side by side; the gas cooler gets what both deliver.
void LogpLauf::Flashgas_eigen() {
  constexpr double Ueberhitzung = 2;  // K, of the flash gas in front of its compressor
  e.Art = Schaltung::Flashgas_eigen;
  ein_Verdichter(e.m);
  if (e.m_zu == 0) return;

  double unterkuehlung = f.dT_sc;
  kreis.KreisPunkt(e.t_m, f.tcF, e.t_m + Ueberhitzung, unterkuehlung);
  Mischung = {e.t_m + Ueberhitzung, z.h_v0 + Ueberhitzung * z.cp_v0, z.rho_s};
  e.t_d2 = Endtemperatur(Mischung, e.p_m, e.p_d);
  setze(z.cp_d, (haupt.cp_d + z.cp_d) / 2);
  e.P_2 = Leistung(Mischung, e.p_m, e.p_d, e.m_zu, leer);
  e.P_ideal_2 = ideal(Mischung, e.p_m, e.p_d, e.m_zu);
  Ende2 = Hochdruckende(e.t_d2);
  setze(e.eta, (e.eta + z.eta_is) / 2);
  e.P = e.P_1 + e.P_2;
  setze(e.t_d, (e.m * Ende1.t + e.m_zu * Ende2.t) / e.m_hoch);
  e.h_d = (e.m * Ende1.h + e.m_zu * Ende2.h) / e.m_hoch;
}

}  // namespace polarkreis
