// Saving by damage: whatever goes wrong, the old file stays whole and nothing else is left.

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include "shell/ablage.h"
#include "support/temp_folder.h"

using namespace polarkreis;

namespace {

using Namen = std::vector<std::string>;

struct SichernTest : testing::Test {
  TempOrdner ordner;
  Meldungen meldungen;
  Ablage ablage{ordner.pfad(), meldungen};

  void expect_fehler(std::string_view grund) const {
    EXPECT_NE(ablage.letzter_fehler().find(grund), std::string::npos) << ablage.letzter_fehler();
    ASSERT_FALSE(meldungen.zeilen().empty());
    EXPECT_NE(meldungen.zeilen().back().find(grund), std::string::npos);
  }
  mode_t modus(std::string_view name) const {
    struct stat stand {};
    ::lstat(ordner.pfad(name).c_str(), &stand);
    return stand.st_mode & 07777;
  }
};

}  // namespace

TEST_F(SichernTest, ExactlyTheNamedFileIsThereAfterwards) {
  EXPECT_TRUE(ablage.schreib_ganz("a.dat", "one"));
  EXPECT_TRUE(ablage.schreib_ganz("a.dat", "two", Haltbarkeit::wiederholbar));
  EXPECT_EQ(ordner.lies("a.dat"), "two");
  EXPECT_EQ(ordner.namen(), Namen{"a.dat"});
  EXPECT_EQ(ablage.letzter_fehler(), "");
}

TEST_F(SichernTest, EmptyContentIsAFileToo) {
  ordner.schreib("a.dat", "old");
  EXPECT_TRUE(ablage.schreib_ganz("a.dat", ""));
  EXPECT_TRUE(ordner.da("a.dat"));
  EXPECT_EQ(ordner.lies("a.dat"), "");
}

TEST_F(SichernTest, NameOfAnotherCaseIsTheTarget) {
  ordner.schreib("Haus.PRJ", "old");
  EXPECT_TRUE(ablage.schreib_ganz("haus.prj", "new"));
  EXPECT_EQ(ordner.namen(), Namen{"Haus.PRJ"});
  EXPECT_EQ(ordner.lies("Haus.PRJ"), "new");
}

TEST_F(SichernTest, LinkStaysALink) {
  ordner.schreib("real/target.dat", "old");
  std::filesystem::create_symlink("real/target.dat", ordner.pfad("middle.dat"));
  std::filesystem::create_symlink(ordner.pfad("middle.dat"), ordner.pfad("a.dat"));
  EXPECT_TRUE(ablage.schreib_ganz("a.dat", "new"));
  EXPECT_TRUE(std::filesystem::is_symlink(ordner.pfad("a.dat")));
  EXPECT_TRUE(std::filesystem::is_symlink(ordner.pfad("middle.dat")));
  EXPECT_EQ(ordner.lies("real/target.dat"), "new");
  EXPECT_EQ(ordner.namen(), (Namen{"a.dat", "middle.dat", "real"}));
}

TEST_F(SichernTest, LinkToNothingGetsItsTarget) {
  std::filesystem::create_symlink("target.dat", ordner.pfad("a.dat"));
  EXPECT_TRUE(ablage.schreib_ganz("a.dat", "new"));
  EXPECT_TRUE(std::filesystem::is_symlink(ordner.pfad("a.dat")));
  EXPECT_EQ(ordner.lies("target.dat"), "new");
}

TEST_F(SichernTest, LinkToItselfIsRefused) {
  std::filesystem::create_symlink("a.dat", ordner.pfad("a.dat"));
  EXPECT_FALSE(ablage.schreib_ganz("a.dat", "new"));
  expect_fehler("link");
  EXPECT_TRUE(std::filesystem::is_symlink(ordner.pfad("a.dat")));
}

TEST_F(SichernTest, ModeOfTheTargetIsKept) {
  ordner.schreib("a.dat", "old");
  ::chmod(ordner.pfad("a.dat").c_str(), 0640);
  EXPECT_TRUE(ablage.schreib_ganz("a.dat", "new"));
  EXPECT_EQ(modus("a.dat"), 0640U);
}

