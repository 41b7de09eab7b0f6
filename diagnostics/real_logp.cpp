#include "diagnostics/real_logp.h"

#include <algorithm>

#include "diagnostics/kern.h"
#include "diagnostics/spalten.h"
#include "shell/text.h"

namespace polarkreis {
namespace {

/// One row of the measurement by its columns.
class Zeile {
 public:
  Zeile(const Messung& messung, int nummer) : tabelle_(messung.DiaSpread), nummer_(nummer) {}

  double operator()(int spalte) const { return tabelle_.zahl(nummer_, spalte); }
  bool leer(int spalte) const { return getrimmt(tabelle_.text(nummer_, spalte)).empty(); }
  bool gemessen(int spalte) const {
    const std::string_view text = getrimmt(tabelle_.text(nummer_, spalte));
    return !text.empty() && text != "-" && text != "0";
  }
  /// The column, or one of the first unit where that measured it.
  double oder(int spalte, Spalte::Einheit ersatz, bool erlaubt) const {
    const int andere = Spalte::von(ersatz, 1);
    return (*this)(erlaubt && gemessen(andere) ? andere : spalte);
  }

 private:
  const Messtabelle& tabelle_;
  int nummer_;
};

/// The middle pressure in bar absolute: the second one of the unit, else the first; empty without.
double Mitteldruck(const Zeile& zeile) {
  for (const Spalte::Einheit spalte : {Spalte::E_P2, Spalte::E_P1}) {
    const double p = zeile(Spalte::von(spalte, 1)) + Atmosphaere_Stufe;
    if (p >= Kleinste_Stufe) return p;
  }
  return leer;
}

bool zweistufig(int code) {
  return code == F_Einspritzung || code == F_Booster || code == F_zweistufig ||
         code == F_Zwischenkuehler;
}

bool gerechnet(const Zeile& zeile, double t_Exp, double t_liq) {
  for (const int spalte : {Spalte::t0, Spalte::tc, Spalte::dT_sh, Spalte::dT_sc})
    if (zeile.leer(spalte)) return false;
  return std::min({t_Exp, zeile(Spalte::t_SL), t_liq}) >= Kein_Fuehler;
}

}  // namespace

bool Real_logp_h(const Messung& messung, const Einheitenfunktion& funktion, int nummer,
                 Kaeltemittel& km, logp_H& form) {
  if (nummer < Messtabelle::Erste || nummer > messung.DiaSpread.letzte_gefuellte()) return false;
  const Zeile zeile(messung, nummer);
  const int code = funktion.Sensor_Code[1];
  const bool nah = code == F_Verdichter, fern = nah || code == F_Fernfuehler;
  const double t_Exp = zeile.oder(Spalte::t_Exp, Spalte::E_t_Exp, fern);
  const double t_liq = zeile.oder(Spalte::t_liq, Spalte::E_t_liq, nah);
  if (!gerechnet(zeile, t_Exp, t_liq)) return false;

  km.z.RefName = messung.KaelteM;
  km.KM_Datei();
  form.modul = "DiaG";
  form.p0F = zeile(Spalte::p0) + Atmosphaere;
  form.pcF = form.P_hoch = zeile(Spalte::pc) + Atmosphaere;
  form.t0F = zeile(Spalte::t0);
  form.tcF = zeile(Spalte::tc);
  form.dT_sh = zeile(Spalte::dT_sh);
  form.dT_sc = zeile(Spalte::dT_sc);
  form.t_s = zeile(Spalte::t_SL);
  form.t_end = zeile.gemessen(Spalte::t_end) ? zeile(Spalte::t_end) : leer;
  const std::vector<SatZeile>& tabelle = km.Tabellenzeilen();
  if (km.ist_CO2() && !tabelle.empty() && form.pcF > tabelle.back().p_d) {
    form.tcF = t_liq;
    form.dT_sc = 0;
  }
  form.Zweistufig = !zweistufig(code) ? 0 : code == F_Einspritzung ? 1 : code;
  form.p_m = form.t_s2 = leer;
  if (form.Zweistufig != 0) {
    form.p_m = Mitteldruck(zeile);
    const int t_s2 = Spalte::von(Spalte::E_t_Exp, 1);
    if (zeile.gemessen(t_s2)) form.t_s2 = zeile(t_s2);
  }
  form.ECO_OPT = messung.ECO_OPT;
  form.C = messung.C;
  form.Bauart = messung.Bauart;
  form.Antrieb = messung.Antrieb == 0 ? 2 : messung.Antrieb;
  return true;
}

}  // namespace polarkreis
