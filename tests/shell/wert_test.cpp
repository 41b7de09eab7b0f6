#include "shell/wert.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <cstring>
#include <random>

using namespace polarkreis;

TEST(Wert, CommaAndPointAreEqual) {
  EXPECT_EQ(Wert("1,5"), 1.5);
  EXPECT_EQ(Wert("1.5"), 1.5);
  EXPECT_EQ(Wert(",5"), 0.5);
  EXPECT_EQ(Wert(".5"), 0.5);
  EXPECT_EQ(Wert("-0,25"), -0.25);
}

TEST(Wert, EmptyTextIsZero) {
  EXPECT_EQ(Wert(""), 0);
  EXPECT_EQ(Wert("   "), 0);
  EXPECT_EQ(Wert("\t"), 0);
}

TEST(Wert, TextWithBothSeparatorsIsTakenAsItStands) {
  EXPECT_EQ(Wert("1.234,5"), 1.234);
  EXPECT_EQ(Wert("1,234.5"), 1);
}

TEST(Wert, OnlyTheFirstCommaBecomesAPoint) {
  EXPECT_EQ(Wert("12,5,3"), 12.5);
  EXPECT_EQ(Wert("1.2.3"), 1.2);
}

TEST(Wert, LeadingNumberCounts) {
  EXPECT_EQ(Wert("12 kW"), 12);
  EXPECT_EQ(Wert("  7,5 bar"), 7.5);
  EXPECT_EQ(Wert("kW"), 0);
  EXPECT_EQ(Wert("--"), 0);
  EXPECT_EQ(Wert("  -"), 0);
  EXPECT_EQ(Wert("- 5"), 0);
  EXPECT_EQ(Wert("."), 0);
  EXPECT_EQ(Wert(","), 0);
  EXPECT_EQ(Wert("5."), 5);
  EXPECT_EQ(Wert("5,"), 5);
}

TEST(Wert, SignIsAccepted) {
  EXPECT_EQ(Wert("+3"), 3);
  EXPECT_EQ(Wert("-3"), -3);
  EXPECT_EQ(Wert("+-3"), 0);
  EXPECT_EQ(Wert("+"), 0);
}

TEST(Wert, ExponentIsEOrDInEitherCase) {
  EXPECT_EQ(Wert("1E2"), 100);
  EXPECT_EQ(Wert("1e+2"), 100);
  EXPECT_EQ(Wert("1D2"), 100);
  EXPECT_EQ(Wert("1,5d-2"), 0.015);
}

TEST(Wert, LetterWithoutDigitsIsNoExponent) {
  EXPECT_EQ(Wert("1e"), 1);
  EXPECT_EQ(Wert("1e+"), 1);
  EXPECT_EQ(Wert("1 e5"), 1);
  EXPECT_EQ(Wert(std::string_view("1\0e5", 4)), 1);
}

TEST(Wert, WordsForNumbersAreNoNumbers) {
  EXPECT_EQ(Wert("inf"), 0);
  EXPECT_EQ(Wert("-inf"), 0);
  EXPECT_EQ(Wert("nan"), 0);
  EXPECT_EQ(Wert("0x10"), 0);
}

TEST(Wert, NumberBeyondTheRangeIsEmpty) {
  EXPECT_TRUE(ist_leer(Wert("1e999")));
  EXPECT_TRUE(ist_leer(Wert("-1e999")));
  EXPECT_TRUE(ist_leer(Wert("1e99999999999999999999")));
  EXPECT_TRUE(ist_leer(Wert(std::string(400, '9'))));
}

TEST(Wert, NumberTooSmallIsZero) {
  EXPECT_EQ(Wert("1e-999"), 0);
  EXPECT_EQ(Wert("1e-99999999999999999999"), 0);
  EXPECT_EQ(Wert("0e999"), 0);
  EXPECT_EQ(Wert("0," + std::string(400, '0') + "1"), 0);
}

TEST(Wert, ZeroHasNoSign) {
  EXPECT_FALSE(std::signbit(Wert("-0")));
  EXPECT_FALSE(std::signbit(Wert("-0,00")));
}

TEST(Wert, LongTextsAreNotCut) {
  EXPECT_EQ(Wert("1," + std::string(200, '0') + "5"), 1);
  EXPECT_EQ(Wert(std::string(100, ' ') + "2,5"), 2.5);
  EXPECT_EQ(Wert(std::string(100, '0') + "2,5"), 2.5);
}

TEST(Setze, OnlyFiniteValuesAreAssigned) {
  double target = 3;
  setze(target, leer);
  EXPECT_EQ(target, 3);
  setze(target, 1 / std::fabs(0.0));
  EXPECT_EQ(target, 3);
  setze(target, 4);
  EXPECT_EQ(target, 4);
}

TEST(Int, IsTheNextWholeNumberDownward) {
  EXPECT_EQ(Int(2.9), 2);
  EXPECT_EQ(Int(-2.1), -3);
}

TEST(Anzeige, IsCutUnlessRoundingIsWanted) {
  EXPECT_EQ(geschnitten(1.239), 1.23);
  EXPECT_EQ(geschnitten(-1.231), -1.24);
  EXPECT_EQ(gerundet(1.236), 1.24);
  EXPECT_EQ(gerundet(1.234), 1.23);
}

