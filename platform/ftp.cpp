#include "platform/ftp.h"

#include <curl/curl.h>
#include <sys/socket.h>

#include <algorithm>
#include <cstddef>
#include <cstring>

#include "monitoring/ftp_konto.h"
#include "shell/platte.h"
#include "shell/text.h"

namespace polarkreis {

namespace {

constexpr std::size_t kHoechstgroesse = std::size_t{16} << 20;  // of a download
constexpr int kBlick_ms = 20;

bool hat_Steuerzeichen(std::string_view text) {
  return std::any_of(text.begin(), text.end(),
                     [](unsigned char c) { return c < ' ' || c == '\x7F'; });
}

/// False if the address can be read in more than one way: the only "@" ends the login, the first
/// ":" of that ends the user, and what ends the server's name must not stand before it. So no part
/// of an account is ever taken for a server; a path with an "@" can't be told from a password with
/// one and a "/". A "%" in the login would be read as the beginning of another character, and
/// ";type=" as a command.
bool ist_eindeutig(std::string_view adresse) {
  const std::size_t schema = adresse.find("://");
  if (schema == std::string_view::npos || hat_Steuerzeichen(adresse)) return false;
  if (gross(adresse).find(";TYPE=") != std::string::npos) return false;
  const std::string_view stelle = adresse.substr(schema + 3);
  const std::string_view vorn = stelle.substr(0, stelle.find('/'));
  const std::string_view konto = vorn.substr(0, vorn.find('@'));
  if (konto.size() == vorn.size()) return stelle.find('@') == std::string_view::npos;
  return std::count(stelle.begin(), stelle.end(), '@') == 1 &&
         std::count(konto.begin(), konto.end(), ':') <= 1 &&
         konto.find_first_of("#?%") == std::string_view::npos &&
         ist_Host(vorn.substr(konto.size() + 1));
}

/// True if the address names no file; the library would fetch the folder's listing instead.
bool nennt_Ordner(std::string_view adresse) {
  const std::string_view pfad = adresse.substr(0, adresse.find('#'));
  return pfad.ends_with('/') || std::count(pfad.begin(), pfad.end(), '/') < 3;
}

std::string ohne_Leerzeichen(const std::string& adresse) {
  std::string neu;
  for (char c : adresse) c == ' ' ? neu += "%20" : neu += c;
  return neu;
}

/// The path such that the server gets exactly these bytes.
std::string verschluesselt(std::string_view pfad) {
  constexpr std::string_view kZiffern = "0123456789ABCDEF";
  constexpr std::string_view kFrei =
      "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-._~/";
  std::string neu;
  for (char c : pfad) {
    const auto byte = static_cast<unsigned char>(c);
    if (kFrei.find(c) != std::string_view::npos)
      neu += c;
    else
      (neu += '%').append({kZiffern[byte >> 4], kZiffern[byte & 15]});
  }
  return neu;
}

/// CR LF becomes LF; on its way out each LF becomes CR LF.
std::string mit_LF(std::string_view text) {
  std::string neu;
  neu.reserve(text.size());
  for (std::size_t i = 0; i < text.size(); ++i)
    if (text[i] != '\r' || i + 1 == text.size() || text[i + 1] != '\n') neu += text[i];
  return neu;
}

std::size_t liefere(char* ziel, std::size_t einheit, std::size_t anzahl, void* quelle) {
  auto& rest = *static_cast<std::string_view*>(quelle);
  const std::size_t n = std::min(einheit * anzahl, rest.size());
  std::memcpy(ziel, rest.data(), n);
  rest.remove_prefix(n);
  return n;
}

std::size_t empfange(char* daten, std::size_t einheit, std::size_t anzahl, void* ziel) {
  auto& bytes = *static_cast<std::string*>(ziel);
  const std::size_t n = einheit * anzahl;
  if (n > kHoechstgroesse - bytes.size()) return 0;
  bytes.append(daten, n);
  return n;
}

std::size_t verwirf(char*, std::size_t einheit, std::size_t anzahl, void*) {
  return einheit * anzahl;
}

/// Replies that tell of a full disk or a used-up allowance.
bool ist_voll(long antwort) {
  return antwort == 452 || antwort == 552;
}

constexpr const char* kAdresse =
    "The address can't be used. Check the server's name and port, and let user and password hold "
    "none of the characters @ : / # ? %, and folder and ID none of @ # ? % ;.";
constexpr const char* kHost =
    "The server's name can't be used. Enter a host name or number (of IPv6 in brackets), with "
    "\":port\" behind it at the most.";
constexpr const char* kAbgewiesen =
    "The server turns the connection away: it has too many, or is closing. Try again later.";
constexpr const char* kSteuerzeichen =
    "Server, user or password hold a control character. Enter them again without it.";
constexpr const char* kKein_Griff = "There is no open connection. Connect to the server first.";
constexpr const char* kVoll =
    "The server has no space left for the file. Ask whoever runs it to make room.";

/// What an error of the library, and the server's last reply before it, mean for the user.
std::string satz(CURLcode fehler, long antwort = 0) {
  constexpr long kDienst_endet = 421;
  if (fehler != CURLE_OK && antwort == kDienst_endet) return kAbgewiesen;
  switch (fehler) {
    case CURLE_OK:
      return {};
    case CURLE_URL_MALFORMAT:
    case CURLE_UNSUPPORTED_PROTOCOL:
      return kAdresse;
    case CURLE_COULDNT_RESOLVE_HOST:
      return "The server's name was not found. Check the name and the network.";
    case CURLE_COULDNT_CONNECT:
      return "There is no connection to the server. Check its address and port and the network, "
             "and whether it is running.";
    case CURLE_LOGIN_DENIED:
      return "The server refuses the account. Check user and password.";
    case CURLE_REMOTE_ACCESS_DENIED:
      return "The server gives no access. Ask whoever runs it for the right to do this.";
    case CURLE_REMOTE_FILE_NOT_FOUND:
    case CURLE_FTP_COULDNT_RETR_FILE:
      return "The folder or the file is not on the server, or the account may not read it. Check "
             "the ID and the folder.";
    case CURLE_UPLOAD_FAILED:
      return "The server doesn't take the file: its folder is not there, or the account may not "
             "write in it. Check the ID and the folder.";
    case CURLE_REMOTE_DISK_FULL:
      return kVoll;
    case CURLE_PARTIAL_FILE:
    case CURLE_GOT_NOTHING:
    case CURLE_SEND_ERROR:
    case CURLE_RECV_ERROR:
      return "The connection to the server broke off. Try again.";
    case CURLE_OPERATION_TIMEDOUT:
    case CURLE_FTP_ACCEPT_TIMEOUT:
      return "The server didn't answer in time. Check the network and try again.";
    case CURLE_FILESIZE_EXCEEDED:
      return "The file on the server is larger than 16 MiB and was not fetched. Check the ID and "
             "the folder.";
    case CURLE_OUT_OF_MEMORY:
      return "There is not enough memory. Close other programs and try again.";
    default:
      return "The server gave an answer that makes no sense here (error " +
             std::to_string(static_cast<int>(fehler)) +
             "). Check that its address and port are those of an FTP server.";
  }
}

}  // namespace

/// The library's common part, for as long as there are clients.
class CurlFtp::Bibliothek {
 public:
  Bibliothek() { ::curl_global_init(CURL_GLOBAL_DEFAULT); }
  ~Bibliothek() { ::curl_global_cleanup(); }
  Bibliothek(const Bibliothek&) = delete;
  Bibliothek& operator=(const Bibliothek&) = delete;
};

/// One control connection and what is said over it; closed with the object.
class CurlFtp::Verbindung {
 public:
  explicit Verbindung(const Fristen& fristen)
      : curl_(::curl_easy_init()), antrieb_(::curl_multi_init()) {
    setze_fristen(fristen);
    setze(CURLOPT_PROTOCOLS_STR, "ftp");
    setze(CURLOPT_PROXY, "");
    setze(CURLOPT_NETRC, long{CURL_NETRC_IGNORED});
    setze(CURLOPT_FOLLOWLOCATION, 0L);
    setze(CURLOPT_FTP_FILEMETHOD, long{CURLFTPMETHOD_NOCWD});
    setze(CURLOPT_PATH_AS_IS, 1L);
    setze(CURLOPT_WRITEFUNCTION, &verwirf);
    setze(CURLOPT_READFUNCTION, &liefere);
  }
  ~Verbindung() {
    lass_antworten_weg();
    ::curl_multi_remove_handle(antrieb_, curl_);
    ::curl_multi_cleanup(antrieb_);
    ::curl_easy_cleanup(curl_);
  }
  Verbindung(const Verbindung&) = delete;
  Verbindung& operator=(const Verbindung&) = delete;

