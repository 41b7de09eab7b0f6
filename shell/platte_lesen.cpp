#include <dirent.h>
#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <filesystem>
#include <memory>

#include "shell/deskriptor.h"
#include "shell/platte.h"
#include "shell/text.h"

namespace polarkreis::platte {

Ort ort(const std::string& pfad) {
  const std::size_t strich = pfad.rfind('/');
  if (strich == std::string::npos) return {".", pfad};
  return {strich == 0 ? "/" : pfad.substr(0, strich), pfad.substr(strich + 1)};
}

int lies(const std::string& pfad, std::string& bytes) {
  // Not blocking, so that a pipe without a writer gives the empty text instead of a standstill.
  const Deskriptor datei(::open(pfad.c_str(), O_RDONLY | O_CLOEXEC | O_NOCTTY | O_NONBLOCK));
  struct stat stand {};
  if (!datei || ::fstat(datei.nummer(), &stand) != 0) return errno;
  if (S_ISDIR(stand.st_mode)) return EISDIR;
  if (stand.st_size > static_cast<off_t>(Hoechstgroesse)) return Zu_gross;
  std::string gelesen(static_cast<std::size_t>(stand.st_size) + 1, '\0');
  std::size_t laenge = 0;
  for (;;) {
    const ssize_t n = ::read(datei.nummer(), gelesen.data() + laenge, gelesen.size() - laenge);
    if (n == 0) break;
    if (n > 0) {
      laenge += static_cast<std::size_t>(n);
      if (laenge > Hoechstgroesse) return Zu_gross;
      if (laenge == gelesen.size()) gelesen.resize(2 * laenge + 4096);
    } else if (errno == EAGAIN) {
      pollfd bereit{datei.nummer(), POLLIN, 0};
      ::poll(&bereit, 1, -1);
    } else if (errno != EINTR) {
      return errno;
    }
  }
  gelesen.resize(laenge);
  bytes = std::move(gelesen);
  return 0;
}

namespace {

struct Ordnerschluss {
  void operator()(DIR* ordner) const { ::closedir(ordner); }
};

}  // namespace

std::string finde(const std::string& ordner, std::string_view name) {
  struct stat stand {};
  std::string genau(name);
  if (::lstat(im_ordner(ordner, genau).c_str(), &stand) == 0) return genau;
  const std::unique_ptr<DIR, Ordnerschluss> offen(::opendir(ordner.c_str()));
  if (!offen) return {};
  const std::string gesucht = gross(name);
  std::string gefunden;
  while (const dirent* eintrag = ::readdir(offen.get())) {
    const std::string_view andere = eintrag->d_name;
    if (gross(andere) == gesucht && (gefunden.empty() || andere < gefunden)) gefunden = andere;
  }
  return gefunden;
}

int mache_ordner(const std::string& ordner) {
  struct stat stand {};
  if (::stat(ordner.c_str(), &stand) == 0) return S_ISDIR(stand.st_mode) ? 0 : ENOTDIR;
  std::error_code fehler;
  std::filesystem::create_directories(ordner, fehler);
  return fehler.value();
}

int mache_privaten_ordner(const std::string& ordner) {
  if (const int fehler = mache_ordner(ordner); fehler != 0) return fehler;
  return ::chmod(ordner.c_str(), 0700) == 0 || errno == EPERM ? 0 : errno;
}

std::string grund(int fehler) {
  switch (fehler) {
    case Nur_lesbar:
      return "it is read-only. Clear its read-only mark or choose another name.";
    case Zu_gross:
      return "it is too large.";
    case ENOSPC:
    case EDQUOT:
      return "the disk is full. Free some space and try again.";
    case EFBIG:
      return "it would grow beyond the size allowed here. Choose another folder.";
    case EROFS:
      return "the disk is read-only. Choose another folder.";
    case EACCES:
    case EPERM:
      return "there is no permission. Ask for access or choose another folder.";
    case EISDIR:
      return "a folder has this name. Choose another name.";
    case ENOTDIR:
      return "a part of its path is a file, not a folder. Choose another folder.";
    case ENOENT:
      return "it is not there. Check the name and the folder.";
    case ENAMETOOLONG:
      return "its name is too long. Choose a shorter one.";
    case ELOOP:
      return "it is a link that leads to itself. Remove the link or choose another name.";
    default:
      return std::error_code(fehler, std::generic_category()).message() + ".";
  }
}

}  // namespace polarkreis::platte
