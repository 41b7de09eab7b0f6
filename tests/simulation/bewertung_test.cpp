#include "simulation/bewertung.h"

#include "werkstatt.h"

using namespace polarkreis;

TEST(MEPSFind, FourHundredKilowattBelongToTheBandThatTheTableNames) {
  EXPECT_EQ(MEPS_Tabelle(false, Bereichsklasse::hoch, 400, false), 7.5);
  EXPECT_EQ(MEPS_Tabelle(false, Bereichsklasse::hoch, 399.99, false), 6.5);
  EXPECT_EQ(MEPS_Tabelle(false, Bereichsklasse::hoch, 1500, true), 8.5);
  EXPECT_EQ(MEPS_Tabelle(false, Bereichsklasse::klima, 400, false), 5);
  EXPECT_EQ(MEPS_Tabelle(false, Bereichsklasse::klima, 1500, false), 5.8);
  EXPECT_EQ(MEPS_Tabelle(true, Bereichsklasse::hoch, 400, false), 5);
}

TEST(MEPSFind, EveryRowHasItsBaseAndItsStricterValue) {
  struct Zelle {
    bool luft;
    Bereichsklasse klasse;
    double Q0, basis, streng;
  };
  using enum Bereichsklasse;
  const Zelle zellen[] = {{false, hoch, 100, 6.5, 7},      {false, hoch, 1000, 7.5, 8},
                          {false, hoch, 2000, 8, 8.5},     {false, tief, 0.4, 0.95, 1.09},
                          {false, tief, 2, 1.08, 1.24},    {false, tief, 8, 1.9, 2.18},
                          {false, tief, 20, 2.03, 2.22},   {false, tief, 200, 1.82, 2.09},
                          {false, tief, 201, 2.1, 2.42},   {false, mittel, 1, 1.52, 1.75},
                          {false, mittel, 5, 1.78, 2.05},  {false, mittel, 20, 2.86, 3.29},
                          {false, mittel, 50, 2.98, 3.43}, {false, mittel, 300, 2.86, 3.29},
                          {false, mittel, 301, 3.8, 4.37}, {false, klima, 400, 5, 5.1},
                          {false, klima, 401, 5.8, 6.4},   {false, klima, 1501, 6.2, 6.9},
                          {true, hoch, 399, 4.5, 5},       {true, hoch, 401, 5, 5.5},
                          {true, tief, 0.4, 0.75, 0.8},    {true, tief, 2, 0.85, 0.95},
                          {true, tief, 8, 1.5, 1.5},       {true, tief, 20, 1.6, 1.6},
                          {true, tief, 200, 1.48, 1.7},    {true, tief, 201, 1.6, 1.84},
                          {true, mittel, 1, 1.2, 1.4},     {true, mittel, 5, 1.4, 1.6},
                          {true, mittel, 20, 2.25, 2.55},  {true, mittel, 50, 2.35, 2.65},
                          {true, mittel, 300, 2.24, 2.58}, {true, mittel, 301, 2.8, 3.22},
                          {true, klima, 400, 3.8, 4.1},    {true, klima, 401, 4.1, 4.6}};
  for (const Zelle& z : zellen) {
    EXPECT_EQ(MEPS_Tabelle(z.luft, z.klasse, z.Q0, false), z.basis) << z.luft << " " << z.Q0;
    EXPECT_EQ(MEPS_Tabelle(z.luft, z.klasse, z.Q0, true), z.streng) << z.luft << " " << z.Q0;
  }
}

TEST(MEPSFind, EmptyStageTakesTheBaseColumn) {
  Werkstatt w;
  w.projekt.ErP_Vers = "";
  EXPECT_EQ(MEPS_find(w.projekt, "3").wert, 2.24);
  w.projekt.ErP_Vers = " 2018 ";
  EXPECT_EQ(MEPS_find(w.projekt, "3").wert, 2.58);
  w.projekt.ErP_Vers = "2016";
  EXPECT_EQ(MEPS_find(w.projekt, "3").wert, 2.24);
}

TEST(MEPSFind, OnlyTheTwoPlainTextsCountAsAir) {
  Werkstatt w;
  const std::string luft = w.captions.text(PedCap::Luftgekuehlt);
  const std::string trocken = w.captions.text(SoleCapt::Trockenkuehler);
  w.projekt.Vfl_typ = trocken;
  EXPECT_EQ(MEPS_find(w.projekt, "3").wert, 2.24);
  for (const std::string& art : {trocken + " " + luft, luft + "/adiabt", std::string("Kühlturm"),
                                 w.captions.text(PedCap::Wassergekuehlt)}) {
    w.projekt.Vfl_typ = art;
    EXPECT_EQ(MEPS_find(w.projekt, "3").wert, 2.86) << art;
  }
}

