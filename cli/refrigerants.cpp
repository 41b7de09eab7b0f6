#include <CLI/CLI.hpp>
#include <memory>
#include <string>
#include <vector>

#include "ausgabe.h"
#include "refrigerant/kaeltemittel.h"
#include "sitzung.h"
#include "zahlen.h"

namespace polarkreis::cli {

namespace {

/// A refrigerant with all its designations.
struct Stoff {
  const KMEintrag* eintrag;
  std::vector<std::string> andere;
};

// Designations that share a table stand together in the catalogue.
std::vector<Stoff> stoffe() {
  std::vector<Stoff> alle;
  for (const KMEintrag& eintrag : KM_Katalog()) {
    if (!alle.empty() && alle.back().eintrag->datei == eintrag.datei)
      alle.back().andere.emplace_back(eintrag.name);
    else
      alle.push_back({&eintrag, {}});
  }
  return alle;
}

std::string verbunden(const std::vector<std::string>& texte) {
  std::string alle;
  for (const std::string& text : texte) alle += (alle.empty() ? "" : ", ") + text;
  return alle;
}

void als_json(const std::vector<Stoff>& alle) {
  Json liste = Json::array();
  for (const auto& [e, andere] : alle)
    liste.push_back({{"RefName", e->name},
                     {"Aliases", andere},
                     {"RefFile", e->datei},
                     {"GWP", e->GWP},
                     {"tmin", zahl(e->tmin)},
                     {"tmax", zahl(e->tmax)}});
  drucke(liste);
}

void als_tabelle(const std::vector<Stoff>& alle) {
  Tabelle tabelle{{"Refrigerant", "Also", "Table", "GWP", "tmin [°C]", "tmax [°C]"}, {}};
  for (const auto& [e, andere] : alle)
    tabelle.zeilen.push_back({std::string(e->name), verbunden(andere), std::string(e->datei),
                              std::to_string(e->GWP), Zahl_Text(e->tmin), Zahl_Text(e->tmax)});
  drucke(tabelle);
}

}  // namespace

void refrigerants_anmelden(CLI::App& app, Sitzung&) {
  CLI::App* befehl = app.add_subcommand("refrigerants",
                                        "The catalogue of refrigerants with limits of use and GWP");
  auto json = std::make_shared<bool>(false);
  befehl->add_flag("--json", *json, "Print JSON");
  beispiel(*befehl, "  polarkreis-cli refrigerants");
  befehl->callback([json] { *json ? als_json(stoffe()) : als_tabelle(stoffe()); });
}

}  // namespace polarkreis::cli
