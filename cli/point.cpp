#include <CLI/CLI.hpp>
#include <memory>

#include "ausgabe.h"
#include "ergebnis_json.h"
#include "optionen.h"
#include "projektwahl.h"
#include "punktlauf.h"
#include "sitzung.h"
#include "zahlen.h"

namespace polarkreis::cli {

namespace {

constexpr int kAus_Verdraengung = 77;
constexpr double kVolllast = 1;

struct Wuensche {
  std::string projekt, optionen;
  int modus = 0;
  double volumen = leer;
  bool json = false;
};

void pruefe(const Wuensche& w) {
  const bool aus_verdraengung = w.modus == kAus_Verdraengung;
  if (aus_verdraengung && !(w.volumen > 0))
    throw CLI::ValidationError("--volume", "modus 77 needs a displacement above 0 m3/h");
  if (!aus_verdraengung && !ist_leer(w.volumen))
    throw CLI::ValidationError("--volume", "a displacement is for modus 77 only");
}

void drucke_fuer_leute(const Projektdaten& projekt, const Json& punkt) {
  struct Zeile {
    const char *name, *text, *einheit;
  };
  static constexpr Zeile kZeilen[] = {
      {"t0_eff", "Evaporating temperature", "°C"},
      {"tc_eff", "Condensing temperature", "°C"},
      {"t_saug", "Compressor inlet", "°C"},
      {"t_d", "Discharge temperature", "°C"},
      {"t_d_flash", "Discharge, flash gas", "°C"},
      {"superheat", "Superheat", "K"},
      {"subcooling", "Subcooling", "K"},
      {"p0", "Low pressure", "bar"},
      {"pc", "High pressure", "bar"},
      {"p_m", "Flash pressure", "bar"},
      {"Q0", "Cooling capacity", "kW"},
      {"P", "Compressor power", "kW"},
      {"COP", "COP", ""},
      {"m_punkt", "Mass flow", "kg/s"},
      {"m_eco", "Flash-gas flow", "kg/s"},
      {"Hub_Volumen", "Swept volume", "m³/h"},
      {"eta_vol", "Volumetric efficiency", ""},
      {"dp_s", "Suction line loss", "mbar"},
      {"dp_d", "Discharge line loss", "mbar"},
      {"tmin", "Lowest condensing temperature", "°C"},
  };
  std::printf("%s\n\n", auslegung_text(projekt).c_str());
  Tabelle tabelle;
  for (const Zeile& z : kZeilen)
    if (punkt[z.name].is_number())
      tabelle.zeilen.push_back({z.text, anzeige(punkt[z.name].get<double>()), z.einheit});
  drucke(tabelle);
  std::printf("Winter limit: %s\n", punkt["WinterRGart"].get<std::string>().c_str());
}

void ausfuehren(Sitzung& sitzung, const Wuensche& w) {
  pruefe(w);
  Programm& p = sitzung.programm();
  Projektdaten& projekt = projekt_laden(sitzung, w.projekt);
  if (!w.optionen.empty()) optionen_lesen(w.optionen, projekt);
  Punkt punkt = punkt_bereit(p, projekt, "The point was not worked out.");
  punkt.Hub_Volumen_gegeben = w.volumen;
  Anlage anlage = Anlage_von(projekt);
  const Punktwerte& werte = punkt.Punkt_Rechnen(anlage, w.modus, kVolllast, 100 * kVolllast);
  COP_verlangen(werte);
  const Json json = punkt_json(werte, p.km.z, projekt.WinterRGart);
  if (w.json)
    drucke(json);
  else
    drucke_fuer_leute(projekt, json);
}

}  // namespace

void point_anmelden(CLI::App& app, Sitzung& sitzung) {
  CLI::App* befehl = app.add_subcommand("point", "Work out one state point of a project at design");
  auto w = std::make_shared<Wuensche>();
  befehl->add_option("project", w->projekt, "Project file (default: the working project)")
      ->type_name("PROJECT.prj");
  befehl
      ->add_option("--modus", w->modus,
                   "0 design; 1 with the lowest condensing temperature, asked for; 2 the same "
                   "without messages; 77 capacity from a displacement")
      ->type_name("N")
      ->check(CLI::IsMember({0, 1, 2, 77}))
      ->capture_default_str();
  zahl_option(*befehl, "--volume", w->volumen, "Displacement for modus 77, m3/h");
  befehl->add_option("--options", w->optionen, "JSON object with the controls " + steuernamen())
      ->type_name("FILE.json");
  befehl->add_flag("--json", w->json, "Print every figure of the point as JSON");
  beispiel(*befehl,
           "  polarkreis-cli point plant.prj --json\n"
           "  polarkreis-cli point plant.prj --modus 77 --volume 120");
  befehl->callback([&sitzung, w] { ausfuehren(sitzung, *w); });
}

}  // namespace polarkreis::cli
