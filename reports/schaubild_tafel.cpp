#include "reports/schaubild_tafel.h"

#include <algorithm>
#include <string>
#include <utility>

#include "reports/schaubild_feld.h"
#include "reports/tabelle.h"
#include "shell/text.h"

namespace polarkreis {

namespace {

constexpr double Tafelschrift = 12;
constexpr double Rand = 12, Innenrand = 7;  // between a box and its contents, sideways and above
constexpr double Kastenabstand = 12;

class Legendenkasten : public Tafelkasten {
 public:
  explicit Legendenkasten(const Schaubild& bild) : eintraege_(Legende(bild.Kurven)) {}

  double Wunschbreite() const override {
    double breiteste = 0;
    for (const Legendeneintrag& eintrag : eintraege_)
      breiteste = std::max(breiteste, Textbreite(eintrag.text, Tafelschrift));
    return breiteste > 0 ? Textanfang + breiteste : 0;
  }
  void richte_ein(double verfuegbar) override { breite_ = verfuegbar; }
  double Hoehe() const override { return Zeilenhoehe * static_cast<double>(eintraege_.size()); }

  void zeichne(Svg_Blatt& blatt, const Bildort& ecke) const override {
    blatt.Gruppe("Legende");
    double y = ecke.y + Zeilenhoehe / 2;
    for (const Legendeneintrag& eintrag : eintraege_) {
      blatt.Linie({ecke.x, y}, {ecke.x + Strichlaenge, y}, eintrag.strich);
      blatt.Text({ecke.x + Textanfang, y},
                 gekuerzt(eintrag.text, breite_ - Textanfang, Tafelschrift), {Tafelschrift});
      y += Zeilenhoehe;
    }
    blatt.Gruppe_Ende();
  }

 private:
  static constexpr double Zeilenhoehe = 19, Strichlaenge = 34, Textanfang = 44;

  std::vector<Legendeneintrag> eintraege_;
  double breite_ = 0;
};

class Tabellenkasten : public Tafelkasten {
 public:
  explicit Tabellenkasten(const Schaubild& bild) {
    if (bild.Marken.empty()) return;
    teile_Kopf(bild.Markenkopf);
    for (const Marke& marke : bild.Marken) {
      zeilen_.push_back({marke.Nummer});
      zeilen_.back().insert(zeilen_.back().end(), marke.Zellen.begin(), marke.Zellen.end());
    }
    miss_Spalten();
  }

  double Wunschbreite() const override { return Breite_hoechstens(1e9); }

  /// Smaller letters first, then the widest columns give way; a column of texts takes what is left.
  void richte_ein(double verfuegbar) override {
    breite_ = verfuegbar;
    if (Wunschbreite() > breite_) {
      schriftgroesse_ = Kleine_Schrift;
      miss_Spalten();
    }
    double hoechstens = breite_;
    while (Breite_hoechstens(hoechstens) > breite_ && hoechstens > 1) --hoechstens;
    for (Spalte& spalte : spalten_) spalte.breite = std::min(spalte.breite, hoechstens);
    const auto texte = std::find_if(spalten_.begin() + 1, spalten_.end(),
                                    [](const Spalte& spalte) { return !spalte.rechts; });
    const double frei = breite_ - Wunschbreite();
    if (texte != spalten_.end() && frei > 0) texte->breite += frei;
  }

  double Hoehe() const override {
    const double kopf = Kopfhoehe * static_cast<double>(kopf_.size());
    return kopf + (kopf > 0 ? Unter_Kopf : 0) + Zeilenhoehe * static_cast<double>(zeilen_.size());
  }

