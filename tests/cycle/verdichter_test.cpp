#include <gtest/gtest.h>

#include <cmath>

#include "cycle/kreis.h"
#include "support/kaeltemittel_umgebung.h"

using namespace polarkreis;

namespace {

struct Aufbau {
  KaeltemittelUmgebung u;
  Kreis kreis;
  KMZustand& z;
  explicit Aufbau(const std::string& name = "R22") : u(name), kreis(u.km), z(u.km.z) {}
};

TEST(MotorFaktor, FollowsTheDrive) {
  Aufbau a;
  EXPECT_DOUBLE_EQ(a.kreis.Motor_Faktor(10), 1 / (0.905 - 1.0 / 480));
  a.z.Antrieb = 2;
  EXPECT_DOUBLE_EQ(a.kreis.Motor_Faktor(10), 1 / (0.905 - 1.0 / 480));
  a.z.Antrieb = 1;
  EXPECT_DOUBLE_EQ(a.kreis.Motor_Faktor(10), 1 / (0.935 - 1.0 / 450));
  a.z.Antrieb = 3;
  EXPECT_DOUBLE_EQ(a.kreis.Motor_Faktor(10), 1 / (0.885 - 1.0 / 450));
  a.z.Antrieb = 4;
  EXPECT_DOUBLE_EQ(a.kreis.Motor_Faktor(10), 1 / (0.905 - 1.0 / 170));
}

TEST(MotorFaktor, IsCappedForSmallSizes) {
  Aufbau a;
  EXPECT_EQ(a.kreis.Motor_Faktor(0.08), 1.52);  // 1/(0.905 - 0.2604) = 1.551
  EXPECT_NEAR(a.kreis.Motor_Faktor(0.09), 1.4848, 1e-4);
  EXPECT_LT(a.kreis.Motor_Faktor(0.02), 0) << "only values above are cut";
  EXPECT_FALSE(std::isfinite(a.kreis.Motor_Faktor(0))) << "the division fails";
}

TEST(DichteFaktor, FollowsTheDrive) {
  Aufbau a;
  const double erwartet[] = {1.28, 1.14, 1.28, 1.4, 1.14};
  for (int antrieb = 0; antrieb < 5; ++antrieb) {
    a.z.Antrieb = antrieb;
    EXPECT_EQ(a.kreis.Dichte_Faktor(), erwartet[antrieb]) << antrieb;
  }
}

TEST(VerdEndtemp, FollowsItsFormula) {
  Aufbau a;
  a.z.Tc = 313.15;
  a.z.kappa2 = 1.15;
  const double T_d = a.kreis.Verd_Endtemp(10, 4, 16, 283.15, 1.2);
  // r = 4: T_1 = 283.15·4^(1/6) = 356.7466, e·g = (1/0.9)·(1/(0.905 - 1/480)) = 1.2305886,
  // d = 43.5966·1.2305886 = 53.6494; a = (4/4.85)^0.05 = 0.990411, b = (12/13.7)^0.27 = 0.964868;
  // k = 53.6494·(1 - 0.955616) = 2.38118; T_d = 313.15 + 53.6494 - 2.38118
  EXPECT_NEAR(T_d, 364.4182, 2e-3);
  // T_2 = 283.15·4^(0.15/1.15) = 339.2588
  EXPECT_NEAR(a.z.T_is, 339.2588 - 2.3812, 2e-2);
}

TEST(VerdEndtemp, RisesAbove318KelvinByTheShareOfTheCondensingTemperature) {
  // With r = 1 and kappa = 1: T_1 = T_s = Tc, so d is 0 and only c is left.
  Aufbau a;
  a.z.kappa2 = 1;
  for (const double Tc : {310.0, 317.9, 318.0}) {
    a.z.Tc = Tc;
    EXPECT_DOUBLE_EQ(a.kreis.Verd_Endtemp(10, 5, 5, Tc, 1), Tc);
  }
  a.z.Tc = 328;
  EXPECT_DOUBLE_EQ(a.kreis.Verd_Endtemp(10, 5, 5, 328, 1), 328 + 3.73);
}

TEST(VerdEndtemp, PressureBelowSuctionLosesItsCorrection) {
  Aufbau a;
  a.z.Tc = 300;
  a.z.kappa2 = 1.1;
  // b fails and is 0, so k = d and T_d falls back to Tc.
  EXPECT_DOUBLE_EQ(a.kreis.Verd_Endtemp(10, 5, 4, 320, 1.2), 300);
}

TEST(VerdEndtemp, DesignDriveAndStageChangeTheFactors) {
  Aufbau a;
  a.z.Tc = 300;
  a.z.kappa2 = 1.1;
  // At r = 4.85 a is 1; at p_d - p_s = 13.7 b is 1 as well: k is 0 and T_d = Tc + (T_1 - Tc)·e·g.
  const double p_s = 13.7 / 3.85, p_d = p_s + 13.7;
  const double T_1 = 280 * std::pow(4.85, 0.2 / 1.2);
  const double teiler[] = {0.9, 0.9, 0.91, 0.905, 0.925, 0.9};
  for (int bauart = 0; bauart < 6; ++bauart) {
    a.z.Bauart = bauart;
    EXPECT_NEAR(a.kreis.Verd_Endtemp(10, p_s, p_d, 280, 1.2),
                300 + (T_1 - 300) / teiler[bauart] * a.kreis.Motor_Faktor(10), 1e-9);
  }
  a.z.Bauart = 1;
  for (const auto& [antrieb, faktor] : {std::pair{1, 0.98}, {2, 1.0}, {3, 1.02}, {4, 1.0}}) {
    a.z.Antrieb = antrieb;
    EXPECT_NEAR(a.kreis.Verd_Endtemp(10, p_s, p_d, 280, 1.2),
                300 + (T_1 - 300) / 0.9 * a.kreis.Motor_Faktor(10) * faktor, 1e-9);
  }
  a.z.Antrieb = 0;
  a.z.Zweistufig = 33;
  const double d = (T_1 - 300) / 0.9 * a.kreis.Motor_Faktor(10);
  EXPECT_NEAR(a.kreis.Verd_Endtemp(10, p_s, p_d, 280, 1.2),
              300 + d - d * (1 - std::pow(13.7 / 16.3, 0.27)), 1e-9);
}

TEST(VerdEndtemp, SizeOfZeroMakesTheMotorFail) {
  Aufbau a;
  a.z.Tc = 300;
  a.z.kappa2 = 1.1;
  EXPECT_EQ(a.kreis.Verd_Endtemp(0, 3, 12, 280, 1.2), 300) << "g stays 0, and d with it";
}

TEST(VerdWirkungsgrad, ReciprocatingDesigns) {
  Aufbau a;
  // r = (9.9 + 0.1)/(2.6 - 0.1) = 4: (1 + (0.85/4.85)/6.5)·0.796·(1 - 1/(1.2·10^0.92 + 10))·1.02
  const double r4 = (1 + (0.85 / 4.85) / 6.5) * 0.796 * (1 - 1 / (1.2 * std::pow(10, 0.92) + 10));
  for (const int bauart : {0, 1}) {
    a.z.Bauart = bauart;
    EXPECT_NEAR(a.kreis.Verd_Wirkungsgrad(9.9, 100, 2.6, 100, 10), r4 * 1.02, 1e-12);
  }
  const double r6 = (1 + (-1.15 / 4.85) / 10) * 0.796 * (1 - 1 / (1.2 * std::pow(10, 0.92) + 10));
  EXPECT_NEAR(a.kreis.Verd_Wirkungsgrad(18, 0, 3, 0, 10), r6 * 1.02, 1e-12);
}

TEST(VerdWirkungsgrad, OtherDesignsHaveATopThatSomeFluidsRaise) {
  const auto bei = [](const char* name, int bauart, double r) {
    Aufbau a(name);
    a.z.Bauart = bauart;
    return a.kreis.Verd_Wirkungsgrad(3 * r, 0, 3, 0, 10) / 1.02 / (1 - 1.0 / 80);
  };
  const double flach = 1 + (0.85 / 4.85) / 30, steil = 1 + (-1.15 / 4.85) / 85;
  EXPECT_NEAR(bei("R134A", 2, 4), flach * (0.855 + 0.85 / 50), 1e-12);
  EXPECT_NEAR(bei("R134A", 3, 4), flach * (0.835 + 0.85 / 50), 1e-12);
  EXPECT_NEAR(bei("R22", 3, 4), flach * (0.855 + 0.85 / 50), 1e-12);
  EXPECT_NEAR(bei("r407c ", 3, 4), flach * (0.855 + 0.85 / 50), 1e-12);
  EXPECT_NEAR(bei("R134A", 2, 6), steil * 0.855, 1e-12);
  EXPECT_NEAR(bei("R134A", 3, 6), steil * 0.835, 1e-12);
  EXPECT_EQ(bei("R134A", 4, 4), 0);
}

TEST(VerdWirkungsgrad, DriveFluidAndSmallSizeScaleIt) {
  Aufbau a("R134A");
  const double mittel = a.kreis.Verd_Wirkungsgrad(12, 0, 3, 0, 10);
  a.z.Antrieb = 1;
  EXPECT_NEAR(a.kreis.Verd_Wirkungsgrad(12, 0, 3, 0, 10), mittel * 1.03 / 1.02, 1e-12);
  a.z.Antrieb = 3;
  EXPECT_NEAR(a.kreis.Verd_Wirkungsgrad(12, 0, 3, 0, 10), mittel * 0.982 / 1.02, 1e-12);
  a.z.Antrieb = 2;
  a.z.RefName = "CO2";
  EXPECT_NEAR(a.kreis.Verd_Wirkungsgrad(12, 0, 3, 0, 10), mittel * 0.88, 1e-12);
  a.z.RefName = "R23";
  EXPECT_NEAR(a.kreis.Verd_Wirkungsgrad(12, 0, 3, 0, 10), mittel * 0.83, 1e-12);
  a.z.RefName = "R134A";
  a.z.Bauart = 2;
  const double klein = (1 + (0.85 / 4.85) / 30) * (0.855 + 0.85 / 50) * 1.02;
  EXPECT_NEAR(a.kreis.Verd_Wirkungsgrad(12, 0, 3, 0, 6), klein * (1 - 1.0 / 52), 1e-12);
  EXPECT_NEAR(a.kreis.Verd_Wirkungsgrad(12, 0, 3, 0, 1), klein * (1 - 1.0 / 17) * 0.91, 1e-12);
}

}  // namespace
