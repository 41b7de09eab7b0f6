#include "climate/klima.h"

#include <gtest/gtest.h>

#include "climate_desk.h"

using namespace polarkreis;

namespace {

std::string file_of(std::string land) {
  return Klima::Klima_Dateiname(land);
}

std::string padded(std::string land) {
  Klima::Klima_Dateiname(land);
  return land;
}

TEST(KlimaDateiname, ShortCountryIsPaddedToEightInPlace) {
  EXPECT_EQ(file_of("Spain"), "Spain___.DAT");
  EXPECT_EQ(padded("Spain"), "Spain___");
  EXPECT_EQ(file_of("x"), "x_______.DAT");
}

TEST(KlimaDateiname, GermanyInAnyCaseHasTheDefaultFile) {
  EXPECT_EQ(file_of("Germany"), "AC_CITY.DAT");
  EXPECT_EQ(padded("Germany"), "Germany_");
  EXPECT_EQ(file_of("GERMANY_"), "AC_CITY.DAT");
  EXPECT_EQ(file_of("germany"), "AC_CITY.DAT");
}

TEST(KlimaDateiname, LongCountryIsCutToEightCharactersInItsOwnCase) {
  EXPECT_EQ(file_of("Deutschland"), "Deutschl.DAT");
  EXPECT_EQ(padded("Deutschland"), "Deutschland");
  EXPECT_EQ(file_of("Germany East"), "Germany .DAT");
  EXPECT_EQ(file_of("Dominica"), file_of("Dominican Republic"));
}

TEST(KlimaDateiname, CharactersCountNotBytes) {
  EXPECT_EQ(file_of("Österreich"), "Österrei.DAT");
  EXPECT_EQ(padded("Türkei"), "Türkei__");
}

TEST(KlimaDateiname, BlankCountryHasTheDefaultFileAndStays) {
  EXPECT_EQ(file_of(""), "AC_CITY.DAT");
  EXPECT_EQ(file_of("  "), "AC_CITY.DAT");
  EXPECT_EQ(padded("  "), "  ");
}

TEST(KlimaLand, UnderscoresAtTheEndDoNotTellCountriesApart) {
  EXPECT_TRUE(Klima::gleiches_land("Spain___", "Spain"));
  EXPECT_TRUE(Klima::gleiches_land("GERMANY_", "Germany"));
  EXPECT_FALSE(Klima::gleiches_land("Spain", "Spai"));
  EXPECT_EQ(Klima::land_anzeige("Spain___"), "Spain");
  EXPECT_EQ(Klima::land_anzeige("Costa Rica"), "Costa Rica");
}

struct KlimaWert : testing::Test {
  ClimateDesk desk;
  Klima& klima = desk.klima;
  KlimaWert() {
    klima.Land = "Spain";
    desk.folder.schreib("Spain___.DAT",
                        city_file({example_city,
                                   {"", "", "", "", "", "", "", "", "", ""},
                                   {"Kap", "26,5", "60", "8", "24", "62", "18", "7", "5", " S33,9"},
                                   {"Probe", "99", "", "", "", "", "", "", "", ""},
                                   {"Rand", "30", "", "7", "", "", "", "", "", "s12.5"}}));
  }
  std::array<double, 12> humidity(std::string_view city) {
    std::array<double, 12> year{};
    for (int m = 1; m <= 12; ++m) {
      klima.Monat_aktuell = desk.captions.monat(m);
      year[static_cast<std::size_t>(m - 1)] = klima.Klima_Wert(city, 8);
    }
    return year;
  }
};

TEST_F(KlimaWert, SelectorsNameTheFigures) {
  EXPECT_EQ(klima.Klima_Wert("Probe", 1), 32);
  EXPECT_EQ(klima.Klima_Wert("Probe", 2), -10);
  EXPECT_EQ(klima.Klima_Wert("Probe", 3), 10);
  EXPECT_EQ(klima.Klima_Wert("Probe", 4), 48.5);
  EXPECT_EQ(klima.Klima_Wert("Probe", 5), 28);
  EXPECT_EQ(klima.Klima_Wert("Probe", 6), 5);
  EXPECT_EQ(klima.Klima_Wert("Probe", 7), 120);
  EXPECT_EQ(klima.Klima_Wert("Probe", 9), 55);
  EXPECT_EQ(klima.Land, "Spain___");
}

TEST_F(KlimaWert, OtherSelectorsAreEmpty) {
  for (const int selector : {0, 10, -1, 300}) {
    EXPECT_TRUE(ist_leer(klima.Klima_Wert("Probe", selector))) << selector;
  }
}

TEST_F(KlimaWert, CityIsComparedTrimmedAndWithCase) {
  EXPECT_EQ(klima.Klima_Wert("  Probe ", 1), 32);
  EXPECT_TRUE(ist_leer(klima.Klima_Wert("PROBE", 1)));
  EXPECT_FALSE(klima.satz("probe").has_value());
}

TEST_F(KlimaWert, QueryGoesOnPastABlankRecord) {
  EXPECT_EQ(klima.Klima_Wert("Kap", 1), 26.5);
}

TEST_F(KlimaWert, SouthernLatitudeLosesItsLetter) {
  EXPECT_EQ(klima.Klima_Wert("Kap", 4), 33.9);
  EXPECT_TRUE(klima.satz("Kap")->suedlich);
  EXPECT_EQ(klima.Klima_Wert("Rand", 4), 12.5);
  EXPECT_TRUE(klima.satz("Rand")->suedlich);
  EXPECT_FALSE(klima.satz("Probe")->suedlich);
}

TEST_F(KlimaWert, EmptyTextIsZero) {
  EXPECT_EQ(klima.Klima_Wert("Rand", 5), 0);
}

TEST_F(KlimaWert, HumidityRunsFromTheSummerFigureToEightyInJanuary) {
  EXPECT_EQ(humidity("Probe"),
            (std::array<double, 12>{80, 74, 66, 60, 53, 46, 40, 46, 53, 60, 66, 74}));
}

TEST_F(KlimaWert, HumidityOfTheSouthIsThatOfTheNorth) {
  EXPECT_EQ(humidity("Kap"),
            (std::array<double, 12>{80, 77, 73, 70, 66, 63, 60, 63, 66, 70, 73, 77}));
}

TEST_F(KlimaWert, JulyGivesTheStoredFigureUncut) {
  desk.folder.schreib("Spain___.DAT",
                      city_file({{"Probe", "32", "40,7", "10", "28", "", "", "", "", ""}}));
  EXPECT_EQ(humidity("Probe")[6], 40.7);
}

TEST_F(KlimaWert, UnknownCityHasTheMonthsHumidityOnly) {
  EXPECT_EQ(humidity("Nirgends"),
            (std::array<double, 12>{80, 68, 53, 40, 27, 13, 0, 13, 27, 40, 53, 68}));
  for (const int selector : {1, 2, 3, 4, 5, 6, 7, 9}) {
    EXPECT_TRUE(ist_leer(klima.Klima_Wert("Nirgends", selector))) << selector;
  }
}

TEST_F(KlimaWert, UnknownMonthIsEmpty) {
  klima.Monat_aktuell = "Brumaire";
  EXPECT_TRUE(ist_leer(klima.Klima_Wert("Probe", 8)));
  klima.Monat_aktuell = "january";
  EXPECT_TRUE(ist_leer(klima.Klima_Wert("Probe", 8)));
  klima.Monat_aktuell.clear();
  EXPECT_TRUE(ist_leer(klima.Klima_Wert("Probe", 8)));
}

TEST_F(KlimaWert, MissingFileHoldsNoCity) {
  klima.Land = "Atlantis";
  EXPECT_TRUE(ist_leer(klima.Klima_Wert("Probe", 1)));
  EXPECT_EQ(humidity("Probe")[0], 80);
  EXPECT_TRUE(klima.staedte().empty());
  EXPECT_EQ(desk.ablage.Dateigroesse("Atlantis.DAT"), 0);
}

TEST_F(KlimaWert, FiguresBehindTheEndOfACutFileAreEmptyAndTold) {
  desk.folder.schreib("Spain___.DAT", quoted_lines({"Probe", "32", "", "10"}));
  EXPECT_EQ(klima.Klima_Wert("Probe", 1), 32);
  EXPECT_EQ(klima.satz("Probe")->Feuchte_Sommer_hoch, 0);
  EXPECT_EQ(klima.Klima_Wert("Probe", 3), 10);
  for (const int selector : {2, 4, 5, 6, 7, 9})
    EXPECT_TRUE(ist_leer(klima.Klima_Wert("Probe", selector))) << selector;
  EXPECT_FALSE(klima.satz("Probe")->vollstaendig());
  ASSERT_EQ(desk.log.zeilen().size(), 1u);
  EXPECT_NE(desk.log.zeilen()[0].find("Spain___.DAT"), std::string::npos);
  EXPECT_NE(desk.log.zeilen()[0].find("record of Probe"), std::string::npos);
}

TEST_F(KlimaWert, CutRecordWithoutASummerHumidityHasTheMonthsOnly) {
  desk.folder.schreib("Spain___.DAT", quoted_lines({"Probe", "32"}));
  EXPECT_EQ(humidity("Probe"), humidity("Nirgends"));
}

TEST_F(KlimaWert, RecordWithoutHeightAndLatitudeHasAllThatACourseUses) {
  desk.folder.schreib("Spain___.DAT",
                      quoted_lines({"Probe", "32", "40", "10", "20", "60", "8", "-5"}));
  EXPECT_TRUE(klima.satz("Probe")->vollstaendig());
  desk.folder.schreib("Spain___.DAT", quoted_lines({"Probe", "32", "40", "10", "20", "60", "8"}));
  EXPECT_FALSE(klima.satz("Probe")->vollstaendig());
}

TEST_F(KlimaWert, WholeRecordsAreComplete) {
  EXPECT_TRUE(klima.satz("Probe")->vollstaendig());
  EXPECT_TRUE(klima.satz("Rand")->vollstaendig());
  EXPECT_TRUE(desk.log.zeilen().empty());
}

TEST_F(KlimaWert, RecordBehindTheFiftiethIsNotRead) {
  std::string content = city_file({});
  content += quoted_lines({"Spaet", "1", "2", "3", "4", "5", "6", "7", "8", "9"});
  desk.folder.schreib("Spain___.DAT", content);
  EXPECT_FALSE(klima.satz("Spaet").has_value());
}

TEST_F(KlimaWert, EditedFileTakesEffectAtTheNextQuery) {
  EXPECT_EQ(klima.Klima_Wert("Probe", 1), 32);
  desk.folder.schreib("Spain___.DAT",
                      city_file({{"Probe", "33", "40", "10", "28", "", "", "", "", ""}}));
  EXPECT_EQ(klima.Klima_Wert("Probe", 1), 33);
}

TEST_F(KlimaWert, NameThatLeadsOutOfTheFolderIsNoCountryAndOpensNothing) {
  desk.folder.schreib("sub/City.DAT", city_file({example_city}));
  const auto before = desk.folder.namen();
  const std::vector<std::string> lands{"sub/City", "sub\\City", "../x", "/"};
  for (const std::string& land : lands) {
    klima.Land = land;
    EXPECT_EQ(file_of(land), "") << land;
    EXPECT_TRUE(ist_leer(klima.Klima_Wert("Probe", 1))) << land;
    EXPECT_TRUE(klima.staedte().empty()) << land;
    EXPECT_NE(desk.log.zeilen().back().find(land + ": is no country"), std::string::npos);
  }
  EXPECT_EQ(humidity("Probe")[0], 80);
  EXPECT_EQ(desk.log.zeilen().size(), lands.size()) << "each told once";
  EXPECT_EQ(desk.folder.namen(), before);
  EXPECT_EQ(file_of("Trinidad/Tobago"), "Trinidad.DAT") << "the file's name ends before it";
}

TEST_F(KlimaWert, AnotherCountryIsAnotherFile) {
  desk.folder.schreib("Italy___.DAT",
                      city_file({{"Probe", "35", "40", "10", "28", "", "", "", "", ""}}));
  EXPECT_EQ(klima.Klima_Wert("Probe", 1), 32);
  klima.Land = "Italy";
  EXPECT_EQ(klima.Klima_Wert("Probe", 1), 35);
}

TEST_F(KlimaWert, OldFileWithOtherEndsAndUnquotedItemsReads) {
  desk.folder.schreib("Spain___.DAT", "M\xE1laga\n31.5\n40\n9\n30\n50\n17\n4\n8\n36.7\n");
  EXPECT_EQ(klima.Klima_Wert("Málaga", 1), 31.5);
}

TEST_F(KlimaWert, CityListSkipsBlankRecords) {
  EXPECT_EQ(klima.staedte(), (std::vector<std::string>{"Probe", "Kap", "Probe", "Rand"}));
}

TEST_F(KlimaWert, CityListOfABlankCountryIsGermanys) {
  desk.folder.schreib("AC_CITY.DAT", city_file({example_city}));
  klima.Land = " ";
  EXPECT_EQ(klima.staedte(), (std::vector<std::string>{"Probe"}));
  EXPECT_EQ(klima.Land, "GERMANY_");
}

TEST_F(KlimaWert, CountryListEndsAtTheFirstBlankLine) {
  desk.folder.schreib("COUNTRY.DAT", quoted_lines({"Spain", "Italy", " ", "Peru"}));
  EXPECT_EQ(klima.laender(), (std::vector<std::string>{"Spain", "Italy"}));
}

TEST_F(KlimaWert, CountryListHoldsAtMostItsRows) {
  std::string content;
  for (int i = 0; i < 140; ++i) content += "\"L" + std::to_string(i) + "\"\r\n";
  desk.folder.schreib("COUNTRY.DAT", content);
  EXPECT_EQ(klima.laender().size(), 138u);
}

}  // namespace
