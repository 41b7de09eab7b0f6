#include "simulation/logp_projekt.h"

#include "werkstatt.h"

using namespace polarkreis;

namespace {

constexpr const char* Beispiele[] = {"Supermarket medium temperature.prj", "CO2 supermarket.prj",
                                     "Ammonia process cooling.prj", "Propane air conditioning.prj",
                                     "R134A chiller with free cooling.prj"};

class LogpProjekt : public ::testing::Test {
 protected:
  Werkstatt w;
  logp_H form{w.kreis};

  Anlage uebernommen() {
    const Anlage a = Anlage_von(w.projekt);
    Projekt_Uebernehmen(a, w.km, form);
    return a;
  }
  Punktwerte punkt() {
    w.km.z.RefName = w.projekt.KaelteM;
    Anlage a = Anlage_von(w.projekt);
    return w.punkt.Punkt_Rechnen(a, 0, 1, 100);
  }
};

}  // namespace

TEST_F(LogpProjekt, TheFormHasWhatThePointWorksWith) {
  for (const char* name : Beispiele) {
    w.oeffne(name);
    w.km.z.RefName = "of another plant";
    const Anlage a = uebernommen();
    EXPECT_EQ(w.km.z.RefName, a.Kaeltemittel) << name;
    const Punktwerte p = punkt();
    EXPECT_EQ(form.modul, "SIM_PRO") << name;
    EXPECT_EQ(form.t0F, p.t0_eff) << name;
    EXPECT_EQ(form.tcF, p.tc_eff) << name;
    EXPECT_EQ(form.dT_sh, p.superheat) << name;
    EXPECT_NEAR(form.t_s, p.t_saug, 1e-12) << name;
    EXPECT_EQ(form.Bauart, w.km.z.Bauart) << name;
    EXPECT_EQ(form.Antrieb, w.km.z.Antrieb) << name;
    EXPECT_EQ(form.P_hoch, a.P_gasK) << name;
    EXPECT_NEAR(form.C * w.km.z.dpdT0 * 1000, p.dp_s, 1e-9) << name;
    EXPECT_FALSE(form.Innen_WT) << name;
    EXPECT_EQ(form.ECO_OPT, 0) << name;
  }
}

TEST_F(LogpProjekt, EverySampleGivesACycleWithThePointsPressures) {
  for (const char* name : Beispiele) {
    w.oeffne(name);
    uebernommen();
    ASSERT_TRUE(form.Rechnen()) << name;
    const logp_H::Ergebnis e = form.ergebnis();
    const Punktwerte p = punkt();
    EXPECT_NEAR(e.p0, w.km.z.p0, 1e-12) << name;
    EXPECT_NEAR(e.pc, w.km.z.pc, 1e-12) << name;
    EXPECT_NEAR(e.p_s, w.km.z.p0 - p.dp_s / 1000, 1e-12) << name;
    EXPECT_NEAR(e.p_d, w.km.z.pc + p.dp_d / 1000, 1e-12) << name;
    EXPECT_EQ(ist_leer(e.p_m), ist_leer(p.p_m)) << name;
    if (!ist_leer(p.p_m)) {
      EXPECT_NEAR(e.p_m, p.p_m, 1e-12) << name;
      EXPECT_NEAR(e.t_m, p.t_m, 1e-9) << name;
    }
  }
}

// The flow belongs to 10 kW, the point's to the plant.
TEST_F(LogpProjekt, OneStagePlantsHaveThePointsFlowAndDischarge) {
  for (const char* name : {Beispiele[0], Beispiele[2], Beispiele[3], Beispiele[4]}) {
    w.oeffne(name);
    const Anlage a = uebernommen();
    form.C = 0;  // the point's discharge temperature leaves the losses of the lines out
    ASSERT_TRUE(form.Rechnen()) << name;
    const logp_H::Ergebnis e = form.ergebnis();
    const Punktwerte p = punkt();
    EXPECT_EQ(e.Art, Schaltung::einstufig) << name;
    EXPECT_NEAR(e.m * a.Q0 / 10, p.m_punkt, 1e-9 * p.m_punkt) << name;
    EXPECT_NEAR(form.dT_sc, p.subcooling, 1e-12) << name;
    EXPECT_NEAR(e.t_d, p.t_d, 1e-9) << name;
  }
}

