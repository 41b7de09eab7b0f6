#include <gtest/gtest.h>

#include "diagnostics/messdatei_desk.h"

using namespace polarkreis;

namespace {

struct LoadDiaGTranslation : testing::Test {
  MessdateiDesk desk;
  Messung& m = desk.m;
  Messinhalt inhalt;

  void lade(const std::string& sprache) {
    inhalt(3) = "3&$§" + sprache;
    ::lade(desk, inhalt);
  }
  std::string Schema(const std::string& text) {
    inhalt(8) = text;
    lade("GER");
    return m.Combo3;
  }
  std::string Methode(const std::string& text) {
    inhalt(9) = text;
    lade("GER");
    return m.Combo4;
  }
  /// Function text of row 1.
  std::string Funktion(const std::string& text) {
    inhalt(18) = text;
    lade("GER");
    return m.OrbiN_spread(1, Einheitentabelle::Funktion);
  }
};

}  // namespace

TEST_F(LoadDiaGTranslation, SchemePartsAreTranslatedWithTheirBlanks) {
  EXPECT_EQ(Schema("Einstufig"), "Single-stage");
  EXPECT_EQ(Schema("ZWEISTUFIG - offener Zwischenkühler"), "Two-stage - open intercooler");
  EXPECT_EQ(Schema(" Einstufig  -   Verdichter "), " Single-stage  -   Compressor ");
}

TEST_F(LoadDiaGTranslation, FixedVariantsOfTheSchemeStay) {
  EXPECT_EQ(Schema("Einstufig - CO2 Transkritisch"), "Single-stage - CO2 Transkritisch");
  EXPECT_EQ(Schema("Zweistufig - Economizer"), "Two-stage - Economizer");
  EXPECT_EQ(Schema("Zweistufig -  - Economizer"), "Two-stage -  - Economizer");
}

TEST_F(LoadDiaGTranslation, UnknownPartsOfTheSchemeStay) {
  EXPECT_EQ(Schema("Einstufig - Sonderbau 7"), "Single-stage - Sonderbau 7");
  EXPECT_EQ(Schema("- "), "- ");
  EXPECT_EQ(Schema(""), "");
}

TEST_F(LoadDiaGTranslation, MethodIsTranslated) {
  EXPECT_EQ(Methode("Hubvolumen"), "Swept volume");
  EXPECT_EQ(Methode("Teillast %"), "Part load %");
  EXPECT_EQ(Methode(" Orbiter 1 inX7"), " Orbiter 1 inX7");
}

TEST_F(LoadDiaGTranslation, CapacityControlIsTranslatedAmongItsOwnLines) {
  inhalt(13) = "Stetig";
  lade("GER");
  EXPECT_EQ(m.RGCombo, "Continuous");
  inhalt(13) = "Verdichter";  // a caption, but no kind of control
  lade("GER");
  EXPECT_EQ(m.RGCombo, "Verdichter");
  inhalt(13) = "";
  lade("GER");
  EXPECT_EQ(m.RGCombo, "On/off");
}

TEST_F(LoadDiaGTranslation, FunctionTextsAreTranslatedWithTheirAdditions) {
  EXPECT_EQ(Funktion("Verdichter"), "Compressor");
  EXPECT_EQ(Funktion("Zweistufig 2st."), "Two-stage 2st.");
  EXPECT_EQ(Funktion("Verdichter - 1 ph."), "Compressor - 1 ph.");
  EXPECT_EQ(Funktion("Economizer"), "Economiser");
  EXPECT_EQ(Funktion("CO2 Transkritisch"), "CO2 Transkritisch");
  EXPECT_EQ(Funktion("Sonderbau"), "Sonderbau");
  EXPECT_EQ(Funktion("4711"), "4711");
}

TEST_F(LoadDiaGTranslation, ListsAndUnitNamesAreTranslatedNamesAndValuesAreNot) {
  inhalt(19) = "Verdichter";  // row 1: name and value
  inhalt(20) = "Pumpe";
  inhalt(39) = "Verdichter";  // lists of rows 1 to 3
  inhalt(40) = "Verflüssiger";
  inhalt(41) = "Verdampfer 1";
  inhalt(46) = "Leitkiste";
  inhalt(47) = "Verdichter 2";
  lade("GER");
  EXPECT_EQ(m.OrbiN_spread(1, Einheitentabelle::Name), "Verdichter");
  EXPECT_EQ(m.OrbiN_spread(1, Einheitentabelle::Wert), "Pumpe");
  EXPECT_EQ(m.OrbiN_spread(1, Einheitentabelle::Liste), "Compressor");
  EXPECT_EQ(m.OrbiN_spread(2, Einheitentabelle::Liste), "Condenser");
  EXPECT_EQ(m.OrbiN_spread(3, Einheitentabelle::Liste), "Evaporator 1");
  EXPECT_EQ(m.OrbiN_spread(1, Einheitentabelle::Einheit), "Leitkiste");
  EXPECT_EQ(m.OrbiN_spread(2, Einheitentabelle::Einheit), "Compressor 2");
}

TEST_F(LoadDiaGTranslation, FileOfTheLanguageInForceIsLeftAlone) {
  inhalt(8) = "Einstufig";
  for (const char* sprache : {"ENG", "eng", " ENG ", "", "ZZZ", "../GER"}) {
    lade(sprache);
    EXPECT_EQ(m.Combo3, "Einstufig") << sprache;
  }
}

TEST_F(LoadDiaGTranslation, LanguageIsFoundInAnyCase) {
  inhalt(8) = "Einstufig";
  lade(" ger");
  EXPECT_EQ(m.Combo3, "Single-stage");
}
