// The settings of a plant: register, edit fields, settings record.

#include <gtest/gtest.h>

#include "ftp_desk.h"

using namespace polarkreis;

namespace {

const char* const kSchluessel[] = {"nm", "st", "nu", "ad", "co", "tw", "fn", "th", "pu",
                                   "pd", "s1", "s2", "ml", "ip", "dr", "us", "pw", "nt"};

struct EinstellungenTest : testing::Test, FtpDesk {
  /// A plant whose cells tell their keys, each with blanks around it.
  void volle_anlage(int reihe, const std::string& wahl) {
    anlage(reihe, " K17 ", wahl);
    for (int s = 2; s <= 18; ++s)
      desk.FTPSpread.setze(reihe, s, " " + std::string(kSchluessel[s - 2]) + " " + wahl + "\t");
    desk.FTPSpread.setze(reihe, Registerspalte::nt, "ftp + SMS2");
  }
  /// The record of that plant with these four values for its server.
  static std::string satz(const std::string& wahl, const Zeilen& server) {
    std::string text;
    for (int i = 0; i < 13; ++i)
      text += zeile(std::string(kSchluessel[i]) + "=" + kSchluessel[i] + " " + wahl + ";");
    for (int i = 0; i < 4; ++i)
      text +=
          zeile(std::string(kSchluessel[13 + i]) + "=" + server[static_cast<std::size_t>(i)] + ";");
    return text + zeile("nt=10;");
  }
  /// What the server holds of plant K17.
  void fern(const std::string& inhalt) { klient.ferne[adresse("K17", "K17SETTINGS")] = inhalt; }
};

}  // namespace

TEST_F(EinstellungenTest, FieldsStandInTheOrderOfTheirColumns) {
  ASSERT_EQ(ftp_server::Felder().size(), 18U);
  int spalte = 2;
  for (const ftp_server::Feld& feld : ftp_server::Felder()) {
    EXPECT_EQ(feld.schluessel, kSchluessel[spalte - 2]);
    EXPECT_EQ(static_cast<int>(feld.spalte), spalte++);
  }
}

TEST_F(EinstellungenTest, FillingTrimsEachCell) {
  volle_anlage(3, "1");
  desk.FTPSpread.setze(3, Registerspalte::nm, " \tKühlhaus 3 \t");
  desk.handle_settings(1);
  EXPECT_EQ(desk.ID_Label, "K17");
  EXPECT_EQ(desk.ftp.ID, "K17");
  EXPECT_EQ(desk.nm_edit, "Kühlhaus 3");
  EXPECT_EQ(desk.st_edit, "st 1");
  EXPECT_EQ(desk.nu_edit, "nu 1");
  EXPECT_EQ(desk.ad_Edit, "ad 1");
  EXPECT_EQ(desk.co_edit, "co 1");
  EXPECT_EQ(desk.tw_edit, "tw 1");
  EXPECT_EQ(desk.fn_edit, "fn 1");
  EXPECT_EQ(desk.th_edit, "th 1");
  EXPECT_EQ(desk.pu_edit, "pu 1");
  EXPECT_EQ(desk.pd_edit, "pd 1");
  EXPECT_EQ(desk.s1_edit, "s1 1");
  EXPECT_EQ(desk.s2_edit, "s2 1");
  EXPECT_EQ(desk.ml_edit, "ml 1");
  EXPECT_EQ(desk.ip_edit, "ip 1");
  EXPECT_EQ(desk.dr_edit, "dr 1");
  EXPECT_EQ(desk.us_edit, "us 1");
  EXPECT_EQ(desk.pw_edit, "pw 1");
  EXPECT_EQ(desk.nt_edit, "ftp + SMS2");
  EXPECT_EQ(klient.rufe, Zeilen{});
}

TEST_F(EinstellungenTest, FirstRowIsTakenWhereNoneIsActive) {
  desk.FTPSpread.setze(1, Registerspalte::ID, "first");
  desk.FTPSpread.setze(1, Registerspalte::nm, "one");
  desk.handle_settings(1);
  EXPECT_EQ(desk.ID_Label, "first");
  EXPECT_EQ(desk.nm_edit, "one");
  desk.nm_edit = "changed";
  desk.set_speich();
  EXPECT_EQ(zelle(1, Registerspalte::nm), "changed");
}

