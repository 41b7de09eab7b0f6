#include <CLI/CLI.hpp>
#include <cstdio>
#include <exception>
#include <new>
#include <string>
#include <vector>

#include "shell/captions.h"
#include "shell/dialog.h"
#include "shell/start/version.h"
#include "sitzung.h"
#include "zahlen.h"

namespace polarkreis::cli {

namespace {

void optionen_anmelden(CLI::App& app, Sitzung& sitzung) {
  std::vector<std::string> sprachen;
  for (std::string_view code : Sprachen()) sprachen.emplace_back(code);
  app.add_option("--data", sitzung.optionen.data,
                 "Data folder, used as it stands (default: the user's own)")
      ->type_name("DIR");
  app.add_option("--language", sitzung.optionen.language,
                 "Language code of texts and projects, for this call only (default: as stored)")
      ->type_name("CODE")
      ->transform(CLI::IsMember(sprachen, CLI::ignore_case).description(""));
  app.add_flag("--verbose", sitzung.optionen.verbose, "Print the message log to standard error");
}

void befehle_anmelden(CLI::App& app, Sitzung& sitzung) {
  simulate_anmelden(app, sitzung);
  point_anmelden(app, sitzung);
  fans_anmelden(app, sitzung);
  project_anmelden(app, sitzung);
  course_anmelden(app, sitzung);
  climate_anmelden(app, sitzung);
  refrigerants_anmelden(app, sitzung);
  saturation_anmelden(app, sitzung);
  cycle_anmelden(app, sitzung);
  logph_anmelden(app, sitzung);
  catalogue_anmelden(app, sitzung);
  diagnose_anmelden(app, sitzung);
  import_anmelden(app, sitzung);
  logger_anmelden(app, sitzung);
  measurement_anmelden(app, sitzung);
  monitor_anmelden(app, sitzung);
  brine_anmelden(app, sitzung);
  calc_anmelden(app, sitzung);
}

// Help and version are no errors; anything else that the parser refuses is a wrong call.
int parser_status(const CLI::App& app, const CLI::ParseError& fehler) {
  return app.exit(fehler) == 0 ? gut : falscher_Aufruf;
}

// What was printed but could not be delivered (a full disk, a closed file) is work not done.
void ausgabe_abschliessen(Sitzung& sitzung) {
  const bool geschrieben = std::fflush(stdout) == 0 && std::ferror(stdout) == 0;
  if (!geschrieben && sitzung.status == gut)
    sitzung.fehler("Standard output could not be written. Check its target and the disk's space.");
}

int ausfuehren(int argc, char** argv) {
  Sitzung sitzung(argc > 0 ? argv[0] : "");
  CLI::App app(
      "Simulates refrigeration plants and judges real ones: annual energy, state points, climate, "
      "refrigerants, measurements, remote monitoring.",
      "polarkreis-cli");
  app.fallthrough();
  app.require_subcommand(1);
  app.set_version_flag("--version", Versionszeile());
  optionen_anmelden(app, sitzung);
  beispiel(app, "  polarkreis-cli simulate plant.prj --json");
  try {
    befehle_anmelden(app, sitzung);
    app.parse(argc, argv);
  } catch (const CLI::ParseError& fehler) {
    return parser_status(app, fehler);
  } catch (const std::bad_alloc&) {
    sitzung.fehler(fehlertext(Fehler::Speicher_voll));
  } catch (const std::exception& fehler) {
    sitzung.fehler(fehler.what());
  }
  ausgabe_abschliessen(sitzung);
  return sitzung.status;
}

}  // namespace

}  // namespace polarkreis::cli

int main(int argc, char** argv) {
  return polarkreis::cli::ausfuehren(argc, argv);
}
