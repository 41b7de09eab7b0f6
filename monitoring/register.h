#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "shell/ablage.h"

namespace polarkreis {

/// The columns of the plant register that are in use; a rule i (1 to 16) stands in
/// `Regelspalte(i)`.
enum class Registerspalte {
  ID = 1,  ///< monitoring ID: folder and file name on the server
  nm,      ///< name of the plant or customer
  st,      ///< street
  nu,      ///< house number
  ad,      ///< addition to the address
  co,      ///< postcode
  tw,      ///< town
  fn,      ///< refrigerant
  th,      ///< power threshold, kW
  pu,      ///< delay at start, min
  pd,      ///< delay at stop, min
  s1,      ///< first SMS number
  s2,      ///< second SMS number
  ml,      ///< e-mail address
  ip,      ///< FTP server address
  dr,      ///< FTP host name
  us,      ///< FTP user
  pw,      ///< FTP password, in the clear
  nt,      ///< notification route, as its text
  Server_Wahl,
  erste_Regel = 40
};

inline constexpr int Regelzahl = 16;

/// Server choices: the default FTP server, or the plant's own.
inline constexpr int Standardserver = 1, eigener_Server = 2;

/// The column of rule i, from 1.
inline constexpr int Regelspalte(int i) {
  return static_cast<int>(Registerspalte::erste_Regel) + i - 1;
}

/// The plant register: 100 rows by 100 columns of text, one row a plant. Empty rows are allowed,
/// and a cell is taken as it stands. Rows and columns count from 1.
class Register {
 public:
  static constexpr int Zeilen = 100;
  static constexpr int Spalten = 100;
  static constexpr std::string_view Datei = "FMD_M_Global.ini";

  /// The row that is chosen; none while it is 0.
  int ActiveRow = 0;
  /// The chosen row, or the first one where none is chosen.
  int aktive_Zeile() const { return innen(ActiveRow, 1) ? ActiveRow : 1; }

  /// A cell's text; the empty text outside the table.
  const std::string& zelle(int zeile, int spalte) const;
  const std::string& zelle(int zeile, Registerspalte spalte) const {
    return zelle(zeile, static_cast<int>(spalte));
  }
  /// Puts a text into a cell, bytes that are no UTF-8 as Windows-1252; nothing happens outside.
  void setze(int zeile, int spalte, std::string text);
  void setze(int zeile, Registerspalte spalte, std::string text) {
    setze(zeile, static_cast<int>(spalte), std::move(text));
  }

  /// The server choice of a row, 1 or 2; 0 for any other text.
  int Serverwahl(int zeile) const;

  /// The first row whose ID is this one, both trimmed; 0 if there is none. A blank ID is no one's.
  int suche(std::string_view ID) const;
  /// The first row with a blank ID; 0 if there is none.
  int freie_Zeile() const;
  /// True if no cell of the row holds anything.
  bool ist_leer(int zeile) const;

  /// Why the file that is there could not be read at the last reading; empty if it could, or if
  /// there is none. While it isn't, no save takes its place: that would lose every plant.
  std::string hindernis;
  /// Lines behind the last cell that the file had at the last reading: a save leaves them out.
  int ueberzaehlig = 0;

  /// Reads "FMD_M_Global.ini", one cell a line, row after row. A missing file leaves the table as
  /// it is, a shorter one the cells behind its end; lines beyond the last cell are counted in the
  /// message log. Reading never changes the file. False if there is no file or it can't be read.
  bool lies(Ablage& ablage);
  /// Writes the 10,000 cells, readable by their owner alone. False, and the old file whole, on a
  /// failure (see `Ablage::letzter_fehler`).
  bool schreib(Ablage& ablage) const;

 private:
  static bool innen(int zeile, int spalte) {
    return zeile >= 1 && zeile <= Zeilen && spalte >= 1 && spalte <= Spalten;
  }
  static std::size_t ort(int zeile, int spalte) {
    return static_cast<std::size_t>((zeile - 1) * Spalten + spalte - 1);
  }
  std::vector<std::string> zellen_ = std::vector<std::string>(Zeilen * Spalten);
};

}  // namespace polarkreis
