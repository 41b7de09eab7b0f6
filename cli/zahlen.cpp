#include "zahlen.h"

#include <algorithm>
#include <charconv>
#include <cmath>

#include "shell/text.h"

namespace polarkreis::cli {

std::optional<double> zahl_aus(std::string_view text) {
  std::string punktiert(getrimmt(text));
  if (punktiert.find('.') == std::string::npos) {
    const std::size_t komma = punktiert.find(',');
    if (komma != std::string::npos) punktiert[komma] = '.';
  }
  const char* anfang = punktiert.data();
  const char* ende = anfang + punktiert.size();
  if (punktiert.starts_with('+')) ++anfang;
  double value = 0;
  const auto [bis, fehler] = std::from_chars(anfang, ende, value);
  if (fehler != std::errc() || bis != ende || !std::isfinite(value)) return std::nullopt;
  return value;
}

CLI::Option* zahl_option(CLI::App& app, const std::string& name, double& ziel,
                         const std::string& hilfe) {
  return app
      .add_option_function<std::string>(
          name,
          [&ziel, name](const std::string& text) {
            const std::optional<double> value = zahl_aus(text);
            if (!value) throw CLI::ValidationError(name, "\"" + text + "\" is no number");
            ziel = *value;
          },
          hilfe)
      ->type_name("NUMBER");
}

void beispiel(CLI::App& app, const std::string& zeilen) {
  app.footer("Example:\n" + zeilen);
}

}  // namespace polarkreis::cli
