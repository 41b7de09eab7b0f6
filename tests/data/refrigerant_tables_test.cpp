// The saturation tables of the refrigerants: all there, and well formed.

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "refrigerant_tables.h"

namespace {

using datafolder::CatalogueRow;
using datafolder::for_each_table;
using datafolder::for_neighbours;
using datafolder::items;
using datafolder::kBubble;
using datafolder::kCatalogue;
using datafolder::kDew;
using datafolder::kGlide;
using datafolder::kLiquid;
using datafolder::kLiquidEnthalpy;
using datafolder::kSpecificVolume;
using datafolder::kT;
using datafolder::kVapour;
using datafolder::kVapourEnthalpy;
using datafolder::lines;
using datafolder::number;
using datafolder::Row;
using datafolder::saturation;
using datafolder::stored;

TEST(RefrigerantTables, EveryTableOfTheCatalogueIsThereUnderItsExactName) {
  std::set<std::string> names;
  for (const auto& entry : std::filesystem::directory_iterator(POLARKREIS_DATA)) {
    names.insert(entry.path().filename().string());
  }
  for (const CatalogueRow& entry : kCatalogue)
    EXPECT_TRUE(names.contains(entry.file)) << entry.file;
}

TEST(RefrigerantTables, EveryRowHoldsSevenNumbers) {
  for (const CatalogueRow& entry : kCatalogue) {
    for (const std::string& line : lines(entry.file)) {
      const datafolder::Items texts = items(line);
      EXPECT_EQ(texts.size(), 7U) << entry.file << ": " << line;
      for (const std::string& text : texts) {
        EXPECT_FALSE(std::isnan(number(text))) << entry.file << ": " << line;
      }
    }
  }
}

TEST(RefrigerantTables, TemperatureRisesInStepsOfExactlyFiveKelvin) {
  for (const CatalogueRow& entry : kCatalogue) {
    const std::vector<Row> rows = stored(entry.file);
    const double offset = std::string(entry.file) == "R123.DAT" ? 0 : 273.15;
    for (std::size_t i = 0; i < rows.size(); ++i) {
      const double celsius = rows[i][kT] - offset;
      EXPECT_NEAR(celsius, 5 * std::round(celsius / 5), 1e-9) << entry.file;
      EXPECT_NEAR(rows[i][kT], rows[0][kT] + 5.0 * static_cast<double>(i), 1e-9) << entry.file;
    }
  }
}

TEST(RefrigerantTables, OnlyR123IsStoredInCelsius) {
  for (const CatalogueRow& entry : kCatalogue) {
    const std::vector<Row> rows = stored(entry.file);
    ASSERT_FALSE(rows.empty()) << entry.file;
    EXPECT_EQ(rows[0][kT] < 0, std::string(entry.file) == "R123.DAT") << entry.file;
  }
}

TEST(RefrigerantTables, PressuresRiseWithTemperature) {
  for_each_table([](const std::string&, const std::vector<Row>& rows) {
    EXPECT_GT(rows.front()[kDew], 0);
    for_neighbours(rows, [](const Row& below, const Row& row) {
      EXPECT_GT(row[kDew], below[kDew]);
      EXPECT_GT(row[kBubble], below[kBubble]);
    });
  });
}

TEST(RefrigerantTables, BlendsWithAGlideHaveTheirBubblePressureAboveTheDewPressure) {
  for_each_table([](const std::string& file, const std::vector<Row>& rows) {
    for (const Row& row : rows) {
      if (kGlide.contains(file)) {
        EXPECT_GT(row[kBubble], row[kDew]);
      } else {
        EXPECT_EQ(row[kBubble], row[kDew]);
      }
    }
  });
}

TEST(RefrigerantTables, VapourHoldsMoreHeatThanLiquidAndLiquidHeatRises) {
  for_each_table([](const std::string&, const std::vector<Row>& rows) {
    for (const Row& row : rows) EXPECT_GT(row[kVapourEnthalpy], row[kLiquidEnthalpy]);
    for_neighbours(rows, [](const Row& below, const Row& row) {
      EXPECT_GT(row[kLiquidEnthalpy], below[kLiquidEnthalpy]);
      EXPECT_LT(row[kVapourEnthalpy] - row[kLiquidEnthalpy],
                below[kVapourEnthalpy] - below[kLiquidEnthalpy]);
    });
  });
}

TEST(RefrigerantTables, LiquidGrowsLighterAndVapourDenser) {
  for_each_table([](const std::string&, const std::vector<Row>& rows) {
    for (const Row& row : rows) EXPECT_GT(row[kLiquid], row[kVapour]);
    for_neighbours(rows, [](const Row& below, const Row& row) {
      EXPECT_LT(row[kLiquid], below[kLiquid]);
      EXPECT_GT(row[kVapour], below[kVapour]);
    });
  });
}

TEST(RefrigerantTables, FourTablesStoreSpecificVolumes) {
  for (const CatalogueRow& entry : kCatalogue) {
    const bool volumes = kSpecificVolume.contains(entry.file);
    for (const Row& row : stored(entry.file)) {
      EXPECT_EQ(row[kLiquid] < 3, volumes) << entry.file;  // dm³/kg, otherwise hundreds of kg/m³
      EXPECT_EQ(row[kVapour] > row[kLiquid], volumes) << entry.file;
    }
  }
}

TEST(RefrigerantTables, AmmoniaStoresTheMagnitudeOfItsFirstEightLiquidEnthalpies) {
  const std::vector<Row> rows = stored("AMMONIAK.DAT");
  ASSERT_GT(rows.size(), 9U);
  for (std::size_t i = 0; i < rows.size(); ++i) EXPECT_GT(rows[i][kLiquidEnthalpy], 0) << i;
  for (std::size_t i = 1; i < 8; ++i) {
    EXPECT_LT(rows[i][kLiquidEnthalpy], rows[i - 1][kLiquidEnthalpy]) << i;
  }
  for (std::size_t i = 9; i < rows.size(); ++i) {
    EXPECT_GT(rows[i][kLiquidEnthalpy], rows[i - 1][kLiquidEnthalpy]) << i;
  }
}

TEST(RefrigerantTables, OnlyR723StoresASignTwice) {
  for (const CatalogueRow& entry : kCatalogue) {
    const std::vector<Row> rows = stored(entry.file);
    const auto negative = std::count_if(rows.begin(), rows.end(),
                                        [](const Row& row) { return row[kLiquidEnthalpy] < 0; });
    EXPECT_EQ(negative, std::string(entry.file) == "R723.DAT" ? 2 : 0) << entry.file;
  }
}

TEST(RefrigerantTables, RangeCoversTheLimitsOfUseWhereTheSubstanceHasALiquid) {
  // These are critical below their upper limit of use and end there, in °C.
  const std::map<std::string, double> critical{
      {"R23.DAT", 20}, {"R508A.DAT", 5}, {"R508B.DAT", 5}, {"ISC_89.DAT", 60}, {"CO2.DAT", 30}};
  for (const CatalogueRow& entry : kCatalogue) {
    SCOPED_TRACE(entry.file);
    const std::vector<Row> rows = saturation(entry.file);
    ASSERT_FALSE(rows.empty());
    const double first = rows.front()[kT] - 273.15;
    const double last = rows.back()[kT] - 273.15;
    EXPECT_LE(first, entry.tmin + 1e-9);
    const auto end = critical.find(entry.file);
    if (end == critical.end()) {
      EXPECT_GE(last, entry.tmax - 1e-9);
    } else {
      EXPECT_NEAR(last, end->second, 1e-9);
      EXPECT_LT(last, entry.tmax);
    }
  }
}

}  // namespace
