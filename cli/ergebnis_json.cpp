#include "ergebnis_json.h"

#include <array>

#include "zustand.h"

namespace polarkreis::cli {

namespace {

template <class Satz>
struct Zahlfeld {
  const char* name;
  double Satz::*feld;
};

using P = Punktwerte;
constexpr Zahlfeld<P> kPunkt[] = {
    {"t0_eff", &P::t0_eff},
    {"tc_eff", &P::tc_eff},
    {"dt_Winter", &P::dt_Winter},
    {"t_saug", &P::t_saug},
    {"superheat", &P::superheat},
    {"subcooling", &P::subcooling},
    {"t_d", &P::t_d},
    {"t_d_flash", &P::t_d_flash},
    {"Q0", &P::Q0},
    {"P", &P::P},
    {"COP", &P::COP},
    {"m_0", &P::m_0},
    {"m_punkt", &P::m_punkt},
    {"Hub_Volumen", &P::Hub_Volumen},
    {"rho2", &P::rho2},
    {"eta_vol", &P::eta_vol},
    {"dp_s", &P::dp_s},
    {"dp_d", &P::dp_d},
    {"p_m", &P::p_m},
    {"t_m", &P::t_m},
    {"h_fl", &P::h_fl},
    {"rho_fl", &P::rho_fl},
    {"rho_fl_l", &P::rho_fl_l},
    {"Q_fl", &P::Q_fl},
    {"m_eco", &P::m_eco},
    {"tmin", &P::tmin},
};

using S = Jahressummen;
constexpr Zahlfeld<S> kSummen[] = {
    {"E_Verd", &S::E_Verd},
    {"E_Abtau", &S::E_Abtau},
    {"E_VFl_Luefter", &S::E_VFl_Luefter},
    {"E_VDa_Luefter", &S::E_VDa_Luefter},
    {"E_Pumpe", &S::E_Pumpe},
    {"Wasser_Adiabat", &S::Wasser_Adiabat},
    {"E_FreeCool_Spar", &S::E_FreeCool_Spar},
    {"Q_Wasser", &S::Q_Wasser},
    {"Q_Heiz", &S::Q_Heiz},
    {"Q_Heiz_Bedarf", &S::Q_Heiz_Bedarf},
    {"Vollast_Tage", &S::Vollast_Tage},
    {"COP_Sum", &S::COP_Sum},
    {"COP_min", &S::COP_min},
    {"COP_max", &S::COP_max},
};

using E = Ergebnis;
constexpr Zahlfeld<E> kErgebnis[] = {
    {"SCOP", &E::SCOP},         {"Anteil", &E::Anteil},       {"COP", &E::COP},
    {"LeistZ", &E::LeistZ},     {"energie", &E::energie},     {"kosten", &E::kosten},
    {"BetrKo", &E::BetrKo},     {"kWstunden", &E::kWstunden}, {"co2consum", &E::co2consum},
    {"Kaelte_P", &E::Kaelte_P}, {"Anteil_WW", &E::Anteil_WW}, {"Anteil_Heiz", &E::Anteil_Heiz},
    {"WRGspar", &E::WRGspar},   {"WRgCO2", &E::WRgCO2},
};
constexpr Zahlfeld<E> kAnteile[] = {
    {"Anteil_Verd", &E::Anteil_Verd},   {"Anteil_VFl", &E::Anteil_VFl},
    {"Anteil_VDa", &E::Anteil_VDa},     {"Anteil_Abtau", &E::Anteil_Abtau},
    {"Anteil_Pumpe", &E::Anteil_Pumpe}, {"Anteil_FreeCool", &E::Anteil_FreeCool},
    {"Wasser_m3", &E::Wasser_m3},
};

template <class Satz, std::size_t n>
void zahlen_anhaengen(Json& json, const Zahlfeld<Satz> (&felder)[n], const Satz& satz) {
  for (const auto& f : felder) json[f.name] = zahl(satz.*f.feld);
}

Json tabelle_json(const std::vector<Ergebniszeile>& zeilen) {
  Json tabelle = Json::array();
  for (const Ergebniszeile& z : zeilen)
    tabelle.push_back(
        {{"label", z.bezeichnung}, {"value", z.wert}, {"unit", z.einheit}, {"share", z.anteil}});
  return tabelle;
}

/// What only a year works out; a design kind leaves those figures at their start values.
void jahr_anhaengen(Json& json, const Rechnung& r, const Projektdaten& projekt) {
  const bool jahr = r.ergebnis.Rechart == 1;
  for (const auto& f : kSummen) json[f.name] = zahl(jahr ? r.lauf.summen.*f.feld : leer);
  json["Q_WW_Tag"] = zahl(r.lauf.Q_WW_Tag);
  json["t_abtau"] = zahl(jahr ? r.lauf.t_abtau : leer);
  json["ERG_Spread"] = jahr ? tabelle_json(ERG_Spread(projekt, r.lauf, r.ergebnis)) : Json::array();
}

void meps_anhaengen(Json& json, const MEPS& m) {
  Json marken = Json::array();
  for (double marke : m.marken) marken.push_back(zahl(marke));
  json["MEPS"] = zahl(m.wert);
  json["MEPS_label"] = marken;
  json["MEPS_Ist"] = zahl(m.Ist);
  json["MEPS_position"] = zahl(m.position);
  json["MEPS_green"] = zahl(m.gruen_ab);
}

}  // namespace

Json punkt_json(const Punktwerte& punkt, const KMZustand& zustand, const std::string& WinterRGart) {
  Json json = Json::object();
  zahlen_anhaengen(json, kPunkt, punkt);
  json["WinterRGart"] = punkt.WinterRGart.empty() ? WinterRGart : punkt.WinterRGart;
  const Json felder = zustand_json(zustand);
  for (const auto& [name, wert] : felder.items())
    if (!json.contains(name)) json[name] = wert;
  return json;
}

Json rechnung_json(const Rechnung& r, const Projektdaten& projekt) {
  Json json = Json::object();
  json["Rechart"] = r.ergebnis.Rechart;
  json["Rechart_combo"] = projekt.Rechart_combo;
  json["Bewertung"] = r.ergebnis.Bewertung;
  zahlen_anhaengen(json, kErgebnis, r.ergebnis);
  jahr_anhaengen(json, r, projekt);
  meps_anhaengen(json, r.ergebnis.meps);
  json["shares"] = Json::object();
  zahlen_anhaengen(json["shares"], kAnteile, r.ergebnis);
  json["auslegung"] = punkt_json(r.lauf.auslegung, projekt.km.z, projekt.WinterRGart);
  return json;
}

}  // namespace polarkreis::cli
