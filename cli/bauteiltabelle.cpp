#include "bauteiltabelle.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "ausgabe.h"
#include "zahlen.h"

namespace polarkreis::cli {

namespace {

/// A text cut where it changes its meaning; `rest` is empty where it doesn't.
struct Teile {
  std::string anfang, rest;
};

Teile geteilt(const std::string& text, std::string_view trenner) {
  const std::size_t stelle = text.find(trenner);
  if (stelle == std::string::npos) return {text, {}};
  return {text.substr(0, stelle), text.substr(stelle + trenner.size())};
}

/// A part that no cell lacks and that is the same in all; else empty.
template <class Teil>
std::string gemeinsam(const std::vector<std::string>& zellen, Teil teil) {
  const std::string erster = teil(zellen.front());
  const auto derselbe = [&](const std::string& zelle) { return teil(zelle) == erster; };
  return std::ranges::all_of(zellen, derselbe) ? erster : std::string();
}

std::string beschriftung(const std::string& text) {
  const Teile teile = geteilt(text, ": ");
  return teile.rest.empty() ? std::string() : teile.anfang;
}

std::string einheit(const std::string& text) {
  const Teile teile = geteilt(text, " ");
  return zahl_aus(teile.anfang) ? teile.rest : std::string();
}

std::string ohne_beschriftung(std::size_t feld) {
  if (feld == 0) return "Model";
  return feld == 1 ? "Maker, series" : "Field " + std::to_string(feld + 1);
}

Spalte spalte(std::span<const Bauteil> bauteile, std::size_t feld) {
  Spalte s;
  for (const Bauteil& b : bauteile) s.zellen.push_back(b.Felder[feld]);
  s.kopf = gemeinsam(s.zellen, beschriftung);
  if (s.kopf.empty()) {
    s.kopf = ohne_beschriftung(feld);
    return s;
  }
  for (std::string& zelle : s.zellen) zelle = geteilt(zelle, ": ").rest;
  return s;
}

void einheit_in_den_kopf(Spalte& s) {
  const std::string alle = gemeinsam(s.zellen, einheit);
  if (alle.empty()) return;
  s.kopf += " [" + alle + "]";
  for (std::string& zelle : s.zellen) zelle = geteilt(zelle, " ").anfang;
}

/// Record, model, the caller's columns, the other fields.
std::vector<Spalte> spalten_von(std::span<const Bauteil> bauteile,
                                const std::vector<Spalte>& weitere) {
  std::vector<Spalte> alle{{"Record", {}}, spalte(bauteile, 0)};
  for (const Bauteil& b : bauteile) alle.front().zellen.push_back(std::to_string(b.Satz));
  alle.insert(alle.end(), weitere.begin(), weitere.end());
  for (std::size_t feld = 1; feld < Bauteil::Feldzahl; ++feld)
    alle.push_back(spalte(bauteile, feld));
  return alle;
}

}  // namespace

void drucke(std::span<const Bauteil> bauteile, const std::vector<Spalte>& weitere) {
  if (bauteile.empty()) return;
  Tabelle gleiches, tabelle;
  tabelle.zeilen.resize(bauteile.size());
  for (Spalte& s : spalten_von(bauteile, weitere)) {
    const auto wie_der_erste = [&](const std::string& zelle) { return zelle == s.zellen.front(); };
    if (std::ranges::all_of(s.zellen, wie_der_erste)) {
      if (!s.zellen.front().empty()) gleiches.zeilen.push_back({s.kopf, s.zellen.front()});
      continue;
    }
    einheit_in_den_kopf(s);
    tabelle.kopf.push_back(s.kopf);
    for (std::size_t i = 0; i < s.zellen.size(); ++i) tabelle.zeilen[i].push_back(s.zellen[i]);
  }
  drucke(gleiches);
  if (!tabelle.kopf.empty()) drucke(tabelle);
}

}  // namespace polarkreis::cli
