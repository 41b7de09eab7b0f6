#include "stoff.h"

#include <string_view>

#include "shell/dialog.h"
#include "shell/text.h"
#include "shell/wert.h"
#include "sitzung.h"

namespace polarkreis::cli {

namespace {

[[noreturn]] void grenze(const std::string& text, std::string_view name, double wert) {
  throw Abbruch(text + "\r\n" + std::string(name) + " = " + Zahl_Text(wert) + " °C !");
}

}  // namespace

void stoff_waehlen(Kaeltemittel& km, const Captions& captions, const std::string& name) {
  km.z.RefName = name;
  if (km.KM_Datei() == 0)
    throw Abbruch(name + " " + captions.text(Caption::Unbekannt) +
                  "\r\nSee \"polarkreis-cli refrigerants\" for the designations.");
  // The check of R744's second table is the cycle's affair: saturation needs the first one alone.
  constexpr double unter_allem = -1;
  km.Sat_Suchen(unter_allem, 0);
  if (ist_leer(km.z.Klammer.Oben.T))
    throw Abbruch(fehlertext(Fehler::Datei_fehlt) + "\r\nThe data folder needs the table " +
                  km.z.RefFile + ".");
}

void grenzen_pruefen(Kaeltemittel& km, const Captions& captions, double t0, double tc) {
  km.KM_Grenzen();
  if (t0 < km.z.tmin) grenze(captions.text(Caption::Unter_tmin), "tmin", km.z.tmin);
  if (tc < t0) throw Abbruch(captions.text(Caption::Tc_unter_t0));
  if (tc > km.z.tmax) grenze(captions.text(Caption::Ueber_tmax), "tmax", km.z.tmax);
}

}  // namespace polarkreis::cli
