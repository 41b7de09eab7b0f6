#include "logph_bild.h"

#include "ausgabe.h"

namespace polarkreis::cli {

namespace {

Kurve kurve(Kurvenart art, const std::string& legende, const std::string& beschriftung,
            const std::vector<Diagrammort>& orte, const Einheiten& einheiten) {
  Kurve k{art, legende, beschriftung, {}};
  for (const Diagrammort& ort : orte) k.Punkte.push_back({ort.h, einheiten.Druck(ort.p)});
  return k;
}

void mittel_zeichnen(Schaubild& bild, const Logp_Linien& linien, const Einheiten& einheiten) {
  const std::string grad = " " + std::string(einheiten.Temperatureinheit());
  const auto temperatur = [&](double t) {
    return Zahl_Text(geschnitten(einheiten.Temperatur(t))) + grad;
  };
  for (const Wertlinie& linie : linien.Gehalte)
    bild.Kurven.push_back(kurve(Kurvenart::Gehalt, "Vapour content", "x = " + Zahl_Text(linie.Wert),
                                linie.Orte, einheiten));
  for (const Wertlinie& linie : linien.Isothermen)
    bild.Kurven.push_back(
        kurve(Kurvenart::Isotherme, "Isotherm", temperatur(linie.Wert), linie.Orte, einheiten));
  for (const Wertlinie& linie : linien.Ueberkritisch)
    bild.Kurven.push_back(kurve(Kurvenart::Ueberkritisch, "Isotherm above the critical temperature",
                                temperatur(linie.Wert), linie.Orte, einheiten));
  bild.Kurven.push_back(
      kurve(Kurvenart::Grenze, "Saturation lines", "", linien.Siedelinie, einheiten));
  bild.Kurven.push_back(
      kurve(Kurvenart::Grenze, "Saturation lines", "", linien.Taulinie, einheiten));
}

void kreis_zeichnen(Schaubild& bild, const Zustandspunkte& punkte, const Einheiten& einheiten) {
  for (std::size_t w = 0; w < punkte.Wege.size(); ++w) {
    std::vector<Diagrammort> orte;
    for (const std::size_t n : punkte.Wege[w])
      orte.push_back({punkte.Punkte[n].h, punkte.Punkte[n].p});
    bild.Kurven.push_back(
        kurve(Kurvenart::Prozess, w == 0 ? "Cycle" : "Intermediate vapour", "", orte, einheiten));
  }
  for (std::size_t n = 0; n < punkte.Punkte.size(); ++n) {
    const Zustandspunkt& p = punkte.Punkte[n];
    const double druck = einheiten.Druck(p.p);
    bild.Marken.push_back(
        {p.h,
         druck,
         std::to_string(n + 1),
         {std::string(p.Name), anzeige(druck), anzeige(einheiten.Temperatur(p.t)), anzeige(p.h)}});
  }
}

}  // namespace

Schaubild logph_Bild(const logp_H& form, const Logp_Linien& linien, const Einheiten& einheiten,
                     const std::string& titel) {
  Schaubild bild;
  bild.Titel = "log p-h diagram " + form.Mittel_GWP();
  bild.Untertitel = titel;
  bild.x.Titel = "Enthalpy [kJ/kg]";
  bild.y.Titel = "Pressure " + std::string(form.Druckeinheit());
  bild.y.log = true;
  bild.Markenkopf = {"", "State", "p " + std::string(form.Druckeinheit()),
                     "t [" + std::string(einheiten.Temperatureinheit()) + "]", "h [kJ/kg]"};
  mittel_zeichnen(bild, linien, einheiten);
  kreis_zeichnen(bild, form.punkte(), einheiten);
  for (const Druckfigur& figur : form.figuren())
    bild.Texte.push_back(std::string(figur.Literal) + "\t" + figur.Wert +
                         std::string(figur.Einheit));
  return bild;
}

}  // namespace polarkreis::cli
