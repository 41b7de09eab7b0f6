#include "diagnostics/kopfzeilen.h"

#include <array>
#include <string>
#include <string_view>
#include <utility>

#include "diagnostics/messpunkte.h"

namespace polarkreis {

namespace {

namespace S = Spalte;

constexpr int Zeile_Texte = 1, Zeile_Punkte = 2;
constexpr int Letzte_Einheit = 5;
constexpr int Leitkiste = 1;  // in a measuring point's name; `Orbiter` i is i + 1 there

/// A line of a caption file, or none.
struct Wort {
  Stamm stamm = Stamm::Caption;
  int zeile = 0;
  constexpr Wort() = default;
  constexpr Wort(Caption z) : zeile(static_cast<int>(z)) {}
  constexpr Wort(VerbCapt z) : stamm(Stamm::VerbCapt), zeile(static_cast<int>(z)) {}
};

/// The column of a measuring point.
struct Punktspalte {
  int punkt;
  int spalte;
  Wort wort;
  std::string_view einheit;
};

constexpr std::array<Punktspalte, 16> Punkte_Leitkiste = {{
    {1, S::t_liq, Caption::Fluessigkeitsleitung, "°C"},
    {2, S::t_Exp, Caption::Expansionsorgan, "°C"},
    {3, S::t_SL, Caption::Saugleitung, "°C"},
    {4, S::t_end, Caption::Druckgastemperatur, "°C"},
    {5, S::t_ein_Verd, Caption::Sekundaerseite_Verdampfer, "°C"},
    {6, S::t_aus_Verd, Caption::Sekundaerseite_Verdampfer, "°C"},
    {7, S::t_ein_Verfl, Caption::Sekundaerseite_Verfluessiger, "°C"},
    {8, S::t_aus_Verfl, Caption::Sekundaerseite_Verfluessiger, "°C"},
    {9, S::p0, Caption::Verdampfungsdruck, "bar"},
    {10, S::pc, Caption::Verfluessigungsdruck, "bar"},
    {11, S::U_L1, {}, "V"},
    {12, S::U_L2, {}, "V"},
    {13, S::U_L3, {}, "V"},
    {14, S::I_L1, {}, "A"},
    {15, S::I_L2, {}, "A"},
    {16, S::I_L3, {}, "A"},
}};

/// Of remote unit 1. The unit of its free inputs depends on their scaling.
constexpr std::array<Punktspalte, 16> Punkte_Orbiter = {{
    {1, S::E_t_liq, {}, "°C"},
    {2, S::E_t_in1, {}, "°C"},
    {3, S::E_t_in2, {}, "°C"},
    {4, S::E_t_out3, {}, "°C"},
    {5, S::E_t_out4, {}, "°C"},
    {6, S::E_t_Exp, {}, "°C"},
    {7, S::E_inx7, {}, ""},
    {8, S::E_inx8, {}, ""},
    {9, S::E_P1, {}, "bar"},
    {10, S::E_P2, {}, "bar"},
    {11, S::E_U_L1, {}, "V"},
    {12, S::E_U_L1 + 1, {}, "V"},
    {13, S::E_U_L1 + 2, {}, "V"},
    {14, S::E_I_L1, {}, "A"},
    {15, S::E_I_L1 + 1, {}, "A"},
    {16, S::E_I_L1 + 2, {}, "A"},
}};

/// A column without a measuring point: a fixed text, a caption, a fixed text behind it.
struct Rechenspalte {
  int spalte;
  std::string_view davor;
  Wort wort;
  std::string_view danach;
  std::string_view einheit;
};

constexpr std::array<Rechenspalte, 17> Rechenspalten = {{
    {S::Zeit, "", Caption::Zeit, "", ""},
    {S::t0, "", Caption::Verdampfungstemperatur, "", "°C"},
    {S::tc, "", Caption::Verfluessigungstemperatur, "", "°C"},
    {S::dT_sh, "", Caption::Ueberhitzung, "", "K"},
    {S::dT_sc, "", Caption::Unterkuehlung, "", "K"},
    {S::P_el, "", Caption::Elektrische_Leistung, "", "kW"},
    {S::EER_Anlage, "EER Gesamt Anlage", {}, "", "-"},
    {S::m_KM, "", Caption::Massenstrom, "", "kg/h"},
    {S::P_rest, "", Caption::Rest_der_Anlage, "", "kW"},
    {S::EER_1, "EER/COP ", VerbCapt::Verdichter, " Qo", "-"},
    {S::EER_2, "EER/COP ", VerbCapt::Verdichter, " Qc", "-"},
    {S::eta, "", Caption::Wirkungsgrad, "", "%"},
    {S::Qo_COP, " Qo *COP* ", {}, "", "kW"},
    {S::P_gesamt, "", Caption::Energieverbrauch, "", "kW"},
    {S::Qo_dt, " Qo*dt* ", {}, "", "kW"},
    {S::Qc_COP, " Qc *COP* ", {}, "", "kW"},
    {S::Qc_dt, " Qc*dt* ", {}, "", "kW"},
}};

/// `text` and a blank behind it, where it doesn't end in one.
std::string mit_Blank(std::string text) {
  if (!text.empty() && text.back() != ' ') text += ' ';
  return text;
}

std::string mit_Einheit(std::string text, std::string_view einheit) {
  if (einheit.empty()) return text;
  return mit_Blank(std::move(text)).append("/[").append(einheit) += ']';
}

class Kopfzeilen {
 public:
  Kopfzeilen(Messung& messung, const Captions& captions) : m_(messung), captions_(captions) {}

