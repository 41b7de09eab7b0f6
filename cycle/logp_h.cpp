#include "cycle/logp_h.h"

#include <algorithm>
#include <array>
#include <utility>

#include "cycle/logp_lauf.h"
#include "shell/text.h"

namespace polarkreis {
namespace {

constexpr double nullpunkt = LogpLauf::nullpunkt;
constexpr double T_EN12900 = 293.15;  // K, compressor inlet of the standard condition

struct Namenspaar {
  std::string_view Bezeichnung, Datei;
};
constexpr std::array<Namenspaar, 12> Tabellen{{{"ISC_49", "R413A.DAT"},
                                               {"R403B", "ISC_69L.DAT"},
                                               {"R417A", "ISC_59.DAT"},
                                               {"R422A", "ISC_79.DAT"},
                                               {"R422D", "ISC_29.DAT"},
                                               {"R290", "PROPAN.DAT"},
                                               {"R1270", "PROPYLEN.DAT"},
                                               {"R744", "CO2.DAT"},
                                               {"R717", "AMMONIAK.DAT"},
                                               {"ETHYLEN", "R1150.DAT"},
                                               {"ETHAN", "R170.DAT"},
                                               {"METHAN", "R50.dat"}}};

std::string gezeigt(double wert) {
  return Zahl_Text(geschnitten(wert));
}

}  // namespace

std::string Druckfigur::Text() const {
  return std::string(Literal) + Wert + std::string(Einheit);
}

std::string logp_H::Tabellenname() const {
  const std::string name = gross(getrimmt(kreis_.km.z.RefName));
  for (const Namenspaar& paar : Tabellen)
    if (name == paar.Bezeichnung) return std::string(paar.Datei);
  return name + ".DAT";
}

std::string logp_H::Mittel_GWP() const {
  return kreis_.km.z.RefName + " / GWP =" + Zahl_Text(kreis_.km.z.GWP);
}

void logp_H::GC_Druck(double t) {
  KMZustand& z = kreis_.km.z;
  double p = 0;
  if (t >= 31) {
    p = Kaeltemittel::CO2_pOpt(t);
  } else {
    // The table ends a degree below the critical point: its last two rows reach on.
    const std::vector<SatZeile>& tabelle = kreis_.km.Tabellenzeilen();
    const double T = t + nullpunkt;
    kreis_.km.Sat_Suchen(tabelle.empty() ? T : std::min(T, tabelle.back().T), 0);
    setze(p, kreis_.km.Sat_Wert(&SatZeile::p_d, T));
  }
  if (p > 0) P_hoch = z.P_hoch = z.pc = p_GC_Scroll = Int(p);
  if (t < 33) tu_Scroll = 1;
  if (t < 32) tu_Scroll = 1.5;
  if (t < 31) tu_Scroll = 3;
}

void logp_H::leeren() {
  e_ = {};
  punkte_ = {};
  bilanzen_.clear();
  figuren_.clear();
  for (double* feld : {&hsF, &hTF, &rhoSF, &rhoTF, &tGlide, &t0_Punkt, &xDampf, &EnthDiff,
                       &VerdLeist_DIN, &EER_ACT})
    *feld = leer;
}

bool logp_H::Rechnen() {
  leeren();
  LogpLauf lauf(kreis_, *this);
  hindernis_ = lauf.rechne();
  if (hindernis_ != Hindernis::keines) return false;
  e_ = lauf.e;
  punkte_ = Punkte_von(lauf);
  bilanzen_ = Bilanzen_von(lauf);
  ablesen(lauf);
  beschriften(lauf);
  return true;
}

void logp_H::ablesen(const LogpLauf& lauf) {
  const KMZustand& n = lauf.nieder;
  setze(hsF, n.h_v0);
  setze(hTF, n.h_v0 + lauf.dT_sh * n.cp_v0);
  setze(rhoSF, n.rho_v0);
  setze(rhoTF, lauf.Saug.rho);
  setze(EnthDiff, hTF - e_.h_l);
  setze(xDampf, (e_.h_l - n.h_l0) / (n.h_v0 - n.h_l0));
  setze(EER_ACT, Int(100 * Q0 / e_.P) / 100);
  constexpr double s = 1;
  setze(VerdLeist_DIN,
        Int(((lauf.q_DIN / lauf.q) * 100 * (T_EN12900 / (e_.t_s + nullpunkt)) * s) * 10) / 10);
  if (lauf.Gemisch) {
    setze(tGlide, lauf.km.Sat_TausP(e_.p0, 167) - lauf.km.Sat_TausP(e_.p0, 187));
    setze(t0_Punkt, lauf.km.Sat_TausP(e_.p0, lauf.T_liq()));
  }
}

void logp_H::beschriften(const LogpLauf& lauf) {
  const auto druckverlust = [&](std::string_view literal, double mbar) {
    const double bar = mbar / 1000;
    figuren_.push_back(einheiten_.angelsaechsisch
                           ? Druckfigur{literal, gezeigt(einheiten_.Druck(bar)), " psi"}
                           : Druckfigur{literal, gezeigt(mbar), " mbar"});
  };
  const std::string_view grad = einheiten_.angelsaechsisch ? " °F" : " °C";
  const auto temperatur = [&](double t) { return gezeigt(einheiten_.Temperatur(t)); };
  figuren_ = {{"tend=", temperatur(e_.t_d), grad},
              {"hend=", gezeigt(e_.h_d), " kJ/kg"},
              {"Eff. - ", gezeigt(100 * e_.eta), " %"},
              {"EER/COP ", Zahl_Text(EER_ACT), ""}};
  druckverlust("dpDL=", lauf.haupt.dp_d);
  druckverlust("dpSL=", lauf.haupt.dp_s);
  druckverlust("dpFl=", ist_leer(dp_Fl) ? 0 : dp_Fl);
  figuren_.push_back({"dho=", gezeigt(EnthDiff), " kJ/kg"});
  figuren_.push_back({"  dho =", gezeigt(EnthDiff), " kJ/kg"});
  figuren_.push_back({"  toh = ", gezeigt(einheiten_.Temperaturdifferenz(lauf.dT_sh)),
                      einheiten_.angelsaechsisch ? grad : " K"});
  figuren_.push_back({"  tSL = ", temperatur(e_.t_s), grad});
  figuren_.push_back({" DIN  Qo/Q EN 12900 = ", Zahl_Text(VerdLeist_DIN), " %"});
  if (ist_leer(tGlide)) return;
  figuren_.push_back({"Temperaturglide!", "", ""});
  // It was cut when it was looked up.
  const bool umgerechnet = einheiten_.angelsaechsisch;
  figuren_.push_back(
      {"to im Punkt:", umgerechnet ? temperatur(t0_Punkt) : Zahl_Text(t0_Punkt), grad});
}

}  // namespace polarkreis
