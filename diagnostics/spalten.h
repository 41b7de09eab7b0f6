#pragma once

namespace polarkreis {

/// The columns of the measurement table. Columns that aren't named are stored, but have no meaning.
namespace Spalte {
enum Nummer : int {
  Zeilenkopf = 0,  ///< the running number of the row, not stored
  Zeit = 1,        ///< "hh:mm:ss"
  p0 = 2,          ///< low side pressure, bar gauge
  t0 = 3,
  t_Exp = 4,  ///< expansion valve bulb, end of the evaporator, °C
  t_SL = 5,   ///< suction line, °C
  pc = 6,     ///< high side pressure, bar gauge
  tc = 7,
  t_end = 8,   ///< end of compression, °C
  t_liq = 9,   ///< liquid line, °C
  dT_sh = 10,  ///< superheat, K
  dT_sc = 11,  ///< subcooling, K
  P_el = 12,   ///< electrical power of the compressor, kW
  U_L1 = 14,   ///< voltages L1 to L3, V
  U_L2 = 15,
  U_L3 = 16,
  I_L1 = 17,  ///< currents L1 to L3, A
  I_L2 = 18,
  I_L3 = 19,
  Testo_20 = 20,      ///< sinks of the second kind of Testo worksheet
  Fluss_Verd = 21,    ///< flow on the evaporator's secondary side, m³/h; also such a sink
  t_ein_Verd = 22,    ///< secondary side of the evaporator, inlet ("t in1")
  t_aus_Verd = 23,    ///< and outlet ("t out2")
  Fluss_Verfl = 25,   ///< flow on the condenser's secondary side, m³/h
  t_ein_Verfl = 26,   ///< secondary side of the condenser, inlet ("t in3")
  t_aus_Verfl = 27,   ///< and outlet ("t out4")
  Senke = 67,         ///< takes what has no column of its own
  Ausweich = 72,      ///< takes the remote bulb's place where a monitoring box is wired
  P_Phasen = 132,     ///< power of units 1 and 2 by phase, kW: 132 to 137
  EER_Anlage = 138,   ///< of the whole plant
  m_KM = 139,         ///< refrigerant mass flow, kg/h
  P_rest = 140,       ///< electrical power of the rest of the plant, kW
  EER_1 = 141,        ///< compressor's EER ...
  EER_2 = 142,        ///< ... and COP
  eta = 143,          ///< compressor efficiency, %
  Qo_COP = 144,       ///< evaporator capacity by the compressor method, kW
  P_gesamt = 145,     ///< view of the measured electrical energy, kW
  Qo_dt = 146,        ///< evaporator capacity by the secondary side, kW
  Qc_COP = 147,       ///< condenser capacity by the compressor method, kW
  Qc_dt = 148,        ///< condenser capacity by the secondary side, kW
  dp_Einheit = 152,   ///< unit 1: pressure difference, bar; 5 columns further for each unit
  P_hydr = 153,       ///< unit 1: hydraulic power, kW
  eta_Einheit = 154,  ///< unit 1: efficiency view, %
  Gespeichert = 169,  ///< the last column that files hold
  Angelegt = 170,     ///< the last column of the table
};

/// Columns of remote unit 1; those of unit i stand 20 (i - 1) further right.
enum Einheit : int {
  E_t_liq = 31,
  E_t_in1 = 32,
  E_t_in2 = 33,
  E_t_out3 = 34,
  E_t_out4 = 35,
  E_t_Exp = 36,
  E_inx7 = 37,
  E_inx8 = 38,
  E_P1 = 39,
  E_t_P1 = 40,  ///< saturation temperature of P1
  E_P2 = 41,
  E_t_P2 = 42,
  E_U_L1 = 43,
  E_I_L1 = 46,
  E_Fluss = 49,  ///< flow on the unit's secondary side, m³/h
};

/// The column of unit i (from 1).
constexpr int von(Einheit spalte, int i) {
  return spalte + 20 * (i - 1);
}
/// `dp_Einheit`, `P_hydr` or `eta_Einheit` of unit i (from 1).
constexpr int ergebnis(Nummer spalte, int i) {
  return spalte + 5 * (i - 1);
}
}  // namespace Spalte

/// What stands in a cell for a measured value that is missing or out of range.
inline constexpr const char* Kein_Messwert = "  -";

}  // namespace polarkreis
