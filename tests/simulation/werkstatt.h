#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "shell/text.h"
#include "simulation/ergebnis.h"
#include "support/temp_folder.h"
#include "support/test_dialog.h"

/// A planner's desk for one test: a data folder of its own, everything that a run needs, and the
/// supermarket sample as the project.
struct Werkstatt {
  TempOrdner ordner;
  TestDialog dialog;
  polarkreis::Meldungen log;
  polarkreis::Ablage ablage{ordner.pfad(), log};
  polarkreis::Captions captions{ablage};
  polarkreis::Kaeltemittel km{ablage};
  polarkreis::Kreis kreis{km};
  polarkreis::Klima klima{ablage, captions};
  polarkreis::WRG wrg{ablage, captions};
  polarkreis::Luftzustand luft{ablage};
  polarkreis::Projektdaten projekt{ablage, captions, km, dialog};
  polarkreis::Punkt punkt{kreis, captions, dialog};

  Werkstatt() {
    for (const auto& datei : std::filesystem::directory_iterator(POLARKREIS_DATA)) {
      std::filesystem::copy(datei.path(), ordner.pfad(datei.path().filename().string()));
    }
    captions.Sprache = "ENG";
    captions.Captions_Laden();
    oeffne("Supermarket medium temperature.prj");
  }

  void oeffne(const std::string& sample) {
    ASSERT_TRUE(projekt.Projekt_Oeffnen("SIM_PRO", ordner.pfad(sample)));
    km.z.RefName = projekt.KaelteM;
  }
  polarkreis::JahresLauf lauf() {
    return polarkreis::JahresLauf(
        polarkreis::Laufmittel{ablage, captions, kreis, klima, luft, wrg, dialog});
  }
  /// Makes the course and runs.
  polarkreis::Rechnung rechne() {
    EXPECT_TRUE(polarkreis::Kurs_machen(klima, projekt));
    polarkreis::JahresLauf jahr = lauf();
    return polarkreis::rechbutt(jahr, projekt, "EUR");
  }
  /// Runs a course of twelve equal months.
  polarkreis::Rechnung rechne_monat(const std::string& tag, const std::string& nacht,
                                    const std::string& last_tag, const std::string& last_nacht) {
    std::string kurs = "\"" + projekt.Land + "\"\r\n\"" + projekt.Stadt +
                       "\"\r\n\"\",\"\",\"\",\"\",\"\",\"\",\"\",\"\"\r\n";
    for (int m = 1; m <= 12; ++m) {
      for (const std::string& text : {captions.monat(m), tag, nacht, last_tag, last_nacht}) {
        kurs += "\"" + text + "\"\r\n";
      }
      for (int blank = 0; blank < 5; ++blank) kurs += "\"\"\r\n";
    }
    ordner.schreib("JG_Temp.dat", kurs);
    projekt.JG_fertig = true;
    polarkreis::JahresLauf jahr = lauf();
    return polarkreis::rechbutt(jahr, projekt, "EUR");
  }
  const std::string& text(polarkreis::JMapCap zeile) const { return captions.text(zeile); }
};
