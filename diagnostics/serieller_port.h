#pragma once

#include <string>
#include <string_view>

namespace polarkreis {

/// A serial line, chosen by its number. No operation stops the program: a failure shows in
/// `Fehler`, and a port that could not be opened takes what is written and gives nothing.
class SeriellerPort {
 public:
  virtual ~SeriellerPort() = default;
  /// The port that the next opening means: "COM" and the number.
  virtual void Port(int nummer) = 0;
  /// Baud, parity, data and stop bits: "9600,N,8,1".
  virtual void Einstellungen(std::string_view text) = 0;
  /// What an earlier conversation left in the line's buffer is dropped.
  virtual void Oeffnen() = 0;
  virtual void Schliessen() = 0;
  virtual void Schreiben(std::string_view text) = 0;
  /// All text received so far; empty where none has come yet. It doesn't wait for a reply to begin.
  virtual std::string Lesen() = 0;
  /// True if an operation since the last opening failed.
  virtual bool Fehler() const = 0;
};

}  // namespace polarkreis
