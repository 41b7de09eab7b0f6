#include "platform/uhr.h"

#include <time.h>

#include <cerrno>

namespace polarkreis {

void Systemuhr::Warten(int n) {
  if (n <= 0) return;
  timespec rest{n / 1000, static_cast<long>(n % 1000) * 1'000'000};
  while (::nanosleep(&rest, &rest) != 0 && errno == EINTR) {
  }
}

}  // namespace polarkreis
