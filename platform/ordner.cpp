#include "platform/ordner.h"

#include <pwd.h>
#include <stdlib.h>
#include <unistd.h>

#include <filesystem>
#include <map>
#include <vector>

#include "shell/platte.h"
#include "shell/text.h"

namespace polarkreis {

namespace fs = std::filesystem;

namespace {

constexpr const char* Programmordner = "polarkreis";
/// A file that no data folder lacks.
constexpr const char* Kennzeichen = "COUNTRY.DAT";

std::string Heimatordner() {
  const char* heim = ::getenv("HOME");
  if (heim != nullptr && *heim == '/') return heim;
  passwd eintrag{};
  passwd* gefunden = nullptr;
  std::vector<char> puffer(16384);
  if (::getpwuid_r(::geteuid(), &eintrag, puffer.data(), puffer.size(), &gefunden) != 0) return {};
  if (gefunden == nullptr || eintrag.pw_dir == nullptr || *eintrag.pw_dir != '/') return {};
  return eintrag.pw_dir;
}

/// The system's folder for data of the user's programs.
fs::path Systemordner() {
  const char* xdg = ::getenv("XDG_DATA_HOME");
  if (xdg != nullptr && *xdg == '/') return xdg;
  if (const std::string heim = Heimatordner(); !heim.empty())
    return fs::path(heim) / ".local/share";
  std::error_code fehler;
  const fs::path aktuell = fs::current_path(fehler);
  return fehler ? fs::path(".") : aktuell;
}

struct Vorhanden {
  fs::path name;
  bool leer = false;  // a file of 0 bytes
};

/// What the folder holds, by upper-cased name.
std::map<std::string, Vorhanden> inhalt(const fs::path& ordner) {
  std::map<std::string, Vorhanden> alle;
  std::error_code fehler;
  for (fs::directory_iterator i(ordner, fehler), ende; !fehler && i != ende; i.increment(fehler)) {
    std::error_code egal;
    const bool leer = i->is_regular_file(egal) && !i->is_symlink(egal) && i->file_size(egal) == 0;
    alle[gross(i->path().filename().string())] = {i->path().filename(), leer};
  }
  return alle;
}

bool kopiert(const fs::path& quelle, const fs::path& ziel) {
  std::string bytes;
  return platte::lies(quelle.string(), bytes) == 0 &&
         platte::ersetze(ziel.string(), bytes, false) == 0;
}

Fuellung fuelle(const fs::path& von, const fs::path& nach) {
  Fuellung alle;
  const std::map<std::string, Vorhanden> quelle = inhalt(von);
  if (quelle.empty()) return alle;
  if (platte::mache_ordner(nach.string()) != 0) return {0, 1};
  const std::map<std::string, Vorhanden> ziel = inhalt(nach);
  for (const auto& [schluessel, datei] : quelle) {
    if (schluessel.starts_with('.')) continue;
    const auto dort = ziel.find(schluessel);
    const fs::path name = dort == ziel.end() ? datei.name : dort->second.name;
    std::error_code fehler;
    if (fs::is_directory(von / datei.name, fehler)) {
      const Fuellung darin = fuelle(von / datei.name, nach / name);
      alle.kopiert += darin.kopiert;
      alle.misslungen += darin.misslungen;
    } else if (dort == ziel.end() || (dort->second.leer && !datei.leer)) {
      ++(kopiert(von / datei.name, nach / name) ? alle.kopiert : alle.misslungen);
    }
  }
  return alle;
}

/// The folder of the program; a name that the search path found is no path, so the system is asked.
fs::path Ordner_des_Programms(std::string_view programmpfad) {
  std::error_code fehler;
  fs::path pfad;
  if (programmpfad.find('/') != std::string_view::npos) pfad = fs::canonical(programmpfad, fehler);
  if (pfad.empty() || fehler) pfad = fs::read_symlink("/proc/self/exe", fehler);
  return fehler ? fs::path() : pfad.parent_path();
}

bool ist_datenordner(const fs::path& ordner) {
  std::error_code fehler;
  return fs::is_directory(ordner, fehler) && !platte::finde(ordner.string(), Kennzeichen).empty();
}

}  // namespace

std::string Datenordner_Finden(int modus) {
  static_cast<void>(modus);
  return (Systemordner() / Programmordner).string();
}

Fuellung Datenordner_Fuellen(const std::string& von, const std::string& nach) {
  std::error_code fehler;
  return fs::equivalent(von, nach, fehler) ? Fuellung() : fuelle(von, nach);
}

std::string Lieferordner(std::string_view programmpfad) {
  fs::path ordner = Ordner_des_Programms(programmpfad);
  if (ordner.empty()) return {};
  const fs::path installiert = ordner.parent_path() / "share" / Programmordner / "data";
  if (ist_datenordner(installiert)) return installiert.string();
  for (;; ordner = ordner.parent_path()) {
    if (ist_datenordner(ordner / "data")) return (ordner / "data").string();
    if (ordner == ordner.parent_path()) return {};
  }
}

}  // namespace polarkreis