  CURLcode anmelden(const std::string& host, const std::string& nutzer,
                    const std::string& passwort) {
    wurzel_ = "ftp://" + host + "/";
    setze(CURLOPT_USERNAME, nutzer.c_str());
    setze(CURLOPT_PASSWORD, passwort.c_str());
    setze(CURLOPT_NOBODY, 1L);
    return uebertrage(wurzel_ + "/");
  }

  CURLcode sende(const std::string& pfad, std::string_view bytes, bool ascii) {
    setze(CURLOPT_UPLOAD, 1L);
    setze(CURLOPT_TRANSFERTEXT, ascii ? 1L : 0L);
    setze(CURLOPT_CRLF, ascii ? 1L : 0L);
    setze(CURLOPT_READDATA, &bytes);
    const CURLcode fehler = uebertrage(wurzel_ + verschluesselt(pfad));
    return fehler == CURLE_UPLOAD_FAILED && ist_voll(antwort()) ? CURLE_REMOTE_DISK_FULL : fehler;
  }

  CURLcode hole(const std::string& adresse, std::string& bytes) {
    setze(CURLOPT_WRITEFUNCTION, &empfange);
    setze(CURLOPT_WRITEDATA, &bytes);
    const CURLcode fehler = uebertrage(adresse);
    return fehler == CURLE_WRITE_ERROR ? CURLE_FILESIZE_EXCEEDED : fehler;
  }

