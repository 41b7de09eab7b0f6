#include <cmath>

#include "logph_platz.h"

using namespace polarkreis;

namespace {

using Namen = std::vector<std::string>;

Namen bauteile(const LogphPlatz& p) {
  Namen namen;
  for (const Bilanz& b : p.form.bilanzen())
    if (b.Groesse != Bilanz::Art::Arbeit) namen.emplace_back(b.Bauteil);
  return namen;
}

constexpr const char* Modell = "evaporator, by the mass flow model";

/// Plants of every kind, from one refrigerant each.
enum class Art { einfach, Waermetauscher, Economiser, zweistufig, alles };

LogphPlatz* baue(LogphPlatz& p, Art art) {
  p.form.t_s = p.form.t0F + 14;
  if (art == Art::Waermetauscher || art == Art::alles) {
    p.form.Innen_WT = true;
    p.form.dT_liquid = 4;
  }
  if (art == Art::Economiser || art == Art::alles) p.form.ECO_OPT = 1;
  if (art == Art::zweistufig || art == Art::alles) p.form.Zweistufig = 1;
  p.form.p_Int_Scroll = 2;
  return &p;
}

constexpr Art alle_Arten[] = {Art::einfach, Art::Waermetauscher, Art::Economiser, Art::zweistufig,
                              Art::alles};
constexpr const char* Mittel[] = {"R134A", "R717", "R407C", "R448A", "R744"};

}  // namespace

TEST(LogphBilanzen, EachPlantHasThoseOfItsComponents) {
  LogphPlatz p;
  p.rechne();
  EXPECT_EQ(bauteile(p), (Namen{"evaporator", "whole plant", "compressor", Modell}));
  p.form.Innen_WT = true;
  p.rechne();
  EXPECT_EQ(bauteile(p),
            (Namen{"evaporator", "internal heat exchanger", "whole plant", "compressor", Modell}));
  p.form.Innen_WT = false;
  p.form.ECO_OPT = 1;
  p.rechne();
  EXPECT_EQ(bauteile(p),
            (Namen{"evaporator", "economiser", "whole plant", "compressor", Modell, "condenser"}));
  p.form.ECO_OPT = 0;
  p.form.Zweistufig = 1;
  p.rechne();
  EXPECT_EQ(bauteile(p), (Namen{"evaporator", "flash tank", "whole plant", "low stage", "mixing",
                                "high stage", Modell, "condenser"}));
}

TEST(LogphBilanzen, TheSimulationsTankHasOneOrTwoCompressors) {
  LogphPlatz p("R744", -10, 36);
  p.form.modul = "SIM_PRO";
  p.form.Zweistufig = 1;
  p.rechne();
  EXPECT_EQ(bauteile(p),
            (Namen{"evaporator", "flash tank", "whole plant", "compressor", Modell, "condenser"}));
  p.form.ParaL_Check = true;
  p.rechne();
  EXPECT_EQ(bauteile(p), (Namen{"evaporator", "flash tank", "whole plant", "main compressor",
                                "flash gas compressor", Modell, "condenser"}));
}

TEST(LogphBilanzen, TheEvaporatorsAlwaysCloses) {
  for (const char* mittel : Mittel)
    for (const Art art : alle_Arten) {
      LogphPlatz p(mittel, -25, mittel == std::string("R744") ? 20 : 40);
      baue(p, art)->rechne();
      const Bilanz b = p.bilanz("evaporator");
      EXPECT_EQ(b.zu, 10) << mittel;
      EXPECT_NEAR(b.ab, p.form.ergebnis().m * (p.form.hTF - p.punkt("evaporator inlet").h), 1e-9);
      EXPECT_TRUE(b.schliesst()) << mittel << " " << b.Rest();
    }
}

TEST(LogphBilanzen, TheCondensersMassIsTheSumOfWhatJoins) {
  for (const char* mittel : Mittel) {
    LogphPlatz p(mittel, -25, mittel == std::string("R744") ? 20 : 40);
    const logp_H::Ergebnis& e = baue(p, Art::zweistufig)->rechne();
    const Bilanz b = p.bilanz("condenser");
    EXPECT_EQ(b.Groesse, Bilanz::Art::Masse);
    EXPECT_EQ(b.zu, e.m + e.m_zu);
    EXPECT_EQ(b.ab, e.m_hoch);
    EXPECT_TRUE(b.schliesst());
  }
}

