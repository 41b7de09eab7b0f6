#include "shell/start/start.h"

#include <algorithm>
#include <filesystem>

#include "monitoring/ftp_konto.h"
#include "shell/items.h"
#include "shell/start/version.h"
#include "shell/text.h"
#include "simulation/uebersetzen.h"

namespace polarkreis {

namespace {

constexpr std::string_view Nicht_schreibbar = "Can not overwrite existing file.";
constexpr std::string_view Arbeitsprojekt = "Temp_Sim.dat";
constexpr int Sprache_Item = 23;  // of the working project
constexpr std::size_t Codelaenge = 3;

bool ist_Ordner(const std::string& pfad) {
  std::error_code fehler;
  return std::filesystem::is_directory(pfad, fehler);
}

std::string ohne_Trenner(std::string ordner) {
  while (ordner.size() > 1 && (ordner.back() == '/' || ordner.back() == '\\')) ordner.pop_back();
  return ordner;
}

// Item n of the working project; empty if it has none.
std::string Arbeitsprojekt_Item(Ablage& ablage, int nummer) {
  const std::string text = ablage.lies_ganz(Arbeitsprojekt).value_or("");
  ItemLeser leser(text);
  for (int n = 1; n < nummer; ++n) leser.lies();
  return leser.lies();
}

}  // namespace

std::string Datenordner_festlegen(Programm& p, const Startangaben& angaben) {
  const bool gegeben = !angaben.datenordner.empty();
  Ablage& ablage = p.ablage;
  ablage.Datenordner = ohne_Trenner(gegeben ? angaben.datenordner : angaben.gefundener_ordner);
  p.einstellungen.Parameter_Lesen();
  const bool zu_fuellen = !gegeben && p.einstellungen.erster_Start && angaben.fuellen;
  if (zu_fuellen && !angaben.fuellen(ablage.Datenordner)) return std::string(Nicht_schreibbar);
  // The folder as last used leads to another one only while that is there, and only once.
  const std::string zuletzt = ohne_Trenner(p.einstellungen[Einstellungen::Datenordner]);
  const bool weiter = !gegeben && ist_Ordner(zuletzt);
  if (weiter) ablage.Datenordner = zuletzt;
  if (!ist_Ordner(ablage.Datenordner)) {
    return gegeben ? "The data folder \"" + ablage.Datenordner +
                         "\" is not there. Give the path of an existing folder."
                   : std::string(Nicht_schreibbar);
  }
  p.meldungen.setze_ordner(ablage.Datenordner);
  if (!gegeben) Standardkonto_anlegen(ablage);
  if (!gegeben && !weiter) p.meldungen.melde("start", zuletzt, "not there: found afresh");
  return {};
}

bool Start::starten(const Startangaben& angaben) {
  if (const std::string fehler = Datenordner_festlegen(p_, angaben); !fehler.empty()) {
    zeige_fehler(fehler);
    return false;
  }
  p_.laden(angaben.sprache);
  Uebergabe_lesen();
  Arbeitsprojekt_pruefen();
  zum_Menue();
  return true;
}

void Start::Uebergabe_lesen() {
  uebergabe_ = Uebergabe_Lesen(p_.ablage);
  uebergabe_offen_ = uebergabe_.hat_Daten();
}

void Start::Arbeitsprojekt_pruefen() {
  if (!Arbeitsprojekt_uebersetzen(p_.captions.Sprache)) zeige_fehler(Nicht_schreibbar);
  Arbeits_KaelteM = Arbeitsprojekt_Item(p_.ablage, 1);
}

bool Start::Sprache_da(std::string_view code) const {
  std::string datei(stammform(Stamm::JMapCap).name);
  datei.append(".").append(code);
  return p_.ablage.vorhanden(datei);
}

bool Start::Arbeitsprojekt_uebersetzen(std::string_view nach) {
  const std::string von = gross(getrimmt(Arbeitsprojekt_Item(p_.ablage, Sprache_Item)));
  // Without its captions there is nothing to translate to: the texts must stay tied to their own.
  if (zeichenzahl(von) != Codelaenge || von == nach || !Sprache_da(nach)) return true;
  return Projekt_Uebersetzen(p_.ablage, p_.captions, von, nach);
}

void Start::zeige_fehler(std::string_view text) {
  p_.dialog.zeige(text, Programmname, Symbol::fehler);
}

}  // namespace polarkreis
