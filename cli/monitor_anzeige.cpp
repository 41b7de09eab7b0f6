#include "monitor_anzeige.h"

#include <algorithm>
#include <string>

#include "monitoring/route.h"
#include "shell/text.h"

namespace polarkreis::cli {

namespace {

/// What a field of the settings means to people.
struct Bezeichnung {
  Registerspalte spalte;
  const char* text;
};
constexpr Bezeichnung kBezeichnungen[] = {{Registerspalte::nm, "Name"},
                                          {Registerspalte::st, "Street"},
                                          {Registerspalte::nu, "House number"},
                                          {Registerspalte::ad, "Address addition"},
                                          {Registerspalte::co, "Postcode"},
                                          {Registerspalte::tw, "Town"},
                                          {Registerspalte::fn, "Refrigerant"},
                                          {Registerspalte::th, "Power threshold, kW"},
                                          {Registerspalte::pu, "Delay at start, min"},
                                          {Registerspalte::pd, "Delay at stop, min"},
                                          {Registerspalte::s1, "First SMS number"},
                                          {Registerspalte::s2, "Second SMS number"},
                                          {Registerspalte::ml, "E-mail address"},
                                          {Registerspalte::ip, "Own FTP server, address"},
                                          {Registerspalte::dr, "Own FTP server, host name"},
                                          {Registerspalte::us, "Own FTP server, user"},
                                          {Registerspalte::pw, "Own FTP server, password"},
                                          {Registerspalte::nt, "Notification route"}};

std::string bezeichnung(Registerspalte spalte) {
  const auto* gefunden = std::ranges::find(kBezeichnungen, spalte, &Bezeichnung::spalte);
  return gefunden == std::ranges::end(kBezeichnungen) ? "" : gefunden->text;
}

std::string feldtext(const ftp_server& pult, const ftp_server::Feld& feld, bool passwort) {
  const std::string& text = pult.*feld.text;
  const bool verbergen = feld.spalte == Registerspalte::pw && !passwort && !text.empty();
  return verbergen ? std::string(kVerborgen) : text;
}

std::string wahltext(int wahl) {
  if (wahl == Standardserver) return "1, the default FTP server";
  if (wahl == eigener_Server) return "2, the plant's own FTP server";
  return "none: transfers have no account";
}

int aktive_Regeln(const ftp_server& pult, const Captions& captions, int zeile) {
  int anzahl = 0;
  for (int i = 1; i <= Regelzahl; ++i) {
    const Alarmregel regel = Regel_entpacken(captions, pult.FTPSpread.zelle(zeile, Regelspalte(i)));
    if (regel[Regelzeile::en] == "ON") ++anzahl;
  }
  return anzahl;
}

}  // namespace

bool Regel_leer(const Alarmregel& regel) {
  const auto leer = [&](Regelzeile z) { return getrimmt(regel[z]).empty(); };
  return regel[Regelzeile::en] != "ON" && leer(Regelzeile::c1) && leer(Regelzeile::c2) &&
         leer(Regelzeile::ro) && leer(Regelzeile::vl) && leer(Regelzeile::ti);
}

std::string Regelsatz(const Alarmregel& regel) {
  std::string satz;
  const auto dazu = [&](std::string_view davor, Regelzeile zeile, std::string_view danach = {}) {
    const std::string_view text = getrimmt(regel[zeile]);
    if (text.empty()) return;
    if (!satz.empty()) satz += davor;
    satz.append(text).append(danach);
  };
  dazu(" ", Regelzeile::c1);
  dazu(" ", Regelzeile::ro);
  dazu(" ", Regelzeile::c2);
  dazu(" ", Regelzeile::cm);
  dazu(" ", Regelzeile::vl);
  dazu(" for ", Regelzeile::ti, " min");
  dazu(": ", Regelzeile::nt);
  return satz;
}

std::vector<int> belegte_Zeilen(const Register& tabelle) {
  std::vector<int> zeilen;
  for (int z = 1; z <= Register::Zeilen; ++z) {
    bool belegt = false;
    for (int s = 1; s <= static_cast<int>(Registerspalte::Server_Wahl); ++s)
      belegt = belegt || !tabelle.zelle(z, s).empty();
    for (int i = 1; i <= Regelzahl; ++i)
      belegt = belegt || !tabelle.zelle(z, Regelspalte(i)).empty();
    if (belegt) zeilen.push_back(z);
  }
  return zeilen;
}

void drucke_Liste(ftp_server& pult, const Captions& captions) {
  Tabelle tabelle{{"Row", "ID", "Name", "Town", "Refrigerant", "Route", "Server", "Rules on"}, {}};
  for (int zeile : belegte_Zeilen(pult.FTPSpread)) {
    pult.FTPSpread.ActiveRow = zeile;
    pult.Tab_Select(1);
    const int wahl = pult.FTPSpread.Serverwahl(zeile);
    tabelle.zeilen.push_back({std::to_string(zeile), pult.ID_Label, pult.nm_edit, pult.tw_edit,
                              pult.fn_edit, pult.nt_edit, wahl == 0 ? "" : std::to_string(wahl),
                              std::to_string(aktive_Regeln(pult, captions, zeile))});
  }
  if (tabelle.zeilen.empty())
    drucke(
        Tabelle{{}, {{"The register holds no plants; \"monitor set ID KEY=VALUE\" makes one."}}});
  else
    drucke(tabelle);
}

void drucke_Einstellungen(const ftp_server& pult, bool passwort) {
  const int zeile = pult.FTPSpread.aktive_Zeile();
  Tabelle tabelle{{"Key", "Meaning", "Value"}, {}};
  tabelle.zeilen.push_back({"", "Row of the register", std::to_string(zeile)});
  tabelle.zeilen.push_back({"id", "Monitoring ID", pult.ID_Label});
  for (const ftp_server::Feld& feld : ftp_server::Felder())
    tabelle.zeilen.push_back(
        {std::string(feld.schluessel), bezeichnung(feld.spalte), feldtext(pult, feld, passwort)});
  tabelle.zeilen.push_back({"server", "Server choice", wahltext(pult.FTPSpread.Serverwahl(zeile))});
  const Uebertragung& ftp = pult.ftp;
  tabelle.zeilen.push_back(
      {"", "Transfers go to",
       ftp.FTP_Host.empty() ? "" : ftp.FTP_Host + ", folder " + ftp.FTP_Ordner + "/" + ftp.ID});
  drucke(tabelle);
}

void drucke_Regeln(const ftp_server& pult) {
  Tabelle tabelle{{"Rule", "State", "If ... for ...: who is told"}, {}};
  int nummer = 0;
  for (const Alarmregel& regel : pult.AlertSpread) {
    const bool leer = Regel_leer(regel);
    tabelle.zeilen.push_back({std::to_string(++nummer), leer ? "" : regel[Regelzeile::en],
                              leer ? kLeere_Regel : Regelsatz(regel)});
  }
  drucke(tabelle);
}

Json Liste_json(ftp_server& pult, const Captions& captions) {
  Json liste = Json::array();
  for (int zeile : belegte_Zeilen(pult.FTPSpread)) {
    pult.FTPSpread.ActiveRow = zeile;
    pult.Tab_Select(1);
    const int wahl = pult.FTPSpread.Serverwahl(zeile);
    liste.push_back({{"row", zeile},
                     {"id", pult.ID_Label},
                     {"nm", pult.nm_edit},
                     {"tw", pult.tw_edit},
                     {"fn", pult.fn_edit},
                     {"nt", pult.nt_edit},
                     {"server_choice", wahl == 0 ? Json() : Json(wahl)},
                     {"rules_on", aktive_Regeln(pult, captions, zeile)}});
  }
  return liste;
}

Json Einstellungen_json(const ftp_server& pult, const Captions& captions, bool passwort) {
  const int zeile = pult.FTPSpread.aktive_Zeile();
  const int wahl = pult.FTPSpread.Serverwahl(zeile);
  Json json{{"row", zeile}, {"id", pult.ID_Label}};
  for (const ftp_server::Feld& feld : ftp_server::Felder())
    json[std::string(feld.schluessel)] = feldtext(pult, feld, passwort);
  json["nt_number"] = std::stoi(Flag_find(captions, pult.nt_edit, 1));
  json["server_choice"] = wahl == 0 ? Json() : Json(wahl);
  json["transfers"] = {{"host", pult.ftp.FTP_Host}, {"folder", pult.ftp.FTP_Ordner}};
  return json;
}

Json Regel_json(const ftp_server& pult, int nummer, const std::string& gepackt) {
  const Alarmregel& regel = pult.AlertSpread[static_cast<std::size_t>(nummer) - 1];
  Json json{{"rule", nummer}, {"empty", Regel_leer(regel)}};
  for (int z = 1; z <= Regelzeilen; ++z) {
    const auto zeile = static_cast<Regelzeile>(z);
    json[std::string(Regelschluessel(zeile))] = regel[zeile];
  }
  json["packed"] = gepackt;
  return json;
}

Json Regeln_json(const ftp_server& pult, const std::array<std::string, Regelzahl>& gepackt) {
  Json regeln = Json::array();
  for (int i = 1; i <= Regelzahl; ++i)
    regeln.push_back(Regel_json(pult, i, gepackt[static_cast<std::size_t>(i) - 1]));
  return regeln;
}

std::array<std::string, Regelzahl> gepackte_Regeln(const ftp_server& pult) {
  std::array<std::string, Regelzahl> gepackt;
  for (int i = 1; i <= Regelzahl; ++i)
    gepackt[static_cast<std::size_t>(i) - 1] =
        pult.FTPSpread.zelle(pult.FTPSpread.aktive_Zeile(), Regelspalte(i));
  return gepackt;
}

}  // namespace polarkreis::cli
