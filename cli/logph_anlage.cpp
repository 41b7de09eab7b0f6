#include "logph_anlage.h"

#include <algorithm>
#include <utility>

#include "cycle/saettigung.h"
#include "diagnostics/real_logp.h"
#include "optionen.h"
#include "projektwahl.h"
#include "punktlauf.h"
#include "shell/text.h"
#include "simulation/logp_projekt.h"
#include "stoff.h"

namespace polarkreis::cli {

namespace {

constexpr double kUeberhitzung = 10;          // K, where nothing is given
constexpr double kUnterkuehlung = 3;          // K
constexpr double kGrenze_transkritisch = 31;  // °C, of the annual simulation

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

// The mean temperature of both lines at a pressure, which must lie inside the table.
double Saettigungstemperatur(Programm& p, double druck) {
  const std::vector<SatZeile>& tabelle = p.km.Tabellenzeilen();
  if (!(druck > tabelle.front().p_d && druck <= tabelle.back().p_d))
    throw Abbruch("The pressure " + anzeige(druck) + " bar lies outside the table " +
                  p.km.z.RefFile + ", which goes from " + anzeige(tabelle.front().p_d) + " to " +
                  anzeige(tabelle.back().p_d) + " bar" +
                  (p.km.ist_CO2() ? ". Above it give --tc and --p-high." : "."));
  const Saettigung s = Saettigung_bei(p.km, druck);
  return (s.t_b + s.t_d) / 2;
}

// Numbers that no plant has.
void zahlen_pruefen(const Logph_Wuensche& w) {
  const auto nicht_negativ = [](const char* name, double wert) {
    if (wert < 0) throw CLI::ValidationError(name, "must not be below 0");
  };
  nicht_negativ("--superheat", w.dT_sh);
  nicht_negativ("--subcooling", w.dT_sc);
  nicht_negativ("--ihx", w.dT_liquid);
  nicht_negativ("--p-high", w.p_hoch);
  nicht_negativ("--pipe", w.C);
  nicht_negativ("--dp-liquid", w.dp_Fl);
  nicht_negativ("--p-int", w.p_int);
  nicht_negativ("--p-int-2", w.p_int2);
}

// An option that would count for nothing is a mistake of the call.
void zusammenpassen_pruefen(const Logph_Wuensche& w, bool messung) {
  const bool stoff = !w.stoff.empty(), projekt = !stoff && !messung;
  const auto verlange = [](bool erfuellt, bool gegeben, const char* name, const char* wozu) {
    if (gegeben && !erfuellt) throw CLI::ValidationError(name, std::string("is for ") + wozu);
  };
  verlange(stoff, !ist_leer(w.p0), "--p0", "a plant of its own (--refrigerant)");
  verlange(stoff, !ist_leer(w.pc), "--pc", "a plant of its own (--refrigerant)");
  verlange(!messung, !ist_leer(w.t0), "--t0", "a project or a plant; a row has its own");
  verlange(!messung, !ist_leer(w.tc), "--tc", "a project or a plant; a row has its own");
  verlange(messung, w.zeile > 0, "--row", "a measurement");
  verlange(messung, !w.einstellungen.empty(), "--settings", "a measurement");
  verlange(projekt, !w.optionen.empty(), "--options", "a project");
  const bool eigene_Mitte = w.modus == "2stage" || (w.modus.empty() && w.stufen == 2) || !stoff;
  verlange(eigene_Mitte, !ist_leer(w.p_m), "--p-m", "--mode 2stage, or two stages of a file");
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
  form.t0F = ist_leer(w.t0) ? Saettigungstemperatur(p, w.p0) : w.t0;
  form.tcF = ist_leer(w.tc) ? Saettigungstemperatur(p, w.pc) : w.tc;
  form.dT_sh = kUeberhitzung;
  form.dT_sc = kUnterkuehlung;
  form.Zweistufig = form.modul == "2stage" ? 1 : 0;
  return {};
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
  const int gewaehlt = std::max(w.zeile, 1);
  const std::string nummer = std::to_string(gewaehlt);
  const int zeile = Messtabelle::Erste + gewaehlt - 1;
  if (gewaehlt > messung.Messpunkte())
    throw Abbruch("The measurement has no row " + nummer + ": it holds " +
                  std::to_string(messung.Messpunkte()) + " rows.");
  if (!Real_logp_h(messung, platz.diagnose.kern.Funktion, zeile, platz.p.km, form))
    throw Abbruch(
        "Row " + nummer +
        " gives no cycle: its refrigerant has no table, a temperature sensor was open, or "
        "the row could not be computed. Choose another row with --row.");
  return "measured row " + nummer + ", " + messung.DiaSpread.text(zeile, Spalte::Zeit);
}

// The cycle moves a gas cooler between 30 and 31 °C up to 31 °C.
double Gaskuehler(double t) {
  return t > 30 ? std::max(t, 31.0) : t;
}

// Another point of a project's plant: what hangs on its temperatures goes with them.
void temperaturen_setzen(const Logph_Wuensche& w, bool CO2, logp_H& form) {
  if (!ist_leer(w.t0)) {
    form.t_s += w.t0 - form.t0F;
    form.t0F = w.t0;
  }
  if (ist_leer(w.tc)) return;
  form.tcF = w.tc;
  if (!CO2) return;
  form.Zweistufig = w.tc > kGrenze_transkritisch ? 1 : 0;
  form.P_hoch = Kaeltemittel::CO2_pOpt(w.tc);
}

// What the call gives wins over the plant.
void ueberschreiben(const Logph_Wuensche& w, logp_H& form) {
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
  zahlen_pruefen(w);
  zusammenpassen_pruefen(w, messung);
  const std::string was = !w.stoff.empty() ? aus_stoff(sitzung, w, form)
                          : messung        ? aus_messung(sitzung, w, form)
                                           : aus_projekt(sitzung, w, form);
  Programm& p = sitzung.programm();
  if (w.stoff.empty()) temperaturen_setzen(w, p.km.ist_CO2(), form);
  ueberschreiben(w, form);
  if (!messung) grenzen_pruefen(p, form.t0F, form.tcF);
  if (!messung && form.t_s < form.t0F)
    throw Abbruch("The compressor inlet (" + anzeige(form.t_s) +
                  " °C) would be colder than the evaporator. Give a higher --t-suction.");
  if (p.km.ist_CO2() && form.Zweistufig != 0 && form.P_hoch == 0)
    form.GC_Druck(Gaskuehler(form.tcF));
  return was;
}

}  // namespace polarkreis::cli
