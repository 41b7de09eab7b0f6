#pragma once

#include <sys/stat.h>

#include <sstream>
#include <string>
#include <vector>

#include "aufruf.h"

/// The register's file as a test writes and reads it: 10,000 quoted lines, row after row.
class Anlagenregister {
 public:
  static constexpr const char* datei = "FMD_M_Global.ini";
  static constexpr int Spalten = 100, erste_Regel = 40, Server_Wahl = 20;

  Anlagenregister() = default;
  /// What stands in the data folder.
  explicit Anlagenregister(const TempOrdner& daten) {
    std::istringstream text(daten.lies(datei));
    std::size_t ort = 0;
    for (std::string zeile; std::getline(text, zeile); ++ort)
      if (ort < zellen_.size() && zeile.size() >= 3)
        zellen_[ort] = zeile.substr(1, zeile.size() - 3);
  }

  std::string& operator()(int zeile, int spalte) {
    return zellen_[static_cast<std::size_t>((zeile - 1) * Spalten + spalte - 1)];
  }
  std::string text() const {
    std::string alles;
    for (const std::string& zelle : zellen_) alles += "\"" + zelle + "\"\r\n";
    return alles;
  }
  void schreib(const TempOrdner& daten) const { daten.schreib(datei, text()); }

 private:
  std::vector<std::string> zellen_ = std::vector<std::string>(10000);
};

/// The access mode of a file or folder, as 0600.
inline int zugriff(const std::string& pfad) {
  struct stat stand {};
  return ::stat(pfad.c_str(), &stand) == 0 ? static_cast<int>(stand.st_mode & 07777) : -1;
}

inline bool enthaelt(const std::string& text, const std::string& teil) {
  return text.find(teil) != std::string::npos;
}