  /// The server's last reply; 0 without one.
  long antwort() const {
    long nummer = 0;
    if (curl_ != nullptr) ::curl_easy_getinfo(curl_, CURLINFO_RESPONSE_CODE, &nummer);
    return nummer;
  }

 private:
  template <class T>
  void setze(CURLoption option, T wert) {
    if (curl_ != nullptr) ::curl_easy_setopt(curl_, option, wert);
  }

  void setze_fristen(const Fristen& fristen) {
    setze(CURLOPT_NOSIGNAL, 1L);
    setze(CURLOPT_CONNECTTIMEOUT, long{fristen.verbinden_s});
    setze(CURLOPT_SERVER_RESPONSE_TIMEOUT, long{fristen.stille_s});
    setze(CURLOPT_LOW_SPEED_LIMIT, 1L);
    setze(CURLOPT_LOW_SPEED_TIME, long{fristen.stille_s});
  }

  CURLcode uebertrage(const std::string& adresse) {
    if (curl_ == nullptr || antrieb_ == nullptr) return CURLE_OUT_OF_MEMORY;
    setze(CURLOPT_URL, adresse.c_str());
    ::curl_multi_remove_handle(antrieb_, curl_);
    if (::curl_multi_add_handle(antrieb_, curl_) != CURLM_OK) return CURLE_FAILED_INIT;
    return treibe_an();
  }

  /// The library's own loop misses an answer that comes at once and sleeps a second over it.
  CURLcode treibe_an() {
    for (int laufend = 1; laufend != 0;) {
      if (::curl_multi_perform(antrieb_, &laufend) != CURLM_OK) return CURLE_FAILED_INIT;
      if (laufend != 0) ::curl_multi_poll(antrieb_, nullptr, 0, kBlick_ms, nullptr);
    }
    int rest = 0;
    const CURLMsg* const meldung = ::curl_multi_info_read(antrieb_, &rest);
    return meldung != nullptr ? meldung->data.result : CURLE_FAILED_INIT;
  }

