#pragma once

#include <fcntl.h>
#include <poll.h>
#include <pty.h>
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <functional>
#include <string>
#include <thread>
#include <vector>

extern char** environ;

/// A program that goes on while the test looks on. It is killed with the object.
class Prozess {
 public:
  /// `rohre`: standard output and standard error are pipes, and standard input is empty.
  /// `terminal`: standard input and standard error are a terminal, standard output is a pipe.
  enum class Art { rohre, terminal };

  /// `befehl` begins with the program's path; `ordner` is its current folder (empty: the test's).
  explicit Prozess(std::vector<std::string> befehl, const std::string& ordner = {},
                   Art art = Art::rohre) {
    std::array<int, 2> aus{}, err{};
    if (::pipe2(aus.data(), O_CLOEXEC) != 0) return;
    const bool offen = art == Art::terminal ? terminal(err) : ::pipe2(err.data(), O_CLOEXEC) == 0;
    if (!offen) return;
    starte(std::move(befehl), ordner, art, aus[1], err[1]);
    ::close(aus[1]);
    ::close(err[1]);
    enden_ = {aus[0], err[0]};
    for (int ende : enden_) ::fcntl(ende, F_SETFL, O_NONBLOCK);
  }
  ~Prozess() {
    if (pid_ > 0) {
      ::kill(pid_, SIGKILL);
      ::waitpid(pid_, nullptr, 0);
    }
    for (int ende : enden_)
      if (ende >= 0) ::close(ende);
  }
  Prozess(const Prozess&) = delete;
  Prozess& operator=(const Prozess&) = delete;

  /// What it has written so far; on a terminal the error text is what that shows.
  const std::string& ausgabe() const { return texte_[0]; }
  const std::string& fehler() const { return texte_[1]; }

  /// Waits until the condition holds; false if the process ended before, or after a long while.
  bool warte_auf(const std::function<bool()>& bedingung) {
    for (int n = 0; n < kGeduld; ++n) {
      lies();
      if (bedingung()) return true;
      if (beendet()) {
        lies();
        return bedingung();
      }
      schlafe(5);
    }
    return false;
  }
  bool warte_auf_ausgabe(const std::string& teil) {
    return warte_auf([&] { return ausgabe().find(teil) != std::string::npos; });
  }
  /// Whole lines on standard output.
  int zeilen() const {
    int anzahl = 0;
    for (char c : ausgabe()) anzahl += c == '\n' ? 1 : 0;
    return anzahl;
  }
  bool warte_auf_zeilen(int anzahl) {
    return warte_auf([&] { return zeilen() >= anzahl; });
  }

  void signal(int nummer) const {
    if (pid_ > 0) ::kill(pid_, nummer);
  }
  /// Types into the terminal.
  bool tippe(const std::string& text) const {
    return ::write(enden_[1], text.data(), text.size()) == static_cast<ssize_t>(text.size());
  }
  /// Waits for the end: exit status, or 128 + n after signal n; -1 if it doesn't end.
  int ende() {
    for (int n = 0; n < kGeduld && !beendet(); ++n) {
      lies();
      schlafe(5);
    }
    lies();
    return status_;
  }
  static void schlafe(int ms) { std::this_thread::sleep_for(std::chrono::milliseconds(ms)); }

 private:
  static constexpr int kGeduld = 24000;  // looks of 5 ms: two minutes

  static bool terminal(std::array<int, 2>& enden) {
    if (::openpty(enden.data(), enden.data() + 1, nullptr, nullptr, nullptr) != 0) return false;
    for (int ende : enden) ::fcntl(ende, F_SETFD, FD_CLOEXEC);
    return true;
  }

  void starte(std::vector<std::string> befehl, const std::string& ordner, Art art, int aus,
              int err) {
    std::vector<char*> argv;
    for (std::string& a : befehl) argv.push_back(a.data());
    argv.push_back(nullptr);
    posix_spawn_file_actions_t schritte;
    ::posix_spawn_file_actions_init(&schritte);
    if (art == Art::terminal)
      ::posix_spawn_file_actions_adddup2(&schritte, err, 0);
    else
      ::posix_spawn_file_actions_addopen(&schritte, 0, "/dev/null", O_RDONLY, 0);
    ::posix_spawn_file_actions_adddup2(&schritte, aus, 1);
    ::posix_spawn_file_actions_adddup2(&schritte, err, 2);
    if (!ordner.empty()) ::posix_spawn_file_actions_addchdir_np(&schritte, ordner.c_str());
    if (::posix_spawn(&pid_, argv.front(), &schritte, nullptr, argv.data(), environ) != 0) pid_ = 0;
    ::posix_spawn_file_actions_destroy(&schritte);
  }

  void lies() {
    std::array<char, 65536> puffer{};
    for (std::size_t i = 0; i < enden_.size(); ++i)
      for (ssize_t n = 1; enden_[i] >= 0 && n > 0;) {
        n = ::read(enden_[i], puffer.data(), puffer.size());
        if (n > 0) texte_[i].append(puffer.data(), static_cast<std::size_t>(n));
      }
  }

  bool beendet() {
    if (pid_ <= 0) return true;
    int stand = 0;
    if (::waitpid(pid_, &stand, WNOHANG) != pid_) return false;
    pid_ = 0;
    status_ = WIFEXITED(stand) ? WEXITSTATUS(stand) : 128 + WTERMSIG(stand);
    return true;
  }

  pid_t pid_ = 0;
  int status_ = -1;
  std::array<int, 2> enden_{-1, -1};
  std::array<std::string, 2> texte_;
};
