#include "stoff.h"

#include <algorithm>
#include <string_view>
#include <vector>

#include "shell/dialog.h"
#include "shell/text.h"
#include "shell/wert.h"
#include "simulation/grenzen.h"
#include "sitzung.h"

namespace polarkreis::cli {

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

void grenzen_pruefen(Programm& p, double t0, double tc) {
  if (const auto text = Grenzen_Text(
          p.km, p.captions, Einheiten::von(p.einstellungen[Einstellungen::Einheiten]), t0, tc))
    throw Abbruch(*text);
}

}  // namespace polarkreis::cli
