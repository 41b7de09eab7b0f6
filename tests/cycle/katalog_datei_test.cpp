#include "cycle/katalog_datei.h"

#include <gtest/gtest.h>

#include "katalog_ordner.h"

using namespace polarkreis;

namespace {

using Felder = Katalogdateien::Felder;

TEST(Indexdatei, IsChosenByTheSearchKind) {
  EXPECT_EQ(Indexdatei(0), "I650.DAT");
  EXPECT_EQ(Indexdatei(100), "I650.DAT");
  EXPECT_EQ(Indexdatei(1), "I600.DAT");
  for (int andere : {2, 3, 50, 99, 101, -1}) EXPECT_EQ(Indexdatei(andere), "I550.DAT") << andere;
}

TEST(Katalogcode, IsSevenLettersOrDigits) {
  for (const char* code : {"BOREALX", "borealx", "A1B2C3D"}) EXPECT_TRUE(ist_Katalogcode(code));
  for (const char* code :
       {"", "BOREAL", "BOREALXY", "../../x", "BORE LX", "K\xC3\xA4lteX", "BOREA.X"})
    EXPECT_FALSE(ist_Katalogcode(code)) << code;
}

TEST(Katalogcode, NamesTheFiles) {
  EXPECT_EQ(Bauteildatei("BOREALX"), "BOREALXN.rdm");
  EXPECT_EQ(Listendatei("BOREALX"), "BOREALXI.rdm");
}

TEST(TypAusCode, ComesFromTheLastTwoLetters) {
  EXPECT_EQ(Typ_aus_Code("ABCDEEX"), 1);
  EXPECT_EQ(Typ_aus_Code("ABCDEKP"), 2);
  EXPECT_EQ(Typ_aus_Code("ABCDEVD"), 3);
  EXPECT_EQ(Typ_aus_Code("ABCDEKD"), 4);
  EXPECT_EQ(Typ_aus_Code("ABCDEMV"), 7);
  EXPECT_EQ(Typ_aus_Code("abcdevd"), 3);
}

TEST(TypAusCode, ComesFromTheFirstTwoWhereTheLastTellNothing) {
  EXPECT_EQ(Typ_aus_Code("KABCDEF"), 5);
  EXPECT_EQ(Typ_aus_Code("kabcdef"), 5);
  EXPECT_EQ(Typ_aus_Code("KABCDVD"), 3);
  EXPECT_EQ(Typ_aus_Code("KABCDEX"), 1);
}

TEST(TypAusCode, IsZeroForAnyOtherCode) {
  for (const char* code : {"ABCDEFG", "EXABCDE", "VDKDKPX", "AKABCDE"})
    EXPECT_EQ(Typ_aus_Code(code), 0) << code;
}

TEST(Satznummer, IsANumberFromOneOn) {
  EXPECT_EQ(Satznummer("2"), 2);
  EXPECT_EQ(Satznummer(" 68 "), 68);
  EXPECT_EQ(Satznummer("2.9"), 2);
  for (const char* text : {"", "0", "0.9", "-3", "x", "1e30", "1e999", "-1e999", "2147483648"})
    EXPECT_EQ(Satznummer(text), 0) << text;
}

TEST(Feldzeilen, EachLineIsARow) {
  Katalogordner o;
  EXPECT_EQ(o.dateien.Feldzeilen("f", "\"a\",\"b, c\"\r\n\r\nd,e\n\"f\",\"\"", 2),
            (std::vector<Felder>{{"a", "b, c"}, {"d", "e"}, {"f", ""}}));
  EXPECT_TRUE(o.dateien.Feldzeilen("f", "", 2).empty());
  EXPECT_TRUE(o.meldungen.zeilen().empty());
}

TEST(Feldzeilen, ARowMayGoOverLines) {
  Katalogordner o;
  EXPECT_EQ(o.dateien.Feldzeilen("f", "\"a\"\r\n\"b\"\r\n\"c\"\r\n\"d\",\"e\",\"f\"\r\n", 3),
            (std::vector<Felder>{{"a", "b", "c"}, {"d", "e", "f"}}));
}

TEST(Feldzeilen, ARowThatLostAFieldCostsOnlyItself) {
  Katalogordner o;
  EXPECT_EQ(o.dateien.Feldzeilen(
                "f.dat", "\"a\",\"b\",\"c\"\r\n\"x\",\"y\"\r\n\"d\",\"e\",\"f\"\r\n\"z\"", 3),
            (std::vector<Felder>{{"a", "b", "c"}, {"d", "e", "f"}}));
  EXPECT_TRUE(o.gemeldet("f.dat: the row that begins with \"x\" has 2 of 3 fields"));
  EXPECT_TRUE(o.gemeldet("f.dat: the row that begins with \"z\" has 1 of 3 fields"));
}

TEST(Feldzeilen, AFieldTooManyIsLeftOutAndTold) {
  Katalogordner o;
  EXPECT_EQ(o.dateien.Feldzeilen("f", "\"a\",\"b\",\"c\"\r\n\"d\",\"e\"\r\n", 2),
            (std::vector<Felder>{{"a", "b"}, {"d", "e"}}));
  EXPECT_TRUE(o.gemeldet("f: the row that begins with \"c\" has 1 of 2 fields: left out"));
}

TEST(Feldzeilen, ACommaAtALinesEndAddsNothing) {
  Katalogordner o;
  EXPECT_EQ(o.dateien.Feldzeilen("f", "a,b,\r\nc\r\nd\r\n", 2),
            (std::vector<Felder>{{"a", "b"}, {"c", "d"}}));
  EXPECT_TRUE(o.meldungen.zeilen().empty());
}

TEST(Feldzeilen, ALineMayHoldSeveralRows) {
  Katalogordner o;
  EXPECT_EQ(o.dateien.Feldzeilen("f", "a,b,c,d\r\ne,f,g\r\nh\r\n", 2),
            (std::vector<Felder>{{"a", "b"}, {"c", "d"}, {"e", "f"}, {"g", "h"}}));
  EXPECT_TRUE(o.meldungen.zeilen().empty());
}

TEST(Feldzeilen, ALineThatCantBeginARowGoesOnWithTheOneBefore) {
  Katalogordner o;
  const auto beginnt = [](const Felder& zeile) { return zeile[0] == "A" || zeile[0] == "C"; };
  EXPECT_EQ(o.dateien.Feldzeilen("f", "A\nb,C\nd\n", 2, beginnt),
            (std::vector<Felder>{{"A", "b"}, {"C", "d"}}));
  EXPECT_TRUE(o.meldungen.zeilen().empty());
  EXPECT_EQ(o.dateien.Feldzeilen("f", "A\nC,d\n", 2, beginnt), (std::vector<Felder>{{"C", "d"}}));
  EXPECT_TRUE(o.gemeldet("\"A\" has 1 of 2 fields"));
}

TEST(Feldzeilen, AQuotedFieldMayHoldALineEnd) {
  Katalogordner o;
  EXPECT_EQ(o.dateien.Feldzeilen("f", "\"a\r\nb\" , \"c \"\"x\"\"\nd\"\r\n\"e\",\"f\"\r\n", 2),
            (std::vector<Felder>{{"a\r\nb", "c \"x\"\nd"}, {"e", "f"}}));
  EXPECT_TRUE(o.meldungen.zeilen().empty());
}

TEST(Feldzeilen, ALostQuoteCostsNoOtherRow) {
  Katalogordner o;
  EXPECT_EQ(o.dateien.Feldzeilen("f", "\"a\",\"b\r\n\"c\",\"d\"\r\n\"e\",\"f", 2),
            (std::vector<Felder>{{"a", "b"}, {"c", "d"}, {"e", "f"}}));
  EXPECT_EQ(o.dateien.Feldzeilen("f", "\"a,\"b\"\r\n\"\",\"d\"\r\n", 2),
            (std::vector<Felder>{{"", "d"}}));
  EXPECT_TRUE(o.gemeldet("has 1 of 2 fields"));
}

TEST(Katalogliste, TakesTheFirstSevenCharactersAsTheCode) {
  Katalogordner o;
  o.schreib("katalg.lst", "\"FIRNEVD  Luftkühler\"\r\n\"BOREALX\"\r\nSKADEKD Verflüssiger\r\n");
  const auto liste = o.dateien.Katalogliste();
  ASSERT_EQ(liste.size(), 3U);
  EXPECT_EQ(liste[0].code, "FIRNEVD");
  EXPECT_EQ(liste[0].Text, "Luftkühler");
  EXPECT_EQ(liste[1].code, "BOREALX");
  EXPECT_EQ(liste[1].Text, "");
  EXPECT_EQ(liste[2].code, "SKADEKD");
  EXPECT_TRUE(o.meldungen.zeilen().empty());
}

TEST(Katalogliste, ALineMayHoldSeveralCodes) {
  Katalogordner o;
  o.schreib("katalg.lst",
            "\"FIRNEVD\",\"BOREALX Verdichter,\nhalbhermetisch\"\r\nSKADEKD, KAMMERX \r\n");
  std::vector<std::string> codes;
  for (const Katalogzeile& zeile : o.dateien.Katalogliste()) codes.push_back(zeile.code);
  EXPECT_EQ(codes, (std::vector<std::string>{"FIRNEVD", "BOREALX", "SKADEKD", "KAMMERX"}));
  EXPECT_TRUE(o.meldungen.zeilen().empty());
}

TEST(Katalogliste, TextThatLostItsQuotesIsNoCode) {
  Katalogordner o;
  o.schreib("katalg.lst", "SKADEKD Verflüssiger, Axial, kompakte Bauform\r\n");
  ASSERT_EQ(o.dateien.Katalogliste().size(), 1U);
  EXPECT_TRUE(o.gemeldet("\"Axial\" begins with no code"));
  EXPECT_TRUE(o.gemeldet("\"kompakte Bauform\" begins with no code"));
}

TEST(Katalogliste, WhatIsNoCodeIsLeftOutAndTold) {
  Katalogordner o;
  o.schreib("KATALG.LST", "\"SHORT\"\r\n\"../../x\"\r\n\r\n\"BOREALX\"\r\n");
  ASSERT_EQ(o.dateien.Katalogliste().size(), 1U);
  EXPECT_TRUE(o.gemeldet("\"SHORT\" begins with no code of seven letters"));
  EXPECT_TRUE(o.gemeldet("\"../../x\" begins with no code of seven letters"));
  o.dateien.Katalogliste();
  EXPECT_EQ(o.meldungszahl("SHORT"), 1);
}

TEST(Katalogliste, OfAMissingFileIsEmptyAndMakesNone) {
  Katalogordner o;
  EXPECT_TRUE(o.dateien.Katalogliste().empty());
  EXPECT_TRUE(o.dateien.Index(0).empty());
  EXPECT_TRUE(o.namen().empty());
  EXPECT_TRUE(o.meldungen.zeilen().empty());
}

TEST(Index, HasFourFieldsARow) {
  Katalogordner o;
  o.schreib("I600.DAT",
            "\"FIRNEVD\",\"Höfler\",\"Luftkühler, 4 mm\",\"2\"\r\n"
            "\" FIRNEVD \",\" Höfler \",\"Luftkühler, 7 mm\",\"52\"\r\n");
  const auto index = o.dateien.Index(1);
  ASSERT_EQ(index.size(), 2U);
  EXPECT_EQ(index[0].code, "FIRNEVD");
  EXPECT_EQ(index[0].Hersteller, "Höfler");
  EXPECT_EQ(index[0].Katalogtext, "Luftkühler, 4 mm");
  EXPECT_EQ(index[0].Anfang, 2);
  EXPECT_EQ(index[1].code, "FIRNEVD");
  EXPECT_EQ(index[1].Hersteller, "Höfler");
  EXPECT_EQ(index[1].Anfang, 52);
  EXPECT_TRUE(o.dateien.Index(0).empty());
  EXPECT_TRUE(o.dateien.Index(2).empty());
}

TEST(Index, RowsMayBeBrokenAnywhere) {
  Katalogordner o;
  o.schreib("I550.DAT",
            "\"SKADEKD\"\r\n\"M\",\"t\",\"2\",\"FIRNEVD\"\r\n\"N\",\"u\",\"52\"\r\n"
            "\"BOREALX\",\"O\",\"v\",\"3\",\"BOREALX\",\"O\",\"w\",\"4\"\r\n");
  std::vector<int> anfang;
  for (const Indexzeile& zeile : o.dateien.Index(2)) anfang.push_back(zeile.Anfang);
  EXPECT_EQ(anfang, (std::vector<int>{2, 52, 3, 4}));
  EXPECT_TRUE(o.meldungen.zeilen().empty());
}

TEST(Index, RowsThatNameNoCatalogueAreLeftOutAndTold) {
  Katalogordner o;
  o.schreib(
      "I550.DAT",
      "\"TOOLONGX\",\"M\",\"t\",\"2\"\r\n\"SKADEKD\",\"M\"\r\n\"SKADEKD\",\"M\",\"t\",\"2\"\r\n");
  EXPECT_EQ(o.dateien.Index(2).size(), 1U);
  EXPECT_TRUE(o.gemeldet("I550.DAT: \"TOOLONGX\" is no code of seven letters"));
  EXPECT_TRUE(o.gemeldet("I550.DAT: the row that begins with \"SKADEKD\" has 2 of 4 fields"));
}

TEST(Index, AWrongCodeBehindATornRowCostsNoOtherRow) {
  Katalogordner o;
  o.schreib("I550.DAT",
            "\"FIRNEVD\",\"M\"\r\n\"SHORT\",\"M\",\"t\",\"2\"\r\n"
            "\"SKADEKD\",\"M\",\"t\",\"2\"\r\n");
  const auto index = o.dateien.Index(2);
  ASSERT_EQ(index.size(), 1U);
  EXPECT_EQ(index[0].code, "SKADEKD");
  EXPECT_TRUE(o.gemeldet("\"FIRNEVD\" has 2 of 4 fields"));
  EXPECT_TRUE(o.gemeldet("\"SHORT\" is no code"));
}

TEST(Index, OfAnotherKindOfFileDoesntFloodTheMessageLog) {
  Katalogordner o;
  std::string inhalt;
  for (int n = 0; n < 5000; ++n)
    inhalt += "text " + std::to_string(n) + std::string(500, 'x') + "\n";
  o.schreib("I550.DAT", inhalt);
  EXPECT_TRUE(o.dateien.Index(2).empty());
  ASSERT_EQ(o.meldungen.zeilen().size(), 101U);
  EXPECT_TRUE(o.meldungen.zeilen().back().ends_with("I550.DAT: more is wrong: not told"));
  for (const std::string& zeile : o.meldungen.zeilen()) EXPECT_LT(zeile.size(), 200U);
}

TEST(Index, ARowWithoutAStartStaysAndIsTold) {
  Katalogordner o;
  o.schreib("I650.DAT",
            "\"BOREALX\",\"M\",\"t\",\"0\"\r\n\"BOREALX\",\"M\",\"t\",\"1e99\"\r\n"
            "\"BOREALX\",\"M\",\"t\",\"two\"\r\n");
  const auto index = o.dateien.Index(100);
  ASSERT_EQ(index.size(), 3U);
  for (const Indexzeile& zeile : index) EXPECT_EQ(zeile.Anfang, 0);
  for (const char* text : {"\"0\"", "\"1e99\"", "\"two\""})
    EXPECT_TRUE(o.gemeldet(std::string(text) + " is no record to begin with")) << text;
}

}  // namespace
