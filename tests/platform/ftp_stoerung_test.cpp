#include "platform/ftp_platz.h"

using namespace polarkreis;

namespace {

struct FtpStoerung : Ftp {};

}  // namespace

TEST_F(FtpStoerung, MissingFolderIsNotMade) {
  const FtpGegenstelle server;
  ASSERT_TRUE(server.bereit());
  EXPECT_FALSE(hoch(ftp, server, "a"));
  EXPECT_EQ(server.wurzel().namen(), std::vector<std::string>{});
  EXPECT_EQ(server.anzahl("MKD"), 0);
  expect_Kopie_bleibt(ftp, server);
  expect_nennt(ftp, "not on the server");
}

TEST_F(FtpStoerung, WrongAccountGetsNoConnection) {
  const FtpGegenstelle server;
  ASSERT_TRUE(server.bereit());
  server.wurzel().schreib(kEinstellung, "new");
  const FtpKlient::Griff internet = ftp.InternetOpenA("FTP");
  EXPECT_EQ(ftp.InternetConnectA(internet, server.host(), server.nutzer(), "falsch"), 0);
  expect_nennt(ftp, "user and password");
  EXPECT_EQ(ftp.grund().find("falsch"), std::string::npos);
  EXPECT_EQ(ftp.InternetConnectA(internet, server.host(), "", ""), 0);
  ordner.schreib("kopie", kFrueher);
  EXPECT_NE(ftp.URLDownloadToFileA("ftp://monitor:falsch@" + server.host() + "/" + kEinstellung,
                                   ordner.pfad("kopie")),
            0);
  expect_nennt(ftp, "user and password");
  EXPECT_EQ(ordner.lies("kopie"), kFrueher);
}

TEST_F(FtpStoerung, FolderIsNoFile) {
  const FtpGegenstelle server;
  ASSERT_TRUE(server.bereit());
  server.wurzel().schreib(kEinstellung, "new");
  for (const std::string& pfad : {kOrdner + "/", kOrdner, std::string(), kOrdner + "/#x"})
    expect_Kopie_bleibt(ftp, server, pfad);
  EXPECT_EQ(server.anzahl("LIST") + server.anzahl("NLST"), 0);
}

// A wait of the library's own is two minutes each: all of them together outlast the test's limit.
TEST_F(FtpStoerung, ClosingDoesNotWaitForTheServersGoodbye) {
  constexpr int kMal = 3;
  const FtpGegenstelle server({"--mute", "QUIT"});
  ASSERT_TRUE(server.bereit());
  server.wurzel().schreib("a", "new");
  for (int n = 0; n < kMal; ++n) {
    EXPECT_TRUE(ftp.InternetCloseHandle(verbinde(ftp, server)));
    EXPECT_EQ(herunter(ftp, server, "a"), 0);
  }
  EXPECT_TRUE(server.warte_auf("QUIT", 2 * kMal));
}

TEST_F(FtpStoerung, LocalFileThatCannotBeReadIsNotSent) {
  const FtpGegenstelle server;
  ASSERT_TRUE(server.bereit());
  const FtpKlient::Griff griff = verbinde(ftp, server);
  EXPECT_FALSE(ftp.FtpPutFileA(griff, ordner.pfad("absent"), "/a", FtpKlient::ASCII));
  expect_nennt(ftp, "local file");
  EXPECT_FALSE(ftp.FtpPutFileA(griff, ordner.pfad(), "/a", FtpKlient::ASCII));
  EXPECT_EQ(server.anzahl("STOR"), 0);
  ordner.schreib("lokal", "a");
  EXPECT_TRUE(ftp.FtpPutFileA(griff, ordner.pfad("lokal"), "/a", FtpKlient::ASCII));
  EXPECT_EQ(ftp.grund(), "");
}

