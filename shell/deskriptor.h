#pragma once

#include <unistd.h>

#include <cerrno>

namespace polarkreis::platte {

/// Owns an open file of the system.
class Deskriptor {
 public:
  explicit Deskriptor(int nummer) : nummer_(nummer) {}
  ~Deskriptor() {
    const int merker = errno;  // callers still ask for it
    if (nummer_ >= 0) ::close(nummer_);
    errno = merker;
  }
  Deskriptor(const Deskriptor&) = delete;
  Deskriptor& operator=(const Deskriptor&) = delete;

  explicit operator bool() const { return nummer_ >= 0; }
  int nummer() const { return nummer_; }
  /// Some file systems tell only here that a write failed.
  int schliesse() {
    const int ergebnis = ::close(nummer_) == 0 ? 0 : errno;
    nummer_ = -1;
    return ergebnis;
  }

 private:
  int nummer_;
};

}  // namespace polarkreis::platte
