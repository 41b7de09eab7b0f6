#include <algorithm>
#include <array>

#include "calc.h"

namespace polarkreis::cli {

namespace {

constexpr std::array<Satzspalte, 7> kSpalten{{{"T", &SatZeile::T},
                                              {"p_d", &SatZeile::p_d},
                                              {"p_b", &SatZeile::p_b},
                                              {"h_l", &SatZeile::h_l},
                                              {"h_v", &SatZeile::h_v},
                                              {"rho_l", &SatZeile::rho_l},
                                              {"rho_v", &SatZeile::rho_v}}};

Antwort km_datei(Rechenstand& r, const Argumente&) {
  return {r.km.KM_Datei(), {}};
}

Antwort km_grenzen(Rechenstand& r, const Argumente&) {
  r.km.KM_Grenzen();
  return {};
}

Antwort km_bekannt(Rechenstand&, const Argumente& a) {
  return {Kaeltemittel::KM_Bekannt(a.text("name")), {}};
}

Antwort sat_suchen(Rechenstand& r, const Argumente& a) {
  r.km.Sat_Suchen(a.zahl("key"), a.ganz("mode"));
  return {};
}

Antwort sat_wert(Rechenstand& r, const Argumente& a) {
  const auto spalte = std::ranges::find(kSpalten, a.text("column"), &Satzspalte::name);
  if (spalte == kSpalten.end())
    return misslingt("\"column\" must be T, p_d, p_b, h_l, h_v, rho_l or rho_v");
  return {zahl(r.km.Sat_Wert(spalte->feld, a.zahl("key"))), {}};
}

Antwort sat_t_aus_p(Rechenstand& r, const Argumente& a) {
  return {zahl(r.km.Sat_TausP(a.zahl("p"), a.zahl("mode"))), {}};
}

Antwort dampf_korrelation(Rechenstand& r, const Argumente& a) {
  r.km.Dampf_Korrelation(a.zahl("T_a"), a.zahl("T_d"), a.zahl("T_x"), a.zahl("t_s"));
  return {};
}

Antwort poly3(Rechenstand&, const Argumente& a) {
  return {zahl(Poly3(a.zahl("a"), a.zahl("b"), a.zahl("c"), a.zahl("d"), a.zahl("T"))), {}};
}

Antwort exp_visk(Rechenstand&, const Argumente& a) {
  return {zahl(ExpVisk(a.zahl("a"), a.zahl("b"), a.zahl("c"), a.zahl("T"))), {}};
}

Antwort cp_a(Rechenstand&, const Argumente& a) {
  return {zahl(CpA(a.zahl("k"), a.zahl("T"))), {}};
}

Antwort co2_tabelle(Rechenstand& r, const Argumente& a) {
  r.km.CO2_Tabelle(a.zahl("T"), a.zahl("p"), a.ganz("row"));
  return {};
}

Antwort co2_p_opt(Rechenstand&, const Argumente& a) {
  return {zahl(Kaeltemittel::CO2_pOpt(a.zahl("t"))), {}};
}

constexpr std::array<Operation, 12> kOperationen{{
    {"KM_Datei", "", "", km_datei},
    {"KM_Grenzen", "", "", km_grenzen},
    {"KM_Bekannt", "name", "", km_bekannt},
    {"Sat_Suchen", "key mode", "", sat_suchen},
    {"Sat_Wert", "column key", "", sat_wert},
    {"Sat_TausP", "p mode", "", sat_t_aus_p},
    {"Dampf_Korrelation", "T_a T_d T_x t_s", "", dampf_korrelation},
    {"Poly3", "a b c d T", "", poly3},
    {"ExpVisk", "a b c T", "", exp_visk},
    {"CpA", "k T", "", cp_a},
    {"CO2_Tabelle", "T p row", "", co2_tabelle},
    {"CO2_pOpt", "t", "", co2_p_opt},
}};

}  // namespace

std::span<const Satzspalte> Satzspalten() {
  return kSpalten;
}

std::span<const Operation> Stoffoperationen() {
  return kOperationen;
}

}  // namespace polarkreis::cli
