#pragma once

#include "ausgabe.h"
#include "cycle/kompsuch.h"
#include "cycle/mittelliste.h"

namespace polarkreis::cli {

/// Record number and fields of each.
Json bauteile_json(const std::vector<Bauteil>& bauteile);
/// Code, type and text of each catalogue.
Json kataloglist_json(const KompSuch& suche);
/// Each row of the index that was searched, with what came of it.
Json ergebnisse_json(const KompSuch& suche);
/// Each component found, with its catalogue.
Json treffer_json(const KompSuch& suche);
/// The lists of a refrigerant.
Json mittelliste_json(const std::vector<Mittelzeile>& liste);

}  // namespace polarkreis::cli
