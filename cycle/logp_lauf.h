#pragma once

#include "cycle/logp_h.h"
#include "cycle/saettigung.h"

namespace polarkreis {

/// One calculation of the log p-h analysis: its steps in their order, and what one leaves for the
/// next. Temperatures in °C, pressures in bar absolute, enthalpies in kJ/kg.
class LogpLauf {
 public:
  LogpLauf(Kreis& kreis_der_Form, const logp_H& form);
  ~LogpLauf();  ///< puts the settings of the cycle back
  LogpLauf(const LogpLauf&) = delete;
  LogpLauf& operator=(const LogpLauf&) = delete;

  static constexpr double nullpunkt = 273.15;     ///< K at 0 °C
  static constexpr double kritisch_CO2 = 304.15;  ///< K; from here up no condensing line of R744
  static constexpr double offener_Eingang = -90;  ///< °C; a sensor below it is none
  /// `Zweistufig` with which R744 has its power from its table.
  static constexpr int aus_der_Tabelle = 2;

  /// Runs the steps; what stands in the way, or nothing.
  Hindernis rechne();

  /// Temperature in K of the liquid that is throttled into the evaporator.
  double T_liq() const;

  /// A state of the refrigerant that a path begins or ends with.
  struct Ort {
    double t = leer, h = leer, rho = leer;
  };

  const logp_H& f;
  Kreis& kreis;
  Kaeltemittel& km;
  KMZustand& z;

  bool gestuft = false, Economiser = false, gemessen = false;
  bool Gemisch = false;    ///< the two lines of the refrigerant differ in pressure
  double t_s_ohne = leer;  ///< compressor inlet without internal heat exchanger
  double dT_sh = 0, dT_liquid = 0;
  double dT_sc = 0;     ///< behind the condenser
  double u = 0;         ///< by the economiser
  double q = leer;      ///< enthalpy difference of the point before the internal heat exchanger
  double q_DIN = leer;  ///< the same without subcooling, after it
  double h_lc = leer;   ///< liquid at the end of condensation
  KMZustand haupt;      ///< the whole pressure range, with what the heat exchanger changed
  KMZustand nieder;     ///< what the evaporator works at: the low stage, or the same
  Ort Saug;             ///< where the first compression begins
  Ort Ende1;            ///< where it ends
  Ort Dampf;            ///< vapour that joins at the intermediate pressure
  Saettigung Mitte;     ///< both lines at the intermediate pressure
  Ort Mischung;         ///< inlet of the high stage, or of the flash gas' compressor
  Ort Ende2;            ///< where the second compression ends
  logp_H::Ergebnis e;

 private:
  // The steps in their order.
  Hindernis pruefen();
  void vorgeben();
  Hindernis zwischendruck();
  void hauptpunkt();
  void innerer_WT();
  void zwischenstufe();
  void verdichtung();
  void abschliessen();

  // Parts of them.
  double p_m_Regel(double p0, double pc) const;
  bool Drucke_moeglich() const;
  bool Ergebnis_moeglich() const;
  void mische();
  void ein_Verdichter(double m);
  void unterste_Stufe();
  void zweite_Stufe();
  void Flashgas_in_Saug();
  void Flashgas_eigen();
  double h_Hochdruck(double t) const;
  Ort Saugzustand(double t) const;
  double Endtemperatur(const Ort& ein, double p_s, double p_d);
  Ort Hochdruckende(double t_d);
  double ideal(const Ort& ein, double p_s, double p_d, double m) const;
  double Leistung(const Ort& ein, double p_s, double p_d, double m, double t_end);
  double gemessenes_Ende() const;
  void leitungen();

  const std::string modul_davor_;
  const int ECO_OPT_davor_;
  const double Leistung_davor_;
};

Zustandspunkte Punkte_von(const LogpLauf& lauf);
std::vector<Bilanz> Bilanzen_von(const LogpLauf& lauf);

}  // namespace polarkreis
