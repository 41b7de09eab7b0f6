#include "diagnostics/messformat.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <utility>

namespace polarkreis {

namespace {

constexpr int Leere_vor_Einheiten = 4;  // lines 14 to 17
constexpr int Leere_am_Ende = 47;       // lines 54 to 100
constexpr int Hoechstbreite = 32000;

/// Stands behind the content: no file ends in it.
constexpr char Ende = '\x02';

using Einheit = Einheitentabelle;
/// The columns that stand together for each row of the units' table, and those that stand alone.
constexpr std::array Je_Zeile = {Einheit::Funktion, Einheit::Name, Einheit::Wert};
constexpr std::array Je_Spalte = {Einheit::Liste, Einheit::Einheit};

void zeile(std::string& text, std::string_view inhalt) {
  zeile_anhaengen(text, {inhalt});
}

void leere_zeilen(std::string& text, int anzahl) {
  for (int n = 0; n < anzahl; ++n) zeile(text, "");
}

constexpr std::array Skalenwerte = {&Skala::Q_max,  &Skala::EER_max,   &Skala::t0_min,
                                    &Skala::tc_max, &Skala::t_end_max, &Skala::p_max};

std::string Skala_Text(const Skala& skala) {
  std::string text;
  for (const auto wert : Skalenwerte) {
    if (wert != Skalenwerte.front()) text += Trenner_Skala;
    Zahl_anhaengen(text, skala.*wert);
  }
  return text;
}

Skala Skala_von(std::string_view text) {
  Skala skala;
  for (const auto wert : Skalenwerte) {
    if (text.empty()) break;
    const std::size_t ende = text.find(Trenner_Skala);
    setze(skala.*wert, Wert(text.substr(0, ende)));
    if (ende == std::string_view::npos) break;
    text.remove_prefix(ende + Trenner_Skala.size());
  }
  return skala;
}

void Einheiten_anhaengen(std::string& text, const Einheitentabelle& einheiten) {
  for (int n = 1; n <= Einheit::Zeilen; ++n)
    for (const int spalte : Je_Zeile) zeile(text, einheiten(n, spalte));
  for (const int spalte : Je_Spalte)
    for (int n = 1; n <= Einheit::Zeilen; ++n) zeile(text, einheiten(n, spalte));
  zeile(text, std::to_string(einheiten.Breite_Spalte_3));
}

/// The text as a whole number within the bounds; beyond all numbers it is the lower one.
int ganze_Zahl(std::string_view text, int min, int max) {
  const double zahl = Int(Wert(text));
  if (!(zahl > min)) return min;
  return zahl < max ? static_cast<int>(zahl) : max;
}

void Einheiten_lesen(Messleser& leser, Einheitentabelle& einheiten) {
  for (int n = 1; n <= Einheit::Zeilen; ++n)
    for (const int spalte : Je_Zeile) einheiten(n, spalte) = leser.lies();
  for (const int spalte : Je_Spalte)
    for (int n = 1; n <= Einheit::Zeilen; ++n) einheiten(n, spalte) = leser.lies();
  const int breite = ganze_Zahl(leser.lies(), 0, Hoechstbreite);
  einheiten.Breite_Spalte_3 = breite > 0 ? breite : Einheitentabelle{}.Breite_Spalte_3;
}

std::string oder(std::string_view text, std::string_view sonst) {
  return std::string(text.empty() ? sonst : text);
}

/// Line 3: the row count, and in newer files the language behind it.
Dateikopf Zeilenzahl_von(std::string_view text) {
  Dateikopf kopf;
  const std::size_t trenner = text.find(Trenner_Sprache);
  kopf.Zeilen = ganze_Zahl(text.substr(0, trenner), Messtabelle::Mindestzeilen, 1'000'000'000);
  if (trenner != std::string_view::npos)
    kopf.Sprache = text.substr(trenner + Trenner_Sprache.size());
  return kopf;
}

}  // namespace

void Kopf_anhaengen(std::string& text, const Messung& m, int zeilen, std::string_view sprache,
                    const Zeitpunkt& jetzt) {
  zeile(text, m.ProjektNam);
  zeile(text, m.ProBeschr);
  zeile(text, std::to_string(zeilen).append(Trenner_Sprache).append(sprache));
  zeile(text, Datum_Text(jetzt));
  zeile(text, m.KaelteM);
  zeile(text, std::to_string(m.Off_line_Check));
  zeile(text, Skala_Text(m.skala));
  zeile(text, m.Combo3);
  zeile(text, m.Combo4);
  zeile(text, m.Combo5);
  zeile(text, "");
  zeile(text, m.Combo2);
  zeile(text, m.RGCombo);
  leere_zeilen(text, Leere_vor_Einheiten);
  Einheiten_anhaengen(text, m.OrbiN_spread);
  leere_zeilen(text, Leere_am_Ende);
}

void Messzeile_anhaengen(std::string& text, const Messtabelle& tabelle, int nummer) {
  for (int spalte = 1; spalte <= Spalte::Gespeichert; ++spalte)
    zeile(text, tabelle.text(nummer, spalte));
}

void Messzeile_anhaengen(std::string& text, const Messzeile& zellen) {
  for (std::size_t spalte = 1; spalte < zellen.size(); ++spalte) zeile(text, zellen[spalte]);
}

std::string Zaehltext(int n, int anzahl) {
  return std::to_string(n) + " / " + std::to_string(anzahl);
}

bool gefuellt(const Messzeile& zeile) {
  return std::any_of(zeile.begin() + 1, zeile.begin() + 11,
                     [](const std::string& zelle) { return !zelle.empty(); });
}

std::string markiert(std::string inhalt) {
  inhalt.erase(inhalt.find_last_not_of('\0') + 1);
  inhalt += Ende;
  return inhalt;
}

// The mark is the text's last character, so an item that ends in it at the very end was open. A
// closing quote is followed by the mark at most, which the item reader drops.
bool Messleser::lies_ganz(std::string_view& item) {
  item = {};
  if (!leser_.lies_blick(item)) return false;
  if (!leser_.ende() || !item.ends_with(Ende)) return true;
  item.remove_suffix(1);
  if (!item.empty()) abgeschnitten_ = true;
  return false;
}

std::string_view Messleser::lies() {
  std::string_view item;
  lies_ganz(item);
  return item;
}

bool Messleser::lies_Zeile(Messzeile& zeile) {
  std::string_view item;
  for (std::size_t spalte = 1; spalte < zeile.size(); ++spalte) {
    if (!lies_ganz(item)) {
      if (spalte > 1) abgeschnitten_ = true;
      return false;
    }
    zeile[spalte].assign(item);
  }
  return true;
}

bool Messleser::noch_Text() const {
  Messleser weiter = *this;
  std::string_view item;
  while (weiter.lies_ganz(item))
    if (!item.empty()) return true;
  return weiter.abgeschnitten_;
}

Dateikopf Kopf_lesen(Messleser& leser, Messung& m) {
  m.ProjektNam = leser.lies();
  m.ProBeschr = leser.lies();
  Dateikopf kopf = Zeilenzahl_von(leser.lies());
  leser.lies();  // date of the save
  m.KaelteM = leser.lies();
  m.Off_line_Check = ganze_Zahl(leser.lies(), 0, 1);
  m.skala = Skala_von(leser.lies());
  m.Combo3 = leser.lies();
  m.Combo4 = leser.lies();
  m.Combo5 = oder(leser.lies(), " 1 h");
  leser.lies();
  m.Combo2 = oder(leser.lies(), "5s");
  m.RGCombo = leser.lies();
  for (int n = 0; n < Leere_vor_Einheiten; ++n) leser.lies();
  Einheiten_lesen(leser, m.OrbiN_spread);
  for (int n = 0; n < Leere_am_Ende; ++n) leser.lies();
  return kopf;
}

int Zeilen_zaehlen(Messleser leser) {
  Messzeile zeile;
  int anzahl = 0;
  while (leser.lies_Zeile(zeile) && gefuellt(zeile)) ++anzahl;
  return anzahl;
}

}  // namespace polarkreis
