#include "cycle/logp_linien.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <filesystem>

#include "support/kaeltemittel_umgebung.h"
#include "support/temp_folder.h"

using namespace polarkreis;

namespace {

Logp_Linien linien(const std::string& mittel) {
  KaeltemittelUmgebung u(mittel);
  return logp_Linien(u.km);
}

const Wertlinie* finde(const std::vector<Wertlinie>& linien, double wert) {
  for (const Wertlinie& l : linien)
    if (std::abs(l.Wert - wert) < 1e-9) return &l;
  return nullptr;
}

bool ganz_leer(const Logp_Linien& l) {
  return l.Siedelinie.empty() && l.Taulinie.empty() && l.Isothermen.empty() && l.Gehalte.empty() &&
         l.Ueberkritisch.empty();
}

}  // namespace

TEST(LogpLinien, TheDomeIsTheTableRowByRow) {
  for (const char* mittel : {"R134A", "R407C"}) {
    KaeltemittelUmgebung u(mittel);
    const std::vector<SatZeile> tafel = u.km.Tabellenzeilen();
    const Logp_Linien l = logp_Linien(u.km);
    ASSERT_EQ(l.Siedelinie.size(), tafel.size());
    ASSERT_EQ(l.Taulinie.size(), tafel.size());
    for (std::size_t n = 0; n < tafel.size(); ++n) {
      EXPECT_EQ(l.Siedelinie[n].h, tafel[n].h_l);
      EXPECT_EQ(l.Siedelinie[n].p, tafel[n].p_b);
      EXPECT_EQ(l.Taulinie[n].h, tafel[n].h_v);
      EXPECT_EQ(l.Taulinie[n].p, tafel[n].p_d);
    }
  }
}

TEST(LogpLinien, OfAPureFluidBothEndsShareTheirPressure) {
  const Logp_Linien l = linien("R134A");
  ASSERT_EQ(l.Siedelinie.size(), 33u);
  EXPECT_EQ(l.Siedelinie.front().h, 117.26);
  EXPECT_EQ(l.Taulinie.front().h, 358.16);
  EXPECT_EQ(l.Siedelinie.back().p, 35.9123);
  for (const Wertlinie& isotherme : l.Isothermen)
    EXPECT_EQ(isotherme.Orte.front().p, isotherme.Orte.back().p) << isotherme.Wert;
}

TEST(LogpLinien, OfABlendTheBubbleLineLiesHigher) {
  const Logp_Linien l = linien("R407C");
  for (std::size_t n = 0; n < l.Siedelinie.size(); ++n)
    EXPECT_GT(l.Siedelinie[n].p, l.Taulinie[n].p) << n;
  const Wertlinie* null = finde(l.Isothermen, 0);
  ASSERT_NE(null, nullptr);
  ASSERT_EQ(null->Orte.size(), 2u);
  EXPECT_EQ(null->Orte[0].h, 200);
  EXPECT_EQ(null->Orte[0].p, 5.67869);
  EXPECT_EQ(null->Orte[1].h, 409.51);
  EXPECT_EQ(null->Orte[1].p, 4.60713);
}

// R134A's rows lie at -65 to 95 °C.
TEST(LogpLinien, IsothermsLieAtMultiplesOfTenOfTheTable) {
  const Logp_Linien l = linien("R134A");
  std::vector<double> temperaturen;
  for (const Wertlinie& isotherme : l.Isothermen) temperaturen.push_back(isotherme.Wert);
  std::vector<double> erwartet;
  for (int t = -60; t <= 90; t += 10) erwartet.push_back(t);
  EXPECT_EQ(temperaturen, erwartet);
  const Wertlinie* minus_zehn = finde(l.Isothermen, -10);
  ASSERT_NE(minus_zehn, nullptr);
  EXPECT_EQ(minus_zehn->Orte[0].h, 186.70);
  EXPECT_EQ(minus_zehn->Orte[1].h, 392.66);
  EXPECT_EQ(minus_zehn->Orte[0].p, 2.00603);
}

TEST(LogpLinien, ContentsPartTheWayFromLineToLine) {
  for (const char* mittel : {"R134A", "R407C"}) {
    const Logp_Linien l = linien(mittel);
    ASSERT_EQ(l.Gehalte.size(), 9u);
    for (std::size_t g = 0; g < 9; ++g) {
      const Wertlinie& gehalt = l.Gehalte[g];
      EXPECT_NEAR(gehalt.Wert, 0.1 * static_cast<double>(g + 1), 1e-12);
      ASSERT_EQ(gehalt.Orte.size(), l.Siedelinie.size());
      for (std::size_t n = 0; n < gehalt.Orte.size(); ++n) {
        const Diagrammort &a = l.Siedelinie[n], &b = l.Taulinie[n];
        EXPECT_NEAR((gehalt.Orte[n].h - a.h) / (b.h - a.h), gehalt.Wert, 1e-9);
        EXPECT_NEAR(gehalt.Orte[n].p, a.p + gehalt.Wert * (b.p - a.p), 1e-9);
      }
    }
  }
  // -10 °C, half of it: (186.70 + 392.66) / 2
  EXPECT_NEAR(linien("R134A").Gehalte[4].Orte[11].h, 289.68, 1e-9);
}

TEST(LogpLinien, OnlyR744HasLinesAboveTheCriticalTemperature) {
  EXPECT_TRUE(linien("R134A").Ueberkritisch.empty());
  EXPECT_FALSE(linien("R744").Ueberkritisch.empty());
  EXPECT_EQ(linien("co2").Ueberkritisch.size(), linien("R744").Ueberkritisch.size());
}

