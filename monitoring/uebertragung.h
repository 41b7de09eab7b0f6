#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "monitoring/ftp_klient.h"
#include "monitoring/ftp_konto.h"
#include "shell/ablage.h"

namespace polarkreis {

/// Which way a file goes.
enum class Ladeweg { hoch = 1, herunter = 2 };

/// The exchange of small files with the FTP server, one file at a time: the current account, the
/// open handles and the log of the transfers. Nothing is retried, and no file is ever removed, here
/// or on the server.
class Uebertragung {
 public:
  Uebertragung(Ablage& ablage, FtpKlient& klient) : ablage_(ablage), klient_(klient) {}
  ~Uebertragung() { Disconnect(); }
  Uebertragung(const Uebertragung&) = delete;
  Uebertragung& operator=(const Uebertragung&) = delete;

  static constexpr std::string_view Tempordner = "FMD_Temp";

  // The current account, set before each transfer.
  std::string ID;  ///< monitoring ID of the plant
  std::string FTP_User, FTP_Passwort;
  std::string FTP_IP;    ///< numeric address, written to the settings record only
  std::string FTP_Host;  ///< used for the connection
  std::string FTP_Ordner{Standardordner};
  int Server_Wahl = 0;  ///< 1 the default server, 2 the user's own
  FtpKlient::Griff hInternet = 0, hFtp = 0;

  /// Addresses, paths and results, in the order of the calls. The password stands in the clear in
  /// it: it is for the screen and never goes to a file.
  std::vector<std::string> List1;

  /// Takes an account over.
  void setze_Konto(const Ftp_Konto& konto);

  /// Opens the library and the connection; an open one is closed first. True if there is a
  /// connection. It stays open until the next call, `Disconnect` or the object's end.
  bool Connect(const std::string& Host, const std::string& Nutzer, const std::string& Passwort);
  /// Closes both handles, the connection first.
  void Disconnect();
  /// True if the file is on the server.
  bool FileUpload(const std::string& Lokal, const std::string& Entfernt, int Modus);

  /// How a transfer ended.
  struct Ergebnis {
    std::string Dateiname;
    std::string Entfernt;  ///< path on the server
    Ladeweg weg{};
    bool gut = false;
    std::string grund;  ///< why not and what to do; never with the account
  };

  /// Makes the temporary folder, probes the plant's marker "<ID>_INS" on the server (without
  /// consequences), and moves the file between the temporary folder and the server. After a failed
  /// download the local copy of an earlier one, if there is one, is as it was. A name that is no
  /// file name (it holds a path's separator), a host that is more than a host, and a temporary
  /// folder that can't be made end it before anything is sent.
  Ergebnis Hoch_laden(Ladeweg weg, const std::string& Dateiname);

  /// Writes the local file, readable by its owner alone, and uploads it. What can't be written
  /// doesn't go out: the file there would be that of an earlier upload.
  Ergebnis Abschicken(const std::string& Dateiname, std::string_view inhalt);
  /// The bytes of a file's local copy; nothing if there is none.
  std::optional<std::string> Kopie(const std::string& Dateiname) const;

  /// Makes the temporary folder, open to its owner alone; one that is there is no error.
  bool Tempordner_anlegen();
  /// The local path of a file in the temporary folder.
  std::string Tempdatei(std::string_view Dateiname) const;

 private:
  Ergebnis Beginn(Ladeweg weg, const std::string& Dateiname) const;
  void laden(Ergebnis& ergebnis, const std::string& Basis);
  void ablegen(Ergebnis& ergebnis);
  int herunterladen(const std::string& Adresse, const std::string& Lokal);

  Ablage& ablage_;
  FtpKlient& klient_;
};

}  // namespace polarkreis
