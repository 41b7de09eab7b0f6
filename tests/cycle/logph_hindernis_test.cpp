#include <filesystem>
#include <limits>

#include "logph_platz.h"
#include "support/temp_folder.h"

using namespace polarkreis;

namespace {

Hindernis bei(const std::string& mittel, double t0, double tc) {
  LogphPlatz p(mittel, t0, tc);
  return p.hindernis();
}

/// A folder with some of the delivered tables.
struct Tabellen : TempOrdner {
  void kopiere(const std::string& name) const {
    std::filesystem::copy_file(std::string(POLARKREIS_DATA) + "/" + name, pfad(name));
  }
};

}  // namespace

TEST(LogphHindernis, AnUnknownRefrigerantOrNone) {
  EXPECT_EQ(bei("R999", -10, 40), Hindernis::Mittel);
  EXPECT_EQ(bei("", -10, 40), Hindernis::Mittel);
}

TEST(LogphHindernis, AMissingOrEmptyTable) {
  const Tabellen ordner;
  LogphPlatz p("R134A", -10, 40, {}, ordner.pfad());
  EXPECT_EQ(p.hindernis(), Hindernis::Mittel);
  EXPECT_FALSE(ordner.da("R134A.DAT")) << "asking leaves no file";
  ordner.schreib("R134A.DAT", "no table at all\r\n");
  EXPECT_EQ(p.hindernis(), Hindernis::Mittel);
  std::filesystem::remove(ordner.pfad("R134A.DAT"));
  ordner.kopiere("R134A.DAT");
  EXPECT_TRUE(p.form.Rechnen()) << "the table counts from the next calculation on";
}

TEST(LogphHindernis, R744NeedsBothOfItsTables) {
  const Tabellen ordner;
  ordner.kopiere("CO2.DAT");
  LogphPlatz p("R744", -10, 20, {}, ordner.pfad());
  EXPECT_EQ(p.hindernis(), Hindernis::Mittel);
  ordner.kopiere("CO2_sh01.dat");
  EXPECT_TRUE(p.form.Rechnen());
}

TEST(LogphHindernis, EmptyTemperatures) {
  EXPECT_EQ(bei("R134A", leer, 40), Hindernis::Temperatur);
  EXPECT_EQ(bei("R134A", -10, leer), Hindernis::Temperatur);
  EXPECT_EQ(bei("R744", -10, leer), Hindernis::Temperatur);
  EXPECT_EQ(bei("R134A", -std::numeric_limits<double>::infinity(), 40), Hindernis::Temperatur);
  EXPECT_EQ(bei("R134A", -10, std::numeric_limits<double>::infinity()), Hindernis::Temperatur);
}

TEST(LogphHindernis, TemperaturesThatAreEqualOrSwapped) {
  EXPECT_EQ(bei("R134A", 10, 10), Hindernis::Temperatur);
  EXPECT_EQ(bei("R134A", 40, -10), Hindernis::Temperatur);
}

// R134A's table has rows from -65 to 95 °C.
TEST(LogphHindernis, TemperaturesOutsideTheTable) {
  EXPECT_EQ(bei("R134A", -65, 40), Hindernis::Temperatur) << "no row below the key";
  EXPECT_EQ(bei("R134A", -70, 40), Hindernis::Temperatur);
  EXPECT_EQ(bei("R134A", -10, 95.1), Hindernis::Temperatur);
  EXPECT_EQ(bei("R134A", -64.9, -60.1), Hindernis::Temperatur) << "5 K below are looked at";
  LogphPlatz oben("R134A", -10, 95), unten("R134A", -64.9, -59.5);
  unten.form.dT_sh = 0;
  EXPECT_TRUE(oben.form.Rechnen());
  EXPECT_TRUE(unten.form.Rechnen());
}

