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
  explicit Legendenkasten(const Schaubild& bild) : Eintraege(Legende(bild.Kurven)) {}

  double Wunschbreite() const override {
    double breiteste = 0;
    for (const Legendeneintrag& eintrag : Eintraege)
      breiteste = std::max(breiteste, Textbreite(eintrag.text, Tafelschrift));
    return breiteste > 0 ? Textanfang + breiteste : 0;
  }
  void richte_ein(double verfuegbar) override { breite = verfuegbar; }
  double Hoehe() const override { return Zeilenhoehe * static_cast<double>(Eintraege.size()); }

  void zeichne(Svg_Blatt& blatt, const Bildort& ecke) const override {
    blatt.Gruppe("Legende");
    double y = ecke.y + Zeilenhoehe / 2;
    for (const Legendeneintrag& eintrag : Eintraege) {
      blatt.Linie({ecke.x, y}, {ecke.x + Strichlaenge, y}, eintrag.strich);
      blatt.Text({ecke.x + Textanfang, y},
                 gekuerzt(eintrag.text, breite - Textanfang, Tafelschrift), {Tafelschrift});
      y += Zeilenhoehe;
    }
    blatt.Gruppe_Ende();
  }

 private:
  static constexpr double Zeilenhoehe = 19, Strichlaenge = 34, Textanfang = 44;

  std::vector<Legendeneintrag> Eintraege;
  double breite = 0;
};

class Tabellenkasten : public Tafelkasten {
 public:
  explicit Tabellenkasten(const Schaubild& bild) {
    if (bild.Marken.empty()) return;
    teile_Kopf(bild.Markenkopf);
    for (const Marke& marke : bild.Marken) {
      Zeilen.push_back({marke.Nummer});
      Zeilen.back().insert(Zeilen.back().end(), marke.Zellen.begin(), marke.Zellen.end());
    }
    miss_Spalten();
  }

  double Wunschbreite() const override { return Breite_hoechstens(1e9); }

  /// Smaller letters first, then the widest columns give way; a column of texts takes what is left.
  void richte_ein(double verfuegbar) override {
    breite = verfuegbar;
    if (Wunschbreite() > breite) {
      schriftgroesse = Kleine_Schrift;
      miss_Spalten();
    }
    double hoechstens = breite;
    while (Breite_hoechstens(hoechstens) > breite && hoechstens > 1) --hoechstens;
    for (Spalte& spalte : Spalten) spalte.breite = std::min(spalte.breite, hoechstens);
    const auto texte = std::find_if(Spalten.begin() + 1, Spalten.end(),
                                    [](const Spalte& spalte) { return !spalte.rechts; });
    const double frei = breite - Wunschbreite();
    if (texte != Spalten.end() && frei > 0) texte->breite += frei;
  }

  double Hoehe() const override {
    const double kopf = Kopfhoehe * static_cast<double>(Kopf.size());
    return kopf + (kopf > 0 ? Unter_Kopf : 0) + Zeilenhoehe * static_cast<double>(Zeilen.size());
  }

  void zeichne(Svg_Blatt& blatt, const Bildort& ecke) const override {
    blatt.Gruppe("Tabelle");
    double y = ecke.y;
    for (const std::vector<std::string>& zeile : Kopf) {
      zeichne_Zellen(blatt, {ecke.x, y + Kopfhoehe / 2}, zeile, 0,
                     {schriftgroesse, Anschlag::Anfang, "#555555", true});
      y += Kopfhoehe;
    }
    if (!Kopf.empty()) y += Unter_Kopf;
    for (const std::vector<std::string>& zeile : Zeilen) {
      if (y > ecke.y) blatt.Linie({ecke.x, y}, {ecke.x + breite, y}, {"#dddddd", 0.8});
      const double mitte = y + Zeilenhoehe / 2;
      const std::string& nummer = zeile.front();
      if (!nummer.empty())
        zeichne_Nummer(blatt, {ecke.x + Nummernbreite(nummer) / 2, mitte}, nummer);
      zeichne_Zellen(blatt, {ecke.x, mitte}, zeile, 1, {schriftgroesse});
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
    if (!oben.empty()) Kopf.push_back(oben);
    if (std::ranges::any_of(unten, [](const std::string& text) { return !text.empty(); }))
      Kopf.push_back(unten);
  }

  void miss_Spalten() {
    Spalten.clear();
    for (const std::vector<std::string>& zeile : Kopf) miss(zeile, true);
    for (const std::vector<std::string>& zeile : Zeilen) miss(zeile, false);
    Spalten.front().rechts = false;
  }

  void miss(const std::vector<std::string>& zeile, bool kopf) {
    if (Spalten.size() < zeile.size()) Spalten.resize(zeile.size(), {0, true});
    for (std::size_t i = 0; i < zeile.size(); ++i) {
      const bool nummer = i == 0 && !kopf;
      const double bedarf =
          nummer ? Nummernbreite(zeile[i]) : Textbreite(zeile[i], schriftgroesse, kopf);
      Spalten[i].breite = std::max(Spalten[i].breite, bedarf);
      if (!kopf && !ist_Zahl(zeile[i])) Spalten[i].rechts = false;
    }
  }

  /// A missing figure counts as one.
  static bool ist_Zahl(const std::string& zelle) {
    return getrimmt(zelle) == "-" || !std::holds_alternative<std::string>(als_Tabellenzelle(zelle));
  }

  double Breite_hoechstens(double hoechstens) const {
    double summe = 0;
    for (const Spalte& spalte : Spalten) summe += std::min(spalte.breite, hoechstens) + Luft;
    return std::max(0.0, summe - Luft);
  }

  void zeichne_Zellen(Svg_Blatt& blatt, Bildort ort, const std::vector<std::string>& zeile,
                      std::size_t ab, Schrift schrift) const {
    for (std::size_t i = 0; i < zeile.size(); ++i) {
      const Spalte& spalte = Spalten[i];
      schrift.anschlag = spalte.rechts ? Anschlag::Ende : Anschlag::Anfang;
      if (i >= ab)
        blatt.Text({ort.x + (spalte.rechts ? spalte.breite : 0), ort.y},
                   gekuerzt(zeile[i], spalte.breite, schrift.groesse, schrift.fett), schrift);
      ort.x += spalte.breite + Luft;
    }
  }

  std::vector<std::vector<std::string>> Kopf, Zeilen;
  std::vector<Spalte> Spalten;
  double schriftgroesse = Tafelschrift;
  double breite = 0;
};

class Textkasten : public Tafelkasten {
 public:
  explicit Textkasten(const Schaubild& bild) : Texte(bild.Texte) {}

