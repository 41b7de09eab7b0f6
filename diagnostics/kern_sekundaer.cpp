#include <algorithm>

#include "diagnostics/kern.h"
#include "shell/text.h"

namespace polarkreis {

namespace {

constexpr double Feuchte_Eintritt = 0.9;  // of the air that enters, not measured

/// Usual humidity of the air that leaves an evaporator at t in °C.
double Feuchte_Austritt(double t) {
  return std::min(0.8 - 1.1 * t / 100, 0.96);
}

/// kJ/(kg K) of air with x g of vapour per kg dry.
double cp_feucht(double x) {
  return (1000 / (1000 + x)) * 1.00327 + (x / (1000 + x)) * 2.08;
}

}  // namespace

/// False where the row gives no capacity of that side. A flow that isn't measured is the plant's
/// usual one.
bool Kern::nimm_Fluss(const Seitenspalten& s, double& fluss, double& t_ein, double& t_aus) {
  Messtabelle& tabelle = messung_.DiaSpread;
  if (getrimmt(tabelle.text(zeile_, s.Fluss)).empty()) {
    tabelle.setze(zeile_, s.Fluss, messung_.OrbiN_spread(s.Zeile_Vorgabe, Einheitentabelle::Wert));
  }
  fluss = zahl(s.Fluss);
  t_ein = zahl(s.t_ein);
  t_aus = zahl(s.t_aus);
  return t_ein - t_aus != 0 && fluss > 0;
}

double Kern::Q_Fluessigkeit(const Sekundaerseite& seite, double fluss, double t_ein, double t_aus) {
  const auto dichte = [&](double t) {
    return seite.art == Medium::Sole ? solen_.Dichte(seite.name, t, seite.Konz) : Wasser_Dichte(t);
  };
  const auto waerme = [&](double t) {
    return seite.art == Medium::Sole ? solen_.Waermekapazitaet(seite.name, t, seite.Konz)
                                     : Wasser_Waermekapazitaet(t);
  };
  const double rho = (dichte(t_ein) + dichte(t_aus)) / 2;
  const double cp = (waerme(t_ein) + waerme(t_aus)) / 2;
  return fluss * rho * (t_ein - t_aus) * cp / 3600;
}

void Kern::sekundaerseite_Verd() {
  using namespace Spalte;
  constexpr Seitenspalten s{Fluss_Verd, t_ein_Verd, t_aus_Verd, Qo_dt, 3};
  const Sekundaerseite& seite = auswahl_.Verd;
  double fluss = 0, t_ein = 0, t_aus = 0;
  if (!nimm_Fluss(s, fluss, t_ein, t_aus)) return;
  double Q = leer;
  if (seite.art == Medium::Luft) {
    const auto ein = luft_.Feuchte_Luft(Feuchte_Eintritt, t_ein, Atmosphaere);
    const auto aus = luft_.Feuchte_Luft(Feuchte_Austritt(t_aus), t_aus, Atmosphaere);
    if (ein && aus) Q = fluss * ein->rho * (ein->h - aus->h) / 3600;
  } else if (seite.art != Medium::unbekannt) {
    Q = Q_Fluessigkeit(seite, fluss, t_ein, t_aus);
  }
  zeige(s.Q, geschnitten(Q));
}

void Kern::sekundaerseite_Verfl() {
  using namespace Spalte;
  constexpr Seitenspalten s{Fluss_Verfl, t_ein_Verfl, t_aus_Verfl, Qc_dt, 2};
  const Sekundaerseite& seite = auswahl_.Verfl;
  double fluss = 0, t_ein = 0, t_aus = 0;
  if (!nimm_Fluss(s, fluss, t_ein, t_aus)) return;
  double Q = leer;
  if (seite.art == Medium::Luft) {
    const auto ein = luft_.Feuchte_Luft(Feuchte_Eintritt, t_ein, Atmosphaere);
    if (ein) Q = fluss * ein->rho * (t_ein - t_aus) * cp_feucht(ein->x) / 3600;
  } else if (seite.art != Medium::unbekannt) {
    Q = Q_Fluessigkeit(seite, fluss, t_ein, t_aus);
  }
  zeige(s.Q, geschnitten(Q));
}

}  // namespace polarkreis
