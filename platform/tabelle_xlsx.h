#pragma once

#include <optional>
#include <string>

#include "reports/tabelle.h"

namespace polarkreis {

/// The table as the bytes of an .xlsx file of one worksheet: headings in bold and fixed on top,
/// numbers as numbers, texts as texts. Nothing, and why, if it can't be made: a sheet has at most
/// 1048576 rows and 16384 columns. The same table gives the same bytes.
std::optional<std::string> als_Xlsx(const Tabelle& tabelle, std::string& grund);

}  // namespace polarkreis
