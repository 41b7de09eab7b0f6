#pragma once

#include <string>

#include "reports/schaubild.h"

namespace polarkreis {

/// The chart as a complete SVG 1.1 file in UTF-8, on a white sheet 1200 units wide and 800 high, or
/// as much higher as the panel beside the plot needs. A place that can't be drawn (not finite, not
/// positive on a logarithmic axis) is left out and ends the piece of its curve; an empty chart
/// gives its empty axes. A label at a curve that would have to cover another one or a process line
/// is left out. Equal charts give equal files.
std::string SVG_Text(const Schaubild& schaubild);

}  // namespace polarkreis
