#pragma once

#include "cycle/logp_h.h"
#include "cycle/logp_linien.h"
#include "reports/schaubild.h"
#include "shell/einheiten.h"

namespace polarkreis::cli {

/// The log p-h diagram of a cycle as a chart; pressures and temperatures in the user's units.
Schaubild logph_Bild(const logp_H& form, const Logp_Linien& linien, const Einheiten& einheiten,
                     const std::string& titel);

}  // namespace polarkreis::cli
