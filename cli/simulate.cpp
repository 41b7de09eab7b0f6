#include <CLI/CLI.hpp>
#include <algorithm>
#include <memory>

#include "ausgabe.h"
#include "ergebnis_json.h"
#include "konsole.h"
#include "optionen.h"
#include "ort.h"
#include "platform/dateiwache.h"
#include "projektwahl.h"
#include "shell/text.h"
#include "simulation/bericht.h"
#include "sitzung.h"
#include "stoff.h"
#include "zahlen.h"

namespace polarkreis::cli {

namespace {

constexpr int kStunden = 288;  // twelve months of one day

struct Wuensche {
  std::string projekt, optionen;
  bool json = false, neuer_Kurs = false, bericht = false;
};

// The month table on disk, or one made for the project's place; false where that can't be written.
bool kurs_bereit(Programm& p, const Wuensche& w, Terminalfortschritt& fortschritt) {
  if (!w.neuer_Kurs && Kurs_passt(p.ablage, p.projekt)) return true;
  if (!Kurs_machen(p.klima, p.projekt)) {
    melde(grund(p.ablage, "The annual course (JG_Temp.dat) could not be written."));
    return false;
  }
  fortschritt.loeschen();
  melde("The annual course (JG_Temp.dat) was made for " + p.projekt.Stadt + ", " + p.projekt.Land +
        ", with the default options.");
  klimaluecken_melden(p.klima, p.projekt.Stadt);
  return true;
}

Rechnung rechnen(Programm& p, const Wuensche& w) {
  Terminalfortschritt fortschritt;
  JahresLauf lauf({p.ablage, p.captions, p.kreis, p.klima, p.luft, p.wrg, p.dialog,
                   Einheiten::von(p.einstellungen[Einstellungen::Einheiten])});
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
  const auto kopfzeile = [](const std::string& text) {
    std::printf("%s\n", gekuerzt(sichtbar(text)).c_str());
  };
  kopfzeile(f.Rechart_combo);
  std::printf("%s\n", auslegung_text(f).c_str());
  if (r.ergebnis.Rechart == 1) kopfzeile(f.Stadt + ", " + f.Land);
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

// The report as the editor lays it out, for a terminal.
void drucke_bericht(Ablage& ablage) {
  constexpr std::size_t breite = 78;
  ErgebEdit editor(ablage);
  if (!editor.oeffnen()) return;
  std::size_t spalte = 0;
  for (const Berichtszeile& z : editor.zeilen)
    if (!z.wert.empty()) spalte = std::max(spalte, zeichenzahl(z.text));
  for (const Berichtszeile& z : editor.zeilen) {
    const std::string luecke(z.wert.empty() ? 0 : spalte + 1 - zeichenzahl(z.text), ' ');
    const std::string text = z.lineal ? std::string(breite, '-') : z.text + luecke + z.wert;
    std::printf("%s%s\n", z.kopf || z.lineal ? "" : "  ", sichtbar(text).c_str());
  }
}

// Controls that were stored beside the project are taken only where they are asked for.
void steuerung_erwaehnen(Programm& p) {
  const std::string& datei = p.projekt.Dateiname_aktuell;
  if (datei.empty()) return;
  const std::string neben = p.projekt.Projektordner + datei.substr(0, datei.rfind('.')) + ".json";
  if (p.ablage.vorhanden(neben))
    melde("Controls for this project stand in \"" + p.ablage.pfad(neben) +
          "\"; --options takes them.");
}

// Such an item gives no figure, nor does what is worked out from it.
std::string zu_grosse_zahlen(const Projektdaten& projekt) {
  std::string liste;
  for (const Projektfeld& f : Projektfelder())
    if (ist_leer(Wert(projekt.*f.feld)))
      liste +=
          (liste.empty() ? "" : ", ") + std::string(f.name) + " = " + gekuerzt(projekt.*f.feld);
  return liste;
}

void zahlen_pruefen(Sitzung& sitzung, const Projektdaten& projekt, const Rechnung& r) {
  const std::string liste = zu_grosse_zahlen(projekt);
  if (!liste.empty()) melde("These items of the project are no numbers: " + liste + ".");
  if (!liste.empty() && r.ergebnis.Rechart == 1 && ist_leer(r.ergebnis.SCOP))
    sitzung.fehler("No annual figure comes out with them. Correct the project.");
}

void COP_pruefen(Sitzung& sitzung, const Rechnung& r) {
  if (r.ergebnis.Rechart == 0 && !(r.lauf.auslegung.P > 0))
    sitzung.fehler("No COP comes out at the design point; --verbose tells more.");
  const int ohne = r.lauf.Stunden_ohne_COP;
  if (ohne == 0) return;
  const std::string text = std::to_string(ohne) + " of " + std::to_string(kStunden) +
                           " hours have no COP; --verbose tells more.";
  ohne == kStunden ? sitzung.fehler(text) : melde(text);
}

void ausfuehren(Sitzung& sitzung, const Wuensche& w) {
  Programm& p = sitzung.programm();
  projekt_laden(sitzung, w.projekt);
  if (w.optionen.empty())
    steuerung_erwaehnen(p);
  else
    optionen_lesen(w.optionen, p.projekt);
  // A run asks for its tables at each of 288 steps: the watch answers without the disk.
  p.ablage.setze_wache(Dateiwache_machen(p.ablage.Datenordner));
  const Rechnung r = rechnen(p, w);
  if (r.lauf.ende != Laufende::fertig) {
    if (r.lauf.ende == Laufende::Tabelle_fehlt) melde(tabelle_fehlt(p));
    sitzung.fehler("The run was stopped; nothing was written.");
    return;
  }
  if (w.json)
    drucke(rechnung_json(r, p.projekt));
  else
    drucke_fuer_leute(p, r);
  if (w.bericht && r.geschrieben) drucke_bericht(p.ablage);
  zahlen_pruefen(sitzung, p.projekt, r);
  COP_pruefen(sitzung, r);
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
                   "JSON object with the controls that are no project items: " + steuernamen())
      ->type_name("FILE.json");
  CLI::Option* json = befehl->add_flag("--json", w->json, "Print every total and result as JSON");
  befehl->add_flag("--report", w->bericht, "Print the report, too")->excludes(json);
  befehl->add_flag("--new-course", w->neuer_Kurs,
                   "Make the annual course (JG_Temp.dat) anew for the project's place");
  beispiel(*befehl,
           "  polarkreis-cli simulate \"CO2 supermarket.prj\"\n"
           "  polarkreis-cli simulate plant.prj --options controls.json --json");
  befehl->callback([&sitzung, w] { ausfuehren(sitzung, *w); });
}

}  // namespace polarkreis::cli