TEST(ZahlText, HasNoTrailingZerosAndNoMinusZero) {
  EXPECT_EQ(Zahl_Text(0), "0");
  EXPECT_EQ(Zahl_Text(-0.0), "0");
  EXPECT_EQ(Zahl_Text(1.50), "1.5");
  EXPECT_EQ(Zahl_Text(-12.05), "-12.05");
  EXPECT_EQ(Zahl_Text(100), "100");
  EXPECT_EQ(Zahl_Text(-40), "-40");
  EXPECT_EQ(Zahl_Text(0.3), "0.3");
}

TEST(ZahlText, HasAtMostFifteenDigits) {
  EXPECT_EQ(Zahl_Text(1.0 / 3), "0.333333333333333");
  EXPECT_EQ(Zahl_Text(2.0 / 3), "0.666666666666667");
  EXPECT_EQ(Zahl_Text(0.1 + 0.2), "0.3");
  EXPECT_EQ(Zahl_Text(99999999999999.99), "100000000000000");
}

TEST(ZahlText, ExponentStandsOnlyOutsideThePlainRange) {
  EXPECT_EQ(Zahl_Text(0.00001234), "0.00001234");
  EXPECT_EQ(Zahl_Text(1e-5), "0.00001");
  EXPECT_EQ(Zahl_Text(0.00000999), "9.99E-06");
  EXPECT_EQ(Zahl_Text(1.5e-7), "1.5E-07");
  EXPECT_EQ(Zahl_Text(-1.5e-7), "-1.5E-07");
  EXPECT_EQ(Zahl_Text(123456789012345), "123456789012345");
  EXPECT_EQ(Zahl_Text(1e15), "1E+15");
  EXPECT_EQ(Zahl_Text(1e20), "1E+20");
  EXPECT_EQ(Zahl_Text(1.25e300), "1.25E+300");
  EXPECT_EQ(Zahl_Text(999999999999999.9), "1E+15");
}

TEST(ZahlText, EmptyNumberIsTheEmptyText) {
  EXPECT_EQ(Zahl_Text(leer), "");
  EXPECT_EQ(Zahl_Text(HUGE_VAL), "");
}

TEST(ZahlText, IsAppendedBehindWhatStands) {
  std::string text = "x=";
  Zahl_anhaengen(text, 1.25);
  Zahl_anhaengen(text, leer);
  Zahl_anhaengen(text, -3);
  EXPECT_EQ(text, "x=1.25-3");
}

namespace {

/// The C library's rounding to 15 digits is the second way; its exponent limits differ below.
std::string mit_printf(double value) {
  char text[40];
  std::snprintf(text, sizeof text, "%.15g", value);
  for (char* c = text; *c != '\0'; ++c)
    if (*c == 'e') *c = 'E';
  return text;
}

void vergleiche(double value) {
  const double betrag = std::fabs(value);
  if (betrag > 9e-6 && betrag < 1.1e-4) {
    EXPECT_EQ(std::strtod(Zahl_Text(value).c_str(), nullptr),
              std::strtod(mit_printf(value).c_str(), nullptr));
  } else {
    EXPECT_EQ(Zahl_Text(value), mit_printf(value));
  }
}

}  // namespace

TEST(ZahlText, AgreesWithThePrintedFormOverRandomNumbers) {
  std::mt19937_64 zufall(7);
  std::uniform_real_distribution<double> wert(-1, 1);
  std::uniform_int_distribution<int> stellen(-30, 30);
  std::uniform_int_distribution<int> ganze(-2'000'000, 2'000'000);
  for (int i = 0; i < 200'000; ++i) {
    vergleiche(wert(zufall) * std::pow(10, stellen(zufall)));
    vergleiche(ganze(zufall) / 100.0);
    vergleiche(ganze(zufall) / 1000.0);
    vergleiche(std::nextafter(ganze(zufall) / 100.0, 1e9));
    vergleiche(ganze(zufall) / 10000.0);
    const double rauschen = ganze(zufall) / 10.0 - 0.97 * (ganze(zufall) / 10.0);
    vergleiche(rauschen);
    vergleiche(rauschen * (1 + (i % 17 - 8) * 1.1102230246251565e-16));
  }
}

TEST(ZahlText, AgreesWithThePrintedFormAtTies) {
  // 16 digits that end in 5: the shortest digits stand between two numbers of 15.
  std::mt19937_64 zufall(11);
  std::uniform_int_distribution<std::int64_t> ziffern(100'000'000'000'000, 899'999'999'999'999);
  for (int i = 0; i < 100'000; ++i) {
    const auto ganz = static_cast<double>(ziffern(zufall) * 10 + 5);
    vergleiche(ganz);
    vergleiche(ganz / 1e8);
    vergleiche(ganz / 1e16);
  }
}

TEST(ZahlText, IsReadBackAsTheSameNumber) {
  std::mt19937_64 zufall(3);
  std::uniform_int_distribution<std::int64_t> ziffern(-999'999'999'999'999, 999'999'999'999'999);
  for (int i = 0; i < 100'000; ++i) {
    const double value = static_cast<double>(ziffern(zufall)) / 1e6;
    EXPECT_EQ(Wert(Zahl_Text(value)), value);
  }
}
