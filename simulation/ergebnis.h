#pragma once

#include <string>
#include <vector>

#include "simulation/bewertung.h"
#include "simulation/jahreslauf.h"

namespace polarkreis {

/// The results of a run as the form shows them, each cut or rounded as its rule says. Empty figures
/// don't apply.
struct Ergebnis {
  int Rechart = 0;
  std::string Bewertung;      ///< rating label
  double SCOP = leer;         ///< seasonal figure of an annual run, as computed
  double Anteil = leer;       ///< compressors' share of the energy
  double COP = leer;          ///< of the design point, as computed
  double LeistZ = leer;       ///< the figure shown: seasonal, or the design point's
  double energie = leer;      ///< energy of a year, kWh, as computed
  double kosten = leer;       ///< energy cost of a year, as computed
  double BetrKo = leer;       ///< the same in whole money
  double kWstunden = leer;    ///< energy of a year in whole kWh
  double co2consum = leer;    ///< CO2 of a year, t
  double Kaelte_P = leer;     ///< cost per kWh of cold
  double Anteil_WW = leer;    ///< hot-water share, %
  double Anteil_Heiz = leer;  ///< heating share, %
  double WRGspar = leer;      ///< money saved by heat recovery
  double WRgCO2 = leer;       ///< CO2 saved by heat recovery, t
  /// Shares of the annual energy, %.
  double Anteil_Verd = leer, Anteil_VFl = leer, Anteil_VDa = leer, Anteil_Abtau = leer,
         Anteil_Pumpe = leer;
  double Anteil_FreeCool =
      leer;                 ///< free-cooling saving as percent of what the year would have used
  double Wasser_m3 = leer;  ///< water use, m³
  MEPS meps;
};

/// Works the results out from a finished run.
Ergebnis Ergebnis_fuellen(const Projektdaten& projekt, const Laufergebnis& lauf);

/// One line of the result table `ERG_Spread`; empty texts where a line has no share.
struct Ergebniszeile {
  std::string bezeichnung, wert, einheit, anteil;
};
std::vector<Ergebniszeile> ERG_Spread(const Projektdaten& projekt, const Laufergebnis& lauf,
                                      const Ergebnis& ergebnis);

/// What a press of `rechbutt` leaves: the run, its results, and whether their files could be
/// written.
struct Rechnung {
  Laufergebnis lauf;
  Ergebnis ergebnis;
  bool geschrieben = false;
};
/// The whole of it: the run, "ERG_TEMP.DAT" after a year, the results and "ergEN1.DAT". A run that
/// stops writes neither.
Rechnung rechbutt(JahresLauf& lauf, Projektdaten& projekt, std::string_view waehrung);

}  // namespace polarkreis
