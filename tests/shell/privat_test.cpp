// Files and folders for their owner alone.

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "shell/ablage.h"
#include "support/temp_folder.h"

using namespace polarkreis;

namespace {

using Namen = std::vector<std::string>;

struct PrivatTest : testing::Test {
  TempOrdner ordner;
  Meldungen meldungen;
  Ablage ablage{ordner.pfad(), meldungen};
  mode_t maske = ::umask(022);

  ~PrivatTest() override { ::umask(maske); }
  bool sichere(std::string_view name, std::string_view inhalt,
               Haltbarkeit haltbarkeit = Haltbarkeit::sicher) {
    return ablage.schreib_ganz(name, inhalt, haltbarkeit, Zugriff::nur_Eigner);
  }
  unsigned modus(std::string_view name) const {
    struct stat stand {};
    ::stat(ordner.pfad(name).c_str(), &stand);
    return stand.st_mode & 07777U;
  }
  void setze_modus(std::string_view name, mode_t modus_) const {
    ASSERT_EQ(::chmod(ordner.pfad(name).c_str(), modus_), 0);
  }
};

}  // namespace

TEST_F(PrivatTest, NewFileIsItsOwnersAlone) {
  EXPECT_TRUE(sichere("a.ini", "x"));
  EXPECT_TRUE(sichere("b.ini", "x", Haltbarkeit::wiederholbar));
  EXPECT_EQ(modus("a.ini"), 0600U);
  EXPECT_EQ(modus("b.ini"), 0600U);
  EXPECT_EQ(ordner.lies("a.ini"), "x");
  EXPECT_EQ(ordner.namen(), (Namen{"a.ini", "b.ini"}));
}

TEST_F(PrivatTest, UsersMaskOpensNothing) {
  ::umask(0);
  EXPECT_TRUE(sichere("a.ini", "x"));
  EXPECT_EQ(modus("a.ini"), 0600U);
}

TEST_F(PrivatTest, FileThatOthersCouldReadIsClosedToThem) {
  for (const Haltbarkeit haltbarkeit : {Haltbarkeit::sicher, Haltbarkeit::wiederholbar})
    for (const mode_t alt : {0644, 0666, 0755, 0640}) {
      ordner.schreib("a.ini", "old");
      setze_modus("a.ini", alt);
      EXPECT_TRUE(sichere("a.ini", "new", haltbarkeit));
      EXPECT_EQ(modus("a.ini"), 0600U);
      EXPECT_EQ(ordner.lies("a.ini"), "new");
    }
}

TEST_F(PrivatTest, LinkStaysALinkAndItsTargetIsClosed) {
  ordner.schreib("real.ini", "old");
  setze_modus("real.ini", 0644);
  std::filesystem::create_symlink("real.ini", ordner.pfad("a.ini"));
  EXPECT_TRUE(sichere("a.ini", "new"));
  EXPECT_TRUE(std::filesystem::is_symlink(ordner.pfad("a.ini")));
  EXPECT_EQ(modus("real.ini"), 0600U);
  EXPECT_EQ(ordner.lies("real.ini"), "new");
}

TEST_F(PrivatTest, ReadOnlyFileIsRefusedAsEver) {
  ordner.schreib("a.ini", "old");
  setze_modus("a.ini", 0400);
  EXPECT_FALSE(sichere("a.ini", "new"));
  EXPECT_EQ(modus("a.ini"), 0400U);
  EXPECT_EQ(ordner.lies("a.ini"), "old");
}

TEST_F(PrivatTest, OtherSavesKeepTheMode) {
  EXPECT_TRUE(ablage.schreib_ganz("new.ini", "x"));
  EXPECT_EQ(modus("new.ini"), 0644U);
  for (const mode_t alt : {0600, 0640, 0666}) {
    ordner.schreib("a.ini", "old");
    setze_modus("a.ini", alt);
    EXPECT_TRUE(ablage.schreib_ganz("a.ini", "new"));
    EXPECT_EQ(modus("a.ini"), alt);
  }
}

TEST_F(PrivatTest, FolderIsItsOwnersAloneAndThoseAboveAreNot) {
  EXPECT_TRUE(ablage.mache_privaten_ordner(ordner.pfad("above/private")));
  EXPECT_EQ(modus("above/private"), 0700U);
  EXPECT_EQ(modus("above"), 0755U);
}

TEST_F(PrivatTest, FolderThatIsThereKeepsItsFilesAndIsClosed) {
  ordner.schreib("private/a.ini", "kept");
  setze_modus("private", 0755);
  EXPECT_TRUE(ablage.mache_privaten_ordner(ordner.pfad("private")));
  EXPECT_TRUE(ablage.mache_privaten_ordner(ordner.pfad("private")));
  EXPECT_EQ(modus("private"), 0700U);
  EXPECT_EQ(ordner.lies("private/a.ini"), "kept");
  EXPECT_EQ(ablage.letzter_fehler(), "");
}

TEST_F(PrivatTest, FileInPlaceOfTheFolderIsRefusedAndKeepsItsMode) {
  ordner.schreib("private", "a file");
  setze_modus("private", 0644);
  EXPECT_FALSE(ablage.mache_privaten_ordner(ordner.pfad("private")));
  EXPECT_NE(ablage.letzter_fehler(), "");
  EXPECT_EQ(modus("private"), 0644U);
  EXPECT_EQ(ordner.lies("private"), "a file");
}
