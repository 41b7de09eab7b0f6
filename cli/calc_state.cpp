#include <algorithm>
#include <array>

#include "calc.h"
#include "zustand.h"

namespace polarkreis::cli {

namespace {

/// What `set` can set, apart from the objects that use it, so that a refused line changes nothing.
struct Werte {
  KMZustand z;
  std::string modul, Land, Stadt, Monat_aktuell;
  int ECO_OPT = 0, Frequenz_Option = 0;
  double gespeicherte_Leistung = 0;
};

struct Lauftext {
  std::string_view name;
  std::string Werte::*feld;
};
struct Laufganzzahl {
  std::string_view name;
  int Werte::*feld;
};
constexpr std::array<Lauftext, 4> kTexte{{{"modul", &Werte::modul},
                                          {"Land", &Werte::Land},
                                          {"Stadt", &Werte::Stadt},
                                          {"Monat_aktuell", &Werte::Monat_aktuell}}};
constexpr std::array<Laufganzzahl, 2> kGanze{
    {{"ECO_OPT", &Werte::ECO_OPT}, {"Frequenz_Option", &Werte::Frequenz_Option}}};
constexpr std::string_view kLeistung = "gespeicherte_Leistung";

Werte werte_von(const Rechenstand& r) {
  return {r.km.z,
          r.kreis.modul,
          r.klima.Land,
          r.klima.Stadt,
          r.klima.Monat_aktuell,
          r.kreis.ECO_OPT,
          r.kreis.Frequenz_Option,
          r.kreis.gespeicherte_Leistung};
}

void uebernimm(Rechenstand& r, const Werte& w) {
  r.km.z = w.z;
  r.kreis.modul = w.modul;
  r.klima.Land = w.Land;
  r.klima.Stadt = w.Stadt;
  r.klima.Monat_aktuell = w.Monat_aktuell;
  r.kreis.ECO_OPT = w.ECO_OPT;
  r.kreis.Frequenz_Option = w.Frequenz_Option;
  r.kreis.gespeicherte_Leistung = w.gespeicherte_Leistung;
}

template <class Felder>
auto finde(const Felder& felder, std::string_view name) {
  const auto feld = std::ranges::find_if(felder, [&](const auto& f) { return name == f.name; });
  return feld == std::end(felder) ? nullptr : &*feld;
}

// False for a name that is none of the values.
bool setze_einfach(Werte& w, std::string_view name, const Json& wert) {
  const Zustandsfelder felder = zustandsfelder();
  if (const auto* f = finde(felder.zahlen, name))
    w.z.*(f->feld) = als_zahl(wert);
  else if (const auto* g = finde(felder.ganze, name))
    w.z.*(g->feld) = als_ganz(wert);
  else if (const auto* t = finde(felder.texte, name))
    w.z.*(t->feld) = als_text(wert);
  else if (const auto* l = finde(kTexte, name))
    w.*(l->feld) = als_text(wert);
  else if (const auto* k = finde(kGanze, name))
    w.*(k->feld) = als_ganz(wert);
  else if (name == kLeistung)
    w.gespeicherte_Leistung = als_zahl(wert);
  else
    return false;
  return true;
}

// A row takes the columns that are named; null empties it.
std::string setze_zeile(SatZeile& zeile, const std::string& name, const Json& wert) {
  if (wert.is_null()) {
    zeile = {};
    return {};
  }
  if (!wert.is_object()) return "\"" + name + "\" must be an object of columns, or null";
  for (const auto& [spalte, inhalt] : wert.items()) {
    const auto* feld = finde(Satzspalten(), spalte);
    if (!feld) return "there is no column \"" + spalte + "\" in \"" + name + "\"";
    if (!ist_einfach(inhalt)) return "\"" + spalte + "\" must be a number, a text or null";
    zeile.*(feld->feld) = als_zahl(inhalt);
  }
  return {};
}

std::string setze_feld(Werte& w, const std::string& name, const Json& wert) {
  if (name == "Unten") return setze_zeile(w.z.Klammer.Unten, name, wert);
  if (name == "Oben") return setze_zeile(w.z.Klammer.Oben, name, wert);
  if (name == "Dichte_Faktor") return "\"Dichte_Faktor\" follows from \"Antrieb\"";
  if (!ist_einfach(wert)) return "\"" + name + "\" must be a number, a text or null";
  return setze_einfach(w, name, wert) ? std::string() : "there is no field \"" + name + "\"";
}

Antwort setzen(Rechenstand& r, const Argumente& a) {
  Werte w = werte_von(r);
  for (const auto& [name, wert] : a.zeile().items()) {
    if (name == "op") continue;
    if (std::string fehler = setze_feld(w, name, wert); !fehler.empty())
      return misslingt(std::move(fehler));
  }
  uebernimm(r, w);
  return {};
}

Antwort geben(Rechenstand& r, const Argumente&) {
  return {stand_json(r), {}};
}

Antwort neu(Rechenstand& r, const Argumente&) {
  r.neu_beginnen = true;
  return {};
}

constexpr std::array<Operation, 3> kOperationen{{
    {"set", "", "", setzen},
    {"get", "", "", geben},
    {"reset", "", "", neu},
}};

}  // namespace

Json stand_json(const Rechenstand& r) {
  const Werte w = werte_von(r);
  Json json = zustand_json(w.z);
  json["Dichte_Faktor"] = r.kreis.Dichte_Faktor();
  json["modul"] = w.modul;
  for (const auto& f : kGanze) json[std::string(f.name)] = w.*(f.feld);
  json[std::string(kLeistung)] = zahl(w.gespeicherte_Leistung);
  for (const auto& f : kTexte) json[std::string(f.name)] = w.*(f.feld);
  return json;
}

std::span<const Operation> Standoperationen() {
  return kOperationen;
}

}  // namespace polarkreis::cli
