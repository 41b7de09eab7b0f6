#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "diagnostics/arbeitsmappe.h"
#include "diagnostics/import_form.h"
#include "diagnostics/import_zeilen.h"
#include "diagnostics/kanaele.h"
#include "diagnostics/messung.h"
#include "shell/ablage.h"
#include "shell/captions.h"
#include "shell/warten.h"

namespace polarkreis {

/// The kinds of import, by the mode of the file browser.
enum Importart : int { I_Testo = 161, I_Logger = 171, I_Steuertext = 178 };

/// What an import came to.
struct Importergebnis {
  int Zeilen = 0;         ///< rows taken into the table
  int Teile = 1;          ///< parts of the file; above 1 one of them has to be chosen
  std::string grund{};    ///< why nothing was taken: a sentence for the user; empty after a success
  std::string hinweis{};  ///< what was left out, as such a sentence; the message log has it, too
  /// Another kind that the file plainly is, whatever came of reading it as this one.
  Importform eher = Importform::keine;

  /// The file is too long for one reading: nothing was read, and a part has to be named.
  bool Teil_fehlt() const { return Zeilen == 0 && Teile > 1 && grund.empty(); }
};

/// Imports of foreign measurement files. Each fills the table and `Mess_Zeilen`; the caller runs
/// `rechenkern` behind it. An import that comes to nothing (no file, no rows, stopped by the
/// progress) leaves the measurement as it was.
class Messimport {
 public:
  Messimport(Messung& messung, Kanaele& kanaele, Ablage& ablage, const Captions& captions,
             Fortschritt& fortschritt)
      : messung_(messung),
        kanaele_(kanaele),
        ablage_(ablage),
        captions_(captions),
        fortschritt_(fortschritt) {}

  /// Up to this many lines a logger's file is taken whole.
  static constexpr int Zeilen_eines_Teils = 8500;
  /// Measured rows of a control system's file that are taken.
  static constexpr int Zeilen_Steuertext = 8640;
  /// Rows of a worksheet that are taken: below the count that stands for a run without an end.
  static constexpr int Zeilen_Arbeitsblatt = 65000;

  /// Reads a logger's file (`mode` 171; of a file of more than one part the part `teil`, from 1) or
  /// a control system's text file (178). The file's name goes into an empty `ProjektNam`. Offsets
  /// and conversions are those of the channels; an "M" in the second block of a logger's file sets
  /// their `Box_Typ`.
  Importergebnis DiaG_import(std::string_view path, int mode, int teil = 0);

  /// Reads a ClimaCheck worksheet. `Cos_phi`: power factor of the compressor at a current in A.
  Importergebnis CC_excel_Import(std::string_view path, Arbeitsmappenleser& leser,
                                 const std::function<double(double)>& Cos_phi);

  /// Reads a Testo 735 worksheet into the table as it stands: `kind` 1 fills columns 16, 17 and 4,
  /// kind 2 columns 20 and 21, so that both find room in one table. Rows behind the sheet's last
  /// one go; a row without a clock time gets a running one.
  Importergebnis Testo_Excel_import(std::string_view path, Arbeitsmappenleser& leser, int kind);

 private:
  bool lies(std::string_view path, std::string& text, std::string& grund) const;
  Importergebnis Logger_import(std::string_view text, int teil);
  Importergebnis Logger_Bloecke(std::string_view text, int erster, int letzter);
  Importergebnis Steuertext_import(std::string_view text);
  Kanalzeile kanalzeile() const;
  std::unique_ptr<Arbeitsmappe> oeffne(std::string_view path, Arbeitsmappenleser& leser,
                                       std::string& grund) const;
  bool weiter(int nummer, int anzahl) const;
  bool je_Zeile(std::string_view text,
                const std::function<void(int block, std::string_view zeile)>& nimm) const;
  Importergebnis ClimaCheck_Blatt(const Arbeitsmappe& mappe, std::string_view path,
                                  const std::function<double(double)>& Cos_phi);
  Importergebnis Testo_Blatt(const Arbeitsmappe& mappe, std::string_view path, int kind);
  void vergleiche(std::string_view path, Importform gefragt, Importform gezeigt,
                  Importergebnis& ergebnis) const;
  void beenden(std::string_view path, std::string_view name, const Importergebnis& ergebnis);

  Messung& messung_;
  Kanaele& kanaele_;
  Ablage& ablage_;
  const Captions& captions_;
  Fortschritt& fortschritt_;
};

}  // namespace polarkreis
