#pragma once

#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <variant>

namespace polarkreis {

/// A date or clock time: days, the fraction being the time of day.
struct Zeitwert {
  double Tage = 0;
  bool operator==(const Zeitwert&) const = default;
};

/// A worksheet's cell: empty, a number, a date or clock time, or a text.
using Zellinhalt = std::variant<std::monostate, double, Zeitwert, std::string>;

/// Row and column (both from 1) of a name such as "E5" or "CK25"; zeros for what is no name.
struct Zellort {
  int zeile = 0, spalte = 0;
};
Zellort Zellort_von(std::string_view name);

/// The cells of a workbook's first worksheet.
class Arbeitsmappe {
 public:
  /// The greatest row and column of any worksheet format.
  static constexpr int Hoechstzeile = 1'048'576, Hoechstspalte = 16'384;

  /// The cell of a name such as "CK25"; empty for one that isn't there.
  const Zellinhalt& Range(std::string_view name) const;
  const Zellinhalt& Zelle(int zeile, int spalte) const;
  /// Places beyond the greatest row and column are ignored, an empty cell takes no memory.
  void setze(int zeile, int spalte, Zellinhalt inhalt);
  /// The last row that holds something; 0 for an empty sheet.
  int letzte_Zeile() const { return zellen_.empty() ? 0 : zellen_.rbegin()->first.first; }

 private:
  std::map<std::pair<int, int>, Zellinhalt> zellen_;  // by row and column
};

/// Opens workbooks for reading.
class Arbeitsmappenleser {
 public:
  virtual ~Arbeitsmappenleser() = default;
  /// The workbook, or null, and in `grund` why: a sentence for the user.
  virtual std::unique_ptr<Arbeitsmappe> oeffne(const std::string& pfad, std::string& grund) = 0;
};

}  // namespace polarkreis
