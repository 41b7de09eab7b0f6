#pragma once

#include <nlohmann/json.hpp>
#include <string>
#include <string_view>
#include <vector>

#include "shell/wert.h"

namespace polarkreis::cli {

/// Keys keep the order in which they were set.
using Json = nlohmann::ordered_json;

/// A number, or null where it is empty.
Json zahl(double value);

/// Prints JSON in one piece with a line end; `einzeilig` for a stream of lines. Bytes that are no
/// UTF-8 are replaced.
void drucke(const Json& json, bool einzeilig = false);

/// Prints a table for people: columns as wide as their texts, numbers to the right. Cells may hold
/// texts of files: they are shown without control characters, and overlong ones are shortened.
struct Tabelle {
  std::vector<std::string> kopf;
  std::vector<std::vector<std::string>> zeilen;
};
void drucke(const Tabelle& tabelle);

/// A number for people: two decimals cut as displays are, or as it stands.
std::string anzeige(double value);

}  // namespace polarkreis::cli
