#include <algorithm>
#include <cmath>
#include <optional>
#include <set>

#include "logph_platz.h"

using namespace polarkreis;

namespace {

using Namen = std::vector<std::string>;

/// What a refrigerant's table holds at a pressure, worked out without its searches.
struct Linienort {
  double t = leer, h = leer, rho = leer;
};

std::optional<Linienort> auf_Linie(Kaeltemittel& km, double p, bool tau) {
  const std::vector<SatZeile>& tafel = km.Tabellenzeilen();
  const auto druck = [&](const SatZeile& z) { return tau ? z.p_d : z.p_b; };
  for (std::size_t n = 1; n < tafel.size(); ++n) {
    const SatZeile &a = tafel[n - 1], &b = tafel[n];
    if (!(druck(a) < p && p <= druck(b))) continue;
    const double f = (p - druck(a)) / (druck(b) - druck(a));
    const auto bei = [&](double von, double bis) { return von + f * (bis - von); };
    return Linienort{bei(a.T, b.T) - 273.15, tau ? bei(a.h_v, b.h_v) : bei(a.h_l, b.h_l),
                     tau ? bei(a.rho_v, b.rho_v) : bei(a.rho_l, b.rho_l)};
  }
  return std::nullopt;
}

/// Every point lies where it says: on the line of the table, between the lines, or beyond them.
void pruefe_Lage(LogphPlatz& p, const std::string& was) {
  for (const Zustandspunkt& punkt : p.form.punkte().Punkte) {
    const std::string wo = was + ": " + std::string(punkt.Name);
    ASSERT_TRUE(std::isfinite(punkt.p) && std::isfinite(punkt.h)) << wo;
    if (punkt.Name == "vapour injection") continue;  // it is drawn, and has no temperature
    ASSERT_TRUE(std::isfinite(punkt.t)) << wo;
    const auto tau = auf_Linie(p.u.km, punkt.p, true), siede = auf_Linie(p.u.km, punkt.p, false);
    if (punkt.Ort == Lage::ueberkritisch) {
      EXPECT_FALSE(tau) << wo;
      continue;
    }
    ASSERT_TRUE(tau && siede) << wo;
    const bool auf = punkt.Ort == Lage::Taulinie || punkt.Ort == Lage::Siedelinie;
    const Linienort& ort = punkt.Ort == Lage::Siedelinie ? *siede : *tau;
    if (auf) {
      EXPECT_NEAR(punkt.t, ort.t, 1e-9) << wo;
      EXPECT_NEAR(punkt.h, ort.h, 1e-9) << wo;
      EXPECT_NEAR(punkt.rho, ort.rho, 1e-9) << wo;
    } else if (punkt.Ort == Lage::nass) {
      EXPECT_GT(punkt.h, siede->h) << wo;
      EXPECT_LT(punkt.h, tau->h) << wo;
      EXPECT_TRUE(punkt.t > siede->t - 1e-9 && punkt.t < tau->t + 1e-9) << wo;
    } else if (punkt.Ort == Lage::unterkuehlt) {
      EXPECT_LT(punkt.t, siede->t) << wo;
    } else {
      EXPECT_GT(punkt.t, tau->t) << wo;
    }
  }
}

/// The paths lead through points that are there; the main circuit closes, side ways end on it.
void pruefe_Wege(const LogphPlatz& p, const std::string& was) {
  const Zustandspunkte& s = p.form.punkte();
  ASSERT_FALSE(s.Wege.empty()) << was;
  std::set<std::size_t> besucht;
  for (const auto& weg : s.Wege) {
    ASSERT_GE(weg.size(), 3u) << was;
    for (const std::size_t n : weg) {
      ASSERT_LT(n, s.Punkte.size()) << was;
      besucht.insert(n);
    }
  }
  EXPECT_EQ(besucht.size(), s.Punkte.size()) << was << ": a point on no path";
  const auto& kreis = s.Wege.front();
  EXPECT_EQ(kreis.front(), kreis.back()) << was;
  EXPECT_EQ(std::set<std::size_t>(kreis.begin(), kreis.end()).size(), kreis.size() - 1) << was;
  for (std::size_t w = 1; w < s.Wege.size(); ++w)
    for (const std::size_t ende : {s.Wege[w].front(), s.Wege[w].back()})
      EXPECT_NE(std::ranges::find(kreis, ende), kreis.end()) << was;
}

/// A refrigerant with temperatures that suit it.
struct Fall {
  const char* mittel;
  double t0, tc;
};
constexpr Fall rein[] = {{"R134A", -10, 40}, {"R717", -30, 35}, {"R290", -20, 45},
                         {"R23", -80, -20},  {"R507", -35, 40}, {"R744", -35, 20}};
constexpr Fall Gemische[] = {{"R407C", -25, 40}, {"R448A", -30, 35}, {"R454C", -20, 45}};

}  // namespace

