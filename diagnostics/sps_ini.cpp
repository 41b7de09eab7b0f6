#include "diagnostics/sps_ini.h"

#include <span>

#include "shell/items.h"
#include "shell/wert.h"

namespace polarkreis {

namespace {

constexpr const char* Datei = "SPS_ini.dat";

void lies(ItemLeser& leser, std::span<std::string> felder) {
  for (std::string& feld : felder) feld = leser.lies();
}

void schreib(std::string& text, std::span<const std::string> felder) {
  zeile_anhaengen(text, std::vector<std::string_view>(felder.begin(), felder.end()));
}

std::string als_Text(const SPS_Ini& ini) {
  std::string text;
  schreib(text, ini.Kopf);
  for (const SPS_Ini::Anlage& anlage : ini.Anlagen) {
    std::vector<std::string> satz{anlage.Name};
    satz.insert(satz.end(), anlage.Kanal.begin(), anlage.Kanal.end());
    schreib(text, satz);
  }
  for (const auto& feld : ini.Kanalnummern) schreib(text, feld);
  return text;
}

}  // namespace

SPS_Ini SPS_Ini_Lesen(Ablage& ablage) {
  const std::string text = ablage.lies_ganz(Datei).value_or("");
  ItemLeser leser(text);
  SPS_Ini ini;
  lies(leser, ini.Kopf);
  for (SPS_Ini::Anlage& anlage : ini.Anlagen) {
    anlage.Name = leser.lies();
    lies(leser, anlage.Kanal);
  }
  for (auto& feld : ini.Kanalnummern) lies(leser, feld);
  return ini;
}

// The file store composes the whole beside the old file and puts it in its place in one step, so
// that no moment is without the list.
bool ISS_KKP_Settings(Ablage& ablage, int nummer, const SPS_Ini::Anlage& anlage) {
  if (nummer < 1 || nummer > static_cast<int>(SPS_Ini::Anlagenzahl)) return false;
  if (ablage.vorhanden(Datei) && !ablage.lies_ganz(Datei)) return false;
  SPS_Ini ini = SPS_Ini_Lesen(ablage);
  ini.Anlagen[static_cast<std::size_t>(nummer - 1)] = anlage;
  return ablage.schreib_ganz(Datei, als_Text(ini));
}

std::vector<std::string> SPS_Namensliste(const Captions& captions) {
  std::vector<std::string> liste;
  for (std::size_t k = 1; k <= SPS_Ini::Anlagenzahl; ++k)
    liste.push_back(captions.text(Caption::Messeinheit) + " " + std::to_string(k));
  return liste;
}

int KKP_Systemnummer(std::string_view pfad) {
  const std::string_view name = pfad.substr(pfad.find_last_of("/\\") + 1);
  const auto Punkt_an = [name](std::size_t stelle) {
    return name.size() >= stelle && name[stelle - 1] == '.';
  };
  if (Punkt_an(13)) return 1;
  return Punkt_an(15) ? static_cast<int>(Wert(name.substr(13, 1))) : 0;
}

}  // namespace polarkreis
