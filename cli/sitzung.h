#pragma once

#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>

#include "shell/start/programm.h"

namespace CLI {
class App;
}

namespace polarkreis::cli {

/// Exit status of a command.
inline constexpr int gut = 0;
inline constexpr int misslungen =
    1;  ///< the work could not be done; standard error says why and what to do
inline constexpr int falscher_Aufruf = 2;

/// Work that can't be done at all; its text says why and what to do. `main` tells it and ends with
/// `misslungen`.
struct Abbruch : std::runtime_error {
  using std::runtime_error::runtime_error;
};

/// The options before the command.
struct Optionen {
  std::string data;
  std::string language;
  bool verbose = false;
};

/// One call of the command line: the options, and the program, which is started when a command
/// first asks for it.
class Sitzung {
 public:
  explicit Sitzung(std::string programmpfad);
  ~Sitzung();

  Optionen optionen;
  /// What the call ends with; a command sets it.
  int status = gut;

  /// The started program: data folder, settings and captions. Throws `Abbruch` where there is no
  /// data folder.
  Programm& programm();
  /// Says on standard error why the work could not be done and what to do, and sets the status.
  void fehler(std::string_view text, int status_neu = misslungen);

 private:
  struct Innen;
  std::unique_ptr<Innen> innen_;
};

/// Each adds its commands to the parser.
void simulate_anmelden(CLI::App& app, Sitzung& sitzung);
void point_anmelden(CLI::App& app, Sitzung& sitzung);
void fans_anmelden(CLI::App& app, Sitzung& sitzung);
void project_anmelden(CLI::App& app, Sitzung& sitzung);
void course_anmelden(CLI::App& app, Sitzung& sitzung);
void climate_anmelden(CLI::App& app, Sitzung& sitzung);
void refrigerants_anmelden(CLI::App& app, Sitzung& sitzung);
void saturation_anmelden(CLI::App& app, Sitzung& sitzung);
void cycle_anmelden(CLI::App& app, Sitzung& sitzung);
void logph_anmelden(CLI::App& app, Sitzung& sitzung);
void catalogue_anmelden(CLI::App& app, Sitzung& sitzung);
void diagnose_anmelden(CLI::App& app, Sitzung& sitzung);
void import_anmelden(CLI::App& app, Sitzung& sitzung);
void logger_anmelden(CLI::App& app, Sitzung& sitzung);
void measurement_anmelden(CLI::App& app, Sitzung& sitzung);
void monitor_anmelden(CLI::App& app, Sitzung& sitzung);
void brine_anmelden(CLI::App& app, Sitzung& sitzung);
void calc_anmelden(CLI::App& app, Sitzung& sitzung);

}  // namespace polarkreis::cli
