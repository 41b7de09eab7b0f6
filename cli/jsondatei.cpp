#include "jsondatei.h"

#include <filesystem>
#include <fstream>
#include <iterator>

#include "sitzung.h"

namespace polarkreis::cli {

namespace {

constexpr std::uintmax_t kGroesse_hoechstens = 1'000'000;

std::string inhalt_von(const std::string& datei, const std::string& was) {
  const std::string wer = "The " + was + " file \"" + datei + "\"";
  std::error_code fehler;
  if (!std::filesystem::is_regular_file(datei, fehler))
    throw Abbruch(wer + " is not there or is no file.");
  if (std::filesystem::file_size(datei, fehler) > kGroesse_hoechstens)
    throw Abbruch(wer + " is too large to be one.");
  std::ifstream strom(datei, std::ios::binary);
  if (!strom) throw Abbruch(wer + " can't be read.");
  return {std::istreambuf_iterator<char>(strom), std::istreambuf_iterator<char>()};
}

}  // namespace

Json jsonobjekt_lesen(const std::string& datei, const std::string& was, const std::string& hilfe) {
  Json json = Json::parse(inhalt_von(datei, was), nullptr, false);
  if (!json.is_object())
    throw Abbruch("The " + was + " file \"" + datei +
                  "\" is no JSON object. It holds any of: " + hilfe + ".");
  return json;
}

std::string text_von(const std::string& name, const Json& wert) {
  if (wert.is_string()) return wert.get<std::string>();
  if (wert.is_boolean()) return wert.get<bool>() ? "1" : "0";
  if (wert.is_number()) return Zahl_Text(wert.get<double>());
  throw Abbruch("The value of \"" + name + "\" must be a text, a number, true or false.");
}

}  // namespace polarkreis::cli
