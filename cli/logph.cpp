#include <CLI/CLI.hpp>

#include "sitzung.h"

namespace polarkreis::cli {

void logph_anmelden(CLI::App&, Sitzung&) {}

}  // namespace polarkreis::cli
