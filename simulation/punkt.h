#pragma once

#include <string>

#include "cycle/kreis.h"
#include "shell/dialog.h"
#include "simulation/anlage.h"
#include "simulation/parameter.h"

namespace polarkreis {

/// The figures of one state point. What a point could not work out keeps the figure of the point
/// before.
struct Punktwerte {
  double t0_eff = leer;      ///< evaporating temperature, °C
  double tc_eff = leer;      ///< condensing temperature, °C
  double dt_Winter = 0;      ///< winter offset of the condensing temperature, K
  double t_saug = leer;      ///< temperature at the compressor inlet, °C
  double superheat = leer;   ///< superheat at the evaporator outlet, K
  double subcooling = leer;  ///< subcooling, K
  double t_d = leer;         ///< discharge temperature, °C
  double t_d_flash = leer;   ///< discharge temperature of the flash-gas compressor, °C
  double Q0 = leer;          ///< cooling capacity, kW
  double P = leer;           ///< compressor power with all factors, kW
  double COP = leer;
  double m_0 = leer;                ///< mass flow of the design balance, kg/s
  double m_punkt = leer;            ///< mass flow in use, kg/s
  double Hub_Volumen = leer;        ///< swept volume, m³/h
  double rho2 = leer;               ///< suction density one kelvin of pressure drop later, kg/m³
  double eta_vol = leer;            ///< volumetric efficiency of a given displacement
  double dp_s = leer, dp_d = leer;  ///< line losses, mbar

  /// Flash tank of transcritical R744.
  double p_m = leer;       ///< flash pressure, bar
  double t_m = leer;       ///< its saturation temperature, °C
  double h_fl = leer;      ///< liquid enthalpy behind it, kJ/kg
  double rho_fl = leer;    ///< flash-gas suction density, kg/m³
  double rho_fl_l = leer;  ///< density of its liquid, kg/m³
  double Q_fl = leer;      ///< flash heat, kW
  double m_eco = 0;        ///< flash-gas flow, kg/s

  double tmin = leer;  ///< lowest condensing temperature that the expansion device allows, °C
  std::string
      WinterRGart;  ///< the text that it leaves in the selection; empty where it was not worked out
};

/// The single state point of the simulation.
class Punkt {
 public:
  Punkt(Kreis& kreis, const Captions& captions, Dialog& dialog);

  /// Works the point out from the plant as it stands. `modus` 3 is a step of the year; 0 the design
  /// pass; 2 a call without messages; 1 with them; 77 takes the capacity from the displacement
  /// `Hub_Volumen_gegeben`. `last_anteil` is the load as a fraction, `last_prozent` the same in
  /// percent (empty counts as 0).
  const Punktwerte& Punkt_Rechnen(Anlage& anlage, int modus, double last_anteil,
                                  double last_prozent);

  /// Displacement for modus 77, m³/h.
  double Hub_Volumen_gegeben = leer;

  const Punktwerte& werte() const { return w_; }
  Kreis& kreis() { return kreis_; }

 private:
  void vorbereiten(const Anlage& a, int modus, double last_prozent);
  void saugzustand(const Anlage& a);
  void hauptpunkt();
  void flashstufe(const Anlage& a);
  void winterdruck(Anlage& a, int modus);
  void verdraengung(int modus);
  void massenstrom();
  void viskositaet();
  void leistung(const Anlage& a, double last_anteil);
  double dh() const;

  Kreis& kreis_;
  const Captions& captions_;
  Dialog& dialog_;
  Punktwerte w_;
  double Q0_ = 0;  // capacity in force for this point
  double subcooling_ = 0;
  Zusatzzahlen zusatz_;
  Dateikopie<Druckdifferenzen> druckdifferenzen_;
  Dateikopie<Zusatzzahlen> zusatzwerte_;
};

}  // namespace polarkreis
