#include "cycle/kompsuch.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "katalog_ordner.h"

using namespace polarkreis;

namespace {

/// Two makers' compressors, evaporators in two blocks, condensers.
struct Suchordner : Katalogordner {
  KompSuch suche{ablage};

  Suchordner() {
    schreib("katalg.lst", "\"FIRNEVD Evaporators\"\r\n\"BOREALX Compressors\"\r\n\"SKADEKD\"\r\n");
    schreib(
        "I650.DAT",
        "\"BOREALX\",\"Nordwerk\",\"R134A\",\"2\"\r\n\"BOREALX\",\"Kältebau\",\"R404A\",\"68\"\r\n"
        "\"OTHERXX\",\"NORDWERK\",\"R717\",\"2\"\r\n");
    schreib("I600.DAT",
            "\"FIRNEVD\",\"Höfler\",\"4 mm\",\"2\"\r\n\"FIRNEVD\",\"Höfler\",\"7 mm\",\"52\"\r\n");
    schreib("I550.DAT", "\"SKADEKD\",\"Höfler\",\"axial\",\"2\"\r\n");
    bauteile("BOREALX", {{2, {"NV 10", "Nordwerk NV"}},
                         {3, {"NV 20", "Nordwerk NV"}},
                         {51, {"0"}},
                         {68, {"KB 10", "K\x84ltebau"}}});
    bauteile("OTHERXX", {{2, {"NS 10", "Nordwerk NS"}}, {51, {"2"}}});
    bauteile("FIRNEVD", {{2, {"L 4-10"}}, {51, {""}}, {52, {"L 7-10"}}});
    bauteile("SKADEKD", {{2, {"V 10"}}, {51, {"4"}}});
  }
  /// The models found, in order.
  std::vector<std::string> modelle(int art, const std::string& text) {
    suche.Suchart = art;
    suche.Suchtext = text;
    suche.Suchen();
    std::vector<std::string> alle;
    for (const auto& e : suche.Ergebnisse)
      for (const Bauteil& b : e.Treffer) alle.push_back(b.Felder[0]);
    return alle;
  }
};

using Texte = std::vector<std::string>;

TEST(KompSuch, SearchesTheIndexOfItsKind) {
  Suchordner o;
  EXPECT_EQ(o.modelle(0, "10"), (Texte{"NV 10", "KB 10", "NS 10"}));
  EXPECT_EQ(o.modelle(100, "10"), (Texte{"NV 10", "KB 10", "NS 10"}));
  EXPECT_EQ(o.modelle(1, "10"), (Texte{"L 4-10", "L 7-10"}));
  EXPECT_EQ(o.modelle(2, "10"), Texte{"V 10"});
  EXPECT_EQ(o.modelle(77, "10"), Texte{"V 10"});
}

TEST(KompSuch, KnowsCataloguesWhoseFileIsMissingOrCantBeRead) {
  Suchordner o;
  std::filesystem::remove(o.pfad("OTHERXXN.rdm"));
  std::filesystem::resize_file(o.pfad("SKADEKDN.rdm"), (std::uintmax_t{1} << 30) + 570);
  o.modelle(0, "10");
  ASSERT_EQ(o.suche.Ergebnisse.size(), 3U);
  EXPECT_FALSE(o.suche.Ergebnisse[0].fehlt);
  EXPECT_FALSE(o.suche.Ergebnisse[1].fehlt);
  EXPECT_TRUE(o.suche.Ergebnisse[2].fehlt);
  EXPECT_EQ(o.modelle(2, ""), Texte{});
  EXPECT_TRUE(o.suche.Ergebnisse.at(0).fehlt);
  o.schreib("SKADEKDN.rdm", std::string(570, ' '));
  EXPECT_EQ(o.modelle(2, ""), Texte{});
  EXPECT_FALSE(o.suche.Ergebnisse.at(0).fehlt) << "a catalogue of blanks is there";
}

TEST(KompSuch, AHitCarriesItsCatalogue) {
  Suchordner o;
  EXPECT_EQ(o.modelle(0, "kältebau"), Texte{"KB 10"});
  EXPECT_EQ(o.suche.Trefferzahl(), 1U);
  ASSERT_EQ(o.suche.Ergebnisse.size(), 3U);
  const auto& [zeile, verborgen, fehlt, typ, treffer] = o.suche.Ergebnisse[1];
  EXPECT_EQ(zeile.code, "BOREALX");
  EXPECT_EQ(zeile.Hersteller, "Kältebau");
  EXPECT_EQ(zeile.Katalogtext, "R404A");
  EXPECT_FALSE(verborgen);
  EXPECT_EQ(typ, 0);
  EXPECT_EQ(treffer[0].Satz, 68);
  EXPECT_EQ(treffer[0].Felder[1], "Kältebau");
  EXPECT_TRUE(o.suche.Ergebnisse[0].Treffer.empty());
  EXPECT_EQ(o.suche.Ergebnisse[2].Typ, 2);
}

TEST(KompSuch, TheEmptyTextFindsEverything) {
  Suchordner o;
  EXPECT_EQ(o.modelle(0, ""), (Texte{"NV 10", "NV 20", "KB 10", "NS 10"}));
}

TEST(KompSuch, ASearchForgetsTheOneBefore) {
  Suchordner o;
  o.modelle(0, "10");
  EXPECT_TRUE(o.modelle(0, "nothing like this").empty());
  EXPECT_EQ(o.suche.Trefferzahl(), 0U);
  EXPECT_EQ(o.suche.Ergebnisse.size(), 3U);
}

TEST(KompSuch, ARowReachesFortyEightRecords) {
  Suchordner o;
  std::map<int, std::vector<std::string>> saetze;
  for (int n = 2; n <= 90; ++n) saetze[n] = {"m " + std::to_string(n)};
  saetze[51] = {"4"};
  o.bauteile("SKADEKD", saetze);
  const Texte alle = o.modelle(2, "m");
  EXPECT_EQ(alle.size(), 48U);
  EXPECT_EQ(alle.back(), "m 49");
}

TEST(KompSuch, ProductsThatAreHiddenByTheirFirstLettersAreNotFound) {
  Suchordner o;
  o.schreib("Prodhide.dat", "\"XX\"\r\n\" bo \"\r\n");
  EXPECT_EQ(o.modelle(0, "10"), Texte{"NS 10"});
  ASSERT_EQ(o.suche.Ergebnisse.size(), 3U);
  for (std::size_t i : {0U, 1U}) {
    EXPECT_TRUE(o.suche.Ergebnisse[i].verborgen);
    EXPECT_FALSE(o.suche.Ergebnisse[i].Typ.has_value());
    EXPECT_TRUE(o.suche.Ergebnisse[i].Treffer.empty());
  }
  EXPECT_FALSE(o.suche.Ergebnisse[2].verborgen);
}

TEST(KompSuch, ProductsAreHiddenByTheirWholeCodeToo) {
  Suchordner o;
  o.schreib("Prodhide.dat", "\"otherXX\",\"FI\"\r\n");
  EXPECT_EQ(o.modelle(0, "10"), (Texte{"NV 10", "KB 10"}));
  EXPECT_TRUE(o.modelle(1, "10").empty());
}

TEST(KompSuch, NothingElseHidesAProduct) {
  Suchordner o;
  o.schreib("Prodhide.dat", "\"B\"\r\n\"\"\r\n\"BOR\"\r\n\"OREALX\"\r\n\"LX\"\r\n");
  EXPECT_EQ(o.modelle(0, "10").size(), 3U);
  o.schreib("Prodhide.dat", "");
  EXPECT_EQ(o.modelle(0, "10").size(), 3U);
}

TEST(KompSuch, AHiddenProductsFileIsNotTouched) {
  Suchordner o;
  o.schreib("Prodhide.dat", "\"FI\"\r\n");
  const std::string vorher = o.lies("FIRNEVDN.rdm");
  o.modelle(1, "");
  EXPECT_EQ(o.lies("FIRNEVDN.rdm"), vorher);
  o.schreib("Prodhide.dat", "");
  o.modelle(1, "");
  EXPECT_EQ(o.lies("FIRNEVDN.rdm")[50 * 570], '3');
}

TEST(KompSuch, AChosenMakerOrCatalogueNarrowsTheSearch) {
  Suchordner o;
  o.suche.Hersteller = "nordwerk";
  EXPECT_EQ(o.modelle(0, ""), (Texte{"NV 10", "NV 20", "NS 10"}));
  EXPECT_EQ(o.suche.Ergebnisse.size(), 2U);
  o.suche.Katalog = "OtherXX";
  EXPECT_EQ(o.modelle(0, ""), Texte{"NS 10"});
  o.suche.Hersteller.clear();
  o.suche.Katalog = "BOREALX";
  EXPECT_EQ(o.modelle(0, "10"), (Texte{"NV 10", "KB 10"}));
}

TEST(KompSuch, ListsTheCataloguesWithTheirTypes) {
  Suchordner o;
  o.suche.Listen_fuellen();
  ASSERT_EQ(o.suche.Kataloglist.size(), 3U);
  EXPECT_EQ(o.suche.Kataloglist[0].code, "FIRNEVD");
  EXPECT_EQ(o.suche.Kataloglist[0].Typ, 3);
  EXPECT_EQ(o.suche.Kataloglist[0].Text, "Evaporators");
  EXPECT_EQ(o.suche.Kataloglist[1].Typ, 0);
  EXPECT_EQ(o.suche.Kataloglist[2].Typ, 4);
  EXPECT_EQ(o.lies("FIRNEVDN.rdm")[50 * 570], '3');
}

TEST(KompSuch, ListsEachMakerOfTheKindOnceInOrder) {
  Suchordner o;
  o.suche.Listen_fuellen();
  EXPECT_EQ(o.suche.Herstellerlist, (Texte{"Nordwerk", "Kältebau"}));
  o.suche.Suchart = 1;
  o.suche.Listen_fuellen();
  EXPECT_EQ(o.suche.Herstellerlist, Texte{"Höfler"});
  EXPECT_EQ(o.suche.Kataloglist.size(), 3U);
}

TEST(KompSuch, WithoutCataloguesListsAndResultsAreEmptyAndNothingIsMade) {
  Katalogordner o;
  KompSuch suche(o.ablage);
  suche.Listen_fuellen();
  suche.Suchen();
  EXPECT_TRUE(suche.Kataloglist.empty());
  EXPECT_TRUE(suche.Herstellerlist.empty());
  EXPECT_TRUE(suche.Ergebnisse.empty());
  EXPECT_TRUE(o.namen().empty());
}

TEST(KompSuch, ACatalogueWithoutItsFileIsNotFoundAndTheOthersAre) {
  Suchordner o;
  o.schreib("I650.DAT",
            "\"MISSING\",\"M\",\"t\",\"2\"\r\n\"BOREALX\",\"M\",\"t\",\"0\"\r\n"
            "\"BOREALX\",\"M\",\"t\",\"999\"\r\n\"SHORT\",\"M\",\"t\",\"2\"\r\n"
            "\"BOREALX\",\"M\",\"t\"\r\n\"OTHERXX\",\"M\",\"t\",\"2\"\r\n");
  EXPECT_EQ(o.modelle(0, "10"), Texte{"NS 10"});
  ASSERT_EQ(o.suche.Ergebnisse.size(), 4U);
  EXPECT_EQ(o.suche.Ergebnisse[0].Typ, 0);
  for (const char* text : {"MISSINGN.rdm: missing", "\"0\" is no record", "before number 999",
                           "\"SHORT\" is no code", "has 3 of 4 fields"})
    EXPECT_TRUE(o.gemeldet(text)) << text;
  EXPECT_FALSE(o.da("MISSINGN.rdm"));
}

TEST(KompSuch, TellsATroubleOnceHoweverOftenItSearches) {
  Suchordner o;
  o.schreib("SKADEKDN.rdm", o.lies("SKADEKDN.rdm") + "x");
  for (int mal = 0; mal < 3; ++mal) o.modelle(2, "");
  EXPECT_EQ(o.meldungszahl("no multiple of 570"), 1);
}

TEST(KompSuch, AnEditedCatalogueCountsAtTheNextSearch) {
  Suchordner o;
  EXPECT_TRUE(o.modelle(2, "new").empty());
  o.bauteile("SKADEKD", {{2, {"new"}}, {51, {"4"}}});
  EXPECT_EQ(o.modelle(2, "new"), Texte{"new"});
}

}  // namespace
