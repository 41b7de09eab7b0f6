#include "diagnostics/spaltenbreiten.h"

#include <gtest/gtest.h>

#include "diagnostics/messdatei_desk.h"

using namespace polarkreis;

namespace {

struct SpaltenbreitenTest : testing::Test {
  MessdateiDesk desk;
  Spaltenbreiten breiten;

  Spaltenlage lies() { return Spaltenbreiten_lesen(breiten, desk.m, desk.captions, desk.ablage); }
  /// "Diagopt.dat" of exactly so many bytes, numbers of four digits.
  void datei_von(std::size_t bytes) const {
    std::string text;
    while (text.size() < bytes) text += "\"2222\"\r\n";
    text.resize(bytes);
    desk.ordner.schreib("Diagopt.dat", text);
  }
};

}  // namespace

TEST_F(SpaltenbreitenTest, OneNumberALineInColumnOrder) {
  for (std::size_t spalte = 0; spalte <= 170; ++spalte)
    breiten.Breite[spalte] = static_cast<int>(1000 + spalte);
  ASSERT_TRUE(Spaltenbreiten_schreiben(breiten, desk.ablage));
  std::string erwartet;
  for (int spalte = 1; spalte <= 170; ++spalte)
    erwartet += "\"" + std::to_string(1000 + spalte) + "\"\r\n";
  EXPECT_EQ(desk.ordner.lies("Diagopt.dat"), erwartet);
}

TEST_F(SpaltenbreitenTest, WidthsComeBack) {
  for (std::size_t spalte = 1; spalte <= 170; ++spalte)
    breiten.Breite[spalte] = static_cast<int>(spalte % 3);
  const auto vorher = breiten.Breite;
  ASSERT_TRUE(Spaltenbreiten_schreiben(breiten, desk.ablage));
  breiten = {};
  EXPECT_EQ(lies(), Spaltenlage::gelesen);
  EXPECT_EQ(breiten.Breite, vorher);
}

TEST_F(SpaltenbreitenTest, MissingFileMeansTheStandardLayout) {
  breiten.Breite.fill(7);
  EXPECT_EQ(lies(), Spaltenlage::Standard);
  EXPECT_EQ(breiten.Breite, Spaltenbreiten{}.Breite);
  EXPECT_EQ(desk.zelle(2, 2), "- 1.9 -");
  EXPECT_EQ(desk.zelle(2, 51), "- 3.1 -");
  EXPECT_FALSE(desk.ordner.da("Diagopt.dat"));
}

TEST_F(SpaltenbreitenTest, BelowFiftyBytesMeansTheStandardLayout) {
  breiten.Breite.fill(7);
  datei_von(49);
  EXPECT_EQ(lies(), Spaltenlage::Standard);
  EXPECT_EQ(breiten.Breite, Spaltenbreiten{}.Breite);
}

TEST_F(SpaltenbreitenTest, BetweenFiftyAndFiveHundredBytesNothingHappens) {
  breiten.Breite.fill(7);
  for (std::size_t bytes : {50U, 51U, 499U, 500U}) {
    datei_von(bytes);
    EXPECT_EQ(lies(), Spaltenlage::belassen) << bytes;
    EXPECT_EQ(breiten.Breite[1], 7) << bytes;
    EXPECT_EQ(desk.zelle(1, 2), "") << bytes;
  }
}

TEST_F(SpaltenbreitenTest, AboveFiveHundredBytesTheNumbersAreRead) {
  breiten.Breite.fill(7);
  datei_von(501);
  EXPECT_EQ(lies(), Spaltenlage::gelesen);
  EXPECT_EQ(breiten.Breite[1], 2222);
  EXPECT_EQ(breiten.Breite[62], 2222);
  EXPECT_EQ(breiten.Breite[64], 7);  // columns behind the file's end keep theirs
}

TEST_F(SpaltenbreitenTest, SenselessNumbersAreBounded) {
  std::string text = "\"-5\"\r\n\"abc\"\r\n\"1E300\"\r\n\"1E400\"\r\n\"12,9\"\r\n";
  text.resize(600, ' ');
  desk.ordner.schreib("Diagopt.dat", text);
  EXPECT_EQ(lies(), Spaltenlage::gelesen);
  EXPECT_EQ(breiten.Breite[1], 0);
  EXPECT_EQ(breiten.Breite[2], 0);
  EXPECT_EQ(breiten.Breite[3], 32000);
  EXPECT_EQ(breiten.Breite[4], 0);
  EXPECT_EQ(breiten.Breite[5], 12);
}

TEST_F(SpaltenbreitenTest, NarrowestTableIsReadAgain) {
  breiten.Breite.fill(0);
  ASSERT_TRUE(Spaltenbreiten_schreiben(breiten, desk.ablage));
  EXPECT_EQ(lies(), Spaltenlage::gelesen);
}
