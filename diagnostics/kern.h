#pragma once

#include <string>

#include "climate/feuchte_luft.h"
#include "cycle/kreis.h"
#include "diagnostics/einheiten_funktion.h"
#include "diagnostics/kanaele.h"
#include "diagnostics/kern_hinweis.h"
#include "diagnostics/messung.h"
#include "refrigerant/sole.h"
#include "shell/captions.h"
#include "shell/warten.h"

namespace polarkreis {

/// What makes a gauge pressure absolute, in bar: fixed, whatever the weather.
inline constexpr double Atmosphaere = 1.013;
/// The same for the pressures between two stages, and the lowest middle pressure in bar absolute:
/// below it there is none.
inline constexpr double Atmosphaere_Stufe = 1;
inline constexpr double Kleinste_Stufe = 1.3;
/// °C; a sensor below it is none.
inline constexpr double Kein_Fuehler = -90;

/// What the kernel reads and works out of a row beside the refrigerant state; each value stands
/// until a later row sets it anew. Pressures in bar absolute, temperatures in °C, powers in kW.
struct Kernwerte {
  double p0 = 0, pc = 0;                             ///< measured
  double t0 = 0, tc = 0;                             ///< saturation temperatures of both
  double t_Exp = 0, t_SL = 0, t_liq = 0, t_end = 0;  ///< of the sensors that count
  double U[3] = {}, I[3] = {};                       ///< V and A
  double cosphi = 0;
  double P_el = 0, P_rest = 0;        ///< compressor, and single-phase auxiliary on the same feed
  double rho2 = 0;                    ///< suction density after a kelvin of saturation loss, kg/m³
  double p_up = 0;                    ///< pressure that the measured stage delivers to
  double lambda = 0, V_eff = 0;       ///< volumetric figure; size as a volume flow, m³/h
  double e = 0;                       ///< compressor figure of that size
  double f = 1;                       ///< share of the mass flow that the evaporator sees
  double m = 0;                       ///< refrigerant mass flow, kg/h
  double Qo = 0;                      ///< capacity by the mass flow
  double t_d1 = 0, t_s2 = 0;          ///< two stages: end of the low one, inlet of the high one
  double P_1 = 0, P_2 = 0, P_2i = 0;  ///< power of the stages, as `P_mod` and `P_ist`
  double eta_1 = 0, eta_2 = 0, eta_2i = 0;
  double dT_m = 0;                     ///< superheat of the vapour that the high stage takes, K
  double h_Mischung = 0, h_Ende1 = 0;  ///< that vapour and the low stage's, kJ/kg, for the scheme
  double P_mod = 0, P_ist = 0;         ///< by the model's and by the measured discharge temperature
  double eta_mod = 0, eta = 0;         ///< isentropic efficiencies of the two
  double eta_min = 0, eta_max = 0;     ///< the limits beyond which a row is shown in red
  double EER_1 = 0, EER_2 = 0;         ///< of the cold and of the warm side
};

/// The calculation kernel: turns one measured row into the values that judge a plant, and writes
/// them into the same row. Everything that a row doesn't set keeps what the row before left, in the
/// refrigerant state as well. A refrigerant without a table leaves the columns that need one as
/// they were.
class Kern {
 public:
  Kern(Messung& messung, Kanaele& kanaele, Kreis& kreis, Solen& solen, Luftzustand& luft,
       const Captions& captions)
      : messung_(messung),
        kanaele_(kanaele),
        kreis_(kreis),
        km_(kreis.km),
        solen_(solen),
        luft_(luft),
        captions_(captions) {}

  Einheitenfunktion Funktion;         ///< set by `SP_Zuweis`
  double Summe_Energ = 0;             ///< kWh
  double Sum_zeit_messung = 0;        ///< s
  std::string Energie_Box, Zeit_Box;  ///< the two sums as the form shows them

  /// Prepares a series of rows (the driver does, and so must the start of a run): refrigerant,
  /// functions of the units, run mode, sums and scale values afresh. A capacity `Messung::Q0` that
  /// is empty leaves the one of the refrigerant state.
  void beginnen();
  /// Computes one row; below 3 is taken as 3. A row beyond the table is none.
  void Kern_Zeile(int zeile);
  /// Computes all rows, then the means. False if the progress asked to stop.
  bool rechenkern(Fortschritt& fortschritt);
  /// Power factor at a current in A; at or below 0 it is taken as 10.
  double Cos_phi(double strom) const;

