#pragma once

#include <string>

#include "refrigerant/kaeltemittel.h"

/// A refrigerant state of its own over a data folder, the project's by default.
struct KaeltemittelUmgebung {
  polarkreis::Meldungen meldungen;
  polarkreis::Ablage ablage;
  polarkreis::Kaeltemittel km;

  explicit KaeltemittelUmgebung(std::string name, std::string ordner = POLARKREIS_DATA)
      : ablage(std::move(ordner), meldungen), km(ablage) {
    km.z.RefName = std::move(name);
  }
};
