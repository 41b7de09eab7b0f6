#include <gtest/gtest.h>

#include "support/kaeltemittel_umgebung.h"
#include "support/referenz.h"
#include "support/temp_folder.h"

using namespace polarkreis;

namespace {

constexpr const char* mit_glide =
    "250,2,2.5,150,350,1300,12\n255,3,3.5,160,352,1290,16\n260,4.5,5,170,354,1280,22\n"
    "265,6,6.5,180,356,1270,28\n300,20,22,240,370,1100,90\n";

double tausp(double p, double mode) {
  TempOrdner ordner;
  ordner.schreib("R407C.DAT", mit_glide);
  KaeltemittelUmgebung u("R407C", ordner.pfad());
  return u.km.Sat_TausP(p, mode);
}

TEST(SatTausP, MatchesTheReference) {
  const auto referenz = referenz_lesen("refrigerant/tausp_referenz.csv");
  ASSERT_GT(referenz.size(), 200u);
  for (const Referenzzeile& r : referenz) {
    KaeltemittelUmgebung u(r.name);
    // The last digit may hang on the last bit of a value that is cut.
    EXPECT_NEAR(u.km.Sat_TausP(r("p"), r("mode")), r("t"), 1e-9)
        << r.name << " " << r("p") << " " << r("mode");
  }
}

TEST(SatTausP, PureFluidGivesOneTemperatureForAllLines) {
  KaeltemittelUmgebung u("R22");
  // between 2.96197 bar at -15 °C and 3.54786 bar: f = 0.0649098, t = -14.6754 -> cut -14.68
  EXPECT_EQ(u.km.Sat_TausP(3, 177), -14.68);
  for (const double mode : {187.0, 167.0, 300.0}) EXPECT_EQ(u.km.Sat_TausP(3, mode), -14.68);
}

TEST(SatTausP, BlendHasTwoLinesAndTheirMean) {
  // p = 4: dew between 3 and 4.5, f = 2/3: 255 - 273.15 + 10/3 = -14.8167;
  // bubble between 3.5 and 5, f = 1/3: 255 - 273.15 + 5/3 = -16.4833; mean -15.65
  EXPECT_EQ(tausp(4, 167), -14.82);
  EXPECT_EQ(tausp(4, 187), -16.49);
  EXPECT_NEAR(tausp(4, 177), -15.65, 0.011);
}

TEST(SatTausP, AnyOtherModeIsTheTemperatureOfTheEnteringLiquid) {
  // h1 on the bubble line: 160 + 10/3 = 163.3333; h2 = 352, the row below without interpolation;
  // h3 at 282.5 K: 180 + (17.5/35)·60 = 210. w = (142/188.6667)/2 = 0.3763251;
  // t_b + |t_d - t_b|·(1 - w) = -16.48333 + 1.66667·0.6236749 = -15.44388
  EXPECT_EQ(tausp(4, 282.5), -15.45);
}

TEST(SatTausP, PressureBelowTheTableTakesTheFirstRowsTemperature) {
  EXPECT_EQ(tausp(1, 167), -23.15);
  EXPECT_EQ(tausp(1, 187), -23.15);
  EXPECT_EQ(tausp(1, 177), -23.15);
  KaeltemittelUmgebung u("R22");
  EXPECT_EQ(u.km.Sat_TausP(0.1, 167), -65);
  EXPECT_EQ(u.km.Sat_TausP(8, 167), u.km.Sat_TausP(8, 187));
  EXPECT_EQ(u.km.Sat_TausP(0.1, 177), -65) << "also after a search within the table";
  EXPECT_EQ(u.km.Sat_TausP(0.279441, 177), -65) << "and at the first row's pressure";
}

TEST(SatTausP, LeavesTheBracketOfTheDewLineForTheNamedModes) {
  TempOrdner ordner;
  ordner.schreib("R407C.DAT", mit_glide);
  KaeltemittelUmgebung u("R407C", ordner.pfad());
  u.km.Sat_TausP(4, 187);
  EXPECT_EQ(u.km.z.Klammer.Unten.T, 3);
  EXPECT_EQ(u.km.z.Klammer.Unten.p_d, 255);
}

}  // namespace
