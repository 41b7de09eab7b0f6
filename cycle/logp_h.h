#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "cycle/kreis.h"
#include "cycle/logp_bilanz.h"
#include "cycle/logp_punkte.h"
#include "shell/einheiten.h"

namespace polarkreis {

class LogpLauf;

/// What the vapour between the two pressures of a staged plant does.
enum class Schaltung {
  einstufig,       ///< nothing lies between the pressures
  Einspritzung,    ///< economiser: its vapour is injected into the one compressor
  zweistufig,      ///< the flash gas of a tank at the intermediate pressure joins the high stage
  Flashgas_Saug,   ///< the flash gas is throttled into the suction line; one stage compresses all
  Flashgas_eigen,  ///< the flash gas has a compressor of its own
};

/// Why no cycle came out.
enum class Hindernis {
  keines,
  Mittel,        ///< the designation is unknown, or its table is missing
  Temperatur,    ///< a temperature is empty, outside the table, or t0 isn't below tc
  Druck,         ///< the low pressure isn't above 0 or not below the high one, losses included
  Mitteldruck,   ///< the intermediate pressure doesn't lie between the other two
  Fluessigkeit,  ///< the liquid would be colder than the evaporator
  Economiser,    ///< the temperatures lie too near for one
  Kreis          ///< no power comes out at this point
};

/// One figure printed beside the diagram: literal, value, unit.
struct Druckfigur {
  std::string_view Literal;  ///< such as "tend="
  std::string Wert;          ///< as it is shown; empty where a literal stands alone
  std::string_view Einheit;
  std::string Text() const;
};

/// The log p-h analysis: works a plant's cycle out state point by state point. The core of four
/// callers, told apart by `modul`: "SIM_PRO" (annual simulation), "DiaG" (a measured row), "MonoF"
/// (single-point form) and "2stage" (two-stage plant).
///
/// It goes by what `KreisPunkt` and its models give and adds suction line, internal heat exchanger,
/// economiser and intermediate pressure. Where these leave the plant open, physics settles it:
///
/// - **Subcooling.** `dT_sc` is behind the condenser. The whole that the liquid is cooled by, which
///   stands in the record, also counts the economiser's `u` and the internal heat exchanger's
///   `dT_liquid`; so suction and liquid side exchange the same heat. R744 has its own subcooling
///   behind the gas cooler (`KreisPunkt`), to which both are added.
/// - **Economiser** (option 1 to 9, `Zweistufig` 0): one compressor over the whole pressure range.
///   The second pass of `KreisPunkt` gives the evaporator's flow, to which `m_eco` comes in the
///   condenser; the power is that of `KM_Massenstrom`'s flow, which stands for both, as in the
///   annual simulation. Where the vapour meets the compression is drawn, not worked out.
/// - **Two stages** (`Zweistufig` not 0): the second pass is the low stage. The vapour that joins
///   between them is saturated (in a measured row as warm as measured) and mixes with what the low
///   stage delivers by their superheat, as in the evaluation of a measured row; a third pass is the
///   high stage. A tank separates the flash gas: its flow is that of the tank's energy balance;
///   with an economiser it is `KM_Massenstrom`'s.
/// - **Transcritical R744** takes its power from its table for any number of stages, as the annual
///   simulation does; with one compressor `Zweistufig` counts as 2. Where the end of compression
///   lies above that table (200 °C) no cycle comes out.
/// - **R744 of the annual simulation** (transcritical, no economiser) has a tank, but no second
///   stage: the flash gas goes into the suction line, or to a compressor of its own
///   (`ParaL_Check`). Then all is compressed from the low to the high pressure at once.
/// - **Intermediate pressure**: an economiser's rule wins except in "2stage". Else "MonoF" has `p0`
///   and the offset, "DiaG" what was measured or the economiser's rule, "2stage" and "SIM_PRO" what
///   was given or `p0` and the offset.
/// - **A measured row** keeps its two pressures and its end temperature; its power is the electric
///   one.
/// - **Second pass** (`Zweistufig` 33): the 200 kJ/kg move the record's reference only. Flows,
///   points and powers stay in the table's reference, because the high side's vapour isn't moved.
class logp_H {
 public:
  explicit logp_H(Kreis& kreis, Einheiten einheiten = {}) : kreis_(kreis), einheiten_(einheiten) {}

  /// --- The plant. Empty numbers have the value that is told.

  std::string modul = "MonoF";    ///< run mode of the caller
  double t0F = leer;              ///< evaporating temperature, °C
  double tcF = leer;              ///< condensing temperature, transcritical gas cooler outlet, °C
  double p0F = leer, pcF = leer;  ///< pressures of the form or measured, bar a; empty: by the table
  double dT_sh = 0;               ///< superheat at the evaporator outlet, K
  double t_s = leer;      ///< compressor inlet without internal heat exchanger, °C; t0F + dT_sh
  double dT_sc = 0;       ///< subcooling behind the condenser, K; R744 has its own
  bool Innen_WT = false;  ///< internal heat exchanger
  double dT_liquid = 0;   ///< what it cools the liquid by, K
  int ECO_OPT = 0;        ///< economiser option, 1 to 9; any other is none
  int Zweistufig = 0;     ///< see `KMZustand`
  bool Auswahl2 = false;  ///< second selection of "MonoF": a `Zweistufig` of 1 is 33 for the pass
  bool ParaL_Check = false;     ///< "SIM_PRO", R744: the flash gas has a compressor of its own
  double p_Int_Scroll = leer;   ///< offset of the intermediate pressure, bar, and ...
  double p_Int_Scroll2 = leer;  ///< ... what is added to it; a sum of 0 is 5 bar
  double p_m = leer;            ///< intermediate pressure given or measured, bar a
  double P_hoch = 0;            ///< high pressure of R744, bar a; 0: by `GC_Druck`, or 90
  double C = 0;                 ///< pressure drop of the suction line at full load, K
  double dp_Fl = 0;             ///< pressure drop of the liquid line, mbar
  int Bauart = 0, Antrieb = 0;  ///< see `KMZustand`
  /// Measured ("DiaG"), °C; below -90 a sensor is open, and none: the end of compression, and with
  /// two stages the vapour that joins between them (`Zweistufig` 1) or the inlet of the high stage.
  double t_end = leer, t_s2 = leer;