TEST(LogphHindernis, AnIntermediatePressureOutsideTheOtherTwo) {
  LogphPlatz p("R134A", -30, 40);
  p.form.modul = "2stage";
  p.form.Zweistufig = 1;
  for (const double p_m : {0.5, 0.84, 10.17, 12.0, -1.0, 0.0}) {
    p.form.p_m = p_m;
    EXPECT_EQ(p.hindernis(), Hindernis::Mitteldruck) << p_m;
  }
  p.form.p_m = leer;
  p.form.p_Int_Scroll = 9.4;
  EXPECT_EQ(p.hindernis(), Hindernis::Mitteldruck);
  p.form.p_Int_Scroll = 5;
  EXPECT_TRUE(p.form.Rechnen());
}

// 5 bar above the evaporator of a plant with little lift lie above the condenser.
TEST(LogphHindernis, TheUsualOffsetMayBeTooMuch) {
  LogphPlatz p("R134A", -30, 10);
  p.form.Zweistufig = 1;
  EXPECT_EQ(p.hindernis(), Hindernis::Mitteldruck);
  LogphPlatz economiser("R134A", -30, 10);
  economiser.form.ECO_OPT = 1;
  EXPECT_TRUE(economiser.form.Rechnen()) << "its rule stays between the two";
}

TEST(LogphHindernis, AHighPressureThatTheTableDoesntReach) {
  for (const int stufen : {0, 1}) {
    LogphPlatz p("R744", -10, 36);
    p.form.Zweistufig = stufen;
    p.form.P_hoch = 4000;
    EXPECT_EQ(p.hindernis(), Hindernis::Kreis) << stufen;
  }
}

TEST(LogphHindernis, MeasuredPressuresThatCantBe) {
  LogphPlatz p;
  p.form.modul = "DiaG";
  const std::pair<double, double> paare[] = {{0, 10}, {-1, 10}, {12, 10}, {10, 10}, {2, 0}};
  for (const auto& [p0, pc] : paare) {
    p.form.p0F = p0;
    p.form.pcF = pc;
    EXPECT_EQ(p.hindernis(), Hindernis::Druck) << p0 << " " << pc;
  }
}

// 30 K of saturation temperature are more than the whole low pressure.
TEST(LogphHindernis, ASuctionLineThatTakesAllPressure) {
  LogphPlatz p;
  p.form.C = 30;
  EXPECT_EQ(p.hindernis(), Hindernis::Druck);
}

// The liquid would have to be warmed: (h_lc - h_l0) / (2 cp) is less than the 8 K that are kept.
// The table of R744 ends at 200 °C; what an earlier search found there must not stand in.
TEST(LogphHindernis, AnEndOfCompressionAboveTheTableOfR744) {
  for (const double dT : {8.0, 10.0, 12.0}) {
    LogphPlatz p("R744", -10, 35);
    p.form.Innen_WT = true;
    p.form.dT_liquid = dT;
    EXPECT_EQ(p.hindernis(), Hindernis::Kreis) << dT;
    p.form.dT_liquid = 3;
    EXPECT_TRUE(p.form.Rechnen());
    EXPECT_GT(p.form.ergebnis().h_d, 526.02);
  }
}

// Gas hotter than the tank's vapour makes no liquid there.
TEST(LogphHindernis, ATankThatGetsHotGas) {
  LogphPlatz p("R744", 17, 41);
  p.form.P_hoch = 79;
  p.form.Zweistufig = 1;
  p.form.toh_EV_Scroll = 7.6;
  p.form.p_Int_Scroll = 4.3;
  p.form.p0F = 52;
  EXPECT_EQ(p.hindernis(), Hindernis::Kreis);
}

TEST(LogphHindernis, LiquidColderThanTheEvaporator) {
  LogphPlatz p;
  p.form.dT_sc = 60;
  EXPECT_EQ(p.hindernis(), Hindernis::Fluessigkeit);
  p.form.dT_sc = 40;
  EXPECT_TRUE(p.form.Rechnen());
}

