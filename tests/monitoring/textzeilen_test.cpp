#include "monitoring/textzeilen.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace polarkreis;

namespace {

using Texte = std::vector<std::string>;

Texte alle(std::string_view text) {
  Textzeilen leser(text);
  Texte gelesen;
  while (!leser.ende()) gelesen.push_back(leser.lies());
  return gelesen;
}

int gebrochen(std::string_view text) {
  Textzeilen leser(text);
  while (!leser.ende()) leser.lies();
  return leser.gebrochen();
}

}  // namespace

TEST(Textzeilen, LineEndsWithLfOrCrLfAndTheLastOneAddsNone) {
  EXPECT_EQ(alle("\"a\"\r\n\"b\"\n\"c\""), (Texte{"a", "b", "c"}));
  EXPECT_EQ(alle("\"a\"\r\n"), Texte{"a"});
  EXPECT_EQ(alle(""), Texte{});
  EXPECT_EQ(alle("\r\n"), Texte{""});
  EXPECT_EQ(alle("\"\"\r\n\n\"\""), (Texte{"", "", ""}));
}

TEST(Textzeilen, EndGivesTheEmptyText) {
  Textzeilen leser("\"a\"");
  EXPECT_EQ(leser.lies(), "a");
  EXPECT_TRUE(leser.ende());
  EXPECT_EQ(leser.lies(), "");
  EXPECT_EQ(leser.gebrochen(), 0);
}

TEST(Textzeilen, EachTextHasItsOwnCharacterSet) {
  Textzeilen zeilen("\xEF\xBB\xBF\"K\xC3\xBChl\"\n\"gr\xFCn\"\n\"\xEF\xBB\xBFx\"\n\xC3\xA4\n");
  EXPECT_EQ(zeilen.lies(), "Kühl");
  EXPECT_EQ(zeilen.lies(), "grün");
  EXPECT_EQ(zeilen.lies(), "\xEF\xBB\xBFx");
  EXPECT_EQ(zeilen.lies(), "ä");
  EXPECT_TRUE(zeilen.ende());
}

TEST(Textzeilen, CommaPartsNothing) {
  EXPECT_EQ(alle("\"a, b\"\r\nc, d\r\n"), (Texte{"a, b", "c, d"}));
  EXPECT_EQ(alle("\"a\",\"b\"\r\n\"c\""), (Texte{"a\",\"b", "c"}));
}

TEST(Textzeilen, DoubledQuoteIsOneAndALineEndInQuotesIsKept) {
  EXPECT_EQ(alle("\"a \"\"b\"\" c\"\r\n"), Texte{"a \"b\" c"});
  EXPECT_EQ(alle("\"\"\"\"\r\n\"x\""), (Texte{"\"", "x"}));
  EXPECT_EQ(alle("\"a\r\nb\nc\rd\"\r\n\"x\"\n"), (Texte{"a\r\nb\nc\rd", "x"}));
  EXPECT_EQ(alle("\"\"\"\r\n\"\"\"\r\n\"x\""), (Texte{"\"\r\n\"", "x"}));
  EXPECT_EQ(gebrochen("\"\"\"\r\n\"\"\"\r\n\"x\""), 0);
}

TEST(Textzeilen, BlanksAroundALineAreDroppedAndThoseInQuotesKept) {
  EXPECT_EQ(alle(" \t\"  a\t\" \t\r\n  b  \n"), (Texte{"  a\t", "b"}));
}

TEST(Textzeilen, LineWithoutQuotesIsItsText) {
  EXPECT_EQ(alle("nm=a;\nst=b\"c\";\r\n\"x\""), (Texte{"nm=a;", "st=b\"c\";", "x"}));
}

TEST(Textzeilen, LineThatBeginsWithoutAQuoteKeepsTheOneAtItsEnd) {
  EXPECT_EQ(alle("K17 \"Nord\"\r\na\"\r\n\"b\"\r\n"), (Texte{"K17 \"Nord\"", "a\"", "b"}));
}

TEST(Textzeilen, LineOfQuotesAloneEndsAnOpenTextUnlessTheFileIsTheProgramsOwn) {
  const std::string text = "\"a\r\n\"\"\r\nb\"\r\n";
  EXPECT_EQ(alle(text), (Texte{"a", "", "b\""}));
  Textzeilen eigen(text, true);
  EXPECT_EQ(eigen.lies(), "a\r\n\"\r\nb");
  EXPECT_TRUE(eigen.ende());
  EXPECT_EQ(eigen.gebrochen(), 0);
}

TEST(Textzeilen, QuoteThatIsMissingSpoilsNoOtherLine) {
  EXPECT_EQ(alle("\"a\r\n\"b\"\r\n\"c\"\r\n"), (Texte{"a", "b", "c"}));
  EXPECT_EQ(gebrochen("\"a\r\n\"b\"\r\n\"c\"\r\n"), 1);
  EXPECT_EQ(alle("\"a\r\n\"\"\r\n\"\"\r\n\"c\"\r\n"), (Texte{"a", "", "", "c"}));
  EXPECT_EQ(alle("\"a"), Texte{"a"});
}

TEST(Textzeilen, QuoteTooManySpoilsNoOtherLine) {
  EXPECT_EQ(alle("\"a\"b\"\r\n\"c\"\r\n"), (Texte{"a\"b", "c"}));
  EXPECT_EQ(alle("\"a\"\"\r\n\"b\"\r\n"), (Texte{"a\"", "b"}));
  EXPECT_EQ(alle("\"\"a\"\r\n\"b\"\r\n"), (Texte{"\"a", "b"}));
  EXPECT_EQ(gebrochen("\"a\"b\"\r\n\"c\"\r\n\"d\"e\"\r\n"), 2);
}

TEST(Textzeilen, ManyBrokenLinesTakeLinearTime) {
  std::string text;
  for (int i = 0; i < 200'000; ++i) text += "\"\"\"\r\n";  // each opens a text that never closes
  EXPECT_FALSE(alle(text + "x").empty());
  text.clear();
  for (int i = 0; i < 200'000; ++i) text += "\"a\r\n\"\"\r\n";
  EXPECT_EQ(alle(text + "\"").size(), 400'001U);
}
