#include "platform/prozess.h"

#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <filesystem>
#include <utility>

#include "shell/platte.h"
#include "shell/text.h"

namespace polarkreis {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view Programmendung = ".EXE";

std::string eigener_Ordner() {
  std::error_code fehler;
  const fs::path programm = fs::read_symlink("/proc/self/exe", fehler);
  return fehler ? std::string(".") : programm.parent_path().string();
}

bool ausfuehrbar(const fs::path& pfad) {
  std::error_code fehler;
  return fs::is_regular_file(pfad, fehler) && ::access(pfad.c_str(), X_OK) == 0;
}

}  // namespace

Prozessstart::Prozessstart(std::string ordner)
    : ordner_(ordner.empty() ? eigener_Ordner() : std::move(ordner)) {}

Prozessstart::~Prozessstart() {
  beendete_abholen();
}

std::string Prozessstart::finden(std::string_view programm) const {
  if (programm.empty() || programm.find_first_of("/\\") != std::string_view::npos) return {};
  std::array<std::string_view, 2> namen = {programm, programm};
  if (gross(programm).ends_with(Programmendung)) namen[1].remove_suffix(Programmendung.size());
  for (const std::string_view name : namen) {
    if (name.empty()) continue;
    const std::string echt = platte::finde(ordner_, name);
    if (!echt.empty() && ausfuehrbar(fs::path(ordner_) / echt)) return ordner_ + "/" + echt;
  }
  return {};
}

bool Prozessstart::starten(std::string_view programm) {
  beendete_abholen();
  std::string pfad = finden(programm);
  if (pfad.empty()) return false;
  std::array<char*, 2> argumente = {pfad.data(), nullptr};
  pid_t kind = 0;
  if (::posix_spawn(&kind, pfad.c_str(), nullptr, nullptr, argumente.data(), environ) != 0)
    return false;
  laufende_.push_back(kind);
  return true;
}

// The system keeps an ended child until its end is asked for.
void Prozessstart::beendete_abholen() {
  std::erase_if(laufende_, [](pid_t kind) { return ::waitpid(kind, nullptr, WNOHANG) != 0; });
}

}  // namespace polarkreis
