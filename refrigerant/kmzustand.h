#pragma once

#include <string>

#include "shell/wert.h"

namespace polarkreis {

/// One row of a refrigerant table. After a search by pressure the key column and `T` have changed
/// places.
struct SatZeile {
  double T = leer;    ///< saturation temperature, K
  double p_d = leer;  ///< pressure on the dew line, bar absolute
  double p_b = leer;  ///< pressure on the bubble line, bar absolute; equal to p_d for a pure fluid
  double h_l = leer;  ///< enthalpy of the saturated liquid, kJ/kg
  double h_v = leer;  ///< enthalpy of the saturated vapour, kJ/kg
  double rho_l = leer;  ///< density of the saturated liquid, kg/m³, cut to two decimals
  double rho_v = leer;  ///< density of the saturated vapour, kg/m³, cut to two decimals
};

/// The two rows that bracket the last search key; empty before the first search.
struct SatKlammer {
  SatZeile Unten;  ///< the last row whose key is below the search key
  SatZeile Oben;   ///< the first row whose key is at or above it
};

/// The refrigerant state: all values of the last calculation, one record for all routines. A value
/// is empty until a routine has first set it. Temperatures in K unless told otherwise, pressures in
/// bar absolute, enthalpies in kJ/kg, densities in kg/m³, specific heats in kJ/(kg K), viscosities
/// in Pa s, powers in kW, mass flows in kg/s.
struct KMZustand {
  std::string RefName;  ///< refrigerant designation, as the user wrote it or as the catalogue
                        ///< writes it back
  std::string RefFile;  ///< table file of the last `KM_Datei`
  double GWP = leer;    ///< global warming potential, a whole number
  double tmin = leer;   ///< limits of use, °C
  double tmax = leer;
  int SatGefunden = 0;  ///< 1 from the first row that reaches the key to the end of the search
  int SatGeladen = 0;   ///< the row figure after a search in mode 33

  double T0 = leer, Tc = leer;  ///< evaporating and condensing temperature, K
  double p0 = leer;             ///< low pressure; for a blend the mean pressure of the evaporator
  double p0_b = leer;           ///< bubble-line pressure at T0
  double pc = leer;             ///< high pressure; for a blend the mean of dew and bubble pressure
  double h_l0 = leer, h_v0 = leer;      ///< saturated liquid and vapour on the low side
  double h_lc = leer, h_vc = leer;      ///< the same on the high side
  double rho_l0 = leer, rho_v0 = leer;  ///< the same, densities
  double rho_lc = leer, rho_vc = leer;
  double rho_s = leer;  ///< vapour density at the compressor inlet
  double rho_d = leer;  ///< vapour density at the discharge
  double cp_l = leer;   ///< mean specific heat of the liquid below Tc
  double cp_d = leer, cp_v0 = leer,
         cp_s = leer;  ///< vapour: discharge, after the evaporator, compressor inlet
  double eta_v0 = leer, eta_vs = leer,
         eta_vd = leer;                 ///< vapour viscosity: at T0, at the inlet, at the discharge
  double eta_l0 = leer, eta_lc = leer;  ///< liquid viscosity at T0 and Tc
  double M = leer;                      ///< molar mass, kg/kmol
  double kappa = leer, kappa2 = leer;   ///< the two isentropic exponents
  double dpdT0 = leer;                  ///< rise of the dew pressure on the low side, bar/K
  double dpdT_ratio = leer;             ///< the same on the high side, divided by dpdT0
  double T_is = leer;     ///< reference discharge temperature of the isentropic power, K
  double h_d_co2 = leer;  ///< discharge enthalpy from the R744 table
  double dT_sh = leer;    ///< superheat at the evaporator outlet, K
  double dT_sc = leer;    ///< subcooling, K
  double t_s = leer;      ///< temperature at the compressor inlet, °C
  double Q0 = leer;       ///< cooling capacity, kW
  double m_punkt = leer;  ///< refrigerant mass flow, kg/s
  double P_verd = leer;   ///< compressor power, kW
  double eta_is = leer;   ///< isentropic efficiency of the point
  double P_hoch = 0;      ///< high pressure of transcritical R744; 0 is not set

  double p_m = leer, t_m = leer;    ///< intermediate pressure and its saturation temperature in °C
  double dp_s = leer, dp_d = leer;  ///< pressure drops of suction and discharge line, mbar
  double Q_eco = leer, m_eco = leer,
         u = leer;  ///< economiser: capacity, mass flow, subcooling in K

  int Bauart =
      0;  ///< compressor design: 0 or 1 the first entry, 2 the second, 3 "Scroll", 4 "Turbo"
  int Antrieb = 0;  ///< compressor drive: 1, 2 or 3 in the order of the selection; 0 is taken as 2
  int Zweistufig = 0;  ///< two-stage flag: 0 off, 1 on, 33 the second pass of the log p-h analysis

  SatKlammer Klammer;
};

}  // namespace polarkreis
