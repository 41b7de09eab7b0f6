#pragma once

#include <string>

#include "shell/ablage.h"

namespace polarkreis {

/// "energk.dat" of the project folder: the operating figures shared by all projects of that folder,
/// as the fields of the form hold them. An empty item takes its default on reading.
struct Energiedaten {
  std::string betrstd = "18";           ///< hours of operation per day
  std::string lzfaktor = ".9";          ///< load factor
  std::string EnergKost = ".18";        ///< price of energy per kWh
  std::string JahrebetrT = "365";       ///< days of operation per year
  std::string Spezco2emission = ".58";  ///< kg CO2 per kWh

  bool operator==(const Energiedaten&) const = default;
};

/// `ordner`: the project folder with its trailing separator, or empty for the data folder.
Energiedaten energk_lesen(Ablage& ablage, const std::string& ordner);
bool energk_schreiben(Ablage& ablage, const std::string& ordner, const Energiedaten& daten,
                      Haltbarkeit = Haltbarkeit::sicher);

}  // namespace polarkreis
