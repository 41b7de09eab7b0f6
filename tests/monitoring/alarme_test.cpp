// The alarm rules of a plant: register, rule table, rule files.

#include <gtest/gtest.h>

#include "ftp_desk.h"

using namespace polarkreis;

namespace {

const std::string kLeer = "c1=;ro=;c2=;cm=3;vl=;ti=;nt=3;en=0;";
const std::string kVoll = "c1=tc;ro=  ;c2=  ;cm=3;vl=45;ti=10;nt=3;en=1;";
const std::array<std::string, Regelzeilen> kVolleRegel = {"ON", "tc", "  ", "  ",
                                                          ">",  "45", "10", "SMS + E-Mail"};

struct AlarmeTest : testing::Test, FtpDesk {
  AlarmeTest() { anlage(2, "K17"); }

  const std::string& gepackt(int i) const { return desk.FTPSpread.zelle(2, Regelspalte(i)); }
  Alarmregel& regel(int i) { return desk.AlertSpread[static_cast<std::size_t>(i - 1)]; }
  static std::string name(int i) { return "K17ALERT" + std::to_string(i); }
  static std::string dateitext(const std::string& packung) { return zeilen(Regel_teilen(packung)); }
  void fern(int i, const std::string& inhalt) { klient.ferne[adresse("K17", name(i))] = inhalt; }
};

}  // namespace

TEST_F(AlarmeTest, PageShowsThePackedRules) {
  desk.FTPSpread.setze(2, Regelspalte(1), kVoll);
  desk.FTPSpread.setze(2, Regelspalte(16), "en=1;c1=po;ro=-;c2=tSL;cm=2;vl=-1.5;ti=;nt=1;");
  desk.alerts_handle(1);
  EXPECT_EQ(regel(1).texte, kVolleRegel);
  EXPECT_EQ(regel(16).texte, (std::array<std::string, Regelzeilen>{"ON", "po", "-", "tSL",
                                                                   "<=", "-1.5", "", "SMS"}));
  EXPECT_EQ(klient.rufe, Zeilen{});
}

TEST_F(AlarmeTest, FirstRowIsTakenWhereNoneIsActive) {
  desk.FTPSpread.ActiveRow = 0;
  desk.FTPSpread.setze(1, Regelspalte(1), kVoll);
  desk.alerts_handle(1);
  EXPECT_EQ(regel(1).texte, kVolleRegel);
  regel(2)[Regelzeile::vl] = "7";
  desk.al_speich();
  EXPECT_EQ(desk.FTPSpread.zelle(1, Regelspalte(2)), "c1=;ro=;c2=;cm=3;vl=7;ti=;nt=3;en=0;");
}

TEST_F(AlarmeTest, PlantWithoutRulesShowsNoOtherPlantsRule) {
  desk.FTPSpread.setze(2, Regelspalte(3), kVoll);
  desk.alerts_handle(1);
  desk.FTPSpread.ActiveRow = 5;
  desk.alerts_handle(1);
  for (int i = 1; i <= Regelzahl; ++i)
    for (const std::string& text : regel(i).texte) EXPECT_EQ(text, "") << i;
}

TEST_F(AlarmeTest, TextBehindTheLastSemicolonIsNoItem) {
  desk.FTPSpread.setze(2, Regelspalte(1), "c1=tc;vl=45;6;xx=1;ti=10");
  desk.alerts_handle(1);
  EXPECT_EQ(regel(1)[Regelzeile::c1], "tc");
  EXPECT_EQ(regel(1)[Regelzeile::vl], "45");
  EXPECT_EQ(regel(1)[Regelzeile::ti], "");
}

