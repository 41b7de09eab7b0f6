#include "diagnostics/diagnostic.h"

#include "diagnostics/familie.h"
#include "diagnostics/kopfzeilen.h"
#include "diagnostics/methode.h"
#include "diagnostics/mittelwerte.h"
#include "diagnostics/protokoll.h"

namespace polarkreis {

namespace {

constexpr int Suchen = 2, Probe = 0;
constexpr int ohne_Frage = 1;
constexpr const char* Logger_arbeitet = "The logger is at work: please wait until it is done.";

// A choice by its number; anything else is none.
int wahl(std::string_view text, int hoechste) {
  const double zahl = Wert(text);
  return zahl >= 1 && zahl <= hoechste ? static_cast<int>(zahl) : 0;
}

}  // namespace

DiaGnostic::DiaGnostic(const Diagnosemittel& mittel)
    : m_(mittel),
      kanaele(m_.ablage),
      solen(m_.ablage, m_.captions),
      kern(messung, kanaele, m_.kreis, solen, m_.luft, m_.captions),
      datei(messung, m_.ablage, m_.captions, m_.dialog, m_.uhr),
      quelle(m_.ablage),
      logger({messung, kanaele, kern, datei, quelle, m_.port, m_.uhr, m_.empfaenger, m_.dialog,
              m_.captions, m_.ablage}),
      import(messung, kanaele, m_.ablage, m_.captions, m_.fortschritt),
      auswahl(m_.captions) {}

void DiaGnostic::vorbereiten() {
  kanaele.Offset_laden();
  park_laden();
  Einheiten_Standard(messung.OrbiN_spread, m_.captions);
  Spalten_beschriften();
}

void DiaGnostic::Spalten_beschriften() {
  for (int einheit : {1, 2}) Col_Standard(messung, m_.captions, 2, einheit, kanaele.Box_Typ);
}

void DiaGnostic::Form_Load() {
  vorbereiten();
  laden(datei.Arbeitskopie);
  Spaltenbreiten_lesen(breiten, messung, m_.captions, m_.ablage);
  auswahl.Type_Select(messung.Combo3);
  if (!Quelle_suchen()) logger.COM_Search(0, Suchen);
}

Messdatei::Ladung DiaGnostic::laden(std::string_view path) {
  if (logger.belegt()) return {.abgelehnt = true};
  const std::string methode = messung.Combo4;
  const Messdatei::Ladung ladung = datei.LoadDiaG(path, &m_.fortschritt);
  if (messung.Combo4.empty()) messung.Combo4 = methode;
  Spalten_beschriften();
  return ladung;
}

bool DiaGnostic::Quelle_suchen() {
  for (int art : {1, 2}) {
    quelle.Check_ISS_da(Probe, art);
    if (quelle.Quelle_ISS != Messquelle::aktiv) continue;
    logger.Quelle_Art = art;
    return true;
  }
  return false;
}

bool DiaGnostic::auswerten() {
  return !logger.belegt() && kern.rechenkern(m_.fortschritt) && protokollieren();
}

bool DiaGnostic::kondensieren() {
  return !logger.belegt() && MW_Bildung(messung, m_.fortschritt) && protokollieren();
}

bool DiaGnostic::protokollieren() {
  return DiaG_Protokoll(messung, m_.captions, kern.Funktion,
                        {kern.Summe_Energ, kern.Sum_zeit_messung}, m_.ablage);
}

Importergebnis DiaGnostic::DiaG_import(std::string_view path, int mode, int teil) {
  if (logger.belegt()) return {.grund = Logger_arbeitet};
  const Importergebnis ergebnis = import.DiaG_import(path, mode, teil);
  Spalten_beschriften();  // the file may be of another kind of box
  return rechne_nach(ergebnis);
}

Importergebnis DiaGnostic::CC_excel_Import(std::string_view path) {
  if (logger.belegt()) return {.grund = Logger_arbeitet};
  m_.kreis.km.z.Antrieb = messung.Antrieb;  // the power factor depends on it
  return rechne_nach(import.CC_excel_Import(path, m_.mappen,
                                            [this](double strom) { return kern.Cos_phi(strom); }));
}

Importergebnis DiaGnostic::Testo_Excel_import(std::string_view path, int kind) {
  if (logger.belegt()) return {.grund = Logger_arbeitet};
  return rechne_nach(import.Testo_Excel_import(path, m_.mappen, kind));
}

Importergebnis DiaGnostic::rechne_nach(Importergebnis ergebnis) {
  if (ergebnis.Zeilen > 0) kern.rechenkern(m_.fortschritt);
  return ergebnis;
}

bool DiaGnostic::endeDiaG(int mode) {
  if (logger.belegt()) {
    if (logger.Mess_laeuft != 0) logger.Start_Butt1(Logger::Messen);  // STOP
    return false;
  }
  const std::string frage =
      m_.captions.text(Caption::Diagnose) + " - " + m_.captions.text(Caption::Ende) + "?";
  if (mode != ohne_Frage && !m_.dialog.frage(frage, Familienname)) return false;
  if (!datei.Arbeitskopie_schreiben()) return false;
  Spaltenbreiten_schreiben(breiten, m_.ablage);
  park_speichern();
  return true;
}

void DiaGnostic::park_laden() {
  const Verdichterpark park = Park_Lesen(m_.ablage);
  setze(messung.Hub_Volumen, Wert(park.Hub_Volumen));
  messung.Combo4 = park.Combo4;
  messung.Bauart = wahl(park.Bauart, 4);
  messung.Antrieb = wahl(park.Antrieb, 3);
}

void DiaGnostic::park_speichern() {
  const auto zahl = [](int wert) { return std::to_string(wert); };
  Park_Schreiben(m_.ablage, {Zahl_Text(messung.Hub_Volumen), messung.Combo4, zahl(messung.Bauart),
                             zahl(messung.Antrieb)});
}

}  // namespace polarkreis
