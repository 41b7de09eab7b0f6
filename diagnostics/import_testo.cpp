#include <algorithm>
#include <cmath>

#include "diagnostics/import.h"
#include "shell/text.h"
#include "shell/wert.h"

namespace polarkreis {

namespace {

constexpr double Tag_s = 86400;

/// Sheet columns "D" to "H": two pairs of sensors, and a single one.
enum Blattspalte : int { D = 4, E, F, G, H };

struct Ziel {
  int erstes_Paar, zweites_Paar;
};
constexpr Ziel Ziel_von(int kind) {
  return kind == 1 ? Ziel{Spalte::U_L3, Spalte::I_L1} : Ziel{Spalte::Testo_20, Spalte::Fluss_Verd};
}

/// The mean of two sensors on one quantity; one alone counts as it stands. `rundung` goes to the
/// mean's hundredths before the cut.
double Paar(double a, double b, double rundung) {
  if (ist_leer(a)) return b;
  if (ist_leer(b)) return a;
  return Int(rundung + 100 * (a + b) / 2) / 100;
}

bool ist_unbeschrieben(const Zellinhalt& zelle) {
  const auto* text = std::get_if<std::string>(&zelle);
  if (text != nullptr) return getrimmt(*text).empty();
  return std::holds_alternative<std::monostate>(zelle);
}

bool ist_Ende(const Arbeitsmappe& mappe, int zeile) {
  if (Zahl_von(mappe.Zelle(zeile, D)) == 0) return true;
  for (int spalte = D; spalte <= H; ++spalte)
    if (!ist_unbeschrieben(mappe.Zelle(zeile, spalte))) return false;
  return true;
}

/// The first row that holds no data; sheet rows are table rows.
int Datenende(const Arbeitsmappe& mappe) {
  int n = Messtabelle::Erste;
  while (n < Messtabelle::Erste + Messimport::Zeilen_Arbeitsblatt && !ist_Ende(mappe, n)) ++n;
  return n;
}

std::string laufende_Uhrzeit(int zeile, double intervall_s) {
  const double s = std::fmod((zeile - Messtabelle::Erste) * intervall_s, Tag_s);
  return Text_von(Zeitwert{std::floor(std::isfinite(s) ? s : 0) / Tag_s});
}

void setze_oder_leere(Messtabelle& tabelle, int zeile, int spalte, double zahl) {
  tabelle.setze(zeile, spalte, "");
  tabelle.setze_Zahl(zeile, spalte, zahl);
}

void Zeile_setzen(const Arbeitsmappe& mappe, Messtabelle& tabelle, int zeile, int kind) {
  const auto zahl = [&](int spalte) { return Zahl_von(mappe.Zelle(zeile, spalte)); };
  const Ziel ziel = Ziel_von(kind);
  setze_oder_leere(tabelle, zeile, ziel.erstes_Paar, Paar(zahl(D), zahl(E), 0.05));
  setze_oder_leere(tabelle, zeile, ziel.zweites_Paar, Paar(zahl(F), zahl(G), 0));
  if (kind == 1) setze_oder_leere(tabelle, zeile, Spalte::t_Exp, zahl(H));
}

/// Allots the table's rows before `ende`; what stands behind them goes.
void bemessen(Messtabelle& tabelle, int ende) {
  tabelle.setze_Zeilenzahl(std::max(ende - 1, Messtabelle::Mindestzeilen));
  for (int zeile = ende; zeile <= tabelle.Zeilenzahl(); ++zeile) tabelle.leeren(zeile);
}

std::string Name_von(const Arbeitsmappe& mappe) {
  const auto* text = std::get_if<std::string>(&mappe.Range("E5"));
  return text != nullptr && ist_leer(Zahl_von(*text)) ? *text : std::string();
}

}  // namespace

Importergebnis Messimport::Testo_Excel_import(std::string_view path, Arbeitsmappenleser& leser,
                                              int kind) {
  Importergebnis ergebnis;
  const auto mappe = oeffne(path, leser, ergebnis.grund);
  if (!mappe) return ergebnis;
  ergebnis = Testo_Blatt(*mappe, path, kind);
  vergleiche(path, Importform::Testo, Blattform_von(*mappe), ergebnis);
  return ergebnis;
}

Importergebnis Messimport::Testo_Blatt(const Arbeitsmappe& mappe, std::string_view path, int kind) {
  Importergebnis ergebnis;
  const int n = Datenende(mappe);
  if (n == Messtabelle::Erste)
    return {.grund = "The worksheet holds no data: columns D to H are empty in row 3."};
  if (!weiter(0, n)) return {.grund = Import_angehalten};

  Messtabelle& tabelle = messung_.DiaSpread;
  bemessen(tabelle, n);
  for (int zeile = Messtabelle::Erste; zeile < n; ++zeile) {
    tabelle.setze(zeile, Spalte::Zeilenkopf, std::to_string(zeile - Messtabelle::Erste + 1));
    if (tabelle.text(zeile, Spalte::Zeit).empty())
      tabelle.setze(zeile, Spalte::Zeit, laufende_Uhrzeit(zeile, messung_.Messintervall_s()));
    Zeile_setzen(mappe, tabelle, zeile, kind);
  }
  messung_.Mess_Zeilen = n - 2;
  ergebnis.Zeilen = n - Messtabelle::Erste;
  if (ergebnis.Zeilen == Zeilen_Arbeitsblatt && !ist_Ende(mappe, n))
    ergebnis.hinweis = Blatt_zu_lang;
  beenden(path, Name_von(mappe), ergebnis);
  return ergebnis;
}

}  // namespace polarkreis
