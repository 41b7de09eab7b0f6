#pragma once

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <filesystem>
#include <fstream>
#include <map>
#include <nlohmann/json.hpp>
#include <string>
#include <string_view>
#include <vector>

#include "support/temp_folder.h"

extern char** environ;

/// What one call of the command line gave.
struct Antwort {
  int status = -1;  ///< exit status; 128 + n after signal n
  std::string ausgabe, fehler;
  nlohmann::json json() const { return nlohmann::json::parse(ausgabe, nullptr, false); }
};

namespace aufruf_innen {

struct Leitung {
  std::array<int, 2> enden{-1, -1};
  Leitung() {
    if (::pipe2(enden.data(), O_CLOEXEC) != 0) enden = {-1, -1};
  }
  ~Leitung() {
    schliesse(0);
    schliesse(1);
  }
  Leitung(const Leitung&) = delete;
  Leitung& operator=(const Leitung&) = delete;
  void schliesse(std::size_t ende) {
    if (enden[ende] >= 0) ::close(enden[ende]);
    enden[ende] = -1;
  }
};

/// Feeds and empties the three streams until the outputs end.
inline void pumpe(Leitung& ein, std::string_view eingabe, Leitung& aus, std::string& ausgabe,
                  Leitung& err, std::string& fehler) {
  std::array<char, 65536> puffer{};
  if (eingabe.empty()) ein.schliesse(1);
  ::fcntl(ein.enden[1], F_SETFL, O_NONBLOCK);
  while (aus.enden[0] >= 0 || err.enden[0] >= 0) {
    std::array<pollfd, 3> warten{pollfd{aus.enden[0], POLLIN, 0}, pollfd{err.enden[0], POLLIN, 0},
                                 pollfd{ein.enden[1], POLLOUT, 0}};
    if (::poll(warten.data(), warten.size(), -1) < 0) return;
    const auto lesen = [&](std::size_t i, Leitung& von, std::string& ziel) {
      if (warten[i].revents == 0) return;
      const ssize_t n = ::read(von.enden[0], puffer.data(), puffer.size());
      if (n > 0)
        ziel.append(puffer.data(), static_cast<std::size_t>(n));
      else
        von.schliesse(0);
    };
    lesen(0, aus, ausgabe);
    lesen(1, err, fehler);
    if (warten[2].revents == 0) continue;
    const ssize_t n = ::write(ein.enden[1], eingabe.data(), eingabe.size());
    if (n > 0) eingabe.remove_prefix(static_cast<std::size_t>(n));
    if (n <= 0 || eingabe.empty()) ein.schliesse(1);
  }
}

}  // namespace aufruf_innen

/// Runs a program, named by its path, with the arguments behind it.
inline Antwort fuehre_aus(std::vector<std::string> befehl, std::string_view eingabe = {},
                          const std::string& ordner = {}, const char* ausgabedatei = nullptr) {
  using aufruf_innen::Leitung;
  Antwort antwort;
  ::signal(SIGPIPE, SIG_IGN);
  std::vector<char*> argv;
  for (std::string& a : befehl) argv.push_back(a.data());
  argv.push_back(nullptr);

  Leitung ein, aus, err;
  posix_spawn_file_actions_t schritte;
  ::posix_spawn_file_actions_init(&schritte);
  ::posix_spawn_file_actions_adddup2(&schritte, ein.enden[0], 0);
  if (ausgabedatei != nullptr)
    ::posix_spawn_file_actions_addopen(&schritte, 1, ausgabedatei, O_WRONLY, 0);
  else
    ::posix_spawn_file_actions_adddup2(&schritte, aus.enden[1], 1);
  ::posix_spawn_file_actions_adddup2(&schritte, err.enden[1], 2);
  if (!ordner.empty()) ::posix_spawn_file_actions_addchdir_np(&schritte, ordner.c_str());
  pid_t pid = 0;
  const int gestartet = ::posix_spawn(&pid, argv.front(), &schritte, nullptr, argv.data(), environ);
  ::posix_spawn_file_actions_destroy(&schritte);
  ein.schliesse(0);
  aus.schliesse(1);
  err.schliesse(1);
  if (gestartet != 0) return antwort;
  aufruf_innen::pumpe(ein, eingabe, aus, antwort.ausgabe, err, antwort.fehler);
  int stand = 0;
  ::waitpid(pid, &stand, 0);
  antwort.status = WIFEXITED(stand) ? WEXITSTATUS(stand) : 128 + WTERMSIG(stand);
  return antwort;
}

