#include <gtest/gtest.h>

#include "kern_desk.h"

using namespace polarkreis;

// 2 bar * 18 m³/h / 3600 = 1 kW; the compressor takes 5.849667 kW, so Int(10 * 1/5.85)/10 = 0.1.
TEST(KernGeraete, APumpHasADifferenceInBarAndHydraulicPower) {
  KernDesk d;
  d.einheit(1, VerbCapt::Pumpe);
  d.laufend({{39, "3.5"}, {41, "1.5"}, {49, "18"}});
  d.rechne();
  EXPECT_EQ(d.zelle(152), "2");
  EXPECT_EQ(d.zelle(153), "1");
  EXPECT_EQ(d.zelle(154), "0.1");
  EXPECT_EQ(d.messung.skala.dp_max, 2);
  EXPECT_EQ(d.zelle(40), "");  // its pressures are none of the refrigerant
}

// 350 Pa * 3600 m³/h / 3600 = 0.35 kW, Int(1000 * 0.35/5.849667)/10 = 5.9 %.
TEST(KernGeraete, AFanHasADifferenceInPaAndAnEfficiencyInPercent) {
  KernDesk d;
  d.einheit(2, VerbCapt::Ventilator);
  d.laufend({{59, "100"}, {61, "450"}, {69, "3600"}});
  d.rechne();
  EXPECT_EQ(d.zelle(157), "350");
  EXPECT_EQ(d.zelle(158), "0.35");
  EXPECT_EQ(d.zelle(159), "5.9");
  EXPECT_EQ(d.zelle(152), "");
  EXPECT_EQ(d.messung.skala.dp_max, 0.0035);
}

TEST(KernGeraete, HydraulicPowerIsCutToWatts) {
  KernDesk d;
  d.einheit(2, VerbCapt::Ventilator);
  d.laufend({{61, "101"}, {69, "1000"}});  // 28.06 W
  d.rechne();
  EXPECT_EQ(d.zelle(158), "0.028");
}

TEST(KernGeraete, WithoutCompressorPowerThereIsNoEfficiency) {
  KernDesk d;
  d.einheit(1, VerbCapt::Pumpe);
  d.laufend({{17, "0"}, {39, "3.5"}, {41, "1.5"}, {49, "18"}, {154, "was"}});
  d.rechne();
  EXPECT_EQ(d.zelle(153), "1");
  EXPECT_EQ(d.zelle(154), "was");
}

TEST(KernGeraete, OtherUnitsShowTheDewAndTheBubbleTemperature) {
  KernDesk d("R404A");
  d.einheit(1, VerbCapt::Economiser);
  d.einheit(2, VerbCapt::Luftseite);
  d.laufend({{39, "5"}, {41, "5"}, {59, "14"}, {61, "14"}});
  d.rechne();
  EXPECT_EQ(d.zahl(40), d.km.Sat_TausP(6.013, 167));
  EXPECT_EQ(d.zahl(42), d.km.Sat_TausP(6.013, 187));
  EXPECT_GT(d.zahl(40), d.zahl(42));
  EXPECT_EQ(d.zahl(60), d.km.Sat_TausP(15.013, 167));
  EXPECT_EQ(d.zahl(62), d.km.Sat_TausP(15.013, 187));
}

TEST(KernGeraete, APressureOfNoughtIsTheLowPressure) {
  KernDesk d;
  d.einheit(2, VerbCapt::Economiser);
  d.laufend({{59, "0"}, {61, "  -"}});
  d.rechne();
  EXPECT_EQ(d.zelle(60), d.zelle(3));
  EXPECT_EQ(d.zelle(62), d.zelle(3));
}

TEST(KernGeraete, UnitsWithoutAFunctionShowNothing) {
  KernDesk d;
  d.laufend({{39, "5"}, {41, "5"}, {43, "230"}, {46, "5"}, {63, "230"}, {66, "5"}});
  d.rechne();
  for (int spalte : {40, 42, 60, 62, 132, 133, 134, 135, 136, 137})
    EXPECT_EQ(d.zelle(spalte), "") << spalte;
}

// 230 V * 4.7 A = 1.081 kW, cut to 1 kW.
TEST(KernGeraete, PowerOfEachPhaseIsCutToOnePlace) {
  KernDesk d;
  d.einheit(1, VerbCapt::Pumpe);
  d.einheit(2, VerbCapt::Economiser);
  d.laufend({{43, "230"},
             {44, "230"},
             {45, "230"},
             {46, "4.7"},
             {47, "5"},
             {48, "0"},
             {63, "400"},
             {64, "400"},
             {65, "400"},
             {66, "1"},
             {67, "2.6"},
             {68, "10"}});
  d.rechne();
  EXPECT_EQ(d.zelle(132), "1");
  EXPECT_EQ(d.zelle(133), "1.1");
  EXPECT_EQ(d.zelle(134), "0");
  EXPECT_EQ(d.zelle(135), "0.4");
  EXPECT_EQ(d.zelle(136), "1");
  EXPECT_EQ(d.zelle(137), "4");
}

TEST(KernGeraete, ARowOutsideTheGateStillShowsItsUnits) {
  KernDesk d;
  d.einheit(2, VerbCapt::Pumpe);
  d.laufend({{4, "-120"}, {59, "3"}, {61, "1"}, {69, "18"}, {63, "230"}, {66, "5"}});
  d.rechne();
  EXPECT_EQ(d.zelle(157), "2");
  EXPECT_EQ(d.zelle(135), "1.1");
  EXPECT_EQ(d.zelle(159), "");  // the compressor's power wasn't worked out
}

TEST(KernGeraete, AllFourSecondaryColumnsOfAUnitStayUntouched) {
  KernDesk d;
  d.einheit(1, VerbCapt::Economiser);
  d.laufend({{32, "12"}, {33, "7"}, {34, "30"}, {35, "35"}, {49, "4"}});
  d.rechne();
  EXPECT_EQ(d.zelle(49), "4");
  for (int spalte : {146, 148, 152, 153, 154}) EXPECT_EQ(d.zelle(spalte), "") << spalte;
}
