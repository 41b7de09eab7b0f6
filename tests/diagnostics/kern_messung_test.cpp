#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "kern_desk.h"

using namespace polarkreis;

namespace {

/// Columns that need the values of a refrigerant.
constexpr int mit_Kaeltemittel[] = {3,  7,  10,  11,  31,  36,  40,  41,  42,
                                    60, 62, 138, 139, 141, 142, 143, 144, 147};

/// A gauge pressure whose absolute value lies halfway between two rows' pressures.
std::string mitte(double p_unten, double p_oben) {
  return Zahl_Text((p_unten + p_oben) / 2 - 1.013);
}

}  // namespace

// R134A: 2.92803 bar at 0 °C and 3.49659 bar at 5 °C, so 3.21231 bar is 2.5 °C.
TEST(KernDruck, GaugePressurePlusAFixedAtmosphereGivesTheTemperature) {
  KernDesk d;
  d.laufend({{2, mitte(2.92803, 3.49659)}, {6, "8.987"}});
  d.rechne();
  EXPECT_NEAR(d.zahl(3), 2.5, 0.0101);  // the cut may fall on either side
  EXPECT_DOUBLE_EQ(d.kern.werte().pc, 10);
  EXPECT_NEAR(d.zahl(7), 39.37, 0.02);  // 10 bar, between 8.87 and 10.16 bar at 35 and 40 °C
}

// R404A at 6.0527 bar: between 0 °C (dew 6.0033, bubble 6.10192) and its neighbours the dew line
// gives 5 (6.0527 - 6.0033) / (7.01858 - 6.0033) = 0.243 °C, the bubble line
// -5 + 5 (6.0527 - 5.19366) / (6.10192 - 5.19366) = -0.271 °C; the mean is -0.0139, cut downward.
TEST(KernDruck, BlendIsReadAtTheMeanOfBothLines) {
  KernDesk d("R404A");
  d.laufend({{2, "5.0397"}, {6, "17"}});
  d.rechne();
  EXPECT_EQ(d.zelle(3), "-0.02");
}

TEST(KernDruck, NoPressureAtAllIsTheLowerEndOfTheTable) {
  for (const char* name : {"R134A", "R404A"}) {
    KernDesk d(name);
    d.laufend({{2, "-1.013"}});
    d.rechne();
    EXPECT_EQ(d.kern.werte().p0, 0);
    d.km.Sat_Suchen(0, 0);  // the first row becomes the upper one
    EXPECT_NEAR(d.zahl(3), d.km.z.Klammer.Oben.T - 273.15, 0.0101) << name;
  }
}

TEST(KernSkala, BeginsAtItsLimits) {
  KernDesk d;
  d.messung.skala = {99, 99, -99, 99, 99, 99, 99};
  d.kern.beginnen();
  EXPECT_EQ(d.messung.skala, (Skala{3, 0, 500, 0, -150, 0, 0}));
}

TEST(KernSkala, RowsWidenItAndNeverNarrowIt) {
  KernDesk d;
  d.messung.Q0 = 20;
  d.laufend({{8, "70"}}, 3);
  d.laufend({{2, "0.5"}, {6, "11"}, {8, "179.9"}}, 4);
  d.laufend({{8, "180"}}, 5);
  d.kern.beginnen();
  for (int zeile : {3, 4, 5}) d.kern.Kern_Zeile(zeile);
  const Skala& s = d.messung.skala;
  EXPECT_DOUBLE_EQ(s.p_max, 11 + 1.013);  // absolute
  EXPECT_EQ(s.t0_min, d.zahl(3, 4));
  EXPECT_EQ(s.tc_max, d.zahl(7, 4));
  EXPECT_EQ(s.t_end_max, 179.9);  // from 180 on it is a fault
  EXPECT_EQ(s.EER_max, std::max({d.zahl(141, 3), d.zahl(141, 4), d.zahl(141, 5)}));
  EXPECT_EQ(s.Q_max, std::max({d.zahl(144, 3), d.zahl(144, 4), d.zahl(144, 5)}));
}

