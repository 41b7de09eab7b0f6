#include "diagnostics/real_logp.h"

#include <gtest/gtest.h>

#include <cmath>

#include "kern_desk.h"

using namespace polarkreis;

namespace {

/// A plant whose row 3 was computed, and the form for its diagram.
struct Gemessen : KernDesk {
  logp_H form{kreis};
  explicit Gemessen(std::string mittel = "R134A") : KernDesk(std::move(mittel)) {}

  void gerechnet(const Zellen& anders = {}) {
    laufend(anders);
    rechne();
  }
  bool uebernommen(int zeile = 3) { return Real_logp_h(messung, kern.Funktion, zeile, km, form); }
};

/// Two stages of R404A at about -35 and 35 °C, 5 bar between them.
struct Zweistufig : Gemessen {
  explicit Zweistufig(VerbCapt funktion, std::string_view zusatz = "") : Gemessen("R404A") {
    einheit(1, funktion, zusatz);
    messung.Hub_Volumen = 60;
  }
  void gerechnet(const Zellen& anders = {}) {
    laufend({{2, "0.6"}, {4, "-30"}, {5, "-20"}, {6, "15"}, {8, "75"}, {9, "32"}});
    setze({{36, "8"}, {41, "4"}});
    setze(anders);
    rechne();
  }
};

}  // namespace

TEST(RealLogp, ARowGivesPressuresAndTemperaturesAsMeasured) {
  Gemessen d;
  d.messung.Bauart = 2;
  d.messung.Antrieb = 3;
  d.messung.ECO_OPT = 0;
  d.messung.C = 1.5;
  d.gerechnet();
  ASSERT_TRUE(d.uebernommen());
  EXPECT_EQ(d.form.modul, "DiaG");
  EXPECT_EQ(d.km.z.RefName, "R134A");
  EXPECT_DOUBLE_EQ(d.form.p0F, 1 + 1.013);
  EXPECT_DOUBLE_EQ(d.form.pcF, 9 + 1.013);
  EXPECT_EQ(d.form.t0F, d.zahl(Spalte::t0));
  EXPECT_EQ(d.form.tcF, d.zahl(Spalte::tc));
  EXPECT_EQ(d.form.dT_sh, d.zahl(Spalte::dT_sh));
  EXPECT_EQ(d.form.dT_sc, d.zahl(Spalte::dT_sc));
  EXPECT_EQ(d.form.t_s, 3);
  EXPECT_EQ(d.form.t_end, 70);
  EXPECT_EQ(d.form.Zweistufig, 0);
  EXPECT_TRUE(ist_leer(d.form.p_m));
  EXPECT_TRUE(ist_leer(d.form.t_s2));
  EXPECT_EQ(d.form.C, 1.5);
  EXPECT_EQ(d.form.Bauart, 2);
  EXPECT_EQ(d.form.Antrieb, 3);
}

TEST(RealLogp, ADriveThatIsntToldIsTheSecond) {
  Gemessen d;
  d.gerechnet();
  d.messung.Antrieb = 0;
  ASSERT_TRUE(d.uebernommen());
  EXPECT_EQ(d.form.Antrieb, 2);
}

// What the kernel worked the row out to: its mass flow's model, its efficiency by the measured end.
TEST(RealLogp, TheCycleAgreesWithTheKernelsJudgement) {
  Gemessen d;
  d.messung.Antrieb = 2;
  d.gerechnet();
  ASSERT_TRUE(d.uebernommen());
  ASSERT_TRUE(d.form.Rechnen());
  const logp_H::Ergebnis& e = d.form.ergebnis();
  EXPECT_EQ(e.p0, d.form.p0F);
  EXPECT_EQ(e.pc, d.form.pcF);
  EXPECT_EQ(e.t_d, 70);
  EXPECT_NEAR(e.eta, d.kern.werte().eta, 0.02);
}

TEST(RealLogp, TheRowIsTheOneThatIsAsked) {
  Gemessen d;
  d.laufend({}, 3);
  d.laufend({{Spalte::p0, "1.4"}, {Spalte::t_SL, "8"}}, 4);
  d.kern.beginnen();
  d.kern.Kern_Zeile(3);
  d.kern.Kern_Zeile(4);
  ASSERT_TRUE(d.uebernommen(4));
  EXPECT_DOUBLE_EQ(d.form.p0F, 1.4 + 1.013);
  EXPECT_EQ(d.form.t_s, 8);
  ASSERT_TRUE(d.uebernommen(3));
  EXPECT_EQ(d.form.t_s, 3);
}

TEST(RealLogp, RowsOutsideTheMeasurementGiveNothing) {
  Gemessen d;
  d.gerechnet();
  d.messung.DiaSpread.kopieren(3, 2);  // a heading with the same texts
  d.messung.DiaSpread.kopieren(3, 5);  // behind the gap that ends the measurement
  d.form.t0F = -77;
  for (const int zeile : {-5, 0, 2, 4, 5, 500}) {
    EXPECT_FALSE(d.uebernommen(zeile)) << zeile;
    EXPECT_EQ(d.form.t0F, -77) << "the form stays";
    EXPECT_EQ(d.form.modul, "MonoF");
  }
}

