#include "diagnostics/methode.h"

#include <array>

#include "shell/text.h"

namespace polarkreis {

namespace {

constexpr std::string_view Ende_Teillast = " %";
constexpr std::string_view Ende_Messwert = " inX7";
constexpr std::string_view Text_Messwert = " Orbiter 1 inX7";
constexpr const char* Parkdatei = "VerDpark.dat";

}  // namespace

std::vector<std::string> Combo4_Liste(const Captions& captions) {
  return {Combo4_Text(M_Hubvolumen, captions), Combo4_Text(M_Teillast, captions),
          Combo4_Text(M_Messwert, captions)};
}

int Mass_Art(std::string_view Combo4, const Captions& captions) {
  const std::string_view text = rechts_getrimmt(Combo4);
  if (text.ends_with(Ende_Messwert)) return M_Messwert;
  // The ending tells the part load of another language, too.
  const bool teillast =
      text.ends_with(Ende_Teillast) || gleich(text, Combo4_Text(M_Teillast, captions));
  return teillast ? M_Teillast : M_Hubvolumen;
}

std::string Combo4_Text(int Mass_Art, const Captions& captions) {
  if (Mass_Art == M_Messwert) return std::string(Text_Messwert);
  if (Mass_Art == M_Teillast) return captions.text(Caption::Teillast) + std::string(Ende_Teillast);
  return captions.text(VerbCapt::Hubvolumen);
}

Verdichterpark Park_Lesen(Ablage& ablage, std::string_view datei) {
  Verdichterpark park;
  const std::string inhalt = ablage.lies_ganz(datei).value_or("");
  ItemLeser leser(inhalt);
  for (std::string* item : {&park.Hub_Volumen, &park.Combo4, &park.Bauart, &park.Antrieb})
    leser.lies(*item);
  return park;
}

bool Park_Schreiben(Ablage& ablage, const Verdichterpark& park) {
  std::string text;
  for (const std::string* item : {&park.Hub_Volumen, &park.Combo4, &park.Bauart, &park.Antrieb})
    zeile_anhaengen(text, {*item});
  return ablage.schreib_ganz(Parkdatei, text);
}

}  // namespace polarkreis
