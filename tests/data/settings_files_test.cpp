// The load profiles and the small files of defaults.

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

#include "data_files.h"

namespace {

using datafolder::Items;

using Year = std::array<int, 12>;

struct Profile {
  Year day, night;  // % of the design load, January first
};

// clang-format off
constexpr std::array<Profile, 7> kProfiles{{
    {{  0,   0,   0,  20,  50,  80, 100,  80,  30,   0,   0,   0},
     {  0,   0,   0,   0,   0,  20,  40,  20,   0,   0,   0,   0}},
    {{  0,   0,  20,  30,  50,  80, 100,  80,  50,  30,   0,   0},
     {  0,   0,   0,  10,  10,  20,  40,  20,  10,   0,   0,   0}},
    {{  0,   0,  20,  40,  60,  80, 100,  80,  60,  30,   0,   0},
     {  0,   0,   0,  10,  10,  20,  40,  20,  10,   0,   0,   0}},
    {{ 50,  55,  60,  65,  70,  80, 100,  80,  70,  65,  60,  55},
     { 40,  45,  50,  55,  60,  65,  80,  65,  60,  55,  50,  45}},
    {{ 65,  65,  65,  70,  80,  90, 100,  90,  80,  70,  70,  80},
     { 35,  35,  40,  45,  50,  60,  70,  60,  50,  45,  40,  35}},
    {{ 75,  75,  80,  85,  90,  95, 100,  95,  90,  85,  80,  75},
     { 65,  65,  70,  70,  75,  85,  90,  80,  85,  75,  70,  65}},
    {{ 75,  75,  80,  85,  90,  95, 100,  95,  90,  85,  80,  75},
     { 65,  65,  70,  75,  80,  85,  90,  85,  80,  75,  70,  65}},
}};
// clang-format on

std::string record(const std::string& file, std::size_t number) {
  constexpr std::size_t kLength = 5;
  const std::string text = datafolder::bytes(file);
  return (number * kLength <= text.size()) ? text.substr((number - 1) * kLength, kLength) : "";
}

TEST(SettingsFiles, ProfilesHoldTheirDayAndNightLoads) {
  for (std::size_t i = 0; i < kProfiles.size(); ++i) {
    const std::string name = "Profil" + std::to_string(i + 1) + ".prf";
    Items expected;
    for (const int percent : kProfiles[i].day) expected.push_back(std::to_string(percent));
    for (const int percent : kProfiles[i].night) expected.push_back(std::to_string(percent));
    EXPECT_EQ(datafolder::single_items(name), expected) << name;
    EXPECT_TRUE(datafolder::ends_lines_with_crlf(name)) << name;
  }
}

TEST(SettingsFiles, ProfilesPeakInJuly) {
  for (std::size_t i = 1; i <= kProfiles.size(); ++i) {
    const std::vector<double> loads =
        datafolder::numbers(datafolder::single_items("Profil" + std::to_string(i) + ".prf"));
    ASSERT_EQ(loads.size(), 24U);
    EXPECT_EQ(loads[6], 100);
    for (std::size_t month = 0; month < 12; ++month) {
      EXPECT_LE(loads[month], 100);
      EXPECT_LE(loads[12 + month], loads[18]);
      EXPECT_LE(loads[12 + month], loads[month]) << "profile " << i << ", month " << month + 1;
    }
  }
}

TEST(SettingsFiles, PressureDifferences) {
  EXPECT_EQ(datafolder::single_items("JMapOpt.dat"), (Items{"7", "3", "1", "1"}));
  EXPECT_TRUE(datafolder::ends_lines_with_crlf("JMapOpt.dat"));
}

TEST(SettingsFiles, ElevenCycleSettings) {
  EXPECT_EQ(datafolder::single_items("SubAct.dat"),
            (Items{"0", "0", "2", "5", "0", "0", "0", "", "", "", ""}));
  EXPECT_TRUE(datafolder::ends_lines_with_crlf("SubAct.dat"));
}

TEST(SettingsFiles, StartValuesAreFixedRecordsOfFiveCharacters) {
  const std::string all = datafolder::bytes("Armstd.rdm");
  EXPECT_EQ(all.size() % 5, 0U);
  EXPECT_GE(all.size() / 5, 40U);
  EXPECT_EQ(record("Armstd.rdm", 24), "0    ");
  EXPECT_EQ(record("Armstd.rdm", 25), "0    ");
  EXPECT_EQ(record("Armstd.rdm", 26), "2    ");
  EXPECT_EQ(record("Armstd.rdm", 33), "5    ");
  EXPECT_EQ(record("Armstd.rdm", 34), "0    ");
  EXPECT_EQ(record("Armstd.rdm", 35), "0    ");
}

TEST(SettingsFiles, UnusedStartValuesAreBlank) {
  const std::size_t count = datafolder::bytes("Armstd.rdm").size() / 5;
  for (std::size_t number = 1; number <= count; ++number) {
    const bool used = (number >= 24 && number <= 26) || (number >= 33 && number <= 35);
    EXPECT_EQ(record("Armstd.rdm", number) == "     ", !used) << number;
  }
}

TEST(SettingsFiles, CycleSettingsAreTheStartValues) {
  const Items settings = datafolder::single_items("SubAct.dat");
  ASSERT_GE(settings.size(), 6U);
  const std::array<std::size_t, 6> records{24, 25, 26, 33, 34, 35};
  for (std::size_t i = 0; i < records.size(); ++i) {
    std::string value = record("Armstd.rdm", records[i]);
    value.resize(value.find_last_not_of(' ') + 1);
    EXPECT_EQ(settings[i], value) << "item " << i + 1;
  }
}

TEST(SettingsFiles, CompressorPark) {
  const Items park = datafolder::single_items("VerDpark.dat");
  EXPECT_EQ(park, (Items{"84.5", "Swept volume", "1", "2"}));
  EXPECT_TRUE(datafolder::ends_lines_with_crlf("VerDpark.dat"));
}

TEST(SettingsFiles, CostDefaultsStandOnOneLine) {
  const std::vector<std::string> all = datafolder::lines("energk.dat");
  ASSERT_EQ(all.size(), 1U);
  EXPECT_EQ(datafolder::items(all.front()), (Items{"18", ".9", ".18", "365", ".58"}));
  EXPECT_TRUE(datafolder::ends_lines_with_crlf("energk.dat"));
}

}  // namespace
