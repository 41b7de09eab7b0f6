#pragma once

#include <cmath>
#include <limits>
#include <string>
#include <string_view>

namespace polarkreis {

/// An empty number. Every statement that needs an empty operand gives a value that is not finite,
/// and so fails.
inline constexpr double leer = std::numeric_limits<double>::quiet_NaN();

inline bool ist_leer(double value) {
  return std::isnan(value);
}

/// The one way to assign the result of a calculation: a value that is not finite is a statement
/// that failed, and its target stays as it was.
inline void setze(double& target, double value) {
  if (std::isfinite(value)) target = value;
}

/// The next whole number downward, also for negative numbers.
inline double Int(double value) {
  return std::floor(value);
}

/// Number from a text, whatever the decimal sign: a comma without a point counts as a point (the
/// first one only); otherwise the text is taken as it stands. The leading number counts, blanks
/// before it are skipped, sign and exponent (E or D) are accepted; no number is 0, and so is the
/// empty text. A number beyond the range of a double is `leer`, so that the statement that uses it
/// fails.
double Wert(std::string_view text);

/// Number to text: at most 15 significant digits, point as decimal sign, no trailing zeros, never
/// "-0"; an empty number gives the empty text. Magnitudes from 1e15 up and below 1e-5 carry an
/// exponent ("1E+20", "1.5E-07").
std::string Zahl_Text(double value);

/// As Zahl_Text, appended to `target` without an allocation of its own: the result file's hot path.
void Zahl_anhaengen(std::string& target, double value);

/// Display values with two decimals: cut, or rounded by adding half a hundredth before the cut.
inline double geschnitten(double value) {
  return Int(value * 100) / 100;
}
inline double gerundet(double value) {
  return Int((value + 0.005) * 100) / 100;
}

}  // namespace polarkreis
