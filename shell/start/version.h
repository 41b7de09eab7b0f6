#pragma once

#include <string>
#include <string_view>

namespace polarkreis {

inline constexpr std::string_view Programmname = "Polarkreis";
inline constexpr std::string_view Programmversion = "0.1.0";

/// The line of the info box: name and version.
inline std::string Versionszeile() {
  return std::string(Programmname) + " " + std::string(Programmversion);
}

}  // namespace polarkreis
