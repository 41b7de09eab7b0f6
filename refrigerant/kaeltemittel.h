#pragma once

#include <span>
#include <string_view>
#include <vector>

#include "refrigerant/co2_tabelle.h"
#include "refrigerant/kmzustand.h"
#include "refrigerant/sat_tabelle.h"
#include "shell/ablage.h"

namespace polarkreis {

/// One designation of the catalogue with its data. Aliases have an entry each.
struct KMEintrag {
  std::string_view name;       ///< designation in capitals
  std::string_view datei;      ///< table file, exact case
  std::string_view kanonisch;  ///< the name written back into the record, or empty
  int GWP;
  double tmin, tmax;  ///< limits of use, °C
  int zeilen;         ///< the row figure: not 0 means known
};
/// The catalogue in its printed order; aliases directly behind their main entry.
std::span<const KMEintrag> KM_Katalog();

/// Owns the one refrigerant state and gives every property of the refrigerant named in it. Nothing
/// is cached that a result could depend on: a change of `RefName` takes effect at the next call,
/// and so does an edited table.
class Kaeltemittel {
 public:
  explicit Kaeltemittel(Ablage& ablage) : ablage_(ablage) {}

  KMZustand z;

  /// From `RefName` sets `RefFile`, `GWP` and the canonical name where the catalogue has one.
  /// Returns the row figure; 0 for an unknown designation, and then nothing is set.
  int KM_Datei();
  /// Sets `tmin` and `tmax`; a designation outside the catalogue gets `tmax` 65 and keeps `tmin`.
  void KM_Grenzen();
  /// True if the designation stands in the catalogue, in any case, blanks behind it ignored.
  static bool KM_Bekannt(std::string_view name);
  /// True if the table of the current designation (for R744 both tables) has at least one readable
  /// row.
  bool KM_Tabelle_da();
  /// The rows of the current designation's table, as read; empty for an unknown designation. Valid
  /// until the next call of this object.
  const std::vector<SatZeile>& Tabellenzeilen();
  /// The superheated and supercritical states of R744, as read; valid as above.
  const std::vector<CO2Zeile>& CO2_Zeilen() { return co2_daten().zeilen; }
  /// R744 and CO2.
  bool ist_CO2() const;
  /// True if the designation has this table file: one test for all aliases. ISC_49 shares R413A's.
  bool hat_Tabelle(std::string_view datei) const;

  /// Searches the table for the key (K or bar) and fills the bracket. Mode 0 searches by
  /// temperature; 1 by dew pressure and 2 by bubble pressure, where `T` and that pressure change
  /// places in the bracket's rows; 33 only runs `KM_Datei`. A key below the first row leaves
  /// `Unten`, one above the last row leaves `Oben` of the search before.
  void Sat_Suchen(double key, int mode);
  /// The value of a column at the key, on the line through the two rows of the bracket; not finite
  /// if it fails.
  double Sat_Wert(double SatZeile::*column, double key) const {
    return Sat_Wert_f(column, Sat_f(key));
  }
  /// The key's place between the two rows: 0 at `Unten`, 1 at `Oben`, beyond outside; not finite if
  /// the rows have the same key or one is empty. One search's columns can share it.
  double Sat_f(double key) const {
    return (key - z.Klammer.Unten.T) / (z.Klammer.Oben.T - z.Klammer.Unten.T);
  }
  /// The value of a column at that place.
  double Sat_Wert_f(double SatZeile::*column, double f) const {
    return z.Klammer.Unten.*column + f * (z.Klammer.Oben.*column - z.Klammer.Unten.*column);
  }
  /// Saturation temperature in °C of an absolute pressure in bar, cut to two decimals. `mode` for a
  /// blend: 177 the mean of both lines, 187 the bubble line, 167 the dew line, any other value the
  /// temperature in K of the liquid that enters the evaporator.
  double Sat_TausP(double p, double mode);

  /// Sets viscosities, specific heats, molar mass and exponents of the record. `T_a` condensing
  /// temperature in K, `T_d` discharge temperature in K, `T_x` temperature of the third vapour
  /// viscosity in K, `t_s` compressor inlet temperature in °C; reads `T0`, `dT_sh` and `RefName`.
  void Dampf_Korrelation(double T_a, double T_d, double T_x, double t_s);
  /// Of the above the specific heats alone. With the other arguments unchanged since the last call
  /// a new `T_d` reaches nothing else.
  void Dampf_Waerme(double T_a, double T_d, double t_s);

  /// State points of R744 from "CO2_sh01.dat": `row` 1 gas cooler outlet, 2 discharge, 3 slope on
  /// the high side. `T` in K, `p` in bar absolute (not tested by row 3).
  void CO2_Tabelle(double T, double p, int row);
  /// Optimum high pressure in bar absolute for a gas cooler outlet temperature in °C; 0 below 10
  /// and above 50 °C.
  static double CO2_pOpt(double t);

  Ablage& ablage() { return ablage_; }

 private:
  // The designation's entry, or null; searched for anew only when the designation is another.
  const KMEintrag* eintrag() const;
  const SatTabelle& tabelle(const std::string& datei);
  const CO2Daten& co2_daten();
  void mangel_melden(const std::string& datei, int bruch, bool leere);
  SatTreffer suche(double key, int mode);
  double linie(double p, int mode, double SatZeile::*temperatur, double& f);
  double mit_eintritt(double p, double t_d, double t_b, double T_eintritt, double& f);

  Ablage& ablage_;
  mutable std::string gesucht_;
  mutable const KMEintrag* gefunden_ = nullptr;
  Dateikopie<SatTabelle> tabelle_;
  Dateikopie<CO2Daten> co2_;
  const std::vector<SatZeile> ohne_zeilen_;
  std::string leere_gemeldet_;  // the empty table that was told last
  const std::string co2_datei_ = "CO2_sh01.dat";
};

/// (a + b T + c T² + d T³) * 10^-3
double Poly3(double a, double b, double c, double d, double T);
/// 2.71828 ^ (a + b / T + c / T²) * 10^-3; a `T` of 0 is taken as 273.15. The base is this literal,
/// not the exact e.
double ExpVisk(double a, double b, double c, double T);
/// Specific heat in kJ/(kg K) with the refrigerant's factor k, in degrees Rankine inside.
double CpA(double k, double T);
/// The same with the third term linear in the temperature (R12, R1270, R227, HX4).
double CpA_linear(double k, double T);

}  // namespace polarkreis
