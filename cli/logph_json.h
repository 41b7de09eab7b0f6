#pragma once

#include <string_view>

#include "ausgabe.h"
#include "cycle/logp_h.h"
#include "cycle/logp_linien.h"

namespace polarkreis::cli {

/// "single stage", "vapour injection" ...
std::string_view Name_von(Schaltung schaltung);

/// The whole analysis: plant, figures, state points, paths, balances.
Json logph_json(const logp_H& form);
/// The refrigerant's lines: saturation lines, isotherms, vapour contents; places as [h, p].
Json linien_json(const Logp_Linien& linien);

}  // namespace polarkreis::cli
