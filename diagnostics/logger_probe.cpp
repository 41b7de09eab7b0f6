#include "diagnostics/logger.h"

#include <cmath>

#include "diagnostics/spalten.h"
#include "shell/text.h"

namespace polarkreis {

namespace {

constexpr int Versuche = 51;
constexpr int Warten_ms = 25;
constexpr int Gedaechtnis_ab = 5;  // the sample from which position 9 is remembered
constexpr int Position_t_liq = 9, Position_Po = 7, Position_Pc = 8;
constexpr std::size_t Slot_Po = 9;
constexpr double Offener_Eingang = 250;  // °C: no sensor is connected

}  // namespace

void Logger::Probe_nehmen(int port, int sample_no, int run_kind) {
  Scan_Status = 0;
  for (int versuch = 0; versuch < Versuche; ++versuch) {
    if (versuch > 0) m_.uhr.Warten(Warten_ms);
    if (Antwort_auswerten(Antwort_holen(port), sample_no, run_kind)) return;
  }
  Scan_Status = 15;
}

/// The reply to one request; nothing if an operation failed.
std::string Logger::Antwort_holen(int port) {
  if (m_.quelle.Quelle_ISS == Messquelle::aktiv)
    return m_.quelle.Check_ISS_da(Quelle_Nr, Quelle_Art);
  m_.port.Port(port);
  m_.port.Einstellungen(COM_Settings);
  m_.port.Oeffnen();
  m_.port.Schreiben(Messbefehl);
  m_.uhr.Warten(Warten_ms);
  std::string antwort = m_.port.Lesen();
  if (m_.port.Fehler()) antwort.clear();
  m_.port.Schliessen();
  return antwort;
}

/// Works a reply into row 3; false spends the attempt. Cells of the tokens before one that spoils
/// the reply keep its values until the next attempt.
bool Logger::Antwort_auswerten(std::string_view antwort, int sample_no, int run_kind) {
  if (!Antwort_brauchbar(antwort)) return false;
  AntwortLeser leser(antwort);
  Plausibilitaet plausibel(m_.kanaele.Offset_Wert[Slot_Po]);
  for (std::string_view token; leser.lies(token);) {
    Zeit_Text = Zeit_des_Tokens(token);
    if (!Token_auswerten(leser.Position(), token, sample_no, run_kind, plausibel)) return false;
  }
  return true;
}

bool Logger::Token_auswerten(int position, std::string_view token, int sample_no, int run_kind,
                             Plausibilitaet& plausibel) {
  double value = Wert(token);
  if (Auto_korr == 1 && plausibel.verworfen(position, value)) return false;
  if (position == Position_t_liq) value = Position_9(token, value, sample_no);
  Kalibrieren(position, value, run_kind);
  const int spalte = m_.kanaele.Chanel_festleg(position, 1);
  if (spalte <= 0) return true;
  const Kanalart art = Kanalart_von(position);
  const double messwert = Messwert_von(art, value, Offset_von(position),
                                       Wandlung(position, m_.kern.Funktion.Sensor_Code[1]));
  m_.messung.DiaSpread.setze(Messtabelle::Erste, spalte, Zellentext(art, messwert));
  return true;
}

/// The liquid line's input drops out now and then: its last good token stands in.
double Logger::Position_9(std::string_view token, double value, int sample_no) {
  const bool fehlt = value == 0 || getrimmt(token).empty();
  if (!fehlt && std::isfinite(value)) Token_9 = token;
  return fehlt && sample_no >= Gedaechtnis_ab && !Token_9.empty() ? Wert(Token_9) : value;
}

double Logger::Offset_von(int position) const {
  if (position == Position_Po) return m_.kanaele.Offset_Wert[Slot_Po];
  const int slot = m_.kanaele.Chanel_festleg(position, 3);
  return slot > 0 ? m_.kanaele.Offset_Wert[static_cast<std::size_t>(slot)] : 0;
}

void Logger::Kalibrieren(int position, double value, int run_kind) {
  if (run_kind == Kalib_Temperatur && m_.kanaele.Chanel_festleg(position, 3) > 0) {
    Temperatur_kalibrieren(position, value);
  } else if (run_kind == Kalib_Druck && Kanalart_von(position) == Kanalart::analog) {
    Druck_kalibrieren(position, value);
  } else {
    return;
  }
  ++ProgressBar2;
}

/// All inputs lie in one bath and are pulled to the reading of the first.
void Logger::Temperatur_kalibrieren(int position, double value) {
  double& slot =
      m_.kanaele.Offset_Wert[static_cast<std::size_t>(m_.kanaele.Chanel_festleg(position, 3))];
  slot = 0;
  if (position == Position_t_liq) Kalib_Bezug_ = value;
  if (value < Offener_Eingang) setze(slot, Kalib_Bezug_ - value);
}

/// With all sensors open to one pressure, each ought to read what position 8 reads.
void Logger::Druck_kalibrieren(int position, double value) {
  const auto wandlung = Wandlung(position, m_.kern.Funktion.Sensor_Code[1]);
  const double druck = Messwert_von(Kanalart::analog, value, 0, wandlung);
  Kalib_Druck_[position] = druck;
  if (position == Position_Pc) Kalib_Bezug_ = druck;
  if (ist_leer(Kalib_Bezug_)) return;
  for (const auto& [stelle, wert] : Kalib_Druck_)
    if (stelle != Position_Pc) Kalib_Differenz[stelle] = Kalib_Bezug_ - wert;
}

}  // namespace polarkreis
