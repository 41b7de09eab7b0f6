#include <cmath>

#include "logph_platz.h"

using namespace polarkreis;

namespace {

constexpr double p0 = 2.00603, pc = 10.1659;  // R134A at -10 and 40 °C

/// A two-stage plant of one caller.
struct Gestuft : LogphPlatz {
  explicit Gestuft(const std::string& modul) {
    form.modul = modul;
    form.Zweistufig = 1;
  }
  double p_m() { return rechne().p_m; }
};

}  // namespace

TEST(LogphMitteldruck, TheSinglePointFormAddsTwoOffsetsToTheLowPressure) {
  Gestuft g("MonoF");
  g.form.p_Int_Scroll = 1;
  EXPECT_DOUBLE_EQ(g.p_m(), p0 + 1);
  g.form.p_Int_Scroll2 = 1.5;
  EXPECT_DOUBLE_EQ(g.p_m(), p0 + 2.5);
  g.form.p_Int_Scroll = leer;
  EXPECT_DOUBLE_EQ(g.p_m(), p0 + 1.5);
}

TEST(LogphMitteldruck, AnOffsetOfZeroOrNoneIsFiveBar) {
  Gestuft g("MonoF");
  EXPECT_DOUBLE_EQ(g.p_m(), p0 + 5);
  g.form.p_Int_Scroll = 0;
  EXPECT_DOUBLE_EQ(g.p_m(), p0 + 5);
  g.form.p_Int_Scroll = 2;
  g.form.p_Int_Scroll2 = -2;
  EXPECT_DOUBLE_EQ(g.p_m(), p0 + 5);
}

TEST(LogphMitteldruck, ThePressureOfTheSinglePointFormIsItsBase) {
  Gestuft g("MonoF");
  g.form.p0F = 2.2;
  g.form.p_Int_Scroll = 2;
  EXPECT_DOUBLE_EQ(g.p_m(), 4.2);
  EXPECT_DOUBLE_EQ(g.form.ergebnis().p0, p0) << "the cycle goes by the temperatures";
}

TEST(LogphMitteldruck, AGivenOneIsNoneOfTheSinglePointForm) {
  Gestuft g("MonoF");
  g.form.p_m = 4;
  EXPECT_DOUBLE_EQ(g.p_m(), p0 + 5);
}

TEST(LogphMitteldruck, TwoStagePlantsTakeWhatIsGivenElseTheOffset) {
  for (const char* modul : {"2stage", "SIM_PRO"}) {
    Gestuft g(modul);
    g.form.p_Int_Scroll = 3;
    EXPECT_DOUBLE_EQ(g.p_m(), p0 + 3) << modul;
    g.form.p_Int_Scroll = leer;
    EXPECT_DOUBLE_EQ(g.p_m(), p0 + 5) << modul;
    g.form.p_m = 4;
    EXPECT_EQ(g.p_m(), 4) << modul;
    g.form.p0F = 2.2;
    EXPECT_EQ(g.p_m(), 4) << modul;
  }
}

// (2.00603 * 10.1659)^0.45 = 20.3931...^0.45, below the geometric mean of 4.516.
TEST(LogphMitteldruck, TheEconomisersRuleLiesBelowTheGeometricMean) {
  for (const char* modul : {"MonoF", "SIM_PRO", "DiaG"}) {
    Gestuft g(modul);
    g.form.ECO_OPT = 1;
    g.form.p_Int_Scroll = 2;
    g.form.p_m = 4.4;
    EXPECT_NEAR(g.p_m(), 3.883894867926738, 1e-12) << modul;
    g.form.Zweistufig = 0;
    EXPECT_NEAR(g.p_m(), 3.883894867926738, 1e-12) << modul;
    EXPECT_LT(g.p_m(), std::sqrt(p0 * pc));
  }
}

TEST(LogphMitteldruck, WithAnEconomiserTheTwoStageCallerKeepsItsOwn) {
  Gestuft g("2stage");
  g.form.ECO_OPT = 1;
  EXPECT_DOUBLE_EQ(g.p_m(), p0 + 5);
  g.form.p_m = 4.4;
  EXPECT_EQ(g.p_m(), 4.4);
}

TEST(LogphMitteldruck, AMeasuredOneCountsElseTheEconomisersRuleOnTheMeasuredPressures) {
  Gestuft g("DiaG");
  g.form.p0F = 2.1;
  g.form.pcF = 10;
  g.form.p_m = 5;
  EXPECT_EQ(g.p_m(), 5);
  g.form.p_m = leer;
  EXPECT_NEAR(g.p_m(), 3.935488816801381, 1e-12);  // 21^0.45
  g.form.p_m = 5;
  g.form.ECO_OPT = 9;
  EXPECT_NEAR(g.p_m(), 3.935488816801381, 1e-12);
}

// 4 bar lie between 3.49659 at 5 °C and 4.14607 at 10 °C.
TEST(LogphMitteldruck, ItsTemperatureLiesOnTheDewLine) {
  Gestuft g("2stage");
  g.form.p_m = 4;
  EXPECT_NEAR(g.rechne().t_m, 5 + 5 * (4 - 3.49659) / (4.14607 - 3.49659), 1e-9);
  EXPECT_EQ(g.z.p_m, 4);
  EXPECT_EQ(g.z.t_m, g.form.ergebnis().t_m);
  // A blend: 5 bar lie between 4.60713 at 0 °C and 5.46906 at 5 °C on the dew line.
  LogphPlatz blend("R407C", -30, 40);
  blend.form.modul = "2stage";
  blend.form.Zweistufig = 1;
  blend.form.p_m = 5;
  EXPECT_NEAR(blend.rechne().t_m, 5 * (5 - 4.60713) / (5.46906 - 4.60713), 1e-9);
}

TEST(LogphMitteldruck, ASingleStageHasNone) {
  LogphPlatz p;
  p.form.p_m = 4;
  const logp_H::Ergebnis& e = p.rechne();
  EXPECT_TRUE(ist_leer(e.p_m));
  EXPECT_TRUE(ist_leer(e.t_m));
  EXPECT_TRUE(ist_leer(p.z.p_m));
}