TEST(LogphBilanzen, ATanksClosesByItsPoints) {
  for (const char* mittel : Mittel) {
    LogphPlatz p(mittel, -25, mittel == std::string("R744") ? 20 : 40);
    const logp_H::Ergebnis& e = baue(p, Art::zweistufig)->rechne();
    const Bilanz b = p.bilanz("flash tank");
    EXPECT_NEAR(b.zu, e.m_hoch * p.punkt("tank inlet").h, 1e-9) << mittel;
    EXPECT_NEAR(b.ab, e.m * p.punkt("tank liquid").h + e.m_zu * p.punkt("tank vapour").h, 1e-9);
    EXPECT_TRUE(b.schliesst()) << mittel << " " << b.Rest();
  }
}

TEST(LogphBilanzen, AHeatExchangersClosesWhereOneFlowPassesBothSides) {
  for (const char* mittel : Mittel) {
    LogphPlatz p(mittel, -25, mittel == std::string("R744") ? 20 : 40);
    const logp_H::Ergebnis& e = baue(p, Art::Waermetauscher)->rechne();
    const Bilanz b = p.bilanz("internal heat exchanger");
    const double h_davor = p.punkt("condenser outlet").h;
    EXPECT_NEAR(b.zu, e.m * (h_davor - p.punkt("internal heat exchanger outlet").h), 1e-9);
    EXPECT_TRUE(b.schliesst()) << mittel << " " << b.Rest();
  }
}

// Liquid of both flows against vapour of one.
TEST(LogphBilanzen, InFrontOfATankItDoesnt) {
  LogphPlatz p("R134A", -25, 40);
  const logp_H::Ergebnis& e = baue(p, Art::zweistufig)->rechne();
  p.form.Innen_WT = true;
  p.form.dT_liquid = 4;
  p.rechne();
  const Bilanz b = p.bilanz("internal heat exchanger");
  EXPECT_FALSE(b.schliesst());
  EXPECT_NEAR(b.zu / b.ab, e.m_hoch / e.m, 0.01);
}

TEST(LogphBilanzen, TheModelsFlowAgreesWithoutStages) {
  for (const char* mittel : Mittel) {
    LogphPlatz p(mittel, -25, mittel == std::string("R744") ? 20 : 40);
    baue(p, Art::einfach)->rechne();
    EXPECT_TRUE(p.bilanz(Modell).schliesst()) << mittel;
    LogphPlatz gestuft(mittel, -25, mittel == std::string("R744") ? 20 : 40);
    baue(gestuft, Art::zweistufig)->rechne();
    EXPECT_FALSE(gestuft.bilanz(Modell).schliesst()) << mittel;
    EXPECT_EQ(gestuft.bilanz(Modell).zu, gestuft.form.ergebnis().m_Modell);
  }
}

// What the whole plant lacks is what its components lack, the steps inside it counted once each. An
// economiser's one compressor works with a flow that stands for two.
TEST(LogphBilanzen, ThePlantsRestIsTheSumOfItsComponents) {
  for (const char* mittel : Mittel)
    for (const Art art : alle_Arten) {
      if (art == Art::Economiser) continue;
      LogphPlatz p(mittel, -25, mittel == std::string("R744") ? 20 : 40);
      const logp_H::Ergebnis& e = baue(p, art)->rechne();
      double rest = 0;
      for (const Bilanz& b : p.form.bilanzen())
        if (b.Groesse == Bilanz::Art::Energie && b.Bauteil != "whole plant") rest += b.Rest();
      const Zustandspunkt ein = p.punkt("compressor inlet");
      // Suction line: behind the evaporator, the heat exchanger and what the line takes up.
      double h_Saug = p.form.hTF + e.Q_SL / e.m;
      if (p.form.Innen_WT) h_Saug += p.bilanz("internal heat exchanger").ab / e.m;
      EXPECT_NEAR(ein.h, h_Saug, 0.005 * h_Saug) << mittel;
      EXPECT_NEAR(p.bilanz("whole plant").Rest(), rest + e.m * (h_Saug - ein.h),
                  1e-9 * p.bilanz("whole plant").zu)
          << mittel << " " << static_cast<int>(art);
    }
}

