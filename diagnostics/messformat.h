#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

#include "diagnostics/messung.h"
#include "shell/items.h"
#include "shell/warten.h"

namespace polarkreis {

/// The form of a measurement file: a heading of 100 lines, then 169 lines for each row of the
/// table.
inline constexpr int Kopfzeilen_Datei = 100;
/// Parts the row count from the language code, and the scale values from each other.
inline constexpr std::string_view Trenner_Sprache = "&$§";
inline constexpr std::string_view Trenner_Skala = "§$%";

/// Appends the heading; `zeilen` is the row count that it names.
void Kopf_anhaengen(std::string& text, const Messung& messung, int zeilen, std::string_view sprache,
                    const Zeitpunkt& jetzt);
/// A row as a file holds it, by column; index 0 is not used.
using Messzeile = std::array<std::string, Spalte::Gespeichert + 1>;
/// True if one of the first ten cells holds a text.
bool gefuellt(const Messzeile& zeile);

/// Appends the stored cells of a row, one a line.
void Messzeile_anhaengen(std::string& text, const Messtabelle& tabelle, int zeile);
void Messzeile_anhaengen(std::string& text, const Messzeile& zeile);

/// What a job shows at row n of so many: "17 / 8640".
std::string Zaehltext(int n, int anzahl);

/// A measurement file's content with a mark behind it, by which the reader knows where it was cut
/// off. A tail of NUL bytes, which a power failure leaves, is dropped.
std::string markiert(std::string inhalt);

/// Takes the items off a measurement file, and knows where the file was cut off. May be copied to
/// look ahead.
class Messleser {
 public:
  /// `text` comes from `markiert` and must outlive the reader.
  explicit Messleser(std::string_view text) : leser_(text) {}

  /// The next item, also one that was cut off; the empty text behind the end. Valid until the next
  /// call.
  std::string_view lies();
  /// The next row; false, and the row's content is of no use, where no whole one is left.
  bool lies_Zeile(Messzeile& zeile);
  /// True if the file ended before the last call could be served.
  bool am_Ende() const { return leser_.ende(); }
  /// True if the file ended within an item or a row.
  bool abgeschnitten() const { return abgeschnitten_; }
  /// True if an item with a text is left.
  bool noch_Text() const;

 private:
  bool lies_ganz(std::string_view& item);
  ItemLeser leser_;
  bool abgeschnitten_ = false;
};

/// What the heading tells beside the settings.
struct Dateikopf {
  int Zeilen = 0;       ///< the row count as it stands, at least `Messtabelle::Mindestzeilen`
  std::string Sprache;  ///< empty in an old file
};
/// Reads the heading into the measurement's settings; empty ones take their defaults, but for those
/// of the table of the units.
Dateikopf Kopf_lesen(Messleser& leser, Messung& messung);

/// Number of filled rows that the reader has before it.
int Zeilen_zaehlen(Messleser leser);

}  // namespace polarkreis
