#include <CLI/CLI.hpp>
#include <array>
#include <map>

#include "ausgabe.h"
#include "optionen.h"
#include "park.h"
#include "project.h"
#include "projektwahl.h"

namespace polarkreis::cli {

namespace {

struct Ableitungszahl {
  const char *name, *bedeutung;
  double Ableitung::*feld;
};
constexpr std::array<Ableitungszahl, 6> kAbleitung{{
    {"Wartung_dT", "extra condensing temperature, K", &Ableitung::Wartung_dT},
    {"f_F", "charge factor", &Ableitung::f_F},
    {"pipe", "pipe figure, K", &Ableitung::pipe},
    {"Isolier_dT", "suction-line gain, K", &Ableitung::Isolier_dT},
    {"Bezug", "brine or room reference, °C", &Ableitung::Bezug},
    {"Ueberhitzung", "superheat, K", &Ableitung::Ueberhitzung},
}};

/// The numbers of the form that follow from its selections.
constexpr std::array<const char*, 7> kFormzahlen{"tambient",   "t0",          "Tc",    "dtVerfl",
                                                 "DT_v_combo", "WinterRGart", "P_gasK"};

const std::string& feldtext(const Projektdaten& projekt, std::string_view name) {
  return projekt.*Projektfeld_finden(name)->feld;
}

Json ableitung_json(const Ableitung& ableitung) {
  Json json = Json::object();
  for (const Ableitungszahl& a : kAbleitung) json[a.name] = zahl(ableitung.*a.feld);
  return json;
}

void ableitung_anhaengen(Tabelle& tabelle, const Ableitung& ableitung) {
  for (const Ableitungszahl& a : kAbleitung)
    tabelle.zeilen.push_back({a.name, anzeige(ableitung.*a.feld), a.bedeutung});
}

// A module's file: the heading, and how much stands behind it.
void modul_zeigen(const Dateikopf& kopf, bool json) {
  if (json) {
    drucke(Json{{"tag", kopf.Kennung},
                {"name", kopf.ProjektNam},
                {"description", kopf.ProBeschr},
                {"lines", kopf.zeilen}});
    return;
  }
  Tabelle tabelle;
  tabelle.zeilen = {{"Module", kopf.Kennung},
                    {"Name", kopf.ProjektNam},
                    {"Description", kopf.ProBeschr},
                    {"Lines behind the heading", std::to_string(kopf.zeilen)}};
  drucke(tabelle);
}

bool ist_modul(const std::string& tag) {
  static constexpr std::array<std::string_view, 9> kModule{
      "AC", "CR", "HX", "KOMP", "2STAGE", "VERB", "PUMP", "HeatP", "MonoF"};
  return std::find(kModule.begin(), kModule.end(), tag) != kModule.end();
}

void projekt_zeigen(const Projektdaten& projekt, bool json) {
  if (json) {
    Json items = Json::object();
    for (const Projektfeld& f : Projektfelder()) items[std::string(f.name)] = projekt.*f.feld;
    drucke(
        Json{{"tag", "SIM_PRO"}, {"items", items}, {"derived", ableitung_json(projekt.ableitung)}});
    return;
  }
  Tabelle tabelle;
  int nummer = 0;
  for (const Projektfeld& f : Projektfelder())
    tabelle.zeilen.push_back({std::to_string(++nummer), std::string(f.name), projekt.*f.feld});
  drucke(tabelle);
  std::printf("\nDerived:\n");
  Tabelle zahlen;
  ableitung_anhaengen(zahlen, projekt.ableitung);
  drucke(zahlen);
}

using Stand = std::map<std::string, std::string>;

Stand stand_von(const Projektdaten& projekt) {
  Stand stand;
  for (const Projektfeld& f : Projektfelder()) stand[std::string(f.name)] = projekt.*f.feld;
  return stand;
}

std::string namensliste() {
  std::string liste;
  for (const Projektfeld& f : Projektfelder()) liste += std::string(f.name) + ", ";
  return liste + steuernamen() +
         ", VERDA_Eff_combo, KaltGAbt, HeißGAbt, betrstd, lzfaktor, EnergKost, JahrebetrT, "
         "Spezco2emission";
}

void anwenden(Projektdaten& projekt, const std::vector<Aenderung>& aenderungen) {
  for (const Aenderung& a : aenderungen)
    if (!projekt.aendern(a.item, a.text))
      throw CLI::ValidationError(
          "--set", "there is no item \"" + a.item + "\". The names are: " + namensliste());
}

void drucke_abgeleitet(const Projektdaten& projekt, const Stand& vorher, bool json) {
  Json ergebnis = Json::object(), geaendert = Json::object();
  Tabelle tabelle{{"Item", "Is", "Was"}, {}};
  for (const char* name : kFormzahlen) ergebnis[name] = feldtext(projekt, name);
  for (const Projektfeld& f : Projektfelder()) {
    const std::string name(f.name);
    const bool anders = vorher.at(name) != projekt.*f.feld;
    if (anders) geaendert[name] = {vorher.at(name), projekt.*f.feld};
    const bool formzahl = ergebnis.contains(name);
    if (anders || formzahl)
      tabelle.zeilen.push_back({name, projekt.*f.feld, anders ? vorher.at(name) : ""});
  }
  if (json) {
    ergebnis["derived"] = ableitung_json(projekt.ableitung);
    ergebnis["changed"] = geaendert;
    drucke(ergebnis);
    return;
  }
  drucke(tabelle);
  std::printf("\n");
  Tabelle zahlen;
  ableitung_anhaengen(zahlen, projekt.ableitung);
  drucke(zahlen);
}

}  // namespace

void project_show(Sitzung& sitzung, const std::string& datei, bool json) {
  if (ist_park(datei)) return park_show(sitzung, datei, json);
  if (datei != kArbeitsprojekt_Zeichen) {
    const std::string pfad = projektpfad(sitzung, datei);
    const auto kopf = projektkopf(sitzung.programm().ablage, pfad);
    if (kopf && ist_modul(kopf->Kennung)) return modul_zeigen(*kopf, json);
  }
  projekt_zeigen(projekt_laden(sitzung, datei), json);
}

void project_derive(Sitzung& sitzung, const std::string& datei,
                    const std::vector<Aenderung>& aenderungen, bool schreiben, bool json) {
  Projektdaten& projekt = projekt_laden(sitzung, datei);
  const Stand vorher = stand_von(projekt);
  anwenden(projekt, aenderungen);
  if (!Kaeltemittel::KM_Bekannt(projekt.KaelteM)) {
    sitzung.fehler(
        "The refrigerant \"" + projekt.KaelteM +
        "\" is unknown; nothing was stored. \"polarkreis-cli refrigerants\" lists them.");
    return;
  }
  if (schreiben) projekt_zuruecklegen(projekt);
  drucke_abgeleitet(projekt, vorher, json);
}

}  // namespace polarkreis::cli
