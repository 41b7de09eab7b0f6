#include "platform/ordnersperre.h"

#include <fcntl.h>
#include <sys/file.h>

namespace polarkreis {

Ordnersperre::Ordnersperre(const std::string& ordner, const std::function<void()>& warten)
    : ordner_(::open(ordner.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)) {
  if (!ordner_ || ::flock(ordner_.nummer(), LOCK_EX | LOCK_NB) == 0) return;
  if (errno != EWOULDBLOCK) return;
  if (warten) warten();
  while (::flock(ordner_.nummer(), LOCK_EX) != 0 && errno == EINTR) {
  }
}

}  // namespace polarkreis