TEST(KernSkala, CapacityWithoutPowerIsNoCapacity) {
  KernDesk d;
  d.laufend({{17, "0"}});
  d.rechne();
  EXPECT_EQ(d.messung.skala.Q_max, 3);
}

TEST(KernKaeltemittel, OneOutsideTheCatalogueLeavesItsColumns) {
  KernDesk d("R999");
  d.einheit(1, VerbCapt::Zweistufig, " 2st.");
  d.einheit(2, VerbCapt::Economiser);
  d.messung.Hub_Volumen = 30;
  d.laufend({{21, "5"}, {22, "12"}, {23, "7"}, {43, "230"}, {46, "2"}});
  for (int spalte : mit_Kaeltemittel) d.setze({{spalte, "was " + std::to_string(spalte)}});
  d.rechne();
  for (int spalte : mit_Kaeltemittel) EXPECT_EQ(d.zelle(spalte), "was " + std::to_string(spalte));
  EXPECT_EQ(d.zelle(12), "5.85");  // the electrical side and water don't ask for it
  EXPECT_EQ(d.zelle(140), "0");
  EXPECT_NE(d.zelle(146), "");
  EXPECT_EQ(d.zelle(132), "0.4");
  EXPECT_EQ(d.messung.DiaSpread.rot(3), 0U);
  EXPECT_EQ(d.gemeldet("R999"), 1);
}

TEST(KernKaeltemittel, AnAliasInAnyCaseIsTheSame) {
  KernDesk a("R717"), b(" ammoniak");
  for (KernDesk* d : {&a, &b}) {
    d->laufend();
    d->rechne();
  }
  for (int spalte = 1; spalte <= Spalte::Gespeichert; ++spalte)
    EXPECT_EQ(a.zelle(spalte), b.zelle(spalte)) << spalte;
}

TEST(KernKaeltemittel, PressureAboveTheTableIsNamedOnceForNeighbours) {
  KernDesk d;
  for (int zeile = 3; zeile <= 9; ++zeile)
    d.laufend({{6, zeile == 5 || zeile == 6 || zeile == 9 ? "35" : "9"}}, zeile);
  d.laufend({{6, "36.5"}}, 6);
  d.messung.Mess_Zeilen = 9;
  struct : Fortschritt {
    bool schritt(std::string_view, int, int) override { return true; }
  } weiter;
  d.kern.rechenkern(weiter);
  EXPECT_EQ(d.gemeldet("rows 5 to 6 (up to 37.513 bar), row 9 (36.013 bar)"), 1);
  EXPECT_EQ(d.gemeldet("35.9123"), 1);
}

TEST(KernKaeltemittel, ALiveRunTellsAStretchOfHighPressureAtItsBeginning) {
  KernDesk d;
  d.kern.beginnen();
  for (const char* pc : {"35", "35", "9", "35"}) {
    d.laufend({{6, pc}});
    d.kern.Kern_Zeile(3);
  }
  EXPECT_EQ(d.gemeldet("row 3 (36.013 bar)"), 2);
}

TEST(KernFuehler, RemoteSensorsOfAnOrdinaryCompressorReplaceTheOwn) {
  for (const char* keiner : {"", "0", "-", "  -"}) {
    KernDesk d;
    d.einheit(1, VerbCapt::Verdichter);
    d.laufend({{36, keiner}, {31, keiner}});
    d.rechne();
    EXPECT_EQ(d.kern.werte().t_Exp, -4);
    EXPECT_EQ(d.kern.werte().t_liq, 36);
  }
  KernDesk d;
  d.einheit(1, VerbCapt::Verdichter);
  d.laufend({{36, "-2,5"}, {31, "35"}});
  d.rechne();
  EXPECT_EQ(d.kern.werte().t_Exp, -2.5);
  EXPECT_EQ(d.kern.werte().t_liq, 35);
  EXPECT_EQ(d.zelle(4), "-4");  // chosen, not written
}

