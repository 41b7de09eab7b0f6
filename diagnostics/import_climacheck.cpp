#include <algorithm>
#include <array>
#include <span>
#include <utility>

#include "diagnostics/import.h"
#include "shell/wert.h"

namespace polarkreis {

namespace {

constexpr int Erste_Blattzeile = 25;
constexpr int Zeilen_je_Anzeige = 98;

struct Zuordnung {
  std::string_view blatt;
  int tabelle;
};
constexpr std::array<Zuordnung, 8> Temperaturen = {{{"Q", Spalte::t_SL},
                                                    {"CK", Spalte::t_Exp},
                                                    {"AO", Spalte::t_end},
                                                    {"AG", Spalte::t_liq},
                                                    {"E", Spalte::t_ein_Verd},
                                                    {"F", Spalte::t_aus_Verd},
                                                    {"V", Spalte::t_ein_Verfl},
                                                    {"W", Spalte::t_aus_Verfl}}};
constexpr std::array<Zuordnung, 2> Druecke = {{{"G", Spalte::p0}, {"X", Spalte::pc}}};
constexpr std::array<Zuordnung, 3> Spannungen = {
    {{"CH", Spalte::U_L1}, {"CI", Spalte::U_L2}, {"CJ", Spalte::U_L3}}};
constexpr std::array<Zuordnung, 3> Stroeme = {
    {{"CD", Spalte::I_L1}, {"CE", Spalte::I_L2}, {"CF", Spalte::I_L3}}};

/// A row of the sheet, seen by the letters of its columns.
class Blattzeile {
 public:
  Blattzeile(const Arbeitsmappe& mappe, int zeile) : mappe_(mappe), zeile_(std::to_string(zeile)) {}
  const Zellinhalt& operator()(std::string_view spalte) const {
    return mappe_.Range(std::string(spalte) + zeile_);
  }
  double zahl(std::string_view spalte) const { return Zahl_von((*this)(spalte)); }

 private:
  const Arbeitsmappe& mappe_;
  std::string zeile_;
};

/// True if the time cell reads 0, which ends the data. Midnight as a clock time is a time.
bool ist_Ende(const Zellinhalt& zelle) {
  if (std::holds_alternative<Zeitwert>(zelle)) return false;
  const auto* text = std::get_if<std::string>(&zelle);
  if (text != nullptr && Uhrzeit_von(*text)) return false;
  const double zahl = text != nullptr ? Wert(*text) : Zahl_von(zelle);
  return zahl == 0 || ist_leer(zahl);
}

std::string Zeit_Text(const Zellinhalt& zelle) {
  if (const auto* text = std::get_if<std::string>(&zelle)) {
    const auto uhr = Uhrzeit_von(*text);
    return uhr ? uhr->text : *text;
  }
  return Text_von(Zeitwert{Zahl_von(zelle)});
}

void Leistung(const Blattzeile& blatt, Messtabelle& tabelle, int zeile,
              const std::function<double(double)>& Cos_phi) {
  std::array<double, 3> I{}, U{};
  for (std::size_t k = 0; k < 3; ++k) {
    polarkreis::setze(I[k], blatt.zahl(Stroeme[k].blatt));
    polarkreis::setze(U[k], std::max(blatt.zahl(Spannungen[k].blatt), 0.0));
  }
  double Imax = I[0];
  if (I[1] > Imax) Imax = I[1];
  if (I[2] > I[1]) Imax = I[2];  // against the second one, not against the greatest so far
  tabelle.setze_Zahl(zeile, Spalte::P_el,
                     Int((U[0] * I[0] + U[1] * I[1] + U[2] * I[2]) * Cos_phi(Imax)) / 1000);
}

void Zeile_setzen(const Blattzeile& blatt, Messtabelle& tabelle, int zeile,
                  const std::function<double(double)>& Cos_phi) {
  for (const auto& [von, nach] : Temperaturen)
    tabelle.setze_Zahl(zeile, nach, geschnitten(blatt.zahl(von)));
  for (const auto& gruppe :
       {std::span<const Zuordnung>(Druecke), std::span<const Zuordnung>(Spannungen),
        std::span<const Zuordnung>(Stroeme)})
    for (const auto& [von, nach] : gruppe) tabelle.setze_Zahl(zeile, nach, blatt.zahl(von));
  Leistung(blatt, tabelle, zeile, Cos_phi);
}

}  // namespace

Importergebnis Messimport::CC_excel_Import(std::string_view path, Arbeitsmappenleser& leser,
                                           const std::function<double(double)>& Cos_phi) {
  Importergebnis ergebnis;
  const auto mappe = oeffne(path, leser, ergebnis.grund);
  if (!mappe) return ergebnis;
  ergebnis = ClimaCheck_Blatt(*mappe, path, Cos_phi);
  vergleiche(path, Importform::ClimaCheck, Blattform_von(*mappe), ergebnis);
  return ergebnis;
}

Importergebnis Messimport::ClimaCheck_Blatt(const Arbeitsmappe& mappe, std::string_view path,
                                            const std::function<double(double)>& Cos_phi) {
  Importergebnis ergebnis;
  Importtabelle neu(messung_);
  const int letzte = std::min(mappe.letzte_Zeile(), Erste_Blattzeile + Zeilen_Arbeitsblatt - 1);
  int n = Erste_Blattzeile;
  for (; n <= letzte; ++n) {
    const Blattzeile blatt(mappe, n);
    if (ist_Ende(blatt("D"))) break;
    if (n % Zeilen_je_Anzeige == 0 && !weiter(n, letzte)) return {.grund = Import_angehalten};
    Zeile_setzen(blatt, neu.tabelle, neu.beginne_Zeile(Zeit_Text(blatt("D"))), Cos_phi);
  }
  if (neu.Zeilen() == 0)
    return {.grund = "The worksheet holds no data: column D is empty in row 25."};
  ergebnis.Zeilen = neu.Zeilen();
  if (n > letzte && n <= mappe.letzte_Zeile()) ergebnis.hinweis = Blatt_zu_lang;
  std::move(neu).uebernehmen(messung_, n - (Erste_Blattzeile - 1));
  const std::string name = Text_von(mappe.Range("E5"));
  beenden(path, name.substr(0, name.find('.')), ergebnis);
  return ergebnis;
}

}  // namespace polarkreis
