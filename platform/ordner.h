#pragma once

#include <string>
#include <string_view>

namespace polarkreis {

/// The data folder, without a trailing separator: the system's folder for a user's data plus
/// "/polarkreis". When the system gives none, the current folder stands in for it. `modus` tells
/// whose data are meant; 0, the user's own, is the only kind here. Makes nothing.
std::string Datenordner_Finden(int modus);

/// Copies from a delivered data folder what is missing in the user's, with the folders inside it. A
/// file that is there in any case is never touched, unless it holds nothing: 0 bytes count as
/// missing. Hidden files stay out.
struct Fuellung {
  int kopiert = 0;
  int misslungen = 0;  ///< files that could not be written
};
Fuellung Datenordner_Fuellen(const std::string& von, const std::string& nach);

/// The delivered data folder that belongs to the program: "../share/polarkreis/data" beside its
/// folder (installed), else the next folder "data" with the country table on the way up from there
/// (a build tree in a checkout). The empty text if there is none.
std::string Lieferordner(std::string_view programmpfad);

}  // namespace polarkreis
