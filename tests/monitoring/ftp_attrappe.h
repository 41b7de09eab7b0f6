#pragma once

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "monitoring/ftp_klient.h"

/// An FTP client without a network: it keeps every call as a line of text, takes what is sent, and
/// gives what a test has laid ready.
class FtpAttrappe : public polarkreis::FtpKlient {
 public:
  /// The calls in their order, arguments parted by blanks; handles count from 1.
  std::vector<std::string> rufe;
  /// What an address gives; any other address is error `fehler`.
  std::map<std::string, std::string> ferne;
  /// What the files held when they were sent, by their remote path.
  std::map<std::string, std::string> gesendet;
  /// The handles that are open.
  std::set<Griff> offene;

  bool ohne_Internet = false;    ///< no library
  bool ohne_Verbindung = false;  ///< no server, or it refuses the account
  bool lehnt_ab = false;         ///< the server takes no file
  int fehler = 78;

  Griff InternetOpenA(std::string_view agent) override {
    rufe.push_back("InternetOpenA " + std::string(agent));
    return ohne_Internet ? misslungen() : oeffne();
  }
  Griff InternetConnectA(Griff hInternet, const std::string& host, const std::string& nutzer,
                         const std::string& passwort) override {
    rufe.push_back("InternetConnectA " + std::to_string(hInternet) + " " + host + " " + nutzer +
                   " " + passwort);
    return ohne_Verbindung || hInternet == 0 ? misslungen() : oeffne();
  }
  bool FtpPutFileA(Griff hFtp, const std::string& lokal, const std::string& entfernt,
                   int modus) override {
    rufe.push_back("FtpPutFileA " + std::to_string(hFtp) + " " + lokal + " " + entfernt + " " +
                   std::to_string(modus));
    if (lehnt_ab || !offene.contains(hFtp)) return misslungen() != 0;
    std::ifstream datei(lokal, std::ios::binary);
    if (!datei) return misslungen() != 0;
    gesendet[entfernt] = {std::istreambuf_iterator<char>(datei), std::istreambuf_iterator<char>()};
    grund_.clear();
    return true;
  }
  bool InternetCloseHandle(Griff griff) override {
    rufe.push_back("InternetCloseHandle " + std::to_string(griff));
    return offene.erase(griff) == 1;
  }
  int URLDownloadToFileA(const std::string& adresse, const std::string& lokal) override {
    rufe.push_back("URLDownloadToFileA " + adresse + " " + lokal);
    const auto gefunden = ferne.find(adresse);
    if (gefunden == ferne.end()) {
      misslungen();
      return fehler;
    }
    std::ofstream(lokal, std::ios::binary)
        .write(gefunden->second.data(), static_cast<std::streamsize>(gefunden->second.size()));
    grund_.clear();
    return 0;
  }
  std::string grund() const override { return grund_; }

  /// The calls that begin with this word.
  std::vector<std::string> rufe_von(std::string_view name) const {
    std::vector<std::string> treffer;
    for (const std::string& ruf : rufe)
      if (ruf.starts_with(name)) treffer.push_back(ruf);
    return treffer;
  }

 private:
  Griff oeffne() {
    grund_.clear();
    offene.insert(++letzter_);
    return letzter_;
  }
  Griff misslungen() {
    grund_ = "The stand-in refuses.";
    return 0;
  }
  Griff letzter_ = 0;
  std::string grund_;
};
