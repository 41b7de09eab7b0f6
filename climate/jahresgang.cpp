#include "climate/jahresgang.h"

#include <algorithm>
#include <cmath>

#include "shell/items.h"

namespace polarkreis {

namespace {

constexpr std::string_view Gangdatei = "JG_Temp.dat";

enum Spalte : std::size_t { S_Monat, S_T_Tag, S_T_Nacht, S_Last_Tag, S_Last_Nacht };

/// How a month stands between winter and summer.
struct Monatsform {
  std::size_t K;  // step of the table, from 0
  double H;       // autumn lift as a share of the day-night difference
  double W;       // night weight
};
constexpr std::array<Monatsform, 12> Monatsformen{{{0, 0, .3},
                                                   {1, 0, .45},
                                                   {2, 0, .6},
                                                   {3, 0, .7},
                                                   {4, 0, .8},
                                                   {5, 0, .9},
                                                   {6, 0, 1},
                                                   {5, .12, .9},
                                                   {4, .1, .8},
                                                   {3, .08, .7},
                                                   {2, .06, .6},
                                                   {1, .04, .45}}};

void setze_Text(std::string& target, double value) {
  if (std::isfinite(value)) target = Zahl_Text(value);
}

double oder_null(double value) {
  return ist_leer(value) ? 0 : value;
}

}  // namespace

std::string Monatsname(const Captions& captions, int m, const std::string& text) {
  if (text == captions.monat(m)) return text;
  const int zeile[] = {static_cast<int>(AirCoCap::Januar) + m - 1};
  for (const std::string_view sprache : Sprachen()) {
    std::string name =
        captions.Caption_Uebersetzen(Stamm::AirCoCap, zeile, sprache, captions.Sprache, text);
    if (name != text) return name;
  }
  return text;
}

JahresGang::JahresGang(Ablage& ablage, const Captions& captions, Klima& klima)
    : ablage_(ablage), captions_(captions), klima_(klima) {
  Monatsnamen_setzen();
}

void JahresGang::Monatsnamen_setzen() {
  for (int m = 1; m <= 12; ++m)
    Spread1[static_cast<std::size_t>(m - 1)][S_Monat] = captions_.monat(m);
}

void JahresGang::oeffnen(std::string_view anwendung) {
  Laender = klima_.laender();
  Orte = klima_.staedte();
  const auto land = std::ranges::find_if(
      Laender, [&](const std::string& l) { return Klima::gleiches_land(l, klima_.Land); });
  Combo1 = land != Laender.end() ? *land : Klima::land_anzeige(klima_.Land);
  OrteListe = klima_.Stadt;
  AnwendBereich = anwendung;
  Temperaturverlauf_rechnen();
  Profil_laden(AnwendBereich);
  Monatsnamen_setzen();
}

void JahresGang::Combo1_aendern(std::string_view land) {
  Combo1 = land;
  klima_.Land = Klima::land_anzeige(Combo1);
  Orte = klima_.staedte();
  if (std::ranges::find(Orte, OrteListe) != Orte.end()) return;
  OrteListe = Orte.empty() ? std::string() : Orte.front();
}

void JahresGang::OrteListe_aendern(std::string_view stadt) {
  OrteListe = stadt;
  Profil_laden(AnwendBereich);
}

void JahresGang::AnwendBereich_aendern(std::string_view anwendung) {
  AnwendBereich = anwendung;
  Profil_laden(AnwendBereich);
}

void JahresGang::Option3d(int nummer) {
  if (nummer < 1 || nummer > 6) return;
  (nummer <= 3 ? Spitze_Option : Sockel_Option) = nummer;
  Temperaturverlauf_rechnen();
}

void JahresGang::rechbutt() {
  Temperaturverlauf_rechnen();
  Profil_laden(AnwendBereich);
}

bool JahresGang::OKbutt() {
  klima_.Land = Klima::land_anzeige(Combo1);
  klima_.Stadt = OrteListe;
  Gang_da = Monatstabelle_schreiben();
  return Gang_da;
}

void JahresGang::Stufen_rechnen(const Klimasatz& satz) {
  const double D = satz.T_Diff_Tag_Nacht;
  Stufen& s = stufen_;
  s.a = satz.T_Sommer_hoch - D / 3;
  s.b = satz.T_Sommer_tief - D / 4;
  s.c = s.b - s.a;
  s.e = (s.a - s.c) - D / 3;
  switch (Sockel_Option) {
    case 4:
      s.Sockel = satz.T_Winter_hoch + 0.3 * D;
      break;
    case 5:
      s.Sockel = Int(10 * (0.4 * D + (satz.T_Winter_hoch + satz.T_Winter_tief) / 2 + 0.05)) / 10;
      break;
    default:
      s.Sockel = satz.T_Winter_tief;
      break;
  }
  switch (Spitze_Option) {
    case 1:
      s.Spitze = s.e;
      break;
    case 2:
      s.Spitze = s.a;
      break;
    default:
      s.Spitze = s.b;
      break;
  }
  const double d = s.Spitze - s.Sockel;
  s.K = {d, Int(0.85 * d), Int(0.65 * d), Int(0.5 * d), Int(0.3 * d), Int(0.1 * d), 0};
}

void JahresGang::Monat_rechnen(std::size_t m, double D) {
  const Monatsform& form = Monatsformen[m];
  const double H = form.H * D;
  const double K = stufen_.K[form.K];
  const double T_Tag = Int(10 * (stufen_.Spitze + H + 0.05 - K)) / 10;
  const double T_Nacht = T_Tag - Int(10 * (0.05 + D * form.W)) / 10;
  setze_Text(Spread1[m][S_T_Tag], T_Tag);
  setze_Text(Spread1[m][S_T_Nacht], T_Nacht);
}

void JahresGang::Temperaturverlauf_rechnen() {
  const auto wert = [&](Klimawahl wahl) {
    return oder_null(klima_.Klima_Wert(OrteListe, static_cast<int>(wahl)));
  };
  // One table, one place: what twelve queries would give is asked once.
  Klimasatz satz;
  satz.T_Sommer_hoch = wert(Klimawahl::T_Sommer_hoch);
  satz.T_Winter_tief = wert(Klimawahl::T_Winter_tief);
  satz.T_Diff_Tag_Nacht = wert(Klimawahl::T_Diff_Tag_Nacht);
  satz.T_Sommer_tief = wert(Klimawahl::T_Sommer_tief);
  satz.T_Winter_hoch = wert(Klimawahl::T_Winter_hoch);
  Stufen_rechnen(satz);
  for (std::size_t m = 0; m < Monatsformen.size(); ++m) Monat_rechnen(m, satz.T_Diff_Tag_Nacht);
}

bool JahresGang::Monatstabelle_schreiben() {
  std::string inhalt;
  zeile_anhaengen(inhalt, {Combo1});
  zeile_anhaengen(inhalt, {OrteListe});
  zeile_anhaengen(inhalt, {"", "", "", "", "", "", "", ""});
  for (const auto& monat : Spread1)
    for (const std::string& zelle : monat) zeile_anhaengen(inhalt, {zelle});
  return ablage_.schreib_ganz(Gangdatei, inhalt);
}

Monatstabelle Monatstabelle_lesen(Ablage& ablage) {
  constexpr int Leertexte = 8;
  constexpr int Leerspalten = 5;
  const std::string inhalt = ablage.lies_ganz(Gangdatei).value_or(std::string());
  Monatstabelle tabelle;
  tabelle.da = !inhalt.empty();
  ItemLeser leser(inhalt);
  tabelle.Land = leser.lies();
  tabelle.Stadt = leser.lies();
  for (int i = 0; i < Leertexte; ++i) leser.lies();
  for (Monatszeile& zeile : tabelle.monate) {
    zeile = {leser.lies(), leser.lies(), leser.lies(), leser.lies(), leser.lies()};
    for (int i = 0; i < Leerspalten; ++i) leser.lies();
  }
  return tabelle;
}

void JahresGang::Spalte_fuellen(int zeile, int spalte) {
  const bool Lastspalte = spalte == S_Last_Tag + 1 || spalte == S_Last_Nacht + 1;
  if (!Lastspalte || zeile < 1 || zeile > 12) return;
  const auto s = static_cast<std::size_t>(spalte - 1);
  const std::string zelle = Spread1[static_cast<std::size_t>(zeile - 1)][s];
  for (auto& monat : Spread1) monat[s] = zelle;
}

std::array<std::string, 5> JahresGang::Spaltenkoepfe() const {
  const std::string T = captions_.text(AirCoCap::Temperatur) + " - ";
  const std::string Last = captions_.text(JMapCap::Last) + " - ";
  const std::string& tag = captions_.text(JMapCap::Tag);
  const std::string& nacht = captions_.text(JMapCap::Nacht);
  return {captions_.text(JMapCap::Monat), T + tag + " (15:00) /[°C]", T + nacht + " (5:00) /[°C]",
          Last + tag + " /[%]", Last + nacht + " /[%]"};
}

}  // namespace polarkreis