TEST_F(SichernTest, NewFileHasTheUsersMode) {
  const mode_t maske = ::umask(027);
  EXPECT_TRUE(ablage.schreib_ganz("a.dat", "new"));
  ::umask(maske);
  EXPECT_EQ(modus("a.dat"), 0640U);
}

TEST_F(SichernTest, ReadOnlyTargetIsRefused) {
  ordner.schreib("a.dat", "old");
  ::chmod(ordner.pfad("a.dat").c_str(), 0444);
  EXPECT_FALSE(ablage.schreib_ganz("a.dat", "new"));
  expect_fehler("read-only");
  EXPECT_EQ(ordner.lies("a.dat"), "old");
  EXPECT_EQ(modus("a.dat"), 0444U);
  EXPECT_EQ(ordner.namen(), Namen{"a.dat"});
}

TEST_F(SichernTest, ReadOnlyTargetBehindALinkIsRefused) {
  ordner.schreib("target.dat", "old");
  ::chmod(ordner.pfad("target.dat").c_str(), 0400);
  std::filesystem::create_symlink("target.dat", ordner.pfad("a.dat"));
  EXPECT_FALSE(ablage.schreib_ganz("a.dat", "new"));
  EXPECT_EQ(ordner.lies("target.dat"), "old");
}

TEST_F(SichernTest, FolderInPlaceOfTheFileIsRefused) {
  ordner.schreib("a.dat/inside", "old");
  EXPECT_FALSE(ablage.schreib_ganz("a.dat", "new"));
  expect_fehler("folder");
  EXPECT_EQ(ordner.lies("a.dat/inside"), "old");
  EXPECT_EQ(ordner.namen(), Namen{"a.dat"});
}

TEST_F(SichernTest, FileInPlaceOfTheFolderIsRefused) {
  ordner.schreib("data", "a file");
  EXPECT_FALSE(ablage.schreib_ganz(ordner.pfad("data/a.dat"), "new"));
  expect_fehler("not a folder");
  EXPECT_EQ(ordner.lies("data"), "a file");
}

TEST_F(SichernTest, FolderAsANameIsRefused) {
  EXPECT_FALSE(ablage.schreib_ganz("", "new"));
  EXPECT_FALSE(ablage.schreib_ganz(ordner.pfad() + "/", "new"));
  EXPECT_EQ(ordner.namen(), Namen{});
}

TEST_F(SichernTest, NameTooLongIsRefused) {
  EXPECT_FALSE(ablage.schreib_ganz(std::string(300, 'a'), "new"));
  expect_fehler("too long");
  EXPECT_EQ(ordner.namen(), Namen{});
}

TEST_F(SichernTest, FullDiskIsTold) {
  EXPECT_FALSE(ablage.schreib_ganz("/dev/full", "new"));
  expect_fehler("disk is full");
  ablage.Datei_Schreiben("/dev/full", 1);
  ablage.Ausgabe(1, {"x"});
  EXPECT_FALSE(ablage.Datei_Schliessen(1));
}

TEST_F(SichernTest, DeviceIsWrittenToAndStays) {
  EXPECT_TRUE(ablage.schreib_ganz("/dev/null", "new"));
  EXPECT_TRUE(std::filesystem::is_character_file("/dev/null"));
  std::filesystem::create_symlink("/dev/full", ordner.pfad("a.dat"));
  EXPECT_FALSE(ablage.schreib_ganz("a.dat", "new"));
}

TEST_F(SichernTest, PipeWithoutAReaderIsAnError) {
  ASSERT_EQ(::mkfifo(ordner.pfad("a.dat").c_str(), 0600), 0);
  EXPECT_FALSE(ablage.schreib_ganz("a.dat", "new"));
  EXPECT_NE(ablage.letzter_fehler(), "");
}

TEST_F(SichernTest, SuccessClearsTheLastError) {
  EXPECT_FALSE(ablage.schreib_ganz("/dev/full", "new"));
  EXPECT_TRUE(ablage.schreib_ganz("a.dat", "new"));
  EXPECT_EQ(ablage.letzter_fehler(), "");
}

