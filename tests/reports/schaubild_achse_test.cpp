#include "reports/schaubild_achse.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "reports/svg_blatt.h"

using namespace polarkreis;

namespace {

constexpr double Schrift_12 = 12;

/// An axis of this length, level or upright.
Achsmass waagrecht(bool log, double von, double bis, double laenge = 800) {
  return {log, von, bis, 100, 100 + laenge};
}
Achsmass senkrecht(bool log, double von, double bis, double laenge = 650) {
  return {log, von, bis, 50 + laenge, 50};
}

std::vector<std::string> Texte(const Achsmass& mass) {
  std::vector<std::string> texte;
  for (const Teilstrich& strich : Teilstriche(mass, Schrift_12))
    if (!strich.text.empty()) texte.push_back(strich.text);
  return texte;
}

using Liste = std::vector<std::string>;

}  // namespace

TEST(Achsmass, PlacesAreProportionalAndLogarithmic) {
  const Achsmass gerade = waagrecht(false, 100, 500);
  EXPECT_DOUBLE_EQ(gerade.lage(100), 100);
  EXPECT_DOUBLE_EQ(gerade.lage(200), 300);
  EXPECT_DOUBLE_EQ(gerade.lage(600), 1100);
  const Achsmass log = senkrecht(true, 1, 100, 600);
  EXPECT_DOUBLE_EQ(log.lage(1), 650);
  EXPECT_DOUBLE_EQ(log.lage(10), 350);
  EXPECT_NEAR(log.lage(2), 650 - 300 * 0.301030, 1e-3);
}

TEST(Achsmass, WhatCantBeDrawnHasNoPlace) {
  for (const double wert : {leer, HUGE_VAL, -HUGE_VAL, 1e13, -1e13})
    EXPECT_TRUE(ist_leer(waagrecht(false, 0, 1).lage(wert))) << wert;
  for (const double wert : {0.0, -1.0, 1e-13, 1e13})
    EXPECT_TRUE(ist_leer(waagrecht(true, 1, 10).lage(wert))) << wert;
}

TEST(Achsmass, EmptyLimitsComeFromTheValuesWithAMargin) {
  const Achsmass gerade = Achsmass_von({"", false}, {200, leer, 400, 300, HUGE_VAL});
  EXPECT_DOUBLE_EQ(gerade.von, 192);  // 4 % of 200 on both sides
  EXPECT_DOUBLE_EQ(gerade.bis, 408);
  const Achsmass log = Achsmass_von({"", true}, {1, 100, 0, -5});
  EXPECT_NEAR(log.von, std::pow(10, -0.08), 1e-12);
  EXPECT_NEAR(log.bis, std::pow(10, 2.08), 1e-9);
}

TEST(Achsmass, GivenLimitsHoldExactly) {
  const Achsmass mass = Achsmass_von({"", true, 0.7, 57}, {1, 100});
  EXPECT_EQ(mass.von, 0.7);
  EXPECT_EQ(mass.bis, 57);
  const Achsmass halb = Achsmass_von({"", false, 0, leer}, {50, 100});
  EXPECT_EQ(halb.von, 0);
  EXPECT_DOUBLE_EQ(halb.bis, 102);
}

TEST(Achsmass, LimitsThatDontFitGiveWay) {
  const Achsmass verkehrt = Achsmass_von({"", false, 9, 3}, {0, 100});
  EXPECT_DOUBLE_EQ(verkehrt.von, -4);
  EXPECT_DOUBLE_EQ(verkehrt.bis, 104);
  const Achsmass darueber = Achsmass_von({"", false, 500, leer}, {0, 100});
  EXPECT_EQ(darueber.von, 500);
  EXPECT_DOUBLE_EQ(darueber.bis, 608);
  const Achsmass darunter = Achsmass_von({"", false, leer, -500}, {0, 100});
  EXPECT_DOUBLE_EQ(darunter.von, -608);
  EXPECT_EQ(darunter.bis, -500);
  const Achsmass negativ = Achsmass_von({"", true, -1, 20}, {2, 10});
  EXPECT_GT(negativ.von, 1);
  EXPECT_EQ(negativ.bis, 20);
}

TEST(Achsmass, NoExtentIsGivenOne) {
  const Achsmass eines = Achsmass_von({"", false}, {250});
  EXPECT_DOUBLE_EQ(eines.von, 225);
  EXPECT_DOUBLE_EQ(eines.bis, 275);
  const Achsmass null = Achsmass_von({"", false}, {0});
  EXPECT_DOUBLE_EQ(null.von, -1);
  EXPECT_DOUBLE_EQ(null.bis, 1);
  const Achsmass keines = Achsmass_von({"", false}, {leer});
  EXPECT_EQ(keines.von, 0);
  EXPECT_EQ(keines.bis, 1);
  const Achsmass keines_log = Achsmass_von({"", true}, {0});
  EXPECT_EQ(keines_log.von, 1);
  EXPECT_EQ(keines_log.bis, 10);
  for (const double wert : {1e12, -1e12, 1e-300, 3e-5})
    for (const double von : {leer, 1e12, 0.0}) {
      const Achsmass mass =
          Achsmass_von({"", false, von, leer}, {wert, std::nextafter(wert, 2e12)});
      EXPECT_LT(mass.von, mass.bis) << wert << ' ' << von;
      EXPECT_GE(Teilstriche(waagrecht(false, mass.von, mass.bis), Schrift_12).size(), 2U) << wert;
    }
}

