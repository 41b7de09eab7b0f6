#include <array>

#include "calc.h"

namespace polarkreis::cli {

namespace {

// The subcooling comes back in the state.
Antwort kreispunkt(Rechenstand& r, const Argumente& a) {
  double dT_sc = a.zahl("dT_sc");
  r.kreis.KreisPunkt(a.zahl("t0"), a.zahl("tc"), a.zahl("t_s"), dT_sc);
  return {};
}

Antwort verd_endtemp(Rechenstand& r, const Argumente& a) {
  return {zahl(r.kreis.Verd_Endtemp(a.zahl("size"), a.zahl("p_s"), a.zahl("p_d"), a.zahl("T_s"),
                                    a.zahl("kappa"))),
          {}};
}

Antwort motor_faktor(Rechenstand& r, const Argumente& a) {
  return {zahl(r.kreis.Motor_Faktor(a.zahl("size"))), {}};
}

Antwort km_massenstrom(Rechenstand& r, const Argumente& a) {
  return {zahl(r.kreis.KM_Massenstrom(a.zahl("fallback"), a.zahl("Q0"))), {}};
}

Antwort verd_leistung(Rechenstand& r, const Argumente& a) {
  const double P = r.kreis.Verd_Leistung(
      a.zahl("p_s"), a.zahl("p_d"), a.zahl("T0"), a.zahl("Tc"), a.zahl("m"), a.zahl("dT_sh"),
      a.zahl("t_s"), a.zahl("h_vc"), a.zahl("h_v0"), a.zahl("t_d"), a.ganz("mode"));
  return {zahl(P), {}};
}

Antwort verd_wirkungsgrad(Rechenstand& r, const Argumente& a) {
  return {zahl(r.kreis.Verd_Wirkungsgrad(a.zahl("p_d"), a.zahl("dp_d"), a.zahl("p_s"),
                                         a.zahl("dp_s"), a.zahl("size"))),
          {}};
}

constexpr std::array<Operation, 6> kOperationen{{
    {"KreisPunkt", "t0 tc t_s dT_sc", "", kreispunkt},
    {"Verd_Endtemp", "size p_s p_d T_s kappa", "", verd_endtemp},
    {"Motor_Faktor", "size", "", motor_faktor},
    {"KM_Massenstrom", "fallback Q0", "", km_massenstrom},
    {"Verd_Leistung", "p_s p_d T0 Tc m dT_sh t_s h_vc h_v0 t_d mode", "", verd_leistung},
    {"Verd_Wirkungsgrad", "p_d dp_d p_s dp_s size", "", verd_wirkungsgrad},
}};

}  // namespace

std::span<const Operation> Kreisoperationen() {
  return kOperationen;
}

}  // namespace polarkreis::cli
