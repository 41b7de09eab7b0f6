#pragma once

#include <string_view>

namespace polarkreis {

/// Clock of the program: a test's clock makes hours take milliseconds.
class Uhr {
 public:
  virtual ~Uhr() = default;
  /// Pauses for n milliseconds and yields to the interface where there is one.
  virtual void Warten(int n) = 0;
};

/// What a long job reports to.
class Fortschritt {
 public:
  virtual ~Fortschritt() = default;
  /// A step of the job with its text; the named yield point. The desktop waits and repaints here,
  /// the command line only paints. False asks the job to stop.
  virtual bool schritt(std::string_view text, int nummer, int anzahl) = 0;
};

}  // namespace polarkreis
