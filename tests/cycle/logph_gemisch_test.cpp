#include "logph_platz.h"
#include "support/temp_folder.h"

using namespace polarkreis;

namespace {

// Rows of 5 K on straight lines: dew pressure 2 + (T - 250) / 5 on the low side, 12 + (T - 300) / 5
// on the high one, bubble pressure half a bar more.
constexpr const char* gerade =
    "245,1,1.5,90,348,1310,5\n250,2,2.5,100,350,1300,10\n255,3,3.5,110,352,1290,15\n"
    "260,4,4.5,120,354,1280,20\n295,11,11.5,190,368,1210,55\n300,12,12.5,200,370,1200,60\n"
    "305,13,13.5,210,372,1190,65\n310,14,14.5,220,374,1180,70\n";

/// A blend of that table at 252 and 302 K, without superheat and subcooling.
struct Gerade {
  TempOrdner ordner;
  LogphPlatz p{"R407C", -21.15, 28.85, {}, ordner.pfad()};
  Gerade() {
    ordner.schreib("R407C.DAT", gerade);
    p.form.dT_sh = p.form.dT_sc = 0;
  }
};

}  // namespace

TEST(LogphGemisch, PressuresLieBetweenTheLines) {
  Gerade g;
  const logp_H::Ergebnis& e = g.p.rechne();
  // Dew 2.4 bar, bubble 2.9 at 252 K; h_l 104, h_v 350.8; h_l 204 at 302 K, dew 12.4.
  const double w = (350.8 - 204) / (350.8 - 104) / 2;
  EXPECT_NEAR(e.p0, 2.4 + 0.5 * w, 1e-9);
  EXPECT_NEAR(e.pc, 12.4 + 0.25, 1e-9);
  EXPECT_NEAR(e.h_l, 201.5, 1e-9);  // bubble line at 12.65 bar: 300.75 K
}

TEST(LogphGemisch, TheCondenserSlidesFromTheDewToTheBubbleLine) {
  Gerade g;
  g.p.rechne();
  const Zustandspunkt beginn = g.p.punkt("condensation begins");
  const Zustandspunkt ende = g.p.punkt("condensation ends");
  // 12.65 bar: dew line 303.25 K, bubble line 300.75 K.
  EXPECT_NEAR(beginn.t, 303.25 - 273.15, 1e-9);
  EXPECT_NEAR(beginn.h, 370 + 0.4 * 3.25, 1e-9);
  EXPECT_NEAR(beginn.rho, 63.25, 1e-9);
  EXPECT_NEAR(ende.t, 300.75 - 273.15, 1e-9);
  EXPECT_NEAR(ende.h, 201.5, 1e-9);
  EXPECT_NEAR(ende.rho, 1200 - 2 * 0.75, 1e-9);
  EXPECT_EQ(beginn.p, ende.p);
}

TEST(LogphGemisch, TheEvaporatorSlidesUpFromItsInletsContent) {
  Gerade g;
  const logp_H::Ergebnis& e = g.p.rechne();
  const Zustandspunkt ein = g.p.punkt("evaporator inlet"), ende = g.p.punkt("evaporation ends");
  const double T_d = 250 + 5 * (e.p0 - 2), T_b = 250 + 5 * (e.p0 - 2.5);
  EXPECT_NEAR(ende.t, T_d - 273.15, 1e-9);
  EXPECT_NEAR(ende.h, 350 + 0.4 * (T_d - 250), 1e-9);
  const double x = (201.5 - 104) / (ende.h - 104);
  EXPECT_NEAR(g.p.form.xDampf, x, 1e-9);
  EXPECT_NEAR(ein.t, T_b + x * 2.5 - 273.15, 1e-9);
  EXPECT_EQ(ein.Ort, Lage::nass);
}

TEST(LogphGemisch, GlideIsTheDifferenceOfTheTwoTemperaturesAtTheEvaporatorsPressure) {
  Gerade g;
  const logp_H::Ergebnis& e = g.p.rechne();
  EXPECT_NEAR(g.p.form.tGlide, 2.5, 0.0101);  // two temperatures, each cut to a hundredth
  Schritte s(g.p);
  s.u.ablage.Datenordner = g.ordner.pfad();
  EXPECT_EQ(g.p.form.tGlide, s.u.km.Sat_TausP(e.p0, 167) - s.u.km.Sat_TausP(e.p0, 187));
  const double T_ein = g.p.punkt("condensation ends").t + 273.15;
  EXPECT_EQ(g.p.form.t0_Punkt, s.u.km.Sat_TausP(e.p0, T_ein)) << "of the liquid that enters";
}

TEST(LogphGemisch, OnlyABlendShowsItsGlide) {
  LogphPlatz blend("R407C"), rein("R134A");
  blend.rechne();
  rein.rechne();
  // 3.1978 + 0.8490 * (144.09 / 218.52) / 2 = 3.4777 bar: dew -7.865, bubble -14.262 °C.
  EXPECT_NEAR(blend.form.tGlide, 6.40, 0.0101);
  EXPECT_EQ(blend.figur("Temperaturglide!"), "Temperaturglide!");
  EXPECT_EQ(blend.figur("to im Punkt:"), "to im Punkt:" + Zahl_Text(blend.form.t0_Punkt) + " °C");
  EXPECT_TRUE(ist_leer(rein.form.tGlide));
  EXPECT_TRUE(ist_leer(rein.form.t0_Punkt));
  EXPECT_EQ(rein.figur("Temperaturglide!"), "");
  EXPECT_EQ(rein.figur("to im Punkt:"), "");
}

TEST(LogphGemisch, SubcoolingLowersThePointsTemperature) {
  LogphPlatz warm("R407C"), kalt("R407C");
  kalt.form.dT_sc = 20;
  warm.rechne();
  kalt.rechne();
  EXPECT_LT(kalt.form.t0_Punkt, warm.form.t0_Punkt) << "colder liquid comes in with less vapour";
}

// One that boils at one temperature has two equal lines in its table.
TEST(LogphGemisch, AnAzeotropeCountsAsPure) {
  LogphPlatz p("R502");
  p.rechne();
  EXPECT_EQ(p.z.p0, p.z.p0_b);
  EXPECT_TRUE(ist_leer(p.form.tGlide));
  EXPECT_EQ(p.figur("Temperaturglide!"), "");
}
