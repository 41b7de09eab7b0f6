#include "ausgabe.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdio>

#include "konsole.h"
#include "shell/text.h"

namespace polarkreis::cli {

namespace {

constexpr std::size_t kNachkommastellen = 2;
constexpr std::string_view kAbstand = "  ";
// Wider cells would only tear the table apart; JSON has them whole.
constexpr std::size_t kZellbreite = 200;

bool ist_zahl(std::string_view text) {
  double value = 0;
  const auto [ende, fehler] = std::from_chars(text.data(), text.data() + text.size(), value);
  return fehler == std::errc() && ende == text.data() + text.size();
}

// A column is one of numbers if every cell with a text is one.
bool zahlenspalte(const Tabelle& tabelle, std::size_t spalte) {
  bool zahlen = false;
  for (const auto& zeile : tabelle.zeilen) {
    if (spalte >= zeile.size() || zeile[spalte].empty()) continue;
    if (!ist_zahl(zeile[spalte])) return false;
    zahlen = true;
  }
  return zahlen;
}

struct Spalte {
  std::size_t breite = 0;
  bool rechts = false;
};

std::vector<Spalte> spalten_von(const Tabelle& tabelle) {
  std::size_t anzahl = tabelle.kopf.size();
  for (const auto& zeile : tabelle.zeilen) anzahl = std::max(anzahl, zeile.size());
  std::vector<Spalte> spalten(anzahl);
  const auto messen = [&](const std::vector<std::string>& zeile) {
    for (std::size_t i = 0; i < zeile.size(); ++i)
      spalten[i].breite = std::max(spalten[i].breite, zeichenzahl(zeile[i]));
  };
  messen(tabelle.kopf);
  for (const auto& zeile : tabelle.zeilen) messen(zeile);
  for (std::size_t i = 0; i < anzahl; ++i) spalten[i].rechts = zahlenspalte(tabelle, i);
  return spalten;
}

void drucke_zeile(const std::vector<std::string>& zeile, const std::vector<Spalte>& spalten) {
  std::string text;
  for (std::size_t i = 0; i < zeile.size(); ++i) {
    if (i > 0) text += kAbstand;
    const std::string luecke(spalten[i].breite - zeichenzahl(zeile[i]), ' ');
    text += spalten[i].rechts ? luecke + zeile[i] : zeile[i] + luecke;
  }
  text = rechts_getrimmt(text);
  std::fprintf(stdout, "%s\n", text.c_str());
}

}  // namespace

Json zahl(double value) {
  if (!std::isfinite(value)) return nullptr;
  return value == 0 ? 0.0 : value;  // no "-0.0"
}

void drucke(const Json& json, bool einzeilig) {
  const std::string text =
      json.dump(einzeilig ? -1 : 2, ' ', false, Json::error_handler_t::replace);
  std::fwrite(text.data(), 1, text.size(), stdout);
  std::fputc('\n', stdout);
}

void drucke(const Tabelle& roh) {
  Tabelle tabelle = roh;
  for (auto& zeile : tabelle.zeilen)
    for (std::string& zelle : zeile) zelle = sichtbar(gekuerzt(zelle, kZellbreite));
  const std::vector<Spalte> spalten = spalten_von(tabelle);
  if (!tabelle.kopf.empty()) drucke_zeile(tabelle.kopf, spalten);
  for (const auto& zeile : tabelle.zeilen) drucke_zeile(zeile, spalten);
}

std::string anzeige(double value) {
  std::string ganz = Zahl_Text(value);
  const std::size_t punkt = ganz.find('.');
  // Figures far below one would be cut to nothing.
  const bool klein = std::abs(value) < 1;
  if (punkt == std::string::npos || ganz.size() - punkt - 1 <= kNachkommastellen) return ganz;
  if (!klein) return Zahl_Text(geschnitten(value));
  char text[32];
  std::snprintf(text, sizeof text, "%.4g", value);
  return Zahl_Text(Wert(text));
}

}  // namespace polarkreis::cli