  void zeichne(Svg_Blatt& blatt, const Bildort& ecke) const override {
    blatt.Gruppe("Tabelle");
    double y = ecke.y;
    for (const std::vector<std::string>& zeile : kopf_) {
      zeichne_Zellen(blatt, {ecke.x, y + Kopfhoehe / 2}, zeile, 0,
                     {schriftgroesse_, Anschlag::Anfang, "#555555", true});
      y += Kopfhoehe;
    }
    if (!kopf_.empty()) y += Unter_Kopf;
    for (const std::vector<std::string>& zeile : zeilen_) {
      if (y > ecke.y) blatt.Linie({ecke.x, y}, {ecke.x + breite_, y}, {"#dddddd", 0.8});
      const double mitte = y + Zeilenhoehe / 2;
      const std::string& nummer = zeile.front();
      if (!nummer.empty())
        zeichne_Nummer(blatt, {ecke.x + Nummernbreite(nummer) / 2, mitte}, nummer);
      zeichne_Zellen(blatt, {ecke.x, mitte}, zeile, 1, {schriftgroesse_});
      y += Zeilenhoehe;
    }
    blatt.Gruppe_Ende();
  }

 private:
  struct Spalte {
    double breite = 0;
    bool rechts = false;  ///< figures end at one place
  };

  static constexpr double Kopfhoehe = 16, Unter_Kopf = 3, Zeilenhoehe = 21, Luft = 10,
                          Kleine_Schrift = 10.5;

  /// A unit stands below its quantity.
  void teile_Kopf(const std::vector<std::string>& kopf) {
    std::vector<std::string> oben, unten;
    for (const std::string& text : kopf) {
      const std::size_t einheit = text.find(" [");
      oben.push_back(text.substr(0, einheit));
      unten.push_back(einheit == std::string::npos ? "" : text.substr(einheit + 1));
    }
    if (!oben.empty()) kopf_.push_back(oben);
    if (std::ranges::any_of(unten, [](const std::string& text) { return !text.empty(); }))
      kopf_.push_back(unten);
  }

  void miss_Spalten() {
    spalten_.clear();
    for (const std::vector<std::string>& zeile : kopf_) miss(zeile, true);
    for (const std::vector<std::string>& zeile : zeilen_) miss(zeile, false);
    spalten_.front().rechts = false;
  }

  void miss(const std::vector<std::string>& zeile, bool kopf) {
    if (spalten_.size() < zeile.size()) spalten_.resize(zeile.size(), {0, true});
    for (std::size_t i = 0; i < zeile.size(); ++i) {
      const bool nummer = i == 0 && !kopf;
      const double bedarf =
          nummer ? Nummernbreite(zeile[i]) : Textbreite(zeile[i], schriftgroesse_, kopf);
      spalten_[i].breite = std::max(spalten_[i].breite, bedarf);
      if (!kopf && !ist_Zahl(zeile[i])) spalten_[i].rechts = false;
    }
  }

  /// A missing figure counts as one.
  static bool ist_Zahl(const std::string& zelle) {
    return getrimmt(zelle) == "-" || !std::holds_alternative<std::string>(als_Tabellenzelle(zelle));
  }

  double Breite_hoechstens(double hoechstens) const {
    double summe = 0;
    for (const Spalte& spalte : spalten_) summe += std::min(spalte.breite, hoechstens) + Luft;
    return std::max(0.0, summe - Luft);
  }

  void zeichne_Zellen(Svg_Blatt& blatt, Bildort ort, const std::vector<std::string>& zeile,
                      std::size_t ab, Schrift schrift) const {
    for (std::size_t i = 0; i < zeile.size(); ++i) {
      const Spalte& spalte = spalten_[i];
      schrift.anschlag = spalte.rechts ? Anschlag::Ende : Anschlag::Anfang;
      if (i >= ab)
        blatt.Text({ort.x + (spalte.rechts ? spalte.breite : 0), ort.y},
                   gekuerzt(zeile[i], spalte.breite, schrift.groesse, schrift.fett), schrift);
      ort.x += spalte.breite + Luft;
    }
  }

  std::vector<std::vector<std::string>> kopf_, zeilen_;
  std::vector<Spalte> spalten_;
  double schriftgroesse_ = Tafelschrift;
  double breite_ = 0;
};

class Textkasten : public Tafelkasten {
 public:
  explicit Textkasten(const Schaubild& bild) : texte_(bild.Texte) {}