TEST(LogphPunkte, OneStageGoesOnceRound) {
  LogphPlatz p;
  p.rechne();
  EXPECT_EQ(p.punktnamen(), (Namen{"compressor inlet", "compressor outlet", "condensation begins",
                                   "condensation ends", "condenser outlet", "evaporator inlet",
                                   "evaporation ends", "evaporator outlet"}));
  Namen kreis = p.punktnamen();
  kreis.push_back("compressor inlet");
  ASSERT_EQ(p.form.punkte().Wege.size(), 1u);
  EXPECT_EQ(p.weg(0), kreis);
}

TEST(LogphPunkte, WhatAPlantHasntIsNoPoint) {
  LogphPlatz p;
  p.form.dT_sh = p.form.dT_sc = 0;
  p.rechne();
  EXPECT_EQ(p.punktnamen(), (Namen{"compressor inlet", "compressor outlet", "condensation begins",
                                   "condensation ends", "evaporator inlet", "evaporation ends"}));
}

TEST(LogphPunkte, LinesAndHeatExchangerAddTheirs) {
  LogphPlatz p;
  p.form.C = 2;
  p.form.dp_Fl = 200;
  p.form.Innen_WT = true;
  p.form.dT_liquid = 5;
  const logp_H::Ergebnis& e = p.rechne();
  EXPECT_EQ(p.punktnamen(), (Namen{"compressor inlet", "compressor outlet", "condenser inlet",
                                   "condensation begins", "condensation ends", "condenser outlet",
                                   "internal heat exchanger outlet", "expansion valve inlet",
                                   "evaporator inlet", "evaporation ends", "evaporator outlet"}));
  EXPECT_EQ(p.punkt("compressor inlet").p, e.p_s);
  EXPECT_EQ(p.punkt("compressor outlet").p, e.p_d);
  EXPECT_EQ(p.punkt("condenser inlet").p, e.pc);
  EXPECT_EQ(p.punkt("condenser inlet").h, p.punkt("compressor outlet").h);
  EXPECT_NEAR(p.punkt("expansion valve inlet").p, e.pc - 0.2, 1e-12);
  EXPECT_EQ(p.punkt("expansion valve inlet").h, p.punkt("evaporator inlet").h);
  EXPECT_EQ(p.punkt("evaporator inlet").p, e.p0);
}

TEST(LogphPunkte, TheEconomisersVapourHasAWayOfItsOwn) {
  LogphPlatz p;
  p.form.ECO_OPT = 1;
  p.rechne();
  ASSERT_EQ(p.form.punkte().Wege.size(), 2u);
  EXPECT_EQ(p.weg(0), (Namen{"compressor inlet", "vapour injection", "compressor outlet",
                             "condensation begins", "condensation ends", "condenser outlet",
                             "economiser outlet", "evaporator inlet", "evaporation ends",
                             "evaporator outlet", "compressor inlet"}));
  EXPECT_EQ(p.weg(1), (Namen{"condenser outlet", "economiser valve outlet", "economiser vapour",
                             "vapour injection"}));
}

TEST(LogphPunkte, TheTanksVapourJoinsBetweenTheStages) {
  LogphPlatz p;
  p.form.Zweistufig = 1;
  p.rechne();
  ASSERT_EQ(p.form.punkte().Wege.size(), 2u);
  EXPECT_EQ(p.weg(0), (Namen{"compressor inlet", "low stage outlet", "high stage inlet",
                             "compressor outlet", "condensation begins", "condensation ends",
                             "condenser outlet", "tank inlet", "tank liquid", "evaporator inlet",
                             "evaporation ends", "evaporator outlet", "compressor inlet"}));
  EXPECT_EQ(p.weg(1), (Namen{"tank inlet", "tank vapour", "high stage inlet"}));
}

