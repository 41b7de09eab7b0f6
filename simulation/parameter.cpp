#include "simulation/parameter.h"

#include <span>

#include "shell/cp850.h"
#include "shell/items.h"
#include "shell/text.h"
#include "shell/wert.h"

namespace polarkreis {

namespace {

constexpr std::string_view kJMapOpt = "JMapOpt.dat";
constexpr std::string_view kSubAct = "SubAct.dat";
constexpr std::string_view kArmstd = "Armstd.rdm";
constexpr int kArmstd_Nummer = 24, kSatzlaenge = 5;

double zahl(const Druckdifferenzen& differenzen, std::size_t index) {
  const std::string& text = differenzen.werte[index];
  return Wert(getrimmt(text).empty() ? Druckdifferenzen{}.werte[index] : text);
}

std::string je_zeile(std::span<const std::string> werte) {
  std::string inhalt;
  for (const std::string& wert : werte) zeile_anhaengen(inhalt, {wert});
  return inhalt;
}

}  // namespace

double Druckdifferenzen::thermostatisch() const {
  return zahl(*this, 0);
}
double Druckdifferenzen::andere() const {
  return zahl(*this, 1);
}
double Druckdifferenzen::leitung() const {
  return zahl(*this, 2);
}
double Druckdifferenzen::verteiler() const {
  return zahl(*this, 3);
}

Druckdifferenzen JMapOpt_lesen(std::string&& text) {
  const std::string inhalt = std::move(text);
  ItemLeser leser(inhalt);
  Druckdifferenzen differenzen;
  for (std::string& wert : differenzen.werte) {
    std::string item = leser.lies();
    if (!getrimmt(item).empty()) wert = std::move(item);
  }
  return differenzen;
}

bool JMapOpt_schreiben(Ablage& ablage, const Druckdifferenzen& werte) {
  return ablage.schreib_ganz(kJMapOpt, je_zeile(werte.werte));
}

Zusatzzahlen Zusatzwerte::zahlen() const {
  return {Wert(werte[1]), Wert(werte[2]), Wert(werte[3])};
}

Zusatzwerte SubAct_lesen(std::string&& text) {
  const std::string inhalt = std::move(text);
  ItemLeser leser(inhalt);
  Zusatzwerte zusatz;
  for (std::string& wert : zusatz.werte) wert = leser.lies();
  return zusatz;
}

bool SubAct_schreiben(Ablage& ablage, const Zusatzwerte& werte) {
  return ablage.schreib_ganz(kSubAct, je_zeile(werte.werte));
}

Zusatzwerte SubAct_Startwerte(Ablage& ablage) {
  constexpr std::array<int, 6> kSaetze{24, 25, 26, 33, 34, 35};
  Zusatzwerte zusatz;
  ablage.Datei_Satz(kArmstd, kArmstd_Nummer, kSatzlaenge);
  for (std::size_t i = 0; i < kSaetze.size(); ++i)
    zusatz.werte[i] = getrimmt(aus_CP850(ablage.Satz_Lesen(kArmstd_Nummer, kSaetze[i])));
  ablage.Datei_Schliessen(kArmstd_Nummer);
  return zusatz;
}

void SubAct_sicherstellen(Ablage& ablage, std::string_view modul) {
  if (ablage.vorhanden(kSubAct)) return;
  // Without start values nothing is written: a list of empty items would count as present later.
  if (!ablage.vorhanden(kArmstd)) return;
  std::string inhalt = je_zeile(SubAct_Startwerte(ablage).werte);
  if (modul == "MonoF") inhalt += inhalt;
  ablage.schreib_ganz(kSubAct, inhalt);
}

}  // namespace polarkreis
