// hxdata.dat, the coefficients of water and air: evaluated here by their published formulas.

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "data_files.h"

namespace {

// Place of each group in the file, counted from 0.
enum Place {
  kCriticalDensity = 0,
  kCriticalTemperature = 1,
  kExponents = 2,
  kCoefficients = 8,
  kTripleTemperature = 14,
  kTriplePressure = 15,
  kIceCoefficients = 16,
  kIceExponents = 19,
  kCubicCriticalTemperature = 22,
  kAirHeat = 23,
  kVapourHeat = 28,
  kCount = 33
};

constexpr double kVapourConstant = 461.5;  // J/(kg K)
constexpr double kAirConstant = 287.04;

class WaterAndAir : public testing::Test {
 protected:
  void SetUp() override {
    values_ = datafolder::numbers(datafolder::single_items("hxdata.dat"));
    ASSERT_EQ(values_.size(), std::size_t{kCount});
  }

  // Saturated vapour over liquid water, kg/m³.
  double density_over_water(double celsius) const {
    const double theta = 1 - (celsius + 273.15) / values_[kCriticalTemperature];
    double sum = 0;
    for (int i = 0; i < 6; ++i) {
      sum += values_[kCoefficients + i] * std::pow(theta, values_[kExponents + i] / 6);
    }
    return values_[kCriticalDensity] * std::exp(sum);
  }

  // Pressure over ice, Pa.
  double pressure_over_ice(double kelvin) const {
    const double theta = kelvin / values_[kTripleTemperature];
    double sum = 0;
    for (int i = 0; i < 3; ++i) {
      sum += values_[kIceCoefficients + i] * std::pow(theta, values_[kIceExponents + i]);
    }
    return values_[kTriplePressure] * std::exp(sum / theta);
  }

  // cp/R of an ideal gas.
  double heat(Place gas, double kelvin) const {
    double sum = 0;
    for (int i = 4; i >= 0; --i) sum = sum * kelvin + values_[gas + i];
    return sum;
  }

  std::vector<double> values_;
};

TEST_F(WaterAndAir, FileHoldsThirtyThreeNumbersOneALine) {
  for (const double value : values_) EXPECT_FALSE(std::isnan(value));
  EXPECT_TRUE(datafolder::ends_lines_with_crlf("hxdata.dat"));
}

TEST_F(WaterAndAir, VapourDensityMeetsTheSteamTables) {
  EXPECT_NEAR(density_over_water(0.01), 0.004855, 0.000005);
  EXPECT_NEAR(density_over_water(20), 0.01731, 0.00001);
  EXPECT_NEAR(density_over_water(100), 0.5982, 0.0003);
  EXPECT_NEAR(density_over_water(200), 7.861, 0.005);
}

// The figures that the authors of the formula give for checking a program.
TEST_F(WaterAndAir, VapourDensityMeetsItsPublishedCheckValues) {
  EXPECT_NEAR(density_over_water(273.16 - 273.15), 0.00485426, 5e-9);
  EXPECT_NEAR(density_over_water(373.1243 - 273.15), 0.597586, 5e-7);
  EXPECT_NEAR(density_over_water(647.096 - 273.15), 322, 1e-3);
}

TEST_F(WaterAndAir, PressureOverIceMeetsItsPublishedCheckValue) {
  EXPECT_NEAR(pressure_over_ice(230), 8.94735, 5e-6);
  EXPECT_NEAR(pressure_over_ice(273.16), 611.657, 1e-3);
}

TEST_F(WaterAndAir, PressureOverIceMeetsTheTables) {
  EXPECT_NEAR(pressure_over_ice(253.15), 103.2, 0.1);
  EXPECT_NEAR(pressure_over_ice(233.15), 12.84, 0.01);
}

TEST_F(WaterAndAir, IceAndWaterMeetAtZeroDegrees) {
  const double over_ice = pressure_over_ice(273.15) / (kVapourConstant * 273.15);
  EXPECT_NEAR(over_ice / density_over_water(0), 1, 0.001);
}

TEST_F(WaterAndAir, CriticalTemperatures) {
  EXPECT_EQ(values_[kCriticalTemperature], 647.096);
  EXPECT_EQ(values_[kCubicCriticalTemperature], 647.3);
}

// Published: dry air 1.005 kJ/(kg K) at 300 K and 1.142 at 1000 K; vapour as an ideal gas 1.864
// and 2.288.
TEST_F(WaterAndAir, SpecificHeatsMeetTheTables) {
  EXPECT_NEAR(heat(kAirHeat, 300) * kAirConstant / 1000, 1.005, 0.002);
  EXPECT_NEAR(heat(kAirHeat, 1000) * kAirConstant / 1000, 1.142, 0.003);
  EXPECT_NEAR(heat(kVapourHeat, 300) * kVapourConstant / 1000, 1.864, 0.003);
  EXPECT_NEAR(heat(kVapourHeat, 1000) * kVapourConstant / 1000, 2.288, 0.005);
}

TEST_F(WaterAndAir, SpecificHeatsStaySmoothOverTheWholeRange) {
  for (double kelvin = 223.15; kelvin <= 1073.15; kelvin += 10) {
    EXPECT_GT(heat(kAirHeat, kelvin), 3.45) << kelvin;
    EXPECT_LT(heat(kAirHeat, kelvin), 4.1) << kelvin;
    EXPECT_GT(heat(kVapourHeat, kelvin), 3.95) << kelvin;
    EXPECT_LT(heat(kVapourHeat, kelvin), 5.2) << kelvin;
  }
}

}  // namespace
