#include "reports/schaubild_linien.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "reports/platzbelegung.h"
#include "shell/wert.h"

using namespace polarkreis;

namespace {

const Bildflaeche Hundert{0, 0, 100, 100};

void erwarte_Ort(const Bildort& ort, double x, double y) {
  EXPECT_NEAR(ort.x, x, 1e-9);
  EXPECT_NEAR(ort.y, y, 1e-9);
}

}  // namespace

TEST(ImAusschnitt, ALineIsCutWhereItCrossesTheEdge) {
  const auto stuecke = im_Ausschnitt({{-50, 50}, {50, 50}, {50, 150}}, Hundert);
  ASSERT_EQ(stuecke.size(), 1U);
  ASSERT_EQ(stuecke[0].size(), 3U);
  erwarte_Ort(stuecke[0][0], 0, 50);
  erwarte_Ort(stuecke[0][1], 50, 50);
  erwarte_Ort(stuecke[0][2], 50, 100);
}

TEST(ImAusschnitt, AStretchWithBothEndsOutsideStillShows) {
  const auto stuecke = im_Ausschnitt({{-100, -50}, {300, 150}}, Hundert);
  ASSERT_EQ(stuecke.size(), 1U);
  erwarte_Ort(stuecke[0][0], 0, 0);
  erwarte_Ort(stuecke[0][1], 100, 50);
}

TEST(ImAusschnitt, LeavingAndComingBackMakesTwoPieces) {
  const auto stuecke = im_Ausschnitt({{20, 50}, {20, -50}, {80, -50}, {80, 50}}, Hundert);
  ASSERT_EQ(stuecke.size(), 2U);
  erwarte_Ort(stuecke[0].back(), 20, 0);
  erwarte_Ort(stuecke[1].front(), 80, 0);
  const auto zacke = im_Ausschnitt({{20, 50}, {50, -50}, {80, 50}}, Hundert);
  ASSERT_EQ(zacke.size(), 2U);
  erwarte_Ort(zacke[0].back(), 35, 0);
  erwarte_Ort(zacke[1].front(), 65, 0);
}

TEST(ImAusschnitt, OutsideOrAloneIsNothing) {
  EXPECT_TRUE(im_Ausschnitt({{-10, 0}, {-10, 100}}, Hundert).empty());
  EXPECT_TRUE(im_Ausschnitt({{150, 150}, {120, 300}}, Hundert).empty());
  EXPECT_TRUE(im_Ausschnitt({{50, 50}}, Hundert).empty());
  EXPECT_TRUE(im_Ausschnitt({}, Hundert).empty());
}

TEST(ImAusschnitt, APlaceThatIsNotFiniteEndsAPiece) {
  const auto stuecke =
      im_Ausschnitt({{10, 10}, {20, 20}, {leer, 30}, {40, 40}, {50, 50}, {60, HUGE_VAL}}, Hundert);
  ASSERT_EQ(stuecke.size(), 2U);
  erwarte_Ort(stuecke[0].back(), 20, 20);
  erwarte_Ort(stuecke[1].front(), 40, 40);
}

TEST(ImAusschnitt, VeryLongStretchesStayInside) {
  for (const auto& stueck : im_Ausschnitt({{-1e17, -3e16}, {2e17, 7e16}, {50, 50}}, Hundert))
    for (const Bildort& ort : stueck) {
      EXPECT_GE(ort.x, 0);
      EXPECT_LE(ort.x, 100);
      EXPECT_GE(ort.y, 0);
      EXPECT_LE(ort.y, 100);
    }
}

TEST(Geglaettet, KeepsEveryPlaceAndStraightStaysStraight) {
  const Linienzug bogen = {{0, 0}, {60, 10}, {90, 60}, {60, 110}};
  const Linienzug glatt = geglaettet(bogen);
  EXPECT_GT(glatt.size(), 20U);
  for (const Bildort& ort : bogen)
    EXPECT_EQ(std::ranges::count_if(glatt,
                                    [&](const Bildort& g) { return g.x == ort.x && g.y == ort.y; }),
              1);
  for (const Bildort& ort : geglaettet({{0, 0}, {10, 5}, {100, 50}, {120, 60}}))
    EXPECT_NEAR(ort.y, ort.x / 2, 1e-9);
}

TEST(Geglaettet, BendsOutwardBetweenThePlacesOfAnArc) {
  // Places on a circle of radius 100: the chord's middle lies 7.61 inside, the smooth line near it.
  Linienzug kreis;
  for (int n = 0; n <= 4; ++n)
    kreis.push_back({100 * std::cos(n * 0.7853981634), 100 * std::sin(n * 0.7853981634)});
  for (const Bildort& ort : geglaettet(kreis)) {
    if (ort.x > -70 && ort.x < 70) {
      EXPECT_NEAR(std::hypot(ort.x, ort.y), 100, 1);
    }
  }
}

