#include <gtest/gtest.h>

#include "kern_desk.h"

using namespace polarkreis;

namespace {

struct Seiten : KernDesk {
  /// Evaporator 12 to 6 °C with 5 m³/h, condenser 30 to 36 °C with 6 m³/h.
  void rechnen(const Zellen& anders = {}) {
    laufend({{21, "5"}, {22, "12"}, {23, "6"}, {25, "6"}, {26, "30"}, {27, "36"}});
    setze(anders);
    rechne();
  }
};

double geschnitten_wie(double Q) {
  return Int(100 * Q) / 100;
}

}  // namespace

// Water: 999.50 and 999.94 kg/m³, 4.1900 and 4.1984 kJ/(kg K) at 12 and 6 °C, so
// 5 * 999.72 * 6 * 4.1942 / 3600 = 34.94 kW; 995.65 and 993.69, 4.1800 and 4.1786 at 30 and 36 °C,
// so 6 * 994.67 * (-6) * 4.1793 / 3600 = -41.57 kW.
TEST(KernSekundaer, WaterGivesTheCapacityOfBothSides) {
  Seiten d;
  d.rechnen();
  EXPECT_NEAR(d.zahl(146), 34.94, 0.02);
  EXPECT_NEAR(d.zahl(148), -41.57, 0.02);  // inlet less outlet, as it stands
}

TEST(KernSekundaer, EmptyAndTheNamesOfWaterAreWater) {
  Seiten leer_genannt;
  leer_genannt.rechnen();
  for (const std::string& name : {std::string("water"), std::string("WATER "),
                                  leer_genannt.captions.text(SoleCapt::Wasser)}) {
    Seiten d;
    d.messung.Medium_Verd = d.messung.Medium_Verfl = name;
    d.rechnen();
    EXPECT_EQ(d.zelle(146), leer_genannt.zelle(146)) << name;
    EXPECT_EQ(d.zelle(148), leer_genannt.zelle(148)) << name;
  }
}

TEST(KernSekundaer, BrineTakesTheMeansOfBothTemperatures) {
  Seiten d;
  d.messung.Medium_Verd = "Ethylene glycol";
  d.messung.Konz_Verd = 30;
  d.messung.Medium_Verfl = "Temper -20";
  d.rechnen({{22, "-2"}, {23, "-7"}});
  const auto mittel = [&](auto eigenschaft, const char* name, double a, double b, double c) {
    return ((d.solen.*eigenschaft)(name, a, c) + (d.solen.*eigenschaft)(name, b, c)) / 2;
  };
  const double rho = mittel(&Solen::Dichte, "Ethylene glycol", -2, -7, 30);
  const double cp = mittel(&Solen::Waermekapazitaet, "Ethylene glycol", -2, -7, 30);
  EXPECT_EQ(d.zahl(146), geschnitten_wie(5 * rho * 5 * cp / 3600));
  EXPECT_NEAR(d.zahl(146), 5 * 1048 * 5 * 3.65 / 3600, 0.5);
  // Sold ready for use: no concentration is asked.
  const double rho2 = mittel(&Solen::Dichte, "Temper -20", 30, 36, 100);
  const double cp2 = mittel(&Solen::Waermekapazitaet, "Temper -20", 30, 36, 100);
  EXPECT_EQ(d.zahl(148), geschnitten_wie(6 * rho2 * -6 * cp2 / 3600));
}

TEST(KernSekundaer, ABrineWithoutConcentrationIsProtectedToMinusFifteen) {
  Seiten ohne, mit;
  ohne.messung.Medium_Verd = mit.messung.Medium_Verd = "Propylene glycol";
  mit.messung.Konz_Verd = mit.solen.Konzentration("Propylene glycol", -15);
  ohne.rechnen();
  mit.rechnen();
  EXPECT_EQ(ohne.zelle(146), mit.zelle(146));
  EXPECT_NE(ohne.zelle(146), "");
}

// 90 % at 5 °C comes in, 80 + 1.1 * 2 = 82.2 % at -2 °C goes out.
TEST(KernSekundaer, AirCoolsAndDriesInTheEvaporator) {
  Seiten d;
  d.messung.Medium_Verd = "air";
  d.rechnen({{21, "9000"}, {22, "5"}, {23, "-2"}});
  const auto ein = d.luft.Feuchte_Luft(0.9, 5, 1.013);
  const auto aus = d.luft.Feuchte_Luft(0.8 - 1.1 * -2 / 100, -2, 1.013);
  EXPECT_EQ(d.zahl(146), geschnitten_wie(9000 * ein->rho * (ein->h - aus->h) / 3600));
  // h is about 17.2 and 4.6 kJ/kg, the density 1.265 kg/m³.
  EXPECT_NEAR(d.zahl(146), 39.6, 1);
}

