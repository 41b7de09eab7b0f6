#include "diagnostics/zeiten.h"

#include <algorithm>
#include <array>
#include <cstdio>

#include "shell/text.h"
#include "shell/wert.h"

namespace polarkreis {

namespace {

/// What a pass of the loop spends outside the stretch that is measured, ms.
constexpr double Zuschlag_ms = 133;

/// Seconds and milliseconds at the end of "hh:mm:ss:mmm"; a shorter text counts as far as it goes.
struct Minutenzeit {
  double s, ms;
};

Minutenzeit zerlegt(std::string_view zeit) {
  const auto von_hinten = [&zeit](std::size_t n) {
    const std::string_view ende = zeit.substr(zeit.size() - std::min(n, zeit.size()));
    zeit.remove_suffix(ende.size());
    return ende;
  };
  const double ms = Wert(von_hinten(3));
  von_hinten(1);
  return {Wert(von_hinten(2)), ms};
}

/// Length of a run in seconds.
double Dauer_s(std::string_view Combo5) {
  constexpr std::string_view Minuten = "min";
  if (Combo5.empty()) Combo5 = "1 h";
  if (Combo5.ends_with(Minuten)) return Wert(Combo5.substr(0, Combo5.size() - Minuten.size())) * 60;
  return Wert(Combo5.substr(0, Combo5.size() - 1)) * 3600;
}

std::string Uhr_Text(double stunden, double minuten, double sekunden) {
  std::array<char, 80> text{};
  std::snprintf(text.data(), text.size(), "%02.0f:%02.0f:%02.0f", stunden, minuten, Int(sekunden));
  return text.data();
}

}  // namespace

std::string Messzeit_Text(const Zeitpunkt& zeit) {
  std::array<char, 24> ms{};
  std::snprintf(ms.data(), ms.size(), ":%03d", zeit.Millisekunde);
  return Uhrzeit_Text(zeit) + ms.data();
}

double time_diff(std::string_view t1, std::string_view t2, int kind, double intervall_s) {
  const Minutenzeit z1 = zerlegt(t1);
  Minutenzeit z2 = zerlegt(t2);
  if (z2.s < z1.s) z2.s += 60;
  const double d = (z2.s * 1000 + z2.ms) - (z1.s * 1000 + z1.ms);
  if (kind == 1) return d;
  double warten = 0;
  setze(warten, intervall_s * 1000 - d - Zuschlag_ms);
  return std::max(warten, 0.0);
}

double InterVall_Ber(double intervall_s, std::string_view Combo5) {
  if (Combo5.find("oo") != std::string_view::npos) return 0;
  double anzahl = 0;
  setze(anzahl, Dauer_s(getrimmt(Combo5)) / intervall_s);
  return anzahl;
}

std::string FM_timer(double sekunden) {
  double s = 0;
  setze(s, std::clamp(sekunden, 0.0, 1e12));
  if (s < 60) return Uhr_Text(0, 0, s);
  const double h = s < 3600 ? 0 : Int(s / 3600);
  const double rest = s - 60 * h;
  const double minuten = Int(rest / 60);
  return Uhr_Text(h, minuten, rest - 60 * minuten);
}

}  // namespace polarkreis
