#include "diagnostics/diagrammplan.h"

#include <array>

#include "diagnostics/messzeiten.h"
#include "shell/text.h"

namespace polarkreis {

namespace {

constexpr int Letzte_Einheit = 5;
constexpr int Phasen = 3;
constexpr std::array<Farbrolle, 8> Reihenfarben{
    Farbrolle::Reihe_1, Farbrolle::Reihe_2, Farbrolle::Reihe_3, Farbrolle::Reihe_4,
    Farbrolle::Reihe_5, Farbrolle::Reihe_6, Farbrolle::Reihe_7, Farbrolle::Reihe_8};

Farbrolle farbe(int nummer) {
  return Reihenfarben[static_cast<std::size_t>(nummer)];
}

double Zelle(const Messtabelle& tabelle, int zeile, int spalte) {
  const std::string& text = tabelle.text(zeile, spalte);
  return ist_Messwert(text) ? Wert(text) : leer;
}

int Phasenspalte(int einheit, int phase) {
  return Spalte::P_Phasen + Phasen * (einheit - 1) + phase;
}

/// Power of one phase in kW. Units 1 and 2 have columns for it; of the others it is voltage times
/// current.
double Phasenleistung(const Messtabelle& tabelle, int zeile, int einheit, int phase) {
  if (einheit <= 2) return Zelle(tabelle, zeile, Phasenspalte(einheit, phase));
  return Zelle(tabelle, zeile, von(Spalte::E_U_L1, einheit) + phase) *
         Zelle(tabelle, zeile, von(Spalte::E_I_L1, einheit) + phase) / 1000;
}

/// Sum of the phases that were measured.
double Einheitenleistung(const Messtabelle& tabelle, int zeile, int einheit) {
  double summe = leer;
  for (int phase = 0; phase < Phasen; ++phase) {
    const double P = Phasenleistung(tabelle, zeile, einheit, phase);
    if (!ist_leer(P)) summe = ist_leer(summe) ? P : summe + P;
  }
  return summe;
}

std::string mit_L(std::string_view text, int phase) {
  return std::string(text) + " L" + std::to_string(phase + 1);
}

std::string Orbiter(int einheit) {
  return "Orbiter " + std::to_string(einheit);
}

Diagrammplan Druckpaar(const Captions& c) {
  return {true,
          {{c.text(Caption::Verdampfungsdruck), Groesse::Druck, Farbrolle::kalt, Zelle, Spalte::p0},
           {c.text(Caption::Verfluessigungsdruck), Groesse::Druck, Farbrolle::heiss, Zelle,
            Spalte::pc}}};
}

Diagrammplan Temperaturpaar(const Captions& c) {
  return {true,
          {{c.text(Caption::Verdampfungstemperatur), Groesse::Temperatur, Farbrolle::kalt, Zelle,
            Spalte::t0},
           {c.text(Caption::Verfluessigungstemperatur), Groesse::Temperatur, Farbrolle::heiss,
            Zelle, Spalte::tc}}};
}

Diagrammplan Leistung(const Captions& c) {
  const std::string& Qo = c.text(Caption::Kaelteleistung);
  const std::string& Qc = c.text(Caption::Verfluessigerleistung);
  return {true,
          {{Qo + " Qo *COP*", Groesse::Leistung, Farbrolle::kalt, Zelle, Spalte::Qo_COP},
           {Qo + " Qo*dt*", Groesse::Leistung, Farbrolle::kalt_2, Zelle, Spalte::Qo_dt},
           {Qc + " Qc *COP*", Groesse::Leistung, Farbrolle::heiss, Zelle, Spalte::Qc_COP},
           {c.text(Caption::Sekundaerseite_Verfluessiger), Groesse::Leistung, Farbrolle::heiss_2,
            Zelle, Spalte::Qc_dt},
           {"EER", Groesse::Leistungszahl, Farbrolle::Kennzahl, Zelle, Spalte::EER_1}}};
}

Diagrammplan Einheitentemperaturen(int einheit) {
  struct Fuehler {
    const char* name;
    Spalte::Einheit spalte;
  };
  static constexpr std::array<Fuehler, 8> fuehler{{{"t liq.", Spalte::E_t_liq},
                                                   {"t in1", Spalte::E_t_in1},
                                                   {"t in2", Spalte::E_t_in2},
                                                   {"t out3", Spalte::E_t_out3},
                                                   {"t out4", Spalte::E_t_out4},
                                                   {"t Exp.", Spalte::E_t_Exp},
                                                   {"t P1", Spalte::E_t_P1},
                                                   {"t P2", Spalte::E_t_P2}}};
  Diagrammplan plan;
  for (int k = 0; k < static_cast<int>(fuehler.size()); ++k) {
    const Fuehler& f = fuehler[static_cast<std::size_t>(k)];
    plan.reihen.push_back(
        {f.name, Groesse::Temperatur, farbe(k), Zelle, Spalte::von(f.spalte, einheit)});
  }
  return plan;
}

Diagrammplan Elektrische_Leistung(const Captions& c) {
  return {false,
          {{c.text(Caption::Elektrische_Leistung), Groesse::Leistung, Farbrolle::Antrieb, Zelle,
            Spalte::P_el},
           {c.text(Caption::Rest_der_Anlage), Groesse::Leistung, Farbrolle::Nebenantrieb, Zelle,
            Spalte::P_rest}}};
}

Diagrammplan Alle_Einheiten() {
  Diagrammplan plan;
  for (int i = 1; i <= Letzte_Einheit; ++i)
    plan.reihen.push_back({Orbiter(i), Groesse::Leistung, farbe(i - 1), Einheitenleistung, i});
  return plan;
}

// A phase has one colour for its voltage, its current and its power: the axes tell them apart.
Diagrammplan Einheit_elektrisch(int einheit) {
  Diagrammplan plan;
  for (int k = 0; k < Phasen; ++k)
    plan.reihen.push_back({mit_L("Spannung", k), Groesse::Spannung, farbe(k), Zelle,
                           Spalte::von(Spalte::E_U_L1, einheit) + k});
  for (int k = 0; k < Phasen; ++k)
    plan.reihen.push_back({mit_L("Stromstärke", k), Groesse::Strom, farbe(k), Zelle,
                           Spalte::von(Spalte::E_I_L1, einheit) + k});
  for (int k = 0; k < Phasen; ++k)
    plan.reihen.push_back(
        {mit_L(Orbiter(einheit), k), Groesse::Leistung, farbe(k), Zelle, Phasenspalte(einheit, k)});
  return plan;
}

}  // namespace

std::vector<std::string> Combo8_Liste(const Captions& captions) {
  const auto paar = [&](Caption a, Caption b) {
    return captions.text(a) + " / " + captions.text(b);
  };
  const std::string& P = captions.text(Caption::Elektrische_Leistung);
  return {paar(Caption::Verdampfungsdruck, Caption::Verfluessigungsdruck),
          paar(Caption::Verdampfungstemperatur, Caption::Verfluessigungstemperatur),
          captions.text(Caption::Kaelteleistung),
          " Orbiter 1 " + captions.text(Caption::Temperatur),
          P,
          "Orbiter 1-5 " + P,
          "Orbiter 1 Elektrische Daten",
          "Orbiter 2 Elektrische Daten"};
}

Diagrammwahl Combo8_Wahl(std::string_view Combo8, const Captions& captions) {
  const std::vector<std::string> liste = Combo8_Liste(captions);
  for (std::size_t k = 0; k < liste.size(); ++k)
    if (gleich(liste[k], Combo8)) return static_cast<Diagrammwahl>(k);
  return Diagrammwahl::Druckpaar;
}

Diagrammplan Diagrammplan_von(Diagrammwahl wahl, const Captions& captions) {
  switch (wahl) {
    case Diagrammwahl::Druckpaar:
      return Druckpaar(captions);
    case Diagrammwahl::Temperaturpaar:
      return Temperaturpaar(captions);
    case Diagrammwahl::Leistung:
      return Leistung(captions);
    case Diagrammwahl::Orbiter_1_Temperatur:
      return Einheitentemperaturen(1);
    case Diagrammwahl::Elektrische_Leistung:
      return Elektrische_Leistung(captions);
    case Diagrammwahl::Orbiter_1_bis_5:
      return Alle_Einheiten();
    case Diagrammwahl::Orbiter_1_elektrisch:
      return Einheit_elektrisch(1);
    case Diagrammwahl::Orbiter_2_elektrisch:
      return Einheit_elektrisch(2);
  }
  return {};
}

}  // namespace polarkreis
