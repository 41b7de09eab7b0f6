#include "diagnostics/familie.h"
#include "diagnostics/kopfzeilen.h"
#include "diagnostics/logger.h"

namespace polarkreis {

namespace {

constexpr int Port_erster = 1, Port_letzter = 16;
constexpr const char* Suche_Einstellungen = "9600,N,8,1";
constexpr int Suche_Warten_ms = 25;
constexpr int Versuche_max = 10;

}  // namespace

void Logger::COM_Such() {
  if (belegt_ || Such_laeuft != 0 || m_.quelle.Quelle_ISS == Messquelle::aktiv) return;
  const Belegung belegung(belegt_);
  Such_Versuche = 0;
  Ports_suchen();
  if (COM_Nr == 0) Kein_Geraet();
}

void Logger::COM_Search(int port, int action, int sample_no, int run_kind) {
  if (action == 2) Ports_suchen();
  if (action == 1) Probe_nehmen(port, sample_no, run_kind);
}

void Logger::Ports_suchen() {
  if (Such_laeuft != 0 || m_.quelle.Quelle_ISS == Messquelle::aktiv) return;
  const Belegung belegung(belegt_);
  COM_Nr = 0;
  Such_laeuft = 1;
  m_.empfaenger.Sanduhr(true);
  for (int nummer = Port_erster; nummer <= Port_letzter; ++nummer) {
    const std::string antwort = Port_fragen(nummer);
    if (!antwort.empty() && antwort != Messbefehl) Logger_gefunden(nummer, antwort);
  }
  if (COM_Nr != 0)
    Such_Versuche = 0;
  else
    Nicht_gefunden();
  m_.empfaenger.Sanduhr(false);
  Such_laeuft = 0;
  m_.empfaenger.Zustand();
}

/// What a port replies to the request for a sample; nothing if an operation failed.
std::string Logger::Port_fragen(int nummer) {
  m_.port.Port(nummer);
  m_.port.Einstellungen(Suche_Einstellungen);
  m_.port.Oeffnen();
  m_.uhr.Warten(Suche_Warten_ms);
  m_.port.Schreiben(Messbefehl);
  m_.uhr.Warten(Suche_Warten_ms);
  std::string antwort = m_.port.Lesen();
  if (m_.port.Fehler()) antwort.clear();
  m_.port.Schliessen();
  return antwort;
}

void Logger::Logger_gefunden(int nummer, std::string_view antwort) {
  COM_Nr = nummer;
  m_.messung.Combo6 = "COM" + std::to_string(nummer);
  const int vorher = m_.kanaele.Box_Typ;
  m_.kanaele.Box_Typ = Box_Typ_von(antwort);
  if (m_.kanaele.Box_Typ == vorher) return;
  for (const int einheit : {1, 2})
    Col_Standard(m_.messung, m_.captions, 2, einheit, m_.kanaele.Box_Typ);
}

void Logger::Nicht_gefunden() {
  if (++Such_Versuche > Versuche_max) m_.messung.Off_line_Check = 1;
  Port_unbekannt();
}

void Logger::Port_unbekannt() {
  m_.messung.Combo6 = "???";
}

void Logger::Kein_Geraet() {
  const std::string familie(Familienname);
  m_.dialog.zeige("No " + familie + " DiaGnostics Divice found  or no valid COM Port.",
                  familie + " DiaGnostics", Symbol::hinweis);
}

/// What could not be written.
void Logger::Schreibfehler_zeigen() {
  m_.dialog.zeige(m_.ablage.letzter_fehler(), std::string(Familienname) + " DiaGnostics",
                  Symbol::fehler);
}

}  // namespace polarkreis
