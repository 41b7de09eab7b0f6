#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <stdio.h>
#include <sys/random.h>
#include <sys/stat.h>
#include <time.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdint>
#include <optional>

#include "shell/deskriptor.h"
#include "shell/platte.h"

namespace polarkreis::platte {

namespace {

/// Mode of a file that only its owner may read and write.
constexpr mode_t kNurEigner = 0600;

/// A write beyond the size that the system allows ends the program by a signal, unless the thread
/// holds it back: then it is an error like any other.
class Groessensignal_gesperrt {
 public:
  Groessensignal_gesperrt() {
    sigemptyset(&nur_dieses_);
    sigaddset(&nur_dieses_, SIGXFSZ);
    pthread_sigmask(SIG_BLOCK, &nur_dieses_, &vorher_);
  }
  ~Groessensignal_gesperrt() {
    const int merker = errno;
    const timespec sofort{};
    while (sigtimedwait(&nur_dieses_, nullptr, &sofort) == SIGXFSZ) {
    }
    pthread_sigmask(SIG_SETMASK, &vorher_, nullptr);
    errno = merker;
  }
  Groessensignal_gesperrt(const Groessensignal_gesperrt&) = delete;
  Groessensignal_gesperrt& operator=(const Groessensignal_gesperrt&) = delete;

 private:
  sigset_t nur_dieses_{};
  sigset_t vorher_{};
};

int schreib_alles(int datei, std::string_view inhalt) {
  const Groessensignal_gesperrt gesperrt;
  while (!inhalt.empty()) {
    const ssize_t n = ::write(datei, inhalt.data(), inhalt.size());
    if (n >= 0) {
      inhalt.remove_prefix(static_cast<std::size_t>(n));
    } else if (errno == EAGAIN) {
      pollfd bereit{datei, POLLOUT, 0};
      ::poll(&bereit, 1, -1);
    } else if (errno != EINTR) {
      return errno;
    }
  }
  return 0;
}

/// A hidden name that no other file has.
std::string kurzlebiger_name() {
  std::uint64_t zufall = 0;
  if (::getentropy(&zufall, sizeof zufall) != 0) {
    timespec jetzt{};
    ::clock_gettime(CLOCK_MONOTONIC, &jetzt);
    zufall = static_cast<std::uint64_t>(jetzt.tv_nsec) ^ static_cast<std::uint64_t>(::getpid());
  }
  return ".polarkreis-" + std::to_string(zufall);
}

/// The short-lived file that becomes the target: without a name where the system can do that (so
/// that not even a power failure leaves it behind), else under a hidden one.
class Kurzlebig {
 public:
  Kurzlebig(std::string ordner, bool namenlos)
      : ordner_(std::move(ordner)), datei_(oeffne(namenlos)) {}
  ~Kurzlebig() {
    if (!pfad_.empty()) ::unlink(pfad_.c_str());
  }
  Kurzlebig(const Kurzlebig&) = delete;
  Kurzlebig& operator=(const Kurzlebig&) = delete;

  explicit operator bool() const { return static_cast<bool>(datei_); }
  int nummer() const { return datei_.nummer(); }

  /// Puts it in the target's place in one step. `tausche` trades places with the file that is there
  /// and removes that: the system then doesn't wait for the disk as it does for a name that is
  /// replaced.
  int setze_an(const std::string& ziel, bool tausche) {
    if (pfad_.empty()) {
      const std::string quelle = "/proc/self/fd/" + std::to_string(datei_.nummer());
      const std::string pfad = im_ordner(ordner_, kurzlebiger_name());
      if (::linkat(AT_FDCWD, quelle.c_str(), AT_FDCWD, pfad.c_str(), AT_SYMLINK_FOLLOW) != 0)
        return errno;
      pfad_ = pfad;
    }
    if (const int fehler = datei_.schliesse(); fehler != 0) return fehler;
    if (tausche &&
        ::renameat2(AT_FDCWD, pfad_.c_str(), AT_FDCWD, ziel.c_str(), RENAME_EXCHANGE) == 0) {
      return 0;  // the old file goes with this object
    }
    if (::rename(pfad_.c_str(), ziel.c_str()) != 0) return errno;
    pfad_.clear();
    return 0;
  }

 private:
  int oeffne(bool namenlos) {
    if (namenlos) return ::open(ordner_.c_str(), O_TMPFILE | O_WRONLY | O_CLOEXEC, 0666);
    for (int versuch = 0;; ++versuch) {
      pfad_ = im_ordner(ordner_, kurzlebiger_name());
      const int datei = ::open(pfad_.c_str(), O_CREAT | O_EXCL | O_WRONLY | O_CLOEXEC, 0666);
      if (datei >= 0) return datei;
      pfad_.clear();
      if (errno != EEXIST || versuch == 100) return -1;
    }
  }

