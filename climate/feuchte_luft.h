#pragma once

#include <array>
#include <optional>
#include <string_view>

#include "shell/ablage.h"
#include "shell/wert.h"

namespace polarkreis {

/// State of moist air.
struct FeuchteLuft {
  double h = leer;    ///< enthalpy, kJ per kg of dry air
  double x = leer;    ///< water content, g per kg of dry air
  double rho = leer;  ///< density of the moist air, kg/m³
  double p_d = leer;  ///< partial pressure of the vapour, bar
  double p_l = leer;  ///< partial pressure of the dry air, bar
};

/// Coefficients of "hxdata.dat" (see docs/data-air-water.md), in the order of the file: 33 numbers,
/// one a line.
struct Luftkoeffizienten {
  double rho_c, T_rho;         ///< critical density and temperature of the density correlation
  std::array<double, 6> n, c;  ///< its exponents (sixths) and coefficients
  double T_t, p_t;             ///< triple point of the sublimation pressure, K and Pa
  std::array<double, 3> a, b;  ///< its coefficients and exponents
  double T_krit;               ///< critical temperature of the cubic equation, K
  std::array<double, 5> cp_luft, cp_dampf;  ///< cp/R of dry air and vapour as polynomials in T [K]
};
/// The built-in coefficients, for a folder without the file.
const Luftkoeffizienten& Luftkoeffizienten_eingebaut();

/// The coefficients in the content of "hxdata.dat"; nothing if it holds fewer than 33 numbers.
std::optional<Luftkoeffizienten> Luftkoeffizienten_lesen(std::string_view inhalt);

/// The moist-air state function with its coefficients from the data folder; where the file is
/// absent or incomplete, with the built-in ones.
///
/// Saturated vapour density: IAPWS SR1-86(1992) from 0 °C up, below it the sublimation pressure of
/// IAPWS R14-08(2011) with the ideal gas rule. Pressure of the vapour: a cubic equation of state.
/// Specific heats: ideal-gas polynomials.
class Luftzustand {
 public:
  explicit Luftzustand(Ablage& ablage) : ablage_(ablage) {}

  /// A shared mode mark; 33 sets the pressure of every state to 1.25 bar.
  int Marke = 0;

  /// Moist air at relative humidity `phi` (1 is saturated), `t` in °C and `p` in bar. `p` of 0
  /// becomes 1.01, `phi` below 0 becomes 0.01 and above 1 it becomes 1. Nothing outside 0 to 8.5
  /// bar and -50 to 800 °C, nor above the critical point, where there is no saturation. Where the
  /// vapour's pressure is above `p`, the formulas give a negative `p_l` and `x`.
  std::optional<FeuchteLuft> Feuchte_Luft(double phi, double t, double p);
  /// Density of saturated vapour in kg/m³ at T in K; empty above the critical temperature.
  double Saettigungsdichte(double T);

 private:
  const Luftkoeffizienten& koeffizienten();
  Ablage& ablage_;
  Dateikopie<std::optional<Luftkoeffizienten>> kopie_;
  bool gemeldet_ = false;  // a broken file is told once, not at each reading
};

}  // namespace polarkreis
