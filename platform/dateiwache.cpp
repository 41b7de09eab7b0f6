#include "platform/dateiwache.h"

#include <linux/magic.h>
#include <sys/inotify.h>
#include <sys/stat.h>
#include <sys/vfs.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstring>
#include <filesystem>

#include "shell/deskriptor.h"

namespace polarkreis {

namespace {

constexpr std::uint32_t Ereignisse = IN_MODIFY | IN_ATTRIB | IN_CLOSE_WRITE | IN_CREATE |
                                     IN_DELETE | IN_MOVE | IN_DELETE_SELF | IN_MOVE_SELF;
/// After one of these the watch sees no more. (Notices lost to a full queue are one change.)
constexpr std::uint32_t Verlust = IN_IGNORED | IN_UNMOUNT | IN_DELETE_SELF | IN_MOVE_SELF;

/// Local file systems, where every change goes through this system.
bool sagt_jede_aenderung(const std::string& ordner) {
  struct statfs art {};
  if (::statfs(ordner.c_str(), &art) != 0) return false;
  switch (static_cast<std::uint32_t>(art.f_type)) {
    case EXT4_SUPER_MAGIC:  // and its elder brothers
    case XFS_SUPER_MAGIC:
    case BTRFS_SUPER_MAGIC:
    case TMPFS_MAGIC:
    case F2FS_SUPER_MAGIC:
    case OVERLAYFS_SUPER_MAGIC:
      return true;
    default:
      return false;
  }
}

class Dateiwache : public Aenderungswache {
 public:
  explicit Dateiwache(std::string ordner)
      : ordner_(std::move(ordner)),
        bote_(::inotify_init1(IN_NONBLOCK | IN_CLOEXEC)),
        wacht_(bote_ && ::stat(ordner_.c_str(), &stand_) == 0 &&
               ::inotify_add_watch(bote_.nummer(), ordner_.c_str(), Ereignisse | IN_ONLYDIR) >= 0 &&
               am_ort()),
        fest_(wacht_ && folge_den_ordnern_darueber()) {}

  bool wacht() const { return wacht_; }

  bool vielleicht_geaendert() override {
    const bool ereignis = boten_abgehoert();
    wacht_ = wacht_ && (fest_ || am_ort());
    return ereignis || !wacht_;
  }

 private:
  /// Takes all notices; true if there was one.
  bool boten_abgehoert() {
    alignas(inotify_event) std::array<char, 16384> puffer;
    bool ereignis = false;
    for (;;) {
      const ssize_t n = ::read(bote_.nummer(), puffer.data(), puffer.size());
      if (n < 0 && errno == EINTR) continue;
      if (n <= 0) {
        wacht_ = wacht_ && n < 0 && errno == EAGAIN;
        return ereignis;
      }
      ereignis = true;
      pruefe_verlust(puffer.data(), puffer.data() + n);
    }
  }

  void pruefe_verlust(const char* notiz, const char* ende) {
    while (notiz < ende) {
      inotify_event kopf{};
      std::memcpy(&kopf, notiz, sizeof kopf);
      if ((kopf.mask & Verlust) != 0) wacht_ = false;
      notiz += sizeof kopf + kopf.len;
    }
  }

  /// The path still leads to the watched folder: no folder above was moved, no link set elsewhere.
  bool am_ort() const {
    struct stat jetzt {};
    return ::stat(ordner_.c_str(), &jetzt) == 0 && jetzt.st_dev == stand_.st_dev &&
           jetzt.st_ino == stand_.st_ino;
  }

  /// Watches the folders above for being moved, so that the path needn't be followed at each check.
  /// A path through a link can change without them: it must be followed.
  bool folge_den_ordnern_darueber() const {
    namespace fs = std::filesystem;
    std::error_code fehler;
    fs::path weg = fs::absolute(ordner_, fehler).lexically_normal();
    if (!weg.has_filename()) weg = weg.parent_path();
    if (fehler || fs::canonical(weg, fehler) != weg || fehler) return false;
    for (fs::path oben = weg.parent_path();; oben = oben.parent_path()) {
      if (::inotify_add_watch(bote_.nummer(), oben.c_str(),
                              IN_MOVE_SELF | IN_DELETE_SELF | IN_ONLYDIR) < 0) {
        return false;
      }
      if (oben == oben.root_path()) return true;
    }
  }

  std::string ordner_;
  struct stat stand_ {};
  platte::Deskriptor bote_;
  bool wacht_;
  bool fest_;  // the path leads to the folder as long as no folder above is moved
};

}  // namespace

std::unique_ptr<Aenderungswache> Dateiwache_machen(const std::string& ordner) {
  if (!sagt_jede_aenderung(ordner)) return nullptr;
  auto wache = std::make_unique<Dateiwache>(ordner);
  if (!wache->wacht()) return nullptr;
  return wache;
}

}  // namespace polarkreis
