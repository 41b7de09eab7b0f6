#pragma once

#include <poll.h>
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <string>
#include <vector>

extern char** environ;

/// The stand-in logger as a process of its own; it is stopped with the object.
class Stellvertreter {
 public:
  explicit Stellvertreter(std::vector<std::string> argumente) {
    std::array<int, 2> enden{};
    if (::pipe(enden.data()) != 0) return;
    starte(std::move(argumente), enden);
    ::close(enden[1]);
    geraet_ = erste_zeile(enden[0]);
    ::close(enden[0]);
  }
  ~Stellvertreter() {
    if (pid_ > 0) ende();
  }
  Stellvertreter(const Stellvertreter&) = delete;
  Stellvertreter& operator=(const Stellvertreter&) = delete;

  /// The device that it serves; empty if it didn't start.
  const std::string& geraet() const { return geraet_; }

  /// Stops it; its exit status, or 128 + n after signal n.
  int ende() {
    ::kill(pid_, SIGTERM);
    int stand = 0;
    ::waitpid(pid_, &stand, 0);
    pid_ = 0;
    return WIFEXITED(stand) ? WEXITSTATUS(stand) : 128 + WTERMSIG(stand);
  }

 private:
  void starte(std::vector<std::string> argumente, const std::array<int, 2>& enden) {
    argumente.insert(argumente.begin(), std::string(POLARKREIS_DATA) + "/../tools/logger_sim");
    std::vector<char*> argv;
    for (std::string& a : argumente) argv.push_back(a.data());
    argv.push_back(nullptr);
    posix_spawn_file_actions_t schritte;
    ::posix_spawn_file_actions_init(&schritte);
    ::posix_spawn_file_actions_adddup2(&schritte, enden[1], 1);
    ::posix_spawn_file_actions_addclose(&schritte, enden[0]);
    if (::posix_spawn(&pid_, argv[0], &schritte, nullptr, argv.data(), environ) != 0) pid_ = 0;
    ::posix_spawn_file_actions_destroy(&schritte);
  }

  static std::string erste_zeile(int leitung) {
    std::string zeile;
    char zeichen = 0;
    while (::read(leitung, &zeichen, 1) == 1 && zeichen != '\n') zeile += zeichen;
    return zeile;
  }

  pid_t pid_ = 0;
  std::string geraet_;
};
