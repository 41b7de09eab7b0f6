#include <algorithm>
#include <array>
#include <cmath>

#include "shell/text.h"
#include "shell/wert.h"
#include "simulation/auswahltexte.h"
#include "simulation/projektdaten.h"

namespace polarkreis {

namespace {

constexpr std::string_view kStartcode = "117";

void nimm_Nummer(std::string& target, const Captions& captions, std::span<const Auswahltext> liste,
                 std::string_view nummer) {
  const double n = Wert(nummer);
  for (std::size_t i = 0; i < liste.size(); ++i)
    if (n == static_cast<double>(i + 1)) target = liste[i].text(captions);
}

std::string Nummer_von(const Captions& captions, std::span<const Auswahltext> liste,
                       std::string_view text) {
  const int nummer = Nummer_in(captions, liste, text);
  return nummer == 0 ? "" : std::to_string(nummer);
}

void nimm_Text(std::string& target, const std::string& text) {
  if (!getrimmt(text).empty()) target = text;
}

}  // namespace

void Projektdaten::Uebergabe_Uebernehmen(const Uebergabe& daten) {
  if (!daten.hat_Daten()) return;
  using U = Uebergabe;
  if (!getrimmt(daten[U::Kaeltemittel]).empty()) Kaeltemittel_Uebernehmen(daten[U::Kaeltemittel]);
  nimm_Text(t0, daten[U::t0]);
  nimm_Text(Q0, daten[U::Q0]);
  nimm_Text(ProjektNam, daten[U::Projektname]);
  nimm_Text(ProBeschr, daten[U::Beschreibung]);
  nimm_Text(PumpCap, daten[U::PumpCap]);
  nimm_Nummer(verdichter_typ, captions, Verdichtertypen(), daten[U::Verdichtertyp]);
  nimm_Nummer(Verdichterbauart, captions, Bauformen(), daten[U::Bauform]);
  if (!getrimmt(daten[U::Economiser]).empty()) aendern("ECO_OPT", daten[U::Economiser]);
  const std::string& temperatur = daten[U::Tc_oder_Winter];
  if (!getrimmt(temperatur).empty()) {
    if (daten.mit_Winter())
      WinterRGart_setzen(temperatur);
    else
      aendern("Tc", temperatur);
  }
  Ableiten();
}

Uebergabe Projektdaten::Uebergabe_Fuellen() const {
  using U = Uebergabe;
  Uebergabe daten;
  daten[1] = "0";
  daten[U::Startcode] = kStartcode;
  daten[U::t0] = t0;
  daten[U::Tc_oder_Winter] = Tc;
  daten[U::Q0] = Q0;
  daten[U::Projektname] = ProjektNam;
  daten[U::Beschreibung] = ProBeschr;
  daten[U::Kaeltemittel] = KaelteM;
  daten[U::PumpCap] = PumpCap;
  daten[U::Economiser] = std::to_string(ECO_OPT);
  daten[U::Verdichtertyp] = Nummer_von(captions, Verdichtertypen(), verdichter_typ);
  daten[U::Bauform] = Nummer_von(captions, Bauformen(), Verdichterbauart);
  return daten;
}

}  // namespace polarkreis