TEST_F(EinstellungenTest, EmptyCellEmptiesItsField) {
  anlage(1, "K17");
  desk.nm_edit = "of another plant";
  desk.handle_settings(1);
  EXPECT_EQ(desk.nm_edit, "");
}

TEST_F(EinstellungenTest, BlankRouteCellIsTheRouteToEverybody) {
  anlage(1, "K17");
  for (const char* leer : {"", "  ", "\t"}) {
    desk.FTPSpread.setze(1, Registerspalte::nt, leer);
    desk.handle_settings(1);
    EXPECT_EQ(desk.nt_edit, "ftp + E-Mail + SMS1 + SMS2");
    EXPECT_NE(desk.Einstellsatz().find("\"nt=15;\"\r\n"), std::string::npos);
  }
}

TEST_F(EinstellungenTest, RouteCellIsShownAsOneOfTheRoutes) {
  anlage(1, "K17");
  const std::pair<const char*, const char*> faelle[] = {{" SMS1 ", "SMS1"},
                                                        {"none", "none"},
                                                        {"ftp + SMS2", "ftp + SMS2"},
                                                        {"fax", "ftp + E-Mail + SMS1 + SMS2"}};
  for (const auto& [in_der_zelle, gezeigt] : faelle) {
    desk.FTPSpread.setze(1, Registerspalte::nt, in_der_zelle);
    desk.handle_settings(1);
    EXPECT_EQ(desk.nt_edit, gezeigt);
  }
}

TEST_F(EinstellungenTest, OnlyTwoSetsTheSecondOption) {
  const std::pair<const char*, bool> faelle[] = {{"2", true},  {" 2 ", true}, {"2.0", true},
                                                 {"1", false}, {"", false},   {"3", false},
                                                 {"x", false}, {"-2", false}, {"22", false}};
  for (const auto& [zahl, zwei] : faelle) {
    anlage(1, "K17", zahl);
    desk.handle_settings(1);
    EXPECT_EQ(desk.Option2, zwei) << zahl;
    EXPECT_EQ(desk.Option1, !zwei) << zahl;
  }
}

TEST_F(EinstellungenTest, WritingBackPutsEachFieldAsItStandsIntoItsColumn) {
  anlage(2, "K17");
  desk.handle_settings(1);
  for (const ftp_server::Feld& feld : ftp_server::Felder())
    desk.*feld.text = " new " + std::string(feld.schluessel);
  desk.Option1 = false;
  desk.Option2 = true;
  desk.set_speich();
  for (int s = 2; s <= 19; ++s)
    EXPECT_EQ(desk.FTPSpread.zelle(2, s), " new " + std::string(kSchluessel[s - 2]));
  EXPECT_EQ(zelle(2, Registerspalte::Server_Wahl), "2");
  EXPECT_EQ(zelle(2, Registerspalte::ID), "K17");
  for (int s = 21; s <= 100; ++s) EXPECT_EQ(desk.FTPSpread.zelle(2, s), "");
  EXPECT_TRUE(desk.FTPSpread.ist_leer(1));
  desk.Option1 = true;
  desk.Option2 = false;
  desk.set_speich();
  EXPECT_EQ(zelle(2, Registerspalte::Server_Wahl), "1");
}

TEST_F(EinstellungenTest, WritingBackPutsTheShownIDIntoItsColumn) {
  anlage(2, "K17");
  desk.handle_settings(1);
  desk.ID_Label = "K18";
  desk.set_speich();
  EXPECT_EQ(zelle(2, Registerspalte::ID), "K18");
}

TEST_F(EinstellungenTest, WritingBackSavesNoFile) {
  anlage(1, "K17");
  desk.set_speich();
  EXPECT_FALSE(ordner.da("FMD_M_Global.ini"));
}

