#pragma once

#include <string>

#include "ausgabe.h"

namespace polarkreis::cli {

/// The JSON object in a file that the user names. Throws `Abbruch` for a file that is missing, too
/// large or no JSON object; `was` is how messages name its kind ("options"), `hilfe` what it holds.
Json jsonobjekt_lesen(const std::string& datei, const std::string& was, const std::string& hilfe);

/// The text of a value as a user would put it into a control; throws `Abbruch` for a list, an
/// object and null.
std::string text_von(const std::string& name, const Json& wert);

}  // namespace polarkreis::cli
