#include "platform/abgeschirmt.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/resource.h>
#include <sys/types.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <fstream>
#include <string_view>

#include "shell/deskriptor.h"

namespace polarkreis {

namespace {

#if defined(__SANITIZE_ADDRESS__)
constexpr bool Unter_Sanitizer = true;
#elif defined(__has_feature)
constexpr bool Unter_Sanitizer = __has_feature(address_sanitizer);
#else
constexpr bool Unter_Sanitizer = false;
#endif

void begrenze(int was, rlim_t grenze) {
  const rlimit beide{grenze, grenze};
  ::setrlimit(was, &beide);
}

/// The address space that this process has taken so far.
std::size_t Adressraum() {
  std::size_t seiten = 0;
  std::ifstream("/proc/self/statm") >> seiten;
  return seiten * static_cast<std::size_t>(::sysconf(_SC_PAGESIZE));
}

void begrenze(const Arbeitsgrenzen& grenzen) {
  begrenze(RLIMIT_CORE, 0);
  begrenze(RLIMIT_CPU, static_cast<rlim_t>(grenzen.sekunden));
  if (!Unter_Sanitizer) begrenze(RLIMIT_AS, Adressraum() + grenzen.speicher);
}

bool sende(int ziel, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t n = ::write(ziel, bytes.data(), bytes.size());
    if (n < 0 && errno != EINTR) return false;
    if (n > 0) bytes.remove_prefix(static_cast<std::size_t>(n));
  }
  return true;
}

/// Nobody is to read what a failing library has to say.
void verstumme() {
  const int nichts = ::open("/dev/null", O_WRONLY | O_CLOEXEC);
  if (nichts >= 0) ::dup2(nichts, STDERR_FILENO);
}

/// The child's whole life. It ends without the program's own clean-up, which is the parent's.
[[noreturn]] void kindprozess(const std::function<std::string()>& arbeit,
                              const Arbeitsgrenzen& grenzen, int ziel) {
  for (const int signal : {SIGSEGV, SIGBUS, SIGFPE, SIGILL, SIGABRT, SIGPIPE, SIGTERM, SIGINT})
    ::signal(signal, SIG_DFL);
  verstumme();
  begrenze(grenzen);
  bool gut = false;
  try {
    gut = sende(ziel, arbeit());
  } catch (...) {
  }
  ::_exit(gut ? 0 : 1);
}

/// Reads until the other side closes; false on too many bytes, or too late.
bool empfange(int quelle, const Arbeitsgrenzen& grenzen, std::string& bytes) {
  using Uhr = std::chrono::steady_clock;
  const auto schluss = Uhr::now() + std::chrono::seconds(grenzen.sekunden);
  std::array<char, 65536> puffer;
  for (;;) {
    const auto rest =
        std::chrono::duration_cast<std::chrono::milliseconds>(schluss - Uhr::now()).count();
    pollfd warten{quelle, POLLIN, 0};
    if (rest <= 0) return false;
    if (::poll(&warten, 1, static_cast<int>(rest)) <= 0) continue;
    const ssize_t n = ::read(quelle, puffer.data(), puffer.size());
    if (n == 0) return true;
    if (n < 0 && errno != EINTR) return false;
    if (n > 0) bytes.append(puffer.data(), static_cast<std::size_t>(n));
    if (bytes.size() > grenzen.ergebnis) return false;
  }
}

bool gut_beendet(pid_t kind) {
  int status = 0;
  while (::waitpid(kind, &status, 0) < 0)
    if (errno != EINTR) return false;
  return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

}  // namespace

std::optional<std::string> abgeschirmt(const std::function<std::string()>& arbeit,
                                       const Arbeitsgrenzen& grenzen) {
  std::array<int, 2> rohr{};
  if (::pipe2(rohr.data(), O_CLOEXEC) != 0) return std::nullopt;
  const platte::Deskriptor lesen(rohr[0]);
  platte::Deskriptor schreiben(rohr[1]);
  const pid_t kind = ::fork();
  if (kind == 0) kindprozess(arbeit, grenzen, rohr[1]);
  if (kind < 0) return std::nullopt;
  schreiben.schliesse();
  std::string ergebnis;
  const bool ganz = empfange(rohr[0], grenzen, ergebnis);
  if (!ganz) ::kill(kind, SIGKILL);
  if (!gut_beendet(kind) || !ganz) return std::nullopt;
  return ergebnis;
}

}  // namespace polarkreis
