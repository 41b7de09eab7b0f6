#include <CLI/CLI.hpp>
#include <memory>

#include "ausgabe.h"
#include "projektwahl.h"
#include "punktlauf.h"
#include "simulation/bewertung.h"
#include "sitzung.h"
#include "zahlen.h"

namespace polarkreis::cli {

namespace {

constexpr int kVerfluessiger_Klasse = 11, kVerdampfer_Klasse = 21;

struct Wuensche {
  int code = 0;
  std::string projekt, klasse, lamellen;
  bool json = false;
};

bool verfluessiger(const Wuensche& w) {
  return w.code == 11 || w.code == 12;
}

void felder_setzen(Projektdaten& projekt, const Wuensche& w) {
  if (!w.lamellen.empty()) projekt.aendern("Lamm_AB_combo", w.lamellen);
  if (w.klasse.empty()) return;
  projekt.aendern(verfluessiger(w) ? "VERFL_Eff_combo" : "VERDA_Eff_combo", w.klasse);
}

void drucke_ergebnis(const Ventilatorklasse& v, double COP, const Wuensche& w) {
  if (w.json) {
    Json json{{"code", w.code}, {"R", zahl(v.R)}, {"COP", zahl(COP)}};
    json[verfluessiger(w) ? "VERFL_Eff_combo" : "VERDA_Eff_combo"] = v.klasse;
    json[verfluessiger(w) ? "Lueftcap" : "LueftcapVerDa"] = zahl(v.leistung);
    if (!verfluessiger(w)) json["Lamm_AB_combo"] = w.lamellen;
    drucke(json);
    return;
  }
  std::printf("%s fans\n", verfluessiger(w) ? "Condenser" : "Evaporator");
  Tabelle tabelle;
  tabelle.zeilen = {{"Class", v.klasse, ""},
                    {"Power", Zahl_Text(v.leistung), "kW"},
                    {"R", anzeige(v.R), "kW/kW"}};
  drucke(tabelle);
}

void leistung_verlangen(const Projektdaten& projekt, int code) {
  if (code == kVerfluessiger_Klasse && !(Wert(projekt.Lueftcap) > 0))
    throw Abbruch("There is no fan power to judge; code 12 gives one from a class.");
  if (code == kVerdampfer_Klasse && !(Wert(projekt.LueftcapVerDa) > 0))
    throw Abbruch("There is no fan power to judge; code 22 gives one from a class.");
}

void ausfuehren(Sitzung& sitzung, Wuensche& w) {
  Programm& p = sitzung.programm();
  Projektdaten& projekt = projekt_laden(sitzung, w.projekt);
  felder_setzen(projekt, w);
  w.lamellen = projekt.Lamm_AB_combo;
  leistung_verlangen(projekt, w.code);
  Punkt punkt = punkt_bereit(p, projekt, "The fans were not judged.");
  const Ventilatorklasse v = Eff_class(punkt, projekt, w.code);
  COP_verlangen(punkt.werte());
  drucke_ergebnis(v, punkt.werte().COP, w);
}

}  // namespace

void fans_anmelden(CLI::App& app, Sitzung& sitzung) {
  CLI::App* befehl =
      app.add_subcommand("fans", "Judge a project's fans, or size them from an efficiency class");
  auto w = std::make_shared<Wuensche>();
  befehl
      ->add_option("code", w->code,
                   "11 class of the condenser fans, 12 their power from a class, 21 and 22 the "
                   "same of the evaporator")
      ->required()
      ->type_name("CODE")
      ->check(CLI::IsMember({11, 12, 21, 22}));
  befehl->add_option("project", w->projekt, "Project file (default: the working project)")
      ->type_name("PROJECT.prj");
  befehl->add_option("--class", w->klasse, "Class for codes 12 and 22: A+, A, B, C, D, E, F")
      ->type_name("X");
  befehl->add_option("--fin", w->lamellen, "Fin spacing of the evaporator, mm (default: 4)")
      ->type_name("MM")
      ->check(CLI::IsMember({"4", "7", "10", "12"}));
  befehl->add_flag("--json", w->json, "Print the figures as JSON");
  beispiel(*befehl,
           "  polarkreis-cli fans 11 plant.prj\n"
           "  polarkreis-cli fans 22 plant.prj --class A --fin 7 --json");
  befehl->callback([&sitzung, w] { ausfuehren(sitzung, *w); });
}

}  // namespace polarkreis::cli
