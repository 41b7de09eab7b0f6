#include "diagnostics/diagramm.h"

#include <cmath>

#include "messreihe.h"

using namespace polarkreis;

namespace {

class Diagramme : public ::testing::Test, public Messreihe {
 protected:
  DiaG_Dia dia{messung, captions};

  void waehle(Diagrammwahl wahl) {
    dia.Combo8 = Combo8_Liste(captions)[static_cast<std::size_t>(wahl)];
  }
  /// Five rows, 10 s apart, with the row's number less 2 as low pressure.
  void fuenf_zeilen() {
    uhrzeiten({"08:00:00", "08:00:10", "08:00:20", "08:00:30", "08:00:40"});
    spalte(2, {"1", "2", "3", "4", "5"});
  }
  std::vector<double> werte(std::size_t reihe) const {
    std::vector<double> alle;
    for (const Diagrammpunkt& p : dia.bild.reihen[reihe].punkte) alle.push_back(p.wert);
    return alle;
  }
  std::vector<double> sekunden() const {
    std::vector<double> alle;
    for (const Diagrammpunkt& p : dia.bild.reihen[0].punkte) alle.push_back(p.s);
    return alle;
  }
  std::vector<std::string> namen() const {
    std::vector<std::string> alle;
    for (const Diagrammreihe& r : dia.bild.reihen) alle.push_back(r.Name + " " + r.Einheit);
    return alle;
  }
  std::vector<std::string> achsen() const {
    std::vector<std::string> alle;
    for (const Diagrammachse& a : dia.bild.achsen) alle.push_back(a.Name + " " + a.Einheit);
    return alle;
  }
  void zoom(const char* von, const char* bis) {
    dia.min_point = von;
    dia.min_point_KeyPress(13);
    dia.max_point = bis;
    dia.max_point_KeyPress(13);
    dia.Zoom_DiaG();
  }
};
using Zahlen = std::vector<double>;
using Texte = std::vector<std::string>;

}  // namespace

TEST_F(Diagramme, ListOfEntries) {
  EXPECT_EQ(Combo8_Liste(captions),
            (Texte{"Evaporating pressure / Condensing pressure",
                   "Evaporating temperature / Condensing temperature", "Refrigerating capacity",
                   " Orbiter 1 Temperature", "Electrical power", "Orbiter 1-5 Electrical power",
                   "Orbiter 1 Elektrische Daten", "Orbiter 2 Elektrische Daten"}));
}

TEST_F(Diagramme, EntryIsFoundByItsText) {
  const auto liste = Combo8_Liste(captions);
  for (std::size_t k = 0; k < liste.size(); ++k)
    EXPECT_EQ(Combo8_Wahl(liste[k], captions), static_cast<Diagrammwahl>(k));
  EXPECT_EQ(Combo8_Wahl("orbiter 1 temperature ", captions), Diagrammwahl::Orbiter_1_Temperatur);
  EXPECT_EQ(Combo8_Wahl("", captions), Diagrammwahl::Druckpaar);
  EXPECT_EQ(Combo8_Wahl("something else", captions), Diagrammwahl::Druckpaar);
}

TEST_F(Diagramme, PressurePairOverRealTime) {
  uhrzeiten({"23:59:50", "00:00:00", "00:00:10"});
  spalte(2, {"1.5", "1,75", "2"});
  spalte(6, {"12", "13", "14"});
  messung.skala.p_max = 16;
  dia.Chart_Darstell();
  EXPECT_EQ(dia.bild.Titel, "Evaporating pressure / Condensing pressure");
  EXPECT_EQ(namen(), (Texte{"Evaporating pressure bar g", "Condensing pressure bar g"}));
  EXPECT_EQ(achsen(), (Texte{"Pressure bar g"}));
  EXPECT_EQ(sekunden(), (Zahlen{86390, 86400, 86410}));
  EXPECT_EQ(werte(0), (Zahlen{1.5, 1.75, 2}));
  EXPECT_EQ(werte(1), (Zahlen{12, 13, 14}));
  EXPECT_EQ(dia.bild.reihen[0].farbe, Farbrolle::kalt);
  EXPECT_EQ(dia.bild.reihen[1].farbe, Farbrolle::heiss);
  EXPECT_EQ(dia.bild.reihen[1].punkte[2].zeile, 5);
  // 0 to 16 - 1.013 = 14.987 in steps of 2
  EXPECT_EQ(dia.bild.achsen[0].bereich.unten, 0);
  EXPECT_EQ(dia.bild.achsen[0].bereich.oben, 16);
}

TEST_F(Diagramme, NewestOnTopIsDrawnInTimeOrder) {
  uhrzeiten({"08:00:20", "08:00:10", "08:00:00"});
  spalte(2, {"3", "2", "1"});
  dia.Chart_Darstell();
  EXPECT_EQ(sekunden(), (Zahlen{28800, 28810, 28820}));
  EXPECT_EQ(werte(0), (Zahlen{1, 2, 3}));
  EXPECT_EQ(dia.bild.reihen[0].punkte[0].zeile, 5);
}

