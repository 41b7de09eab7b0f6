#include "shell/items.h"

#include <gtest/gtest.h>

#include <random>
#include <vector>

using namespace polarkreis;

namespace {

using Items = std::vector<std::string>;

Items alle(std::string_view text) {
  Items items;
  ItemLeser leser(text);
  for (std::string item; leser.lies(item);) items.push_back(item);
  return items;
}

}  // namespace

TEST(ItemLeser, ItemsStandBetweenCommasAndLineEnds) {
  EXPECT_EQ(alle("\"a\",\"b\"\r\n\"c\"\r\n"), (Items{"a", "b", "c"}));
  EXPECT_EQ(alle("\"a\",\"b\"\n\"c\""), (Items{"a", "b", "c"}));
  EXPECT_EQ(alle("a,2.5\nb c"), (Items{"a", "2.5", "b c"}));
}

TEST(ItemLeser, BlanksAroundAreDroppedInsideQuotesKept) {
  EXPECT_EQ(alle(" \t\" a \" \t, b \t\r\n"), (Items{" a ", "b"}));
}

TEST(ItemLeser, QuotedItemHoldsCommasAndLineEnds) {
  EXPECT_EQ(alle("\"a,b\",\"c\r\nd\",e"), (Items{"a,b", "c\r\nd", "e"}));
}

TEST(ItemLeser, DoubledQuoteIsOne) {
  EXPECT_EQ(alle("\"a\"\"b\",\"\"\"\",\"\""), (Items{"a\"b", "\"", ""}));
}

TEST(ItemLeser, QuoteWithinAnUnquotedItemIsAnOrdinarySign) {
  EXPECT_EQ(alle("3\" pipe,x"), (Items{"3\" pipe", "x"}));
}

TEST(ItemLeser, EmptyLineIsOneEmptyItem) {
  EXPECT_EQ(alle("a\r\n\r\nb"), (Items{"a", "", "b"}));
  EXPECT_EQ(alle("\n"), (Items{""}));
}

TEST(ItemLeser, CommaAtALinesEndIsFollowedByAnEmptyItem) {
  EXPECT_EQ(alle("a,\r\nb"), (Items{"a", "", "b"}));
  EXPECT_EQ(alle("a,\n"), (Items{"a", ""}));
  EXPECT_EQ(alle("a,"), (Items{"a", ""}));
  EXPECT_EQ(alle(",,"), (Items{"", "", ""}));
}

TEST(ItemLeser, LastLineEndAddsNothing) {
  EXPECT_EQ(alle(""), Items{});
  EXPECT_EQ(alle("a\n"), (Items{"a"}));
  EXPECT_EQ(alle("\"a\"\r\n"), (Items{"a"}));
}

TEST(ItemLeser, WhatFollowsAClosingQuoteIsDropped) {
  EXPECT_EQ(alle("\"a\" rest,\"b\"junk\r\nc"), (Items{"a", "b", "c"}));
}

TEST(ItemLeser, UnterminatedQuoteTakesTheRest) {
  EXPECT_EQ(alle("x,\"a,b\r\nc"), (Items{"x", "a,b\r\nc"}));
  EXPECT_EQ(alle("\""), (Items{""}));
  EXPECT_EQ(alle("\"a\"\"b"), (Items{"a\"b"}));
  EXPECT_EQ(alle("\"a\"\""), (Items{"a\""}));
}

TEST(ItemLeser, LoneCarriageReturnPartsNothing) {
  EXPECT_EQ(alle("a\rb\r\nc"), (Items{"a\rb", "c"}));
}

TEST(ItemLeser, AtTheEndTheTargetStays) {
  ItemLeser leser("a");
  std::string target;
  EXPECT_TRUE(leser.lies(target));
  EXPECT_TRUE(leser.ende());
  EXPECT_FALSE(leser.lies(target));
  EXPECT_EQ(target, "a");
  EXPECT_EQ(leser.lies(), "");
}

TEST(ItemLeser, NulBytesAreOrdinarySigns) {
  EXPECT_EQ(alle(std::string_view("a\0b,\0", 5)),
            (Items{std::string("a\0b", 3), std::string(1, '\0')}));
}

TEST(Zeile, EveryItemIsQuotedAndTheLineEndsWithCrLf) {
  std::string text = "x\r\n";
  zeile_anhaengen(text, {"a", "", "b\"c", "1,5"});
  EXPECT_EQ(text, "x\r\n\"a\",\"\",\"b\"\"c\",\"1,5\"\r\n");
}

TEST(Zeile, AnyItemsComeBackAsTheyWere) {
  std::mt19937 zufall(5);
  const std::string zeichen = "ab\",\r\n \t\xC3\xBC;'";
  for (int runde = 0; runde < 5000; ++runde) {
    Items items(1 + zufall() % 6);
    for (std::string& item : items)
      for (std::size_t n = zufall() % 8; n > 0; --n) item += zeichen[zufall() % zeichen.size()];
    std::string text;
    const std::vector<std::string_view> blicke(items.begin(), items.end());
    zeile_anhaengen(text, blicke);
    zeile_anhaengen(text, {"end"});
    items.emplace_back("end");
    EXPECT_EQ(alle(text), items) << text;
  }
}

TEST(ItemLeser, AnyTextIsReadToItsEnd) {
  std::mt19937 zufall(6);
  const std::string zeichen = "a\",\r\n ";
  for (int runde = 0; runde < 20000; ++runde) {
    std::string text;
    for (std::size_t n = zufall() % 12; n > 0; --n) text += zeichen[zufall() % zeichen.size()];
    EXPECT_LE(alle(text).size(), text.size() + 1) << text;
  }
}
