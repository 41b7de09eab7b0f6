#pragma once

#include <string_view>

namespace polarkreis {

/// The unit switch of the shared settings: calculations and files use °C, bar and K; fields and
/// messages show the units chosen here, and only they are converted.
struct Einheiten {
  bool angelsaechsisch = false;  ///< °F and psi in place of °C and bar

  /// From item 24 of the settings: 2 is °F and psi, anything else °C and bar.
  static Einheiten von(std::string_view schalter);

  double Temperatur(double grad_C) const { return angelsaechsisch ? grad_C * 1.8 + 32 : grad_C; }
  double Temperatur_gelesen(double anzeige) const {
    return angelsaechsisch ? (anzeige - 32) / 1.8 : anzeige;
  }
  double Temperaturdifferenz(double K) const { return angelsaechsisch ? K * 1.8 : K; }
  double Druck(double bar) const { return angelsaechsisch ? bar * psi_je_bar : bar; }
  double Druck_gelesen(double anzeige) const {
    return angelsaechsisch ? anzeige / psi_je_bar : anzeige;
  }
  std::string_view Temperatureinheit() const { return angelsaechsisch ? "°F" : "°C"; }
  std::string_view Druckeinheit() const { return angelsaechsisch ? "psi" : "bar"; }

 private:
  static constexpr double psi_je_bar = 14.503773773;  // 1e5 Pa over 1 lbf/in²
};

}  // namespace polarkreis
