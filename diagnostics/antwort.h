#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "diagnostics/kanaele.h"
#include "shell/wert.h"

namespace polarkreis {

/// The request for one sample; a line without a logger may give it back as its echo.
inline constexpr std::string_view Messbefehl = "ec %*\r";

/// True if a reply is worth working through: it doesn't begin with three blanks, is 25 to 600
/// characters long as received, and holds "ok".
bool Antwort_brauchbar(std::string_view antwort);

/// The class of the base unit that a reply tells: 1 it holds an "M", 2 an "A", in any case, else 0.
int Box_Typ_von(std::string_view antwort);

/// Takes the tokens off a reply, from left to right; their positions count from 1. A token ends at
/// the next blank, so two blanks in a row make an empty one. The last one ends at "ok", where no
/// blank follows and at least five characters are left. An echo of the request before the reply,
/// with or without a line feed behind it, is passed over.
class AntwortLeser {
 public:
  explicit AntwortLeser(std::string_view antwort);

  /// The next token; false at the end.
  bool lies(std::string_view& token);
  /// Position of the token read last.
  int Position() const { return position_; }

 private:
  bool abtrennen(std::size_t ende, std::size_t weiter, std::string_view& token);
  std::string_view rest_;
  int position_ = 0;
};

/// The last 8 of the first 19 characters: the clock time, where the token is one.
std::string_view Zeit_des_Tokens(std::string_view token);

/// Tells values that no plant can have, reply by reply: one object for each.
class Plausibilitaet {
 public:
  /// `Offset_Po` is the offset of position 7 in bar.
  explicit Plausibilitaet(double Offset_Po) : Offset_Po_(Offset_Po) {}
  /// True if the value of a position, as received, spoils the reply. To be called in the order of
  /// the positions: position 8 is judged together with position 7.
  bool verworfen(int position, double value);

 private:
  double Offset_Po_;
  double Po_ = leer;  // of position 7, as received
};

/// The value that a token stands for in the table, in its unit: electrical ones not below 0, the
/// others converted to the sensor that is there where `wandlung` says so, then `offset` added.
double Messwert_von(Kanalart art, double value, double offset, std::optional<int> wandlung);

/// The cell's text of a value from `Messwert_von`: "  -" for a temperature above 200 or below
/// -90 °C, and for a number that can't be written.
std::string Zellentext(Kanalart art, double messwert);

}  // namespace polarkreis
