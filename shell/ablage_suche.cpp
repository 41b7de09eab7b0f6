#include <dirent.h>
#include <sys/stat.h>
#include <time.h>

#include <algorithm>
#include <memory>

#include "shell/ablage.h"
#include "shell/platte.h"
#include "shell/text.h"

namespace polarkreis {

namespace {

std::int64_t nanosekunden(const timespec& zeit) {
  return static_cast<std::int64_t>(zeit.tv_sec) * 1'000'000'000 + zeit.tv_nsec;
}

/// The system's own separators; a name can hold no NUL, which would cut it short on the way to the
/// system.
std::string eigene_schreibung(std::string_view pfad) {
  std::string eigen(pfad);
  std::replace(eigen.begin(), eigen.end(), '\\', '/');
  std::replace(eigen.begin(), eigen.end(), '\0', '?');
  return eigen;
}

/// The path as it stands, before any look at the disk.
std::string woertlich(const std::string& datenordner, std::string_view name) {
  if (name.find_first_of("/\\") != std::string_view::npos) return eigene_schreibung(name);
  return platte::im_ordner(eigene_schreibung(datenordner), eigene_schreibung(name));
}

bool ist_datei(const std::string& pfad) {
  struct stat stand {};
  return ::stat(pfad.c_str(), &stand) == 0 && S_ISREG(stand.st_mode);
}

}  // namespace

std::string Ablage::pfad(std::string_view name) const {
  std::string wo = woertlich(Datenordner, name);
  const platte::Ort ort = platte::ort(wo);
  if (ort.name.empty()) return wo;
  const std::string echt = platte::finde(ort.ordner, ort.name);
  if (!echt.empty()) wo.replace(wo.size() - ort.name.size(), ort.name.size(), echt);
  return wo;
}

Dateistand Ablage::stand(std::string_view name) const {
  Dateistand ergebnis;
  ergebnis.bewacht = name.find_first_of("/\\") == std::string_view::npos;
  struct stat stat_jetzt {};
  std::string wo = woertlich(Datenordner, name);
  if (::lstat(wo.c_str(), &stat_jetzt) != 0) {
    std::string anders = pfad(name);
    if (anders == wo || ::lstat(anders.c_str(), &stat_jetzt) != 0) return ergebnis;
    wo = std::move(anders);
  }
  if (S_ISLNK(stat_jetzt.st_mode)) {
    ergebnis.bewacht = false;
    if (::stat(wo.c_str(), &stat_jetzt) != 0) return ergebnis;
  }
  ergebnis.bewacht = ergebnis.bewacht && S_ISREG(stat_jetzt.st_mode) && stat_jetzt.st_nlink == 1;
  ergebnis.da = !S_ISDIR(stat_jetzt.st_mode);
  ergebnis.geraet = stat_jetzt.st_dev;
  ergebnis.inode = stat_jetzt.st_ino;
  ergebnis.groesse = stat_jetzt.st_size;
  ergebnis.geaendert_ns = nanosekunden(stat_jetzt.st_mtim);
  ergebnis.status_ns = nanosekunden(stat_jetzt.st_ctim);
  return ergebnis;
}

std::int64_t Ablage::Dateigroesse(std::string_view name) const {
  const Dateistand jetzt = stand(name);
  return jetzt.da ? jetzt.groesse : 0;
}

std::vector<std::string> Ablage::liste(std::string_view ordner, std::string_view endung) const {
  const std::string wo = ordner.empty() ? eigene_schreibung(Datenordner) : pfad(ordner);
  const std::string gesucht = gross(endung);
  std::vector<std::string> namen;
  const auto schliesse = [](DIR* offen) { ::closedir(offen); };
  const std::unique_ptr<DIR, decltype(schliesse)> offen(::opendir(wo.c_str()), schliesse);
  if (!offen) return namen;
  while (const dirent* eintrag = ::readdir(offen.get())) {
    const std::string name = eintrag->d_name;
    if (name.starts_with('.') || !gross(name).ends_with(gesucht)) continue;
    if (eintrag->d_type == DT_REG || ist_datei(platte::im_ordner(wo, name))) namen.push_back(name);
  }
  std::sort(namen.begin(), namen.end());
  return namen;
}

}  // namespace polarkreis
