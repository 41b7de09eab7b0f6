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
  std::string Qheiz, T_vorl;  ///< project fields `Q_heat` and `T_heat`
  /// The file with the CO2 figure of electricity; a path where it doesn't lie in the data folder.
  std::string Energiedatei = "energk.dat";

  /// Reads "SPEZBK.DAT" into the fields; an empty item, and every item of a missing file, gives its
  /// default (opening creates an absent file empty, see `Ablage`).
  /// Opens on the file and the project's `Q_heat` and `T_heat`.
  void oeffnen(const std::string& Q_heat, const std::string& T_heat) {
    WRG_laden();
    Qheiz = Q_heat;
    T_vorl = T_heat;
  }
  /// Both buttons copy the two fields to the project's and store; false if the file could not be
  /// written.
  bool OKbutt(std::string& Q_heat, std::string& T_heat) {
    Q_heat = Qheiz;
    T_heat = T_vorl;
    return WRG_speichern();
  }
  bool WRGspeich(std::string& Q_heat, std::string& T_heat) { return OKbutt(Q_heat, T_heat); }
  void WRG_laden();
  /// Writes all items: the price of the chosen fuel and its figures of the fuel table included
  /// (empty for none of the four). False if the file could not be written.
  bool WRG_speichern();
  /// Heating value in kWh per unit (`Welche` 1) or CO2 in kg per unit (2) of a fuel, 1 to 4; empty
  /// for any other. Electricity's CO2 figure is the fifth item of `Energiedatei`, .58 if empty.
  double Heizwert(int Brennstoff, int Welche);
  /// Proposals in %, put into `WirkGK` and `Verlust`; the second also runs the first. The
  /// condensing boiler's 105 stands as proposed: it refers to the lower heating value.
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
  /// Reads the run's figures; the fields above stay as they are.
  Heizdaten heizdaten();

 private:
  static constexpr std::size_t Itemzahl = 17;
  using Items = std::array<std::string, Itemzahl>;
  Items standard() const;
  Items lies() const;
  Items aus_Feldern();
  bool schreib(const Items& items);

  Ablage& ablage_;
  const Captions& captions_;
};

}  // namespace polarkreis
