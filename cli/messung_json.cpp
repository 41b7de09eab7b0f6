#include "messung_json.h"

#include <array>
#include <string>

#include "diagnostics/mittelwerte.h"
#include "shell/text.h"

namespace polarkreis::cli {

namespace {

Json zellen_json(const Messung& messung) {
  Json zellen = Json::object();
  for (int zeile = Messtabelle::Erste; zeile <= messung.letzte_Zeile(); ++zeile)
    if (messung.DiaSpread.gefuellt(zeile))
      zellen[std::to_string(zeile)] = zeile_json(messung.DiaSpread, zeile);
  return zellen;
}

Json rote_zeilen_json(const Messung& messung) {
  Json json = Json::object();
  for (int zeile = Messtabelle::Erste; zeile <= messung.letzte_Zeile(); ++zeile)
    if (const unsigned rot = messung.DiaSpread.rot(zeile); rot != 0)
      json[std::to_string(zeile)] = rot_json(rot);
  return json;
}

/// A column that people look at first.
struct Hauptspalte {
  int spalte;
  const char* name;
  const char* einheit;
};
constexpr std::array<Hauptspalte, 16> kHauptspalten{
    {{Spalte::p0, "Low pressure", "bar g"},
     {Spalte::pc, "High pressure", "bar g"},
     {Spalte::t0, "Evaporating temperature", "°C"},
     {Spalte::tc, "Condensing temperature", "°C"},
     {Spalte::dT_sh, "Superheat", "K"},
     {Spalte::dT_sc, "Subcooling", "K"},
     {Spalte::t_end, "End of compression", "°C"},
     {Spalte::P_el, "Compressor power", "kW"},
     {Spalte::m_KM, "Refrigerant mass flow", "kg/h"},
     {Spalte::EER_1, "EER", ""},
     {Spalte::EER_2, "COP", ""},
     {Spalte::eta, "Compressor efficiency", "%"},
     {Spalte::Qo_COP, "Capacity, by the compressor", "kW"},
     {Spalte::Qo_dt, "Capacity, secondary side", "kW"},
     {Spalte::Qc_COP, "Condenser, by the compressor", "kW"},
     {Spalte::Qc_dt, "Condenser, secondary side", "kW"}}};

}  // namespace

Json zeile_json(const Messtabelle& tabelle, int zeile) {
  Json spalten = Json::object();
  for (int spalte = 1; spalte <= Spalte::Gespeichert; ++spalte)
    if (const std::string& text = tabelle.text(zeile, spalte); !text.empty())
      spalten[std::to_string(spalte)] = text;
  return spalten;
}

Json rot_json(unsigned rot) {
  constexpr std::array<std::pair<Rot, const char*>, 3> namen{
      {{Rot_sh, "sh"}, {Rot_sc, "sc"}, {Rot_eta, "eta"}}};
  Json marken = Json::array();
  for (const auto& [bit, name] : namen)
    if ((rot & bit) != 0) marken.push_back(name);
  return marken;
}

Json mittel_json(const Messtabelle& mittel) {
  Json json = Json::object();
  for (int spalte = 1; spalte <= Spalte::Gespeichert; ++spalte) {
    if (mittel.text(Mittel_wert_zeile, spalte).empty()) continue;
    json[std::to_string(spalte)] = {{"lowest", zahl(mittel.zahl(Mittel_kleinster, spalte))},
                                    {"highest", zahl(mittel.zahl(Mittel_groesster, spalte))},
                                    {"mean", zahl(mittel.zahl(Mittel_wert_zeile, spalte))}};
  }
  return json;
}

Json skala_json(const Skala& s) {
  return {{"Q_max", zahl(s.Q_max)},   {"EER_max", zahl(s.EER_max)},     {"t0_min", zahl(s.t0_min)},
          {"tc_max", zahl(s.tc_max)}, {"t_end_max", zahl(s.t_end_max)}, {"p_max", zahl(s.p_max)},
          {"dp_max", zahl(s.dp_max)}};
}

Json funktionen_json(const Einheitenfunktion& funktion) {
  Json codes = Json::array();
  for (std::size_t i = 1; i < funktion.Sensor_Code.size(); ++i)
    codes.push_back(funktion.Sensor_Code[i]);
  return codes;
}

Json messung_json(const DiaGnostic& d, const Messdatei::Ladung& ladung) {
  Json json;
  json["Mess_Zeilen"] = d.messung.Mess_Zeilen;
  json["ProjektNam"] = d.messung.ProjektNam;
  json["ProBeschr"] = d.messung.ProBeschr;
  json["KaelteM"] = d.messung.KaelteM;
  json["Combo3"] = d.messung.Combo3;
  json["asked"] = ladung.gefragt;
  json["dropped"] = ladung.verworfen;
  json["replaced"] = ladung.ersetzt;
  json["surplus"] = ladung.ueberzaehlig;
  json["Sensor_Code"] = funktionen_json(d.kern.Funktion);
  json["Summe_Energ"] = zahl(d.kern.Summe_Energ);
  json["Sum_zeit_messung"] = zahl(d.kern.Sum_zeit_messung);
  json["scale"] = skala_json(d.messung.skala);
  json["means"] = mittel_json(d.messung.MittelW_Spread);
  json["red"] = rote_zeilen_json(d.messung);
  json["cells"] = zellen_json(d.messung);
  return json;
}

void drucke_mittelwerte(const Messung& messung) {
  const Messtabelle& mittel = messung.MittelW_Spread;
  Tabelle tabelle{{"", "lowest", "highest", "mean", ""}, {}};
  for (const Hauptspalte& h : kHauptspalten) {
    if (mittel.text(Mittel_wert_zeile, h.spalte).empty()) continue;
    tabelle.zeilen.push_back({h.name, anzeige(mittel.zahl(Mittel_kleinster, h.spalte)),
                              anzeige(mittel.zahl(Mittel_groesster, h.spalte)),
                              anzeige(mittel.zahl(Mittel_wert_zeile, h.spalte)), h.einheit});
  }
  drucke(tabelle);
}

}  // namespace polarkreis::cli
