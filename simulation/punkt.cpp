#include "simulation/punkt.h"

#include <utility>

namespace polarkreis {

Punkt::Punkt(Kreis& kreis, const Captions& captions, Dialog& dialog)
    : kreis_(kreis), captions_(captions), dialog_(dialog) {}

const Punktwerte& Punkt::Punkt_Rechnen(Anlage& anlage, int modus, double last_anteil,
                                       double last_prozent) {
  vorbereiten(anlage, modus, last_prozent);
  saugzustand(anlage);
  hauptpunkt();
  if (anlage.transkritisch) flashstufe(anlage);
  if (modus == 1 || modus == 2) winterdruck(anlage, modus);
  verdraengung(modus);
  massenstrom();
  viskositaet();
  leistung(anlage, last_anteil);
  return w_;
}

void Punkt::vorbereiten(const Anlage& a, int modus, double last_prozent) {
  Ablage& ablage = kreis_.km.ablage();
  zusatz_ = zusatzwerte_.hol(ablage, "SubAct.dat", [&](std::optional<std::string>&& text) {
    return (text ? SubAct_lesen(std::move(*text)) : SubAct_Startwerte(ablage)).zahlen();
  });
  KMZustand& z = kreis_.km.z;
  kreis_.ECO_OPT = a.ECO_OPT;
  z.Zweistufig = a.transkritisch ? 1 : 0;
  z.Bauart = a.Bauart;
  z.Antrieb = a.Antrieb;
  z.P_hoch = a.P_gasK;
  z.dT_sh = a.ableitung.Ueberhitzung;
  z.Q0 = Q0_ = a.Q0;

  w_.m_eco = 0;
  w_.WinterRGart.clear();
  // What only some plants have must not be shown of the plant before.
  if (!a.transkritisch) w_.p_m = w_.t_m = w_.h_fl = w_.rho_fl = w_.rho_fl_l = w_.Q_fl = leer;
  if (!a.ParaL_Check) w_.t_d_flash = leer;
  w_.dt_Winter = modus == 3 ? Winter_dT(a, a.Tc) : 0;
  w_.superheat = a.ableitung.Ueberhitzung;
  setze(w_.t0_eff, t0_wirksam(a, last_prozent));
  setze(w_.tc_eff, a.Tc + a.ableitung.Wartung_dT - w_.dt_Winter);
}

/// The state at the compressor inlet. The internal heat exchanger needs the specific heats of the
/// plant before its point is known: R744 takes them from a point that is surely below its critical
/// temperature.
void Punkt::saugzustand(const Anlage& a) {
  const KMZustand& z = kreis_.km.z;
  setze(w_.t_saug, w_.t0_eff + w_.superheat + a.ableitung.Isolier_dT + zusatz_.Ueberhitzung_Zusatz);
  subcooling_ = zusatz_.Unterkuehlung;
  double verworfen = subcooling_;
  if (a.CO2 && w_.tc_eff > w_.t0_eff + 8) {
    kreis_.KreisPunkt(w_.t0_eff, w_.t0_eff + 7, w_.t_saug, verworfen);
  } else if (a.Check3D1) {
    kreis_.KreisPunkt(w_.t0_eff, w_.tc_eff, w_.t_saug, verworfen);
  }
  if (a.Check3D1) {
    subcooling_ = zusatz_.Unterkuehlung + zusatz_.dT_Innen_WT;
    setze(w_.t_saug, w_.t_saug + zusatz_.dT_Innen_WT * (z.cp_l / z.cp_v0));
  }
}

void Punkt::hauptpunkt() {
  kreis_.KreisPunkt(w_.t0_eff, w_.tc_eff, w_.t_saug, subcooling_);
}

/// The flash tank 5 bar above the evaporator: its level, its gas, and the main point anew with its
/// liquid.
void Punkt::flashstufe(const Anlage& a) {
  KMZustand& z = kreis_.km.z;
  const double h_hp = z.h_lc;
  const double dT_sc0 = subcooling_;
  subcooling_ = 0;

  setze(z.p_m, z.p0 + 5);
  kreis_.km.Sat_Suchen(z.p_m, 1);
  const SatKlammer& k = z.Klammer;
  double f = 0;
  setze(f, (z.p_m - k.Unten.T) / (k.Oben.T - k.Unten.T));
  setze(z.t_m, (k.Unten.p_d - 273.15) + f * 5);

  double verworfen = 0;
  kreis_.KreisPunkt(w_.t0_eff, z.t_m, z.t_m + 2, verworfen);
  setze(w_.h_fl, z.h_lc - subcooling_ * z.cp_l);
  setze(w_.rho_fl_l, z.rho_lc);
  const double T_m = z.t_m + 273.15;
  if (!a.ParaL_Check || w_.tc_eff <= 25) {
    setze(w_.rho_fl, z.rho_vc * (T_m / z.T0) * z.p0 / z.p_m);
  } else {
    setze(w_.rho_fl, z.rho_vc * T_m / (T_m + (a.Check3D1 ? 15 : 2)));
  }
  const double h_q = (z.h_v0 + w_.superheat * z.cp_v0) - (w_.h_fl - z.cp_l * subcooling_);
  setze(w_.Q_fl, Q0_ * (h_hp - w_.h_fl) / h_q);
  setze(w_.m_eco, w_.Q_fl / (z.h_v0 - (h_hp - dT_sc0 * z.cp_s)));

  hauptpunkt();
  setze(z.h_lc, w_.h_fl);
  w_.p_m = z.p_m;
  w_.t_m = z.t_m;
}

/// The lowest condensing temperature at which the expansion device still has the pressure
/// difference it needs.
void Punkt::winterdruck(Anlage& a, int modus) {
  const Druckdifferenzen& dp = druckdifferenzen_.hol(
      kreis_.km.ablage(), "JMapOpt.dat", [](std::optional<std::string>&& text) {
        return JMapOpt_lesen(std::move(text).value_or(""));
      });
  const double ventil = a.Ventil == Ventilart::thermostatisch ? dp.thermostatisch() : dp.andere();
  double p = kreis_.km.z.p0 + ventil + dp.leitung() + dp.verteiler();
  if (a.transkritisch) p += 5;
  double tmin = leer;
  setze(tmin, kreis_.km.Sat_TausP(p, 177) + 1);
  if (ist_leer(tmin)) return;
  const std::string text = Zahl_Text(Int(tmin)) + " °C";
  if (modus == 1 && !dialog_.frage(captions_.text(JMapCap::Winter_tc) + " = " + text + " ?",
                                   captions_.text(JMapCap::Energiesimulation))) {
    return;
  }
  w_.tmin = a.tmin_gemerkt = tmin;
  w_.WinterRGart = text;
}

/// Enthalpy difference of the evaporator, kJ/kg.
double Punkt::dh() const {
  const KMZustand& z = kreis_.km.z;
  return (z.h_v0 + w_.superheat * z.cp_v0) - (z.h_lc - z.cp_l * subcooling_);
}

/// The density at the inlet, and in modus 77 the capacity of the given displacement V in m³/h.
void Punkt::verdraengung(int modus) {
  KMZustand& z = kreis_.km.z;
  setze(z.rho_s, z.rho_s * (1 - (w_.t_saug - w_.t0_eff) / 1500));
  setze(w_.rho2, z.rho_s * (z.p0 - z.dpdT0) / z.p0);
  z.dp_s = z.dp_d = 0;
  if (modus != 77) return;
  const double V = Hub_Volumen_gegeben;
  const double pi = z.pc / z.p0;
  setze(w_.eta_vol, (1 + ((4.85 - pi) / 4.85) / 14) * 0.8 * (1 - 1 / (1.2 * 0.8 * V + 10)));
  const double massenstrom = V * w_.rho2 * w_.eta_vol;
  setze(Q0_, Int(100 * (massenstrom / 3600) * dh()) / 100);
  z.Q0 = Q0_;
}

void Punkt::massenstrom() {
  const KMZustand& z = kreis_.km.z;
  w_.Q0 = Q0_;
  setze(w_.m_0, Q0_ / dh());
  setze(w_.Hub_Volumen, 3600 * (w_.m_0 / z.rho_s + w_.m_eco / z.rho_s));
  setze(w_.m_punkt, kreis_.KM_Massenstrom(1, Q0_));
  w_.subcooling = subcooling_;
}

void Punkt::viskositaet() {
  KMZustand& z = kreis_.km.z;
  setze(z.eta_v0, z.eta_v0 * (1 + 0.00183 * (z.rho_v0 - 6)));
  setze(z.eta_vs, z.eta_vs * (1 + 0.00183 * (z.rho_s - 6)));
  setze(z.eta_vd, z.eta_vd * (1 + 0.00183 * (z.rho_d - 6)));
}

void Punkt::leistung(const Anlage& a, double last_anteil) {
  KMZustand& z = kreis_.km.z;
  setze(w_.t_d, kreis_.Verd_Endtemp(10, z.p0, z.pc, w_.t_saug + 273.15, z.kappa) - 273.15);
  if (a.ParaL_Check) {
    setze(w_.t_d_flash,
          kreis_.Verd_Endtemp(10, z.p_m, z.pc, (z.t_m + 273.15) + 2, z.kappa) - 273.15);
  }
  kreis_.Leitungsverlust(a.ableitung.pipe, last_anteil);
  w_.dp_s = z.dp_s;
  w_.dp_d = z.dp_d;

  double P = 0;
  setze(P, kreis_.Verd_Leistung(z.p0 - z.dp_s / 1000, z.pc + z.dp_d / 1000, z.T0, z.Tc, w_.m_punkt,
                                w_.superheat, w_.t_saug, z.h_vc, z.h_v0, 0, 0));
  if (a.ParaL_Check) {
    setze(P, P + kreis_.Verd_Leistung(z.p_m - z.dp_s / 1000, z.pc + z.dp_d / 1000, z.t_m + 273.15,
                                      z.Tc, w_.m_eco, 2, z.t_m + 2, z.h_vc, z.h_v0, 0, 0));
  }
  if (a.Economiser() && a.transkritisch) setze(P, P * 0.95);
  setze(P, P * a.Anlagenfaktor);
  setze(P, P * a.Bauformfaktor);
  setze(P, P * a.Typfaktor);
  setze(P, P * a.Mittelfaktor);
  w_.P = P;
  setze(w_.COP, Q0_ / P);
}

}  // namespace polarkreis
