#include "optionen.h"

#include <algorithm>

#include "jsondatei.h"
#include "konsole.h"
#include "shell/text.h"
#include "sitzung.h"

namespace polarkreis::cli {

namespace {

void rechart_setzen(const std::string& text, Projektdaten& projekt) {
  if (text == "0" || text == "1") {
    projekt.aendern("Rechart", text);
    return;
  }
  projekt.aendern("Rechart_combo", text);
  const auto arten = projekt.Rechart_Auswahl();
  if (std::ranges::none_of(arten, [&](const std::string& art) { return gleich(art, text); }))
    melde("\"" + text + "\" is none of the kinds of calculation; it counts as a year's run.");
}

}  // namespace

std::string steuernamen() {
  std::string liste;
  for (std::string_view name : kSteuernamen)
    liste += (liste.empty() ? "" : ", ") + std::string(name);
  return liste;
}

void optionen_lesen(const std::string& datei, Projektdaten& projekt) {
  const Json json = jsonobjekt_lesen(datei, "options", steuernamen());
  for (const auto& [name, wert] : json.items()) {
    if (std::ranges::find(kSteuernamen, name) == kSteuernamen.end())
      throw Abbruch("The options file \"" + datei + "\" has an unknown name \"" + name +
                    "\". The names are: " + steuernamen() + ".");
    text_von(name, wert);
  }
  for (const auto& [name, wert] : json.items()) {
    const std::string text = text_von(name, wert);
    if (name == "Rechart_combo")
      rechart_setzen(text, projekt);
    else
      projekt.aendern(name, text);
  }
}

}  // namespace polarkreis::cli
