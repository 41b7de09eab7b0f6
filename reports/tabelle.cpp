#include "reports/tabelle.h"

#include <charconv>
#include <cmath>

#include "shell/text.h"

namespace polarkreis {

Tabellenzelle als_Tabellenzelle(std::string_view text) {
  const std::string_view zahl = getrimmt(text);
  if (zahl.empty()) return text.empty() ? Tabellenzelle{} : Tabellenzelle{std::string(text)};
  double wert = 0;
  const auto [ende, fehler] = std::from_chars(zahl.data(), zahl.data() + zahl.size(), wert);
  const bool ganz = fehler == std::errc{} && ende == zahl.data() + zahl.size();
  if (ganz && std::isfinite(wert)) return wert;
  return std::string(text);
}

}  // namespace polarkreis
