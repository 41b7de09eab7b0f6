#include "platform/prozess.h"

#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <string>
#include <thread>

#include "support/temp_folder.h"

namespace polarkreis {
namespace {

struct Prozess : testing::Test {
  TempOrdner ordner;

  void programm(std::string_view name, std::string_view inhalt, bool ausfuehrbar = true) const {
    ordner.schreib(name, inhalt);
    using std::filesystem::perms;
    std::filesystem::permissions(ordner.pfad(name),
                                 ausfuehrbar ? perms::owner_all : perms::owner_read);
  }
};

TEST_F(Prozess, FindsAProgramUnderItsNameWithoutItsEndingAndInAnyCase) {
  const Prozessstart start(ordner.pfad());
  EXPECT_EQ(start.finden("frigdraw.exe"), "");
  programm("FrigDraw", "#!/bin/sh\n");
  EXPECT_EQ(start.finden("frigdraw.exe"), ordner.pfad("FrigDraw"));
  programm("frigdraw", "#!/bin/sh\n");
  EXPECT_EQ(start.finden("frigdraw.exe"), ordner.pfad("frigdraw"));
  programm("frigdraw.exe", "#!/bin/sh\n");
  EXPECT_EQ(start.finden("frigdraw.exe"), ordner.pfad("frigdraw.exe"));
}

TEST_F(Prozess, AFolderAPathAndAFileWithoutTheRightToRunAreNone) {
  Prozessstart start(ordner.pfad());
  std::filesystem::create_directories(ordner.pfad("folder.exe"));
  programm("plain.exe", "text", false);
  programm("sub/inside.exe", "#!/bin/sh\n");
  for (const char* name : {"folder.exe", "plain.exe", "sub/inside.exe", "../x.exe", "", ".exe"})
    EXPECT_FALSE(start.starten(name)) << name;
}

TEST_F(Prozess, RunsTheProgramWithoutAShellReadingItsName) {
  programm("a;b $(x).exe", "#!/bin/sh\necho run > \"$(dirname \"$0\")/done\"\n");
  Prozessstart start(ordner.pfad());
  EXPECT_TRUE(start.starten("a;b $(x).exe"));
  for (int n = 0; n < 1000 && !ordner.da("done"); ++n)
    std::this_thread::sleep_for(std::chrono::milliseconds(10));
  EXPECT_TRUE(ordner.da("done"));
}

TEST_F(Prozess, AProgramThatTheSystemCannotRunIsMissing) {
  programm("broken.exe", "#!/absent/interpreter\n");
  Prozessstart start(ordner.pfad());
  EXPECT_FALSE(start.starten("broken.exe"));
}

TEST(ProzessOrdner, IsTheOneOfThisProgram) {
  const Prozessstart start;
  EXPECT_EQ(std::filesystem::path(start.finden("test_start")),
            std::filesystem::read_symlink("/proc/self/exe"));
}

}  // namespace
}  // namespace polarkreis
