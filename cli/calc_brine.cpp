#include <array>

#include "calc.h"

namespace polarkreis::cli {

namespace {

Antwort namen(Rechenstand& r, const Argumente&) {
  return {r.solen.Namen(), {}};
}

Antwort grenzen(Rechenstand& r, const Argumente& a) {
  return {zahl(r.solen.Sole_Grenzen(a.text("name"))), {}};
}

Antwort konzentration(Rechenstand& r, const Argumente& a) {
  return {zahl(r.solen.Konzentration(a.text("name"), a.zahl("t"))), {}};
}

Antwort gefriertemperatur(Rechenstand& r, const Argumente& a) {
  return {zahl(r.solen.Gefriertemperatur(a.text("name"), a.zahl("c"))), {}};
}

Antwort dichte(Rechenstand& r, const Argumente& a) {
  return {zahl(r.solen.Dichte(a.text("name"), a.zahl("t"), a.zahl("c"))), {}};
}

Antwort waermekapazitaet(Rechenstand& r, const Argumente& a) {
  return {zahl(r.solen.Waermekapazitaet(a.text("name"), a.zahl("t"), a.zahl("c"))), {}};
}

Antwort frostschutz(Rechenstand& r, const Argumente& a) {
  const Solen::Frostschutz f = r.solen.Frostschutz_Eingabe(a.text("name"), a.text("input"));
  return {{{"t", zahl(f.t)},
           {"Konzentration", zahl(f.Konzentration)},
           {"Meldung", f.Meldung},
           {"Text", f.Text}},
          {}};
}

Antwort wasser_dichte(Rechenstand&, const Argumente& a) {
  return {zahl(Wasser_Dichte(a.zahl("t"))), {}};
}

Antwort wasser_waermekapazitaet(Rechenstand&, const Argumente& a) {
  return {zahl(Wasser_Waermekapazitaet(a.zahl("t"))), {}};
}

constexpr std::array<Operation, 9> kOperationen{{
    {"Sole_Namen", "", "", namen},
    {"Sole_Grenzen", "name", "", grenzen},
    {"Sole_Konzentration", "name t", "", konzentration},
    {"Sole_Gefriertemperatur", "name c", "", gefriertemperatur},
    {"Sole_Dichte", "name t c", "", dichte},
    {"Sole_Waermekapazitaet", "name t c", "", waermekapazitaet},
    {"Frostschutz", "name input", "", frostschutz},
    {"Wasser_Dichte", "t", "", wasser_dichte},
    {"Wasser_Waermekapazitaet", "t", "", wasser_waermekapazitaet},
}};

}  // namespace

std::span<const Operation> Soleoperationen() {
  return kOperationen;
}

}  // namespace polarkreis::cli