TEST(Geglaettet, PiecesAndRepeatedPlacesAreNoTrouble) {
  const Linienzug glatt = geglaettet({{0, 0}, {0, 0}, {50, 50}, {leer, 0}, {90, 0}, {90, 90}});
  EXPECT_EQ(std::ranges::count_if(glatt, [](const Bildort& ort) { return ist_leer(ort.x); }), 1);
  for (const Bildort& ort : glatt) EXPECT_FALSE(ist_leer(ort.y));
}

TEST(Pfeilorte, OneInTheMiddleOfEachLeg) {
  const auto orte = Pfeilorte({{0, 0}, {100, 0}, {100, 60}, {0, 60}});
  ASSERT_EQ(orte.size(), 3U);
  erwarte_Ort(orte[0].ort, 50, 0);
  EXPECT_DOUBLE_EQ(orte[0].winkel, 0);
  erwarte_Ort(orte[1].ort, 100, 30);
  EXPECT_DOUBLE_EQ(orte[1].winkel, 90);
  erwarte_Ort(orte[2].ort, 50, 60);
  EXPECT_DOUBLE_EQ(orte[2].winkel, 180);
}

TEST(Pfeilorte, AGentleBendIsOneLegAndAShortOneHasNone) {
  EXPECT_EQ(Pfeilorte({{0, 0}, {50, 5}, {100, 20}, {150, 45}}).size(), 1U);
  EXPECT_EQ(Pfeilorte({{0, 0}, {30, 0}}).size(), 0U);
  EXPECT_EQ(Pfeilorte({{5, 5}, {5, 5}}).size(), 0U);
  EXPECT_EQ(Pfeilorte({}).size(), 0U);
}

TEST(Textorte, TheMiddleComesFirstAndNothingIsUpsideDown) {
  const auto level = Textorte({{100, 0}, {0, 0}}, 40);
  ASSERT_FALSE(level.empty());
  erwarte_Ort(level[0].ort, 50, 0);
  EXPECT_DOUBLE_EQ(level[0].winkel, 0);
  const auto upright = Textorte({{0, 0}, {0, 100}}, 40);
  ASSERT_FALSE(upright.empty());
  EXPECT_DOUBLE_EQ(upright[0].winkel, -90);
  const auto steep = Textorte({{0, 0}, {10, 100}}, 40);
  ASSERT_FALSE(steep.empty());
  EXPECT_NEAR(steep[0].winkel, 84.29, 0.01);
  const auto slope = Textorte({{0, 100}, {100, 0}}, 40);
  ASSERT_FALSE(slope.empty());
  EXPECT_DOUBLE_EQ(slope[0].winkel, -45);
}

TEST(Textorte, NoneOnAShortLineOrAcrossACorner) {
  EXPECT_TRUE(Textorte({{0, 0}, {40, 0}}, 40).empty());
  for (const Richtungsort& ort : Textorte({{0, 0}, {100, 0}, {100, 100}}, 40))
    EXPECT_GE(std::hypot(ort.ort.x - 100, ort.ort.y), 20);
}

TEST(Platzbelegung, ATextCostsWhatItCovers) {
  Platzbelegung belegung(Hundert);
  const Richtungsort mitte{{50, 50}, 0};
  EXPECT_EQ(belegung.Kosten(mitte, 20, 12), 0);
  belegung.belege(Linienzug{{50, 0}, {50, 100}}, 2);
  EXPECT_EQ(belegung.Kosten(mitte, 20, 12), 6);  // three fields high
  EXPECT_EQ(belegung.Kosten({{20, 50}, 0}, 20, 12), 0);
  belegung.belege(mitte, 20, 12, Platzbelegung::Vergeben);
  EXPECT_GE(belegung.Kosten({{60, 54}, 0}, 20, 12), Platzbelegung::Vergeben);
  EXPECT_EQ(belegung.Kosten({{80, 54}, 0}, 20, 12), 0);
}

TEST(Platzbelegung, OutsideIsTakenAndTurnedTextsNeedOtherPlaces) {
  Platzbelegung belegung(Hundert);
  EXPECT_GE(belegung.Kosten({{95, 50}, 0}, 20, 12), Platzbelegung::Vergeben);
  EXPECT_EQ(belegung.Kosten({{92, 50}, 90}, 20, 12), 0);
  belegung.belege(Linienzug{{0, 60}, {100, 60}}, 1);
  EXPECT_EQ(belegung.Kosten({{50, 50}, 0}, 30, 12), 0);
  EXPECT_GT(belegung.Kosten({{50, 50}, 90}, 30, 12), 0);
}