// Minimum 2.24: marks 1.12, 2.24, 3.36, 4.48; a plant of 3 stands (4.48 - 3)/3.36 from the top.
TEST(MEPSFind, ScaleAndPlaceOnTheBar) {
  Werkstatt w;
  const MEPS m = MEPS_find(w.projekt, "3");
  EXPECT_EQ(m.marken, (std::array<double, 4>{1.12, 2.24, 3.36, 4.48}));
  EXPECT_EQ(m.Ist, 3);
  EXPECT_NEAR(m.position, 0.440476190476, 1e-12);
  EXPECT_NEAR(m.gruen_ab, 0.684, 1e-12);  // 1.026 * 2.24 / 3.36
  EXPECT_EQ(m.MEPS_label(), "1.12            2.24            3.36            4.48");
}

class Ventilatoren : public ::testing::Test {
 protected:
  Werkstatt w;
  /// Heat of the condenser at 15 K, and cold of the evaporator at 8 K, as the rule words them.
  double waerme() {
    Anlage a = Anlage_von(w.projekt);
    const double cop = w.punkt.Punkt_Rechnen(a, 0, 1, 100).COP;
    return 120 * (1 + 1 / cop) * (15.0 / 14);
  }
};

TEST_F(Ventilatoren, CondenserClassFollowsTheFigure) {
  const double bezug = waerme();
  const struct {
    double R;
    const char* klasse;
  } grenzen[] = {{170, "A+"}, {168, "A"}, {110, "A"}, {108, "B"}, {70, "B"}, {68, "C"},
                 {50, "C"},   {48, "D"},  {38, "D"},  {36, "E"},  {27, "E"}, {25, "F"}};
  for (const auto& g : grenzen) {
    w.projekt.Lueftcap = Zahl_Text(bezug / g.R);
    const Ventilatorklasse v = Eff_class(w.punkt, w.projekt, 11);
    EXPECT_NEAR(v.R, g.R, 1e-9);
    EXPECT_EQ(v.klasse, g.klasse);
    EXPECT_EQ(w.projekt.VERFL_Eff_combo, g.klasse);
  }
}

TEST_F(Ventilatoren, CondenserPowerFollowsTheClass) {
  const double bezug = waerme();
  for (const auto& [klasse, R] :
       {std::pair{"A+", 226}, {"A", 169}, {"B", 109}, {"C", 69}, {"D", 49}, {"E", 37}, {"F", 26}}) {
    w.projekt.VERFL_Eff_combo = klasse;
    const Ventilatorklasse v = Eff_class(w.punkt, w.projekt, 12);
    EXPECT_EQ(v.R, R);
    EXPECT_EQ(v.leistung, Int(bezug / R * 100) / 100);
    EXPECT_EQ(w.projekt.Lueftcap, Zahl_Text(v.leistung));
  }
}

TEST_F(Ventilatoren, AnUnknownClassIsTakenAsB) {
  w.projekt.VERFL_Eff_combo = "Z";
  EXPECT_EQ(Eff_class(w.punkt, w.projekt, 12).R, 109);
  EXPECT_EQ(w.projekt.VERFL_Eff_combo, "B");
  w.projekt.VERDA_Eff_combo = "";
  EXPECT_EQ(Eff_class(w.punkt, w.projekt, 22).R, 35);
  EXPECT_EQ(w.projekt.VERDA_Eff_combo, "B");
}

// (4/4.5)^0.5 * 120 * 8/(8 * 1.25) = 90.509668
TEST_F(Ventilatoren, EvaporatorFigureGoesByFinSpacing) {
  w.projekt.LueftcapVerDa = "3.2";
  Ventilatorklasse v = Eff_class(w.punkt, w.projekt, 21);
  EXPECT_NEAR(v.R, 90.509668 / 3.2, 1e-6);
  EXPECT_EQ(v.klasse, "B");
  w.projekt.Lamm_AB_combo = "12";
  v = Eff_class(w.punkt, w.projekt, 21);
  EXPECT_NEAR(v.R, std::sqrt(12 / 4.5) * 96 / 3.2, 1e-9);
  EXPECT_EQ(v.klasse, "A+");
  w.projekt.Lamm_AB_combo = "4";
  w.projekt.VERDA_Eff_combo = "A+";
  EXPECT_EQ(Eff_class(w.punkt, w.projekt, 22).leistung, 1.23);  // 90.5097/73 = 1.2398
  EXPECT_EQ(w.projekt.LueftcapVerDa, "1.23");
}

TEST_F(Ventilatoren, OtherCodesAndZeroPowerChangeNothing) {
  w.projekt.Lueftcap = "0";
  w.projekt.VERFL_Eff_combo = "C";
  EXPECT_TRUE(ist_leer(Eff_class(w.punkt, w.projekt, 11).R));
  EXPECT_EQ(w.projekt.VERFL_Eff_combo, "C");
  EXPECT_TRUE(ist_leer(Eff_class(w.punkt, w.projekt, 13).R));
}