TEST_F(EinstellungenTest, DefaultServerPutsItsAccountIntoTheRecord) {
  volle_anlage(2, "1");
  desk.handle_settings(1);
  desk.set_upload();
  EXPECT_EQ(lies("K17SETTINGS"), satz("1", {"10.0.0.7", "ftp.example", "op", "secret"}));
  EXPECT_EQ(klient.gesendet["/html/monitoring/K17/K17SETTINGS"], lies("K17SETTINGS"));
  EXPECT_EQ(modus(lokal("K17SETTINGS")), 0600U);
  EXPECT_EQ(modus(ordner.pfad("FMD_Temp")), 0700U);
}

TEST_F(EinstellungenTest, OwnServerOnlyChangesTheRecord) {
  volle_anlage(2, "2");
  desk.handle_settings(1);
  desk.set_upload();
  EXPECT_EQ(lies("K17SETTINGS"), satz("2", {"ip 2", "dr 2", "us 2", "pw 2"}));
  EXPECT_EQ(
      klient.rufe,
      (Zeilen{"URLDownloadToFileA " + adresse("K17", "K17_INS") + " " + lokal("K17_INS"),
              "InternetOpenA FTP", "InternetConnectA 1 ftp.example op secret",
              "FtpPutFileA 2 " + lokal("K17SETTINGS") + " /html/monitoring/K17/K17SETTINGS 1"}));
  EXPECT_EQ(desk.ftp.Server_Wahl, 2);
}

TEST_F(EinstellungenTest, ChoiceOfTheTableCountsAndNotThatOfTheForm) {
  volle_anlage(1, "1");
  desk.handle_settings(1);
  desk.Option1 = false;
  desk.Option2 = true;
  desk.set_upload();
  EXPECT_EQ(lies("K17SETTINGS"), satz("1", {"10.0.0.7", "ftp.example", "op", "secret"}));
}

TEST_F(EinstellungenTest, RecordIsWrittenFromTheFieldsAndNotFromTheTable) {
  anlage(1, "K17");
  desk.handle_settings(1);
  desk.nm_edit = "Kühlhaus \"3\"; neu ";
  desk.nt_edit = "ftp + SMS2";
  desk.set_upload();
  EXPECT_TRUE(lies("K17SETTINGS").starts_with("\"nm=Kühlhaus \"\"3\"\"; neu ;\"\r\n\"st=;\"\r\n"));
  EXPECT_TRUE(lies("K17SETTINGS").ends_with("\"pw=secret;\"\r\n\"nt=10;\"\r\n"));
  EXPECT_EQ(zelle(1, Registerspalte::nm), "");
}

TEST_F(EinstellungenTest, OtherChoicesLeaveTheAccountAsItWas) {
  for (const char* wahl : {"", "0", "3", "x"}) {
    anlage(1, "K17", "1");
    desk.Server_settings();
    EXPECT_EQ(desk.ftp.FTP_User, "op");
    desk.ftp.FTP_User = "kept";
    desk.ftp.FTP_Passwort = "kept too";
    desk.ftp.FTP_IP = "9.9.9.9";
    desk.ftp.FTP_Host = "kept.example";
    desk.ftp.FTP_Ordner = "kept/folder";
    anlage(2, "K18", wahl);
    desk.ip_edit = "mine";
    desk.Server_settings();
    EXPECT_EQ(desk.ftp.ID, "K18");
    EXPECT_EQ(desk.ftp.FTP_User, "kept") << wahl;
    EXPECT_EQ(desk.ftp.FTP_Passwort, "kept too");
    EXPECT_EQ(desk.ftp.FTP_Host, "kept.example");
    EXPECT_EQ(desk.ftp.FTP_Ordner, "kept/folder");
    EXPECT_NE(desk.Einstellsatz().find("\"ip=9.9.9.9;\"\r\n\"dr=kept.example;\"\r\n\"us=kept;\"\r\n"
                                       "\"pw=kept too;\"\r\n"),
              std::string::npos);
  }
}