namespace {

/// Runs `tat` in a program of its own in which files can't grow beyond `bytes`; the size signal is
/// not ignored, as in a program that the user starts.
template <class Tat>
bool mit_enger_platte(rlim_t bytes, Tat&& tat) {
  const pid_t kind = ::fork();
  if (kind == 0) {
    ::signal(SIGXFSZ, SIG_DFL);
    const rlimit grenze{bytes, bytes};
    ::setrlimit(RLIMIT_FSIZE, &grenze);
    ::_exit(tat() ? 0 : 1);
  }
  int status = 0;
  ::waitpid(kind, &status, 0);
  return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

}  // namespace

TEST_F(SichernTest, WriteThatStopsMidwayLeavesTheOldFile) {
  ordner.schreib("a.dat", "old");
  EXPECT_TRUE(mit_enger_platte(1000, [this] {
    return !ablage.schreib_ganz("a.dat", std::string(5000, 'x')) &&
           ablage.letzter_fehler().find("beyond the size") != std::string::npos &&
           ordner.namen() == Namen{"a.dat"} && ablage.schreib_ganz("b.dat", "small");
  }));
  EXPECT_EQ(ordner.lies("a.dat"), "old");
  EXPECT_EQ(ordner.lies("b.dat"), "small");
  EXPECT_EQ(ordner.namen(), (Namen{"a.dat", "b.dat"}));
}

TEST_F(SichernTest, AppendThatStopsMidwayLeavesTheOldFile) {
  ordner.schreib("a.dat", "old");
  EXPECT_TRUE(mit_enger_platte(1000, [this] {
    ablage.Datei_Anhaengen("a.dat", 1);
    ablage.Ausgabe_Text(1, std::string(5000, 'x'));
    return !ablage.alle_schliessen();
  }));
  EXPECT_EQ(ordner.lies("a.dat"), "old");
  EXPECT_EQ(ordner.namen(), Namen{"a.dat"});
}

TEST_F(SichernTest, AppendToWhatCantBeReadIsRefused) {
  std::filesystem::create_directory(ordner.pfad("a.dat"));
  ablage.Datei_Anhaengen("a.dat", 1);
  ablage.Ausgabe(1, {"x"});
  EXPECT_FALSE(ablage.Datei_Schliessen(1));
  expect_fehler("folder");
}

TEST_F(SichernTest, FirstFailureOfManyIsTold) {
  ablage.Datei_Schreiben("/dev/full", 1);
  ablage.Ausgabe(1, {"x"});
  ablage.Datei_Schreiben("b.dat", 2);
  EXPECT_FALSE(ablage.alle_schliessen());
  EXPECT_NE(ablage.letzter_fehler().find("/dev/full"), std::string::npos);
  EXPECT_TRUE(ordner.da("b.dat"));
}

TEST_F(SichernTest, DeletingClearsTheReadOnlyMark) {
  ordner.schreib("A.dat", "old");
  ::chmod(ordner.pfad("A.dat").c_str(), 0444);
  EXPECT_TRUE(ablage.Datei_Loeschen("a.DAT"));
  EXPECT_EQ(ordner.namen(), Namen{});
}

TEST_F(SichernTest, DeletingALinkLeavesItsTarget) {
  ordner.schreib("target.dat", "old");
  ::chmod(ordner.pfad("target.dat").c_str(), 0444);
  std::filesystem::create_symlink("target.dat", ordner.pfad("a.dat"));
  EXPECT_TRUE(ablage.Datei_Loeschen("a.dat"));
  EXPECT_EQ(ordner.namen(), Namen{"target.dat"});
  EXPECT_EQ(modus("target.dat"), 0444U);
}

TEST_F(SichernTest, DeletingAFolderIsRefusedWithTheFixedText) {
  std::filesystem::create_directory(ordner.pfad("a.dat"));
  EXPECT_FALSE(ablage.Datei_Loeschen("a.dat"));
  EXPECT_EQ(ablage.letzter_fehler(), "\r\nCan not delete/overwrite file:   - a.dat - ");
  EXPECT_TRUE(ordner.da("a.dat"));
}

TEST_F(SichernTest, DeletingAnAbsentFileIsNoFailure) {
  EXPECT_TRUE(ablage.Datei_Loeschen("a.dat"));
}

TEST_F(SichernTest, RecordsAreAppendedAndTheFileIsMade) {
  EXPECT_TRUE(ablage.haenge_an("a.dat", "one\r\n"));
  EXPECT_TRUE(ablage.haenge_an("A.DAT", "two", Haltbarkeit::wiederholbar));
  EXPECT_TRUE(ablage.haenge_an("a.dat", ""));
  EXPECT_EQ(ordner.lies("a.dat"), "one\r\ntwo");
  EXPECT_EQ(ordner.namen(), Namen{"a.dat"});
  EXPECT_TRUE(ablage.haenge_an(ordner.pfad("new/b.dat"), "x"));
  EXPECT_EQ(ordner.lies("new/b.dat"), "x");
}

TEST_F(SichernTest, AppendedRecordLeavesOtherNamesOfTheFile) {
  ordner.schreib("real.dat", "old");
  std::filesystem::create_symlink("real.dat", ordner.pfad("link.dat"));
  EXPECT_TRUE(ablage.haenge_an("link.dat", " new"));
  EXPECT_TRUE(std::filesystem::is_symlink(ordner.pfad("link.dat")));
  EXPECT_EQ(ordner.lies("real.dat"), "old new");
}

TEST_F(SichernTest, RecordThatDoesNotFitLeavesNothingOfItself) {
  ordner.schreib("a.dat", std::string(900, 'o'));
  EXPECT_TRUE(mit_enger_platte(1000, [this] {
    return !ablage.haenge_an("a.dat", std::string(200, 'x')) &&
           ablage.letzter_fehler().find("beyond the size") != std::string::npos &&
           ablage.haenge_an("a.dat", std::string(100, 'y')) && ablage.letzter_fehler().empty();
  }));
  EXPECT_EQ(ordner.lies("a.dat"), std::string(900, 'o') + std::string(100, 'y'));
}

TEST_F(SichernTest, AppendToAFullDeviceOrAFolderIsTold) {
  EXPECT_FALSE(ablage.haenge_an("/dev/full", "x"));
  expect_fehler("disk is full");
  std::filesystem::create_directory(ordner.pfad("a.dat"));
  EXPECT_FALSE(ablage.haenge_an("a.dat", "x"));
  expect_fehler("folder");
}

TEST_F(SichernTest, RefusalThatLastsIsLoggedOnce) {
  std::filesystem::create_directory(ordner.pfad("a.dat"));
  for (int versuch = 0; versuch < 5; ++versuch) {
    EXPECT_FALSE(ablage.haenge_an("a.dat", "x"));
    expect_fehler("folder");
  }
  EXPECT_EQ(meldungen.zeilen().size(), 1U);
  EXPECT_FALSE(ablage.schreib_ganz("/dev/full", "x"));  // another one
  EXPECT_FALSE(ablage.haenge_an("a.dat", "x"));
  EXPECT_EQ(meldungen.zeilen().size(), 3U);
  EXPECT_TRUE(ablage.schreib_ganz("b.dat", "x"));
  EXPECT_FALSE(ablage.haenge_an("a.dat", "x"));
  EXPECT_EQ(meldungen.zeilen().size(), 4U);
}

TEST_F(SichernTest, AppendedRecordIsReadByACopyAtOnce) {
  Dateikopie<std::string> kopie;
  const auto text = [](std::optional<std::string>&& inhalt) { return inhalt.value_or(""); };
  const Schrittfolge ein_schritt(ablage);
  EXPECT_EQ(kopie.hol(ablage, "a.dat", text), "");
  ablage.haenge_an("a.dat", "one");
  EXPECT_EQ(kopie.hol(ablage, "a.dat", text), "one");
  ablage.haenge_an("a.dat", "two");
  EXPECT_EQ(kopie.hol(ablage, "a.dat", text), "onetwo");
}
