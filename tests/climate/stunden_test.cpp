#include <gtest/gtest.h>

#include <cmath>

#include "climate/jahresgang.h"

using namespace polarkreis;

namespace {

TEST(Stundentemperatur, AfternoonIsTheDaysAndEarlyMorningTheNightsFigure) {
  for (const double day : {28.7, -3.3, 0.1, 17.7}) {
    for (const double night : {18.7, -7.8, 0.3}) {
      EXPECT_EQ(Stundentemperatur(day, night, 15), day);
      EXPECT_EQ(Stundentemperatur(day, night, 5), night);
    }
  }
}

TEST(Stundentemperatur, SharesOfTheHours) {
  constexpr std::array<double, 24> f{.7,  .8,  .9, .97, 1,   .99, .92, .84, .74, .64, .51, .38,
                                     .18, .04, 0,  .01, .04, .11, .18, .26, .34, .42, .53, .61};
  for (int hour = 1; hour <= 24; ++hour) {
    EXPECT_NEAR(Stundentemperatur(30, 20, hour), 30 - 10 * f[static_cast<std::size_t>(hour - 1)],
                1e-12)
        << hour;
  }
}

TEST(Stundentemperatur, OtherHoursAreEmpty) {
  for (const int hour : {0, 25, -5}) {
    EXPECT_TRUE(ist_leer(Stundentemperatur(30, 20, hour)));
    EXPECT_TRUE(ist_leer(Stundenlast(100, 50, hour)));
    EXPECT_TRUE(ist_leer(Stundenlast_Anteil(hour)));
  }
}

TEST(Stundenlast, SharesOfTheHours) {
  constexpr std::array<double, 24> p{10, 10, 5,   5,  0,  5,  10, 15, 25, 35, 50, 60,
                                     75, 90, 100, 90, 75, 60, 50, 40, 30, 25, 20, 15};
  for (int hour = 1; hour <= 24; ++hour) {
    const double share = p[static_cast<std::size_t>(hour - 1)];
    EXPECT_EQ(Stundenlast_Anteil(hour), share) << hour;
    EXPECT_NEAR(Stundenlast(100, 40, hour), 40 + .6 * share, 1e-12) << hour;
  }
  EXPECT_EQ(Stundenlast(90, 65, 15), 90);
  EXPECT_EQ(Stundenlast(90, 65, 5), 65);
}

TEST(Stundenfeuchte, RunsFromTheMonthsFigureByDayToNinetyTwoByNight) {
  EXPECT_EQ(Stundenfeuchte(46, 28.7, 28.7, 18.7), 46);
  EXPECT_EQ(Stundenfeuchte(46, 18.7, 28.7, 18.7), 92);
  EXPECT_EQ(Stundenfeuchte(46, 25, 30, 20), 69);
  EXPECT_EQ(Stundenfeuchte(47, 25, 30, 20), 69);  // 47 + Int(22.5)
}

TEST(Stundenfeuchte, EqualDayAndNightLeaveTheHourBefore) {
  double Feuchte = 71;
  setze(Feuchte, Stundenfeuchte(46, 20, 20, 20));
  EXPECT_EQ(Feuchte, 71);
  setze(Feuchte, Stundenfeuchte(46, 21, 20, 20));
  EXPECT_EQ(Feuchte, 71);
}

}  // namespace
