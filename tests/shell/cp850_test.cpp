#include "shell/cp850.h"

#include <gtest/gtest.h>

#include <string>

using namespace polarkreis;

namespace {

/// The published code points of the bytes 128 to 255.
constexpr std::u32string_view kPunkte =
    U"\u00C7\u00FC\u00E9\u00E2\u00E4\u00E0\u00E5\u00E7"  // 80
    U"\u00EA\u00EB\u00E8\u00EF\u00EE\u00EC\u00C4\u00C5"
    U"\u00C9\u00E6\u00C6\u00F4\u00F6\u00F2\u00FB\u00F9"  // 90
    U"\u00FF\u00D6\u00DC\u00F8\u00A3\u00D8\u00D7\u0192"
    U"\u00E1\u00ED\u00F3\u00FA\u00F1\u00D1\u00AA\u00BA"  // A0
    U"\u00BF\u00AE\u00AC\u00BD\u00BC\u00A1\u00AB\u00BB"
    U"\u2591\u2592\u2593\u2502\u2524\u00C1\u00C2\u00C0"  // B0
    U"\u00A9\u2563\u2551\u2557\u255D\u00A2\u00A5\u2510"
    U"\u2514\u2534\u252C\u251C\u2500\u253C\u00E3\u00C3"  // C0
    U"\u255A\u2554\u2569\u2566\u2560\u2550\u256C\u00A4"
    U"\u00F0\u00D0\u00CA\u00CB\u00C8\u0131\u00CD\u00CE"  // D0
    U"\u00CF\u2518\u250C\u2588\u2584\u00A6\u00CC\u2580"
    U"\u00D3\u00DF\u00D4\u00D2\u00F5\u00D5\u00B5\u00FE"  // E0
    U"\u00DE\u00DA\u00DB\u00D9\u00FD\u00DD\u00AF\u00B4"
    U"\u00AD\u00B1\u2017\u00BE\u00B6\u00A7\u00F7\u00B8"  // F0
    U"\u00B0\u00A8\u00B7\u00B9\u00B3\u00B2\u25A0\u00A0";

std::string utf8(char32_t punkt) {
  const auto byte = [](char32_t b) { return static_cast<char>(b); };
  if (punkt < 0x80) return {byte(punkt)};
  if (punkt < 0x800) return {byte(0xC0 | (punkt >> 6)), byte(0x80 | (punkt & 0x3F))};
  return {byte(0xE0 | (punkt >> 12)), byte(0x80 | ((punkt >> 6) & 0x3F)),
          byte(0x80 | (punkt & 0x3F))};
}

TEST(CP850, EachOfThe256BytesMeansItsCharacterAndComesBack) {
  ASSERT_EQ(kPunkte.size(), 128U);
  for (unsigned code = 0; code < 256; ++code) {
    const std::string byte(1, static_cast<char>(code));
    const std::string zeichen = utf8(code < 128 ? char32_t{code} : kPunkte[code - 128]);
    EXPECT_EQ(aus_CP850(byte), zeichen) << code;
    EXPECT_EQ(nach_CP850(zeichen), byte) << code;
  }
}

TEST(CP850, WholeTextsGoBothWays) {
  EXPECT_EQ(aus_CP850("K\x84lte 84.5 m\xFC/h, -10 \xF8"
                      "C"),
            "Kälte 84.5 m³/h, -10 °C");
  EXPECT_EQ(nach_CP850("Kälte 84.5 m³/h, -10 °C"),
            "K\x84lte 84.5 m\xFC/h, -10 \xF8"
            "C");
  EXPECT_EQ(aus_CP850(""), "");
  EXPECT_EQ(nach_CP850(""), "");
}

TEST(CP850, WhatThePageDoesntHoldIsAQuestionMark) {
  EXPECT_EQ(nach_CP850("5 € für č"), "5 ? f\x81r ?");
  EXPECT_EQ(nach_CP850("𝄞冷"), "??");
}

TEST(CP850, BrokenUtf8IsAQuestionMarkAndCostsNoNeighbour) {
  EXPECT_EQ(nach_CP850("a\x84z"), "a?z");
  EXPECT_EQ(nach_CP850("a\xC3z"), "a?z");
  EXPECT_EQ(nach_CP850("a\xC3"), "a?");
  EXPECT_EQ(nach_CP850("\xE2\x82"), "?");
}

}  // namespace
