// The operating figures of a project folder.

#include "simulation/energk.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "support/temp_folder.h"

using namespace polarkreis;

namespace {

struct Energk : testing::Test {
  TempOrdner folder;
  Meldungen log;
  Ablage ablage{folder.pfad(), log};
};

}  // namespace

TEST_F(Energk, AbsentFileGivesTheDefaultsAndIsNotMade) {
  const Energiedaten daten = energk_lesen(ablage, "");
  EXPECT_EQ(daten.betrstd, "18");
  EXPECT_EQ(daten.lzfaktor, ".9");
  EXPECT_EQ(daten.EnergKost, ".18");
  EXPECT_EQ(daten.JahrebetrT, "365");
  EXPECT_EQ(daten.Spezco2emission, ".58");
  EXPECT_FALSE(folder.da("energk.dat"));
}

TEST_F(Energk, FiveNumbersStandOnOneLine) {
  ASSERT_TRUE(energk_schreiben(ablage, "", {"10", "0,8", ".25", "300", ".4"}));
  EXPECT_EQ(folder.lies("energk.dat"), "\"10\",\"0,8\",\".25\",\"300\",\".4\"\r\n");
}

TEST_F(Energk, WhatWasWrittenIsReadBack) {
  const Energiedaten daten{"10", "0,8", ".25", "300", ".4"};
  ASSERT_TRUE(energk_schreiben(ablage, "", daten));
  EXPECT_EQ(energk_lesen(ablage, ""), daten);
}

TEST_F(Energk, EachEmptyItemTakesItsDefault) {
  folder.schreib("energk.dat", "\"10\",\"\",\".25\",\"\"\r\n");
  EXPECT_EQ(energk_lesen(ablage, ""), (Energiedaten{"10", ".9", ".25", "365", ".58"}));
}

TEST_F(Energk, UnquotedNumbersAreReadToo) {
  folder.schreib("energk.dat", "10,.8,.25,300,.4\n");
  EXPECT_EQ(energk_lesen(ablage, ""), (Energiedaten{"10", ".8", ".25", "300", ".4"}));
}

TEST_F(Energk, EachFolderHasItsOwn) {
  const std::string sub = folder.pfad("plants") + "/";
  ASSERT_TRUE(energk_schreiben(ablage, sub, {"10", ".8", ".25", "300", ".4"}));
  EXPECT_EQ(energk_lesen(ablage, sub).betrstd, "10");
  EXPECT_EQ(energk_lesen(ablage, "").betrstd, "18");
}

TEST_F(Energk, FolderInPlaceOfTheFileFailsAndGivesTheDefaults) {
  std::filesystem::create_directory(folder.pfad("energk.dat"));
  EXPECT_FALSE(energk_schreiben(ablage, "", {"10", ".8", ".25", "300", ".4"}));
  EXPECT_EQ(energk_lesen(ablage, ""), Energiedaten{});
}
