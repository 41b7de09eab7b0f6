#include "simulation/ergebnis.h"

#include "simulation/bericht.h"

namespace polarkreis {

namespace {

/// The design point's estimate over the operating hours of a year; the power is the compressor's.
void Auslegung_kosten(const Projektdaten& p, const Laufergebnis& lauf, Ergebnis& e) {
  const double f_F = lauf.anlage.ableitung.f_F;
  const double lz = Wert(p.energie.lzfaktor) * f_F;
  const double h = lauf.anlage.RGart == Regelart::Drehzahl ? 24 : Wert(p.energie.betrstd) * f_F;
  const double tage = Wert(p.energie.JahrebetrT);
  const double P = lauf.auslegung.P;
  setze(e.kosten, P * h * tage * Wert(p.energie.EnergKost) * lz);
  setze(e.energie, P * h * tage * lz);
  setze(e.kWstunden, Int(e.energie));
  setze(e.LeistZ, geschnitten(e.COP));
  setze(e.Kaelte_P, Int(1000 * e.kosten / (e.COP * e.energie)) / 1000);
}

void Jahr_kosten(const Projektdaten& p, const Laufergebnis& lauf, Ergebnis& e) {
  const Jahressummen& s = lauf.summen;
  setze(e.Anteil,
        s.E_Verd / (s.E_Verd + s.E_Abtau + s.E_VDa_Luefter + s.E_VFl_Luefter + s.E_Pumpe));
  setze(e.SCOP, e.Anteil * s.COP_Sum / s.Vollast_Tage);
  setze(e.LeistZ, gerundet(e.SCOP));
  setze(e.energie, s.E_Verd * lauf.anlage.ableitung.f_F + s.E_Abtau + s.E_VFl_Luefter +
                       s.E_VDa_Luefter + s.E_Pumpe);
  setze(e.kWstunden, Int(e.energie));
  setze(e.kosten, e.energie * Wert(p.energie.EnergKost));
  setze(e.Kaelte_P, Int(1000 * e.kosten / (e.SCOP * e.kWstunden)) / 1000);
}

void Waermerueckgewinnung(const Laufergebnis& lauf, Ergebnis& e) {
  const Jahressummen& s = lauf.summen;
  const Anlage& a = lauf.anlage;
  if (a.WaterCheck) {
    setze(e.Anteil_WW, Int(0.05 + 1000 * s.Q_Wasser / (lauf.Q_WW_Tag * 365)) / 10);
  }
  if (a.HeizCheck) setze(e.Anteil_Heiz, Int(0.05 + 1000 * s.Q_Heiz / s.Q_Heiz_Bedarf) / 10);
  if (!a.WaterCheck && !a.HeizCheck) return;
  const double waerme = (a.WaterCheck ? s.Q_Wasser : 0) + (a.HeizCheck ? s.Q_Heiz : 0);
  const double b = waerme / lauf.heizdaten.Heizwert;
  setze(e.WRgCO2, Int(b * lauf.heizdaten.CO2) / 1000);
  setze(e.WRGspar, Int(100 * b * lauf.heizdaten.Preis + 0.005) / 100);
  if (e.Anteil_WW > 100) {
    setze(e.WRgCO2, Int(100 * e.WRgCO2 * 100 / e.Anteil_WW) / 100);
    setze(e.WRGspar, Int(100 * e.WRGspar * 100 / e.Anteil_WW) / 100);
  }
}

void Anteile(const Laufergebnis& lauf, Ergebnis& e) {
  const Jahressummen& s = lauf.summen;
  const auto anteil = [&](double teil) { return Int(10000 * teil / e.kWstunden) / 100; };
  setze(e.Anteil_Verd, anteil(s.E_Verd * lauf.anlage.ableitung.f_F));
  setze(e.Anteil_VFl, anteil(s.E_VFl_Luefter));
  setze(e.Anteil_VDa, anteil(s.E_VDa_Luefter));
  setze(e.Anteil_Abtau, anteil(s.E_Abtau));
  setze(e.Anteil_Pumpe, anteil(s.E_Pumpe));
  setze(e.Anteil_FreeCool,
        Int(10000 * s.E_FreeCool_Spar / (e.kWstunden + s.E_FreeCool_Spar)) / 100);
  setze(e.Wasser_m3, Int(s.Wasser_Adiabat / 100) / 10);
}

}  // namespace

Ergebnis Ergebnis_fuellen(const Projektdaten& projekt, const Laufergebnis& lauf) {
  Ergebnis e;
  e.Rechart = lauf.art.Rechart;
  e.Bewertung = std::string(lauf.art.Bewertung);
  setze(e.COP, lauf.auslegung.COP);
  if (e.Rechart == 0) {
    Auslegung_kosten(projekt, lauf, e);
  } else {
    Jahr_kosten(projekt, lauf, e);
    Waermerueckgewinnung(lauf, e);
    Anteile(lauf, e);
  }
  setze(e.BetrKo, Int(e.kosten));
  setze(e.co2consum, Int(e.energie * Wert(projekt.energie.Spezco2emission)) / 1000);
  e.meps = MEPS_find(projekt, Zahl_Text(e.LeistZ));
  return e;
}

std::vector<Ergebniszeile> ERG_Spread(const Projektdaten& projekt, const Laufergebnis& lauf,
                                      const Ergebnis& e) {
  const Captions& c = projekt.captions;
  const Jahressummen& s = lauf.summen;
  std::vector<Ergebniszeile> zeilen;
  const auto zeile = [&](JMapCap caption, double wert, std::string_view einheit, double anteil) {
    zeilen.push_back({c.text(caption), Zahl_Text(wert), std::string(einheit),
                      ist_leer(anteil) ? "" : Zahl_Text(anteil) + " %"});
  };
  zeile(JMapCap::Verdichterenergie, Int(s.E_Verd * lauf.anlage.ableitung.f_F), "kWh",
        e.Anteil_Verd);
  zeile(JMapCap::Verfluessigerventilatoren, Int(s.E_VFl_Luefter), "kWh", e.Anteil_VFl);
  zeile(JMapCap::Verdampferventilatoren, Int(s.E_VDa_Luefter), "kWh", e.Anteil_VDa);
  zeile(JMapCap::Abtauung, Int(s.E_Abtau), "kWh", e.Anteil_Abtau);
  zeile(JMapCap::Pumpen, Int(s.E_Pumpe), "kWh", e.Anteil_Pumpe);
  zeile(JMapCap::Wasserverbrauch, e.Wasser_m3, "m³", leer);
  zeile(JMapCap::Warmwasser, lauf.anlage.WaterCheck ? Int(s.Q_Wasser) : 0, "kWh", e.Anteil_WW);
  zeile(JMapCap::Heizung, lauf.anlage.HeizCheck ? Int(s.Q_Heiz) : 0, "kWh", e.Anteil_Heiz);
  zeile(JMapCap::Freikuehlung, Int(s.E_FreeCool_Spar), "kWh", e.Anteil_FreeCool);
  return zeilen;
}

Rechnung rechbutt(JahresLauf& lauf, Projektdaten& projekt, std::string_view waehrung) {
  Rechnung r;
  Ergebnisdatei datei;
  lauf.empfaenger = &datei;
  r.lauf = lauf.Jahr_Rechnen(projekt);
  lauf.empfaenger = nullptr;
  if (r.lauf.ende != Laufende::fertig) return r;
  r.ergebnis = Ergebnis_fuellen(projekt, r.lauf);
  const bool stunden = r.lauf.art.Rechart == 0 || datei.schreiben(projekt.ablage);
  r.geschrieben = Ergebnis_Schreiben(projekt, r.lauf, r.ergebnis, waehrung) && stunden;
  return r;
}

}  // namespace polarkreis
