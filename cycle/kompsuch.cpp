#include "cycle/kompsuch.h"

#include <algorithm>
#include <map>
#include <memory>

#include "shell/items.h"
#include "shell/text.h"

namespace polarkreis {

namespace {

constexpr std::string_view kProdhide = "Prodhide.dat";
constexpr std::size_t kProduktlaenge = 2;

std::vector<std::string> verborgene(Ablage& ablage) {
  const std::string inhalt = ablage.lies_ganz(kProdhide).value_or("");
  ItemLeser leser(inhalt);
  std::vector<std::string> produkte;
  for (std::string item; leser.lies(item);) produkte.push_back(item);
  return produkte;
}

bool ist_verborgen(const std::vector<std::string>& produkte, std::string_view code) {
  return std::ranges::any_of(produkte, [code](const std::string& produkt) {
    return gleich(produkt, code) || gleich(produkt, code.substr(0, kProduktlaenge));
  });
}

bool gewaehlt(std::string_view wahl, std::string_view text) {
  return getrimmt(wahl).empty() || gleich(wahl, text);
}

/// The catalogues of one search: rows of the same one share its file.
class Offene {
 public:
  explicit Offene(Katalogdateien& dateien) : dateien_(dateien) {}
  Bauteile& hol(const std::string& code) {
    std::unique_ptr<Bauteile>& eintrag = offen_[gross(code)];
    if (!eintrag) {
      const int nummer = Bauteile::Nummer_sonst + static_cast<int>(offen_.size());
      eintrag = std::make_unique<Bauteile>(dateien_, code, nummer);
    }
    return *eintrag;
  }

 private:
  Katalogdateien& dateien_;
  std::map<std::string, std::unique_ptr<Bauteile>> offen_;
};

}  // namespace

void KompSuch::Listen_fuellen() {
  Kataloglist.clear();
  for (Katalogzeile& zeile : dateien_.Katalogliste()) {
    const int typ = Katalogtyp(dateien_, zeile.code);
    Kataloglist.push_back({std::move(zeile.code), typ, std::move(zeile.Text)});
  }
  Herstellerlist.clear();
  for (Indexzeile& zeile : dateien_.Index(Suchart)) {
    const auto derselbe = [&](const std::string& name) { return gleich(name, zeile.Hersteller); };
    if (!zeile.Hersteller.empty() && std::ranges::none_of(Herstellerlist, derselbe))
      Herstellerlist.push_back(std::move(zeile.Hersteller));
  }
}

void KompSuch::Suchen() {
  Ergebnisse.clear();
  const std::vector<std::string> produkte = verborgene(dateien_.ablage);
  const Suchmuster muster(Suchtext);
  Offene offene(dateien_);
  for (Indexzeile& zeile : dateien_.Index(Suchart)) {
    if (!gewaehlt(Hersteller, zeile.Hersteller) || !gewaehlt(Katalog, zeile.code)) continue;
    Ergebnis ergebnis;
    ergebnis.verborgen = ist_verborgen(produkte, zeile.code);
    if (!ergebnis.verborgen) {
      Bauteile& bauteile = offene.hol(zeile.code);
      ergebnis.fehlt = !bauteile.lesbar();
      ergebnis.Typ = bauteile.Typ();
      ergebnis.Treffer = bauteile.suche(zeile.Anfang, Satzzahl, muster);
    }
    ergebnis.zeile = std::move(zeile);
    Ergebnisse.push_back(std::move(ergebnis));
  }
}

std::size_t KompSuch::Trefferzahl() const {
  std::size_t anzahl = 0;
  for (const Ergebnis& ergebnis : Ergebnisse) anzahl += ergebnis.Treffer.size();
  return anzahl;
}

}  // namespace polarkreis
