#include "climate/wrg.h"

#include <span>

#include "climate/lesen.h"
#include "shell/items.h"
#include "shell/text.h"
#include "shell/wert.h"

namespace polarkreis {

namespace {

constexpr std::string_view Heizdatei = "SPEZBK.DAT";

/// Places in the file, from 0.
enum Item : std::size_t {
  I_tWasser,
  I_dt_WTenth,
  I_DT_verfl,
  I_Brennstoff,
  I_Preis,
  I_Heizwert,
  I_CO2,
  I_WirkGK,
  I_Verlust,
  I_Leertexte,
  I_Text11,
  I_Text12,
  I_Text13,
  I_Text14,
  I_Combo3_1,
  I_Combo1_1,
  I_Combo2_1
};
constexpr int Leertexte = 10;

constexpr std::array<Heatcap, 4> Brennstoffe{Heatcap::Heizoel, Heatcap::Erdgas,
                                             Heatcap::Holzpellets, Heatcap::Strom};
constexpr std::array<Heatcap, 4> Kesselarten{Heatcap::Kessel_alt, Heatcap::Kessel_Standard,
                                             Heatcap::Kessel_Niedertemperatur,
                                             Heatcap::Kessel_Brennwert};
constexpr std::array<Heatcap, 3> Verteilungen{Heatcap::Verteilung_gut, Heatcap::Verteilung_mittel,
                                              Heatcap::Verteilung_schlecht};

constexpr int Pellets = 3;
constexpr int Strom = 4;
constexpr std::string_view CO2_Strom_Standard = ".58";
constexpr std::size_t CO2_Item = 4;  // fifth of the energy file

bool blank(std::string_view text) {
  return getrimmt(text).empty();
}

int nummer(const Captions& captions, std::span<const Heatcap> eintraege, std::string_view text) {
  if (blank(text)) return 0;
  for (std::size_t i = 0; i < eintraege.size(); ++i)
    if (gleich(captions.text(eintraege[i]), text)) return static_cast<int>(i) + 1;
  return 0;
}

}  // namespace

int WRG::Brennstoff_Nummer() const {
  return nummer(captions_, Brennstoffe, Combo3_1);
}

int WRG::Kessel_Nummer() const {
  return nummer(captions_, Kesselarten, Combo1_1);
}

int WRG::Verteilung_Nummer() const {
  return nummer(captions_, Verteilungen, Combo2_1);
}

double WRG::Heizwert(int Brennstoff, int Welche) {
  static constexpr std::array<double, 4> Heizwerte{10.5, 9.85, 5.6, 1};
  static constexpr std::array<double, 3> CO2{2.66, 2.02, .2};
  if (Brennstoff < 1 || Brennstoff > Strom) return leer;
  const auto i = static_cast<std::size_t>(Brennstoff - 1);
  if (Welche == 1) return Heizwerte[i];
  if (Welche != 2) return leer;
  if (Brennstoff != Strom) return CO2[i];
  const std::string inhalt = ablage_.lies_ganz(Energiedatei).value_or(std::string());
  ItemLeser leser(inhalt);
  for (std::size_t n = 0; n < CO2_Item; ++n) leser.lies();
  const std::string strom = leser.lies();
  return Wert(blank(strom) ? CO2_Strom_Standard : strom);
}

double WRG::WirkGK_vorschlag() {
  struct Kessel {
    double Pellets, andere;
  };
  // None of the kinds counts as the standard boiler.
  static constexpr std::array<Kessel, 5> Tabelle{
      {{80, 90}, {75, 80}, {80, 90}, {85, 96}, {88, 105}}};
  const Kessel& kessel = Tabelle[static_cast<std::size_t>(Kessel_Nummer())];
  const double vorschlag = Brennstoff_Nummer() == Pellets ? kessel.Pellets : kessel.andere;
  WirkGK = Zahl_Text(vorschlag);
  return vorschlag;
}

double WRG::Verlust_vorschlag() {
  static constexpr std::array<double, 4> Tabelle{8, 6, 8, 12};
  const double vorschlag = Tabelle[static_cast<std::size_t>(Verteilung_Nummer())];
  Verlust = Zahl_Text(vorschlag);
  WirkGK_vorschlag();
  return vorschlag;
}

WRG::Items WRG::standard() const {
  const std::string& Brennstoff = captions_.text(Brennstoffe.front());
  return {"15",
          "6",
          "6",
          Brennstoff,
          ".55",
          "10.5",
          "2.66",
          "90",
          "8",
          "",
          ".55",
          ".71",
          ".26",
          ".14",
          Brennstoff,
          captions_.text(Heatcap::Kessel_Standard),
          captions_.text(Heatcap::Verteilung_mittel)};
}

WRG::Items WRG::lies() const {
  const std::string inhalt = Datei_Inhalt(ablage_, std::string(Heizdatei));
  ItemLeser leser(inhalt);
  Items items = standard();
  for (std::size_t i = 0; i < items.size(); ++i) {
    const int leertexte = i == I_Leertexte ? Leertexte : 1;
    std::string gelesen;
    for (int n = 0; n < leertexte; ++n) gelesen = leser.lies();
    if (i != I_Leertexte && !blank(gelesen)) items[i] = gelesen;
  }
  return items;
}

bool WRG::schreib(const Items& items) {
  std::string inhalt;
  for (std::size_t i = 0; i < items.size(); ++i) {
    if (i == I_Leertexte)
      zeile_anhaengen(inhalt, {"", "", "", "", "", "", "", "", "", ""});
    else
      zeile_anhaengen(inhalt, {items[i]});
  }
  return ablage_.schreib_ganz(Heizdatei, inhalt);
}

void WRG::WRG_laden() {
  const Items items = lies();
  tWasser = items[I_tWasser];
  dt_WTenth = items[I_dt_WTenth];
  DT_verfl = items[I_DT_verfl];
  WirkGK = items[I_WirkGK];
  Verlust = items[I_Verlust];
  for (std::size_t i = 0; i < Text11_14.size(); ++i) Text11_14[i] = items[I_Text11 + i];
  Combo3_1 = items[I_Combo3_1];
  Combo1_1 = items[I_Combo1_1];
  Combo2_1 = items[I_Combo2_1];
}

WRG::Items WRG::aus_Feldern() {
  const int Brennstoff = Brennstoff_Nummer();
  const std::string Preis =
      Brennstoff == 0 ? std::string() : Text11_14[static_cast<std::size_t>(Brennstoff - 1)];
  return {tWasser,
          dt_WTenth,
          DT_verfl,
          Combo3_1,
          Preis,
          Zahl_Text(Heizwert(Brennstoff, 1)),
          Zahl_Text(Heizwert(Brennstoff, 2)),
          WirkGK,
          Verlust,
          "",
          Text11_14[0],
          Text11_14[1],
          Text11_14[2],
          Text11_14[3],
          Combo3_1,
          Combo1_1,
          Combo2_1};
}

bool WRG::WRG_speichern() {
  return schreib(aus_Feldern());
}

void WRG::sicherstellen() {
  if (!ablage_.vorhanden(Heizdatei)) schreib(standard());
}

Heizdaten WRG::heizdaten() {
  const Items items = lies();
  Heizdaten daten;
  setze(daten.T_Kaltwasser, Wert(items[I_tWasser]));
  setze(daten.dT_WW, Wert(items[I_dt_WTenth]));
  setze(daten.dT_Heiz, Wert(items[I_DT_verfl]));
  daten.Brennstoff = items[I_Brennstoff];
  setze(daten.Preis, Wert(items[I_Preis]));
  setze(daten.Heizwert, Wert(items[I_Heizwert]));
  setze(daten.CO2, Wert(items[I_CO2]));
  setze(daten.Wirkungsgrad, Wert(items[I_WirkGK]));
  setze(daten.Verlust, Wert(items[I_Verlust]));
  return daten;
}

}  // namespace polarkreis
