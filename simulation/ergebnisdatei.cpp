#include <algorithm>

#include "shell/items.h"
#include "simulation/jahreslauf.h"

namespace polarkreis {

namespace {

/// One number in quotes, behind a comma.
void feld(std::string& zeile, double wert) {
  zeile += ",\"";
  Zahl_anhaengen(zeile, wert);
  zeile += '"';
}

}  // namespace

void Ergebnisdatei::monat(const Monatszeile& zeile) {
  zeile_anhaengen(inhalt_,
                  {zeile.Monat, zeile.T_Tag, zeile.T_Nacht, zeile.Last_Tag, zeile.Last_Nacht});
}

void Ergebnisdatei::stunde(const Stundenwerte& w) {
  inhalt_ += '"';
  Zahl_anhaengen(inhalt_, w.Stunde);
  inhalt_ += "h\"";
  feld(inhalt_, w.t_luft);
  feld(inhalt_, gerundet(w.tc));
  feld(inhalt_, gerundet(w.COP));
  feld(inhalt_, gerundet(w.P_el));
  feld(inhalt_, Int((w.E_gesamt + 0.05) * 100) / 100);
  feld(inhalt_, w.last);
  feld(inhalt_, gerundet(w.P_Luefter));
  feld(inhalt_, gerundet(w.P_VDa_Luefter));
  feld(inhalt_, gerundet(w.P_Abtau));
  feld(inhalt_, w.Q0);
  feld(inhalt_, Int(100 * w.last_heiz) / 100);
  feld(inhalt_, w.P_H);
  feld(inhalt_, w.P_WW_verf);
  feld(inhalt_, std::min(Int(w.k_Heiz * 100), 100.0));
  feld(inhalt_, w.deckung);
  inhalt_ += "\r\n";
}

bool Ergebnisdatei::schreiben(Ablage& ablage) const {
  return ablage.schreib_ganz("ERG_TEMP.DAT", inhalt_, Haltbarkeit::wiederholbar);
}

}  // namespace polarkreis
