#pragma once

#include <string_view>

#include "diagnostics/arbeitsmappe.h"

namespace polarkreis {

/// The kinds of foreign measurement files.
enum class Importform { keine, Logger, Steuertext, ClimaCheck, Testo };

/// The kind as a sentence names it: "a ClimaCheck worksheet"; empty for none.
std::string_view Importform_Text(Importform form);

/// The kind that most of a text's lines with a clock time show: a logger parts its values by tabs,
/// a control system by commas. None where neither has more than half of them.
Importform Textform_von(std::string_view text);

/// The kind that a worksheet shows: ClimaCheck's has a time and both pressures in one of
/// its first rows from 25 on, Testo's
/// numbers from row 3 on and nothing in row 25 behind column "H". None where it shows neither.
Importform Blattform_von(const Arbeitsmappe& mappe);

}  // namespace polarkreis
