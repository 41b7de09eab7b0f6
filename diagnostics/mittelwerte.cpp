#include "diagnostics/mittelwerte.h"

#include <algorithm>
#include <array>
#include <vector>

#include "shell/text.h"
#include "shell/wert.h"

namespace polarkreis {

namespace {

/// What is gathered of one column.
struct Spaltensumme {
  double summe = 0, kleinster = 0, groesster = 0;

  void beginne(double x) {
    setze(kleinster, x);
    setze(groesster, x);
    setze(summe, x);
  }
  void nimm(double x) {
    setze(summe, summe + x);
    if (x < kleinster) kleinster = x;
    if (x > groesster) groesster = x;
  }
};
using Spaltensummen = std::array<Spaltensumme, Spalte::Gespeichert + 1>;

double zahl(const std::string& zelle) {
  return zelle.empty() ? 0 : Wert(zelle);
}

// Row by row, since a row's cells lie together in memory.
Spaltensummen sammle(const Messtabelle& tabelle, int letzte) {
  Spaltensummen summen;
  for (int zeile = Messtabelle::Erste; zeile <= letzte; ++zeile) {
    for (int spalte = 1; spalte <= Spalte::Gespeichert; ++spalte) {
      Spaltensumme& summe = summen[static_cast<std::size_t>(spalte)];
      const double x = zahl(tabelle.text(zeile, spalte));
      if (zeile == Messtabelle::Erste) {
        summe.beginne(x);
      } else {
        summe.nimm(x);
      }
    }
  }
  return summen;
}

bool ist_Ablesung(std::string_view text) {
  return !text.empty() && text != "0" && text != "-";
}

}  // namespace

bool MW_Bildung(Messung& messung, Fortschritt& fortschritt) {
  Messtabelle& mittel = messung.MittelW_Spread;
  mittel.leeren();
  const int letzte = messung.Mess_Zeilen - 1;
  const int anzahl = messung.Mess_Zeilen - Messtabelle::Erste;
  if (anzahl < 1) return true;
  const Spaltensummen summen = sammle(messung.DiaSpread, letzte);
  for (int spalte = 1; spalte <= Spalte::Gespeichert; ++spalte) {
    const Spaltensumme& summe = summen[static_cast<std::size_t>(spalte)];
    mittel.setze_Zahl(Mittel_kleinster, spalte, summe.kleinster);
    mittel.setze_Zahl(Mittel_groesster, spalte, summe.groesster);
    mittel.setze_Zahl(Mittel_wert_zeile, spalte, geschnitten(summe.summe / anzahl));
    if (!fortschritt.schritt(messung.DiaSpread.text(1, spalte), spalte, Spalte::Gespeichert))
      return false;
  }
  return true;
}

double Mittel_wert(std::string_view a, std::string_view b, std::string_view c) {
  double summe = 0;
  int anzahl = 0;
  for (std::string_view text : {a, b, c}) {
    text = getrimmt(text);
    if (!ist_Ablesung(text)) continue;
    setze(summe, summe + Wert(text));
    ++anzahl;
  }
  return anzahl == 0 ? 0 : summe / anzahl;
}

}  // namespace polarkreis
