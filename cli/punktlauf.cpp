#include "punktlauf.h"

#include "konsole.h"
#include "stoff.h"

namespace polarkreis::cli {

Punkt punkt_bereit(Programm& p, Projektdaten& projekt, const std::string& wenn_nicht) {
  JahresLauf lauf({p.ablage, p.captions, p.kreis, p.klima, p.luft, p.wrg, p.dialog,
                   Einheiten::von(p.einstellungen[Einstellungen::Einheiten])});
  const Laufende ende = lauf.pruefen(projekt);
  if (ende == Laufende::Tabelle_fehlt) melde(tabelle_fehlt(p));
  if (ende != Laufende::fertig) throw Abbruch(wenn_nicht);
  SubAct_sicherstellen(p.ablage, "SIM_PRO");
  p.kreis.modul = "SIM_PRO";
  return {p.kreis, p.captions, p.dialog};
}

void COP_verlangen(const Punktwerte& werte) {
  if (werte.P > 0 && werte.COP > 0) return;
  throw Abbruch(
      "No COP comes out at this point: the compressor power can't be worked out. Check the "
      "project's capacity, temperatures and high pressure.");
}

}  // namespace polarkreis::cli
