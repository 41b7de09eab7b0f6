#pragma once

#include <string>

#include "cycle/logp_h.h"
#include "messplatz.h"

namespace polarkreis::cli {

/// What a call of `logph` asks for. Empty numbers are not given: the plant's own, or the usual ones
/// of a plant given by its refrigerant alone.
struct Logph_Wuensche : Messwuensche {
  std::string datei;  ///< project or measurement; empty: the working project, or `stoff`
  std::string optionen, stoff, modus, svg;
  double t0 = leer, tc = leer, p0 = leer, pc = leer;
  double dT_sh = leer, t_s = leer, dT_sc = leer, dT_liquid = leer;
  double p_int = leer, p_int2 = leer, p_m = leer, p_hoch = leer;
  double C = leer, dp_Fl = leer;
  int zeile = 0;  ///< 0: not given, the first one
  int ECO_OPT = -1, stufen = 0, Bauart = -1, Antrieb = -1;
  bool zweite_Auswahl = false, parallel = false;
};

/// Fills the form with the plant that the call names, and tells what it is. Throws `Abbruch` with
/// the reason, and `CLI::ValidationError` for options that don't go together.
std::string logph_Anlage(Sitzung& sitzung, const Logph_Wuensche& wuensche, logp_H& form);

}  // namespace polarkreis::cli
