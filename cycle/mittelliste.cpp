#include "cycle/mittelliste.h"

#include <array>
#include <optional>
#include <utility>

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

/// The code of the first catalogue of type 0; empty, and why, if there is none.
std::string Verdichterkatalog(Katalogdateien& dateien, std::string& hindernis) {
  const std::vector<Katalogzeile> kataloge = dateien.Katalogliste();
  for (const Katalogzeile& zeile : kataloge)
    if (Katalogtyp(dateien, zeile.code) == 0) return zeile.code;
  hindernis = Katalogdatei;
  if (!kataloge.empty())
    hindernis += " names no catalogue of type 0";
  else if (!dateien.ablage.vorhanden(Katalogdatei))
    hindernis += " is missing";
  else
    hindernis += dateien.ablage.lies_ganz(Katalogdatei) ? " names no catalogue" : " can't be read";
  return {};
}

/// What stands in the way of the texts; empty for nothing.
std::string Texthindernis(Ablage& ablage, const std::string& datei) {
  if (!ablage.vorhanden(datei)) return datei + " is missing";
  return ablage.lies_ganz(datei) ? "" : datei + " can't be read";
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

/// Makes the list's file, and gives what stands in it; nothing, and why, where none can be made.
std::string bauen(Katalogdateien& dateien, const std::string& datei, std::string& hindernis) {
  const std::string code = Verdichterkatalog(dateien, hindernis);
  if (hindernis.empty()) hindernis = Texthindernis(dateien.ablage, Listendatei(code));
  if (!hindernis.empty()) {
    dateien.melde(datei, "not made: " + hindernis);
    return {};
  }
  std::string inhalt = Listeninhalt(dateien, code);
  dateien.ablage.schreib_ganz(datei, inhalt);
  return inhalt;
}

/// What the list's file holds, which is made where it holds nothing.
std::string Inhalt(Katalogdateien& dateien, const std::string& datei, std::string& hindernis) {
  std::optional<std::string> inhalt = "";
  if (dateien.ablage.vorhanden(datei)) inhalt = dateien.ablage.lies_ganz(datei);
  if (!inhalt) {
    hindernis = datei + " can't be read";
    return {};
  }
  const bool leer = inhalt->find_first_not_of(" \t\r\n") == std::string::npos;
  return leer ? bauen(dateien, datei, hindernis) : *std::move(inhalt);
}

bool ist_Bauteildatei(std::string_view item) {
  const std::string_view name = getrimmt(item), code = name.substr(0, Codelaenge);
  return ist_Katalogcode(code) && gleich(name, Bauteildatei(code));
}

enum Listenfeld : std::size_t { L_Datei, L_Text, L_Anfang, Listenfelder };

bool beginnt_Zeile(const Katalogdateien::Felder& items) {
  return ist_Bauteildatei(items[L_Datei]) || endet_mit_Zahl(items, Listenfelder);
}

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

std::vector<Mittelzeile> KM_Liste(Katalogdateien& dateien, std::string_view Bezeichnung,
                                  std::string* hindernis) {
  std::vector<Mittelzeile> liste;
  std::string warum;
  const std::string datei = Mittelliste(Bezeichnung);
  if (datei.empty()) return liste;
  const std::string inhalt = Inhalt(dateien, datei, warum);
  for (Katalogdateien::Felder& zeile :
       dateien.Feldzeilen(datei, inhalt, Listenfelder, beginnt_Zeile))
    liste.push_back(
        {std::move(zeile[L_Datei]), std::move(zeile[L_Text]), Satznummer(zeile[L_Anfang])});
  if (liste.empty() && warum.empty())
    warum = datei + " holds no whole row (delete it, and it is made anew)";
  if (hindernis != nullptr) *hindernis = warum;
  return liste;
}

std::vector<Bauteil> Listenbauteile(Katalogdateien& dateien, const Mittelzeile& zeile) {
  if (!ist_Bauteildatei(zeile.Datei)) return {};
  const std::string_view code = getrimmt(zeile.Datei).substr(0, Codelaenge);
  return Bauteile(dateien, code).suche(zeile.Anfang, Listenblock, Suchmuster({}));
}

}  // namespace polarkreis
