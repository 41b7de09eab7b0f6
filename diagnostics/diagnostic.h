#pragma once

#include <string_view>

#include "diagnostics/diag_select.h"
#include "diagnostics/import.h"
#include "diagnostics/kanaele.h"
#include "diagnostics/kern.h"
#include "diagnostics/logger.h"
#include "diagnostics/messdatei.h"
#include "diagnostics/messquelle.h"
#include "diagnostics/messung.h"
#include "diagnostics/spaltenbreiten.h"
#include "refrigerant/sole.h"

namespace polarkreis {

/// What the diagnostics work on: calculation objects, user, and the outside world.
struct Diagnosemittel {
  Ablage& ablage;
  const Captions& captions;
  Kreis& kreis;
  Luftzustand& luft;
  Dialog& dialog;
  Uhr& uhr;
  SeriellerPort& port;
  Arbeitsmappenleser& mappen;
  Messempfaenger& empfaenger;
  Fortschritt& fortschritt;
};

/// The form of the plant diagnostics: one of each of its jobs, on one measurement. While the logger
/// is at work (`Logger::belegt`), what would change the table under it does nothing: `laden` is
/// refused, `auswerten` gives false, an import gives its reason.
class DiaGnostic {
 public:
  explicit DiaGnostic(const Diagnosemittel& mittel);
  DiaGnostic(const DiaGnostic&) = delete;
  DiaGnostic& operator=(const DiaGnostic&) = delete;

 private:
  Diagnosemittel m_;

 public:
  Messung messung;
  Kanaele kanaele;
  Solen solen;
  Kern kern;
  Messdatei datei;
  Messquelle quelle;
  Logger logger;
  Messimport import;
  DiaG_Select auswahl;
  Spaltenbreiten breiten;

  /// What every use begins with: offsets of the channels, compressor parameters ("VerDpark.dat"),
  /// default texts of the units and captions of the columns. Reads only.
  void vorbereiten();
  /// The form opens: prepares, brings the last state back from the working copy, reads the column
  /// widths, looks for the file-fed source and else for a logger.
  void Form_Load();
  /// Loads a measurement; one without a method of the mass flow leaves the method in force, which
  /// is that of the compressor parameters at first.
  Messdatei::Ladung laden(std::string_view path);
  /// Looks at both files of the source; the first that holds something is the source in use.
  bool Quelle_suchen();

  /// Computes all rows and the means, and writes the protocol "ergDiaG.DAT". False if the progress
  /// asked to stop, or if the protocol could not be written (see `Ablage::letzter_fehler`).
  bool auswerten();

  /// Condenses the rows as they stand, behind a run: means and protocol. False as above.
  bool kondensieren();

  /// Imports, each followed by the computation of all rows. `mode` and `teil`: see `Messimport`.
  Importergebnis DiaG_import(std::string_view path, int mode, int teil = 0);
  Importergebnis CC_excel_Import(std::string_view path);
  Importergebnis Testo_Excel_import(std::string_view path, int kind);

  /// The form closes; `mode` 1 without asking. Stores the working copy, the column widths and the
  /// compressor parameters. False if the user wants to stay, if a run goes (it is told to end), or
  /// if the working copy could not be written (see `Ablage::letzter_fehler`).
  bool endeDiaG(int mode);

 private:
  void Spalten_beschriften();
  bool protokollieren();
  void park_laden();
  void park_speichern();
  Importergebnis rechne_nach(Importergebnis ergebnis);
};

}  // namespace polarkreis
