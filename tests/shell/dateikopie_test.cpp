#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <utility>

#include "shell/ablage.h"
#include "support/temp_folder.h"

using namespace polarkreis;

namespace {

/// A watch that tells what the test tells it.
struct TestWache : Aenderungswache {
  struct Lage {
    bool geaendert = false;
    int gefragt = 0;
  };
  explicit TestWache(Lage& lage_hier) : lage(lage_hier) {}
  bool vielleicht_geaendert() override {
    ++lage.gefragt;
    return std::exchange(lage.geaendert, false);
  }
  Lage& lage;
};

struct KopieTest : testing::Test {
  TempOrdner ordner;
  Meldungen meldungen;
  Ablage ablage{ordner.pfad(), meldungen};
  Dateikopie<std::string> kopie;
  int gelesen = 0;

  std::string hol(const std::string& name = "a.dat") {
    return kopie.hol(ablage, name, [this](std::optional<std::string>&& inhalt) {
      ++gelesen;
      return inhalt.value_or("absent");
    });
  }
  /// Writes in place and sets the file's time of change: nothing else tells an edit of equal size.
  void schreib(std::string_view name, std::string_view inhalt, time_t sekunde) {
    ordner.schreib(name, inhalt);
    const timespec zeiten[2] = {{sekunde, 0}, {sekunde, 0}};
    ::utimensat(AT_FDCWD, ordner.pfad(name).c_str(), zeiten, 0);
  }
};

}  // namespace

TEST_F(KopieTest, AbsentFileIsReadAsNothingAndNotCreated) {
  EXPECT_EQ(hol(), "absent");
  EXPECT_FALSE(ordner.da("a.dat"));
  EXPECT_EQ(hol(), "absent");
  EXPECT_EQ(gelesen, 1);
}

TEST_F(KopieTest, EveryChangeTakesEffectAtTheNextCall) {
  EXPECT_EQ(hol(), "absent");
  ordner.schreib("a.dat", "one");
  EXPECT_EQ(hol(), "one");
  ordner.schreib("a.dat", "three");
  EXPECT_EQ(hol(), "three");
  std::filesystem::remove(ordner.pfad("a.dat"));
  EXPECT_EQ(hol(), "absent");
  ordner.schreib("A.DAT", "upper");
  EXPECT_EQ(hol(), "upper");
}

TEST_F(KopieTest, EditOfEqualSizeAndTimeIsSeen) {
  for (int runde = 0; runde < 200; ++runde) {
    const std::string inhalt = std::to_string(1000 + runde);
    schreib("a.dat", inhalt, 1'000'000);
    EXPECT_EQ(hol(), inhalt);
  }
}

TEST_F(KopieTest, AnotherNameIsAnotherFile) {
  ordner.schreib("a.dat", "a");
  ordner.schreib("b.dat", "b");
  EXPECT_EQ(hol("a.dat"), "a");
  EXPECT_EQ(hol("b.dat"), "b");
  EXPECT_EQ(hol("a.dat"), "a");
}

TEST_F(KopieTest, WithinAStepTheCopyStays) {
  ordner.schreib("a.dat", "old");
  Schrittfolge schritte(ablage);
  EXPECT_EQ(hol(), "old");
  ordner.schreib("a.dat", "newer");
  EXPECT_EQ(hol(), "old");
  {
    const Schrittfolge innere(ablage);
    EXPECT_EQ(hol(), "old");
  }
  EXPECT_EQ(hol(), "old");
  schritte.naechster();
  EXPECT_EQ(hol(), "newer");
}

TEST_F(KopieTest, BehindTheStepsEachCallChecksAgain) {
  {
    const Schrittfolge schritte(ablage);
    EXPECT_EQ(hol(), "absent");
    ordner.schreib("a.dat", "new");
  }
  EXPECT_EQ(hol(), "new");
}

TEST_F(KopieTest, OwnSaveTakesEffectWithinTheStep) {
  const Schrittfolge schritte(ablage);
  EXPECT_EQ(hol(), "absent");
  ablage.schreib_ganz("a.dat", "own");
  EXPECT_EQ(hol(), "own");
  ablage.Datei_Loeschen("a.dat");
  EXPECT_EQ(hol(), "absent");
}

