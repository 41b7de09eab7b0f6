#include "projektwahl.h"

#include <algorithm>
#include <filesystem>

#include "konsole.h"
#include "park.h"
#include "shell/items.h"
#include "shell/text.h"
#include "simulation/projladen.h"

namespace polarkreis::cli {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view kArbeitsprojekt = "Temp_Sim.dat";
constexpr std::string_view kTag = "SIM_PRO";
constexpr int kNummer = 1;
// Far above any project: a file beyond it is none, and is not read.
constexpr std::int64_t kGroesse_hoechstens = 16'000'000;
// Items 36 to 46 came later: a file without them is old, not damaged.
constexpr int kAlte_Items = 35;

std::string dateiname(const std::string& pfad) {
  return pfad.substr(Ordner_von(pfad).size());
}

bool ist_arbeitsprojekt(const std::string& name) {
  return name.empty() || name == kArbeitsprojekt_Zeichen;
}

Dateikopf kopf_aus(const std::string& inhalt) {
  ItemLeser leser(inhalt);
  Dateikopf kopf{Projektkopf_lesen(leser)};
  const auto enden = std::ranges::count(inhalt, '\n');
  const auto zeilen = enden + (inhalt.ends_with('\n') ? 0 : 1);
  kopf.zeilen = static_cast<std::size_t>(std::max<std::ptrdiff_t>(zeilen - 1, 0));
  return kopf;
}

// Tells where a project ends early. One without any text is none.
void items_pruefen(const std::string& inhalt, int kopfitems, const std::string& datei) {
  ItemLeser leser(inhalt);
  std::string_view item;
  for (int n = 0; n < kopfitems; ++n) leser.lies_blick(item);
  int anzahl = 0;
  bool ohne_text = true;
  for (; anzahl < Projektfelder_Zahl && leser.lies_blick(item); ++anzahl)
    ohne_text = ohne_text && getrimmt(item).empty();
  if (ohne_text) throw Abbruch(datei + " is no project: it holds no items.");
  if (anzahl < kAlte_Items)
    melde("The project holds " + std::to_string(anzahl) + " of " +
          std::to_string(Projektfelder_Zahl) +
          " items; the others are empty or take their fallbacks.");
}

void tag_pruefen(const std::string& pfad, const Dateikopf& kopf) {
  if (kopf.Kennung == kTag) return;
  const bool modul = !kopf.Kennung.empty() && kopf.Kennung.size() <= 8 &&
                     std::ranges::all_of(kopf.Kennung, [](unsigned char c) { return c > ' '; });
  throw Abbruch(modul ? "The file \"" + pfad + "\" is a project of another module (\"" +
                            kopf.Kennung + "\"), not of the energy simulation (\"SIM_PRO\")."
                      : "The file \"" + pfad +
                            "\" is no project: its heading doesn't hold the tag \"SIM_PRO\". It "
                            "may be cut off or of another kind.");
}

// A file in the form of the working project, somewhere else than in the data folder.
void ohne_kopf_laden(Projektdaten& projekt, const std::string& pfad) {
  projekt.Projekt_Lesen(pfad, kNummer, 0);
  projekt.Projektordner = Ordner_von(pfad);
  projekt.Dateiname_aktuell = dateiname(pfad);
  projekt.energie = energk_lesen(projekt.ablage, projekt.Projektordner);
  projekt.JG_fertig = false;
}

}  // namespace

std::optional<Dateikopf> projektkopf(Ablage& ablage, const std::string& pfad) {
  if (!ablage.vorhanden(pfad) || ablage.Dateigroesse(pfad) > kGroesse_hoechstens) return {};
  const std::optional<std::string> inhalt = ablage.lies_ganz(pfad);
  if (!inhalt) return {};
  return kopf_aus(*inhalt);
}

std::string projekttext(Ablage& ablage, const std::string& pfad, const std::string& datei) {
  if (ablage.Dateigroesse(pfad) > kGroesse_hoechstens)
    throw Abbruch(datei + " is too large to be a project.");
  const std::optional<std::string> inhalt = ablage.lies_ganz(pfad);
  if (!inhalt) throw Abbruch(datei + " can't be read. Check its permissions.");
  if (inhalt->find('\0') != std::string::npos)
    throw Abbruch(datei + " is no project: it holds binary data.");
  return *inhalt;
}