TEST(KernFuehler, ACompressorWithRemoteSensorsReplacesTheValveBulbAlone) {
  KernDesk d;
  d.einheit(1, VerbCapt::Verdichter_Fernfuehler);
  d.laufend({{36, "-2.5"}, {31, "35"}});
  d.rechne();
  EXPECT_EQ(d.kern.werte().t_Exp, -2.5);
  EXPECT_EQ(d.kern.werte().t_liq, 36);
}

TEST(KernFuehler, OtherFunctionsAndNoFunctionKeepTheOwn) {
  for (bool economiser : {false, true}) {
    KernDesk d;
    if (economiser) d.einheit(1, VerbCapt::Economiser);
    d.laufend({{36, "-2.5"}, {31, "35"}});
    d.rechne();
    EXPECT_EQ(d.kern.werte().t_Exp, -4);
    EXPECT_EQ(d.kern.werte().t_liq, 36);
  }
}

// t0 is -9.92 °C, so a superheat of -0.085 K becomes -0.09 K.
TEST(KernFuehler, ARemoteNumberBeyondRangeLeavesTheOwnSensor) {
  KernDesk d;
  d.einheit(1, VerbCapt::Verdichter);
  d.laufend({{36, "1e999"}, {31, "1e999"}});
  d.kern.beginnen();
  d.kern.Kern_Zeile(3);
  EXPECT_EQ(d.kern.werte().t_Exp, -4);
  EXPECT_EQ(d.kern.werte().t_liq, 36);
}

TEST(KernAbstaende, AreCutDownwardToHundredths) {
  KernDesk d;
  d.laufend({{4, "-10.005"}, {9, "36.005"}});
  d.rechne();
  ASSERT_EQ(d.zelle(3), "-9.92");
  ASSERT_EQ(d.zelle(7), "39.41");
  EXPECT_EQ(d.zelle(10), "-0.09");
  EXPECT_EQ(d.zelle(11), "3.4");
}

TEST(KernAbstaende, WarnOutsideTheirLimits) {
  const auto rot = [](const char* t_Exp, const char* t_liq) {
    KernDesk d;
    d.laufend({{4, t_Exp}, {9, t_liq}});
    d.rechne();
    return d.messung.DiaSpread.rot(3) & (Rot_sh | Rot_sc);
  };
  EXPECT_EQ(rot("-6.925", "36"), Rot_sh);  // 2.99 K
  EXPECT_EQ(rot("-6.915", "36"), 0U);      // 3 K
  EXPECT_EQ(rot("1.085", "36"), 0U);       // 11 K
  EXPECT_EQ(rot("1.095", "36"), Rot_sh);   // 11.01 K
  EXPECT_EQ(rot("-4", "39.405"), 0U);      // 0 K
  EXPECT_EQ(rot("-4", "39.415"), Rot_sc);  // -0.01 K
  EXPECT_EQ(rot("-12", "45"), Rot_sh | Rot_sc);
}

TEST(KernAbstaende, ARowThatIsInOrderAgainLosesItsMark) {
  KernDesk d;
  d.laufend({{4, "-12"}});
  d.rechne();
  ASSERT_TRUE(d.messung.DiaSpread.rot(3) & Rot_sh);
  d.laufend();
  d.rechne();
  EXPECT_FALSE(d.messung.DiaSpread.rot(3) & Rot_sh);
}

