#include <array>

#include "calc.h"
#include "shell/text.h"

namespace polarkreis::cli {

namespace {

/// Items of the heat recovery that are texts of numbers, by their names.
struct Zahlenitem {
  std::string_view name;
  std::string& (*feld)(WRG&);
};
constexpr std::array<Zahlenitem, 9> kZahlenitems{{
    {"tWasser", [](WRG& w) -> std::string& { return w.tWasser; }},
    {"dt_WTenth", [](WRG& w) -> std::string& { return w.dt_WTenth; }},
    {"DT_verfl", [](WRG& w) -> std::string& { return w.DT_verfl; }},
    {"WirkGK", [](WRG& w) -> std::string& { return w.WirkGK; }},
    {"Verlust", [](WRG& w) -> std::string& { return w.Verlust; }},
    {"Text11", [](WRG& w) -> std::string& { return w.Text11_14[0]; }},
    {"Text12", [](WRG& w) -> std::string& { return w.Text11_14[1]; }},
    {"Text13", [](WRG& w) -> std::string& { return w.Text11_14[2]; }},
    {"Text14", [](WRG& w) -> std::string& { return w.Text11_14[3]; }},
}};

/// A selection: its field, and the caption lines of its entries.
struct Auswahl {
  std::string_view name;
  std::string WRG::*feld;
  Heatcap erster;
  int anzahl;
};
constexpr std::array<Auswahl, 3> kAuswahlen{
    {{"Combo1_1", &WRG::Combo1_1, Heatcap::Kessel_alt, 4},
     {"Combo2_1", &WRG::Combo2_1, Heatcap::Verteilung_gut, 3},
     {"Combo3_1", &WRG::Combo3_1, Heatcap::Heizoel, 4}}};

/// The entry's text where its number is given, the empty text for none of them; a text stands.
std::string eintrag(const Rechenstand& r, const Auswahl& auswahl, const Json& wert) {
  if (wert.is_string()) return wert.get<std::string>();
  const int nummer = als_ganz(wert);
  if (nummer < 1 || nummer > auswahl.anzahl) return {};
  return r.captions.text(Stamm::heatcap, static_cast<int>(auswahl.erster) + nummer - 1);
}

void auswahlen_setzen(Rechenstand& r, const Argumente& a) {
  for (const Auswahl& auswahl : kAuswahlen)
    if (const Json* wert = a.roh(auswahl.name)) r.wrg.*auswahl.feld = eintrag(r, auswahl, *wert);
}

/// The dialog opens on what is stored.
void sicher_geladen(Rechenstand& r) {
  if (!r.wrg_geladen) r.wrg.WRG_laden();
  r.wrg_geladen = true;
}

Json items_json(Rechenstand& r) {
  WRG& w = r.wrg;
  Json json = Json::object();
  for (const Zahlenitem& item : kZahlenitems)
    json[std::string(item.name)] = zahl(Wert(item.feld(w)));
  for (const Auswahl& auswahl : kAuswahlen) json[std::string(auswahl.name)] = w.*auswahl.feld;
  const int brennstoff = w.Brennstoff_Nummer();
  const auto preis = static_cast<std::size_t>(brennstoff) - 1;
  json["Preis"] = brennstoff > 0 ? zahl(Wert(w.Text11_14[preis])) : Json(nullptr);
  json["Heizwert"] = zahl(w.Heizwert(brennstoff, 1));
  json["CO2"] = zahl(w.Heizwert(brennstoff, 2));
  return json;
}

Antwort wrg_laden(Rechenstand& r, const Argumente&) {
  r.wrg_geladen = false;
  sicher_geladen(r);
  return {items_json(r), {}};
}

Antwort wrg_speichern(Rechenstand& r, const Argumente& a) {
  sicher_geladen(r);
  for (const Zahlenitem& item : kZahlenitems)
    if (a.da(item.name)) item.feld(r.wrg) = a.text(item.name);
  auswahlen_setzen(r, a);
  if (!r.wrg.WRG_speichern())
    return misslingt("the file could not be written: " + r.ablage.letzter_fehler());
  return {items_json(r), {}};
}

Antwort heizwert(Rechenstand& r, const Argumente& a) {
  return {zahl(r.wrg.Heizwert(a.ganz("Brennstoff"), a.ganz("Welche"))), {}};
}

Antwort wirkgk_vorschlag(Rechenstand& r, const Argumente& a) {
  sicher_geladen(r);
  auswahlen_setzen(r, a);
  return {zahl(r.wrg.WirkGK_vorschlag()), {}};
}

Antwort verlust_vorschlag(Rechenstand& r, const Argumente& a) {
  sicher_geladen(r);
  auswahlen_setzen(r, a);
  return {zahl(r.wrg.Verlust_vorschlag()), {}};
}

Antwort feuchte_luft(Rechenstand& r, const Argumente& a) {
  const auto luft = r.luft.Feuchte_Luft(a.zahl("phi"), a.zahl("t"), a.zahl("p"));
  if (!luft) return {};
  return {{{"h", zahl(luft->h)},
           {"x", zahl(luft->x)},
           {"rho", zahl(luft->rho)},
           {"p_d", zahl(luft->p_d)},
           {"p_l", zahl(luft->p_l)}},
          {}};
}

constexpr std::string_view kWRG_Items =
    "tWasser dt_WTenth DT_verfl WirkGK Verlust Text11 Text12 Text13 Text14 Combo1_1 Combo2_1 "
    "Combo3_1";

constexpr std::array<Operation, 6> kOperationen{{
    {"WRG_laden", "", "", wrg_laden},
    {"WRG_speichern", "", kWRG_Items, wrg_speichern},
    {"Heizwert", "Brennstoff Welche", "", heizwert},
    {"WirkGK_vorschlag", "Combo1_1 Combo3_1", "", wirkgk_vorschlag},
    {"Verlust_vorschlag", "Combo2_1", "Combo1_1 Combo3_1", verlust_vorschlag},
    {"Feuchte_Luft", "phi t p", "", feuchte_luft},
}};

}  // namespace

std::span<const Operation> Heizoperationen() {
  return kOperationen;
}

}  // namespace polarkreis::cli
