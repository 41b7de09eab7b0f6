#pragma once

#include <array>
#include <string>

#include "shell/ablage.h"

namespace polarkreis {

/// "JMapOpt.dat": the pressure differences of the lowest-condensing-pressure rule, bar. Empty items
/// have their defaults "7", "3", "1", "1".
struct Druckdifferenzen {
  std::array<std::string, 4> werte = {"7", "3", "1", "1"};
  double thermostatisch() const;  ///< needed by a thermostatic expansion valve
  double andere() const;          ///< needed by the other valve kinds
  double leitung() const;         ///< loss of the liquid line
  double verteiler() const;       ///< loss of the distributor
};
Druckdifferenzen JMapOpt_lesen(std::string&& text);
bool JMapOpt_schreiben(Ablage& ablage, const Druckdifferenzen& werte);

/// What the run takes of "SubAct.dat", in K.
struct Zusatzzahlen {
  double Ueberhitzung_Zusatz = 0;
  double Unterkuehlung = 0;
  double dT_Innen_WT = 0;
};

/// "SubAct.dat": eleven items; the run takes items 2 to 4, the dialog edits the first seven, the
/// last four are kept.
struct Zusatzwerte {
  static constexpr int Itemzahl = 11;
  std::array<std::string, Itemzahl> werte;
  /// Items 2 to 4.
  Zusatzzahlen zahlen() const;
};
Zusatzwerte SubAct_lesen(std::string&& text);
bool SubAct_schreiben(Ablage& ablage, const Zusatzwerte& werte);
/// The start values of "Armstd.rdm"; empty items where the file has none.
Zusatzwerte SubAct_Startwerte(Ablage& ablage);
/// Creates "SubAct.dat" from the start values of "Armstd.rdm" where it is missing or empty: its
/// records 24 to 26 give items 1 to 3, records 33 to 35 items 4 to 6; for the run mode "MonoF" the
/// list of values is written twice.
void SubAct_sicherstellen(Ablage& ablage, std::string_view modul);

}  // namespace polarkreis
