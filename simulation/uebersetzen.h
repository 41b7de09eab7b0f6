#pragma once

#include <string_view>

#include "shell/captions.h"
#include "simulation/projektsatz.h"

namespace polarkreis {

/// Translates the selections of a project from one language into another: each is looked up in the
/// lines that it can hold, composed texts piece by piece. Numbers and free text stay. The project's
/// `Sprache` becomes `nach`. A language
/// without captions leaves the project as it is.
void Projektsatz_uebersetzen(const Captions& captions, Projektsatz& projekt, std::string_view von,
                             std::string_view nach);

/// Rewrites "Temp_Sim.dat" in the new language, through "Puffer.dat", whose name is then changed.
/// False if it could not be written; the old file then stays.
bool Projekt_Uebersetzen(Ablage& ablage, const Captions& captions, std::string_view von,
                         std::string_view nach);

}  // namespace polarkreis
