#pragma once

#include <string>
#include <string_view>

#include "diagnostics/einheiten_funktion.h"
#include "diagnostics/messung.h"
#include "shell/ablage.h"
#include "shell/captions.h"

namespace polarkreis {

/// The protocol's file. The report editor opens it like its own report, and so prints it
/// (`DiaG_print`).
inline constexpr std::string_view Protokolldatei = "ergDiaG.DAT";

/// The sums that the kernel gathered over the rows.
struct Protokollsummen {
  double Summe_Energ = 0;       ///< kWh of refrigeration
  double Sum_zeit_messung = 0;  ///< s
};

/// The protocol of a measurement whose rows were computed: lines of one quoted text each, with
/// "&$$" before a heading, "§$&" between label and value and "&%!" between the columns of a table.
/// The tables show `MittelW_Spread` as it stands. A unit's table has a line for each quantity of
/// its function that was measured; a unit without such a line is left out.
std::string Protokoll_Text(const Messung& messung, const Captions& captions,
                           const Einheitenfunktion& funktion, const Protokollsummen& summen);

/// Writes "ergDiaG.DAT"; false if it could not be put in place (see `Ablage::letzter_fehler`).
bool DiaG_Protokoll(const Messung& messung, const Captions& captions,
                    const Einheitenfunktion& funktion, const Protokollsummen& summen,
                    Ablage& ablage);

}  // namespace polarkreis
