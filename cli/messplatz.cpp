#include "messplatz.h"

#include <algorithm>
#include <filesystem>

#include "diagnostics/messformat.h"
#include "messung_json.h"
#include "platform/dateiwache.h"
#include "projektwahl.h"
#include "shell/items.h"
#include "shell/text.h"
#include "simulation/projladen.h"

namespace polarkreis::cli {

namespace {

constexpr std::string_view kArbeitsprojekt = "Temp_Sim.dat";

Diagnosemittel mittel(Messplatz& platz, Messempfaenger& empfaenger) {
  Programm& p = platz.p;
  return {p.ablage,  p.captions, p.kreis,      p.luft,     platz.dialog,
          platz.uhr, platz.port, platz.mappen, empfaenger, platz.fortschritt};
}

// The third item of a measurement is its row count, with or without a language behind it.
bool hat_Zeilenzahl(const std::string& inhalt) {
  ItemLeser leser(inhalt);
  leser.lies();
  leser.lies();
  const std::string item(leser.lies());
  const std::string_view zahl =
      getrimmt(std::string_view(item).substr(0, item.find(Trenner_Sprache)));
  return !zahl.empty() && std::ranges::all_of(zahl, [](char c) { return c >= '0' && c <= '9'; });
}

// Behind a byte order mark, if there is one.
bool beginnt_mit_Item(const std::string& inhalt) {
  return inhalt.substr(0, 4).find('"') != std::string::npos;
}

}  // namespace

void messwuensche_anmelden(CLI::App& befehl, Messwuensche& w) {
  befehl
      .add_option("--settings", w.einstellungen,
                  "JSON object with controls of the form, which override the file: " +
                      messeinstellungen_namen())
      ->type_name("FILE.json");
  befehl.add_flag("--json", w.json, "Print as JSON");
}

Messplatz::Messplatz(Sitzung& sitzung, const Messwuensche& wuensche, Messempfaenger& empfaenger)
    : p(sitzung.programm()),
      diagnose(mittel(*this, empfaenger)),
      sitzung_(sitzung),
      wuensche_(wuensche),
      einstellungen_(wuensche.einstellungen) {
  texte_pruefen(p, p.captions.Sprache);
  // Every row asks for its tables: the watch answers without the disk.
  p.ablage.setze_wache(Dateiwache_machen(p.ablage.Datenordner));
  diagnose.vorbereiten();
}

Messdatei::Ladung Messplatz::laden(const std::string& name) {
  const std::string pfad = messdatei_pfad(p, name);
  const std::optional<std::string> inhalt = p.ablage.lies_ganz(pfad);
  if (!inhalt) throw Abbruch(grund(p.ablage, "The file \"" + name + "\" can't be read."));
  einstellungen_.vor_dem_laden(diagnose.messung);
  const Messdatei::Ladung ladung = diagnose.laden(pfad);
  fortschritt.loeschen();
  if (ladung.ueberzaehlig > 0)
    melde("The file \"" + name + "\" is longer than a measurement may be: " +
          std::to_string(ladung.ueberzaehlig) + " rows behind the first " +
          std::to_string(diagnose.datei.Hoechstzeilen) + " were left out.");
  if (ladung.ueberzaehlig > 0 && ist_Ausgabe(pfad))
    throw Abbruch("The file \"" + name +
                  "\" stays as it is: these rows would be lost. Give another file with --out.");
  const bool leer = diagnose.messung.Messpunkte() == 0 && !ladung.abgelehnt;
  if ((leer || !beginnt_mit_Item(*inhalt)) && !hat_Zeilenzahl(*inhalt))
    throw Abbruch("The file \"" + name +
                  "\" is no measurement: its third line holds no row count. Files of other "
                  "instruments are read with \"import\".");
  einstellen();
  return ladung;
}

bool Messplatz::ist_Ausgabe(const std::string& pfad) const {
  if (wuensche_.ausgabe.empty()) return false;
  const std::string ziel = Messdatei::mit_Endung(zielpfad(wuensche_.ausgabe));
  std::error_code fehler;
  return std::filesystem::equivalent(p.ablage.pfad(pfad), p.ablage.pfad(ziel), fehler);
}

void Messplatz::einstellen() {
  Messung& m = diagnose.messung;
  einstellungen_.anwenden(m, diagnose.solen, p.captions);
  if (!ist_leer(m.Q0) || !p.ablage.vorhanden(kArbeitsprojekt)) return;
  p.projekt.Arbeitsprojekt_Lesen();
  if (const double Q0 = Wert(p.projekt.Q0); Q0 > 0) m.Q0 = Q0;
}

void Messplatz::auswerten() {
  if (diagnose.messung.Messpunkte() > 0) stoff_pruefen();
  const bool geschrieben = diagnose.auswerten();
  fortschritt.loeschen();
  if (!geschrieben) sitzung_.fehler(grund(p.ablage, "The protocol could not be written."));
}

// A measurement without a refrigerant is evaluated as far as it goes.
void Messplatz::stoff_pruefen() const {
  const std::string stoff(getrimmt(diagnose.messung.KaelteM));
  if (Kaeltemittel::KM_Bekannt(stoff)) return;
  melde(stoff.empty()
            ? "The measurement names no refrigerant, so that no figures of the cycle come out. "
              "Give it as \"KaelteM\" with --settings."
            : "\"" + stoff +
                  "\" is not a known refrigerant, so that no figures of the cycle come "
                  "out. Give another one as \"KaelteM\" with --settings.");
}

void Messplatz::speichern() {
  if (wuensche_.ausgabe.empty()) return;
  const std::string pfad = Messdatei::mit_Endung(zielpfad(wuensche_.ausgabe));
  const bool gespeichert = diagnose.datei.SaveDiaG(pfad, &fortschritt);
  fortschritt.loeschen();
  if (!gespeichert) throw Abbruch(grund(p.ablage, "The measurement could not be written."));
  if (!wuensche_.json) std::printf("Saved: %s\n", pfad.c_str());
}

void Messplatz::drucken(const Messdatei::Ladung& ladung) {
  const Messung& m = diagnose.messung;
  if (wuensche_.json) {
    drucke(messung_json(diagnose, ladung));
    return;
  }
  const auto zeile = [](const std::string& text) {
    if (!getrimmt(text).empty()) std::printf("%s\n", gekuerzt(sichtbar(text), 78).c_str());
  };
  zeile(m.ProjektNam);
  zeile(m.ProBeschr);
  zeile(m.KaelteM + (m.Combo3.empty() ? "" : ", " + m.Combo3));
  std::printf("%d rows\n\n", m.Messpunkte());
  drucke_mittelwerte(m);
}

std::string messdatei_pfad(Programm& p, const std::string& name) {
  namespace fs = std::filesystem;
  const std::string pfad = Projektdatei_Pfad(p.ablage, name);
  const std::string ort = p.ablage.pfad(pfad);
  std::error_code fehler;
  if (fs::is_directory(name, fehler) || fs::is_directory(ort, fehler))
    throw Abbruch("\"" + name + "\" is a folder. Give the file in it.");
  if (!fs::exists(ort, fehler) && fs::is_regular_file(name, fehler))
    throw Abbruch("The file \"" + name + "\" is empty.");
  if (!fs::exists(ort, fehler))
    throw Abbruch("There is no file \"" + name +
                  "\". A name without a folder is sought in the current folder and in the data "
                  "folder \"" +
                  p.ablage.Datenordner + "\".");
  if (!fs::is_regular_file(ort, fehler)) throw Abbruch("\"" + name + "\" is no file.");
  if (p.ablage.Dateigroesse(pfad) == 0) throw Abbruch("The file \"" + name + "\" is empty.");
  return pfad;
}

}  // namespace polarkreis::cli