TEST_F(Diagramme, MissingMeasurementIsAGapAndNoughtIsNone) {
  fuenf_zeilen();
  spalte(6, {"10", "  -", "", "0", "-0.5"});
  dia.Chart_Darstell();
  const Zahlen pc = werte(1);
  ASSERT_EQ(pc.size(), 5U);
  EXPECT_EQ(pc[0], 10);
  EXPECT_TRUE(std::isnan(pc[1]));
  EXPECT_TRUE(std::isnan(pc[2]));
  EXPECT_EQ(pc[3], 0);
  EXPECT_EQ(pc[4], -0.5);
  EXPECT_LE(dia.bild.achsen[0].bereich.unten, -0.5);
}

TEST_F(Diagramme, TemperaturePairStandsBetweenTheScaleValues) {
  fuenf_zeilen();
  spalte(3, {"-10", "-11", "-12", "-11", "-10"});
  spalte(7, {"40", "41", "42", "41", "40"});
  messung.skala.t0_min = -18;
  messung.skala.tc_max = 47;
  waehle(Diagrammwahl::Temperaturpaar);
  dia.Chart_Darstell();
  EXPECT_EQ(namen(), (Texte{"Evaporating temperature °C", "Condensing temperature °C"}));
  // a span of 65 in steps of 10
  EXPECT_EQ(dia.bild.achsen[0].bereich.unten, -20);
  EXPECT_EQ(dia.bild.achsen[0].bereich.oben, 50);
}

TEST_F(Diagramme, CapacitiesWithTheirEERonAnAxisOfItsOwn) {
  fuenf_zeilen();
  spalte(144, {"30", "31", "32", "33", "34"});
  spalte(146, {"29", "29", "29", "29", "29"});
  spalte(147, {"40", "41", " - - - ", "43", "44"});
  spalte(148, {"39", "39", "39", "39", "39"});
  spalte(141, {"2.5", "2.6", "2.7", "2.8", "2.9"});
  messung.skala.Q_max = 34;
  messung.skala.EER_max = 2.9;
  waehle(Diagrammwahl::Leistung);
  dia.Chart_Darstell();
  EXPECT_EQ(namen(), (Texte{"Refrigerating capacity Qo *COP* kW",
                            "Refrigerating capacity Qo*dt* kW", "Condenser capacity Qc *COP* kW",
                            "Secondary side of the condenser kW", "EER -"}));
  EXPECT_EQ(achsen(), (Texte{"Power kW", "Coefficient of performance -"}));
  EXPECT_EQ(dia.bild.reihen[3].achse, 0U);
  EXPECT_EQ(dia.bild.reihen[4].achse, 1U);
  EXPECT_EQ(werte(4), (Zahlen{2.5, 2.6, 2.7, 2.8, 2.9}));
  EXPECT_TRUE(std::isnan(werte(2)[2]));
  // the condenser's 44 lies above the scale value; 0 to 44 in steps of 5
  EXPECT_EQ(dia.bild.achsen[0].bereich.oben, 45);
  EXPECT_EQ(dia.bild.achsen[1].bereich.oben, 3);
}

TEST_F(Diagramme, TemperaturesOfTheFirstUnit) {
  fuenf_zeilen();
  spalte(31, {"20", "21", "22", "23", "24"});
  spalte(36, {"5", "5", "5", "5", "5"});
  spalte(42, {"-3", "-3", "-3", "-3", "-3"});
  waehle(Diagrammwahl::Orbiter_1_Temperatur);
  dia.Chart_Darstell();
  EXPECT_EQ(namen(), (Texte{"t liq. °C", "t in1 °C", "t in2 °C", "t out3 °C", "t out4 °C",
                            "t Exp. °C", "t P1 °C", "t P2 °C"}));
  EXPECT_EQ(werte(0), (Zahlen{20, 21, 22, 23, 24}));
  EXPECT_EQ(werte(5), Zahlen(5, 5));
  EXPECT_EQ(werte(7), Zahlen(5, -3));
  EXPECT_TRUE(std::isnan(werte(1)[0]));
}

TEST_F(Diagramme, ElectricalPower) {
  fuenf_zeilen();
  spalte(12, {"12", "12.5", "13", "12", "0"});
  spalte(140, {"1.5", "1.5", "1.5", "1.5", "1.5"});
  waehle(Diagrammwahl::Elektrische_Leistung);
  dia.Chart_Darstell();
  EXPECT_EQ(namen(), (Texte{"Electrical power kW", "Rest of the plant kW"}));
  EXPECT_EQ(werte(0), (Zahlen{12, 12.5, 13, 12, 0}));
  EXPECT_EQ(werte(1), Zahlen(5, 1.5));
}

