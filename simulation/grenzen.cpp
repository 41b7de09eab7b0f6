#include "simulation/grenzen.h"

namespace polarkreis {

std::optional<std::string> Grenzen_Text(Kaeltemittel& km, const Captions& captions,
                                        const Einheiten& einheiten, double t0, double tc) {
  const auto text = [&](Caption caption, const char* name, double grad_C) {
    return captions.text(caption) + "\r\n" + name + " = " +
           Zahl_Text(einheiten.Temperatur(grad_C)) + " " +
           std::string(einheiten.Temperatureinheit()) + " !";
  };
  km.KM_Grenzen();
  if (t0 < km.z.tmin) return text(Caption::Unter_tmin, "tmin", km.z.tmin);
  if (tc < t0) return captions.text(Caption::Tc_unter_t0);
  if (tc > km.z.tmax) return text(Caption::Ueber_tmax, "tmax", km.z.tmax);
  return std::nullopt;
}

}  // namespace polarkreis
