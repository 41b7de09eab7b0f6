#include "diagnostics/kanaele.h"

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <utility>

#include "diagnostics/einheiten_funktion.h"
#include "diagnostics/spalten.h"
#include "shell/items.h"
#include "shell/text.h"
#include "shell/wert.h"

namespace polarkreis {

namespace {

constexpr int Positionen = 53;
constexpr int Slots = 48;
constexpr int Slots_gelesen = 32;
/// A spare column: a monitoring box needs the one of `Orbiter 1`'s sixth temperature for itself.

/// The column of each position, from position 0 on.
constexpr std::array<int, Positionen + 1> Spalten_der_Positionen = [] {
  using namespace Spalte;
  std::array<int, Positionen + 1> s{};
  s.fill(Senke);
  const auto reihe = [&s](int position, int spalte, int anzahl) {
    for (int k = 0; k < anzahl; ++k) s[static_cast<std::size_t>(position + k)] = spalte + k;
  };
  reihe(1, U_L1, 3);
  for (int position : {4, 35, 51}) reihe(position, I_L1, 3);
  reihe(7, p0, 1);
  reihe(8, pc, 1);
  reihe(9, t_liq, 1);
  reihe(10, t_ein_Verd, 2);
  reihe(12, t_Exp, 2);
  reihe(14, t_ein_Verfl, 2);
  reihe(16, t_end, 1);
  reihe(17, von(E_U_L1, 1), 6);
  reihe(23, von(E_P1, 1), 1);
  reihe(24, von(E_P2, 1), 1);
  reihe(25, von(E_t_liq, 1), 8);
  reihe(33, von(E_U_L1, 2), 2);
  reihe(38, von(E_I_L1, 2) + 2, 1);
  reihe(39, von(E_P1, 2), 1);
  reihe(40, von(E_P2, 2), 1);
  reihe(41, von(E_t_liq, 2), 8);
  return s;
}();

/// Columns of a foreign source's eight temperatures, and the offset slots of positions 9 to 16.
constexpr std::array<int, 8> Spalten_fremd = {Spalte::t_liq,    Spalte::t_Exp,     Spalte::t_SL,
                                              Spalte::t_end,    Spalte::U_L3,      Spalte::I_L1,
                                              Spalte::Testo_20, Spalte::Fluss_Verd};
constexpr std::array<int, 8> Slots_Temperatur = {1, 5, 6, 2, 3, 7, 8, 4};
constexpr int Erste_Temperatur = 9;

int Spalte_der_Position(int position, bool Messbox) {
  if (position < 1 || position > Positionen) return Spalte::Senke;
  if (Messbox && position == 10) return Spalte::von(Spalte::E_t_Exp, 1);
  if (Messbox && position == 11) return Spalte::Fluss_Verfl;
  if (Messbox && position == 30) return Spalte::Ausweich;
  return Spalten_der_Positionen[static_cast<std::size_t>(position)];
}

/// The entry of a position in a list that begins at `erste`; 0 outside it.
int Eintrag(const std::array<int, 8>& liste, int position, int erste) {
  const int k = position - erste;
  return k >= 0 && k < static_cast<int>(liste.size()) ? liste[static_cast<std::size_t>(k)] : 0;
}

double auf_drei_Stellen(double x) {
  return Int(x * 1000) / 1000;
}

/// The logger's standard sensor gives `standard` bar a volt from 0.5 V on, the real one `echt`.
double Sensorwert(double value, double standard, double echt) {
  if (!(value >= 0)) return 0;
  const double u = value / standard + 0.5;
  return (u - 0.5) * echt;
}

/// In Pa; it reads a little below 0 too, where the sensor's zero has drifted.
double Differenzdruck(double value) {
  if (!(value >= -0.3)) return 0;
  const double u = value / 2.5 + 0.5;
  const double x = (u - 0.5) * 0.125;
  return Int(x * 100000);
}

double in_Pascal(double value) {
  return Int(value * 100000);
}

/// Results are flows an hour; what is given in seconds is brought there.
double Einheitenfaktor(const std::string& einheit) {
  return gleich(einheit, "m³/h") || gleich(einheit, "kg/h") ? 1 : 3600;
}

}  // namespace

Kanalart Kanalart_von(int position) {
  if (position < 1 || position == 49 || position == 50 || position > Positionen)
    return Kanalart::keine;
  if (position > Slots) return Kanalart::elektrisch;
  const int punkt = (position - 1) % 16;
  if (punkt < 6) return Kanalart::elektrisch;
  return punkt < 8 ? Kanalart::analog : Kanalart::Temperatur;
}

double P_convert(double value, int kind) {
  switch (kind) {
    case 2:
      return auf_drei_Stellen(Differenzdruck(value));
    case 3:
      return in_Pascal(value);
    case 4:
      return auf_drei_Stellen(Sensorwert(value, 12.5, 25));
    case 5:
      return auf_drei_Stellen(Sensorwert(value, 12.5, 30));
    default:
      return auf_drei_Stellen(Sensorwert(value, 2.5, 12.5));
  }
}

std::optional<int> Wandlung(int position, int Sensor_Code_1) {
  switch (Sensor_Code_1) {
    case F_Ventilator:
      if (position == 23 || position == 24) return 2;
      break;
    case F_transkritisch:
    case F_Luftseite:
      if (position == 23 || position == 24 || position == 7) return 1;
      if (position == 8) return 4;
      break;
    default:
      break;
  }
  return std::nullopt;
}

void Eingangsskalierung_lesen(const std::optional<std::string>& text, Eingangsskalierung& target) {
  if (!text || text->empty()) {
    target = {};
    target.Monitoring_Check = "0";
    return;
  }
  ItemLeser leser(*text);
  for (Skalierung& kanal : target.Kanal)
    for (Skalierung::Bereich* bereich : {&kanal.Signal, &kanal.Groesse})
      for (std::string* zelle : {&bereich->Min, &bereich->Max, &bereich->Units}) leser.lies(*zelle);
  if (std::string schalter; leser.lies(schalter)) target.Monitoring_Check = std::move(schalter);
}

std::string Eingangsskalierung_schreiben(const Eingangsskalierung& skalierung) {
  std::string inhalt;
  for (const Skalierung& kanal : skalierung.Kanal)
    for (const Skalierung::Bereich* bereich : {&kanal.Signal, &kanal.Groesse})
      for (const std::string* zelle : {&bereich->Min, &bereich->Max, &bereich->Units})
        zeile_anhaengen(inhalt, {*zelle});
  zeile_anhaengen(inhalt, {skalierung.Monitoring_Check.value_or("0")});
  return inhalt;
}

int Kanaele::Chanel_festleg(int position, int mode) const {
  switch (mode) {
    case 1:
      return Spalte_der_Position(position, Box_Typ == 1);
    case 2:
      return Eintrag(Spalten_fremd, position, 1);
    case 3:
      return Eintrag(Slots_Temperatur, position, Erste_Temperatur);
    default:
      return 0;
  }
}

void Kanaele::Offset_laden() {
  const std::optional<std::string> text = ablage_.lies_ganz(Offsetdatei);
  if (!text || text->empty()) {
    Offset_Wert.fill(0);
    return;
  }
  ItemLeser leser(*text);
  std::string zeile;
  for (std::size_t slot = 1; slot <= Slots_gelesen && leser.lies(zeile); ++slot)
    setze(Offset_Wert[slot], Wert(zeile));
}

bool Kanaele::Offset_Speich() {
  std::string inhalt;
  for (std::size_t slot = 1; slot <= Slots; ++slot)
    zeile_anhaengen(inhalt, {Zahl_Text(Offset_Wert[slot])});
  return ablage_.schreib_ganz(Offsetdatei, inhalt);
}

const Eingangsskalierung& Kanaele::Skalierungen() {
  return skalierung_.hol(ablage_, Skalierungsdatei, [](std::optional<std::string>&& text) {
    Eingangsskalierung neu;
    Eingangsskalierung_lesen(text, neu);
    return neu;
  });
}

double Kanaele::Kablib_x7_8(double value, int /*kind*/, int channel) {
  const Eingangsskalierung& datei = Skalierungen();
  Modus_setzen(datei.Monitoring_Check);
  if (channel < 1 || channel > static_cast<int>(datei.Kanal.size())) return leer;
  const Skalierung& k = datei.Kanal[static_cast<std::size_t>(channel - 1)];
  const double a = Wert(k.Signal.Min), b = Wert(k.Signal.Max);
  const double c = Wert(k.Groesse.Min), d = Wert(k.Groesse.Max);
  // The signal's minimum counts twice, on purpose: results stay comparable with earlier ones.
  const double s = (d - c) / ((b - a) - a);
  const double ergebnis = value * s * Einheitenfaktor(k.Groesse.Units);
  return std::isfinite(ergebnis) ? ergebnis : leer;
}

void Kanaele::Modus_setzen(const std::optional<std::string>& schalter) {
  if (!schalter) return;
  const double typ = Wert(*schalter);
  if (std::abs(typ) <= std::numeric_limits<std::int16_t>::max()) Box_Typ = static_cast<int>(typ);
  Label21 = Box_Typ != 0 ? "Offline Monitoring Mode" : "Offline Modus";
}

}  // namespace polarkreis
