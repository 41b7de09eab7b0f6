#include <algorithm>

#include "monitoring/ftp_server.h"
#include "monitoring/route.h"
#include "monitoring/textzeilen.h"
#include "shell/items.h"
#include "shell/text.h"

namespace polarkreis {

std::span<const ftp_server::Feld> ftp_server::Felder() {
  using S = Registerspalte;
  using F = ftp_server;
  static constexpr std::array<Feld, 18> felder{{{S::nm, "nm", &F::nm_edit},
                                                {S::st, "st", &F::st_edit},
                                                {S::nu, "nu", &F::nu_edit},
                                                {S::ad, "ad", &F::ad_Edit},
                                                {S::co, "co", &F::co_edit},
                                                {S::tw, "tw", &F::tw_edit},
                                                {S::fn, "fn", &F::fn_edit},
                                                {S::th, "th", &F::th_edit},
                                                {S::pu, "pu", &F::pu_edit},
                                                {S::pd, "pd", &F::pd_edit},
                                                {S::s1, "s1", &F::s1_edit},
                                                {S::s2, "s2", &F::s2_edit},
                                                {S::ml, "ml", &F::ml_edit},
                                                {S::ip, "ip", &F::ip_edit},
                                                {S::dr, "dr", &F::dr_edit},
                                                {S::us, "us", &F::us_edit},
                                                {S::pw, "pw", &F::pw_edit},
                                                {S::nt, "nt", &F::nt_edit}}};
  return felder;
}

void ftp_server::handle_settings(int Fall) {
  switch (Fall) {
    case 1:
      return Felder_fuellen();
    case 2:
      return Felder_zurueck();
    case 3:
      return Einstellungen_hoch();
    case 4:
      return Einstellungen_herunter();
    default:
      return;
  }
}

void ftp_server::Felder_fuellen() {
  const int zeile = FTPSpread.aktive_Zeile();
  ID_Label = getrimmt(FTPSpread.zelle(zeile, Registerspalte::ID));
  ftp.ID = ID_Label;
  for (const Feld& feld : Felder())
    this->*feld.text = getrimmt(FTPSpread.zelle(zeile, feld.spalte));
  nt_edit = Flag_find(captions_, Flag_find(captions_, nt_edit, 1), 2);
  Option2 = FTPSpread.Serverwahl(zeile) == eigener_Server;
  Option1 = !Option2;
}

void ftp_server::Felder_zurueck() {
  const int zeile = FTPSpread.aktive_Zeile();
  FTPSpread.setze(zeile, Registerspalte::ID, ID_Label);
  for (const Feld& feld : Felder()) FTPSpread.setze(zeile, feld.spalte, this->*feld.text);
  FTPSpread.setze(zeile, Registerspalte::Server_Wahl,
                  std::to_string(Option2 ? eigener_Server : Standardserver));
}

// The user's own server never takes a transfer: it is only told to the monitoring side.
void ftp_server::Server_settings() {
  const int zeile = FTPSpread.aktive_Zeile();
  ftp.ID = getrimmt(FTPSpread.zelle(zeile, Registerspalte::ID));
  ftp.Server_Wahl = FTPSpread.Serverwahl(zeile);
  if (ftp.Server_Wahl != 0) ftp.setze_Konto(Standardkonto_lesen(ablage_));
}

std::string ftp_server::Einstellsatz() const {
  const bool eigener = ftp.Server_Wahl == eigener_Server;
  std::string satz;
  for (const Feld& feld : Felder()) {
    std::string wert = this->*feld.text;
    if (feld.spalte == Registerspalte::nt) wert = Flag_find(captions_, wert, 1);
    if (!eigener && feld.spalte == Registerspalte::ip) wert = ftp.FTP_IP;
    if (!eigener && feld.spalte == Registerspalte::dr) wert = ftp.FTP_Host;
    if (!eigener && feld.spalte == Registerspalte::us) wert = ftp.FTP_User;
    if (!eigener && feld.spalte == Registerspalte::pw) wert = ftp.FTP_Passwort;
    zeile_anhaengen(satz, {std::string(feld.schluessel) + "=" + wert + ";"});
  }
  return satz;
}

void ftp_server::Einstellsatz_uebernehmen(std::string_view text) {
  constexpr std::size_t kSchluessellaenge = 3;
  for (Textzeilen zeilen(text); !zeilen.ende();) {
    const std::string zeile = zeilen.lies();
    if (zeile.size() < kSchluessellaenge || zeile[kSchluessellaenge - 1] != '=') continue;
    const std::size_t laenge = std::min(zeile.rfind(';'), zeile.size());
    if (laenge < kSchluessellaenge) continue;
    const std::string wert = zeile.substr(kSchluessellaenge, laenge - kSchluessellaenge);
    for (const Feld& feld : Felder())
      if (zeile.starts_with(feld.schluessel))
        this->*feld.text = feld.spalte == Registerspalte::nt ? Flag_find(captions_, wert, 2) : wert;
  }
}

void ftp_server::Einstellungen_hoch() {
  Ergebnisse.clear();
  Server_settings();
  const std::string Dateiname = ftp.ID + "SETTINGS";
  if (weiter(Dateiname, 0, 1)) Ergebnisse.push_back(ftp.Abschicken(Dateiname, Einstellsatz()));
  weiter({}, 1, 1);
}

void ftp_server::Einstellungen_herunter() {
  Ergebnisse.clear();
  Server_settings();
  const std::string Dateiname = ftp.ID + "SETTINGS";
  if (weiter(Dateiname, 0, 1)) {
    Ergebnisse.push_back(ftp.Hoch_laden(Ladeweg::herunter, Dateiname));
    if (const auto inhalt = ftp.Kopie(Dateiname)) Einstellsatz_uebernehmen(*inhalt);
  }
  weiter({}, 1, 1);
}

bool ftp_server::weiter(const std::string& Dateiname, int nummer, int anzahl) {
  return fortschritt == nullptr || fortschritt->schritt(Dateiname, nummer, anzahl);
}

}  // namespace polarkreis
