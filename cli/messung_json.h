#pragma once

#include "ausgabe.h"
#include "diagnostics/diagnostic.h"

namespace polarkreis::cli {

/// A measurement with its table, means, marks and scale values.
Json messung_json(const DiaGnostic& diagnose, const Messdatei::Ladung& ladung);
/// The functions of the four units.
Json funktionen_json(const Einheitenfunktion& funktion);

/// A row's cells by column; its red marks; the means by column; the scale values.
Json zeile_json(const Messtabelle& tabelle, int zeile);
Json rot_json(unsigned rot);
Json mittel_json(const Messtabelle& mittel);
Json skala_json(const Skala& skala);

/// The means of the main columns, for people.
void drucke_mittelwerte(const Messung& messung);

}  // namespace polarkreis::cli
