#pragma once

#include <array>
#include <functional>
#include <string>
#include <string_view>

#include "climate/feuchte_luft.h"
#include "climate/jahresgang.h"
#include "climate/wrg.h"
#include "shell/einheiten.h"
#include "shell/warten.h"
#include "simulation/punkt.h"

namespace polarkreis {

/// Totals of the year, kWh unless told otherwise.
struct Jahressummen {
  double E_Verd = 0;           ///< compressor energy
  double E_Abtau = 0;          ///< electric defrost energy
  double E_VFl_Luefter = 0;    ///< condenser fan energy
  double E_VDa_Luefter = 0;    ///< evaporator fan energy
  double E_Pumpe = 0;          ///< pump energy
  double Wasser_Adiabat = 0;   ///< water of adiabatic or tower operation, kg
  double E_FreeCool_Spar = 0;  ///< compressor energy saved by free cooling
  double Q_Wasser = 0;         ///< heat delivered to hot water
  double Q_Heiz = 0;           ///< heat delivered to heating
  double Q_Heiz_Bedarf = 0;    ///< heating demand summed over the steps
  double Vollast_Tage = 0;     ///< sum of load fraction × days
  double COP_Sum = 0;          ///< sum of COP × load fraction × days
  double COP_min = 38;
  double COP_max = 0;
};

/// One hour as the result file and the grid show it.
struct Stundenwerte {
  int Stunde = 0;     ///< 1 to 24
  double t_luft = 0;  ///< air temperature, after the reference change of the tower kinds, °C
  double tc = 0;      ///< condensing temperature, °C
  double COP = leer;
  double P_el = 0;           ///< compressor power, kW
  double E_gesamt = 0;       ///< energy of the step with its days, kWh
  double last = 0;           ///< load, %
  double P_Luefter = 0;      ///< condenser fan power, kW
  double P_VDa_Luefter = 0;  ///< evaporator fan power, kW
  double P_Abtau = 0;        ///< defrost power, kW
  double Q0 = 0;             ///< cooling capacity, kW
  double last_heiz = 0;      ///< heating demand, kW
  double P_H = 0;            ///< heat available for heating, kW
  double P_WW_verf = 0;      ///< heat available for hot water, kW
  double k_Heiz = 0;         ///< share of the heating demand covered, as a fraction
  double deckung = 0;        ///< hot-water coverage, %
};

/// Takes the hours of a year as they come: the result file is one, a study of thousands of variants
/// keeps totals only.
class Stundenempfaenger {
 public:
  virtual ~Stundenempfaenger() = default;
  virtual void monat(const Monatszeile& zeile) = 0;
  virtual void stunde(const Stundenwerte& werte) = 0;
};

/// How a run ended.
enum class Laufende { fertig, unbekanntes_Kaeltemittel, Tabelle_fehlt, Grenze, abgebrochen };

/// Everything that a run leaves.
struct Laufergebnis {
  Laufende ende = Laufende::abgebrochen;
  Rechenart art;
  Jahressummen summen;
  Punktwerte auslegung;    ///< the design point
  Anlage anlage;           ///< the plant as it was worked out, with the user's values back
  Heizdaten heizdaten;     ///< heat-recovery figures that were used
  double Q_WW_Tag = leer;  ///< hot-water heat of a day, kWh
  double t_abtau = 0;      ///< defrost time of a day, min
  int Stunden_ohne_COP =
      0;  ///< hours whose power could not be worked out; they keep the COP before
};

/// What a run works with; all are the program's one of each, or a worker's own.
struct Laufmittel {
  Ablage& ablage;
  const Captions& captions;
  Kreis& kreis;
  Klima& klima;
  Luftzustand& luft;
  WRG& wrg;
  Dialog& dialog;
  Einheiten einheiten{};  ///< of messages
};

/// The year's run: 12 months of one typical day of 24 hours.
class JahresLauf {
 public:
  explicit JahresLauf(const Laufmittel& mittel);

  /// Opens the dialog of the annual course where none was confirmed; false is its cancel. Without
  /// one the month table on disk is taken.
  std::function<bool()> Kurs_oeffnen;
  Fortschritt* fortschritt = nullptr;
  Stundenempfaenger* empfaenger = nullptr;

  /// The whole run from the form's fields. Checks refrigerant, tables and limits (a message box
  /// tells what is wrong, and nothing is written), stores "energk.dat" and runs the design point or
  /// the year.
  Laufergebnis Jahr_Rechnen(Projektdaten& projekt);

  /// The checks alone.
  Laufende pruefen(Projektdaten& projekt);

 private:
  bool jahr(const Projektdaten& projekt, Laufergebnis& ergebnis);
  void vorwerte(Laufergebnis& ergebnis);
  bool monat(int m, const Monatszeile& zeile, Laufergebnis& ergebnis);
  void schritt(Laufergebnis& ergebnis);
  void kondensation(const Anlage& a);
  double feuchtkugel(const Anlage& a);
  void warmwasser(Jahressummen& s);
  void heizen(const Anlage& a, Jahressummen& s);
  void verdichter(Anlage& a, Jahressummen& s);
  void wasser(const Anlage& a, Jahressummen& s);
  void abtauung(const Anlage& a, Jahressummen& s);
  void ventilatoren(const Anlage& a, Jahressummen& s);
  void mittelwerte(Jahressummen& s);
  Stundenwerte stundenwerte() const;
  void meldungen_schreiben(const Anlage& a);

  Laufmittel m_;
  Punkt punkt_;
  Heizdaten heiz_;
  double P_WW_ = 0;
  double t_abtau_ = 0;

  /// Variables of the run: each keeps its value from hour to hour unless a step sets it.
  struct Stand {
    int h = 0;
    double T_Tag = 0, T_Nacht = 0, Last_Tag = 0, Last_Nacht = 0, R = leer, tage = 30.63;
    double last = 0, dt_c = 0, t_luft = 0, phi = 0, tc = 0, faktor = 1, wasser_an = 0;
    double COP = leer, t_d = leer, Q_K = 0;
    double anteil = 0, P_WW_verf = 0, deckung = 0, last_heiz = 0, P_H = 0, k = 0, WW_Tag = 0,
           WW_Anteil = 0;
    double P_el = 0, e_verd = 0, P_ab = 0, f = 0, P_L = 0, P_VDa = 0, P_Pumpe = 0;
    double E_negativ = 0, E_ohne_Last = 0;
  };
  Stand s_;
};

/// A receiver that composes the result file "ERG_TEMP.DAT".
class Ergebnisdatei : public Stundenempfaenger {
 public:
  Ergebnisdatei() { inhalt_.reserve(48'000); }
  void monat(const Monatszeile& zeile) override;
  void stunde(const Stundenwerte& werte) override;
  /// Puts the file in place; false if it could not be written.
  bool schreiben(Ablage& ablage) const;
  const std::string& inhalt() const { return inhalt_; }

 private:
  std::string inhalt_;
};

/// True if "JG_Temp.dat" holds a course for the project's place.
bool Kurs_passt(Ablage& ablage, const Projektdaten& projekt);
/// Hands the dialog's place and application to the project after its OK, with the mark that a
/// course exists.
void Kurs_uebernehmen(const JahresGang& gang, Projektdaten& projekt);
/// Makes the course for the project's place and application with the dialog's defaults, as its OK
/// would.
bool Kurs_machen(Klima& klima, Projektdaten& projekt);

}  // namespace polarkreis
