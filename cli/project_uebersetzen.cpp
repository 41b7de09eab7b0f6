#include <algorithm>

#include "project.h"
#include "projektwahl.h"
#include "shell/items.h"
#include "shell/text.h"
#include "simulation/uebersetzen.h"

namespace polarkreis::cli {

namespace {

// A project file as it stands: what is behind the known items belongs to it, too.
struct Projektdatei {
  Projektkopf kopf;
  std::vector<std::string> items;
  Projektsatz satz;
};

Projektdatei zerlegt(std::string_view inhalt, bool mit_kopf) {
  Projektdatei datei;
  ItemLeser leser(inhalt);
  if (mit_kopf) datei.kopf = Projektkopf_lesen(leser);
  for (std::string item; leser.lies(item);) datei.items.push_back(item);
  const auto felder = Projektfelder();
  for (std::size_t i = 0; i < std::min(datei.items.size(), felder.size()); ++i)
    datei.satz.*felder[i].feld = datei.items[i];
  return datei;
}

std::string zusammengesetzt(const Projektdatei& datei) {
  std::string inhalt;
  const Projektkopf& kopf = datei.kopf;
  if (kopf.gelesen > 0)
    Projektkopf_anhaengen(inhalt, kopf.ProjektNam, kopf.ProBeschr, kopf.Kennung);
  const auto felder = Projektfelder();
  for (std::size_t i = 0; i < datei.items.size(); ++i)
    zeile_anhaengen(inhalt, {i < felder.size() ? datei.satz.*felder[i].feld : datei.items[i]});
  return inhalt;
}

std::string sprachcode(const std::string& text) {
  const std::string code = gross(getrimmt(text));
  const auto sprachen = Sprachen();
  return std::find(sprachen.begin(), sprachen.end(), code) == sprachen.end() ? "" : code;
}

}  // namespace

void project_translate(Sitzung& sitzung, const std::string& datei, const std::string& nach) {
  Programm& p = sitzung.programm();
  const std::string ziel = sprachcode(nach);
  if (ziel.empty()) {
    sitzung.fehler(
        "\"" + nach + "\" is no language code. The codes are three letters, as ENG or GER.",
        falscher_Aufruf);
    return;
  }
  texte_pruefen(p, ziel);
  // Loading proves that it is a project of the simulation.
  const Projektdaten& projekt = projekt_laden(sitzung, datei);
  const std::string name = projekt.Dateiname_aktuell.empty()
                               ? "Temp_Sim.dat"
                               : projekt.Projektordner + projekt.Dateiname_aktuell;
  Projektdatei inhalt = zerlegt(p.ablage.lies_ganz(name).value_or(""), !ohne_kopf(name));
  const std::string von = sprachcode(inhalt.satz.Sprache);
  if (von.empty())
    throw Abbruch("The project \"" + datei + "\" doesn't tell its language (item Sprache).");
  if (von == ziel) {
    std::printf("%s is in %s already.\n", datei.c_str(), ziel.c_str());
    return;
  }
  texte_pruefen(p, von);
  Projektsatz_uebersetzen(p.captions, inhalt.satz, von, ziel);
  if (!p.ablage.schreib_ganz(name, zusammengesetzt(inhalt)))
    throw Abbruch(grund(p.ablage, "The project could not be written."));
  std::printf("Translated: %s from %s to %s\n", datei.c_str(), von.c_str(), ziel.c_str());
}

}  // namespace polarkreis::cli
