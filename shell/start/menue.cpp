#include <algorithm>
#include <array>
#include <filesystem>
#include <optional>

#include "shell/items.h"
#include "shell/start/start.h"
#include "shell/start/version.h"
#include "shell/wert.h"

namespace polarkreis {

namespace {

constexpr int Atempause = 50;  // units of waiting before and after the children close

std::string voller_Pfad(const std::string& ordner) {
  std::error_code fehler;
  const std::filesystem::path voll = std::filesystem::absolute(ordner, fehler);
  return fehler ? ordner : voll.string();
}

}  // namespace

const std::array<Start::Flagge, 8>& Start::Flaggen() {
  static constexpr std::array<Flagge, 8> Alle = {{{"German", "GER"},
                                                  {"ENGlish", "ENG"},
                                                  {"French", "FRA"},
                                                  {"Spain", "ESP"},
                                                  {"Portuguese", "POR"},
                                                  {"swedish", "SWE"},
                                                  {"PappaGallo", "ITA"},
                                                  {"KäsKopp", "NDL"}}};
  return Alle;
}

void Start::ProjNix() {
  gewaehlt = Menuepunkt::ProjNix;
  p_.projekt.Arbeitsprojekt_Lesen();
  projekt_geladen_ = true;
  if (!uebergabe_offen_) return;
  p_.projekt.Uebergabe_Uebernehmen(uebergabe_);
  uebergabe_offen_ = false;
  if (!Uebergabe_Leeren(p_.ablage)) zeige_fehler(p_.ablage.letzter_fehler());
}

void Start::VorGab(std::string_view modul) {
  gewaehlt = Menuepunkt::VorGab;
  vorgaben.oeffnen(modul);
}

void Start::InfoP() {
  gewaehlt = Menuepunkt::InfoP;
  p_.dialog.zeige(Versionszeile(), Beschriftung(gewaehlt), Symbol::hinweis);
}

void Start::StartHelp() {
  gewaehlt = Menuepunkt::StartHelp;
  const std::optional<std::string> datei = p_.ablage.lies_ganz("Frighelp." + p_.captions.Sprache);
  if (!datei || datei->empty()) return FehlerBOX(p_.dialog, Fehler::Datei_fehlt);
  std::string text;
  for (ItemLeser leser(*datei); !leser.ende();) text.append(leser.lies()).append(Zeilenende);
  p_.dialog.zeige(text, Beschriftung(gewaehlt), Symbol::hinweis);
}

void Start::ende() {
  if (!p_.dialog.frage(p_.captions.text(Caption::Ende_Frage), Programmname)) return;
  gewaehlt = Menuepunkt::ende;
  p_.einstellungen[Einstellungen::Datenordner] = voller_Pfad(p_.ablage.Datenordner);
  if (!p_.einstellungen.Parameter_Schreiben()) zeige_fehler(p_.ablage.letzter_fehler());
  uhr_.Warten(Atempause);
  for (const auto& schliessen : Kinder) schliessen();
  uhr_.Warten(Atempause);
  beendet = true;
}

const std::string& Start::Beschriftung(Menuepunkt punkt) const {
  if (punkt == Menuepunkt::keiner) return p_.captions.text(Stamm::Caption, 0);  // no text
  static constexpr std::array Texte = {Caption::Energiesimulation,
                                       Caption::Diagnose,
                                       Caption::Fernueberwachung,
                                       Caption::Vorgaben,
                                       Caption::Druckeinstellung,
                                       Caption::Drucken,
                                       Caption::Information,
                                       Caption::Hilfe,
                                       Caption::Ende};
  return p_.captions.text(Texte.at(static_cast<std::size_t>(punkt) - 1));
}

bool Start::Flagge_klicken(std::string_view name) {
  for (const Flagge& flagge : Flaggen())
    if (flagge.name == name) return Sprache_waehlen(flagge.code);
  return false;
}

bool Start::Sprache_waehlen(std::string_view code) {
  if (std::find(Sprachen().begin(), Sprachen().end(), code) == Sprachen().end()) return false;
  if (!Sprache_da(code)) {
    FehlerBOX(p_.dialog, Fehler::Datei_fehlt);
    return false;
  }
  Einstellungen& e = p_.einstellungen;
  const std::string vorher = e[Einstellungen::Sprache];
  e[Einstellungen::Sprache] = code;
  if (e.Parameter_Schreiben() && Arbeitsprojekt_uebersetzen(code)) {
    p_.captions.Sprache = code;
    p_.captions.Captions_Laden();
    return true;
  }
  zeige_fehler(p_.ablage.letzter_fehler());
  e[Einstellungen::Sprache] = vorher;
  e.Parameter_Schreiben();
  return false;
}

bool Start::Simulation_verlassen() {
  Projektdaten& projekt = p_.projekt;
  bool gut = projekt.Arbeitsprojekt_Schreiben();
  if (!gut) zeige_fehler(p_.ablage.letzter_fehler());
  // From here on the working project is the state, and no project file is open.
  projekt.Dateiname_aktuell.clear();
  projekt.Projektordner.clear();
  zum_Menue();
  if (!von_Geschwister()) return gut;
  beendet = true;
  if (Daten_Uebergabe(p_.ablage, Rueckgabe())) return gut;
  zeige_fehler(p_.ablage.letzter_fehler());
  return false;
}

// The form's values in the kind in which the sibling left them; what it left beside them stays.
Uebergabe Start::Rueckgabe() const {
  Uebergabe daten = p_.projekt.Uebergabe_Fuellen();
  daten[Uebergabe::Startcode] = uebergabe_[Uebergabe::Startcode];
  if (uebergabe_.mit_Winter()) {
    const double winter = Wert(p_.projekt.WinterRGart);
    daten[Uebergabe::Tc_oder_Winter] = winter != 0 ? Zahl_Text(winter) : std::string();
  }
  for (int item = 1; item <= Uebergabe::Itemzahl; ++item) {
    const bool eigenes =
        item == Uebergabe::Startcode ||
        (item >= Uebergabe::t0 && item <= Uebergabe::Bauform && item != Uebergabe::unbenutzt);
    if (!eigenes) daten[item] = uebergabe_[item];
  }
  return daten;
}

bool Start::Geschwister_starten(std::string_view programm) {
  if (!projekt_geladen_) {
    p_.projekt.Arbeitsprojekt_Lesen();
    projekt_geladen_ = true;
  }
  if (!Daten_Uebergabe(p_.ablage, p_.projekt.Uebergabe_Fuellen())) {
    zeige_fehler(p_.ablage.letzter_fehler());
    return false;
  }
  if (geschwister_.starten(programm)) return true;
  // Nobody will take the values: our own next start must not find them.
  Uebergabe_Leeren(p_.ablage);
  FehlerBOX(p_.dialog, Fehler::Modul_fehlt, programm);
  return false;
}

}  // namespace polarkreis
