#include <algorithm>
#include <array>
#include <span>
#include <string_view>

#include "simulation/projladen.h"

namespace polarkreis {

namespace {

constexpr std::array<std::string_view, 2> Arbeitsblaetter{".xls", ".xlsx"};
constexpr std::array<std::string_view, 1> Loggerdateien{".adc"}, Steuertexte{".txt"};

std::span<const std::string_view> endungen(Browsermodus modus) {
  if (modus == Browsermodus::Loggerdatei) return Loggerdateien;
  if (modus == Browsermodus::Steuertext) return Steuertexte;
  return Arbeitsblaetter;
}

}  // namespace

void ProjLaden::messdateien_listen() {
  for (std::string_view endung : endungen(modus_))
    for (const std::string& datei : ablage_.liste(ordner_, endung))
      eintraege.push_back({datei, datei, ""});
  std::ranges::sort(eintraege, {}, &Projekteintrag::datei);
}

void ProjLaden::Teile_anbieten(int teile) {
  teile_ = true;
  zeile_ = static_cast<std::size_t>(-1);
  eintraege.clear();
  for (int teil = 1; teil <= teile; ++teil)
    eintraege.push_back({Dateiname, "Import Part " + std::to_string(teil), ""});
}

int ProjLaden::Teil() const {
  return teile_ && zeile_ < eintraege.size() ? static_cast<int>(zeile_) + 1 : 0;
}

// Where parts are offered, one must be chosen.
bool ProjLaden::import_bestaetigen() {
  if (teile_) return Teil() > 0;
  if (ablage_.vorhanden(projektdatei())) return true;
  FehlerBOX(dialog_, Fehler::Datei_fehlt);
  return false;
}

}  // namespace polarkreis
