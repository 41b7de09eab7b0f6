#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "diagnostics/diagnostic.h"
#include "diagnostics/import_desk.h"
#include "diagnostics/logger_desk.h"

/// The form of the diagnostics on a data folder with the English texts and one refrigerant,
/// scripted ports, worksheets of a test's own, and a clock that takes no time.
struct DiagnosticDesk {
  TempOrdner ordner;
  polarkreis::Meldungen meldungen;
  polarkreis::Ablage ablage{ordner.pfad(), meldungen};
  polarkreis::Captions captions{ablage};
  TestDialog dialog;
  TestUhr uhr;
  TestEmpfaenger empfaenger;
  SkriptPort port;
  TestMappen mappen;
  ImportFortschritt fortschritt;
  polarkreis::Kaeltemittel km{ablage};
  polarkreis::Kreis kreis{km};
  polarkreis::Luftzustand luft{ablage};
  polarkreis::DiaGnostic form{mittel()};
  polarkreis::Messung& m = form.messung;

  DiagnosticDesk() {
    for (const auto& eintrag : std::filesystem::directory_iterator(POLARKREIS_DATA)) {
      const auto name = eintrag.path().filename();
      if (name.extension() == ".ENG" || name == "R134A.DAT")
        std::filesystem::create_symlink(eintrag.path(), ordner.pfad(name.string()));
    }
    captions.Captions_Laden();
    m.KaelteM = "R134A";
    m.Combo5 = "1 min";
  }

  polarkreis::Diagnosemittel mittel() {
    return {ablage, captions, kreis, luft, dialog, uhr, port, mappen, empfaenger, fortschritt};
  }
  /// A logger that answers at port 4.
  void logger_anschliessen() { port.geraete[4] = LoggerDesk::immer(LoggerDesk::antwort()); }
  /// The row of a small R134A plant that runs well, by position.
  static std::vector<std::string> laufend() {
    return {"230", "231", "232", "10", "10", "10", "1",  "9",
            "36",  "12",  "7",   "-4", "3",  "25", "30", "70"};
  }
  /// Lays down a logger's file of so many rows and gives its path.
  std::string adc(int zeilen) const {
    std::string text;
    for (int n = 0; n < zeilen; ++n)
      text += logger_zeile("06:00:0" + std::to_string(n % 10), laufend());
    ordner.schreib("log.adc", text);
    return ordner.pfad("log.adc");
  }
  const std::string& zelle(int spalte, int zeile = 3) const {
    return form.messung.DiaSpread.text(zeile, spalte);
  }
  double zahl(int spalte, int zeile = 3) const {
    return form.messung.DiaSpread.zahl(zeile, spalte);
  }
};
