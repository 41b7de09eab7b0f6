#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "shell/ablage.h"
#include "shell/captions.h"
#include "shell/dialog.h"
#include "simulation/projektdaten.h"

namespace polarkreis {

/// What the project browser was opened for: projects, or foreign measurement files.
enum class Browsermodus {
  oeffnen = 1,
  speichern = 2,
  loeschen = 5,
  Arbeitsblatt = 161,  ///< worksheets of other instruments, ".xls" and ".xlsx"
  Loggerdatei = 171,   ///< the logger's own files, ".adc"
  Steuertext = 178,    ///< text files of control systems, ".txt"
};
/// True for the modes of the measurement files.
constexpr bool ist_Import(Browsermodus modus) {
  return static_cast<int>(modus) >= static_cast<int>(Browsermodus::Arbeitsblatt);
}

/// One project file of the folder.
struct Projekteintrag {
  std::string datei;  ///< file name as it stands in the folder
  std::string name;
  std::string beschreibung;

  bool operator==(const Projekteintrag&) const = default;
};

/// The project browser.
class ProjLaden {
 public:
  ProjLaden(Ablage& ablage, const Captions& captions, Dialog& dialog)
      : ablage_(ablage), captions_(captions), dialog_(dialog) {}

  /// The default name of a load project: the shared setting `Projektname_Start`.
  std::string Projektname_Start;

  std::vector<Projekteintrag> eintraege;  ///< the listed files, sorted by file name
  std::string Dateiname;                  ///< the name field: a file name, without its folder
  std::string ProjektNam, ProBeschr;      ///< project name and description
  /// Where opening kept the park that made room, see `park_uebernehmen`; empty for none.
  std::string Park_beiseite;

  /// Opens on a folder (with or without its trailing separator; empty is the data folder) and lists
  /// its files "*.prj" of the module `tag`. An empty tag in a file is accepted only for the modules
  /// "KOMP" and "VERB". The modes of the measurement files list those, whatever the tag. Clears the
  /// name field; name and description stay for a save.
  void oeffnen(Browsermodus modus, std::string_view tag, std::string_view ordner);
  /// Selects line `zeile` (from 0): its file goes to the name field and, except on saving, its name
  /// and description to theirs.
  void waehlen(std::size_t zeile);
  /// Offers the parts of a measurement file that is too long for one reading: the list holds
  /// "Import Part 1" and so on, the name field the file.
  void Teile_anbieten(int teile);
  /// The chosen part, from 1; 0 while none is.
  int Teil() const;
  /// The text of the selected line; empty without one.
  std::string auswahl_text() const;
  /// Completes the browser's own part. Opening: the park or the load file of the module is put in
  /// the data folder. Saving: the name field gets its extension, and a load module's project is
  /// written. Deleting: the file is removed, and the list read anew. False, and the reason shown in
  /// a box, if that fails or no name is given.
  bool bestaetigen();
  /// The path of the file in the name field.
  std::string projektdatei() const;

  Browsermodus modus() const { return modus_; }
  const std::string& tag() const { return tag_; }

 private:
  void liste_lesen();
  void messdateien_listen();
  bool import_bestaetigen();
  bool oeffnen_bestaetigen();
  bool speichern_bestaetigen();
  bool loeschen_bestaetigen();
  bool gelungen(bool ergebnis);

  Ablage& ablage_;
  const Captions& captions_;
  Dialog& dialog_;
  Browsermodus modus_ = Browsermodus::oeffnen;
  std::string tag_;
  std::string ordner_;  // with its trailing separator
  std::size_t zeile_ = static_cast<std::size_t>(-1);
  bool teile_ = false;  // the list holds the parts of one file
};

/// What became of a save.
enum class Speicherung { gespeichert, misslungen, Name_noetig };

/// The save button: with a file name that is blank or ".PRJ" the browser is opened in mode 2 on the
/// form's project folder, and nothing is saved yet; otherwise name and description are taken over
/// and the project is stored at once, with a copy of its park where the module has one: the project
/// stays open, and the park with it.
Speicherung ProjSpeich(Projektdaten& form, ProjLaden& browser, std::string_view tag);

/// True if a project file with that tag belongs to the module. The old files of "KOMP" and "VERB"
/// have none.
bool Tag_passt(std::string_view tag, std::string_view modul);

/// The open and the delete button: the browser is opened on the form's project folder.
void ProjLad(const Projektdaten& form, ProjLaden& browser, std::string_view tag);
void PrLoesch(const Projektdaten& form, ProjLaden& browser, std::string_view tag);
/// Confirms the browser for the form. Opening: the project is read, its heading's name and
/// description go to the form, and the numbers are derived. Saving: the form takes name,
/// description and file over and is stored, and its park is put away where the module has one.
/// Deleting: the file is removed. False, and the reason shown in a box, if that fails.
bool Browser_bestaetigen(Projektdaten& form, ProjLaden& browser);

/// Gives a file another name, in one folder or another, without ever leaving less than one whole
/// copy; false, and the old file as it was, on a failure.
bool Datei_umbenennen(Ablage& ablage, std::string_view von, std::string_view nach);

/// The name rule of a save: a name without an extension gets ".prj", any other extension than
/// ".PRJ" (in any case) is cut at the first point and replaced. A folder before the name stays.
std::string Projektdatei_Name(std::string_view name);

/// Where a project file of that name is sought: a path as it stands, a bare name in the current
/// folder and, if it isn't there, in the data folder.
std::string Projektdatei_Pfad(const Ablage& ablage, std::string_view name);
/// The folder of a file with its trailing separator; empty for a bare name.
std::string Ordner_von(std::string_view datei);

/// True for the modules whose projects carry a compressor park, in any case.
bool Modul_mit_Park(std::string_view tag);
/// Renames "VerDpark.dat" of the data folder to `<name>.VDD` beside the project file, when the
/// project is saved away, and back, after opening. Nothing is done for a module without a park, or
/// where there is none. False if a file can't be written or removed: the park then still stands
/// where it was.
bool park_sichern(Ablage& ablage, std::string_view tag, std::string_view projektdatei);
/// The same for a project that stays open: the park stays, and `<name>.VDD` is a copy of it.
bool park_kopieren(Ablage& ablage, std::string_view tag, std::string_view projektdatei);
/// `beiseite` takes the file's name where the park that stood there was kept, see
/// `park_uebernehmen`.
bool park_laden(Ablage& ablage, std::string_view tag, std::string_view projektdatei,
                std::string& beiseite);
/// Renames a park's file to "VerDpark.dat". A park of other content that stands there is first kept
/// in the data folder as "VerDpark kept.VDD", or the next such name that is free, and `beiseite`
/// takes that name. False, and both parks where they stood, if a file can't be written or removed.
bool park_uebernehmen(Ablage& ablage, std::string_view park, std::string& beiseite);

}  // namespace polarkreis
