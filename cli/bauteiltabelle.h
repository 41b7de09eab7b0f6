#pragma once

#include <span>
#include <string>
#include <vector>

#include "cycle/bauteile.h"

namespace polarkreis::cli {

/// A column of a table, or a line of what is the same in all of its rows.
struct Spalte {
  std::string kopf;
  std::vector<std::string> zellen;
};

/// Prints components for people, with columns of the caller behind their models: what all of them
/// share stands above the table of the rest. A text "label: number unit" that all have alike
/// becomes a column of numbers.
void drucke(std::span<const Bauteil> bauteile, const std::vector<Spalte>& weitere = {});

}  // namespace polarkreis::cli
