#include "logph_platz.h"

using namespace polarkreis;

namespace {

/// A plant of R744 that was asked for the pressure of one gas cooler temperature.
struct Gaskuehler : LogphPlatz {
  explicit Gaskuehler(double t, double tu_davor = leer) : LogphPlatz("R744") {
    form.tu_Scroll = tu_davor;
    form.GC_Druck(t);
  }
};

}  // namespace

// The optimum at 31 °C is 79.5 bar.
TEST(LogphGCDruck, FromThirtyOneDegreesItIsTheOptimumCutToWholeBar) {
  const Gaskuehler g(31);
  EXPECT_EQ(g.form.P_hoch, 79);
  EXPECT_EQ(g.form.p_GC_Scroll, 79);
  EXPECT_EQ(g.z.P_hoch, 79);
  EXPECT_EQ(g.z.pc, 79);
  EXPECT_EQ(Gaskuehler(35).form.P_hoch, 89);  // 67 + 25 * 9 / 10 = 89.5
  EXPECT_EQ(Gaskuehler(36).form.P_hoch, 92);
  EXPECT_EQ(Gaskuehler(50).form.P_hoch, 128);
}

TEST(LogphGCDruck, BelowThirtyOneDegreesItIsTheSaturationPressure) {
  EXPECT_EQ(Gaskuehler(30).form.P_hoch, 72);  // the table's last row: 72.1369
  EXPECT_EQ(Gaskuehler(22).form.P_hoch, 60);  // 57.2905 + 2 / 5 * (64.3424 - 57.2905) = 60.111
  EXPECT_EQ(Gaskuehler(0).form.P_hoch, 34);
  // Behind the last row its line goes on: 72.1369 + 0.9 / 5 * (72.1369 - 64.3424) = 73.540
  EXPECT_EQ(Gaskuehler(30.9).form.P_hoch, 73);
  EXPECT_EQ(Gaskuehler(30.9).z.pc, 73);
}

TEST(LogphGCDruck, AboveFiftyDegreesNothingIsSet) {
  LogphPlatz p("R744");
  p.form.P_hoch = 95;
  p.z.pc = 60;
  p.form.GC_Druck(50.1);
  EXPECT_EQ(p.form.P_hoch, 95);
  EXPECT_EQ(p.z.P_hoch, 0);
  EXPECT_EQ(p.z.pc, 60);
  EXPECT_TRUE(ist_leer(p.form.p_GC_Scroll));
}

TEST(LogphGCDruck, NothingComesOfAnEmptyTemperatureOrOneBelowTheTable) {
  for (const double t : {leer, -70.0}) {
    const Gaskuehler g(t);
    EXPECT_EQ(g.form.P_hoch, 0) << t;
    EXPECT_TRUE(ist_leer(g.form.p_GC_Scroll)) << t;
  }
}

TEST(LogphGCDruck, TheLastTestThatIsMetGivesTheCompanionValue) {
  EXPECT_EQ(Gaskuehler(32.9).form.tu_Scroll, 1);
  EXPECT_EQ(Gaskuehler(32).form.tu_Scroll, 1);
  EXPECT_EQ(Gaskuehler(31.9).form.tu_Scroll, 1.5);
  EXPECT_EQ(Gaskuehler(31).form.tu_Scroll, 1.5);
  EXPECT_EQ(Gaskuehler(30.9).form.tu_Scroll, 3);
  EXPECT_EQ(Gaskuehler(-20).form.tu_Scroll, 3);
}

TEST(LogphGCDruck, FromThirtyThreeDegreesTheCompanionValueStays) {
  EXPECT_EQ(Gaskuehler(33, 4).form.tu_Scroll, 4);
  EXPECT_EQ(Gaskuehler(60, 4).form.tu_Scroll, 4);
  EXPECT_TRUE(ist_leer(Gaskuehler(33).form.tu_Scroll));
}
