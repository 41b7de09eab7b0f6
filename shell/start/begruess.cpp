#include "shell/start/begruess.h"

#include "shell/items.h"

namespace polarkreis {

const std::array<Begruess::Option, Begruess::Optionszahl>& Begruess::Optionen() {
  static constexpr std::array<Option, Optionszahl> Alle = {{
      {"GER", "Deutsch"},    {"ENG", "English"},         {"FRA", "Français"},
      {"ESP", "Español"},    {"ITA", "Italiano"},        {"POR", "Português"},
      {"NDL", "Nederlands"}, {"SWE", "Svenska"},         {"NOR", "Norsk"},
      {"DAN", "Dansk"},      {"POL", "Polski"},          {"CZH", "Čeština"},
      {"HUN", "Magyar"},     {"SVK", "Slovenčina"},      {"ROM", "Română"},
      {"RUS", "Русский"},    {"BUL", "Български"},       {"GRE", "Ελληνικά"},
      {"TRK", "Türkçe"},     {"TWA", "繁體中文 (台灣)"}, {"ARA", "العربية"},
  }};
  return Alle;
}

std::string Begruess::Captiondatei(std::string_view code) {
  return std::string(stammform(Stamm::Caption).name) + "." + std::string(code);
}

bool Begruess::LanguageCheck(int option) {
  if (option < 1 || option > Optionszahl) return false;
  const std::string code(Optionen()[static_cast<std::size_t>(option - 1)].code);
  const std::string vorher = einstellungen_[Einstellungen::Sprache];
  einstellungen_[Einstellungen::Sprache] = code;
  if (!einstellungen_.Parameter_Schreiben()) {
    einstellungen_[Einstellungen::Sprache] = vorher;
    dialog_.zeige(ablage_.letzter_fehler(), Programmname, Symbol::fehler);
    return false;
  }
  Option_gewaehlt = option;
  Vorschau.clear();
  const std::string text = ablage_.lies_ganz(Captiondatei(code)).value_or("");
  const auto zeilen = static_cast<std::size_t>(stammform(Stamm::Caption).zeilen);
  ItemLeser leser(text);
  while (!leser.ende() && Vorschau.size() < zeilen) Vorschau.push_back(leser.lies());
  return true;
}

}  // namespace polarkreis
