#pragma once

#include "diagnostics/diagnostic.h"
#include "diagnostics/messempfaenger.h"
#include "messplatz.h"

namespace polarkreis::cli {

/// Watches a run for the command line: shows a live line of the main values, and turns Ctrl-C (or a
/// request to end) into STOP. A second Ctrl-C ends the program at once; the working copy is whole
/// even then.
class Loggerlauf : public Messempfaenger {
 public:
  /// `Scan_Status` of a lost device.
  static constexpr int Geraet_verloren = 15;

  /// `still`: standard output is kept for something else.
  explicit Loggerlauf(bool still);
  ~Loggerlauf() override;
  Loggerlauf(const Loggerlauf&) = delete;
  Loggerlauf& operator=(const Loggerlauf&) = delete;

  void beginnen(DiaGnostic& diagnose, Messuhr& uhr);
  /// Clears the live line and gives the signals back.
  void beenden();
  int Messwerte() const { return messwerte_; }

  void Ereignisse() override;
  void Messwert() override;

 private:
  static void signale_freigeben();
  DiaGnostic* diagnose_ = nullptr;
  Messuhr* uhr_ = nullptr;
  bool still_;
  bool terminal_;
  bool gezeigt_ = false;
  int messwerte_ = 0;
};

}  // namespace polarkreis::cli
