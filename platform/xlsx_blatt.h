#pragma once

#include <memory>
#include <string>

#include "diagnostics/arbeitsmappe.h"

namespace polarkreis {

/// The parts of a zipped workbook that hold a worksheet's cells, as XML texts. Shared texts and
/// styles may be missing.
struct Xlsxteile {
  std::string Blatt;  ///< the worksheet
  std::string Texte;  ///< the shared texts that its cells refer to by number
  std::string Stile;  ///< the styles, which tell dates and clock times from numbers
};

/// The worksheet's cells. Null, and why (the end of a sentence), for a part that is no XML, that
/// would take too much memory, or a sheet that is none. The parts are used up.
std::unique_ptr<Arbeitsmappe> Blatt_aus_Teilen(Xlsxteile teile, std::string& grund);

}  // namespace polarkreis