TEST(LogpLinien, SupercriticalIsothermsRiseInPressureAndComeFromTheFile) {
  KaeltemittelUmgebung u("R744");
  const Logp_Linien l = logp_Linien(u.km);
  const std::vector<CO2Zeile> tafel = u.km.CO2_Zeilen();
  double davor = 31;
  for (const Wertlinie& isotherme : l.Ueberkritisch) {
    EXPECT_GT(isotherme.Wert, davor) << "rising, and all above the critical one";
    davor = isotherme.Wert;
    ASSERT_GT(isotherme.Orte.size(), 2u);
    std::size_t da = 0;
    for (const CO2Zeile& zeile : tafel) da += zeile.t == isotherme.Wert ? 1 : 0;
    EXPECT_EQ(isotherme.Orte.size(), da) << isotherme.Wert;
    for (std::size_t n = 0; n < isotherme.Orte.size(); ++n) {
      const Diagrammort& ort = isotherme.Orte[n];
      EXPECT_GT(ort.p, n > 0 ? isotherme.Orte[n - 1].p : 0) << isotherme.Wert;
      EXPECT_TRUE(std::ranges::any_of(tafel, [&](const CO2Zeile& zeile) {
        return zeile.t == isotherme.Wert && zeile.p == ort.p && zeile.h == ort.h;
      })) << isotherme.Wert;
    }
  }
}

TEST(LogpLinien, AFileInAnotherOrderGivesTheSameIsotherms) {
  const TempOrdner ordner;
  std::filesystem::copy_file(std::string(POLARKREIS_DATA) + "/CO2.DAT", ordner.pfad("CO2.DAT"));
  ordner.schreib("CO2_sh01.dat",
                 "40,100,313,0.0016,5.6,0.00005\n50,100,360,0.002,4,0.00004\n"
                 "40,80,400,0.004,5,0.00003\n40,90,350,0.002,8,0.00004\n");
  KaeltemittelUmgebung u("R744", ordner.pfad());
  const Logp_Linien l = logp_Linien(u.km);
  ASSERT_EQ(l.Ueberkritisch.size(), 2u);
  EXPECT_EQ(l.Ueberkritisch[0].Wert, 40);
  EXPECT_EQ(l.Ueberkritisch[1].Wert, 50);
  std::vector<double> drucke;
  for (const Diagrammort& ort : l.Ueberkritisch[0].Orte) drucke.push_back(ort.p);
  EXPECT_EQ(drucke, (std::vector<double>{80, 90, 100}));
  EXPECT_EQ(l.Ueberkritisch[0].Orte[0].h, 400);
}

// Every 2 °C up to 40 °C, where they lie far apart; from there on every 10.
TEST(LogpLinien, TheyAreCloserNearTheCriticalPoint) {
  const Logp_Linien l = linien("R744");
  for (const double t : {32.0, 34.0, 36.0, 38.0, 40.0, 50.0, 60.0, 100.0})
    EXPECT_NE(finde(l.Ueberkritisch, t), nullptr) << t;
  for (const double t : {30.0, 31.0, 33.0, 42.0, 45.0})
    EXPECT_EQ(finde(l.Ueberkritisch, t), nullptr) << t;
  // 40 °C at 100 bar: 313.04 kJ/kg.
  const auto& vierzig = finde(l.Ueberkritisch, 40)->Orte;
  const auto hundert = std::ranges::find(vierzig, 100.0, &Diagrammort::p);
  ASSERT_NE(hundert, vierzig.end());
  EXPECT_EQ(hundert->h, 313.04);
}

TEST(LogpLinien, WithoutARefrigerantOrATableThereAreNone) {
  EXPECT_TRUE(ganz_leer(linien("R999")));
  EXPECT_TRUE(ganz_leer(linien("")));
  const TempOrdner ordner;
  KaeltemittelUmgebung ohne("R134A", ordner.pfad());
  EXPECT_TRUE(ganz_leer(logp_Linien(ohne.km)));
  ordner.schreib("R134A.DAT", "no table");
  EXPECT_TRUE(ganz_leer(logp_Linien(ohne.km)));
}

TEST(LogpLinien, R744WithoutItsSecondTableHasItsDomeAlone) {
  const TempOrdner ordner;
  std::filesystem::copy_file(std::string(POLARKREIS_DATA) + "/CO2.DAT", ordner.pfad("CO2.DAT"));
  KaeltemittelUmgebung u("R744", ordner.pfad());
  const Logp_Linien l = logp_Linien(u.km);
  EXPECT_EQ(l.Siedelinie.size(), 18u);
  EXPECT_TRUE(l.Ueberkritisch.empty());
}

TEST(LogpLinien, AnEditedTableCountsAtOnce) {
  const TempOrdner ordner;
  ordner.schreib("R22.DAT", "273.15,2,2,100,350,1300,10\n278.15,3,3,110,352,1290,15\n");
  KaeltemittelUmgebung u("R22", ordner.pfad());
  ASSERT_EQ(logp_Linien(u.km).Siedelinie.size(), 2u);
  ordner.schreib("R22.DAT", "273.15,2,2,101,350,1300,10\n");
  const Logp_Linien l = logp_Linien(u.km);
  ASSERT_EQ(l.Siedelinie.size(), 1u);
  EXPECT_EQ(l.Siedelinie[0].h, 101);
  EXPECT_EQ(l.Isothermen.size(), 1u);
}