TEST_F(EinstellungenTest, BothChoicesTakeTheWholeDefaultAccount) {
  for (const char* wahl : {"1", "2", " 2 "}) {
    desk.ftp.setze_Konto({"a", "b", "c", "d", "e"});
    anlage(1, " K17 ", wahl);
    desk.Server_settings();
    EXPECT_EQ(desk.ftp.ID, "K17");
    EXPECT_EQ(desk.ftp.FTP_IP, "10.0.0.7");
    EXPECT_EQ(desk.ftp.FTP_Host, "ftp.example");
    EXPECT_EQ(desk.ftp.FTP_User, "op");
    EXPECT_EQ(desk.ftp.FTP_Passwort, "secret");
    EXPECT_EQ(desk.ftp.FTP_Ordner, "html/monitoring");
  }
}

TEST_F(EinstellungenTest, AccountFileIsReadAfreshForEachTransfer) {
  anlage(1, "K17");
  desk.set_upload();
  konto({"10.0.0.8", "other.example", "op2", "new", "elsewhere"});
  desk.set_upload();
  EXPECT_EQ(klient.rufe.back(),
            "FtpPutFileA 4 " + lokal("K17SETTINGS") + " /elsewhere/K17/K17SETTINGS 1");
  EXPECT_EQ(klient.rufe_von("InternetConnectA").back(), "InternetConnectA 3 other.example op2 new");
  EXPECT_NE(lies("K17SETTINGS").find("\"pw=new;\""), std::string::npos);
}

TEST_F(EinstellungenTest, DownloadFillsTheFieldsAndNotTheTable) {
  anlage(1, "K17");
  desk.handle_settings(1);
  fern(satz("2", {"1.2.3.4", "h", "u", "p"}));
  desk.set_download();
  EXPECT_EQ(desk.nm_edit, "nm 2");
  EXPECT_EQ(desk.ad_Edit, "ad 2");
  EXPECT_EQ(desk.ip_edit, "1.2.3.4");
  EXPECT_EQ(desk.pw_edit, "p");
  EXPECT_EQ(desk.nt_edit, "ftp + SMS2");
  EXPECT_EQ(zelle(1, Registerspalte::nm), "");
  EXPECT_EQ(desk.FTPSpread.zelle(1, 19), "");
  ASSERT_EQ(desk.Ergebnisse.size(), 1U);
  EXPECT_TRUE(desk.Ergebnisse[0].gut);
  EXPECT_EQ(
      klient.rufe,
      (Zeilen{"URLDownloadToFileA " + adresse("K17", "K17_INS") + " " + lokal("K17_INS"),
              "URLDownloadToFileA " + adresse("K17", "K17SETTINGS") + " " + lokal("K17SETTINGS")}));
  desk.set_speich();
  EXPECT_EQ(zelle(1, Registerspalte::nm), "nm 2");
  EXPECT_EQ(zelle(1, Registerspalte::nt), "ftp + SMS2");
}

TEST_F(EinstellungenTest, FailedDownloadReadsAnEarlierCopyAsIfItWereNew) {
  anlage(1, "K17");
  ordner.schreib("FMD_Temp/K17SETTINGS", "\"nm=earlier;\"\r\n");
  desk.set_download();
  EXPECT_EQ(desk.nm_edit, "earlier");
  ASSERT_EQ(desk.Ergebnisse.size(), 1U);
  EXPECT_FALSE(desk.Ergebnisse[0].gut);
  EXPECT_EQ(dialog.texte, Zeilen{});
}

TEST_F(EinstellungenTest, FailedDownloadWithoutACopyReadsNothing) {
  anlage(1, "K17");
  desk.nm_edit = "typed";
  desk.set_download();
  EXPECT_EQ(desk.nm_edit, "typed");
  EXPECT_FALSE(ordner.da("FMD_Temp/K17SETTINGS"));
  EXPECT_EQ(dialog.texte, Zeilen{});
}

TEST_F(EinstellungenTest, TransferTellsItsStepsAndCanBeStopped) {
  FtpFortschritt fortschritt;
  desk.fortschritt = &fortschritt;
  anlage(1, "K17");
  desk.set_upload();
  desk.set_download();
  EXPECT_EQ(fortschritt.schritte,
            (std::vector<std::pair<int, int>>{{0, 1}, {1, 1}, {0, 1}, {1, 1}}));
  fortschritt.halt_ab = 0;
  klient.rufe.clear();
  desk.set_upload();
  desk.set_download();
  EXPECT_EQ(klient.rufe, Zeilen{});
  EXPECT_TRUE(desk.Ergebnisse.empty());
}

