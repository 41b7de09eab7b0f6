#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "shell/captions.h"

namespace polarkreis {

/// The route that tells everybody: ftp, e-mail and both SMS numbers.
inline constexpr int Route_alle = 15;

/// A plant's notification route, a 4-bit number: bit 0 the first SMS, bit 1 the second, bit 2
/// e-mail, bit 3 ftp. `Richtung` 1 gives the number of a route's text (both trimmed; 15 for an
/// unknown one), 2 the text of a number (that of 15 for anything outside 0 to 14). Number 0 is the
/// caption for none; while that is empty it matches nothing. That word counts in capitals or not
/// and in each language that is there, so that a plant stays silent when the language changes.
std::string Flag_find(const Captions& captions, std::string_view Text, int Richtung);

/// The sixteen route texts, in the order of their numbers.
std::vector<std::string> Routen(const Captions& captions);

}  // namespace polarkreis