// The flag 1 of the air side is set by no function; it takes the middle pressure of unit 1.
TEST(KernAbstaende, SubcoolingCountsFromTheMiddleTemperatureWhereThereIsOne) {
  KernDesk d;
  d.laufend({{9, "2"}, {41, "3"}});
  d.kern.beginnen();
  d.kern.Funktion.Druck_Art = 1;
  d.kern.Kern_Zeile(3);
  const double t_m = d.km.Sat_TausP(3 + 1.013, 177);
  EXPECT_EQ(d.zahl(11), Int(100 * (t_m - 2)) / 100);

  d.laufend({{41, "0"}});
  d.kern.Kern_Zeile(3);
  EXPECT_EQ(d.zelle(41), "6");  // 5 bar above the low side
}

TEST(KernTor, MinusNinetyPassesAndASensorBelowItDoesNot) {
  for (int spalte : {4, 5, 9}) {
    KernDesk d;
    d.laufend({{spalte, "-90"}});
    d.rechne();
    EXPECT_NE(d.zelle(12), "") << spalte;

    KernDesk offen;
    offen.laufend({{spalte, "-90.1"}, {21, "5"}, {22, "12"}, {23, "7"}});
    offen.rechne();
    for (int leere : {10, 11, 12, 138, 139, 140, 141, 142, 143, 144, 147})
      EXPECT_EQ(offen.zelle(leere), "") << spalte << " " << leere;
    EXPECT_NE(offen.zelle(3), "");
    EXPECT_NE(offen.zelle(7), "");
    EXPECT_NE(offen.zelle(146), "");  // the secondary sides don't ask for these sensors
  }
}

TEST(CosPhi, FallsAtSmallCurrents) {
  KernDesk d;
  const struct {
    int antrieb;
    double b;
  } arten[] = {{0, 0.87}, {1, 0.93}, {2, 0.87}, {3, 0.805}};
  for (const auto& [antrieb, b] : arten) {
    d.messung.Antrieb = antrieb;
    d.kern.beginnen();
    EXPECT_DOUBLE_EQ(d.kern.Cos_phi(30), b - 2.0 / 90) << antrieb;
    EXPECT_DOUBLE_EQ(d.kern.Cos_phi(1), b - 2.0 / 3) << antrieb;
    EXPECT_DOUBLE_EQ(d.kern.Cos_phi(0), b - 2.0 / 30) << antrieb;
    EXPECT_DOUBLE_EQ(d.kern.Cos_phi(-5), b - 2.0 / 30) << antrieb;
  }
}

namespace {

/// The electrical side alone: without a refrigerant columns 12 and 140 stay as it wrote them.
struct Strom : KernDesk {
  Strom(const char* I1, const char* I2, const char* I3, const Zellen& anders = {})
      : KernDesk("none") {
    laufend({{17, I1}, {18, I2}, {19, I3}});
    setze(anders);
    rechne();
  }
  std::string P_el() const { return zelle(12); }
  std::string P_rest() const { return zelle(140); }
};

}  // namespace

// cosphi = 0.87 - 2/(3 * 36) = 0.851481; S = 7.59 kVA; d = 0 + 2 + 1 = 3 A, which is
// 3 * 690/3000 = 0.69 kVA. P_el = 6.9 * 0.851481 = 5.87522, the rest 0.587522.
TEST(KernStrom, ImbalanceIsTakenForASinglePhaseAuxiliary) {
  const Strom s("10", "12", "11");
  EXPECT_EQ(s.P_el(), "5.875");
  EXPECT_EQ(s.P_rest(), "0.588");  // rounded, not cut
}

// cosphi = 0.851481 at 12 A: 230 V * 28.9 A / 1000 = 6.647 kVA, nothing taken off: 5.6598 kW. At
// 6 A the imbalance of 11 A counts: S = 6.67, d = 2.53 kVA.
TEST(KernStrom, APhaseUnderHalfTheGreatestCarriesNoAuxiliary) {
  const Strom unter("5.9", "12", "11");
  EXPECT_EQ(unter.P_el(), "5.66");
  EXPECT_EQ(unter.P_rest(), "0");
  const Strom halb("6", "12", "11");
  EXPECT_EQ(halb.P_el(), "3.525");
  EXPECT_EQ(halb.P_rest(), "2.154");
}