// Unit 1: 1 + 2 + 3; unit 2: its only measured phase; unit 3: 230 V * 2 A and 225 V * 4 A.
TEST_F(Diagramme, PowerOfAllUnitsIsTheSumOfTheirPhases) {
  uhrzeiten({"08:00:00"});
  for (int phase = 0; phase < 3; ++phase)
    messung.DiaSpread.setze(3, 132 + phase, std::to_string(phase + 1));
  messung.DiaSpread.setze(3, 136, "0.5");
  messung.DiaSpread.setze(3, 83, "230");
  messung.DiaSpread.setze(3, 86, "2");
  messung.DiaSpread.setze(3, 84, "225");
  messung.DiaSpread.setze(3, 87, "4");
  messung.DiaSpread.setze(3, 85, "230");
  waehle(Diagrammwahl::Orbiter_1_bis_5);
  dia.Chart_Darstell();
  EXPECT_EQ(namen(), (Texte{"Orbiter 1 kW", "Orbiter 2 kW", "Orbiter 3 kW", "Orbiter 4 kW",
                            "Orbiter 5 kW"}));
  EXPECT_EQ(werte(0), (Zahlen{6}));
  EXPECT_EQ(werte(1), (Zahlen{0.5}));
  EXPECT_DOUBLE_EQ(werte(2)[0], 0.46 + 0.9);
  EXPECT_TRUE(std::isnan(werte(3)[0]));
  EXPECT_TRUE(std::isnan(werte(4)[0]));
}

TEST_F(Diagramme, ElectricalDataOfOneUnit) {
  uhrzeiten({"08:00:00"});
  for (int k = 0; k < 6; ++k) messung.DiaSpread.setze(3, 63 + k, std::to_string(100 + k));
  for (int k = 0; k < 6; ++k) messung.DiaSpread.setze(3, 132 + k, std::to_string(k));
  waehle(Diagrammwahl::Orbiter_2_elektrisch);
  dia.Chart_Darstell();
  EXPECT_EQ(namen(), (Texte{"Spannung L1 V", "Spannung L2 V", "Spannung L3 V", "Stromstärke L1 A",
                            "Stromstärke L2 A", "Stromstärke L3 A", "Orbiter 2 L1 kW",
                            "Orbiter 2 L2 kW", "Orbiter 2 L3 kW"}));
  EXPECT_EQ(achsen(), (Texte{"Spannung V", "Stromstärke A", "Power kW"}));
  EXPECT_EQ(werte(0), (Zahlen{100}));
  EXPECT_EQ(werte(5), (Zahlen{105}));
  EXPECT_EQ(werte(6), (Zahlen{3}));
  EXPECT_EQ(dia.bild.reihen[8].achse, 2U);
  waehle(Diagrammwahl::Orbiter_1_elektrisch);
  dia.Chart_Darstell();
  EXPECT_TRUE(std::isnan(werte(0)[0]));  // columns 43 to 48 are empty
  EXPECT_EQ(werte(7), (Zahlen{1}));
}

TEST_F(Diagramme, LastPoints) {
  fuenf_zeilen();
  dia.Real_time_DiaG(2);
  EXPECT_EQ(werte(0), (Zahlen{4, 5}));
  dia.Real_time_DiaG(50);
  EXPECT_EQ(werte(0), (Zahlen{1, 2, 3, 4, 5}));
  dia.Real_time_DiaG(0);
  EXPECT_EQ(werte(0), (Zahlen{5}));
  dia.Real_time_DiaG(-7);
  EXPECT_EQ(werte(0), (Zahlen{5}));
}

TEST_F(Diagramme, LastPointsUpToARow) {
  fuenf_zeilen();
  dia.Real_time_DiaG(2, 5);
  EXPECT_EQ(werte(0), (Zahlen{2, 3}));
  dia.Real_time_DiaG(2, 99);  // no such row
  EXPECT_EQ(werte(0), (Zahlen{4, 5}));
}

TEST_F(Diagramme, LastPointsOfALiveRunAreTheTopRows) {
  uhrzeiten({"08:00:20", "08:00:10", "08:00:00"});
  spalte(2, {"3", "2", "1"});
  dia.Real_time_DiaG(2);
  EXPECT_EQ(werte(0), (Zahlen{2, 3}));
  dia.Real_time_DiaG(2, 4);
  EXPECT_EQ(werte(0), (Zahlen{1, 2}));
}

TEST_F(Diagramme, ZoomShowsTheRowsBetweenItsBounds) {
  fuenf_zeilen();
  zoom("2", "4");
  EXPECT_EQ(werte(0), (Zahlen{2, 3, 4}));
}

