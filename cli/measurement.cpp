#include <CLI/CLI.hpp>
#include <memory>

#include "messplatz.h"
#include "platform/tabelle_xlsx.h"
#include "projektwahl.h"
#include "reports/csv.h"
#include "sitzung.h"
#include "zahlen.h"

namespace polarkreis::cli {

namespace {

struct Wuensche : Messwuensche {
  std::string datei, csv, xlsx;
  bool semikolon = false;
};

// The stored columns under their two rows of headings.
polarkreis::Tabelle tabelle_von(const Messung& messung) {
  polarkreis::Tabelle tabelle{"Measurement", {}, {}};
  for (int zeile = 1; zeile < Messtabelle::Erste; ++zeile) {
    tabelle.Kopf.emplace_back();
    for (int spalte = 1; spalte <= Spalte::Gespeichert; ++spalte)
      tabelle.Kopf.back().push_back(messung.DiaSpread.text(zeile, spalte));
  }
  for (int zeile = Messtabelle::Erste; zeile <= messung.letzte_Zeile(); ++zeile) {
    if (!messung.DiaSpread.gefuellt(zeile)) continue;
    tabelle.Zeilen.emplace_back();
    for (int spalte = 1; spalte <= Spalte::Gespeichert; ++spalte)
      tabelle.Zeilen.back().push_back(als_Tabellenzelle(messung.DiaSpread.text(zeile, spalte)));
  }
  return tabelle;
}

void schreibe(Programm& p, const std::string& name, const std::string& inhalt) {
  if (!p.ablage.schreib_ganz(zielpfad(name), inhalt))
    throw Abbruch(grund(p.ablage, "The table could not be written."));
}

void ausfuehren(Sitzung& sitzung, const Wuensche& w) {
  Messempfaenger stumm;
  Messplatz platz(sitzung, w, stumm);
  platz.laden(w.datei);
  const polarkreis::Tabelle tabelle = tabelle_von(platz.diagnose.messung);
  if (!w.csv.empty())
    schreibe(platz.p, w.csv, als_Csv(tabelle, w.semikolon ? Csv_Semikolon : Csv_Komma));
  if (!w.xlsx.empty()) {
    std::string warum;
    const std::optional<std::string> inhalt = als_Xlsx(tabelle, warum);
    if (!inhalt) throw Abbruch(warum);
    schreibe(platz.p, w.xlsx, *inhalt);
  }
  const std::string& ziel = w.csv.empty() ? w.xlsx : w.csv;
  if (w.json)
    drucke(Json{{"rows", tabelle.Zeilen.size()}, {"columns", int{Spalte::Gespeichert}}});
  else
    std::printf("Exported: %zu rows to %s\n", tabelle.Zeilen.size(), ziel.c_str());
}

}  // namespace

void measurement_anmelden(CLI::App& app, Sitzung& sitzung) {
  CLI::App* messung = app.add_subcommand("measurement", "Hand measurement files to others");
  messung->require_subcommand(1);
  CLI::App* befehl = messung->add_subcommand("export", "Write the table for a spreadsheet");
  auto w = std::make_shared<Wuensche>();
  befehl->add_option("file", w->datei, "Measurement file")->required()->type_name("FILE.fmd");
  CLI::Option_group* ziel = befehl->add_option_group("target");
  ziel->add_option("--csv", w->csv, "Comma separated values")->type_name("OUT");
  ziel->add_option("--xlsx", w->xlsx, "Worksheet")->type_name("OUT");
  ziel->require_option(1);
  befehl->add_flag("--semicolon", w->semikolon,
                   "CSV with semicolons and decimal commas, as spreadsheets with such a locale "
                   "expect");
  messwuensche_anmelden(*befehl, *w);
  beispiel(*befehl, "  polarkreis-cli measurement export plant.fmd --csv plant.csv");
  befehl->callback([&sitzung, w] { ausfuehren(sitzung, *w); });
}

}  // namespace polarkreis::cli
