#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <variant>

namespace polarkreis {

/// A worksheet's cell: empty, a number, or a text. Dates are the numbers that stand in the file.
using Zellinhalt = std::variant<std::monostate, double, std::string>;

/// An open workbook; cells are those of its first sheet.
class Arbeitsmappe {
 public:
  virtual ~Arbeitsmappe() = default;
  /// The cell of a name such as "E5" or "CK25"; empty for one that isn't there.
  virtual Zellinhalt Range(std::string_view name) const = 0;
  /// True if the cell's number is formatted as a date or a clock time.
  virtual bool ist_Zeit(std::string_view name) const = 0;
  /// The last row that holds something.
  virtual int letzte_Zeile() const = 0;
};

/// Opens workbooks for reading.
class Arbeitsmappenleser {
 public:
  virtual ~Arbeitsmappenleser() = default;
  /// The workbook, or null, and why in `grund`.
  virtual std::unique_ptr<Arbeitsmappe> oeffne(const std::string& pfad, std::string& grund) = 0;
};

}  // namespace polarkreis