TEST_F(Diagramme, SwappedBoundsChangePlaces) {
  fuenf_zeilen();
  zoom("4", "2");
  EXPECT_EQ(werte(0), (Zahlen{2, 3, 4}));
  EXPECT_EQ(dia.min_point, "2");
  EXPECT_EQ(dia.max_point, "4");
}

TEST_F(Diagramme, BoundsOutsideMoveToTheEnds) {
  fuenf_zeilen();
  zoom("-3", "99");
  EXPECT_EQ(werte(0), (Zahlen{1, 2, 3, 4, 5}));
  EXPECT_EQ(dia.min_point, "1");
  EXPECT_EQ(dia.max_point, "5");
  zoom("77", "1E30");
  EXPECT_EQ(werte(0), (Zahlen{5}));
  zoom("3", "0");
  EXPECT_EQ(werte(0), (Zahlen{1, 2, 3}));
}

TEST_F(Diagramme, BoundThatIsNoNumberIsTheEnd) {
  fuenf_zeilen();
  zoom("", "2");
  EXPECT_EQ(werte(0), (Zahlen{1, 2}));
  zoom("4", "abc");
  EXPECT_EQ(werte(0), (Zahlen{4, 5}));
}

TEST_F(Diagramme, BoundsAreWholeNumbers) {
  fuenf_zeilen();
  zoom("2.9", "3,7");
  EXPECT_EQ(werte(0), (Zahlen{2, 3}));
}

TEST_F(Diagramme, OnlyTheEnterKeyTakesABound) {
  fuenf_zeilen();
  dia.min_point = "3";
  dia.min_point_KeyPress(9);
  dia.max_point = "4";
  dia.max_point_KeyPress(10);
  dia.Zoom_DiaG();
  EXPECT_EQ(werte(0), (Zahlen{1, 2, 3, 4, 5}));
}

TEST_F(Diagramme, WholeChartComesBackAfterAZoom) {
  fuenf_zeilen();
  zoom("2", "3");
  dia.Chart_Darstell();
  EXPECT_EQ(werte(0).size(), 5U);
}

TEST_F(Diagramme, EmptyMeasurementHasAxesAndNoPoints) {
  for (int k = 0; k < 8; ++k) {
    waehle(static_cast<Diagrammwahl>(k));
    messung.skala = {};
    dia.Chart_Darstell();
    for (const Diagrammreihe& r : dia.bild.reihen) EXPECT_TRUE(r.punkte.empty());
    for (const Diagrammachse& a : dia.bild.achsen) {
      EXPECT_LT(a.bereich.unten, a.bereich.oben) << k;
    }
    zoom("1", "5");
    dia.Real_time_DiaG(50);
  }
}

TEST(Achse, NeatBounds) {
  const auto glatt = [](double unten, double oben) { return geglaettet({unten, oben}); };
  EXPECT_EQ(glatt(0, 14.9).oben, 16);    // steps of 2
  EXPECT_EQ(glatt(-31, 47).unten, -40);  // steps of 10
  EXPECT_EQ(glatt(-31, 47).oben, 50);
  EXPECT_EQ(glatt(0, 250).oben, 250);                  // steps of 50
  EXPECT_DOUBLE_EQ(glatt(0.012, 0.026).unten, 0.012);  // steps of 0.002
  EXPECT_DOUBLE_EQ(glatt(0.012, 0.0265).oben, 0.028);
}

TEST(Achse, HasAlwaysAnExtent) {
  EXPECT_EQ(geglaettet({}).unten, 0);
  EXPECT_EQ(geglaettet({}).oben, 1);
  EXPECT_EQ(geglaettet({20, 20}).unten, 18);  // steps of 2, as for a span of 20
  EXPECT_EQ(geglaettet({20, 20}).oben, 22);
  EXPECT_LT(geglaettet({0, 0}).unten, geglaettet({0, 0}).oben);
  for (const Achsbereich b : {Achsbereich{-1e308, 1e308}, Achsbereich{0, 5e-324}}) {
    EXPECT_LE(geglaettet(b).unten, b.unten);
    EXPECT_GE(geglaettet(b).oben, b.oben);
    EXPECT_LT(geglaettet(b).unten, geglaettet(b).oben);
  }
}

TEST(Achse, ScaleValuesThatWereNotSetBoundNothing) {
  const Skala anfang;
  EXPECT_TRUE(ist_leer(Skalenbereich(Groesse::Temperatur, anfang).unten));
  EXPECT_TRUE(ist_leer(Skalenbereich(Groesse::Druck, anfang).oben));
  EXPECT_TRUE(ist_leer(Skalenbereich(Groesse::Leistungszahl, anfang).oben));
  EXPECT_EQ(Skalenbereich(Groesse::Leistung, anfang).oben, 3);
  EXPECT_TRUE(ist_leer(Skalenbereich(Groesse::Strom, anfang).oben));
}
