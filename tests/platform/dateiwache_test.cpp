#include "platform/dateiwache.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <functional>
#include <utility>

#include "support/temp_folder.h"

using namespace polarkreis;

namespace {

struct DateiwacheTest : testing::Test {
  TempOrdner ordner;
  std::unique_ptr<Aenderungswache> wache;

  void SetUp() override {
    ordner.schreib("data/a.dat", "old");
    ordner.schreib("data/b.dat", "old");
    wache = Dateiwache_machen(ordner.pfad("data"));
    if (!wache) GTEST_SKIP() << "no change notices for the temporary folder here";
  }
  void expect_gesehen(const std::function<void()>& tat) const {
    tat();
    EXPECT_TRUE(wache->vielleicht_geaendert());
    EXPECT_FALSE(wache->vielleicht_geaendert());
  }
};

}  // namespace

TEST_F(DateiwacheTest, ReadingIsNoChange) {
  EXPECT_FALSE(wache->vielleicht_geaendert());
  EXPECT_EQ(ordner.lies("data/a.dat"), "old");
  EXPECT_FALSE(wache->vielleicht_geaendert());
}

TEST_F(DateiwacheTest, WriteInPlaceIsSeenBeforeItsFileIsClosed) {
  const int datei = ::open(ordner.pfad("data/a.dat").c_str(), O_WRONLY);
  wache->vielleicht_geaendert();
  expect_gesehen([&] { ASSERT_EQ(::write(datei, "new", 3), 3); });
  expect_gesehen([&] { ::close(datei); });
}

TEST_F(DateiwacheTest, TimesAndModesAreSeen) {
  expect_gesehen([&] { ::utimensat(AT_FDCWD, ordner.pfad("data/a.dat").c_str(), nullptr, 0); });
  expect_gesehen([&] { ::chmod(ordner.pfad("data/a.dat").c_str(), 0600); });
}

TEST_F(DateiwacheTest, NewRenamedAndDeletedFilesAreSeen) {
  expect_gesehen([&] { ordner.schreib("data/new.dat", "x"); });
  expect_gesehen(
      [&] { std::filesystem::rename(ordner.pfad("data/a.dat"), ordner.pfad("data/c.dat")); });
  ordner.schreib("outside", "x");
  EXPECT_FALSE(wache->vielleicht_geaendert());
  expect_gesehen(
      [&] { std::filesystem::rename(ordner.pfad("outside"), ordner.pfad("data/b.dat")); });
  expect_gesehen([&] { std::filesystem::remove(ordner.pfad("data/b.dat")); });
}

TEST_F(DateiwacheTest, MovedFolderIsAChangeForEver) {
  std::filesystem::rename(ordner.pfad("data"), ordner.pfad("elsewhere"));
  EXPECT_TRUE(wache->vielleicht_geaendert());
  EXPECT_TRUE(wache->vielleicht_geaendert());
}

TEST_F(DateiwacheTest, RemovedFolderIsAChangeForEver) {
  std::filesystem::remove_all(ordner.pfad("data"));
  EXPECT_TRUE(wache->vielleicht_geaendert());
  EXPECT_TRUE(wache->vielleicht_geaendert());
}

TEST_F(DateiwacheTest, AFolderAboveThatIsMovedIsAChangeForEver) {
  ordner.schreib("above/data/a.dat", "x");
  wache = Dateiwache_machen(ordner.pfad("above/data"));
  ASSERT_TRUE(wache);
  EXPECT_FALSE(wache->vielleicht_geaendert());
  std::filesystem::rename(ordner.pfad("above"), ordner.pfad("elsewhere"));
  EXPECT_TRUE(wache->vielleicht_geaendert());
  EXPECT_TRUE(wache->vielleicht_geaendert());
}

TEST_F(DateiwacheTest, LinkSetToAnotherFolderIsAChangeForEver) {
  std::filesystem::create_directory(ordner.pfad("other"));
  std::filesystem::create_directory_symlink("data", ordner.pfad("link"));
  wache = Dateiwache_machen(ordner.pfad("link"));
  ASSERT_TRUE(wache);
  EXPECT_FALSE(wache->vielleicht_geaendert());
  std::filesystem::remove(ordner.pfad("link"));
  std::filesystem::create_directory_symlink("other", ordner.pfad("link"));
  EXPECT_TRUE(wache->vielleicht_geaendert());
  EXPECT_TRUE(wache->vielleicht_geaendert());
}

TEST_F(DateiwacheTest, OverflowIsAChangeAndTheWatchGoesOn) {
  // More notices than the system keeps: alternating kinds, since equal ones are joined.
  std::ifstream grenze("/proc/sys/fs/inotify/max_queued_events");
  long anzahl = 0;
  grenze >> anzahl;
  ASSERT_GT(anzahl, 0);
  if (anzahl > 200'000) return;  // too long a queue to fill within a test
  const std::string a = ordner.pfad("data/a.dat");
  const std::string b = ordner.pfad("data/b.dat");
  for (long i = 0; i <= anzahl; ++i) ::chmod((i % 2 == 0 ? a : b).c_str(), 0600);
  EXPECT_TRUE(wache->vielleicht_geaendert());
  EXPECT_FALSE(wache->vielleicht_geaendert());
  ::chmod(a.c_str(), 0600);
  EXPECT_TRUE(wache->vielleicht_geaendert());
}

TEST(Dateiwache, IsRefusedWhereChangesAreNotTold) {
  EXPECT_EQ(Dateiwache_machen("/proc"), nullptr);
  TempOrdner ordner;
  ordner.schreib("a.dat", "x");
  EXPECT_EQ(Dateiwache_machen(ordner.pfad("a.dat")), nullptr);
  EXPECT_EQ(Dateiwache_machen(ordner.pfad("nowhere")), nullptr);
}

TEST_F(DateiwacheTest, CopyFollowsEveryEditOfAWatchedFile) {
  Meldungen meldungen;
  Ablage ablage(ordner.pfad("data"), meldungen);
  ablage.setze_wache(std::move(wache));
  Dateikopie<std::string> kopie;
  int gelesen = 0;
  const auto hol = [&] {
    return kopie.hol(ablage, "a.dat", [&](std::optional<std::string>&& inhalt) {
      ++gelesen;
      return inhalt.value_or("absent");
    });
  };
  const timespec zeit[2] = {{1'000'000, 0}, {1'000'000, 0}};
  for (int runde = 0; runde < 100; ++runde) {
    const std::string inhalt = std::to_string(1000 + runde);
    ordner.schreib("data/a.dat", inhalt);
    ::utimensat(AT_FDCWD, ordner.pfad("data/a.dat").c_str(), zeit, 0);
    EXPECT_EQ(hol(), inhalt);
    EXPECT_EQ(hol(), inhalt);
  }
  EXPECT_EQ(gelesen, 100);
  std::filesystem::rename(ordner.pfad("data/a.dat"), ordner.pfad("data/A.DAT"));
  EXPECT_EQ(hol(), "1099");
  std::filesystem::remove(ordner.pfad("data/A.DAT"));
  EXPECT_EQ(hol(), "absent");
}
