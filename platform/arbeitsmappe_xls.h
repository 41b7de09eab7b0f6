#pragma once

#include <memory>
#include <string>

#include "diagnostics/arbeitsmappe.h"

namespace polarkreis {

/// Reads the first worksheet of a file in the old binary format. Null, and why (the end of a
/// sentence), if it can't be read.
std::unique_ptr<Arbeitsmappe> lies_xls(const std::string& pfad, std::string& grund);

}  // namespace polarkreis
