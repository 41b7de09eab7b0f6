#include <CLI/CLI.hpp>
#include <memory>

#include "diagnostics/protokoll.h"
#include "messplatz.h"
#include "sitzung.h"
#include "zahlen.h"

namespace polarkreis::cli {

namespace {

struct Wuensche : Messwuensche {
  std::string datei;
  bool ja = false, nein = false;
};

Antwortweise antwort_von(const Wuensche& w) {
  if (w.ja) return Antwortweise::ja;
  return w.nein ? Antwortweise::nein : Antwortweise::fragen;
}

// Some instruments measure no pressures at all.
void leere_melden(const std::string& datei, int verworfen) {
  std::string text = "The file \"" + datei + "\" holds no measured rows";
  if (verworfen > 0)
    text += " with pressures: " + std::to_string(verworfen) +
            " without were left out. With \"Auto_corr_Check\" 0 in --settings they are taken";
  melde(text + ".");
}

void ausfuehren(Sitzung& sitzung, const Wuensche& w) {
  Messempfaenger stumm;
  Messplatz platz(sitzung, w, stumm);
  platz.dialog.antwort = antwort_von(w);
  // Only a run of measurements overwrites the working copy: read here it needs no copy beside.
  platz.diagnose.datei.Arbeitskopie.clear();
  const Messdatei::Ladung ladung = platz.laden(w.datei);
  if (ladung.abgelehnt) {
    if (!w.nein) melde("The measurement was not read. With --yes it is, however long.");
  } else {
    if (platz.diagnose.messung.Messpunkte() == 0) leere_melden(w.datei, ladung.verworfen);
    platz.auswerten();
    platz.speichern();
  }
  platz.drucken(ladung);
  if (!w.json && !ladung.abgelehnt && sitzung.status == gut)
    std::printf("\nProtocol: %s\n", platz.p.ablage.pfad(Protokolldatei).c_str());
}

}  // namespace

void diagnose_anmelden(CLI::App& app, Sitzung& sitzung) {
  CLI::App* befehl = app.add_subcommand(
      "diagnose", "Judge a measurement row by row, and leave its protocol in the data folder");
  auto w = std::make_shared<Wuensche>();
  befehl->add_option("file", w->datei, "Measurement file")->required()->type_name("FILE.fmd");
  befehl->add_option("--out", w->ausgabe, "Save the computed measurement")->type_name("FILE.fmd");
  CLI::Option* ja = befehl->add_flag("--yes", w->ja, "Read more than 1000 rows without asking");
  befehl->add_flag("--no", w->nein, "Don't read more than 1000 rows")->excludes(ja);
  messwuensche_anmelden(*befehl, *w);
  beispiel(*befehl, "  polarkreis-cli diagnose plant.fmd --settings plant.json --json");
  befehl->callback([&sitzung, w] { ausfuehren(sitzung, *w); });
}

}  // namespace polarkreis::cli