TEST_F(FtpStoerung, LocalCopyThatCannotBeWrittenIsAFailure) {
  const FtpGegenstelle server;
  ASSERT_TRUE(server.bereit());
  server.wurzel().schreib("a", "new");
  EXPECT_NE(ftp.URLDownloadToFileA(adresse(server, "a"), ordner.pfad("absent/kopie")), 0);
  expect_nennt(ftp, "local copy");
  ordner.schreib("kopie", kFrueher);
  ::chmod(ordner.pfad("kopie").c_str(), 0400);
  EXPECT_NE(herunter(ftp, server, "a"), 0);
  EXPECT_EQ(ordner.lies("kopie"), kFrueher);
}

TEST_F(FtpStoerung, ServerThatRefusesSaysWhy) {
  const FtpGegenstelle lesbar({"--read-only"});
  const FtpGegenstelle voll({"--answer", "STOR", "552 Quota exceeded"});
  const FtpGegenstelle fremd({"--answer", "EPSV", "500 ?", "--answer", "PASV", "500 ?"});
  const FtpGegenstelle besetzt({"--answer", "USER", "421 Too many connections"});
  ASSERT_TRUE(lesbar.bereit() && voll.bereit() && fremd.bereit() && besetzt.bereit());
  ordner.schreib("lokal", "a");
  const auto grund = [&](const FtpGegenstelle& server) {
    EXPECT_FALSE(
        ftp.FtpPutFileA(verbinde(ftp, server), ordner.pfad("lokal"), "/a", FtpKlient::ASCII));
    EXPECT_FALSE(server.wurzel().da("a"));
    expect_ohne_Konto(ftp.grund(), server);
    return ftp.grund();
  };
  EXPECT_NE(grund(lesbar).find("may not write"), std::string::npos) << ftp.grund();
  EXPECT_NE(grund(voll).find("no space"), std::string::npos) << ftp.grund();
  EXPECT_NE(grund(fremd).find("makes no sense"), std::string::npos) << ftp.grund();
  EXPECT_EQ(verbinde(ftp, besetzt), 0);
  expect_nennt(ftp, "too many");
  expect_Kopie_bleibt(ftp, besetzt);
  expect_nennt(ftp, "too many");
}

TEST_F(FtpStoerung, DownloadEndsAtSixteenMebibytes) {
  const FtpGegenstelle server;
  const FtpGegenstelle ohne_Groesse({"--answer", "SIZE", "500 ?"});
  ASSERT_TRUE(server.bereit() && ohne_Groesse.bereit());
  const std::string grenze(std::size_t{16} << 20, 'x');
  for (const FtpGegenstelle* s : {&server, &ohne_Groesse}) {
    s->wurzel().schreib("a", grenze);
    EXPECT_EQ(herunter(ftp, *s, "a"), 0) << ftp.grund();
    EXPECT_TRUE(ordner.lies("kopie") == grenze);
    s->wurzel().schreib("a", grenze + "x");
    expect_Kopie_bleibt(ftp, *s, "a");
    expect_nennt(ftp, "16 MiB");
  }
}

TEST_F(FtpStoerung, NoServerIsNoConnection) {
  FtpGegenstelle server;
  ASSERT_TRUE(server.bereit());
  server.ende();
  EXPECT_EQ(verbinde(ftp, server), 0);
  expect_nennt(ftp, "no connection");
  expect_Kopie_bleibt(ftp, server);
}

TEST_F(FtpStoerung, ServerThatGoesBetweenTwoUploadsFailsTheSecond) {
  FtpGegenstelle server;
  ASSERT_TRUE(server.bereit());
  ordner.schreib("lokal", "a");
  const FtpKlient::Griff griff = verbinde(ftp, server);
  EXPECT_TRUE(ftp.FtpPutFileA(griff, ordner.pfad("lokal"), "/1", FtpKlient::ASCII));
  server.ende();
  EXPECT_FALSE(ftp.FtpPutFileA(griff, ordner.pfad("lokal"), "/2", FtpKlient::ASCII));
  expect_ohne_Konto(ftp.grund(), server);
  EXPECT_TRUE(ftp.InternetCloseHandle(griff));
  const FtpGegenstelle neu;
  ASSERT_TRUE(neu.bereit());
  EXPECT_TRUE(hoch(ftp, neu, "a", "/a"));
}

