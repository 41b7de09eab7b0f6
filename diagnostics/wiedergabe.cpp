#include "diagnostics/wiedergabe.h"

#include <algorithm>
#include <vector>

#include "diagnostics/messzeiten.h"

namespace polarkreis {

namespace {

constexpr int Pausentakt_ms = 50;

/// The place behind the row in view; the first one where there is none.
std::size_t Anfang(const std::vector<Messzeit>& zeiten, int zeile) {
  for (std::size_t k = 0; k + 1 < zeiten.size(); ++k)
    if (zeiten[k].zeile == zeile) return k + 1;
  return 0;
}

}  // namespace

void Wiedergabe::Play_DiaG() {
  spiele(Wiedergabeart::Zeitdiagramm);
}

void Wiedergabe::Play_logph() {
  spiele(Wiedergabeart::logph);
}

// The interface may press any button while this waits, or clear the table.
bool Wiedergabe::warte() {
  uhr_.Warten(std::max(Takt_ms, 0));
  while (Pause != 0 && !gestoppt_) uhr_.Warten(Pausentakt_ms);
  return !gestoppt_;
}

void Wiedergabe::spiele(Wiedergabeart art) {
  if (laeuft_) return;
  laeuft_ = true;
  gestoppt_ = false;
  const std::vector<Messzeit> zeiten = Messzeiten(messung_);
  for (std::size_t k = Anfang(zeiten, zeile); k < zeiten.size(); ++k) {
    if (!messung_.DiaSpread.gefuellt(zeiten[k].zeile)) break;
    zeile = zeiten[k].zeile;
    if (beim_schritt) beim_schritt(art, zeile);
    if (gestoppt_ || k + 1 == zeiten.size() || !warte()) break;
  }
  laeuft_ = false;
}

}  // namespace polarkreis