  double Wunschbreite() const override {
    double breiteste = 0;
    for (const std::string& text : Texte) {
      const auto [links, rechts] = geteilt(text);
      const double luft = rechts.empty() ? 0 : 2 * Rand;
      breiteste = std::max(
          breiteste, Textbreite(links, Tafelschrift) + luft + Textbreite(rechts, Tafelschrift));
    }
    return std::min(breiteste, Breit_genug);
  }

  void richte_ein(double verfuegbar) override {
    breite = verfuegbar;
    Zeilen.clear();
    for (const std::string& text : Texte) {
      auto [links, rechts] = geteilt(text);
      const double wertbreite = Textbreite(rechts, Tafelschrift);
      if (wertbreite > breite / 2) links += ' ' + std::exchange(rechts, {});
      const double luft = rechts.empty() ? 0 : wertbreite + Rand;
      for (const std::string& teil : umbrochen(links, breite - luft, Tafelschrift))
        Zeilen.push_back({teil, ""});
      Zeilen.back().rechts = rechts;
    }
  }

  double Hoehe() const override { return Zeilenhoehe * static_cast<double>(Zeilen.size()); }

  void zeichne(Svg_Blatt& blatt, const Bildort& ecke) const override {
    blatt.Gruppe("Texte");
    double y = ecke.y + Zeilenhoehe / 2;
    for (const Zeile& zeile : Zeilen) {
      blatt.Text({ecke.x, y}, zeile.links, {Tafelschrift});
      blatt.Text({ecke.x + breite, y}, zeile.rechts, {Tafelschrift, Anschlag::Ende});
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

  const std::vector<std::string>& Texte;
  std::vector<Zeile> Zeilen;
  double breite = 0;
};

}  // namespace

Tafel::Tafel(const Schaubild& bild) {
  constexpr double Schmalste = 220, Breiteste = 430;
  Kaesten.push_back(std::make_unique<Legendenkasten>(bild));
  Kaesten.push_back(std::make_unique<Tabellenkasten>(bild));
  Kaesten.push_back(std::make_unique<Textkasten>(bild));
  std::erase_if(Kaesten, [](const auto& kasten) { return kasten->Wunschbreite() <= 0; });
  if (Kaesten.empty()) return;
  for (const auto& kasten : Kaesten) breite = std::max(breite, kasten->Wunschbreite() + 2 * Rand);
  breite = std::clamp(breite, Schmalste, Breiteste);
  for (const auto& kasten : Kaesten) {
    kasten->richte_ein(breite - 2 * Rand);
    hoehe += kasten->Hoehe() + 2 * Innenrand + Kastenabstand;
  }
  hoehe -= Kastenabstand;
}

void Tafel::zeichne(Svg_Blatt& blatt, const Bildort& ecke) const {
  double y = ecke.y;
  blatt.Gruppe("Tafel");
  for (const auto& kasten : Kaesten) {
    const double kastenhoehe = kasten->Hoehe() + 2 * Innenrand;
    blatt.Rechteck({ecke.x, y, breite, kastenhoehe}, {"#ffffff", "#bbbbbb", 1, 3});
    kasten->zeichne(blatt, {ecke.x + Rand, y + Innenrand});
    y += kastenhoehe + Kastenabstand;
  }
  blatt.Gruppe_Ende();
}

}  // namespace polarkreis
