// The saturation tables of the refrigerant catalogue, read for their tests.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <set>
#include <string>
#include <vector>

#include "data_files.h"

namespace datafolder {

struct CatalogueRow {
  const char* file;
  double tmin, tmax;  // limits of use, °C
};

// clang-format off
inline constexpr std::array<CatalogueRow, 62> kCatalogue{{
    {"R11.DAT", -30, 65},
    {"R12.DAT", -60, 70},
    {"R13.DAT", -90, 25},
    {"R13B1.DAT", -60, 65},
    {"R14.DAT", -140, -50},
    {"R50.DAT", -160, -95},
    {"R170.DAT", -95, 25},
    {"R1150.DAT", -110, 0},
    {"R22.DAT", -60, 70},
    {"R23.DAT", -115, 65},
    {"R32.dat", -50, 65},
    {"R123.DAT", -60, 65},
    {"R124.DAT", -10, 95},
    {"R134A.DAT", -60, 85},
    {"R152A.DAT", -50, 70},
    {"R227.DAT", -20, 95},
    {"PROPAN.DAT", -70, 85},
    {"R290_600.DAT", -20, 75},
    {"PROPYLEN.DAT", -70, 85},
    {"R600A.DAT", -40, 80},
    {"AMMONIAK.DAT", -80, 65},
    {"R723.DAT", -60, 65},
    {"CO2.DAT", -55, 55},
    {"HFO1234YF.DAT", -30, 80},
    {"HFO1234ZE.DAT", -30, 75},
    {"R401A.DAT", -60, 65},
    {"R401B.DAT", -60, 65},
    {"R402A.DAT", -60, 65},
    {"R402B.DAT", -60, 65},
    {"ISC_69L.DAT", -55, 65},
    {"R404A.DAT", -60, 65},
    {"R407A.DAT", -45, 65},
    {"R407C.DAT", -50, 65},
    {"R407F.DAT", -55, 65},
    {"R407H.DAT", -50, 65},
    {"R408A.DAT", -50, 65},
    {"R409A.DAT", -50, 65},
    {"R410A.DAT", -50, 65},
    {"R413A.DAT", -40, 65},
    {"ISC_59.DAT", -40, 65},
    {"ISC_79.DAT", -40, 65},
    {"ISC_29.DAT", -40, 65},
    {"ISC_89.DAT", -60, 65},
    {"RS45.DAT", -40, 65},
    {"FX_90.DAT", -40, 65},
    {"R427A.DAT", -40, 65},
    {"R437A.DAT", -40, 80},
    {"R438A.DAT", -60, 70},
    {"R448A.DAT", -55, 65},
    {"R449A.DAT", -55, 65},
    {"R450A.DAT", -60, 85},
    {"R452A.DAT", -60, 65},
    {"R454A.DAT", -55, 65},
    {"R454B.DAT", -55, 65},
    {"R454C.DAT", -40, 65},
    {"R455A.DAT", -50, 65},
    {"R502.DAT", -60, 65},
    {"R507.DAT", -90, 65},
    {"R508A.DAT", -105, 65},
    {"R508B.DAT", -105, 65},
    {"R513A.DAT", -60, 85},
    {"HX4.DAT", -50, 65},
}};
// clang-format on

enum Column { kT, kDew, kBubble, kLiquidEnthalpy, kVapourEnthalpy, kLiquid, kVapour, kColumns };

// Stored as specific volume in dm³/kg; all others as density in kg/m³.
inline const std::set<std::string> kSpecificVolume{"R11.DAT", "R12.DAT", "R23.DAT", "AMMONIAK.DAT"};

// Blends with a glide: the bubble pressure lies above the dew pressure. All others have one
// pressure.
inline const std::set<std::string> kGlide{
    "R401A.DAT",  "R401B.DAT",  "R402A.DAT",  "R402B.DAT",  "ISC_69L.DAT", "R404A.DAT", "R407A.DAT",
    "R407C.DAT",  "R407F.DAT",  "R407H.DAT",  "R408A.DAT",  "R409A.DAT",   "R410A.DAT", "R413A.DAT",
    "ISC_59.DAT", "ISC_79.DAT", "ISC_29.DAT", "ISC_89.DAT", "RS45.DAT",    "FX_90.DAT", "R427A.DAT",
    "R437A.DAT",  "R438A.DAT",  "R448A.DAT",  "R449A.DAT",  "R450A.DAT",   "R452A.DAT", "R454A.DAT",
    "R454B.DAT",  "R454C.DAT",  "R455A.DAT",  "HX4.DAT",    "R290_600.DAT"};

using Row = std::array<double, kColumns>;

// The seven numbers of each row as stored.
inline std::vector<Row> stored(const std::string& file) {
  std::vector<Row> rows;
  for (const std::string& line : lines(file)) {
    const std::vector<double> values = numbers(items(line));
    EXPECT_EQ(values.size(), std::size_t{kColumns}) << file << ": " << line;
    if (values.size() != kColumns) continue;
    Row row{};
    std::copy(values.begin(), values.end(), row.begin());
    rows.push_back(row);
  }
  EXPECT_GE(rows.size(), 10U) << file;
  return rows;
}

// The rows in K, bar, kJ/kg and kg/m³.
inline std::vector<Row> saturation(const std::string& file) {
  std::vector<Row> rows = stored(file);
  for (std::size_t i = 0; i < rows.size(); ++i) {
    Row& row = rows[i];
    if (file == "R123.DAT") row[kT] += 273.15;
    if (file == "AMMONIAK.DAT" && i < 8) row[kLiquidEnthalpy] = -row[kLiquidEnthalpy];
    if (kSpecificVolume.contains(file)) {
      row[kLiquid] = 1000 / row[kLiquid];
      row[kVapour] = 1000 / row[kVapour];
    }
  }
  return rows;
}

// Calls check(rows) for each table, with the file's name in the message of a failure.
template <typename Check>
void for_each_table(Check check) {
  for (const CatalogueRow& entry : kCatalogue) {
    SCOPED_TRACE(entry.file);
    check(std::string(entry.file), saturation(entry.file));
  }
}

template <typename Check>
void for_neighbours(const std::vector<Row>& rows, Check check) {
  for (std::size_t i = 1; i < rows.size(); ++i) {
    SCOPED_TRACE(rows[i][kT]);
    check(rows[i - 1], rows[i]);
  }
}

}  // namespace datafolder
