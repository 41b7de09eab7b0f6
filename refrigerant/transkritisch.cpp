#include "refrigerant/kaeltemittel.h"

namespace polarkreis {
namespace {

void gaskuehler_austritt(KMZustand& z, const CO2Zeile& zeile, double p) {
  setze(z.rho_lc, 1 / zeile.v);
  setze(z.rho_vc, 1 / zeile.v);
  setze(z.h_lc, zeile.h);
  setze(z.h_vc, zeile.h);
  setze(z.pc, p);
  setze(z.cp_l, zeile.cp);
  setze(z.eta_lc, zeile.eta);
}

void verdichter_austritt(KMZustand& z, const CO2Zeile& zeile) {
  setze(z.h_d_co2, zeile.h);
  setze(z.rho_d, 1 / zeile.v);
  setze(z.eta_vd, zeile.eta);
}

void steigung(KMZustand& z, const CO2Daten::Abstieg& punkt) {
  double b = 0;
  setze(b, 1 + (z.h_lc - punkt.h) / (punkt.h_prev - punkt.h));
  setze(z.dpdT_ratio, b / z.dpdT0);
}

}  // namespace

void Kaeltemittel::CO2_Tabelle(double T, double p, int row) {
  const CO2Daten& daten = co2_daten();
  const double t = T - 273.15;
  if (row == 3) {
    if (const auto punkt = daten.abstieg(t, z.h_lc)) steigung(z, *punkt);
    return;
  }
  const CO2Zeile* zeile = daten.erste(t, p);
  if (!zeile) return;
  if (row == 1) gaskuehler_austritt(z, *zeile, p);
  if (row == 2) verdichter_austritt(z, *zeile);
}

double Kaeltemittel::CO2_pOpt(double t) {
  double x = 0;
  if (t >= 10 && t < 26) x = 47 + 20 * (t - 10) / 16;
  if (t >= 26 && t < 36) x = 67 + 25 * (t - 26) / 10;
  if (t >= 36 && t <= 50) x = 92 + 36 * (t - 36) / 14;
  return Int((x + 0.05) * 10) / 10;
}

}  // namespace polarkreis
