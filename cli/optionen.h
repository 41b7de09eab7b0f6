#pragma once

#include <array>
#include <string>
#include <string_view>

#include "simulation/projektdaten.h"

namespace polarkreis::cli {

/// The controls of the form that are no project items.
inline constexpr std::array<std::string_view, 10> kSteuernamen{
    "HeizCheck", "FreeC_Check", "ParaL_Check", "Check3D1",      "ECO_OPT",
    "Gleitopt",  "ErP_Vers",    "t_K_wasser",  "Lamm_AB_combo", "Rechart_combo"};
/// Their names in a row, with commas between.
std::string steuernamen();

/// Takes the controls that are no project items from a JSON file and puts them into the form, in
/// the order of the file. Values are texts, numbers or booleans; 0 and 1 for `Rechart_combo` are
/// the project's `Rechart`. Throws `Abbruch` for a file that is missing or no JSON object and for
/// an unknown name; the form then has none of them.
void optionen_lesen(const std::string& datei, Projektdaten& projekt);

}  // namespace polarkreis::cli
