#pragma once

#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace polarkreis {

/// A cell of a written table: empty, a number, or a text.
using Tabellenzelle = std::variant<std::monostate, double, std::string>;

/// A plain table on its way out of the program.
struct Tabelle {
  std::string Name;                                ///< of the sheet, where the format has one
  std::vector<std::vector<std::string>> Kopf;      ///< rows of headings, none or more
  std::vector<std::vector<Tabellenzelle>> Zeilen;  ///< rows may be of different length
};

/// A text as a cell: a number where it reads as one from end to end, as the house writes numbers.
Tabellenzelle als_Tabellenzelle(std::string_view text);

}  // namespace polarkreis
