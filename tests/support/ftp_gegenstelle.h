#pragma once

#include <fcntl.h>
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <sstream>
#include <string>
#include <string_view>
#include <thread>
#include <utility>
#include <vector>

#include "support/temp_folder.h"

extern char** environ;

/// A real FTP server on loopback with one account that may do everything, as a process of its own;
/// it is stopped with the object. Further arguments: see "ftp_gegenstelle.py --help".
class FtpGegenstelle {
 public:
  explicit FtpGegenstelle(std::vector<std::string> weitere = {}, std::string nutzer = "monitor",
                          std::string passwort = "geheim")
      : nutzer_(std::move(nutzer)), passwort_(std::move(passwort)) {
    std::array<int, 2> enden{};
    if (::pipe2(enden.data(), O_CLOEXEC) != 0) return;
    starte(std::move(weitere), enden[1]);
    ::close(enden[1]);
    port_ = erste_zeile(enden[0]);
    ::close(enden[0]);
  }
  ~FtpGegenstelle() { ende(); }
  FtpGegenstelle(const FtpGegenstelle&) = delete;
  FtpGegenstelle& operator=(const FtpGegenstelle&) = delete;

  /// False if it didn't start (its library is not installed).
  bool bereit() const { return !port_.empty(); }
  /// "127.0.0.1:port"
  std::string host() const { return "127.0.0.1:" + port_; }
  const std::string& nutzer() const { return nutzer_; }
  const std::string& passwort() const { return passwort_; }
  /// The folder that it serves as "/".
  const TempOrdner& wurzel() const { return wurzel_; }

  /// Every command so far, as it came: "USER monitor", "TYPE A", "STOR /html/K17", "QUIT" ...
  std::vector<std::string> protokoll() const {
    std::istringstream text(ablage_.lies("protokoll"));
    std::vector<std::string> zeilen;
    for (std::string zeile; std::getline(text, zeile);) zeilen.push_back(zeile);
    return zeilen;
  }
  /// How many commands begin like this; "USER" counts the logins.
  int anzahl(std::string_view beginn) const {
    const std::vector<std::string> zeilen = protokoll();
    return static_cast<int>(
        std::count_if(zeilen.begin(), zeilen.end(),
                      [&](const std::string& zeile) { return zeile.starts_with(beginn); }));
  }
  /// Waits until so many commands that begin like this have come; false after a long while.
  bool warte_auf(std::string_view beginn, int wie_viele = 1) const {
    constexpr int kBlicke = 6000;  // looks of 5 ms: half a minute
    for (int n = 0; n < kBlicke; ++n) {
      if (anzahl(beginn) >= wie_viele) return true;
      std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
    return false;
  }

  /// The server is gone from here on, in the midst of whatever it does.
  void ende() {
    if (pid_ <= 0) return;
    ::kill(pid_, SIGKILL);
    ::waitpid(pid_, nullptr, 0);
    pid_ = 0;
  }

 private:
  void starte(std::vector<std::string> weitere, int ausgabe) {
    std::vector<std::string> befehl{
        "/usr/bin/python3",  std::string(POLARKREIS_DATA) + "/../tests/support/ftp_gegenstelle.py",
        wurzel_.pfad(),      ablage_.pfad("protokoll"),
        "--user=" + nutzer_, "--password=" + passwort_};
    befehl.insert(befehl.end(), weitere.begin(), weitere.end());
    std::vector<char*> argv;
    for (std::string& a : befehl) argv.push_back(a.data());
    argv.push_back(nullptr);
    posix_spawn_file_actions_t schritte;
    ::posix_spawn_file_actions_init(&schritte);
    ::posix_spawn_file_actions_adddup2(&schritte, ausgabe, 1);
    if (::posix_spawn(&pid_, argv[0], &schritte, nullptr, argv.data(), environ) != 0) pid_ = 0;
    ::posix_spawn_file_actions_destroy(&schritte);
  }

  static std::string erste_zeile(int rohr) {
    std::string zeile;
    char zeichen = 0;
    while (::read(rohr, &zeichen, 1) == 1 && zeichen != '\n') zeile += zeichen;
    return zeile;
  }

  TempOrdner wurzel_;
  TempOrdner ablage_;  // the protocol's
  std::string nutzer_, passwort_, port_;
  pid_t pid_ = 0;
};