TEST(LogphPunkte, FlashGasJoinsTheSuctionLineOrTheGasCooler) {
  LogphPlatz p("R744", -10, 35);
  p.form.modul = "SIM_PRO";
  p.form.Zweistufig = 1;
  p.rechne();
  ASSERT_EQ(p.form.punkte().Wege.size(), 2u);
  EXPECT_EQ(p.weg(0), (Namen{"compressor inlet", "compressor outlet", "gas cooler outlet",
                             "tank inlet", "tank liquid", "evaporator inlet", "evaporation ends",
                             "evaporator outlet", "suction line outlet", "compressor inlet"}));
  EXPECT_EQ(p.weg(1),
            (Namen{"tank inlet", "tank vapour", "flash gas throttled", "compressor inlet"}));
  p.form.ParaL_Check = true;
  p.rechne();
  ASSERT_EQ(p.form.punkte().Wege.size(), 2u);
  EXPECT_EQ(p.weg(0), (Namen{"compressor inlet", "compressor outlet", "gas cooler inlet",
                             "gas cooler outlet", "tank inlet", "tank liquid", "evaporator inlet",
                             "evaporation ends", "evaporator outlet", "compressor inlet"}));
  EXPECT_EQ(p.weg(1), (Namen{"tank inlet", "tank vapour", "flash gas compressor inlet",
                             "flash gas compressor outlet", "gas cooler inlet"}));
}

TEST(LogphPunkte, OneStageLiesWhereItSays) {
  for (const Fall& fall : rein) {
    LogphPlatz p(fall.mittel, fall.t0, fall.tc);
    p.form.C = 1;
    p.form.Innen_WT = true;
    p.form.dT_liquid = 4;
    p.rechne();
    pruefe_Lage(p, fall.mittel);
    pruefe_Wege(p, fall.mittel);
  }
}

TEST(LogphPunkte, ABlendLiesWhereItSays) {
  for (const Fall& fall : Gemische) {
    LogphPlatz p(fall.mittel, fall.t0, fall.tc);
    p.form.dp_Fl = 300;
    p.form.dT_sc = 6;
    p.rechne();
    pruefe_Lage(p, fall.mittel);
    pruefe_Wege(p, fall.mittel);
  }
}

TEST(LogphPunkte, TwoStagesLieWhereTheySay) {
  std::vector<Fall> faelle(std::begin(rein), std::end(rein));
  faelle.insert(faelle.end(), std::begin(Gemische), std::end(Gemische));
  for (const Fall& fall : faelle) {
    for (const int economiser : {0, 1}) {
      LogphPlatz p(fall.mittel, fall.t0, fall.tc);
      p.form.Zweistufig = 1 - economiser;
      p.form.ECO_OPT = economiser;
      p.form.p_Int_Scroll = 2;
      p.rechne();
      pruefe_Lage(p, fall.mittel + std::string(economiser == 0 ? " tank" : " economiser"));
      pruefe_Wege(p, fall.mittel);
    }
  }
}

TEST(LogphPunkte, TranscriticalPlantsLieWhereTheySay) {
  for (const char* modul : {"MonoF", "SIM_PRO", "2stage"})
    for (const int stufen : {0, 1})
      for (const bool eigener : {false, true}) {
        LogphPlatz p("R744", -10, 36);
        p.form.modul = modul;
        p.form.Zweistufig = stufen;
        p.form.ParaL_Check = eigener;
        p.form.P_hoch = 95;
        p.rechne();
        pruefe_Lage(p, std::string(modul) + (stufen == 1 ? " staged" : " one stage"));
        pruefe_Wege(p, modul);
      }
}

TEST(LogphPunkte, LevelsFollowThePressures) {
  LogphPlatz p;
  p.form.Zweistufig = 1;
  const logp_H::Ergebnis& e = p.rechne();
  for (const Zustandspunkt& punkt : p.form.punkte().Punkte) {
    const double p_Stufe = punkt.Stufe == Druckstufe::Niederdruck   ? e.p0
                           : punkt.Stufe == Druckstufe::Mitteldruck ? e.p_m
                                                                    : e.pc;
    EXPECT_EQ(punkt.p, p_Stufe) << punkt.Name;
  }
}

TEST(LogphPunkte, NamesOfLevelsAndLines) {
  EXPECT_EQ(Name_von(Druckstufe::Niederdruck), "low");
  EXPECT_EQ(Name_von(Druckstufe::Mitteldruck), "intermediate");
  EXPECT_EQ(Name_von(Druckstufe::Hochdruck), "high");
  EXPECT_EQ(Name_von(Lage::unterkuehlt), "subcooled liquid");
  EXPECT_EQ(Name_von(Lage::Siedelinie), "bubble line");
  EXPECT_EQ(Name_von(Lage::nass), "wet vapour");
  EXPECT_EQ(Name_von(Lage::Taulinie), "dew line");
  EXPECT_EQ(Name_von(Lage::ueberhitzt), "superheated vapour");
  EXPECT_EQ(Name_von(Lage::ueberkritisch), "supercritical");
}

TEST(LogphPunkte, AnUnknownNameFindsNothing) {
  LogphPlatz p;
  p.rechne();
  EXPECT_EQ(p.form.punkte().finde("reboiler"), nullptr);
}
