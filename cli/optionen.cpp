#include "optionen.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "ausgabe.h"
#include "konsole.h"
#include "shell/text.h"
#include "sitzung.h"

namespace polarkreis::cli {

namespace {

constexpr std::uintmax_t kGroesse_hoechstens = 1'000'000;

std::string inhalt_von(const std::string& datei) {
  std::error_code fehler;
  if (!std::filesystem::is_regular_file(datei, fehler))
    throw Abbruch("The options file \"" + datei + "\" is not there or is no file.");
  if (std::filesystem::file_size(datei, fehler) > kGroesse_hoechstens)
    throw Abbruch("The options file \"" + datei + "\" is too large to be one.");
  std::ifstream strom(datei, std::ios::binary);
  if (!strom) throw Abbruch("The options file \"" + datei + "\" can't be read.");
  return {std::istreambuf_iterator<char>(strom), std::istreambuf_iterator<char>()};
}

// The text of a value as a user would put it into the control.
std::string text_von(const std::string& name, const Json& wert) {
  if (wert.is_string()) return wert.get<std::string>();
  if (wert.is_boolean()) return wert.get<bool>() ? "1" : "0";
  if (wert.is_number()) return Zahl_Text(wert.get<double>());
  throw Abbruch("The option \"" + name + "\" must be a text, a number, true or false.");
}

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
  const Json json = Json::parse(inhalt_von(datei), nullptr, false);
  if (!json.is_object())
    throw Abbruch("The options file \"" + datei +
                  "\" is no JSON object. It holds any of: " + steuernamen() + ".");
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
