#include "cycle/bauteile.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "katalog_ordner.h"

using namespace polarkreis;

namespace {

constexpr int kAlle = 48;

std::vector<int> nummern(const std::vector<Bauteil>& bauteile) {
  std::vector<int> alle;
  for (const Bauteil& b : bauteile) alle.push_back(b.Satz);
  return alle;
}

std::vector<int> gefunden(Katalogordner& o, int anfang, const std::string& text) {
  return nummern(Bauteile(o.dateien, "BOREALX").suche(anfang, kAlle, Suchmuster(text)));
}

TEST(Katalogtyp, IsTheDigitThatRecord51BeginsWith) {
  Katalogordner o;
  for (int ziffer = 0; ziffer <= 9; ++ziffer) {
    o.bauteile("ABCDEVD", {{51, {std::to_string(ziffer) + " rest"}}});
    const std::string vorher = o.lies("ABCDEVDN.rdm");
    EXPECT_EQ(vorher[50 * 570], '0' + ziffer);
    EXPECT_EQ(Katalogtyp(o.dateien, "ABCDEVD"), ziffer);
    EXPECT_EQ(o.lies("ABCDEVDN.rdm"), vorher);
  }
}

TEST(Katalogtyp, OfABlankDigitComesFromTheCodeAndIsWrittenBack) {
  Katalogordner o;
  const struct {
    const char* code;
    int typ;
  } codes[] = {{"ABCDEEX", 1}, {"ABCDEKP", 2}, {"ABCDEVD", 3}, {"ABCDEKD", 4},
               {"ABCDEMV", 7}, {"KABCDEF", 5}, {"ABCDEFG", 0}};
  for (const auto& [code, typ] : codes) {
    o.bauteile(code, {{2, {"first"}}, {51, {" kept", "\x81"}}, {60, {"last"}}});
    std::string soll = o.lies(std::string(code) + "N.rdm");
    soll[50 * 570] = static_cast<char>('0' + typ);
    EXPECT_EQ(Katalogtyp(o.dateien, code), typ) << code;
    EXPECT_EQ(o.lies(std::string(code) + "N.rdm"), soll) << code;
    EXPECT_EQ(Katalogtyp(o.dateien, code), typ) << code;
  }
  EXPECT_TRUE(o.meldungen.zeilen().empty());
}

TEST(Katalogtyp, ANulCountsAsABlank) {
  Katalogordner o;
  o.schreib("ABCDEKDN.rdm", std::string(51 * 570, '\0'));
  EXPECT_EQ(Katalogtyp(o.dateien, "ABCDEKD"), 4);
  std::string soll(51 * 570, '\0');
  soll[50 * 570] = '4';
  EXPECT_EQ(o.lies("ABCDEKDN.rdm"), soll);
}

TEST(Katalogtyp, OfAFileThatEndsBeforeItsRecordIsWrittenBehindBlanks) {
  Katalogordner o;
  o.bauteile("ABCDEVD", {{2, {"only"}}});
  std::string soll = o.lies("ABCDEVDN.rdm");
  soll.resize(51 * 570, ' ');
  soll[50 * 570] = '3';
  EXPECT_EQ(Katalogtyp(o.dateien, "ABCDEVD"), 3);
  EXPECT_EQ(o.lies("ABCDEVDN.rdm"), soll);
}

TEST(Katalogtyp, OfAnAbsentFileComesFromTheCodeAndMakesNone) {
  Katalogordner o;
  EXPECT_EQ(Katalogtyp(o.dateien, "ABCDEMV"), 7);
  o.schreib("ABCDEKPN.rdm", "");
  EXPECT_EQ(Katalogtyp(o.dateien, "ABCDEKP"), 2);
  EXPECT_EQ(o.namen(), std::vector<std::string>{"ABCDEKPN.rdm"});
  EXPECT_EQ(o.lies("ABCDEKPN.rdm"), "");
}

TEST(Katalogtyp, OfAReadOnlyFileIsGivenAllTheSame) {
  Katalogordner o;
  o.bauteile("ABCDEVD", {{51, {""}}});
  const std::string vorher = o.lies("ABCDEVDN.rdm");
  ASSERT_EQ(::chmod(o.pfad("ABCDEVDN.rdm").c_str(), 0444), 0);
  EXPECT_EQ(Katalogtyp(o.dateien, "ABCDEVD"), 3);
  EXPECT_EQ(Katalogtyp(o.dateien, "ABCDEVD"), 3);
  EXPECT_EQ(o.lies("ABCDEVDN.rdm"), vorher);
  EXPECT_EQ(o.meldungszahl("not written"), 1);
}

TEST(Katalogtyp, WhatIsNeitherDigitNorBlankStaysAndIsTold) {
  Katalogordner o;
  o.bauteile("ABCDEVD", {{51, {"x"}}});
  const std::string vorher = o.lies("ABCDEVDN.rdm");
  EXPECT_EQ(Katalogtyp(o.dateien, "ABCDEVD"), 3);
  EXPECT_EQ(o.lies("ABCDEVDN.rdm"), vorher);
  EXPECT_TRUE(o.gemeldet("record 51 begins with no digit"));
}

TEST(Bauteile, FieldsAreFortyBytesEachAsUtf8) {
  Katalogordner o;
  std::vector<std::string> felder;
  for (char c = 'a'; c < 'a' + 14; ++c) felder.push_back(std::string(40, c));
  felder[2] = "  84.5 m\xFC/h";
  felder[13] = "";
  std::string satz = Katalogordner::satz(felder);
  satz.replace(560, 10, "rest bytes");
  o.schreib("BOREALXN.rdm", Katalogordner::satz({}) + satz);
  Bauteile bauteile(o.dateien, "BOREALX");
  const auto alle = bauteile.suche(2, kAlle, Suchmuster(""));
  ASSERT_EQ(alle.size(), 1U);
  EXPECT_EQ(alle[0].Satz, 2);
  EXPECT_EQ(alle[0].Felder[0], std::string(40, 'a'));
  EXPECT_EQ(alle[0].Felder[1], std::string(40, 'b'));
  EXPECT_EQ(alle[0].Felder[2], "84.5 m³/h");
  EXPECT_EQ(alle[0].Felder[12], std::string(40, 'm'));
  EXPECT_EQ(alle[0].Felder[13], "");
}

TEST(Bauteile, AreFoundByPartOfTheFirstOrSecondFieldInAnyCase) {
  Katalogordner o;
  o.bauteile("BOREALX", {{2, {"VX 100", "Nordwerk", "in no other 100"}},
                         {3, {"VX 200", "K\x84ltebau \x99st", ""}},
                         {4, {"", "Nordwerk", "VX"}}});
  EXPECT_EQ(gefunden(o, 2, "vx"), (std::vector{2, 3}));
  EXPECT_EQ(gefunden(o, 2, "NORD"), (std::vector{2, 4}));
  EXPECT_EQ(gefunden(o, 2, "100"), std::vector{2});
  EXPECT_EQ(gefunden(o, 2, " 200 "), std::vector{3});
  EXPECT_EQ(gefunden(o, 2, "kälteBAU ös"), std::vector{3});
  EXPECT_EQ(gefunden(o, 2, "x 1"), std::vector{2});
  EXPECT_TRUE(gefunden(o, 2, "other").empty());
  EXPECT_TRUE(gefunden(o, 2, "100Nord").empty());
  EXPECT_TRUE(gefunden(o, 2, "?").empty());
}

TEST(Bauteile, TheEmptyTextFindsAll) {
  Katalogordner o;
  o.bauteile("BOREALX", {{2, {"a"}}, {3, {"", "b"}}, {4, {"c", "d"}}});
  EXPECT_EQ(gefunden(o, 2, ""), (std::vector{2, 3, 4}));
  EXPECT_EQ(gefunden(o, 2, "  "), (std::vector{2, 3, 4}));
  EXPECT_EQ(gefunden(o, 3, ""), (std::vector{3, 4}));
}

TEST(Bauteile, AnEmptyPairEndsTheCatalogue) {
  Katalogordner o;
  o.bauteile("BOREALX", {{2, {"a"}}, {3, {"", "", "other fields"}}, {4, {"a"}}});
  EXPECT_EQ(gefunden(o, 2, "a"), std::vector{2});
  EXPECT_TRUE(gefunden(o, 3, "a").empty());
  EXPECT_EQ(gefunden(o, 4, "a"), std::vector{4});
}

TEST(Bauteile, RecordsOfNulBytesAreEmpty) {
  Katalogordner o;
  o.schreib("BOREALXN.rdm", Katalogordner::satz({"a" + std::string(39, '\0'), "b"}) +
                                std::string(570, '\0') + Katalogordner::satz({"a"}));
  const auto alle = Bauteile(o.dateien, "BOREALX").suche(1, kAlle, Suchmuster("a"));
  ASSERT_EQ(alle.size(), 1U);
  EXPECT_EQ(alle[0].Felder[0], "a");
}

TEST(Bauteile, NoMoreRecordsThanAskedForAreRead) {
  Katalogordner o;
  std::map<int, std::vector<std::string>> saetze;
  for (int n = 1; n <= 120; ++n) saetze[n] = {"m"};
  saetze[51] = {"0"};
  o.bauteile("BOREALX", saetze);
  const auto erste = gefunden(o, 2, "m");
  ASSERT_EQ(erste.size(), 48U);
  EXPECT_EQ(erste.front(), 2);
  EXPECT_EQ(erste.back(), 49);
  EXPECT_EQ(gefunden(o, 100, "m").back(), 120);
  EXPECT_TRUE(Bauteile(o.dateien, "BOREALX").suche(2, 0, Suchmuster("m")).empty());
}

TEST(Bauteile, TheTypesRecordIsNoComponentAndEndsNothing) {
  Katalogordner o;
  o.bauteile("BOREALX", {{50, {"m 0"}}, {51, {"0"}}, {52, {"m 0"}}});
  EXPECT_EQ(gefunden(o, 50, "0"), (std::vector{50, 52}));
  EXPECT_EQ(gefunden(o, 51, ""), std::vector{52});
  o.bauteile("BOREALX", {{50, {"m"}}, {52, {"m"}}});
  EXPECT_EQ(gefunden(o, 50, ""), (std::vector{50, 52}));
}

TEST(Bauteile, ARecordThatIsCutOffReadsWithBlanksAndIsToldOnce) {
  Katalogordner o;
  o.schreib("BOREALXN.rdm",
            Katalogordner::satz({"a"}) + "last one" + std::string(32, ' ') + "maker");
  for (int mal = 0; mal < 2; ++mal) {
    const auto alle = Bauteile(o.dateien, "BOREALX").suche(1, kAlle, Suchmuster(""));
    ASSERT_EQ(alle.size(), 2U);
    EXPECT_EQ(alle[1].Felder[0], "last one");
    EXPECT_EQ(alle[1].Felder[1], "maker");
    EXPECT_EQ(alle[1].Felder[2], "");
  }
  EXPECT_EQ(o.meldungszahl("BOREALXN.rdm: its size is no multiple of 570 bytes"), 1);
}

TEST(Bauteile, OfAMissingFileAreNone) {
  Katalogordner o;
  EXPECT_TRUE(gefunden(o, 2, "").empty());
  EXPECT_TRUE(gefunden(o, 2, "").empty());
  EXPECT_TRUE(o.namen().empty());
  EXPECT_EQ(o.meldungszahl("BOREALXN.rdm: missing"), 1);
}

TEST(Bauteile, ABeginningOutsideTheFileFindsNothing) {
  Katalogordner o;
  o.bauteile("BOREALX", {{3, {"a"}}});
  for (int anfang : {0, -1, 4, 2000000, 2147483647, -2147483647})
    EXPECT_TRUE(gefunden(o, anfang, "").empty()) << anfang;
  EXPECT_TRUE(o.gemeldet("its 3 records end before number 2147483647"));
  EXPECT_EQ(gefunden(o, 3, ""), std::vector{3});
}

}  // namespace
