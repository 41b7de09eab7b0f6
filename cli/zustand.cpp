#include "zustand.h"

namespace polarkreis::cli {

namespace {

constexpr Zustandstext kTexte[] = {{"RefName", &KMZustand::RefName},
                                   {"RefFile", &KMZustand::RefFile}};
constexpr Zustandszahl kZahlen[] = {{"GWP", &KMZustand::GWP},
                                    {"tmin", &KMZustand::tmin},
                                    {"tmax", &KMZustand::tmax},
                                    {"T0", &KMZustand::T0},
                                    {"Tc", &KMZustand::Tc},
                                    {"p0", &KMZustand::p0},
                                    {"p0_b", &KMZustand::p0_b},
                                    {"pc", &KMZustand::pc},
                                    {"h_l0", &KMZustand::h_l0},
                                    {"h_v0", &KMZustand::h_v0},
                                    {"h_lc", &KMZustand::h_lc},
                                    {"h_vc", &KMZustand::h_vc},
                                    {"rho_l0", &KMZustand::rho_l0},
                                    {"rho_v0", &KMZustand::rho_v0},
                                    {"rho_lc", &KMZustand::rho_lc},
                                    {"rho_vc", &KMZustand::rho_vc},
                                    {"rho_s", &KMZustand::rho_s},
                                    {"rho_d", &KMZustand::rho_d},
                                    {"cp_l", &KMZustand::cp_l},
                                    {"cp_d", &KMZustand::cp_d},
                                    {"cp_v0", &KMZustand::cp_v0},
                                    {"cp_s", &KMZustand::cp_s},
                                    {"eta_v0", &KMZustand::eta_v0},
                                    {"eta_vs", &KMZustand::eta_vs},
                                    {"eta_vd", &KMZustand::eta_vd},
                                    {"eta_l0", &KMZustand::eta_l0},
                                    {"eta_lc", &KMZustand::eta_lc},
                                    {"M", &KMZustand::M},
                                    {"kappa", &KMZustand::kappa},
                                    {"kappa2", &KMZustand::kappa2},
                                    {"dpdT0", &KMZustand::dpdT0},
                                    {"dpdT_ratio", &KMZustand::dpdT_ratio},
                                    {"T_is", &KMZustand::T_is},
                                    {"h_d_co2", &KMZustand::h_d_co2},
                                    {"dT_sh", &KMZustand::dT_sh},
                                    {"dT_sc", &KMZustand::dT_sc},
                                    {"t_s", &KMZustand::t_s},
                                    {"Q0", &KMZustand::Q0},
                                    {"m_punkt", &KMZustand::m_punkt},
                                    {"P_verd", &KMZustand::P_verd},
                                    {"eta_is", &KMZustand::eta_is},
                                    {"P_hoch", &KMZustand::P_hoch},
                                    {"p_m", &KMZustand::p_m},
                                    {"t_m", &KMZustand::t_m},
                                    {"dp_s", &KMZustand::dp_s},
                                    {"dp_d", &KMZustand::dp_d},
                                    {"Q_eco", &KMZustand::Q_eco},
                                    {"m_eco", &KMZustand::m_eco},
                                    {"u", &KMZustand::u}};
constexpr Zustandsganzzahl kGanze[] = {{"SatGefunden", &KMZustand::SatGefunden},
                                       {"SatGeladen", &KMZustand::SatGeladen},
                                       {"Bauart", &KMZustand::Bauart},
                                       {"Antrieb", &KMZustand::Antrieb},
                                       {"Zweistufig", &KMZustand::Zweistufig}};

}  // namespace

Zustandsfelder zustandsfelder() {
  return {kTexte, kZahlen, kGanze};
}

Json satzeile_json(const SatZeile& zeile) {
  return {{"T", zahl(zeile.T)},        {"p_d", zahl(zeile.p_d)}, {"p_b", zahl(zeile.p_b)},
          {"h_l", zahl(zeile.h_l)},    {"h_v", zahl(zeile.h_v)}, {"rho_l", zahl(zeile.rho_l)},
          {"rho_v", zahl(zeile.rho_v)}};
}

Json zustand_json(const KMZustand& zustand) {
  Json json = Json::object();
  for (const Zustandstext& f : kTexte) json[f.name] = zustand.*f.feld;
  for (const Zustandszahl& f : kZahlen) json[f.name] = zahl(zustand.*f.feld);
  for (const Zustandsganzzahl& f : kGanze) json[f.name] = zustand.*f.feld;
  json["Unten"] = satzeile_json(zustand.Klammer.Unten);
  json["Oben"] = satzeile_json(zustand.Klammer.Oben);
  return json;
}

}  // namespace polarkreis::cli
