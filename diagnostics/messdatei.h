#pragma once

#include <cstdint>
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
  /// Rows that a load takes: eleven days of a sample each five seconds. A load takes about 7.5 kB
  /// of memory a row, 1.5 GB for them all.
  int Hoechstzeilen = 200'000;
  /// Whether an appended row must be on the disk before the run goes on.
  Haltbarkeit Anhaengen = Haltbarkeit::sicher;

  /// Writes the table and its settings; with `Zeilen_unbekannt` rows the heading only. False if the
  /// file could not be put in place (see `Ablage::letzter_fehler`) or the progress asked to stop;
  /// an old file then stays as it was.
  bool SaveDiaG(std::string_view path, Fortschritt* fortschritt = nullptr);
  /// Saves under a name that the user chose: ".fmd" is added where the name doesn't end so, and the
  /// user is asked before a file is overwritten. False if nothing was saved.
  bool Pr_Speich_als(std::string_view path, Fortschritt* fortschritt = nullptr);
  /// The file that `Pr_Speich_als` means by a name.
  static std::string mit_Endung(std::string_view path);

  /// What a load found.
  struct Ladung {
    bool gefragt = false;      ///< asked whether so many rows are to be read
    bool abgelehnt = false;    ///< the answer was no, or the progress asked to stop: no rows
    bool abgebrochen = false;  ///< the file is of a run that did not end
    int verworfen = 0;         ///< rows left out for want of pressures
    int ersetzt = 0;           ///< bad rows that repeat the row before
    int ueberzaehlig = 0;      ///< rows left out behind the last one that a load takes
  };
  /// Replaces the table and its settings. A missing file reads as empty: no rows, texts and
  /// settings empty or at their defaults. A row that was cut off is left out, and so are the rows
  /// behind `Hoechstzeilen`. Where the working copy's rows are not wanted, or not all taken, the
  /// file is kept beside.
  Ladung LoadDiaG(std::string_view path, Fortschritt* fortschritt = nullptr);

  /// Begins the working copy with the heading of a run. One that holds rows is first kept beside
  /// as "FM_diag <date> <time>.fmd". False if it could not be written: the next append tries again.
  bool Lauf_beginnen();
  /// Appends row 3 to the working copy, whole and on the disk when this returns. A row that could
  /// not be written is kept and goes before the next one; false as long as some wait.
  bool Zeile_anhaengen();
  /// Writes the working copy whole.
  bool Arbeitskopie_schreiben();

 private:
  Ladung abgelehnt(std::string_view path, Ladung ladung);
  bool ist_Arbeitskopie(std::string_view path) const;
  bool beiseite_legen();
  bool beiseite_schreiben(const std::string& inhalt);
  bool Kopf_ablegen();
  bool auf_ganze_Zeilen();
  bool Wartende_ablegen();

  Messung& messung_;
  Ablage& ablage_;
  const Captions& captions_;
  Dialog& dialog_;
  Uhr& uhr_;
  std::string wartend_;            // rows that the disk did not take yet
  bool kopf_fehlt_ = false;        // a run has begun whose heading the disk did not take yet
  bool zu_retten_ = false;         // the working copy holds unwanted rows, not kept beside so far
  std::int64_t geschrieben_ = -1;  // the working copy's size as this job left it, in bytes
  Dateistand beiseite_;            // the working copy's state that has been kept beside
  std::string beiseite_name_;      // the name under which it could not be kept so far
  Dateistand unlesbar_;            // its state that could not be read
};

}  // namespace polarkreis
