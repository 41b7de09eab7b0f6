#include <algorithm>
#include <cmath>

#include "cycle/kreis.h"
#include "cycle/verdichter.h"

namespace polarkreis {

double Bauart_Faktor(int Bauart) {
  switch (Bauart) {
    case 2:
      return 1 / 0.91;
    case 3:
      return 1 / 0.905;
    case 4:
      return 1 / 0.925;
    default:
      return 1 / 0.9;
  }
}

double Kreis::Motor_Faktor(double size) const {
  const auto faktor = [size](double bester, double teiler) {
    const double verlust = 1 / (teiler * size);
    // Without this the failing division of a size of 0 would come out as a factor of 0.
    return std::isfinite(verlust) ? 1 / (bester - verlust) : leer;
  };
  double g;
  switch (km.z.Antrieb) {
    case 0:
    case 2:
      g = faktor(0.905, 48);
      break;
    case 1:
      g = faktor(0.935, 45);
      break;
    case 3:
      g = faktor(0.885, 45);
      break;
    default:
      g = faktor(0.905, 17);
  }
  return g > 1.52 ? 1.52 : g;
}

Verdichtung Kreis::Verdichtung_von(double p_s, double p_d, double T_s, double kappa) const {
  const KMZustand& z = km.z;
  Verdichtung v;
  double n1 = 0, n2 = 0, r = 0;
  setze(n1, (kappa - 1) / kappa);
  setze(n2, (z.kappa2 - 1) / z.kappa2);
  setze(r, p_d / p_s);
  setze(v.a, std::pow(r / 4.85, 0.05));
  setze(v.b, std::pow((p_d - p_s) / (z.Zweistufig != 0 ? 16.3 : 13.7), 0.27));
  setze(v.c, (z.Tc - 318) * 0.373);
  v.c = std::max(v.c, 0.0);
  setze(v.T_1, T_s * std::pow(r, n1));
  setze(v.T_2, T_s * std::pow(r, n2));
  return v;
}

double Kreis::Verd_Endtemp(const Verdichtung& v, double size) {
  KMZustand& z = km.z;
  double T_1 = v.T_1, g = 0, d = 0, k = 0;
  const double e = Bauart_Faktor(z.Bauart);
  setze(g, Motor_Faktor(size));
  if (z.Antrieb == 1) setze(g, g * 0.98);
  if (z.Antrieb == 3) setze(g, g * 1.02);
  setze(d, (T_1 - z.Tc) * e * g);
  setze(T_1, z.Tc + d);
  setze(k, d * (1 - v.a * v.b) - v.c);
  setze(z.T_is, v.T_2 - k);
  return T_1 - k;
}

double Kreis::Verd_Endtemp(double size, double p_s, double p_d, double T_s, double kappa) {
  return Verd_Endtemp(Verdichtung_von(p_s, p_d, T_s, kappa), size);
}

double Kreis::Verd_Wirkungsgrad(double p_d, double dp_d, double p_s, double dp_s, double size) {
  const KMZustand& z = km.z;
  double r = 0, eta = 0;
  setze(r, (p_d + dp_d / 1000) / (p_s - dp_s / 1000));
  const double abstand = (4.85 - r) / 4.85;
  if (z.Bauart == 0 || z.Bauart == 1) {
    const double n = r > 4.85 ? 10 : 6.5;
    setze(eta, (1 + abstand / n) * 0.796 * (1 - 1 / (1.2 * std::pow(size, 0.92) + 10)));
  } else if (z.Bauart == 2 || z.Bauart == 3) {
    const bool hoch = z.Bauart == 2 || km.hat_Tabelle("R22.DAT") || km.hat_Tabelle("R407C.DAT");
    const double spitze = hoch ? 0.855 : 0.835;
    const double n = r > 4.85 ? 85 : 30;
    const double basis = r > 4.85 ? spitze : spitze + (4.85 - r) / 50;
    setze(eta, (1 + abstand / n) * basis * (1 - 1 / (7 * size + 10)));
  }
  setze(eta, eta * (z.Antrieb == 1 ? 1.03 : z.Antrieb == 3 ? 0.982 : 1.02));
  if (km.ist_CO2()) setze(eta, eta * 0.88);
  if (km.hat_Tabelle("R23.DAT")) setze(eta, eta * 0.83);
  if (size <= 6) setze(eta, eta * (1 - 1.8 * (6 - size) / 100));
  return eta;
}

}  // namespace polarkreis
