#pragma once

#include <map>
#include <memory>
#include <string>
#include <string_view>

#include "monitoring/ftp_klient.h"

namespace polarkreis {

/// How long the network may take.
struct Fristen {
  int verbinden_s = 30;  ///< seconds until a connection is made and logged in
  int stille_s = 60;     ///< seconds without a byte, or without an answer of the server
};

/// FTP over the network: passive connections, straight to the server whatever the environment says
/// of proxies. User and password go to the server as they are, except in an address: there the
/// characters that part it (@ : / #) can't be told from those of the account, and the call fails.
class CurlFtp : public FtpKlient {
 public:
  explicit CurlFtp(Fristen fristen = {});
  /// Closes what is still open.
  ~CurlFtp() override;
  CurlFtp(const CurlFtp&) = delete;
  CurlFtp& operator=(const CurlFtp&) = delete;

  Griff InternetOpenA(std::string_view agent) override;
  /// `host` may be a name or a number, that of IPv6 in brackets. The connection is made here and
  /// serves all uploads; one that the server has dropped since is made again by the next upload.
  Griff InternetConnectA(Griff hInternet, const std::string& host, const std::string& nutzer,
                         const std::string& passwort) override;
  /// No folder is made on the server. Line ends go out as CR LF in ASCII mode, whether the file has
  /// LF or CR LF; in every other mode the bytes go out as they are.
  bool FtpPutFileA(Griff hFtp, const std::string& lokal, const std::string& entfernt,
                   int modus) override;
  bool InternetCloseHandle(Griff griff) override;
  /// Makes a connection of its own. The file may have up to 16 MiB and is put in place in one step.
  int URLDownloadToFileA(const std::string& adresse, const std::string& lokal) override;
  std::string grund() const override { return grund_; }

 private:
  class Bibliothek;
  class Verbindung;

  Verbindung* verbindung(Griff hFtp) const;

  Fristen fristen_;
  std::unique_ptr<Bibliothek> bibliothek_;               // outlives all connections
  std::map<Griff, std::unique_ptr<Verbindung>> griffe_;  // null: the library's own handle
  Griff naechster_ = 1;
  std::string grund_;
};

}  // namespace polarkreis
