#include "monitoring/zellblock.h"

#include <gtest/gtest.h>

using namespace polarkreis;

TEST(Zellblock, TabPartsCellsAndCarriageReturnRows) {
  EXPECT_EQ(Block_Text({{"a", "b"}, {"", "c d"}}), "a\tb\r\tc d");
  EXPECT_EQ(Block_Text({{"a"}}), "a");
  EXPECT_EQ(Block_Text({}), "");
}

TEST(Zellblock, TextOfASpreadsheetIsRead) {
  const Zellblock block = {{"a", "b"}, {"c", ""}};
  EXPECT_EQ(Text_Block("a\tb\rc\t"), block);
  EXPECT_EQ(Text_Block("a\tb\r\nc\t\r\n"), block);
  EXPECT_EQ(Text_Block("a\tb\nc\t\n"), block);
}

TEST(Zellblock, LastLineEndAddsNoRowAndEmptyTextHasNone) {
  EXPECT_EQ(Text_Block(""), Zellblock{});
  EXPECT_EQ(Text_Block("\r"), Zellblock{{""}});
  EXPECT_EQ(Text_Block("\r\n\r\n"), (Zellblock{{""}, {""}}));
  EXPECT_EQ(Text_Block("a\r\rb"), (Zellblock{{"a"}, {""}, {"b"}}));
}

TEST(Zellblock, RowsMayDifferInLength) {
  EXPECT_EQ(Text_Block("a\rb\tc\td\r"), (Zellblock{{"a"}, {"b", "c", "d"}}));
}

TEST(Zellblock, CellThatHoldsASeparatorStandsInQuotes) {
  EXPECT_EQ(Block_Text({{"a\tb", "c\rd", "e\nf", "\"g\"", "h\"i"}}),
            "\"a\tb\"\t\"c\rd\"\t\"e\nf\"\t\"\"\"g\"\"\"\th\"i");
}

TEST(Zellblock, BlockComesBackAsItWas) {
  const Zellblock block = {{"a\tb", "\"", "\"x\ty\"", "plain"},
                           {"c\r\nd", "", "x\"y", "  blank  "},
                           {"", "", "", "c1=tc;ro=  ;c2=  ;"}};
  EXPECT_EQ(Text_Block(Block_Text(block)), block);
}

TEST(Zellblock, LastRowOfOneEmptyCellIsARowToo) {
  EXPECT_EQ(Block_Text({{"a"}, {""}}), "a\r\r");
  EXPECT_EQ(Block_Text({{""}}), "\r");
  for (const Zellblock& block : {Zellblock{{"a"}, {""}}, Zellblock{{""}}, Zellblock{{""}, {""}},
                                 Zellblock{{"", ""}}, Zellblock{{"a", ""}, {"", ""}}})
    EXPECT_EQ(Text_Block(Block_Text(block)), block);
}

TEST(Zellblock, QuoteThatNeverClosesLosesNothing) {
  std::string alles;
  for (const auto& zeile : Text_Block("a\t\"b\tc\rd"))
    for (const std::string& zelle : zeile) alles += zelle;
  for (const char c : {'a', 'b', 'c', 'd'}) EXPECT_NE(alles.find(c), std::string::npos) << c;
}