TEST(LogphBilanzen, AnEconomisersPlantClosesNearly) {
  for (const char* mittel : {"R134A", "R717", "R407C", "R448A"}) {
    LogphPlatz p(mittel, -25, 40);
    baue(p, Art::Economiser)->rechne();
    const Bilanz b = p.bilanz("whole plant");
    EXPECT_NEAR(b.Rest(), 0, 0.03 * b.zu) << mittel;
  }
}

// 2.00603 bar over 9.67 kg/m3 at the inlet; the exponent is the record's.
TEST(LogphBilanzen, PowersAreComparedWithALossFreeCompression) {
  LogphPlatz p;
  const logp_H::Ergebnis& e = p.rechne();
  const double n = p.z.kappa / (p.z.kappa - 1);
  const double w = n * (2.00603 * 100 / p.punkt("compressor inlet").rho) *
                   (std::pow(10.1659 / 2.00603, 1 / n) - 1);
  EXPECT_NEAR(e.P_ideal_1, e.m * w, 1e-9);
  EXPECT_LT(e.P_ideal_1, e.P);
  EXPECT_GT(e.P_ideal_1, 0.7 * e.P);
  const Bilanz b = p.arbeit("compressor");
  EXPECT_EQ(b.zu, e.P_1);
  EXPECT_EQ(b.ab, e.P_ideal_1);
  EXPECT_TRUE(b.schliesst());
}

// The fitted discharge temperature is none for a stage's small pressure difference.
TEST(LogphBilanzen, AStageThatNeedsLessThanTheIdealIsTold) {
  LogphPlatz p("R404A", -35, 40);
  p.form.Zweistufig = 1;
  p.form.p_Int_Scroll = 4;
  const logp_H::Ergebnis& e = p.rechne();
  EXPECT_EQ(p.arbeit("low stage").ab, e.P_ideal_1);
  EXPECT_EQ(p.arbeit("high stage").ab, e.P_ideal_2);
  EXPECT_TRUE(p.arbeit("low stage").schliesst());
  EXPECT_FALSE(p.arbeit("high stage").schliesst());
}

TEST(LogphBilanzen, ThePlantTakesCoolingPowerAndTheSuctionLinesHeat) {
  LogphPlatz p;
  p.form.t_s = 8;
  const logp_H::Ergebnis& e = p.rechne();
  const Bilanz b = p.bilanz("whole plant");
  EXPECT_EQ(b.zu, 10 + e.Q_SL + e.P);
  EXPECT_EQ(b.ab, e.Qc);
  EXPECT_NEAR(b.Rest(), p.bilanz("compressor").Rest(), 1e-12);
}

// The power goes by the machine's size, the point of the diagram by 10 kW.
TEST(LogphBilanzen, ACompressorLacksWhatItsSizeChanges) {
  LogphPlatz p;
  const logp_H::Ergebnis& e = p.rechne();
  const Bilanz b = p.bilanz("compressor");
  EXPECT_EQ(b.zu, e.P);
  EXPECT_NEAR(b.ab, e.m * (e.h_d - p.punkt("compressor inlet").h), 1e-9);
  EXPECT_FALSE(b.schliesst());
  EXPECT_LT(std::abs(b.Rest()), 0.02 * e.P);
}

TEST(LogphBilanzen, ClosingMeansToTheLastDigits) {
  using B = Bilanz;
  EXPECT_TRUE((B{"x", B::Art::Energie, 10, 10}).schliesst());
  EXPECT_TRUE((B{"x", B::Art::Energie, 10, 10 + 5e-9}).schliesst());
  EXPECT_FALSE((B{"x", B::Art::Energie, 10, 10 + 5e-8}).schliesst());
  EXPECT_TRUE((B{"x", B::Art::Masse, 0, 0}).schliesst());
  EXPECT_EQ((B{"x", B::Art::Masse, 3, 1}).Rest(), 2);
}
