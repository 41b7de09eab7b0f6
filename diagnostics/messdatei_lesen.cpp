#include <algorithm>
#include <array>
#include <optional>
#include <utility>

#include "diagnostics/einheiten_funktion.h"
#include "diagnostics/kopfzeilen.h"
#include "diagnostics/messdatei.h"
#include "diagnostics/messformat.h"
#include "diagnostics/messung_sprache.h"
#include "shell/text.h"

namespace polarkreis {

namespace {

constexpr int Frage_ueber = 1000;  // rows
constexpr double Hoechstwert = 200;

/// Columns in which a value above `Hoechstwert` is no measurement.
constexpr std::array<std::size_t, 12> Begrenzt = {
    Spalte::t_Exp,   Spalte::t_SL,     Spalte::t_end,    Spalte::t_liq,
    Spalte::dT_sc,   Spalte::P_el,     Spalte::E_t_liq,  Spalte::E_t_in1,
    Spalte::E_t_in2, Spalte::E_t_out3, Spalte::E_t_out4, Spalte::E_t_Exp};

void begrenze(Messzeile& zeile) {
  for (const std::size_t spalte : Begrenzt)
    if (!zeile[spalte].empty() && Wert(zeile[spalte]) > Hoechstwert) zeile[spalte] = Kein_Messwert;
}

/// Judges rows by their two pressures, bar gauge.
class Druckfilter {
 public:
  Druckfilter(bool transkritisch, bool korrigieren)
      : hoch_(transkritisch ? 135 : 87), nieder_(transkritisch ? 67 : 18), korr_(korrigieren) {}

  enum class Urteil { gut, schlecht, ohne_Druck };
  /// The first row is never bad, and the row behind it has none to be compared with.
  Urteil urteile(int zeile, double A, double B) {
    bool schlecht = false;
    if (A > 0 || B > 0)
      schlecht = (A < A_vor_ / 2 && B < B_vor_ / 2 && korr_) || A > nieder_ || B > hoch_;
    else if (A <= 0 && B <= 0 && korr_)
      return Urteil::ohne_Druck;
    if (zeile == Messtabelle::Erste) return Urteil::gut;
    A_vor_ = A;
    B_vor_ = B;
    return schlecht ? Urteil::schlecht : Urteil::gut;
  }

 private:
  double hoch_, nieder_;
  bool korr_;
  double A_vor_ = 0, B_vor_ = 0;
};

/// Reads the rows of a file into the table.
class Zeilenlader {
 public:
  Zeilenlader(Messleser& leser, Messung& messung, Messdatei::Ladung& ladung)
      : leser_(leser),
        tabelle_(messung.DiaSpread),
        filter_(messung.Combo3.find(Text_transkritisch) != std::string::npos,
                messung.Auto_corr_Check == 1),
        ladung_(ladung) {}

  /// Takes at most so many rows. False if the progress asked to stop.
  bool lade(int erwartet, int hoechstens, Fortschritt* fortschritt);

 private:
  bool lege_ab();

