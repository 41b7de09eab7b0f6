#include <CLI/CLI.hpp>
#include <cmath>
#include <memory>
#include <string>

#include "ausgabe.h"
#include "shell/dialog.h"
#include "sitzung.h"
#include "stoff.h"
#include "zahlen.h"
#include "zustand.h"

namespace polarkreis::cli {

namespace {

constexpr double nullpunkt = 273.15;

struct Anfrage {
  std::string stoff;
  double t0 = leer, tc = leer;
  double dT_sh = 10;
  double t_s = leer;  ///< empty: `t0` and the superheat
  double dT_sc = 3;
  double Q0 = 10;
  double P_hoch = 0;  ///< 0: not set, the cycle then takes its own
  int Bauart = 0, Antrieb = 0;
  bool json = false;
};

struct Ergebnis {
  double t_d = leer;  ///< discharge temperature, °C
  double COP = leer;
};

// The caller's part of the state.
void vorgeben(KMZustand& z, const Anfrage& a) {
  z.dT_sh = a.dT_sh;
  z.Q0 = a.Q0;
  z.Bauart = a.Bauart;
  z.Antrieb = a.Antrieb;
  z.P_hoch = a.P_hoch;
}

Ergebnis punkt(Kreis& kreis, const Anfrage& a) {
  constexpr double groesse = 10;  // kW, for the discharge temperature
  KMZustand& z = kreis.km.z;
  vorgeben(z, a);
  const double t_s = ist_leer(a.t_s) ? a.t0 + a.dT_sh : a.t_s;
  double dT_sc = a.dT_sc;
  kreis.KreisPunkt(a.t0, a.tc, t_s, dT_sc);
  const double m = kreis.KM_Massenstrom(1, a.Q0);
  Ergebnis e;
  e.t_d = kreis.Verd_Endtemp(groesse, z.p0, z.pc, t_s + nullpunkt, z.kappa) - nullpunkt;
  const double P =
      kreis.Verd_Leistung(z.p0, z.pc, z.T0, z.Tc, m, a.dT_sh, t_s, z.h_vc, z.h_v0, 0, 0);
  setze(e.COP, a.Q0 / P);
  return e;
}

void als_json(const Kreis& kreis, const Ergebnis& e) {
  Json json = zustand_json(kreis.km.z);
  json["Dichte_Faktor"] = zahl(kreis.Dichte_Faktor());
  json["t_d"] = zahl(e.t_d);
  json["COP"] = zahl(e.COP);
  drucke(json);
}

void als_tabelle(const KMZustand& z, const Ergebnis& e) {
  constexpr double kg_je_Stunde = 3600, Prozent = 100;
  Tabelle tabelle{{z.RefName, "", z.RefFile}, {}};
  const auto zeile = [&](const char* name, double wert, const char* einheit) {
    tabelle.zeilen.push_back({name, anzeige(wert), einheit});
  };
  zeile("Low pressure", z.p0, "bar");
  zeile("High pressure", z.pc, "bar");
  zeile("Inlet temperature", z.t_s, "°C");
  zeile("Discharge temperature", e.t_d, "°C");
  zeile("Superheat", z.dT_sh, "K");
  zeile("Subcooling", z.dT_sc, "K");
  zeile("Capacity", z.Q0, "kW");
  zeile("Mass flow", z.m_punkt * kg_je_Stunde, "kg/h");
  zeile("Compressor power", z.P_verd, "kW");
  zeile("COP", e.COP, "");
  zeile("Isentropic efficiency", z.eta_is * Prozent, "%");
  zeile("Density at the inlet", z.rho_s, "kg/m³");
  zeile("Density at the discharge", z.rho_d, "kg/m³");
  zeile("Density of the liquid", z.rho_lc, "kg/m³");
  zeile("Isentropic exponent", z.kappa, "");
  drucke(tabelle);
}

void rechnen(Sitzung& sitzung, const Anfrage& anfrage) {
  Programm& p = sitzung.programm();
  stoff_waehlen(p, anfrage.stoff);
  if (!p.km.KM_Tabelle_da())
    throw Abbruch(fehlertext(Fehler::Datei_fehlt) + "\r\n" + tabelle_fehlt(p));
  grenzen_pruefen(p, anfrage.t0, anfrage.tc);
  p.km.z.Klammer = {};  // so that no row of another search stands in
  const Ergebnis e = punkt(p.kreis, anfrage);
  if (ist_leer(e.COP))
    throw Abbruch(
        "No cycle comes out at this point: the tables hold no such state. Check the temperatures, "
        "the high pressure and the capacity.");
  anfrage.json ? als_json(p.kreis, e) : als_tabelle(p.km.z, e);
}

void optionen_anmelden(CLI::App& befehl, Anfrage& a) {
  befehl.add_option("R", a.stoff, "Refrigerant, as R134A")->required();
  zahl_option(befehl, "--t0", a.t0, "Evaporating temperature, °C")->required();
  zahl_option(befehl, "--tc", a.tc,
              "Condensing temperature, °C; transcritical R744: gas cooler outlet")
      ->required();
  zahl_option(befehl, "--superheat", a.dT_sh, "Superheat at the evaporator, K (10)");
  zahl_option(befehl, "--t-suction", a.t_s, "Compressor inlet, °C (t0 + superheat)");
  zahl_option(befehl, "--subcooling", a.dT_sc, "Subcooling, K (3); R744 has its own");
  zahl_option(befehl, "--q0", a.Q0, "Cooling capacity, kW (10)");
  zahl_option(befehl, "--p-high", a.P_hoch,
              "High pressure of transcritical R744, bar absolute (90)");
  befehl.add_option("--bauart", a.Bauart, "Compressor design, 0 to 4 (0)")->check(CLI::Range(0, 4));
  befehl.add_option("--antrieb", a.Antrieb, "Compressor drive, 0 to 3 (0)")
      ->check(CLI::Range(0, 3));
  befehl.add_flag("--json", a.json, "Print JSON: the whole state, t_d and COP");
}

}  // namespace

void cycle_anmelden(CLI::App& app, Sitzung& sitzung) {
  CLI::App* befehl =
      app.add_subcommand("cycle", "Single-stage vapour compression cycle between two temperatures");
  auto anfrage = std::make_shared<Anfrage>();
  optionen_anmelden(*befehl, *anfrage);
  beispiel(*befehl, "  polarkreis-cli cycle R134A --t0 -10 --tc 40 --superheat 8 --q0 25");
  befehl->callback([&sitzung, anfrage] { rechnen(sitzung, *anfrage); });
}

}  // namespace polarkreis::cli