TEST_F(AlarmeTest, StoringPacksAllSixteenIntoTheirColumns) {
  regel(1).texte = kVolleRegel;
  regel(16)[Regelzeile::en] = "ON";
  desk.al_speich();
  EXPECT_EQ(gepackt(1), kVoll);
  for (int i = 2; i <= 15; ++i) EXPECT_EQ(gepackt(i), kLeer) << i;
  EXPECT_EQ(gepackt(16), "c1=;ro=;c2=;cm=3;vl=;ti=;nt=3;en=1;");
  EXPECT_EQ(desk.FTPSpread.zelle(2, 39), "");
  EXPECT_EQ(desk.FTPSpread.zelle(2, 56), "");
  EXPECT_TRUE(desk.FTPSpread.ist_leer(1));
  EXPECT_EQ(desk.Alarmtexte[0], kVoll);
  EXPECT_FALSE(ordner.da("FMD_M_Global.ini"));
}

TEST_F(AlarmeTest, PackingInMemoryLeavesTheColumns) {
  desk.FTPSpread.setze(2, Regelspalte(1), "old");
  regel(1).texte = kVolleRegel;
  desk.alerts_handle(5);
  EXPECT_EQ(desk.Alarmtexte[0], kVoll);
  EXPECT_EQ(desk.Alarmtexte[15], kLeer);
  EXPECT_EQ(gepackt(1), "old");
  for (int i = 2; i <= Regelzahl; ++i) EXPECT_EQ(gepackt(i), "");
}

TEST_F(AlarmeTest, UploadStoresThenWritesAndSendsSixteenFiles) {
  regel(3).texte = kVolleRegel;
  desk.al_upload();
  EXPECT_EQ(gepackt(3), kVoll);
  EXPECT_EQ(gepackt(1), kLeer);
  EXPECT_EQ(lies("K17ALERT3"),
            "\"c1=tc;\"\r\n\"ro=  ;\"\r\n\"c2=  ;\"\r\n\"cm=3;\"\r\n\"vl=45;\"\r\n\"ti=10;\"\r\n"
            "\"nt=3;\"\r\n\"en=1;\"\r\n");
  for (int i = 1; i <= Regelzahl; ++i) {
    const std::string inhalt = dateitext(i == 3 ? kVoll : kLeer);
    EXPECT_EQ(lies(name(i)), inhalt) << i;
    EXPECT_EQ(klient.gesendet["/html/monitoring/K17/" + name(i)], inhalt) << i;
    EXPECT_EQ(modus(lokal(name(i))), 0600U);
  }
  EXPECT_EQ(klient.gesendet.size(), 16U);
  ASSERT_EQ(desk.Ergebnisse.size(), 16U);
  for (int i = 1; i <= Regelzahl; ++i) {
    EXPECT_TRUE(desk.Ergebnisse[static_cast<std::size_t>(i - 1)].gut);
    EXPECT_EQ(desk.Ergebnisse[static_cast<std::size_t>(i - 1)].Dateiname, name(i));
  }
}

TEST_F(AlarmeTest, SixteenFilesMakeSixteenProbesAndConnections) {
  desk.al_upload();
  Zeilen erwartet;
  for (int i = 1; i <= Regelzahl; ++i) {
    erwartet.push_back("URLDownloadToFileA " + adresse("K17", "K17_INS") + " " + lokal("K17_INS"));
    const int griff = 2 * i - 1;
    if (i > 1) {
      erwartet.push_back("InternetCloseHandle " + std::to_string(griff - 1));
      erwartet.push_back("InternetCloseHandle " + std::to_string(griff - 2));
    }
    erwartet.push_back("InternetOpenA FTP");
    erwartet.push_back("InternetConnectA " + std::to_string(griff) + " ftp.example op secret");
    erwartet.push_back("FtpPutFileA " + std::to_string(griff + 1) + " " + lokal(name(i)) +
                       " /html/monitoring/K17/" + name(i) + " 1");
  }
  EXPECT_EQ(klient.rufe, erwartet);
  EXPECT_EQ(desk.ftp.List1.size(), 16U * 6U);
  EXPECT_EQ(klient.offene, (std::set<FtpKlient::Griff>{31, 32}));
}

