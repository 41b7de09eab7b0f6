#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "shell/ablage.h"
#include "shell/captions.h"
#include "shell/items.h"
#include "shell/meldungen.h"
#include "simulation/projektdaten.h"
#include "support/temp_folder.h"
#include "support/test_dialog.h"

/// A data folder of a test's own with the English and German captions, and the project form.
struct ProjektDesk {
  TempOrdner folder;
  polarkreis::Meldungen log;
  polarkreis::Ablage ablage{folder.pfad(), log};
  polarkreis::Captions captions{ablage};
  polarkreis::Kaeltemittel km{ablage};
  TestDialog dialog;
  polarkreis::Projektdaten form{ablage, captions, km, dialog};

  explicit ProjektDesk(std::string_view language = "ENG") {
    for (const char* stem : {"SoleCapt", "Caption", "AirCoCap", "JMapCap", "heatcap", "PEDcap"})
      for (const char* code : {"ENG", "GER"}) copy(std::string(stem) + "." + code);
    copy("ENG.dat");
    copy("GER.dat");
    captions.Sprache = language;
    captions.Captions_Laden();
  }

  /// Copies a file of the project's data folder.
  void copy(const std::string& name) const {
    std::filesystem::copy_file(std::filesystem::path(POLARKREIS_DATA) / name, folder.pfad(name));
  }

  std::string j(int line) const { return captions.text(polarkreis::Stamm::JMapCap, line); }
  std::string h(int line) const { return captions.text(polarkreis::Stamm::heatcap, line); }
  std::string p(int line) const { return captions.text(polarkreis::Stamm::PEDcap, line); }
  std::string c(int line) const { return captions.text(polarkreis::Stamm::Caption, line); }
  std::string a(int line) const { return captions.text(polarkreis::Stamm::AirCoCap, line); }
  std::string s(int line) const { return captions.text(polarkreis::Stamm::SoleCapt, line); }

  /// Writes a project file of the folder: the header line and the items.
  void write_project(std::string_view name, std::string_view tag,
                     const std::vector<std::string>& items, std::string_view third = "") const {
    std::string content;
    polarkreis::zeile_anhaengen(content, {"Header name", "Header text", third, tag});
    for (const std::string& item : items) polarkreis::zeile_anhaengen(content, {item});
    folder.schreib(name, content);
  }
};

/// The English project of a cold room, in file order.
inline std::vector<std::string> english_items() {
  return {"R134a",
          "50",
          "-10",
          "35",
          "Cold room",
          "medium",
          "medium",
          "medium",
          "normal",
          "Medium temperature",
          "Moderately maintained",
          "Slightly undercharged",
          "large",
          "low",
          "",
          "Semi-hermetic",
          "Stepped, several units",
          "25 °C",
          "Germany",
          "Berlin",
          "0",
          "Electronic expansion valve",
          "ENG",
          "1,5",
          "Continuous",
          "2.5",
          "Two speeds",
          "1",
          "1",
          "Screw",
          "45",
          "20",
          "60",
          "300",
          "1",
          "6",
          "Dairy",
          "Cold store \"North\", hall 2",
          "Two-stage - open intercooler",
          "48",
          "13",
          "",
          "Dry cooler Air-cooled/adiabt",
          "8",
          "0.7",
          "A"};
}

/// The same project as a German desk shows it.
inline std::vector<std::string> german_items() {
  std::vector<std::string> items = english_items();
  items[4] = "Kühlraum";
  items[5] = items[6] = items[7] = "mittel";
  items[9] = "Mitteltemperatur";
  items[10] = "Mäßig gewartet";
  items[11] = "Etwas zu wenig gefüllt";
  items[12] = "groß";
  items[13] = "niedrig";
  items[15] = "Halbhermetisch";
  items[16] = "Stufenweise, mehrere Einheiten";
  items[21] = "Elektronisches Expansionsventil";
  items[22] = "GER";
  items[24] = "Stetig";
  items[26] = "Zwei Drehzahlen";
  items[29] = "Schraube";
  items[38] = "Zweistufig - offener Zwischenkühler";
  items[42] = "Trockenkühler Luftgekühlt/adiabt";
  return items;
}
