#pragma once

#include <cmath>
#include <fstream>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include "shell/wert.h"

/// One line of a table of reference values: a name, and numbers by their column's name.
struct Referenzzeile {
  std::string name;
  std::map<std::string, double> werte;
  double operator()(const std::string& spalte) const { return werte.at(spalte); }
};

/// Reads tests/<datei>: comment lines, one line of column names, rows; "nan" is empty. Blanks in a
/// quoted name are kept.
inline std::vector<Referenzzeile> referenz_lesen(const std::string& datei) {
  const auto zerlegt = [](const std::string& zeile) {
    std::vector<std::string> teile;
    std::stringstream strom(zeile);
    for (std::string teil; std::getline(strom, teil, ',');) teile.push_back(teil);
    return teile;
  };
  std::ifstream strom(std::string(POLARKREIS_DATA) + "/../tests/" + datei);
  std::vector<std::string> spalten;
  std::vector<Referenzzeile> alle;
  for (std::string zeile; std::getline(strom, zeile);) {
    if (zeile.empty() || zeile[0] == '#') continue;
    const auto teile = zerlegt(zeile);
    if (spalten.empty()) {
      spalten = teile;
      continue;
    }
    Referenzzeile r;
    r.name = teile[0].front() == '"' ? teile[0].substr(1, teile[0].size() - 2) : teile[0];
    for (std::size_t i = 1; i < teile.size(); ++i)
      r.werte[spalten[i]] = teile[i] == "nan" ? polarkreis::leer : std::stod(teile[i]);
    alle.push_back(r);
  }
  return alle;
}

/// Equal to 1e-9 of the reference's magnitude; two empty values are equal.
inline bool wie_referenz(double wert, double referenz) {
  if (std::isnan(referenz) || std::isnan(wert)) return std::isnan(referenz) && std::isnan(wert);
  return std::abs(wert - referenz) <= 1e-9 * std::abs(referenz);
}
