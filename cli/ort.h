#pragma once

#include <string>

#include "climate/klima.h"

namespace polarkreis::cli {

/// Makes the country, in any case, the current one and gives it as the table spells it. Throws
/// `Abbruch`, with names that are like it, where the tables don't hold it.
std::string land_waehlen(Klima& klima, const std::string& land);
/// The city of the current country as its table spells it; `Abbruch` as above.
std::string stadt_waehlen(Klima& klima, const std::string& stadt);

/// Tells on standard error where the climate table of the current country doesn't hold every figure
/// of the city: an annual course counts the missing ones as 0.
void klimaluecken_melden(Klima& klima, const std::string& stadt);

}  // namespace polarkreis::cli
