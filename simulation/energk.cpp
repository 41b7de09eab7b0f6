#include "simulation/energk.h"

#include <array>

#include "shell/items.h"
#include "shell/text.h"

namespace polarkreis {

namespace {

constexpr std::string_view kDatei = "energk.dat";

constexpr std::array kFelder{&Energiedaten::betrstd, &Energiedaten::lzfaktor,
                             &Energiedaten::EnergKost, &Energiedaten::JahrebetrT,
                             &Energiedaten::Spezco2emission};

}  // namespace

Energiedaten energk_lesen(Ablage& ablage, const std::string& ordner) {
  const std::string inhalt = ablage.lies_ganz(ordner + std::string(kDatei)).value_or("");
  ItemLeser leser(inhalt);
  Energiedaten daten;
  for (const auto feld : kFelder) {
    std::string item = leser.lies();
    if (!getrimmt(item).empty()) daten.*feld = std::move(item);
  }
  return daten;
}

bool energk_schreiben(Ablage& ablage, const std::string& ordner, const Energiedaten& daten,
                      Haltbarkeit haltbarkeit) {
  std::string inhalt;
  zeile_anhaengen(inhalt, {daten.betrstd, daten.lzfaktor, daten.EnergKost, daten.JahrebetrT,
                           daten.Spezco2emission});
  const std::string datei = ordner + std::string(kDatei);
  // Every run stores it: what already stands there needs no new file.
  if (ablage.lies_ganz(datei) == inhalt) return true;
  return ablage.schreib_ganz(datei, inhalt, haltbarkeit);
}

}  // namespace polarkreis
