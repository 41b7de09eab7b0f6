#include "monitoring/ftp_konto.h"

#include <gtest/gtest.h>

#include "ftp_desk.h"

using namespace polarkreis;

namespace {

struct FtpKontoTest : testing::Test {
  TempOrdner ordner;
  Meldungen meldungen;
  Ablage ablage{ordner.pfad(), meldungen};
};

}  // namespace

TEST_F(FtpKontoTest, FiveItemsAreAddressHostUserPasswordAndFolder) {
  ordner.schreib("ftp_default.ini",
                 zeilen({"10.0.0.7", "ftp.example:2121", "op", "se,c\"r@e:t", "a/b"}));
  const Ftp_Konto konto = Standardkonto_lesen(ablage);
  EXPECT_EQ(konto.IP, "10.0.0.7");
  EXPECT_EQ(konto.Host, "ftp.example:2121");
  EXPECT_EQ(konto.Nutzer, "op");
  EXPECT_EQ(konto.Passwort, "se,c\"r@e:t");
  EXPECT_EQ(konto.Ordner, "a/b");
}

TEST_F(FtpKontoTest, FolderThatIsNotNamedIsTheUsualOne) {
  ordner.schreib("ftp_default.ini", zeilen({"1", "h", "u", "p", ""}));
  EXPECT_EQ(Standardkonto_lesen(ablage).Ordner, "html/monitoring");
  ordner.schreib("ftp_default.ini", zeilen({"1", "h", "u"}));
  EXPECT_EQ(Standardkonto_lesen(ablage).Nutzer, "u");
  EXPECT_EQ(Standardkonto_lesen(ablage).Passwort, "");
  EXPECT_EQ(Standardkonto_lesen(ablage).Ordner, "html/monitoring");
}

TEST_F(FtpKontoTest, FileThatCantBeReadIsToldFromAMissingOne) {
  EXPECT_EQ(Standardkonto_lesen(ablage).hindernis, "");
  ordner.schreib("ftp_default.ini/a file", "x");
  EXPECT_NE(Standardkonto_lesen(ablage).hindernis, "");
  EXPECT_EQ(Standardkonto_lesen(ablage).Host, "");
}

TEST_F(FtpKontoTest, ItemsMayStandInOneLineOrWithoutQuotes) {
  ordner.schreib("ftp_default.ini", "\xEF\xBB\xBF\"1\",\"h:21\",\"u\"\np\n\"a\"");
  const Ftp_Konto konto = Standardkonto_lesen(ablage);
  EXPECT_EQ(konto.IP, "1");
  EXPECT_EQ(konto.Host, "h:21");
  EXPECT_EQ(konto.Nutzer, "u");
  EXPECT_EQ(konto.Passwort, "p");
  EXPECT_EQ(konto.Ordner, "a");
}

TEST_F(FtpKontoTest, FolderHasNoSlashAtItsEnds) {
  ordner.schreib("ftp_default.ini", zeilen({"1", "h", "u", "p", "/a/b/"}));
  EXPECT_EQ(Standardkonto_lesen(ablage).Ordner, "a/b");
}

TEST_F(FtpKontoTest, MissingFileGivesEmptyTextsAndIsNotMade) {
  const Ftp_Konto konto = Standardkonto_lesen(ablage);
  EXPECT_EQ(konto.IP + konto.Host + konto.Nutzer + konto.Passwort, "");
  EXPECT_EQ(konto.Ordner, "html/monitoring");
  EXPECT_EQ(ordner.namen(), Zeilen{});
}

TEST_F(FtpKontoTest, ReadingNeverChangesTheFile) {
  ordner.schreib("ftp_default.ini", "h");
  Standardkonto_lesen(ablage);
  EXPECT_EQ(ordner.lies("ftp_default.ini"), "h");
}

TEST_F(FtpKontoTest, NewFileHoldsEmptyItemsForItsOwnerAlone) {
  const mode_t maske = ::umask(022);
  EXPECT_TRUE(Standardkonto_anlegen(ablage));
  ::umask(maske);
  EXPECT_EQ(modus(ordner.pfad("ftp_default.ini")), 0600U);
  const Ftp_Konto konto = Standardkonto_lesen(ablage);
  EXPECT_EQ(konto.IP + konto.Host + konto.Nutzer + konto.Passwort, "");
  EXPECT_EQ(ordner.namen(), Zeilen{"ftp_default.ini"});
  EXPECT_TRUE(ordner.lies("ftp_default.ini").starts_with(zeilen({"", "", "", ""})));
}

TEST_F(FtpKontoTest, FileThatIsThereIsKept) {
  ordner.schreib("ftp_default.ini", zeilen({"1", "h", "u", "p", "f"}));
  EXPECT_TRUE(Standardkonto_anlegen(ablage));
  EXPECT_EQ(ordner.lies("ftp_default.ini"), zeilen({"1", "h", "u", "p", "f"}));
}

TEST_F(FtpKontoTest, FolderThatTakesNoFileIsAFailure) {
  ordner.schreib("file", "x");
  Ablage andere(ordner.pfad("file"), meldungen);
  EXPECT_FALSE(Standardkonto_anlegen(andere));
}
