#include "platform/zeitwert.h"

#include <chrono>

namespace polarkreis {

namespace {

constexpr int Tage_bis_1970 = 25569;

/// Takes a number of so many digits off the text's front; -1 if it doesn't begin with one.
int nimm_Zahl(std::string_view& text, std::size_t stellen) {
  if (text.size() < stellen) return -1;
  int zahl = 0;
  for (const char c : text.substr(0, stellen)) {
    if (c < '0' || c > '9') return -1;
    zahl = zahl * 10 + (c - '0');
  }
  text.remove_prefix(stellen);
  return zahl;
}

bool nimm(std::string_view& text, char zeichen) {
  if (!text.starts_with(zeichen)) return false;
  text.remove_prefix(1);
  return true;
}

std::optional<double> Datum(std::string_view& text) {
  using namespace std::chrono;
  const int jahr = nimm_Zahl(text, 4);
  const int monat = nimm(text, '-') ? nimm_Zahl(text, 2) : -1;
  const int tag = nimm(text, '-') ? nimm_Zahl(text, 2) : -1;
  if (jahr < 0 || monat < 0 || tag < 0) return std::nullopt;
  const year_month_day datum{year(jahr), month(static_cast<unsigned>(monat)),
                             day(static_cast<unsigned>(tag))};
  if (!datum.ok()) return std::nullopt;
  return static_cast<double>(sys_days(datum).time_since_epoch().count() + Tage_bis_1970);
}

std::optional<double> Uhrzeit(std::string_view text) {
  const int stunde = nimm_Zahl(text, 2);
  const int minute = nimm(text, ':') ? nimm_Zahl(text, 2) : -1;
  const int sekunde = nimm(text, ':') ? nimm_Zahl(text, 2) : 0;
  if (stunde < 0 || minute < 0 || sekunde < 0) return std::nullopt;
  return (stunde * 3600 + minute * 60 + sekunde) / 86400.0;
}

}  // namespace

std::optional<Zeitwert> Zeitwert_von(std::string_view text) {
  if (text.size() < 3) return std::nullopt;
  std::optional<double> tage = 0;
  if (text[2] != ':') {
    tage = Datum(text);
    if (tage && text.empty()) return Zeitwert{*tage};
    if (!tage || !(nimm(text, 'T') || nimm(text, ' '))) return std::nullopt;
  }
  const auto uhr = Uhrzeit(text);
  if (!uhr) return std::nullopt;
  return Zeitwert{*tage + *uhr};
}

}  // namespace polarkreis
