#include "reports/csv.h"

#include <gtest/gtest.h>

#include "shell/wert.h"

using namespace polarkreis;

namespace {

constexpr const char* Marke = "\xEF\xBB\xBF";

std::string T(const char* text) {
  return text;
}

}  // namespace

TEST(Csv, NumbersAndTextsByteByByte) {
  const Tabelle tabelle{
      "t",
      {{"Time", "Po [bar]"}, {"", "- 1.9 -"}},
      {{T("06:00:00"), 1.25, Tabellenzelle{}, -7.0}, {T("  -"), leer, T("°C"), 1e20}}};
  EXPECT_EQ(als_Csv(tabelle), std::string(Marke) +
                                  "Time,Po [bar]\r\n"
                                  ",- 1.9 -\r\n"
                                  "06:00:00,1.25,,-7\r\n"
                                  "\"  -\",,°C,1E+20\r\n");
}

TEST(Csv, WhatDisturbsStandsInQuotes) {
  const Tabelle tabelle{
      "",
      {},
      {{T("a,b"), T("say \"x\""), T("two\r\nlines"), T(" edge"), T("edge\t"), T("a;b"), T("12")}}};
  EXPECT_EQ(als_Csv(tabelle), std::string(Marke) +
                                  "\"a,b\",\"say \"\"x\"\"\",\"two\r\nlines\",\" edge\","
                                  "\"edge\t\",a;b,\"12\"\r\n");
}

TEST(Csv, SemicolonComesWithTheDecimalComma) {
  const Tabelle tabelle{"", {{"a,b"}}, {{1.5, T("a;b"), -0.25, T("1,5")}}};
  EXPECT_EQ(als_Csv(tabelle, Csv_Semikolon),
            std::string(Marke) + "a,b\r\n1,5;\"a;b\";-0,25;\"1,5\"\r\n");
}

TEST(Csv, EmptyTableIsTheMarkAlone) {
  EXPECT_EQ(als_Csv({}), Marke);
}

TEST(Tabelle, OnlyATextThatIsANumberFromEndToEndBecomesOne) {
  EXPECT_EQ(als_Tabellenzelle("1.5"), Tabellenzelle(1.5));
  EXPECT_EQ(als_Tabellenzelle("-7"), Tabellenzelle(-7.0));
  EXPECT_EQ(als_Tabellenzelle(" 12 "), Tabellenzelle(12.0));
  EXPECT_EQ(als_Tabellenzelle("1E+20"), Tabellenzelle(1e20));
  EXPECT_EQ(als_Tabellenzelle(""), Tabellenzelle{});
  for (const char* text :
       {"  -", " - -", "06:00:00", "5s", "nan", "inf", "1e999", "0x10", " ", "1,5"})
    EXPECT_EQ(als_Tabellenzelle(text), Tabellenzelle(T(text))) << text;
}
