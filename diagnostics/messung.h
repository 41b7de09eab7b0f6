#pragma once

#include <string>

#include "diagnostics/messtabelle.h"
#include "shell/wert.h"

namespace polarkreis {

/// Scale values of the charts, raised and lowered by the kernel. Pressures in bar absolute,
/// temperatures in °C, capacity in kW.
struct Skala {
  double Q_max = 3;
  double EER_max = 0;
  double t0_min = 500;
  double tc_max = 0;
  double t_end_max = -150;
  double p_max = 0;
  double dp_max = 0;  ///< greatest pressure difference of a unit, bar
  bool operator==(const Skala&) const = default;
};

/// One measurement: the table, and the controls of the form that belong to it, under their names.
struct Messung {
  std::string ProjektNam, ProBeschr;
  std::string KaelteM;  ///< refrigerant designation
  std::string Combo2;   ///< scan interval, such as "5s"; empty is "5s"
  std::string Combo3;   ///< plant scheme: kind, " - ", variant
  std::string Combo4;   ///< method of the mass flow, see `Mass_Art`
  std::string Combo5;   ///< length of a run, such as " 1 h", "30 min" or "oo"; empty is " 1 h"
  std::string Combo6;   ///< port in use: "COM" and its number, or "???"
  std::string Combo7;   ///< baud; empty is "9600"
  std::string RGCombo;  ///< capacity control; empty is `JMapCap::Regelung_ohne`
  int Auto_corr_Check = 1;
  int Off_line_Check = 0;
  double Hub_Volumen = 0;  ///< swept volume, m³/h
  int Bauart = 0;          ///< see `KMZustand`
  int Antrieb = 0;
  int ECO_OPT = 0;
  double Q0 = leer;          ///< capacity that stands in where none can be worked out, kW
  std::string Medium_Verd;   ///< secondary fluid of the evaporator: empty is water
  std::string Medium_Verfl;  ///< and of the condenser
  double Konz_Verd = leer;   ///< their concentrations, %
  double Konz_Verfl = leer;
  double C = 0;  ///< pressure drop figure of the suction line, K of saturation temperature

  Skala skala;
  Einheitentabelle OrbiN_spread;
  Messtabelle DiaSpread;
  Messtabelle MittelW_Spread;  ///< rows 3, 4 and 5: lowest, highest and mean of each column

  /// Number of the row count in use: the rows in use are 3 to this + 1. After a load and a run it
  /// is the number of the last filled row.
  int Mess_Zeilen = Messtabelle::Erste - 1;

  /// The last row for computing, saving and showing: the rows in use, and filled rows directly
  /// behind them.
  int letzte_Zeile() const {
    int zeile = Mess_Zeilen + 1;
    while (DiaSpread.gefuellt(zeile + 1)) ++zeile;
    return zeile;
  }
  /// Filled rows from row 3 on.
  int Messpunkte() const { return DiaSpread.letzte_gefuellte() - Messtabelle::Erste + 1; }

  /// Inserts rows and adds them to `Mess_Zeilen`: with (4, 1) the old row 3 becomes row 4, and row
  /// 3 is empty.
  void Zeile_Ein(int zeile, int anzahl);
  /// Clears the measured rows; the settings stay.
  void DiaG_loesch();
  /// Empties the table for a new measurement: rows, row count, means and scale values.
  void DiaG_zurueck_setz();
  /// The scan interval in seconds: the text less its last character, as a number.
  double Messintervall_s() const;
};

/// The rows that `Mess_Zeilen` stands for while a run goes on: a file with this count has been
/// begun, and its rows must be counted.
inline constexpr int Zeilen_unbekannt = 65459;

}  // namespace polarkreis
