#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "diagnostics/arbeitsmappe.h"

namespace polarkreis {

/// Reads the first worksheet of a file in the zipped format from its bytes. Null, and why (the end
/// of a sentence), if it can't be read.
std::unique_ptr<Arbeitsmappe> lies_xlsx(std::string_view bytes, std::string& grund);

}  // namespace polarkreis
