#include "diagnostics/anlagenbild.h"

#include <array>

#include "diagnostics/messzeiten.h"
#include "shell/text.h"

namespace polarkreis {

namespace {

/// What stands on the scheme, and where.
struct Schemaposten {
  Schemaort ort;
  int Spalte;
  std::string Bezeichnung;
  std::string_view Masseinheit;
};
using Schemaposten_Liste = std::vector<Schemaposten>;

bool enthaelt(std::string_view text, std::string_view teil) {
  return gross(text).find(gross(teil)) != std::string::npos;
}

Schemaposten_Liste Kaeltekreis(const Captions& c) {
  using S = Schemaort;
  return {{S::Verdampfer, Spalte::p0, c.text(Caption::Verdampfungsdruck), "bar g"},
          {S::Verdampfer, Spalte::t0, c.text(Caption::Verdampfungstemperatur), "°C"},
          {S::Verdampfer, Spalte::t_Exp, "t Exp.", "°C"},
          {S::Verdampfer, Spalte::dT_sh, c.text(Caption::Ueberhitzung), "K"},
          {S::Saugleitung, Spalte::t_SL, c.text(Caption::Sauggastemperatur), "°C"},
          {S::Verdichter, Spalte::P_el, c.text(Caption::Elektrische_Leistung), "kW"},
          {S::Verdichter, Spalte::eta, c.text(Caption::Wirkungsgrad), "%"},
          {S::Verdichter, Spalte::m_KM, c.text(Caption::Massenstrom), "kg/h"},
          {S::Druckleitung, Spalte::t_end, c.text(Caption::Druckgastemperatur), "°C"},
          {S::Verfluessiger, Spalte::pc, c.text(Caption::Verfluessigungsdruck), "bar g"},
          {S::Verfluessiger, Spalte::tc, c.text(Caption::Verfluessigungstemperatur), "°C"},
          {S::Fluessigkeitsleitung, Spalte::t_liq, c.text(Caption::Fluessigkeitstemperatur), "°C"},
          {S::Fluessigkeitsleitung, Spalte::dT_sc, c.text(Caption::Unterkuehlung), "K"}};
}

Schemaposten_Liste Sekundaerseiten(const Captions& c) {
  using S = Schemaort;
  const std::string& V = c.text(Caption::Volumenstrom);
  return {{S::Sekundaerseite_Verdampfer, Spalte::Fluss_Verd, V, "m³/h"},
          {S::Sekundaerseite_Verdampfer, Spalte::t_ein_Verd, "t in1", "°C"},
          {S::Sekundaerseite_Verdampfer, Spalte::t_aus_Verd, "t out2", "°C"},
          {S::Sekundaerseite_Verdampfer, Spalte::Qo_dt, "Qo*dt*", "kW"},
          {S::Sekundaerseite_Verfluessiger, Spalte::Fluss_Verfl, V, "m³/h"},
          {S::Sekundaerseite_Verfluessiger, Spalte::t_ein_Verfl, "t in3", "°C"},
          {S::Sekundaerseite_Verfluessiger, Spalte::t_aus_Verfl, "t out4", "°C"},
          {S::Sekundaerseite_Verfluessiger, Spalte::Qc_dt, c.text(Caption::Verfluessigerleistung),
           "kW"}};
}

Schemaposten_Liste Gesamtanlage(const Captions& c) {
  using S = Schemaort;
  return {{S::Anlage, Spalte::Qo_COP, c.text(Caption::Kaelteleistung), "kW"},
          {S::Anlage, Spalte::Qc_COP, c.text(Caption::Verfluessigerleistung), "kW"},
          {S::Anlage, Spalte::EER_1, "EER", ""},
          {S::Anlage, Spalte::EER_2, "COP", ""},
          {S::Anlage, Spalte::P_rest, c.text(Caption::Rest_der_Anlage), "kW"},
          {S::Anlage, Spalte::EER_Anlage, "EER Gesamt Anlage", ""}};
}

Schemaposten_Liste Kaeltemittelseite(int i, Schemaort ort) {
  using namespace Spalte;
  return {{ort, von(E_P1, i), "P1", "bar g"},     {ort, von(E_t_P1, i), "t P1", "°C"},
          {ort, von(E_P2, i), "P2", "bar g"},     {ort, von(E_t_P2, i), "t P2", "°C"},
          {ort, von(E_t_liq, i), "t liq.", "°C"}, {ort, von(E_t_Exp, i), "t Exp.", "°C"}};
}

/// The unit's own secondary side.
Schemaposten_Liste Sekundaerseite(const Captions& c, int i) {
  using namespace Spalte;
  constexpr Schemaort ort = Schemaort::Einheit;
  return {{ort, von(E_Fluss, i), c.text(Caption::Volumenstrom), "m³/h"},
          {ort, von(E_t_in1, i), "t in1", "°C"},
          {ort, von(E_t_in2, i), "t in2", "°C"},
          {ort, von(E_t_out3, i), "t out3", "°C"},
          {ort, von(E_t_out4, i), "t out4", "°C"}};
}

Schemaposten_Liste Foerderung(const Captions& c, int i, int code) {
  using namespace Spalte;
  constexpr Schemaort ort = Schemaort::Einheit;
  const std::string_view p = code == F_Ventilator ? "Pa" : "bar";
  return {{ort, von(E_P1, i), "P1", p},
          {ort, von(E_P2, i), "P2", p},
          {ort, ergebnis(dp_Einheit, i), c.text(Caption::Druckdifferenz), p},
          {ort, ergebnis(P_hydr, i), c.text(Caption::Hydraulische_Leistung), "kW"},
          {ort, ergebnis(eta_Einheit, i), c.text(Caption::Wirkungsgrad), "%"}};
}

/// The codes whose unit measures between the stages.
bool misst_Zwischenstufe(int code) {
  return code == F_Einspritzung || code == F_Booster || code == F_zweistufig ||
         code == F_Zwischenkuehler;
}

/// A unit 1 with the plain function follows the scheme.
Schemaort Ort_der_Einheit(const Schemaart& art, int i, int code) {
  if (code == F_Economiser) return Schemaort::Economiser;
  if (misst_Zwischenstufe(code)) return Schemaort::Zwischenstufe;
  if (i != 1 || code != F_Verdichter) return Schemaort::Einheit;
  if (art.Economiser) return Schemaort::Economiser;
  return art.zweistufig ? Schemaort::Zwischenstufe : Schemaort::Einheit;
}

Schemaposten_Liste Einheit(const Captions& c, const Schemaart& art, int i, int code) {
  if (code == F_keine) return {};
  Schemaposten_Liste liste = code == F_Ventilator || code == F_Pumpe
                                 ? Foerderung(c, i, code)
                                 : Kaeltemittelseite(i, Ort_der_Einheit(art, i, code));
  const Schemaposten_Liste sekundaer = Sekundaerseite(c, i);
  liste.insert(liste.end(), sekundaer.begin(), sekundaer.end());
  return liste;
}

std::string Werttext(const std::string& zelle, std::string_view masseinheit) {
  if (!ist_Messwert(zelle)) return "-";
  std::string text(getrimmt(zelle));
  if (!masseinheit.empty()) text.append(" ").append(masseinheit);
  return text;
}

bool ist_rot(unsigned bits, int spalte) {
  if (spalte == Spalte::dT_sh) return (bits & Rot_sh) != 0;
  if (spalte == Spalte::dT_sc) return (bits & Rot_sc) != 0;
  const bool urteil =
      spalte == Spalte::eta || (spalte >= Spalte::EER_1 && spalte <= Spalte::Qo_COP);
  return (urteil || spalte == Spalte::Qc_COP) && (bits & Rot_eta) != 0;
}

Schemawert Wert_von(const Schemaposten& p, int einheit, const Messtabelle& tabelle, int zeile) {
  return {p.ort,
          einheit,
          p.Spalte,
          p.Bezeichnung,
          Werttext(tabelle.text(zeile, p.Spalte), p.Masseinheit),
          tabelle.text(2, p.Spalte),
          ist_rot(tabelle.rot(zeile), p.Spalte)};
}

}  // namespace

Schemaart Schemaart_von(std::string_view Combo3, const Captions& captions) {
  const std::string& zweistufig = captions.text(Caption::Zweistufig);
  Schemaart art;
  art.transkritisch = enthaelt(Combo3, Text_transkritisch);
  art.Economiser = enthaelt(Combo3, "Economizer");
  art.zweistufig =
      !zweistufig.empty() && gross(links_getrimmt(Combo3)).starts_with(gross(zweistufig));
  return art;
}

std::vector<Schemawert> RI_Chart(const Messung& messung, const Captions& captions,
                                 const Einheitenfunktion& funktion, int zeile) {
  const Messtabelle& t = messung.DiaSpread;
  const Schemaart art = Schemaart_von(messung.Combo3, captions);
  if (zeile < Messtabelle::Erste) zeile = 0;  // the headings are no measurement
  std::vector<Schemawert> werte;
  for (const auto liste : {Kaeltekreis, Sekundaerseiten, Gesamtanlage})
    for (const Schemaposten& p : liste(captions)) werte.push_back(Wert_von(p, 0, t, zeile));
  for (int i = 1; i < static_cast<int>(funktion.Sensor_Code.size()); ++i) {
    const int code = funktion.Sensor_Code[static_cast<std::size_t>(i)];
    for (const Schemaposten& p : Einheit(captions, art, i, code))
      if (ist_Messwert(t.text(zeile, p.Spalte))) werte.push_back(Wert_von(p, i, t, zeile));
  }
  return werte;
}

}  // namespace polarkreis
