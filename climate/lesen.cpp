#include "climate/lesen.h"

namespace polarkreis {

void leer_anlegen(Ablage& ablage, const std::string& name) {
  ablage.Datei_Lesen(name, Klima_Dateinummer);
  ablage.Datei_Schliessen(Klima_Dateinummer);
}

std::string Datei_Inhalt(Ablage& ablage, const std::string& name) {
  auto inhalt = ablage.lies_ganz(name);
  if (!inhalt) leer_anlegen(ablage, name);
  return std::move(inhalt).value_or(std::string());
}

}  // namespace polarkreis
