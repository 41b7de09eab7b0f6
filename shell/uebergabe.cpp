#include "shell/uebergabe.h"

#include "shell/wert.h"

namespace polarkreis {

namespace {

constexpr std::string_view Datei = "FRIGData.dat";
constexpr double Code_Projekt = 117;
constexpr double Code_Winter = 217;

}  // namespace

bool Uebergabe::hat_Daten() const {
  return Wert((*this)[Startcode]) == Code_Projekt || mit_Winter();
}

bool Uebergabe::mit_Winter() const {
  return Wert((*this)[Startcode]) == Code_Winter;
}

Uebergabe Uebergabe_Lesen(Ablage& ablage) {
  Uebergabe daten;
  const std::string inhalt = ablage.lies_ganz(Datei).value_or("");
  ItemLeser leser(inhalt);
  for (std::string& wert : daten.werte) wert = leser.lies();
  return daten;
}

bool Uebergabe_Leeren(Ablage& ablage) {
  std::string inhalt;
  zeile_anhaengen(inhalt, {"0"});
  zeile_anhaengen(inhalt, {"0"});
  return ablage.schreib_ganz(Datei, inhalt);
}

bool Daten_Uebergabe(Ablage& ablage, const Uebergabe& daten) {
  std::string inhalt;
  for (const std::string& wert : daten.werte) zeile_anhaengen(inhalt, {wert});
  return ablage.schreib_ganz(Datei, inhalt);
}

}  // namespace polarkreis
