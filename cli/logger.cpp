#include <CLI/CLI.hpp>
#include <algorithm>
#include <charconv>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "loggerlauf.h"
#include "messplatz.h"
#include "messung_json.h"
#include "projektwahl.h"
#include "sitzung.h"
#include "zahlen.h"

namespace polarkreis::cli {

namespace {

constexpr int kPorts = 16;  // the search goes so far
constexpr int kSuchen = 2;

struct Wuensche : Messwuensche {
  std::vector<std::string> ports;
  std::string quelle, name;
  int geduld_ms = 0;
};

// "N=DEVICE"
void ports_zuweisen(const std::vector<std::string>& ports, Seriellschnittstelle& port) {
  for (const std::string& text : ports) {
    const std::size_t gleich = text.find('=');
    int nummer = 0;
    const char* ende = text.data() + std::min(gleich, text.size());
    const auto [rest, fehler] = std::from_chars(text.data(), ende, nummer);
    if (gleich == std::string::npos || fehler != std::errc() || rest != ende || nummer < 1 ||
        nummer > kPorts || gleich + 1 == text.size())
      throw Abbruch("--port " + text + " must be a number from 1 to " + std::to_string(kPorts) +
                    " and a device, as 1=/dev/ttyUSB0.");
    const std::string geraet = text.substr(gleich + 1);
    std::error_code unbekannt;
    if (!std::filesystem::is_character_file(geraet, unbekannt))
      melde("--port " + text + ": there is no such device.");
    port.zuweisen(nummer, geraet);
  }
}

// The file named by --feed, else one of the two usual ones where no port was named.
void quelle_suchen(const Wuensche& w, DiaGnostic& d) {
  if (w.quelle.empty()) {
    if (w.ports.empty()) d.Quelle_suchen();
    return;
  }
  constexpr int probe = 0, art = 1;
  d.quelle.Pfad[0] = zielpfad(w.quelle);
  d.quelle.Check_ISS_da(probe, art);
  d.logger.Quelle_Art = art;
  if (d.quelle.Quelle_ISS != Messquelle::aktiv)
    throw Abbruch("The file \"" + w.quelle +
                  "\" is not there or empty: a control system writes its newest values into it.");
}

void vorbereiten(Messplatz& platz, const Wuensche& w) {
  ports_zuweisen(w.ports, platz.port);
  platz.port.Geduld_ms = w.geduld_ms;
  platz.einstellen();
}

// Without a device the logger's own message has been shown.
bool geraet_da(Sitzung& sitzung, Messplatz& platz) {
  platz.diagnose.logger.COM_Such();
  if (platz.diagnose.logger.COM_Nr > 0) return true;
  sitzung.fehler(
      "No port answered as a logger. Check cable and power; \"logger ports\" lists the ports, "
      "--port 1=DEVICE names one.");
  return false;
}

void ports(Sitzung& sitzung, const Wuensche& w) {
  Messempfaenger stumm;
  Messplatz platz(sitzung, w, stumm);
  vorbereiten(platz, w);
  Logger& logger = platz.diagnose.logger;
  logger.COM_Search(0, kSuchen);
  Json json = Json::array();
  Tabelle tabelle{{"", "device", "", "logger"}, {}};
  for (const Seriellgeraet& g : platz.port.liste()) {
    const bool antwortet = g.nummer == logger.COM_Nr;
    json.push_back({{"number", g.nummer},
                    {"device", g.geraet},
                    {"description", g.beschreibung},
                    {"logger", antwortet}});
    tabelle.zeilen.push_back(
        {"COM" + std::to_string(g.nummer), g.geraet, g.beschreibung, antwortet ? "answers" : ""});
  }
  if (w.json)
    drucke(json);
  else if (tabelle.zeilen.empty())
    std::printf("The system lists no serial port.\n");
  else
    drucke(tabelle);
}

void messen(Sitzung& sitzung, const Wuensche& w) {
  Loggerlauf beobachter(w.json);
  Messplatz platz(sitzung, w, beobachter);
  vorbereiten(platz, w);
  quelle_suchen(w, platz.diagnose);
  platz.stoff_pruefen();
  DiaGnostic& d = platz.diagnose;
  beobachter.beginnen(d, platz.uhr);
  d.logger.Start_Butt1(Logger::Messen);
  beobachter.beenden();
  if (beobachter.Messwerte() == 0 && d.logger.COM_Nr == 0) {
    sitzung.fehler("Nothing was measured.");
    return;
  }
  const bool geschrieben = d.datei.Arbeitskopie_schreiben() && d.kondensieren();
  platz.fortschritt.loeschen();
  if (!geschrieben) sitzung.fehler(grund(platz.p.ablage, "The measurement could not be written."));
  platz.speichern();
  platz.drucken({});
  if (d.logger.Scan_Status == Loggerlauf::Geraet_verloren)
    sitzung.fehler("The logger no longer answers. What it has sent is kept: " +
                   std::to_string(d.messung.Messpunkte()) + " rows.");
}

void dateien(Sitzung& sitzung, const Wuensche& w) {
  Messempfaenger stumm;
  Messplatz platz(sitzung, w, stumm);
  vorbereiten(platz, w);
  if (!geraet_da(sitzung, platz)) return;
  platz.diagnose.logger.COM_Port_FMD_Import();
  const std::vector<std::string>& liste = platz.diagnose.logger.List1;
  if (w.json)
    drucke(Json(liste));
  else
    for (const std::string& name : liste) std::printf("%s\n", sichtbar(name).c_str());
  if (liste.empty()) melde("The logger names no files.");
}

// The logger sends whatever has the transfer name, and doesn't tell if a name isn't there.
void namen_pruefen(Logger& logger, const std::string& name) {
  constexpr std::string_view transfer = "aaaa.adc";
  logger.COM_Port_FMD_Import();
  const std::vector<std::string>& liste = logger.List1;
  const auto hat = [&](std::string_view n) { return std::ranges::find(liste, n) != liste.end(); };
  if (liste.empty() || hat(name)) return;
  if (!hat(transfer))
    throw Abbruch("The logger has no file \"" + name + "\"; \"logger files\" lists its files.");
  melde("The logger does not name \"" + name +
        "\": what it calls \"aaaa.adc\" is taken, the file of its last transfer.");
}

void herunterladen(Sitzung& sitzung, const Wuensche& w) {
  Messempfaenger stumm;
  Messplatz platz(sitzung, w, stumm);
  vorbereiten(platz, w);
  if (!geraet_da(sitzung, platz)) return;
  Logger& logger = platz.diagnose.logger;
  namen_pruefen(logger, w.name);
  logger.Text2 = w.name;
  const int zeilen = logger.COM_import();
  if (zeilen == 0) throw Abbruch("The logger sent no rows of \"" + w.name + "\".");
  platz.auswerten();
  platz.speichern();
  platz.drucken({});
  if (zeilen < 0)
    sitzung.fehler(
        "The file has more than 600 lines: only the first 600 were read. Take the rest "
        "from the memory card, with \"import adc\".");
}

void kalibrieren(Sitzung& sitzung, const Wuensche& w) {
  const bool druck = w.name == "pressure";
  Messempfaenger stumm;
  Messplatz platz(sitzung, w, stumm);
  vorbereiten(platz, w);
  DiaGnostic& d = platz.diagnose;
  d.datei.Arbeitskopie.clear();  // only a run of measurements has one
  d.logger.Kalib_Tab = druck ? 1 : 0;
  d.logger.Start_Kalib();
  if (!d.logger.Offset_zeigen) {
    sitzung.fehler("The calibration did not come to its end; the offsets stay as they were.");
    return;
  }
  if (const std::string& warum = platz.p.ablage.letzter_fehler(); !warum.empty())
    sitzung.fehler("The offsets could not be stored. " + warum);
  Json json = Json::object();
  Tabelle tabelle{{druck ? "position" : "slot", druck ? "below position 8, bar" : "offset, K"}, {}};
  const auto nimm = [&](int nummer, double wert) {
    json[std::to_string(nummer)] = zahl(wert);
    tabelle.zeilen.push_back({std::to_string(nummer), Zahl_Text(wert)});
  };
  if (druck)
    for (const auto& [position, wert] : d.logger.Kalib_Differenz) nimm(position, wert);
  else
    for (int platznummer = 1; platznummer <= 8; ++platznummer)
      nimm(platznummer, d.kanaele.Offset_Wert[static_cast<std::size_t>(platznummer)]);
  w.json ? drucke(json) : drucke(tabelle);
}

/// A command under "logger".
struct Unterbefehl {
  const char* name;
  const char* hilfe;
  const char* argument;  ///< its name, or null
  const char* argumenthilfe;
  bool misst, speichert;  ///< takes --feed; takes --out
  const char* beispiel;
  void (*werk)(Sitzung&, const Wuensche&);
};
constexpr Unterbefehl kUnterbefehle[] = {
    {"ports", "List the serial ports, and tell which one a logger answers on", nullptr, nullptr,
     false, false, "  polarkreis-cli logger ports", ports},
    {"run", "Measure and judge live until the planned end or Ctrl-C", nullptr, nullptr, true, true,
     "  polarkreis-cli logger run --port 1=/dev/ttyUSB0 --settings plant.json --out today.fmd",
     messen},
    {"files", "List the files in the logger's memory", nullptr, nullptr, false, false,
     "  polarkreis-cli logger files --port 1=/dev/ttyUSB0", dateien},
    {"download", "Fetch a file from the logger's memory", "NAME", "File of the logger", false, true,
     "  polarkreis-cli logger download night.adc --out night.fmd", herunterladen},
    {"calibrate", "Measure the offsets of the sensors, five samples long", "KIND",
     "temperature: all sensors in one bath; pressure: all open to the same pressure", false, false,
     "  polarkreis-cli logger calibrate temperature --port 1=/dev/ttyUSB0", kalibrieren},
};

void optionen_anmelden(CLI::App& befehl, const Unterbefehl& u, Wuensche& w) {
  if (u.argument != nullptr) {
    CLI::Option* argument = befehl.add_option(u.argument, w.name, u.argumenthilfe);
    argument->required()->type_name("");
    if (u.werk == kalibrieren) argument->check(CLI::IsMember({"temperature", "pressure"}));
  }
  befehl
      .add_option("--port", w.ports,
                  "Gives port number N (1 to 16) a device; may be given repeatedly. Without it the "
                  "n-th port of the system's list counts")
      ->type_name("N=DEVICE")
      ->allow_extra_args(false);
  befehl
      .add_option("--patience", w.geduld_ms,
                  "Waits so long for a reply to begin, up to 5000 ms: for slow adapters (0)")
      ->check(CLI::Range(0, 5000))
      ->type_name("MS");
  if (u.misst)
    befehl
        .add_option("--feed", w.quelle,
                    "Measure from this file, which a control system keeps writing, in place of a "
                    "serial port")
        ->type_name("FILE");
  if (u.speichert)
    befehl.add_option("--out", w.ausgabe, "Save the measurement")->type_name("FILE.fmd");
  messwuensche_anmelden(befehl, w);
}

}  // namespace

void logger_anmelden(CLI::App& app, Sitzung& sitzung) {
  CLI::App* logger = app.add_subcommand("logger", "Measure with a data logger on a serial port");
  logger->require_subcommand(1);
  beispiel(*logger, kUnterbefehle[1].beispiel);
  for (const Unterbefehl& u : kUnterbefehle) {
    CLI::App* befehl = logger->add_subcommand(u.name, u.hilfe);
    auto w = std::make_shared<Wuensche>();
    optionen_anmelden(*befehl, u, *w);
    beispiel(*befehl, u.beispiel);
    befehl->callback([&sitzung, w, werk = u.werk] { werk(sitzung, *w); });
  }
}

}  // namespace polarkreis::cli