TEST_F(KopieTest, SwitchReadsAtEveryUse) {
  ordner.schreib("a.dat", "a");
  ablage.immer_neu_lesen = true;
  const Schrittfolge schritte(ablage);
  hol();
  hol();
  EXPECT_EQ(gelesen, 2);
}

TEST_F(KopieTest, WithAWatchTheFileIsAskedOnlyAfterAChange) {
  TestWache::Lage lage;
  ordner.schreib("a.dat", "old");
  ablage.setze_wache(std::make_unique<TestWache>(lage));
  Schrittfolge schritte(ablage);
  EXPECT_EQ(hol(), "old");
  ordner.schreib("a.dat", "newer");
  schritte.naechster();
  EXPECT_EQ(hol(), "old");  // the watch keeps silent
  lage.geaendert = true;
  EXPECT_EQ(hol(), "old");  // not asked within the step
  schritte.naechster();
  EXPECT_EQ(hol(), "newer");
  EXPECT_EQ(lage.gefragt, 3);
}

TEST_F(KopieTest, WatchVouchesForTheAbsenceOfAFileToo) {
  TestWache::Lage lage;
  ablage.setze_wache(std::make_unique<TestWache>(lage));
  EXPECT_EQ(hol(), "absent");
  ordner.schreib("A.DAT", "new");
  EXPECT_EQ(hol(), "absent");
  lage.geaendert = true;
  EXPECT_EQ(hol(), "new");
}

TEST_F(KopieTest, WatchDoesntVouchForLinksSecondNamesAndOtherFolders) {
  TempOrdner anderer;
  anderer.schreib("far.dat", "old");
  ordner.schreib("first.dat", "old");
  std::filesystem::create_symlink(anderer.pfad("far.dat"), ordner.pfad("link.dat"));
  std::filesystem::create_symlink(anderer.pfad("none.dat"), ordner.pfad("dangling.dat"));
  std::filesystem::create_hard_link(ordner.pfad("first.dat"), ordner.pfad("second.dat"));
  TestWache::Lage lage;
  ablage.setze_wache(std::make_unique<TestWache>(lage));

  EXPECT_EQ(hol("link.dat"), "old");
  anderer.schreib("far.dat", "newer");
  EXPECT_EQ(hol("link.dat"), "newer");

  EXPECT_EQ(hol("dangling.dat"), "absent");
  anderer.schreib("none.dat", "there");
  EXPECT_EQ(hol("dangling.dat"), "there");

  EXPECT_EQ(hol("second.dat"), "old");
  ordner.schreib("first.dat", "newer");
  EXPECT_EQ(hol("second.dat"), "newer");

  EXPECT_EQ(hol(anderer.pfad("far.dat")), "newer");
  anderer.schreib("far.dat", "newest");
  EXPECT_EQ(hol(anderer.pfad("far.dat")), "newest");
}

TEST_F(KopieTest, NewWatchAndItsEndAreAReasonToCheck) {
  TestWache::Lage lage;
  ordner.schreib("a.dat", "old");
  EXPECT_EQ(hol(), "old");
  ordner.schreib("a.dat", "newer");
  ablage.setze_wache(std::make_unique<TestWache>(lage));
  EXPECT_EQ(hol(), "newer");
  ordner.schreib("a.dat", "newest");
  ablage.setze_wache(nullptr);
  EXPECT_EQ(hol(), "newest");
}

TEST(LaengerUnveraendert, OnlyTimesBeyondTheClocksGrainCount) {
  timespec jetzt{};
  ::clock_gettime(CLOCK_REALTIME, &jetzt);
  const std::int64_t jetzt_ns = std::int64_t{jetzt.tv_sec} * 1'000'000'000 + jetzt.tv_nsec;
  Dateistand stand;
  EXPECT_TRUE(laenger_unveraendert(stand));  // absence has no grain
  stand.da = true;
  stand.geaendert_ns = stand.status_ns = jetzt_ns - 1'000'000'000;
  EXPECT_TRUE(laenger_unveraendert(stand));
  stand.status_ns = jetzt_ns + 3'600'000'000'000;  // another machine's clock
  EXPECT_FALSE(laenger_unveraendert(stand));
  std::swap(stand.geaendert_ns, stand.status_ns);
  EXPECT_FALSE(laenger_unveraendert(stand));
}
