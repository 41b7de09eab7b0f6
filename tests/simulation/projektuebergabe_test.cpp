// Project values that a sibling program leaves, and those that it is handed.

#include <gtest/gtest.h>

#include "projekt_desk.h"
#include "shell/uebergabe.h"

using namespace polarkreis;

namespace {

using U = Uebergabe;

U handed_over(std::string_view code) {
  U daten;
  daten[1] = "0";
  daten[U::Startcode] = code;
  daten[U::t0] = "-12";
  daten[U::Tc_oder_Winter] = "41,5";
  daten[U::Q0] = "120";
  daten[U::Projektname] = "Dairy";
  daten[U::Beschreibung] = "Hall 2";
  daten[U::Kaeltemittel] = "R717";
  daten[U::PumpCap] = "3";
  daten[U::Economiser] = "1";
  daten[U::Verdichtertyp] = "2";
  daten[U::Bauform] = "3";
  return daten;
}

}  // namespace

TEST(Projektuebergabe, TakesEveryValueOver) {
  ProjektDesk desk;
  Projektdaten& form = desk.form;
  form.Uebergabe_Uebernehmen(handed_over("117"));
  EXPECT_EQ(form.t0, "-12");
  EXPECT_EQ(form.Tc, "41,5");
  EXPECT_EQ(form.Q0, "120");
  EXPECT_EQ(form.ProjektNam, "Dairy");
  EXPECT_EQ(form.ProBeschr, "Hall 2");
  EXPECT_EQ(form.KaelteM, "R717");
  EXPECT_EQ(desk.km.z.RefName, "R717");
  EXPECT_EQ(form.PumpCap, "3");
  EXPECT_EQ(form.ECO_OPT, 1);
  EXPECT_EQ(form.verdichter_typ, "Screw");
  EXPECT_EQ(form.Verdichterbauart, "Hermetic");
}

TEST(Projektuebergabe, CompressorTypesComeByTheirNumber) {
  ProjektDesk desk;
  const std::vector<std::string> types{"Reciprocating", "Screw", "Scroll", "Turbo"};
  for (std::size_t i = 0; i < types.size(); ++i) {
    U daten = handed_over("117");
    daten[U::Verdichtertyp] = std::to_string(i + 1);
    desk.form.Uebergabe_Uebernehmen(daten);
    EXPECT_EQ(desk.form.verdichter_typ, types[i]);
  }
}

TEST(Projektuebergabe, NumberOutsideTheListLeavesTheSelection) {
  ProjektDesk desk;
  desk.form.verdichter_typ = "Turbo";
  desk.form.Verdichterbauart = "Open";
  U daten = handed_over("117");
  daten[U::Verdichtertyp] = "5";
  daten[U::Bauform] = "";
  desk.form.Uebergabe_Uebernehmen(daten);
  EXPECT_EQ(desk.form.verdichter_typ, "Turbo");
  EXPECT_EQ(desk.form.Verdichterbauart, "Open");
}

TEST(Projektuebergabe, Code217BringsAWinterTemperature) {
  ProjektDesk desk;
  desk.form.Tc = "45";
  U daten = handed_over("217");
  daten[U::Tc_oder_Winter] = "22.7";
  desk.form.Uebergabe_Uebernehmen(daten);
  EXPECT_EQ(desk.form.WinterRGart, "22 °C");
  EXPECT_EQ(desk.form.Tc, "45");
}

TEST(Projektuebergabe, EmptyItemsLeaveTheFields) {
  ProjektDesk desk;
  desk.form.t0 = "-5";
  desk.form.Tc = "40";
  desk.form.KaelteM = "R134a";
  desk.form.ECO_OPT = 1;
  U daten;
  daten[U::Startcode] = "117";
  desk.form.Uebergabe_Uebernehmen(daten);
  EXPECT_EQ(desk.form.t0, "-5");
  EXPECT_EQ(desk.form.Tc, "40");
  EXPECT_EQ(desk.form.KaelteM, "R134a");
  EXPECT_EQ(desk.form.ECO_OPT, 1);
  EXPECT_TRUE(desk.dialog.texte.empty());
}

TEST(Projektuebergabe, WithoutAStartCodeNothingIsTakenOver) {
  ProjektDesk desk;
  desk.form.Uebergabe_Uebernehmen(handed_over("0"));
  EXPECT_EQ(desk.form.Q0, "");
  EXPECT_EQ(desk.form.KaelteM, "");
}

TEST(Projektuebergabe, HandedTemperaturesAreNotDerivedAnew) {
  ProjektDesk desk;
  desk.form.vdsize = desk.p(3);
  desk.form.VFlsize = desk.p(3);
  desk.form.Uebergabe_Uebernehmen(handed_over("117"));
  EXPECT_EQ(desk.form.t0, "-12");
  EXPECT_EQ(desk.form.Tc, "41,5");
}

TEST(Projektuebergabe, CondensingTemperatureOfR744BringsItsPressure) {
  ProjektDesk desk;
  U daten = handed_over("117");
  daten[U::Kaeltemittel] = "R744";
  daten[U::Tc_oder_Winter] = "36";
  desk.form.Uebergabe_Uebernehmen(daten);
  EXPECT_EQ(desk.form.P_gasK, "92");
}

TEST(Projektuebergabe, WhatIsHandedOutComesBackThroughTheFile) {
  ProjektDesk giver;
  giver.form.Uebergabe_Uebernehmen(handed_over("117"));
  ASSERT_TRUE(Daten_Uebergabe(giver.ablage, giver.form.Uebergabe_Fuellen()));

  ProjektDesk taker("GER");
  taker.folder.schreib("FRIGData.dat", giver.folder.lies("FRIGData.dat"));
  const U daten = Uebergabe_Lesen(taker.ablage);
  ASSERT_TRUE(daten.hat_Daten());
  EXPECT_FALSE(daten.mit_Winter());
  taker.form.Uebergabe_Uebernehmen(daten);
  EXPECT_EQ(taker.form.t0, "-12");
  EXPECT_EQ(taker.form.Tc, "41,5");
  EXPECT_EQ(taker.form.Q0, "120");
  EXPECT_EQ(taker.form.ProjektNam, "Dairy");
  EXPECT_EQ(taker.form.ProBeschr, "Hall 2");
  EXPECT_EQ(taker.form.KaelteM, "R717");
  EXPECT_EQ(taker.form.PumpCap, "3");
  EXPECT_EQ(taker.form.ECO_OPT, 1);
  EXPECT_EQ(taker.form.verdichter_typ, "Schraube");
  EXPECT_EQ(taker.form.Verdichterbauart, "Hermetisch");
}

TEST(Projektuebergabe, FileHoldsItsItemsInOrder) {
  ProjektDesk desk;
  desk.form.Uebergabe_Uebernehmen(handed_over("117"));
  ASSERT_TRUE(Daten_Uebergabe(desk.ablage, desk.form.Uebergabe_Fuellen()));
  std::string expected;
  for (const char* item :
       {"0", "117", "", "-12", "41,5", "120", "", "Dairy", "Hall 2", "R717", "3", "1", "2", "3"})
    expected += "\"" + std::string(item) + "\"\r\n";
  for (int n = 15; n <= 32; ++n) expected += "\"\"\r\n";
  EXPECT_EQ(desk.folder.lies("FRIGData.dat"), expected);
}
