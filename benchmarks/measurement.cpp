#include "measurement.h"

#include "platform/dateiwache.h"

namespace polarkreis::bench {

namespace {

constexpr const char* kDatei = "bench.fmd";

}  // namespace

// Voltages, currents, pressures, eight temperatures, clock.
std::string Loggerattrappe::Lesen() {
  return "400.1 399.8 400.4 19.8 20.1 19.9 1.52 14.8 29.1 -17.2 -21.3 -20.8 -8.5 24.1 33.8 76.2 "
         "12:05:09ok\r\n";
}

Messlauf::Messlauf(bool auf_Platte)
    : daten_(auf_Platte ? Ort::Platte : Ort::Speicher),
      programm_(std::make_unique<Programm>(daten_.ordner(), stumm_)) {
  Programm& p = *programm_;
  p.laden("ENG");
  p.ablage.setze_wache(Dateiwache_machen(daten_.ordner()));
  diagnose_ =
      std::make_unique<DiaGnostic>(Diagnosemittel{p.ablage, p.captions, p.kreis, p.luft, p.dialog,
                                                  uhr_, port_, mappen_, empfaenger_, schweiger_});
  DiaGnostic& d = *diagnose_;
  d.datei.Anhaengen = auf_Platte ? Haltbarkeit::sicher : Haltbarkeit::wiederholbar;
  d.vorbereiten();
  d.messung.KaelteM = "R404A";
  d.messung.Hub_Volumen = 60;
  d.messung.Bauart = 1;
  d.messung.Q0 = 13;
  d.messung.Medium_Verd = d.messung.Medium_Verfl = "air";
}

void Messlauf::vorbereiten(int zeilen) {
  DiaGnostic& d = *diagnose_;
  d.DiaG_import("R404A cold store.adc", I_Logger);
  const int vorlage = d.messung.Messpunkte();
  for (int zeile = vorlage; zeile < zeilen; ++zeile)
    d.messung.DiaSpread.kopieren(Messtabelle::Erste + zeile % vorlage, Messtabelle::Erste + zeile);
  d.messung.Mess_Zeilen = d.messung.DiaSpread.letzte_gefuellte();
  d.datei.SaveDiaG(kDatei);
}

int Messlauf::laden_und_rechnen() {
  DiaGnostic& d = *diagnose_;
  d.datei.LoadDiaG(kDatei);
  d.kern.rechenkern(schweiger_);
  return zeilen();
}

// One sample more than planned is taken.
void Messlauf::messen(int proben) {
  DiaGnostic& d = *diagnose_;
  // A working copy with rows would be kept beside, which is no part of a sample.
  programm_->ablage.Datei_Loeschen(d.datei.Arbeitskopie);
  d.messung.DiaG_zurueck_setz();
  d.messung.Combo2 = "60s";
  d.messung.Combo5 = std::to_string(proben - 1) + " min";
  d.logger.Start_Butt1(Logger::Messen);
}

}  // namespace polarkreis::bench
