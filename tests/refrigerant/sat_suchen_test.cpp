#include <gtest/gtest.h>

#include <random>

#include "support/kaeltemittel_umgebung.h"
#include "support/temp_folder.h"

using namespace polarkreis;

namespace {

/// Three rows with glide: the dew pressure below the bubble pressure.
constexpr const char* drei_zeilen =
    "\"250\",\"2\",\"2.5\",\"150\",\"350\",\"1300.129\",\"12.345\"\r\n"
    "\"255\",\"3\",\"3.5\",\"160\",\"352\",\"1290\",\"16.5\"\r\n"
    "\"260\",\"4.5\",\"5\",\"170\",\"354\",\"1280\",\"22\"\r\n";

void erwarte_zeile(const SatZeile& z, std::array<double, 7> w) {
  EXPECT_EQ(z.T, w[0]);
  EXPECT_EQ(z.p_d, w[1]);
  EXPECT_EQ(z.p_b, w[2]);
  EXPECT_EQ(z.h_l, w[3]);
  EXPECT_EQ(z.h_v, w[4]);
  EXPECT_EQ(z.rho_l, w[5]);
  EXPECT_EQ(z.rho_v, w[6]);
}

struct MitTabelle {
  TempOrdner ordner;
  KaeltemittelUmgebung u;
  explicit MitTabelle(const std::string& inhalt, const std::string& name = "R407C",
                      const std::string& datei = "R407C.DAT")
      : u(name, ordner.pfad()) {
    ordner.schreib(datei, inhalt);
  }
  const SatKlammer& klammer() const { return u.km.z.Klammer; }
};

TEST(SatSuchen, ExactKeyLandsInOben) {
  KaeltemittelUmgebung u("R22");
  u.km.Sat_Suchen(263.15, 0);
  EXPECT_EQ(u.km.z.Klammer.Oben.T, 263.15);
  EXPECT_EQ(u.km.z.Klammer.Unten.T, 258.15);
  EXPECT_EQ(u.km.Sat_f(263.15), 1);
  EXPECT_DOUBLE_EQ(u.km.Sat_Wert(&SatZeile::p_d, 263.15), 3.54786);
}

TEST(SatSuchen, ValuesLieOnTheLineBetweenTheRows) {
  KaeltemittelUmgebung u("R22");
  u.km.Sat_Suchen(259.15, 0);  // f = 0.2: 2.96197 + 0.2·0.58589, 399.16 + 0.2·2.04
  EXPECT_NEAR(u.km.Sat_Wert(&SatZeile::p_d, 259.15), 3.079148, 1e-12);
  EXPECT_NEAR(u.km.Sat_Wert(&SatZeile::h_v, 259.15), 399.568, 1e-10);
  EXPECT_NEAR(u.km.Sat_Wert(&SatZeile::rho_v, 259.15), 12.90 + 0.2 * (15.32 - 12.90), 1e-12);
}

TEST(SatSuchen, DensitiesComeOutCut) {
  MitTabelle t(drei_zeilen);
  t.u.km.Sat_Suchen(252, 0);
  EXPECT_EQ(t.klammer().Unten.rho_v, 12.34);
  EXPECT_EQ(t.klammer().Unten.rho_l, 1300.12);
}

TEST(SatSuchen, ModesByPressureSwapTheKeyColumnWithT) {
  MitTabelle t(drei_zeilen);
  t.u.km.Sat_Suchen(2.75, 1);
  erwarte_zeile(t.klammer().Unten, {2, 250, 2.5, 150, 350, 1300.12, 12.34});
  erwarte_zeile(t.klammer().Oben, {3, 255, 3.5, 160, 352, 1290, 16.5});
  EXPECT_DOUBLE_EQ(t.u.km.Sat_Wert(&SatZeile::p_d, 2.75), 253.75);
  t.u.km.Sat_Suchen(4, 2);
  erwarte_zeile(t.klammer().Unten, {3.5, 3, 255, 160, 352, 1290, 16.5});
  erwarte_zeile(t.klammer().Oben, {5, 4.5, 260, 170, 354, 1280, 22});
}

TEST(SatSuchen, PureFluidGivesTheSameBracketInOtherColumnsForBothPressures) {
  KaeltemittelUmgebung u("R134A");
  u.km.Sat_Suchen(2.8, 1);
  const SatKlammer dew = u.km.z.Klammer;
  u.km.Sat_Suchen(2.8, 2);
  const SatKlammer& bubble = u.km.z.Klammer;
  EXPECT_EQ(dew.Unten.T, bubble.Unten.T);
  EXPECT_EQ(dew.Unten.p_d, bubble.Unten.p_b);
  EXPECT_EQ(dew.Oben.p_d, bubble.Oben.p_b);
  EXPECT_EQ(dew.Oben.h_v, bubble.Oben.h_v);
}

TEST(SatSuchen, OtherModesSearchByTemperature) {
  MitTabelle t(drei_zeilen);
  for (const int mode : {7, -1, 177}) {
    t.u.km.z.Klammer = {};
    t.u.km.Sat_Suchen(252, mode);
    EXPECT_EQ(t.klammer().Oben.T, 255) << mode;
  }
}

TEST(SatSuchen, AmmoniaHasEightNegativeEnthalpiesAndSpecificVolumes) {
  KaeltemittelUmgebung u("R717");
  u.km.Sat_Suchen(230, 0);  // between row 8 and row 9
  EXPECT_EQ(u.km.z.Klammer.Unten.h_l, -3.23);
  EXPECT_EQ(u.km.z.Klammer.Oben.h_l, 18.94);
  EXPECT_EQ(u.km.z.Klammer.Oben.rho_l, 689.78);  // 1000/1.44973 = 689.7836
  EXPECT_EQ(u.km.z.Klammer.Oben.rho_v, 0.64);    // 1000/1553.76 = 0.6436
  u.km.Sat_Suchen(194, 0);
  EXPECT_EQ(u.km.z.Klammer.Unten.h_l, -155.74);
}

TEST(SatSuchen, FourTablesStoreSpecificVolumes) {
  for (const auto& [name, datei] :
       {std::pair{"R11", "R11.DAT"}, {"R12", "R12.DAT"}, {"R23", "R23.DAT"}}) {
    MitTabelle t("250,2,2,150,350,0.7,80\n255,3,3,160,352,0.8,0\n", name, datei);
    t.u.km.Sat_Suchen(254, 0);
    EXPECT_EQ(t.klammer().Unten.rho_l, 1428.57) << name;  // 1428.5714
    EXPECT_EQ(t.klammer().Unten.rho_v, 12.5) << name;
    EXPECT_EQ(t.klammer().Oben.rho_v, 0) << "a division that fails leaves the stored value";
  }
}

TEST(SatSuchen, R123StoresDegreesCelsiusAndAZeroThereIsNoEndMark) {
  MitTabelle t("-5,2,2,150,350,1300,12\n0,3,3,160,352,1290,16\n5,4,4,170,354,1280,22\n", "R123",
               "R123.DAT");
  t.u.km.Sat_Suchen(274, 0);
  EXPECT_EQ(t.klammer().Unten.T, 273.15);
  EXPECT_EQ(t.klammer().Oben.T, 278.15);
}

TEST(SatSuchen, RowOfZeroTemperatureAndBubblePressureEndsTheData) {
  MitTabelle t(std::string(drei_zeilen) + "0,9,0,1,1,1,1\n265,6,6.5,180,356,1270,28\n");
  t.u.km.Sat_Suchen(263, 0);
  EXPECT_EQ(t.klammer().Unten.T, 260);
  EXPECT_TRUE(ist_leer(t.klammer().Oben.T));
  MitTabelle R123("5,2,2,150,350,1300,12\n0,3,0,1,1,1,1\n10,4,4,170,354,1280,22\n", "R123",
                  "R123.DAT");
  R123.u.km.Sat_Suchen(280, 0);  // the mark is seen before the conversion to kelvin
  EXPECT_TRUE(ist_leer(R123.klammer().Oben.T));
}

TEST(SatSuchen, KeyBelowTheTableKeepsUntenOfTheSearchBefore) {
  MitTabelle t(drei_zeilen);
  t.u.km.Sat_Suchen(257, 0);
  t.u.km.Sat_Suchen(240, 0);
  EXPECT_EQ(t.klammer().Unten.T, 255);
  EXPECT_EQ(t.klammer().Oben.T, 250);
  // f = (240 - 255)/(250 - 255) = 3, on the line through both: 3 + 3·(2 - 3)
  EXPECT_DOUBLE_EQ(t.u.km.Sat_Wert(&SatZeile::p_d, 240), 0);
}

TEST(SatSuchen, KeyAboveTheTableKeepsObenOfTheSearchBefore) {
  MitTabelle t(drei_zeilen);
  t.u.km.Sat_Suchen(252, 0);
  t.u.km.Sat_Suchen(270, 0);
  EXPECT_EQ(t.klammer().Unten.T, 260);
  EXPECT_EQ(t.klammer().Oben.T, 255);
}

TEST(SatSuchen, FirstSearchOutsideTheTableLeavesAnEmptyRowAndTargetsAsTheyWere) {
  MitTabelle t(drei_zeilen);
  double ziel = 7;
  t.u.km.Sat_Suchen(270, 0);
  setze(ziel, t.u.km.Sat_Wert(&SatZeile::p_d, 270));
  EXPECT_EQ(ziel, 7);
  t.u.km.z.Klammer = {};
  t.u.km.Sat_Suchen(250, 0);  // the first row reaches the key: no row is below
  setze(ziel, t.u.km.Sat_Wert(&SatZeile::p_d, 250));
  EXPECT_EQ(ziel, 7);
  EXPECT_TRUE(ist_leer(t.klammer().Unten.h_v));
}

TEST(SatSuchen, EmptyKeyFindsNothing) {
  MitTabelle t(drei_zeilen);
  t.u.km.Sat_Suchen(leer, 0);
  EXPECT_TRUE(ist_leer(t.klammer().Unten.T));
  EXPECT_TRUE(ist_leer(t.klammer().Oben.T));
}

TEST(SatSuchen, Mode33RunsKMDateiAlone) {
  MitTabelle t(drei_zeilen);
  t.u.km.Sat_Suchen(252, 33);
  EXPECT_EQ(t.u.km.z.SatGeladen, 23);
  EXPECT_EQ(t.u.km.z.RefFile, "R407C.DAT");
  EXPECT_TRUE(ist_leer(t.klammer().Oben.T));
  t.u.km.Sat_Suchen(252, 0);
  EXPECT_EQ(t.u.km.z.SatGeladen, 0);
  EXPECT_EQ(t.u.km.z.SatGefunden, 0);
}

TEST(SatSuchen, UnknownDesignationKeepsTheBracketAndResetsTheFlags) {
  MitTabelle t(drei_zeilen);
  t.u.km.Sat_Suchen(252, 0);
  t.u.km.Sat_Suchen(252, 33);
  t.u.km.z.RefName = "R999";
  t.u.km.Sat_Suchen(257, 0);
  EXPECT_EQ(t.klammer().Oben.T, 255);
  EXPECT_EQ(t.u.km.z.SatGeladen, 0);
}

/// The scan as it is told, row by row.
SatTreffer nachgezaehlt(const std::vector<double>& schluessel, double key) {
  SatTreffer treffer;
  bool gefunden = false;
  for (std::size_t i = 0; i < schluessel.size(); ++i) {
    if (!gefunden && schluessel[i] < key) treffer.unten = static_cast<int>(i);
    if (!gefunden && schluessel[i] >= key) {
      gefunden = true;
      treffer.oben = static_cast<int>(i);
    }
  }
  return treffer;
}

TEST(SatSuchen, FindsWhatAScanFindsAlsoInATableThatFalls) {
  std::mt19937 zufall(1);
  std::uniform_int_distribution<int> ziffer(0, 30);
  for (int lauf = 0; lauf < 300; ++lauf) {
    std::string text;
    std::vector<double> T, p_d, p_b;
    for (int i = 0; i < 12; ++i) {
      T.push_back(lauf % 2 ? 250 + ziffer(zufall) : 250 + i);
      p_d.push_back(ziffer(zufall));
      p_b.push_back(lauf % 3 ? i / 3 + 1 : 1 + ziffer(zufall));
      text += Zahl_Text(T.back()) + "," + Zahl_Text(p_d.back()) + "," + Zahl_Text(p_b.back()) +
              ",1,1,1,1\n";
    }
    const SatTabelle tabelle = sat_tabelle_lesen("R22.DAT", text);
    for (double key = -1; key < 285; key += 0.5) {
      const auto gleich = [](SatTreffer a, SatTreffer b) {
        return a.unten == b.unten && a.oben == b.oben;
      };
      ASSERT_TRUE(gleich(tabelle.suche(key, SatTabelle::nach_T), nachgezaehlt(T, key)));
      ASSERT_TRUE(gleich(tabelle.suche(key, SatTabelle::nach_p_d), nachgezaehlt(p_d, key)));
      ASSERT_TRUE(gleich(tabelle.suche(key, SatTabelle::nach_p_b), nachgezaehlt(p_b, key)));
    }
  }
}

}  // namespace
