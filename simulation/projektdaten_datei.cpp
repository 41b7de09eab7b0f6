#include "shell/text.h"
#include "simulation/projektdaten.h"
#include "simulation/projladen.h"
#include "simulation/uebersetzen.h"

namespace polarkreis {

namespace {

constexpr std::string_view kArbeitsprojekt = "Temp_Sim.dat";
constexpr int kNummer = 1;

/// Sets the flag for as long as it lives.
class Sperre {
 public:
  explicit Sperre(bool& flagge) : flagge_(flagge) { flagge_ = true; }
  ~Sperre() { flagge_ = false; }
  Sperre(const Sperre&) = delete;
  Sperre& operator=(const Sperre&) = delete;

 private:
  bool& flagge_;
};

std::string mit_Trenner(std::string_view ordner) {
  std::string ergebnis(ordner);
  if (!ergebnis.empty() && ergebnis.back() != '/' && ergebnis.back() != '\\') ergebnis += '/';
  return ergebnis;
}

bool andere_Sprache(std::string_view projekt, std::string_view aktuell) {
  return zeichenzahl(getrimmt(projekt)) == 3 && !gleich(projekt, aktuell);
}

}  // namespace

int Projektdaten::Items_lesen(int nummer) {
  Projektsatz gelesen;
  int anzahl = 0;
  for (const Projektfeld& item : Projektfelder()) {
    if (!ablage.Eingabe(nummer, gelesen.*item.feld)) break;
    ++anzahl;
  }
  if (andere_Sprache(gelesen.Sprache, captions.Sprache)) {
    const std::string von = gross(getrimmt(gelesen.Sprache));
    Projektsatz_uebersetzen(captions, gelesen, von, captions.Sprache);
  }
  for (const Projektfeld& item : Projektfelder().first(static_cast<std::size_t>(anzahl)))
    if (item.name != "reserviert") this->*item.feld = gelesen.*item.feld;
  return anzahl;
}

void Projektdaten::Ersatzwerte() {
  const auto ersetze = [](std::string& text, const std::string& ersatz) {
    if (text.empty()) text = ersatz;
  };
  ersetze(Combo1, captions.text(JMapCap::Ventil_thermostatisch));
  ersetze(RGartP, captions.text(JMapCap::Regelung_ohne));
  ersetze(RGartL, captions.text(JMapCap::Regelung_ohne));
  ersetze(WaterCheck, "0");
  ersetze(dt_freeC, "5");
  ersetze(Anlagenart_Combo, Auswahl("Anlagenart_Combo").front());
  ersetze(Vfl_typ, captions.text(PedCap::Luftgekuehlt));
  ersetze(DT_v_combo, "8");
  ersetze(VERFL_Eff_combo, "B");
}

void Projektdaten::Projekt_Lesen(std::string_view name, int nummer, int offen) {
  const Sperre sperre(laedt_);
  tmin_gemerkt = 0;  // it belongs to the plant that was open before
  if (offen != 1) ablage.Datei_Lesen(name, nummer, Ordner_von(name).empty());
  // An item with a fallback takes it also where the file ends before it: the text of the project
  // that was open before must not stand in.
  for (std::string* feld : {&Combo1, &RGartP, &RGartL, &WaterCheck, &dt_freeC, &Anlagenart_Combo,
                            &Vfl_typ, &DT_v_combo, &VERFL_Eff_combo})
    feld->clear();
  const int anzahl = Items_lesen(nummer);
  if (offen != 1) ablage.Datei_Schliessen(nummer);
  // A working project that was never written is no damage.
  if (anzahl < Projektfelder_Zahl && (anzahl > 0 || offen == 1))
    ablage.meldungen().melde("Projekt_Lesen", name,
                             std::to_string(anzahl) + " of " + std::to_string(Projektfelder_Zahl) +
                                 " items; the others keep their values or take their fallbacks");
  Ersatzwerte();
  km.z.RefName = KaelteM;
  km.KM_Datei();
  Abtauart_zeigen();
  Rechart_zeigen();
  Ableiten();
}

bool Projektdaten::Projekt_Schreiben(std::string_view name, int nummer, int anhaengen) {
  if (anhaengen != 1) {
    ablage.alle_schliessen();
    ablage.Datei_Schreiben(name, nummer);
  } else if (!ablage.schreibt(nummer)) {
    ablage.Datei_Anhaengen(name, nummer);
  }
  if (Sprache.empty() || captions.vorhanden(captions.Sprache)) Sprache = captions.Sprache;
  reserviert.clear();
  for (const Projektfeld& item : Projektfelder()) ablage.Ausgabe(nummer, {this->*item.feld});
  if (!ablage.Datei_Schliessen(nummer)) return false;
  return energk_schreiben(ablage, Ordner_von(name), energie);
}

bool Projektdaten::Projekt_Speichern(std::string_view tag, std::string_view ordner) {
  if (getrimmt(Dateiname_aktuell).empty()) return false;
  const std::string ziel = mit_Trenner(ordner);
  const std::string pfad = ziel + Dateiname_aktuell;
  std::string kopf;
  Projektkopf_anhaengen(kopf, ProjektNam, ProBeschr, tag);
  ablage.Datei_Schreiben(pfad, kNummer);
  ablage.Ausgabe_Text(kNummer, kopf);
  if (!Projekt_Schreiben(pfad, kNummer, 1)) return false;
  Projektname_aktuell = ProjektNam;
  Projektordner = ziel;
  return true;
}

bool Projektdaten::Projekt_Oeffnen(std::string_view tag, std::string_view name) {
  const std::string pfad = Projektdatei_Pfad(ablage, name);
  if (!ablage.vorhanden(pfad)) return false;
  ablage.Datei_Lesen(pfad, kNummer, false);
  const Projektkopf kopf =
      Projektkopf_lesen([this](std::string& item) { return ablage.Eingabe(kNummer, item); });
  if (!Tag_passt(kopf.Kennung, tag)) {
    ablage.Datei_Schliessen(kNummer);
    return false;
  }
  // A file that ends before items 37 and 38 has its name and description in the header only.
  ProjektNam = kopf.ProjektNam;
  ProBeschr = kopf.ProBeschr;
  Projekt_Lesen(pfad, kNummer, 1);
  ablage.Datei_Schliessen(kNummer);
  Projektname_aktuell = kopf.ProjektNam;
  Projektordner = Ordner_von(pfad);
  Dateiname_aktuell = pfad.substr(Projektordner.size());
  energie = energk_lesen(ablage, Projektordner);
  JG_fertig = false;
  return true;
}

void Projektdaten::Arbeitsprojekt_Lesen() {
  Projekt_Lesen(kArbeitsprojekt, kNummer, 0);
  Projektordner.clear();
  Dateiname_aktuell.clear();
  energie = energk_lesen(ablage, Projektordner);
  JG_fertig = false;
}

bool Projektdaten::Arbeitsprojekt_Schreiben() {
  return Projekt_Schreiben(kArbeitsprojekt, kNummer, 0);
}

}  // namespace polarkreis
