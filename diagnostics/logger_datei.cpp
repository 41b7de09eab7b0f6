#include <algorithm>
#include <optional>

#include "diagnostics/logger.h"
#include "diagnostics/spalten.h"
#include "diagnostics/zeilenpuffer.h"
#include "shell/text.h"

namespace polarkreis {

namespace {

constexpr std::string_view Transfername = "aaaa.adc";
constexpr int Zeilen_max = 600;
constexpr int Zeilen_Reserve = 20;
constexpr int Versuche_Liste = 6;
constexpr std::size_t Stempel_Laenge = 20, Uhrzeit_Laenge = 8;
constexpr int Position_letzte = 16;

std::string Befehl(std::string_view wort, std::string_view name) {
  std::string text(wort);
  text += name;
  return text + "\r";
}

/// Takes the next file name off a list: what stands before its extension, in the line of that. The
/// size and time behind it hold two colons, and what follows them begins the next name.
std::optional<std::string> Dateiname_abtrennen(std::string_view& rest) {
  const std::size_t treffer = std::min(rest.find(".adc"), rest.find(".txt"));
  if (treffer == std::string_view::npos) return std::nullopt;
  std::string_view name = rest.substr(0, treffer + 4);
  rest.remove_prefix(name.size());
  for (int i = 0; i < 2; ++i) {
    const std::size_t doppelpunkt = rest.find(':');
    if (doppelpunkt != std::string_view::npos) rest.remove_prefix(doppelpunkt + 1);
  }
  name.remove_prefix(name.find_last_of("\r\n") + 1);
  return std::string(getrimmt(name));
}

}  // namespace

// --- The operations

int Logger::COM_import() {
  if (belegt_) return 0;
  const Belegung belegung(belegt_);
  std::string text;
  Port_einlesen({}, 0, text);
  if (text.empty() || text.find("error") != std::string::npos) {
    Kein_Geraet();
    Port_unbekannt();
    m_.empfaenger.Zustand();
    return 0;
  }
  ADC_PN = false;
  m_.messung.DiaG_zurueck_setz();
  const int zeilen = Port_einlesen(Text2, 1, text);
  m_.empfaenger.Zustand();
  return zeilen;
}

void Logger::COM_Port_FMD_Import() {
  if (belegt_) return;
  const Belegung belegung(belegt_);
  std::string text;
  for (int versuch = 0; COM_Nr >= 1 && versuch < Versuche_Liste && text.empty(); ++versuch) {
    Port_einlesen({}, 0, text);
    m_.uhr.Warten(100);
  }
  if (text.empty()) Kein_Geraet();
  Liste_fuellen(text);
  m_.empfaenger.Zustand();
}

void Logger::Liste_fuellen(std::string_view text) {
  List1.clear();
  for (auto name = Dateiname_abtrennen(text); name; name = Dateiname_abtrennen(text)) {
    if (!List1.empty()) m_.uhr.Warten(5);
    List1.push_back(*name);
  }
}

int Logger::Port_einlesen(std::string_view name, int action, std::string& result) {
  Leitung_oeffnen(50);
  if (action == 0) {
    result = Verzeichnis_lesen();
    m_.port.Schliessen();
    return 0;
  }
  const int n = Zeilen_zaehlen(getrimmt(name));
  m_.port.Schliessen();
  m_.messung.DiaSpread.setze_Zeilenzahl(n + Zeilen_Reserve);
  m_.messung.Mess_Zeilen = std::max(n, Messtabelle::Erste - 1);
  Leitung_oeffnen(100);
  const int geholt = Datei_holen();
  m_.port.Schliessen();
  return geholt;
}

// --- The line

std::string Logger::Einstellungstext() const {
  const std::string baud(getrimmt(m_.messung.Combo7));
  return (baud.empty() ? "9600" : baud) + ",N,8,1";
}

void Logger::Leitung_oeffnen(int warten_ms) {
  COM_Settings = Einstellungstext();
  m_.port.Port(COM_Nr);
  m_.port.Einstellungen(COM_Settings);
  m_.port.Oeffnen();
  m_.uhr.Warten(warten_ms);
}

/// The list in one piece; a slow line brings the rest of a long one bit by bit.
std::string Logger::Verzeichnis_lesen() {
  m_.port.Schreiben("ls\r");
  m_.uhr.Warten(100);
  std::string text, stueck;
  do {
    stueck = m_.port.Lesen();
    if (stueck.empty() && !text.empty()) break;
    text += stueck;
    m_.uhr.Warten(50);
  } while (!stueck.empty() && text.size() < Zeilenpuffer::Laenge_max);
  return text;
}

/// Hands over each line that the logger sends, until it sends nothing more, an "error" or more than
/// 600 lines; the result is their number, 601 for more than 600.
int Logger::Zeilen_empfangen(int warten_ms, const std::function<void(std::string_view)>& zeile) {
  Zeilenpuffer puffer;
  int n = 0;
  for (bool weiter = true; weiter;) {
    const std::string text = m_.port.Lesen();
    m_.uhr.Warten(warten_ms);
    weiter = puffer.nimm(text);
    for (std::string_view z; puffer.naechste(z);) {
      if (++n > Zeilen_max) return n;
      zeile(z);
    }
  }
  return n;
}

/// First pass: gives the file its transfer name, and counts its lines.
int Logger::Zeilen_zaehlen(std::string_view name) {
  m_.port.Schreiben(Befehl("mv ", std::string(name) + " " + std::string(Transfername)));
  m_.port.Lesen();
  m_.port.Schreiben(Befehl("up-c ", Transfername));
  m_.uhr.Warten(25);
  m_.port.Lesen();
  return Zeilen_empfangen(25, [](std::string_view) {});
}

/// Second pass: the rows themselves, the first line in row 3.
int Logger::Datei_holen() {
  m_.port.Schreiben(Befehl("up ", Transfername));
  m_.uhr.Warten(50);
  int zeilen = 0;
  const int n = Zeilen_empfangen(50, [this, &zeilen](std::string_view text) {
    if (Loggerzeile(text, zeilen + Messtabelle::Erste)) ++zeilen;
  });
  m_.messung.Mess_Zeilen = std::max(m_.messung.Mess_Zeilen, zeilen);
  return n > Zeilen_max ? -1 : zeilen;
}

/// Writes a logger line into a row; false for one without a time stamp. What stands before a CR is
/// the command's echo.
bool Logger::Loggerzeile(std::string_view text, int zeile) {
  text.remove_prefix(text.find_last_of('\r') + 1);
  if (text.size() < Stempel_Laenge) return false;
  const std::string_view stempel = rechts_getrimmt(text.substr(0, Stempel_Laenge));
  Zeit_Text = stempel.substr(stempel.size() - std::min(stempel.size(), Uhrzeit_Laenge));
  m_.messung.DiaSpread.setze(zeile, Spalte::Zeit, Zeit_Text);
  text.remove_prefix(Stempel_Laenge);
  for (int position = 1; position <= Position_letzte; ++position) {
    text.remove_prefix(std::min(text.find_first_not_of('\t'), text.size()));
    const std::string_view feld = text.substr(0, text.find('\t'));
    if (feld.empty()) break;
    const int spalte = m_.kanaele.Chanel_festleg(position, 1);
    if (spalte > 0) m_.messung.DiaSpread.setze(zeile, spalte, std::string(getrimmt(feld)));
    text.remove_prefix(feld.size());
  }
  return true;
}

}  // namespace polarkreis
