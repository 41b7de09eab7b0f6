#include <CLI/CLI.hpp>
#include <memory>

#include "ausgabe.h"
#include "ort.h"
#include "projektwahl.h"
#include "shell/text.h"
#include "sitzung.h"
#include "zahlen.h"

namespace polarkreis::cli {

namespace {

constexpr int kFeuchte_Monat = static_cast<int>(Klimawahl::Feuchte_Monat);

struct Wuensche {
  std::string land, stadt, monat;
  int selektor = 0;
  bool json = false;
};

void drucke_liste(const std::vector<std::string>& namen, bool json) {
  if (json) return drucke(Json(namen));
  for (const std::string& name : namen) std::printf("%s\n", name.c_str());
}

void laender(Sitzung& sitzung, const Wuensche& w) {
  drucke_liste(sitzung.programm().klima.laender(), w.json);
}

void staedte(Sitzung& sitzung, const Wuensche& w) {
  Klima& klima = sitzung.programm().klima;
  land_waehlen(klima, w.land);
  drucke_liste(klima.staedte(), w.json);
}

// The humidity needs the month as the caption table spells it.
void monat_waehlen(Programm& p, const std::string& monat) {
  if (monat.empty()) return;
  std::string liste;
  for (int m = 1; m <= 12; ++m) {
    const std::string& name = p.captions.monat(m);
    if (gleich(name, monat)) p.klima.Monat_aktuell = name;
    liste += (liste.empty() ? "" : ", ") + name;
  }
  if (p.klima.Monat_aktuell.empty())
    throw Abbruch("There is no month \"" + monat + "\". The months are: " + liste + ".");
}

void wert(Sitzung& sitzung, const Wuensche& w) {
  if (w.selektor == kFeuchte_Monat && w.monat.empty())
    throw CLI::ValidationError("--month", "selector 8, the humidity of a month, needs its name");
  Programm& p = sitzung.programm();
  const std::string land = land_waehlen(p.klima, w.land);
  const std::string stadt = stadt_waehlen(p.klima, w.stadt);
  monat_waehlen(p, w.monat);
  const double zahlenwert = p.klima.Klima_Wert(stadt, w.selektor);
  if (w.json) {
    drucke(Json{
        {"Land", land}, {"Stadt", stadt}, {"selector", w.selektor}, {"value", zahl(zahlenwert)}});
    return;
  }
  if (ist_leer(zahlenwert))
    throw Abbruch("The climate table gives no figure there for " + stadt + ".");
  std::printf("%s\n", Zahl_Text(zahlenwert).c_str());
}

using Werk = void (*)(Sitzung&, const Wuensche&);

CLI::App* unterbefehl(CLI::App& app, Sitzung& sitzung, const std::shared_ptr<Wuensche>& w,
                      const std::string& name, const std::string& hilfe, Werk werk) {
  CLI::App* befehl = app.add_subcommand(name, hilfe);
  befehl->callback([&sitzung, w, werk] { werk(sitzung, *w); });
  return befehl;
}

}  // namespace

void climate_anmelden(CLI::App& app, Sitzung& sitzung) {
  CLI::App* klima = app.add_subcommand("climate", "Ask the climate tables");
  klima->require_subcommand(1);
  beispiel(*klima, "  polarkreis-cli climate cities France");
  const auto w = std::make_shared<Wuensche>();
  const char* land = "Country, as the list of countries spells it, in any case";

  CLI::App* befehl = unterbefehl(*klima, sitzung, w, "countries", "List the countries", laender);
  befehl->add_flag("--json", w->json, "Print as JSON");
  beispiel(*befehl, "  polarkreis-cli climate countries --json");

  befehl = unterbefehl(*klima, sitzung, w, "cities", "List the cities of a country", staedte);
  befehl->add_option("country", w->land, land)->required()->type_name("COUNTRY");
  befehl->add_flag("--json", w->json, "Print as JSON");
  beispiel(*befehl, "  polarkreis-cli climate cities France");

  befehl = unterbefehl(*klima, sitzung, w, "value", "One climate figure of a city", wert);
  befehl->add_option("country", w->land, land)->required()->type_name("COUNTRY");
  befehl->add_option("city", w->stadt, "City")->required()->type_name("CITY");
  befehl
      ->add_option("selector", w->selektor,
                   "1 upper summer temperature, 2 lower winter temperature, 3 difference of day "
                   "and night, 4 latitude, 5 lower summer temperature, 6 upper winter temperature, "
                   "7 height, 8 humidity of a month, 9 humidity of the lower summer temperature")
      ->required()
      ->type_name("SELECTOR")
      ->check(CLI::Range(1, 9).description(""));
  befehl->add_option("--month", w->monat, "Month for selector 8, as the texts spell it")
      ->type_name("NAME");
  befehl->add_flag("--json", w->json, "Print as JSON");
  beispiel(*befehl, "  polarkreis-cli climate value Germany Berlin 8 --month July");
}

}  // namespace polarkreis::cli
