#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

#include "support/kaeltemittel_umgebung.h"
#include "support/temp_folder.h"

using namespace polarkreis;

namespace {

constexpr const char* zwei_zeilen =
    "\"250\",\"2\",\"2\",\"150\",\"350\",\"1300\",\"12\"\r\n"
    "\"255\",\"3\",\"3\",\"160\",\"352\",\"1290\",\"16\"\r\n";

long meldungen_mit(const KaeltemittelUmgebung& u, const std::string& text) {
  return std::count_if(u.meldungen.zeilen().begin(), u.meldungen.zeilen().end(),
                       [&](const std::string& z) { return z.find(text) != std::string::npos; });
}

TEST(SatTabelle, EditedTableTakesEffectAtTheNextCall) {
  TempOrdner ordner;
  ordner.schreib("R22.DAT", zwei_zeilen);
  KaeltemittelUmgebung u("R22", ordner.pfad());
  u.km.Sat_Suchen(252, 0);
  EXPECT_EQ(u.km.z.Klammer.Oben.p_d, 3);
  ordner.schreib("R22.DAT", "250,2,2,150,350,1300,12\n255,4,4,160,352,1290,16\n");
  u.km.Sat_Suchen(252, 0);
  EXPECT_EQ(u.km.z.Klammer.Oben.p_d, 4);
  std::filesystem::remove(ordner.pfad("R22.DAT"));
  u.km.Sat_Suchen(254, 0);  // no row: the bracket stays
  EXPECT_EQ(u.km.z.Klammer.Oben.p_d, 4);
  ordner.schreib("R22.DAT", zwei_zeilen);
  u.km.Sat_Suchen(254, 0);
  EXPECT_EQ(u.km.z.Klammer.Oben.p_d, 3);
}

TEST(SatTabelle, MissingTableIsLeftEmptyTheBracketStaysAndItIsTold) {
  TempOrdner ordner;
  KaeltemittelUmgebung u("R404A", ordner.pfad());
  u.km.Sat_Suchen(252, 0);
  EXPECT_TRUE(ist_leer(u.km.z.Klammer.Oben.T));
  EXPECT_TRUE(ordner.da("R404A.DAT"));  // as every absent input
  EXPECT_EQ(ordner.lies("R404A.DAT"), "");
  EXPECT_EQ(meldungen_mit(u, "R404A.DAT"), 1);
  EXPECT_EQ(u.km.Sat_TausP(3, 177), 0);
}

TEST(SatTabelle, EmptyTableIsToldOnceUntilItHasRowsAgain) {
  TempOrdner ordner;
  ordner.schreib("R22.DAT", "");
  KaeltemittelUmgebung u("R22", ordner.pfad());
  for (int i = 0; i < 3; ++i) u.km.Sat_Suchen(252, 0);
  EXPECT_EQ(meldungen_mit(u, "missing or empty"), 1);
  ordner.schreib("R22.DAT", zwei_zeilen);
  u.km.Sat_Suchen(252, 0);
  ordner.schreib("R22.DAT", "");
  u.km.Sat_Suchen(252, 0);
  EXPECT_EQ(meldungen_mit(u, "missing or empty"), 2);
}

TEST(SatTabelle, FolderInPlaceOfTheTableCountsAsMissing) {
  TempOrdner ordner;
  std::filesystem::create_directory(ordner.pfad("R22.DAT"));
  KaeltemittelUmgebung u("R22", ordner.pfad());
  u.km.Sat_Suchen(252, 0);
  EXPECT_TRUE(ist_leer(u.km.z.Klammer.Oben.T));
  EXPECT_TRUE(std::filesystem::is_directory(ordner.pfad("R22.DAT")));
}

TEST(SatTabelle, BrokenRowEndsTheTableAndIsToldWithItsNumber) {
  for (const char* zeile :
       {"260,abc,4,170,354,1280,22\n", "260,4,4,170,354,1280\n", "260,,4,170,354,1280,22\n",
        "260,4,4,170,354,1280,-\n", "1e999,4,4,1,1,1,1\n"}) {
    const SatTabelle t = sat_tabelle_lesen("R22.DAT", std::string(zwei_zeilen) + zeile);
    EXPECT_EQ(t.zeilen.size(), 2u) << zeile;
    EXPECT_EQ(t.bruch, 3) << zeile;
  }
  TempOrdner ordner;
  ordner.schreib("R22.DAT", std::string(zwei_zeilen) + "260,x\n265,6,6,1,1,1,1\n");
  KaeltemittelUmgebung u("R22", ordner.pfad());
  u.km.Sat_Suchen(263, 0);
  EXPECT_EQ(u.km.z.Klammer.Unten.T, 255);
  EXPECT_GE(meldungen_mit(u, "row 3 can't be read; the table ends there"), 1);
}

TEST(SatTabelle, BlankLinesAtTheEndAreNoBrokenRow) {
  const SatTabelle t = sat_tabelle_lesen("R22.DAT", std::string(zwei_zeilen) + "\r\n\r\n");
  EXPECT_EQ(t.zeilen.size(), 2u);
  EXPECT_EQ(t.bruch, 0);
}

TEST(SatTabelle, ReadsDecimalCommasInQuotesAndItemsAcrossLines) {
  const SatTabelle t = sat_tabelle_lesen(
      "R22.DAT", "\"250,15\",\"2,5\",\" 2.5\"\n\"150\",\"350\",\"1300,999\",\",5\"\n");
  ASSERT_EQ(t.zeilen.size(), 1u);
  EXPECT_EQ(t.zeilen[0].T, 250.15);
  EXPECT_EQ(t.zeilen[0].p_b, 2.5);
  EXPECT_EQ(t.zeilen[0].rho_l, 1300.99);
  EXPECT_EQ(t.zeilen[0].rho_v, 0.5);
}

TEST(SatTabelle, ConversionGoesByTheNameInAnyCase) {
  EXPECT_EQ(sat_tabelle_lesen("r123.dat", zwei_zeilen).zeilen[0].T, 523.15);
  EXPECT_EQ(sat_tabelle_lesen("Ammoniak.dat", zwei_zeilen).zeilen[0].h_l, -150);
}

TEST(SatTabelle, TableInAnotherCaseIsFound) {
  TempOrdner ordner;
  ordner.schreib("r22.dat", zwei_zeilen);
  KaeltemittelUmgebung u("R22", ordner.pfad());
  u.km.Sat_Suchen(252, 0);
  EXPECT_EQ(u.km.z.Klammer.Oben.T, 255);
}

}  // namespace
