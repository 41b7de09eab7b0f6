#pragma once

#include <nlohmann/json.hpp>
#include <sstream>
#include <string>
#include <vector>

#include "aufruf.h"

/// Hands lines to one `calc` and gives its answers, in order.
inline std::vector<nlohmann::json> rechne(const Datenkopie& daten,
                                          const std::vector<std::string>& zeilen) {
  std::string eingabe;
  for (const std::string& zeile : zeilen) eingabe += zeile + "\n";
  std::istringstream ausgabe(daten.rufe({"calc"}, eingabe).ausgabe);
  std::vector<nlohmann::json> antworten;
  for (std::string zeile; std::getline(ausgabe, zeile);)
    antworten.push_back(nlohmann::json::parse(zeile, nullptr, false));
  return antworten;
}

/// The answer to the last of the lines; null where an answer is missing.
inline nlohmann::json letzte(const Datenkopie& daten, const std::vector<std::string>& zeilen) {
  const auto antworten = rechne(daten, zeilen);
  return antworten.size() == zeilen.size() ? antworten.back() : nlohmann::json();
}

/// The result of one line in a fresh state.
inline nlohmann::json ergebnis(const Datenkopie& daten, const std::string& zeile) {
  return letzte(daten, {zeile}).value("result", nlohmann::json("no result"));
}
