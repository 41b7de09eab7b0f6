#include "messeinstellungen.h"

#include <algorithm>
#include <array>
#include <limits>

#include "diagnostics/methode.h"
#include "jsondatei.h"
#include "shell/text.h"
#include "sitzung.h"
#include "zahlen.h"

namespace polarkreis::cli {

namespace {

constexpr std::string_view kWasser = "water", kLuft = "air";
constexpr std::string_view kTabelle = "OrbiN_spread", kMethode = "Mass_Art";

struct Textfeld {
  std::string_view name;
  std::string Messung::*feld;
};
constexpr std::array<Textfeld, 9> kTexte{{{"KaelteM", &Messung::KaelteM},
                                          {"Combo2", &Messung::Combo2},
                                          {"Combo3", &Messung::Combo3},
                                          {"Combo4", &Messung::Combo4},
                                          {"Combo5", &Messung::Combo5},
                                          {"Combo7", &Messung::Combo7},
                                          {"RGCombo", &Messung::RGCombo},
                                          {"Medium_Verd", &Messung::Medium_Verd},
                                          {"Medium_Verfl", &Messung::Medium_Verfl}}};

/// A number that must be whole and lie in a range.
struct Ganzfeld {
  std::string_view name;
  int Messung::*feld;
  int von, bis;
};
constexpr std::array<Ganzfeld, 5> kGanze{{{"Auto_corr_Check", &Messung::Auto_corr_Check, 0, 1},
                                          {"Off_line_Check", &Messung::Off_line_Check, 0, 1},
                                          {"Bauart", &Messung::Bauart, 0, 4},
                                          {"Antrieb", &Messung::Antrieb, 0, 3},
                                          {"ECO_OPT", &Messung::ECO_OPT, 0, 9}}};

constexpr double kBeliebig = std::numeric_limits<double>::max();

/// A number in a range.
struct Zahlfeld {
  std::string_view name;
  double Messung::*feld;
  double von = -kBeliebig, bis = kBeliebig;
};
constexpr std::array<Zahlfeld, 5> kZahlen{{{"Hub_Volumen", &Messung::Hub_Volumen},
                                           {"Q0", &Messung::Q0},
                                           {"Konz_Verd", &Messung::Konz_Verd, 0, 100},
                                           {"Konz_Verfl", &Messung::Konz_Verfl, 0, 100},
                                           {"C", &Messung::C}}};

template <class Felder>
auto finde(const Felder& felder, std::string_view name) {
  return std::ranges::find(felder, name, [](const auto& feld) { return feld.name; });
}

double zahl_von(const std::string& name, const Json& wert) {
  const std::string text = text_von(name, wert);
  const std::optional<double> zahl = zahl_aus(text);
  if (!zahl) throw Abbruch("The setting \"" + name + "\" must be a number, not \"" + text + "\".");
  return *zahl;
}

int ganze_von(const Ganzfeld& feld, const Json& wert) {
  const std::string name(feld.name);
  const double zahl = zahl_von(name, wert);
  if (zahl != Int(zahl) || zahl < feld.von || zahl > feld.bis)
    throw Abbruch("The setting \"" + name + "\" must be a whole number from " +
                  std::to_string(feld.von) + " to " + std::to_string(feld.bis) + ".");
  return static_cast<int>(zahl);
}

double begrenzte_zahl(const Zahlfeld& feld, const Json& wert) {
  const std::string name(feld.name);
  const double zahl = zahl_von(name, wert);
  if (zahl < feld.von || zahl > feld.bis)
    throw Abbruch("The setting \"" + name + "\" must lie between " + Zahl_Text(feld.von) + " and " +
                  Zahl_Text(feld.bis) + ".");
  return zahl;
}

int methode_von(const Json& wert) {
  const double zahl = zahl_von(std::string(kMethode), wert);
  for (int art : {M_Hubvolumen, M_Messwert, M_Teillast})
    if (zahl == art) return art;
  throw Abbruch(
      "The setting \"Mass_Art\" must be 0 (swept volume), 77 (measured by inX7) or 87 (part load "
      "in percent).");
}

void tabelle_setzen(const Json& wert, Einheitentabelle& tabelle) {
  const std::string form =
      "The setting \"OrbiN_spread\" must be a list of at most 7 rows, each a "
      "list of at most 6 texts.";
  if (!wert.is_array() || wert.size() > Einheitentabelle::Zeilen) throw Abbruch(form);
  int zeile = 0;
  for (const Json& eintrag : wert) {
    ++zeile;
    if (!eintrag.is_array() || eintrag.size() > Einheitentabelle::Spalten) throw Abbruch(form);
    int spalte = 0;
    for (const Json& zelle : eintrag) tabelle(zeile, ++spalte) = text_von("OrbiN_spread", zelle);
  }
}

void setze_einstellung(const std::string& name, const Json& wert, const Captions* captions,
                       Messung& messung) {
  if (const auto feld = finde(kTexte, name); feld != kTexte.end())
    messung.*feld->feld = text_von(name, wert);
  else if (const auto ganz = finde(kGanze, name); ganz != kGanze.end())
    messung.*ganz->feld = ganze_von(*ganz, wert);
  else if (const auto zahl = finde(kZahlen, name); zahl != kZahlen.end())
    messung.*zahl->feld = begrenzte_zahl(*zahl, wert);
  else if (name == kTabelle)
    tabelle_setzen(wert, messung.OrbiN_spread);
  else if (name == kMethode) {
    const int art = methode_von(wert);
    if (captions != nullptr) messung.Combo4 = Combo4_Text(art, *captions);
  } else
    throw Abbruch("The settings have an unknown name \"" + name +
                  "\". The names are: " + messeinstellungen_namen() + ".");
}

void medium_pruefen(const std::string& medium, Solen& solen) {
  if (getrimmt(medium).empty() || gleich(medium, kWasser) || gleich(medium, kLuft) ||
      solen.bekannt(medium))
    return;
  std::string namen;
  for (const std::string& name : solen.Namen()) namen += ", " + name;
  throw Abbruch("\"" + medium + "\" is no secondary fluid. Choose one of: water, air" + namen +
                ".");
}

}  // namespace

Messeinstellungen::Messeinstellungen(const std::string& datei) {
  if (datei.empty()) return;
  json_ = jsonobjekt_lesen(datei, "settings", messeinstellungen_namen());
  pruefen();
}

Messeinstellungen Messeinstellungen::von_json(Json objekt) {
  Messeinstellungen einstellungen;
  einstellungen.json_ = std::move(objekt);
  einstellungen.pruefen();
  return einstellungen;
}

void Messeinstellungen::pruefen() const {
  Messung probe;
  for (const auto& [name, wert] : json_.items()) setze_einstellung(name, wert, nullptr, probe);
}

void Messeinstellungen::vor_dem_laden(Messung& messung) const {
  const std::string name = "Auto_corr_Check";
  if (hat(name)) setze_einstellung(name, json_.at(name), nullptr, messung);
}

void Messeinstellungen::anwenden(Messung& messung, Solen& solen, const Captions& captions) const {
  // Before anything is set: a caller may go on with the measurement as it was.
  for (const char* name : {"Medium_Verd", "Medium_Verfl"})
    if (hat(name)) medium_pruefen(text_von(name, json_.at(name)), solen);
  for (const auto& [name, wert] : json_.items()) setze_einstellung(name, wert, &captions, messung);
  // The method overrides the list's text, wherever it stands in the file.
  const std::string methode(kMethode);
  if (hat(methode)) setze_einstellung(methode, json_.at(methode), &captions, messung);
}

std::string messeinstellungen_namen() {
  std::string liste;
  const auto nimm = [&](std::string_view name) {
    liste += (liste.empty() ? "" : ", ") + std::string(name);
  };
  for (const Textfeld& feld : kTexte) nimm(feld.name);
  for (const Ganzfeld& feld : kGanze) nimm(feld.name);
  for (const Zahlfeld& feld : kZahlen) nimm(feld.name);
  nimm(kMethode);
  nimm(kTabelle);
  return liste;
}

}  // namespace polarkreis::cli
