#pragma once

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>
#include <vector>

#include "diagnostics/messung.h"
#include "shell/captions.h"
#include "shell/warten.h"

/// A measurement of a few rows with the texts of a language, for what reads a computed table.
struct Messreihe {
  polarkreis::Meldungen log;
  polarkreis::Ablage ablage{POLARKREIS_DATA, log};
  polarkreis::Captions captions{ablage};
  polarkreis::Messung messung;

  explicit Messreihe(const std::string& sprache = "ENG") {
    captions.Sprache = sprache;
    captions.Captions_Laden();
    messung.Combo2 = "10s";
  }

  /// Rows from row 3 on with these clock times, all of them in use.
  void uhrzeiten(std::initializer_list<const char*> texte) { spalte(1, texte); }
  /// Fills a column from row 3 on.
  void spalte(int nummer, std::initializer_list<const char*> texte) {
    int zeile = polarkreis::Messtabelle::Erste;
    for (const char* text : texte) messung.DiaSpread.setze(zeile++, nummer, text);
    messung.Mess_Zeilen = messung.DiaSpread.letzte_gefuellte();
  }
};

/// What a long job told, and a user that stops it at a step.
struct Schrittzaehler : polarkreis::Fortschritt {
  std::vector<std::string> texte;
  std::vector<int> nummern;
  int anzahl = 0;
  int halt_bei = 0;
  bool schritt(std::string_view text, int nummer, int gesamt) override {
    texte.emplace_back(text);
    nummern.push_back(nummer);
    anzahl = gesamt;
    return nummer != halt_bei;
  }
};