  std::string ordner_;
  std::string pfad_;  // empty while there is nothing to remove
  Deskriptor datei_;
};

/// The file at the end of a chain of links, whether it is there or not.
int ende_der_kette(std::string& pfad) {
  for (int glied = 0; glied < 40; ++glied) {
    std::array<char, 4096> ziel;
    const ssize_t n = ::readlink(pfad.c_str(), ziel.data(), ziel.size());
    if (n < 0) return 0;
    if (static_cast<std::size_t>(n) == ziel.size()) return ENAMETOOLONG;
    const std::string weiter(ziel.data(), static_cast<std::size_t>(n));
    pfad = weiter.starts_with('/') ? weiter : im_ordner(ort(pfad).ordner, weiter);
  }
  return ELOOP;
}

int schreib_direkt(const std::string& pfad, std::string_view inhalt) {
  Deskriptor datei(::open(pfad.c_str(), O_WRONLY | O_CLOEXEC | O_NOCTTY | O_NONBLOCK));
  if (!datei) return errno;
  if (const int fehler = schreib_alles(datei.nummer(), inhalt); fehler != 0) return fehler;
  return datei.schliesse();
}

/// Why a file that is there must not be replaced; 0 if it may.
int sperre(const std::string& pfad, const struct stat& alt) {
  if (S_ISDIR(alt.st_mode)) return EISDIR;
  if ((alt.st_mode & 0222) == 0) return Nur_lesbar;
  if (::faccessat(AT_FDCWD, pfad.c_str(), W_OK, AT_EACCESS) != 0) return errno;
  return 0;
}

/// Gives the new file owner and mode of the old one. The owner is a wish (only root may give files
/// away) and comes first, since a change of owner clears bits of the mode.
void uebernimm(int datei, const struct stat& alt, bool privat) {
  if (::fchown(datei, alt.st_uid, alt.st_gid) != 0) errno = 0;
  ::fchmod(datei, privat ? kNurEigner : (alt.st_mode & 07777));
}

int ersetze_regulaer(const std::string& ziel, std::string_view inhalt,
                     const std::optional<struct stat>& alt, bool sicher, bool privat,
                     bool namenlos) {
  const std::string ordner = ort(ziel).ordner;
  Kurzlebig neu(ordner, namenlos);
  if (!neu) return errno;
  if (privat) ::fchmod(neu.nummer(), kNurEigner);
  if (const int fehler = schreib_alles(neu.nummer(), inhalt); fehler != 0) return fehler;
  if (alt) uebernimm(neu.nummer(), *alt, privat);
  if (sicher && ::fsync(neu.nummer()) != 0) return errno;
  if (const int fehler = neu.setze_an(ziel, alt && !sicher); fehler != 0) return fehler;
  if (sicher) {
    const Deskriptor offen(::open(ordner.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (offen) ::fsync(offen.nummer());
  }
  return 0;
}

/// What file systems say that know no file without a name; no "/proc" ends in ENOENT.
bool namenlos_geht_nicht(int fehler) {
  return fehler == EOPNOTSUPP || fehler == EISDIR || fehler == EINVAL || fehler == ENOENT;
}

}  // namespace

int ersetze(const std::string& pfad, std::string_view inhalt, bool sicher, bool privat) {
  std::optional<struct stat> alt(std::in_place);
  if (::stat(pfad.c_str(), &*alt) != 0) {
    if (errno != ENOENT) return errno;
    alt.reset();
  }
  if (alt) {
    if (const int fehler = sperre(pfad, *alt); fehler != 0) return fehler;
    if (!S_ISREG(alt->st_mode)) return schreib_direkt(pfad, inhalt);
  }
  std::string ziel = pfad;
  if (const int fehler = ende_der_kette(ziel); fehler != 0) return fehler;
  if (ort(ziel).name.empty()) return EISDIR;
  const int fehler = ersetze_regulaer(ziel, inhalt, alt, sicher, privat, true);
  if (!namenlos_geht_nicht(fehler)) return fehler;
  return ersetze_regulaer(ziel, inhalt, alt, sicher, privat, false);
}

int lege_an(const std::string& pfad) {
  const Deskriptor datei(::open(pfad.c_str(), O_CREAT | O_EXCL | O_WRONLY | O_CLOEXEC, 0666));
  return datei ? 0 : errno;
}

int haenge_an(const std::string& pfad, std::string_view inhalt) {
  Deskriptor datei(::open(pfad.c_str(),
                          O_CREAT | O_APPEND | O_WRONLY | O_CLOEXEC | O_NOCTTY | O_NONBLOCK, 0666));
  if (!datei) return errno;
  if (const int fehler = schreib_alles(datei.nummer(), inhalt); fehler != 0) return fehler;
  return datei.schliesse();
}

int haenge_satz_an(const std::string& pfad, std::string_view satz, bool sicher) {
  Deskriptor datei(::open(pfad.c_str(),
                          O_CREAT | O_APPEND | O_WRONLY | O_CLOEXEC | O_NOCTTY | O_NONBLOCK, 0666));
  if (!datei) return errno;
  struct stat vorher {};
  if (::fstat(datei.nummer(), &vorher) != 0) return errno;
  if (S_ISREG(vorher.st_mode) && (vorher.st_mode & 0222) == 0) return Nur_lesbar;
  int fehler = schreib_alles(datei.nummer(), satz);
  if (fehler == 0 && sicher && ::fdatasync(datei.nummer()) != 0 && errno != EINVAL) fehler = errno;
  if (fehler != 0) {
    if (S_ISREG(vorher.st_mode) && ::ftruncate(datei.nummer(), vorher.st_size) != 0) return errno;
    return fehler;
  }
  return datei.schliesse();
}

int loesche(const std::string& pfad) {
  struct stat stand {};
  if (::lstat(pfad.c_str(), &stand) != 0) return errno == ENOENT ? 0 : errno;
  if (S_ISDIR(stand.st_mode)) return EISDIR;
  const bool gesperrt = S_ISREG(stand.st_mode) && (stand.st_mode & 0222) == 0;
  if (gesperrt) ::chmod(pfad.c_str(), (stand.st_mode & 07777) | 0200);
  if (::unlink(pfad.c_str()) == 0) return 0;
  const int fehler = errno;
  if (gesperrt) ::chmod(pfad.c_str(), stand.st_mode & 07777);
  return fehler;
}

}  // namespace polarkreis::platte
