#include "diagnostics/kern_hinweis.h"

#include <algorithm>

#include "shell/wert.h"

namespace polarkreis {

namespace {

constexpr const char* ort = "Kern_Zeile";
constexpr std::size_t je_Zeile = 40;  // stretches that one line of the log names

}  // namespace

void Ueberdruck::beginnen(std::string_view datei, double letzter_Druck) {
  datei_ = datei;
  grenze_ = letzter_Druck;
  sammelt_ = darueber_ = false;
  strecken_.clear();
}

void Ueberdruck::zeile(int zeile, double pc, Meldungen& meldungen) {
  const bool davor = darueber_;
  darueber_ = pc > grenze_;
  if (!darueber_) return;
  if (!sammelt_) {
    if (!davor) schreiben(Strecke{zeile, zeile, pc}.text(), meldungen);
  } else if (davor && !strecken_.empty() && strecken_.back().bis == zeile - 1) {
    strecken_.back().bis = zeile;
    strecken_.back().p_max = std::max(strecken_.back().p_max, pc);
  } else {
    strecken_.push_back({zeile, zeile, pc});
  }
}

void Ueberdruck::melden(Meldungen& meldungen) {
  for (std::size_t anfang = 0; anfang < strecken_.size(); anfang += je_Zeile) {
    std::string zeilen;
    const std::size_t ende = std::min(anfang + je_Zeile, strecken_.size());
    for (std::size_t i = anfang; i < ende; ++i)
      zeilen += (i == anfang ? "" : ", ") + strecken_[i].text();
    schreiben(zeilen, meldungen);
  }
  strecken_.clear();
  sammelt_ = darueber_ = false;
}

std::string Ueberdruck::Strecke::text() const {
  if (von == bis) return "row " + std::to_string(von) + " (" + Zahl_Text(p_max) + " bar)";
  return "rows " + std::to_string(von) + " to " + std::to_string(bis) + " (up to " +
         Zahl_Text(p_max) + " bar)";
}

void Ueberdruck::schreiben(std::string_view zeilen, Meldungen& meldungen) const {
  meldungen.melde(
      ort, datei_,
      "high pressure above the table's last pressure of " + Zahl_Text(grenze_) +
          " bar, so the condensing temperature is none of saturation: " + std::string(zeilen));
}

}  // namespace polarkreis
