#include "diagnostics/protokoll.h"

#include <algorithm>
#include <array>
#include <vector>

#include "diagnostics/familie.h"
#include "diagnostics/messzeiten.h"
#include "diagnostics/mittelwerte.h"
#include "diagnostics/zeiten.h"
#include "shell/items.h"
#include "shell/text.h"
#include "shell/wert.h"

namespace polarkreis {

namespace {

constexpr std::string_view Rand = "        ";
constexpr std::string_view Marke_Kopf = "&$$";
constexpr std::string_view Marke_Wert = "§$&";
constexpr std::string_view Marke_Spalte = "&%!";

std::string verbunden(std::initializer_list<std::string_view> teile) {
  std::string text;
  for (const std::string_view teil : teile) text += teil;
  return text;
}

/// Composes the protocol line by line.
class Blatt {
 public:
  explicit Blatt(const Messtabelle& mittel) : mittel_(mittel) {}

  // A line end inside a text would part the line.
  void zeile(std::string_view text) {
    std::string inhalt = verbunden({Rand, text});
    std::replace_if(
        inhalt.begin(), inhalt.end(), [](char c) { return c == '\r' || c == '\n'; }, ' ');
    zeile_anhaengen(text_, {inhalt});
  }
  void leerzeile() { zeile_anhaengen(text_, {""}); }
  void kopf(std::string_view text) { zeile(verbunden({Marke_Kopf, text})); }
  void paar(std::string_view label, std::string_view wert) {
    zeile(verbunden({label, Marke_Wert, wert}));
  }
  void tabellenkopf() { tabellenzeile("", "Min.", "Max. ", " Average "); }
  /// The three means of a column.
  void mittel(std::string_view label, std::string_view einheit, int spalte) {
    tabellenzeile(verbunden({label, einheit}), mittel_.text(Mittel_kleinster, spalte),
                  mittel_.text(Mittel_groesster, spalte), mittel_.text(Mittel_wert_zeile, spalte));
  }
  std::string fertig() { return std::move(text_); }

