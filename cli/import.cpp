#include <CLI/CLI.hpp>
#include <array>
#include <memory>

#include "messplatz.h"
#include "sitzung.h"
#include "zahlen.h"

namespace polarkreis::cli {

namespace {

struct Wuensche : Messwuensche {
  std::string datei;
  int teil = 0;
};

/// A kind of foreign file and how it is read.
struct Importweg {
  const char* name;
  const char* hilfe;
  const char* typ;
  Importergebnis (*lies)(DiaGnostic&, const std::string& pfad, int teil);
};
constexpr std::array<Importweg, 5> kWege{{
    {"adc", "A logger's own file, from disk or memory card", "FILE.adc",
     [](DiaGnostic& d, const std::string& pfad, int teil) {
       return d.DiaG_import(pfad, I_Logger, teil);
     }},
    {"control", "A text file of a control system", "FILE.txt",
     [](DiaGnostic& d, const std::string& pfad, int) { return d.DiaG_import(pfad, I_Steuertext); }},
    {"climacheck", "A ClimaCheck worksheet", "FILE.xls|xlsx",
     [](DiaGnostic& d, const std::string& pfad, int) { return d.CC_excel_Import(pfad); }},
    {"testo-verd", "A Testo 735 worksheet of the evaporator", "FILE.xls|xlsx",
     [](DiaGnostic& d, const std::string& pfad, int) { return d.Testo_Excel_import(pfad, 1); }},
    {"testo-verfl", "A Testo 735 worksheet of the condenser", "FILE.xls|xlsx",
     [](DiaGnostic& d, const std::string& pfad, int) { return d.Testo_Excel_import(pfad, 2); }},
}};

// The command that reads the kind that the file plainly is; empty where it shows no other one.
std::string anderer_weg(Importform form) {
  struct Befehl {
    Importform form;
    const char* name;
  };
  constexpr std::array<Befehl, 4> befehle{
      {{Importform::Logger, "\"import adc\""},
       {Importform::Steuertext, "\"import control\""},
       {Importform::ClimaCheck, "\"import climacheck\""},
       {Importform::Testo, "\"import testo-verd\" or \"import testo-verfl\""}}};
  for (const Befehl& b : befehle)
    if (b.form == form)
      return "The file looks like " + std::string(Importform_Text(form)) + ": try " + b.name + ".";
  return {};
}

void ausfuehren(Sitzung& sitzung, const Wuensche& w, const Importweg& weg) {
  Messempfaenger stumm;
  Messplatz platz(sitzung, w, stumm);
  platz.einstellen();
  const Importergebnis ergebnis =
      weg.lies(platz.diagnose, messdatei_pfad(platz.p, w.datei), w.teil);
  platz.fortschritt.loeschen();
  if (const std::string rat = anderer_weg(ergebnis.eher); !rat.empty()) melde(rat);
  if (ergebnis.Teil_fehlt())
    throw Abbruch("The file \"" + w.datei + "\" is too long for one reading: it has " +
                  std::to_string(ergebnis.Teile) + " parts. Choose one with --part.");
  if (!ergebnis.grund.empty()) throw Abbruch(ergebnis.grund);
  if (!ergebnis.hinweis.empty()) melde(ergebnis.hinweis);
  platz.stoff_pruefen();
  platz.speichern();
  platz.drucken({});
}

}  // namespace

void import_anmelden(CLI::App& app, Sitzung& sitzung) {
  CLI::App* import =
      app.add_subcommand("import", "Turn a file of another instrument into a measurement");
  import->require_subcommand(1);
  beispiel(*import, "  polarkreis-cli import adc night.adc --settings plant.json --out night.fmd");
  for (const Importweg& weg : kWege) {
    CLI::App* befehl = import->add_subcommand(weg.name, weg.hilfe);
    auto w = std::make_shared<Wuensche>();
    befehl->add_option("file", w->datei, "File to import")->required()->type_name(weg.typ);
    befehl->add_option("--out", w->ausgabe, "Save the measurement")
        ->required()
        ->type_name("FILE.fmd");
    if (std::string(weg.name) == "adc")
      befehl->add_option("--part", w->teil, "Part of a file of more than 8500 lines, from 1")
          ->check(CLI::PositiveNumber)
          ->type_name("N");
    messwuensche_anmelden(*befehl, *w);
    beispiel(*befehl, std::string("  polarkreis-cli import ") + weg.name +
                          " FILE --settings plant.json --out plant.fmd");
    befehl->callback([&sitzung, w, &weg] { ausfuehren(sitzung, *w, weg); });
  }
}

}  // namespace polarkreis::cli