TEST_F(AlarmeTest, UploadGoesToTheDefaultServerForTheOwnOneToo) {
  anlage(2, "K17", "2");
  desk.FTPSpread.setze(2, Registerspalte::dr, "mine.example");
  desk.al_upload();
  for (const std::string& ruf : klient.rufe_von("InternetConnectA"))
    EXPECT_NE(ruf.find("ftp.example op secret"), std::string::npos) << ruf;
}

TEST_F(AlarmeTest, FilesAreWrittenFromThePackedTexts) {
  desk.Alarmtexte.fill(kLeer);
  desk.Alarmtexte[4] = kVoll;
  desk.alerts_handle(3);
  EXPECT_EQ(lies("K17ALERT5"), dateitext(kVoll));
  EXPECT_EQ(lies("K17ALERT6"), dateitext(kLeer));
}

TEST_F(AlarmeTest, SemicolonTypedIntoTheLimitMakesALineMore) {
  regel(1)[Regelzeile::vl] = "45;6";
  desk.al_upload();
  EXPECT_EQ(lies("K17ALERT1"),
            "\"c1=;\"\r\n\"ro=;\"\r\n\"c2=;\"\r\n\"cm=3;\"\r\n\"vl=45;\"\r\n\"6;\"\r\n\"ti=;\"\r\n"
            "\"nt=3;\"\r\n\"en=0;\"\r\n");
  desk.alerts_handle(1);
  EXPECT_EQ(regel(1)[Regelzeile::vl], "45");
}

TEST_F(AlarmeTest, DownloadFillsTheTableAndLeavesTheColumns) {
  desk.FTPSpread.setze(2, Regelspalte(2), "old");
  for (int i = 1; i <= Regelzahl; ++i) fern(i, dateitext(i == 2 ? kVoll : kLeer));
  desk.al_download();
  EXPECT_EQ(regel(2).texte, kVolleRegel);
  EXPECT_EQ(regel(1).texte,
            (std::array<std::string, Regelzeilen>{"OFF", "", "", "", ">", "", "", "SMS + E-Mail"}));
  EXPECT_EQ(gepackt(2), "old");
  EXPECT_EQ(desk.Alarmtexte[1], kVoll);
  EXPECT_EQ(klient.rufe.size(), 32U);
  EXPECT_TRUE(klient.rufe_von("Internet").empty());
  ASSERT_EQ(desk.Ergebnisse.size(), 16U);
  for (const auto& ergebnis : desk.Ergebnisse) EXPECT_TRUE(ergebnis.gut);
  desk.al_speich();
  EXPECT_EQ(gepackt(2), kVoll);
}

TEST_F(AlarmeTest, MissingRuleFileLeavesItsColumn) {
  regel(1).texte = kVolleRegel;
  regel(2).texte = kVolleRegel;
  fern(2, zeile("vl=46;"));
  desk.al_download();
  EXPECT_EQ(regel(1).texte, kVolleRegel);
  auto geaendert = kVolleRegel;
  geaendert[5] = "46";
  EXPECT_EQ(regel(2).texte, geaendert);
  ASSERT_EQ(desk.Ergebnisse.size(), 16U);
  EXPECT_FALSE(desk.Ergebnisse[0].gut);
  EXPECT_TRUE(desk.Ergebnisse[1].gut);
  EXPECT_FALSE(ordner.da("FMD_Temp/K17ALERT1"));
  EXPECT_EQ(dialog.texte, Zeilen{});
}

TEST_F(AlarmeTest, EarlierCopyIsReadAsIfItWereNew) {
  ordner.schreib("FMD_Temp/K17ALERT7", dateitext(kVoll));
  desk.al_download();
  EXPECT_EQ(regel(7).texte, kVolleRegel);
  EXPECT_FALSE(desk.Ergebnisse.at(6).gut);
}

