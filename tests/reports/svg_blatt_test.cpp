#include "reports/svg_blatt.h"

#include <gtest/gtest.h>

#include "svg_leser.h"

using namespace polarkreis;

TEST(SvgText, WhatXmlReservesIsReplaced) {
  EXPECT_EQ(XML_Text("a<b & \"c\" > 'd'"), "a&lt;b &amp; &quot;c&quot; &gt; 'd'");
  EXPECT_EQ(XML_Text("40 °C"), "40 °C");
}

TEST(SvgText, ControlCharactersGoAndTheRestStays) {
  EXPECT_EQ(saubere_Zeile("a\x01"
                          "b\x1B"
                          "c\x7F"
                          "d"),
            "abcd");
  EXPECT_EQ(saubere_Zeile("two\nlines\tand a tab"), "two lines and a tab");
  EXPECT_EQ(saubere_Zeile(std::string("nul\0char", 8)), "nulchar");
  EXPECT_EQ(saubere_Zeile("\xC2\x85x\xEF\xBF\xBFy"), "xy");  // U+0085, U+FFFF
  EXPECT_EQ(saubere_Zeile("Kälte, 冷, خط, 😀"), "Kälte, 冷, خط, 😀");
  EXPECT_EQ(saubere_Zeile("K\xE4lte"), "Kälte");  // an old file's bytes
}

TEST(SvgText, MeasuresHaveAtMostTwoDecimals) {
  EXPECT_EQ(Mass_Text(12.345678), "12.35");
  EXPECT_EQ(Mass_Text(12.5), "12.5");
  EXPECT_EQ(Mass_Text(1200), "1200");
  EXPECT_EQ(Mass_Text(-0.001), "0");
  EXPECT_EQ(Mass_Text(-3.999), "-4");
}

TEST(SvgText, WidthsGrowWithLettersAndSize) {
  EXPECT_GT(Textbreite("WWW", 12), Textbreite("iii", 12));
  EXPECT_DOUBLE_EQ(Textbreite("abc", 24), 2 * Textbreite("abc", 12));
  EXPECT_GT(Textbreite("abc", 12, true), Textbreite("abc", 12));
  EXPECT_GT(Textbreite("冷媒", 12), Textbreite("ab", 12));
  EXPECT_EQ(Textbreite("", 12), 0);
}

TEST(SvgText, ShortenedTextFitsAndTellsSo) {
  const std::string lang = "Suction line of the low stage";
  EXPECT_EQ(gekuerzt(lang, 1000, 12), lang);
  const std::string kurz = gekuerzt(lang, 80, 12);
  EXPECT_TRUE(kurz.ends_with("…"));
  EXPECT_TRUE(lang.starts_with(kurz.substr(0, kurz.size() - 3)));
  EXPECT_LE(Textbreite(kurz, 12), 80);
  EXPECT_GT(Textbreite(kurz, 12), 60);
  EXPECT_EQ(gekuerzt("ÄÖÜÄÖÜ", 24, 12), "Ä…");  // whole characters
  EXPECT_EQ(gekuerzt(lang, -5, 12), "…");
}

TEST(SvgText, LinesBreakAtBlanks) {
  EXPECT_EQ(umbrochen("one two three", 1000, 12), (std::vector<std::string>{"one two three"}));
  EXPECT_EQ(umbrochen(" one  two three ", 50, 12), (std::vector<std::string>{"one two", "three"}));
  EXPECT_EQ(umbrochen("", 50, 12), (std::vector<std::string>{""}));
  const auto zeilen = umbrochen("a Donaudampfschiff b", 50, 12);
  ASSERT_EQ(zeilen.size(), 3U);
  EXPECT_EQ(zeilen[0], "a");
  EXPECT_TRUE(zeilen[1].starts_with("Dona"));
  EXPECT_TRUE(zeilen[1].ends_with("…"));
  EXPECT_EQ(zeilen[2], "b");
}

TEST(SvgBlatt, AnEmptySheetByteByByte) {
  EXPECT_EQ(Svg_Blatt(30, 20.5, "A & B").fertig(),
            "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
            "<svg xmlns=\"http://www.w3.org/2000/svg\" version=\"1.1\" width=\"30\" "
            "height=\"20.5\" viewBox=\"0 0 30 20.5\" font-family=\"Helvetica, Arial, "
            "'Liberation Sans', 'DejaVu Sans', sans-serif\">\n"
            "<title>A &amp; B</title>\n"
            "<rect x=\"0\" y=\"0\" width=\"30\" height=\"20.5\" fill=\"#ffffff\"/>\n"
            "</svg>\n");
}

TEST(SvgBlatt, ShapesByteByByte) {
  Svg_Blatt blatt(10, 10, "");
  const std::size_t anfang = blatt.fertig().size() - std::string("</svg>\n").size();
  blatt.Linie({1, 2}, {3.456, 4}, {"#000000", 1.5, "4 2"});
  blatt.Zug({{0, 0}, {1, 1.255}}, {"#112233", 2});
  blatt.Vieleck({{0, 0}, {1, 0}, {1, 1}}, {"#445566"});
  blatt.Kreis({5, 6}, 2, {"none", "#ffffff", 1});
  blatt.Rechteck({0, 0, 4, 2}, {"#ffffff", {}, 0, 3}, 90);
  blatt.Text({10, 20}, "x<y", {10, Anschlag::Ende, "#222222", true, -90});
  blatt.Text({10, 20}, "", {});
  EXPECT_EQ(blatt.fertig().substr(anfang),
            "<line x1=\"1\" y1=\"2\" x2=\"3.46\" y2=\"4\" stroke=\"#000000\" "
            "stroke-width=\"1.5\" stroke-dasharray=\"4 2\"/>\n"
            "<polyline fill=\"none\" stroke-linejoin=\"round\" stroke=\"#112233\" "
            "stroke-width=\"2\" points=\"0,0 1,1.25\"/>\n"
            "<polygon fill=\"#445566\" points=\"0,0 1,0 1,1\"/>\n"
            "<circle cx=\"5\" cy=\"6\" r=\"2\" fill=\"none\" stroke=\"#ffffff\" "
            "stroke-width=\"1\"/>\n"
            "<rect x=\"0\" y=\"0\" width=\"4\" height=\"2\" rx=\"3\" "
            "transform=\"rotate(90 2 1)\" fill=\"#ffffff\"/>\n"
            "<text x=\"10\" y=\"23.5\" font-size=\"10\" font-weight=\"bold\" "
            "text-anchor=\"end\" transform=\"rotate(-90 10 20)\" fill=\"#222222\">x&lt;y</text>\n"
            "</svg>\n");
}

TEST(SvgLeser, RefusesWhatIsNotWellFormed) {
  const std::string kopf = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";
  EXPECT_NO_THROW(SvgLeser(kopf + "<a b=\"1\">t<c/></a>\n"));
  for (const char* falsch :
       {"<a><b></a></b>\n", "<a>\n", "<a>&x;</a>\n", "<a>x & y</a>\n", "<a b=\"<\"/>\n",
        "<a b=\"1\" b=\"2\"/>\n", "<a b=1/>\n", "<a/><a/>\n", "<a>\x01</a>\n", "text\n"})
    EXPECT_ANY_THROW(SvgLeser{kopf + falsch}) << falsch;
}
