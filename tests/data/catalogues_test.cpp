// The sample catalogues: their form byte by byte, and ratings that a plant could have.

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "refrigerant_tables.h"

namespace {

using datafolder::bytes;
using datafolder::Items;
using datafolder::number;

constexpr std::size_t kRecord = 570, kListRecord = 128, kField = 40, kFields = 14, kTypeRecord = 51;
constexpr std::size_t kModels = 8, kLists = 18, kListBlock = 66, kBlock = 50;

// Texts stand in the code page 850: 0xFC is a superscript 3, 0xFD a superscript 2, 0xF8 a degree.
const std::string kCelsius =
    " \xF8"
    "C";

struct Catalogue {
  const char* code;
  const char* index;
  std::size_t rows, block;
};
constexpr std::array<Catalogue, 3> kCatalogues{{{"VERDICH", "I650.DAT", kLists, kListBlock},
                                                {"LUFTKVD", "I600.DAT", 3, kBlock},
                                                {"AXIALKD", "I550.DAT", 3, kBlock}}};

std::string file_of(const Catalogue& c) {
  return std::string(c.code) + "N.rdm";
}

std::string trimmed(const std::string& text) {
  return text.substr(0, text.find_last_not_of(' ') + 1);
}

// The texts of record n, from 1.
Items fields(const std::string& file, std::size_t n) {
  Items result;
  for (std::size_t i = 0; i < kFields; ++i)
    result.push_back(trimmed(file.substr((n - 1) * kRecord + i * kField, kField)));
  return result;
}

// The number behind the label of a text "label: number unit"; not a number for any other text.
double value(const std::string& text, const std::string& label, const std::string& unit) {
  const std::string head = label + ": ", tail = unit.empty() ? "" : " " + unit;
  if (!text.starts_with(head) || !text.ends_with(tail)) return number("none");
  return number(text.substr(head.size(), text.size() - head.size() - tail.size()));
}

// The number between two parts of a text.
double between(const std::string& text, const std::string& before, const std::string& after) {
  const std::size_t from = text.find(before) + before.size();
  return number(text.substr(from, text.find(after, from) - from));
}

// Calls `check(fields, record)` for every component of a catalogue.
template <class Check>
void for_each_component(const Catalogue& c, Check check) {
  const std::string file = bytes(file_of(c));
  for (std::size_t row = 0; row < c.rows; ++row)
    for (std::size_t i = 0; i < kModels; ++i) {
      const std::size_t record = row * c.block + 2 + i;
      SCOPED_TRACE(file_of(c) + " record " + std::to_string(record));
      check(fields(file, record), record);
    }
}

TEST(Catalogues, HaveWholeRecordsUpToTheirLastComponent) {
  for (const Catalogue& c : kCatalogues)
    EXPECT_EQ(bytes(file_of(c)).size(), ((c.rows - 1) * c.block + 1 + kModels) * kRecord) << c.code;
  EXPECT_EQ(bytes("VERDICHI.rdm").size(), kLists * kListRecord);
}

TEST(Catalogues, HaveTheirTypeInRecord51ButOneLeavesItToItsCode) {
  const std::map<std::string, char> digits{{"VERDICH", '0'}, {"LUFTKVD", '3'}, {"AXIALKD", ' '}};
  for (const Catalogue& c : kCatalogues) {
    std::string record = bytes(file_of(c)).substr((kTypeRecord - 1) * kRecord, kRecord);
    EXPECT_EQ(record.front(), digits.at(c.code)) << c.code;
    record.front() = ' ';
    EXPECT_EQ(record, std::string(kRecord, ' ')) << c.code;
  }
}

TEST(Catalogues, HoldNothingBetweenTheirBlocks) {
  for (const Catalogue& c : kCatalogues) {
    const std::string file = bytes(file_of(c));
    for (std::size_t n = 2; n <= file.size() / kRecord; ++n) {
      if (n == kTypeRecord) continue;
      const bool component = (n - 2) % c.block < kModels;
      const std::string record = file.substr((n - 1) * kRecord, kRecord);
      EXPECT_EQ(record != std::string(kRecord, ' '), component) << c.code << " " << n;
    }
  }
}

TEST(Catalogues, GiveEachComponentAllFieldsAndBlankRestBytes) {
  for (const Catalogue& c : kCatalogues) {
    const std::string file = bytes(file_of(c));
    for_each_component(c, [&](const Items& texts, std::size_t record) {
      for (const std::string& text : texts) EXPECT_FALSE(text.empty());
      for (std::size_t i = 2; i < kFields; ++i) EXPECT_NE(texts[i].find(": "), std::string::npos);
      EXPECT_EQ(file.substr((record - 1) * kRecord + kFields * kField, kRecord - kFields * kField),
                std::string(10, ' '));
    });
  }
}

TEST(Catalogues, HoldNoControlCharacters) {
  for (const char* name : {"VERDICHN.rdm", "VERDICHI.rdm", "LUFTKVDN.rdm", "AXIALKDN.rdm"})
    for (char c : bytes(name)) ASSERT_GE(static_cast<unsigned char>(c), 0x20U) << name;
}

TEST(Catalogues, TellModelsOfAListApart) {
  for (const Catalogue& c : kCatalogues) {
    std::set<std::pair<std::size_t, std::string>> seen;
    for_each_component(c, [&](const Items& texts, std::size_t record) {
      EXPECT_TRUE(seen.emplace((record - 2) / c.block, texts[0]).second) << texts[0];
    });
  }
}

TEST(Catalogues, WriteUmlautsInTheCodePage) {
  EXPECT_EQ(fields(bytes("VERDICHN.rdm"), 266)[1],
            "S\x81"
            "dhang K\x84ltetechnik, SKS scroll");
  EXPECT_EQ(fields(bytes("LUFTKVDN.rdm"), 2)[1], "Frostm\x81hle Luftk\x81hler, FM4");
  EXPECT_EQ(fields(bytes("AXIALKDN.rdm"), 102)[1], "Gr\x94nstad Kyl, GKV");
}

TEST(CatalogueIndex, NamesEachBlockWithMakerTextAndStart) {
  for (const Catalogue& c : kCatalogues) {
    const auto lines = datafolder::lines(c.index);
    ASSERT_EQ(lines.size(), c.rows) << c.index;
    EXPECT_TRUE(datafolder::ends_lines_with_crlf(c.index));
    for (std::size_t row = 0; row < c.rows; ++row) {
      const Items items = datafolder::items(lines[row]);
      ASSERT_EQ(items.size(), 4U) << lines[row];
      EXPECT_EQ(items[0], c.code);
      EXPECT_FALSE(items[1].empty());
      EXPECT_FALSE(items[2].empty());
      EXPECT_EQ(items[3], std::to_string(row * c.block + 2));
    }
  }
}

TEST(CatalogueList, NamesTheCompressorsLast) {
  const Items rows = datafolder::single_items("katalg.lst");
  ASSERT_EQ(rows.size(), 3U);
  EXPECT_TRUE(rows[0].starts_with("LUFTKVD "));
  EXPECT_TRUE(rows[1].starts_with("AXIALKD "));
  EXPECT_TRUE(rows[2].starts_with("VERDICH "));
  EXPECT_TRUE(datafolder::ends_lines_with_crlf("katalg.lst"));
}

// The text of a list tells what its block holds: list n begins at record (n - 1) * 66 + 2, its text
// is the record of the n-th index.
TEST(CatalogueLists, HaveTheTextsOfTheirBlocks) {
  constexpr std::array<std::size_t, kLists> index{6, 5, 7,  8, 2,  11, 13, 15, 9,
                                                  4, 1, 10, 3, 12, 14, 16, 17, 18};
  const std::string texts = bytes("VERDICHI.rdm"), file = bytes("VERDICHN.rdm");
  for (std::size_t n = 0; n < kLists; ++n) {
    const std::string text = trimmed(texts.substr((index[n] - 1) * kListRecord, kListRecord));
    const Items first = fields(file, n * kListBlock + 2),
                last = fields(file, n * kListBlock + 1 + kModels);
    const std::string refrigerant = first[2].substr(first[2].find(": ") + 2);
    const std::string maker = first[1].substr(0, first[1].find(','));
    EXPECT_TRUE(text.starts_with(refrigerant + ": ")) << text;
    EXPECT_TRUE(text.ends_with(", " + maker)) << text;
    EXPECT_DOUBLE_EQ(between(text, "t0 ", kCelsius), between(first[4], "t0 ", kCelsius)) << text;
    EXPECT_DOUBLE_EQ(between(text, "tc ", kCelsius), between(first[4], "tc ", kCelsius)) << text;
    EXPECT_DOUBLE_EQ(between(text.substr(text.find("tc ")), kCelsius + ", ", " to "),
                     value(first[3], "Displacement", "m\xFC/h"))
        << text;
    EXPECT_DOUBLE_EQ(between(text, " to ", " m\xFC/h"), value(last[3], "Displacement", "m\xFC/h"))
        << text;
  }
}

/// A compressor's rating, by its texts.
struct Rating {
  explicit Rating(const Items& texts)
      : volume(value(texts[3], "Displacement", "m\xFC/h")),
        t0(between(texts[4], "t0 ", kCelsius)),
        tc(between(texts[4], "tc ", kCelsius)),
        capacity(value(texts[5], "Capacity", "kW")),
        power(value(texts[6], "Power input", "kW")),
        cop(value(texts[7], "COP", "")) {}
  double volume, t0, tc, capacity, power, cop;
};

TEST(CatalogueCompressors, GiveACOPThatIsTheirCapacityByTheirPower) {
  for_each_component(kCatalogues[0], [](const Items& texts, std::size_t) {
    const Rating r(texts);
    EXPECT_NEAR(r.cop, r.capacity / r.power, 0.01 * r.cop);
  });
}

// The best compressors reach three quarters of what a reversible machine would; none of these is
// worse than three tenths.
TEST(CatalogueCompressors, StayBelowAReversibleMachine) {
  for_each_component(kCatalogues[0], [](const Items& texts, std::size_t) {
    const Rating r(texts);
    const double share = r.cop * (r.tc - r.t0) / (r.t0 + 273.15);
    EXPECT_GT(share, 0.3) << texts[0] << texts[2];
    EXPECT_LT(share, 0.75) << texts[0] << texts[2];
  });
}

TEST(CatalogueCompressors, GrowInCapacityAndWeightWithTheirDisplacement) {
  Items before;
  for_each_component(kCatalogues[0], [&](const Items& texts, std::size_t record) {
    if ((record - 2) % kListBlock > 0) {
      EXPECT_GT(Rating(texts).volume, Rating(before).volume);
      EXPECT_GT(Rating(texts).capacity, Rating(before).capacity);
      EXPECT_GT(value(texts[13], "Weight", "kg"), value(before[13], "Weight", "kg"));
    }
    before = texts;
  });
}

const char* table_of(const std::string& refrigerant) {
  if (refrigerant == "R290") return "PROPAN.DAT";
  if (refrigerant == "R717") return "AMMONIAK.DAT";
  if (refrigerant == "R744") return "CO2.DAT";
  if (refrigerant == "R32") return "R32.dat";
  return nullptr;
}

/// Mass flow at full filling in dry saturated vapour, times the difference of the enthalpies at the
/// two saturation temperatures, kW; and the ratio of the pressures.
struct Carried {
  double capacity = 0, ratio = 0;

