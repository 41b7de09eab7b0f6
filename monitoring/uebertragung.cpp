#include "monitoring/uebertragung.h"

#include "shell/text.h"

namespace polarkreis {

namespace {

bool ist_Dateiname(std::string_view name) {
  if (name == "." || name == "..") return false;
  for (char c : name)
    if (c == '/' || c == '\\' || static_cast<unsigned char>(c) < ' ') return false;
  return true;
}

}  // namespace

void Uebertragung::setze_Konto(const Ftp_Konto& konto) {
  FTP_User = konto.Nutzer;
  FTP_Passwort = konto.Passwort;
  FTP_IP = konto.IP;
  FTP_Host = konto.Host;
  FTP_Ordner = konto.Ordner;
}

bool Uebertragung::Connect(const std::string& Host, const std::string& Nutzer,
                           const std::string& Passwort) {
  if (hInternet != 0 || hFtp != 0) Disconnect();
  hInternet = klient_.InternetOpenA("FTP");
  hFtp = klient_.InternetConnectA(hInternet, Host, Nutzer, Passwort);
  return hFtp != 0;
}

void Uebertragung::Disconnect() {
  if (hFtp != 0) klient_.InternetCloseHandle(hFtp);
  if (hInternet != 0) klient_.InternetCloseHandle(hInternet);
  hFtp = hInternet = 0;
}

bool Uebertragung::FileUpload(const std::string& Lokal, const std::string& Entfernt, int Modus) {
  return klient_.FtpPutFileA(hFtp, Lokal, Entfernt, Modus);
}

bool Uebertragung::Tempordner_anlegen() {
  return ablage_.mache_privaten_ordner(Tempdatei(""));
}

std::string Uebertragung::Tempdatei(std::string_view Dateiname) const {
  std::string pfad = ablage_.Datenordner + "/";
  pfad += Tempordner;
  if (Dateiname.empty()) return pfad;
  pfad += "/";
  pfad += Dateiname;
  return ablage_.pfad(pfad);
}

Uebertragung::Ergebnis Uebertragung::Beginn(Ladeweg weg, const std::string& Dateiname) const {
  Ergebnis ergebnis{Dateiname, "/" + FTP_Ordner + "/" + ID + "/" + Dateiname, weg, false, {}};
  if (!ist_Dateiname(Dateiname) || !ist_Dateiname(ID))
    ergebnis.grund =
        "The ID is the name of a folder and of files: it can't be \".\" or \"..\" and can't hold "
        "\"/\", \"\\\" or control characters. Give the plant another one.";
  else if (!FTP_Host.empty() && !ist_Host(FTP_Host))
    ergebnis.grund =
        "The account's host is no host name: enter a name or number, with \":port\" behind it at "
        "the most.";
  return ergebnis;
}

Uebertragung::Ergebnis Uebertragung::Hoch_laden(Ladeweg weg, const std::string& Dateiname) {
  Ergebnis ergebnis = Beginn(weg, Dateiname);
  if (!ergebnis.grund.empty()) return ergebnis;
  if (!Tempordner_anlegen()) {
    ergebnis.grund = ablage_.letzter_fehler();
    return ergebnis;
  }
  const std::string Basis =
      "ftp://" + FTP_User + ":" + FTP_Passwort + "@" + FTP_Host + "/" + FTP_Ordner + "/" + ID;
  herunterladen(Basis + "/" + ID + "_INS", Tempdatei(ID + "_INS"));
  weg == Ladeweg::hoch ? ablegen(ergebnis) : laden(ergebnis, Basis);
  return ergebnis;
}

Uebertragung::Ergebnis Uebertragung::Abschicken(const std::string& Dateiname,
                                                std::string_view inhalt) {
  Ergebnis ergebnis = Beginn(Ladeweg::hoch, Dateiname);
  if (!ergebnis.grund.empty()) return ergebnis;
  Tempordner_anlegen();
  if (ablage_.schreib_ganz(Tempdatei(Dateiname), inhalt, Haltbarkeit::wiederholbar,
                           Zugriff::nur_Eigner))
    return Hoch_laden(Ladeweg::hoch, Dateiname);
  ergebnis.grund = ablage_.letzter_fehler();
  return ergebnis;
}

std::optional<std::string> Uebertragung::Kopie(const std::string& Dateiname) const {
  if (!ist_Dateiname(Dateiname)) return std::nullopt;
  return ablage_.lies_bytes(Tempdatei(Dateiname));
}

void Uebertragung::ablegen(Ergebnis& ergebnis) {
  if (!Connect(FTP_Host, FTP_User, FTP_Passwort)) {
    ergebnis.grund = klient_.grund();
    return;
  }
  const std::string Lokal = Tempdatei(ergebnis.Dateiname);
  List1.push_back(ergebnis.Entfernt);
  List1.push_back(Lokal);
  ergebnis.gut = FileUpload(Lokal, ergebnis.Entfernt, FtpKlient::ASCII);
  if (!ergebnis.gut) ergebnis.grund = klient_.grund();
  List1.push_back(std::string("Upload = ") + (ergebnis.gut ? "1" : "0"));
}

void Uebertragung::laden(Ergebnis& ergebnis, const std::string& Basis) {
  ergebnis.gut =
      herunterladen(Basis + "/" + ergebnis.Dateiname, Tempdatei(ergebnis.Dateiname)) == 0;
  if (!ergebnis.gut) ergebnis.grund = klient_.grund();
}

int Uebertragung::herunterladen(const std::string& Adresse, const std::string& Lokal) {
  List1.push_back(Adresse);
  List1.push_back(Lokal);
  const int nummer = klient_.URLDownloadToFileA(Adresse, Lokal);
  List1.push_back("Download = " + std::to_string(nummer));
  return nummer;
}

}  // namespace polarkreis
