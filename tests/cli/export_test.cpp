#include <gtest/gtest.h>

#include <sstream>

#include "messordner.h"

namespace {

std::vector<std::string> zeilen(const std::string& text) {
  std::vector<std::string> alle;
  std::istringstream strom(text);
  for (std::string zeile; std::getline(strom, zeile);) alle.push_back(zeile);
  return alle;
}

TEST(MeasurementExport, CsvHasTwoHeadingsAndEachRow) {
  const Messordner daten;
  const Antwort a = daten.rufe({"measurement", "export", "m.fmd", "--csv", "o.csv"});
  EXPECT_EQ(a.status, 0) << a.fehler;
  EXPECT_TRUE(hat(a.ausgabe, "4 rows to o.csv")) << a.ausgabe;
  const std::string text = daten.lies("o.csv");
  EXPECT_TRUE(text.starts_with("\xef\xbb\xbf"));
  const auto alle = zeilen(text);
  ASSERT_EQ(alle.size(), 6U);
  EXPECT_TRUE(hat(alle[0], "Time") && hat(alle[0], "[°C]")) << alle[0];
  EXPECT_TRUE(hat(alle[1], "- 1.9 -")) << alle[1];
  EXPECT_TRUE(alle[2].starts_with("08:00:00,1.3,,-21,-16,16.5,,78.2,34.5,,,,,231.4,230.2,232,"))
      << alle[2];
  for (const std::string& zeile : alle) {
    EXPECT_EQ(std::ranges::count(zeile, ','), 168) << zeile;
    EXPECT_TRUE(zeile.ends_with('\r'));
  }
}

TEST(MeasurementExport, SemicolonsComeWithDecimalCommas) {
  const Messordner daten;
  ASSERT_EQ(daten.rufe({"measurement", "export", "m.fmd", "--csv", "o.csv", "--semicolon"}).status,
            0);
  const auto alle = zeilen(daten.lies("o.csv"));
  ASSERT_EQ(alle.size(), 6U);
  EXPECT_TRUE(alle[2].starts_with("08:00:00;1,3;;-21;-16;16,5;;78,2;34,5;")) << alle[2];
}

TEST(MeasurementExport, XlsxIsAWorksheet) {
  const Messordner daten;
  const Antwort a = daten.rufe({"measurement", "export", "m.fmd", "--xlsx", "o.xlsx", "--json"});
  EXPECT_EQ(a.status, 0) << a.fehler;
  EXPECT_EQ(a.json(), nlohmann::json({{"rows", 4}, {"columns", 169}}));
  EXPECT_TRUE(daten.lies("o.xlsx").starts_with("PK"));
}

TEST(MeasurementExport, NeedsOneTarget) {
  const Messordner daten;
  const auto vorher = daten.inhalt();
  EXPECT_EQ(daten.rufe({"measurement", "export", "m.fmd"}).status, 2);
  EXPECT_EQ(
      daten.rufe({"measurement", "export", "m.fmd", "--csv", "a.csv", "--xlsx", "b.xlsx"}).status,
      2);
  EXPECT_EQ(daten.rufe({"measurement", "export", "--csv", "a.csv"}).status, 2);
  EXPECT_EQ(daten.rufe({"measurement"}).status, 2);
  EXPECT_TRUE(daten.inhalt() == vorher);
}

TEST(MeasurementExport, ATargetThatCanNotBeWrittenIsTold) {
  const Messordner daten;
  std::filesystem::create_directory(daten.pfad("folder"));
  daten.schreib("o.csv", "former");
  daten.schreib("o.xlsx", "former");
  for (const auto& [art, ziel] : {std::pair{"--csv", "folder"},
                                  {"--xlsx", "folder"},
                                  {"--csv", "m.fmd/o.csv"},
                                  {"--csv", "/dev/full"}}) {
    const Antwort a = daten.rufe({"measurement", "export", "m.fmd", art, ziel});
    EXPECT_EQ(a.status, 1) << ziel;
    EXPECT_EQ(a.ausgabe, "") << ziel;
    EXPECT_TRUE(hat(a.fehler, ziel)) << a.fehler;
  }
  for (const auto& [art, ziel] : {std::pair{"--csv", "o.csv"}, {"--xlsx", "o.xlsx"}}) {
    const Antwort a = daten.rufe_mit_grenze(1, {"measurement", "export", "m.fmd", art, ziel});
    EXPECT_EQ(a.status, 1) << ziel;
    EXPECT_EQ(daten.lies(ziel), "former") << a.fehler;
  }
}

TEST(MeasurementExport, LeavesMeasurementAndFolderAlone) {
  const Messordner daten;
  auto vorher = daten.inhalt();
  ASSERT_EQ(daten.rufe({"measurement", "export", "m.fmd", "--csv", "o.csv"}).status, 0);
  vorher["o.csv"] = daten.lies("o.csv");
  EXPECT_TRUE(daten.inhalt() == vorher);
}

}  // namespace