  const Kernwerte& werte() const { return w_; }

 private:
  enum class Medium { Wasser, Luft, Sole, unbekannt };
  /// The fluid of one side, as its name says.
  struct Sekundaerseite {
    std::string name = "?";  // no name that anybody gives: the first row asks
    Medium art = Medium::unbekannt;
    double Konz_gegeben = leer, Konz = leer;  // %, as the settings give it and as it counts
  };
  /// What follows from texts of the form, worked out anew only when one of them is another.
  struct Auswahl {
    std::string Combo4, RGCombo, Anlage;
    int Mass_Art = 0;
    bool gestuft = false;    // capacity in steps
    bool einphasig = false;  // the plant has one phase
    Sekundaerseite Verd, Verfl;
  };
  /// Where a side's columns stand, and the row of the table of the units with its usual flow.
  struct Seitenspalten {
    Spalte::Nummer Fluss, t_ein, t_aus, Q;
    int Zeile_Vorgabe;
  };

  void kaeltemittel_uebernehmen();
  void auswahl_lesen();
  void medium_lesen(Sekundaerseite& seite, const std::string& name, double Konz);
  Medium medium_von(const std::string& name);
  void boxen_zeigen();

  // The steps of a row, in their order.
  void zeile_beginnen();
  void druecke();
  void saettigung();
  void mitteldruck();
  void fuehlerwahl();
  void ueberhitzung();
  bool fuehler_gueltig() const;
  void unterkuehlung();
  void stromaufnahme();
  void stromaufnahme_zeigen();
  void abstaende_zeigen();
  void kreiszustand();
  void foerderung();
  void massenstrom();
  void kaelteleistung();
  void verdichtungsart();
  void endtemperatur();
  void verdichterleistung();
  void leistungszahlen();
  void verdichter_zeigen();
  void anlage_zeigen();
  void sekundaerseite_Verd();
  void sekundaerseite_Verfl();
  void geraete();

  // Parts of them.
  double hub_massenstrom(double volumen) const;
  double leistung(double p_s, double p_d, double m, double t_s, double t_d, int modus);
  void einstufig();
  void zweistufig();
  double stufendruck(Spalte::Einheit P, Spalte::Einheit t_P);
  void zwischendruck();
  void zwischentemperatur();
  void erste_stufe();
  double m_eco() const;
  void mischung();
  void zweite_stufe();
  bool nimm_Fluss(const Seitenspalten& s, double& fluss, double& t_ein, double& t_aus);
  double Q_Fluessigkeit(const Sekundaerseite& seite, double fluss, double t_ein, double t_aus);
  void geraet_hydraulisch(int i, int funktion);
  void geraet_saettigung(int i, int funktion);
  void geraet_elektrisch(int i);

  // Cells of the row at hand.
  double zahl(int spalte) const { return messung_.DiaSpread.zahl(zeile_, spalte); }
  void lies(double& ziel, int spalte) const { setze(ziel, zahl(spalte)); }
  bool gemessen(int spalte) const;  // neither empty nor "0" nor "-"
  void zeige(int spalte, double wert) { messung_.DiaSpread.setze_Zahl(zeile_, spalte, wert); }
  void zeige(int spalte, const char* text) { messung_.DiaSpread.setze(zeile_, spalte, text); }
  void faerbe(unsigned bits, unsigned davon);
  int code() const { return Funktion.Sensor_Code[1]; }
  bool misst_Zwischendruck() const;  // the first unit stands between two stages

  Messung& messung_;
  Kanaele& kanaele_;
  Kreis& kreis_;
  Kaeltemittel& km_;
  Solen& solen_;
  Luftzustand& luft_;
  const Captions& captions_;

  bool Tabelle_da_ = false;     // the refrigerant has one
  bool weite_Grenzen_ = false;  // hydrocarbons and ammonia reach higher efficiencies
  Auswahl auswahl_;
  Ueberdruck ueberdruck_;
  Kernwerte w_;
  int zeile_ = Messtabelle::Erste;
  bool mitteltemperatur_ = false;  // the row at hand has one from the air side's flag
};

}  // namespace polarkreis
