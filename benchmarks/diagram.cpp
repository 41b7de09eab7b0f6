#include "diagram.h"

#include "cycle/logp_h.h"
#include "cycle/logp_linien.h"

namespace polarkreis::bench {

std::size_t Diagramm_rechnen(Programm& programm, const Diagrammfall& fall) {
  programm.km.z.RefName = fall.mittel;
  logp_H form(programm.kreis);
  form.modul = "2stage";
  form.t0F = fall.t0;
  form.tcF = fall.tc;
  form.dT_sh = 10;
  form.dT_sc = 3;
  form.ECO_OPT = fall.ECO_OPT;
  form.Zweistufig = fall.Zweistufig;
  form.P_hoch = 90;
  if (!form.Rechnen()) return 0;
  const Logp_Linien linien = logp_Linien(programm.km);
  return form.punkte().Punkte.size() + linien.Taulinie.size() + linien.Ueberkritisch.size();
}

}  // namespace polarkreis::bench
