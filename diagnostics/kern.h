#pragma once

#include <string>

#include "climate/feuchte_luft.h"
#include "cycle/kreis.h"
#include "diagnostics/einheiten_funktion.h"
#include "diagnostics/kanaele.h"
#include "diagnostics/messung.h"
#include "refrigerant/sole.h"
#include "shell/captions.h"
#include "shell/warten.h"

namespace polarkreis {

/// The calculation kernel: turns one measured row into the values that judge a plant, and writes
/// them into the same row. Everything that a row doesn't set keeps what the row before left, in the
/// refrigerant state as well.
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
  /// functions of the units, run mode, sums and scale values afresh.
  void beginnen();
  /// Computes one row; below 3 is taken as 3.
  void Kern_Zeile(int zeile);
  /// Computes all rows, then the means. False if the progress asked to stop.
  bool rechenkern(Fortschritt& fortschritt);
  /// Power factor at a current in A; at or below 0 it is taken as 10.
  double Cos_phi(double strom) const;

 private:
  Messung& messung_;
  Kanaele& kanaele_;
  Kreis& kreis_;
  Kaeltemittel& km_;
  Solen& solen_;
  Luftzustand& luft_;
  const Captions& captions_;
};

}  // namespace polarkreis
