#include "simulation/jahreslauf.h"

#include <algorithm>
#include <cmath>

#include "shell/text.h"
#include "simulation/grenzen.h"

namespace polarkreis {

JahresLauf::JahresLauf(const Laufmittel& mittel)
    : m_(mittel), punkt_(mittel.kreis, mittel.captions, mittel.dialog) {}

Laufende JahresLauf::pruefen(Projektdaten& projekt) {
  Kaeltemittel& km = m_.kreis.km;
  if (projekt.Kaeltemittel_Uebernehmen(projekt.KaelteM) ==
      Projektmeldung::unbekanntes_Kaeltemittel) {
    return Laufende::unbekanntes_Kaeltemittel;
  }
  km.z.RefName = projekt.KaelteM;
  if (km.KM_Datei() == 0) return Laufende::unbekanntes_Kaeltemittel;
  if (!km.KM_Tabelle_da()) {
    FehlerBOX(m_.dialog, Fehler::Datei_fehlt);
    return Laufende::Tabelle_fehlt;
  }
  for (const auto& [name, text] :
       {std::pair{"t0", projekt.t0}, {"Tc", projekt.Tc}, {"Q0", projekt.Q0}}) {
    if (std::isfinite(Wert(text))) continue;
    m_.dialog.zeige(m_.captions.text(Caption::Zahl_noetig) + "\r\n" + name + " = " + text, "",
                    Symbol::hinweis);
    return Laufende::Grenze;
  }
  if (const auto text =
          Grenzen_Text(km, m_.captions, m_.einheiten, Wert(projekt.t0), Wert(projekt.Tc))) {
    m_.dialog.zeige(*text, "", Symbol::hinweis);
    return Laufende::Grenze;
  }
  return Laufende::fertig;
}

Laufergebnis JahresLauf::Jahr_Rechnen(Projektdaten& projekt) {
  Laufergebnis e;
  Schrittfolge folge(m_.ablage);
  e.ende = pruefen(projekt);
  if (e.ende != Laufende::fertig) return e;
  e.art = Rechenart_von(m_.captions, projekt.Rechart_combo);
  energk_schreiben(m_.ablage, projekt.Projektordner, projekt.energie, Haltbarkeit::wiederholbar);
  m_.wrg.sicherstellen();
  SubAct_sicherstellen(m_.ablage, "SIM_PRO");
  if (e.art.Rechart == 1 && !projekt.JG_fertig && Kurs_oeffnen && !Kurs_oeffnen()) {
    e.ende = Laufende::abgebrochen;
    return e;
  }
  e.anlage = Anlage_von(projekt);
  m_.kreis.modul = "SIM_PRO";
  m_.kreis.Frequenz_Option = 0;
  if (e.art.Rechart == 0) {
    e.auslegung = punkt_.Punkt_Rechnen(e.anlage, 0, 1, leer);
  } else if (!jahr(projekt, e)) {
    e.ende = Laufende::abgebrochen;
  }
  m_.kreis.km.z.Zweistufig = 0;
  m_.ablage.meldungen().zaehler_melden();
  return e;
}

/// The values that hold for the whole year.
void JahresLauf::vorwerte(Laufergebnis& e) {
  const Anlage& a = e.anlage;
  s_ = Stand();
  heiz_ = e.heizdaten = m_.wrg.heizdaten();
  e.Q_WW_Tag = a.M_enth * 4.19 * (a.T_enth - heiz_.T_Kaltwasser) / 3600;
  P_WW_ = e.Q_WW_Tag / 24;
  s_.faktor = a.Verfluessiger == Verfluessigerart::Adiabat ? 1.87 : 1;

  const double d = std::min(std::abs(-4 - a.t0), a.dt_Verd);
  t_abtau_ = (d / 8) * 30 * dT_Last(a, 100, a.dt_Verd, 1, a.t0) / 8;
  if (a.t0 >= -4) t_abtau_ = 0;
  if (a.t0 >= -5) t_abtau_ *= 0.33;
  if (a.t0 >= -6) t_abtau_ *= 0.66;
  e.t_abtau = t_abtau_;
}

bool JahresLauf::jahr(const Projektdaten& projekt, Laufergebnis& e) {
  const Anlage vom_Benutzer = e.anlage;
  m_.klima.Land = projekt.Land;
  m_.klima.Stadt = projekt.Stadt;
  vorwerte(e);
  const Monatstabelle tabelle = Monatstabelle_lesen(m_.ablage);
  for (int m = 1; m <= 12; ++m) {
    if (!monat(m, tabelle.monate[static_cast<std::size_t>(m - 1)], e)) return false;
  }
  meldungen_schreiben(e.anlage);

  Anlage& a = e.anlage;
  a.Tc = vom_Benutzer.Tc;
  if (a.CO2) a.P_gasK = Kaeltemittel::CO2_pOpt(a.Tc);
  e.auslegung = punkt_.Punkt_Rechnen(a, 0, 1, 100);
  a.P_gasK = vom_Benutzer.P_gasK;
  a.PumpCap = vom_Benutzer.PumpCap;
  return true;
}

bool JahresLauf::monat(int m, const Monatszeile& zeile, Laufergebnis& e) {
  Schrittfolge innen(m_.ablage);
  s_.T_Tag = Wert(zeile.T_Tag);
  s_.T_Nacht = Wert(zeile.T_Nacht);
  s_.Last_Tag = Wert(zeile.Last_Tag);
  s_.Last_Nacht = Wert(zeile.Last_Nacht);
  s_.tage = m == 2 ? 28 : 30.63;
  m_.klima.Monat_aktuell = Monatsname(m_.captions, m, zeile.Monat);
  if (empfaenger) empfaenger->monat(zeile);
  for (s_.h = 1; s_.h <= 24; ++s_.h) {
    if (fortschritt) {
      const std::string text = m_.captions.text(SoleCapt::Kaeltemittel) + " " +
                               e.anlage.Kaeltemittel + " / " + zeile.Monat + " / " +
                               std::to_string(s_.h) + "h";
      if (!fortschritt->schritt(text, (m - 1) * 24 + s_.h, 288)) return false;
    }
    innen.naechster();
    s_.R = m_.klima.Klima_Wert(m_.klima.Stadt, static_cast<int>(Klimawahl::Feuchte_Monat));
    schritt(e);
    if (empfaenger) empfaenger->stunde(stundenwerte());
  }
  return true;
}

/// What a planner must know of figures that follow the rule but look odd.
void JahresLauf::meldungen_schreiben(const Anlage& a) {
  Meldungen& log = m_.ablage.meldungen();
  if (s_.E_negativ < 0) {
    log.melde("Jahr_Rechnen", "ERG_TEMP.DAT",
              "the condenser fan rule gave negative power with a winter limit of " +
                  Zahl_Text(a.tc_min) + " °C; its sum of " + Zahl_Text(gerundet(s_.E_negativ)) +
                  " kWh stays in the totals");
  }
  if (s_.E_ohne_Last > 0) {
    log.melde("Jahr_Rechnen", "ERG_TEMP.DAT",
              "uncontrolled fans and pumps took " + Zahl_Text(gerundet(s_.E_ohne_Last)) +
                  " kWh in hours without load; it stays in the totals");
  }
}

bool Kurs_passt(Ablage& ablage, const Projektdaten& projekt) {
  const Monatstabelle t = Monatstabelle_lesen(ablage);
  return t.da && Klima::gleiches_land(t.Land, projekt.Land) &&
         getrimmt(t.Stadt) == getrimmt(projekt.Stadt);
}

bool Kurs_machen(Klima& klima, Projektdaten& projekt) {
  klima.Land = Klima::land_anzeige(projekt.Land);
  klima.Stadt = projekt.Stadt;
  JahresGang gang(projekt.ablage, projekt.captions, klima);
  gang.oeffnen(projekt.AnwendBereich);
  if (!gang.OKbutt()) return false;
  Kurs_uebernehmen(gang, projekt);
  return true;
}

void Kurs_uebernehmen(const JahresGang& gang, Projektdaten& projekt) {
  projekt.Land = gang.Combo1;
  projekt.Stadt = gang.OrteListe;
  if (gang.AnwendBereich != projekt.AnwendBereich)
    projekt.aendern("AnwendBereich", gang.AnwendBereich);
  projekt.JG_fertig = gang.Gang_da;
}

}  // namespace polarkreis
