#pragma once

#include <string_view>

namespace polarkreis {

/// Starts the sibling programs of the suite.
class Programmstart {
 public:
  virtual ~Programmstart() = default;
  /// Starts a program by its name and doesn't wait for its end; false if there is none.
  virtual bool starten(std::string_view programm) = 0;
};

}  // namespace polarkreis
