#include "shell/einheiten.h"

#include "shell/wert.h"

namespace polarkreis {

Einheiten Einheiten::von(std::string_view schalter) {
  return {.angelsaechsisch = Wert(schalter) == 2};
}

}  // namespace polarkreis