TEST_F(EinstellungenTest, UploadWithoutAConnectionWritesTheFileAndLogsOnlyTheProbe) {
  anlage(1, "K17");
  klient.ohne_Verbindung = true;
  desk.set_upload();
  EXPECT_TRUE(ordner.da("FMD_Temp/K17SETTINGS"));
  EXPECT_EQ(desk.ftp.List1, (Zeilen{adresse("K17", "K17_INS"), lokal("K17_INS"), "Download = 78"}));
  ASSERT_EQ(desk.Ergebnisse.size(), 1U);
  EXPECT_FALSE(desk.Ergebnisse[0].gut);
  EXPECT_EQ(dialog.texte, Zeilen{});
}

TEST_F(EinstellungenTest, RecordThatCantBeWrittenIsNotSent) {
  anlage(1, "K17");
  ordner.schreib("FMD_Temp/K17SETTINGS", "older copy");
  ::chmod(lokal("K17SETTINGS").c_str(), 0400);
  desk.set_upload();
  EXPECT_TRUE(klient.rufe_von("FtpPutFileA").empty());
  EXPECT_TRUE(klient.gesendet.empty());
  EXPECT_EQ(lies("K17SETTINGS"), "older copy");
  ASSERT_EQ(desk.Ergebnisse.size(), 1U);
  EXPECT_FALSE(desk.Ergebnisse[0].gut);
  EXPECT_NE(desk.Ergebnisse[0].grund, "");
}

TEST_F(EinstellungenTest, IDThatIsNoFileNameTouchesNothingOutside) {
  for (const char* ID : {"../K17", "a/b", "..\\K17"}) {
    anlage(1, ID);
    desk.set_upload();
    ASSERT_EQ(desk.Ergebnisse.size(), 1U);
    EXPECT_FALSE(desk.Ergebnisse[0].gut);
    desk.set_download();
    EXPECT_FALSE(desk.Ergebnisse.at(0).gut);
  }
  EXPECT_EQ(klient.rufe, Zeilen{});
  for (const std::string& name : ordner.namen())
    EXPECT_TRUE(name == "FMD_Temp" || name == "ftp_default.ini") << name;
}

TEST_F(EinstellungenTest, DownloadOfAnIDThatIsNoFileNameReadsNoFileOutside) {
  anlage(1, "../K17");
  ordner.schreib("K17SETTINGS", "\"nm=foreign;\"\r\n");
  ordner.schreib("FMD_Temp/x", "");
  desk.nm_edit = "typed";
  desk.set_download();
  EXPECT_EQ(desk.nm_edit, "typed");
}

TEST_F(EinstellungenTest, EmptyIDWritesAndSendsAllTheSame) {
  anlage(1, "  ");
  desk.set_upload();
  EXPECT_TRUE(ordner.da("FMD_Temp/SETTINGS"));
  EXPECT_EQ(desk.ftp.List1[0], adresse("", "_INS"));
}

TEST_F(EinstellungenTest, NoMessageHoldsAPassword) {
  anlage(1, "K17", "2");
  desk.FTPSpread.setze(1, Registerspalte::pw, "hidden");
  desk.handle_settings(1);
  klient.ohne_Verbindung = true;
  desk.set_upload();
  desk.set_download();
  std::filesystem::remove(lokal("K17SETTINGS"));
  std::filesystem::create_directory(lokal("K17SETTINGS"));
  desk.set_upload();
  desk.set_download();
  ordner.schreib("FMD_M_Global.ini", "\"a\"hidden\"\r\n\"secret\r\n");
  ::chmod(ordner.pfad("FMD_M_Global.ini").c_str(), 0400);
  desk.Save_monitoring(2);
  desk.Save_monitoring(1);
  for (const char* geheim : {"secret", "hidden"}) EXPECT_FALSE(gemeldet(geheim)) << geheim;
}
