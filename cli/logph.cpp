#include <CLI/CLI.hpp>
#include <memory>

#include "ausgabe.h"
#include "cycle/logp_linien.h"
#include "konsole.h"
#include "logph_anlage.h"
#include "logph_bild.h"
#include "logph_hinweise.h"
#include "logph_json.h"
#include "projektwahl.h"
#include "reports/schaubild_svg.h"
#include "shell/text.h"
#include "sitzung.h"
#include "stoff.h"
#include "zahlen.h"
#include "zustand.h"

namespace polarkreis::cli {

namespace {

constexpr int kZeilen_hoechstens = 1'000'000;  // above any measurement

void punkte_drucken(const logp_H& form, const Einheiten& einheiten) {
  Tabelle tabelle{{"", "State", "p " + std::string(form.Druckeinheit()),
                   "t [" + std::string(einheiten.Temperatureinheit()) + "]", "h [kJ/kg]",
                   "rho [kg/m³]", "Line"},
                  {}};
  int nummer = 0;
  for (const Zustandspunkt& p : form.punkte().Punkte)
    tabelle.zeilen.push_back({std::to_string(++nummer), std::string(p.Name),
                              anzeige(einheiten.Druck(p.p)), anzeige(einheiten.Temperatur(p.t)),
                              anzeige(p.h), anzeige(p.rho), std::string(Name_von(p.Ort))});
  drucke(tabelle);
}

void bilanzen_drucken(const logp_H& form) {
  constexpr double kg_je_Stunde = 3600;
  Tabelle bilanzen{{"Balance", "in", "out", "rest", "", ""}, {}};
  Tabelle arbeit{{"Power", "spent", "ideal", "loss", "", ""}, {}};
  for (const Bilanz& b : form.bilanzen()) {
    const bool masse = b.Groesse == Bilanz::Art::Masse,
               vergleich = b.Groesse == Bilanz::Art::Arbeit;
    const double faktor = masse ? kg_je_Stunde : 1;
    const char* urteil = b.schliesst() ? "" : vergleich ? "less than ideal" : "doesn't close";
    const bool null = b.schliesst() && !vergleich;
    (vergleich ? arbeit : bilanzen)
        .zeilen.push_back({std::string(b.Bauteil), anzeige(faktor * b.zu), anzeige(faktor * b.ab),
                           null ? "0" : anzeige(faktor * b.Rest()), masse ? "kg/h" : "kW", urteil});
  }
  drucke(bilanzen);
  std::printf("\n");
  drucke(arbeit);
}

// What the diagram can't tell of the evaporator.
void ablesungen_drucken(const logp_H& form, const Einheiten& einheiten) {
  Tabelle tabelle;
  const auto zeile = [&](const char* name, double wert, std::string_view einheit) {
    if (!ist_leer(wert)) tabelle.zeilen.push_back({name, anzeige(wert), std::string(einheit)});
  };
  zeile("Enthalpy of the saturated vapour", form.hsF, "kJ/kg");
  zeile("Enthalpy behind the evaporator", form.hTF, "kJ/kg");
  zeile("Density of the saturated vapour", form.rhoSF, "kg/m³");
  zeile("Density at the compressor inlet", form.rhoTF, "kg/m³");
  zeile("Vapour content behind the valve", form.xDampf, "");
  zeile("Glide at the evaporating pressure", einheiten.Temperaturdifferenz(form.tGlide),
        einheiten.angelsaechsisch ? "°F" : "K");
  drucke(tabelle);
}

std::string punkttext(const logp_H& form, const Einheiten& einheiten) {
  const std::string grad = " " + std::string(einheiten.Temperatureinheit());
  return "t0 = " + anzeige(einheiten.Temperatur(form.t0F)) + grad +
         ", tc = " + anzeige(einheiten.Temperatur(form.tcF)) + grad + ", flows and powers for " +
         anzeige(logp_H::Q0) + " kW of cooling";
}

void drucke_fuer_leute(const logp_H& form, const Einheiten& einheiten, const std::string& was) {
  std::printf("%s, %s\n", form.Mittel_GWP().c_str(),
              std::string(Name_von(form.ergebnis().Art)).c_str());
  if (!was.empty()) std::printf("%s\n", sichtbar(was).c_str());
  std::printf("%s\n\n", punkttext(form, einheiten).c_str());
  punkte_drucken(form, einheiten);
  std::printf("\n");
  for (const Druckfigur& figur : form.figuren()) std::printf("%s\n", figur.Text().c_str());
  std::printf("\n");
  ablesungen_drucken(form, einheiten);
  std::printf("\n");
  bilanzen_drucken(form);
}

[[noreturn]] void scheitern(const Programm& p, const logp_H& form, const Einheiten& einheiten) {
  switch (form.hindernis()) {
    case Hindernis::Mittel:
      throw Abbruch(tabelle_fehlt(p));
    case Hindernis::Temperatur:
      throw Abbruch("The temperatures " + anzeige(einheiten.Temperatur(form.t0F)) + " and " +
                    anzeige(einheiten.Temperatur(form.tcF)) + " " +
                    std::string(einheiten.Temperatureinheit()) +
                    " give no cycle: the first must be the lower one, and both must lie inside "
                    "the table " +
                    p.km.z.RefFile + ".");
    case Hindernis::Fluessigkeit:
      throw Abbruch(
          "The liquid in front of the expansion valve would be colder than the evaporator. Take "
          "less subcooling (--subcooling, --ihx).");
    case Hindernis::Druck:
      throw Abbruch(
          "The pressures give no cycle: the low one must be above 0 and below the high one, the "
          "losses of the lines included.");
    case Hindernis::Economiser:
      throw Abbruch(
          "The temperatures lie too near each other for an economiser: it has nothing to cool. "
          "Leave --economiser out.");
    case Hindernis::Mitteldruck:
      throw Abbruch(
          "The intermediate pressure doesn't lie between the evaporating and the condensing "
          "pressure, or not inside the table. Give another one with --p-int or --p-m.");
    default:
      throw Abbruch(
          "No cycle comes out at this point: the tables hold no such state, or a compression "
          "comes out without power because its pressures lie too near each other, or ends above "
          "the table of R744 (200 °C). Check the temperatures, the high and the intermediate "
          "pressure, the superheat and the heat exchanger.");
  }
}

void bild_schreiben(Sitzung& sitzung, const Logph_Wuensche& w, const logp_H& form,
                    const Logp_Linien& linien, const Einheiten& einheiten, const std::string& was) {
  Ablage& ablage = sitzung.programm().ablage;
  const std::string ziel = zielpfad(w.svg);
  const std::string titel = (was.empty() ? "" : was + ": ") +
                            std::string(Name_von(form.ergebnis().Art)) + ", " +
                            punkttext(form, einheiten);
  if (!ablage.schreib_ganz(ziel, SVG_Text(logph_Bild(form, linien, einheiten, titel))))
    throw Abbruch(grund(ablage, "The diagram could not be written."));
}

// A slip of the keyboard must not cost a project.
void ziel_pruefen(const std::string& svg) {
  if (!svg.empty() && !gross(svg).ends_with(".SVG"))
    throw CLI::ValidationError("--svg", "give a file name that ends in .svg");
}

void ausfuehren(Sitzung& sitzung, const Logph_Wuensche& w) {
  ziel_pruefen(w.svg);
  Programm& p = sitzung.programm();
  const Einheiten einheiten = Einheiten::von(p.einstellungen[Einstellungen::Einheiten]);
  logp_H form(p.kreis, einheiten);
  const std::string was = logph_Anlage(sitzung, w, form);
  if (!form.Rechnen()) scheitern(p, form, einheiten);
  for (const std::string& satz : logph_Hinweise(form, p.km.z)) melde(satz);
  const Json zustand = zustand_json(p.km.z);
  const Logp_Linien linien = logp_Linien(p.km);
  // First what can fail: who reads the figures must not have to look behind them.
  if (!w.svg.empty()) bild_schreiben(sitzung, w, form, linien, einheiten, was);
  if (w.json) {
    Json json = logph_json(form);
    json["lines"] = linien_json(linien);
    json["state"] = zustand;
    drucke(json);
  } else {
    drucke_fuer_leute(form, einheiten, was);
    if (!w.svg.empty()) std::printf("\nDiagram: %s\n", zielpfad(w.svg).c_str());
  }
}

void anlage_anmelden(CLI::App& befehl, Logph_Wuensche& w) {
  befehl.add_option("--refrigerant", w.stoff, "A plant of its own in place of a file, as R134A")
      ->type_name("R");
  zahl_option(befehl, "--t0", w.t0, "Evaporating temperature, °C");
  zahl_option(befehl, "--tc", w.tc,
              "Condensing temperature, °C; transcritical R744: gas cooler outlet");
  zahl_option(befehl, "--p0", w.p0, "Evaporating pressure in place of --t0, bar absolute");
  zahl_option(befehl, "--pc", w.pc, "Condensing pressure in place of --tc, bar absolute");
  zahl_option(befehl, "--superheat", w.dT_sh, "Superheat at the evaporator, K (10)");
  zahl_option(befehl, "--t-suction", w.t_s,
              "Compressor inlet without internal heat exchanger, °C (t0 + superheat)");
  zahl_option(befehl, "--subcooling", w.dT_sc, "Subcooling, K (3); R744 has its own");
  zahl_option(befehl, "--ihx", w.dT_liquid,
              "Internal heat exchanger: what it cools the liquid by, K; 0 is none");
  zahl_option(befehl, "--p-high", w.p_hoch,
              "High pressure of R744, bar absolute (two stages: the best one; else 90)");
  zahl_option(befehl, "--pipe", w.C, "Pressure drop of the suction line, K at full load (0)");
  zahl_option(befehl, "--dp-liquid", w.dp_Fl, "Pressure drop of the liquid line, mbar (0)");
  befehl.add_option("--bauart", w.Bauart, "Compressor design, 0 to 4")->check(CLI::Range(0, 4));
  befehl.add_option("--antrieb", w.Antrieb, "Compressor drive, 0 to 3")->check(CLI::Range(0, 3));
}

void stufen_anmelden(CLI::App& befehl, Logph_Wuensche& w) {
  befehl.add_option("--stages", w.stufen, "1 or 2 stages of compression")->check(CLI::Range(1, 2));
  befehl.add_option("--economiser", w.ECO_OPT, "Economiser option, 1 to 9; 0 is none")
      ->check(CLI::Range(0, 9));
  befehl.add_flag("--parallel", w.parallel,
                  "SIM_PRO, transcritical R744: the flash gas has a compressor of its own");
  zahl_option(befehl, "--p-int", w.p_int,
              "Offset of the intermediate pressure from the low one, bar (5)");
  zahl_option(befehl, "--p-int-2", w.p_int2, "Second part of that offset, bar (0)");
  zahl_option(befehl, "--p-m", w.p_m, "Intermediate pressure of 2stage, bar absolute");
  befehl.add_flag("--second", w.zweite_Auswahl, "MonoF: the second selection of the form");
}

}  // namespace

void logph_anmelden(CLI::App& app, Sitzung& sitzung) {
  CLI::App* befehl =
      app.add_subcommand("logph", "log p-h diagram of a project, a measured row or a plant");
  auto w = std::make_shared<Logph_Wuensche>();
  befehl->add_option("file", w->datei, "Project, or measurement (default: the working project)")
      ->type_name("PROJECT.prj|FILE.fmd");
  befehl
      ->add_option("--mode", w->modus,
                   "Caller: SIM_PRO (project), DiaG (measured row), MonoF, 2stage")
      ->check(CLI::IsMember({"SIM_PRO", "DiaG", "MonoF", "2stage"}));
  befehl->add_option("--row", w->zeile, "Row of the measurement, from 1")
      ->check(CLI::Range(1, kZeilen_hoechstens).description(""));
  befehl->add_option("--options", w->optionen, "Project: JSON object with its further controls")
      ->type_name("FILE.json");
  anlage_anmelden(*befehl, *w);
  stufen_anmelden(*befehl, *w);
  befehl->add_option("--svg", w->svg, "Draw the diagram")->type_name("FILE.svg");
  messwuensche_anmelden(*befehl, *w);
  beispiel(*befehl,
           "  polarkreis-cli logph plant.prj --svg plant.svg\n"
           "  polarkreis-cli logph --refrigerant R134A --t0 -10 --tc 40 --ihx 5\n"
           "  polarkreis-cli logph --refrigerant R744 --t0 -30 --tc 35 --stages 2 --json\n"
           "  polarkreis-cli logph plant.fmd --row 12 --svg row12.svg");
  befehl->callback([&sitzung, w] { ausfuehren(sitzung, *w); });
}

}  // namespace polarkreis::cli
