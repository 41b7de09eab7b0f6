#include <cmath>

#include "cycle/kreis.h"
#include "cycle/verdichter.h"

namespace polarkreis {
namespace {

constexpr double nullpunkt = 273.15;

/// The arguments of `Verd_Leistung`.
struct Eingang {
  double p_s, p_d, T0, Tc, m, t_s, h_vc, h_v0, t_d;
  int mode;
};

/// Power and isentropic power of one pass, kW; empty when a statement failed.
struct Leistungen {
  double P = leer, P_is = leer;
  bool fehlt() const { return !std::isfinite(P) || !std::isfinite(P_is); }
};

Leistungen aus_CO2_Tabelle(Kaeltemittel& km, const Eingang& e, double h_1, double t_d) {
  const KMZustand& z = km.z;
  km.CO2_Tabelle(t_d + nullpunkt, z.P_hoch, 2);
  const double anteil = (z.T_is - e.Tc) / ((t_d + nullpunkt) - e.Tc);
  return {(z.h_d_co2 - h_1) * e.m, anteil * (z.h_d_co2 - h_1) * e.m};
}

Leistungen durchgang(Kreis& kreis, const Eingang& e, const Verdichtung& v, double size) {
  Kaeltemittel& km = kreis.km;
  const KMZustand& z = km.z;
  double t_d = e.t_d;
  if (e.mode == 0) t_d = kreis.Verd_Endtemp(v, size) - nullpunkt;
  const double h_1 = e.h_v0 + (e.t_s - (e.T0 - nullpunkt)) * z.cp_v0;
  if (!std::isfinite(t_d) || !std::isfinite(h_1)) return {};  // before the table is asked
  const bool zweistufig = z.Zweistufig == 1 || z.Zweistufig == 2;
  if (zweistufig && e.Tc >= 304.15 && km.ist_CO2()) return aus_CO2_Tabelle(km, e, h_1, t_d);
  const double h_2 = e.h_vc + z.cp_d * (t_d - (e.Tc - nullpunkt));
  const double h_2is = e.h_vc + z.cp_d * (z.T_is - e.Tc);
  return {(h_2 - h_1) * e.m, (h_2is - h_1) * e.m};
}

double Frequenz_Faktor(int option) {
  if (option == 1) return 1.03;
  return option == 2 ? 1.04 : 1;
}

}  // namespace

double Kreis::Verd_Leistung(double p_s, double p_d, double T0, double Tc, double m,
                            double /*dT_sh*/, double t_s, double h_vc, double h_v0, double t_d,
                            int mode) {
  const Schrittfolge ein_aufruf(km.ablage());
  KMZustand& z = km.z;
  const Eingang eingang{p_s, p_d, T0, Tc, m, t_s, h_vc, h_v0, t_d, mode};
  const bool diagnose = modul == "DiaG";
  const bool geschaetzt = !(diagnose && gespeicherte_Leistung != 0);
  double size = geschaetzt ? 5 : gespeicherte_Leistung;

  // The sizes of both passes meet the same state.
  const Verdichtung v =
      mode == 0 ? Verdichtung_von(p_s, p_d, t_s + nullpunkt, z.kappa) : Verdichtung();
  Leistungen l = durchgang(*this, eingang, v, size);
  if (l.fehlt()) return leer;
  if (geschaetzt) {
    size = l.P <= 0 ? 10 : l.P;
    l = durchgang(*this, eingang, v, size);
    if (l.fehlt()) return leer;
  }

  const double e = Bauart_Faktor(z.Bauart);
  if (diagnose && size > 0) gespeicherte_Leistung = size;
  if (size == 0) size = 10;
  const double g = Motor_Faktor(size);
  if (!std::isfinite(g)) return leer;
  const double frequenz = Frequenz_Faktor(Frequenz_Option);
  double P = l.P;
  if (mode == 0 && size < 2) P = P * (1 + 5.5 * (2 - size) / 100);
  const double eta = l.P_is / P;
  const double ergebnis = mode == 0 ? P : P * e * g * frequenz * 0.93;
  if (!std::isfinite(eta) || !std::isfinite(ergebnis)) return leer;
  z.eta_is = eta;
  z.P_verd = ergebnis;
  return ergebnis;
}

}  // namespace polarkreis
