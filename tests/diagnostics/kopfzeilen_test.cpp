#include "diagnostics/kopfzeilen.h"

#include <gtest/gtest.h>

#include <map>

#include "diagnostics/messdatei_desk.h"

using namespace polarkreis;

namespace {

using Texte = std::map<int, std::string>;

struct ColStandard : testing::Test {
  MessdateiDesk desk;
  Messung& m = desk.m;

  void schreib(int kind, int unit, int Box_Typ = 0) {
    Col_Standard(m, desk.captions, kind, unit, Box_Typ);
  }
  /// What stands in the row, by column.
  Texte zeile(int nummer) const {
    Texte texte;
    for (int spalte = 0; spalte <= 170; ++spalte)
      if (!desk.zelle(nummer, spalte).empty()) texte[spalte] = desk.zelle(nummer, spalte);
    return texte;
  }
};

}  // namespace

TEST_F(ColStandard, UnitOneWritesTheBaseUnitOrbiterOneAndTheComputedColumns) {
  schreib(1, 1);
  EXPECT_EQ(zeile(1), (Texte{{1, "Time"},
                             {2, "Po Evaporating pressure /[bar]"},
                             {3, "Evaporating temperature /[°C]"},
                             {4, "t Exp. Expansion device /[°C]"},
                             {5, "t SL Suction line /[°C]"},
                             {6, "Pc Condensing pressure /[bar]"},
                             {7, "Condensing temperature /[°C]"},
                             {8, "t end Discharge gas temperature /[°C]"},
                             {9, "t liq. Liquid line /[°C]"},
                             {10, "Superheat /[K]"},
                             {11, "Subcooling /[K]"},
                             {12, "Electrical power /[kW]"},
                             {14, "Spannung L1 /[V]"},
                             {15, "Spannung L2 /[V]"},
                             {16, "Spannung L3 /[V]"},
                             {17, "Stromstärke L1 /[A]"},
                             {18, "Stromstärke L2 /[A]"},
                             {19, "Stromstärke L3 /[A]"},
                             {21, "Volume flow Evaporator /[m³/h]"},
                             {22, "t in1 Secondary side of the evaporator /[°C]"},
                             {23, "t out2 Secondary side of the evaporator /[°C]"},
                             {25, "Volume flow Condenser /[m³/h]"},
                             {26, "t in3 Secondary side of the condenser /[°C]"},
                             {27, "t out4 Secondary side of the condenser /[°C]"},
                             {31, "Orbiter 1 t liq. /[°C]"},
                             {32, "Orbiter 1 t in1 /[°C]"},
                             {33, "Orbiter 1 t in2 /[°C]"},
                             {34, "Orbiter 1 t out3 /[°C]"},
                             {35, "Orbiter 1 t out4 /[°C]"},
                             {36, "Orbiter 1 t Exp. /[°C]"},
                             {37, "Orbiter 1 inx7"},
                             {38, "Orbiter 1 inx8"},
                             {39, "Orbiter 1 P1 /[bar]"},
                             {40, "Orbiter 1 Temperature P1 /[°C]"},
                             {41, "Orbiter 1 P2 /[bar]"},
                             {42, "Orbiter 1 Temperature P2 /[°C]"},
                             {43, "Orbiter 1 Spannung L1 /[V]"},
                             {44, "Orbiter 1 Spannung L2 /[V]"},
                             {45, "Orbiter 1 Spannung L3 /[V]"},
                             {46, "Orbiter 1 Stromstärke L1 /[A]"},
                             {47, "Orbiter 1 Stromstärke L2 /[A]"},
                             {48, "Orbiter 1 Stromstärke L3 /[A]"},
                             {49, "Orbiter 1 Volume flow /[m³/h]"},
                             {132, " Orbiter 1 L1 /[kW]"},
                             {133, " Orbiter 1 L2 /[kW]"},
                             {134, " Orbiter 1 L3 /[kW]"},
                             {135, " Orbiter 2 L1 /[kW]"},
                             {136, " Orbiter 2 L2 /[kW]"},
                             {137, " Orbiter 2 L3 /[kW]"},
                             {138, "EER Gesamt Anlage /[-]"},
                             {139, "Mass flow /[kg/h]"},
                             {140, "Rest of the plant /[kW]"},
                             {141, "EER/COP Compressor Qo /[-]"},
                             {142, "EER/COP Compressor Qc /[-]"},
                             {143, "Efficiency /[%]"},
                             {144, " Qo *COP* /[kW]"},
                             {145, "Energy used /[kW]"},
                             {146, " Qo*dt* /[kW]"},
                             {147, " Qc *COP* /[kW]"},
                             {148, " Qc*dt* /[kW]"},
                             {152, "Orbiter 1 Pressure difference /[bar]"},
                             {153, "Orbiter 1 Hydraulic power /[kW]"},
                             {154, "Orbiter 1 Efficiency /[%]"}}));
  EXPECT_EQ(zeile(2),
            (Texte{{2, "- 1.9 -"},   {4, "- 1.2 -"},   {5, "- 1.3 -"},   {6, "- 1.10 -"},
                   {8, "- 1.4 -"},   {9, "- 1.1 -"},   {14, "- 1.11 -"}, {15, "- 1.12 -"},
                   {16, "- 1.13 -"}, {17, "- 1.14 -"}, {18, "- 1.15 -"}, {19, "- 1.16 -"},
                   {22, "- 1.5 -"},  {23, "- 1.6 -"},  {26, "- 1.7 -"},  {27, "- 1.8 -"},
                   {31, "- 2.1 -"},  {32, "- 2.2 -"},  {33, "- 2.3 -"},  {34, "- 2.4 -"},
                   {35, "- 2.5 -"},  {36, "- 2.6 -"},  {37, "- 2.7 -"},  {38, "- 2.8 -"},
                   {39, "- 2.9 -"},  {41, "- 2.10 -"}, {43, "- 2.11 -"}, {44, "- 2.12 -"},
                   {45, "- 2.13 -"}, {46, "- 2.14 -"}, {47, "- 2.15 -"}, {48, "- 2.16 -"}}));
}

