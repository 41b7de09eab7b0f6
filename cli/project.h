#pragma once

#include <string>
#include <vector>

#include "sitzung.h"

namespace polarkreis::cli {

/// Prints what a project file holds.
void project_show(Sitzung& sitzung, const std::string& datei, bool json);

/// A wish of "project derive": an item and the text that it takes.
struct Aenderung {
  std::string item, text;
};
/// Changes items as a user of the form would, and prints what the numbers become.
void project_derive(Sitzung& sitzung, const std::string& datei,
                    const std::vector<Aenderung>& aenderungen, bool schreiben, bool json);

/// Rewrites a project in another language; numbers, free text and the heading stay.
void project_translate(Sitzung& sitzung, const std::string& datei, const std::string& nach);

}  // namespace polarkreis::cli