  /// The library would wait for minutes for the answer to its goodbye, whatever the limits are. An
  /// end that takes no more bytes makes it say goodbye and go.
  void lass_antworten_weg() const {
    curl_socket_t leitung = CURL_SOCKET_BAD;
    if (curl_ != nullptr) ::curl_easy_getinfo(curl_, CURLINFO_ACTIVESOCKET, &leitung);
    if (leitung != CURL_SOCKET_BAD) ::shutdown(leitung, SHUT_RD);
  }

  CURL* curl_;
  CURLM* antrieb_;
  std::string wurzel_;
};

CurlFtp::CurlFtp(Fristen fristen)
    : fristen_(fristen), bibliothek_(std::make_unique<Bibliothek>()) {}

CurlFtp::~CurlFtp() = default;

FtpKlient::Griff CurlFtp::InternetOpenA(std::string_view /*agent*/) {
  grund_.clear();
  griffe_.emplace(naechster_, nullptr);
  return naechster_++;
}

FtpKlient::Griff CurlFtp::InternetConnectA(Griff hInternet, const std::string& host,
                                           const std::string& nutzer, const std::string& passwort) {
  grund_.clear();
  if (const auto offen = griffe_.find(hInternet); offen == griffe_.end() || offen->second)
    grund_ = kKein_Griff;
  else if (hat_Steuerzeichen(host) || hat_Steuerzeichen(nutzer) || hat_Steuerzeichen(passwort))
    grund_ = kSteuerzeichen;
  else if (!ist_Host(host))
    grund_ = kHost;
  if (!grund_.empty()) return 0;
  auto neu = std::make_unique<Verbindung>(fristen_);
  const CURLcode fehler = neu->anmelden(host, nutzer, passwort);
  grund_ = satz(fehler, neu->antwort());
  if (!grund_.empty()) return 0;
  griffe_.emplace(naechster_, std::move(neu));
  return naechster_++;
}

CurlFtp::Verbindung* CurlFtp::verbindung(Griff hFtp) const {
  const auto offen = griffe_.find(hFtp);
  return offen == griffe_.end() ? nullptr : offen->second.get();
}

bool CurlFtp::FtpPutFileA(Griff hFtp, const std::string& lokal, const std::string& entfernt,
                          int modus) {
  grund_.clear();
  std::string bytes;
  Verbindung* const offen = verbindung(hFtp);
  if (offen == nullptr) {
    grund_ = kKein_Griff;
  } else if (const int fehler = platte::lies(lokal, bytes); fehler != 0) {
    grund_ = "The local file can't be read: " + platte::grund(fehler);
  } else {
    if (modus == ASCII) bytes = mit_LF(bytes);
    const CURLcode nummer = offen->sende(entfernt, bytes, modus == ASCII);
    grund_ = satz(nummer, offen->antwort());
  }
  return grund_.empty();
}

bool CurlFtp::InternetCloseHandle(Griff griff) {
  grund_.clear();
  if (griffe_.erase(griff) == 0) grund_ = kKein_Griff;
  return grund_.empty();
}

int CurlFtp::URLDownloadToFileA(const std::string& adresse, const std::string& lokal) {
  std::string bytes;
  Verbindung server(fristen_);
  CURLcode fehler = CURLE_OK;
  if (!ist_eindeutig(adresse))
    fehler = CURLE_URL_MALFORMAT;
  else if (nennt_Ordner(adresse))
    fehler = CURLE_REMOTE_FILE_NOT_FOUND;
  else
    fehler = server.hole(ohne_Leerzeichen(adresse), bytes);
  grund_ = satz(fehler, server.antwort());
  if (fehler != CURLE_OK) return fehler;
  const int platz = platte::ersetze(lokal, bytes, false, true);
  if (platz == 0) return 0;
  grund_ = "The local copy can't be written: " + platte::grund(platz);
  return CURLE_WRITE_ERROR;
}

}  // namespace polarkreis
