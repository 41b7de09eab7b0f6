#pragma once

#include <string>

#include "cycle/verdichter.h"
#include "refrigerant/kaeltemittel.h"

namespace polarkreis {

/// The single-stage vapour compression cycle and its small plant models, all working on the one
/// refrigerant state. `KreisPunkt` must come before any other routine; the routines run strictly in
/// sequence.
class Kreis {
 public:
  explicit Kreis(Kaeltemittel& kaeltemittel) : km(kaeltemittel) {}

  Kaeltemittel& km;

  /// Run mode of the caller: "SIM_PRO", "SIM", "DiaG", "MonoF", "2stage" ...
  std::string modul = "SIM_PRO";
  /// Economiser option; 0 or above 9 is none.
  int ECO_OPT = 0;
  /// 1 and 2 raise the electric power of a measured point by 3 and 4 %.
  int Frequenz_Option = 0;
  /// Compressor power kept from row to row in the diagnostic mode, kW.
  double gespeicherte_Leistung = 0;

  /// One full set of state values from the evaporating temperature `t0`, the condensing temperature
  /// `tc` and the compressor inlet temperature `t_s`, all in °C. `dT_sc` [K] comes back changed for
  /// R744: 0 transcritical, 3 below. `t_s` and the final `dT_sc` are kept in the record; `dT_sh`
  /// and `Q0` are the caller's.
  void KreisPunkt(double t0, double tc, double t_s, double& dT_sc);

  /// Discharge temperature in K. `size` compressor power in kW, pressures in bar absolute, `T_s`
  /// inlet in K. Sets `T_is`. A part that fails counts as 0, as with `p_d` below `p_s`.
  double Verd_Endtemp(double size, double p_s, double p_d, double T_s, double kappa);

  /// The same in two steps, for several sizes at one state.
  Verdichtung Verdichtung_von(double p_s, double p_d, double T_s, double kappa) const;
  double Verd_Endtemp(const Verdichtung& verdichtung, double size);

  /// Motor factor for a compressor power in kW, at most 1.52.
  double Motor_Faktor(double size) const;

  /// Mass flow in kg/s for the capacity `Q0` in kW, with the economiser where the option is set;
  /// stored in `m_punkt`. `fallback` where it comes out 0.
  double KM_Massenstrom(double fallback, double Q0);

  /// Compressor power in kW from the energy balance. `T0`, `Tc` in K, `t_s`, `t_d` in °C, `m` in
  /// kg/s. Mode 0 works out the discharge temperature and gives the shaft power; 1 and 2 take `t_d`
  /// as measured and give the electric power. Ends at its first failing statement: the result is
  /// then not finite, and `P_verd` and `eta_is` stay.
  double Verd_Leistung(double p_s, double p_d, double T0, double Tc, double m, double dT_sh,
                       double t_s, double h_vc, double h_v0, double t_d, int mode);

  /// Expected isentropic efficiency of the compressor class. Pressures in bar absolute, line losses
  /// in mbar, size in kW; 0 for a design without a formula.
  double Verd_Wirkungsgrad(double p_d, double dp_d, double p_s, double dp_s, double size);

  /// Divisor of the discharge density, by `Antrieb`.
  double Dichte_Faktor() const;

  /// Line losses in mbar, into `dp_s` and `dp_d`: `C` is a loss in kelvin of saturation temperature
  /// at full load of the suction line, half of it on the discharge line; `L` the load ratio.
  /// Two-stage: no discharge line loss.
  void Leitungsverlust(double C, double L);
};

}  // namespace polarkreis
