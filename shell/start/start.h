#pragma once

#include <array>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "shell/start/programm.h"
#include "shell/start/programmstart.h"
#include "shell/start/vorgaben.h"
#include "shell/uebergabe.h"
#include "shell/warten.h"

namespace polarkreis {

/// The buttons of the main menu.
enum class Menuepunkt {
  keiner,
  ProjNix,    ///< energy simulation
  DiaGnos,    ///< plant diagnostics
  FTPServ,    ///< remote monitoring
  VorGab,     ///< defaults
  Printset,   ///< print set-up
  PriButt,    ///< printing
  InfoP,      ///< information
  StartHelp,  ///< help
  ende
};

/// Sibling programs of the suite.
inline constexpr std::string_view Zeichenprogramm = "frigdraw.exe";
inline constexpr std::string_view Lastprogramm = "Lastmodul.exe";

/// What the caller knows before the start.
struct Startangaben {
  /// A data folder that was asked for: used as it stands, nothing is filled in, and the stored one
  /// is ignored. Empty for none.
  std::string datenordner;
  /// The folder that the system gives.
  std::string gefundener_ordner;
  /// Fills the found folder with what is delivered; called at its first start.
  std::function<bool(const std::string& ordner)> fuellen;
  /// A language for this run only; empty is the stored one.
  std::string sprache;
};

/// The first step of the start: puts the data folder in force, filled at its first start, with the
/// shared settings that lie in it and an empty operator file for the monitoring's account, and
/// names it to the message log. A folder that was asked for gets no file. Gives the reason if there
/// is no such folder, else the empty text.
std::string Datenordner_festlegen(Programm& programm, const Startangaben& angaben);

/// The program's entry: start, main menu and end.
class Start {
 public:
  Start(Programm& programm, Uhr& uhr, Programmstart& geschwister)
      : vorgaben(programm.projekt, programm.dialog),
        p_(programm),
        uhr_(uhr),
        geschwister_(geschwister) {}

  static constexpr std::string_view Zeilenende = "\r\n";
  static constexpr std::string_view Trenner = " :";   ///< behind a label
  static constexpr double Fensterhoehe_Anteil = .97;  ///< of the screen's height

  /// A flag of the menu and the language that it sets.
  struct Flagge {
    std::string_view name;
    std::string_view code;
  };
  static const std::array<Flagge, 8>& Flaggen();

  Menuepunkt gewaehlt = Menuepunkt::keiner;  ///< the job that was chosen; none is the menu
  bool beendet = false;                      ///< the program is to end
  Vorgaben vorgaben;
  std::vector<std::function<void()>> Kinder;  ///< closes the forms that are open, at the end
  /// True while no language is fixed yet: the language form opens.
  bool Sprachwahl_noetig() const { return p_.einstellungen.erster_Start; }
  std::string Arbeits_KaelteM;  ///< first line of the working project: its refrigerant

  /// The steps of the start, in order. False, and the reason shown, only if there is no data
  /// folder.
  bool starten(const Startangaben& angaben);

  /// --- The menu's buttons.
  void ProjNix();  ///< loads the working project into the form, then what a sibling left
  void DiaGnos() { gewaehlt = Menuepunkt::DiaGnos; }
  void FTPServ() { gewaehlt = Menuepunkt::FTPServ; }
  void VorGab(std::string_view modul = "SIM_PRO");
  void Printset() { gewaehlt = Menuepunkt::Printset; }
  void PriButt() { gewaehlt = Menuepunkt::PriButt; }
  void InfoP();
  void StartHelp();  ///< shows "Frighelp.<language>"
  void ende();       ///< ends the program after a question

  /// The text of a button.
  const std::string& Beschriftung(Menuepunkt punkt) const;
  /// A click on a flag, by its name; false for an unknown one.
  bool Flagge_klicken(std::string_view name);
  /// Changes the language: stores it, translates the working project, reads all captions. False,
  /// and the language as it was, if the code is none of the languages, or (the reason shown) if its
  /// captions are missing or a file can't be written.
  bool Sprache_waehlen(std::string_view code);

  /// A job that was chosen in the menu gives it back.
  void zum_Menue() { gewaehlt = Menuepunkt::keiner; }
  /// Leaving the simulation: stores the working project and the operating figures. A program that a
  /// sibling started hands its values back and ends; any other returns to the menu. False, and the
  /// reason shown, if a file can't be written.
  bool Simulation_verlassen();
  /// Starts a sibling program with the project's values. False, and the reason shown, if they can't
  /// be written or the program is missing.
  bool Geschwister_starten(std::string_view programm);

  /// True if a sibling started the program.
  bool von_Geschwister() const { return uebergabe_.hat_Daten(); }
  /// The hand-over as the start found it.
  const Uebergabe& uebergabe() const { return uebergabe_; }

 private:
  void Uebergabe_lesen();
  void Arbeitsprojekt_pruefen();
  bool Sprache_da(std::string_view code) const;
  bool Arbeitsprojekt_uebersetzen(std::string_view nach);
  Uebergabe Rueckgabe() const;
  void zeige_fehler(std::string_view text);

  Programm& p_;
  Uhr& uhr_;
  Programmstart& geschwister_;
  Uebergabe uebergabe_;
  bool uebergabe_offen_ = false;  // the data are not yet in the form
  bool projekt_geladen_ = false;
};

}  // namespace polarkreis
