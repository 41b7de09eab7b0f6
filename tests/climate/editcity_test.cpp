#include <gtest/gtest.h>

#include <filesystem>

#include "climate/klima.h"
#include "climate_desk.h"

using namespace polarkreis;

namespace {

struct EditCity : testing::Test {
  ClimateDesk desk;
  editcity form{desk.ablage, desk.captions, desk.klima};
  const Record second{"Kap", "26,5", "60", "8", "24", "62", "18", "7", "5", "S33,9"};
  const std::string spain = city_file({example_city, second});
  const std::string italy =
      city_file({{"Roma", "33", "40", "12", "31", "45", "12", "0", "20", "41.9"}});

  EditCity() {
    desk.folder.schreib("Spain___.DAT", spain);
    desk.folder.schreib("Italy___.DAT", italy);
    desk.folder.schreib("COUNTRY.DAT", quoted_lines({"Spain", "Italy", "", "Peru"}));
    desk.klima.Land = "Spain";
  }
  std::size_t rows_in_use() const {
    std::size_t rows = 0;
    for (const auto& row : form.Spread1)
      if (row != editcity::Stadtzeile()) ++rows;
    return rows;
  }
};

TEST_F(EditCity, OpeningShowsCitiesAndEveryCountryRow) {
  form.oeffnen();
  EXPECT_EQ(form.Spread1[0], example_city);
  EXPECT_EQ(form.Spread1[1], second);
  EXPECT_EQ(rows_in_use(), 2u);
  EXPECT_EQ(form.CountrySp[0], "Spain");
  EXPECT_EQ(form.CountrySp[2], "");
  EXPECT_EQ(form.CountrySp[3], "Peru");
  EXPECT_EQ(form.CountrySp[137], "");
}

TEST_F(EditCity, ReadingEndsAtARecordWithThreeBlankItems) {
  desk.folder.schreib(
      "Spain___.DAT",
      city_file({example_city, {"", " ", "", "8", "", "", "", "", "", ""}, second}));
  form.oeffnen();
  EXPECT_EQ(rows_in_use(), 1u);
  EXPECT_EQ(desk.klima.Klima_Wert("Kap", 1), 26.5);
}

TEST_F(EditCity, RecordWithoutNameButWithFiguresIsRead) {
  desk.folder.schreib(
      "Spain___.DAT",
      city_file({example_city, {"", "20", "", "", "", "", "", "", "", ""}, second}));
  form.oeffnen();
  EXPECT_EQ(rows_in_use(), 3u);
}

TEST_F(EditCity, ChosenCountryIsTakenUnpaddedAndUnsavedCitiesAreLost) {
  form.oeffnen();
  form.Spread1[0][0] = "edited";
  form.Command3D1(2);
  EXPECT_TRUE(Klima::gleiches_land(desk.klima.Land, "Italy"));
  EXPECT_EQ(form.Spread1[0][0], "Roma");
  EXPECT_EQ(rows_in_use(), 1u);
  EXPECT_EQ(desk.folder.lies("Spain___.DAT"), spain);
}

TEST_F(EditCity, RowOutsideTheTableIsNotChosen) {
  form.oeffnen();
  form.Command3D1(0);
  form.Command3D1(139);
  EXPECT_EQ(form.Spread1[0][0], "Probe");
}

TEST_F(EditCity, SaveWritesFiveHundredAndOneHundredThirtyEightLines) {
  form.oeffnen();
  form.Spread1[2] = {"Neu", "1,5", "x", "", "", "", "", "", "", "S1"};
  form.CountrySp[4] = "Chile";
  EXPECT_TRUE(form.SPS_Sich());
  const Record added{"Neu", "1,5", "x", "", "", "", "", "", "", "S1"};
  EXPECT_EQ(desk.folder.lies("Spain___.DAT"), city_file({example_city, second, added}));
  std::string countries = quoted_lines({"Spain", "Italy", "", "Peru", "Chile"});
  for (int i = 5; i < 138; ++i) countries += "\"\"\r\n";
  EXPECT_EQ(desk.folder.lies("COUNTRY.DAT"), countries);
  EXPECT_EQ(form.Rueckgabe, 0);
}

TEST_F(EditCity, SavedCityTakesEffectAtTheNextQuery) {
  EXPECT_EQ(desk.klima.Klima_Wert("Probe", 1), 32);
  form.oeffnen();
  form.Spread1[0][1] = "34,5";
  form.SPS_Sich();
  EXPECT_EQ(desk.klima.Klima_Wert("Probe", 1), 34.5);
}

TEST_F(EditCity, BlankCountryShowsTheDefaultFileAndSavesNoCities) {
  desk.folder.schreib("AC_CITY.DAT", city_file({example_city}));
  desk.klima.Land = "";
  form.oeffnen();
  EXPECT_EQ(form.Spread1[0], example_city);
  form.Spread1[0][0] = "edited";
  EXPECT_TRUE(form.SPS_Sich());
  EXPECT_EQ(desk.folder.lies("AC_CITY.DAT"), city_file({example_city}));
}

TEST_F(EditCity, NameThatLeadsOutOfTheFolderReadsAndSavesNoCities) {
  form.oeffnen();
  form.CountrySp[4] = "a/b";
  form.Command3D1(5);
  EXPECT_EQ(rows_in_use(), 0u);
  const auto before = desk.folder.namen();
  EXPECT_FALSE(form.SPS_Sich());
  EXPECT_EQ(desk.folder.namen(), before);
  EXPECT_NE(desk.folder.lies("COUNTRY.DAT").find("a/b"), std::string::npos);
}

TEST_F(EditCity, QuoteInATextSurvives) {
  form.oeffnen();
  form.Spread1[0][0] = "Sant \"A\", B";
  form.SPS_Sich();
  editcity again(desk.ablage, desk.captions, desk.klima);
  again.oeffnen();
  EXPECT_EQ(again.Spread1[0][0], "Sant \"A\", B");
}

TEST_F(EditCity, OkSavesAndSetsTheMark) {
  form.oeffnen();
  form.Spread1[0][0] = "edited";
  EXPECT_TRUE(form.OKbutt());
  EXPECT_EQ(form.Rueckgabe, 3);
  EXPECT_TRUE(desk.klima.satz("edited").has_value());
}

TEST_F(EditCity, FileThatCannotBeWrittenIsToldAndTheOtherIsWritten) {
  form.oeffnen();
  std::filesystem::remove(desk.folder.pfad("Spain___.DAT"));
  std::filesystem::create_directory(desk.folder.pfad("Spain___.DAT"));
  form.CountrySp[4] = "Chile";
  EXPECT_FALSE(form.SPS_Sich());
  EXPECT_NE(desk.folder.lies("COUNTRY.DAT").find("Chile"), std::string::npos);
}

TEST_F(EditCity, HeadingsCarryTheUnits) {
  const auto heads = form.Spaltenkoepfe("°C");
  EXPECT_EQ(heads[0], "City");
  EXPECT_EQ(heads[1], "Temperature - Summer - Upper /[°C]");
  EXPECT_EQ(heads[2], "Humidity - Summer - Upper /[%]");
  EXPECT_EQ(heads[3], "Temperature Diff. - Day/night /[K]");
  EXPECT_EQ(heads[4], "Temperature - Summer - Lower /[°C]");
  EXPECT_EQ(heads[5], "Humidity - Summer - Lower /[%]");
  EXPECT_EQ(heads[6], "Temperature - Winter - Upper /[°C]");
  EXPECT_EQ(heads[7], "Temperature - Winter - Lower /[°C]");
  EXPECT_EQ(heads[8], "Height /[m]");
  EXPECT_EQ(heads[9], "Latitude [°]");
}

}  // namespace