TEST(LogphHindernis, ALiquidLineThatTakesAllPressure) {
  LogphPlatz p;
  p.form.dp_Fl = 20000;
  EXPECT_EQ(p.hindernis(), Hindernis::Druck);
  p.form.dp_Fl = 8000;
  EXPECT_TRUE(p.form.Rechnen());
  EXPECT_EQ(p.punkt("expansion valve inlet").Ort, Lage::nass);
  EXPECT_LT(p.punkt("expansion valve inlet").t, 0);
}

TEST(LogphHindernis, AnIntermediatePressureAboveTheTableOfR744) {
  for (const double Abstand : {46.0, 60.0}) {
    LogphPlatz p("R744", -10, 36);
    p.form.P_hoch = 95;
    p.form.Zweistufig = 1;
    p.form.p_Int_Scroll = Abstand;
    EXPECT_EQ(p.hindernis(), Hindernis::Mitteldruck) << Abstand;
  }
}

TEST(LogphHindernis, TemperaturesTooNearForAnEconomiser) {
  LogphPlatz p("R134A", 5, 20);
  p.form.ECO_OPT = 1;
  EXPECT_EQ(p.hindernis(), Hindernis::Economiser);
  p.form.ECO_OPT = 0;
  EXPECT_TRUE(p.form.Rechnen());
}

TEST(LogphHindernis, AStageWithoutPower) {
  LogphPlatz p("R227", -15, 35);
  p.form.dT_sh = 8;
  p.form.t_s = 3;
  p.form.C = 1;
  p.form.Innen_WT = true;
  p.form.dT_liquid = 3;
  p.form.Zweistufig = 1;
  EXPECT_EQ(p.hindernis(), Hindernis::Kreis);
}

TEST(LogphHindernis, EmptyNumbersOfAPlantCountAsNone) {
  LogphPlatz p;
  const double P = p.rechne().P;
  p.form.Innen_WT = true;
  p.form.dT_liquid = leer;
  p.form.C = leer;
  p.form.dp_Fl = leer;
  p.rechne();
  EXPECT_NEAR(p.form.ergebnis().m, p.form.ergebnis().m_Modell, 1e-15);
  EXPECT_NEAR(p.form.ergebnis().P, P, 1e-9);
  EXPECT_EQ(p.figur("dpDL="), "dpDL=0 mbar");
  EXPECT_EQ(p.figur("dpFl="), "dpFl=0 mbar");
}

TEST(LogphHindernis, NoPowerComesOut) {
  LogphPlatz p;
  p.form.dT_sh = leer;
  EXPECT_EQ(p.hindernis(), Hindernis::Kreis);
  // 6 K of lift, and the suction vapour is warmer than what the model lets out.
  EXPECT_EQ(bei("R134A", -64, -58), Hindernis::Kreis);
}

TEST(LogphHindernis, AFailingCalculationLeavesNothingOfTheOneBefore) {
  LogphPlatz p("R407C");
  p.rechne();
  ASSERT_FALSE(p.form.figuren().empty());
  p.form.tcF = -20;
  EXPECT_EQ(p.hindernis(), Hindernis::Temperatur);
  EXPECT_TRUE(p.form.figuren().empty());
  EXPECT_TRUE(p.form.punkte().Punkte.empty());
  EXPECT_TRUE(p.form.punkte().Wege.empty());
  EXPECT_TRUE(p.form.bilanzen().empty());
  EXPECT_TRUE(ist_leer(p.form.ergebnis().P));
  for (const double feld :
       {p.form.hsF, p.form.hTF, p.form.rhoSF, p.form.rhoTF, p.form.tGlide, p.form.t0_Punkt,
        p.form.xDampf, p.form.EnthDiff, p.form.VerdLeist_DIN, p.form.EER_ACT})
    EXPECT_TRUE(ist_leer(feld));
  p.form.tcF = 40;
  p.rechne();
  EXPECT_EQ(p.form.hindernis(), Hindernis::keines);
}
