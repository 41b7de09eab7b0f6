#pragma once

#include <cstdint>
#include <functional>
#include <vector>

#include "shell/warten.h"

/// A clock that stands still but for the waits, which take no time: hours of running take
/// milliseconds. It starts at noon of 2 January 2026, local time one hour before UTC's clock.
class TestUhr : public polarkreis::Uhr {
 public:
  /// Every wait, in milliseconds, in order.
  std::vector<int> gewartet;
  /// Milliseconds since midnight of 2 January 2026 UTC.
  std::int64_t ms = 11LL * 3600 * 1000;
  /// Called at each wait, after it was noted (a test presses buttons here).
  std::function<void(int)> beim_warten;

  void Warten(int n) override {
    gewartet.push_back(n);
    if (n > 0) ms += n;
    if (beim_warten) beim_warten(n);
  }
  polarkreis::Zeitpunkt UTC() override { return zeit(ms); }
  polarkreis::Zeitpunkt Ortszeit() override { return zeit(ms + 3600 * 1000); }

 private:
  static polarkreis::Zeitpunkt zeit(std::int64_t stand) {
    const auto s = stand / 1000;
    const int tage = static_cast<int>(s / 86400);
    return {2026,
            1,
            2 + tage,
            static_cast<int>(s / 3600 % 24),
            static_cast<int>(s / 60 % 60),
            static_cast<int>(s % 60),
            static_cast<int>(stand % 1000)};
  }
};
