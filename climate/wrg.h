#pragma once

#include <array>
#include <string>
#include <string_view>

#include "shell/ablage.h"
#include "shell/captions.h"

namespace polarkreis {

/// What the run takes from "SPEZBK.DAT"; empty items have their defaults.
struct Heizdaten {
  double T_Kaltwasser = 15;  ///< cold water, °C
  double dT_WW = 6;          ///< temperature difference for hot water, K
  double dT_Heiz = 6;        ///< temperature difference for heating, K
  std::string Brennstoff;    ///< fuel that is replaced
  double Preis = .55;        ///< its price per unit
  double Heizwert = 10.5;    ///< kWh per unit
  double CO2 = 2.66;         ///< kg per unit
  double Wirkungsgrad = 90;  ///< boiler efficiency, %
  double Verlust = 8;        ///< loss, %
};

/// The dialog of the heat-recovery parameters, "SPEZBK.DAT".
class WRG {
 public:
  WRG(Ablage& ablage, const Captions& captions) : ablage_(ablage), captions_(captions) {}

  std::string tWasser, dt_WTenth, DT_verfl;
  std::string Combo3_1, Combo1_1, Combo2_1;  ///< fuel, kind of boiler, distribution
  std::array<std::string, 4> Text11_14;      ///< prices of the four fuels (`Text11` to `Text14`)
  std::string WirkGK, Verlust;
  std::string Qheiz, T_vorl;  ///< project fields `Q_heat` and `T_heat`, copied by the caller on OK

  void WRG_laden();
  bool WRG_speichern();
  /// Heating value in kWh per unit (`Welche` 1) or CO2 in kg per unit (2) of a fuel, 1 to 4; empty
  /// for any other.
  double Heizwert(int Brennstoff, int Welche);
  /// Proposals in %, put into `WirkGK` and `Verlust`; the second also runs the first.
  double WirkGK_vorschlag();
  double Verlust_vorschlag();
  /// A changed selection.
  void Auswahl_geaendert() { Verlust_vorschlag(); }
  /// Numbers 1.. of the chosen entries; 0 for none of them.
  int Brennstoff_Nummer() const;
  int Kessel_Nummer() const;
  int Verteilung_Nummer() const;

  /// Creates "SPEZBK.DAT" with its defaults where it is missing or empty.
  void sicherstellen();
  /// Reads the run's figures.
  Heizdaten heizdaten();

 private:
  Ablage& ablage_;
  const Captions& captions_;
};

}  // namespace polarkreis
