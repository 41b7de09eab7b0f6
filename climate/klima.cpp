#include "climate/klima.h"

#include <algorithm>
#include <utility>

#include "climate/lesen.h"
#include "shell/items.h"
#include "shell/text.h"

namespace polarkreis {

namespace {

constexpr std::size_t Namenslaenge = 8;
constexpr std::string_view Standarddatei = "AC_CITY.DAT";
constexpr std::string_view Standardland = "GERMANY_";
constexpr double Feuchte_Winter = 80;

enum Feld {
  F_Stadt,
  F_T_Sommer_hoch,
  F_Feuchte_Sommer_hoch,
  F_T_Diff,
  F_T_Sommer_tief,
  F_Feuchte_Sommer_tief,
  F_T_Winter_hoch,
  F_T_Winter_tief,
  F_Hoehe,
  F_Breite
};

bool blank(std::string_view text) {
  return getrimmt(text).empty();
}

}  // namespace

std::string Klima::Klima_Dateiname(std::string& land) {
  if (blank(land)) return std::string(Standarddatei);
  const std::size_t laenge = zeichenzahl(land);
  if (laenge < Namenslaenge) land.append(Namenslaenge - laenge, '_');
  const std::string_view kopf = erste_zeichen(land, Namenslaenge);
  if (gross(kopf) == Standardland) return std::string(Standarddatei);
  if (kopf.find_first_of("/\\") != std::string_view::npos) return {};
  return std::string(kopf) + ".DAT";
}

std::string Klima::land_anzeige(std::string_view land) {
  while (land.ends_with('_')) land.remove_suffix(1);
  return std::string(land);
}

bool Klima::gleiches_land(std::string_view a, std::string_view b) {
  return gleich(land_anzeige(getrimmt(a)), land_anzeige(getrimmt(b)));
}

bool Klimasatz::vollstaendig() const {
  const double zahlen[] = {T_Sommer_hoch, Feuchte_Sommer_hoch, T_Diff_Tag_Nacht,
                           T_Sommer_tief, Feuchte_Sommer_tief, T_Winter_hoch,
                           T_Winter_tief};
  return std::ranges::none_of(zahlen, ist_leer);
}

Klimasatz Klima::satz_aus(const Stadttexte& felder) {
  const auto zahl = [&](Feld feld) { return felder[feld] ? Wert(*felder[feld]) : leer; };
  Klimasatz satz;
  satz.T_Sommer_hoch = zahl(F_T_Sommer_hoch);
  satz.Feuchte_Sommer_hoch = zahl(F_Feuchte_Sommer_hoch);
  satz.T_Diff_Tag_Nacht = zahl(F_T_Diff);
  satz.T_Sommer_tief = zahl(F_T_Sommer_tief);
  satz.Feuchte_Sommer_tief = zahl(F_Feuchte_Sommer_tief);
  satz.T_Winter_hoch = zahl(F_T_Winter_hoch);
  satz.T_Winter_tief = zahl(F_T_Winter_tief);
  satz.Hoehe = zahl(F_Hoehe);
  if (!felder[F_Breite]) return satz;
  std::string_view breite = links_getrimmt(*felder[F_Breite]);
  satz.suedlich = breite.starts_with('S') || breite.starts_with('s');
  if (satz.suedlich) breite.remove_prefix(1);
  satz.Breite = Wert(breite);
  return satz;
}

Klima::Stadttabelle Klima::zerlegt(std::string_view inhalt, std::string_view datei) {
  Stadttabelle tabelle;
  ItemLeser leser(inhalt);
  while (!leser.ende() && tabelle.size() < Staedtezahl) {
    Stadttexte felder;
    for (auto& feld : felder) {
      std::string text;
      if (leser.lies(text)) feld = std::move(text);
    }
    tabelle.push_back(
        {std::string(getrimmt(felder[F_Stadt].value_or(std::string()))), satz_aus(felder)});
    if (!felder.back() && !tabelle.back().name.empty())
      melde_einmal(datei, "ends within the record of " + tabelle.back().name +
                              ": the figures that are missing are empty");
  }
  return tabelle;
}

/// A year asks for its city hundreds of times: what is told of a table is told until it is another.
void Klima::melde_einmal(std::string_view datei, const std::string& text) {
  std::string ganz = std::string(datei) + text;
  if (gemeldet_ == ganz) return;
  gemeldet_ = std::move(ganz);
  ablage_.meldungen().melde("Klima_Wert", datei, text);
}

std::string Klima::Stadtdatei() {
  std::string datei = Klima_Dateiname(Land);
  if (datei.empty())
    melde_einmal(land_anzeige(Land),
                 "is no country: its name must not hold \"/\" or \"\\\"; no table is opened");
  return datei;
}

const Klima::Stadttabelle& Klima::tabelle() {
  static const Stadttabelle keine;
  const std::string datei = Stadtdatei();
  if (datei.empty()) return keine;
  return kopie_.hol(ablage_, datei, [&](std::optional<std::string>&& inhalt) {
    if (!inhalt) leer_anlegen(ablage_, datei);
    return zerlegt(inhalt.value_or(std::string()), datei);
  });
}

const Klima::Stadt_mit_Satz* Klima::suche(std::string_view stadt) {
  const Stadttabelle& staedte = tabelle();
  const auto treffer = std::ranges::find(staedte, getrimmt(stadt), &Stadt_mit_Satz::name);
  return treffer == staedte.end() ? nullptr : &*treffer;
}

std::optional<Klimasatz> Klima::satz(std::string_view stadt) {
  const Stadt_mit_Satz* gefunden = suche(stadt);
  if (!gefunden) return std::nullopt;
  return gefunden->satz;
}

double Klima::Feuchte_Monat(double F) const {
  if (ist_leer(F)) F = 0;
  // Share of the way from the stored summer figure to the winter's 80 %, January first.
  static constexpr std::array<double, 12> Anteil{1, .86, .67, .5, .34, .17,
                                                 0, .17, .34, .5, .67, .86};
  constexpr int Juli = 7;
  if (Monat_aktuell.empty()) return leer;
  for (int m = 1; m <= 12; ++m) {
    if (captions_.monat(m) != Monat_aktuell) continue;
    if (m == Juli) return F;
    const double D = Feuchte_Winter - F;
    return Int(F + Anteil[static_cast<std::size_t>(m - 1)] * D);
  }
  return leer;
}

double Klima::Klima_Wert(std::string_view stadt, int selektor) {
  const Stadt_mit_Satz* gefunden = suche(stadt);
  const Klimawahl wahl{selektor};
  if (wahl == Klimawahl::Feuchte_Monat)
    return Feuchte_Monat(gefunden ? gefunden->satz.Feuchte_Sommer_hoch : leer);
  const Klimasatz satz = gefunden ? gefunden->satz : Klimasatz{};
  switch (wahl) {
    case Klimawahl::T_Sommer_hoch:
      return satz.T_Sommer_hoch;
    case Klimawahl::T_Winter_tief:
      return satz.T_Winter_tief;
    case Klimawahl::T_Diff_Tag_Nacht:
      return satz.T_Diff_Tag_Nacht;
    case Klimawahl::Breite:
      return satz.Breite;
    case Klimawahl::T_Sommer_tief:
      return satz.T_Sommer_tief;
    case Klimawahl::T_Winter_hoch:
      return satz.T_Winter_hoch;
    case Klimawahl::Hoehe:
      return satz.Hoehe;
    case Klimawahl::Feuchte_Sommer_tief:
      return satz.Feuchte_Sommer_tief;
    case Klimawahl::Feuchte_Monat:
      break;
  }
  return leer;
}

std::vector<std::string> Klima::laender() {
  std::vector<std::string> liste;
  const std::string inhalt = Datei_Inhalt(ablage_, Laenderdatei());
  ItemLeser leser(inhalt);
  std::string land;
  while (liste.size() < Laenderzahl && leser.lies(land) && !blank(land)) liste.push_back(land);
  return liste;
}

std::vector<std::string> Klima::staedte() {
  if (blank(Land)) Land = Standardland;
  std::vector<std::string> liste;
  for (const Stadt_mit_Satz& stadt : tabelle())
    if (!stadt.name.empty()) liste.push_back(stadt.name);
  return liste;
}

}  // namespace polarkreis
