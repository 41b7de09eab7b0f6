#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "refrigerant/kaeltemittel.h"
#include "shell/ablage.h"
#include "shell/captions.h"
#include "shell/dialog.h"
#include "shell/uebergabe.h"
#include "simulation/energk.h"
#include "simulation/projektsatz.h"

namespace polarkreis {

/// The working numbers that follow from a project's selections.
struct Ableitung {
  double Wartung_dT = 0;      ///< extra condensing temperature of the state of maintenance, K
  double f_F = 1;             ///< charge factor on hours and energy
  double pipe = 1;            ///< pressure-drop figure of the lines, K at full load
  double Isolier_dT = 0;      ///< suction-line temperature gain, K
  double Bezug = 5;           ///< design brine or room reference, °C
  double Ueberhitzung = 6.4;  ///< superheat of the evaporator size class, K
};

/// What the last change or load could not take over, for the caller to show.
enum class Projektmeldung { keine, unbekanntes_Kaeltemittel };

/// The form of the energy simulation: the project's items and the form's further controls under
/// their names.
class Projektdaten : public Projektsatz {
 public:
  Projektdaten(Ablage& ablage, Captions& captions, Kaeltemittel& km, Dialog& dialog);

  /// --- Controls that are no items of the project.
  bool HeizCheck = false;    ///< heating is served by heat recovery
  bool FreeC_Check = false;  ///< free cooling
  bool ParaL_Check = false;  ///< flash-gas (parallel) compression of R744
  bool Check3D1 = false;     ///< internal heat exchanger
  int ECO_OPT = 0;           ///< economiser option; 0 none
  bool Gleitopt = false;     ///< floating evaporating temperature
  std::string ErP_Vers;      ///< stage of the efficiency standard; "2018" is the stricter one
  std::string t_K_wasser;    ///< cooling-water temperature, °C
  std::string Lamm_AB_combo = "4";          ///< fin spacing of the evaporator, mm
  std::string VERDA_Eff_combo;              ///< evaporator fan class
  std::string Rechart_combo;                ///< kind of calculation
  bool KaltGAbt = false, HeißGAbt = false;  ///< defrost by cold gas, by hot gas
  bool JG_fertig = false;                   ///< a course was confirmed since the project was opened
  double tmin_gemerkt = 0;  ///< lowest condensing temperature that a point worked out, °C

  /// Operating figures of the project folder.
  Energiedaten energie;
  Ableitung ableitung;

  /// --- Records of the working state.
  std::string Projektname_aktuell;
  std::string Dateiname_aktuell;  ///< name of the open project file
  std::string Projektordner;      ///< with its trailing separator; empty is the data folder

  /// A user's change of one item by its name: stores the text and runs the field's change events
  /// (none while a project loads). False for an unknown name.
  bool aendern(std::string_view item, std::string_view text);
  /// Takes a kind of calculation over: its text, `Rechart`, and the fields that SEPR and SEER kinds
  /// set (without change events: no temperature follows from them).
  void Rechart_waehlen(std::string_view text);
  /// False for a kind with an annual course, which greys `betrstd`, `lzfaktor` and `JahrebetrT`:
  /// the year itself gives the hours.
  bool Betriebszahlen_wirksam() const;

  /// Reads the 46 items into the fields, with their fallbacks, then derives. With `offen` 1 the
  /// number is open, stands behind the header, and stays open. Items that the file doesn't hold
  /// leave their fields as they were, unless they have a fallback. The items of another language
  /// are translated in memory.
  void Projekt_Lesen(std::string_view name, int nummer, int offen);
  /// Writes the 46 items, closes the number, and then writes "energk.dat" beside the file of that
  /// name. With `anhaengen` 1 behind what the open number already holds; otherwise all files are
  /// closed and the items are the whole file. `Sprache` becomes the current language. False if a
  /// file could not be put in place; "energk.dat" is not written behind a project that failed.
  bool Projekt_Schreiben(std::string_view name, int nummer, int anhaengen);
  /// Writes header and items to the current file name in `ordner` (empty: the data folder), which
  /// becomes the project folder. False, and the old file as it was, without a file name or on a
  /// failure.
  bool Projekt_Speichern(std::string_view tag, std::string_view ordner);
  /// Opens a project file of that tag; false, and nothing changed, if it isn't one or can't be
  /// read. A name without a folder is sought in the current folder, then in the data folder.
  bool Projekt_Oeffnen(std::string_view tag, std::string_view name);
  /// The working project, "Temp_Sim.dat".
  void Arbeitsprojekt_Lesen();
  bool Arbeitsprojekt_Schreiben();
  /// Takes over what a sibling program left: temperatures, capacity, name, description,
  /// refrigerant, pumps, economiser, type and construction, each unless its item is empty.
  /// Nothing happens without a start code. The caller then empties the hand-over file.
  void Uebergabe_Uebernehmen(const Uebergabe& daten);
  /// The values that a sibling program is handed, with the start code 117.
  Uebergabe Uebergabe_Fuellen() const;

  /// Derives every number; texts of `tambient`, `t0`, `Tc`, `dtVerfl` only where they are empty.
  void Ableiten();
  /// Sets the refrigerant; an unknown one is told in a message box, and is kept as it stands.
  Projektmeldung Kaeltemittel_Uebernehmen(std::string_view name);

  /// --- What a selection offers, in order; the catalogue for `KaelteM`; empty for a field that is
  /// no selection.
  std::vector<std::string> Auswahl(std::string_view item) const;
  /// Texts of the kinds of calculation, in order.
  std::vector<std::string> Rechart_Auswahl() const;

  Ablage& ablage;
  Captions& captions;
  Kaeltemittel& km;
  Dialog& dialog;

 private:
  bool laedt_ = false;
  bool speichern(std::string_view item, std::string_view text);
  void Ereignis(std::string_view item);
  void Abtauart_zeigen();
  void Abtauart_setzen(std::string_view schalter);
  void Rechart_zeigen();

  /// Figures of the size classes with the refrigerant's factor, K.
  double Verdampfer_dT() const;
  double Verfluessiger_dT() const;
  double Verfluessiger_Basis() const;
  void Zahlen_ableiten();
  void tambient_ableiten();
  void Verdampfer_ableiten();
  void Verfluessiger_ableiten();
  void WinterRGart_begrenzen();
  void WinterRGart_setzen(std::string_view temperatur);
  void P_gasK_ableiten();

  int Items_lesen(int nummer);
  void Ersatzwerte();
};

/// The kind of calculation as the text tells it.
struct Rechenart {
  int Rechart = 0;             ///< 0 design point, 1 annual course
  std::string_view Bewertung;  ///< rating label: "ESEER", "SEPR", "SEER", "SEER/SEPR"
};
Rechenart Rechenart_von(const Captions& captions, std::string_view text);

/// Condenser kinds.
enum class Verfluessigerart { Luft, Wasser, Kuehlturm, Adiabat };
/// The kind that the text names; air for any other text.
Verfluessigerart Verfluessigerart_von(const Captions& captions, std::string_view text);

/// Refrigerant groups by designation, with aliases.
bool ist_Kohlenwasserstoff(std::string_view kaeltemittel);
bool ist_Ammoniak(std::string_view kaeltemittel);
bool ist_CO2(std::string_view kaeltemittel);

}  // namespace polarkreis