  /// R744 in two stages: these stand in place of `dT_sh`, the suction line's rise, `dT_liquid` and
  /// `P_hoch` where they are given. `tu_Scroll` is only shown: the subcooling is `KreisPunkt`'s.
  double p_GC_Scroll = leer;    ///< gas cooler pressure, bar a
  double toh_EV_Scroll = leer;  ///< superheat of the evaporator, K
  double toh_SL_Scroll = leer;  ///< rise in the suction line, K
  double tu_Scroll = leer;      ///< subcooling that goes with the gas cooler pressure, K
  double tu_WT_Scroll = leer;   ///< subcooling by the internal heat exchanger, K

  /// --- Operations

  /// The table's file name by the designation; it is for show, every search goes by the catalogue.
  std::string Tabellenname() const;
  /// R744 in two stages: the gas cooler pressure for its outlet temperature in °C. From 31 °C the
  /// optimum, below the saturation pressure, cut to whole bar; goes to `P_hoch`, `pc` of the record
  /// and `p_GC_Scroll`, and sets `tu_Scroll` below 33 °C. Nothing above 50 °C.
  void GC_Druck(double t);
  /// Works the cycle out for 10 kW, from a fresh record. False, with the reason in `hindernis` and
  /// without points and figures, where none comes out. The record is left shifted: what the
  /// internal heat exchanger changed, the intermediate state, the evaporator's flow, total power
  /// and the mean `cp_d` stand in the values of the whole pressure range.
  bool Rechnen();

  /// --- The form's readouts, cut to two decimals where they are shown

  double hsF = leer, hTF = leer;      ///< enthalpy of the saturated and the superheated vapour
  double rhoSF = leer, rhoTF = leer;  ///< density of the saturated vapour, at the compressor inlet
  double tGlide = leer;               ///< glide at the evaporating pressure, K; empty without one
  double t0_Punkt = leer;             ///< evaporating temperature of the blend in the point, °C
  double xDampf = leer;               ///< vapour content at the evaporator inlet
  double EnthDiff = leer;             ///< enthalpy difference of the evaporator, kJ/kg
  double VerdLeist_DIN = leer;        ///< capacity at the standard condition, %
  double EER_ACT = leer;              ///< EER or COP

  /// --- Results

  /// Flows in kg/s, powers in kW, all for 10 kW of cooling; temperatures in °C, enthalpies kJ/kg.
  struct Ergebnis {
    Schaltung Art = Schaltung::einstufig;
    bool transkritisch = false;
    double p0 = leer, pc = leer, p_s = leer, p_d = leer;  ///< bar a; with the lines' losses
    double t_s = leer;                                    ///< behind the internal heat exchanger
    double t_m = leer, p_m = leer;                        ///< intermediate state
    double m = leer;                                      ///< flow of the evaporator
    double m_zu = 0;                      ///< flow that joins at the intermediate pressure
    double m_hoch = leer;                 ///< flow of the condenser
    double m_Modell = leer;               ///< flow by `KM_Massenstrom`
    double h_liq = leer;                  ///< liquid behind all subcooling
    double h_l = leer;                    ///< liquid that is throttled into the evaporator
    double t_d1 = leer;                   ///< end of the low stage, or of the main compressor
    double t_d2 = leer;                   ///< end of the flash gas' own compressor
    double t_d = leer, h_d = leer;        ///< where the condenser begins
    double P_ideal_1 = 0, P_ideal_2 = 0;  ///< loss-free compression between the same pressures
    double P_1 = 0, P_2 = 0;              ///< low stage and high one, or main and flash gas
    double P = leer;                      ///< compressor power
    double eta = leer;                    ///< isentropic efficiency, of two the mean
    double Q_SL = leer;                   ///< heat that the suction line takes up
    double Qc = leer;                     ///< heat of the condenser
  };
  Hindernis hindernis() const { return hindernis_; }
  const Ergebnis& ergebnis() const { return e_; }
  const Zustandspunkte& punkte() const { return punkte_; }
  const std::vector<Bilanz>& bilanzen() const { return bilanzen_; }
  /// The figures around the diagram, each with its literal.
  const std::vector<Druckfigur>& figuren() const { return figuren_; }
  /// Unit of the absolute pressures: "[bar a]" or "[psi a]".
  std::string_view Druckeinheit() const {
    return einheiten_.angelsaechsisch ? "[psi a]" : "[bar a]";
  }
  /// Refrigerant and GWP, such as "R134A / GWP =1430".
  std::string Mittel_GWP() const;

  static constexpr double Q0 = 10;  ///< kW that flows and powers belong to

 private:
  void leeren();
  void ablesen(const LogpLauf& lauf);
  void beschriften(const LogpLauf& lauf);

  Kreis& kreis_;
  Einheiten einheiten_;
  Hindernis hindernis_ = Hindernis::keines;
  Ergebnis e_;
  Zustandspunkte punkte_;
  std::vector<Bilanz> bilanzen_;
  std::vector<Druckfigur> figuren_;
};

}  // namespace polarkreis
