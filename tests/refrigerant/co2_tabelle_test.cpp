#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "support/kaeltemittel_umgebung.h"
#include "support/temp_folder.h"

using namespace polarkreis;

namespace {

CO2Daten projekttabelle() {
  KaeltemittelUmgebung u("R744");
  return co2_daten_lesen(u.ablage.lies_ganz("CO2_sh01.dat"));
}

/// The rows again as a table file.
std::string als_text(const std::vector<CO2Zeile>& zeilen) {
  std::string text;
  for (const CO2Zeile& z : zeilen)
    for (const double w : {z.t, z.p, z.h, z.v, z.cp, z.eta}) text += Zahl_Text(w) + "\n";
  return text;
}

TEST(CO2pOpt, GivesTheRulesFixedPoints) {
  EXPECT_EQ(Kaeltemittel::CO2_pOpt(26), 67);
  EXPECT_EQ(Kaeltemittel::CO2_pOpt(36), 92);
  EXPECT_EQ(Kaeltemittel::CO2_pOpt(50), 128);
  EXPECT_EQ(Kaeltemittel::CO2_pOpt(31), 79.5);
  EXPECT_EQ(Kaeltemittel::CO2_pOpt(10), 47);
  EXPECT_EQ(Kaeltemittel::CO2_pOpt(9.9), 0);
  EXPECT_EQ(Kaeltemittel::CO2_pOpt(50.1), 0);
  EXPECT_EQ(Kaeltemittel::CO2_pOpt(leer), 0);
  EXPECT_EQ(Kaeltemittel::CO2_pOpt(18.1), 57.1);  // 47 + 20·8.1/16 = 57.125
  EXPECT_EQ(Kaeltemittel::CO2_pOpt(40), 102.3);   // 92 + 36·4/14 = 102.2857, rounded up
}

TEST(CO2Tabelle, GasCoolerOutletIsTheFirstRowThatReachesBoth) {
  KaeltemittelUmgebung u("R744");
  u.km.CO2_Tabelle(33.1 + 273.15, 84.5, 1);  // the row 33.5 °C, 85 bar
  const KMZustand& z = u.km.z;
  EXPECT_EQ(z.h_lc, z.h_vc);
  EXPECT_LE(z.h_lc, 297.54);
  EXPECT_EQ(z.pc, 84.5) << "the given pressure, not the row's";
  u.km.CO2_Tabelle(33.5 + 273.15, 85, 1);
  EXPECT_EQ(z.h_lc, 297.54);
  EXPECT_EQ(z.rho_lc, 1 / 0.0015193);
  EXPECT_EQ(z.rho_vc, z.rho_lc);
  EXPECT_EQ(z.cp_l, 6.42);
  EXPECT_EQ(z.eta_lc, 0.0000508);
}

TEST(CO2Tabelle, DischargeSetsItsThreeFields) {
  KaeltemittelUmgebung u("R744");
  u.km.CO2_Tabelle(60 + 273.15, 86, 2);
  EXPECT_EQ(u.km.z.h_d_co2, 449.18);
  EXPECT_EQ(u.km.z.rho_d, 1 / 0.0046129);
  EXPECT_EQ(u.km.z.eta_vd, 0.0000207);
  EXPECT_TRUE(ist_leer(u.km.z.h_lc));
}

TEST(CO2Tabelle, PressureAboveTheTableChangesNothing) {
  KaeltemittelUmgebung u("R744");
  u.km.z.h_lc = 123;
  u.km.CO2_Tabelle(310, 1000, 1);
  EXPECT_EQ(u.km.z.h_lc, 123);
  EXPECT_TRUE(ist_leer(u.km.z.pc));
  u.km.CO2_Tabelle(900, 90, 2);
  EXPECT_TRUE(ist_leer(u.km.z.h_d_co2));
}

TEST(CO2Tabelle, SlopeEndsAtTheFirstEnthalpyThatComesDown) {
  TempOrdner ordner;
  ordner.schreib("CO2_sh01.dat",
                 "30,80,250,0.001,3,5e-5\n36,80,400,0.003,9,2e-5\n"
                 "30,90,245,0.001,3,5e-5\n36,90,340,0.002,9,2e-5\n"
                 "36,100,290,0.0015,6,3e-5\n");
  KaeltemittelUmgebung u("R744", ordner.pfad());
  u.km.z.h_lc = 300;
  u.km.z.dpdT0 = 0.5;
  u.km.CO2_Tabelle(37 + 273.15, 0, 3);
  // The rows at 36 °C count (36 + 1 >= 37): 400, 340, then 290. b = 1 + (300 - 290)/(340 - 290)
  EXPECT_DOUBLE_EQ(u.km.z.dpdT_ratio, 1.2 / 0.5);
}

TEST(CO2Tabelle, SlopeOfAFirstRowThatIsDownAtOnceTakesZeroForTheRowBefore) {
  TempOrdner ordner;
  ordner.schreib("CO2_sh01.dat", "30,80,250,0.001,3,5e-5\n");
  KaeltemittelUmgebung u("R744", ordner.pfad());
  u.km.z.h_lc = 300;
  u.km.z.dpdT0 = 0.5;
  u.km.CO2_Tabelle(300, 0, 3);
  EXPECT_DOUBLE_EQ(u.km.z.dpdT_ratio, (1 + 50.0 / -250) / 0.5);
  u.km.z.dpdT0 = 0;  // the statement fails
  u.km.CO2_Tabelle(300, 0, 3);
  EXPECT_DOUBLE_EQ(u.km.z.dpdT_ratio, (1 + 50.0 / -250) / 0.5);
}

TEST(CO2Tabelle, ZeroRowEndsTheDataAndVolumeZeroFailsAlone) {
  TempOrdner ordner;
  ordner.schreib("CO2_sh01.dat", "30,80,250,0,3,5e-5\n31,0,9,1,1,1\n40,90,300,0.002,4,4e-5\n");
  KaeltemittelUmgebung u("CO2", ordner.pfad());
  u.km.CO2_Tabelle(300, 85, 1);
  EXPECT_TRUE(ist_leer(u.km.z.h_lc));
  u.km.CO2_Tabelle(300, 75, 1);
  EXPECT_EQ(u.km.z.h_lc, 250);
  EXPECT_TRUE(ist_leer(u.km.z.rho_lc));
}

TEST(CO2Tabelle, BrokenRowEndsTheDataAndIsTold) {
  const CO2Daten daten = co2_daten_lesen("30,80,250,0.1,3,5e-5\n31,80,oops,1,1,1\n");
  EXPECT_EQ(daten.zeilen.size(), 1u);
  EXPECT_EQ(daten.bruch, 2);
  EXPECT_TRUE(co2_daten_lesen(std::nullopt).zeilen.empty());
}

TEST(CO2Tabelle, ProjectsTableIsInOrder) {
  const CO2Daten daten = projekttabelle();
  EXPECT_EQ(daten.zeilen.size(), 5967u);
  EXPECT_EQ(daten.bloecke.size(), 58u);
  EXPECT_EQ(daten.bruch, 0);
  EXPECT_TRUE(daten.geordnet);
  EXPECT_TRUE(daten.h_geordnet);
}

const CO2Zeile* erste_der_reihe_nach(const CO2Daten& daten, double t, double p) {
  for (const CO2Zeile& z : daten.zeilen)
    if (z.p >= p && z.t >= t) return &z;
  return nullptr;
}

std::optional<CO2Daten::Abstieg> abstieg_der_reihe_nach(const CO2Daten& daten, double t,
                                                        double h_lc) {
  double h_prev = 0;
  for (const CO2Zeile& z : daten.zeilen) {
    if (z.t + 1 >= t) {
      if (z.h <= h_lc) return CO2Daten::Abstieg{z.h, h_prev};
      h_prev = z.h;
    }
  }
  return std::nullopt;
}

void vergleiche_mit_durchgang(const CO2Daten& daten, int male, std::mt19937& zufall) {
  std::uniform_real_distribution<double> t(0, 260), p(30, 180), h(180, 620);
  std::uniform_int_distribution<std::size_t> zeile(0, daten.zeilen.size() - 1);
  for (int i = 0; i < male; ++i) {
    // Every other time a value that stands in the table, where >= decides.
    const CO2Zeile& z = daten.zeilen[zeile(zufall)];
    const double ti = i % 2 ? t(zufall) : z.t, pi = i % 3 ? p(zufall) : z.p;
    const double hi = i % 2 ? h(zufall) : daten.zeilen[zeile(zufall)].h;
    ASSERT_EQ(daten.erste(ti, pi), erste_der_reihe_nach(daten, ti, pi));
    for (const double t_3 : {ti, ti + 1}) {
      const auto a = daten.abstieg(t_3, hi), b = abstieg_der_reihe_nach(daten, t_3, hi);
      ASSERT_EQ(a.has_value(), b.has_value());
      if (a) {
        ASSERT_EQ(a->h, b->h);
        ASSERT_EQ(a->h_prev, b->h_prev);
      }
    }
  }
}

TEST(CO2Tabelle, IndexedSearchFindsWhatAScanFinds) {
  std::mt19937 zufall(4);
  CO2Daten daten = projekttabelle();
  vergleiche_mit_durchgang(daten, 5000, zufall);
  for (int lauf = 0; lauf < 5; ++lauf) {
    // Blocks out of order, then all rows out of order.
    if (lauf < 2)
      std::rotate(daten.zeilen.begin(), daten.zeilen.begin() + 1000 * (lauf + 1),
                  daten.zeilen.end());
    else
      std::shuffle(daten.zeilen.begin(), daten.zeilen.end(), zufall);
    daten = co2_daten_lesen(als_text(daten.zeilen));
    EXPECT_FALSE(daten.geordnet);
    vergleiche_mit_durchgang(daten, 500, zufall);
  }
}

TEST(CO2Tabelle, EmptyArgumentsFindNothing) {
  const CO2Daten daten = projekttabelle();
  EXPECT_EQ(daten.erste(leer, 90), nullptr);
  EXPECT_EQ(daten.erste(40, leer), nullptr);
  EXPECT_FALSE(daten.abstieg(leer, 300).has_value());
  EXPECT_FALSE(daten.abstieg(40, leer).has_value());
}

}  // namespace
