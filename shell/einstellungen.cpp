#include "shell/einstellungen.h"

#include <filesystem>
#include <vector>

#include "shell/text.h"
#include "shell/wert.h"

namespace polarkreis {

namespace {

constexpr std::string_view Datei = "kparam.dat";
constexpr std::string_view Laufwerk_C = "C:\\";
constexpr std::size_t Laufwerk_mindestens = 4;
constexpr std::size_t Sprache_mindestens = 3;
/// The mode number's second neighbour, item 16.
constexpr int Zweite_Zahl = 16;

/// Where a line of the file ends.
constexpr bool schliesst_zeile(int item) {
  return item == 6 || item == 13 || item >= 22;
}

void sonst(std::string& text, std::string_view vorgabe) {
  if (getrimmt(text).empty()) text = std::string(vorgabe);
}

std::string aktueller_ordner() {
  std::error_code fehler;
  const std::string ordner = std::filesystem::current_path(fehler).string();
  return fehler ? std::string(".") : ordner;
}

}  // namespace

void Einstellungen::Parameter_Lesen() {
  const std::string inhalt = ablage_.lies_ganz(Datei).value_or("");
  erster_Start = inhalt.empty();
  ItemLeser leser(inhalt);
  for (std::string& wert : werte_) wert = leser.lies();

  Einstellungen& e = *this;
  sonst(e[Datenordner], ablage_.Datenordner);
  e[Sprache] = gross(getrimmt(e[Sprache]));
  if (zeichenzahl(e[Sprache]) < Sprache_mindestens) e[Sprache] = erster_Start ? "GER" : "ENG";
  sonst(e[Waehrung], "EUR");
  sonst(e[Schrift], "Arial");
  if (zeichenzahl(e[Laufwerk]) < Laufwerk_mindestens) e[Laufwerk] = std::string(Laufwerk_C);
  sonst(e[Zweite_Zahl], "35");
  if (!(Wert(e[Rechenzeit]) > 0)) e[Rechenzeit] = "2.5";
  sonst(e[Projektordner], Laufwerk_C);
  if (getrimmt(e[Projektordner]) == Laufwerk_C) e[Projektordner] = aktueller_ordner();
  sonst(e[Bildpfad], ablage_.Datenordner + "/ctsample.jpg");
  sonst(e[Einheiten], "1");
  sonst(e[Schriftgroesse], "12");
}

bool Einstellungen::Parameter_Schreiben() {
  std::string inhalt;
  std::vector<std::string_view> zeile;
  for (int item = 1; item <= Itemzahl; ++item) {
    zeile.push_back((*this)[item]);
    if (!schliesst_zeile(item)) continue;
    zeile_anhaengen(inhalt, zeile);
    zeile.clear();
  }
  return ablage_.schreib_ganz(Datei, inhalt);
}

}  // namespace polarkreis
