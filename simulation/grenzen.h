#pragma once

#include <optional>
#include <string>

#include "refrigerant/kaeltemittel.h"
#include "shell/captions.h"
#include "shell/einheiten.h"

namespace polarkreis {

/// Checks evaporating and condensing temperature [°C] against the limits of the refrigerant in use.
/// The message of the first one that is broken, or nothing.
std::optional<std::string> Grenzen_Text(Kaeltemittel& km, const Captions& captions,
                                        const Einheiten& einheiten, double t0, double tc);

}  // namespace polarkreis
