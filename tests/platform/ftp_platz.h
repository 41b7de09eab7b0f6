#pragma once

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>
#include <string>
#include <vector>

#include "platform/ftp.h"
#include "support/ftp_gegenstelle.h"
#include "support/temp_folder.h"

inline constexpr int BINAER = 2;
inline constexpr int kAdresse_unbrauchbar = 3;
inline const std::string kOrdner = "html/monitoring/K17";
inline const std::string kEinstellung = kOrdner + "/K17SETTINGS";
inline const std::string kFrueher = "\"nm=from an earlier transfer;\"\r\n";

/// A local folder, a client, and one that waits no longer than a second for a silent server.
struct Ftp : testing::Test {
  TempOrdner ordner;
  polarkreis::CurlFtp ftp{{20, 20}};
  polarkreis::CurlFtp ungeduldig{{1, 1}};

  static std::string adresse(const FtpGegenstelle& server, const std::string& pfad) {
    return "ftp://" + server.nutzer() + ":" + server.passwort() + "@" + server.host() + "/" + pfad;
  }
  static polarkreis::FtpKlient::Griff verbinde(polarkreis::FtpKlient& klient,
                                               const FtpGegenstelle& server) {
    return klient.InternetConnectA(klient.InternetOpenA("FTP"), server.host(), server.nutzer(),
                                   server.passwort());
  }
  static void lege_Ordner_an(const FtpGegenstelle& server) {
    std::filesystem::create_directories(server.wurzel().pfad(kOrdner));
  }

  /// Uploads over a connection of its own. Whether it worked; a reason holds no part of the
  /// account.
  bool hoch(polarkreis::FtpKlient& klient, const FtpGegenstelle& server, const std::string& inhalt,
            const std::string& entfernt = "/" + kEinstellung,
            int modus = polarkreis::FtpKlient::ASCII) const {
    ordner.schreib("lokal", inhalt);
    const polarkreis::FtpKlient::Griff internet = klient.InternetOpenA("FTP");
    const polarkreis::FtpKlient::Griff griff =
        klient.InternetConnectA(internet, server.host(), server.nutzer(), server.passwort());
    const bool gut = klient.FtpPutFileA(griff, ordner.pfad("lokal"), entfernt, modus);
    const std::string grund = klient.grund();
    EXPECT_EQ(gut, grund.empty());
    if (!gut) expect_ohne_Konto(grund, server);
    klient.InternetCloseHandle(griff);
    klient.InternetCloseHandle(internet);
    return gut;
  }
  int herunter(polarkreis::FtpKlient& klient, const FtpGegenstelle& server,
               const std::string& pfad = kEinstellung) const {
    return klient.URLDownloadToFileA(adresse(server, pfad), ordner.pfad("kopie"));
  }
  /// The download fails and leaves the copy of an earlier one as it was, and nothing beside it.
  void expect_Kopie_bleibt(polarkreis::FtpKlient& klient, const FtpGegenstelle& server,
                           const std::string& pfad = kEinstellung) const {
    ordner.schreib("kopie", kFrueher);
    const std::vector<std::string> vorher = ordner.namen();
    EXPECT_NE(herunter(klient, server, pfad), 0);
    EXPECT_EQ(ordner.lies("kopie"), kFrueher);
    EXPECT_EQ(ordner.namen(), vorher);
    expect_ohne_Konto(klient.grund(), server);
  }
  static void expect_ohne_Konto(const std::string& grund, const FtpGegenstelle& server) {
    EXPECT_TRUE(grund.ends_with(".")) << grund;
    for (const std::string& geheim :
         {server.nutzer(), server.passwort(), server.host(), std::string("K17")})
      EXPECT_EQ(grund.find(geheim), std::string::npos) << grund;
  }
  static void expect_nennt(const polarkreis::FtpKlient& klient, const std::string& teil) {
    EXPECT_NE(klient.grund().find(teil), std::string::npos) << klient.grund();
  }
  mode_t modus(const std::string& name) const {
    struct stat stand {};
    return ::stat(ordner.pfad(name).c_str(), &stand) == 0 ? stand.st_mode & 07777 : 0;
  }
};

inline std::string zeilen(int anzahl, const std::string& ende) {
  std::string text;
  for (int i = 0; i < anzahl; ++i) text += "\"line " + std::to_string(i) + ";\"" + ende;
  return text;
}
