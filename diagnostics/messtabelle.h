#pragma once

#include <array>
#include <cstddef>
#include <memory>
#include <string>
#include <vector>

#include "diagnostics/spalten.h"

namespace polarkreis {

/// What of a row is shown in red.
enum Rot : unsigned { Rot_sh = 1, Rot_sc = 2, Rot_eta = 4 };

/// The measurement table: texts in rows and columns, both numbered from 1. Row 1 holds the
/// captions, row 2 the measuring points, row 3 is the first measured one. Column 0 is the row's
/// heading. A row without content takes no memory, a filled one about 5.5 kB.
class Messtabelle {
 public:
  static constexpr int Mindestzeilen = 200;
  static constexpr int Erste = 3;  ///< first measured row

  Messtabelle() { setze_Zeilenzahl(Mindestzeilen); }

  /// Rows allotted.
  int Zeilenzahl() const { return static_cast<int>(zeilen_.size()) - 1; }
  /// Allots so many rows: new ones are empty, surplus ones go with their content. Never below 3.
  void setze_Zeilenzahl(int anzahl);

  /// The cell's text; empty outside the table.
  const std::string& text(int zeile, int spalte) const;
  /// The cell as a number, through `Wert`.
  double zahl(int zeile, int spalte) const;
  /// Writes a cell; a row beyond the table is allotted, a column outside it is ignored.
  void setze(int zeile, int spalte, std::string text);
  /// Writes a number as the house writes it; one that is not finite leaves the cell as it was.
  void setze_Zahl(int zeile, int spalte, double zahl);

  /// True if one of the row's first ten cells holds a text: a row without one ends the data.
  bool gefuellt(int zeile) const;
  /// The last row of the unbroken run of filled rows that begins at row 3; 2 where there is none.
  int letzte_gefuellte() const;

  /// Inserts empty rows before `zeile`, or takes rows out; the rows below move.
  void einfuegen(int zeile, int anzahl);
  void entfernen(int zeile, int anzahl);
  /// Clears one row; all measured rows.
  void leeren(int zeile);
  void leeren();
  /// Row `ziel` becomes a copy of row `quelle`, its red marks included.
  void kopieren(int quelle, int ziel);

  /// Sum of `Rot` bits of a row.
  unsigned rot(int zeile) const;
  void setze_rot(int zeile, unsigned bits);

 private:
  struct Zeile {
    std::array<std::string, Spalte::Angelegt + 1> zellen;
    unsigned rot = 0;
  };
  bool da(int zeile) const;
  Zeile& hol(int zeile);

  std::vector<std::unique_ptr<Zeile>> zeilen_;  // index 0 isn't used
};

/// The table of the units: rows 1 to 7, columns 1 to 6.
class Einheitentabelle {
 public:
  static constexpr int Zeilen = 7, Spalten = 6;
  /// Its columns: list of functions, function, name, name of the unit, value (the flow of its
  /// secondary side), and a spare one that no file keeps.
  enum Spalte { Liste = 1, Funktion = 2, Name = 3, Einheit = 4, Wert = 5, Frei = 6 };

  std::string& operator()(int zeile, int spalte) {
    return zellen_[static_cast<std::size_t>(zeile - 1)][static_cast<std::size_t>(spalte - 1)];
  }
  const std::string& operator()(int zeile, int spalte) const {
    return zellen_[static_cast<std::size_t>(zeile - 1)][static_cast<std::size_t>(spalte - 1)];
  }
  bool operator==(const Einheitentabelle&) const = default;

  int Breite_Spalte_3 = 1500;  ///< width of column 3, as the file keeps it

 private:
  std::array<std::array<std::string, Spalten>, Zeilen> zellen_;
};

}  // namespace polarkreis
