#include "diagnostics/antwort.h"

#include <gtest/gtest.h>

#include <random>
#include <vector>

using namespace polarkreis;

namespace {

/// A text of that length that begins with a number and ends in "ok".
std::string antwort_der_Laenge(std::size_t laenge) {
  std::string text = "230";
  while (text.size() + 2 < laenge) text += '1';
  return text + "ok";
}

std::vector<std::string> tokens(std::string_view antwort) {
  std::vector<std::string> alle;
  AntwortLeser leser(antwort);
  for (std::string_view token; leser.lies(token);) {
    alle.emplace_back(token);
    EXPECT_EQ(leser.Position(), static_cast<int>(alle.size()));
  }
  return alle;
}

using Texte = std::vector<std::string>;

}  // namespace

TEST(Antwort, CountsFrom25To600Characters) {
  EXPECT_FALSE(Antwort_brauchbar(antwort_der_Laenge(24)));
  EXPECT_TRUE(Antwort_brauchbar(antwort_der_Laenge(25)));
  EXPECT_TRUE(Antwort_brauchbar(antwort_der_Laenge(600)));
  EXPECT_FALSE(Antwort_brauchbar(antwort_der_Laenge(601)));
}

TEST(Antwort, LengthIsTheTextAsReceived) {
  EXPECT_TRUE(Antwort_brauchbar(antwort_der_Laenge(23) + "\r\n"));
  EXPECT_FALSE(Antwort_brauchbar(antwort_der_Laenge(599) + "\r\n"));
}

TEST(Antwort, ThreeBlanksAtTheBeginningSpoilIt) {
  EXPECT_FALSE(Antwort_brauchbar("   " + antwort_der_Laenge(30)));
  EXPECT_TRUE(Antwort_brauchbar("  " + antwort_der_Laenge(30)));
}

TEST(Antwort, OkStandsAnywhereInLowerCase) {
  EXPECT_TRUE(Antwort_brauchbar("ok 230.1 229.8 231.0 4.1 4.2"));
  EXPECT_FALSE(Antwort_brauchbar("230.1 229.8 231.0 4.1 4.2 OK"));
  EXPECT_FALSE(Antwort_brauchbar("230.1 229.8 231.0 4.1 4.2 4.0"));
}

TEST(Antwort, EchoIsNoSample) {
  EXPECT_FALSE(Antwort_brauchbar(Messbefehl));
  EXPECT_EQ(Messbefehl.find("ok"), std::string_view::npos);
}

TEST(Antwort, ClassIsToldByALetter) {
  EXPECT_EQ(Box_Typ_von("230.1 12:05:09 ok"), 0);
  EXPECT_EQ(Box_Typ_von("230.1 12:05:09 ok m"), 1);
  EXPECT_EQ(Box_Typ_von("A 230.1 M ok"), 1);
  EXPECT_EQ(Box_Typ_von("a 230.1 ok"), 2);
}

TEST(AntwortLeser, EndsATokenAtTheNextBlank) {
  EXPECT_EQ(tokens("230.1 4,2 -18.5 12:05:09ok"), (Texte{"230.1", "4,2", "-18.5", "12:05:09"}));
}

TEST(AntwortLeser, TwoBlanksMakeAnEmptyTokenThatCounts) {
  EXPECT_EQ(tokens("1  3 45.67ok"), (Texte{"1", "", "3", "45.67"}));
}

TEST(AntwortLeser, LastTokenNeedsFiveCharactersIncludingOk) {
  EXPECT_EQ(tokens("1 1.2ok"), (Texte{"1", "1.2"}));
  EXPECT_EQ(tokens("1 12ok"), (Texte{"1"}));
  EXPECT_EQ(tokens("1 2 ok\r\n"), (Texte{"1", "2"}));
}

TEST(AntwortLeser, EndsWhereNeitherBlankNorOkIsLeft) {
  EXPECT_EQ(tokens("1 2 345678"), (Texte{"1", "2"}));
  EXPECT_EQ(tokens("1 2 3.45ok678ok"), (Texte{"1", "2", "3.45"}));
  EXPECT_EQ(tokens(""), Texte{});
}

TEST(AntwortLeser, PassesOverAnEchoBeforeTheReply) {
  EXPECT_EQ(tokens("ec %*\r230.1 4.2 12:05:09ok"), (Texte{"230.1", "4.2", "12:05:09"}));
  EXPECT_EQ(tokens("ec %*\r\n230.1 4.2 12:05:09ok"), (Texte{"230.1", "4.2", "12:05:09"}));
  EXPECT_EQ(tokens(Messbefehl), Texte{});
}

