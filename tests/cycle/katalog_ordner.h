#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "cycle/katalog_datei.h"
#include "support/temp_folder.h"

/// A data folder with catalogues of its own. Texts are bytes of the code page 850.
struct Katalogordner : TempOrdner {
  polarkreis::Meldungen meldungen;
  polarkreis::Ablage ablage{pfad(), meldungen};
  polarkreis::Katalogdateien dateien{ablage};

  /// A component's record: its fields, one after the other in 40 characters each, and blanks.
  static std::string satz(const std::vector<std::string>& felder) {
    std::string bytes;
    for (const std::string& feld : felder) bytes += gefuellt(feld, 40);
    return gefuellt(bytes, 570);
  }
  static std::string gefuellt(std::string text, std::size_t laenge) {
    text.resize(laenge, ' ');
    return text;
  }
  /// Writes "<code>N.rdm": the records given by number, the others blank.
  void bauteile(const std::string& code,
                const std::map<int, std::vector<std::string>>& saetze) const {
    std::string bytes;
    for (int n = 1; n <= saetze.rbegin()->first; ++n)
      bytes += satz(saetze.contains(n) ? saetze.at(n) : std::vector<std::string>{});
    schreib(code + "N.rdm", bytes);
  }
  /// True if a line of the message log holds the text.
  bool gemeldet(std::string_view text) const { return meldungszahl(text) > 0; }
  int meldungszahl(std::string_view text) const {
    int anzahl = 0;
    for (const std::string& zeile : meldungen.zeilen())
      anzahl += zeile.find(text) != std::string::npos ? 1 : 0;
    return anzahl;
  }
};
