#pragma once

#include <string>

#include "shell/ablage.h"

namespace polarkreis {

/// A file that is open under a number.
struct Ablage::Nummer {
  enum class Art { lesen, schreiben, anhaengen, satz };

  Art art = Art::lesen;
  std::string name;
  Haltbarkeit haltbarkeit = Haltbarkeit::sicher;
  std::size_t satzlaenge = 0;
  std::string inhalt;
  ItemLeser leser{{}};
  bool geaendert = false;     // `satz`: a record was written
  bool zeile_offen = false;   // `anhaengen`: the old content ends within a line
  std::string lesehindernis;  // why the old content is unknown: it must not be replaced then

  bool schreibt() const {
    return art == Art::schreiben || art == Art::anhaengen || (art == Art::satz && geaendert);
  }
};

}  // namespace polarkreis
