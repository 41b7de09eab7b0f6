#include "refrigerant/korrelation.h"

namespace polarkreis {
namespace {

constexpr double nullpunkt = 273.15;

/// a + b T + c T² + d T³ in kJ/(kg K), T in K.
struct Polynom {
  double a, b, c, d;
  double operator()(double T) const { return a + b * T + c * (T * T) + d * (T * T * T); }
};

constexpr Polynom p_R11{-0.55657, 0.010236, -3.43685e-5, 4.33378e-8};
constexpr Polynom p_R23{-37.2336, 0.511656, -0.00231769, 3.53585e-6};
constexpr Polynom p_R508{0.1585254, 0.002544197, -2.028597e-6, 5.770334e-10};
constexpr Polynom p_R290{0.0830829, 0.00577693, -1.30581e-6, -6.91e-10};
constexpr Polynom p_R600A{-0.0847423, 0.00679624, -3.21809e-6, -4.03637e-10};
constexpr Polynom p_R717{1.9487, 0.000823487, 5.44138e-6, -3.62452e-9};
constexpr Polynom p_R507{0.2180099, 2.362732e-3, -3.041841e-7, -1.141106e-9};

/// What a form needs: the temperatures of its three states and the other arguments.
struct Zustaende {
  double T_v0, T_s, T_d;  // K: after the evaporator, compressor inlet, discharge
  double T_a;             // K, liquid side
  double t_s;             // °C, compressor inlet
};

template <class Form>
void drei(KMZustand& z, const Korrelation& k, const Zustaende& s, Form&& form) {
  setze(z.cp_v0, form(k.k_v0, s.T_v0));
  setze(z.cp_s, form(k.k_s, s.T_s));
  setze(z.cp_d, form(k.k_d, s.T_d));
}

void polynom(KMZustand& z, const Korrelation& k, const Zustaende& s, const Polynom& p) {
  drei(z, k, s, [&p](double k_i, double T) { return p(T) * k_i; });
}

// The square term of the inlet takes the sum of T0 in K and t_s in °C.
void waerme_R11(KMZustand& z, const Korrelation& k, const Zustaende& s) {
  setze(z.cp_v0, p_R11(s.T_v0) * k.k_v0);
  setze(z.cp_d, p_R11(s.T_d) * k.k_d);
  const double T = s.T_s, T_q = z.T0 + s.t_s;
  const Polynom& p = p_R11;
  setze(z.cp_s, (p.a + p.b * T + p.c * (T_q * T_q) + p.d * (T * T * T)) * k.k_s);
}

void waerme_R14(KMZustand& z, const Zustaende& s) {
  setze(z.cp_d, 0.79 - 0.004 * (s.T_d - 280));
  setze(z.cp_v0, 0.518 + 0.006 * (z.T0 - 153.15));
  setze(z.cp_s, 0.518 + 0.006 * (z.T0 - 153.15));
}

void waerme_R23(KMZustand& z, const Korrelation& k, const Zustaende& s) {
  polynom(z, k, s, p_R23);
  if (s.T_d > 280) setze(z.cp_d, 0.232 * (1.945 + (s.T_d - 280) * 0.025));
}

void waerme_R502(KMZustand& z, const Korrelation& k, const Zustaende& s) {
  const double k_saug = 0.863 + 0.029 * s.t_s / 30;
  setze(z.cp_v0, CpA(k_saug, s.T_v0));
  setze(z.cp_s, CpA(k_saug, s.T_s));
  setze(z.cp_d, CpA(k.k_d, s.T_d));
}

// As ammonia, but without the cubic term at the discharge.
void waerme_R744(KMZustand& z, const Korrelation& k, const Zustaende& s) {
  Polynom ohne_kubik = p_R717;
  ohne_kubik.d = 0;
  setze(z.cp_v0, p_R717(s.T_v0) * k.k_v0);
  setze(z.cp_s, p_R717(s.T_s) * k.k_s);
  setze(z.cp_d, ohne_kubik(s.T_d) * k.k_d);
}

void waerme_R124(KMZustand& z, const Zustaende& s) {
  setze(z.cp_v0, 0.7787 + 0.001465 * (s.T_v0 - nullpunkt));
  setze(z.cp_s, 0.7787 + 0.001465 * (s.T_v0 - nullpunkt));
  setze(z.cp_d, 1.35 + (s.T_a - 90 - nullpunkt) / 70 - 0.002265 * (s.T_d - nullpunkt));
  if (s.T_a < 180) setze(z.cp_l, 1.15 + (s.T_a - 40) / 120);
}

}  // namespace

double CpA(double k, double T) {
  const double R = 1.8 * T;
  return k * (0.0282 + 0.3937799 * 1e-3 * R - 1.28431 * 1e-7 * (R * R) + 2.27353 / R) * 4.1866;
}

double CpA_linear(double k, double T) {
  const double R = 1.8 * T;
  return k * (0.0282 + 0.3937799 * 1e-3 * R - 1.28431 * 1e-7 * R + 2.27353 / R) * 4.1866;
}

void waermekapazitaeten(KMZustand& z, const Korrelation& k, double T_a, double T_d, double t_s) {
  const Zustaende s{z.T0 + z.dT_sh, t_s + nullpunkt, T_d, T_a, t_s};
  switch (k.waerme) {
    case Waerme::CpA:
      return drei(z, k, s, CpA);
    case Waerme::CpA_linear:
      return drei(z, k, s, CpA_linear);
    case Waerme::R502:
      return waerme_R502(z, k, s);
    case Waerme::R11:
      return waerme_R11(z, k, s);
    case Waerme::R14:
      return waerme_R14(z, s);
    case Waerme::R23:
      return waerme_R23(z, k, s);
    case Waerme::R508:
      return polynom(z, k, s, p_R508);
    case Waerme::R290:
      return polynom(z, k, s, p_R290);
    case Waerme::R600A:
      return polynom(z, k, s, p_R600A);
    case Waerme::R717:
      return polynom(z, k, s, p_R717);
    case Waerme::R744:
      return waerme_R744(z, k, s);
    case Waerme::R123:
      return drei(z, k, s, [](double, double T) { return 0.671 + 0.001765 * (T - nullpunkt); });
    case Waerme::R507:
      return polynom(z, k, s, p_R507);
    case Waerme::R124:
      return waerme_R124(z, s);
  }
}

}  // namespace polarkreis
