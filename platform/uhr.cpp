#include "platform/uhr.h"

#include <time.h>

#include <cerrno>

namespace polarkreis {

namespace {

Zeitpunkt jetzt(tm* (*zerlege)(const time_t*, tm*)) {
  timespec zeit{};
  ::clock_gettime(CLOCK_REALTIME, &zeit);
  tm teile{};
  zerlege(&zeit.tv_sec, &teile);
  return {teile.tm_year + 1900,
          teile.tm_mon + 1,
          teile.tm_mday,
          teile.tm_hour,
          teile.tm_min,
          teile.tm_sec,
          static_cast<int>(zeit.tv_nsec / 1'000'000)};
}

}  // namespace

Zeitpunkt Systemuhr::Ortszeit() {
  return jetzt(&::localtime_r);
}

Zeitpunkt Systemuhr::UTC() {
  return jetzt(&::gmtime_r);
}

void Systemuhr::Warten(int n) {
  if (n <= 0) return;
  timespec rest{n / 1000, static_cast<long>(n % 1000) * 1'000'000};
  while (::nanosleep(&rest, &rest) != 0 && errno == EINTR) {
  }
}

}  // namespace polarkreis