TEST_F(AlarmeTest, BlankLineEndsARuleFile) {
  for (const char* leer : {"\r\n", "\"\"\r\n", "  \n", "\"  \"\r\n"}) {
    regel(1).texte.fill("old");
    fern(1, "\"c1=tc;\"\r\n" + std::string(leer) + "\"vl=45;\"\r\n");
    desk.al_download();
    EXPECT_EQ(regel(1)[Regelzeile::c1], "tc");
    EXPECT_EQ(regel(1)[Regelzeile::vl], "old") << leer;
  }
}

TEST_F(AlarmeTest, RuleFileOfAnotherHandIsRead) {
  fern(1, "vl=5;\n\"xx=1;\"\n\"ti=7;8;\"\n\"c1=t\xFC;\"\n\"en=1;\"");
  desk.al_download();
  EXPECT_EQ(regel(1)[Regelzeile::vl], "5");
  EXPECT_EQ(regel(1)[Regelzeile::ti], "7");
  EXPECT_EQ(regel(1)[Regelzeile::c1], "tü");
  EXPECT_EQ(regel(1)[Regelzeile::en], "ON");
}

TEST_F(AlarmeTest, RuleThatCantBeWrittenIsNotSent) {
  ordner.schreib("FMD_Temp/K17ALERT4", "older copy");
  ::chmod(lokal("K17ALERT4").c_str(), 0400);
  desk.al_upload();
  EXPECT_EQ(klient.gesendet.size(), 15U);
  EXPECT_FALSE(klient.gesendet.contains("/html/monitoring/K17/K17ALERT4"));
  ASSERT_EQ(desk.Ergebnisse.size(), 16U);
  EXPECT_FALSE(desk.Ergebnisse[3].gut);
  EXPECT_NE(desk.Ergebnisse[3].grund, "");
  EXPECT_TRUE(desk.Ergebnisse[4].gut);
}

TEST_F(AlarmeTest, IDThatIsNoFileNameTouchesNothingOutside) {
  anlage(2, "../K17");
  ordner.schreib("K17ALERT1", dateitext(kVoll));
  desk.al_upload();
  desk.al_download();
  EXPECT_EQ(klient.rufe, Zeilen{});
  EXPECT_EQ(ordner.lies("K17ALERT1"), dateitext(kVoll));
  EXPECT_FALSE(ordner.da("K17ALERT2"));
  EXPECT_EQ(regel(1)[Regelzeile::vl], "");
}

TEST_F(AlarmeTest, TransfersTellTheirStepsAndCanBeStopped) {
  FtpFortschritt fortschritt;
  desk.fortschritt = &fortschritt;
  desk.al_upload();
  ASSERT_EQ(fortschritt.schritte.size(), 17U);
  for (const auto& [nummer, anzahl] : fortschritt.schritte) EXPECT_EQ(anzahl, 16);
  EXPECT_EQ(fortschritt.schritte.back().first - fortschritt.schritte.front().first, 16);
  fortschritt.schritte.clear();
  fortschritt.halt_ab = 3;
  klient.rufe.clear();
  desk.al_upload();
  EXPECT_EQ(klient.rufe_von("FtpPutFileA").size(), 2U);
  EXPECT_EQ(desk.Ergebnisse.size(), 2U);
  fortschritt.schritte.clear();
  klient.rufe.clear();
  desk.al_download();
  EXPECT_EQ(klient.rufe.size(), 4U);
}

TEST_F(AlarmeTest, PackedRulesSurviveTheRegistersFile) {
  regel(1).texte = kVolleRegel;
  desk.al_speich();
  ASSERT_TRUE(desk.SpeichButt());
  ftp_server andere(ablage, texte.captions, dialog, klient);
  andere.Save_monitoring(2);
  andere.FTPSpread.ActiveRow = 2;
  andere.alerts_handle(1);
  EXPECT_EQ(andere.AlertSpread[0].texte, kVolleRegel);
}
