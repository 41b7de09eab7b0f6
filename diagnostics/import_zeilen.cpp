#include "diagnostics/import_zeilen.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <utility>

#include "shell/text.h"
#include "shell/warten.h"
#include "shell/wert.h"

namespace polarkreis {

namespace {

constexpr std::size_t Kopflaenge = 20, Uhrzeitlaenge = 8;

bool ist_Uhrzeit(std::string_view text) {
  constexpr std::string_view Muster = "00:00:00";
  return std::ranges::equal(text, Muster, [](char zeichen, char muster) {
    return muster == ':' ? zeichen == ':' : zeichen >= '0' && zeichen <= '9';
  });
}

// A control character is as blank as a blank: a logger that lost its power leaves NUL bytes.
bool ist_leer(std::string_view zeile) {
  return std::ranges::all_of(zeile, [](char c) { return static_cast<unsigned char>(c) <= ' '; });
}

/// Takes the next value off a line: leading tabs are skipped, the next tab ends it.
bool nimm_Wert(std::string_view& rest, std::string_view& wert) {
  rest.remove_prefix(std::min(rest.find_first_not_of('\t'), rest.size()));
  if (rest.empty()) return false;
  wert = rest.substr(0, rest.find('\t'));
  rest.remove_prefix(wert.size());
  return true;
}

std::string Uhrzeit_Text(const Zeitwert& zeit) {
  constexpr double Tag_s = 86400;
  const double s = std::fmod(std::floor((zeit.Tage - std::floor(zeit.Tage)) * Tag_s + 0.5), Tag_s);
  const int sekunden = std::isfinite(s) ? static_cast<int>(s) : 0;
  Zeitpunkt punkt;
  punkt.Stunde = sekunden / 3600;
  punkt.Minute = sekunden / 60 % 60;
  punkt.Sekunde = sekunden % 60;
  return polarkreis::Uhrzeit_Text(punkt);
}

double ganze_Zahl(std::string text) {
  std::replace(text.begin(), text.end(), ',', '.');
  const std::string_view zahl = getrimmt(text);
  double wert = 0;
  const auto [ende, fehler] = std::from_chars(zahl.data(), zahl.data() + zahl.size(), wert);
  const bool ganz = fehler == std::errc{} && ende == zahl.data() + zahl.size();
  return ganz && std::isfinite(wert) ? wert : leer;
}

}  // namespace

std::optional<Uhrzeit> Uhrzeit_von(std::string_view text) {
  const std::string_view kopf = text.substr(0, Kopflaenge);
  const std::size_t erster = kopf.find(':');
  if (erster == std::string_view::npos) return std::nullopt;
  const std::size_t zweiter = kopf.find(':', erster + 1);
  if (zweiter == std::string_view::npos || zweiter + 3 > kopf.size()) return std::nullopt;
  Uhrzeit uhr{"", zweiter + 3};
  const std::size_t anfang = uhr.ende - std::min(uhr.ende, Uhrzeitlaenge);
  uhr.text = kopf.substr(anfang, uhr.ende - anfang);
  uhr.text.insert(0, Uhrzeitlaenge - uhr.text.size(), '0');
  if (uhr.text[0] < '0' || uhr.text[0] > '9') uhr.text[0] = '0';
  if (!ist_Uhrzeit(uhr.text)) return std::nullopt;
  return uhr;
}

bool Zeilenleser::lies(std::string_view& zeile) {
  while (weiter_ < text_.size()) {
    anfang_ = weiter_;
    const std::size_t ende = std::min(text_.find_first_of("\r\n", anfang_), text_.size());
    weiter_ = ende + 1;
    zeile = text_.substr(anfang_, ende - anfang_);
    if (!ist_leer(zeile)) return true;
  }
  return false;
}

Importtabelle::Importtabelle(const Messung& messung) {
  for (int zeile = 1; zeile < Messtabelle::Erste; ++zeile)
    for (int spalte = 0; spalte <= Spalte::Angelegt; ++spalte)
      tabelle.setze(zeile, spalte, messung.DiaSpread.text(zeile, spalte));
}

int Importtabelle::beginne_Zeile(std::string uhrzeit) {
  const int zeile = Messtabelle::Erste + zeilen_++;
  tabelle.setze(zeile, Spalte::Zeilenkopf, std::to_string(zeilen_));
  tabelle.setze(zeile, Spalte::Zeit, std::move(uhrzeit));
  return zeile;
}

void Importtabelle::uebernehmen(Messung& messung, int Mess_Zeilen) && {
  messung.DiaG_zurueck_setz();
  messung.DiaSpread = std::move(tabelle);
  messung.Mess_Zeilen = Mess_Zeilen;
}

void Kanalzeile::setze(Messtabelle& tabelle, int zeile, std::string_view werte, int letzte) const {
  std::string_view rest = links_getrimmt(werte), wert;
  for (int position = 1; position <= letzte && nimm_Wert(rest, wert); ++position)
    setze_Wert(tabelle, zeile, position, Wert(wert));
}

void Kanalzeile::setze_Wert(Messtabelle& tabelle, int zeile, int position, double wert) const {
  const int spalte = kanaele_.Chanel_festleg(position, 1);
  if (spalte <= 0) return;
  if (Kanalart_von(position) == Kanalart::elektrisch)
    return tabelle.setze_Zahl(zeile, spalte, wert < 0 ? 0 : wert);
  const int slot = kanaele_.Chanel_festleg(position, 3);
  if (slot > 0) wert += kanaele_.Offset_Wert[static_cast<std::size_t>(slot)];
  if (const auto kind = Wandlung(position, code_)) wert = P_convert(wert, *kind);
  if (wert > Groesster_Messwert)
    tabelle.setze(zeile, spalte, Kein_Messwert);
  else
    tabelle.setze_Zahl(zeile, spalte, wert);
}

double Zahl_von(const Zellinhalt& zelle) {
  if (const auto* zahl = std::get_if<double>(&zelle)) return *zahl;
  if (const auto* zeit = std::get_if<Zeitwert>(&zelle)) return zeit->Tage;
  if (const auto* text = std::get_if<std::string>(&zelle)) return ganze_Zahl(*text);
  return leer;
}

std::string Text_von(const Zellinhalt& zelle) {
  if (const auto* zahl = std::get_if<double>(&zelle)) return Zahl_Text(*zahl);
  if (const auto* zeit = std::get_if<Zeitwert>(&zelle)) return Uhrzeit_Text(*zeit);
  if (const auto* text = std::get_if<std::string>(&zelle)) return *text;
  return {};
}

std::string_view Dateiname_von(std::string_view path) {
  return path.substr(path.find_last_of("/\\") + 1);
}

}  // namespace polarkreis
