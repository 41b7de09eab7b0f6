#include "logph_hinweise.h"

#include "ausgabe.h"
#include "refrigerant/kaeltemittel.h"

namespace polarkreis::cli {

namespace {

using Saetze = std::vector<std::string>;

// The discharge temperature is fitted for ordinary pressures.
void arbeit_pruefen(const logp_H& form, Saetze& saetze) {
  constexpr double kVielfaches = 2.5;
  for (const Bilanz& b : form.bilanzen()) {
    if (b.Groesse != Bilanz::Art::Arbeit) continue;
    const std::string anfang =
        "The fitted discharge temperature gives the " + std::string(b.Bauteil) + " " +
        anzeige(b.zu) + " kW where a loss-free compression needs about " + anzeige(b.ab) + " kW: ";
    if (!b.schliesst())
      saetze.push_back(anfang + "EER and end temperature look better than they can be.");
    else if (b.zu > kVielfaches * b.ab)
      saetze.push_back(anfang + "these pressures lie far from those it was fitted for.");
  }
}

// Liquid can't be cooled by vapour that is warmer.
void economiser_pruefen(const logp_H& form, Saetze& saetze) {
  const Zustandspunkt* kalt = form.punkte().finde("economiser outlet");
  const Zustandspunkt* dampf = form.punkte().finde("economiser vapour");
  if (kalt && dampf && kalt->t < dampf->t)
    saetze.push_back("The economiser evaporates at " + anzeige(dampf->t) +
                     " °C, but its liquid leaves it at " + anzeige(kalt->t) +
                     " °C: no heat exchanger does that. Take a lower intermediate pressure "
                     "(--p-int, --p-m).");
}

// Neither of its flows can pass the inlet of the other.
void waermetauscher_pruefen(const logp_H& form, Saetze& saetze) {
  const Zustandspunkt* aus = form.punkte().finde("internal heat exchanger outlet");
  if (!aus) return;
  const double dT = form.dT_liquid, t_ein = aus->t + dT;
  const double t_Saug = form.ergebnis().t_s;
  if (t_Saug > t_ein)
    saetze.push_back("The internal heat exchanger warms the suction vapour to " + anzeige(t_Saug) +
                     " °C by liquid of " + anzeige(t_ein) +
                     " °C: no heat exchanger does that. Take a smaller --ihx.");
}

void hochdruck_pruefen(const logp_H& form, const KMZustand& z, Saetze& saetze) {
  if (!form.ergebnis().transkritisch || form.P_hoch != 0 || !ist_leer(form.p_GC_Scroll)) return;
  const double bester = Kaeltemittel::CO2_pOpt(z.Tc - 273.15);
  saetze.push_back(
      "No high pressure was given: " + anzeige(z.P_hoch) + " bar was taken" +
      (bester > 0 ? "; the best one for this gas cooler is " + anzeige(bester) + " bar (--p-high)."
                  : ", and above 50 °C there is no best one. Give --p-high."));
}

}  // namespace

std::vector<std::string> logph_Hinweise(const logp_H& form, const KMZustand& zustand) {
  Saetze saetze;
  arbeit_pruefen(form, saetze);
  economiser_pruefen(form, saetze);
  waermetauscher_pruefen(form, saetze);
  hochdruck_pruefen(form, zustand, saetze);
  return saetze;
}

}  // namespace polarkreis::cli
