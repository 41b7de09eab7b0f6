#pragma once

#include <gtest/gtest.h>

#include <array>
#include <filesystem>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "shell/items.h"
#include "shell/start/start.h"
#include "support/temp_folder.h"
#include "support/test_dialog.h"
#include "support/test_uhr.h"

namespace polarkreis {

/// A suite of which the siblings are there or not; keeps the hand-over that lay ready at the start.
class TestGeschwister : public Programmstart {
 public:
  explicit TestGeschwister(const TempOrdner& daten) : daten_(daten) {}
  bool da = true;
  std::vector<std::string> gestartet;
  std::string uebergabe;
  bool starten(std::string_view programm) override {
    gestartet.emplace_back(programm);
    uebergabe = daten_.lies("FRIGData.dat");
    return da;
  }

 private:
  const TempOrdner& daten_;
};

/// A program on an empty data folder of its own.
struct StartTest : testing::Test {
  TempOrdner daten;
  TestDialog dialog;
  ::TestUhr uhr;
  TestGeschwister geschwister{daten};
  Programm programm{"", dialog};
  Start start{programm, uhr, geschwister};

  /// Copies delivered files into the data folder.
  void liefere(std::initializer_list<std::string_view> namen) const {
    for (const std::string_view name : namen)
      std::filesystem::copy_file(std::string(POLARKREIS_DATA) + "/" + std::string(name),
                                 daten.pfad(name));
  }
  void liefere_captions() const {
    for (const char* code : {".ENG", ".GER"})
      for (const char* stamm : {"VerbCapt", "SoleCapt", "Caption", "HXCapt", "AirCoCap", "JMapCap",
                                "heatcap", "DrawCap", "PEDcap"})
        liefere({std::string(stamm) + code});
  }
  /// Settings whose language is `code` and whose stored data folder is `ordner`.
  static std::string kparam(std::string_view code, std::string_view ordner = {}) {
    std::string text;
    zeile_anhaengen(text, {"", ordner, "", code, "", ""});
    return text;
  }
  /// A working project of 46 items: `Sprache` and `WartungI` as given, the others blank but for the
  /// refrigerant.
  static std::string arbeitsprojekt(std::string_view sprache, std::string_view wartung) {
    Projektsatz projekt;
    projekt.KaelteM = "R134A";
    projekt.Sprache = sprache;
    projekt.WartungI = wartung;
    std::string text;
    for (const Projektfeld& feld : Projektfelder()) zeile_anhaengen(text, {projekt.*feld.feld});
    return text;
  }
  static std::string item(const std::string& text, int nummer) {
    ItemLeser leser(text);
    for (int n = 1; n < nummer; ++n) leser.lies();
    return leser.lies();
  }
  bool starten(std::string_view sprache = {}) {
    Startangaben angaben;
    angaben.datenordner = daten.pfad();
    angaben.sprache = sprache;
    return start.starten(angaben);
  }
};

}  // namespace polarkreis