std::string projektpfad(Sitzung& sitzung, const std::string& name) {
  Ablage& ablage = sitzung.programm().ablage;
  std::string pfad = Projektdatei_Pfad(ablage, name);
  const std::string ort = ablage.pfad(pfad);
  std::error_code fehler;
  if (fs::is_directory(name, fehler) || fs::is_directory(ort, fehler))
    throw Abbruch("\"" + name + "\" is a folder. Give the project file in it.");
  if (!fs::exists(ort, fehler))
    throw Abbruch("There is no file \"" + name +
                  "\". A name without a folder is sought in the current folder and in the data "
                  "folder \"" +
                  ablage.Datenordner + "\".");
  if (!fs::is_regular_file(ort, fehler)) throw Abbruch("\"" + name + "\" is no file.");
  const std::int64_t groesse = ablage.Dateigroesse(pfad);
  if (groesse == 0) throw Abbruch("The file \"" + name + "\" is empty: there is no project in it.");
  if (groesse > kGroesse_hoechstens)
    throw Abbruch("The file \"" + name + "\" is too large to be a project.");
  return pfad;
}

std::string zielpfad(const std::string& name) {
  return name.find_first_of("/\\") == std::string::npos ? "./" + name : name;
}

bool ohne_kopf(const std::string& pfad) {
  return gleich(dateiname(pfad), kArbeitsprojekt);
}

void texte_pruefen(Programm& p, const std::string& sprache) {
  for (const char* stamm : {"JMapCap", "heatcap", "PEDcap", "Caption", "SoleCapt", "AirCoCap"})
    if (!p.ablage.vorhanden(std::string(stamm) + "." + sprache))
      throw Abbruch("The texts \"" + std::string(stamm) + "." + sprache +
                    "\" are not in the data folder \"" + p.ablage.Datenordner +
                    "\". Give another one with --data, or another language with --language.");
}

Projektdaten& projekt_laden(Sitzung& sitzung, const std::string& name) {
  Programm& p = sitzung.programm();
  texte_pruefen(p, p.captions.Sprache);
  if (ist_arbeitsprojekt(name)) {
    if (!p.ablage.vorhanden(kArbeitsprojekt))
      throw Abbruch("There is no working project (Temp_Sim.dat) in the data folder \"" +
                    p.ablage.Datenordner + "\". Name a project file.");
    const std::string datei = "The working project (Temp_Sim.dat)";
    items_pruefen(projekttext(p.ablage, std::string(kArbeitsprojekt), datei), 0, datei);
    p.projekt.Arbeitsprojekt_Lesen();
    p.projekt.Dateiname_aktuell.clear();
    return p.projekt;
  }
  const std::string pfad = projektpfad(sitzung, name);
  const std::string datei = "The file \"" + name + "\"";
  if (ist_park(name))
    throw Abbruch(datei + " is a compressor park, not a project of the energy simulation.");
  const std::string inhalt = projekttext(p.ablage, pfad, datei);
  if (ohne_kopf(pfad)) {
    items_pruefen(inhalt, 0, datei);
    ohne_kopf_laden(p.projekt, pfad);
    return p.projekt;
  }
  tag_pruefen(pfad, kopf_aus(inhalt));
  items_pruefen(inhalt, Projektkopf::Items, datei);
  if (!p.projekt.Projekt_Oeffnen(kTag, pfad))
    throw Abbruch("The project \"" + name + "\" can't be read.");
  return p.projekt;
}

std::string auslegung_text(const Projektdaten& projekt) {
  const auto kurz = [](const std::string& text) { return gekuerzt(sichtbar(text)); };
  return kurz(projekt.KaelteM) + ", " + kurz(projekt.Q0) + " kW, " + kurz(projekt.t0) + "/" +
         kurz(projekt.Tc) + " °C";
}

void projekt_zuruecklegen(Projektdaten& projekt) {
  const std::string pfad = projekt.Projektordner + projekt.Dateiname_aktuell;
  const bool gespeichert = projekt.Dateiname_aktuell.empty() ? projekt.Arbeitsprojekt_Schreiben()
                           : ohne_kopf(pfad)
                               ? projekt.Projekt_Schreiben(pfad, kNummer, 0)
                               : projekt.Projekt_Speichern(kTag, projekt.Projektordner);
  if (!gespeichert) throw Abbruch(grund(projekt.ablage, "The project could not be written."));
}

std::string grund(const Ablage& ablage, const std::string& sonst) {
  return ablage.letzter_fehler().empty() ? sonst : ablage.letzter_fehler();
}

}  // namespace polarkreis::cli
