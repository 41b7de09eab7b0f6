#include "platform/ordner.h"

#include <gtest/gtest.h>
#include <stdlib.h>
#include <sys/stat.h>

#include "platform/uhr.h"
#include "support/temp_folder.h"

using namespace polarkreis;

namespace {

/// Sets the system's folder for one test.
class XdgOrdner {
 public:
  explicit XdgOrdner(const char* ordner) {
    if (const char* vorher = ::getenv("XDG_DATA_HOME")) vorher_ = vorher;
    ::setenv("XDG_DATA_HOME", ordner, 1);
  }
  ~XdgOrdner() {
    if (vorher_.empty())
      ::unsetenv("XDG_DATA_HOME");
    else
      ::setenv("XDG_DATA_HOME", vorher_.c_str(), 1);
  }
  XdgOrdner(const XdgOrdner&) = delete;
  XdgOrdner& operator=(const XdgOrdner&) = delete;

 private:
  std::string vorher_;
};

}  // namespace

TEST(DatenordnerFinden, LiesInTheSystemsFolderForData) {
  const XdgOrdner xdg("/somewhere/data");
  EXPECT_EQ(Datenordner_Finden(0), "/somewhere/data/polarkreis");
}

TEST(DatenordnerFinden, RelativeSystemFolderDoesntCount) {
  const XdgOrdner xdg("relative");
  const std::string gefunden = Datenordner_Finden(0);
  EXPECT_TRUE(gefunden.starts_with("/")) << gefunden;
  EXPECT_TRUE(gefunden.ends_with("/polarkreis")) << gefunden;
}

TEST(DatenordnerFuellen, CopiesWhatIsMissing) {
  TempOrdner ordner;
  ordner.schreib("from/a.dat", "a");
  ordner.schreib("from/b.jpg", std::string("\0\xFF", 2));
  ordner.schreib("from/samples/c.prj", "c");
  ordner.schreib("from/.hidden", "h");
  EXPECT_EQ(Datenordner_Fuellen(ordner.pfad("from"), ordner.pfad("deep/to")).kopiert, 3);
  EXPECT_EQ(ordner.lies("deep/to/a.dat"), "a");
  EXPECT_EQ(ordner.lies("deep/to/b.jpg"), std::string("\0\xFF", 2));
  EXPECT_EQ(ordner.lies("deep/to/samples/c.prj"), "c");
  EXPECT_FALSE(ordner.da("deep/to/.hidden"));
  EXPECT_EQ(Datenordner_Fuellen(ordner.pfad("from"), ordner.pfad("deep/to")).kopiert, 0);
}

TEST(DatenordnerFuellen, UsersFileStaysInAnyCase) {
  TempOrdner ordner;
  ordner.schreib("from/Caption.GER", "delivered");
  ordner.schreib("from/samples/a.prj", "delivered");
  ordner.schreib("to/CAPTION.ger", "user's");
  ordner.schreib("to/SAMPLES/A.PRJ", "user's");
  EXPECT_EQ(Datenordner_Fuellen(ordner.pfad("from"), ordner.pfad("to")).kopiert, 0);
  EXPECT_EQ(ordner.lies("to/CAPTION.ger"), "user's");
  EXPECT_EQ(ordner.lies("to/SAMPLES/A.PRJ"), "user's");
  EXPECT_FALSE(ordner.da("to/Caption.GER"));
  EXPECT_FALSE(ordner.da("to/samples"));
}

TEST(DatenordnerFuellen, EmptyFileCountsAsMissing) {
  TempOrdner ordner;
  ordner.schreib("from/COUNTRY.DAT", "delivered");
  ordner.schreib("to/country.dat", "");
  EXPECT_EQ(Datenordner_Fuellen(ordner.pfad("from"), ordner.pfad("to")).kopiert, 1);
  EXPECT_EQ(ordner.lies("to/country.dat"), "delivered");
  EXPECT_FALSE(ordner.da("to/COUNTRY.DAT"));
}

TEST(DatenordnerFuellen, CopyOfAReadOnlyFileCanBeWritten) {
  TempOrdner ordner;
  ordner.schreib("from/a.dat", "a");
  ::chmod(ordner.pfad("from/a.dat").c_str(), 0444);
  EXPECT_EQ(Datenordner_Fuellen(ordner.pfad("from"), ordner.pfad("to")).kopiert, 1);
  struct stat stand {};
  ASSERT_EQ(::stat(ordner.pfad("to/a.dat").c_str(), &stand), 0);
  EXPECT_NE(stand.st_mode & 0200, 0U);
}

TEST(DatenordnerFuellen, CountsWhatCouldNotBeWritten) {
  TempOrdner ordner;
  ordner.schreib("from/a.dat", "a");
  ordner.schreib("from/sub/b.dat", "b");
  ordner.schreib("to/SUB", "a file in place of the folder");
  const Fuellung fuellung = Datenordner_Fuellen(ordner.pfad("from"), ordner.pfad("to"));
  EXPECT_EQ(fuellung.kopiert, 1);
  EXPECT_EQ(fuellung.misslungen, 1);
  EXPECT_EQ(ordner.lies("to/SUB"), "a file in place of the folder");
}

TEST(DatenordnerFuellen, NothingToCopyMakesNothing) {
  TempOrdner ordner;
  EXPECT_EQ(Datenordner_Fuellen(ordner.pfad("nowhere"), ordner.pfad("to")).kopiert, 0);
  EXPECT_FALSE(ordner.da("to"));
  ordner.schreib("from/a.dat", "a");
  EXPECT_EQ(Datenordner_Fuellen(ordner.pfad("from"), ordner.pfad("from")).kopiert, 0);
  ordner.schreib("file", "in place of the folder");
  EXPECT_EQ(Datenordner_Fuellen(ordner.pfad("from"), ordner.pfad("file")).kopiert, 0);
}

TEST(Lieferordner, InstalledOneStandsBesideTheProgram) {
  TempOrdner ordner;
  ordner.schreib("usr/bin/program", "");
  ordner.schreib("usr/share/polarkreis/data/COUNTRY.DAT", "x");
  ordner.schreib("data/COUNTRY.DAT", "x");
  EXPECT_EQ(Lieferordner(ordner.pfad("usr/bin/program")), ordner.pfad("usr/share/polarkreis/data"));
  std::filesystem::create_symlink("usr/bin/program", ordner.pfad("link"));
  EXPECT_EQ(Lieferordner(ordner.pfad("link")), ordner.pfad("usr/share/polarkreis/data"));
}

TEST(Lieferordner, BuildTreeFindsTheCheckoutsData) {
  TempOrdner ordner;
  ordner.schreib("build/release/bin/program", "");
  ordner.schreib("build/data/other.txt", "no country table here");
  ordner.schreib("data/COUNTRY.DAT", "x");
  EXPECT_EQ(Lieferordner(ordner.pfad("build/release/bin/program")), ordner.pfad("data"));
}

TEST(Lieferordner, NoneIsTheEmptyText) {
  TempOrdner ordner;
  ordner.schreib("bin/program", "");
  EXPECT_EQ(Lieferordner(ordner.pfad("bin/program")), "");
}

TEST(Systemuhr, NothingToWaitForReturnsAtOnce) {
  Systemuhr uhr;
  uhr.Warten(0);
  uhr.Warten(-5);
  uhr.Warten(1);
}
