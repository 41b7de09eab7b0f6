#include <CLI/CLI.hpp>

#include "sitzung.h"

namespace polarkreis::cli {

void catalogue_anmelden(CLI::App&, Sitzung&) {}

}  // namespace polarkreis::cli