  explicit Carried(const Items& texts) {
    const Rating r(texts);
    const std::string name = texts[2].substr(texts[2].find(": ") + 2);
    const char* own = table_of(name);
    const auto rows = datafolder::saturation(own != nullptr ? own : name + ".DAT");
    const auto at = [&](datafolder::Column column, double t) {
      std::size_t i = 1;
      while (i + 1 < rows.size() && rows[i][datafolder::kT] < t + 273.15) ++i;
      const double share = (t + 273.15 - rows[i - 1][datafolder::kT]) /
                           (rows[i][datafolder::kT] - rows[i - 1][datafolder::kT]);
      return rows[i - 1][column] + share * (rows[i][column] - rows[i - 1][column]);
    };
    // The liquid boils at the condensing pressure, a blend's below its dew temperature.
    const double pc = at(datafolder::kDew, r.tc);
    double liquid = r.tc;
    while (at(datafolder::kBubble, liquid) > pc) liquid -= 0.05;
    ratio = pc / at(datafolder::kDew, r.t0);
    capacity = r.volume / 3600 * at(datafolder::kVapour, r.t0) *
               (at(datafolder::kVapourEnthalpy, r.t0) - at(datafolder::kLiquidEnthalpy, liquid));
  }
};

TEST(CatalogueCompressors, MoveWhatTheirRefrigerantCarries) {
  for_each_component(kCatalogues[0], [](const Items& texts, std::size_t) {
    const Carried carried(texts);
    EXPECT_GT(Rating(texts).capacity, 0.5 * carried.capacity) << texts[2];
    EXPECT_LT(Rating(texts).capacity, carried.capacity) << texts[2];
  });
}

// Beside its filling, which falls with the pressure ratio, a series' capacity tells only what 10 K
// of superheat do: a few percent more. Liquid of a blend at its dew temperature would take more
// than that away.
TEST(CatalogueCompressors, CondenseABlendToItsBubbleLine) {
  int blends = 0;
  for_each_component(kCatalogues[0], [&](const Items& texts, std::size_t) {
    const bool scroll = texts[0].starts_with("SKS");
    if (!scroll && !texts[0].starts_with("BHK")) return;
    const Carried carried(texts);
    const double filling =
        scroll ? 0.985 - 0.012 * (carried.ratio - 1) : 0.95 - 0.038 * (carried.ratio - 1);
    const double superheat = Rating(texts).capacity / (carried.capacity * filling);
    EXPECT_GT(superheat, 1.005) << texts[0] << " " << texts[2];
    EXPECT_LT(superheat, 1.075) << texts[0] << " " << texts[2];
    if (texts[2].find("R407") != std::string::npos || texts[2].find("R44") != std::string::npos)
      ++blends;
  });
  EXPECT_EQ(blends, 40);
}

// What a coil gives per square metre and kelvin of mean difference, and how much its air changes.
void check_coil(const Items& texts, double difference, double rho, double share_of_air) {
  const double capacity = value(texts[3], "Capacity", "kW");
  const double flow = value(texts[5], "Air flow", "m\xFC/h");
  const double surface = value(texts[6], "Surface", "m\xFD");
  const double change = share_of_air * capacity * 3600 / (flow * rho * 1.006);
  EXPECT_GT(change, 0.3 * difference);
  EXPECT_LT(change, 0.75 * difference);
  const double mean = change / std::log(difference / (difference - change));
  const double k = share_of_air * 1000 * capacity / (surface * mean);
  EXPECT_GT(k, 15);
  EXPECT_LT(k, 45);
  const double fan = value(texts[9], "Fan power", "kW");
  EXPECT_LT(fan, 0.08 * capacity);
  EXPECT_GT(fan / flow * 1e6, 20);  // W for a thousand m³/h
  EXPECT_LT(fan / flow * 1e6, 120);
}

TEST(CatalogueEvaporators, FollowHeatTransfer) {
  for_each_component(kCatalogues[1], [](const Items& texts, std::size_t) {
    const double t0 = between(texts[4], "t0 ", kCelsius), air = between(texts[4], "air ", kCelsius);
    check_coil(texts, air - t0, 353 / (air + 273.15), 1 / 1.15);
    const double fins = value(texts[2], "Fin spacing", "mm");
    EXPECT_TRUE(fins == 4 || fins == 7 || fins == 12) << texts[2];
  });
}

TEST(CatalogueEvaporators, DefrostMoreWattsASquareMetreTheNarrowerTheirGaps) {
  std::map<double, double> lowest, highest;  // W/m², by fin spacing
  for_each_component(kCatalogues[1], [&](const Items& texts, std::size_t) {
    const double fins = value(texts[2], "Fin spacing", "mm");
    const double watts =
        1000 * value(texts[12], "Electric defrost", "kW") / value(texts[6], "Surface", "m\xFD");
    double& low = lowest.try_emplace(fins, watts).first->second;
    low = std::min(low, watts);
    highest[fins] = std::max(highest[fins], watts);
  });
  for (const double fins : {4, 7, 12}) {
    EXPECT_GT(lowest.at(fins), 80) << fins;
    EXPECT_LT(highest.at(fins), 130) << fins;
  }
  EXPECT_GT(lowest.at(4), highest.at(7));
  EXPECT_GT(lowest.at(7), highest.at(12));
}

// The flow of a fan goes with its speed and the cube of its diameter, and its blades' tips stay
// below 45 m/s.
TEST(CatalogueCondensers, HaveFansThatMoveTheirAir) {
  for_each_component(kCatalogues[2], [](const Items& texts, std::size_t) {
    const double number = between(texts[8], "Fans: ", " ");
    const double diameter = between(texts[8], "\x9D ", " mm") / 1000;
    const double speed = value(texts[10], "Fan speed", "1/min") / 60;
    EXPECT_LT(3.14159265 * diameter * speed, 45) << texts[0];
    const double each = value(texts[5], "Air flow", "m\xFC/h") / 3600 / number;
    const double share = each / (speed * diameter * diameter * diameter);
    EXPECT_GT(share, 0.3) << texts[0];
    EXPECT_LT(share, 0.75) << texts[0];
    const double sound = between(texts[11], "Sound pressure: ", " dB");
    EXPECT_GT(sound, 25) << texts[0];
    EXPECT_LT(sound, 65) << texts[0];
    if (speed > 20) {
      EXPECT_GT(sound, 44) << texts[0];
    }
  });
}

TEST(CatalogueCondensers, FollowHeatTransfer) {
  for_each_component(kCatalogues[2], [](const Items& texts, std::size_t) {
    const double tc = between(texts[4], "tc ", kCelsius), air = between(texts[4], "air ", kCelsius);
    check_coil(texts, tc - air, 353 / (air + 273.15), 1);
  });
}

}  // namespace
