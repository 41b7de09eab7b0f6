#pragma once

#include <string>
#include <string_view>

#include "shell/warten.h"

namespace polarkreis {

/// "hh:mm:ss:mmm".
std::string Messzeit_Text(const Zeitpunkt& zeit);
/// Milliseconds between two such texts of less than a minute's distance (`kind` 1), or how long the
/// loop still has to wait for the next scan (`kind` 0), never below 0. `intervall_s` in seconds.
double time_diff(std::string_view t1, std::string_view t2, int kind, double intervall_s);
/// Number of samples of a run of the length `Combo5` (empty is "1 h"), not rounded; 0 is endless,
/// and so is a run whose number can't be worked out.
double InterVall_Ber(double intervall_s, std::string_view Combo5);
/// Seconds as "hh:mm:ss"; from an hour on the minutes are not reduced by the whole hours.
std::string FM_timer(double sekunden);

}  // namespace polarkreis
