#include "simulation/projektdaten.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "shell/items.h"
#include "shell/text.h"
#include "shell/wert.h"

namespace polarkreis {

namespace {

/// A control that is no item of the project.
template <class Besitzer, class Typ>
struct Steuerfeld {
  std::string_view name;
  Typ Besitzer::*feld;
};

constexpr std::array<Steuerfeld<Projektdaten, bool>, 7> kSchalter{{
    {"HeizCheck", &Projektdaten::HeizCheck},
    {"FreeC_Check", &Projektdaten::FreeC_Check},
    {"ParaL_Check", &Projektdaten::ParaL_Check},
    {"Check3D1", &Projektdaten::Check3D1},
    {"Gleitopt", &Projektdaten::Gleitopt},
    {"KaltGAbt", &Projektdaten::KaltGAbt},
    {"HeißGAbt", &Projektdaten::HeißGAbt},
}};

constexpr std::array<Steuerfeld<Projektdaten, std::string>, 5> kTexte{{
    {"ErP_Vers", &Projektdaten::ErP_Vers},
    {"t_K_wasser", &Projektdaten::t_K_wasser},
    {"Lamm_AB_combo", &Projektdaten::Lamm_AB_combo},
    {"VERDA_Eff_combo", &Projektdaten::VERDA_Eff_combo},
    {"Rechart_combo", &Projektdaten::Rechart_combo},
}};

constexpr std::array<Steuerfeld<Energiedaten, std::string>, 5> kEnergie{{
    {"betrstd", &Energiedaten::betrstd},
    {"lzfaktor", &Energiedaten::lzfaktor},
    {"EnergKost", &Energiedaten::EnergKost},
    {"JahrebetrT", &Energiedaten::JahrebetrT},
    {"Spezco2emission", &Energiedaten::Spezco2emission},
}};

template <class Felder>
auto suche(const Felder& felder, std::string_view name) {
  const auto ort =
      std::find_if(felder.begin(), felder.end(), [name](const auto& f) { return f.name == name; });
  return ort == felder.end() ? nullptr : &*ort;
}

bool angehakt(std::string_view text) {
  return gleich(text, "true") || Wert(text) == 1;
}

int ganze_Zahl(std::string_view text) {
  if (gleich(text, "true")) return 1;
  const double zahl = Wert(text);
  return std::abs(zahl) < 1000 ? static_cast<int>(Int(zahl)) : 0;
}

/// Lines 4 to 6 of "<language>.dat": what to do about an unknown refrigerant.
std::string Hinweis(Ablage& ablage, const std::string& sprache) {
  const std::string inhalt = ablage.lies_ganz(sprache + ".dat").value_or("");
  ItemLeser leser(inhalt);
  std::string zeilen;
  for (int nummer = 1; nummer <= 6; ++nummer) {
    const std::string zeile = leser.lies();
    if (nummer >= 4) zeilen += "\r\n" + zeile;
  }
  return zeilen;
}

}  // namespace

Projektdaten::Projektdaten(Ablage& dateien, Captions& texte, Kaeltemittel& kaeltemittel,
                           Dialog& nutzer)
    : ablage(dateien), captions(texte), km(kaeltemittel), dialog(nutzer) {}

bool Projektdaten::aendern(std::string_view item, std::string_view text) {
  if (!speichern(item, text)) return false;
  if (!laedt_) Ereignis(item);
  return true;
}

bool Projektdaten::speichern(std::string_view item, std::string_view text) {
  // The reserved item is known and always empty.
  if (item == "reserviert") return true;
  if (item == "WaterCheck") {
    WaterCheck = angehakt(text) ? "1" : "0";
  } else if (item == "ECO_OPT") {
    ECO_OPT = ganze_Zahl(text);
  } else if (const auto* feld = Projektfeld_finden(item)) {
    this->*feld->feld = text;
  } else if (const auto* schalter = suche(kSchalter, item)) {
    this->*schalter->feld = angehakt(text);
  } else if (const auto* steuer = suche(kTexte, item)) {
    this->*steuer->feld = text;
  } else if (const auto* zahl = suche(kEnergie, item)) {
    energie.*zahl->feld = text;
  } else {
    return false;
  }
  return true;
}

void Projektdaten::Ereignis(std::string_view item) {
  Zahlen_ableiten();
  if (item == "KaelteM") {
    Kaeltemittel_Uebernehmen(std::string(KaelteM));
    Verdampfer_ableiten();
    Verfluessiger_ableiten();
  } else if (item == "vdsize" || item == "Tempbereich") {
    Verdampfer_ableiten();
  } else if (item == "VFlsize") {
    Verfluessiger_ableiten();
  } else if (item == "AmbientT") {
    tambient_ableiten();
    Verfluessiger_ableiten();
  } else if (item == "Tc") {
    P_gasK_ableiten();
  } else if (item == "Abtauart") {
    Abtauart_zeigen();
  } else if (item == "KaltGAbt" || item == "HeißGAbt") {
    Abtauart_setzen(item);
  } else if (item == "Rechart") {
    Rechart_zeigen();
  } else if (item == "Rechart_combo") {
    Rechart_waehlen(std::string(Rechart_combo));
  }
}

void Projektdaten::Abtauart_zeigen() {
  const double art = Wert(Abtauart);
  HeißGAbt = art == 1;
  KaltGAbt = art == 2;
}

void Projektdaten::Abtauart_setzen(std::string_view schalter) {
  const bool kalt = schalter == "KaltGAbt";
  bool& gedrueckt = kalt ? KaltGAbt : HeißGAbt;
  bool& andere = kalt ? HeißGAbt : KaltGAbt;
  if (gedrueckt) andere = false;
  Abtauart = HeißGAbt ? "1" : KaltGAbt ? "2" : "0";
}

Projektmeldung Projektdaten::Kaeltemittel_Uebernehmen(std::string_view name) {
  KaelteM = name;
  km.z.RefName = KaelteM;
  if (Kaeltemittel::KM_Bekannt(name)) {
    km.KM_Datei();
    return Projektmeldung::keine;
  }
  const std::string text =
      KaelteM + " " + captions.text(Caption::Unbekannt) + Hinweis(ablage, captions.Sprache);
  dialog.zeige(text, captions.text(SoleCapt::Kaeltemittel), Symbol::hinweis);
  return Projektmeldung::unbekanntes_Kaeltemittel;
}

}  // namespace polarkreis
