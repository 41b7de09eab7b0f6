#include "shell/start/vorgaben.h"

#include <algorithm>

#include "shell/start/version.h"
#include "shell/text.h"

namespace polarkreis {

namespace {

constexpr std::string_view JMapOptDatei = "JMapOpt.dat";
constexpr std::string_view SubActDatei = "SubAct.dat";
constexpr std::string_view Startwerte = "Armstd.rdm";

template <std::size_t N, std::size_t M>
void erste_kopieren(const std::array<std::string, N>& von, std::array<std::string, M>& nach) {
  std::copy_n(von.begin(), std::min(N, M), nach.begin());
}

Zusatzwerte subact(Ablage& ablage) {
  return SubAct_lesen(ablage.lies_ganz(SubActDatei).value_or(""));
}

}  // namespace

void Vorgaben::oeffnen(std::string_view modul) {
  Ablage& ablage = projekt_.ablage;
  JMapOpt_sichtbar = modul == "SIM" || modul == "SIM_PRO";
  JMapOpt = JMapOpt_lesen(ablage.lies_ganz(JMapOptDatei).value_or("")).werte;
  SubAct_sicherstellen(ablage, modul);
  erste_kopieren(subact(ablage).werte, SubAct);
  energie = energk_lesen(ablage, projekt_.Projektordner);
  offen = true;
}

void Vorgaben::StandardButt() {
  Ablage& ablage = projekt_.ablage;
  JMapOpt = Druckdifferenzen{}.werte;
  energie = Energiedaten{};
  if (!ablage.vorhanden(Startwerte)) {
    ablage.meldungen().melde("StandardButt", Startwerte, "missing: the fields of SubAct.dat stay");
    return;
  }
  // The list of start values ends before the last field.
  erste_kopieren(SubAct_Startwerte(ablage).werte, SubAct);
  SubAct.back() = "0";
}

bool Vorgaben::Command3D2() {
  Ablage& ablage = projekt_.ablage;
  std::string fehler;
  const auto gespeichert = [&](bool ergebnis) {
    if (!ergebnis && fehler.empty()) fehler = ablage.letzter_fehler();
    return ergebnis;
  };
  Zusatzwerte zusatz = subact(ablage);
  erste_kopieren(SubAct, zusatz.werte);
  bool gut = !JMapOpt_sichtbar || gespeichert(JMapOpt_schreiben(ablage, {JMapOpt}));
  gut = gespeichert(SubAct_schreiben(ablage, zusatz)) && gut;
  gut = gespeichert(energk_schreiben(ablage, projekt_.Projektordner, energie)) && gut;
  if (!gut) {
    dialog_.zeige(fehler, Programmname, Symbol::fehler);
    return false;
  }
  projekt_.energie = energie;
  offen = false;
  return true;
}

}  // namespace polarkreis
