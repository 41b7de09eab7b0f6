#pragma once

#include <functional>
#include <span>
#include <string>
#include <string_view>

#include "shell/items.h"

namespace polarkreis {

/// A project: one plant described for the energy simulation, 46 texts in file order, most of them
/// just what the user sees in a field or a selection of the form. Selections hold their visible
/// text, so a stored project is tied to its language.
struct Projektsatz {
  std::string KaelteM;            ///< refrigerant designation
  std::string Q0;                 ///< design cooling capacity, kW
  std::string t0;                 ///< design evaporating temperature, °C
  std::string tambient;           ///< design ambient temperature, °C, base of Tc
  std::string AnwendBereich;      ///< kind of application
  std::string vdsize;             ///< evaporator size class
  std::string AnlGroesse;         ///< plant size class
  std::string VFlsize;            ///< condenser size class
  std::string AmbientT;           ///< climate class, sets tambient
  std::string Tempbereich;        ///< temperature range
  std::string WartungI;           ///< state of maintenance
  std::string Fullzustand;        ///< state of refrigerant charge
  std::string Leitungsdimension;  ///< dimensioning of the lines
  std::string WaermeD;            ///< quality of the suction-line insulation
  std::string reserviert;         ///< always empty
  std::string Verdichterbauart;   ///< compressor construction
  std::string RGart;              ///< capacity control of the compressors
  std::string WinterRGart;  ///< lowest condensing temperature in winter: two digits, a blank, "°C";
                            ///< or no limit
  std::string Land;              ///< country of the climate
  std::string Stadt;             ///< city of the climate
  std::string Rechart;           ///< "0" design point, "1" a kind with an annual course
  std::string Combo1;            ///< expansion device
  std::string Sprache;           ///< language in which the project was saved
  std::string PumpCap;           ///< electric power of the pumps, kW
  std::string RGartP;            ///< control of the pumps
  std::string Lueftcap;          ///< electric power of the condenser fans, kW
  std::string RGartL;            ///< control of the fans
  std::string LueftcapVerDa;     ///< electric power of the evaporator fans, kW
  std::string Abtauart;          ///< defrost: "0" electric, "1" hot gas, "2" cold gas
  std::string verdichter_typ;    ///< compressor type
  std::string T_heat;            ///< supply temperature of the heating water, °C
  std::string Q_heat;            ///< heating demand, kW
  std::string T_enth;            ///< target temperature of the hot-water use, °C
  std::string M_enth;            ///< hot-water quantity per day, kg
  std::string WaterCheck;        ///< "1": hot-water heat recovery on
  std::string dt_freeC;          ///< free-cooling approach, K
  std::string ProjektNam;        ///< project name
  std::string ProBeschr;         ///< project description
  std::string Anlagenart_Combo;  ///< kind of plant, two captions with " - " between them
  std::string Tc;                ///< design condensing temperature, °C
  std::string dtVerfl;           ///< condenser temperature difference, K
  std::string P_gasK;            ///< gas-cooler pressure for R744, bar
  std::string Vfl_typ;           ///< condenser kind
  std::string DT_v_combo;        ///< evaporator temperature difference, K
  std::string Pel_freeCool;      ///< electric power of the free-cooling set, kW
  std::string VERFL_Eff_combo;   ///< condenser efficiency class

  bool operator==(const Projektsatz&) const = default;
};

/// One item of the list: its name and its field.
struct Projektfeld {
  std::string_view name;
  std::string Projektsatz::*feld;
};
inline constexpr int Projektfelder_Zahl = 46;
/// The items in file order; number n stands at index n - 1.
std::span<const Projektfeld> Projektfelder();
/// The item of that name, or nothing.
const Projektfeld* Projektfeld_finden(std::string_view name);

/// The heading of a project file: the four items before those of the module.
struct Projektkopf {
  static constexpr int Items = 4;
  std::string ProjektNam, ProBeschr;
  std::string unbenutzt;  ///< always written empty
  std::string Kennung;    ///< tag of the module; old files of two modules have none
  int gelesen = 0;        ///< items that were there; the others are empty
};
/// Takes the heading off what `naechstes` gives: the next item, or false and its target as it was.
Projektkopf Projektkopf_lesen(const std::function<bool(std::string& item)>& naechstes);
Projektkopf Projektkopf_lesen(ItemLeser& leser);
/// Appends the heading's line.
void Projektkopf_anhaengen(std::string& target, std::string_view ProjektNam,
                           std::string_view ProBeschr, std::string_view Kennung);

}  // namespace polarkreis
