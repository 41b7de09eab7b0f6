#include "shell/start/programm.h"

#include <utility>

#include "shell/text.h"

namespace polarkreis {

Programm::Programm(std::string datenordner, Dialog& user)
    : dialog(user),
      ablage(std::move(datenordner), meldungen),
      einstellungen(ablage),
      captions(ablage),
      km(ablage),
      kreis(km),
      klima(ablage, captions),
      jahresgang(ablage, captions, klima),
      wrg(ablage, captions),
      luft(ablage),
      projekt(ablage, captions, km, dialog),
      projladen(ablage, captions, dialog) {}

void Programm::laden(std::string_view sprache) {
  einstellungen.Parameter_Lesen();
  projladen.Projektname_Start = einstellungen[Einstellungen::Projektname_Start];
  captions.Sprache =
      sprache.empty() ? einstellungen[Einstellungen::Sprache] : gross(getrimmt(sprache));
  captions.Captions_Laden();
}

}  // namespace polarkreis
