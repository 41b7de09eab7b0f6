#include <array>

#include "climate/jahresgang.h"
#include "climate/lesen.h"
#include "shell/items.h"
#include "shell/text.h"

namespace polarkreis {

namespace {

constexpr int Profilzahl = 7;
constexpr std::size_t Monate = 12;
constexpr std::size_t S_Last_Tag = 3;
constexpr std::size_t S_Last_Nacht = 4;

// The order of the selection and of the profile files.
constexpr std::array<JMapCap, Profilzahl> Anwendungen{
    JMapCap::Klima_Sommer,        JMapCap::Klima_lang,      JMapCap::Klima_laenger,
    JMapCap::Produktionskuehlung, JMapCap::Prozesskuehlung, JMapCap::Kaelteraum,
    JMapCap::Kaelteraum_zwei};

struct Profil {
  std::array<int, Monate> Last_Tag, Last_Nacht;
};

// Loads in whole percent. The dip in August of profile 6 and the 80 in December of profile 5 belong
// to them.
constexpr std::array<Profil, Profilzahl> Standardprofile{
    {{{0, 0, 0, 20, 50, 80, 100, 80, 30, 0, 0, 0}, {0, 0, 0, 0, 0, 20, 40, 20, 0, 0, 0, 0}},
     {{0, 0, 20, 30, 50, 80, 100, 80, 50, 30, 0, 0}, {0, 0, 0, 10, 10, 20, 40, 20, 10, 0, 0, 0}},
     {{0, 0, 20, 40, 60, 80, 100, 80, 60, 30, 0, 0}, {0, 0, 0, 10, 10, 20, 40, 20, 10, 0, 0, 0}},
     {{50, 55, 60, 65, 70, 80, 100, 80, 70, 65, 60, 55},
      {40, 45, 50, 55, 60, 65, 80, 65, 60, 55, 50, 45}},
     {{65, 65, 65, 70, 80, 90, 100, 90, 80, 70, 70, 80},
      {35, 35, 40, 45, 50, 60, 70, 60, 50, 45, 40, 35}},
     {{75, 75, 80, 85, 90, 95, 100, 95, 90, 85, 80, 75},
      {65, 65, 70, 70, 75, 85, 90, 80, 85, 75, 70, 65}},
     {{75, 75, 80, 85, 90, 95, 100, 95, 90, 85, 80, 75},
      {65, 65, 70, 75, 80, 85, 90, 85, 80, 75, 70, 65}}}};

std::string Profil_Dateiname(int n) {
  return "Profil" + std::to_string(n) + ".prf";
}

std::string Standard_Inhalt(int n) {
  const Profil& profil = Standardprofile[static_cast<std::size_t>(n - 1)];
  std::string inhalt;
  for (const int last : profil.Last_Tag) zeile_anhaengen(inhalt, {std::to_string(last)});
  for (const int last : profil.Last_Nacht) zeile_anhaengen(inhalt, {std::to_string(last)});
  return inhalt;
}

}  // namespace

const std::string& Anwendung_Text(const Captions& captions, int n) {
  static const std::string keine;
  if (n < 1 || n > Profilzahl) return keine;
  return captions.text(Anwendungen[static_cast<std::size_t>(n - 1)]);
}

int Anwendung_Nummer(const Captions& captions, std::string_view anwendung) {
  if (getrimmt(anwendung).empty()) return 0;
  for (int n = 1; n <= Profilzahl; ++n)
    if (gleich(Anwendung_Text(captions, n), anwendung)) return n;
  return 0;
}

void JahresGang::Profil_laden(std::string_view anwendung) {
  const int n = Anwendung_Nummer(captions_, anwendung);
  if (n == 0) return;
  const std::string datei = Profil_Dateiname(n);
  std::string inhalt;
  if (ablage_.vorhanden(datei)) {
    inhalt = Datei_Inhalt(ablage_, datei);
  } else {
    inhalt = Standard_Inhalt(n);
    ablage_.schreib_ganz(datei, inhalt);
  }
  ItemLeser leser(inhalt);
  for (auto& monat : Spread1) leser.lies(monat[S_Last_Tag]);
  for (auto& monat : Spread1) leser.lies(monat[S_Last_Nacht]);
}

bool JahresGang::Profil_speichern(std::string_view anwendung) {
  const int n = Anwendung_Nummer(captions_, anwendung);
  if (n == 0) return false;
  std::string inhalt;
  for (const auto& monat : Spread1) zeile_anhaengen(inhalt, {monat[S_Last_Tag]});
  for (const auto& monat : Spread1) zeile_anhaengen(inhalt, {monat[S_Last_Nacht]});
  return ablage_.schreib_ganz(Profil_Dateiname(n), inhalt);
}

}  // namespace polarkreis
