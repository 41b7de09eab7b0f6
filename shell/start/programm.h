#pragma once

#include <string>
#include <string_view>

#include "climate/feuchte_luft.h"
#include "climate/jahresgang.h"
#include "climate/klima.h"
#include "climate/wrg.h"
#include "cycle/kreis.h"
#include "refrigerant/kaeltemittel.h"
#include "shell/ablage.h"
#include "shell/captions.h"
#include "shell/dialog.h"
#include "shell/einstellungen.h"
#include "shell/meldungen.h"
#include "simulation/projektdaten.h"
#include "simulation/projladen.h"

namespace polarkreis {

/// The state of one run: one of each, in the order in which one needs the other. The program holds
/// one, a parameter study one a worker, a test as many as it likes. The message log stays in memory
/// until its folder is named (`Start` does), so that workers don't write one file together.
struct Programm {
  Programm(std::string datenordner, Dialog& user);
  Programm(const Programm&) = delete;
  Programm& operator=(const Programm&) = delete;

  /// Reads the shared settings, and the captions of `sprache`, or of the stored language where that
  /// is empty. Writes nothing.
  void laden(std::string_view sprache = {});

  Dialog& dialog;
  Meldungen meldungen;
  Ablage ablage;
  Einstellungen einstellungen;
  Captions captions;
  Kaeltemittel km;
  Kreis kreis;
  Klima klima;
  JahresGang jahresgang;
  WRG wrg;
  Luftzustand luft;
  Projektdaten projekt;
  ProjLaden projladen;
};

}  // namespace polarkreis
