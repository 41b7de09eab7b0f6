#pragma once

#include <array>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "monitoring/alarmregel.h"
#include "monitoring/register.h"
#include "monitoring/uebertragung.h"
#include "monitoring/zellblock.h"
#include "shell/captions.h"
#include "shell/dialog.h"
#include "shell/warten.h"

namespace polarkreis {

/// The desk for plants that are watched remotely: register, a plant's settings and its 16 alarm
/// rules, and their exchange with the FTP server. It measures nothing and decides no alarm. All
/// errors are ignored and the next statement runs, as far as nothing is lost by it; what a caller
/// wants to tell its user stands in `Ergebnisse` and in the results.
///
/// Edit fields, register and files are three places: a change moves on only by its button.
class ftp_server {
 public:
  ftp_server(Ablage& ablage, const Captions& captions, Dialog& dialog, FtpKlient& klient);
  ftp_server(const ftp_server&) = delete;
  ftp_server& operator=(const ftp_server&) = delete;

  /// Whom a transfer reports to while it blocks its caller: one step before each file and one
  /// behind the last. False stops before the next file. None while it is null.
  Fortschritt* fortschritt = nullptr;

  // --- The register.
  Register FTPSpread;
  std::array<std::string, Register::Spalten> FTPSpread_Kopf;  ///< headings of the columns
  /// The selected cells, both corners included.
  struct Auswahl {
    int Zeile = 1, Spalte = 1, Zeile2 = 1, Spalte2 = 1;
  };
  Auswahl FTPSpread_Auswahl;

  // --- Page 1, `Settings`: edit fields of the plant, under their keys in the settings record.
  std::string ID_Label;
  std::string nm_edit, st_edit, nu_edit, ad_Edit, co_edit, tw_edit, fn_edit, th_edit, pu_edit,
      pd_edit, s1_edit, s2_edit, ml_edit, ip_edit, dr_edit, us_edit, pw_edit, nt_edit;
  bool Option1 = true;                          ///< the default FTP server
  bool Option2 = false;                         ///< the user's own
  std::vector<std::string> fn_Liste, nt_Liste;  ///< what `fn_edit` and `nt_edit` offer

  // --- Page 2, `Alerts`: a column a rule, a row a field.
  std::array<Alarmregel, Regelzahl> AlertSpread;
  std::array<std::string, Regelzeilen> AlertSpread_Kopf;
  /// The packed rules as they were formed last.
  std::array<std::string, Regelzahl> Alarmtexte;
  /// The list over a cell of the rule table, and the text box in its place for limit and delay.
  struct Zelleditor {
    bool sichtbar = false;
    int Zeile = 0, Spalte = 0;
    std::string Text;
    std::vector<std::string> Liste;
  };
  Zelleditor Alert_Combo, AlertSpreadText;

  // --- Page 3, `Load_measure`: a month and a time range, without further use.
  static constexpr int Kalenderzeilen = 5, Kalenderspalten = 7;
  std::array<std::array<std::string, Kalenderspalten>, Kalenderzeilen> KalenderSpread;
  std::vector<std::string> time_combo;

  /// --- Pages of `SSTab1`: 1 settings, 2 alarms, 3 calendar.
  int SSTab1 = 1;
  bool offen = false;  ///< the desk is open

  /// --- The exchange: current account, handles, log.
  Uebertragung ftp;
  /// How the transfers of the last button ended, in their order.
  std::vector<Uebertragung::Ergebnis> Ergebnisse;

  // --- Opening and closing.

  /// Headings and lists, temporary folder, register, calendar.
  void Oeffnen();
  /// The desk comes to the front.
  void Activate() { LoadDiaG("FMD_Global.ini"); }
  /// Saves the register; false if it can't be written.
  bool SpeichButt() { return Save_monitoring(1); }
  /// Saves and closes. False, and the desk stays open, if the register can't be written.
  bool Command3D1() { return Ende_monitoring(); }
  /// Closes; what was changed since the last save is lost.
  void Command3D2();

  /// 1 writes the register to its file, 2 reads it. False if it can't be written, or isn't there.
  bool Save_monitoring(int Richtung);
  bool Ende_monitoring();
  void LoadDiaG(std::string_view Dateiname);

  // --- Pages.
  void start_caption();
  void Tab_Select(int Seite);
  void HideComponents();
  void Kalender(int Fall);

  // --- The register's cells.
  void FTPSpreadText(int Zeile, int Spalte, std::string_view Text);
  /// Blanks the selected cells.
  void FTPSpreadDelete();
  /// The selected cells as text for the clipboard.
  std::string FTPSpreadcopy() const;
  /// Puts the clipboard's text into the register, from the selection's first cell on; a single cell
  /// fills the selection. What would stand outside the table is left out and counted in the message
  /// log; an empty clipboard gives a message.
  void FTPSpreadpaste(std::string_view Zwischenablage);

  // --- Settings of the active row's plant.

  /// 1 fills the edit fields from the register, 2 puts them back, 3 writes "<ID>SETTINGS" and
  /// uploads it, 4 downloads it and fills the fields from it.
  void handle_settings(int Fall);
  void set_speich() { handle_settings(2); }
  void set_upload() { handle_settings(3); }
  void set_download() { handle_settings(4); }
  /// Takes the active row: current ID, server choice and account. For the choices 1 and 2 alike
  /// that is the default account; the user's own server is only told to the monitoring side. For
  /// any other choice the account stays as it was.
  void Server_settings();
  /// The settings record: a line "key=value;" a field. The server's values are the edit fields' for
  /// choice 2, else the current account's; the route is its number.
  std::string Einstellsatz() const;
  /// Fills the fields from a settings record; unknown keys and blank lines are skipped.
  void Einstellsatz_uebernehmen(std::string_view text);

  // --- Alarm rules of the active row's plant.

  /// 1 fills the rule table from the register, 2 packs it into the register, 3 writes the 16 packed
  /// rules to "<ID>ALERT<i>" and uploads them, 4 downloads the 16 files and fills the rule table
  /// from them, 5 packs it without touching the register.
  void alerts_handle(int Fall);
  void al_speich() { alerts_handle(2); }
  void al_upload();
  void al_download();
  /// Opens the list of a rule's field, or the text box for limit and delay, over its cell.
  void AlertSpreadEdit(int Zeile, int Spalte);
  /// Takes an entry of the open list, or the text of the open box, into the cell, and hides it.
  void Alert_Combo_Click(int Eintrag);
  void AlertSpreadText_Change(std::string_view Text);

  /// A field of page 1: its column in the register, which is also its key, and its text.
  struct Feld {
    Registerspalte spalte;
    std::string_view schluessel;
    std::string ftp_server::*text;
  };
  /// The 18 fields of the settings record, in its order.
  static std::span<const Feld> Felder();

 private:
  void Felder_fuellen();
  void Felder_zurueck();
  void Einstellungen_hoch();
  void Einstellungen_herunter();
  void Regeln_fuellen();
  void Regeln_packen(bool ins_Register);
  void Regeln_hoch();
  void Regeln_herunter();
  void Regel_lesen(std::string_view text, Alarmregel& regel) const;
  bool weiter(const std::string& Dateiname, int nummer, int anzahl);
  std::string* Regelzelle(int Zeile, int Spalte);

  Ablage& ablage_;
  const Captions& captions_;
  Dialog& dialog_;
};

/// The refrigerants that `fn_edit` offers.
std::span<const std::string_view> Monitoring_Kaeltemittel();

}  // namespace polarkreis
