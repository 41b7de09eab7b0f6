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
      projekt(ablage, captions, km, dialog) {}

void Programm::laden(std::string_view sprache) {
  einstellungen.Parameter_Lesen();
  captions.Sprache = sprache.empty() ? einstellungen[Einstellungen::Sprache] : gross(sprache);
  captions.Captions_Laden();
}

}  // namespace polarkreis
