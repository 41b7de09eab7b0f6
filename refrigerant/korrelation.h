#pragma once

#include <string_view>

#include "refrigerant/kaeltemittel.h"

namespace polarkreis {

/// Fitted forms of the vapour viscosity, most of them named by the fluid they were fitted to.
enum class Dampf {
  R11,
  R12,
  R22,
  R23,
  R502,
  R290,
  R1270,
  R600A,
  R134A,
  R717,
  R123,
  R401A,
  R401B,
  R402A,
  R402B,
  R404A,
  R407C,
  R407A
};

/// Fitted forms of the liquid viscosity.
enum class Liquid {
  R11,
  R12,
  R22,
  R23,
  R502,
  R507,
  R290,
  R1270,
  R134A,
  R717,
  R123,
  R401A,
  R401B,
  R402A,
  R402B,
  R404A,
  R407C,
  R407A
};

/// Forms of the vapour's specific heat. Those with a polynomial take the designation's factors as
/// multipliers.
enum class Waerme {
  CpA,
  CpA_linear,
  R502,
  R11,
  R14,
  R23,
  R508,
  R290,
  R600A,
  R717,
  R744,
  R123,
  R507,
  R124
};

/// The correlations of one designation: which form it takes for each property, and its own factors.
struct Korrelation {
  std::string_view name;
  Dampf dampf;
  Liquid liquid;
  double M;  ///< molar mass, kg/kmol
  Waerme waerme;
  double k_v0 = 1, k_s = 1,
         k_d = 1;    ///< factors of the specific heat: evaporator, inlet, discharge
  double f = 1.043;  ///< start value of the exponents' factor
  double q_v0 = 1, q_vs = 1, q_vd = 1;  ///< factors of the vapour viscosity at its three states
  double q_l0 = 1, q_lc = 1;            ///< factors of the liquid viscosity at T0 and T_a
};

/// The correlations of a catalogue entry; every entry has them.
const Korrelation& korrelation(const KMEintrag& eintrag);

/// The two groups of outputs of `Dampf_Korrelation` that come from the forms above, with its
/// arguments.
void viskositaeten(KMZustand& z, const Korrelation& k, double T_a, double T_x, double t_s);
void waermekapazitaeten(KMZustand& z, const Korrelation& k, double T_a, double T_d, double t_s);

}  // namespace polarkreis
