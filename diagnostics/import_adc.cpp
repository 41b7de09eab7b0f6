#include <algorithm>
#include <cstddef>
#include <utility>

#include "diagnostics/import.h"
#include "shell/wert.h"

namespace polarkreis {

namespace {

constexpr std::size_t Blocklaenge = 1000;
constexpr int Bloecke_je_Anzeige = 98;
constexpr int Letzte_Position = 48;

/// The block (from 1) in which a character lies.
int Block_von(std::size_t zeichen) {
  return static_cast<int>(zeichen / Blocklaenge) + 1;
}

int Teile_von(int zeilen) {
  if (zeilen <= Messimport::Zeilen_eines_Teils) return 1;
  return static_cast<int>(Int(static_cast<double>(zeilen) / Messimport::Zeilen_eines_Teils)) + 1;
}

bool ist_Messbox(std::string_view text) {
  if (text.size() <= Blocklaenge) return false;
  return text.substr(Blocklaenge, Blocklaenge).find_first_of("Mm") != std::string_view::npos;
}

/// What stands behind the clock: the values. A head of 20 characters may end in a mark.
std::string_view Werte_von(std::string_view nach_Uhr) {
  const std::size_t tab = std::min(nach_Uhr.find('\t'), nach_Uhr.size());
  const bool ist_Wert = nach_Uhr.substr(0, tab).find_first_of("0123456789") != nach_Uhr.npos;
  return ist_Wert ? nach_Uhr : nach_Uhr.substr(tab);
}

std::string ohne_Uhrzeit(int anzahl) {
  if (anzahl == 0) return {};
  return std::to_string(anzahl) + (anzahl == 1 ? " line" : " lines") +
         " without a clock time left out.";
}

}  // namespace

/// Hands on every line with the block in which it begins. False if the progress asked to stop.
bool Messimport::je_Zeile(
    std::string_view text,
    const std::function<void(int block, std::string_view zeile)>& nimm) const {
  const int bloecke = Block_von(text.size() - 1);
  int naechste_Anzeige = Bloecke_je_Anzeige;
  std::string_view zeile;
  for (Zeilenleser leser(text); leser.lies(zeile);) {
    const int block = Block_von(leser.anfang());
    if (block >= naechste_Anzeige) {
      if (!weiter(block, bloecke)) return false;
      naechste_Anzeige = (block / Bloecke_je_Anzeige + 1) * Bloecke_je_Anzeige;
    }
    nimm(block, zeile);
  }
  return true;
}

Importergebnis Messimport::Logger_import(std::string_view text, int teil) {
  int zeilen = 0;
  if (!je_Zeile(text, [&zeilen](int, std::string_view) { ++zeilen; }))
    return {.grund = Import_angehalten};

  const int teile = Teile_von(zeilen);
  if (teil == 0 && teile > 1) return {.Teile = teile};
  if (teil < 0 || teil > teile)
    return {.Teile = teile,
            .grund = "The file has no part " + std::to_string(teil) + ", only " +
                     std::to_string(teile) + "."};

  const int bloecke = Block_von(text.size() - 1);
  const int je_Teil = static_cast<int>(Int(static_cast<double>(bloecke) / teile)) + 1;
  Importergebnis ergebnis = teile == 1
                                ? Logger_Bloecke(text, 1, bloecke)
                                : Logger_Bloecke(text, je_Teil * (teil - 1) + 1, je_Teil * teil);
  ergebnis.Teile = teile;
  return ergebnis;
}

/// Takes the lines that begin in the blocks.
Importergebnis Messimport::Logger_Bloecke(std::string_view text, int erster, int letzter) {
  const int Box_Typ_vorher = kanaele_.Box_Typ;
  if (ist_Messbox(text)) kanaele_.Box_Typ = 1;
  const Kanalzeile kanaele = kanalzeile();
  Importtabelle neu(messung_);
  int weggefallen = 0;
  const bool ganz = je_Zeile(text, [&](int block, std::string_view zeile) {
    if (block < erster || block > letzter) return;
    if (const auto uhr = Uhrzeit_von(zeile))
      kanaele.setze(neu.tabelle, neu.beginne_Zeile(uhr->text), Werte_von(zeile.substr(uhr->ende)),
                    Letzte_Position);
    else
      ++weggefallen;
  });
  if (!ganz || neu.Zeilen() == 0) {
    kanaele_.Box_Typ = Box_Typ_vorher;
    return {.grund =
                ganz ? "No line of the file begins with date and clock time." : Import_angehalten};
  }
  const int zeilen = neu.Zeilen();
  std::move(neu).uebernehmen(messung_, zeilen);
  return {.Zeilen = zeilen, .hinweis = ohne_Uhrzeit(weggefallen)};
}

}  // namespace polarkreis
