#pragma once

#include <string_view>

#include "diagnostics/arbeitsmappe.h"

namespace polarkreis {

/// The kinds of foreign measurement files.
enum class Importform { keine, Logger, Steuertext, ClimaCheck, Testo };

/// The kind as a sentence names it: "a ClimaCheck worksheet"; empty for none.
std::string_view Importform_Text(Importform form);

/// The kind that a text's first line with a clock time shows: a logger parts its values by tabs, a
/// control system by commas. None where it shows neither.
Importform Textform_von(std::string_view text);

/// The kind that a worksheet shows: ClimaCheck's has a time and both pressures in row 25, Testo's
/// numbers from row 3 on and nothing in row 25 behind column "H". None where it shows neither.
Importform Blattform_von(const Arbeitsmappe& mappe);

}  // namespace polarkreis