inline std::string programmpfad() {
  return std::string(POLARKREIS_BIN) + "/polarkreis-cli";
}

/// Runs the real program with these arguments. `eingabe` is its standard input, `ordner` its
/// current folder (empty: the test's), `ausgabedatei` takes standard output in place of a pipe.
inline Antwort rufe(std::vector<std::string> argumente, std::string_view eingabe = {},
                    const std::string& ordner = {}, const char* ausgabedatei = nullptr) {
  argumente.insert(argumente.begin(), programmpfad());
  return fuehre_aus(std::move(argumente), eingabe, ordner, ausgabedatei);
}

/// The same where no file may become larger than so many blocks of 512 bytes, as on a full disk.
inline Antwort rufe_mit_grenze(int bloecke, const std::vector<std::string>& argumente,
                               const std::string& ordner) {
  std::vector<std::string> befehl{"/bin/sh",
                                  "-c",
                                  "trap '' XFSZ; ulimit -f \"$1\"; shift; exec \"$@\"",
                                  "sh",
                                  std::to_string(bloecke),
                                  programmpfad()};
  befehl.insert(befehl.end(), argumente.begin(), argumente.end());
  return fuehre_aus(std::move(befehl), {}, ordner);
}

/// A copy of the delivered data folder, in English unless told otherwise.
struct Datenkopie : TempOrdner {
  Datenkopie() {
    namespace fs = std::filesystem;
    for (const auto& datei : fs::directory_iterator(POLARKREIS_DATA))
      if (datei.is_regular_file())
        fs::copy_file(datei.path(), pfad(datei.path().filename().string()));
  }
  /// Runs the program on this folder, which is its current one, too.
  Antwort rufe(const std::vector<std::string>& argumente, std::string_view eingabe = {},
               const std::string& sprache = "ENG") const {
    return ::rufe(hier(argumente, sprache), eingabe, pfad());
  }
  Antwort rufe_mit_grenze(int bloecke, const std::vector<std::string>& argumente) const {
    return ::rufe_mit_grenze(bloecke, hier(argumente, "ENG"), pfad());
  }
  /// Appends a hundred megabytes of this text, line by line.
  void verlaengere(const std::string& name, const std::string& zeile) const {
    std::string stueck;
    while (stueck.size() < 1'000'000) stueck += zeile;
    std::ofstream datei(pfad(name), std::ios::binary | std::ios::app);
    for (int i = 0; i < 100; ++i)
      datei.write(stueck.data(), static_cast<std::streamsize>(stueck.size()));
  }
  /// Puts another text in the place of an item of a project file (from 1, behind the heading).
  void setze_item(const std::string& name, int nummer, const std::string& text) const {
    std::string inhalt = lies(name);
    std::size_t ort = 0;
    for (int zeile = 0; zeile < nummer; ++zeile) ort = inhalt.find('\n', ort) + 1;
    inhalt.replace(ort, inhalt.find('\r', ort) - ort, "\"" + text + "\"");
    schreib(name, inhalt);
  }
  /// Every file's bytes by name, folders left out.
  std::map<std::string, std::string> inhalt() const {
    std::map<std::string, std::string> alle;
    for (const auto& datei : std::filesystem::directory_iterator(pfad()))
      if (datei.is_regular_file())
        alle[datei.path().filename().string()] = lies(datei.path().filename().string());
    return alle;
  }

 private:
  std::vector<std::string> hier(const std::vector<std::string>& argumente,
                                const std::string& sprache) const {
    std::vector<std::string> alle{"--data", pfad(), "--language", sprache};
    alle.insert(alle.end(), argumente.begin(), argumente.end());
    return alle;
  }
};
