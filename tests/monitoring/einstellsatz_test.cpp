// Reading a settings record, this program's or another hand's.

#include <gtest/gtest.h>

#include "ftp_desk.h"

using namespace polarkreis;

namespace {

struct EinstellsatzTest : testing::Test, FtpDesk {};

}  // namespace

TEST_F(EinstellsatzTest, BlankLinesAndUnknownKeysAreSkipped) {
  desk.st_edit = "kept";
  desk.Einstellsatz_uebernehmen(
      "\r\n\"nm=one;\"\r\n\"\"\r\n   \r\n\"  \"\r\n\"xx=two;\"\r\n\"NM=three;\"\r\n\"n\"\r\n"
      "\"tw=four;\"\r\n");
  EXPECT_EQ(desk.nm_edit, "one");
  EXPECT_EQ(desk.tw_edit, "four");
  EXPECT_EQ(desk.st_edit, "kept");
}

TEST_F(EinstellsatzTest, ValueGoesToItsLastSemicolon) {
  desk.Einstellsatz_uebernehmen("\"nm=a;b;c;\"\r\n\"st=d;e\"\r\n\"pw=;;\"\r\n\"tw=x=y;\"\r\n");
  EXPECT_EQ(desk.nm_edit, "a;b;c");
  EXPECT_EQ(desk.st_edit, "d");
  EXPECT_EQ(desk.pw_edit, ";");
  EXPECT_EQ(desk.tw_edit, "x=y");
}

TEST_F(EinstellsatzTest, LaterLineOfAKeyCounts) {
  desk.Einstellsatz_uebernehmen("\"nm=a;\"\r\n\"nm=b;\"\r\n");
  EXPECT_EQ(desk.nm_edit, "b");
}

TEST_F(EinstellsatzTest, RouteNumberIsShownAsItsText) {
  const std::pair<const char*, const char*> faelle[] = {{"0", "none"},
                                                        {"1", "SMS1"},
                                                        {"10", "ftp + SMS2"},
                                                        {"15", "ftp + E-Mail + SMS1 + SMS2"},
                                                        {"77", "ftp + E-Mail + SMS1 + SMS2"},
                                                        {"-1", "ftp + E-Mail + SMS1 + SMS2"}};
  for (const auto& [zahl, text] : faelle) {
    desk.Einstellsatz_uebernehmen(zeile("nt=" + std::string(zahl) + ";"));
    EXPECT_EQ(desk.nt_edit, text) << zahl;
  }
}

TEST_F(EinstellsatzTest, RecordOfAnotherMachineIsRead) {
  desk.Einstellsatz_uebernehmen("nm=plain;\n\"st=a\n\"nu=5\"a;\"\n\"tw=Aachen;\"");
  EXPECT_EQ(desk.nm_edit, "plain");
  EXPECT_EQ(desk.nu_edit, "5\"a");
  EXPECT_EQ(desk.tw_edit, "Aachen");
  anlage(1, "K17");
  klient.ferne[adresse("K17", "K17SETTINGS")] = "\"nm=K\xFChlhaus;\"\r\n";
  desk.set_download();
  EXPECT_EQ(desk.nm_edit, "Kühlhaus");
}

TEST_F(EinstellsatzTest, RecordComesBackAsItWas) {
  anlage(1, "K17", "2");
  for (const ftp_server::Feld& feld : ftp_server::Felder())
    desk.*feld.text = "a;\"b\",\tc=" + std::string(feld.schluessel);
  desk.nt_edit = "SMS1 + SMS2";
  desk.Server_settings();
  const std::string text = desk.Einstellsatz();
  ftp_server andere(ablage, texte.captions, dialog, klient);
  andere.Einstellsatz_uebernehmen(text);
  for (const ftp_server::Feld& feld : ftp_server::Felder())
    EXPECT_EQ(andere.*feld.text, desk.*feld.text) << feld.schluessel;
}

TEST_F(EinstellsatzTest, RouteThatIsNoNumberTellsEverybody) {
  for (const char* wert : {"", "x", "SMS1", "1.5"}) {
    desk.Einstellsatz_uebernehmen(zeile("nt=" + std::string(wert) + ";"));
    EXPECT_EQ(desk.nt_edit, "ftp + E-Mail + SMS1 + SMS2") << wert;
  }
}

TEST_F(EinstellsatzTest, ValueWithoutASemicolonIsTheRestOfItsLine) {
  desk.Einstellsatz_uebernehmen("\"nm=cold store\"\r\n");
  EXPECT_EQ(desk.nm_edit, "cold store");
}

TEST_F(EinstellsatzTest, ValueIsTakenAsItStands) {
  desk.Einstellsatz_uebernehmen("\"nm=  a\t ;\"\r\n\"st=;\"\r\n");
  EXPECT_EQ(desk.nm_edit, "  a\t ");
  EXPECT_EQ(desk.st_edit, "");
}
