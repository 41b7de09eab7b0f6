#include "stoff.h"

#include <algorithm>
#include <string_view>
#include <vector>

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

std::string tabelle_fehlt(const Programm& p) {
  std::vector<std::string> namen{p.km.z.RefFile};
  if (p.km.ist_CO2()) namen.emplace_back("CO2_sh01.dat");
  // Where one is absent, the other one is not to blame.
  const auto da = [&](const std::string& name) { return p.ablage.vorhanden(name); };
  if (!std::ranges::all_of(namen, da)) std::erase_if(namen, da);
  const bool mehrere = namen.size() > 1;
  return std::string("The table") + (mehrere ? "s " : " ") + namen.front() +
         (mehrere ? " and " + namen.back() + " are" : " is") +
         " missing or empty in the data folder \"" + p.ablage.Datenordner +
         "\". Put the delivered file there, or give another folder with --data.";
}

void stoff_waehlen(Programm& p, const std::string& name) {
  Kaeltemittel& km = p.km;
  km.z.RefName = name;
  if (km.KM_Datei() == 0)
    throw Abbruch(name + " " + p.captions.text(Caption::Unbekannt) +
                  "\r\nSee \"polarkreis-cli refrigerants\" for the designations.");
  // The check of R744's second table is the cycle's affair: saturation needs the first one alone.
  constexpr double unter_allem = -1;
  const bool da = p.ablage.vorhanden(km.z.RefFile);
  if (da) km.Sat_Suchen(unter_allem, 0);
  if (!da || ist_leer(km.z.Klammer.Oben.T))
    throw Abbruch(fehlertext(Fehler::Datei_fehlt) + "\r\nThe table " + km.z.RefFile +
                  " is missing or empty in the data folder \"" + p.ablage.Datenordner + "\".");
}

void grenzen_pruefen(Kaeltemittel& km, const Captions& captions, double t0, double tc) {
  km.KM_Grenzen();
  if (t0 < km.z.tmin) grenze(captions.text(Caption::Unter_tmin), "tmin", km.z.tmin);
  if (tc < t0) throw Abbruch(captions.text(Caption::Tc_unter_t0));
  if (tc > km.z.tmax) grenze(captions.text(Caption::Ueber_tmax), "tmax", km.z.tmax);
}

}  // namespace polarkreis::cli
