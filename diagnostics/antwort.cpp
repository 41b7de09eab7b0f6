#include "diagnostics/antwort.h"

#include <algorithm>
#include <cmath>

#include "diagnostics/spalten.h"
#include "shell/text.h"

namespace polarkreis {

namespace {

constexpr std::string_view Antwort_Ende = "ok";
constexpr std::size_t Laenge_min = 25, Laenge_max = 600;
constexpr std::size_t Letztes_Token_min = 5;

constexpr double U_max = 750;               // V
constexpr double Po_max = 17;               // bar gauge
constexpr double Pc_max = 86;               // bar gauge
constexpr double t_min = -90, t_max = 200;  // °C

}  // namespace

bool Antwort_brauchbar(std::string_view antwort) {
  return !antwort.starts_with("   ") && antwort.size() >= Laenge_min &&
         antwort.size() <= Laenge_max && antwort.find(Antwort_Ende) != std::string_view::npos;
}

int Box_Typ_von(std::string_view antwort) {
  const std::string grosse = gross(antwort);
  if (grosse.find('M') != std::string::npos) return 1;
  return grosse.find('A') != std::string::npos ? 2 : 0;
}

AntwortLeser::AntwortLeser(std::string_view antwort) : rest_(antwort) {
  if (!rest_.starts_with(Messbefehl)) return;
  rest_.remove_prefix(Messbefehl.size());
  if (rest_.starts_with('\n')) rest_.remove_prefix(1);
}

bool AntwortLeser::abtrennen(std::size_t ende, std::size_t weiter, std::string_view& token) {
  token = rest_.substr(0, ende);
  rest_.remove_prefix(weiter);
  ++position_;
  return true;
}

bool AntwortLeser::lies(std::string_view& token) {
  const std::size_t blank = rest_.find(' ');
  if (blank != std::string_view::npos) return abtrennen(blank, blank + 1, token);
  const std::size_t ok = rest_.find(Antwort_Ende);
  if (rest_.size() < Letztes_Token_min || ok == std::string_view::npos) return false;
  return abtrennen(ok, rest_.size(), token);
}

std::string_view Zeit_des_Tokens(std::string_view token) {
  token = token.substr(0, 19);
  return token.substr(token.size() - std::min<std::size_t>(token.size(), 8));
}

bool Plausibilitaet::verworfen(int position, double value) {
  switch (position) {
    case 1:
    case 2:
    case 3:
      return value > U_max;
    case 7:
      Po_ = value;
      return value + Offset_Po_ > Po_max;
    case 8:
      return value > Pc_max || (value <= 0 && Po_ <= 0);
    default:
      return false;
  }
}

double Messwert_von(Kanalart art, double value, double offset, std::optional<int> wandlung) {
  switch (art) {
    case Kanalart::elektrisch:
      return value < 0 ? 0 : value;
    case Kanalart::analog:
      return (wandlung ? P_convert(value, *wandlung) : value) + offset;
    default:
      return value + offset;
  }
}

std::string Zellentext(Kanalart art, double messwert) {
  const bool zu_weit = art == Kanalart::Temperatur && (messwert > t_max || messwert < t_min);
  return zu_weit || !std::isfinite(messwert) ? Kein_Messwert : Zahl_Text(messwert);
}

}  // namespace polarkreis
