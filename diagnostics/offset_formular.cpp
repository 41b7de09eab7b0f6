#include "diagnostics/offset_formular.h"

#include <algorithm>
#include <array>

#include "diagnostics/familie.h"
#include "diagnostics/messpunkte.h"
#include "shell/items.h"
#include "shell/wert.h"

namespace polarkreis {

namespace {

constexpr std::string_view Kein_Offset = "0";

/// The rows of a free input in `SP_Spread`, counted from its first one.
enum Skalenzeile { Kopf = 0, Signal = 1, Groesse = 2, Zeilen_je_Kanal = 3 };

constexpr std::array<std::string_view, 4> Kanalnamen = {" Orbiter 1 inX7", " Orbiter 1 inX8",
                                                        " Orbiter 2 inX7", " Orbiter 2 inX8"};
constexpr std::array<std::string_view, 6> Signaleinheiten = {"%", "V", "mV", "mA", "Ohm", "mOhm"};
constexpr std::array<std::string_view, 5> Groesseneinheiten = {"%", "kg/s", "kg/h", "m³/s", "m³/h"};
constexpr std::array<std::string_view, 3> Zangen = {" DiaGnostics  200A", " DiaGnostics  500A",
                                                    " DiaGnostics  1000A"};

/// What the channels of one kind have in common.
struct Kanalform {
  std::string_view Art;  ///< empty: a caption stands there
  Caption Artwort;
  std::string_view Fuehler, Genauigkeit, Masseinheit;
};

constexpr Kanalform Temperaturkanal{{}, Caption::Temperatur, "PT1000 [°C]", "5", "[K]"};
constexpr Kanalform Druckkanal{{}, Caption::Druck, "bar g [bar g]", "1", "[bar]"};
constexpr Kanalform Spannungskanal{"Spannung", {}, "Volt [V]", "1.4", "[V]"};
constexpr Kanalform Stromkanal{"Stromstärke", {}, "Ampere [A]", "1.2", "[A]"};

const Kanalform& Form_von(int punkt) {
  if (punkt <= 8) return Temperaturkanal;
  if (punkt <= 10) return Druckkanal;
  return punkt <= 13 ? Spannungskanal : Stromkanal;
}

/// "DiaGnostics Leitkiste", or the `Orbiter` of that number.
std::string Einheitenname(int orbiter) {
  const std::string anfang = "DiaGnostics";
  return orbiter == 0 ? anfang + " Leitkiste" : anfang + " Orbiter " + std::to_string(orbiter);
}

}  // namespace

Offset::Offset(Ablage& ablage, const Captions& captions) : ablage_(ablage), captions_(captions) {
  Standardtexte();
}

void Offset::Standardtexte() {
  for (int zeile = 1; zeile <= Offset_Spread.Letzte_Zeile; ++zeile) Zeile_Standard(zeile);
  int zeile = 0;
  for (std::string_view kanal : Kanalnamen) {
    SP_Spread(zeile, SP_Kanal) = kanal;
    SP_Spread(zeile, SP_Min) = "Min.";
    SP_Spread(zeile, SP_Max) = "Max.";
    SP_Spread(zeile, SP_Units) = "Units";
    zeile += Zeilen_je_Kanal;
  }
}

void Offset::Zeile_Standard(int zeile) {
  const int orbiter = (zeile - 1) / Punkte_je_Einheit;
  const int punkt = (zeile - 1) % Punkte_je_Einheit + 1;
  const Kanalform& form = Form_von(punkt);
  Offset_Spread(zeile, Nummer) = std::to_string(zeile);
  Offset_Spread(zeile, Einheit) = Einheitenname(orbiter);
  Offset_Spread(zeile, Punkt) = "-" + std::to_string(orbiter + 1) + "." + std::to_string(punkt);
  Offset_Spread(zeile, Art) = form.Art.empty() ? captions_.text(form.Artwort) : form.Art;
  Offset_Spread(zeile, Fuehler) = form.Fuehler;
  Offset_Spread(zeile, Genauigkeit) = form.Genauigkeit;
  Offset_Spread(zeile, Korrektur) = Kein_Offset;
  Offset_Spread(zeile, Masseinheit) = form.Masseinheit;
}

std::string Offset::Reiter_Text(Reiter reiter) const {
  switch (reiter) {
    case Firmware:
      return "Firmware Leitkiste";
    case COM_Port:
      return "COM Port";
    case Freie_Eingaenge:
      return " inX7/inX8";
    default:
      return captions_.text(Caption::Kalibrierung);
  }
}

std::vector<std::string> Offset::Stromzangen() {
  std::vector<std::string> namen;
  for (std::string_view zange : Zangen) namen.push_back(std::string(Familienname).append(zange));
  return namen;
}

std::span<const std::string_view> Offset::Combo2_Liste(int zeile) {
  if (zeile < 0 || zeile >= Zeilen_je_Kanal * static_cast<int>(Kanalnamen.size())) return {};
  switch (zeile % Zeilen_je_Kanal) {
    case Signal:
      return Signaleinheiten;
    case Groesse:
      return Groesseneinheiten;
    default:
      return {};
  }
}

bool Offset::Combo2_zeigen(int zeile) {
  Combo2_Zeile = Combo2_Liste(zeile).empty() ? -1 : zeile;
  return Combo2_Zeile == zeile;
}

void Offset::Combo2_waehlen(std::string_view einheit) {
  const auto liste = Combo2_Liste(Combo2_Zeile);
  if (std::find(liste.begin(), liste.end(), einheit) == liste.end()) return;
  SP_Spread(Combo2_Zeile, SP_Units) = einheit;
  Combo2_Zeile = -1;
}

void Offset::OFFSET_lad() {
  Offsets_lesen();
  Skalen_lesen();
}

void Offset::Offsets_lesen() {
  const std::optional<std::string> text = ablage_.lies_ganz(Offsetdatei);
  const bool da = text && !text->empty();
  ItemLeser leser(da ? std::string_view(*text) : std::string_view());
  for (int zeile = 1; zeile <= Offset_Spread.Letzte_Zeile; ++zeile) {
    std::string& zelle = Offset_Spread(zeile, Korrektur);
    if (!da) zelle = Kein_Offset;
    leser.lies(zelle);
  }
}

void Offset::Skalen_lesen() {
  Eingangsskalierung skalen = Skalen();
  Eingangsskalierung_lesen(ablage_.lies_ganz(Skalierungsdatei), skalen);
  int kopf = 0;
  for (const Skalierung& kanal : skalen.Kanal) {
    for (int art : {Signal, Groesse}) {
      const Skalierung::Bereich& bereich = art == Signal ? kanal.Signal : kanal.Groesse;
      SP_Spread(kopf + art, SP_Min) = bereich.Min;
      SP_Spread(kopf + art, SP_Max) = bereich.Max;
      SP_Spread(kopf + art, SP_Units) = bereich.Units;
    }
    kopf += Zeilen_je_Kanal;
  }
  Monitoring_Check = Wert(skalen.Monitoring_Check.value_or("")) != 0 ? 1 : 0;
}

/// What the table holds, in the form of the file.
Eingangsskalierung Offset::Skalen() const {
  Eingangsskalierung skalen;
  const auto bereich = [this](int zeile) {
    return Skalierung::Bereich{SP_Spread(zeile, SP_Min), SP_Spread(zeile, SP_Max),
                               SP_Spread(zeile, SP_Units)};
  };
  int kopf = 0;
  for (Skalierung& kanal : skalen.Kanal) {
    kanal = {bereich(kopf + Signal), bereich(kopf + Groesse)};
    kopf += Zeilen_je_Kanal;
  }
  skalen.Monitoring_Check = Monitoring_Check != 0 ? "1" : "0";
  return skalen;
}

bool Offset::Offset_Speich() {
  Fehlertext.clear();
  std::string offsets;
  for (int zeile = 1; zeile <= Offset_Spread.Letzte_Zeile; ++zeile)
    zeile_anhaengen(offsets, {Offset_Spread(zeile, Korrektur)});
  const bool erste = Datei_schreiben(Offsetdatei, offsets);
  const bool zweite = Datei_schreiben(Skalierungsdatei, Eingangsskalierung_schreiben(Skalen()));
  return erste && zweite;
}

bool Offset::Datei_schreiben(const char* name, const std::string& inhalt) {
  if (ablage_.schreib_ganz(name, inhalt)) return true;
  if (Fehlertext.empty()) Fehlertext = ablage_.letzter_fehler();
  return false;
}

double Offset::Kalibrier_festleg() const {
  return leer;
}

}  // namespace polarkreis
