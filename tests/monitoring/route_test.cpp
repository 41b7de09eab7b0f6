#include "monitoring/route.h"

#include <gtest/gtest.h>

#include "support/texte.h"

using namespace polarkreis;

namespace {

const std::vector<std::string> kTexte = {"SMS1",
                                         "SMS2",
                                         "SMS1 + SMS2",
                                         "E-Mail",
                                         "E-Mail + SMS1",
                                         "E-Mail + SMS2",
                                         "E-Mail + SMS1 + SMS2",
                                         "ftp",
                                         "ftp + SMS1",
                                         "ftp + SMS2",
                                         "ftp + SMS1 + SMS2",
                                         "ftp + E-Mail",
                                         "ftp + E-Mail + SMS1",
                                         "ftp + E-Mail + SMS2",
                                         "ftp + E-Mail + SMS1 + SMS2"};

}  // namespace

TEST(FlagFind, EachNumberHasItsTextAndEachTextItsNumber) {
  const Texte texte;
  for (int i = 1; i <= 15; ++i) {
    const std::string& text = kTexte[static_cast<std::size_t>(i - 1)];
    EXPECT_EQ(Flag_find(texte.captions, std::to_string(i), 2), text);
    EXPECT_EQ(Flag_find(texte.captions, text, 1), std::to_string(i));
  }
}

TEST(FlagFind, NumberZeroIsTheCaptionForNone) {
  for (const auto& [sprache, keine] : {std::pair{"ENG", "none"}, {"GER", "ohne"}}) {
    const Texte texte(sprache);
    EXPECT_EQ(Flag_find(texte.captions, "0", 2), keine);
    EXPECT_EQ(Flag_find(texte.captions, keine, 1), "0");
    EXPECT_EQ(Routen(texte.captions).front(), keine);
  }
}

TEST(FlagFind, NumberOutsideGivesTheTextOf15) {
  const Texte texte;
  for (const char* zahl : {"15", "16", "-1", "100", "99999999999999999999", "1e300"})
    EXPECT_EQ(Flag_find(texte.captions, zahl, 2), "ftp + E-Mail + SMS1 + SMS2") << zahl;
}

TEST(FlagFind, UnknownTextGives15) {
  const Texte texte;
  for (const char* text : {"", "  ", "fax", "SMS3", "SMS1 +", "ftp+SMS1"})
    EXPECT_EQ(Flag_find(texte.captions, text, 1), "15") << text;
}

TEST(FlagFind, TextIsTrimmedFirst) {
  const Texte texte;
  EXPECT_EQ(Flag_find(texte.captions, "  ftp + SMS2\t", 1), "10");
}

TEST(FlagFind, EmptyCaptionForNoneMatchesNothing) {
  Meldungen meldungen;
  Ablage leer("/nonexistent", meldungen);
  const Captions captions(leer);
  EXPECT_EQ(Flag_find(captions, "", 1), "15");
  EXPECT_EQ(Flag_find(captions, " ", 1), "15");
  EXPECT_EQ(Flag_find(captions, "SMS1", 1), "1");
}

// A plant that tells nobody must not begin to ring when another language is chosen.
TEST(FlagFind, WordForNoneCountsInEachLanguage) {
  const Texte deutsch("GER"), englisch("ENG");
  EXPECT_EQ(Flag_find(deutsch.captions, "none", 1), "0");
  EXPECT_EQ(Flag_find(englisch.captions, " ohne ", 1), "0");
  EXPECT_EQ(Flag_find(englisch.captions, "None", 1), "0");
  EXPECT_EQ(Flag_find(englisch.captions, "OHNE", 1), "0");
  EXPECT_EQ(Flag_find(englisch.captions, "keine", 1), "15");
  EXPECT_EQ(Flag_find(englisch.captions, "hoch", 1), "15");
}

TEST(FlagFind, RoutesAreListedInTheOrderOfTheirNumbers) {
  const Texte texte("GER");
  std::vector<std::string> erwartet = kTexte;
  erwartet.insert(erwartet.begin(), "ohne");
  EXPECT_EQ(Routen(texte.captions), erwartet);
  EXPECT_EQ(Route_alle, 15);
}
