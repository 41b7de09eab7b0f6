#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace polarkreis {

/// The system's FTP client. Every call blocks its caller until it is done or has failed; there are
/// no retries. Nothing that an account holds ever reaches the message log or `grund`.
class FtpKlient {
 public:
  /// An open handle; 0 is none.
  using Griff = std::intptr_t;
  /// The transfer mode that turns line ends into the server's own.
  static constexpr int ASCII = 1;

  virtual ~FtpKlient() = default;
  /// Begins the use of the library: default access, no proxy, no flags.
  virtual Griff InternetOpenA(std::string_view agent) = 0;
  /// Connects and logs in: FTP service, no flags; `host` may carry ":port", else it is the default
  /// FTP port. 0 if there is no connection or the server refuses the account.
  virtual Griff InternetConnectA(Griff hInternet, const std::string& host,
                                 const std::string& nutzer, const std::string& passwort) = 0;
  /// Stores a local file under the remote path. True on success.
  virtual bool FtpPutFileA(Griff hFtp, const std::string& lokal, const std::string& entfernt,
                           int modus) = 0;
  /// Closes a handle of either kind; false if it is none.
  virtual bool InternetCloseHandle(Griff griff) = 0;
  /// Fetches an "ftp://" address into a local file as it comes, readable by its owner alone. 0 on
  /// success, else the number of the error, and the local file is as it was.
  virtual int URLDownloadToFileA(const std::string& adresse, const std::string& lokal) = 0;
  /// Why the last call failed and what to do about it, as a sentence for the user; empty after a
  /// success.
  virtual std::string grund() const = 0;
};

}  // namespace polarkreis
