#pragma once

#include "simulation/projektdaten.h"

namespace polarkreis {

/// Control of compressors, fans and pumps, in the order of the selection.
enum class Regelart { keine, Drehzahl, ohne, Stufen, zwei_Drehzahlen, stetig };
Regelart Regelart_von(const Captions& captions, std::string_view text);

/// Expansion device, as far as the run tells them apart.
enum class Ventilart { thermostatisch, anderes };

/// The numbers of a project as the run works with them. The run moves `Tc`, `P_gasK` and `PumpCap`
/// from step to step and puts the user's back at its end.
struct Anlage {
  std::string Kaeltemittel;
  double Q0 = 0;                  ///< design cooling capacity, kW
  double t0 = 0;                  ///< design evaporating temperature, °C
  double Tc = 0;                  ///< condensing temperature in force, °C
  double P_gasK = 0;              ///< gas-cooler pressure in force, bar
  double dt_Verd = 0;             ///< evaporator temperature difference, K
  double dtVerfl = 0;             ///< condenser temperature difference, K
  double Lueftcap = 0;            ///< condenser fans, kW
  double PumpCap = 0;             ///< pumps, kW
  double LueftcapVerDa = 0;       ///< evaporator fans, kW
  double Pel_freeCool = 0;        ///< free-cooling set, kW
  double dt_freeC = 0;            ///< free-cooling approach, K
  double T_heat = 0, Q_heat = 0;  ///< heating: supply temperature in °C, demand in kW
  double T_enth = 0, M_enth = 0;  ///< hot water: target temperature in °C, quantity per day in kg
  double t_K_wasser = 28;         ///< cooling-water temperature, °C
  double Lamellenabstand = 4;     ///< fin spacing of the evaporator, mm

  Ableitung ableitung;
  bool CO2 = false;
  bool transkritisch = false;  ///< R744 with a design Tc above 31 °C
  bool Kaelteraum = false;     ///< one of the two cold-room applications
  int Abtauart = 0;            ///< 0 electric, 1 hot gas, 2 cold gas
  Regelart RGart = Regelart::keine, RGartL = Regelart::keine, RGartP = Regelart::keine;
  Ventilart Ventil = Ventilart::thermostatisch;
  Verfluessigerart Verfluessiger = Verfluessigerart::Luft;
  int Bauart = 0, Antrieb = 0;  ///< compressor design and drive of the refrigerant state
  double Anlagenfaktor = 1;     ///< power factor of the kind of plant
  double Bauformfaktor = 1;     ///< of the compressor construction
  double Typfaktor = 1;         ///< of the compressor type
  double Mittelfaktor = 1;      ///< of the refrigerant

  bool Winter_frei = false;  ///< no lower limit of the condensing temperature is chosen
  double tc_min = 0;         ///< the limit's number, °C; 0 without one
  double tmin_gemerkt = 0;   ///< the lowest condensing temperature that a point worked out, °C

  bool WaterCheck = false, HeizCheck = false, FreeC_Check = false, ParaL_Check = false;
  bool Check3D1 = false, Gleitopt = false;
  int ECO_OPT = 0;
  bool Economiser() const { return ECO_OPT >= 1 && ECO_OPT <= 9; }
};

/// Takes the numbers from the form's fields.
Anlage Anlage_von(const Projektdaten& projekt);

/// Temperature difference at a load in percent. Modus 1 is the evaporator side, any other the
/// condenser side; both go by the compressors' control. `t0` in °C, differences in K.
double dT_Last(const Anlage& anlage, double last_prozent, double dt_auslegung, int modus,
               double t0);

/// Evaporating temperature at a load in percent, °C: a load that needs less difference lifts it.
double t0_wirksam(const Anlage& anlage, double last_prozent);

/// Reduction of the condensing temperature `tc` [°C] in the colder season, K.
double Winter_dT(const Anlage& anlage, double tc);

}  // namespace polarkreis