TEST(AntwortLeser, TakesAnyBytes) {
  std::mt19937 zufall(7);
  for (int runde = 0; runde < 2000; ++runde) {
    std::string bytes(zufall() % 700, '\0');
    for (char& c : bytes)
      c = static_cast<char>(zufall() % 3 == 0 ? "ok  1."[zufall() % 6] : zufall());
    std::size_t zeichen = 0;
    AntwortLeser leser(bytes);
    for (std::string_view token; leser.lies(token);) {
      zeichen += token.size();
      EXPECT_LE(Zeit_des_Tokens(token).size(), 8U);
      const double wert = Messwert_von(Kanalart_von(leser.Position()), Wert(token), 0, 1);
      EXPECT_FALSE(Zellentext(Kanalart_von(leser.Position()), wert).empty());
    }
    EXPECT_LE(zeichen, bytes.size());
  }
}

TEST(ZeitDesTokens, IsTheLast8OfTheFirst19Characters) {
  EXPECT_EQ(Zeit_des_Tokens("02.01.2026-12:05:09"), "12:05:09");
  EXPECT_EQ(Zeit_des_Tokens("02.01.2026-12:05:09:031"), "12:05:09");
  EXPECT_EQ(Zeit_des_Tokens("12:05:09"), "12:05:09");
  EXPECT_EQ(Zeit_des_Tokens("4.2"), "4.2");
  EXPECT_EQ(Zeit_des_Tokens(""), "");
}

TEST(Plausibilitaet, VoltagesAbove750SpoilTheReply) {
  Plausibilitaet p(0);
  for (int position : {1, 2, 3}) {
    EXPECT_FALSE(p.verworfen(position, 750));
    EXPECT_TRUE(p.verworfen(position, 750.1));
  }
  EXPECT_FALSE(p.verworfen(4, 751));
}

TEST(Plausibilitaet, HighSideAbove86SpoilsTheReply) {
  Plausibilitaet p(0);
  EXPECT_FALSE(p.verworfen(7, 3));
  EXPECT_FALSE(p.verworfen(8, 86));
  EXPECT_TRUE(p.verworfen(8, 86.1));
}

TEST(Plausibilitaet, LowSideIsJudgedWithItsOffset) {
  Plausibilitaet ohne(0), mit(0.5), unter(-2);
  EXPECT_FALSE(ohne.verworfen(7, 17));
  EXPECT_TRUE(ohne.verworfen(7, 17.1));
  EXPECT_FALSE(mit.verworfen(7, 16.5));
  EXPECT_TRUE(mit.verworfen(7, 16.75));
  EXPECT_FALSE(unter.verworfen(7, 19));
}

TEST(Plausibilitaet, BothPressuresAtOrBelow0SpoilTheReply) {
  Plausibilitaet p(0);
  EXPECT_FALSE(p.verworfen(7, 0));
  EXPECT_TRUE(p.verworfen(8, 0));
  EXPECT_FALSE(p.verworfen(8, 0.1));
  EXPECT_FALSE(p.verworfen(7, 0.1));
  EXPECT_FALSE(p.verworfen(8, -1));
}

TEST(Plausibilitaet, TheCombinedTestTakesTheLowSideAsReceived) {
  Plausibilitaet p(1);  // the offset lifts -0.5 above 0
  EXPECT_FALSE(p.verworfen(7, -0.5));
  EXPECT_TRUE(p.verworfen(8, 0));
}

TEST(Messwert, NegativeElectricalValuesAre0) {
  EXPECT_EQ(Messwert_von(Kanalart::elektrisch, -4.2, 0, {}), 0);
  EXPECT_EQ(Messwert_von(Kanalart::elektrisch, 4.2, 0, {}), 4.2);
}

TEST(Messwert, OffsetComesAfterTheConversion) {
  // 3 bar on the standard sensor: u = 3/2.5 + 0.5, (u - 0.5)·12.5 = 15
  EXPECT_EQ(Messwert_von(Kanalart::analog, 3, 0.25, 1), 15.25);
  EXPECT_EQ(Messwert_von(Kanalart::analog, 3, 0.25, {}), 3.25);
}

TEST(Zellentext, TemperatureLimitsAreStrict) {
  EXPECT_EQ(Zellentext(Kanalart::Temperatur, 200.0), "200");
  EXPECT_EQ(Zellentext(Kanalart::Temperatur, 200.1), "  -");
  EXPECT_EQ(Zellentext(Kanalart::Temperatur, -90.0), "-90");
  EXPECT_EQ(Zellentext(Kanalart::Temperatur, -90.1), "  -");
  EXPECT_EQ(Zellentext(Kanalart::analog, 200.1), "200.1");
  EXPECT_EQ(Zellentext(Kanalart::elektrisch, 400), "400");
}

TEST(Zellentext, NumberBeyondAllMeasureIsNoMeasurement) {
  EXPECT_EQ(Zellentext(Kanalart::elektrisch, Wert("1e999")), "  -");
}