  void Grundgeraet(bool Monitoring);
  void Orbiter(int i, bool Monitoring);
  void Rechenwerte();

 private:
  const std::string& wort(Wort w) const { return captions_.text(w.stamm, w.zeile); }
  void setze(int spalte, const std::string& text, const std::string& punkt = "");
  void Punkt(int einheit, const Punktspalte& punkt, int spalte, const std::string& name);

  Messung& m_;
  const Captions& captions_;
};

void Kopfzeilen::setze(int spalte, const std::string& text, const std::string& punkt) {
  for (Messtabelle* tabelle : {&m_.DiaSpread, &m_.MittelW_Spread}) {
    tabelle->setze(Zeile_Texte, spalte, text);
    tabelle->setze(Zeile_Punkte, spalte, punkt);
  }
}

/// Points 13 to 15 of `Orbiter 2` land in columns of the base unit, so none lands in its own.
std::string Punktname(int einheit, int punkt) {
  return einheit == 3 && punkt >= 13 && punkt <= 15 ? "" : Messpunkt(einheit, punkt);
}

/// `name` stands before the channel's text: that of a remote unit.
void Kopfzeilen::Punkt(int einheit, const Punktspalte& punkt, int spalte, const std::string& name) {
  std::string text = name;
  text += Kanaltext(einheit, punkt.punkt);
  if (punkt.wort.zeile > 0) text = mit_Blank(std::move(text)) + wort(punkt.wort);
  setze(spalte, mit_Einheit(std::move(text), punkt.einheit), Punktname(einheit, punkt.punkt));
}

/// A monitoring box has two of its inputs elsewhere.
int Spalte_im_Grundgeraet(const Punktspalte& punkt, bool Monitoring) {
  if (Monitoring && punkt.spalte == S::t_ein_Verd) return S::E_t_Exp;
  if (Monitoring && punkt.spalte == S::t_aus_Verd) return S::Fluss_Verfl;
  return punkt.spalte;
}

void Kopfzeilen::Grundgeraet(bool Monitoring) {
  for (const auto& [spalte, seite] : {std::pair{S::Fluss_Verd, VerbCapt::Verdampfer},
                                      std::pair{S::Fluss_Verfl, VerbCapt::Verfluessiger}})
    setze(spalte, mit_Einheit(wort(Caption::Volumenstrom) + " " + wort(seite), "m³/h"));
  for (const int spalte : {S::t_ein_Verd, S::t_aus_Verd}) setze(spalte, "");
  for (const Punktspalte& punkt : Punkte_Leitkiste)
    Punkt(Leitkiste, punkt, Spalte_im_Grundgeraet(punkt, Monitoring), "");
}

void Kopfzeilen::Orbiter(int i, bool Monitoring) {
  const std::string name = "Orbiter " + std::to_string(i) + " ";
  const bool ausweichen = Monitoring && i == 1;
  if (i == 1) setze(Spalte::Ausweich, "");
  for (const Punktspalte& punkt : Punkte_Orbiter) {
    const int spalte = S::von(static_cast<S::Einheit>(punkt.spalte), i);
    if (spalte == S::Senke) continue;
    Punkt(i + 1, punkt, ausweichen && punkt.spalte == S::E_t_Exp ? Spalte::Ausweich : spalte, name);
  }
  setze(S::von(S::E_t_P1, i), name + wort(Caption::Temperatur) + " P1 /[°C]");
  setze(S::von(S::E_t_P2, i), name + wort(Caption::Temperatur) + " P2 /[°C]");
  setze(S::von(S::E_Fluss, i), name + wort(Caption::Volumenstrom) + " /[m³/h]");
  const auto ergebnis = [&](S::Nummer spalte, Caption text, std::string_view einheit) {
    setze(S::ergebnis(spalte, i), mit_Einheit(name + wort(text), einheit));
  };
  ergebnis(S::dp_Einheit, Caption::Druckdifferenz, "bar");
  ergebnis(S::P_hydr, Caption::Hydraulische_Leistung, "kW");
  ergebnis(S::eta_Einheit, Caption::Wirkungsgrad, "%");
}

void Kopfzeilen::Rechenwerte() {
  for (const Rechenspalte& s : Rechenspalten) {
    std::string text(s.davor);
    if (s.wort.zeile > 0) text += wort(s.wort);
    setze(s.spalte, mit_Einheit(text.append(s.danach), s.einheit));
  }
  for (int phase = 0; phase < 6; ++phase)
    setze(S::P_Phasen + phase,
          " Orbiter " + std::to_string(phase / 3 + 1) + " L" + std::to_string(phase % 3 + 1) +
              " /[kW]",
          "");
}

}  // namespace

void Col_Standard(Messung& messung, const Captions& captions, int kind, int unit, int Box_Typ) {
  if (unit < 1 || unit > Letzte_Einheit) return;
  Kopfzeilen kopf(messung, captions);
  const bool Monitoring = kind == 2 && Box_Typ == 1;
  if (unit == 1) {
    kopf.Rechenwerte();
    kopf.Grundgeraet(Monitoring);
  }
  kopf.Orbiter(unit, Monitoring);
}

}  // namespace polarkreis
