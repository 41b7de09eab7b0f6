// The list of countries and the city files of the climate.

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <cmath>
#include <filesystem>
#include <set>
#include <string>
#include <vector>

#include "data_files.h"

namespace {

constexpr std::size_t kRecords = 50;

enum Item {
  kCity,
  kSummerHigh,
  kSummerHighHumidity,
  kDayNight,
  kSummerLow,
  kSummerLowHumidity,
  kWinterHigh,
  kWinterLow,
  kHeight,
  kLatitude,
  kItems
};

using Record = std::vector<std::string>;

std::string upper(std::string text) {
  std::transform(text.begin(), text.end(), text.begin(),
                 [](unsigned char letter) { return static_cast<char>(std::toupper(letter)); });
  return text;
}

std::vector<std::string> countries() {
  return datafolder::single_items("COUNTRY.DAT");
}

// Eight characters of the name, a short one filled up with "_"; the first country's file has a name
// of its own.
std::string file_of(std::string country) {
  if (country.size() < 8) country.resize(8, '_');
  country.resize(8);
  return (upper(country) == "GERMANY_" ? "AC_CITY" : country) + ".DAT";
}

// All records of a country, the blank ones too.
std::vector<Record> records(const std::string& country) {
  const datafolder::Items all = datafolder::single_items(file_of(country));
  EXPECT_EQ(all.size(), kRecords * kItems) << country;
  std::vector<Record> result;
  for (std::size_t at = 0; at + kItems <= all.size(); at += kItems) {
    const auto first = all.begin() + static_cast<std::ptrdiff_t>(at);
    result.emplace_back(first, first + kItems);
  }
  return result;
}

bool in_use(const Record& record) {
  return !record[kCity].empty();
}

// The latitude in degrees, south below 0.
double latitude(const std::string& text) {
  return text.starts_with('S') ? -datafolder::number(text.substr(1)) : datafolder::number(text);
}

double figure(const Record& record, Item item) {
  return item == kLatitude ? latitude(record[item]) : datafolder::number(record[item]);
}

// Calls check(record) for each city of each country, with both names in the message of a failure.
template <typename Check>
void for_each_city(Check check) {
  int cities = 0;
  for (const std::string& country : countries()) {
    for (const Record& record : records(country)) {
      if (!in_use(record)) continue;
      SCOPED_TRACE(country + ": " + record[kCity]);
      check(record);
      ++cities;
    }
  }
  EXPECT_EQ(cities, 2082);
}

Record city(const std::string& country, const std::string& name) {
  for (const Record& record : records(country)) {
    if (record[kCity] == name) return record;
  }
  ADD_FAILURE() << name << " is not in " << country;
  return Record(kItems);
}

TEST(ClimateTables, ListOfCountriesHasItsFixedLengthAndBeginsWithGermany) {
  const std::vector<std::string> names = countries();
  ASSERT_EQ(names.size(), 138U);
  EXPECT_EQ(names.front(), "Germany");
}

TEST(ClimateTables, CountriesAreNamedOnceInAlphabeticalOrder) {
  const std::vector<std::string> names = countries();
  ASSERT_GT(names.size(), 2U);
  for (std::size_t i = 2; i < names.size(); ++i) {
    EXPECT_LT(upper(names[i - 1]), upper(names[i]));
  }
  EXPECT_EQ(std::count(names.begin(), names.end(), "Germany"), 1);
}

TEST(ClimateTables, EveryCountryHasAFileOfItsOwnUnderItsExactName) {
  std::set<std::string> present;
  for (const auto& entry : std::filesystem::directory_iterator(POLARKREIS_DATA)) {
    present.insert(entry.path().filename().string());
  }
  std::set<std::string> used;
  for (const std::string& country : countries()) {
    EXPECT_TRUE(present.contains(file_of(country))) << country;
    EXPECT_TRUE(used.insert(file_of(country)).second) << country << " shares its file";
  }
  EXPECT_TRUE(used.contains("AC_CITY.DAT"));
  EXPECT_TRUE(used.contains("Spain___.DAT"));
  EXPECT_TRUE(used.contains("United K.DAT"));
}

TEST(ClimateTables, EveryCityFileHasFiveHundredLinesAndUsedRecordsFirst) {
  for (const std::string& country : countries()) {
    const std::vector<Record> all = records(country);
    ASSERT_EQ(all.size(), kRecords) << country;
    EXPECT_TRUE(in_use(all.front())) << country;
    EXPECT_TRUE(std::is_partitioned(all.begin(), all.end(), in_use)) << country;
    for (const Record& record : all) {
      const bool blank =
          std::all_of(record.begin(), record.end(), [](const auto& item) { return item.empty(); });
      EXPECT_NE(in_use(record), blank) << country;
    }
  }
}

TEST(ClimateTables, CitiesAreNamedOnceInAlphabeticalOrderWithoutBlanksAround) {
  for (const std::string& country : countries()) {
    const std::vector<Record> all = records(country);
    for (std::size_t i = 0; i < all.size() && in_use(all[i]); ++i) {
      const std::string& name = all[i][kCity];
      EXPECT_FALSE(name.starts_with(' ') || name.ends_with(' ')) << country << ": " << name;
      if (i > 0) {
        EXPECT_LT(all[i - 1][kCity], name) << country;
      }
    }
  }
}

TEST(ClimateTables, NamesArePlainAscii) {
  for (const std::string& country : countries()) {
    EXPECT_TRUE(
        std::all_of(country.begin(), country.end(), [](char c) { return c >= ' ' && c <= '~'; }));
  }
  for_each_city([](const Record& record) {
    for (const std::string& item : record) {
      EXPECT_TRUE(
          std::all_of(item.begin(), item.end(), [](char c) { return c >= ' ' && c <= '~'; }));
    }
  });
}

TEST(ClimateTables, EveryFigureIsANumber) {
  for_each_city([](const Record& record) {
    for (int item = kSummerHigh; item < kItems; ++item) {
      EXPECT_FALSE(std::isnan(figure(record, static_cast<Item>(item)))) << "item " << item + 1;
    }
  });
}

TEST(ClimateTables, TemperaturesAreInOrderAndPlausible) {
  for_each_city([](const Record& record) {
    EXPECT_GE(figure(record, kSummerHigh), figure(record, kSummerLow));
    EXPECT_GE(figure(record, kSummerLow), figure(record, kWinterHigh));
    EXPECT_GE(figure(record, kWinterHigh), figure(record, kWinterLow));
    EXPECT_LE(figure(record, kSummerHigh), 50);
    EXPECT_GE(figure(record, kSummerHigh), 10);
    EXPECT_GE(figure(record, kWinterLow), -55);
  });
}

// Both summer figures are rounded to half a kelvin, and the day-night difference may be moved by
// 0.3 K.
TEST(ClimateTables, LowerSummerTemperatureLiesAThirdOfTheDayNightDifferenceBelowTheUpper) {
  for_each_city([](const Record& record) {
    const double third = figure(record, kDayNight) / 3;
    EXPECT_LE(figure(record, kSummerLow), figure(record, kSummerHigh) - third + 0.6);
  });
}

TEST(ClimateTables, HumidityAndDayNightDifferenceAreInRange) {
  for_each_city([](const Record& record) {
    for (const Item item : {kSummerHighHumidity, kSummerLowHumidity}) {
      EXPECT_GE(figure(record, item), 10);
      EXPECT_LE(figure(record, item), 100);
    }
    EXPECT_GE(figure(record, kDayNight), 4);
    EXPECT_LE(figure(record, kDayNight), 20);
  });
}

TEST(ClimateTables, PlacesLieOnEarth) {
  for_each_city([](const Record& record) {
    EXPECT_GE(figure(record, kHeight), -430);
    EXPECT_LE(figure(record, kHeight), 5100);
    EXPECT_LE(std::abs(figure(record, kLatitude)), 90);
    EXPECT_FALSE(record[kLatitude].starts_with('-')) << "south is marked by S";
  });
}

TEST(ClimateTables, HemisphereIsThatOfTheMap) {
  EXPECT_NEAR(latitude(city("Germany", "Berlin")[kLatitude]), 52.5, 0.11);
  EXPECT_NEAR(latitude(city("Norway", "Hammerfest")[kLatitude]), 70.7, 0.11);
  EXPECT_NEAR(latitude(city("Australia", "Sydney")[kLatitude]), -33.9, 0.11);
  EXPECT_NEAR(latitude(city("Argentina", "Buenos Aires")[kLatitude]), -34.6, 0.11);
  EXPECT_NEAR(latitude(city("Singapore", "Singapore")[kLatitude]), 1.3, 0.11);
}

TEST(ClimateTables, HeightsAreThoseOfTheMap) {
  EXPECT_NEAR(figure(city("Mexico", "Mexico City"), kHeight), 2240, 60);
  EXPECT_NEAR(figure(city("Bolivia", "La Paz"), kHeight), 3640, 150);
  EXPECT_NEAR(figure(city("Netherlands", "Amsterdam"), kHeight), 0, 20);
  EXPECT_NEAR(figure(city("Israel", "Tiberias"), kHeight), -200, 30);
}

TEST(ClimateTables, ColdAndHotPlacesAreWhereTheyBelong) {
  EXPECT_LT(figure(city("Russia", "Yakutsk"), kWinterLow), -40);
  EXPECT_GT(figure(city("Kuwait", "Jahra"), kSummerHigh), 46);
  EXPECT_GT(figure(city("Singapore", "Singapore"), kWinterLow), 20);
  EXPECT_LT(figure(city("Iceland", "Reykjavik"), kSummerHigh), 20);
}

}  // namespace
