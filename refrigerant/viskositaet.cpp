#include <cmath>

#include "refrigerant/korrelation.h"

namespace polarkreis {
namespace {

enum class Stelle { v0, vs, vd };

double celsius(double T) {
  return T - 273.15;
}

// The literal base of all exponential forms. An exponent that is not finite is a failed statement,
// which a power of minus infinity would hide as 0.
double e_hoch(double x) {
  return std::isfinite(x) ? std::pow(2.71828, x) : leer;
}

// Sutherland's form; at 0 K its division fails.
double sutherland(double A, double C, double T) {
  if (T == 0) return leer;
  return (A / (1 + 0.87 * C / T)) * std::pow(T / 298.15, 0.5);
}

double dampf_R22(double T) {
  return Poly3(-0.031501, 0.000420115, -1.5084e-6, 2.02506e-9, T);
}

// The discharge keeps the polynomial; the other two states go by T0 alone.
double dampf_R290(Stelle stelle, double T, double T0) {
  if (stelle == Stelle::vd || T0 < 280)
    return Poly3(-0.8086, 0.00794972, -2.58451e-5, 2.80976e-8, T);
  return (0.05 * T - 6.1) * 1e-6;
}

double dampf_R134A(Stelle stelle, double T) {
  if (stelle == Stelle::v0) return 1.08 * dampf_R22(T);
  return Poly3(-0.0498811323, 0.0006239809, -2.21507e-6, 2.82253899e-9, T);
}

double dampf_R600A(Stelle stelle, double T) {
  return sutherland(stelle == Stelle::vd ? 1.4407630696e-5 : 1.65604950528e-5, 408, T);
}

double dampf(Dampf form, Stelle stelle, double T, double T0, double q) {
  switch (form) {
    case Dampf::R11:
      return q * Poly3(-0.30672, 0.00266248, -7.43805e-6, 6.97587e-9, T);
    case Dampf::R12:
      return q * Poly3(-0.16244, 0.0017545, -5.99112e-6, 6.96937e-9, T);
    case Dampf::R22:
      return q * dampf_R22(T);
    case Dampf::R23:
      return q * Poly3(-0.35311, 0.00466531, -2.00808e-5, 2.91045e-8, T);
    case Dampf::R502:
      return q * Poly3(-0.085173, 0.00102897, -3.80282e-6, 4.89888e-9, T);
    case Dampf::R290:
      return q * dampf_R290(stelle, T, T0);
    case Dampf::R1270:
      return q * Poly3(-0.111555, 0.00132227, -4.96435e-6, 6.32522e-9, T);
    case Dampf::R600A:
      return q * dampf_R600A(stelle, T);
    case Dampf::R134A:
      return q * dampf_R134A(stelle, T);
    case Dampf::R717:
      return q * Poly3(-0.00534835, 0.00011418, -3.35825e-7, 4.72675e-10, T);
    case Dampf::R123:
      return q * ((10.131 + 0.03224 * celsius(T)) * 1e-6);
    case Dampf::R401A:
      return q * (1.11 + 0.0367 * T) * 1e-6;
    case Dampf::R401B:
      return q * ((1.12 + 0.037 * T) * 1e-6);
    case Dampf::R402A:
      return q * ((11.93 + 0.03876 * celsius(T)) * 1e-6);
    case Dampf::R402B:
      return q * ((11.86 + 0.03823 * celsius(T)) * 1e-6);
    case Dampf::R404A:
      return q * sutherland(2.48922253899e-5, 345.25, T);
    case Dampf::R407C:
      return q * ((-0.0013724 + 5.359e-5 * T - 1.53122e-8 * (T * T)) * 1e-3);
    case Dampf::R407A:
      return q * ((-0.001349 + 5.379e-5 * T - 1.51515e-8 * (T * T)) * 1e-3);
  }
  return leer;
}

// The branch is chosen by `T_zweig`, which some refrigerants take from the other side.
double liquid_R502(double T_zweig, double T) {
  if (T_zweig < 280) return ExpVisk(-3.88835, 666.021, 0, T);
  return ExpVisk(-13.586, 6104.13, -763533, T);
}

// Beside R123's own figures, which are not in Pa s, and that is how they are used.
double liquid_R123(double T) {
  const double t = celsius(T);
  return -0.0007763 * (t * t * t) + 0.12886 * (t * t) - 9.0295 * t + 589.72;
}

double liquid_R402A(double t) {
  return (188.5 - 2.447 * t + 0.01956 * (t * t) - 0.0001317 * (t * t * t)) * 1e-6;
}

// Two zero points: the cube has the exact one.
double liquid_R402B(double T) {
  const double t = T - 273.1, t3 = celsius(T);
  return (196.1 - 2.437 * t + 0.01928 * (t * t) - 0.0001326 * (t3 * t3 * t3)) * 1e-6;
}

// The forms that take no heed of the side.
double liquid(Liquid form, double T, double q) {
  switch (form) {
    case Liquid::R11:
      return q * ExpVisk(-3.6859, 840.172, 0, T);
    case Liquid::R12:
      return q * ExpVisk(-3.81728, 681.713, 0, T);
    case Liquid::R22:
      return q * ExpVisk(-3.39554, 532.855, 0, T);
    case Liquid::R23:
      return q * ExpVisk(-4.22738, 594.41, 0, T);
    case Liquid::R507:
      return q * liquid_R502(T, T);
    case Liquid::R290:
      return q * ExpVisk(-4.83768, 915.183, -37930.9, T);
    case Liquid::R1270:
      return q * ExpVisk(-5.0613, 878.277, -31181, T);
    case Liquid::R134A:
      return q * (e_hoch(3.555 + 714.25 / T - 0.0019969 * T) * 1e-6);
    case Liquid::R717:
      return q * ExpVisk(-7.9732, 2614.41, -243288, T);
    case Liquid::R123:
      return q * liquid_R123(T);
    case Liquid::R401A:
      return q * (4334 - 35.73 * T + 0.105 * (T * T) - 0.000107 * (T * T * T)) * 1e-6;
    case Liquid::R401B:
      return q * ((4211 - 34.77 * T + 0.103 * (T * T) - 0.000104 * (T * T * T)) * 1e-6);
    case Liquid::R402B:
      return q * liquid_R402B(T);
    case Liquid::R407C:
      return q * (e_hoch(15.66442 - 1283.053 / T - 0.061504 * T + 5.81907e-5 * (T * T)) * 1e-3);
    case Liquid::R407A:
      return q * (e_hoch(3.148664 - 181.9098 / T - 0.014712 * T) * 1e-3);
    default:
      return leer;
  }
}

// For R404A both sides take the value at T0; then the low side is overwritten with the plain R502
// value at T_a, its branch still chosen by T0.
void liquid_R404A(KMZustand& z, double T_a) {
  const double e0 = liquid_R502(z.T0, z.T0);
  const double wert = std::isfinite(e0) ? 0.0001013 * (0.0001823266 / e0) : leer;
  setze(z.eta_l0, wert);
  setze(z.eta_lc, wert);
  setze(z.eta_l0, liquid_R502(z.T0, T_a));
}

void liquid_beide(KMZustand& z, const Korrelation& k, double T_a) {
  switch (k.liquid) {
    case Liquid::R502:
      setze(z.eta_l0, liquid_R502(z.T0, z.T0));
      setze(z.eta_lc, liquid_R502(T_a, z.T0));  // the branch by T_a, the value at T0
      return;
    case Liquid::R404A:
      return liquid_R404A(z, T_a);
    case Liquid::R402A:
      setze(z.eta_l0, liquid_R402A(z.T0 - 273.1));
      setze(z.eta_lc, liquid_R402A(celsius(T_a)));
      return;
    default:
      setze(z.eta_l0, liquid(k.liquid, z.T0, k.q_l0));
      setze(z.eta_lc, liquid(k.liquid, T_a, k.q_lc));
  }
}

}  // namespace

double Poly3(double a, double b, double c, double d, double T) {
  return (a + b * T + c * (T * T) + d * (T * T * T)) * 1e-3;
}

double ExpVisk(double a, double b, double c, double T) {
  if (T == 0) T = 273.15;
  return e_hoch(a + b / T + c / (T * T)) * 1e-3;
}

void viskositaeten(KMZustand& z, const Korrelation& k, double T_a, double T_x, double t_s) {
  setze(z.eta_v0, dampf(k.dampf, Stelle::v0, z.T0, z.T0, k.q_v0));
  setze(z.eta_vs, dampf(k.dampf, Stelle::vs, t_s + 273.15, z.T0, k.q_vs));
  setze(z.eta_vd, dampf(k.dampf, Stelle::vd, T_x, z.T0, k.q_vd));
  liquid_beide(z, k, T_a);
}

}  // namespace polarkreis
