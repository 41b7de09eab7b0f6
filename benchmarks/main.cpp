#include <benchmark/benchmark.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <fstream>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "catalogue.h"
#include "diagram.h"
#include "measurement.h"
#include "plant.h"

extern char** environ;

namespace polarkreis::bench {
namespace {

/// The sample plants with the options that their work needs.
struct Muster {
  const char* name;
  const char* datei;
  bool freie_kuehlung;
  bool heizung;
  double ziel_ms;
};
constexpr Muster muster[] = {
    {"annual run, glide blend (R448A)", "Supermarket medium temperature.prj", false, false, 2},
    {"annual run, R744 transcritical", "CO2 supermarket.prj", false, false, 1},
    {"annual run, R717 with cooling tower", "Ammonia process cooling.prj", false, false, 1},
    {"annual run, R290 with heat recovery", "Propane air conditioning.prj", false, true, 1},
    {"annual run, R134A with free cooling", "R134A chiller with free cooling.prj", true, false, 1},
};

/// Keeps the medians of what Google Benchmark measures, in milliseconds, and prints nothing of its
/// own.
class Mediane : public benchmark::BenchmarkReporter {
 public:
  bool ReportContext(const Context&) override { return true; }
  void ReportRuns(const std::vector<Run>& runs) override {
    for (const Run& run : runs) {
      if (run.aggregate_name == "median") {
        ms[run.run_name.function_name] = run.GetAdjustedRealTime() / 1e6;
      }
    }
  }
  std::map<std::string, double> ms;
};

constexpr int kZeilen = 8640;
constexpr int kProben = 50;

void messen(const std::string& name, std::function<void()> arbeit, int wiederholungen) {
  benchmark::RegisterBenchmark(name.c_str(),
                               [arbeit = std::move(arbeit)](benchmark::State& state) {
                                 for (auto _ : state) arbeit();
                               })
      ->Repetitions(wiederholungen)
      ->ReportAggregatesOnly(true)
      ->MinTime(0.05);
}

void kommandozeile_starten(const std::string& ordner) {
  static constexpr char programm[] = POLARKREIS_BIN "/polarkreis-cli";
  std::string name = programm;
  std::string option = "--data";
  std::string daten = ordner;
  std::string befehl = "saturation";
  std::string mittel = "R290";
  std::string schalter = "--t";
  std::string wert = "0";
  char* argumente[] = {name.data(),   option.data(),   daten.data(), befehl.data(),
                       mittel.data(), schalter.data(), wert.data(),  nullptr};
  posix_spawn_file_actions_t still;
  posix_spawn_file_actions_init(&still);
  posix_spawn_file_actions_addopen(&still, 1, "/dev/null", 1, 0);
  pid_t kind = 0;
  int status = 0;
  if (posix_spawn(&kind, programm, &still, nullptr, argumente, environ) == 0) {
    waitpid(kind, &status, 0);
  }
  posix_spawn_file_actions_destroy(&still);
}

/// Resident memory of this process, kB.
long speicher_kB() {
  std::ifstream statm("/proc/self/statm");
  long gesamt = 0;
  long belegt = 0;
  statm >> gesamt >> belegt;
  return belegt * sysconf(_SC_PAGESIZE) / 1024;
}

void zeile(const std::string& was, const std::string& wert, const std::string& ziel, bool gut) {
  std::printf("%-58s %16s   %-18s %s\n", was.c_str(), wert.c_str(), ziel.c_str(),
              gut ? "ok" : "MISSED");
}

std::string text(double wert, const char* einheit) {
  char puffer[64];
  std::snprintf(puffer, sizeof puffer, "%.3f %s", wert, einheit);
  return puffer;
}

bool speicher_flach(Anlagenlauf& lauf) {
  for (int i = 0; i < 500; ++i) lauf.rechnen();
  const long vorher = speicher_kB();
  for (int i = 0; i < 10000; ++i) lauf.rechnen();
  const long zuwachs = speicher_kB() - vorher;
  zeile("memory growth over 10,000 runs", std::to_string(zuwachs) + " kB", "flat (< 256 kB)",
        zuwachs < 256);
  return zuwachs < 256;
}

constexpr int kTagesproben = 17280;  // a day at 5 s

// Only the table's rows stay from a day's run.
void speicher_eines_Tages() {
  Messlauf lauf(false);
  lauf.messen(100);
  const long vorher = speicher_kB();
  lauf.messen(kTagesproben);
  const double je_Zeile = static_cast<double>(speicher_kB() - vorher) / lauf.zeilen();
  zeile("memory of a day's run at 5 s, a row", text(je_Zeile, "kB"), "<= 6.000 kB", je_Zeile <= 6);
}

bool tabelle(std::map<std::string, double>& ms) {
  bool alles = true;
  const auto pruefe = [&](const std::string& was, double wert, const char* einheit, double ziel) {
    zeile(was, text(wert, einheit), "<= " + text(ziel, einheit), wert <= ziel);
    alles = alles && wert <= ziel;
  };
  for (const Muster& m : muster) {
    pruefe(m.name, ms[m.name], "ms", m.ziel_ms);
    const std::string neu = std::string(m.name) + ", tables anew";
    const double verhaeltnis = ms[neu] / ms[m.name];
    zeile("  the same, every table parsed anew at each lookup", text(ms[neu], "ms"),
          "ratio " + text(verhaeltnis, ">= 50"), verhaeltnis >= 50);
    alles = alles && verhaeltnis >= 50;
  }
  for (const Diagrammfall& fall : Diagrammfaelle) pruefe(fall.name, ms[fall.name], "ms", 1);
  pruefe("catalogue search over 10,000 records", ms["suchen"], "ms", 50);
  pruefe("measurement: load and evaluate 8640 rows", ms["auswerten"], "ms", 500);
  pruefe("live sample (parse, kernel, append) without the sync", ms["proben"] / kProben, "ms", 2);
  zeile("  the same with the row synced to the disk", text(ms["proben auf Platte"] / kProben, "ms"),
        "shown only", true);
  pruefe("KreisPunkt, pure fluid (R134A)", ms["KreisPunkt"] * 1000, "us", 2);
  pruefe("start of the command line (saturation)", ms["start"], "ms", 20);
  return alles;
}

int laufen(int argc, char** argv) {
  // The machine's speed moves while it measures: repetitions of all take turns, so that ratios
  // hold.
  std::vector<char*> argumente(argv, argv + argc);
  std::string abwechselnd = "--benchmark_enable_random_interleaving=true";
  argumente.push_back(abwechselnd.data());
  int anzahl = static_cast<int>(argumente.size());
  benchmark::Initialize(&anzahl, argumente.data());
  Datenkopie daten;
  std::vector<std::unique_ptr<Anlagenlauf>> laeufe;
  bool gleich = true;
  for (const Muster& m : muster) {
    auto& lauf =
        *laeufe.emplace_back(std::make_unique<Anlagenlauf>(m.datei, m.freie_kuehlung, m.heizung));
    Ablage& ablage = lauf.programm().ablage;
    lauf.rechnen();
    const std::string mit_kopie = lauf.dateien();
    ablage.immer_neu_lesen = true;
    lauf.rechnen();
    ablage.immer_neu_lesen = false;
    gleich = gleich && !mit_kopie.empty() && lauf.dateien() == mit_kopie;
    messen(
        m.name, [&lauf] { benchmark::DoNotOptimize(lauf.rechnen()); }, 11);
    messen(
        std::string(m.name) + ", tables anew",
        [&lauf, &ablage] {
          ablage.immer_neu_lesen = true;
          benchmark::DoNotOptimize(lauf.rechnen());
          ablage.immer_neu_lesen = false;
        },
        3);
  }
  Programm& r134a = laeufe.back()->programm();
  r134a.km.z.RefName = "R134A";
  r134a.km.z.dT_sh = 8;
  messen(
      "KreisPunkt",
      [&r134a] {
        double dT_sc = 3;
        r134a.kreis.KreisPunkt(-10, 40, 0, dT_sc);
        benchmark::DoNotOptimize(r134a.km.z.h_v0);
      },
      11);
  Programm& diagramme = laeufe.front()->programm();
  for (const Diagrammfall& fall : Diagrammfaelle) {
    gleich = Diagramm_rechnen(diagramme, fall) > 0 && gleich;
    messen(
        fall.name,
        [&diagramme, &fall] { benchmark::DoNotOptimize(Diagramm_rechnen(diagramme, fall)); }, 11);
  }
  Katalogsuche katalog;
  gleich = katalog.alle() == Katalogsuche::Bauteilzahl && katalog.suchen() == 1 && gleich;
  messen(
      "suchen", [&katalog] { benchmark::DoNotOptimize(katalog.suchen()); }, 11);
  Messlauf auswertung(false), proben(false), gesichert(true);
  auswertung.vorbereiten(kZeilen);
  gleich = auswertung.laden_und_rechnen() == kZeilen && gleich;
  messen(
      "auswerten", [&] { benchmark::DoNotOptimize(auswertung.laden_und_rechnen()); }, 5);
  messen(
      "proben", [&] { proben.messen(kProben); }, 11);
  messen(
      "proben auf Platte", [&] { gesichert.messen(kProben); }, 3);
  messen(
      "start", [&daten] { kommandozeile_starten(daten.ordner()); }, 11);

  Mediane mediane;
  benchmark::RunSpecifiedBenchmarks(&mediane);
  std::printf("%-58s %16s   %-18s\n", "medians of one run", "measured", "wanted");
  bool gut = tabelle(mediane.ms);
  zeile("results with and without parsed copies", gleich ? "equal" : "different", "equal", gleich);
  gut = speicher_flach(*laeufe.back()) && gut && gleich;
  speicher_eines_Tages();
  benchmark::Shutdown();
  return gut ? 0 : 1;
}

}  // namespace
}  // namespace polarkreis::bench

int main(int argc, char** argv) {
  return polarkreis::bench::laufen(argc, argv);
}
