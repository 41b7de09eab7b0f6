#include <filesystem>

#include "monitorplatz.h"
#include "support/ftp_gegenstelle.h"

namespace {

using namespace monitor_platz;

constexpr const char* kRegeldatei =
    "\"c1=tc;\"\r\n\"ro=  ;\"\r\n\"c2=  "
    ";\"\r\n\"cm=3;\"\r\n\"vl=45;\"\r\n\"ti=10;\"\r\n\"nt=3;\"\r\n"
    "\"en=1;\"\r\n";
constexpr const char* kLeereRegeldatei =
    "\"c1=;\"\r\n\"ro=;\"\r\n\"c2=;\"\r\n\"cm=3;\"\r\n\"vl=;\"\r\n\"ti=;\"\r\n\"nt=3;\"\r\n"
    "\"en=0;\"\r\n";
constexpr const char* kOrdner = "html/monitoring/K17/";

/// A data folder with the plant K17 in row 1, and what the operator's account file says.
struct MonitorTransfer : testing::Test {
  Datenkopie daten;
  Anlagenregister r;

  void SetUp() override {
    const Argumente texte{"K17",    "Kühlhaus 3",  "Hafenstraße", "7",           "",    "52062",
                          "Aachen", "R744",        "12",          "3",           "4",   "+49 1",
                          "",       "a@b.example", "10.0.0.9",    "own.example", "ich", "s3cret"};
    for (std::size_t s = 0; s < texte.size(); ++s) r(1, static_cast<int>(s) + 1) = texte[s];
    r(1, 19) = "ftp + SMS2";
    r(1, Anlagenregister::Server_Wahl) = "1";
    r(1, Anlagenregister::erste_Regel) = kRegel;
    r.schreib(daten);
  }
  void konto(const std::string& host, const std::string& passwort = "geheim") const {
    daten.schreib("ftp_default.ini", "\"192.0.2.7\"\r\n\"" + host + "\"\r\n\"monitor\"\r\n\"" +
                                         passwort + "\"\r\n\"html/monitoring\"\r\n");
  }
  Antwort rufe(Argumente argumente) const {
    argumente.insert(argumente.begin(), "monitor");
    return daten.rufe(argumente);
  }
  std::string registertext() const { return daten.lies(Anlagenregister::datei); }
  /// The settings record as it goes out; the four texts are the server's.
  static std::string satz(const std::string& ip, const std::string& dr, const std::string& us,
                          const std::string& pw, const std::string& nt = "10") {
    std::string text;
    for (const std::string& zeile :
         {std::string("nm=Kühlhaus 3"), std::string("st=Hafenstraße"), std::string("nu=7"),
          std::string("ad="), std::string("co=52062"), std::string("tw=Aachen"),
          std::string("fn=R744"), std::string("th=12"), std::string("pu=3"), std::string("pd=4"),
          std::string("s1=+49 1"), std::string("s2="), std::string("ml=a@b.example"), "ip=" + ip,
          "dr=" + dr, "us=" + us, "pw=" + pw, "nt=" + nt})
      text += "\"" + zeile + ";\"\r\n";
    return text;
  }
  /// A text as the server keeps what came in the mode that fits its line ends.
  static std::string beim_Server(std::string text) {
    std::erase(text, '\r');
    return text;
  }
  /// Neither the account's password nor the plant's stands where it could be found later.
  void keine_Passwoerter(const Antwort& a) const {
    for (const char* passwort : {"geheim", "s3cret"})
      EXPECT_FALSE(enthaelt(a.ausgabe + a.fehler + daten.lies("log/polarkreis.log"), passwort));
  }
};

/// With a server that has the plant's folder.
struct MonitorServer : MonitorTransfer {
  FtpGegenstelle server;
  void SetUp() override {
    ASSERT_TRUE(server.bereit()) << "the FTP server for tests doesn't start";
    MonitorTransfer::SetUp();
    std::filesystem::create_directories(server.wurzel().pfad(kOrdner));
    konto(server.host());
  }
  std::string dort(const std::string& name) const { return server.wurzel().lies(kOrdner + name); }
  void lege_dort(const std::string& name, const std::string& text) const {
    server.wurzel().schreib(kOrdner + name, text);
  }
};

// --- upload

TEST_F(MonitorServer, UploadSendsSettingsAndSixteenRules) {
  const Antwort a = rufe({"upload", "K17"});
  EXPECT_EQ(a.status, 0) << a.fehler;
  const std::string soll = satz("192.0.2.7", server.host(), "monitor", "geheim");
  EXPECT_EQ(dort("K17SETTINGS"), beim_Server(soll));
  EXPECT_EQ(daten.lies("FMD_Temp/K17SETTINGS"), soll);
  EXPECT_EQ(zugriff(daten.pfad("FMD_Temp/K17SETTINGS")), 0600);
  EXPECT_EQ(zugriff(daten.pfad("FMD_Temp")), 0700);
  EXPECT_EQ(dort("K17ALERT1"), beim_Server(kRegeldatei));
  for (int i = 2; i <= 16; ++i)
    EXPECT_EQ(dort("K17ALERT" + std::to_string(i)), beim_Server(kLeereRegeldatei)) << i;
  EXPECT_FALSE(server.wurzel().da(std::string(kOrdner) + "K17ALERT17"));
  EXPECT_EQ(server.anzahl("STOR"), 17);
  EXPECT_TRUE(enthaelt(a.ausgabe, "/html/monitoring/K17/K17ALERT16")) << a.ausgabe;
  EXPECT_EQ(registertext(), r.text());
  keine_Passwoerter(a);
}

TEST_F(MonitorServer, UploadSendsOnePartAlone) {
  EXPECT_EQ(rufe({"upload", "K17", "settings"}).status, 0);
  EXPECT_EQ(server.anzahl("STOR"), 1);
  const Antwort a = rufe({"upload", "K17", "rules", "--json"});
  EXPECT_EQ(server.anzahl("STOR"), 17);
  const json transfers = a.json()["transfers"];
  ASSERT_EQ(transfers.size(), 16U);
  EXPECT_EQ(transfers[15]["file"], "K17ALERT16");
  EXPECT_EQ(transfers[15]["remote"], "/html/monitoring/K17/K17ALERT16");
  EXPECT_EQ(transfers[15]["good"], true);
}

TEST_F(MonitorServer, TheOwnServerIsToldInTheRecordAndTheDefaultOneIsUsed) {
  r(1, Anlagenregister::Server_Wahl) = "2";
  r(1, 19) = "";
  r.schreib(daten);
  EXPECT_EQ(rufe({"upload", "K17", "settings"}).status, 0);
  EXPECT_EQ(dort("K17SETTINGS"),
            beim_Server(satz("10.0.0.9", "own.example", "ich", "s3cret", "15")));
}

TEST_F(MonitorServer, AMissingFolderFailsAndIsNotMade) {
  std::filesystem::remove_all(server.wurzel().pfad(kOrdner));
  const Antwort a = rufe({"upload", "K17", "settings", "--json"});
  EXPECT_EQ(a.status, 1);
  EXPECT_TRUE(enthaelt(a.fehler, "K17SETTINGS was not uploaded: ")) << a.fehler;
  EXPECT_EQ(a.json()["transfers"][0]["good"], false);
  EXPECT_NE(a.json()["transfers"][0]["reason"], "");
  EXPECT_FALSE(server.wurzel().da(kOrdner));
  keine_Passwoerter(a);
}

TEST_F(MonitorServer, AWrongPasswordIsToldWithoutIt) {
  konto(server.host(), "wr0ng");
  for (const char* weg : {"upload", "download"}) {
    const Antwort a = rufe({weg, "K17", "settings"});
    EXPECT_EQ(a.status, 1) << weg;
    EXPECT_TRUE(enthaelt(a.fehler, "K17SETTINGS was not ")) << a.fehler;
    EXPECT_FALSE(enthaelt(a.ausgabe + a.fehler, "wr0ng"));
  }
  EXPECT_FALSE(server.wurzel().da(std::string(kOrdner) + "K17SETTINGS"));
}

TEST_F(MonitorServer, TheLogIsPrintedOnlyWhenAskedFor) {
  const Antwort a = rufe({"upload", "K17", "settings", "--log"});
  EXPECT_EQ(a.status, 0) << a.fehler;
  EXPECT_TRUE(enthaelt(a.fehler,
                       "ftp://monitor:geheim@" + server.host() + "/html/monitoring/K17/K17_INS\n"))
      << a.fehler;
  EXPECT_TRUE(enthaelt(a.fehler, "\nUpload = 1\n")) << a.fehler;
  EXPECT_FALSE(enthaelt(a.ausgabe, "geheim"));
  EXPECT_FALSE(enthaelt(daten.lies("log/polarkreis.log"), "geheim"));
}

// --- download

TEST_F(MonitorServer, DownloadShowsWhatTheServerHasAndStoresNothing) {
  lege_dort("K17SETTINGS", "\"nm=New name;\"\n\n\"xx=1;\"\n\"pw=0ther;\"\n\"nt=3;\"\n");
  lege_dort("K17ALERT1", "\"c1=po;\"\n\"vl=2;\"\n\"en=1;\"\n\n\"vl=9;\"\n");
  for (int i = 2; i <= 16; ++i)
    lege_dort("K17ALERT" + std::to_string(i), "\"ti=" + std::to_string(i) + ";\"\n");
  const Antwort a = rufe({"download", "K17", "--json"});
  EXPECT_EQ(a.status, 0) << a.fehler;
  const json fund = a.json();
  EXPECT_EQ(fund["settings"]["nm"], "New name");
  EXPECT_EQ(fund["settings"]["tw"], "Aachen");
  EXPECT_EQ(fund["settings"]["pw"], "********");
  EXPECT_EQ(fund["settings"]["nt_number"], 3);
  EXPECT_EQ(fund["rules"][0]["c1"], "po");
  EXPECT_EQ(fund["rules"][0]["vl"], "2");
  EXPECT_EQ(fund["rules"][0]["packed"], "c1=po;ro=  ;c2=  ;cm=3;vl=2;ti=10;nt=3;en=1;");
  EXPECT_EQ(fund["rules"][15]["ti"], "16");
  EXPECT_EQ(fund["transfers"].size(), 17U);
  EXPECT_EQ(fund["transfers"][0]["shown"], "server");
  EXPECT_EQ(fund["saved"], false);
  EXPECT_EQ(registertext(), r.text());
  const Antwort tabelle = rufe({"download", "K17"});
  EXPECT_TRUE(enthaelt(tabelle.ausgabe, "New name")) << tabelle.ausgabe;
  EXPECT_TRUE(enthaelt(tabelle.ausgabe, "po > 2 for 10 min: SMS + E-Mail")) << tabelle.ausgabe;
  EXPECT_FALSE(enthaelt(tabelle.ausgabe, "0ther"));
  EXPECT_TRUE(enthaelt(rufe({"download", "K17", "settings", "--password"}).ausgabe, "0ther"));
  keine_Passwoerter(a);
}

TEST_F(MonitorServer, DownloadStoresWithSave) {
  lege_dort("K17SETTINGS", "\"nm=New name;\"\n\"nt=3;\"\n");
  const Antwort a = rufe({"download", "K17", "settings", "--save"});
  EXPECT_EQ(a.status, 0) << a.fehler;
  EXPECT_TRUE(enthaelt(a.ausgabe, "Saved: K17")) << a.ausgabe;
  r(1, 2) = "New name";
  r(1, 19) = "SMS1 + SMS2";
  EXPECT_EQ(registertext(), r.text());
}

TEST_F(MonitorServer, SixteenRulesComeBackAsTheyWent) {
  for (int i = 1; i <= 16; ++i)
    r(1, Anlagenregister::erste_Regel + i - 1) =
        "c1=tin1;ro=-;c2=tout1;cm=1;vl=" + std::to_string(i) +
        ";ti=5;nt=1;en=" + std::to_string(i % 2) + ";";
  r.schreib(daten);
  EXPECT_EQ(rufe({"upload", "K17"}).status, 0);
  Anlagenregister leer;
  leer(1, 1) = "K17";
  leer(1, Anlagenregister::Server_Wahl) = "1";
  leer.schreib(daten);
  std::filesystem::remove_all(daten.pfad("FMD_Temp"));
  const Antwort a = rufe({"download", "K17", "rules", "--save", "--json"});
  EXPECT_EQ(a.status, 0) << a.fehler;
  EXPECT_EQ(a.json()["saved"], true);
  for (int i = 1; i <= 16; ++i) {
    const int spalte = Anlagenregister::erste_Regel + i - 1;
    leer(1, spalte) = r(1, spalte);
  }
  EXPECT_EQ(registertext(), leer.text());
}

TEST_F(MonitorServer, AnEarlierCopyIsToldAndNeverStored) {
  lege_dort("K17SETTINGS", "\"nm=Yesterday;\"\n");
  EXPECT_EQ(rufe({"download", "K17", "settings"}).status, 0);
  std::filesystem::remove(server.wurzel().pfad(std::string(kOrdner) + "K17SETTINGS"));
  const Antwort a = rufe({"download", "K17", "settings", "--save", "--json"});
  EXPECT_EQ(a.status, 1);
  EXPECT_TRUE(enthaelt(a.fehler, "What is shown is an earlier copy")) << a.fehler;
  EXPECT_TRUE(enthaelt(a.fehler, "Nothing was stored")) << a.fehler;
  EXPECT_EQ(a.json()["settings"]["nm"], "Yesterday");
  EXPECT_EQ(a.json()["transfers"][0]["shown"], "earlier copy");
  EXPECT_EQ(a.json()["saved"], false);
  EXPECT_EQ(registertext(), r.text());
}

TEST_F(MonitorServer, OneMissingRuleKeepsTheWholePlantFromBeingStored) {
  lege_dort("K17SETTINGS", "\"nm=New name;\"\n");
  for (int i = 1; i <= 15; ++i) lege_dort("K17ALERT" + std::to_string(i), "\"ti=1;\"\n");
  const Antwort a = rufe({"download", "K17", "--save", "--json"});
  EXPECT_EQ(a.status, 1);
  EXPECT_TRUE(enthaelt(a.fehler, "K17ALERT16 was not downloaded")) << a.fehler;
  EXPECT_FALSE(enthaelt(a.fehler, "K17ALERT15"));
  EXPECT_TRUE(enthaelt(a.fehler, "There is no earlier copy either")) << a.fehler;
  EXPECT_EQ(a.json()["transfers"][16]["shown"], "register");
  EXPECT_EQ(registertext(), r.text());
}

TEST_F(MonitorServer, ADeadServerIsToldForEachFile) {
  server.ende();
  const Antwort hinauf = rufe({"upload", "K17"});
  EXPECT_EQ(hinauf.status, 1);
  for (const char* datei : {"K17SETTINGS", "K17ALERT1 ", "K17ALERT16"})
    EXPECT_TRUE(enthaelt(hinauf.fehler, datei)) << hinauf.fehler;
  const Antwort herunter = rufe({"download", "K17"});
  EXPECT_EQ(herunter.status, 1);
  EXPECT_TRUE(enthaelt(herunter.fehler, "earlier copy")) << herunter.fehler;
  EXPECT_TRUE(enthaelt(herunter.ausgabe, "Kühlhaus 3"));
  keine_Passwoerter(hinauf);
  keine_Passwoerter(herunter);
  EXPECT_EQ(registertext(), r.text());
}

// --- no account

TEST_F(MonitorTransfer, APlantWithoutServerChoiceHasNoAccount) {
  konto("127.0.0.1:1");
  r(1, Anlagenregister::Server_Wahl) = "";
  r.schreib(daten);
  for (const char* weg : {"upload", "download"}) {
    const Antwort a = rufe({weg, "K17"});
    EXPECT_EQ(a.status, 1);
    EXPECT_TRUE(enthaelt(a.fehler, "monitor set \"K17\" server=1")) << a.fehler;
  }
  EXPECT_EQ(rufe({"set", "K17", "server=1"}).status, 0);
  EXPECT_FALSE(enthaelt(rufe({"upload", "K17", "settings"}).fehler, "server=1"));
}

TEST_F(MonitorTransfer, AnEmptyAccountNamesItsFileAndIsNotMade) {
  const Antwort ohne = rufe({"upload", "K17"});
  EXPECT_EQ(ohne.status, 1);
  EXPECT_TRUE(enthaelt(ohne.fehler, daten.pfad("ftp_default.ini"))) << ohne.fehler;
  EXPECT_FALSE(daten.da("ftp_default.ini"));
  daten.schreib("ftp_default.ini", "\"\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n");
  EXPECT_TRUE(enthaelt(rufe({"download", "K17"}).fehler, "ftp_default.ini"));
}

TEST_F(MonitorTransfer, AnAccountThatCantBeReadIsNotCalledEmpty) {
  daten.schreib("ftp_default.ini/a file", "x");
  const Antwort a = rufe({"upload", "K17"});
  EXPECT_EQ(a.status, 1);
  EXPECT_TRUE(enthaelt(a.fehler, "can't be read")) << a.fehler;
}

TEST_F(MonitorTransfer, AnAccountThatOthersCanReadIsTold) {
  konto("127.0.0.1:1");
  std::filesystem::permissions(daten.pfad("ftp_default.ini"), std::filesystem::perms(0640));
  EXPECT_TRUE(enthaelt(rufe({"upload", "K17", "settings"}).fehler, "chmod 600"));
  std::filesystem::permissions(daten.pfad("ftp_default.ini"), std::filesystem::perms(0600));
  EXPECT_FALSE(enthaelt(rufe({"upload", "K17", "settings"}).fehler, "chmod 600"));
}

TEST_F(MonitorTransfer, AnIDThatBreaksAnAddressIsNotDownloaded) {
  konto("127.0.0.1:1");
  for (const char* id : {"K%41", "K#1", "K?", "K@h", "K;type=d"}) {
    r(1, 1) = id;
    r.schreib(daten);
    const Antwort a = rufe({"download", id, "settings"});
    EXPECT_EQ(a.status, 1);
    EXPECT_TRUE(enthaelt(a.fehler, "another file")) << a.fehler;
  }
  r(1, 1) = "K17";
  r.schreib(daten);
  daten.schreib("ftp_default.ini", "\"\"\n\"127.0.0.1:1\"\n\"u\"\n\"p\"\n\"html/mo%41n\"\n");
  EXPECT_TRUE(enthaelt(rufe({"download", "K17"}).fehler, "The account's folder"));
}

TEST_F(MonitorTransfer, PlantsThatDifferByCapitalsOnlyAreNotTransferred) {
  konto("127.0.0.1:1");
  r(5, 1) = "k17";
  r(5, Anlagenregister::Server_Wahl) = "1";
  r.schreib(daten);
  for (const char* id : {"K17", "k17"}) {
    const Antwort a = rufe({"download", id, "settings"});
    EXPECT_EQ(a.status, 1);
    EXPECT_TRUE(enthaelt(a.fehler, "by capitals only")) << a.fehler;
    EXPECT_EQ(a.ausgabe, "");
  }
}

TEST_F(MonitorTransfer, ShowTellsWhereTransfersGoWithoutThePassword) {
  konto("ftp.example:2121");
  const Antwort a = rufe({"show", "K17", "--json", "--password"});
  EXPECT_EQ(a.json()["transfers"]["host"], "ftp.example:2121");
  EXPECT_EQ(a.json()["transfers"]["folder"], "html/monitoring");
  EXPECT_FALSE(enthaelt(a.ausgabe, "geheim"));
}

}  // namespace
