#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>

#include "climate/jahresgang.h"
#include "climate_desk.h"

using namespace polarkreis;

namespace {

/// The project's own climate tables, copied so that nothing is written beside them.
struct World : testing::Test {
  ClimateDesk desk;
  World() {
    desk.copy("COUNTRY.DAT");
    for (const std::string& land : desk.klima.laender()) {
      std::string copy_of = land;
      const std::string file = Klima::Klima_Dateiname(copy_of);
      if (!desk.folder.da(file)) desk.copy(file);
    }
  }
};

double one_decimal(double value) {
  return Int(10 * (value + .05)) / 10;
}

void expect_year(const JahresGang& form, const std::string& place) {
  for (const auto& month : form.Spread1) {
    for (const std::size_t column : {1u, 2u}) {
      ASSERT_FALSE(month[column].empty()) << place;
      EXPECT_TRUE(std::abs(Wert(month[column])) < 70) << place << " " << month[column];
    }
    EXPECT_LE(Wert(month[2]), Wert(month[1])) << place;
  }
  EXPECT_NEAR(Wert(form.Spread1[0][1]), one_decimal(form.stufen().Sockel), 1e-9) << place;
  EXPECT_NEAR(Wert(form.Spread1[6][1]), one_decimal(form.stufen().Spitze), 1e-9) << place;
}

TEST_F(World, EveryCityHasAYearBetweenItsLevels) {
  JahresGang form(desk.ablage, desk.captions, desk.klima);
  std::size_t cities = 0;
  for (const std::string& land : desk.klima.laender()) {
    form.Combo1_aendern(land);
    EXPECT_FALSE(form.Orte.empty()) << land;
    for (const std::string& stadt : form.Orte) {
      form.OrteListe = stadt;
      form.Temperaturverlauf_rechnen();
      expect_year(form, land + "/" + stadt);
      ++cities;
    }
  }
  EXPECT_GT(cities, 2000u);
}

TEST_F(World, EveryCityHasFiguresAndAHumidityOfEachMonth) {
  for (const std::string& land : desk.klima.laender()) {
    desk.klima.Land = land;
    for (const std::string& stadt : desk.klima.staedte()) {
      const auto satz = desk.klima.satz(stadt);
      ASSERT_TRUE(satz.has_value()) << land << "/" << stadt;
      EXPECT_GE(satz->T_Diff_Tag_Nacht, 0) << stadt;
      for (int m = 1; m <= 12; ++m) {
        desk.klima.Monat_aktuell = desk.captions.monat(m);
        const double R = desk.klima.Klima_Wert(stadt, 8);
        EXPECT_TRUE(R > 0 && R <= 100) << stadt << " " << m << " " << R;
      }
    }
  }
}

}  // namespace
