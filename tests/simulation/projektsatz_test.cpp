// The list of a project: which item stands where.

#include "simulation/projektsatz.h"

#include <gtest/gtest.h>

#include <set>

using namespace polarkreis;

namespace {

std::string_view name_of(int number) {
  return Projektfelder()[static_cast<std::size_t>(number - 1)].name;
}

}  // namespace

TEST(Projektsatz, HasFortySixItems) {
  EXPECT_EQ(Projektfelder().size(), 46U);
}

TEST(Projektsatz, ItemsStandAtTheirNumbers) {
  EXPECT_EQ(name_of(1), "KaelteM");
  EXPECT_EQ(name_of(5), "AnwendBereich");
  EXPECT_EQ(name_of(10), "Tempbereich");
  EXPECT_EQ(name_of(15), "reserviert");
  EXPECT_EQ(name_of(21), "Rechart");
  EXPECT_EQ(name_of(23), "Sprache");
  EXPECT_EQ(name_of(29), "Abtauart");
  EXPECT_EQ(name_of(35), "WaterCheck");
  EXPECT_EQ(name_of(38), "ProBeschr");
  EXPECT_EQ(name_of(43), "Vfl_typ");
  EXPECT_EQ(name_of(46), "VERFL_Eff_combo");
}

TEST(Projektsatz, EachNameIsAFieldOfItsOwn) {
  Projektsatz satz;
  std::set<const std::string*> fields;
  for (const Projektfeld& item : Projektfelder()) {
    fields.insert(&(satz.*item.feld));
    EXPECT_EQ(Projektfeld_finden(item.name), &item);
  }
  EXPECT_EQ(fields.size(), 46U);
}

TEST(Projektsatz, NameLeadsToItsField) {
  Projektsatz satz;
  satz.Tc = "48";
  satz.t0 = "-10";
  EXPECT_EQ(satz.*Projektfeld_finden("Tc")->feld, "48");
  EXPECT_EQ(satz.*Projektfeld_finden("t0")->feld, "-10");
}

TEST(Projektsatz, UnknownNameIsNoItem) {
  EXPECT_EQ(Projektfeld_finden("HeizCheck"), nullptr);
  EXPECT_EQ(Projektfeld_finden(""), nullptr);
}

TEST(Projektkopf, IsTheFirstFourItemsHoweverTheyStand) {
  for (const char* text : {"\"Dairy\",\"milk, \"\"raw\"\"\",\"x\",\"KOMP\"\r\n\"R717\"\r\n",
                           "Dairy\n\"milk, \"\"raw\"\"\"\nx\nKOMP\nR717\n"}) {
    ItemLeser leser(text);
    const Projektkopf kopf = Projektkopf_lesen(leser);
    EXPECT_EQ(kopf.ProjektNam, "Dairy");
    EXPECT_EQ(kopf.ProBeschr, "milk, \"raw\"");
    EXPECT_EQ(kopf.Kennung, "KOMP");
    EXPECT_EQ(kopf.gelesen, Projektkopf::Items);
    EXPECT_EQ(leser.lies(), "R717") << "what is behind it is left";
  }
}

TEST(Projektkopf, OfAShortFileIsEmptyFromItsEndOn) {
  ItemLeser leser("\"Dairy\",\"milk\"");
  const Projektkopf kopf = Projektkopf_lesen(leser);
  EXPECT_EQ(kopf.ProBeschr, "milk");
  EXPECT_EQ(kopf.Kennung, "");
  EXPECT_EQ(kopf.gelesen, 2);
}

TEST(Projektkopf, IsWrittenOnOneLineWithItsThirdItemEmpty) {
  std::string text;
  Projektkopf_anhaengen(text, "Dairy", "milk, \"raw\"", "SIM_PRO");
  EXPECT_EQ(text, "\"Dairy\",\"milk, \"\"raw\"\"\",\"\",\"SIM_PRO\"\r\n");
}
