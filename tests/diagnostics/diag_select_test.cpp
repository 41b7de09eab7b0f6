#include "diagnostics/diag_select.h"

#include <gtest/gtest.h>

#include "support/texte.h"

using namespace polarkreis;

namespace {

/// The pictures that show, in the order of the form.
std::string bilder(const DiaG_Select& f) {
  std::string text;
  const std::pair<bool, const char*> alle[] = {
      {f.Komp1, "Komp1 "}, {f.Komp2, "Komp2 "}, {f.Komp3, "Komp3 "},       {f.Komp4, "Komp4 "},
      {f.Econ, "Econ "},   {f.Cond1, "Cond1 "}, {f.Air_duct, "Air_duct "}, {f.Chanel, "Chanel "}};
  for (const auto& [da, name] : alle)
    if (da) text += name;
  return text;
}

std::string zeile(const DiaG_Select& f, int nummer) {
  return f.Pos_Spread(nummer, 1) + "|" + f.Pos_Spread(nummer, 2) + "|" + f.Pos_Spread(nummer, 3);
}

struct DiaGSelect : testing::Test {
  Texte texte;
  DiaG_Select formular{texte.captions};
};

TEST_F(DiaGSelect, OffersBothKindsWithTheirVariants) {
  const std::vector<std::string> erwartet = {
      "Single-stage", "Single-stage - Economizer", "Single-stage - CO2 Transkritisch",
      "Two-stage",    "Two-stage - Economizer",    "Two-stage - CO2 Transkritisch"};
  EXPECT_EQ(formular.Combo3_Liste(), erwartet);
  for (const std::string& text : erwartet)
    EXPECT_EQ(Schema_Text(Schema_von(text, texte.captions).value(), texte.captions), text);
}

TEST_F(DiaGSelect, AChoiceShowsItsPictures) {
  const std::pair<const char*, const char*> erwartet[] = {
      {"Single-stage", "Komp1 Cond1 Chanel "},
      {"Single-stage - Economizer", "Komp1 Econ Cond1 Chanel "},
      {"Single-stage - CO2 Transkritisch", "Komp3 Air_duct Chanel "},
      {"Two-stage", "Komp2 Cond1 Chanel "},
      {"Two-stage - Economizer", "Komp2 Econ Cond1 Chanel "},
      {"Two-stage - CO2 Transkritisch", "Komp4 Air_duct Chanel "}};
  for (const auto& [text, sichtbar] : erwartet) {
    formular.Type_Select(text);
    EXPECT_EQ(bilder(formular), sichtbar) << text;
    EXPECT_EQ(formular.Combo3, text);
  }
}

TEST_F(DiaGSelect, ATextThatIsNoSchemeShowsNoPicture) {
  for (const char* text :
       {"", " ", "-", " - ", " - Economizer", "Cascade", "Single-stage - Cascade"}) {
    formular.Type_Select("Two-stage - Economizer");
    formular.Type_Select(text);
    EXPECT_EQ(bilder(formular), "") << text;
    EXPECT_EQ(formular.Combo3, text);
    EXPECT_EQ(formular.Pos_Spread(3, 1), "- 1.2 -") << "the channels stand";
  }
}

TEST_F(DiaGSelect, TheTranscriticalTextComesFirst) {
  formular.Type_Select("some plant with CO2 Transkritisch");
  EXPECT_EQ(bilder(formular), "Komp3 Air_duct Chanel ");
  formular.Type_Select("Single-stage - co2 transkritisch");
  EXPECT_EQ(bilder(formular), "") << "it counts as it stands";
}

TEST_F(DiaGSelect, OtherWordsAreComparedTrimmedAndInAnyCase) {
  formular.Type_Select("two-STAGE -  economizer ");
  EXPECT_EQ(bilder(formular), "Komp2 Econ Cond1 Chanel ");
}

TEST_F(DiaGSelect, WithoutCaptionsOnlyTheFixedTextIsKnown) {
  const Texte keine("XYZ");
  EXPECT_EQ(Schema_von("", keine.captions), std::nullopt);
  EXPECT_EQ(Schema_von(" - Economizer", keine.captions), std::nullopt);
  EXPECT_TRUE(Schema_von(" - CO2 Transkritisch", keine.captions).has_value());
}

TEST_F(DiaGSelect, TheTranscriticalChoiceKeepsTheKind) {
  formular.TransM_Select();
  EXPECT_EQ(formular.Combo3, "Single-stage - CO2 Transkritisch");
  formular.Type_Select("Two-stage - Economizer");
  formular.TransM_Select();
  EXPECT_EQ(formular.Combo3, "Two-stage - CO2 Transkritisch");
  EXPECT_EQ(bilder(formular), "Komp4 Air_duct Chanel ");
  formular.TransM_Select();
  EXPECT_EQ(formular.Combo3, "Two-stage - CO2 Transkritisch");
}

TEST_F(DiaGSelect, FollowsTheLanguage) {
  const Texte deutsch("GER");
  DiaG_Select f(deutsch.captions);
  EXPECT_EQ(f.Combo3_Liste().front(), deutsch.captions.text(Caption::Einstufig));
  f.Type_Select(f.Combo3_Liste()[4]);
  EXPECT_EQ(bilder(f), "Komp2 Econ Cond1 Chanel ");
  EXPECT_EQ(f.Pos_Spread(4, 2), "Saugleitung");
}

TEST_F(DiaGSelect, ListsTheChannelsOfTheThreeUnits) {
  formular.Type_Select("Single-stage");
  EXPECT_EQ(zeile(formular, 1), "||");
  EXPECT_EQ(zeile(formular, 2), "- 1.1 -|Master - Liquid line|t liq.");
  EXPECT_EQ(zeile(formular, 3), "- 1.2 -|Evaporator|t Exp.");
  EXPECT_EQ(zeile(formular, 4), "- 1.3 -|Suction line|t SL");
  EXPECT_EQ(zeile(formular, 5), "- 1.4 -|Discharge line|t end");
  EXPECT_EQ(zeile(formular, 7), "- 1.6 -|Secondary side of the evaporator|t out2");
  EXPECT_EQ(zeile(formular, 8), "- 1.7 -|Secondary side of the condenser|t in3");
  EXPECT_EQ(zeile(formular, 10), "- 1.9 -|Suction line|Po");
  EXPECT_EQ(zeile(formular, 11), "- 1.10 -|Discharge line|Pc");
  EXPECT_EQ(zeile(formular, 12), "- 1.11 -|Compressor|Spannung L1 ");
  EXPECT_EQ(zeile(formular, 17), "- 1.16 -|Compressor|Stromstärke L3 ");
  EXPECT_EQ(zeile(formular, 18), "|Orbiter 1|");
  EXPECT_EQ(zeile(formular, 19), "- 2.1 -|Liquid line|t liq.");
  EXPECT_EQ(zeile(formular, 24), "- 2.6 -|Evaporator|t Exp.");
  EXPECT_EQ(zeile(formular, 25), "- 2.7 -||inx7");
  EXPECT_EQ(zeile(formular, 28), "- 2.10 -|Pressure|P2");
  EXPECT_EQ(zeile(formular, 34), "- 2.16 -|Compressor|Stromstärke L3 ");
  EXPECT_EQ(zeile(formular, 35), "|Orbiter 2|");
  EXPECT_EQ(zeile(formular, 36), "- 3.1 -|Liquid line|t liq.");
  EXPECT_EQ(zeile(formular, 51), "- 3.16 -|Compressor|Stromstärke L3 ");
  EXPECT_EQ(zeile(formular, 52), "||");
}

TEST_F(DiaGSelect, ElectricalPointsSitAtTheMachine) {
  for (const char* text : {"Pump", "Single-stage - pump"}) {
    formular.info_spread_lad(text);
    for (int nummer : {12, 17, 29, 34, 46, 51}) EXPECT_EQ(formular.Pos_Spread(nummer, 2), "Pump");
    EXPECT_EQ(formular.Pos_Spread(11, 2), "Discharge line");
    EXPECT_EQ(formular.Pos_Spread(45, 2), "Pressure");
  }
  formular.info_spread_lad("Fan");
  EXPECT_EQ(formular.Pos_Spread(12, 2), "Fan");
  for (const char* text : {"", "Two-stage - CO2 Transkritisch", "rubbish"}) {
    formular.info_spread_lad(text);
    EXPECT_EQ(formular.Pos_Spread(12, 2), "Compressor") << text;
  }
}

}  // namespace