TEST_F(ColStandard, UnitTwoWritesOrbiterTwoAndSparesTheSink) {
  schreib(1, 2);
  const Texte texte = zeile(1), punkte = zeile(2);
  EXPECT_EQ(texte.size(), 18U + 3U);
  EXPECT_EQ(texte.begin()->first, 51);
  EXPECT_EQ(texte.at(51), "Orbiter 2 t liq. /[°C]");
  EXPECT_EQ(texte.at(65), "Orbiter 2 Spannung L3 /[V]");
  EXPECT_EQ(texte.at(68), "Orbiter 2 Stromstärke L3 /[A]");
  EXPECT_EQ(texte.count(67), 0U);
  EXPECT_EQ(texte.at(157), "Orbiter 2 Pressure difference /[bar]");
  // Points 13 to 15 land in columns 17 to 19, which belong to the base unit.
  EXPECT_EQ(punkte, (Texte{{51, "- 3.1 -"},
                           {52, "- 3.2 -"},
                           {53, "- 3.3 -"},
                           {54, "- 3.4 -"},
                           {55, "- 3.5 -"},
                           {56, "- 3.6 -"},
                           {57, "- 3.7 -"},
                           {58, "- 3.8 -"},
                           {59, "- 3.9 -"},
                           {61, "- 3.10 -"},
                           {63, "- 3.11 -"},
                           {64, "- 3.12 -"},
                           {68, "- 3.16 -"}}));
}

