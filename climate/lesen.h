#pragma once

#include <string>

#include "shell/ablage.h"

namespace polarkreis {

/// File number under which this room opens its files; every use closes it again.
inline constexpr int Klima_Dateinummer = 51;

/// The list of the countries.
inline std::string Laenderdatei() {
  return "COUNTRY.DAT";
}

/// Content of a data file that is opened for input: an absent file is created empty, as every
/// opening for input does, and gives the empty text.
std::string Datei_Inhalt(Ablage& ablage, const std::string& name);
/// The creating half alone, for a reader that has found nothing.
void leer_anlegen(Ablage& ablage, const std::string& name);

}  // namespace polarkreis