TEST_F(FtpStoerung, UploadThatBreaksOffFailsAndTheNextOneWorks) {
  const std::string gross = zeilen(300000, "\r\n");
  for (const std::string wann : {"0", "1000", "100000"}) {
    SCOPED_TRACE(wann);
    const FtpGegenstelle server({"--die-after", wann, "--times", "1", "--raw"});
    ASSERT_TRUE(server.bereit());
    ordner.schreib("lokal", gross);
    const FtpKlient::Griff griff = verbinde(ftp, server);
    EXPECT_FALSE(ftp.FtpPutFileA(griff, ordner.pfad("lokal"), "/a", FtpKlient::ASCII));
    expect_nennt(ftp, "broke off");
    expect_ohne_Konto(ftp.grund(), server);
    EXPECT_EQ(server.wurzel().lies("a"), gross.substr(0, std::stoul(wann)));
    EXPECT_TRUE(ftp.FtpPutFileA(griff, ordner.pfad("lokal"), "/a", FtpKlient::ASCII));
    EXPECT_TRUE(server.wurzel().lies("a") == gross);
    EXPECT_EQ(server.anzahl("USER"), 2);
  }
}

TEST_F(FtpStoerung, DownloadThatBreaksOffLeavesTheEarlierCopy) {
  const std::string gross = zeilen(100000, "\r\n");
  for (const std::string wann : {"0", "1000", "100000"})
    for (const std::string groesse : {"213 1488890", "500 ?"}) {
      SCOPED_TRACE(wann + " " + groesse);
      const FtpGegenstelle server(
          {"--die-after", wann, "--times", "1", "--answer", "SIZE", groesse});
      ASSERT_TRUE(server.bereit());
      server.wurzel().schreib(kEinstellung, gross);
      ASSERT_EQ(gross.size(), 1488890U);
      expect_Kopie_bleibt(ftp, server);
      expect_nennt(ftp, "broke off");
      EXPECT_EQ(herunter(ftp, server), 0) << ftp.grund();
      EXPECT_TRUE(ordner.lies("kopie") == gross);
    }
}

TEST_F(FtpStoerung, SilentServerEndsTheWait) {
  const FtpGegenstelle server({"--stall"});
  ASSERT_TRUE(server.bereit());
  EXPECT_EQ(verbinde(ungeduldig, server), 0);
  expect_nennt(ungeduldig, "in time");
  expect_Kopie_bleibt(ungeduldig, server);
  expect_nennt(ungeduldig, "in time");
}

TEST_F(FtpStoerung, TransferThatStopsEndsTheWait) {
  CurlFtp klient({20, 1});
  const FtpGegenstelle server({"--stall-after", "5000"});
  ASSERT_TRUE(server.bereit());
  server.wurzel().schreib(kEinstellung, zeilen(1000, "\r\n"));
  expect_Kopie_bleibt(klient, server);
  expect_nennt(klient, "in time");
  for (const int anzahl : {1000, 1000000}) {
    ordner.schreib("lokal", zeilen(anzahl, "\r\n"));
    EXPECT_FALSE(klient.FtpPutFileA(verbinde(klient, server), ordner.pfad("lokal"), "/a", BINAER));
    expect_nennt(klient, "in time");
    EXPECT_EQ(server.wurzel().lies("a"), zeilen(1000, "\r\n").substr(0, 5000));
  }
}

TEST_F(FtpStoerung, ServerThatForgetsAnAnswerEndsTheWait) {
  CurlFtp klient({20, 1});
  for (const std::string befehl : {"STOR", "RETR", "EPSV"}) {
    SCOPED_TRACE(befehl);
    const FtpGegenstelle server({"--mute", befehl});
    ASSERT_TRUE(server.bereit());
    server.wurzel().schreib(kEinstellung, "new");
    if (befehl != "STOR") expect_Kopie_bleibt(klient, server);
    EXPECT_EQ(hoch(klient, server, "a", "/a"), befehl == "RETR");
  }
}
