#include "simulation/bericht.h"

#include <algorithm>

#include "climate/klima.h"
#include "shell/text.h"

namespace polarkreis {

namespace {

constexpr std::size_t Rand = 8;
constexpr std::size_t Rand_schmal = 4;  // for languages with longer labels
constexpr std::size_t Lineal = 155;

/// Composes the report line by line.
class Schreiber {
 public:
  explicit Schreiber(std::string_view sprache) {
    const bool lang = sprache == "FRA" || sprache == "ESP" || sprache == "POR" || sprache == "ITA";
    rand_.assign(lang ? Rand_schmal : Rand, ' ');
  }
  void lineal() { zeile(std::string(Lineal, '-')); }
  void kopf(std::string_view text) { zeile(std::string(Marke_Kopf) + std::string(text)); }
  void zeile(std::string_view text) { text_ += rand_ + std::string(text) + "\r\n"; }
  void paar(std::string_view label, std::string_view wert) {
    zeile(std::string(label) + " :" + std::string(Marke_Spalte) + std::string(wert));
  }
  std::string fertig() { return std::move(text_); }

 private:
  std::string rand_;
  std::string text_;
};

std::string mit(double wert, std::string_view einheit) {
  return Zahl_Text(wert) + std::string(einheit);
}

void Anwendung(Schreiber& s, const Projektdaten& p) {
  const Captions& c = p.captions;
  s.paar(c.text(JMapCap::Anwendung), p.AnwendBereich);
  s.paar(c.text(JMapCap::Temperaturbereich), p.Tempbereich);
  s.paar(c.text(JMapCap::Anlagengroesse), p.AnlGroesse + "/ " + p.Q0 + " kW");
  s.paar(c.text(JMapCap::Klimaklasse), p.AmbientT + "/ " + p.tambient + " °C");
  s.lineal();
  s.lineal();
}

void Waermeuebertrager(Schreiber& s, const Projektdaten& p) {
  const Captions& c = p.captions;
  s.kopf(c.text(JMapCap::Verdampfer));
  s.paar(c.text(Caption::Verdampfergroesse), p.vdsize);
  s.paar(c.text(Caption::Verdampfungstemperatur), p.t0 + " °C");
  if (Wert(p.LueftcapVerDa) > 0) {
    s.paar(c.text(JMapCap::Verdampferventilatoren), p.LueftcapVerDa + " kW");
  }
  s.lineal();
  s.kopf(c.text(JMapCap::Verfluessiger) + " " + p.Vfl_typ);
  s.paar(c.text(Caption::Verfluessigergroesse), p.VFlsize);
  s.paar(c.text(Caption::Verfluessigungstemperatur), p.Tc + " °C");
  if (Wert(p.Lueftcap) > 0) {
    s.paar(c.text(JMapCap::Verfluessigerventilatoren), p.Lueftcap + " kW  " + p.RGartL);
  }
  s.lineal();
}

void Verdichter(Schreiber& s, const Projektdaten& p) {
  const Captions& c = p.captions;
  s.paar(c.text(JMapCap::Verdichter), p.verdichter_typ + "/" + p.Verdichterbauart);
  s.paar(c.text(Caption::Expansionsorgan), p.Combo1);
  s.paar(c.text(JMapCap::Leistungsregelung), p.RGart);
  s.paar(c.text(JMapCap::Winter_tc), p.WinterRGart);
  if (Wert(p.PumpCap) > 0) s.paar(c.text(JMapCap::Pumpen), p.PumpCap + " kW  " + p.RGartP);
  s.lineal();
}

void Zustand(Schreiber& s, const Projektdaten& p) {
  const Captions& c = p.captions;
  s.paar(c.text(JMapCap::Wartung), p.WartungI);
  s.paar(c.text(JMapCap::Fuellzustand), p.Fullzustand);
  s.paar(c.text(JMapCap::Leitungsdimension), p.Leitungsdimension);
  s.paar(c.text(JMapCap::Waermedaemmung), p.WaermeD);
  s.lineal();
  s.lineal();
}

void Betrieb(Schreiber& s, const Projektdaten& p, const Laufergebnis& lauf, const Ergebnis& e,
             std::string_view waehrung) {
  const Captions& c = p.captions;
  s.paar(c.text(Caption::Kaeltemittel), p.KaelteM);
  if (e.Rechart == 0) {
    s.paar(c.text(JMapCap::Betriebsstunden), p.energie.betrstd + " h/d");
    s.paar(c.text(JMapCap::Lastfaktor), p.energie.lzfaktor);
    s.paar(c.text(JMapCap::Betriebstage), p.energie.JahrebetrT + " d/a");
  } else {
    s.paar(Klima::land_anzeige(p.Land), p.Stadt);
    s.zeile(e.Bewertung + " :  " + Zahl_Text(e.LeistZ) + " /  COP min/max [" +
            Zahl_Text(lauf.summen.COP_min) + " /" + Zahl_Text(lauf.summen.COP_max) + "]");
  }
  s.paar(c.text(JMapCap::Energiepreis), p.energie.EnergKost + " " + std::string(waehrung) + "/kWh");
  s.paar("Spez. " + c.text(JMapCap::Emission) + " CO2", p.energie.Spezco2emission + " kg CO2/kWh");
  s.lineal();
}

void Jahresanteile(Schreiber& s, const Projektdaten& p, const Laufergebnis& lauf,
                   const Ergebnis& e) {
  for (const Ergebniszeile& z : ERG_Spread(p, lauf, e)) {
    if (Wert(z.wert) == 0) continue;
    s.paar(z.bezeichnung, z.wert + " " + z.einheit + (z.anteil.empty() ? "" : "  " + z.anteil));
  }
  s.lineal();
}

void Resultate(Schreiber& s, const Projektdaten& p, const Laufergebnis& lauf, const Ergebnis& e,
               std::string_view waehrung) {
  const Captions& c = p.captions;
  const std::string geld = " " + std::string(waehrung);
  s.kopf(c.text(JMapCap::Ergebnisse));
  s.paar(c.text(JMapCap::Jahreskosten), mit(e.BetrKo, geld));
  s.paar(c.text(JMapCap::Jahresenergie), mit(e.kWstunden, " kWh"));
  s.paar("CO2", mit(e.co2consum, " t/a"));
  if (e.Rechart == 0) s.paar(c.text(Caption::Leistungszahl), mit(e.LeistZ, ""));
  s.paar(c.text(JMapCap::Kaeltepreis), mit(e.Kaelte_P, geld + "/kWh"));
  if (!ist_leer(e.WRGspar)) s.paar(c.text(Heatcap::Einsparung_Kosten), mit(e.WRGspar, geld));
  if (!ist_leer(e.WRgCO2)) s.paar(c.text(Heatcap::Einsparung_CO2), mit(e.WRgCO2, " t"));
  s.lineal();
  if (e.Rechart == 1) Jahresanteile(s, p, lauf, e);
}

}  // namespace

std::string Bericht_Text(const Projektdaten& projekt, const Laufergebnis& lauf,
                         const Ergebnis& ergebnis, std::string_view waehrung) {
  Schreiber s(projekt.captions.Sprache);
  s.lineal();
  s.kopf(projekt.Rechart_combo);
  s.lineal();
  Anwendung(s, projekt);
  Waermeuebertrager(s, projekt);
  Verdichter(s, projekt);
  Zustand(s, projekt);
  Betrieb(s, projekt, lauf, ergebnis, waehrung);
  Resultate(s, projekt, lauf, ergebnis, waehrung);
  return s.fertig();
}

bool Ergebnis_Schreiben(const Projektdaten& projekt, const Laufergebnis& lauf,
                        const Ergebnis& ergebnis, std::string_view waehrung) {
  return projekt.ablage.schreib_ganz("ergEN1.DAT", Bericht_Text(projekt, lauf, ergebnis, waehrung),
                                     Haltbarkeit::wiederholbar);
}

}  // namespace polarkreis
