#include <cmath>

#include "cycle/logp_lauf.h"

namespace polarkreis {

void LogpLauf::verdichtung() {
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

/// Power of one compressor, kW; empty where none comes out.
double LogpLauf::Leistung(const Ort& ein, double p_s, double p_d, double m, double t_d, int mode) {
  const int davor = z.Zweistufig;
  if (e.transkritisch && z.Tc >= kritisch_CO2 && davor != 1) z.Zweistufig = aus_der_Tabelle;
  const double P =
      kreis.Verd_Leistung(p_s, p_d, z.T0, z.Tc, m, dT_sh, ein.t, z.h_vc, z.h_v0, t_d, mode);
  z.Zweistufig = davor;
  return P;
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

/// What the low stage delivers and the vapour that joins mix, enthalpy with enthalpy; a measured
/// inlet of a plant without injection is that of the mixture. The high side of the record is the
/// high stage's then.
void LogpLauf::mische() {
  const bool t_s2_da = gemessen && f.t_s2 >= offener_Eingang;
  const bool gemischt_gemessen = t_s2_da && f.Zweistufig != 1;
  double unterkuehlung = f.dT_sc;
  kreis.KreisPunkt(e.t_m, f.tcF, e.t_m + dT_sh, unterkuehlung);  // for the specific heat
  if (t_s2_da && !gemischt_gemessen)
    Dampf = {f.t_s2, Mitte.h_v + (f.t_s2 - e.t_m) * z.cp_v0, Mitte.rho_v};
  double h = leer, dT = leer;
  setze(h, (e.m * Ende1.h + e.m_zu * Dampf.h) / e.m_hoch);
  setze(dT, gemischt_gemessen ? f.t_s2 - e.t_m : (h - z.h_v0) / z.cp_v0);
  unterkuehlung = f.dT_sc;
  kreis.KreisPunkt(e.t_m, f.tcF, e.t_m + dT, unterkuehlung);
  z.dT_sc = haupt.dT_sc;
  Mischung = {e.t_m + dT, z.h_v0 + dT * z.cp_v0, z.rho_s};
}

void LogpLauf::zweite_Stufe() {
  mische();
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

}  // namespace polarkreis
