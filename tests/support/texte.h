#pragma once

#include <string>
#include <utility>

#include "shell/ablage.h"
#include "shell/captions.h"

/// The captions of the project's data folder in one language.
struct Texte {
  explicit Texte(std::string sprache = "ENG") {
    captions.Sprache = std::move(sprache);
    captions.Captions_Laden();
  }
  polarkreis::Meldungen meldungen;
  polarkreis::Ablage ablage{POLARKREIS_DATA, meldungen};
  polarkreis::Captions captions{ablage};
};
