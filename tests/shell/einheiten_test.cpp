#include "shell/einheiten.h"

#include <gtest/gtest.h>

using namespace polarkreis;

TEST(Einheiten, TheSettingsSwitchChoosesThem) {
  EXPECT_EQ(Einheiten::von("1").Temperatureinheit(), "°C");
  EXPECT_EQ(Einheiten::von("").Druckeinheit(), "bar");
  EXPECT_EQ(Einheiten::von("2").Temperatureinheit(), "°F");
  EXPECT_EQ(Einheiten::von("2").Druckeinheit(), "psi");
}

TEST(Einheiten, CelsiusAndBarAreShownAsTheyAre) {
  const Einheiten e;
  EXPECT_EQ(e.Temperatur(-40), -40);
  EXPECT_EQ(e.Druck(12.5), 12.5);
  EXPECT_EQ(e.Temperaturdifferenz(8), 8);
}

TEST(Einheiten, FahrenheitAndPsiAreConvertedThereAndBack) {
  const Einheiten e{.angelsaechsisch = true};
  EXPECT_DOUBLE_EQ(e.Temperatur(-40), -40);
  EXPECT_DOUBLE_EQ(e.Temperatur(100), 212);
  EXPECT_DOUBLE_EQ(e.Temperaturdifferenz(10), 18);
  EXPECT_NEAR(e.Druck(1.01325), 14.69595, 1e-5);
  EXPECT_DOUBLE_EQ(e.Temperatur_gelesen(e.Temperatur(37.5)), 37.5);
  EXPECT_DOUBLE_EQ(e.Druck_gelesen(e.Druck(8.25)), 8.25);
}