TEST(KernSekundaer, AirLeavesAnEvaporatorAtNinetySixPercentAtMost) {
  Seiten d;
  d.messung.Medium_Verd = "air";
  d.rechnen({{21, "9000"}, {22, "-15"}, {23, "-20"}});  // 0.8 + 0.22
  const auto ein = d.luft.Feuchte_Luft(0.9, -15, 1.013);
  const auto aus = d.luft.Feuchte_Luft(0.96, -20, 1.013);
  EXPECT_EQ(d.zahl(146), geschnitten_wie(9000 * ein->rho * (ein->h - aus->h) / 3600));
}

// 90 % at 25 °C: x is about 18 g/kg, so cp = 1.00327 * 0.9823 + 2.08 * 0.0177 = 1.0223; the density
// is about 1.178 kg/m³: 12000 * 1.178 * -10 * 1.0223 / 3600 = -40.1 kW.
TEST(KernSekundaer, AirWarmsInTheCondenserAtTheCapacityOfItsInlet) {
  Seiten d;
  d.messung.Medium_Verfl = "Air";
  d.rechnen({{25, "12000"}, {26, "25"}, {27, "35"}});
  const auto ein = d.luft.Feuchte_Luft(0.9, 25, 1.013);
  const double x = ein->x;
  const double cp = (1000 / (1000 + x)) * 1.00327 + (x / (1000 + x)) * 2.08;
  EXPECT_EQ(d.zahl(148), geschnitten_wie(12000 * ein->rho * (25.0 - 35.0) * cp / 3600));
  EXPECT_NEAR(d.zahl(148), -40.1, 0.4);
}

TEST(KernSekundaer, AnUnmeasuredFlowIsThePlantsUsualOneAndIsWritten) {
  Seiten d;
  d.messung.OrbiN_spread(3, Einheitentabelle::Wert) = "5";
  d.messung.OrbiN_spread(2, Einheitentabelle::Wert) = "6";
  Seiten gemessen;
  d.rechnen({{21, ""}, {25, ""}});
  gemessen.rechnen();
  EXPECT_EQ(d.zelle(21), "5");
  EXPECT_EQ(d.zelle(25), "6");
  EXPECT_EQ(d.zelle(146), gemessen.zelle(146));
  EXPECT_EQ(d.zelle(148), gemessen.zelle(148));
}

TEST(KernSekundaer, WithoutFlowOrDifferenceTheColumnStays) {
  for (const KernDesk::Zellen& anders :
       {KernDesk::Zellen{{21, "0"}, {25, "0"}}, KernDesk::Zellen{{21, ""}, {25, "  -"}},
        KernDesk::Zellen{{21, "-5"}, {25, "-6"}}, KernDesk::Zellen{{23, "12"}, {27, "30"}}}) {
    Seiten d;
    d.setze({{146, "was"}, {148, "was"}});
    d.rechnen(anders);
    EXPECT_EQ(d.zelle(146), "was");
    EXPECT_EQ(d.zelle(148), "was");
  }
}

TEST(KernSekundaer, AnUnknownFluidIsToldOnceAndGivesNothing) {
  Seiten d;
  d.messung.Medium_Verd = "Lemonade";
  d.rechnen();
  d.kern.Kern_Zeile(3);
  d.kern.Kern_Zeile(3);
  EXPECT_EQ(d.zelle(146), "");
  EXPECT_NE(d.zelle(148), "");
  EXPECT_EQ(d.gemeldet("Lemonade"), 1);
}

TEST(KernSekundaer, AnotherFluidTakesEffectAtTheNextRow) {
  Seiten d;
  d.rechnen();
  const std::string wasser = d.zelle(146);
  d.messung.Medium_Verd = "Ethylene glycol";
  d.messung.Konz_Verd = 20;
  d.kern.Kern_Zeile(3);
  const std::string zwanzig = d.zelle(146);
  d.messung.Konz_Verd = 40;
  d.kern.Kern_Zeile(3);
  EXPECT_NE(zwanzig, wasser);
  EXPECT_NE(d.zelle(146), zwanzig);
}