 private:
  void tabellenzeile(std::string_view label, std::string_view kleinster, std::string_view groesster,
                     std::string_view mittel) {
    zeile(
        verbunden({label, Marke_Spalte, kleinster, Marke_Spalte, groesster, Marke_Spalte, mittel}));
  }
  const Messtabelle& mittel_;
  std::string text_;
};

/// What the protocol tells of.
struct Vorlage {
  const Messung& m;
  const Captions& c;
  const Einheitenfunktion& f;
  const Protokollsummen& summen;
};

// A description may have several lines, and each is a line of the protocol.
void mehrzeilig(Blatt& b, std::string_view text) {
  do {
    const std::size_t ende = text.find_first_of("\r\n");
    b.zeile(text.substr(0, ende));
    if (ende == std::string_view::npos) return;
    text.remove_prefix(ende + (text.substr(ende).starts_with("\r\n") ? 2 : 1));
  } while (!text.empty());
}

void Ueberschrift(Blatt& b, const Vorlage& v) {
  b.kopf(verbunden({Familienname, " DiaGnostics : ", v.c.text(Caption::Messergebnis)}));
  mehrzeilig(b, v.m.ProjektNam);
  mehrzeilig(b, v.m.ProBeschr);
  b.leerzeile();
}

/// The clock times between which was measured, and the time that the sums cover.
std::string Messdauer(const Vorlage& v) {
  const std::vector<Messzeit> zeiten = Messzeiten(v.m);
  std::string text;
  if (!zeiten.empty()) {
    text = v.m.DiaSpread.text(zeiten.front().zeile, Spalte::Zeit) + " - " +
           v.m.DiaSpread.text(zeiten.back().zeile, Spalte::Zeit);
    const double tage = Int((zeiten.back().s - zeiten.front().s) / 86400);
    if (tage > 0) text += " + " + Zahl_Text(tage) + " d";
  }
  if (v.summen.Sum_zeit_messung > 0) {
    text += (text.empty() ? "" : " / ") + FM_timer(v.summen.Sum_zeit_messung);
  }
  return text;
}

void Angaben(Blatt& b, const Vorlage& v) {
  b.paar(v.c.text(Caption::Kaeltemittel), v.m.KaelteM);
  b.paar(v.c.text(Caption::Anlagenschema), v.m.Combo3);
  b.paar(v.c.text(Caption::Messdauer), Messdauer(v));
  b.paar("Messpunkte", std::to_string(v.m.Messpunkte()));
  b.leerzeile();
}

void Temperaturen(Blatt& b, const Vorlage& v) {
  b.tabellenkopf();
  b.mittel(v.c.text(Caption::Verdampfungstemperatur), " /[°C]", Spalte::t0);
  b.mittel(v.c.text(Caption::Verfluessigungstemperatur), " /[°C]", Spalte::tc);
  b.mittel(v.c.text(Caption::Ueberhitzung), " /[K]", Spalte::dT_sh);
  b.mittel(v.c.text(Caption::Unterkuehlung), " /[K]", Spalte::dT_sc);
  b.leerzeile();
}

/// Drive and design of the compressor; a number outside the selections adds nothing.
std::string Verdichterart(const Vorlage& v) {
  const std::array<std::string, 3> formen{
      v.c.text(Caption::Offen), v.c.text(Caption::Halbhermetisch), v.c.text(Caption::Hermetisch)};
  const std::array<std::string, 4> typen{v.c.text(Caption::Hubkolben), v.c.text(Caption::Schraube),
                                         "Scroll", "Turbo"};
  const int form = v.m.Antrieb == 0 ? 2 : v.m.Antrieb;
  const int typ = v.m.Bauart == 0 ? 1 : v.m.Bauart;
  std::string text;
  if (form >= 1 && form <= 3) text = formen[static_cast<std::size_t>(form - 1)];
  if (typ >= 1 && typ <= 4) {
    text += (text.empty() ? "" : ", ") + typen[static_cast<std::size_t>(typ - 1)];
  }
  return text;
}

void Verdichter(Blatt& b, const Vorlage& v) {
  const std::string& methode = v.m.Combo4.empty() ? v.c.text(VerbCapt::Hubvolumen) : v.m.Combo4;
  b.kopf(v.c.text(VerbCapt::Verdichter));
  b.paar(v.c.text(VerbCapt::Verdichter), Verdichterart(v));
  b.paar(v.c.text(VerbCapt::Hubvolumen), Zahl_Text(v.m.Hub_Volumen) + " m³/h  -  " + methode);
  b.leerzeile();
}

void Leistungen(Blatt& b, const Vorlage& v) {
  const std::string& Qo = v.c.text(Caption::Kaelteleistung);
  const std::string& Qc = v.c.text(Caption::Verfluessigerleistung);
  b.tabellenkopf();
  b.mittel(" COP ", "", Spalte::EER_1);
  b.mittel(Qo + " Qo *COP*", " /[kW]", Spalte::Qo_COP);
  b.mittel(Qo + " Qo*dt*", " /[kW]", Spalte::Qo_dt);
  b.mittel(Qc + " Qc *COP*", " /[kW]", Spalte::Qc_COP);
  b.mittel(v.c.text(Caption::Sekundaerseite_Verfluessiger), " /[kW]", Spalte::Qc_dt);
  b.mittel(v.c.text(Caption::Elektrische_Leistung), " /[kW]", Spalte::P_el);
  b.mittel(v.c.text(Caption::Rest_der_Anlage), " /[kW]", Spalte::P_rest);
  b.mittel("EER Gesamt Anlage", "", Spalte::EER_Anlage);
  b.mittel(v.c.text(Caption::Wirkungsgrad), " /[%]", Spalte::eta);
  b.mittel(v.c.text(Caption::Massenstrom), " /[kg/h]", Spalte::m_KM);
  b.leerzeile();
}

/// Electrical energy of the compressor over all rows, kWh.
double Stromverbrauch(const Messung& m) {
  double summe = 0;
  const int letzte = m.letzte_Zeile();
  for (int zeile = Messtabelle::Erste; zeile <= letzte; ++zeile)
    setze(summe, summe + m.DiaSpread.zahl(zeile, Spalte::P_el));
  return summe * m.Messintervall_s() / 3600;
}

void Energie(Blatt& b, const Vorlage& v) {
  const auto kWh = [](double wert) { return Zahl_Text(geschnitten(wert)) + " kWh"; };
  b.kopf(v.c.text(Caption::Energie));
  b.paar(v.c.text(Caption::Kaelteleistung), kWh(v.summen.Summe_Energ));
  b.paar(v.c.text(Caption::Energieverbrauch), kWh(Stromverbrauch(v.m)));
  b.paar(v.c.text(Caption::Zeit), FM_timer(v.summen.Sum_zeit_messung));
  b.leerzeile();
}

/// A line of a unit's table.
struct Einheitenzeile {
  std::string label;
  std::string_view einheit;
  int spalte;
};
using Einheitenzeilen = std::vector<Einheitenzeile>;

bool foerdert(int code) {
  return code == F_Ventilator || code == F_Pumpe;
}

std::string_view Druckeinheit(int code) {
  return code == F_Ventilator ? " /[Pa]" : " /[bar]";
}

void Druecke(Einheitenzeilen& zeilen, const Captions& c, int i, int code) {
  using namespace Spalte;
  const std::string& p = c.text(Caption::Druck);
  zeilen.push_back({p + " P1", Druckeinheit(code), von(E_P1, i)});
  zeilen.push_back({p + " P2", Druckeinheit(code), von(E_P2, i)});
  if (foerdert(code)) return;
  const std::string& t = c.text(Caption::Temperatur);
  zeilen.push_back({t + " P1", " /[°C]", von(E_t_P1, i)});
  zeilen.push_back({t + " P2", " /[°C]", von(E_t_P2, i)});
  zeilen.push_back({"t liq.", " /[°C]", von(E_t_liq, i)});
  zeilen.push_back({"t Exp.", " /[°C]", von(E_t_Exp, i)});
}

void Sekundaerseite(Einheitenzeilen& zeilen, const Captions& c, int i) {
  using namespace Spalte;
  zeilen.push_back({c.text(Caption::Volumenstrom), " /[m³/h]", von(E_Fluss, i)});
  zeilen.push_back({"t in1", " /[°C]", von(E_t_in1, i)});
  zeilen.push_back({"t in2", " /[°C]", von(E_t_in2, i)});
  zeilen.push_back({"t out3", " /[°C]", von(E_t_out3, i)});
  zeilen.push_back({"t out4", " /[°C]", von(E_t_out4, i)});
}

/// Whose power it is.
const std::string& Verbraucher(const Captions& c, int code) {
  if (code == F_Ventilator) return c.text(VerbCapt::Ventilator);
  if (code == F_Pumpe) return c.text(VerbCapt::Pumpe);
  return c.text(VerbCapt::Leistungsaufnahme);
}

// Only units 1 and 2 have columns for the power of their phases.
void Leistung(Einheitenzeilen& zeilen, const Captions& c, int i, int code) {
  if (i > 2) return;
  for (int phase = 1; phase <= 3; ++phase) {
    zeilen.push_back(
        {Verbraucher(c, code) + " Orbiter " + std::to_string(i) + " L" + std::to_string(phase),
         " /[kW]", Spalte::P_Phasen + 3 * (i - 1) + phase - 1});
  }
}

void Foerderung(Einheitenzeilen& zeilen, const Captions& c, int i, int code) {
  using namespace Spalte;
  if (!foerdert(code)) return;
  zeilen.push_back({c.text(Caption::Druckdifferenz), Druckeinheit(code), ergebnis(dp_Einheit, i)});
  zeilen.push_back({c.text(Caption::Hydraulische_Leistung), " /[kW]", ergebnis(P_hydr, i)});
  zeilen.push_back({c.text(Caption::Wirkungsgrad), " /[%]", ergebnis(eta_Einheit, i)});
}

/// True if a cell of the column shows a measurement; the missing ones read "0" or no number.
bool gemessen(const Messung& m, int spalte) {
  const int letzte = m.letzte_Zeile();
  for (int zeile = Messtabelle::Erste; zeile <= letzte; ++zeile) {
    const std::string& zelle = m.DiaSpread.text(zeile, spalte);
    if (ist_Messwert(zelle) && getrimmt(zelle) != "0") return true;
  }
  return false;
}

Einheitenzeilen Zeilen_der_Einheit(const Vorlage& v, int i, int code) {
  Einheitenzeilen zeilen;
  Druecke(zeilen, v.c, i, code);
  Sekundaerseite(zeilen, v.c, i);
  Leistung(zeilen, v.c, i, code);
  Foerderung(zeilen, v.c, i, code);
  std::erase_if(zeilen, [&](const Einheitenzeile& z) { return !gemessen(v.m, z.spalte); });
  return zeilen;
}

void Einheit(Blatt& b, const Vorlage& v, int i) {
  const std::size_t index = static_cast<std::size_t>(i);
  const int zeile = v.f.Sensor_Zeile[index];
  if (v.f.Sensor_Code[index] == F_keine || zeile < 1 || zeile > Einheitentabelle::Zeilen) return;
  const Einheitenzeilen zeilen = Zeilen_der_Einheit(v, i, v.f.Sensor_Code[index]);
  if (zeilen.empty()) return;
  const Einheitentabelle& t = v.m.OrbiN_spread;
  const std::string& funktion = t(zeile, Einheitentabelle::Funktion);
  const std::string& name = t(zeile, Einheitentabelle::Name);
  b.kopf(t(zeile, Einheitentabelle::Einheit) + " - " +
         (funktion.empty() ? v.c.text(VerbCapt::Verdichter) : funktion));
  if (!name.empty()) b.paar(v.c.text(Caption::Messeinheit), name);
  b.tabellenkopf();
  for (const Einheitenzeile& z : zeilen) b.mittel(z.label, z.einheit, z.spalte);
  b.leerzeile();
}

}  // namespace

std::string Protokoll_Text(const Messung& messung, const Captions& captions,
                           const Einheitenfunktion& funktion, const Protokollsummen& summen) {
  const Vorlage v{messung, captions, funktion, summen};
  Blatt b(messung.MittelW_Spread);
  Ueberschrift(b, v);
  Angaben(b, v);
  Temperaturen(b, v);
  Verdichter(b, v);
  Leistungen(b, v);
  Energie(b, v);
  for (int i = 1; i < static_cast<int>(funktion.Sensor_Code.size()); ++i) Einheit(b, v, i);
  return b.fertig();
}

bool DiaG_Protokoll(const Messung& messung, const Captions& captions,
                    const Einheitenfunktion& funktion, const Protokollsummen& summen,
                    Ablage& ablage) {
  return ablage.schreib_ganz(Protokolldatei, Protokoll_Text(messung, captions, funktion, summen),
                             Haltbarkeit::wiederholbar);
}

}  // namespace polarkreis
