#pragma once

#include <string>
#include <vector>

#include "sitzung.h"

namespace polarkreis::cli {

/// The compressor park: four items in "VerDpark.dat" of the data folder. It is renamed to
/// `<name>.VDD` when it is saved away, and back when it is opened.

inline constexpr std::string_view kParkendung = ".VDD";

/// True for the name of such a file, in any case.
bool ist_park(const std::string& name);

/// Prints the items.
void park_show(Sitzung& sitzung, const std::string& name, bool json);
/// The file becomes the park of the data folder, and is there no longer. What is no park is
/// refused; a park of other content that stood there is kept beside.
void park_open(Sitzung& sitzung, const std::string& name);
/// The park of the data folder is renamed.
void park_save(Sitzung& sitzung, const std::string& name);
/// Tells the file where opening kept the park that made room; nothing for an empty name.
void park_beiseite_melden(const std::string& name);
/// The parks of a folder, which ends with its separator.
std::vector<std::string> parks(const Ablage& ablage, const std::string& ordner);

}  // namespace polarkreis::cli