TEST(KernStrom, NothingCountsWithoutCurrentOrVoltageInEachPhase) {
  EXPECT_EQ(Strom("0.1", "0.1", "0.1").P_el(), "0");
  EXPECT_EQ(Strom("10", "0.1", "10").P_el(), "0");
  EXPECT_EQ(Strom("10", "-10", "10").P_el(), "0");
  EXPECT_EQ(Strom("10", "10", "10", {{15, "10"}}).P_el(), "0");
  EXPECT_EQ(Strom("10", "10", "10", {{15, "10.1"}}).P_el(), "3.985");  // 4.701 kVA * (0.87 - 2/90)
  EXPECT_EQ(Strom("10", "10", "  -").P_el(), "0");
}

TEST(KernStrom, WithoutCurrentTheEerShowsNothing) {
  KernDesk d;
  d.laufend({{17, "0.1"}, {18, "0.1"}, {19, "0.1"}});
  d.rechne();
  EXPECT_EQ(d.zelle(12), "0");
  EXPECT_EQ(d.zelle(138), " - -");
  EXPECT_EQ(d.zelle(140), "0");
  EXPECT_EQ(d.zelle(144), "0");
}

// 230 V * 10 A * (0.87 - 2/90) = 1.94989 kW; the gate of the three phases isn't asked.
TEST(KernStrom, OnePhasePlantCountsTheFirstPhaseAlone) {
  KernDesk d("none");
  d.messung.OrbiN_spread(1, Einheitentabelle::Liste) =
      d.captions.text(VerbCapt::Verdichter) + " - 1 ph.";
  d.laufend({{18, "0"}, {19, "0"}, {15, "0"}, {16, ""}});
  d.rechne();
  EXPECT_EQ(d.zelle(12), "1.95");
  EXPECT_EQ(d.zelle(140), "0");
}

TEST(KernStrom, AnotherPlantTextIsThreePhases) {
  KernDesk d("none");
  d.messung.OrbiN_spread(1, Einheitentabelle::Liste) = "Some plant - 1 ph.";
  d.laufend({{18, "0"}});
  d.rechne();
  EXPECT_EQ(d.zelle(12), "0");
}

TEST(KernZeile, RowsBelowThreeAreRowThreeAndRowsBeyondTheTableAreNone) {
  KernDesk d;
  d.laufend();
  d.kern.beginnen();
  d.kern.Kern_Zeile(-7);
  EXPECT_EQ(d.zelle(12), "5.85");
  const int zeilen = d.messung.DiaSpread.Zeilenzahl();
  d.kern.Kern_Zeile(1000000000);
  EXPECT_EQ(d.messung.DiaSpread.Zeilenzahl(), zeilen);
}

TEST(KernZeile, NonsenseInEveryCellBreaksNothingAndIsNeverWritten) {
  for (const char* text : {"", "  -", "abc", "1e308", "-1e308", "1e999", "0", "-5", "1e-300"}) {
    for (int funktion = 0; funktion <= 26; ++funktion) {
      KernDesk d("R744");
      d.messung.Hub_Volumen = 30;
      for (int spalte = 1; spalte <= Spalte::Gespeichert; ++spalte) d.setze({{spalte, text}});
      d.kern.beginnen();
      d.kern.Funktion.Sensor_Code = {0, funktion, funktion, 0, 0};
      d.kern.Kern_Zeile(3);
      d.kern.Kern_Zeile(3);
      for (int spalte = 1; spalte <= Spalte::Gespeichert; ++spalte) {
        EXPECT_EQ(d.zelle(spalte).find("nan"), std::string::npos) << text << spalte;
        EXPECT_EQ(d.zelle(spalte).find("inf"), std::string::npos) << text << spalte;
      }
    }
  }
}
