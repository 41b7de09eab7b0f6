#include "diagnostics/messquelle.h"

#include "shell/items.h"
#include "shell/text.h"

namespace polarkreis {

namespace {

constexpr int Index_max = 5;
constexpr int Werte = 32;

/// The path of one of several systems: its number stands before the extension.
std::string mit_Index(const std::string& pfad, int index) {
  const std::string_view endung = ".txt";
  if (index <= 1 || pfad.size() < endung.size()) return pfad;
  const std::size_t vorn = pfad.size() - endung.size();
  if (!gleich(pfad.substr(vorn), endung)) return pfad;
  return pfad.substr(0, vorn) + "_" + std::to_string(index) + pfad.substr(vorn);
}

std::string als_Antwort(const std::string& inhalt) {
  ItemLeser leser(inhalt);
  leser.lies();  // the time stamp
  std::string antwort;
  for (int i = 0; i < Werte; ++i) {
    antwort += getrimmt(leser.lies());
    antwort += ' ';
  }
  return antwort + " ok";
}

}  // namespace

std::string Messquelle::Check_ISS_da(int index, int kind) {
  const std::string pfad = mit_Index(Pfad[kind == 2 ? 1 : 0], index);
  if (index >= 1 && index <= Index_max) return als_Antwort(ablage_.lies_ganz(pfad).value_or(""));
  Quelle_ISS = ablage_.vorhanden(pfad) ? aktiv : 0;
  return {};
}

}  // namespace polarkreis
