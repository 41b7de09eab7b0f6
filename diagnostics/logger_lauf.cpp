#include <algorithm>

#include "diagnostics/einheiten_funktion.h"
#include "diagnostics/logger.h"
#include "diagnostics/zeiten.h"
#include "shell/text.h"

namespace polarkreis {

namespace {

constexpr int Port_Quelle = 78;
constexpr int Kalib_Proben = 5;
constexpr std::size_t Quelle_Antwort_min = 25;
constexpr int Quelle_Reserve = 10;  // rows that a file-fed run keeps free below the planned count
/// A nonsense interval must not keep a run from ending: no pause is longer than a week.
constexpr double Pause_max_ms = 7 * 24 * 3600 * 1000.0;
constexpr int Diagramm_erstes = 3, Diagramm_letztes = 5;  // tabs

bool ist_Kalibrierung(int run_kind) {
  return run_kind == Logger::Kalib_Temperatur || run_kind == Logger::Kalib_Druck;
}

}  // namespace

// --- GO and STOP

void Logger::Start_Butt1(int run_kind) {
  if (Start_BUTT_l.Caption == "STOP") return anhalten();
  if (belegt_) return;
  const Belegung belegung(belegt_);
  Anschluss_suchen();
  Auto_korr = m_.messung.Auto_corr_Check;
  if (COM_Nr == 0) {
    Start_BUTT_l.farbe = Farbe::rot;
    Kein_Geraet();
  } else {
    Lauf_beginnen();
    Start_Scan(run_kind);
  }
  anhalten();
}

void Logger::Anschluss_suchen() {
  m_.kern.Funktion = SP_Zuweis(m_.messung.OrbiN_spread, m_.captions);
  m_.empfaenger.Ereignisse();
  Such_Versuche = 0;
  COM_Nr = 0;
  if (m_.quelle.Quelle_ISS == 0) Ports_suchen();
  if (m_.quelle.Quelle_ISS == Messquelle::aktiv) Quelle_pruefen();
}

void Logger::Quelle_pruefen() {
  const std::string antwort = m_.quelle.Check_ISS_da(Quelle_Nr, Quelle_Art);
  if (getrimmt(antwort).size() < Quelle_Antwort_min) return Port_unbekannt();
  COM_Nr = Port_Quelle;
  m_.messung.Combo6 = "COM " + std::to_string(Port_Quelle);
}

void Logger::Lauf_beginnen() {
  Start_BUTT_l = {"STOP", Farbe::gruen};
  Mess_laeuft = 1;
  m_.empfaenger.Zustand();
  sichern_melden(m_.datei.Lauf_beginnen());
  m_.kern.beginnen();
}

void Logger::anhalten() {
  Start_BUTT_l = {"GO", Farbe::rot};
  Mess_laeuft = 0;
  m_.empfaenger.Zustand();
}

void Logger::Start_Kalib() {
  if (belegt_) return;
  ProgressBar2 = 0;
  Picture6 = true;
  Start_Butt1(Kalib_Tab == 1 ? Kalib_Druck : Kalib_Temperatur);
  Picture6 = false;
  m_.empfaenger.Zustand();
}

// --- The loop

void Logger::Start_Scan(int run_kind) {
  const bool kalibriert = ist_Kalibrierung(run_kind);
  Start_Fehler = 0;
  if (!Scan_beginnen()) return;
  const double geplant = InterVall_Ber(m_.messung.Messintervall_s(), m_.messung.Combo5);
  if (kalibriert) Kalibrierung_beginnen();
  int i = 1;
  for (Durchgang d = Durchgang::weiter; d != Durchgang::Ende && Mess_laeuft == 1;) {
    d = Scan(i, run_kind, geplant);
    if (d == Durchgang::weiter) ++i;
  }
  if (Zeile_offen_) Zeile_zuruecknehmen();
  if (kalibriert) Kalibrierung_beenden(i > Kalib_Proben);
}

/// Checks the device and sets the line; false if there is none.
bool Logger::Scan_beginnen() {
  if (m_.messung.Combo6.starts_with("??") || COM_Nr == 0) {
    Kein_Geraet();
    Start_Fehler = 1;
  }
  if (m_.quelle.Quelle_ISS == Messquelle::aktiv) Start_Fehler = 78;
  COM_Settings = Einstellungstext();
  if (COM_Nr < 1 || !m_.messung.Combo6.starts_with("COM")) return false;
  m_.messung.skala = {};
  return true;
}

Logger::Durchgang Logger::Scan(int i, int run_kind, double geplant) {
  if (i > 1) m_.empfaenger.Sanduhr(false);
  if (ist_Kalibrierung(run_kind) && i > Kalib_Proben) {
    Mess_laeuft = 0;
    return Durchgang::Ende;
  }
  const std::string t1 = Messzeit_Text(m_.uhr.UTC());
  Zeile_oeffnen(i, geplant);
  DiaSpread_Redraw = SSTab1 < Diagramm_erstes || SSTab1 > Diagramm_letztes;
  m_.messung.DiaSpread.setze(Messtabelle::Erste, Spalte::Zeit, Uhrzeit_Text(m_.uhr.Ortszeit()));
  COM_Search(COM_Nr, 1, i, run_kind);
  if (ist_Kalibrierung(run_kind)) m_.empfaenger.Zustand();
  if (Scan_Status == 7) {
    Scan_Status = 0;
    return Durchgang::nochmal;
  }
  if (Scan_Status == 15) {
    Geraet_verloren(i);
    return Durchgang::Ende;
  }
  Zeile_rechnen();
  Pause(t1);
  const bool fertig = !ist_Kalibrierung(run_kind) && geplant >= 1 && i > geplant;
  return fertig ? Durchgang::Ende : Durchgang::weiter;
}

/// The newest sample is always row 3. A sample that is repeated keeps its row.
void Logger::Zeile_oeffnen(int i, double geplant) {
  if (Zeile_offen_) return;
  if (i > 1) Quelle_kuerzen(geplant);
  if (i == 1 && !m_.messung.DiaSpread.gefuellt(Messtabelle::Erste))
    m_.messung.Mess_Zeilen = Messtabelle::Erste - 1;
  m_.messung.Zeile_Ein(Messtabelle::Erste + 1, 1);
  Zeile_offen_ = true;
}

/// A file-fed run may go on for ever: its oldest rows go.
void Logger::Quelle_kuerzen(double geplant) {
  const double grenze = geplant - Quelle_Reserve;
  if (m_.quelle.Quelle_ISS != Messquelle::aktiv || grenze < Messtabelle::Erste) return;
  if (m_.messung.Mess_Zeilen <= grenze) return;
  m_.messung.Mess_Zeilen = static_cast<int>(Int(grenze));
  m_.messung.DiaSpread.setze_Zeilenzahl(m_.messung.Mess_Zeilen);
}

void Logger::Zeile_zuruecknehmen() {
  m_.messung.DiaSpread.entfernen(Messtabelle::Erste, 1);
  m_.messung.Mess_Zeilen -= 1;
  Zeile_offen_ = false;
}

void Logger::Zeile_rechnen() {
  {
    Schrittfolge schritt(m_.ablage);
    m_.kern.Kern_Zeile(Messtabelle::Erste);
  }
  Zeile_offen_ = false;
  sichern_melden(m_.datei.Zeile_anhaengen());
  m_.empfaenger.Messwert();
}

/// A working copy that can't be written is told once until it can be written again: the run goes
/// on, and its rows wait.
void Logger::sichern_melden(bool gesichert) {
  if (!gesichert && !Schreibfehler_) Schreibfehler_zeigen();
  Schreibfehler_ = !gesichert;
}

/// What is left of the interval: the part below a second in one piece, then second by second.
void Logger::Pause(const std::string& t1) {
  const double rest = time_diff(t1, Messzeit_Text(m_.uhr.UTC()), 0, m_.messung.Messintervall_s());
  const double warten = std::min(rest, Pause_max_ms);
  const double sekunden = Int(warten / 1000);
  m_.uhr.Warten(static_cast<int>(warten - sekunden * 1000));
  m_.empfaenger.Ereignisse();
  for (double s = 0; s < sekunden; ++s) {
    m_.uhr.Warten(1000);
    m_.empfaenger.Ereignisse();
  }
}

void Logger::Geraet_verloren(int i) {
  m_.ablage.meldungen().melde(
      "logger", m_.messung.Combo6,
      "no good reply: the run ended after " + std::to_string(i - 1) + " samples, which are kept");
  COM_Nr = 0;
  Port_unbekannt();
  Mess_laeuft = 0;
}

void Logger::Kalibrierung_beginnen() {
  Offset_vorher_ = m_.kanaele.Offset_Wert;
  Kalib_Bezug_ = leer;
  Kalib_Druck_.clear();
  Kalib_Differenz.clear();
}

void Logger::Kalibrierung_beenden(bool vollstaendig) {
  ProgressBar2 = 0;
  Picture6 = false;
  if (vollstaendig) {
    if (!m_.kanaele.Offset_Speich()) Schreibfehler_zeigen();
    Offset_zeigen = true;
  } else {
    m_.kanaele.Offset_Wert = Offset_vorher_;
  }
  m_.messung.DiaG_loesch();
}

}  // namespace polarkreis
