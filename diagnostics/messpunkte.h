#pragma once

#include <string>
#include <string_view>

namespace polarkreis {

/// The measuring points of a unit, in the order of their numbers: temperatures 1 to 8, pressures 9
/// and 10, voltages 11 to 13, currents 14 to 16.
inline constexpr int Punkte_je_Einheit = 16;

/// A point's name, such as "- 1.9 -": unit 1 is the base unit, 2 and 3 are `Orbiter 1` and
/// `Orbiter 2`.
std::string Messpunkt(int einheit, int punkt);

/// What a point measures, such as "t liq.": the base unit (1) has its own list, every other unit
/// the one of a remote unit. Empty for a point outside 1 to 16.
std::string_view Kanaltext(int einheit, int punkt);

}  // namespace polarkreis
