#include <array>

#include "calc.h"
#include "cycle/logp_linien.h"
#include "logph_json.h"

namespace polarkreis::cli {

namespace {

struct Zahlfeld {
  std::string_view name;
  double logp_H::*feld;
};
constexpr std::array<Zahlfeld, 21> kZahlen{{
    {"t0F", &logp_H::t0F},
    {"tcF", &logp_H::tcF},
    {"p0F", &logp_H::p0F},
    {"pcF", &logp_H::pcF},
    {"dT_sh", &logp_H::dT_sh},
    {"t_s", &logp_H::t_s},
    {"dT_sc", &logp_H::dT_sc},
    {"dT_liquid", &logp_H::dT_liquid},
    {"p_Int_Scroll", &logp_H::p_Int_Scroll},
    {"p_Int_Scroll2", &logp_H::p_Int_Scroll2},
    {"p_m", &logp_H::p_m},
    {"P_hoch", &logp_H::P_hoch},
    {"C", &logp_H::C},
    {"dp_Fl", &logp_H::dp_Fl},
    {"t_end", &logp_H::t_end},
    {"t_s2", &logp_H::t_s2},
    {"p_GC_Scroll", &logp_H::p_GC_Scroll},
    {"toh_EV_Scroll", &logp_H::toh_EV_Scroll},
    {"toh_SL_Scroll", &logp_H::toh_SL_Scroll},
    {"tu_Scroll", &logp_H::tu_Scroll},
    {"tu_WT_Scroll", &logp_H::tu_WT_Scroll},
}};
struct Ganzfeld {
  std::string_view name;
  int logp_H::*feld;
};
constexpr std::array<Ganzfeld, 4> kGanze{{
    {"ECO_OPT", &logp_H::ECO_OPT},
    {"Zweistufig", &logp_H::Zweistufig},
    {"Bauart", &logp_H::Bauart},
    {"Antrieb", &logp_H::Antrieb},
}};
struct Schalter {
  std::string_view name;
  bool logp_H::*feld;
};
constexpr std::array<Schalter, 3> kSchalter{{
    {"Innen_WT", &logp_H::Innen_WT},
    {"Auswahl2", &logp_H::Auswahl2},
    {"ParaL_Check", &logp_H::ParaL_Check},
}};

void felder_setzen(logp_H& form, const Argumente& a) {
  if (a.da("modul")) form.modul = a.text("modul");
  for (const Zahlfeld& z : kZahlen)
    if (a.da(z.name)) form.*z.feld = a.zahl(z.name);
  for (const Ganzfeld& g : kGanze)
    if (a.da(g.name)) form.*g.feld = a.ganz(g.name);
  for (const Schalter& s : kSchalter)
    if (a.da(s.name)) form.*s.feld = a.ganz(s.name) != 0;
}

std::string_view grund(Hindernis hindernis) {
  switch (hindernis) {
    case Hindernis::Mittel:
      return "refrigerant";
    case Hindernis::Temperatur:
      return "temperature";
    case Hindernis::Druck:
      return "pressure";
    case Hindernis::Fluessigkeit:
      return "liquid";
    case Hindernis::Economiser:
      return "economiser";
    case Hindernis::Mitteldruck:
      return "intermediate pressure";
    default:
      return "cycle";
  }
}

bool ist_modul(const std::string& name) {
  return name == "SIM_PRO" || name == "DiaG" || name == "MonoF" || name == "2stage";
}

Antwort logph(Rechenstand& r, const Argumente& a) {
  if (a.da("modul") && !ist_modul(a.text("modul")))
    return misslingt("logp_H: \"modul\" must be SIM_PRO, DiaG, MonoF or 2stage");
  felder_setzen(r.logph, a);
  if (!r.logph.Rechnen()) return {{{"hindrance", grund(r.logph.hindernis())}}, {}};
  return {logph_json(r.logph), {}};
}

Antwort linien(Rechenstand& r, const Argumente&) {
  return {linien_json(logp_Linien(r.km)), {}};
}

Antwort gc_druck(Rechenstand& r, const Argumente& a) {
  r.logph.GC_Druck(a.zahl("t"));
  return {{{"P_hoch", zahl(r.logph.P_hoch)},
           {"p_GC_Scroll", zahl(r.logph.p_GC_Scroll)},
           {"tu_Scroll", zahl(r.logph.tu_Scroll)}},
          {}};
}

Antwort tabellenname(Rechenstand& r, const Argumente&) {
  return {r.logph.Tabellenname(), {}};
}

constexpr std::array<Operation, 4> kOperationen{{
    {"logp_H", "",
     "modul t0F tcF p0F pcF dT_sh t_s dT_sc dT_liquid p_Int_Scroll p_Int_Scroll2 p_m P_hoch C "
     "dp_Fl t_end t_s2 p_GC_Scroll toh_EV_Scroll toh_SL_Scroll tu_Scroll tu_WT_Scroll ECO_OPT "
     "Zweistufig Bauart Antrieb Innen_WT Auswahl2 ParaL_Check",
     logph},
    {"logp_Linien", "", "", linien},
    {"GC_Druck", "t", "", gc_druck},
    {"Tabellenname", "", "", tabellenname},
}};

}  // namespace

std::span<const Operation> Logphoperationen() {
  return kOperationen;
}

}  // namespace polarkreis::cli
