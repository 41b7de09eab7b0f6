#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

struct sp_port;

namespace polarkreis {

/// How a serial line is set.
struct Leitungseinstellung {
  int baud = 9600;
  char paritaet = 'N';  ///< N, E, O, M or S
  int datenbits = 8;
  int stoppbits = 1;
  bool operator==(const Leitungseinstellung&) const = default;
};

/// From a text such as "9600,N,8,1"; fields that are left out at its end are those of this example.
/// Nothing for a text that is no such setting.
std::optional<Leitungseinstellung> Leitungseinstellung_lesen(std::string_view text);

/// An open serial line: raw bytes, no flow control. It never becomes the program's controlling
/// terminal, and no other program that keeps to the usual locks has it at the same time.
class Leitung {
 public:
  /// Opens a device, a link to one or a pseudo terminal, and drops what lies in its input buffer.
  /// Null, and why in `grund`, if that can't be done.
  static std::unique_ptr<Leitung> oeffne(const std::string& geraet,
                                         const Leitungseinstellung& einstellung,
                                         std::string& grund);
  /// Output that the line doesn't take in a fifth of a second is dropped.
  ~Leitung();
  Leitung(const Leitung&) = delete;
  Leitung& operator=(const Leitung&) = delete;

  /// False if the line is gone, or did not take all within a second.
  bool schreibe(std::string_view text, std::string& grund);
  /// Appends what has been received, without waiting. False if the line is gone; what it still gave
  /// is there.
  bool lies(std::string& text, std::string& grund);
  /// Waits for more, at most so long; true if something has come.
  bool kommt_noch(int ms) const;

 private:
  Leitung() = default;
  bool oeffne_port(const std::string& geraet, const Leitungseinstellung& einstellung,
                   std::string& grund);
  bool oeffne_terminal(const std::string& geraet, std::string& grund);
  bool sperre(std::string& grund) const;
  bool abgerissen() const;

  sp_port* port_ = nullptr;  // null for a terminal without modem lines
  int nummer_ = -1;
};

}  // namespace polarkreis
