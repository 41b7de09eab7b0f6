#include "climate/jahresgang.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "climate_desk.h"

using namespace polarkreis;

namespace {

struct JahresGangTest : testing::Test {
  ClimateDesk desk;
  JahresGang form{desk.ablage, desk.captions, desk.klima};

  JahresGangTest() {
    Record south = example_city;
    south[0] = "Kap";
    south[9] = "S33,9";
    desk.folder.schreib("Spain___.DAT", city_file({example_city, south}));
    desk.folder.schreib(
        "Italy___.DAT",
        city_file({{"Roma", "33", "40", "12", "31", "45", "12", "0", "20", "41.9"}, example_city}));
    desk.folder.schreib("COUNTRY.DAT", quoted_lines({"Italy", "Spain"}));
    desk.klima.Land = "Spain___";
    desk.klima.Stadt = "Probe";
  }
  std::string application(int n) const { return Anwendung_Text(desk.captions, n); }
  std::array<std::string, 12> column(std::size_t number) const {
    std::array<std::string, 12> texts;
    for (std::size_t m = 0; m < 12; ++m) texts[m] = form.Spread1[m][number - 1];
    return texts;
  }
};

using Year = std::array<std::string, 12>;

TEST_F(JahresGangTest, OpeningShowsSelectionTemperaturesAndLoads) {
  form.oeffnen(application(3));
  EXPECT_EQ(form.Laender, (std::vector<std::string>{"Italy", "Spain"}));
  EXPECT_EQ(form.Orte, (std::vector<std::string>{"Probe", "Kap"}));
  EXPECT_EQ(form.Combo1, "Spain");
  EXPECT_EQ(form.OrteListe, "Probe");
  EXPECT_EQ(form.AnwendBereich, application(3));
  EXPECT_EQ(form.Spread1[0][0], "January");
  EXPECT_EQ(form.Spread1[11][0], "December");
  EXPECT_EQ(form.Spread1[6][1], "28.7");
  EXPECT_EQ(form.Spread1[6][3], "100");
  for (const auto& month : form.Spread1)
    for (std::size_t s = 5; s < 10; ++s) EXPECT_EQ(month[s], "");
}

TEST_F(JahresGangTest, LevelsOfTheWorkedExample) {
  form.oeffnen(application(1));
  EXPECT_NEAR(form.stufen().a, 28.67, 0.005);
  EXPECT_EQ(form.stufen().b, 25.5);
  EXPECT_NEAR(form.stufen().c, -3.17, 0.005);
  EXPECT_NEAR(form.stufen().e, 28.5, 1e-12);
}

TEST_F(JahresGangTest, StepsOfTheWorkedExample) {
  form.oeffnen(application(1));
  form.Option3d(2);
  form.Option3d(6);
  EXPECT_NEAR(form.stufen().Spitze, 28.67, 0.005);
  EXPECT_EQ(form.stufen().Sockel, -10);
  EXPECT_NEAR(form.stufen().K[0], 38.67, 0.005);
  EXPECT_EQ(form.stufen().K[1], 32);
  EXPECT_EQ(form.Spread1[1][1], "-3.3");
}

TEST_F(JahresGangTest, WholeYearOfTheWorkedExample) {
  form.oeffnen(application(1));
  form.Option3d(6);
  // d = 38.67: steps 38.67, 32, 25, 19, 11, 3, 0; lifts 1.2, 1, .8, .6, .4 from August on.
  EXPECT_EQ(column(2), (Year{"-10", "-3.3", "3.7", "9.7", "17.7", "25.7", "28.7", "26.9", "18.7",
                             "10.5", "4.3", "-2.9"}));
  // Day less 3, 4.5, 6, 7, 8, 9, 10, 9, 8, 7, 6, 4.5.
  EXPECT_EQ(column(3), (Year{"-13", "-7.8", "-2.3", "2.7", "9.7", "16.7", "18.7", "17.9", "10.7",
                             "3.5", "-1.7", "-7.4"}));
}

TEST_F(JahresGangTest, LevelsOfTheOptions) {
  form.oeffnen(application(1));
  EXPECT_EQ(form.Spitze_Option, 2);
  EXPECT_EQ(form.Sockel_Option, 5);
  EXPECT_EQ(form.stufen().Sockel, 1.5);  // Int(10 * (4 - 2.5 + .05)) / 10
  form.Option3d(4);
  EXPECT_EQ(form.stufen().Sockel, 8);
  form.Option3d(1);
  EXPECT_EQ(form.stufen().Spitze, form.stufen().e);
  form.Option3d(3);
  EXPECT_EQ(form.stufen().Spitze, 25.5);
  EXPECT_EQ(form.Sockel_Option, 4);
  form.Option3d(7);
  EXPECT_EQ(form.Spitze_Option, 3);
}

TEST_F(JahresGangTest, SouthernYearIsNotShifted) {
  form.oeffnen(application(1));
  const Year north = column(2);
  form.OrteListe_aendern("Kap");
  form.rechbutt();
  EXPECT_EQ(column(2), north);
}

TEST_F(JahresGangTest, UnknownCityGivesAYearOfZeros) {
  desk.klima.Stadt = "Nirgends";
  form.oeffnen(application(1));
  for (const std::string& text : column(2)) EXPECT_EQ(text, "0");
  for (const std::string& text : column(3)) EXPECT_EQ(text, "0");
  EXPECT_TRUE(form.OKbutt());
  EXPECT_TRUE(Monatstabelle_lesen(desk.ablage).da);
}

TEST_F(JahresGangTest, FigureBeyondTheNumbersCountsAsZero) {
  Record broken = example_city;
  broken[1] = "1e999";
  desk.folder.schreib("Spain___.DAT", city_file({broken}));
  form.oeffnen(application(1));
  EXPECT_EQ(form.stufen().a, -10. / 3);
  EXPECT_EQ(form.Spread1[6][1], "-3.3");
}

TEST_F(JahresGangTest, ChangedCountryTakesItsFirstCityUnlessTheChosenOneIsThere) {
  form.oeffnen(application(1));
  form.Combo1_aendern("Italy");
  EXPECT_TRUE(Klima::gleiches_land(desk.klima.Land, "Italy"));
  EXPECT_EQ(form.Orte, (std::vector<std::string>{"Roma", "Probe"}));
  EXPECT_EQ(form.OrteListe, "Probe");
  form.OrteListe_aendern("Roma");
  form.Combo1_aendern("Spain");
  EXPECT_EQ(form.OrteListe, "Probe");
  EXPECT_EQ(desk.klima.Stadt, "Probe");
}

TEST_F(JahresGangTest, HandEditsLastUntilRechbutt) {
  form.oeffnen(application(1));
  const auto computed = form.Spread1;
  for (auto& month : form.Spread1) month[1] = month[2] = month[3] = month[4] = "7";
  form.AnwendBereich_aendern(application(1));
  EXPECT_EQ(form.Spread1[0][1], "7");
  EXPECT_EQ(form.Spread1[6][3], "100");
  form.rechbutt();
  EXPECT_EQ(form.Spread1, computed);
}

TEST_F(JahresGangTest, OkWritesTheMonthTableByteByByte) {
  form.oeffnen(application(1));
  form.Spread1[0][1] = "-3,5";
  EXPECT_FALSE(form.Gang_da);
  EXPECT_TRUE(form.OKbutt());
  EXPECT_TRUE(form.Gang_da);
  EXPECT_EQ(desk.klima.Land, "Spain");
  std::string expected = "\"Spain\"\r\n\"Probe\"\r\n\"\",\"\",\"\",\"\",\"\",\"\",\"\",\"\"\r\n";
  for (const auto& month : form.Spread1)
    for (const std::string& cell : month) expected += "\"" + cell + "\"\r\n";
  EXPECT_EQ(desk.folder.lies("JG_Temp.dat"), expected);
  EXPECT_EQ(std::count(expected.begin(), expected.end(), '\n'), 123);
}

TEST_F(JahresGangTest, RunReadsWhatOkWrote) {
  form.oeffnen(application(5));
  form.Combo1_aendern("Italy");
  form.OrteListe_aendern("Roma");
  form.Spread1[3][3] = "66,5";
  form.OKbutt();
  EXPECT_EQ(desk.klima.Stadt, "Roma");
  const Monatstabelle table = Monatstabelle_lesen(desk.ablage);
  EXPECT_TRUE(table.da);
  EXPECT_EQ(table.Land, "Italy");
  EXPECT_EQ(table.Stadt, "Roma");
  EXPECT_EQ(table.monate[3].Monat, "April");
  EXPECT_EQ(table.monate[3].Last_Tag, "66,5");
  EXPECT_EQ(table.monate[11].T_Nacht, form.Spread1[11][2]);
  EXPECT_EQ(table.monate[11].Last_Nacht, "35");
}

TEST_F(JahresGangTest, MissingOrEmptyTableIsNotThere) {
  EXPECT_FALSE(Monatstabelle_lesen(desk.ablage).da);
  EXPECT_FALSE(desk.folder.da("JG_Temp.dat"));
  desk.folder.schreib("JG_TEMP.DAT", "");
  EXPECT_FALSE(Monatstabelle_lesen(desk.ablage).da);
  EXPECT_EQ(Monatstabelle_lesen(desk.ablage).monate[0].Monat, "");
}

TEST_F(JahresGangTest, TableInAnotherCaseIsTheSameFile) {
  desk.folder.schreib("JG_TEMP.DAT", "");
  form.oeffnen(application(1));
  form.OKbutt();
  EXPECT_FALSE(desk.folder.da("JG_Temp.dat"));
  EXPECT_TRUE(Monatstabelle_lesen(desk.ablage).da);
}

TEST_F(JahresGangTest, LoadCellFillsItsColumn) {
  form.oeffnen(application(4));
  form.Spread1[4][3] = "42";
  form.Spalte_fuellen(5, 4);
  for (const std::string& text : column(4)) EXPECT_EQ(text, "42");
  form.Spalte_fuellen(7, 5);
  for (const std::string& text : column(5)) EXPECT_EQ(text, "80");
}

TEST_F(JahresGangTest, OtherCellsFillNothing) {
  form.oeffnen(application(4));
  const auto before = form.Spread1;
  for (const int column : {0, 1, 2, 3, 6, 10}) form.Spalte_fuellen(1, column);
  form.Spalte_fuellen(0, 4);
  form.Spalte_fuellen(13, 4);
  EXPECT_EQ(form.Spread1, before);
}

TEST_F(JahresGangTest, HeadingsEndInHourAndUnit) {
  const auto heads = form.Spaltenkoepfe();
  EXPECT_EQ(heads[0], "Month");
  EXPECT_TRUE(heads[1].ends_with(" (15:00) /[°C]"));
  EXPECT_TRUE(heads[2].ends_with(" (5:00) /[°C]"));
  EXPECT_TRUE(heads[3].ends_with(" /[%]"));
  EXPECT_TRUE(heads[4].ends_with(" /[%]"));
}

TEST_F(JahresGangTest, BlankCountryOpensOnGermany) {
  desk.folder.schreib("COUNTRY.DAT", quoted_lines({"Germany", "Spain"}));
  desk.folder.schreib("AC_CITY.DAT", city_file({example_city}));
  desk.klima.Land = "";
  form.oeffnen(application(1));
  EXPECT_EQ(form.Combo1, "Germany");
  EXPECT_EQ(form.Orte, (std::vector<std::string>{"Probe"}));
}

}  // namespace
