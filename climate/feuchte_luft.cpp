#include "climate/feuchte_luft.h"

#include <cmath>

#include "shell/items.h"

namespace polarkreis {

namespace {

constexpr double R_Dampf = 461.5;       // J/(kg K)
constexpr double R_Luft = 287.04;       // J/(kg K)
constexpr double Verdampfung = 2501.6;  // kJ/kg at 0 °C
constexpr double T_Null = 273.15;       // K
constexpr double Pa_je_bar = 1e5;
constexpr double kJ_je_J = 1e-3;
constexpr int Marke_Ueberdruck = 33;

/// Powers with whole exponents, as the published ones are, take a fraction of the library's time.
double Potenz(double basis, double exponent) {
  const double ganz = std::floor(exponent);
  if (ganz != exponent || ganz < 0 || ganz > 1000) return std::pow(basis, exponent);
  double ergebnis = 1;
  for (int n = static_cast<int>(ganz); n > 0; n /= 2) {
    if (n % 2 == 1) ergebnis *= basis;
    basis *= basis;
  }
  return ergebnis;
}

double Dichte_gesaettigt(const Luftkoeffizienten& k, double T) {
  double summe = 0;
  if (T >= T_Null) {
    const double sechstel = std::pow(1 - T / k.T_rho, 1.0 / 6);
    for (std::size_t i = 0; i < k.n.size(); ++i) summe += k.c[i] * Potenz(sechstel, k.n[i]);
    return k.rho_c * std::exp(summe);
  }
  const double theta = T / k.T_t;
  for (std::size_t i = 0; i < k.a.size(); ++i) summe += k.a[i] * std::pow(theta, k.b[i]);
  return k.p_t * std::exp(summe / theta) / (R_Dampf * T);
}

/// The pressure in Pa at which the cubic equation of state of water vapour gives the density: the
/// relative difference of the densities is 0 there. A search on it, begun at 0.9 and 1.1 times the
/// ideal gas's pressure, would end at this very value: the equation gives the pressure of a
/// specific volume at once.
double Dampfdruck(double rho_d, double T, double T_krit) {
  if (rho_d == 0) return 0;
  constexpr double a = 1724.55;
  constexpr double b = 0.00117007;
  const double wurzel = 1 + 1.06019 * (1 - std::sqrt(T / T_krit));
  const double alpha = wurzel * wurzel;
  const double v = 1 / rho_d;
  return R_Dampf * T / (v - b) - alpha * a / (v * (v + b));
}

/// Integral of cp from 0 °C to T in kJ/kg, `cp` being cp/R as a polynomial in T.
double Enthalpie(const std::array<double, 5>& cp, double R, double T) {
  double oben = 0;
  double unten = 0;
  for (std::size_t i = cp.size(); i-- > 0;) {
    const double glied = cp[i] / static_cast<double>(i + 1);
    oben = (oben + glied) * T;
    unten = (unten + glied) * T_Null;
  }
  return R * (oben - unten) * kJ_je_J;
}

std::optional<FeuchteLuft> Zustand(const Luftkoeffizienten& k, double phi, double T, double p) {
  const double rho_d = phi * Dichte_gesaettigt(k, T);
  FeuchteLuft luft;
  luft.p_d = Dampfdruck(rho_d, T, k.T_krit) / Pa_je_bar;
  luft.p_l = p - luft.p_d;
  const double rho_l = luft.p_l * Pa_je_bar / (R_Luft * T);
  const double x = rho_d / rho_l;
  luft.h = Enthalpie(k.cp_luft, R_Luft, T) + x * (Enthalpie(k.cp_dampf, R_Dampf, T) + Verdampfung);
  luft.x = x * 1000;
  luft.rho = rho_l + rho_d;
  if (!std::isfinite(luft.h) || !std::isfinite(luft.x)) return std::nullopt;
  return luft;
}

}  // namespace

const Luftkoeffizienten& Luftkoeffizienten_eingebaut() {
  static constexpr Luftkoeffizienten k{
      .rho_c = 322,
      .T_rho = 647.096,
      .n = {2, 4, 8, 18, 37, 71},
      .c = {-2.03150240, -2.68302940, -5.38626492, -17.2991605, -44.7586581, -63.9201063},
      .T_t = 273.16,
      .p_t = 611.657,
      .a = {-21.2144006, 27.3203819, -6.10598130},
      .b = {0.00333333333, 1.20666667, 1.70333333},
      .T_krit = 647.3,
      .cp_luft = {3.653, -1.337e-3, 3.294e-6, -1.913e-9, 0.2763e-12},
      .cp_dampf = {4.070, -1.108e-3, 4.152e-6, -2.964e-9, 0.807e-12}};
  return k;
}

std::optional<Luftkoeffizienten> Luftkoeffizienten_lesen(std::string_view inhalt) {
  ItemLeser leser(inhalt);
  bool ganz = true;
  const auto zahl = [&](double& ziel) {
    const std::string item = leser.lies();
    ziel = Wert(item);
    if (item.find_first_of("0123456789") == std::string::npos || !std::isfinite(ziel)) ganz = false;
  };
  const auto zahlen = [&](auto& ziele) {
    for (double& ziel : ziele) zahl(ziel);
  };
  Luftkoeffizienten k{};
  zahl(k.rho_c);
  zahl(k.T_rho);
  zahlen(k.n);
  zahlen(k.c);
  zahl(k.T_t);
  zahl(k.p_t);
  zahlen(k.a);
  zahlen(k.b);
  zahl(k.T_krit);
  zahlen(k.cp_luft);
  zahlen(k.cp_dampf);
  if (!ganz) return std::nullopt;
  return k;
}

const Luftkoeffizienten& Luftzustand::koeffizienten() {
  const std::string datei = "hxdata.dat";
  const auto& gelesen = kopie_.hol(ablage_, datei, [&](std::optional<std::string>&& inhalt) {
    auto k = Luftkoeffizienten_lesen(inhalt.value_or(std::string()));
    if (inhalt && !inhalt->empty() && !k && !gemeldet_) {
      ablage_.meldungen().melde("Feuchte_Luft", datei,
                                "not 33 numbers: the built-in coefficients are taken");
      gemeldet_ = true;
    }
    return k;
  });
  return gelesen ? *gelesen : Luftkoeffizienten_eingebaut();
}

double Luftzustand::Saettigungsdichte(double T) {
  return Dichte_gesaettigt(koeffizienten(), T);
}

std::optional<FeuchteLuft> Luftzustand::Feuchte_Luft(double phi, double t, double p) {
  if (p == 0) p = 1.01;
  if (phi < 0) phi = 0.01;
  if (phi > 1) phi = 1;
  if (Marke == Marke_Ueberdruck) p = 1.25;
  const bool im_Bereich = p >= 0 && p <= 8.5 && t >= -50 && t <= 800;
  if (!im_Bereich) return std::nullopt;
  return Zustand(koeffizienten(), phi, t + T_Null, p);
}

}  // namespace polarkreis
