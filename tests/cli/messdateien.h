#pragma once

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "aufruf.h"

/// Measurement files as bytes, made and taken apart without the program's own routines.
namespace messdateien {

inline constexpr int kKopfzeilen = 100, kSpalten = 169;

/// The cells of a row by column; the others are empty.
using Zeile = std::map<int, std::string>;

/// Row n (from 0) of a deep-freeze store that runs steadily.
inline Zeile kuehlhaus(int n) {
  const int s = 5 * n;
  char zeit[16];
  std::snprintf(zeit, sizeof zeit, "%02d:%02d:%02d", 8 + s / 3600, s / 60 % 60, s % 60);
  return {{1, zeit},    {2, "1.3"},    {4, "-21"},    {5, "-16"},  {6, "16.5"},  {8, "78.2"},
          {9, "34.5"},  {14, "231.4"}, {15, "230.2"}, {16, "232"}, {17, "16.2"}, {18, "14.6"},
          {19, "14.7"}, {22, "-18.1"}, {23, "-22"},   {26, "24"},  {27, "29.9"}};
}

inline std::string zeile_text(const Zeile& zeile) {
  std::string text;
  for (int spalte = 1; spalte <= kSpalten; ++spalte) {
    const auto zelle = zeile.find(spalte);
    text += "\"" + (zelle == zeile.end() ? "" : zelle->second) + "\"\r\n";
  }
  return text;
}

/// A file of so many rows. Line 3 names `gezaehlt` rows.
struct Datei {
  int gezaehlt = 0;
  std::string KaelteM = "R404A", Combo3 = "Single-stage", Combo2 = "5s", Sprache = "ENG";
  std::vector<Zeile> zeilen{};

  std::string text() const {
    std::vector<std::string> kopf(kKopfzeilen);
    kopf[0] = "Cold store North";
    kopf[1] = "second rack";
    kopf[2] = std::to_string(gezaehlt) + "&$§" + Sprache;
    kopf[3] = "02.01.2026";
    kopf[4] = KaelteM;
    kopf[5] = "0";
    kopf[7] = Combo3;
    kopf[9] = " 1 h";
    kopf[11] = Combo2;
    std::string alles;
    for (const std::string& k : kopf) alles += "\"" + k + "\"\r\n";
    for (const Zeile& z : zeilen) alles += zeile_text(z);
    return alles;
  }
};

inline Datei kuehlhaus_datei(int zeilen) {
  Datei datei;
  datei.gezaehlt = zeilen + 2;
  for (int n = 0; n < zeilen; ++n) datei.zeilen.push_back(kuehlhaus(n));
  return datei;
}

/// The lines of a file without their quotes and line ends; a last line without its end is left out.
inline std::vector<std::string> items(const std::string& bytes) {
  std::vector<std::string> alle;
  for (std::size_t ort = 0, ende; (ende = bytes.find("\r\n", ort)) != std::string::npos;
       ort = ende + 2) {
    const std::string zeile = bytes.substr(ort, ende - ort);
    const bool gequotet = zeile.size() >= 2 && zeile.front() == '"' && zeile.back() == '"';
    alle.push_back(gequotet ? zeile.substr(1, zeile.size() - 2) : "not quoted: " + zeile);
  }
  return alle;
}

/// What a measurement file holds.
struct Inhalt {
  explicit Inhalt(const std::string& bytes) : alle(items(bytes)) {
    const int hinter_Kopf = static_cast<int>(alle.size()) - kKopfzeilen;
    ganze_Zeilen = hinter_Kopf < 0 ? 0 : hinter_Kopf / kSpalten;
    rest = hinter_Kopf < 0 ? -1 : hinter_Kopf % kSpalten;
    ganz = bytes.empty() || bytes.ends_with("\r\n");
  }
  /// The count that the heading names.
  int gezaehlt() const { return alle.size() > 2 ? std::stoi(alle[2]) : -1; }
  /// A cell of whole row n (from 0).
  const std::string& zelle(int n, int spalte) const {
    return alle.at(static_cast<std::size_t>(kKopfzeilen + n * kSpalten + spalte - 1));
  }

  std::vector<std::string> alle;
  int ganze_Zeilen = 0;
  int rest = 0;       ///< lines behind the last whole row; -1 without a whole heading
  bool ganz = false;  ///< the file ends with a line end
};

/// A cell of the figures that a command prints as JSON: its text, empty where it is; its number,
/// NaN where it is empty.
inline std::string zelle_text(const nlohmann::json& figuren, int zeile, int spalte) {
  const auto zellen = figuren.find("cells");
  if (zellen == figuren.end() || !zellen->contains(std::to_string(zeile))) return {};
  return (*zellen)[std::to_string(zeile)].value(std::to_string(spalte), "");
}
inline double zelle(const nlohmann::json& figuren, int zeile, int spalte) {
  const std::string text = zelle_text(figuren, zeile, spalte);
  return text.empty() ? std::nan("") : std::strtod(text.c_str(), nullptr);
}

}  // namespace messdateien

inline bool hat(const std::string& text, const std::string& teil) {
  return text.find(teil) != std::string::npos;
}
