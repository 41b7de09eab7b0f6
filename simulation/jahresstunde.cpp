#include <algorithm>
#include <cmath>

#include "simulation/jahreslauf.h"

// One hour of the year, in the order of its steps.

namespace polarkreis {

namespace {

/// A sum grows by a value that could be worked out.
void addiere(double& summe, double wert) {
  setze(summe, summe + wert);
}

}  // namespace

void JahresLauf::schritt(Laufergebnis& e) {
  Anlage& a = e.anlage;
  Jahressummen& s = e.summen;
  s_.last = s_.Last_Nacht + (Stundenlast_Anteil(s_.h) / 100) * (s_.Last_Tag - s_.Last_Nacht);
  setze(s_.dt_c, dT_Last(a, s_.last, a.dtVerfl, 0, a.t0));
  setze(s_.t_luft, Stundentemperatur(s_.T_Tag, s_.T_Nacht, s_.h));
  setze(s_.phi, Stundenfeuchte(s_.R, s_.t_luft, s_.T_Tag, s_.T_Nacht));
  kondensation(a);
  a.Tc = s_.tc;
  if (a.CO2) a.P_gasK = Kaeltemittel::CO2_pOpt(s_.tc);

  const Punktwerte& p = punkt_.Punkt_Rechnen(a, 3, s_.last / 100, s_.last);
  if (!(p.P > 0)) {
    m_.ablage.meldungen().zaehle("COP");
    ++e.Stunden_ohne_COP;
  }
  s_.COP = p.COP;
  s_.t_d = p.t_d;
  setze(s_.Q_K, a.Q0 * (1 + 1 / s_.COP));

  warmwasser(s);
  heizen(a, s);
  verdichter(a, s);
  wasser(a, s);
  abtauung(a, s);
  ventilatoren(a, s);
  mittelwerte(s);
}

/// The condensing temperature: the reference temperature and the difference at this load, not below
/// the limit.
void JahresLauf::kondensation(const Anlage& a) {
  double bezug = s_.t_luft;
  switch (a.Verfluessiger) {
    case Verfluessigerart::Luft:
      break;
    case Verfluessigerart::Wasser:
      bezug = a.t_K_wasser;
      break;
    case Verfluessigerart::Kuehlturm:
    case Verfluessigerart::Adiabat:
      s_.wasser_an = s_.t_luft > 20 ? s_.wasser_an : 0;
      if (s_.t_luft > 20) bezug = s_.t_luft = feuchtkugel(a);
      break;
  }
  s_.tc = a.tc_min;
  if (bezug + s_.dt_c > a.tc_min) s_.tc = bezug + s_.dt_c;
}

/// Wet-bulb temperature by bisection on the enthalpy of the air, and the water that the air can
/// take up. Gives the reference temperature of the condenser.
double JahresLauf::feuchtkugel(const Anlage& a) {
  constexpr double druck = 1.013;
  const FeuchteLuft satt = m_.luft.Feuchte_Luft(1, s_.t_luft, druck).value_or(FeuchteLuft());
  const FeuchteLuft luft =
      m_.luft.Feuchte_Luft(s_.phi / 100, s_.t_luft, druck).value_or(FeuchteLuft());
  double t_f = s_.t_luft / 1.4;
  double step = s_.t_luft - t_f;
  FeuchteLuft feucht;
  for (int runde = 0; runde < 10; ++runde) {
    feucht = m_.luft.Feuchte_Luft(1, t_f, druck).value_or(feucht);
    if (std::abs(luft.h - feucht.h) < 0.1) break;
    step /= 2;
    if (feucht.h < luft.h) {
      t_f += step;
    } else if (feucht.h > luft.h) {
      t_f -= step;
    }
  }
  setze(s_.wasser_an, 0.9 * (satt.h - luft.h) * (feucht.x - luft.x) / (satt.x - luft.x));
  if (a.Verfluessiger == Verfluessigerart::Adiabat) return Int((t_f + s_.t_luft) * 4.5) / 10;
  return Int(t_f * 10) / 10;
}

/// Hot water from the desuperheater.
void JahresLauf::warmwasser(Jahressummen& s) {
  setze(s_.anteil, ((s_.t_d - heiz_.dT_WW) - s_.tc) / (s_.t_d - s_.tc));
  setze(s_.P_WW_verf, geschnitten(s_.Q_K * s_.last / 100 * s_.anteil));
  setze(s_.deckung, Int(s_.P_WW_verf / P_WW_ * 1000) / 10);
  s_.deckung = std::min(s_.deckung, 100.0);
  addiere(s.Q_Wasser, s_.P_WW_verf * s_.tage);
}

/// Heating with the condenser's heat, behind the hot water where both are served. The heating sums
/// carry no days.
void JahresLauf::heizen(const Anlage& a, Jahressummen& s) {
  setze(s_.last_heiz, std::max((15 - s_.t_luft) / 30, 0.0) * a.Q_heat);
  if (a.WaterCheck && P_WW_ != 0 && !(s_.P_WW_verf / P_WW_ >= 1)) return;
  const double t_H = a.T_heat + heiz_.dT_Heiz;
  if (t_H > s_.tc) {
    setze(s_.P_H, s_.Q_K * s_.last / 100 * (s_.t_d - t_H) / (s_.t_d - s_.tc));
  } else {
    setze(s_.P_H, ((1 + s_.COP) / s_.COP) * a.Q0 * s_.last / 100);
  }
  if (!a.HeizCheck) return;
  if (!a.WaterCheck) {
    s.Q_Wasser = 0;
    s_.deckung = 0;
    setze(s_.P_H, geschnitten(s_.P_H));
  } else {
    setze(s_.P_H, Int(100 * (s_.P_H - P_WW_)) / 100);
    addiere(s.Q_Wasser, P_WW_ * s_.tage);
    addiere(s_.WW_Tag, P_WW_);
    if (s_.h == 24) {
      setze(s_.WW_Anteil, Int(1000 * s_.WW_Tag / (P_WW_ * 24)) / 10);
      s_.WW_Tag = 0;
    }
  }
  setze(s_.k, s_.P_H / s_.last_heiz);
  s_.k = std::max(s_.k, 0.0);
  addiere(s.Q_Heiz, s_.k >= 1 ? s_.last_heiz : s_.k * s_.last_heiz);
  addiere(s.Q_Heiz_Bedarf, s_.last_heiz);
}

/// Compressor energy, and what free cooling saves of it.
void JahresLauf::verdichter(Anlage& a, Jahressummen& s) {
  setze(s_.P_el, (1 / s_.COP) * a.Q0 * s_.last / 100);
  setze(s_.e_verd, s_.P_el * s_.tage);
  if (a.FreeC_Check && s_.t_luft + a.dt_freeC < punkt_.werte().t0_eff + a.dt_Verd) {
    if (a.PumpCap == 0) a.PumpCap = 0.03 * a.Q0;
    setze(s_.P_el, (a.Pel_freeCool + a.PumpCap) * s_.last / 100);
    const double frei = s_.P_el * s_.tage;
    addiere(s.E_FreeCool_Spar, s_.e_verd - frei);
    setze(s_.e_verd, frei);
  }
  addiere(s.E_Verd, s_.e_verd);
}

void JahresLauf::wasser(const Anlage& a, Jahressummen& s) {
  if (!(s_.wasser_an > 0)) return;
  const double verdampfung = (2500.5 - (s_.t_luft + a.dt_freeC) * 47.2 / 20) * s_.faktor;
  addiere(s.Wasser_Adiabat, 3600 * (s_.COP + 1) * s_.P_el / verdampfung * s_.tage);
}

void JahresLauf::abtauung(const Anlage& a, Jahressummen& s) {
  if (a.Abtauart != 0) return;
  setze(s_.P_ab, 2.2 * a.Q0 * s_.last / 100 * (t_abtau_ / 60) / 24);
  addiere(s.E_Abtau, s_.P_ab * s_.tage);
}

/// Fans and pumps. The condenser fans would stop at 12 °C condensing temperature.
void JahresLauf::ventilatoren(const Anlage& a, Jahressummen& s) {
  constexpr double tc0 = 12;
  const double last_l = a.RGartL == Regelart::ohne ? 100 : s_.last;
  const double last_p = a.RGartP == Regelart::ohne ? 100 : s_.last;
  const double spanne = a.tc_min - tc0;
  const double t_aus = s_.t_luft + s_.dt_c;
  if (t_aus > tc0 && s_.t_luft < tc0) {
    setze(s_.f, (t_aus - tc0) / spanne);
  } else if (s_.t_luft >= tc0) {
    s_.f = 1;
    if (t_aus < a.tc_min) setze(s_.f, 1 - (a.tc_min - t_aus) / (a.tc_min - tc0));
  } else {
    s_.f = 0;
  }
  setze(s_.P_L, s_.f * a.Lueftcap * last_l / 100);
  addiere(s.E_VFl_Luefter, s_.P_L * s_.tage);
  setze(s_.P_VDa, a.LueftcapVerDa * s_.last / 100);
  addiere(s.E_VDa_Luefter, s_.P_VDa * s_.tage);
  setze(s_.P_Pumpe, a.PumpCap * last_p / 100);
  addiere(s.E_Pumpe, s_.P_Pumpe * s_.tage);
  if (s_.P_L < 0) addiere(s_.E_negativ, s_.P_L * s_.tage);
  if (s_.last == 0) addiere(s_.E_ohne_Last, (std::max(s_.P_L, 0.0) + s_.P_Pumpe) * s_.tage);
}

void JahresLauf::mittelwerte(Jahressummen& s) {
  if (!(s_.last > 0)) return;
  addiere(s.Vollast_Tage, s_.last / 100 * s_.tage);
  addiere(s.COP_Sum, s_.COP * s_.last / 100 * s_.tage);
  const double cop = gerundet(s_.COP);
  if (cop < s.COP_min) s.COP_min = cop;
  if (cop > s.COP_max) s.COP_max = cop;
}

Stundenwerte JahresLauf::stundenwerte() const {
  Stundenwerte w;
  w.Stunde = s_.h;
  w.t_luft = s_.t_luft;
  w.tc = s_.tc;
  w.COP = s_.COP;
  w.P_el = s_.P_el;
  w.E_gesamt = s_.e_verd + (s_.P_VDa + s_.P_L + s_.P_ab + s_.P_Pumpe) * s_.tage;
  w.last = s_.last;
  w.P_Luefter = s_.P_L;
  w.P_VDa_Luefter = s_.P_VDa;
  w.P_Abtau = s_.P_ab;
  w.Q0 = punkt_.werte().Q0 * s_.last / 100;
  w.last_heiz = s_.last_heiz;
  w.P_H = s_.P_H;
  w.P_WW_verf = s_.P_WW_verf;
  w.k_Heiz = s_.k;
  w.deckung = s_.deckung;
  return w;
}

}  // namespace polarkreis
