#include <algorithm>
#include <array>

#include "calc.h"
#include "diagnostics/antwort.h"
#include "diagnostics/messquelle.h"
#include "diagnostics/mittelwerte.h"
#include "diagnostics/zeiten.h"
#include "messeinstellungen.h"
#include "messung_json.h"
#include "sitzung.h"

namespace polarkreis::cli {

namespace {

class Still : public Fortschritt {
 public:
  bool schritt(std::string_view, int, int) override { return true; }
};

// --- Channels

Antwort p_convert(Rechenstand&, const Argumente& a) {
  return {zahl(P_convert(a.zahl("value"), a.ganz("kind"))), {}};
}

Antwort chanel_festleg(Rechenstand& r, const Argumente& a) {
  if (a.da("Box_Typ")) r.kanaele.Box_Typ = a.ganz("Box_Typ");
  return {r.kanaele.Chanel_festleg(a.ganz("position"), a.ganz("mode")), {}};
}

Antwort kablib(Rechenstand& r, const Argumente& a) {
  const double wert = r.kanaele.Kablib_x7_8(a.zahl("value"), a.ganz("kind"), a.ganz("channel"));
  return {{{"value", zahl(wert)}, {"Box_Typ", r.kanaele.Box_Typ}, {"Label21", r.kanaele.Label21}},
          {}};
}

Antwort offset_laden(Rechenstand& r, const Argumente&) {
  r.kanaele.Offset_laden();
  Json werte = Json::array();
  for (std::size_t n = 1; n < r.kanaele.Offset_Wert.size(); ++n)
    werte.push_back(zahl(r.kanaele.Offset_Wert[n]));
  return {werte, {}};
}

// --- Link

Antwort antwort(Rechenstand&, const Argumente& a) {
  const std::string text = a.text("text");
  AntwortLeser leser(text);
  Json token = Json::array();
  std::string zeit;
  for (std::string_view t; leser.lies(t);) {
    token.push_back(std::string(t));
    zeit = Zeit_des_Tokens(t);
  }
  return {{{"good", Antwort_brauchbar(text)},
           {"Box_Typ", Box_Typ_von(text)},
           {"tokens", token},
           {"Zeit_Text", zeit}},
          {}};
}

Antwort zeitunterschied(Rechenstand&, const Argumente& a) {
  const double intervall = a.da("interval") ? a.zahl("interval") : 5;
  return {zahl(time_diff(a.text("t1"), a.text("t2"), a.ganz("kind"), intervall)), {}};
}

Antwort intervall(Rechenstand&, const Argumente& a) {
  Messung messung;
  messung.Combo2 = a.text("Combo2");
  return {zahl(InterVall_Ber(messung.Messintervall_s(), a.text("Combo5"))), {}};
}

Antwort fm_timer(Rechenstand&, const Argumente& a) {
  return {FM_timer(a.zahl("seconds")), {}};
}

Antwort check_iss(Rechenstand& r, const Argumente& a) {
  Messquelle quelle(r.ablage);
  const int art = a.ganz("kind");
  if (a.da("path") && (art == 1 || art == 2))
    quelle.Pfad[static_cast<std::size_t>(art - 1)] = a.text("path");
  const std::string reply = quelle.Check_ISS_da(a.ganz("index"), art);
  return {{{"reply", reply}, {"Quelle_ISS", quelle.Quelle_ISS}}, {}};
}

// --- Kernel

// The settings are the measurement's controls under their names.
Antwort einstellen(Rechenstand& r, const Argumente& a) {
  Json einstellungen = a.zeile();
  einstellungen.erase("op");
  try {
    Messeinstellungen::von_json(einstellungen).anwenden(r.messung, r.solen, r.captions);
  } catch (const Abbruch& fehler) {
    return misslingt(fehler.what());
  }
  r.kern.beginnen();
  return {funktionen_json(r.kern.Funktion), {}};
}

Antwort cos_phi(Rechenstand& r, const Argumente& a) {
  return {zahl(r.kern.Cos_phi(a.zahl("current"))), {}};
}

// "cells" are put into the row before it is computed: column -> text or number.
std::string zellen_setzen(Messtabelle& tabelle, int zeile, const Json* zellen) {
  if (zellen == nullptr) return {};
  if (!zellen->is_object()) return "\"cells\" must be an object of columns";
  for (const auto& [spalte, wert] : zellen->items())
    if (!ist_einfach(wert)) return "the cell \"" + spalte + "\" must be a number, a text or null";
  for (const auto& [spalte, wert] : zellen->items())
    tabelle.setze(zeile, als_ganz(Json(spalte)), als_text(wert));
  return {};
}

int zeile_von(const Argumente& a) {
  constexpr int hoechste = 100000;
  const int zeile = a.da("row") ? a.ganz("row") : Messtabelle::Erste;
  return std::clamp(zeile, int{Messtabelle::Erste}, hoechste);
}

Antwort kern_zeile(Rechenstand& r, const Argumente& a) {
  const int zeile = zeile_von(a);
  std::string fehler = zellen_setzen(r.messung.DiaSpread, zeile, a.roh("cells"));
  if (!fehler.empty()) return misslingt(std::move(fehler));
  r.messung.Mess_Zeilen = std::max(r.messung.Mess_Zeilen, zeile);
  r.kern.Kern_Zeile(zeile);
  return {{{"cells", zeile_json(r.messung.DiaSpread, zeile)},
           {"red", rot_json(r.messung.DiaSpread.rot(zeile))}},
          {}};
}

Antwort rechenkern(Rechenstand& r, const Argumente&) {
  Still still;
  r.kern.rechenkern(still);
  return {{{"Summe_Energ", zahl(r.kern.Summe_Energ)},
           {"Sum_zeit_messung", zahl(r.kern.Sum_zeit_messung)},
           {"scale", skala_json(r.messung.skala)},
           {"means", mittel_json(r.messung.MittelW_Spread)}},
          {}};
}

Antwort mittel_wert(Rechenstand&, const Argumente& a) {
  return {zahl(Mittel_wert(a.text("a"), a.text("b"), a.text("c"))), {}};
}

Antwort sp_zuweis(Rechenstand& r, const Argumente&) {
  const Einheitenfunktion f = SP_Zuweis(r.messung.OrbiN_spread, r.captions);
  Json zeilen = Json::array(), namen = Json::array();
  for (std::size_t i = 1; i < f.Sensor_Zeile.size(); ++i) {
    zeilen.push_back(f.Sensor_Zeile[i]);
    namen.push_back(f.Sensor_Name[i]);
  }
  return {{{"Sensor_Code", funktionen_json(f)},
           {"Sensor_Zeile", zeilen},
           {"Sensor_Name", namen},
           {"Druck_Art", f.Druck_Art}},
          {}};
}

constexpr std::array<Operation, 15> kOperationen{{
    {"P_convert", "value kind", "", p_convert},
    {"Chanel_festleg", "position mode", "Box_Typ", chanel_festleg},
    {"Kablib_x7_8", "value channel", "kind", kablib},
    {"Offset_laden", "", "", offset_laden},
    {"Antwort", "text", "", antwort},
    {"time_diff", "t1 t2 kind", "interval", zeitunterschied},
    {"InterVall_Ber", "Combo2 Combo5", "", intervall},
    {"FM_timer", "seconds", "", fm_timer},
    {"Check_ISS_da", "index kind", "path", check_iss},
    {"Messung", "", "", einstellen},
    {"Cos_phi", "current", "", cos_phi},
    {"Kern_Zeile", "", "row", kern_zeile},
    {"rechenkern", "", "", rechenkern},
    {"Mittel_wert", "a b c", "", mittel_wert},
    {"SP_Zuweis", "", "", sp_zuweis},
}};

}  // namespace

std::span<const Operation> Messoperationen() {
  return kOperationen;
}

}  // namespace polarkreis::cli
