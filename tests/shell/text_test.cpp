#include "shell/text.h"

#include <gtest/gtest.h>

using namespace polarkreis;

TEST(Getrimmt, BlanksAndTabsGo) {
  EXPECT_EQ(getrimmt(" \t a b \t"), "a b");
  EXPECT_EQ(links_getrimmt("  a "), "a ");
  EXPECT_EQ(rechts_getrimmt("  a "), "  a");
  EXPECT_EQ(getrimmt(" \t "), "");
  EXPECT_EQ(rechts_getrimmt(""), "");
}

TEST(Gross, LettersOfTheLanguagesAreRaised) {
  EXPECT_EQ(gross("r404a"), "R404A");
  EXPECT_EQ(gross("kälte öl ÿ"), "KÄLTE ÖL Ÿ");
  EXPECT_EQ(gross("čšžłńőęı"), "ČŠŽŁŃŐĘI");
  EXPECT_EQ(gross("șț"), "ȘȚ");
  EXPECT_EQ(gross("ψύξη αέρας όώίή"), "ΨΎΞΗ ΑΈΡΑΣ ΌΏΊΉ");
  EXPECT_EQ(gross("холод ёґђ"), "ХОЛОД ЁҐЂ");
}

TEST(Gross, WhatHasNoCapitalStays) {
  EXPECT_EQ(gross("ß÷×"), "ß÷×");
  EXPECT_EQ(gross("冷凍 مرحبا €"), "冷凍 مرحبا €");
  EXPECT_EQ(gross("\xE4\xFF\xC3"), "\xE4\xFF\xC3");
}

TEST(Gross, IsTheSameWhenAppliedTwice) {
  for (char32_t z = 0x80; z < 0x800; ++z) {
    const std::string text = {static_cast<char>(0xC0 | (z >> 6)),
                              static_cast<char>(0x80 | (z & 0x3F))};
    EXPECT_EQ(gross(gross(text)), gross(text)) << static_cast<unsigned>(z);
  }
}

TEST(Gleich, CaseAndOuterBlanksDontCount) {
  EXPECT_TRUE(gleich(" r134a", "R134A  "));
  EXPECT_TRUE(gleich("Kühlraum", "KÜHLRAUM"));
  EXPECT_TRUE(gleich("ısı", "ISI"));
  EXPECT_TRUE(gleich("", "  "));
  EXPECT_FALSE(gleich("R134a", "R134"));
  EXPECT_FALSE(gleich("Kuhlraum", "Kühlraum"));
  EXPECT_FALSE(gleich("a b", "ab"));
}

TEST(Zeichen, AreCountedNotBytes) {
  EXPECT_EQ(zeichenzahl("Kühl€"), 5U);
  EXPECT_EQ(zeichenzahl(""), 0U);
  EXPECT_EQ(erste_zeichen("Kühl", 2), "Kü");
  EXPECT_EQ(erste_zeichen("Kühl", 9), "Kühl");
  EXPECT_EQ(erste_zeichen("Kühl", 0), "");
}

TEST(AlsUtf8, ByteOrderMarkIsDropped) {
  EXPECT_EQ(als_utf8("\xEF\xBB\xBFK\xC3\xBChl"), "Kühl");
  EXPECT_EQ(als_utf8("\xEF\xBB\xBF"), "");
}

TEST(AlsUtf8, OldFilesAreReadAsWindows1252) {
  EXPECT_EQ(als_utf8("K\xFChl \x80 \x96 \xB0"), "Kühl € – °");
}

TEST(AlsUtf8, OneForeignByteDecidesForTheWholeFile) {
  EXPECT_EQ(als_utf8("\xC3\xBC \xFC"), "Ã¼ ü");
}

TEST(AlsUtf8, OnlyStrictUtf8Counts) {
  EXPECT_EQ(als_utf8("\xF0\x9F\x98\x80"), "😀");
  EXPECT_EQ(als_utf8("\xC0\xAF"), "À¯");              // overlong
  EXPECT_EQ(als_utf8("\xED\xA0\x80"), "í\xC2\xA0€");  // half of a pair
  EXPECT_EQ(als_utf8("\xE2\x82"), "â‚");              // cut off
  EXPECT_EQ(als_utf8("aaaaaaaaaaaaaaa\xE2"), "aaaaaaaaaaaaaaaâ");
}

TEST(AlsUtf8, CharacterCutOffAtTheEndLeavesTheRestAsItIs) {
  EXPECT_EQ(als_utf8("K\xC3\xBChl \xC3"), "Kühl Ã");
  EXPECT_EQ(als_utf8("K\xC3\xBChl \xE2\x82"), "Kühl â‚");
  EXPECT_EQ(als_utf8(std::string("K\xC3\xBChl \xC3\0\0", 9)), std::string("Kühl Ã\0\0", 10));
  EXPECT_EQ(als_utf8("K\xC3\xBChl \xC3 "), "KÃ¼hl Ã ");  // in the middle it decides
}

TEST(AlsUtf8, EveryByteBecomesText) {
  std::string alle;
  for (int i = 0; i < 256; ++i) alle += static_cast<char>(i);
  const std::string text = als_utf8(alle);
  EXPECT_EQ(zeichenzahl(text), 256U);
  EXPECT_EQ(als_utf8(text), text);
}
