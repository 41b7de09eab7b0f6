#pragma once

#include <string>
#include <string_view>

#include "shell/ablage.h"

namespace polarkreis {

/// An account on an FTP server.
struct Ftp_Konto {
  std::string IP;    ///< the server's numeric address, for the settings record only
  std::string Host;  ///< host name, with ":port" behind it where that isn't the usual one
  std::string Nutzer;
  std::string Passwort;
  std::string Ordner;  ///< folder on the server, without "/" at its ends
  std::string
      hindernis{};  ///< why the account's file can't be read; empty if it can, or isn't there
};

/// True if the text can be mistaken for nothing but a server: a name or a number, with ":port" or
/// without.
bool ist_Host(std::string_view host);

/// The operator's file with the default account in the data folder: five quoted items, one a line,
/// in the order of `Ftp_Konto`.
inline constexpr std::string_view Kontodatei = "ftp_default.ini";
/// The folder where the file names none.
inline constexpr std::string_view Standardordner = "html/monitoring";

/// The default account; empty texts where the file, or an item, is missing.
Ftp_Konto Standardkonto_lesen(Ablage& ablage);
/// Makes the file with empty items, readable by its owner alone, where none is. False on a failure.
bool Standardkonto_anlegen(Ablage& ablage);

}  // namespace polarkreis
