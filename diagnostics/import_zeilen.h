#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "diagnostics/arbeitsmappe.h"
#include "diagnostics/kanaele.h"
#include "diagnostics/messung.h"

/// What the importers of foreign files share.
namespace polarkreis {

/// Why an import was given up by the user.
inline constexpr const char* Import_angehalten = "The import was stopped.";
/// What is told of a worksheet that is longer than a measurement may be.
inline constexpr const char* Blatt_zu_lang =
    "Only the first 65000 rows were taken: please split the worksheet.";

/// The clock time in a text's head: "hh:mm:ss", the 8 characters that end 3 places past the second
/// ":" (an hour of one digit gets its 0), and where it ends.
struct Uhrzeit {
  std::string text;
  std::size_t ende = 0;
};
std::optional<Uhrzeit> Uhrzeit_von(std::string_view text);

/// Takes the lines off a text that hold more than blanks; CR LF, LF and CR end a line.
class Zeilenleser {
 public:
  explicit Zeilenleser(std::string_view text) : text_(text) {}
  bool lies(std::string_view& zeile);
  /// Where in the text the line begins that was read last.
  std::size_t anfang() const { return anfang_; }

 private:
  std::string_view text_;
  std::size_t anfang_ = 0, weiter_ = 0;
};

/// The table that an import fills: it takes the place of the old one when the import is complete.
class Importtabelle {
 public:
  /// The captions and measuring points are those of the old table.
  explicit Importtabelle(const Messung& messung);

  Messtabelle tabelle;

  /// Begins a row with its running number and clock time, and gives its number in the table.
  int beginne_Zeile(std::string uhrzeit);
  /// Rows begun so far.
  int Zeilen() const { return zeilen_; }
  /// Makes this the table of an otherwise empty measurement.
  void uebernehmen(Messung& messung, int Mess_Zeilen) &&;

 private:
  int zeilen_ = 0;
};

/// Puts the values of a line's positions into their columns: electrical values below 0 are 0,
/// temperatures and pressures get offset and conversion, and above 200 they are no measurement. A
/// value beyond the range of numbers leaves its cell as it was.
class Kanalzeile {
 public:
  /// `Sensor_Code_1`: function of the first unit.
  Kanalzeile(const Kanaele& kanaele, int Sensor_Code_1) : kanaele_(kanaele), code_(Sensor_Code_1) {}
  /// Values between runs of tabs, from position 1 on; positions above `letzte` are not read.
  void setze(Messtabelle& tabelle, int zeile, std::string_view werte, int letzte) const;

 private:
  void setze_Wert(Messtabelle& tabelle, int zeile, int position, double wert) const;
  const Kanaele& kanaele_;
  int code_;
};

/// The greatest temperature or pressure that counts as measured.
inline constexpr double Groesster_Messwert = 200;

/// A cell's number; empty for a cell without one. A text counts if it is a number as a whole, with
/// point or comma.
double Zahl_von(const Zellinhalt& zelle);
/// A cell's text as it reads: a number as the house writes it, a date or clock time as "hh:mm:ss".
std::string Text_von(const Zellinhalt& zelle);

/// The file's name without its path.
std::string_view Dateiname_von(std::string_view path);

}  // namespace polarkreis
