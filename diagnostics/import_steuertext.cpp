#include <utility>

#include "diagnostics/import.h"
#include "shell/items.h"
#include "shell/text.h"

namespace polarkreis {

namespace {

constexpr int Werte_je_Zeile = 32;
constexpr int Zeilen_je_Anzeige = 98;

/// One row of the file: its time stamp, and its values joined by tabs.
struct Steuerzeile {
  std::string stempel, werte;
  bool luecke = false;  // a value is empty, so the ones behind it move up a position
};

Steuerzeile nimm_Zeile(ItemLeser& leser) {
  Steuerzeile zeile{leser.lies(), "", false};
  bool leer_davor = false;
  for (int i = 0; i < Werte_je_Zeile; ++i) {
    std::string_view wert;
    leser.lies_blick(wert);
    zeile.luecke = zeile.luecke || (leer_davor && !wert.empty());
    leer_davor = leer_davor || wert.empty();
    zeile.werte += '\t';
    zeile.werte += wert;
  }
  return zeile;
}

void satz_anhaengen(std::string& target, int anzahl, const char* was) {
  if (anzahl == 0) return;
  if (!target.empty()) target += ' ';
  target += std::to_string(anzahl) + (anzahl == 1 ? " row" : " rows") + was;
}

}  // namespace

Importergebnis Messimport::Steuertext_import(std::string_view text) {
  const Kanalzeile kanaele = kanalzeile();
  Importtabelle neu(messung_);
  neu.tabelle.setze_Zeilenzahl(Messtabelle::Erste - 1 + Zeilen_Steuertext);
  int ohne_Uhr = 0, ueberzaehlig = 0, lueckenhaft = 0, gelesen = 0;
  for (ItemLeser leser(text); !leser.ende();) {
    const Steuerzeile zeile = nimm_Zeile(leser);
    if (getrimmt(zeile.stempel).empty()) break;
    if (++gelesen % Zeilen_je_Anzeige == 0 && !weiter(neu.Zeilen(), Zeilen_Steuertext))
      return {.grund = Import_angehalten};
    const auto uhr = Uhrzeit_von(zeile.stempel);
    if (!uhr || neu.Zeilen() == Zeilen_Steuertext) {
      ++(uhr ? ueberzaehlig : ohne_Uhr);
      continue;
    }
    lueckenhaft += zeile.luecke ? 1 : 0;
    kanaele.setze(neu.tabelle, neu.beginne_Zeile(uhr->text), zeile.werte, Werte_je_Zeile);
  }
  if (neu.Zeilen() == 0) return {.grund = "No row of the file begins with date and clock time."};
  Importergebnis ergebnis{.Zeilen = neu.Zeilen()};
  satz_anhaengen(ergebnis.hinweis, ohne_Uhr, " without a clock time left out.");
  satz_anhaengen(ergebnis.hinweis, ueberzaehlig, " beyond the table's 8640 left out.");
  satz_anhaengen(ergebnis.hinweis, lueckenhaft,
                 " with an empty value, behind which the others move up.");
  std::move(neu).uebernehmen(messung_, ergebnis.Zeilen);
  return ergebnis;
}

}  // namespace polarkreis
