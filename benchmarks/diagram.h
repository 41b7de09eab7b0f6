#pragma once

#include "shell/start/programm.h"

namespace polarkreis::bench {

/// A log p-h diagram to be worked out: the refrigerant and its temperatures in °C.
struct Diagrammfall {
  const char* name;
  const char* mittel;
  double t0, tc;
  int ECO_OPT, Zweistufig;
};
inline constexpr Diagrammfall Diagrammfaelle[] = {
    {"log p-h diagram's data, R134A", "R134A", -10, 40, 0, 0},
    {"log p-h diagram's data, R407C with economiser", "R407C", -10, 40, 2, 0},
    {"log p-h diagram's data, R744 in two stages", "R744", -30, 35, 0, 1},
};

/// Works out all that a diagram draws, the cycle and the refrigerant's lines; how many places.
std::size_t Diagramm_rechnen(Programm& programm, const Diagrammfall& fall);

}  // namespace polarkreis::bench
