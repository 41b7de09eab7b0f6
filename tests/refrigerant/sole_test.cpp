#include "refrigerant/sole.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>
#include <vector>

#include "support/temp_folder.h"

using namespace polarkreis;

namespace {

const char* const kEthylen = "Ethylene glycol";
const char* const kPropylen = "Propylene glycol";
const char* const kTyfoxit = "TYFOXIT_1.XX";
const std::vector<std::string> kGlykole = {kEthylen, kPropylen, "Antifrogen N", "Antifrogen L",
                                           "Glykosol N"};

/// Brines over the program's own data folder, which no test here writes to.
struct Solenumgebung {
  Meldungen meldungen;
  Ablage ablage{POLARKREIS_DATA, meldungen};
  Captions captions{ablage};
  Solen solen{ablage, captions};

  Solenumgebung() { captions.Captions_Laden(); }
  /// Concentrations over which the fluid is tested: five within the published range.
  std::vector<double> konzentrationen(const std::string& name) {
    if (solen.Konzentration(name, -15) == 100) return {100};
    if (name == kTyfoxit) return {40.1, 50, 60, 79.6, 94.3};
    return {10, 20, 30, 45, 60};
  }
};

/// A data folder of its own, for names that are not the program's.
struct Sprachordner {
  TempOrdner ordner;
  Meldungen meldungen;
  Ablage ablage{ordner.pfad(), meldungen};
  Captions captions{ablage};
  Solen solen{ablage, captions};
};

// --- Names

TEST(SoleNamen, StandInTheOrderOfTheFileOfThePresentLanguage) {
  Solenumgebung u;
  const std::vector<std::string> erwartet = {
      "Ethylene glycol", "Propylene glycol", "Antifrogen N", "Antifrogen L", "Glykosol N",
      "TYFOXIT_1.XX",    "Temper -10",       "Temper -15",   "Temper -20",   "Temper -30",
      "Temper -40",      "Temper -55",       "Thermera -10", "Thermera -15", "Thermera -20",
      "Thermera -25",    "Thermera -30",     "Thermera -35", "Thermera -40"};
  EXPECT_EQ(u.solen.Namen(), erwartet);
  u.captions.Sprache = "GER";
  EXPECT_EQ(u.solen.Namen().front(), "Ethylenglykol");
  EXPECT_EQ(u.solen.Namen().back(), "Thermera -40");
}

TEST(SoleNamen, OfALanguageWithoutAFileAreThoseOfAnother) {
  Solenumgebung u;
  u.captions.Sprache = "FRA";
  EXPECT_EQ(u.solen.Namen().size(), 19u);
  EXPECT_EQ(u.solen.Namen()[0], "Ethylenglykol");
  EXPECT_EQ(u.solen.Namen()[5], "TYFOXIT_1.XX");
  u.captions.Sprache = "../ENG";
  EXPECT_EQ(u.solen.Namen().size(), 19u);
}

TEST(SoleNamen, AreRecognisedInAnyLanguagePresentAndInAnyCase) {
  Solenumgebung u;
  for (const char* name : {"Ethylene glycol", "ethylenglykol", " PROPYLENGLYKOL ", "temper -55",
                           "tyfoxit_1.xx", "THERMERA -25"})
    EXPECT_TRUE(u.solen.bekannt(name)) << name;
  for (const char* name : {"", "  ", "water", "R134A", "Temper", "Temper -11", "Thermera -55"})
    EXPECT_FALSE(u.solen.bekannt(name)) << name;
  EXPECT_EQ(u.solen.Dichte("Ethylenglykol", 20, 30), u.solen.Dichte(kEthylen, 20, 30));
}

TEST(SoleNamen, OfTheSeriesNeedNoFile) {
  Sprachordner u;
  EXPECT_TRUE(u.solen.bekannt(kTyfoxit));
  EXPECT_TRUE(u.solen.bekannt("Temper -30"));
  EXPECT_FALSE(u.solen.bekannt(kEthylen));
  EXPECT_EQ(u.solen.Namen().size(), 17u);
  EXPECT_TRUE(u.ordner.namen().empty());
}

TEST(SoleNamen, ComeFromTheLineOfTheFileAndFollowAnEdit) {
  Sprachordner u;
  u.captions.Sprache = "FRA";
  u.ordner.schreib("solebez.fra", "\"Éthylène glycol\"\r\n\"\"\r\n");
  EXPECT_EQ(u.solen.Sole_Grenzen("éthylène GLYCOL"), -30);
  EXPECT_EQ(u.solen.Namen().size(), 18u);
  u.ordner.schreib("solebez.fra", "\"Eau\",\"Glycol propylénique\",\"\",\"\",\"\",\"Tyfo\"\r\n");
  EXPECT_FALSE(u.solen.bekannt("éthylène glycol"));
  EXPECT_EQ(u.solen.Konzentration("glycol propylénique", -15), 33.2);
  EXPECT_EQ(u.solen.Sole_Grenzen("tyfo"), -55);
  EXPECT_EQ(u.solen.Namen()[5], "Tyfo");
  EXPECT_TRUE(u.solen.bekannt(kTyfoxit));
}

TEST(SoleNamen, BeyondTheLastLineAreNoBrines) {
  Sprachordner u;
  std::string viele;
  for (int i = 1; i <= 25; ++i) viele += "\"fluid " + std::to_string(i) + "\"\r\n";
  u.ordner.schreib("SoleBez.ENG", viele);
  EXPECT_TRUE(u.solen.bekannt("fluid 19"));
  EXPECT_FALSE(u.solen.bekannt("fluid 20"));
  EXPECT_EQ(u.solen.Namen().size(), 19u);
}

// --- Limits and concentrations

TEST(SoleGrenzen, OfASeriesAreItsNumber) {
  Solenumgebung u;
  for (const std::string& name : u.solen.Namen()) {
    const std::size_t strich = name.find(" -");
    if (strich == std::string::npos) continue;
    EXPECT_EQ(u.solen.Sole_Grenzen(name), Wert(name.substr(strich + 1))) << name;
  }
}

TEST(SoleGrenzen, HoldForEveryBrine) {
  Solenumgebung u;
  for (const std::string& glykol : kGlykole) EXPECT_EQ(u.solen.Sole_Grenzen(glykol), -30);
  EXPECT_EQ(u.solen.Sole_Grenzen(kTyfoxit), -55);
  EXPECT_TRUE(ist_leer(u.solen.Sole_Grenzen("water")));
}

// c = -((t - 41.2)/1.02), cut: 56.2/1.02 = 55.098, 61.2/1.02 = 60, 96.2/1.02 = 94.3137.
TEST(SoleKonzentration, OfTyfoxitIsAStraightLineCutToOneDecimal) {
  Solenumgebung u;
  EXPECT_EQ(u.solen.Konzentration(kTyfoxit, -15), 55);
  EXPECT_EQ(u.solen.Konzentration(kTyfoxit, -20), 60);
  EXPECT_EQ(u.solen.Konzentration(kTyfoxit, -50), 89.4);
  EXPECT_EQ(u.solen.Konzentration(kTyfoxit, -55), 94.3);
}

TEST(SoleKonzentration, OfAGlycolIsThePublishedOneAtMinusFifteen) {
  Solenumgebung u;
  const double veroeffentlicht[] = {30.5, 33.2, 27.2, 31.9, 28.8};
  for (std::size_t n = 0; n < kGlykole.size(); ++n) {
    EXPECT_EQ(u.solen.Konzentration(kGlykole[n], -15), veroeffentlicht[n]) << kGlykole[n];
    EXPECT_NEAR(u.solen.Gefriertemperatur(kGlykole[n], veroeffentlicht[n]), -15, 0.1);
  }
}

// At -30 °C x is 15. The sums of the terms are 0.0109, 0.0066, 0.0047, 0.00355 and 0.0024, so the
// shares are 0.9665, 0.902, 0.8735, 0.85625 and 0.839; with the bases 0.3799 (0.367173), 0.4142
// (0.373608), 0.3388 (0.295942), 0.3973 (0.340188) and 0.3587 (0.300949).
TEST(SoleKonzentration, OfTheNthGlycolTakesTheFirstNCorrections) {
  Solenumgebung u;
  const double bei_minus_30[] = {36.7, 37.3, 29.5, 34, 30};
  for (std::size_t n = 0; n < kGlykole.size(); ++n)
    EXPECT_EQ(u.solen.Konzentration(kGlykole[n], -30), bei_minus_30[n]) << kGlykole[n];
  // Above -15 °C the corrections change their sign: x = -10, 0.3799 (0.803 - 0.109) = 0.263651.
  EXPECT_EQ(u.solen.Konzentration(kEthylen, -5), 26.3);
}

TEST(SoleKonzentration, OfAFluidReadyForUseIsHundred) {
  Solenumgebung u;
  EXPECT_EQ(u.solen.Konzentration("Temper -30", -15), 100);
  EXPECT_EQ(u.solen.Konzentration("Thermera -10", -5), 100);
}

TEST(SoleKonzentration, AtTheLimitLiesWithinThePublishedFigures) {
  Solenumgebung u;
  for (const std::string& name : u.solen.Namen()) {
    const double c = u.solen.Konzentration(name, u.solen.Sole_Grenzen(name));
    EXPECT_GE(c, 25) << name;
    EXPECT_LE(c, 100) << name;
    EXPECT_LE(u.solen.Gefriertemperatur(name, c), -10) << name;
  }
}

TEST(SoleKonzentration, OfAnUnknownNameOrAnEmptyTemperatureIsEmpty) {
  Solenumgebung u;
  EXPECT_TRUE(ist_leer(u.solen.Konzentration("brine", -15)));
  EXPECT_TRUE(ist_leer(u.solen.Konzentration(kEthylen, leer)));
  EXPECT_TRUE(ist_leer(u.solen.Konzentration("Temper -30", leer)));
}

// --- The frost protection input

TEST(Frostschutz, AtOrAboveZeroCountsAsMinusFifteen) {
  Solenumgebung u;
  for (const char* eingabe : {"0", "", "5", "-0", "abc", "1e999"}) {
    const Solen::Frostschutz f = u.solen.Frostschutz_Eingabe(kEthylen, eingabe);
    EXPECT_EQ(f.t, -15) << eingabe;
    EXPECT_EQ(f.Konzentration, 30.5) << eingabe;
    EXPECT_EQ(f.Text, "-15 /[°C] 30.5 /[%]") << eingabe;
    EXPECT_EQ(f.Meldung, "") << eingabe;
  }
}

TEST(Frostschutz, ReadsADecimalCommaAndShowsTheTemperatureAsRead) {
  Solenumgebung u;
  const Solen::Frostschutz f = u.solen.Frostschutz_Eingabe(kTyfoxit, " -20,5 ");
  EXPECT_EQ(f.t, -20.5);
  EXPECT_EQ(f.Konzentration, 60.4);  // 61.7/1.02 = 60.49
  EXPECT_EQ(f.Text, "-20.5 /[°C] 60.4 /[%]");
}

TEST(Frostschutz, BelowTheLimitGivesTheMessageAndNoConcentration) {
  Solenumgebung u;
  const Solen::Frostschutz f = u.solen.Frostschutz_Eingabe(kTyfoxit, "-55.1");
  EXPECT_EQ(f.Meldung, "Frost protection down to < tmin !\r\n  tmin =-55°C !");
  EXPECT_TRUE(ist_leer(f.Konzentration));
  EXPECT_EQ(f.Text, "");
  u.captions.Sprache = "GER";
  u.captions.Captions_Laden();
  EXPECT_EQ(u.solen.Frostschutz_Eingabe("Temper -20", "-21").Meldung,
            "Frostschutz bis < tmin !\r\n  tmin =-20°C !");
}

TEST(Frostschutz, AtTheLimitGivesAConcentration) {
  Solenumgebung u;
  EXPECT_EQ(u.solen.Frostschutz_Eingabe(kTyfoxit, "-55").Text, "-55 /[°C] 94.3 /[%]");
  EXPECT_EQ(u.solen.Frostschutz_Eingabe("Temper -20", "-20").Text, "-20 /[°C] 100 /[%]");
}

// The replaced value is compared with the limit like any other.
TEST(Frostschutz, ReplacedByMinusFifteenCanLieBelowTheLimit) {
  Solenumgebung u;
  EXPECT_EQ(u.solen.Frostschutz_Eingabe("Thermera -10", "0").Meldung,
            "Frost protection down to < tmin !\r\n  tmin =-10°C !");
  EXPECT_EQ(u.solen.Frostschutz_Eingabe("Thermera -15", "0").Text, "-15 /[°C] 100 /[%]");
}

TEST(Frostschutz, SpeaksTheUnitsOfTheDialog) {
  Solenumgebung u;
  const Einheiten fahrenheit{true};
  EXPECT_EQ(u.solen.Frostschutz_Eingabe(kEthylen, "5", fahrenheit).Text, "5 /[°F] 30.5 /[%]");
  EXPECT_EQ(u.solen.Frostschutz_Eingabe(kEthylen, "32", fahrenheit).Text, "5 /[°F] 30.5 /[%]");
  EXPECT_EQ(u.solen.Frostschutz_Eingabe(kEthylen, "-40", fahrenheit).Meldung,
            "Frost protection down to < tmin !\r\n  tmin =-22°F !");
}

TEST(Frostschutz, OfAnUnknownNameIsEmpty) {
  Solenumgebung u;
  const Solen::Frostschutz f = u.solen.Frostschutz_Eingabe("R717", "-20");
  EXPECT_TRUE(ist_leer(f.t));
  EXPECT_TRUE(ist_leer(f.Konzentration));
  EXPECT_EQ(f.Meldung + f.Text, "");
}

// --- Physics over the whole range

TEST(SolePhysik, DensityFallsWithTemperatureAndStaysThatOfABrine) {
  Solenumgebung u;
  for (const std::string& name : u.solen.Namen()) {
    for (const double c : u.konzentrationen(name)) {
      double zuvor = std::numeric_limits<double>::infinity();
      for (double t = std::ceil(u.solen.Gefriertemperatur(name, c)) + 1; t <= 30; ++t) {
        const double rho = u.solen.Dichte(name, t, c);
        EXPECT_LT(rho, zuvor) << name << " " << t << " " << c;
        EXPECT_GT(rho, 1000) << name << " " << t << " " << c;
        EXPECT_LT(rho, 1300) << name << " " << t << " " << c;
        zuvor = rho;
      }
    }
  }
}

TEST(SolePhysik, SpecificHeatRisesWithTemperatureBelowThatOfWater) {
  Solenumgebung u;
  for (const std::string& name : u.solen.Namen()) {
    for (const double c : u.konzentrationen(name)) {
      double zuvor = 2.5;
      for (double t = std::ceil(u.solen.Gefriertemperatur(name, c)); t <= 30; ++t) {
        const double cp = u.solen.Waermekapazitaet(name, t, c);
        EXPECT_GT(cp, zuvor - 0.002) << name << " " << t << " " << c;
        EXPECT_LT(cp, 4.2) << name << " " << t << " " << c;
        zuvor = cp;
      }
    }
  }
}

TEST(SolePhysik, MoreOfTheSubstanceIsHeavierHoldsLessHeatAndFreezesLater) {
  Solenumgebung u;
  for (const std::string& name : u.solen.Namen()) {
    const std::vector<double> cs = u.konzentrationen(name);
    for (std::size_t i = 1; i < cs.size(); ++i) {
      EXPECT_GT(u.solen.Dichte(name, 20, cs[i]), u.solen.Dichte(name, 20, cs[i - 1])) << name;
      EXPECT_LT(u.solen.Waermekapazitaet(name, 20, cs[i]),
                u.solen.Waermekapazitaet(name, 20, cs[i - 1]))
          << name;
      EXPECT_LT(u.solen.Gefriertemperatur(name, cs[i]), u.solen.Gefriertemperatur(name, cs[i - 1]))
          << name;
    }
  }
}

TEST(SolePhysik, TheColderAFluidOfASeriesTheHeavierItIsAndTheLessHeatItHolds) {
  Solenumgebung u;
  for (const auto& reihe : {std::vector<std::string>{"Temper -10", "Temper -15", "Temper -20",
                                                     "Temper -30", "Temper -40", "Temper -55"},
                            {"Thermera -10", "Thermera -15", "Thermera -20", "Thermera -25",
                             "Thermera -30", "Thermera -35", "Thermera -40"}}) {
    for (std::size_t i = 1; i < reihe.size(); ++i) {
      for (const double t : {-10.0, 0.0, 20.0, 30.0}) {
        EXPECT_GT(u.solen.Dichte(reihe[i], t, 100), u.solen.Dichte(reihe[i - 1], t, 100));
        EXPECT_LT(u.solen.Waermekapazitaet(reihe[i], t, 100),
                  u.solen.Waermekapazitaet(reihe[i - 1], t, 100));
      }
    }
  }
}

TEST(SolePhysik, GlycolsBecomeWaterWithoutTheGlycol) {
  Solenumgebung u;
  for (const char* name : {kEthylen, kPropylen}) {
    for (const double t : {5.0, 20.0, 50.0, 90.0}) {
      EXPECT_NEAR(u.solen.Dichte(name, t, 0), Wasser_Dichte(t), 1.5) << name << t;
      EXPECT_NEAR(u.solen.Waermekapazitaet(name, t, 0), Wasser_Waermekapazitaet(t), 0.01)
          << name << t;
    }
    EXPECT_EQ(u.solen.Gefriertemperatur(name, 0), 0);
  }
}

TEST(SoleBereich, OutsideItTheNearestPublishedStateCounts) {
  Solenumgebung u;
  EXPECT_EQ(u.solen.Dichte(kEthylen, 20, 80), u.solen.Dichte(kEthylen, 20, 60));
  EXPECT_EQ(u.solen.Dichte(kEthylen, 20, -5), u.solen.Dichte(kEthylen, 20, 0));
  EXPECT_EQ(u.solen.Dichte("Antifrogen N", 20, 0), u.solen.Dichte("Antifrogen N", 20, 10));
  EXPECT_EQ(u.solen.Dichte(kTyfoxit, 20, 20), u.solen.Dichte(kTyfoxit, 20, 40.1));
  EXPECT_EQ(u.solen.Dichte("Temper -30", 20, 0), u.solen.Dichte("Temper -30", 20, 100));
  // Ice at 30 % begins to form at -14.6 °C.
  EXPECT_EQ(u.solen.Dichte(kEthylen, -40, 30), u.solen.Dichte(kEthylen, -14.6, 30));
  EXPECT_NE(u.solen.Dichte(kEthylen, -14, 30), u.solen.Dichte(kEthylen, -14.6, 30));
  EXPECT_EQ(u.solen.Waermekapazitaet("Temper -30", 90, 100),
            u.solen.Waermekapazitaet("Temper -30", 30, 100));
  const double inf = std::numeric_limits<double>::infinity();
  for (const std::string& name : u.solen.Namen()) {
    EXPECT_GT(u.solen.Dichte(name, inf, inf), 900) << name;
    EXPECT_LT(u.solen.Dichte(name, -inf, inf), 1300) << name;
  }
}

TEST(SoleBereich, AnEmptyNumberOrAnUnknownNameGivesNone) {
  Solenumgebung u;
  EXPECT_TRUE(ist_leer(u.solen.Dichte(kEthylen, leer, 30)));
  EXPECT_TRUE(ist_leer(u.solen.Dichte("Temper -30", 20, leer)));
  EXPECT_TRUE(ist_leer(u.solen.Waermekapazitaet(kEthylen, 20, leer)));
  EXPECT_TRUE(ist_leer(u.solen.Waermekapazitaet("air", 20, 30)));
  EXPECT_TRUE(ist_leer(u.solen.Dichte("", 20, 30)));
  EXPECT_TRUE(ist_leer(u.solen.Gefriertemperatur(kEthylen, leer)));
  EXPECT_TRUE(ist_leer(u.solen.Gefriertemperatur("", 30)));
}

// --- Published figures

struct Dichtewert {
  const char* name;
  double t, c, rho;
};

// CRC Handbook of Chemistry and Physics, concentrative properties of aqueous solutions, 20 °C.
TEST(SoleVeroeffentlicht, DensityOfTheGlycolsAgreesWithTheHandbook) {
  Solenumgebung u;
  for (const Dichtewert& w : {Dichtewert{kEthylen, 20, 10, 1010.8},
                              {kEthylen, 20, 20, 1024.1},
                              {kEthylen, 20, 30, 1037.8},
                              {kEthylen, 20, 40, 1051.4},
                              {kEthylen, 20, 60, 1076.5}})
    EXPECT_NEAR(u.solen.Dichte(w.name, w.t, w.c), w.rho, 1.2) << w.name << " " << w.c;
}

TEST(SoleVeroeffentlicht, DensityAgreesWithTheMakersTables) {
  Solenumgebung u;
  for (const Dichtewert& w : {Dichtewert{"Antifrogen N", 20, 30, 1049},
                              {"Antifrogen N", -10, 30, 1058},
                              {"Antifrogen N", -35, 50, 1102},
                              {"Antifrogen L", 20, 40, 1039},
                              {"Antifrogen L", -20, 40, 1056},
                              {"Antifrogen L", 60, 20, 998},
                              {"Glykosol N", 20, 35, 1052},
                              {"Glykosol N", -15, 30, 1059},
                              {"Glykosol N", 45, 55, 1067},
                              {kTyfoxit, 20, 40.1, 1100},
                              {kTyfoxit, -20, 60, 1166},
                              {kTyfoxit, -40, 79.6, 1224},
                              {kTyfoxit, -55, 94.3, 1270},
                              {"Temper -10", 11.85, 100, 1087.6},
                              {"Temper -30", -23.15, 100, 1190.3},
                              {"Temper -55", 1.85, 100, 1248.9}})
    EXPECT_NEAR(u.solen.Dichte(w.name, w.t, w.c), w.rho, 1) << w.name << " " << w.t << " " << w.c;
}

struct Waermewert {
  const char* name;
  double t, c, cp;
};

TEST(SoleVeroeffentlicht, SpecificHeatAgreesWithTheMakersTables) {
  Solenumgebung u;
  for (const Waermewert& w : {Waermewert{"Antifrogen N", 20, 30, 3.73},
                              {"Antifrogen N", -35, 50, 3.16},
                              {"Antifrogen L", 20, 40, 3.73},
                              {"Antifrogen L", -20, 40, 3.62},
                              {"Glykosol N", -15, 30, 3.65},
                              {"Glykosol N", 45, 55, 3.33},
                              {kTyfoxit, 20, 40.1, 3.55},
                              {kTyfoxit, -20, 60, 3.21},
                              {kTyfoxit, -55, 94.3, 2.73},
                              {"Temper -20", 11.85, 100, 3.2947},
                              {"Temper -40", -23.15, 100, 2.9043}})
    EXPECT_NEAR(u.solen.Waermekapazitaet(w.name, w.t, w.c), w.cp, 0.016) << w.name << " " << w.t;
}

// 30 % by mass at 20 °C, as handbooks have it: 3.7 for ethylene glycol, 3.85 for propylene glycol.
TEST(SoleVeroeffentlicht, SpecificHeatOfTheGlycolsAgreesWithHandbooks) {
  Solenumgebung u;
  EXPECT_NEAR(u.solen.Waermekapazitaet(kEthylen, 20, 30), 3.70, 0.05);
  EXPECT_NEAR(u.solen.Waermekapazitaet(kPropylen, 20, 30), 3.85, 0.06);
  EXPECT_NEAR(u.solen.Waermekapazitaet(kEthylen, 20, 50), 3.29, 0.05);
}

// ASHRAE Handbook Fundamentals, freezing points of aqueous glycols by mass; and 34 % by volume of
// an inhibited ethylene glycol, which protects down to -20 °C.
TEST(SoleVeroeffentlicht, FreezingCurvesAgreeWithTheHandbook) {
  Solenumgebung u;
  EXPECT_NEAR(u.solen.Gefriertemperatur(kEthylen, 20), -7.8, 0.3);
  EXPECT_NEAR(u.solen.Gefriertemperatur(kEthylen, 30), -14.1, 0.6);
  EXPECT_NEAR(u.solen.Gefriertemperatur(kEthylen, 40), -22.3, 1.6);
  EXPECT_NEAR(u.solen.Gefriertemperatur(kPropylen, 20), -7.1, 0.3);
  EXPECT_NEAR(u.solen.Gefriertemperatur(kPropylen, 30), -12.7, 0.3);
  EXPECT_NEAR(u.solen.Gefriertemperatur(kPropylen, 40), -21.1, 0.6);
  EXPECT_NEAR(u.solen.Gefriertemperatur("Antifrogen N", 34), -20, 0.2);
}

// --- Water

TEST(Wasser, AgreesWithSteamTables) {
  EXPECT_NEAR(Wasser_Dichte(0), 999.84, 0.01);
  EXPECT_NEAR(Wasser_Dichte(4), 999.97, 0.01);
  EXPECT_NEAR(Wasser_Dichte(20), 998.21, 0.01);
  EXPECT_NEAR(Wasser_Dichte(50), 988.04, 0.01);
  EXPECT_NEAR(Wasser_Dichte(100), 958.36, 0.02);
  EXPECT_NEAR(Wasser_Waermekapazitaet(0), 4.2174, 0.003);
  EXPECT_NEAR(Wasser_Waermekapazitaet(20), 4.1841, 0.003);
  EXPECT_NEAR(Wasser_Waermekapazitaet(50), 4.1813, 0.003);
  EXPECT_NEAR(Wasser_Waermekapazitaet(100), 4.2157, 0.003);
}

TEST(Wasser, OutsideItsRangeHasTheValueOfTheEnd) {
  EXPECT_EQ(Wasser_Dichte(-5), Wasser_Dichte(0));
  EXPECT_EQ(Wasser_Dichte(130), Wasser_Dichte(100));
  EXPECT_EQ(Wasser_Waermekapazitaet(-5), Wasser_Waermekapazitaet(0));
  EXPECT_EQ(Wasser_Waermekapazitaet(130), Wasser_Waermekapazitaet(100));
  EXPECT_TRUE(ist_leer(Wasser_Dichte(leer)));
  EXPECT_TRUE(ist_leer(Wasser_Waermekapazitaet(leer)));
}

}  // namespace
