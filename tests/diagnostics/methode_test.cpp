#include "diagnostics/methode.h"

#include <gtest/gtest.h>

#include "diagnostics/messdatei_desk.h"

using namespace polarkreis;

namespace {

using Texte = std::vector<std::string>;

struct Methode : testing::Test {
  MessdateiDesk desk;
  int art(std::string_view text) const { return Mass_Art(text, desk.captions); }
};

}  // namespace

TEST_F(Methode, ListIsInTheLanguageInForce) {
  EXPECT_EQ(Combo4_Liste(desk.captions), (Texte{"Swept volume", "Part load %", " Orbiter 1 inX7"}));
  desk.captions.Sprache = "GER";
  desk.captions.Captions_Laden();
  EXPECT_EQ(Combo4_Liste(desk.captions), (Texte{"Hubvolumen", "Teillast %", " Orbiter 1 inX7"}));
}

TEST_F(Methode, TextNamesTheMethod) {
  EXPECT_EQ(art("Swept volume"), 0);
  EXPECT_EQ(art("Part load %"), 87);
  EXPECT_EQ(art("PART LOAD %"), 87);
  EXPECT_EQ(art(" Orbiter 1 inX7"), 77);
  EXPECT_EQ(art(" Orbiter 2 inX7 "), 77);
}

TEST_F(Methode, PartLoadOfAnotherLanguageIsKnown) {
  EXPECT_EQ(art("Teillast %"), 87);
}

TEST_F(Methode, OtherTextsAreTheSweptVolume) {
  for (const char* text : {"", " ", "%", "inX7", " Orbiter 1 inX8", " inX7 or not", "50%"})
    EXPECT_EQ(art(text), 0) << text;
}

TEST_F(Methode, EveryMethodsTextLeadsBackToIt) {
  for (int methode : {0, 77, 87}) EXPECT_EQ(art(Combo4_Text(methode, desk.captions)), methode);
  EXPECT_EQ(Combo4_Text(5, desk.captions), "Swept volume");
}

TEST_F(Methode, ParkIsFourItemsOneALine) {
  ASSERT_TRUE(Park_Schreiben(desk.ablage, {"84.5", "Swept volume", "1", "2"}));
  EXPECT_EQ(desk.ordner.lies("VerDpark.dat"), "\"84.5\"\r\n\"Swept volume\"\r\n\"1\"\r\n\"2\"\r\n");
  const Verdichterpark park = Park_Lesen(desk.ablage);
  EXPECT_EQ(park.Hub_Volumen, "84.5");
  EXPECT_EQ(park.Combo4, "Swept volume");
  EXPECT_EQ(park.Bauart, "1");
  EXPECT_EQ(park.Antrieb, "2");
}

TEST_F(Methode, MissingParkIsEmptyAndNotCreated) {
  const Verdichterpark park = Park_Lesen(desk.ablage, "other.VDD");
  EXPECT_EQ(park.Hub_Volumen + park.Combo4 + park.Bauart + park.Antrieb, "");
  EXPECT_FALSE(desk.ordner.da("other.VDD"));
}

TEST_F(Methode, ShortParkLeavesTheRestEmpty) {
  desk.ordner.schreib("VerDpark.dat", "\"84,5\"\r\n\"Part load %\"");
  const Verdichterpark park = Park_Lesen(desk.ablage);
  EXPECT_EQ(park.Hub_Volumen, "84,5");
  EXPECT_EQ(park.Combo4, "Part load %");
  EXPECT_EQ(park.Antrieb, "");
}
