#include "diagnostics/messung.h"

#include <algorithm>

namespace polarkreis {

// Rows are inserted above the row that is named, so that row 3, the newest, is the empty one.
void Messung::Zeile_Ein(int zeile, int anzahl) {
  if (anzahl <= 0) return;
  DiaSpread.einfuegen(std::max(zeile - 1, Messtabelle::Erste), anzahl);
  Mess_Zeilen += anzahl;
}

void Messung::DiaG_loesch() {
  DiaSpread.leeren();
  Mess_Zeilen = Messtabelle::Erste - 1;
}

void Messung::DiaG_zurueck_setz() {
  DiaG_loesch();
  DiaSpread.setze_Zeilenzahl(Messtabelle::Mindestzeilen);
  MittelW_Spread.leeren();
  skala = {};
}

double Messung::Messintervall_s() const {
  const std::string text = Combo2.empty() ? "5s" : Combo2;
  return Wert(text.substr(0, text.size() - 1));
}

}  // namespace polarkreis
