#include "logph_anlage.h"

#include <algorithm>
#include <utility>

#include "diagnostics/real_logp.h"
#include "optionen.h"
#include "projektwahl.h"
#include "punktlauf.h"
#include "shell/text.h"
#include "simulation/logp_projekt.h"
#include "stoff.h"

namespace polarkreis::cli {

namespace {

constexpr double kUeberhitzung = 10;    // K, where nothing is given
constexpr double kUnterkuehlung = 3;    // K
constexpr double kMittel_beider = 177;  // of both saturation lines

bool ist_messung(const std::string& name) {
  return gross(name).ends_with(".FMD");
}

void modus_pruefen(const Logph_Wuensche& w, std::string_view erlaubt, const char* wofuer) {
  if (w.modus.empty() ||
      (" " + std::string(erlaubt) + " ").find(" " + w.modus + " ") != std::string::npos)
    return;
  throw CLI::ValidationError(
      "--mode", w.modus + " doesn't go with " + wofuer + ": it takes " + std::string(erlaubt));
}

// A temperature, or the one of a pressure.
double temperatur(Programm& p, double t, double druck) {
  if (!ist_leer(t)) return t;
  return p.km.Sat_TausP(druck, kMittel_beider);
}

std::string aus_stoff(Sitzung& sitzung, const Logph_Wuensche& w, logp_H& form) {
  modus_pruefen(w, "MonoF 2stage SIM_PRO", "--refrigerant");
  if (ist_leer(w.t0) == ist_leer(w.p0))
    throw CLI::ValidationError("--t0", "give either --t0 or --p0 with --refrigerant");
  if (ist_leer(w.tc) == ist_leer(w.pc))
    throw CLI::ValidationError("--tc", "give either --tc or --pc with --refrigerant");
  Programm& p = sitzung.programm();
  stoff_waehlen(p, w.stoff);
  form.modul = !w.modus.empty() ? w.modus : w.stufen == 2 ? "2stage" : "MonoF";
  form.p0F = w.p0;
  form.pcF = w.pc;
  form.t0F = temperatur(p, w.t0, w.p0);
  form.tcF = temperatur(p, w.tc, w.pc);
  form.dT_sh = kUeberhitzung;
  form.dT_sc = kUnterkuehlung;
  form.Zweistufig = form.modul == "2stage" ? 1 : 0;
  return "t0 = " + anzeige(form.t0F) + " °C, tc = " + anzeige(form.tcF) + " °C";
}

std::string aus_projekt(Sitzung& sitzung, const Logph_Wuensche& w, logp_H& form) {
  modus_pruefen(w, "SIM_PRO", "a project");
  Programm& p = sitzung.programm();
  Projektdaten& projekt = projekt_laden(sitzung, w.datei);
  if (!w.optionen.empty()) optionen_lesen(w.optionen, projekt);
  punkt_bereit(p, projekt, "The cycle was not worked out.");
  Projekt_Uebernehmen(Anlage_von(projekt), p.km, form);
  return auslegung_text(projekt);
}

std::string aus_messung(Sitzung& sitzung, const Logph_Wuensche& w, logp_H& form) {
  modus_pruefen(w, "DiaG", "a measurement");
  Messempfaenger stumm;
  Messplatz platz(sitzung, w, stumm);
  platz.diagnose.datei.Arbeitskopie.clear();
  platz.laden(w.datei);
  platz.diagnose.kern.rechenkern(platz.fortschritt);
  platz.fortschritt.loeschen();
  const Messung& messung = platz.diagnose.messung;
  const std::string nummer = std::to_string(w.zeile);
  const int zeile = Messtabelle::Erste + w.zeile - 1;
  if (w.zeile > messung.Messpunkte())
    throw Abbruch("The measurement has no row " + nummer + ": it holds " +
                  std::to_string(messung.Messpunkte()) + " rows.");
  if (!Real_logp_h(messung, platz.diagnose.kern.Funktion, zeile, platz.p.km, form))
    throw Abbruch("Row " + nummer +
                  " gives no cycle: its refrigerant has no table, or a temperature sensor was "
                  "open. Choose another row with --row.");
  return "measured row " + nummer + ", " + messung.DiaSpread.text(zeile, Spalte::Zeit);
}

// The cycle moves a gas cooler between 30 and 31 °C up to 31 °C.
double Gaskuehler(double t) {
  return t > 30 ? std::max(t, 31.0) : t;
}

// What the call gives wins over the plant.
void ueberschreiben(const Logph_Wuensche& w, bool aus_tabelle, logp_H& form) {
  if (!aus_tabelle) {
    setze(form.t0F, w.t0);
    setze(form.tcF, w.tc);
  }
  setze(form.dT_sh, w.dT_sh);
  if (!ist_leer(w.dT_sh) && ist_leer(w.t_s)) form.t_s = leer;
  setze(form.t_s, w.t_s);
  setze(form.dT_sc, w.dT_sc);
  if (!ist_leer(w.dT_liquid)) {
    form.Innen_WT = w.dT_liquid != 0;
    form.dT_liquid = w.dT_liquid;
  }
  setze(form.p_Int_Scroll, w.p_int);
  setze(form.p_Int_Scroll2, w.p_int2);
  setze(form.p_m, w.p_m);
  setze(form.P_hoch, w.p_hoch);
  setze(form.C, w.C);
  setze(form.dp_Fl, w.dp_Fl);
  if (w.ECO_OPT >= 0) form.ECO_OPT = w.ECO_OPT;
  if (w.stufen > 0) form.Zweistufig = w.stufen - 1;
  if (w.Bauart >= 0) form.Bauart = w.Bauart;
  if (w.Antrieb >= 0) form.Antrieb = w.Antrieb;
  form.Auswahl2 = w.zweite_Auswahl;
  if (w.parallel) form.ParaL_Check = true;
}

}  // namespace

std::string logph_Anlage(Sitzung& sitzung, const Logph_Wuensche& w, logp_H& form) {
  if (!w.stoff.empty() && !w.datei.empty())
    throw CLI::ValidationError("--refrigerant", "give a file or a refrigerant, not both");
  const bool messung = ist_messung(w.datei);
  const std::string was = !w.stoff.empty() ? aus_stoff(sitzung, w, form)
                          : messung        ? aus_messung(sitzung, w, form)
                                           : aus_projekt(sitzung, w, form);
  ueberschreiben(w, !w.stoff.empty(), form);
  Programm& p = sitzung.programm();
  if (!messung) grenzen_pruefen(p, form.t0F, form.tcF);
  if (p.km.ist_CO2() && form.Zweistufig != 0 && form.P_hoch == 0)
    form.GC_Druck(Gaskuehler(form.tcF));
  return was;
}

}  // namespace polarkreis::cli
