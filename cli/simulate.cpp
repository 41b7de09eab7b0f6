#include <CLI/CLI.hpp>
#include <memory>

#include "ausgabe.h"
#include "ergebnis_json.h"
#include "konsole.h"
#include "optionen.h"
#include "platform/dateiwache.h"
#include "projektwahl.h"
#include "sitzung.h"
#include "zahlen.h"

namespace polarkreis::cli {

namespace {

struct Wuensche {
  std::string projekt, optionen;
  bool json = false, neuer_Kurs = false;
};

// The month table on disk, or one made for the project's place; false where that can't be written.
bool kurs_bereit(Programm& p, const Wuensche& w, Terminalfortschritt& fortschritt) {
  if (!w.neuer_Kurs && Kurs_passt(p.ablage, p.projekt)) {
    // The humidity is found by the month's name.
    if (Monatstabelle_lesen(p.ablage).monate[0].Monat != p.captions.monat(1))
      melde(
          "The annual course (JG_Temp.dat) was made in another language: its months have no "
          "humidity. --new-course makes it anew.");
    return true;
  }
  if (!Kurs_machen(p.klima, p.projekt)) {
    melde(grund(p.ablage, "The annual course (JG_Temp.dat) could not be written."));
    return false;
  }
  fortschritt.loeschen();
  melde("The annual course (JG_Temp.dat) was made for " + p.projekt.Stadt + ", " + p.projekt.Land +
        ", with the default options.");
  if (!p.klima.satz(p.projekt.Stadt))
    melde("The climate tables don't hold that city: the course counts with figures of 0.");
  return true;
}

Rechnung rechnen(Programm& p, const Wuensche& w) {
  Terminalfortschritt fortschritt;
  JahresLauf lauf({p.ablage, p.captions, p.kreis, p.klima, p.luft, p.wrg, p.dialog});
  lauf.fortschritt = &fortschritt;
  lauf.Kurs_oeffnen = [&] { return kurs_bereit(p, w, fortschritt); };
  return rechbutt(lauf, p.projekt, p.einstellungen[Einstellungen::Waehrung]);
}

void kosten_anhaengen(Tabelle& t, const Rechnung& r, const std::string& waehrung) {
  const Ergebnis& e = r.ergebnis;
  const auto zeile = [&](const std::string& name, double wert, const std::string& einheit) {
    if (!ist_leer(wert)) t.zeilen.push_back({name, Zahl_Text(wert), einheit, ""});
  };
  zeile("Energy of a year", e.kWstunden, "kWh");
  zeile("Energy cost of a year", e.BetrKo, waehrung);
  zeile("CO2 of a year", e.co2consum, "t");
  zeile("Cost per kWh of cold", e.Kaelte_P, waehrung + "/kWh");
  zeile("Money saved by heat recovery", e.WRGspar, waehrung);
  zeile("CO2 saved by heat recovery", e.WRgCO2, "t");
  zeile("Rating " + e.Bewertung, e.LeistZ, "");
  if (e.Rechart == 1) zeile("Lowest COP", r.lauf.summen.COP_min, "");
  if (e.Rechart == 1) zeile("Highest COP", r.lauf.summen.COP_max, "");
  zeile("COP at design", geschnitten(e.COP), "");
  zeile("Minimum efficiency (MEPS)", e.meps.wert, "");
}

void drucke_fuer_leute(Programm& p, const Rechnung& r) {
  const Projektdaten& f = p.projekt;
  std::printf("%s\n%s, %s kW, %s/%s °C\n", f.Rechart_combo.c_str(), f.KaelteM.c_str(), f.Q0.c_str(),
              f.t0.c_str(), f.Tc.c_str());
  if (r.ergebnis.Rechart == 1) std::printf("%s, %s\n", f.Stadt.c_str(), f.Land.c_str());
  std::printf("\n");
  Tabelle tabelle;
  if (r.ergebnis.Rechart == 1)
    for (const Ergebniszeile& z : ERG_Spread(f, r.lauf, r.ergebnis))
      tabelle.zeilen.push_back({z.bezeichnung, z.wert, z.einheit, z.anteil});
  kosten_anhaengen(tabelle, r, p.einstellungen[Einstellungen::Waehrung]);
  drucke(tabelle);
  if (!r.geschrieben) return;
  std::printf("\nReport: %s\n", p.ablage.pfad("ergEN1.DAT").c_str());
  if (r.ergebnis.Rechart == 1) std::printf("Hours: %s\n", p.ablage.pfad("ERG_TEMP.DAT").c_str());
}

void ausfuehren(Sitzung& sitzung, const Wuensche& w) {
  Programm& p = sitzung.programm();
  projekt_laden(sitzung, w.projekt);
  if (!w.optionen.empty()) optionen_lesen(w.optionen, p.projekt);
  // A run asks for its tables at each of 288 steps: the watch answers without the disk.
  p.ablage.setze_wache(Dateiwache_machen(p.ablage.Datenordner));
  const Rechnung r = rechnen(p, w);
  if (r.lauf.ende != Laufende::fertig) {
    sitzung.fehler("The run was stopped; nothing was written.");
    return;
  }
  if (w.json)
    drucke(rechnung_json(r, p.projekt));
  else
    drucke_fuer_leute(p, r);
  if (!r.geschrieben)
    sitzung.fehler(
        grund(p.ablage, "A result file (ERG_TEMP.DAT or ergEN1.DAT) could not be written to \"" +
                            p.ablage.Datenordner + "\". Check its permissions and the space."));
}

}  // namespace

void simulate_anmelden(CLI::App& app, Sitzung& sitzung) {
  CLI::App* befehl = app.add_subcommand(
      "simulate", "Run a project's calculation and leave its report and hours in the data folder");
  auto w = std::make_shared<Wuensche>();
  befehl->add_option("project", w->projekt, "Project file (default: the working project)")
      ->type_name("PROJECT.prj");
  befehl
      ->add_option("--options", w->optionen,
                   "JSON object with the controls that are no project items: HeizCheck, "
                   "FreeC_Check, ParaL_Check, Check3D1, ECO_OPT, Gleitopt, ErP_Vers, t_K_wasser, "
                   "Lamm_AB_combo, Rechart_combo")
      ->type_name("FILE.json");
  befehl->add_flag("--json", w->json, "Print every total and result as JSON");
  befehl->add_flag("--new-course", w->neuer_Kurs,
                   "Make the annual course (JG_Temp.dat) anew for the project's place");
  beispiel(*befehl,
           "  polarkreis-cli simulate \"CO2 supermarket.prj\"\n"
           "  polarkreis-cli simulate plant.prj --options controls.json --json");
  befehl->callback([&sitzung, w] { ausfuehren(sitzung, *w); });
}

}  // namespace polarkreis::cli
