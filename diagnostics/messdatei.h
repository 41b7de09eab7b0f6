#pragma once

#include <string>
#include <string_view>

#include "diagnostics/messung.h"
#include "shell/ablage.h"
#include "shell/captions.h"
#include "shell/dialog.h"
#include "shell/warten.h"

namespace polarkreis {

/// Measurement files: ".fmd", and the working copy that a run grows by a row at each sample.
class Messdatei {
 public:
  Messdatei(Messung& messung, Ablage& ablage, const Captions& captions, Dialog& dialog, Uhr& uhr)
      : messung_(messung), ablage_(ablage), captions_(captions), dialog_(dialog), uhr_(uhr) {}

  /// The working copy; empty for a job that keeps none.
  std::string Arbeitskopie = "FM_diag.dat";

  /// Writes the table and its settings; with `Zeilen_unbekannt` rows the heading only. False if the
  /// file could not be put in place (see `Ablage::letzter_fehler`).
  bool SaveDiaG(std::string_view path, Fortschritt* fortschritt = nullptr);

  /// What a load found.
  struct Ladung {
    bool gefragt = false;      ///< asked whether so many rows are to be read
    bool abgelehnt = false;    ///< ... and the answer was no: the table is empty
    bool abgebrochen = false;  ///< the file is of a run that did not end
    int verworfen = 0;         ///< rows left out for want of pressures
    int ersetzt = 0;           ///< bad rows that repeat the row before
  };
  /// Replaces the table and its settings. A missing file leaves a table without rows.
  Ladung LoadDiaG(std::string_view path, Fortschritt* fortschritt = nullptr);

  /// Begins the working copy with the heading of a run. One that holds rows is first kept beside
  /// as "FM_diag <date> <time>.fmd". False if it could not be written.
  bool Lauf_beginnen();
  /// Appends row 3 to the working copy, whole and on the disk when this returns. A row that could
  /// not be written is kept and goes before the next one; false as long as some wait.
  bool Zeile_anhaengen();
  /// Writes the working copy whole.
  bool Arbeitskopie_schreiben();

 private:
  Messung& messung_;
  Ablage& ablage_;
  const Captions& captions_;
  Dialog& dialog_;
  Uhr& uhr_;
  std::string wartend_;  // rows that the disk did not take yet
};

/// The column widths of the table, "Diagopt.dat".
enum class Spaltenlage {
  Standard,  ///< below 50 bytes: the standard layout applies
  gelesen,   ///< above 500 bytes: the widths were read
  belassen,  ///< between them nothing happens
};

}  // namespace polarkreis
