#include "logph_json.h"

namespace polarkreis::cli {

namespace {

Json orte_json(const std::vector<Diagrammort>& orte) {
  Json liste = Json::array();
  for (const Diagrammort& ort : orte) liste.push_back({zahl(ort.h), zahl(ort.p)});
  return liste;
}

Json wertlinien_json(const std::vector<Wertlinie>& linien, const char* name) {
  Json liste = Json::array();
  for (const Wertlinie& linie : linien)
    liste.push_back({{name, zahl(linie.Wert)}, {"places", orte_json(linie.Orte)}});
  return liste;
}

Json punkte_json(const std::vector<Zustandspunkt>& punkte) {
  Json liste = Json::array();
  for (const Zustandspunkt& p : punkte)
    liste.push_back({{"name", p.Name},
                     {"p", zahl(p.p)},
                     {"t", zahl(p.t)},
                     {"h", zahl(p.h)},
                     {"rho", zahl(p.rho)},
                     {"level", Name_von(p.Stufe)},
                     {"line", Name_von(p.Ort)}});
  return liste;
}

const char* Name_von(Bilanz::Art art) {
  if (art == Bilanz::Art::Masse) return "mass";
  return art == Bilanz::Art::Arbeit ? "work" : "energy";
}

Json bilanzen_json(const std::vector<Bilanz>& bilanzen) {
  Json liste = Json::array();
  for (const Bilanz& b : bilanzen)
    liste.push_back({{"component", b.Bauteil},
                     {"of", Name_von(b.Groesse)},
                     {"in", zahl(b.zu)},
                     {"out", zahl(b.ab)},
                     {"rest", zahl(b.Rest())},
                     {"closes", b.schliesst()}});
  return liste;
}

Json ergebnis_json(const logp_H::Ergebnis& e) {
  return {{"transcritical", e.transkritisch},
          {"p0", zahl(e.p0)},
          {"pc", zahl(e.pc)},
          {"p_s", zahl(e.p_s)},
          {"p_d", zahl(e.p_d)},
          {"p_m", zahl(e.p_m)},
          {"t_m", zahl(e.t_m)},
          {"t_s", zahl(e.t_s)},
          {"m", zahl(e.m)},
          {"m_joining", zahl(e.m_zu)},
          {"m_condenser", zahl(e.m_hoch)},
          {"m_model", zahl(e.m_Modell)},
          {"h_liq", zahl(e.h_liq)},
          {"h_l", zahl(e.h_l)},
          {"t_d1", zahl(e.t_d1)},
          {"t_d2", zahl(e.t_d2)},
          {"t_d", zahl(e.t_d)},
          {"h_d", zahl(e.h_d)},
          {"P_1", zahl(e.P_1)},
          {"P_2", zahl(e.P_2)},
          {"P_ideal_1", zahl(e.P_ideal_1)},
          {"P_ideal_2", zahl(e.P_ideal_2)},
          {"P", zahl(e.P)},
          {"eta_is", zahl(e.eta)},
          {"Q0", logp_H::Q0},
          {"Q_SL", zahl(e.Q_SL)},
          {"Qc", zahl(e.Qc)}};
}

}  // namespace

std::string_view Name_von(Schaltung schaltung) {
  switch (schaltung) {
    case Schaltung::einstufig:
      return "single stage";
    case Schaltung::Einspritzung:
      return "economiser with vapour injection";
    case Schaltung::zweistufig:
      return "two stages";
    case Schaltung::Flashgas_Saug:
      return "flash gas to the suction line";
    default:
      return "flash gas compressor";
  }
}

Json logph_json(const logp_H& form) {
  Json figuren = Json::array();
  for (const Druckfigur& figur : form.figuren()) figuren.push_back(figur.Text());
  return {{"mode", form.modul},
          {"table", form.Tabellenname()},
          {"refrigerant", form.Mittel_GWP()},
          {"arrangement", Name_von(form.ergebnis().Art)},
          {"t0F", zahl(form.t0F)},
          {"tcF", zahl(form.tcF)},
          {"result", ergebnis_json(form.ergebnis())},
          {"hsF", zahl(form.hsF)},
          {"hTF", zahl(form.hTF)},
          {"rhoSF", zahl(form.rhoSF)},
          {"rhoTF", zahl(form.rhoTF)},
          {"tGlide", zahl(form.tGlide)},
          {"t0_Punkt", zahl(form.t0_Punkt)},
          {"xDampf", zahl(form.xDampf)},
          {"EnthDiff", zahl(form.EnthDiff)},
          {"VerdLeist_DIN", zahl(form.VerdLeist_DIN)},
          {"EER_ACT", zahl(form.EER_ACT)},
          {"p_GC_Scroll", zahl(form.p_GC_Scroll)},
          {"tu_Scroll", zahl(form.tu_Scroll)},
          {"figures", figuren},
          {"points", punkte_json(form.punkte().Punkte)},
          {"paths", form.punkte().Wege},
          {"balances", bilanzen_json(form.bilanzen())}};
}

Json linien_json(const Logp_Linien& linien) {
  return {{"bubble", orte_json(linien.Siedelinie)},
          {"dew", orte_json(linien.Taulinie)},
          {"isotherms", wertlinien_json(linien.Isothermen, "t")},
          {"vapour_contents", wertlinien_json(linien.Gehalte, "x")},
          {"supercritical", wertlinien_json(linien.Ueberkritisch, "t")}};
}

}  // namespace polarkreis::cli
