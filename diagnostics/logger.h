#pragma once

#include <array>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "diagnostics/antwort.h"
#include "diagnostics/kanaele.h"
#include "diagnostics/kern.h"
#include "diagnostics/messdatei.h"
#include "diagnostics/messempfaenger.h"
#include "diagnostics/messquelle.h"
#include "diagnostics/messung.h"
#include "diagnostics/serieller_port.h"
#include "shell/ablage.h"
#include "shell/captions.h"
#include "shell/dialog.h"
#include "shell/warten.h"

namespace polarkreis {

/// What the logger's link works on.
struct Loggermittel {
  Messung& messung;
  Kanaele& kanaele;
  Kern& kern;
  Messdatei& datei;
  Messquelle& quelle;
  SeriellerPort& port;
  Uhr& uhr;
  Messempfaenger& empfaenger;
  Dialog& dialog;
  const Captions& captions;
  Ablage& ablage;
};

/// The conversation with the logger: port search, samples, runs, calibration, and the files in its
/// memory. All is one thread: the operations return when they are done, wait through the clock and
/// give way to events at their named points, where a press of the button may call `Start_Butt1`
/// again. While one of them has the line, another one (but STOP) does nothing.
///
/// The offsets of the channels are the caller's to load (`Kanaele::Offset_laden`), once.
class Logger {
 public:
  explicit Logger(const Loggermittel& mittel) : m_(mittel) {}
  Logger(const Logger&) = delete;
  Logger& operator=(const Logger&) = delete;

  // --- State of the run

  int COM_Nr = 0;            ///< port in use; 0 none, 78 the file-fed source
  std::string COM_Settings;  ///< baud, parity, data and stop bits
  int Mess_laeuft = 0;       ///< 1 while a run goes; tested at the head of its loop
  int Such_laeuft = 0;       ///< 1 while a search goes
  int Such_Versuche = 0;     ///< failed searches in a row
  int Start_Fehler = 0;      ///< 1 no device at the start of the loop, 78 file-fed, else 0
  int Scan_Status = 0;       ///< last sample: 0 good, 7 to be repeated, 15 the device is lost
  int Auto_korr = 0;         ///< copy of `Auto_corr_Check`, taken at every GO
  std::string Zeit_Text;     ///< clock time of the last token or line of the logger
  std::string Token_9;       ///< last good token of position 9, which stands in for a missing one
  int Quelle_Nr = 1;         ///< which file the source reads: its index, 1 to 5 ...
  int Quelle_Art = 1;        ///< ... and its kind, see `Messquelle::Check_ISS_da`

  // --- Controls

  enum class Farbe { rot, gruen };
  struct Startknopf {
    std::string Caption = "GO";  ///< "GO" or "STOP": the state of the run
    Farbe farbe = Farbe::rot;
  };
  Startknopf Start_BUTT_l;
  std::vector<std::string> List1;  ///< the logger's files
  std::string Text2;               ///< name of the file to download
  bool ADC_PN = true;              ///< the panel of the logger's files is visible
  int ProgressBar2 = 0;          ///< calibration: values so far, 40 when all temperatures are done
  bool Picture6 = false;         ///< the panel with that bar is visible
  int SSTab1 = 0;                ///< the tab that is showing; on 3, 4 and 5 a chart is drawn
  bool DiaSpread_Redraw = true;  ///< the table redraws with each row
  int Kalib_Tab = 0;             ///< tab of the calibration: 0 temperatures, 1 pressures
  bool Offset_zeigen = false;    ///< the form `Offset` is to be shown; its opener clears this

  /// Pressure calibration: how far each pressure lies below the one of position 8, bar, by
  /// position. They have no slot, so it's for showing only.
  std::map<int, double> Kalib_Differenz;

  // --- Operations

  /// The button of the port search: searches afresh, and tells if there is no logger.
  void COM_Such();
  /// `action` 2 searches ports 1 to 16 (not while the file-fed source is active or a search runs):
  /// the highest one with a logger counts. `action` 1 takes one sample from `port` into row 3;
  /// `sample_no` counts from 1, `run_kind` as in `Start_Butt1`.
  void COM_Search(int port, int action, int sample_no = 0, int run_kind = Messen);

