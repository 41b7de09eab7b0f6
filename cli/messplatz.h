#pragma once

#include <CLI/CLI.hpp>
#include <string>
#include <vector>

#include "diagnostics/diagnostic.h"
#include "konsole.h"
#include "messeinstellungen.h"
#include "platform/arbeitsmappen.h"
#include "platform/seriell.h"
#include "platform/uhr.h"
#include "sitzung.h"

namespace polarkreis::cli {

/// What the commands of the measurements have in common.
struct Messwuensche {
  std::string einstellungen, ausgabe;
  bool json = false;
};
void messwuensche_anmelden(CLI::App& befehl, Messwuensche& wuensche);

/// The system's clock; in a hurry it doesn't wait: a run that was told to stop then ends at once.
class Messuhr : public Systemuhr {
 public:
  bool eilig = false;
  void Warten(int n) override {
    if (!eilig) Systemuhr::Warten(n);
  }
};

/// The diagnostics on the real world: the system's clock, serial ports and worksheets.
class Messplatz {
 public:
  Messplatz(Sitzung& sitzung, const Messwuensche& wuensche, Messempfaenger& empfaenger);

  Programm& p;
  Konsolendialog dialog;  ///< answers with yes unless told otherwise
  Messuhr uhr;
  Seriellschnittstelle port;
  Arbeitsmappen mappen;
  Terminalfortschritt fortschritt;
  DiaGnostic diagnose;

  /// Loads a measurement file and puts the settings over it; a bare name is sought in the current
  /// folder, then in the data folder. Throws `Abbruch` where there is no such file, and where it is
  /// to be replaced but has more rows than a load takes.
  Messdatei::Ladung laden(const std::string& name);
  /// Puts the settings into the measurement; a capacity that they don't give is the working
  /// project's.
  void einstellen();
  /// Tells if the measurement's refrigerant gives no figures of the cycle.
  void stoff_pruefen() const;
  /// Computes the rows and writes the protocol; tells what stands in the way of figures.
  void auswerten();
  /// Saves the measurement where the call asks for it.
  void speichern();
  /// Prints the measurement: as JSON, or its main figures for people.
  void drucken(const Messdatei::Ladung& ladung);

 private:
  /// True if the measurement is to be saved over this file.
  bool ist_Ausgabe(const std::string& pfad) const;

  Sitzung& sitzung_;
  const Messwuensche& wuensche_;
  Messeinstellungen einstellungen_;
};

/// The path of a measurement or foreign file that must be there; throws `Abbruch` else.
std::string messdatei_pfad(Programm& p, const std::string& name);

}  // namespace polarkreis::cli
