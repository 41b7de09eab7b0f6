#pragma once

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "cycle/logp_h.h"
#include "support/kaeltemittel_umgebung.h"

/// A log p-h form over a data folder, with a plant of 10 K superheat and 3 K subcooling to change.
struct LogphPlatz {
  KaeltemittelUmgebung u;
  polarkreis::Kreis kreis{u.km};
  polarkreis::KMZustand& z = u.km.z;
  polarkreis::logp_H form;

  explicit LogphPlatz(const std::string& mittel = "R134A", double t0 = -10, double tc = 40,
                      polarkreis::Einheiten einheiten = {},
                      const std::string& ordner = POLARKREIS_DATA)
      : u(mittel, ordner), form(kreis, einheiten) {
    form.t0F = t0;
    form.tcF = tc;
    form.dT_sh = 10;
    form.dT_sc = 3;
  }

  const polarkreis::logp_H::Ergebnis& rechne() {
    EXPECT_TRUE(form.Rechnen()) << z.RefName;
    return form.ergebnis();
  }
  polarkreis::Hindernis hindernis() {
    EXPECT_FALSE(form.Rechnen()) << z.RefName;
    return form.hindernis();
  }
  polarkreis::Zustandspunkt punkt(std::string_view name) const {
    const polarkreis::Zustandspunkt* p = form.punkte().finde(name);
    EXPECT_NE(p, nullptr) << name;
    return p == nullptr ? polarkreis::Zustandspunkt() : *p;
  }
  bool hat(std::string_view name) const { return form.punkte().finde(name) != nullptr; }
  std::vector<std::string> punktnamen() const {
    std::vector<std::string> namen;
    for (const polarkreis::Zustandspunkt& p : form.punkte().Punkte) namen.emplace_back(p.Name);
    return namen;
  }
  /// The names along a path.
  std::vector<std::string> weg(std::size_t nummer) const {
    std::vector<std::string> namen;
    for (const std::size_t n : form.punkte().Wege.at(nummer))
      namen.emplace_back(form.punkte().Punkte.at(n).Name);
    return namen;
  }
  polarkreis::Bilanz bilanz(std::string_view bauteil) const {
    for (const polarkreis::Bilanz& b : form.bilanzen())
      if (b.Bauteil == bauteil) return b;
    ADD_FAILURE() << "no balance of the " << bauteil;
    return {};
  }
  /// A compressor's power against the ideal one.
  polarkreis::Bilanz arbeit(std::string_view bauteil) const {
    for (const polarkreis::Bilanz& b : form.bilanzen())
      if (b.Bauteil == bauteil && b.Groesse == polarkreis::Bilanz::Art::Arbeit) return b;
    ADD_FAILURE() << "no power of the " << bauteil;
    return {};
  }
  /// A figure as it is printed; empty where it isn't.
  std::string figur(std::string_view literal) const {
    for (const polarkreis::Druckfigur& f : form.figuren())
      if (f.Literal == literal) return f.Text();
    return {};
  }
};

/// A refrigerant state of its own, on which a test follows the plant of a form step by step.
struct Schritte {
  KaeltemittelUmgebung u;
  polarkreis::Kreis kreis{u.km};
  polarkreis::KMZustand& z = u.km.z;

  explicit Schritte(const LogphPlatz& platz) : u(platz.z.RefName) {
    const polarkreis::logp_H& f = platz.form;
    z.dT_sh = f.dT_sh;
    z.Q0 = 10;
    z.P_hoch = f.P_hoch;
    z.Bauart = f.Bauart;
    z.Antrieb = f.Antrieb;
    z.Zweistufig = f.Zweistufig;
    kreis.modul = f.modul;
    kreis.ECO_OPT = f.ECO_OPT;
  }
  /// The subcooling comes back as the refrigerant changes it.
  double punkt(double t0, double tc, double t_s, double dT_sc = 0) {
    kreis.KreisPunkt(t0, tc, t_s, dT_sc);
    return dT_sc;
  }
  /// Enthalpy of vapour of `t` °C on the low side of the point.
  double h_Dampf(double t) const { return z.h_v0 + (t - (z.T0 - 273.15)) * z.cp_v0; }
  /// Enthalpy of vapour of `t` °C on its high side.
  double h_Ende(double t) const { return z.h_vc + z.cp_d * (t - (z.Tc - 273.15)); }
  /// End of compression from an inlet, °C.
  double Ende(double p_s, double p_d, double t_ein) {
    return kreis.Verd_Endtemp(10, p_s, p_d, t_ein + 273.15, z.kappa) - 273.15;
  }
  double Leistung(double p_s, double p_d, double m, double t_ein, double t_d = 0, int modus = 0) {
    return kreis.Verd_Leistung(p_s, p_d, z.T0, z.Tc, m, z.dT_sh, t_ein, z.h_vc, z.h_v0, t_d, modus);
  }
};