  double Wunschbreite() const override {
    double breiteste = 0;
    for (const std::string& text : texte_) {
      const auto [links, rechts] = geteilt(text);
      const double luft = rechts.empty() ? 0 : 2 * Rand;
      breiteste = std::max(
          breiteste, Textbreite(links, Tafelschrift) + luft + Textbreite(rechts, Tafelschrift));
    }
    return std::min(breiteste, Breit_genug);
  }

  void richte_ein(double verfuegbar) override {
    breite_ = verfuegbar;
    zeilen_.clear();
    for (const std::string& text : texte_) {
      auto [links, rechts] = geteilt(text);
      const double wertbreite = Textbreite(rechts, Tafelschrift);
      if (wertbreite > breite_ / 2) links += ' ' + std::exchange(rechts, {});
      const double luft = rechts.empty() ? 0 : wertbreite + Rand;
      for (const std::string& teil : umbrochen(links, breite_ - luft, Tafelschrift))
        zeilen_.push_back({teil, ""});
      zeilen_.back().rechts = rechts;
    }
  }

  double Hoehe() const override { return Zeilenhoehe * static_cast<double>(zeilen_.size()); }

  void zeichne(Svg_Blatt& blatt, const Bildort& ecke) const override {
    blatt.Gruppe("Texte");
    double y = ecke.y + Zeilenhoehe / 2;
    for (const Zeile& zeile : zeilen_) {
      blatt.Text({ecke.x, y}, zeile.links, {Tafelschrift});
      blatt.Text({ecke.x + breite_, y}, zeile.rechts, {Tafelschrift, Anschlag::Ende});
      y += Zeilenhoehe;
    }
    blatt.Gruppe_Ende();
  }

 private:
  struct Zeile {
    std::string links, rechts;
  };
  static constexpr double Zeilenhoehe = 17;
  static constexpr double Breit_genug = 280;  // a sentence is broken rather than make all wide

  /// A label and its value, parted by a tab.
  static Zeile geteilt(const std::string& text) {
    const std::size_t tab = text.find('\t');
    if (tab == std::string::npos) return {saubere_Zeile(text), ""};
    return {saubere_Zeile(text.substr(0, tab)), saubere_Zeile(text.substr(tab + 1))};
  }

  const std::vector<std::string>& texte_;
  std::vector<Zeile> zeilen_;
  double breite_ = 0;
};

}  // namespace

Tafel::Tafel(const Schaubild& bild) {
  constexpr double Schmalste = 220, Breiteste = 430;
  kaesten_.push_back(std::make_unique<Legendenkasten>(bild));
  kaesten_.push_back(std::make_unique<Tabellenkasten>(bild));
  kaesten_.push_back(std::make_unique<Textkasten>(bild));
  std::erase_if(kaesten_, [](const auto& kasten) { return kasten->Wunschbreite() <= 0; });
  if (kaesten_.empty()) return;
  for (const auto& kasten : kaesten_)
    breite_ = std::max(breite_, kasten->Wunschbreite() + 2 * Rand);
  breite_ = std::clamp(breite_, Schmalste, Breiteste);
  for (const auto& kasten : kaesten_) {
    kasten->richte_ein(breite_ - 2 * Rand);
    hoehe_ += kasten->Hoehe() + 2 * Innenrand + Kastenabstand;
  }
  hoehe_ -= Kastenabstand;
}

void Tafel::zeichne(Svg_Blatt& blatt, const Bildort& ecke) const {
  double y = ecke.y;
  blatt.Gruppe("Tafel");
  for (const auto& kasten : kaesten_) {
    const double kastenhoehe = kasten->Hoehe() + 2 * Innenrand;
    blatt.Rechteck({ecke.x, y, breite_, kastenhoehe}, {"#ffffff", "#bbbbbb", 1, 3});
    kasten->zeichne(blatt, {ecke.x + Rand, y + Innenrand});
    y += kastenhoehe + Kastenabstand;
  }
  blatt.Gruppe_Ende();
}

}  // namespace polarkreis
