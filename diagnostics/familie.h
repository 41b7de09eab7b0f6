#pragma once

#include <string_view>

namespace polarkreis {

/// The name of the program family, as titles and device names of the diagnostics carry it.
inline constexpr std::string_view Familienname = "Polarkreis";

}  // namespace polarkreis
