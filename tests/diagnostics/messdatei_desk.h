#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "diagnostics/messdatei.h"
#include "diagnostics/messformat.h"
#include "shell/items.h"
#include "support/temp_folder.h"
#include "support/test_dialog.h"
#include "support/test_uhr.h"

/// A data folder of a test's own with the English and German captions, a measurement and its files.
struct MessdateiDesk {
  TempOrdner ordner;
  polarkreis::Meldungen meldungen;
  polarkreis::Ablage ablage{ordner.pfad(), meldungen};
  polarkreis::Captions captions{ablage};
  TestDialog dialog;
  TestUhr uhr;
  polarkreis::Messung m;
  polarkreis::Messdatei datei{m, ablage, captions, dialog, uhr};

  explicit MessdateiDesk(std::string_view sprache = "ENG") {
    for (std::size_t n = 0; n < polarkreis::Stammzahl; ++n)
      for (const char* code : {"ENG", "GER"}) {
        const auto stamm = static_cast<polarkreis::Stamm>(n);
        const std::string name = std::string(polarkreis::stammform(stamm).name) + "." + code;
        std::filesystem::copy_file(std::filesystem::path(POLARKREIS_DATA) / name,
                                   ordner.pfad(name));
      }
    captions.Sprache = sprache;
    captions.Captions_Laden();
  }

  /// Gives a row a clock time and the two pressures, which makes it a good one.
  void fuelle(int zeile, double p0 = 2, double pc = 10) {
    m.DiaSpread.setze(zeile, polarkreis::Spalte::Zeit, "12:00:" + std::to_string(10 + zeile % 50));
    m.DiaSpread.setze_Zahl(zeile, polarkreis::Spalte::p0, p0);
    m.DiaSpread.setze_Zahl(zeile, polarkreis::Spalte::pc, pc);
  }
  bool gemeldet(std::string_view text) const {
    for (const std::string& zeile : meldungen.zeilen())
      if (zeile.find(text) != std::string::npos) return true;
    return false;
  }
  const std::string& zelle(int zeile, int spalte) const { return m.DiaSpread.text(zeile, spalte); }
  /// Names of the folder's files of this ending.
  std::vector<std::string> dateien(std::string_view endung) const {
    return ablage.liste("", endung);
  }
};

/// The content of a measurement file, for tests to put together.
struct Messinhalt {
  std::vector<std::string> kopf = std::vector<std::string>(100);
  std::vector<std::vector<std::string>> zeilen;

  /// Line of the heading, from 1.
  std::string& operator()(int zeile) { return kopf.at(static_cast<std::size_t>(zeile - 1)); }
  /// Adds a row of these two pressures.
  std::vector<std::string>& zeile(std::string p0 = "2", std::string pc = "10") {
    std::vector<std::string> neu(169);
    neu[0] = "12:00:00";
    neu[1] = std::move(p0);
    neu[5] = std::move(pc);
    return zeilen.emplace_back(std::move(neu));
  }
  /// Sets a cell of the row that was added last.
  Messinhalt& zelle(int spalte, std::string text) {
    zeilen.back().at(static_cast<std::size_t>(spalte - 1)) = std::move(text);
    return *this;
  }
  std::string text() const {
    std::string text;
    for (const std::string& zeile : kopf) polarkreis::zeile_anhaengen(text, {zeile});
    for (const auto& zellen : zeilen)
      for (const std::string& zelle : zellen) polarkreis::zeile_anhaengen(text, {zelle});
    return text;
  }
};

/// Lays `inhalt` down as "test.fmd" and loads it.
inline polarkreis::Messdatei::Ladung lade(MessdateiDesk& desk, const Messinhalt& inhalt,
                                          polarkreis::Fortschritt* fortschritt = nullptr) {
  desk.ordner.schreib("test.fmd", inhalt.text());
  return desk.datei.LoadDiaG("test.fmd", fortschritt);
}
