#include "diagnostics/anlagenbild.h"

#include <algorithm>
#include <optional>

#include "messreihe.h"

using namespace polarkreis;

namespace {

class Anlagenbild : public ::testing::Test, public Messreihe {
 protected:
  std::vector<Schemawert> werte(int zeile = 3) const {
    return RI_Chart(messung, captions, SP_Zuweis(messung.OrbiN_spread, captions), zeile);
  }
  std::optional<Schemawert> wert(int spalte, int zeile = 3) const {
    const auto alle = werte(zeile);
    const auto w = std::find_if(alle.begin(), alle.end(),
                                [&](const Schemawert& x) { return x.Spalte == spalte; });
    return w == alle.end() ? std::nullopt : std::optional(*w);
  }
  void einheit(int zeile, const std::string& name, const std::string& funktion) {
    messung.OrbiN_spread(zeile, 4) = name;
    messung.OrbiN_spread(zeile, 2) = funktion;
  }
};

}  // namespace

TEST_F(Anlagenbild, ValueHasItsPlaceLabelUnitAndMeasuringPoint) {
  messung.DiaSpread.setze(2, 2, "- 1.9 -");
  spalte(2, {"1.75"});
  const auto p0 = wert(2);
  ASSERT_TRUE(p0);
  EXPECT_EQ(p0->ort, Schemaort::Verdampfer);
  EXPECT_EQ(p0->Einheit, 0);
  EXPECT_EQ(p0->Bezeichnung, "Evaporating pressure");
  EXPECT_EQ(p0->Text, "1.75 bar g");
  EXPECT_EQ(p0->Messpunkt, "- 1.9 -");
  EXPECT_FALSE(p0->rot);
}

TEST_F(Anlagenbild, ValueWithoutAMeasurementIsAHyphen) {
  spalte(2, {"1"});
  spalte(8, {"  -"});
  spalte(147, {" - - - "});
  EXPECT_EQ(wert(8)->Text, "-");
  EXPECT_EQ(wert(147)->Text, "-");
  EXPECT_EQ(wert(5)->Text, "-");
  EXPECT_EQ(wert(8)->Messpunkt, "");
}

TEST_F(Anlagenbild, FiguresHaveNoUnit) {
  spalte(2, {"1"});
  spalte(141, {"2.85"});
  EXPECT_EQ(wert(141)->Text, "2.85");
  EXPECT_EQ(wert(141)->Bezeichnung, "EER");
}

TEST_F(Anlagenbild, RowIsTheOneAskedFor) {
  spalte(5, {"-5", "-6"});
  EXPECT_EQ(wert(5, 4)->Text, "-6 °C");
}

TEST_F(Anlagenbild, RowOutsideTheTableHasNoMeasurement) {
  messung.DiaSpread.setze(1, 2, "1 bar");
  messung.DiaSpread.setze(2, 2, "- 1.9 -");
  spalte(2, {"1"});
  for (int zeile : {-1, 0, 1, 2, 100000}) EXPECT_EQ(wert(2, zeile)->Text, "-") << zeile;
}

TEST_F(Anlagenbild, WarningsAreRed) {
  spalte(10, {"2"});
  messung.DiaSpread.setze_rot(3, Rot_sh);
  EXPECT_TRUE(wert(10)->rot);
  EXPECT_FALSE(wert(11)->rot);
  messung.DiaSpread.setze_rot(3, Rot_sc | Rot_eta);
  EXPECT_FALSE(wert(10)->rot);
  for (int judged : {11, 141, 142, 143, 144, 147}) EXPECT_TRUE(wert(judged)->rot) << judged;
  for (int other : {2, 12, 138, 139, 140, 146, 148}) EXPECT_FALSE(wert(other)->rot) << other;
}

TEST_F(Anlagenbild, RemoteUnitShowsWhatItMeasuresByItsFunction) {
  spalte(39, {"3"});
  spalte(152, {"2"});
  spalte(40, {"20"});
  EXPECT_FALSE(wert(39));  // no row names the unit
  einheit(1, "Orbiter 1", captions.text(VerbCapt::Pumpe));
  EXPECT_EQ(wert(39)->Text, "3 bar");
  EXPECT_EQ(wert(39)->Einheit, 1);
  EXPECT_EQ(wert(152)->Text, "2 bar");
  EXPECT_FALSE(wert(40));
  EXPECT_FALSE(wert(41));
  einheit(1, "Orbiter 1", captions.text(VerbCapt::Ventilator));
  EXPECT_EQ(wert(152)->Text, "2 Pa");
  einheit(1, "Orbiter 1", "");
  EXPECT_EQ(wert(39)->Text, "3 bar g");
  EXPECT_EQ(wert(40)->Text, "20 °C");
  EXPECT_FALSE(wert(152));
}

TEST_F(Anlagenbild, SecondUnitHasItsOwnColumns) {
  einheit(4, "Orbiter 2", captions.text(VerbCapt::Pumpe));
  spalte(59, {"3"});
  spalte(157, {"2"});
  spalte(52, {"-4"});
  EXPECT_EQ(wert(59)->Einheit, 2);
  EXPECT_EQ(wert(157)->Bezeichnung, "Pressure difference");
  EXPECT_EQ(wert(52)->Text, "-4 °C");
}

TEST_F(Anlagenbild, FunctionAndSchemePlaceTheUnit) {
  spalte(39, {"3"});
  spalte(59, {"3"});
  einheit(1, "Orbiter 1", captions.text(VerbCapt::Verdichter));
  einheit(2, "Orbiter 2", captions.text(VerbCapt::Verdichter));
  EXPECT_EQ(wert(39)->ort, Schemaort::Einheit);
  messung.Combo3 = "Two-stage - open intercooler";
  EXPECT_EQ(wert(39)->ort, Schemaort::Zwischenstufe);
  EXPECT_EQ(wert(59)->ort, Schemaort::Einheit);
  messung.Combo3 = "Single-stage - Economizer";
  EXPECT_EQ(wert(39)->ort, Schemaort::Economiser);
  einheit(1, "Orbiter 1", captions.text(VerbCapt::Zweistufig_Booster));
  EXPECT_EQ(wert(39)->ort, Schemaort::Zwischenstufe);
  einheit(1, "Orbiter 1", captions.text(VerbCapt::Economiser));
  EXPECT_EQ(wert(39)->ort, Schemaort::Economiser);
}

TEST_F(Anlagenbild, SchemeIsReadFromItsText) {
  const Schemaart co2 = Schemaart_von("Single-stage - CO2 Transkritisch", captions);
  EXPECT_TRUE(co2.transkritisch);
  EXPECT_FALSE(co2.zweistufig);
  EXPECT_FALSE(co2.Economiser);
  const Schemaart eco = Schemaart_von("two-stage - economizer", captions);
  EXPECT_TRUE(eco.zweistufig);
  EXPECT_TRUE(eco.Economiser);
  EXPECT_FALSE(Schemaart_von("", captions).zweistufig);
}

TEST_F(Anlagenbild, SchemeOfALanguageWithoutTextsIsPlain) {
  captions.Sprache = "ZZZ";
  captions.Captions_Laden();
  EXPECT_FALSE(Schemaart_von("anything", captions).zweistufig);
}
