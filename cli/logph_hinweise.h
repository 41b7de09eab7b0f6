#pragma once

#include <string>
#include <vector>

#include "cycle/logp_h.h"

namespace polarkreis::cli {

/// What a user must know before trusting the figures of a cycle: a power that no compressor has, a
/// heat exchanger that no plant has, a high pressure that nobody chose. One sentence each.
std::vector<std::string> logph_Hinweise(const logp_H& form, const KMZustand& zustand);

}  // namespace polarkreis::cli