TEST(RealLogp, ARowThatWasNeverComputedGivesNothing) {
  Gemessen d;
  d.laufend();
  EXPECT_FALSE(d.uebernommen());
  EXPECT_TRUE(ist_leer(d.form.t0F));
  d.rechne();
  EXPECT_TRUE(d.uebernommen());
}

TEST(RealLogp, AnOpenSensorGivesNothing) {
  for (const int spalte : {Spalte::t_Exp, Spalte::t_SL, Spalte::t_liq}) {
    Gemessen d;
    d.gerechnet();
    ASSERT_TRUE(d.uebernommen());
    d.setze({{spalte, "-99"}});
    EXPECT_FALSE(d.uebernommen()) << spalte;
    d.setze({{spalte, "-90"}});
    EXPECT_TRUE(d.uebernommen()) << spalte << " at the limit";
  }
}

// A column that a text marks as out of range has no number: it counts as 0, as in the kernel.
TEST(RealLogp, AMarkedEndOfCompressionIsTheModels) {
  for (const char* keiner : {"  -", "", "0"}) {
    Gemessen d;
    d.gerechnet({{Spalte::t_end, keiner}});
    ASSERT_TRUE(d.uebernommen());
    EXPECT_TRUE(ist_leer(d.form.t_end)) << keiner;
    ASSERT_TRUE(d.form.Rechnen());
    EXPECT_GT(d.form.ergebnis().t_d, 45);
  }
}

TEST(RealLogp, RemoteSensorsCountWhereTheUnitIsTheCompressorsOwn) {
  const int t_Exp = Spalte::von(Spalte::E_t_Exp, 1), t_liq = Spalte::von(Spalte::E_t_liq, 1);
  Gemessen d;
  d.einheit(1, VerbCapt::Verdichter);
  d.gerechnet();
  ASSERT_TRUE(d.uebernommen());
  d.setze({{t_Exp, "-99"}});
  EXPECT_FALSE(d.uebernommen()) << "the remote bulb is open";
  d.setze({{t_Exp, "  -"}});
  EXPECT_TRUE(d.uebernommen()) << "there is none";
  d.setze({{t_liq, "-99"}});
  EXPECT_FALSE(d.uebernommen());
}

TEST(RealLogp, ARemoteUnitHasABulbAndNoLiquidLine) {
  const int t_Exp = Spalte::von(Spalte::E_t_Exp, 1), t_liq = Spalte::von(Spalte::E_t_liq, 1);
  Gemessen d;
  d.einheit(1, VerbCapt::Verdichter_Fernfuehler);
  d.gerechnet();
  ASSERT_EQ(d.kern.Funktion.Sensor_Code[1], F_Fernfuehler);
  d.setze({{t_liq, "-99"}});
  EXPECT_TRUE(d.uebernommen());
  d.setze({{t_Exp, "-99"}});
  EXPECT_FALSE(d.uebernommen());
  Gemessen andere;  // any other unit's sensors stand elsewhere
  andere.einheit(1, VerbCapt::Economiser);
  andere.gerechnet();
  andere.setze({{t_Exp, "-99"}, {t_liq, "-99"}});
  EXPECT_TRUE(andere.uebernommen());
}

TEST(RealLogp, ARefrigerantWithoutATableWasNeverComputed) {
  Gemessen d("R999");
  d.gerechnet();
  EXPECT_FALSE(d.uebernommen());
  // One whose table went away behind the computing is told by the calculation.
  Gemessen spaeter;
  spaeter.gerechnet();
  spaeter.messung.KaelteM = "R999";
  ASSERT_TRUE(spaeter.uebernommen());
  EXPECT_FALSE(spaeter.form.Rechnen());
  EXPECT_EQ(spaeter.form.hindernis(), Hindernis::Mittel);
}

TEST(RealLogp, TwoStagesHaveTheUnitsPressureAndTemperature) {
  const std::pair<VerbCapt, int> faelle[] = {{VerbCapt::Zweistufig_Booster, 8},
                                             {VerbCapt::Zweistufig, 9},
                                             {VerbCapt::Zweistufig_Zwischenkuehler, 10}};
  for (const auto& [funktion, code] : faelle) {
    Zweistufig d(funktion, funktion == VerbCapt::Zweistufig ? " 2st." : "");
    d.gerechnet();
    ASSERT_TRUE(d.uebernommen()) << code;
    EXPECT_EQ(d.form.Zweistufig, code);
    EXPECT_DOUBLE_EQ(d.form.p_m, 5);
    EXPECT_EQ(d.form.t_s2, 8);
    ASSERT_TRUE(d.form.Rechnen()) << code;
    const logp_H::Ergebnis& e = d.form.ergebnis();
    EXPECT_EQ(e.Art, Schaltung::zweistufig);
    EXPECT_EQ(e.p_m, 5);
    EXPECT_EQ(e.t_d, 75);
    EXPECT_NEAR(d.form.punkte().finde("high stage inlet")->t, 8, 1e-12);
  }
}

