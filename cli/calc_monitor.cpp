#include <array>

#include "calc.h"
#include "monitoring/alarmregel.h"
#include "monitoring/route.h"

namespace polarkreis::cli {

namespace {

enum Richtung { zur_Nummer = 1, zum_Text = 2 };

Antwort flag_find(Rechenstand& r, const Argumente& a) {
  const int richtung = a.ganz("Richtung");
  if (richtung != zur_Nummer && richtung != zum_Text)
    return misslingt("\"Richtung\" is 1 (the number of a text) or 2 (the text of a number)");
  const std::string gefunden = Flag_find(r.captions, a.text("Text"), richtung);
  if (richtung == zum_Text) return {gefunden, {}};
  return {als_ganz(gefunden), {}};
}

Antwort find_alerts(Rechenstand& r, const Argumente& a) {
  const Alarmtext gefunden = alerts_find(r.captions, a.text("item"));
  return {Json{{"Zeile", gefunden.Zeile}, {"Text", gefunden.Text}}, {}};
}

Antwort packen(Rechenstand& r, const Argumente& a) {
  Alarmregel regel;
  for (int z = 1; z <= Regelzeilen; ++z) {
    const auto zeile = static_cast<Regelzeile>(z);
    regel[zeile] = a.text(Regelschluessel(zeile));
  }
  return {Regel_packen(r.captions, regel), {}};
}

Antwort lesen(Rechenstand& r, const Argumente& a) {
  const Alarmregel regel = Regel_entpacken(r.captions, a.text("text"));
  Json felder;
  for (int z = 1; z <= Regelzeilen; ++z) {
    const auto zeile = static_cast<Regelzeile>(z);
    felder[std::string(Regelschluessel(zeile))] = regel[zeile];
  }
  return {felder, {}};
}

constexpr std::array<Operation, 4> kOperationen{{
    {"Flag_find", "Text Richtung", "", flag_find},
    {"alerts_find", "item", "", find_alerts},
    {"Alarm_packen", "", "en c1 ro c2 cm vl ti nt", packen},
    {"Alarm_lesen", "text", "", lesen},
}};

}  // namespace

std::span<const Operation> Monitoroperationen() {
  return kOperationen;
}

}  // namespace polarkreis::cli
