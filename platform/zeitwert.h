#pragma once

#include <optional>
#include <string_view>

#include "diagnostics/arbeitsmappe.h"

namespace polarkreis {

/// A text "yyyy-mm-dd", "hh:mm:ss" or both, with "T" or a blank between them and parts of a second
/// ignored, as the number that a worksheet keeps: days since 30 December 1899.
std::optional<Zeitwert> Zeitwert_von(std::string_view text);

}  // namespace polarkreis
