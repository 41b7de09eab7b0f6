#pragma once

#include <CLI/CLI.hpp>
#include <optional>
#include <string>
#include <string_view>

namespace polarkreis::cli {

/// A number as people write it: point or comma, blanks around. Nothing for a text that is no number
/// or beyond the range of one ("--", "1e999", "12x").
std::optional<double> zahl_aus(std::string_view text);

/// An option that takes such a number; any other text is a wrong call.
CLI::Option* zahl_option(CLI::App& app, const std::string& name, double& ziel,
                         const std::string& hilfe);

/// Puts an example under the command's help.
void beispiel(CLI::App& app, const std::string& zeilen);

}  // namespace polarkreis::cli
