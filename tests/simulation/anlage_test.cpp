#include "simulation/anlage.h"

#include <cmath>

#include "werkstatt.h"

using namespace polarkreis;

namespace {

constexpr Regelart alle[] = {Regelart::Drehzahl,        Regelart::ohne,   Regelart::Stufen,
                             Regelart::zwei_Drehzahlen, Regelart::stetig, Regelart::keine};

}  // namespace

TEST(DTLast, EvaporatorSideGoesByTheControlAlone) {
  Anlage a;
  const double faktor[] = {1.05, 1.09, 0.98, 1.02, 1.04, 1.08};
  for (int i = 0; i < 6; ++i) {
    a.RGart = alle[i];
    EXPECT_DOUBLE_EQ(dT_Last(a, 30, 8, 1, -10), 8 * faktor[i]);
    EXPECT_DOUBLE_EQ(dT_Last(a, leer, 8, 1, -10), 8 * faktor[i]);
  }
}

TEST(DTLast, CondenserSideGoesByTheLoad) {
  Anlage a;
  const double erwartet[] = {7, 14, 7.28, 7.35, 7, 14};
  for (int i = 0; i < 6; ++i) {
    a.RGart = alle[i];
    EXPECT_NEAR(dT_Last(a, 50, 14, 0, -10), erwartet[i], 1e-12);
  }
}

TEST(DTLast, FloatingEvaporationHasItsLowerLimits) {
  Anlage a;
  a.Gleitopt = true;
  EXPECT_DOUBLE_EQ(dT_Last(a, 100, 8, 1, -10), 8 * 1.04);
  EXPECT_DOUBLE_EQ(dT_Last(a, 50, 8, 1, -10), 4.5);
  EXPECT_DOUBLE_EQ(dT_Last(a, 50, 8, 1, -15), 4.5);
  EXPECT_DOUBLE_EQ(dT_Last(a, 50, 8, 1, -15.1), 6.5);
  EXPECT_DOUBLE_EQ(dT_Last(a, leer, 8, 1, -10), 4.5);
}

TEST(WinterDT, ColdRoomsAndTheRestHaveTheirOwnRule) {
  Anlage a;
  a.tc_min = 25;
  a.RGart = Regelart::ohne;
  EXPECT_DOUBLE_EQ(Winter_dT(a, 45), 5);
  EXPECT_EQ(Winter_dT(a, 25), 0);
  EXPECT_EQ(Winter_dT(a, 10), 0);
  a.Kaelteraum = true;
  EXPECT_DOUBLE_EQ(Winter_dT(a, 45), std::pow(22, 0.833));
  EXPECT_EQ(Winter_dT(a, 25), 0);
}

TEST(WinterDT, ControlScalesIt) {
  Anlage a;
  a.tc_min = 25;
  const double faktor[] = {0.3, 1, 1.15, 1.2, 1.2, 1};
  for (int i = 0; i < 6; ++i) {
    a.RGart = alle[i];
    EXPECT_DOUBLE_EQ(Winter_dT(a, 45), 5 * faktor[i]);
  }
}

TEST(WinterDT, WithoutALimitTheLowestTemperatureOfThePointCounts) {
  Anlage a;
  a.RGart = Regelart::ohne;
  a.Winter_frei = true;
  EXPECT_DOUBLE_EQ(Winter_dT(a, 40), 10);
  a.tmin_gemerkt = 20;
  EXPECT_DOUBLE_EQ(Winter_dT(a, 40), 5);
}

TEST(AnlageVon, TakesFactorsFromTheSelections) {
  Werkstatt w;
  const Captions& c = w.captions;
  Projektdaten& p = w.projekt;
  Anlage a = Anlage_von(p);
  EXPECT_EQ(a.Bauart, 1);
  EXPECT_EQ(a.Antrieb, 2);
  EXPECT_EQ(a.Typfaktor, 1.01);
  EXPECT_EQ(a.Bauformfaktor, 1);
  EXPECT_EQ(a.Anlagenfaktor, 1);
  EXPECT_EQ(a.Mittelfaktor, 1);
  EXPECT_EQ(a.tc_min, 25);
  EXPECT_TRUE(a.Kaelteraum);

  p.Verdichterbauart = c.text(Caption::Offen);
  p.verdichter_typ = c.text(Caption::Schraube);
  p.Anlagenart_Combo = c.text(Caption::Zweistufig) + " - " + c.text(Caption::Zwischenkuehler);
  p.KaelteM = "r717";
  a = Anlage_von(p);
  EXPECT_EQ(a.Bauart, 2);
  EXPECT_EQ(a.Antrieb, 1);
  EXPECT_EQ(a.Typfaktor, 0.97);
  EXPECT_EQ(a.Bauformfaktor, 0.95);
  EXPECT_EQ(a.Anlagenfaktor, 0.8);
  EXPECT_EQ(a.Mittelfaktor, 0.93);

  p.Verdichterbauart = c.text(Caption::Hermetisch);
  p.verdichter_typ = "Scroll";
  p.Anlagenart_Combo = c.text(Caption::Zweistufig) + " - " + c.text(Caption::Einspritzung);
  p.KaelteM = "R290";
  a = Anlage_von(p);
  EXPECT_EQ(a.Typfaktor, 0.99);
  EXPECT_EQ(a.Bauformfaktor, 1.06);
  EXPECT_EQ(a.Anlagenfaktor, 0.88);
  EXPECT_EQ(a.Mittelfaktor, 0.9);

  p.verdichter_typ = "Turbo";
  EXPECT_EQ(Anlage_von(p).Typfaktor, 0.96);
  p.verdichter_typ = "";
  EXPECT_EQ(Anlage_von(p).Typfaktor, 1.01);
  EXPECT_EQ(Anlage_von(p).Bauart, 0);
}

TEST(AnlageVon, TranscriticalNeedsR744AndADesignAbove31) {
  Werkstatt w;
  w.projekt.KaelteM = "co2";
  w.projekt.Tc = "31";
  EXPECT_FALSE(Anlage_von(w.projekt).transkritisch);
  w.projekt.Tc = "31,1";
  EXPECT_TRUE(Anlage_von(w.projekt).transkritisch);
  w.projekt.KaelteM = "R404A";
  EXPECT_FALSE(Anlage_von(w.projekt).transkritisch);
}

TEST(AnlageVon, CoolingWaterWithoutANumberIs28) {
  Werkstatt w;
  EXPECT_EQ(Anlage_von(w.projekt).t_K_wasser, 28);
  w.projekt.t_K_wasser = "24,5";
  EXPECT_EQ(Anlage_von(w.projekt).t_K_wasser, 24.5);
}
