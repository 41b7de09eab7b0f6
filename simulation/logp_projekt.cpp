#include "simulation/logp_projekt.h"

#include <utility>

#include "simulation/parameter.h"

namespace polarkreis {

void Projekt_Uebernehmen(const Anlage& anlage, Kaeltemittel& km, logp_H& form) {
  Ablage& ablage = km.ablage();
  auto zusatz = ablage.lies_ganz("SubAct.dat");
  const Zusatzzahlen zahlen =
      (zusatz ? SubAct_lesen(std::move(*zusatz)) : SubAct_Startwerte(ablage)).zahlen();
  const Druckdifferenzen druck = JMapOpt_lesen(ablage.lies_ganz("JMapOpt.dat").value_or(""));
  km.z.RefName = anlage.Kaeltemittel;
  form.modul = "SIM_PRO";
  form.t0F = t0_wirksam(anlage, 100);
  form.tcF = anlage.Tc + anlage.ableitung.Wartung_dT;
  form.dT_sh = anlage.ableitung.Ueberhitzung;
  form.t_s = form.t0F + form.dT_sh + anlage.ableitung.Isolier_dT + zahlen.Ueberhitzung_Zusatz;
  form.dT_sc = zahlen.Unterkuehlung;
  form.Innen_WT = anlage.Check3D1;
  form.dT_liquid = zahlen.dT_Innen_WT;
  form.ECO_OPT = anlage.ECO_OPT;
  form.Zweistufig = anlage.transkritisch ? 1 : 0;
  form.ParaL_Check = anlage.ParaL_Check;
  form.P_hoch = anlage.P_gasK;
  form.C = anlage.ableitung.pipe;
  form.dp_Fl = druck.leitung() * 1000;
  form.Bauart = anlage.Bauart;
  form.Antrieb = anlage.Antrieb;
}

}  // namespace polarkreis
