#include <algorithm>
#include <cmath>

#include "diagnostics/kern.h"

namespace polarkreis {

namespace {

constexpr double Pa_je_bar = 100000;
constexpr int Fernbediente = 2;  // remote units that the logger has
constexpr int Position_P1 = 23;  // of the first of them in a reply

}  // namespace

void Kern::geraete() {
  for (int i = 1; i <= Fernbediente; ++i) {
    const int funktion = Funktion.Sensor_Code[static_cast<std::size_t>(i)];
    if (funktion == F_keine) continue;
    if (funktion == F_Pumpe || funktion == F_Ventilator)
      geraet_hydraulisch(i, funktion);
    else if (Tabelle_da_)
      geraet_saettigung(i, funktion);
    geraet_elektrisch(i);
  }
}

/// A pump's pressures are in bar; a fan's are in Pa, as the sensor's conversion left them.
void Kern::geraet_hydraulisch(int i, int funktion) {
  using namespace Spalte;
  const bool pumpe = funktion == F_Pumpe;
  const double dp = std::abs(zahl(von(E_P1, i)) - zahl(von(E_P2, i)));
  const double dp_Pa = pumpe ? dp * Pa_je_bar : dp;
  const double dp_bar = pumpe ? dp : dp / Pa_je_bar;
  const double leistung = Int(dp_Pa * zahl(von(E_Fluss, i)) / 3600) / 1000;
  zeige(ergebnis(dp_Einheit, i), dp);
  zeige(ergebnis(P_hydr, i), leistung);
  zeige(ergebnis(eta_Einheit, i), Int((pumpe ? 10 : 1000) * leistung / w_.P_el) / 10);
  setze(messung_.skala.dp_max, std::max(messung_.skala.dp_max, dp_bar));
}

void Kern::geraet_saettigung(int i, int funktion) {
  using namespace Spalte;
  const auto wandlung = Wandlung(Position_P1, code());
  const auto druck = [&](Spalte::Einheit spalte) {
    double p = zahl(von(spalte, i));
    if (funktion == F_Verfluessiger && wandlung) p = P_convert(p, *wandlung);
    return p == 0 ? w_.p0 : p + Atmosphaere;
  };
  zeige(von(E_t_P1, i), km_.Sat_TausP(druck(E_P1), 167));
  zeige(von(E_t_P2, i), km_.Sat_TausP(druck(E_P2), 187));
}

/// Per phase in kW, cut to one place.
void Kern::geraet_elektrisch(int i) {
  using namespace Spalte;
  for (int phase = 0; phase < 3; ++phase) {
    const double P = zahl(von(E_U_L1, i) + phase) * zahl(von(E_I_L1, i) + phase) / 1000;
    zeige(P_Phasen + 3 * (i - 1) + phase, Int(10 * P) / 10);
  }
}

}  // namespace polarkreis
