#include <CLI/CLI.hpp>
#include <algorithm>
#include <memory>

#include "ausgabe.h"
#include "konsole.h"
#include "messeinstellungen.h"
#include "shell/text.h"
#include "sitzung.h"
#include "zahlen.h"

namespace polarkreis::cli {

namespace {

struct Wuensche {
  std::string name, einstellungen;
  double t = leer;
  bool json = false;
};

std::string namen(Solen& solen) {
  std::string liste;
  for (const std::string& name : solen.Namen()) liste += (liste.empty() ? "" : ", ") + name;
  return liste;
}

// A concentration that the settings give for this fluid; else the one that protects down to `t`, or
// down to what stands in for a temperature without frost: at most to the lowest of the fluid.
double konzentration(Solen& solen, const Wuensche& w, const Captions& captions) {
  Messung messung;
  Messeinstellungen(w.einstellungen).anwenden(messung, solen, captions);
  if (gleich(messung.Medium_Verd, w.name) && !ist_leer(messung.Konz_Verd)) return messung.Konz_Verd;
  if (gleich(messung.Medium_Verfl, w.name) && !ist_leer(messung.Konz_Verfl))
    return messung.Konz_Verfl;
  const double tmin = solen.Sole_Grenzen(w.name);
  const double t = solen.Frostschutz_Eingabe(w.name, Zahl_Text(w.t)).t;
  return solen.Konzentration(w.name, std::max(t, tmin));
}

void ausfuehren(Sitzung& sitzung, const Wuensche& w) {
  Programm& p = sitzung.programm();
  Solen solen(p.ablage, p.captions);
  if (!solen.bekannt(w.name))
    throw Abbruch("\"" + w.name + "\" is no secondary fluid. Choose one of: " + namen(solen) + ".");
  const double tmin = solen.Sole_Grenzen(w.name);
  if (w.t < tmin) throw Abbruch(solen.Frostschutz_Eingabe(w.name, Zahl_Text(w.t)).Meldung);
  const double c = konzentration(solen, w, p.captions);
  const double rho = solen.Dichte(w.name, w.t, c), cp = solen.Waermekapazitaet(w.name, w.t, c);
  const double gefriert = solen.Gefriertemperatur(w.name, c);
  if (w.json) {
    drucke(Json{{"tmin", zahl(tmin)},
                {"concentration", zahl(c)},
                {"freezing_point", zahl(gefriert)},
                {"density", zahl(rho)},
                {"specific_heat", zahl(cp)}});
    return;
  }
  drucke(Tabelle{{},
                 {{"Lowest temperature", anzeige(tmin), "°C"},
                  {"Concentration", anzeige(c), "%"},
                  {"First crystals at", anzeige(gefriert), "°C"},
                  {"Density", anzeige(rho), "kg/m³"},
                  {"Specific heat", anzeige(cp), "kJ/(kg K)"}}});
}

}  // namespace

void brine_anmelden(CLI::App& app, Sitzung& sitzung) {
  CLI::App* befehl = app.add_subcommand(
      "brine", "Lowest temperature, concentration, density and specific heat of a secondary fluid");
  auto w = std::make_shared<Wuensche>();
  befehl->add_option("name", w->name, "Name of the fluid, as \"Temper -20\"")
      ->required()
      ->type_name("NAME");
  zahl_option(
      *befehl, "--t", w->t,
      "Temperature, °C: the concentration protects against frost down to it, from 0 up down to "
      "-15")
      ->required();
  befehl
      ->add_option("--settings", w->einstellungen,
                   "Settings of a measurement: their concentration for this fluid counts")
      ->type_name("FILE.json");
  befehl->add_flag("--json", w->json, "Print as JSON");
  beispiel(*befehl, "  polarkreis-cli brine \"Ethylene glycol\" --t -15");
  befehl->callback([&sitzung, w] { ausfuehren(sitzung, *w); });
}

}  // namespace polarkreis::cli
