#pragma once

#include <filesystem>
#include <memory>
#include <string>

#include "shell/start/programm.h"
#include "simulation/ergebnis.h"

namespace polarkreis::bench {

/// A user who agrees and is told nothing.
class Stumm : public Dialog {
 public:
  void zeige(std::string_view, std::string_view, Symbol) override {}
  bool frage(std::string_view, std::string_view) override { return true; }
};

/// Where a copy of the data folder lies: in memory where the system offers that, so that thousands
/// of runs a second don't measure how the disk's file system gives out new files, or on the disk.
enum class Ort { Speicher, Platte };

/// A copy of the delivered data folder, removed at the end.
class Datenkopie {
 public:
  explicit Datenkopie(Ort ort = Ort::Speicher);
  ~Datenkopie();
  std::string ordner() const { return pfad_.string(); }
  Datenkopie(const Datenkopie&) = delete;
  Datenkopie& operator=(const Datenkopie&) = delete;

 private:
  std::filesystem::path pfad_;
};

/// A sample plant, opened with its options and course, ready to be calculated as often as wanted.
class Anlagenlauf {
 public:
  Anlagenlauf(const std::string& projekt, bool freie_kuehlung, bool heizung);

  Rechnung rechnen();
  /// "ERG_TEMP.DAT" and "ergEN1.DAT" as they stand.
  std::string dateien();
  Programm& programm() { return *programm_; }

 private:
  Datenkopie daten_;  // of its own: a watch hears of no one else's files
  Stumm stumm_;
  std::unique_ptr<Programm> programm_;
  std::unique_ptr<JahresLauf> lauf_;
};

}  // namespace polarkreis::bench
