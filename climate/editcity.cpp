#include <algorithm>

#include "climate/klima.h"
#include "climate/lesen.h"
#include "shell/items.h"
#include "shell/text.h"

namespace polarkreis {

namespace {

constexpr int Rueckgabe_OK = 3;

bool satz_leer(const editcity::Stadtzeile& zeile) {
  return std::all_of(zeile.begin(), zeile.begin() + 3,
                     [](const std::string& feld) { return getrimmt(feld).empty(); });
}

}  // namespace

editcity::editcity(Ablage& ablage, const Captions& captions, Klima& klima)
    : ablage_(ablage), captions_(captions), klima_(klima) {}

void editcity::lies_Staedte() {
  Spread1 = {};
  const std::string datei = klima_.Stadtdatei();
  if (datei.empty()) return;
  const std::string inhalt = Datei_Inhalt(ablage_, datei);
  ItemLeser leser(inhalt);
  for (Stadtzeile& zeile : Spread1) {
    Stadtzeile gelesen;
    for (std::string& feld : gelesen) feld = leser.lies();
    if (satz_leer(gelesen)) return;
    zeile = std::move(gelesen);
  }
}

void editcity::lies_Laender() {
  CountrySp = {};
  const std::string inhalt = Datei_Inhalt(ablage_, Laenderdatei());
  ItemLeser leser(inhalt);
  for (std::string& land : CountrySp) land = leser.lies();
}

void editcity::oeffnen() {
  lies_Staedte();
  lies_Laender();
}

void editcity::Command3D1(int zeile) {
  if (zeile < 1 || zeile > Klima::Laenderzahl) return;
  klima_.Land = CountrySp[static_cast<std::size_t>(zeile - 1)];
  lies_Staedte();
}

bool editcity::schreib_Staedte() {
  const std::string datei = klima_.Stadtdatei();
  if (datei.empty()) return false;
  std::string inhalt;
  for (const Stadtzeile& zeile : Spread1)
    for (const std::string& feld : zeile) zeile_anhaengen(inhalt, {feld});
  return ablage_.schreib_ganz(datei, inhalt);
}

bool editcity::schreib_Laender() {
  std::string inhalt;
  for (const std::string& land : CountrySp) zeile_anhaengen(inhalt, {land});
  return ablage_.schreib_ganz(Laenderdatei(), inhalt);
}

bool editcity::SPS_Sich() {
  const bool staedte = getrimmt(klima_.Land).empty() || schreib_Staedte();
  const bool laender = schreib_Laender();
  return staedte && laender;
}

bool editcity::OKbutt() {
  const bool geschrieben = SPS_Sich();
  Rueckgabe = Rueckgabe_OK;
  return geschrieben;
}

std::array<std::string, Klima::Stadtfelder> editcity::Spaltenkoepfe(
    std::string_view temperatureinheit) const {
  const std::string zwischen = " - ";
  const std::string T = captions_.text(AirCoCap::Temperatur);
  const std::string Feuchte = captions_.text(AirCoCap::Feuchte);
  const std::string hoch = captions_.text(AirCoCap::Hoch);
  const std::string tief = captions_.text(AirCoCap::Tief);
  const std::string Sommer = zwischen + captions_.text(AirCoCap::Sommer) + zwischen;
  const std::string Winter = zwischen + captions_.text(AirCoCap::Winter) + zwischen;
  const std::string Grad = " /[" + std::string(temperatureinheit) + "]";
  const std::string Prozent = " /[%]";
  return {captions_.text(AirCoCap::Ort),
          T + Sommer + hoch + Grad,
          Feuchte + Sommer + hoch + Prozent,
          T + " Diff." + zwischen + captions_.text(AirCoCap::Tag_Nacht) + " /[K]",
          T + Sommer + tief + Grad,
          Feuchte + Sommer + tief + Prozent,
          T + Winter + hoch + Grad,
          T + Winter + tief + Grad,
          captions_.text(AirCoCap::Hoehe) + " /[m]",
          captions_.text(AirCoCap::Breite) + " [°]"};
}

}  // namespace polarkreis
