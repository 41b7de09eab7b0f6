#pragma once

#include <memory>
#include <string>

#include "diagnostics/diagnostic.h"
#include "plant.h"
#include "shell/warten.h"

namespace polarkreis::bench {

/// A logger that always answers with the same sample of a R404A plant, on every port.
class Loggerattrappe : public SeriellerPort {
 public:
  void Port(int) override {}
  void Einstellungen(std::string_view) override {}
  void Oeffnen() override {}
  void Schliessen() override {}
  void Schreiben(std::string_view) override {}
  std::string Lesen() override;
  bool Fehler() const override { return false; }
};

/// A clock that waits for nothing.
class Eiluhr : public Uhr {
 public:
  void Warten(int) override {}
  Zeitpunkt Ortszeit() override { return {2026, 1, 2, 12, 0, 0, 0}; }
  Zeitpunkt UTC() override { return {2026, 1, 2, 11, 0, 0, 0}; }
};

/// The diagnostics on a data folder of their own.
class Messlauf {
 public:
  /// `auf_Platte`: the folder lies on the disk, and a row is on it before the next sample.
  explicit Messlauf(bool auf_Platte);

  /// Leaves a measurement of so many rows in the folder.
  void vorbereiten(int zeilen);
  /// Loads it and computes every row; the number of rows.
  int laden_und_rechnen();
  /// A live run of so many samples.
  void messen(int proben);
  int zeilen() const { return diagnose_->messung.Messpunkte(); }

 private:
  class Schweiger : public Fortschritt {
   public:
    bool schritt(std::string_view, int, int) override { return true; }
  };
  class Keine_Mappen : public Arbeitsmappenleser {
   public:
    std::unique_ptr<Arbeitsmappe> oeffne(const std::string&, std::string&) override {
      return nullptr;
    }
  };

  Datenkopie daten_;
  Stumm stumm_;
  Eiluhr uhr_;
  Loggerattrappe port_;
  Keine_Mappen mappen_;
  Messempfaenger empfaenger_;
  Schweiger schweiger_;
  std::unique_ptr<Programm> programm_;
  std::unique_ptr<DiaGnostic> diagnose_;
};

}  // namespace polarkreis::bench
