#include <cmath>
#include <string>
#include <utility>

#include "refrigerant/kaeltemittel.h"

namespace polarkreis {
namespace {

constexpr const char* ort = "refrigerant table";
constexpr int dateinummer = 90;      // used for a moment only, by no one else
constexpr double zeilenschritt = 5;  // kelvin from row to row of every table
constexpr double nullpunkt = 273.15;

// An absent table is opened as any input is, which may leave an empty file behind.
void wie_eingabe_oeffnen(Ablage& ablage, const std::string& datei) {
  ablage.Datei_Lesen(datei, dateinummer);
  ablage.Datei_Schliessen(dateinummer);
}

}  // namespace

// Tells once what a table lacks; an empty one is told again only after another table was empty or
// this one had rows.
void Kaeltemittel::mangel_melden(const std::string& datei, int bruch, bool leere) {
  if (bruch != 0) {
    ablage_.meldungen().melde(
        ort, datei, "row " + std::to_string(bruch) + " can't be read; the table ends there");
  } else if (leere && leere_gemeldet_ != datei) {
    ablage_.meldungen().melde(ort, datei, "the table is missing or empty; former values stay");
  }
  if (leere)
    leere_gemeldet_ = datei;
  else if (leere_gemeldet_ == datei)
    leere_gemeldet_.clear();
}

const SatTabelle& Kaeltemittel::tabelle(const std::string& datei) {
  return tabelle_.hol(ablage_, datei, [&](std::optional<std::string>&& text) {
    if (!text) wie_eingabe_oeffnen(ablage_, datei);
    SatTabelle gelesen = sat_tabelle_lesen(datei, std::move(text));
    mangel_melden(datei, gelesen.bruch, gelesen.zeilen.empty());
    return gelesen;
  });
}

const CO2Daten& Kaeltemittel::co2_daten() {
  return co2_.hol(ablage_, co2_datei_, [&](std::optional<std::string>&& text) {
    if (!text) wie_eingabe_oeffnen(ablage_, co2_datei_);
    CO2Daten gelesen = co2_daten_lesen(std::move(text));
    mangel_melden(co2_datei_, gelesen.bruch, gelesen.zeilen.empty());
    return gelesen;
  });
}

bool Kaeltemittel::KM_Tabelle_da() {
  const KMEintrag* e = eintrag();
  if (!e) return false;
  const Schrittfolge eine_pruefung(ablage_);
  // Asked before a run: an absent table isn't opened, so that a run that can't start leaves no
  // file.
  if (!ablage_.vorhanden(e->datei) || (ist_CO2() && !ablage_.vorhanden("CO2_sh01.dat"))) {
    return false;
  }
  if (tabelle(std::string(e->datei)).zeilen.empty()) return false;
  return !ist_CO2() || !co2_daten().zeilen.empty();
}

const std::vector<SatZeile>& Kaeltemittel::Tabellenzeilen() {
  return KM_Datei() != 0 ? tabelle(z.RefFile).zeilen : ohne_zeilen_;
}

SatTreffer Kaeltemittel::suche(double key, int mode) {
  z.SatGeladen = 0;
  z.SatGefunden = 0;
  const int figur = KM_Datei();
  if (figur == 0) return {};
  if (mode == 33) {
    z.SatGeladen = figur;
    return {};
  }
  const SatTabelle& t = tabelle(z.RefFile);
  const auto spalte = mode == 1   ? SatTabelle::nach_p_d
                      : mode == 2 ? SatTabelle::nach_p_b
                                  : SatTabelle::nach_T;
  const SatTreffer treffer = t.suche(key, spalte);
  const auto uebernehmen = [&](int zeile, SatZeile& ziel) {
    if (zeile < 0) return;
    ziel = t.zeilen[static_cast<std::size_t>(zeile)];
    if (mode == 1) std::swap(ziel.T, ziel.p_d);
    if (mode == 2) std::swap(ziel.T, ziel.p_b);
  };
  uebernehmen(treffer.unten, z.Klammer.Unten);
  uebernehmen(treffer.oben, z.Klammer.Oben);
  return treffer;
}

void Kaeltemittel::Sat_Suchen(double key, int mode) {
  suche(key, mode);
}

// Temperature in °C of one line of the blend at the pressure `p`. `temperatur` is the column that
// holds it after a search in `mode`. Below the table it is the first row's; the row below would be
// one of another search.
double Kaeltemittel::linie(double p, int mode, double SatZeile::*temperatur, double& f) {
  const SatTreffer treffer = suche(p, mode);
  setze(f, Sat_f(p));
  double t = 0;
  if (treffer.oben >= 0 && treffer.unten < 0)
    setze(t, z.Klammer.Oben.*temperatur - nullpunkt);
  else
    setze(t, (z.Klammer.Unten.*temperatur - nullpunkt) + f * zeilenschritt);
  return t;
}

// Temperature of a blend's evaporator that liquid of `T_eintritt` K enters; the bracket holds the
// bubble line at `p`.
double Kaeltemittel::mit_eintritt(double p, double t_d, double t_b, double T_eintritt, double& f) {
  double h1 = 0, h2 = 0, h3 = 0, w = 0, t = 0;
  setze(h1, Sat_Wert_f(&SatZeile::h_l, f));
  suche(p, 1);
  setze(f, Sat_f(p));
  setze(h2, z.Klammer.Unten.h_v);  // without interpolation
  suche(T_eintritt, 0);
  setze(f, Sat_f(T_eintritt));
  setze(h3, Sat_Wert_f(&SatZeile::h_l, f));
  setze(w, ((h2 - h3) / (h2 - h1)) / 2);
  setze(t, t_b + std::abs(t_d - t_b) * (1 - w));
  return t;
}

double Kaeltemittel::Sat_TausP(double p, double mode) {
  const Schrittfolge eine_abfrage(ablage_);
  double f = 0;
  const double t_d = linie(p, 1, &SatZeile::p_d, f);
  double t = t_d;
  if (!(z.Klammer.Unten.T == z.Klammer.Unten.p_b)) {
    const double t_b = linie(p, 2, &SatZeile::p_b, f);
    if (mode == 177 || mode == 187 || mode == 167) {
      suche(p, 1);  // the dew line's bracket is what the caller finds
      t = mode == 177 ? (t_b + t_d) / 2 : mode == 187 ? t_b : t_d;
    } else {
      t = mit_eintritt(p, t_d, t_b, mode, f);
    }
  }
  return geschnitten(t);
}

}  // namespace polarkreis