TEST(RealLogp, AnInjectionIsTwoStagesWithVapourThatMixes) {
  Zweistufig d(VerbCapt::Zweistufig_Einspritzung);
  d.gerechnet();
  ASSERT_TRUE(d.uebernommen());
  EXPECT_EQ(d.kern.Funktion.Sensor_Code[1], F_Einspritzung);
  EXPECT_EQ(d.form.Zweistufig, 1);
  ASSERT_TRUE(d.form.Rechnen());
  EXPECT_EQ(d.form.punkte().finde("tank vapour")->t, 8);
  EXPECT_GT(d.form.punkte().finde("high stage inlet")->t, 8);
}

TEST(RealLogp, OtherFunctionsOfTheUnitAreNoStages) {
  for (const VerbCapt funktion : {VerbCapt::Verdichter, VerbCapt::Economiser}) {
    Gemessen d;
    d.einheit(1, funktion);
    d.gerechnet({{41, "4"}, {36, "8"}, {31, "33"}});
    ASSERT_TRUE(d.uebernommen());
    EXPECT_EQ(d.form.Zweistufig, 0);
    EXPECT_TRUE(ist_leer(d.form.p_m));
  }
}

TEST(RealLogp, TheSecondPressureOfTheUnitWinsElseTheFirst) {
  Zweistufig d(VerbCapt::Zweistufig_Booster);
  d.gerechnet({{39, "4.4"}});
  ASSERT_TRUE(d.uebernommen());
  EXPECT_DOUBLE_EQ(d.form.p_m, 5);
  d.setze({{41, "0.2"}});
  ASSERT_TRUE(d.uebernommen());
  EXPECT_DOUBLE_EQ(d.form.p_m, 5.4);
  d.setze({{39, "0.2"}});
  ASSERT_TRUE(d.uebernommen());
  EXPECT_TRUE(ist_leer(d.form.p_m)) << "below its limit there is none";
  ASSERT_TRUE(d.form.Rechnen());
  EXPECT_NEAR(d.form.ergebnis().p_m, std::pow(1.613 * 16.013, 0.45), 1e-9);
}

TEST(RealLogp, AnUnmeasuredInletOfTheHighStageIsTheMixtures) {
  Zweistufig d(VerbCapt::Zweistufig_Booster);
  d.gerechnet();
  d.setze({{36, "  -"}});
  ASSERT_TRUE(d.uebernommen());
  EXPECT_TRUE(ist_leer(d.form.t_s2));
}

TEST(RealLogp, ARowForgetsTheStagesOfTheOneBefore) {
  Zweistufig zwei(VerbCapt::Zweistufig_Booster);
  zwei.gerechnet();
  ASSERT_TRUE(zwei.uebernommen());
  zwei.kern.Funktion.Sensor_Code[1] = F_keine;
  ASSERT_TRUE(zwei.uebernommen());
  EXPECT_EQ(zwei.form.Zweistufig, 0);
  EXPECT_TRUE(ist_leer(zwei.form.p_m));
  EXPECT_TRUE(ist_leer(zwei.form.t_s2));
}

TEST(RealLogp, TheEconomiserIsTheMeasurements) {
  Gemessen d;
  d.messung.ECO_OPT = 3;
  d.gerechnet();
  ASSERT_TRUE(d.uebernommen());
  EXPECT_EQ(d.form.ECO_OPT, 3);
  ASSERT_TRUE(d.form.Rechnen());
  EXPECT_EQ(d.form.ergebnis().Art, Schaltung::Einspritzung);
}

// R744's table ends at 72.1369 bar.
TEST(RealLogp, AboveTheTablesPressuresR744IsJudgedByTheGasCoolersOutlet) {
  Gemessen d("R744");
  d.gerechnet({{2, "26"}, {4, "-4"}, {5, "2"}, {6, "88"}, {8, "110"}, {9, "35"}});
  ASSERT_TRUE(d.uebernommen());
  EXPECT_DOUBLE_EQ(d.form.pcF, 89.013);
  EXPECT_DOUBLE_EQ(d.form.P_hoch, 89.013);
  EXPECT_EQ(d.form.tcF, 35);
  EXPECT_EQ(d.form.dT_sc, 0);
  ASSERT_TRUE(d.form.Rechnen());
  EXPECT_TRUE(d.form.ergebnis().transkritisch);
  EXPECT_DOUBLE_EQ(d.form.ergebnis().pc, 89.013);
}

TEST(RealLogp, BelowThemItCondenses) {
  Gemessen d("R744");
  d.gerechnet({{2, "26"}, {4, "-4"}, {5, "2"}, {6, "56"}, {8, "80"}, {9, "16"}});
  ASSERT_TRUE(d.uebernommen());
  EXPECT_EQ(d.form.tcF, d.zahl(Spalte::tc));
  EXPECT_EQ(d.form.dT_sc, d.zahl(Spalte::dT_sc));
  ASSERT_TRUE(d.form.Rechnen());
  EXPECT_FALSE(d.form.ergebnis().transkritisch);
}
