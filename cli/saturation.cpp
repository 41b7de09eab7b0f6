#include <CLI/CLI.hpp>
#include <cmath>
#include <memory>
#include <string>

#include "ausgabe.h"
#include "sitzung.h"
#include "stoff.h"
#include "zahlen.h"

namespace polarkreis::cli {

namespace {

constexpr double nullpunkt = 273.15;

/// Search modes, by the key.
enum Modus { nach_T = 0, nach_p_d = 1, nach_p_b = 2 };
/// What `Sat_TausP` gives, by its mode.
constexpr double taulinie = 167, mittel = 177, siedelinie = 187;

struct Anfrage {
  std::string stoff;
  double t = leer, p = leer;
  bool json = false;
};

/// The saturation state as printed.
struct Saettigung {
  SatZeile werte;                             ///< densities interpolated between the cut ones
  double t_d = leer, t_b = leer, t_m = leer;  ///< dew and bubble temperature and their mean, °C
};

/// Lowest and highest key of the table in a mode.
struct Bereich {
  double von = leer, bis = leer;
};
Bereich bereich(Kaeltemittel& km, Modus modus) {
  constexpr double unter_allem = -1, ueber_allem = 1e9;
  Bereich b;
  km.Sat_Suchen(unter_allem, modus);
  b.von = km.z.Klammer.Oben.T;
  km.Sat_Suchen(ueber_allem, modus);
  b.bis = km.z.Klammer.Unten.T;
  return b;
}

/// The table's columns at the key. A key on the first or last row, as near as kelvin come to °C, is
/// that row: there is no second one to draw a line to.
SatZeile zeile_bei(Kaeltemittel& km, const Bereich& b, double key, Modus modus) {
  constexpr double gleich_gut = 1e-9;
  km.z.Klammer = {};
  km.Sat_Suchen(key, modus);
  const SatKlammer& k = km.z.Klammer;
  if (std::abs(key - b.von) <= gleich_gut * b.von && ist_leer(k.Unten.T)) return k.Oben;
  if (std::abs(key - b.bis) <= gleich_gut * b.bis && ist_leer(k.Oben.T)) return k.Unten;
  SatZeile z;
  const double f = km.Sat_f(key);
  for (double SatZeile::*spalte : {&SatZeile::T, &SatZeile::p_d, &SatZeile::p_b, &SatZeile::h_l,
                                   &SatZeile::h_v, &SatZeile::rho_l, &SatZeile::rho_v})
    z.*spalte = km.Sat_Wert_f(spalte, f);
  return z;
}

[[noreturn]] void ausserhalb(const Kaeltemittel& km, const std::string& wert, double von,
                             double bis, const char* einheit) {
  throw Abbruch(km.z.RefName + ": " + wert + " lies outside the table " + km.z.RefFile +
                ", which goes from " + anzeige(von) + " to " + anzeige(bis) + " " + einheit + ".");
}

Saettigung bei_temperatur(Kaeltemittel& km, double t) {
  const Bereich b = bereich(km, nach_T);
  const SatZeile z = zeile_bei(km, b, t + nullpunkt, nach_T);
  if (ist_leer(z.p_d))
    ausserhalb(km, Zahl_Text(t) + " °C", b.von - nullpunkt, b.bis - nullpunkt, "°C");
  return {z, t, t, t};
}

// The liquid lies on the bubble line, the vapour on the dew line.
Saettigung bei_druck(Kaeltemittel& km, double p) {
  const Bereich tau = bereich(km, nach_p_d), siede = bereich(km, nach_p_b);
  const SatZeile dampf = zeile_bei(km, tau, p, nach_p_d);
  const SatZeile fluessig = zeile_bei(km, siede, p, nach_p_b);
  if (ist_leer(dampf.h_v) || ist_leer(fluessig.h_l))
    ausserhalb(km, Zahl_Text(p) + " bar", std::max(tau.von, siede.von),
               std::min(tau.bis, siede.bis), "bar");
  Saettigung s;
  s.werte.p_d = s.werte.p_b = p;
  s.werte.h_l = fluessig.h_l;
  s.werte.rho_l = fluessig.rho_l;
  s.werte.h_v = dampf.h_v;
  s.werte.rho_v = dampf.rho_v;
  s.t_d = km.Sat_TausP(p, taulinie);
  s.t_b = km.Sat_TausP(p, siedelinie);
  s.t_m = km.Sat_TausP(p, mittel);
  return s;
}

void als_json(const Kaeltemittel& km, const Saettigung& s, bool aus_druck) {
  Json json{{"RefName", km.z.RefName}, {"RefFile", km.z.RefFile}};
  if (aus_druck) {
    json["t_d"] = zahl(s.t_d);
    json["t_b"] = zahl(s.t_b);
    json["t_m"] = zahl(s.t_m);
  } else {
    json["t"] = zahl(s.t_d);
    json["T"] = zahl(s.werte.T);
  }
  json["p_d"] = zahl(s.werte.p_d);
  json["p_b"] = zahl(s.werte.p_b);
  json["h_l"] = zahl(s.werte.h_l);
  json["h_v"] = zahl(s.werte.h_v);
  json["rho_l"] = zahl(s.werte.rho_l);
  json["rho_v"] = zahl(s.werte.rho_v);
  drucke(json);
}

void als_tabelle(const Kaeltemittel& km, const Saettigung& s, bool aus_druck) {
  Tabelle tabelle{{km.z.RefName, "", km.z.RefFile}, {}};
  const auto zeile = [&](const char* name, double wert, const char* einheit) {
    tabelle.zeilen.push_back({name, anzeige(wert), einheit});
  };
  if (aus_druck) {
    zeile("Pressure", s.werte.p_d, "bar");
    zeile("Dew temperature", s.t_d, "°C");
    zeile("Bubble temperature", s.t_b, "°C");
    zeile("Mean of both lines", s.t_m, "°C");
  } else {
    zeile("Temperature", s.t_d, "°C");
    zeile("Dew pressure", s.werte.p_d, "bar");
    zeile("Bubble pressure", s.werte.p_b, "bar");
  }
  zeile("Enthalpy of the liquid", s.werte.h_l, "kJ/kg");
  zeile("Enthalpy of the vapour", s.werte.h_v, "kJ/kg");
  zeile("Density of the liquid", s.werte.rho_l, "kg/m³");
  zeile("Density of the vapour", s.werte.rho_v, "kg/m³");
  drucke(tabelle);
}

void rechnen(Sitzung& sitzung, const Anfrage& anfrage) {
  Programm& p = sitzung.programm();
  stoff_waehlen(p, anfrage.stoff);
  const bool aus_druck = !ist_leer(anfrage.p);
  const Saettigung s = aus_druck ? bei_druck(p.km, anfrage.p) : bei_temperatur(p.km, anfrage.t);
  anfrage.json ? als_json(p.km, s, aus_druck) : als_tabelle(p.km, s, aus_druck);
}

}  // namespace

void saturation_anmelden(CLI::App& app, Sitzung& sitzung) {
  CLI::App* befehl = app.add_subcommand("saturation",
                                        "Saturation state of a refrigerant at a temperature or an "
                                        "absolute pressure");
  auto anfrage = std::make_shared<Anfrage>();
  befehl->add_option("R", anfrage->stoff, "Refrigerant, as R134A")->required();
  CLI::Option* t = zahl_option(*befehl, "--t", anfrage->t, "Temperature, °C");
  CLI::Option* p = zahl_option(*befehl, "--p", anfrage->p, "Absolute pressure, bar");
  t->excludes(p);
  befehl->add_flag("--json", anfrage->json, "Print JSON");
  beispiel(*befehl,
           "  polarkreis-cli saturation R134A --t -10\n"
           "  polarkreis-cli saturation R407C --p 5 --json");
  befehl->callback([&sitzung, anfrage] {
    if (ist_leer(anfrage->t) && ist_leer(anfrage->p)) throw CLI::RequiredError("--t or --p");
    rechnen(sitzung, *anfrage);
  });
}

}  // namespace polarkreis::cli
