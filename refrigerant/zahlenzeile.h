#pragma once

#include <span>

#include "shell/items.h"

namespace polarkreis {

/// What came of reading one row of numbers from a table file.
enum class Zeilenstand {
  voll,   ///< all numbers read
  ende,   ///< nothing was left but blank lines
  bruch,  ///< items missing at the file's end, or a text that has no leading number
};

/// Reads one number an item into `werte`; the numbers read before a break stay in it.
Zeilenstand zahlen_lesen(ItemLeser& leser, std::span<double> werte);

}  // namespace polarkreis
