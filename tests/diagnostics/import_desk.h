#pragma once

#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "diagnostics/einheiten_funktion.h"
#include "diagnostics/import.h"
#include "support/temp_folder.h"

/// Keeps the steps that it was told, and asks to stop from one of them on.
class ImportFortschritt : public polarkreis::Fortschritt {
 public:
  std::vector<std::pair<int, int>> schritte;
  int halt_ab = 1'000'000;
  bool schritt(std::string_view, int nummer, int anzahl) override {
    schritte.emplace_back(nummer, anzahl);
    return static_cast<int>(schritte.size()) < halt_ab;
  }
};

/// Workbooks that a test puts together, by their path.
class TestMappen : public polarkreis::Arbeitsmappenleser {
 public:
  std::map<std::string, polarkreis::Arbeitsmappe> mappen;
  std::unique_ptr<polarkreis::Arbeitsmappe> oeffne(const std::string& pfad,
                                                   std::string& grund) override {
    const auto gefunden = mappen.find(pfad);
    if (gefunden != mappen.end())
      return std::make_unique<polarkreis::Arbeitsmappe>(gefunden->second);
    grund = "no such workbook";
    return nullptr;
  }
};

/// A folder, a measurement and its importer.
struct ImportDesk {
  TempOrdner ordner;
  polarkreis::Meldungen meldungen;
  polarkreis::Ablage ablage{ordner.pfad(), meldungen};
  polarkreis::Captions captions{ablage};
  polarkreis::Messung m;
  polarkreis::Kanaele kanaele{ablage};
  ImportFortschritt fortschritt;
  polarkreis::Messimport import{m, kanaele, ablage, captions, fortschritt};
  TestMappen mappen;

  polarkreis::Importergebnis adc(std::string_view inhalt, int teil = 0) {
    ordner.schreib("log.adc", inhalt);
    return import.DiaG_import(ordner.pfad("log.adc"), polarkreis::I_Logger, teil);
  }
  polarkreis::Importergebnis steuertext(std::string_view inhalt) {
    ordner.schreib("control.txt", inhalt);
    return import.DiaG_import(ordner.pfad("control.txt"), polarkreis::I_Steuertext);
  }
  const std::string& zelle(int zeile, int spalte) const { return m.DiaSpread.text(zeile, spalte); }
  bool gemeldet(std::string_view text) const {
    for (const std::string& zeile : meldungen.zeilen())
      if (zeile.find(text) != std::string::npos) return true;
    return false;
  }
  /// Gives the first unit a function that converts pressures.
  void funktion(std::string_view text) {
    m.OrbiN_spread(1, polarkreis::Einheitentabelle::Funktion) = text;
    m.OrbiN_spread(1, polarkreis::Einheitentabelle::Einheit) = "Orbiter 1";
  }
};

/// A line of a logger's file: stamp of 20 characters, then the values, each behind a tab.
inline std::string logger_zeile(std::string_view uhrzeit, const std::vector<std::string>& werte,
                                std::string_view ende = "\r\n") {
  std::string zeile = "02.03.2026  " + std::string(uhrzeit);
  for (const std::string& wert : werte) zeile += "\t" + wert;
  return zeile + std::string(ende);
}

/// So many lines whose position 9 counts them.
inline std::string logger_zeilen(int anzahl) {
  std::string text;
  for (int i = 1; i <= anzahl; ++i)
    text +=
        logger_zeile("06:00:00", {"1", "1", "1", "1", "1", "1", "1", "1", std::to_string(i % 150)});
  return text;
}

/// The numbers 1 to n as texts.
inline std::vector<std::string> zahlen(int n) {
  std::vector<std::string> alle;
  for (int i = 1; i <= n; ++i) alle.push_back(std::to_string(i));
  return alle;
}
