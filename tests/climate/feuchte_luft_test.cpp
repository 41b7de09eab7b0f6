#include "climate/feuchte_luft.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <fstream>
#include <iterator>
#include <limits>

#include "climate_desk.h"

using namespace polarkreis;

namespace {

struct FeuchteLuftTest : testing::Test {
  TempOrdner folder;
  Meldungen log;
  Ablage ablage{folder.pfad(), log};
  Luftzustand air{ablage};

  std::string data_file() const {
    std::ifstream file(std::string(POLARKREIS_DATA) + "/hxdata.dat", std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
  }
  std::size_t complaints() const {
    return static_cast<std::size_t>(std::count_if(
        log.zeilen().begin(), log.zeilen().end(),
        [](const std::string& line) { return line.find("33 numbers") != std::string::npos; }));
  }
};

// Saturation pressure in Pa by the correlation of Hyland and Wexler (1983), which the handbooks of
// the trade print: another way than the densities of the program.
double handbook_pressure(double t) {
  const double T = t + 273.15;
  if (t < 0)
    return std::exp(-5.6745359e3 / T + 6.3925247 - 9.677843e-3 * T + 6.2215701e-7 * T * T +
                    2.0747825e-9 * T * T * T - 9.484024e-13 * T * T * T * T +
                    4.1635019 * std::log(T));
  return std::exp(-5.8002206e3 / T + 1.3914993 - 4.8640239e-2 * T + 4.1764768e-5 * T * T -
                  1.4452093e-8 * T * T * T + 6.5459673 * std::log(T));
}

TEST_F(FeuchteLuftTest, SaturatedAirAtTwentyDegrees) {
  const auto state = air.Feuchte_Luft(1, 20, 1.01325);
  ASSERT_TRUE(state);
  EXPECT_NEAR(state->h, 57.44, 0.005);
  EXPECT_NEAR(state->x, 14.72, 0.005);
  EXPECT_NEAR(state->p_d, 0.02339, 0.00005);
  EXPECT_NEAR(state->p_l, 1.01325 - state->p_d, 1e-15);
  EXPECT_NEAR(state->rho, 1.1936, 0.0005);
}

TEST_F(FeuchteLuftTest, HalfSaturatedAirAtThirtyDegrees) {
  const auto state = air.Feuchte_Luft(.5, 30, 1.01325);
  ASSERT_TRUE(state);
  EXPECT_NEAR(state->x, 13.3, 0.05);
  EXPECT_NEAR(state->h, 64.2, 0.1);
}

TEST_F(FeuchteLuftTest, SaturatedAirAtTenDegreesOfFrost) {
  const auto state = air.Feuchte_Luft(1, -10, 1.01325);
  ASSERT_TRUE(state);
  EXPECT_NEAR(state->x, 1.6, 0.005);
  EXPECT_NEAR(state->h, -6.07, 0.02);
}

TEST_F(FeuchteLuftTest, IdealGasFormulasOfTheHandbookAgree) {
  for (double t = -40; t <= 50; t += 5) {
    for (const double phi : {.1, .5, 1.}) {
      const double p_d = phi * handbook_pressure(t) / 1e5;
      const double x = .621945 * p_d / (1.01325 - p_d);
      const double h = 1.006 * t + x * (2501 + 1.86 * t);
      const auto state = air.Feuchte_Luft(phi, t, 1.01325);
      ASSERT_TRUE(state);
      EXPECT_NEAR(state->x, x * 1000, 0.001 + 0.006 * x * 1000) << t << " " << phi;
      EXPECT_NEAR(state->h, h, 0.1 + 0.006 * std::abs(h)) << t << " " << phi;
    }
  }
}

TEST_F(FeuchteLuftTest, SaturatedVapourHasThePublishedDensities) {
  // Steam tables: 0.01, 20, 50, 100, 200 and 300 °C.
  EXPECT_NEAR(air.Saettigungsdichte(273.16), 0.0048546, 2e-6);
  EXPECT_NEAR(air.Saettigungsdichte(293.15), 0.017314, 5e-6);
  EXPECT_NEAR(air.Saettigungsdichte(323.15), 0.083147, 5e-5);
  EXPECT_NEAR(air.Saettigungsdichte(373.15), 0.59817, 5e-4);
  EXPECT_NEAR(air.Saettigungsdichte(473.15), 7.8610, 0.01);
  EXPECT_NEAR(air.Saettigungsdichte(573.15), 46.168, 0.1);
}

TEST_F(FeuchteLuftTest, VapourPressureSolvesTheCubicEquation) {
  for (const double t : {-30., 0., 20., 60., 150., 250.}) {
    const double T = t + 273.15;
    const double v = 1 / air.Saettigungsdichte(T);
    const double root = 1 + 1.06019 * (1 - std::sqrt(T / 647.3));
    const double p = 461.5 * T / (v - 0.00117007) - root * root * 1724.55 / (v * (v + 0.00117007));
    const auto state = air.Feuchte_Luft(1, t, 8.5);
    ASSERT_TRUE(state) << t;
    EXPECT_NEAR(state->p_d, p / 1e5, 1e-8 * p / 1e5) << t;
  }
}

TEST_F(FeuchteLuftTest, StateRunsOnThroughTheFreezingPoint) {
  const auto ice = air.Feuchte_Luft(1, -1e-9, 1.01325);
  const auto water = air.Feuchte_Luft(1, 0, 1.01325);
  ASSERT_TRUE(ice && water);
  EXPECT_NEAR(ice->x, water->x, 0.003);
  EXPECT_NEAR(ice->h, water->h, 0.01);
}

TEST_F(FeuchteLuftTest, DryAirHoldsNoVapour) {
  const auto state = air.Feuchte_Luft(0, 25, 1);
  ASSERT_TRUE(state);
  EXPECT_EQ(state->p_d, 0);
  EXPECT_EQ(state->x, 0);
  EXPECT_EQ(state->p_l, 1);
  EXPECT_NEAR(state->h, 25.1, 0.1);
  EXPECT_NEAR(state->rho, 1e5 / (287.04 * 298.15), 1e-9);
}

TEST_F(FeuchteLuftTest, ArgumentsAreCorrected) {
  const auto same = [](const std::optional<FeuchteLuft>& a, const std::optional<FeuchteLuft>& b) {
    return a && b && a->h == b->h && a->x == b->x && a->p_l == b->p_l;
  };
  EXPECT_TRUE(same(air.Feuchte_Luft(.5, 20, 0), air.Feuchte_Luft(.5, 20, 1.01)));
  EXPECT_TRUE(same(air.Feuchte_Luft(-.2, 20, 1), air.Feuchte_Luft(.01, 20, 1)));
  EXPECT_TRUE(same(air.Feuchte_Luft(1.2, 20, 1), air.Feuchte_Luft(1, 20, 1)));
  const auto at_pressure = air.Feuchte_Luft(.5, 20, 1.25);
  air.Marke = 33;
  EXPECT_TRUE(same(air.Feuchte_Luft(.5, 20, 1), at_pressure));
  EXPECT_TRUE(same(air.Feuchte_Luft(.5, 20, 99), at_pressure));
}

TEST_F(FeuchteLuftTest, OutsideItsLimitsThereIsNothing) {
  EXPECT_TRUE(air.Feuchte_Luft(.5, -50, 1));
  EXPECT_FALSE(air.Feuchte_Luft(.5, -50.1, 1));
  EXPECT_FALSE(air.Feuchte_Luft(0, 800.1, 1));
  EXPECT_TRUE(air.Feuchte_Luft(.5, 20, 8.5));
  EXPECT_FALSE(air.Feuchte_Luft(.5, 20, 8.6));
  EXPECT_FALSE(air.Feuchte_Luft(.5, 20, -1));
  for (const double none : {leer, std::numeric_limits<double>::infinity()}) {
    EXPECT_FALSE(air.Feuchte_Luft(.5, none, 1));
    EXPECT_FALSE(air.Feuchte_Luft(.5, 20, none));
  }
  EXPECT_FALSE(air.Feuchte_Luft(leer, 20, 1));
}

TEST_F(FeuchteLuftTest, AboveTheCriticalPointThereIsNoSaturation) {
  EXPECT_TRUE(ist_leer(air.Saettigungsdichte(700)));
  EXPECT_FALSE(air.Feuchte_Luft(.1, 400, 1));
}

TEST_F(FeuchteLuftTest, EveryStateInTheRangeEndsInFiguresOrNothing) {
  for (double t = -50; t <= 800; t += 5) {
    for (const double phi : {0., .001, .3, 1.}) {
      const auto state = air.Feuchte_Luft(phi, t, 8.5);
      if (!state) continue;
      EXPECT_TRUE(std::isfinite(state->h) && std::isfinite(state->x) && std::isfinite(state->rho));
    }
  }
}

TEST_F(FeuchteLuftTest, DataFileHoldsTheBuiltInCoefficients) {
  const auto read = Luftkoeffizienten_lesen(data_file());
  ASSERT_TRUE(read);
  const Luftkoeffizienten& own = Luftkoeffizienten_eingebaut();
  EXPECT_EQ(read->rho_c, own.rho_c);
  EXPECT_EQ(read->T_rho, own.T_rho);
  EXPECT_EQ(read->n, own.n);
  EXPECT_EQ(read->c, own.c);
  EXPECT_EQ(read->T_t, own.T_t);
  EXPECT_EQ(read->p_t, own.p_t);
  EXPECT_EQ(read->a, own.a);
  EXPECT_EQ(read->b, own.b);
  EXPECT_EQ(read->T_krit, own.T_krit);
  EXPECT_EQ(read->cp_luft, own.cp_luft);
  EXPECT_EQ(read->cp_dampf, own.cp_dampf);
}

TEST_F(FeuchteLuftTest, CoefficientsComeFromTheFileWhenItChanges) {
  const double before = air.Saettigungsdichte(293.15);
  std::string twice = data_file();
  twice.replace(twice.find("322"), 3, "644");
  folder.schreib("hxdata.dat", twice);
  EXPECT_NEAR(air.Saettigungsdichte(293.15), 2 * before, 1e-12);
  folder.schreib("hxdata.dat", data_file());
  EXPECT_EQ(air.Saettigungsdichte(293.15), before);
}

TEST_F(FeuchteLuftTest, IncompleteFileIsToldOnceAndTheBuiltInOnesAreTaken) {
  const double own = air.Saettigungsdichte(293.15);
  std::string cut = data_file();
  cut.replace(cut.find("322"), 3, "644");
  cut.resize(cut.find("\"0.000000000000807\""));
  folder.schreib("hxdata.dat", cut);
  EXPECT_EQ(air.Saettigungsdichte(293.15), own);
  EXPECT_EQ(air.Saettigungsdichte(293.15), own);
  EXPECT_EQ(complaints(), 1u);
}

TEST_F(FeuchteLuftTest, AskingAgainWithinAStepCostsNoReading) {
  folder.schreib("hxdata.dat", data_file());
  Schrittfolge steps(ablage);
  const double before = air.Saettigungsdichte(293.15);
  std::string twice = data_file();
  twice.replace(twice.find("322"), 3, "644");
  folder.schreib("hxdata.dat", twice);
  EXPECT_EQ(air.Saettigungsdichte(293.15), before);
  steps.naechster();
  EXPECT_NEAR(air.Saettigungsdichte(293.15), 2 * before, 1e-12);
}

TEST_F(FeuchteLuftTest, WordInPlaceOfANumberMakesTheFileIncomplete) {
  std::string broken = data_file();
  broken.replace(broken.find("\"322\""), 5, "\"rho\"");
  EXPECT_FALSE(Luftkoeffizienten_lesen(broken));
  EXPECT_FALSE(Luftkoeffizienten_lesen(""));
}

TEST_F(FeuchteLuftTest, MissingAndEmptyFileAreNoComplaint) {
  EXPECT_TRUE(air.Feuchte_Luft(1, 20, 1.01325));
  folder.schreib("hxdata.dat", "");
  EXPECT_TRUE(air.Feuchte_Luft(1, 20, 1.01325));
  EXPECT_EQ(complaints(), 0u);
}

}  // namespace
