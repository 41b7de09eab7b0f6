#pragma once

#include <array>
#include <filesystem>
#include <initializer_list>
#include <string>
#include <string_view>

#include "climate/klima.h"
#include "shell/ablage.h"
#include "shell/captions.h"
#include "shell/meldungen.h"
#include "support/temp_folder.h"

/// A data folder of a test's own with the English captions, and what reads it.
struct ClimateDesk {
  TempOrdner folder;
  polarkreis::Meldungen log;
  polarkreis::Ablage ablage{folder.pfad(), log};
  polarkreis::Captions captions{ablage};
  polarkreis::Klima klima{ablage, captions};

  explicit ClimateDesk(std::string_view language = "ENG") {
    for (const char* stem : {"VerbCapt", "SoleCapt", "Caption", "HXCapt", "AirCoCap", "JMapCap",
                             "heatcap", "DrawCap", "PEDcap"})
      copy(std::string(stem) + "." + std::string(language));
    captions.Sprache = language;
    captions.Captions_Laden();
  }

  /// Copies a file of the project's data folder.
  void copy(const std::string& name) const {
    std::filesystem::copy_file(std::filesystem::path(POLARKREIS_DATA) / name, folder.pfad(name));
  }
};

using Record = std::array<std::string, 10>;

/// Lines of one quoted text each, ended as the program ends them.
inline std::string quoted_lines(std::initializer_list<std::string_view> texts) {
  std::string content;
  for (const std::string_view text : texts) content.append("\"").append(text).append("\"\r\n");
  return content;
}

/// A whole city file: the records, then blank ones up to 50.
inline std::string city_file(std::initializer_list<Record> records) {
  std::string content;
  for (const Record& record : records)
    for (const std::string& item : record) content += "\"" + item + "\"\r\n";
  for (std::size_t blank = records.size() * 10; blank < 500; ++blank) content += "\"\"\r\n";
  return content;
}

/// The worked example of a place: 32 and 28 in summer, 10 K between day and night, 5 and -10 in
/// winter.
inline const Record example_city{"Probe", "32", "40", "10", "28", "55", "5", "-10", "120", "48,5"};
