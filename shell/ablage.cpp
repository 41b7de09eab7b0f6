#include "shell/ablage.h"

#include <cerrno>

#include "shell/ablage_nummer.h"
#include "shell/platte.h"
#include "shell/text.h"

namespace polarkreis {

namespace {

constexpr int Satzlaenge_sonst = 128;

bool hat_pfad(std::string_view name) {
  return name.find_first_of("/\\") != std::string_view::npos;
}

}  // namespace

Ablage::Ablage(std::string datenordner, Meldungen& meldungen)
    : Datenordner(std::move(datenordner)), meldungen_(meldungen) {}

Ablage::~Ablage() {
  alle_schliessen();
}

Ablage::Nummer* Ablage::offen(int nummer) const {
  const auto gefunden = nummern_.find(nummer);
  return gefunden == nummern_.end() ? nullptr : gefunden->second.get();
}

/// Opens the number on what the file holds; `text` as UTF-8, else the bytes as they stand.
Ablage::Nummer& Ablage::oeffne(std::string_view name, int nummer, bool text) {
  Datei_Schliessen(nummer);
  auto neu = std::make_unique<Nummer>();
  neu->name = name;
  const std::string wo = pfad(name);
  const int fehler = platte::lies(wo, neu->inhalt);
  if (fehler != 0 && fehler != ENOENT) {
    neu->lesehindernis = platte::grund(fehler);
    meldungen_.melde("read", wo, "taken as empty: " + neu->lesehindernis);
  }
  if (text) neu->inhalt = als_utf8(std::move(neu->inhalt));
  return *(nummern_[nummer] = std::move(neu));
}

void Ablage::Datei_Lesen(std::string_view name, int nummer, bool anlegen) {
  Nummer& datei = oeffne(name, nummer, true);
  datei.art = Nummer::Art::lesen;
  datei.leser = ItemLeser(datei.inhalt);
  if (!anlegen || hat_pfad(name) || !datei.inhalt.empty()) return;
  const std::string wo = pfad(name);
  if (platte::mache_ordner(platte::ort(wo).ordner) == 0 && platte::lege_an(wo) == 0)
    alles_pruefen();
}

void Ablage::Datei_Schreiben(std::string_view name, int nummer, Haltbarkeit haltbarkeit) {
  Datei_Schliessen(nummer);
  auto neu = std::make_unique<Nummer>();
  neu->art = Nummer::Art::schreiben;
  neu->name = name;
  neu->haltbarkeit = haltbarkeit;
  platte::mache_ordner(platte::ort(pfad(name)).ordner);
  nummern_[nummer] = std::move(neu);
}

void Ablage::Datei_Anhaengen(std::string_view name, int nummer, Haltbarkeit haltbarkeit) {
  Nummer& datei = oeffne(name, nummer, true);
  datei.art = Nummer::Art::anhaengen;
  datei.haltbarkeit = haltbarkeit;
  datei.zeile_offen = !datei.inhalt.empty() && !datei.inhalt.ends_with('\n');
  platte::mache_ordner(platte::ort(pfad(name)).ordner);
}

void Ablage::Datei_Satz(std::string_view name, int nummer, int laenge) {
  Nummer& datei = oeffne(name, nummer, false);
  datei.art = Nummer::Art::satz;
  datei.satzlaenge = static_cast<std::size_t>(laenge > 0 ? laenge : Satzlaenge_sonst);
  platte::mache_ordner(platte::ort(pfad(name)).ordner);
}

bool Ablage::Datei_Schliessen(int nummer) {
  const auto gefunden = nummern_.find(nummer);
  if (gefunden == nummern_.end()) return true;
  const std::unique_ptr<Nummer> datei = std::move(gefunden->second);
  nummern_.erase(gefunden);
  return !datei->schreibt() || lege_ab(*datei);
}

bool Ablage::lege_ab(Nummer& nummer) {
  if (nummer.lesehindernis.empty())
    return schreib_ganz(nummer.name, nummer.inhalt, nummer.haltbarkeit);
  return misslungen(pfad(nummer.name), nummer.lesehindernis);
}

bool Ablage::alle_schliessen() {
  std::string erster_fehler;
  while (!nummern_.empty())
    if (!Datei_Schliessen(nummern_.begin()->first) && erster_fehler.empty())
      erster_fehler = letzter_fehler_;
  if (erster_fehler.empty()) return true;
  letzter_fehler_ = std::move(erster_fehler);
  return false;
}

bool Ablage::schreibt(int nummer) const {
  const Nummer* datei = offen(nummer);
  return datei != nullptr && datei->schreibt();
}

bool Ablage::Ende(int nummer) const {
  const Nummer* datei = offen(nummer);
  return datei == nullptr || datei->art != Nummer::Art::lesen || datei->leser.ende();
}

std::string Ablage::Eingabe(int nummer) {
  std::string item;
  Eingabe(nummer, item);
  return item;
}

bool Ablage::Eingabe(int nummer, std::string& target) {
  Nummer* datei = offen(nummer);
  return datei != nullptr && datei->art == Nummer::Art::lesen && datei->leser.lies(target);
}

void Ablage::Ausgabe(int nummer, std::initializer_list<std::string_view> items) {
  Nummer* datei = offen(nummer);
  if (datei == nullptr || datei->art == Nummer::Art::satz || !datei->schreibt()) return;
  if (datei->zeile_offen) datei->inhalt += "\r\n";
  datei->zeile_offen = false;
  zeile_anhaengen(datei->inhalt, items);
}

void Ablage::Ausgabe_Text(int nummer, std::string_view text) {
  Nummer* datei = offen(nummer);
  if (datei == nullptr || datei->art == Nummer::Art::satz || !datei->schreibt()) return;
  datei->zeile_offen = false;
  datei->inhalt += text;
}

std::string Ablage::Satz_Lesen(int nummer, int n) {
  const Nummer* datei = offen(nummer);
  if (datei == nullptr || datei->art != Nummer::Art::satz || n < 1) return {};
  const std::size_t anfang = static_cast<std::size_t>(n - 1) * datei->satzlaenge;
  std::string satz;
  if (anfang < datei->inhalt.size()) satz = datei->inhalt.substr(anfang, datei->satzlaenge);
  satz.resize(datei->satzlaenge, ' ');
  return satz;
}

void Ablage::Satz_Schreiben(int nummer, int n, std::string_view text) {
  Nummer* datei = offen(nummer);
  if (datei == nullptr || datei->art != Nummer::Art::satz || n < 1) return;
  const std::size_t laenge = datei->satzlaenge;
  const std::size_t anfang = static_cast<std::size_t>(n - 1) * laenge;
  if (anfang + laenge > platte::Hoechstgroesse) {
    misslungen(pfad(datei->name), platte::grund(platte::Zu_gross));
    return;
  }
  if (datei->inhalt.size() < anfang + laenge) datei->inhalt.resize(anfang + laenge, ' ');
  std::string satz(text.substr(0, laenge));
  satz.resize(laenge, ' ');
  datei->inhalt.replace(anfang, laenge, satz);
  datei->geaendert = true;
}

}  // namespace polarkreis
