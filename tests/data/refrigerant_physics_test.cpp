// The saturation tables of the refrigerants: true to thermodynamics, to the handbooks and to their
// own neighbours.

#include <gtest/gtest.h>

#include <cmath>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "refrigerant_tables.h"

namespace {

using datafolder::Column;
using datafolder::for_each_table;
using datafolder::kBubble;
using datafolder::kDew;
using datafolder::kGlide;
using datafolder::kLiquid;
using datafolder::kLiquidEnthalpy;
using datafolder::kT;
using datafolder::kVapour;
using datafolder::kVapourEnthalpy;
using datafolder::Row;
using datafolder::saturation;

// Saturation temperature in °C at a dew pressure, by ln p over 1/T between two rows.
double boiling_point(const std::string& file, double pressure) {
  const std::vector<Row> rows = saturation(file);
  for (std::size_t i = 1; i < rows.size(); ++i) {
    if (rows[i][kDew] < pressure) continue;
    const double low = std::log(rows[i - 1][kDew]);
    const double share = (std::log(pressure) - low) / (std::log(rows[i][kDew]) - low);
    const double reciprocal = 1 / rows[i - 1][kT] + share * (1 / rows[i][kT] - 1 / rows[i - 1][kT]);
    return 1 / reciprocal - 273.15;
  }
  return std::nan("");
}

// What two phases of one composition have to obey, as the relative deviation of the evaporation
// enthalpy.
//
// A pure substance: h_v - h_l = T (v_v - v_l) dp/dT. A blend at one temperature has its vapour at
// the dew pressure and its liquid at the bubble pressure, so each volume goes with its own slope,
// and the free enthalpies of the two differ by about half of the way between the pressures: g_v -
// g_l = -p_d v_v ln(p_b/p_d) / 2. The derivative of their difference gives h_v - h_l = T (v_v
// dp_d/dT - v_l dp_b/dT) - T² d((g_v - g_l)/T)/dT.
double clapeyron_deviation(const Row& below, const Row& row, const Row& above) {
  const double step = above[kT] - below[kT];
  const auto slope = [&](Column p) {  // kPa/K; ln p is nearly straight
    return 100 * row[p] * std::log(above[p] / below[p]) / step;
  };
  const auto half_way = [](const Row& r) {
    return 100 * r[kDew] / r[kVapour] * std::log(r[kBubble] / r[kDew]) / (2 * r[kT]);
  };
  const double T = row[kT];
  const double expected = T * (slope(kDew) / row[kVapour] - slope(kBubble) / row[kLiquid]) +
                          T * T * (half_way(above) - half_way(below)) / step;
  return expected / (row[kVapourEnthalpy] - row[kLiquidEnthalpy]) - 1;
}

// Largest magnitude of the deviation measured: pure substances 0.23 % (R50); blends of one pressure
// 0.58 % (R508A) and 1.54 % (R508B, -105 °C, where the one pressure is a mean of two that differ by
// 8 %); blends with a glide 3.02 % (R454A, 7 K below critical), 2.70 % (R413A) and 2.47 % (R448A),
// the others below 2.3 %. R13B1 rests on corresponding states and reaches 2.24 % near its critical
// point.
double clapeyron_tolerance(const std::string& file) {
  if (file == "R13B1.DAT") return 0.025;
  if (file == "R508B.DAT") return 0.017;
  if (kGlide.contains(file)) return 0.033;
  return 0.006;
}

// How far the middle one of five values lies off the cubic through the other four.
double off_its_neighbours(const std::vector<double>& values, std::size_t i) {
  return (4 * (values[i - 1] + values[i + 1]) - values[i - 2] - values[i + 2]) / 6 - values[i];
}

// A column as it runs smoothly: logarithms, and enthalpies as shares of the first row's evaporation
// enthalpy.
std::vector<double> smooth_column(const std::vector<Row>& rows, Column column) {
  const bool enthalpy = column == kLiquidEnthalpy || column == kVapourEnthalpy;
  const double unit = rows.front()[kVapourEnthalpy] - rows.front()[kLiquidEnthalpy];
  std::vector<double> result;
  for (const Row& row : rows) {
    result.push_back(enthalpy ? row[column] / unit : std::log(row[column]));
  }
  return result;
}

TEST(RefrigerantPhysics, PressureSlopeAndEvaporationEnthalpyAgree) {
  for_each_table([](const std::string& file, const std::vector<Row>& rows) {
    for (std::size_t i = 1; i + 1 < rows.size(); ++i) {
      EXPECT_NEAR(clapeyron_deviation(rows[i - 1], rows[i], rows[i + 1]), 0,
                  clapeyron_tolerance(file))
          << rows[i][kT] << " K";
    }
  });
}

// A wrong digit stands out from its neighbours. Largest deviation measured: 0.034 % of the pressure
// (ISC_79 near its end) and 0.036 % of any other column (vapour density of R123, short of digits);
// towards the critical point, in the last five rows, 2.0 % of the vapour density (ISC_79).
TEST(RefrigerantPhysics, EveryColumnRunsSmoothly) {
  for_each_table([](const std::string&, const std::vector<Row>& rows) {
    for (const Column column :
         {kDew, kBubble, kLiquidEnthalpy, kVapourEnthalpy, kLiquid, kVapour}) {
      const std::vector<double> values = smooth_column(rows, column);
      for (std::size_t i = 2; i + 2 < rows.size(); ++i) {
        const bool steep = i + 6 > rows.size() && column != kDew && column != kBubble;
        EXPECT_NEAR(off_its_neighbours(values, i), 0, steep ? 0.025 : 0.0005)
            << "column " << column + 1 << ", " << rows[i][kT] << " K";
      }
    }
  });
}

TEST(RefrigerantPhysics, NormalBoilingPointsAreThoseOfTheHandbooks) {
  const std::map<std::string, double> handbook{
      {"R12.DAT", -29.8},      {"R22.DAT", -40.8},      {"R32.dat", -51.7},
      {"R123.DAT", 27.8},      {"R134A.DAT", -26.1},    {"R152A.DAT", -24.0},
      {"PROPAN.DAT", -42.1},   {"PROPYLEN.DAT", -47.6}, {"R600A.DAT", -11.7},
      {"AMMONIAK.DAT", -33.3}, {"R50.DAT", -161.5},     {"R1150.DAT", -103.8},
      {"HFO1234YF.DAT", -29.5}};
  for (const auto& [file, celsius] : handbook) {
    EXPECT_NEAR(boiling_point(file, 1.01325), celsius, 0.15) << file;
  }
}

TEST(RefrigerantPhysics, BoilingLiquidHolds200KilojoulesAtZeroDegrees) {
  // Methane, ethane, ethylene and R14 have their 200 kJ/kg at the normal boiling point.
  const std::set<std::string> other_reference{"R14.DAT", "R50.DAT", "R170.DAT", "R1150.DAT"};
  for_each_table([&](const std::string& file, const std::vector<Row>& rows) {
    int found = 0;
    for (const Row& row : rows) {
      if (std::abs(row[kT] - 273.15) > 1e-9 || other_reference.contains(file)) continue;
      EXPECT_NEAR(row[kLiquidEnthalpy], 200, 0.005);
      ++found;
    }
    EXPECT_EQ(found, other_reference.contains(file) ? 0 : 1);
  });
}

}  // namespace