// The supermarket: stepped control 0.98, 8 K: -8 + 8 - 7.84; suction -7.84 + 6.4 + 5.
TEST_F(LogpProjekt, TheSupermarketsFigures) {
  w.projekt.aendern("WartungI", w.text(JMapCap::Wartung_mittel));
  uebernommen();
  EXPECT_NEAR(form.t0F, -7.84, 1e-12);
  EXPECT_NEAR(form.tcF, 52, 1e-12);
  EXPECT_NEAR(form.t_s, 3.56, 1e-12);
  EXPECT_EQ(form.dT_sc, 2);
  EXPECT_EQ(form.C, 2);
  EXPECT_EQ(form.Zweistufig, 0);
}

TEST_F(LogpProjekt, ATranscriticalPlantHasATankFiveBarAboveTheEvaporator) {
  w.oeffne("CO2 supermarket.prj");
  uebernommen();
  EXPECT_EQ(form.Zweistufig, 1);
  EXPECT_EQ(form.P_hoch, 102.5);
  EXPECT_FALSE(form.ParaL_Check);
  ASSERT_TRUE(form.Rechnen());
  EXPECT_EQ(form.ergebnis().Art, Schaltung::Flashgas_Saug);
  EXPECT_DOUBLE_EQ(form.ergebnis().p_m, form.ergebnis().p0 + 5);
  w.projekt.ParaL_Check = true;
  uebernommen();
  ASSERT_TRUE(form.Rechnen());
  EXPECT_EQ(form.ergebnis().Art, Schaltung::Flashgas_eigen);
}

TEST_F(LogpProjekt, BelowThirtyOneDegreesR744HasNoTank) {
  w.oeffne("CO2 supermarket.prj");
  w.projekt.aendern("Tc", "25");
  uebernommen();
  EXPECT_EQ(form.Zweistufig, 0);
}

TEST_F(LogpProjekt, ControlsOfTheRunReachTheForm) {
  w.projekt.Check3D1 = true;
  w.projekt.ECO_OPT = 4;
  const Punktwerte p = punkt();
  uebernommen();
  EXPECT_TRUE(form.Innen_WT);
  EXPECT_EQ(form.dT_liquid, 5);
  EXPECT_EQ(form.ECO_OPT, 4);
  EXPECT_NEAR(form.t_s, 3.56, 1e-12) << "without the heat exchanger";
  w.projekt.ECO_OPT = 0;
  uebernommen();
  ASSERT_TRUE(form.Rechnen());
  EXPECT_NEAR(form.ergebnis().t_s, p.t_saug, 1e-9) << "with it";
}

TEST_F(LogpProjekt, EditedParametersCountAtTheNextCall) {
  w.ordner.schreib("SubAct.dat", "\"0\"\r\n\"4\"\r\n\"1.5\"\r\n\"7\"\r\n");
  w.ordner.schreib("JMapOpt.dat", "\"7\"\r\n\"3\"\r\n\"0.4\"\r\n\"1\"\r\n");
  w.projekt.Check3D1 = true;
  uebernommen();
  EXPECT_NEAR(form.t_s, -7.84 + 6.4 + 5 + 4, 1e-12);
  EXPECT_EQ(form.dT_sc, 1.5);
  EXPECT_EQ(form.dT_liquid, 7);
  EXPECT_NEAR(form.dp_Fl, 400, 1e-9);
}

TEST_F(LogpProjekt, MissingParametersHaveTheirDefaults) {
  std::filesystem::remove(w.ordner.pfad("SubAct.dat"));
  std::filesystem::remove(w.ordner.pfad("JMapOpt.dat"));
  uebernommen();
  EXPECT_NEAR(form.dp_Fl, 1000, 1e-9);
  EXPECT_EQ(form.dT_sc, 2) << "the start values of \"Armstd.rdm\"";
  EXPECT_EQ(form.dT_liquid, 5);
  EXPECT_FALSE(w.ordner.da("SubAct.dat")) << "reading makes no file";
}