TEST(Teilstriche, EvenStepsOfOneTwoOrFive) {
  EXPECT_EQ(Texte(waagrecht(false, 0, 10)),
            (Liste{"0", "1", "2", "3", "4", "5", "6", "7", "8", "9", "10"}));
  EXPECT_EQ(Texte(waagrecht(false, 143, 468)),
            (Liste{"150", "200", "250", "300", "350", "400", "450"}));
  EXPECT_EQ(Texte(waagrecht(false, -0.31, 0.3, 200)), (Liste{"-0.2", "0.0", "0.2"}));
  EXPECT_EQ(Texte(waagrecht(false, 0, 7e9, 300)), (Liste{"0", "5000000000"}));
}

TEST(Teilstriche, MinorLinesPartTheStepsEvenly) {
  const std::vector<Teilstrich> striche = Teilstriche(waagrecht(false, 0, 10), Schrift_12);
  ASSERT_EQ(striche.size(), 51U);  // fifths of 1
  EXPECT_DOUBLE_EQ(striche[1].wert, 0.2);
  EXPECT_EQ(striche[1].text, "");
  EXPECT_DOUBLE_EQ(striche[1].lage, 116);
  EXPECT_EQ(striche[5].text, "1");
  EXPECT_DOUBLE_EQ(striche[5].lage, 180);
}

TEST(Teilstriche, DecadesWithAsManyTextsAsFit) {
  EXPECT_EQ(Texte(senkrecht(true, 1, 100, 480)),
            (Liste{"1", "2", "3", "4", "6", "8", "10", "20", "30", "40", "60", "80", "100"}));
  EXPECT_EQ(Texte(senkrecht(true, 0.5, 60)),
            (Liste{"0.5", "0.6", "0.8", "1", "1.5", "2", "3", "4", "5", "6", "8", "10", "15", "20",
                   "30", "40", "50", "60"}));
  EXPECT_EQ(
      Texte(senkrecht(true, 0.1, 1000, 400)),
      (Liste{"0.1", "0.2", "0.5", "1", "2", "5", "10", "20", "50", "100", "200", "500", "1000"}));
  EXPECT_EQ(Texte(senkrecht(true, 1e-3, 1e6, 250)), (Liste{"0.001", "0.01", "0.1", "1", "10", "100",
                                                           "1000", "10000", "100000", "1000000"}));
  EXPECT_EQ(Texte(senkrecht(true, 1, 1e12, 160)),
            (Liste{"1", "100", "10000", "1000000", "100000000", "10000000000", "1000000000000"}));
}

TEST(Teilstriche, AllPartsOfADecadeAreLines) {
  int anzahl = 0;
  for (const Teilstrich& strich : Teilstriche(senkrecht(true, 1, 10, 600), Schrift_12))
    if (strich.wert == std::floor(strich.wert)) ++anzahl;
  EXPECT_EQ(anzahl, 10);
}

TEST(Teilstriche, AShortLogarithmicAxisHasEvenSteps) {
  EXPECT_EQ(Texte(senkrecht(true, 10, 12, 100)), (Liste{"10.0", "10.5", "11.0", "11.5", "12.0"}));
  const std::vector<Teilstrich> striche = Teilstriche(senkrecht(true, 10, 12, 100), Schrift_12);
  const auto elf = std::ranges::find(striche, "11.0", &Teilstrich::text);
  ASSERT_NE(elf, striche.end());
  EXPECT_NEAR(elf->lage, 150 - 100 * std::log10(1.1) / std::log10(1.2), 1e-9);
}

TEST(Teilstriche, TextsNeverCollide) {
  for (const double laenge : {60.0, 150.0, 400.0, 900.0})
    for (const double bis : {1.01, 1.3, 2.0, 5.0, 11.0, 150.0, 7e4, 1e11})
      for (const bool log : {false, true}) {
        const std::vector<Teilstrich> quer =
            Teilstriche(waagrecht(log, 1, bis, laenge), Schrift_12);
        double frei = -1e9;
        for (const Teilstrich& strich : quer) {
          if (strich.text.empty()) continue;
          const double halb = Textbreite(strich.text, Schrift_12) / 2;
          EXPECT_GT(strich.lage - halb, frei) << bis << ' ' << laenge << ' ' << strich.text;
          frei = strich.lage + halb;
        }
        double unterer = 1e9;
        for (const Teilstrich& strich : Teilstriche(senkrecht(log, 1, bis, laenge), Schrift_12)) {
          if (strich.text.empty()) continue;
          EXPECT_GT(unterer - strich.lage, Schrift_12) << bis << ' ' << laenge;
          unterer = strich.lage;
        }
      }
}
