#include "simulation/projladen.h"

#include <algorithm>
#include <array>
#include <optional>

#include "shell/items.h"
#include "shell/platte.h"
#include "shell/text.h"
#include "simulation/lastprojekt.h"

namespace polarkreis {

namespace {

constexpr std::string_view Titel = "Polarkreis";
constexpr std::string_view Parkdatei = "VerDpark.dat";

std::string_view ohne_ordner(std::string_view datei) {
  const std::size_t trenner = datei.find_last_of("/\\");
  return trenner == std::string_view::npos ? datei : datei.substr(trenner + 1);
}

bool ist_Projektendung(std::string_view endung) {
  return gross(endung) == ".PRJ";
}

std::optional<Projektkopf> kopf_lesen(Ablage& ablage, const std::string& datei) {
  if (!ablage.vorhanden(datei)) return std::nullopt;
  const std::optional<std::string> text = ablage.lies_ganz(datei);
  if (!text) return std::nullopt;
  ItemLeser leser(*text);
  return Projektkopf_lesen(leser);
}

std::string parkdatei_von(std::string_view projektdatei) {
  const std::string_view name = ohne_ordner(projektdatei);
  const std::size_t punkt = name.rfind('.');
  const bool endung = punkt != std::string_view::npos && ist_Projektendung(name.substr(punkt));
  return Ordner_von(projektdatei) + std::string(endung ? name.substr(0, punkt) : name) + ".VDD";
}

bool kopieren(Ablage& ablage, std::string_view von, std::string_view nach) {
  std::string bytes;
  return platte::lies(ablage.pfad(von), bytes) == 0 && ablage.schreib_ganz(nach, bytes);
}

/// A name that no other file has, for the park that makes room: its ending lets it be opened again.
std::string freier_Parkname(const Ablage& ablage) {
  const std::string stamm = "VerDpark kept";
  std::string name = stamm + ".VDD";
  for (int n = 2; ablage.stand(name).da; ++n) name = stamm + " " + std::to_string(n) + ".VDD";
  return name;
}

/// Keeps the park beside where it holds another content than the one that takes its place; false,
/// and nothing changed, if it can't be kept.
bool park_beiseite(Ablage& ablage, std::string_view neuer, std::string& name) {
  if (!ablage.vorhanden(Parkdatei)) return true;
  std::string alt, neu;
  if (platte::lies(ablage.pfad(neuer), neu) != 0) return false;
  if (platte::lies(ablage.pfad(Parkdatei), alt) == 0 && alt == neu) return true;
  const std::string ziel = freier_Parkname(ablage);
  if (!kopieren(ablage, Parkdatei, ziel)) return false;
  ablage.meldungen().melde("park_laden", Parkdatei, "the park before is kept as \"" + ziel + "\"");
  name = ziel;
  return true;
}

using Parkweg = bool (*)(Ablage&, std::string_view tag, std::string_view projektdatei);

/// Stores the form under its file name, and its park by `park`.
bool ablegen(Projektdaten& form, std::string_view tag, Parkweg park) {
  form.Projektname_aktuell = form.ProjektNam;
  if (form.Projekt_Speichern(tag, form.Projektordner) &&
      park(form.ablage, tag, form.Projektordner + form.Dateiname_aktuell))
    return true;
  form.dialog.zeige(form.ablage.letzter_fehler(), Titel, Symbol::fehler);
  return false;
}

}  // namespace

void ProjLaden::oeffnen(Browsermodus modus, std::string_view tag, std::string_view ordner) {
  modus_ = modus;
  tag_ = tag;
  ordner_ = ordner;
  if (!ordner_.empty() && ordner_.back() != '/' && ordner_.back() != '\\') ordner_ += '/';
  Dateiname.clear();
  liste_lesen();
}

void ProjLaden::liste_lesen() {
  zeile_ = static_cast<std::size_t>(-1);
  teile_ = false;
  eintraege.clear();
  if (ist_Import(modus_)) return messdateien_listen();
  for (const std::string& datei : ablage_.liste(ordner_, ".prj")) {
    const auto kopf = kopf_lesen(ablage_, ordner_ + datei);
    if (kopf && Tag_passt(kopf->Kennung, tag_))
      eintraege.push_back({datei, kopf->ProjektNam, kopf->ProBeschr});
  }
}

void ProjLaden::waehlen(std::size_t zeile) {
  if (zeile >= eintraege.size()) return;
  zeile_ = zeile;
  Dateiname = eintraege[zeile].datei;
  if (modus_ == Browsermodus::speichern || ist_Import(modus_)) return;
  ProjektNam = eintraege[zeile].name;
  ProBeschr = eintraege[zeile].beschreibung;
}

std::string ProjLaden::auswahl_text() const {
  if (zeile_ >= eintraege.size()) return {};
  const Projekteintrag& e = eintraege[zeile_];
  if (ist_Import(modus_)) return e.name;
  return captions_.text(Caption::Projekt) + " " + e.name + ", " + e.beschreibung;
}

bool ProjLaden::bestaetigen() {
  if (modus_ == Browsermodus::speichern) return speichern_bestaetigen();
  if (getrimmt(Dateiname).empty()) return false;
  if (ist_Import(modus_)) return import_bestaetigen();
  return modus_ == Browsermodus::loeschen ? loeschen_bestaetigen() : oeffnen_bestaetigen();
}

bool ProjLaden::oeffnen_bestaetigen() {
  if (!ablage_.vorhanden(projektdatei())) {
    FehlerBOX(dialog_, Fehler::Datei_fehlt);
    return false;
  }
  Park_beiseite.clear();
  if (!Lastdatei(tag_).empty()) {
    if (Lastprojekt_ohne_Zeilen(ablage_, projektdatei())) {
      dialog_.zeige(captions_.text(Caption::Datei_beschaedigt), Titel, Symbol::fehler);
      return false;
    }
    return gelungen(Lastprojekt_Oeffnen(ablage_, projektdatei()));
  }
  return gelungen(park_laden(ablage_, tag_, projektdatei(), Park_beiseite));
}

bool ProjLaden::speichern_bestaetigen() {
  if (const std::string_view last = Lastdatei(tag_); !last.empty()) {
    if (!ablage_.vorhanden(last)) {
      FehlerBOX(dialog_, Fehler::Datei_fehlt);
      return false;
    }
    Dateiname = Lastprojekt_Name(Dateiname, Projektname_Start);
    return gelungen(Lastprojekt_Speichern(ablage_, projektdatei(), ProjektNam, ProBeschr, tag_));
  }
  const std::string name = Projektdatei_Name(Dateiname);
  if (name.empty() || ist_Projektendung(ohne_ordner(name))) {
    dialog_.zeige(captions_.text(Caption::Projektname_fehlt), Titel, Symbol::hinweis);
    return false;
  }
  Dateiname = name;
  return true;
}

bool ProjLaden::loeschen_bestaetigen() {
  const bool weg = gelungen(ablage_.Datei_Loeschen(projektdatei()));
  liste_lesen();
  if (weg) Dateiname.clear();
  return weg;
}

bool ProjLaden::gelungen(bool ergebnis) {
  if (ergebnis) return true;
  if (ablage_.letzter_fehler().empty())
    FehlerBOX(dialog_, Fehler::Datei_fehlt);
  else
    dialog_.zeige(ablage_.letzter_fehler(), Titel, Symbol::fehler);
  return false;
}

// A bare name would be sought in the current folder first; the browser shows the data folder.
std::string ProjLaden::projektdatei() const {
  return (ordner_.empty() ? ablage_.Datenordner + "/" : ordner_) + Dateiname;
}

bool Datei_umbenennen(Ablage& ablage, std::string_view von, std::string_view nach) {
  return kopieren(ablage, von, nach) && ablage.Datei_Loeschen(von);
}

bool park_sichern(Ablage& ablage, std::string_view tag, std::string_view projektdatei) {
  if (!Modul_mit_Park(tag) || !ablage.vorhanden(Parkdatei)) return true;
  return Datei_umbenennen(ablage, Parkdatei, parkdatei_von(projektdatei));
}

bool park_kopieren(Ablage& ablage, std::string_view tag, std::string_view projektdatei) {
  if (!Modul_mit_Park(tag) || !ablage.vorhanden(Parkdatei)) return true;
  return kopieren(ablage, Parkdatei, parkdatei_von(projektdatei));
}

bool park_uebernehmen(Ablage& ablage, std::string_view park, std::string& beiseite) {
  return park_beiseite(ablage, park, beiseite) && Datei_umbenennen(ablage, park, Parkdatei);
}

bool park_laden(Ablage& ablage, std::string_view tag, std::string_view projektdatei,
                std::string& beiseite) {
  if (!Modul_mit_Park(tag)) return true;
  const std::string park = parkdatei_von(projektdatei);
  if (ablage.vorhanden(park)) return park_uebernehmen(ablage, park, beiseite);
  ablage.meldungen().melde("park_laden", park, "missing: the park stays as it is");
  return true;
}

Speicherung ProjSpeich(Projektdaten& form, ProjLaden& browser, std::string_view tag) {
  const std::string aktuell = gross(getrimmt(form.Dateiname_aktuell));
  if (aktuell.empty() || aktuell == ".PRJ") {
    browser.ProjektNam = form.ProjektNam;
    browser.ProBeschr = form.ProBeschr;
    browser.oeffnen(Browsermodus::speichern, tag, form.Projektordner);
    return Speicherung::Name_noetig;
  }
  return ablegen(form, tag, park_kopieren) ? Speicherung::gespeichert : Speicherung::misslungen;
}

void ProjLad(const Projektdaten& form, ProjLaden& browser, std::string_view tag) {
  browser.oeffnen(Browsermodus::oeffnen, tag, form.Projektordner);
}

void PrLoesch(const Projektdaten& form, ProjLaden& browser, std::string_view tag) {
  browser.oeffnen(Browsermodus::loeschen, tag, form.Projektordner);
}

bool Browser_bestaetigen(Projektdaten& form, ProjLaden& browser) {
  if (!browser.bestaetigen()) return false;
  const std::string datei = browser.projektdatei();
  const bool Last = !Lastdatei(browser.tag()).empty();
  if (Last || browser.modus() == Browsermodus::loeschen) return true;
  if (browser.modus() == Browsermodus::oeffnen) {
    if (!form.Projekt_Oeffnen(browser.tag(), datei)) {
      FehlerBOX(form.dialog, Fehler::Datei_fehlt);
      return false;
    }
    form.ProjektNam = browser.ProjektNam;
    form.ProBeschr = browser.ProBeschr;
    return true;
  }
  form.ProjektNam = browser.ProjektNam;
  form.ProBeschr = browser.ProBeschr;
  form.Projektordner = Ordner_von(datei);
  form.Dateiname_aktuell = browser.Dateiname;
  return ablegen(form, browser.tag(), park_sichern);
}

bool Tag_passt(std::string_view tag, std::string_view modul) {
  if (tag.empty()) return modul == "KOMP" || modul == "VERB";
  return tag == modul;
}

std::string Projektdatei_Name(std::string_view name) {
  const std::string_view voll = getrimmt(name);
  const std::string_view datei = ohne_ordner(voll);
  if (datei.empty()) return {};
  const std::size_t punkt = datei.rfind('.');
  if (punkt != std::string_view::npos && ist_Projektendung(datei.substr(punkt)))
    return std::string(voll);
  return Ordner_von(voll) + std::string(datei.substr(0, datei.find('.'))) + ".prj";
}

std::string Projektdatei_Pfad(const Ablage& ablage, std::string_view name) {
  std::string hier = "./";
  hier += name;
  if (name.find_first_of("/\\") != std::string_view::npos || !ablage.vorhanden(hier))
    return std::string(name);
  return hier;
}

std::string Ordner_von(std::string_view datei) {
  const std::size_t trenner = datei.find_last_of("/\\");
  return std::string(datei.substr(0, trenner == std::string_view::npos ? 0 : trenner + 1));
}

bool Modul_mit_Park(std::string_view tag) {
  static constexpr std::array<std::string_view, 6> Module = {"KOMP", "2STAGE", "VERB",
                                                             "PUMP", "HeatP",  "MonoF"};
  return std::any_of(Module.begin(), Module.end(),
                     [&](std::string_view modul) { return gleich(modul, tag); });
}

}  // namespace polarkreis
