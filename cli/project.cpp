#include "project.h"

#include <CLI/CLI.hpp>
#include <filesystem>
#include <memory>

#include "ausgabe.h"
#include "konsole.h"
#include "park.h"
#include "projektwahl.h"
#include "shell/text.h"
#include "simulation/lastprojekt.h"
#include "simulation/projladen.h"
#include "zahlen.h"

namespace polarkreis::cli {

namespace {

constexpr const char* kEndung = ".prj";
constexpr const char* kTag = "SIM_PRO";

struct Wuensche {
  std::string datei, tag = kTag, name, beschreibung, sprache;
  std::vector<std::string> setzen;
  bool json = false, alle = false, schreiben = false;
};

void gespeichert(const std::string& pfad) {
  std::printf("Saved: %s\n", pfad.c_str());
}

// The lines of a load module's file, under a heading of its own.
void lastprojekt_speichern(Sitzung& sitzung, const Wuensche& w) {
  Programm& p = sitzung.programm();
  ProjLaden browser(p.ablage, p.captions, p.dialog);
  const std::string pfad = zielpfad(w.datei);
  browser.oeffnen(Browsermodus::speichern, w.tag, Ordner_von(pfad));
  browser.Dateiname = pfad.substr(Ordner_von(pfad).size());
  browser.ProjektNam = w.name;
  browser.ProBeschr = w.beschreibung;
  if (browser.bestaetigen())
    gespeichert(browser.projektdatei());
  else
    sitzung.fehler("The project was not saved: the load file \"" + std::string(Lastdatei(w.tag)) +
                   "\" of the data folder is missing, or the target can't be written.");
}

void speichern(Sitzung& sitzung, const Wuensche& w) {
  Programm& p = sitzung.programm();
  if (ist_park(w.datei)) return park_save(sitzung, w.datei);
  if (!Lastdatei(w.tag).empty()) return lastprojekt_speichern(sitzung, w);
  if (w.tag != kTag && !Modul_mit_Park(w.tag))
    throw Abbruch("There is no module \"" + w.tag +
                  "\". The tags are SIM_PRO, AC, CR, HX, KOMP, 2STAGE, VERB, PUMP, HeatP, MonoF.");
  const std::string pfad = zielpfad(Projektdatei_Name(w.datei));
  const std::string ordner = Ordner_von(pfad);
  if (pfad.size() == ordner.size() || gleich(pfad.substr(ordner.size()), kEndung))
    throw Abbruch("\"" + w.datei + "\" names no file. Give the project a name.");
  Projektdaten& projekt = projekt_laden(sitzung, {});
  if (!w.name.empty()) projekt.ProjektNam = w.name;
  if (!w.beschreibung.empty()) projekt.ProBeschr = w.beschreibung;
  projekt.Dateiname_aktuell = pfad.substr(ordner.size());
  if (projekt.Projekt_Speichern(w.tag, ordner) && park_sichern(p.ablage, w.tag, pfad))
    gespeichert(pfad);
  else
    sitzung.fehler(grund(p.ablage, "The project could not be saved as a whole."));
}

// Load module or compressor tool: only their own part comes back to the data folder.
void modul_oeffnen(Sitzung& sitzung, const std::string& pfad, const std::string& tag) {
  Programm& p = sitzung.programm();
  const std::string_view last = Lastdatei(tag);
  if (!last.empty() && Lastprojekt_ohne_Zeilen(p.ablage, pfad))
    throw Abbruch("The project \"" + pfad + "\" holds nothing behind its heading. " +
                  std::string(last) + " of the data folder stays as it was.");
  ProjLaden browser(p.ablage, p.captions, p.dialog);
  browser.oeffnen(Browsermodus::oeffnen, tag, Ordner_von(pfad));
  browser.Dateiname = pfad.substr(Ordner_von(pfad).size());
  if (!browser.bestaetigen()) {
    sitzung.fehler("The project was not opened.");
    return;
  }
  park_beiseite_melden(browser.Park_beiseite);
  std::printf("Opened: %s (%s)\n", pfad.c_str(),
              last.empty() ? "its compressor park is VerDpark.dat of the data folder now"
                           : std::string(last).append(" of the data folder").c_str());
}

void oeffnen(Sitzung& sitzung, const Wuensche& w) {
  Programm& p = sitzung.programm();
  if (ist_park(w.datei)) return park_open(sitzung, w.datei);
  if (w.datei != kArbeitsprojekt_Zeichen) {
    const std::string pfad = projektpfad(sitzung, w.datei);
    const auto kopf = projektkopf(p.ablage, pfad);
    if (kopf && (!Lastdatei(kopf->Kennung).empty() || Modul_mit_Park(kopf->Kennung)))
      return modul_oeffnen(sitzung, pfad, kopf->Kennung);
  }
  Projektdaten& projekt = projekt_laden(sitzung, w.datei);
  if (!projekt.Arbeitsprojekt_Schreiben())
    throw Abbruch(grund(p.ablage, "The working project could not be written."));
  std::printf("Opened: %s is the working project now.\n", w.datei.c_str());
}

void loeschen(Sitzung& sitzung, const Wuensche& w) {
  Ablage& ablage = sitzung.programm().ablage;
  const std::string pfad = Projektdatei_Pfad(ablage, w.datei);
  const std::string ort = ablage.pfad(pfad);
  std::error_code fehler;
  if (!std::filesystem::is_regular_file(ort, fehler))
    throw Abbruch("There is no project file \"" + w.datei + "\".");
  if (!gross(ort).ends_with(gross(kEndung)) && !gross(ort).ends_with(gross(kParkendung)))
    throw Abbruch("\"" + w.datei + "\" is no project file (*.prj, *.VDD) and stays.");
  if (!ablage.Datei_Loeschen(pfad)) throw Abbruch(grund(ablage, "The file can't be deleted."));
  std::printf("Deleted: %s\n", ort.c_str());
}

void auflisten(Sitzung& sitzung, const Wuensche& w) {
  Ablage& ablage = sitzung.programm().ablage;
  std::error_code fehler;
  if (!std::filesystem::is_directory(w.datei, fehler))
    throw Abbruch("There is no folder \"" + w.datei + "\".");
  const std::string ordner = std::filesystem::absolute(w.datei, fehler).string() + "/";
  Json json = Json::array();
  Tabelle tabelle{{"File", "Tag", "Name", "Description"}, {}};
  for (const std::string& datei : ablage.liste(ordner, kEndung)) {
    const auto kopf = projektkopf(ablage, ordner + datei);
    if (!kopf || (!w.alle && kopf->Kennung != w.tag)) continue;
    json.push_back({{"file", datei},
                    {"tag", kopf->Kennung},
                    {"name", kopf->ProjektNam},
                    {"description", kopf->ProBeschr}});
    tabelle.zeilen.push_back({datei, kopf->Kennung, kopf->ProjektNam, kopf->ProBeschr});
  }
  for (const std::string& datei : w.alle ? parks(ablage, ordner) : std::vector<std::string>()) {
    json.push_back({{"file", datei}, {"tag", "park"}, {"name", ""}, {"description", ""}});
    tabelle.zeilen.push_back({datei, "park", "", "Compressor park"});
  }
  if (w.json)
    drucke(json);
  else
    drucke(tabelle);
}

std::vector<Aenderung> aenderungen_von(const std::vector<std::string>& texte) {
  std::vector<Aenderung> alle;
  for (const std::string& text : texte) {
    const std::size_t gleichzeichen = text.find('=');
    if (gleichzeichen == std::string::npos || gleichzeichen == 0)
      throw CLI::ValidationError("--set", "\"" + text + "\" is not of the form ITEM=VALUE");
    alle.push_back({text.substr(0, gleichzeichen), text.substr(gleichzeichen + 1)});
  }
  return alle;
}

using Werk = void (*)(Sitzung&, const Wuensche&);

struct Unterbefehl {
  const char *name, *hilfe, *argument, *beispiel;
  Werk werk;
};

constexpr Unterbefehl kUnterbefehle[] = {
    {"show", "Show a project's items and the numbers derived from them, or a compressor park",
     "FILE", "  polarkreis-cli project show plant.prj --json",
     [](Sitzung& s, const Wuensche& w) { project_show(s, w.datei, w.json); }},
    {"save", "Save the working project, or the compressor park (*.VDD), under a name", "FILE",
     "  polarkreis-cli project save plant.prj\n"
     "  polarkreis-cli project save office.prj --tag AC --name Office",
     speichern},
    {"open", "Make a file the working project, or the compressor park (*.VDD)", "FILE",
     "  polarkreis-cli project open plant.prj", oeffnen},
    {"translate", "Rewrite a project of the energy simulation in another language", "FILE",
     "  polarkreis-cli project translate plant.prj --to GER",
     [](Sitzung& s, const Wuensche& w) { project_translate(s, w.datei, w.sprache); }},
    {"derive",
     "Change items of a project of the energy simulation as its form would, and show what its "
     "numbers become",
     "FILE", "  polarkreis-cli project derive plant.prj --set KaelteM=R717 --set Q0=250 --write",
     [](Sitzung& s, const Wuensche& w) {
       project_derive(s, w.datei, aenderungen_von(w.setzen), w.schreiben, w.json);
     }},
    {"delete", "Delete a project file", "FILE", "  polarkreis-cli project delete old.prj",
     loeschen},
    {"list", "List the project files of a folder", "FOLDER",
     "  polarkreis-cli project list . --all --json", auflisten},
};

void optionen_anmelden(CLI::App& befehl, const std::string& name, Wuensche& w) {
  const bool speichert = name == "save";
  if (speichert || name == "list")
    befehl.add_option("--tag", w.tag, "Module: SIM_PRO, AC, CR, HX, KOMP ...")
        ->type_name("TAG")
        ->capture_default_str();
  if (speichert) {
    befehl.add_option("--name", w.name, "Project name in the heading")->type_name("TEXT");
    befehl.add_option("--description", w.beschreibung, "Description")->type_name("TEXT");
  }
  if (name == "list")
    befehl.add_flag("--all", w.alle, "Files of every module, and compressor parks");
  if (name == "translate")
    befehl.add_option("--to", w.sprache, "Code of the new language")->required()->type_name("CODE");
  if (name == "derive") {
    befehl
        .add_option("--set", w.setzen,
                    "A change of an item or control by its name; may be given repeatedly")
        ->type_name("ITEM=VALUE")
        ->allow_extra_args(false);
    befehl.add_flag("--write", w.schreiben, "Store the changed project");
  }
  if (name == "show" || name == "derive" || name == "list")
    befehl.add_flag("--json", w.json, "Print as JSON");
}

}  // namespace

void project_anmelden(CLI::App& app, Sitzung& sitzung) {
  CLI::App* projekt =
      app.add_subcommand("project", "Show, store, translate and change project files");
  projekt->require_subcommand(1);
  beispiel(*projekt, "  polarkreis-cli project show plant.prj");
  for (const Unterbefehl& u : kUnterbefehle) {
    CLI::App* befehl = projekt->add_subcommand(u.name, u.hilfe);
    auto w = std::make_shared<Wuensche>();
    befehl
        ->add_option(u.argument, w->datei,
                     std::string(u.argument) == "FILE"
                         ? "Project file; \"-\" is the working project"
                         : "Folder")
        ->required()
        ->type_name("");
    optionen_anmelden(*befehl, u.name, *w);
    beispiel(*befehl, u.beispiel);
    befehl->callback([&sitzung, w, werk = u.werk] { werk(sitzung, *w); });
  }
}

}  // namespace polarkreis::cli