  enum Laufart { Messen = 0, Messen_auch = 1, Kalib_Temperatur = 7, Kalib_Druck = 8 };
  /// GO: looks for the device, begins the working copy and runs until the end of the run. STOP,
  /// pressed from an event of the run: shows at once, and the loop ends at its next test.
  void Start_Butt1(int run_kind);
  /// The loop of a run.
  void Start_Scan(int run_kind);
  /// A calibration run of five samples, the kind by `Kalib_Tab`. One that ends before its fifth
  /// sample leaves the offsets as they were.
  void Start_Kalib();
  /// True from GO until the loop has ended, which may be some time after STOP, and while another
  /// operation has the line.
  bool belegt() const { return belegt_; }

  /// `action` 0: the logger's list of files as it comes, into `result`. `action` 1: the file `name`
  /// into the table; the result is the number of its rows, -1 if there are more than 600 lines (the
  /// first 600 stay).
  int Port_einlesen(std::string_view name, int action, std::string& result);
  /// Downloads the file of `Text2` into the emptied table; the result is as above. Without a device
  /// the message is shown, the table stays, and the result is 0.
  int COM_import();
  /// Fills `List1`; the message is shown where no device answers.
  void COM_Port_FMD_Import();

 private:
  enum class Durchgang { weiter, nochmal, Ende };
  /// While one lives, the line is taken.
  struct Belegung {
    explicit Belegung(bool& belegt) : belegt_(belegt), vorher_(belegt) { belegt_ = true; }
    ~Belegung() { belegt_ = vorher_; }
    Belegung(const Belegung&) = delete;
    Belegung& operator=(const Belegung&) = delete;

   private:
    bool& belegt_;
    const bool vorher_;
  };

  // logger_suche.cpp
  void Ports_suchen();
  std::string Port_fragen(int nummer);
  void Logger_gefunden(int nummer, std::string_view antwort);
  void Nicht_gefunden();
  void Kein_Geraet();
  void Schreibfehler_zeigen();
  void Port_unbekannt();

  // logger_probe.cpp
  void Probe_nehmen(int port, int sample_no, int run_kind);
  std::string Antwort_holen(int port);
  bool Antwort_auswerten(std::string_view antwort, int sample_no, int run_kind);
  bool Token_auswerten(int position, std::string_view token, int sample_no, int run_kind,
                       Plausibilitaet& plausibel);
  double Position_9(std::string_view token, double value, int sample_no);
  void Kalibrieren(int position, double value, int run_kind);
  void Temperatur_kalibrieren(int position, double value);
  void Druck_kalibrieren(int position, double value);
  double Offset_von(int position) const;

  // logger_lauf.cpp
  void Anschluss_suchen();
  void Quelle_pruefen();
  void Lauf_beginnen();
  void anhalten();
  bool Scan_beginnen();
  Durchgang Scan(int i, int run_kind, double geplant);
  void Zeile_oeffnen(int i, double geplant);
  void Quelle_kuerzen(double geplant);
  void Zeile_zuruecknehmen();
  void Zeile_rechnen();
  void sichern_melden(bool gesichert);
  void Pause(const std::string& t1);
  void Geraet_verloren(int i);
  void Kalibrierung_beginnen();
  void Kalibrierung_beenden(bool vollstaendig);

  // logger_datei.cpp
  void Leitung_oeffnen(int warten_ms);
  std::string Verzeichnis_lesen();
  int Zeilen_empfangen(int warten_ms, const std::function<void(std::string_view)>& zeile);
  int Zeilen_zaehlen(std::string_view name);
  int Datei_holen();
  bool Loggerzeile(std::string_view text, int zeile);
  void Liste_fuellen(std::string_view text);
  std::string Einstellungstext() const;

  Loggermittel m_;
  bool belegt_ = false;                // an operation has the line
  bool Zeile_offen_ = false;           // row 3 has been inserted for a sample that isn't there yet
  bool Schreibfehler_ = false;         // ... of the working copy has been told
  double Kalib_Bezug_ = leer;          // reading of the reference input
  std::map<int, double> Kalib_Druck_;  // readings of the pressure inputs
  std::array<double, 49> Offset_vorher_{};  // before the calibration
};

}  // namespace polarkreis
