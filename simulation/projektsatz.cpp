#include "simulation/projektsatz.h"

#include <algorithm>
#include <array>

namespace polarkreis {

namespace {

constexpr std::array<Projektfeld, Projektfelder_Zahl> kFelder{{
    {"KaelteM", &Projektsatz::KaelteM},
    {"Q0", &Projektsatz::Q0},
    {"t0", &Projektsatz::t0},
    {"tambient", &Projektsatz::tambient},
    {"AnwendBereich", &Projektsatz::AnwendBereich},
    {"vdsize", &Projektsatz::vdsize},
    {"AnlGroesse", &Projektsatz::AnlGroesse},
    {"VFlsize", &Projektsatz::VFlsize},
    {"AmbientT", &Projektsatz::AmbientT},
    {"Tempbereich", &Projektsatz::Tempbereich},
    {"WartungI", &Projektsatz::WartungI},
    {"Fullzustand", &Projektsatz::Fullzustand},
    {"Leitungsdimension", &Projektsatz::Leitungsdimension},
    {"WaermeD", &Projektsatz::WaermeD},
    {"reserviert", &Projektsatz::reserviert},
    {"Verdichterbauart", &Projektsatz::Verdichterbauart},
    {"RGart", &Projektsatz::RGart},
    {"WinterRGart", &Projektsatz::WinterRGart},
    {"Land", &Projektsatz::Land},
    {"Stadt", &Projektsatz::Stadt},
    {"Rechart", &Projektsatz::Rechart},
    {"Combo1", &Projektsatz::Combo1},
    {"Sprache", &Projektsatz::Sprache},
    {"PumpCap", &Projektsatz::PumpCap},
    {"RGartP", &Projektsatz::RGartP},
    {"Lueftcap", &Projektsatz::Lueftcap},
    {"RGartL", &Projektsatz::RGartL},
    {"LueftcapVerDa", &Projektsatz::LueftcapVerDa},
    {"Abtauart", &Projektsatz::Abtauart},
    {"verdichter_typ", &Projektsatz::verdichter_typ},
    {"T_heat", &Projektsatz::T_heat},
    {"Q_heat", &Projektsatz::Q_heat},
    {"T_enth", &Projektsatz::T_enth},
    {"M_enth", &Projektsatz::M_enth},
    {"WaterCheck", &Projektsatz::WaterCheck},
    {"dt_freeC", &Projektsatz::dt_freeC},
    {"ProjektNam", &Projektsatz::ProjektNam},
    {"ProBeschr", &Projektsatz::ProBeschr},
    {"Anlagenart_Combo", &Projektsatz::Anlagenart_Combo},
    {"Tc", &Projektsatz::Tc},
    {"dtVerfl", &Projektsatz::dtVerfl},
    {"P_gasK", &Projektsatz::P_gasK},
    {"Vfl_typ", &Projektsatz::Vfl_typ},
    {"DT_v_combo", &Projektsatz::DT_v_combo},
    {"Pel_freeCool", &Projektsatz::Pel_freeCool},
    {"VERFL_Eff_combo", &Projektsatz::VERFL_Eff_combo},
}};

}  // namespace

std::span<const Projektfeld> Projektfelder() {
  return kFelder;
}

const Projektfeld* Projektfeld_finden(std::string_view name) {
  const auto feld = std::find_if(kFelder.begin(), kFelder.end(),
                                 [name](const Projektfeld& f) { return f.name == name; });
  return feld == kFelder.end() ? nullptr : &*feld;
}

Projektkopf Projektkopf_lesen(const std::function<bool(std::string& item)>& naechstes) {
  Projektkopf kopf;
  for (std::string* item : {&kopf.ProjektNam, &kopf.ProBeschr, &kopf.unbenutzt, &kopf.Kennung})
    kopf.gelesen += naechstes(*item) ? 1 : 0;
  return kopf;
}

Projektkopf Projektkopf_lesen(ItemLeser& leser) {
  return Projektkopf_lesen([&leser](std::string& item) { return leser.lies(item); });
}

void Projektkopf_anhaengen(std::string& target, std::string_view ProjektNam,
                           std::string_view ProBeschr, std::string_view Kennung) {
  zeile_anhaengen(target, {ProjektNam, ProBeschr, "", Kennung});
}

}  // namespace polarkreis
