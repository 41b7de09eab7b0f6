#pragma once

#include "shell/warten.h"

namespace polarkreis {

/// The system's clock; a program without an interface has nothing to yield to.
class Systemuhr : public Uhr {
 public:
  Zeitpunkt Ortszeit() override;
  Zeitpunkt UTC() override;
  /// Also waits to the end when a signal comes between; n <= 0 doesn't wait.
  void Warten(int n) override;
};

}  // namespace polarkreis