TEST_F(ColStandard, FurtherUnitsFollowByTwentyColumns) {
  for (int unit : {3, 4, 5}) schreib(1, unit);
  EXPECT_EQ(desk.zelle(1, 71), "Orbiter 3 t liq. /[°C]");
  EXPECT_EQ(desk.zelle(2, 79), "- 4.9 -");
  EXPECT_EQ(desk.zelle(1, 108), "Orbiter 4 Stromstärke L3 /[A]");
  EXPECT_EQ(desk.zelle(1, 128), "Orbiter 5 Stromstärke L3 /[A]");
  EXPECT_EQ(desk.zelle(1, 129), "Orbiter 5 Volume flow /[m³/h]");
  EXPECT_EQ(desk.zelle(1, 169), "Orbiter 4 Efficiency /[%]");
  for (int spalte = 130; spalte <= 161; ++spalte) EXPECT_EQ(desk.zelle(1, spalte), "") << spalte;
}

TEST_F(ColStandard, OtherUnitsWriteNothing) {
  for (int unit : {-1, 0, 6, 99}) schreib(1, unit);
  EXPECT_TRUE(zeile(1).empty());
}

TEST_F(ColStandard, MonitoringBoxHasThreeInputsElsewhere) {
  schreib(2, 1, 1);
  EXPECT_EQ(desk.zelle(2, 36), "- 1.5 -");
  EXPECT_EQ(desk.zelle(2, 25), "- 1.6 -");
  EXPECT_EQ(desk.zelle(2, 72), "- 2.6 -");
  EXPECT_EQ(desk.zelle(1, 36), "t in1 Secondary side of the evaporator /[°C]");
  EXPECT_EQ(desk.zelle(1, 25), "t out2 Secondary side of the evaporator /[°C]");
  EXPECT_EQ(desk.zelle(1, 72), "Orbiter 1 t Exp. /[°C]");
  for (int spalte : {22, 23}) EXPECT_EQ(desk.zelle(1, spalte) + desk.zelle(2, spalte), "");
}

TEST_F(ColStandard, OtherBoxesAndTheFirstKindAreWiredPlainly) {
  schreib(1, 1);
  const Texte texte = zeile(1), punkte = zeile(2);
  schreib(2, 1, 1);
  EXPECT_NE(zeile(2), punkte);
  for (const auto& [kind, Box_Typ] : {std::pair{2, 0}, {2, 2}, {1, 1}}) {
    schreib(2, 1, 1);
    schreib(kind, 1, Box_Typ);
    EXPECT_EQ(zeile(1), texte) << kind << " " << Box_Typ;
    EXPECT_EQ(zeile(2), punkte) << kind << " " << Box_Typ;
  }
}

TEST_F(ColStandard, CaptionsAreInTheLanguageInForce) {
  schreib(1, 1);
  desk.captions.Sprache = "GER";
  desk.captions.Captions_Laden();
  schreib(1, 1);
  EXPECT_EQ(desk.zelle(1, Spalte::Zeit), "Zeit");
  EXPECT_EQ(desk.zelle(1, Spalte::dT_sh), "Überhitzung /[K]");
  EXPECT_EQ(desk.zelle(1, Spalte::EER_1), "EER/COP Verdichter Qo /[-]");
  EXPECT_EQ(desk.zelle(1, Spalte::Fluss_Verd), "Volumenstrom Verdampfer /[m³/h]");
}

TEST_F(ColStandard, MeansHaveTheSameCaptionsAndRowsAreSpared) {
  desk.fuelle(3);
  schreib(1, 1);
  EXPECT_EQ(m.MittelW_Spread.text(1, Spalte::tc), desk.zelle(1, Spalte::tc));
  EXPECT_EQ(m.MittelW_Spread.text(2, Spalte::pc), "- 1.10 -");
  EXPECT_EQ(desk.zelle(3, Spalte::p0), "2");
}

TEST_F(ColStandard, CaptionsDifferFromOneAnother) {
  for (int unit = 1; unit <= 5; ++unit) schreib(1, unit);
  std::map<std::string, int> gesehen;
  for (const auto& [spalte, text] : zeile(1)) {
    const auto [erster, neu] = gesehen.emplace(text, spalte);
    EXPECT_TRUE(neu) << spalte << " and " << erster->second << ": " << text;
  }
}