  Messleser& leser_;
  Messtabelle& tabelle_;
  Druckfilter filter_;
  Messdatei::Ladung& ladung_;
  Messzeile puffer_;
  int zeile_ = Messtabelle::Erste;
  int gute_ = Messtabelle::Erste;  // the last good row, which a bad one repeats
};

bool Zeilenlader::lade(int erwartet, int hoechstens, Fortschritt* fortschritt) {
  for (int gelesen = 1;; ++gelesen) {
    if (fortschritt != nullptr) {
      const int anzahl = std::max(erwartet, gelesen);
      if (!fortschritt->schritt(Zaehltext(gelesen, anzahl), gelesen, anzahl)) return false;
    }
    if (zeile_ - Messtabelle::Erste >= hoechstens) {
      ladung_.ueberzaehlig = Zeilen_zaehlen(leser_);
      return true;
    }
    if (!leser_.lies_Zeile(puffer_)) return true;
    begrenze(puffer_);
    if (!gefuellt(puffer_)) return true;
    if (lege_ab()) ++zeile_;
  }
}

/// Stores the row that was read; false if it was dropped.
bool Zeilenlader::lege_ab() {
  switch (filter_.urteile(zeile_, Wert(puffer_[Spalte::p0]), Wert(puffer_[Spalte::pc]))) {
    case Druckfilter::Urteil::ohne_Druck:
      ++ladung_.verworfen;
      return false;
    case Druckfilter::Urteil::schlecht:
      ++ladung_.ersetzt;
      tabelle_.kopieren(gute_, zeile_);
      break;
    case Druckfilter::Urteil::gut:
      gute_ = zeile_;
      for (std::size_t spalte = 1; spalte < puffer_.size(); ++spalte)
        if (!puffer_[spalte].empty())
          tabelle_.setze(zeile_, static_cast<int>(spalte), puffer_[spalte]);
  }
  tabelle_.setze(zeile_, Spalte::Zeilenkopf, std::to_string(zeile_ - Messtabelle::Erste + 1));
  return true;
}

/// Texts in the language in force, and what stands in empty fields.
void Texte_einrichten(Messung& messung, const Captions& captions, const std::string& sprache) {
  if (!sprache.empty() && !gleich(sprache, captions.Sprache))
    Messung_uebersetzen(messung, captions, gross(getrimmt(sprache)));
  if (messung.RGCombo.empty()) messung.RGCombo = captions.text(JMapCap::Regelung_ohne);
  Einheiten_Standard(messung.OrbiN_spread, captions);
  for (const int einheit : {1, 2}) Col_Standard(messung, captions, 1, einheit, 0);
}

std::string Frage(const Captions& captions, int anzahl) {
  return captions.text(Caption::Messzahl) + " Messpunkte =" + std::to_string(anzahl) + "?";
}

/// What was ignored, for the message log.
void berichte(Meldungen& meldungen, std::string_view path, const Messdatei::Ladung& ladung,
              const Messleser& leser) {
  const auto melde = [&](const std::string& text) { meldungen.melde("measurement", path, text); };
  if (ladung.verworfen > 0)
    melde("rows without pressures, left out: " + std::to_string(ladung.verworfen));
  if (ladung.ersetzt > 0)
    melde("rows with impossible pressures, taken as the row before: " +
          std::to_string(ladung.ersetzt));
  if (ladung.ueberzaehlig > 0)
    melde("rows left out behind the last one that a measurement takes: " +
          std::to_string(ladung.ueberzaehlig));
  else if (leser.abgeschnitten())
    melde("the file was cut off: what is not whole at its end is left out");
  else if (leser.noch_Text())
    melde("what follows a row without a text in its first ten columns is left out");
}

}  // namespace

Messdatei::Ladung Messdatei::LoadDiaG(std::string_view path, Fortschritt* fortschritt) {
  Ladung ladung;
  const std::optional<std::string> gelesen = ablage_.lies_ganz(path);
  // Rows that can't be read now must not be overwritten by the empty table that they give.
  if (!gelesen && ist_Arbeitskopie(path) && ablage_.stand(path).da) zu_retten_ = true;
  std::string inhalt = gelesen.value_or("");
  if (inhalt.ends_with('\0')) ablage_.meldungen().melde("measurement", path, "NUL bytes left out");
  inhalt = markiert(std::move(inhalt));
  Messleser leser(inhalt);
  messung_.DiaG_zurueck_setz();
  Dateikopf kopf = Kopf_lesen(leser, messung_);
  Texte_einrichten(messung_, captions_, kopf.Sprache);

  ladung.abgebrochen = kopf.Zeilen == Zeilen_unbekannt;
  if (ladung.abgebrochen) kopf.Zeilen = Zeilen_zaehlen(leser);
  ladung.gefragt = kopf.Zeilen > Frage_ueber;
  const bool gewollt = !ladung.gefragt || dialog_.frage(Frage(captions_, kopf.Zeilen),
                                                        captions_.text(Caption::Diagnose));
  if (!gewollt ||
      !Zeilenlader(leser, messung_, ladung).lade(kopf.Zeilen, Hoechstzeilen, fortschritt))
    return abgelehnt(path, ladung);
  messung_.Mess_Zeilen = messung_.DiaSpread.letzte_gefuellte();
  messung_.DiaSpread.setze_Zeilenzahl(
      std::max(messung_.Mess_Zeilen + 1, Messtabelle::Mindestzeilen));
  if (ladung.ueberzaehlig > 0 && ist_Arbeitskopie(path)) zu_retten_ = !beiseite_legen();
  berichte(ablage_.meldungen(), path, ladung, leser);
  return ladung;
}

/// Leaves an empty table. The working copy would be lost by the next one, so it is kept beside.
Messdatei::Ladung Messdatei::abgelehnt(std::string_view path, Ladung ladung) {
  messung_.DiaG_loesch();
  messung_.DiaSpread.setze_Zeilenzahl(Messtabelle::Mindestzeilen);
  messung_.Mess_Zeilen = Messtabelle::Mindestzeilen;
  if (ist_Arbeitskopie(path)) zu_retten_ = !beiseite_legen();
  ladung.abgelehnt = true;
  return ladung;
}

}  // namespace polarkreis
