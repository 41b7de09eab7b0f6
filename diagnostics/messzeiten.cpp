#include "diagnostics/messzeiten.h"

#include <algorithm>
#include <cmath>

#include "shell/text.h"

namespace polarkreis {

namespace {

constexpr double Tag_s = 86400;
// A step against the table's direction of up to this much is a clock that was set, or the seam of
// two measurements of a day; more is a pause that goes on.
constexpr double Zurueck_s = 6 * 3600;

bool ist_ziffer(char c) {
  return c >= '0' && c <= '9';
}

/// One or two digits off the front; -1 for none, or more.
int zweistellig(std::string_view& rest) {
  std::size_t n = 0;
  int wert = 0;
  while (n < rest.size() && n < 3 && ist_ziffer(rest[n])) wert = wert * 10 + (rest[n++] - '0');
  rest.remove_prefix(n);
  return n == 1 || n == 2 ? wert : -1;
}

bool nimm(std::string_view& rest, char zeichen) {
  if (!rest.starts_with(zeichen)) return false;
  rest.remove_prefix(1);
  return true;
}

/// The remainder that lies in 0 to a day.
double am_tag(double s) {
  return s - Tag_s * std::floor(s / Tag_s);
}

/// The step as it was meant where time runs forward.
double vorwaerts(double schritt) {
  const double s = am_tag(schritt);
  return s >= Tag_s - Zurueck_s ? s - Tag_s : s;
}

using Uhrzeiten = std::vector<std::optional<double>>;

Uhrzeiten lies(const Messung& messung, int letzte) {
  Uhrzeiten uhr;
  for (int zeile = Messtabelle::Erste; zeile <= letzte; ++zeile)
    uhr.push_back(Uhrzeit_s(messung.DiaSpread.text(zeile, Spalte::Zeit)));
  return uhr;
}

/// True if more steps lead back than forward: the newest row stands on top.
bool neueste_oben(const Uhrzeiten& uhr) {
  int vor = 0, zurueck = 0;
  for (std::size_t i = 1; i < uhr.size(); ++i) {
    if (!uhr[i] || !uhr[i - 1]) continue;
    const double schritt = am_tag(*uhr[i] - *uhr[i - 1]);
    if (schritt > Tag_s / 2) {
      ++zurueck;
    } else if (schritt > 0) {
      ++vor;
    }
  }
  return zurueck > vor;
}

/// Seconds of each row, from the first row that has a clock time; rows without one lie an interval
/// apart.
std::vector<double> abgerollt(const Uhrzeiten& uhr, double richtung, double intervall) {
  std::vector<double> s(uhr.size(), 0);
  std::optional<double> zuvor;
  double stand = 0;
  for (std::size_t i = 0; i < uhr.size(); ++i) {
    if (uhr[i] && zuvor) {
      stand += richtung * vorwaerts(richtung * (*uhr[i] - *zuvor));
    } else if (uhr[i]) {
      stand = *uhr[i];
      for (std::size_t k = 0; k < i; ++k)
        s[k] = stand - richtung * intervall * static_cast<double>(i - k);
    } else if (i > 0) {
      stand += richtung * intervall;
    }
    if (uhr[i] || zuvor) zuvor = am_tag(stand);
    s[i] = stand;
  }
  return s;
}

}  // namespace

bool ist_Messwert(std::string_view text) {
  text = links_getrimmt(text);
  if (text.starts_with('-') || text.starts_with('+')) text.remove_prefix(1);
  if (text.starts_with('.') || text.starts_with(',')) text.remove_prefix(1);
  return !text.empty() && ist_ziffer(text.front());
}

std::optional<double> Uhrzeit_s(std::string_view text) {
  std::string_view rest = getrimmt(text);
  const int h = zweistellig(rest);
  if (h < 0 || h > 23 || !nimm(rest, ':')) return std::nullopt;
  const int min = zweistellig(rest);
  const int s = nimm(rest, ':') ? zweistellig(rest) : 0;
  if (min < 0 || min > 59 || s < 0 || s > 59 || !rest.empty()) return std::nullopt;
  return 3600 * h + 60 * min + s;
}

std::vector<Messzeit> Messzeiten(const Messung& messung) {
  const Uhrzeiten uhr = lies(messung, messung.letzte_Zeile());
  const double richtung = neueste_oben(uhr) ? -1 : 1;
  const double intervall = std::min(std::max(0.0, messung.Messintervall_s()), Tag_s);
  const std::vector<double> s = abgerollt(uhr, richtung, intervall);
  std::vector<Messzeit> zeiten;
  for (std::size_t i = 0; i < s.size(); ++i) {
    const int zeile = Messtabelle::Erste + static_cast<int>(i);
    if (messung.DiaSpread.gefuellt(zeile)) zeiten.push_back({zeile, s[i]});
  }
  if (richtung < 0) std::reverse(zeiten.begin(), zeiten.end());
  std::stable_sort(zeiten.begin(), zeiten.end(),
                   [](const Messzeit& a, const Messzeit& b) { return a.s < b.s; });
  if (zeiten.empty()) return zeiten;
  const double tage = Tag_s * std::floor(zeiten.front().s / Tag_s);
  for (Messzeit& z : zeiten) z.s -= tage;
  return zeiten;
}

}  // namespace polarkreis
