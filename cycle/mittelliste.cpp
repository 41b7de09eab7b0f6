#include "cycle/mittelliste.h"

#include <array>

#include "refrigerant/kaeltemittel.h"
#include "shell/cp850.h"
#include "shell/items.h"
#include "shell/text.h"

namespace polarkreis {

namespace {

constexpr int kListennummer = Bauteile::Nummer_sonst + 1;

using Slots = std::array<int, Listenzahl>;
constexpr Slots kSlots50{252, 202, 302, 352, 52,  502, 602, 702, 402,
                         152, 2,   452, 102, 552, 652, 752, 802, 852};
constexpr Slots kSlots66{332, 266, 398, 464, 68,  662, 794, 926,  530,
                         200, 2,   596, 134, 728, 860, 992, 1058, 1124};

/// The code of the first catalogue of type 0; empty if there is none.
std::string Verdichterkatalog(Katalogdateien& dateien) {
  for (const Katalogzeile& zeile : dateien.Katalogliste())
    if (Katalogtyp(dateien, zeile.code) == 0) return zeile.code;
  return {};
}

std::string Listentext(Ablage& ablage, int position) {
  std::string bytes = ablage.Satz_Lesen(kListennummer, Listenindex(position));
  for (char& c : bytes)
    if (c == '\0') c = ' ';
  return aus_CP850(rechts_getrimmt(bytes));
}

std::string Listeninhalt(Katalogdateien& dateien, const std::string& code) {
  Ablage& ablage = dateien.ablage;
  const std::string datei = Listendatei(code);
  if (ablage.Dateigroesse(datei) % Listensatz != 0)
    dateien.melde(datei, "its size is no multiple of " + std::to_string(Listensatz) +
                             " bytes: blanks stand in for the rest of its last record");
  ablage.Datei_Satz(datei, kListennummer, Listensatz);
  std::string inhalt;
  for (int n = 1; n <= Listenzahl; ++n) {
    const std::string anfang = std::to_string((n - 1) * Listenblock + Listenanfang);
    zeile_anhaengen(inhalt, {Bauteildatei(code), Listentext(ablage, n), anfang});
  }
  ablage.Datei_Schliessen(kListennummer);
  return inhalt;
}

/// Makes the list's file, and gives what stands in it; nothing where no list can be made.
std::string bauen(Katalogdateien& dateien, const std::string& datei) {
  const std::string code = Verdichterkatalog(dateien);
  if (code.empty() || !dateien.ablage.vorhanden(Listendatei(code))) {
    dateien.melde(datei, code.empty() ? "not made: there is no catalogue of type 0"
                                      : "not made: " + Listendatei(code) + " is missing");
    return {};
  }
  std::string inhalt = Listeninhalt(dateien, code);
  dateien.ablage.schreib_ganz(datei, inhalt);
  return inhalt;
}

enum Listenfeld : std::size_t { L_Datei, L_Text, L_Anfang, Listenfelder };

}  // namespace

int Listenindex(int position, Slotweite weite) {
  if (position < 1 || position > Listenzahl) return 0;
  const Slots& slots = weite == Slotweite::w50 ? kSlots50 : kSlots66;
  const int schritt = static_cast<int>(weite);
  return (slots[static_cast<std::size_t>(position - 1)] + schritt - 2) / schritt;
}

std::string Mittelliste(std::string_view Bezeichnung) {
  const std::string name = gross(getrimmt(Bezeichnung));
  return Kaeltemittel::KM_Bekannt(name) ? name + ".LST" : std::string();
}

std::vector<Mittelzeile> KM_Liste(Katalogdateien& dateien, std::string_view Bezeichnung) {
  std::vector<Mittelzeile> liste;
  const std::string datei = Mittelliste(Bezeichnung);
  if (datei.empty()) return liste;
  const std::string inhalt = dateien.ablage.vorhanden(datei)
                                 ? dateien.ablage.lies_ganz(datei).value_or("")
                                 : bauen(dateien, datei);
  for (Katalogdateien::Felder& zeile : dateien.Feldzeilen(datei, inhalt, Listenfelder))
    liste.push_back(
        {std::move(zeile[L_Datei]), std::move(zeile[L_Text]), Satznummer(zeile[L_Anfang])});
  return liste;
}

std::vector<Bauteil> Listenbauteile(Katalogdateien& dateien, const Mittelzeile& zeile) {
  const std::string_view code = std::string_view(zeile.Datei).substr(0, Codelaenge);
  if (!ist_Katalogcode(code) || !gleich(zeile.Datei, Bauteildatei(code))) return {};
  return Bauteile(dateien, code).suche(zeile.Anfang, Listenblock, Suchmuster({}));
}

}  // namespace polarkreis
