#include "diagnostics/einheiten_funktion.h"

#include <gtest/gtest.h>

#include "diagnostics/messpunkte.h"
#include "support/texte.h"

using namespace polarkreis;
using T = Einheitentabelle;

namespace {

/// A table whose only unit is `Orbiter 1`, in row 4, with that function.
T tabelle_mit(const std::string& funktion) {
  T tabelle;
  tabelle(4, T::Einheit) = "Orbiter 1";
  tabelle(4, T::Funktion) = funktion;
  return tabelle;
}

int code_von(const std::string& funktion, const Texte& texte) {
  return SP_Zuweis(tabelle_mit(funktion), texte.captions).Sensor_Code[1];
}

TEST(SPZuweis, EveryFunctionTextHasItsCode) {
  const Texte texte;
  const std::pair<const char*, int> erwartet[] = {{"Air side", 26},
                                                  {"CO2 Transkritisch", 15},
                                                  {"Pump", 13},
                                                  {"Fan", 12},
                                                  {"Compressor with remote sensors", 11},
                                                  {"Two-stage with intermediate cooler", 10},
                                                  {"Two-stage 2st.", 9},
                                                  {"Two-stage with booster", 8},
                                                  {"Two-stage with injection", 4},
                                                  {"Economiser", 3},
                                                  {"Compressor", 1}};
  std::vector<std::string> folge;
  for (const auto& [text, code] : erwartet) {
    EXPECT_EQ(code_von(text, texte), code) << text;
    folge.emplace_back(text);
  }
  EXPECT_EQ(Funktionstexte(texte.captions), folge) << "offered in the order of comparison";
}

TEST(SPZuweis, FollowsTheLanguage) {
  const Texte texte("GER");
  EXPECT_EQ(code_von("Luftseite", texte), 26);
  EXPECT_EQ(code_von("Zweistufig 2st.", texte), 9);
  EXPECT_EQ(code_von("CO2 Transkritisch", texte), 15) << "the same in every language";
  EXPECT_EQ(code_von("Air side", texte), 1);
}

TEST(SPZuweis, ComparesTrimmedAndInAnyCase) {
  const Texte texte;
  EXPECT_EQ(code_von("  PUMP ", texte), 13);
  EXPECT_EQ(code_von("co2 transkritisch", texte), 15);
  EXPECT_EQ(code_von("Pump 1", texte), 1) << "the whole text must fit";
}

TEST(SPZuweis, WhatFitsNoFunctionIsAnOrdinaryCompressor) {
  const Texte texte;
  for (const char* text : {"", "  ", "Two-stage", "Condenser", "rubbish"})
    EXPECT_EQ(code_von(text, texte), 1) << text;
}

TEST(SPZuweis, AnEmptyFunctionIsNotAMissingCaption) {
  const Texte keine_texte("XYZ");
  EXPECT_EQ(code_von("", keine_texte), 1);
  EXPECT_EQ(code_von("CO2 Transkritisch", keine_texte), 15);
  EXPECT_EQ(code_von(" 2st.", keine_texte), 1);
}

TEST(SPZuweis, ARowBelongsToTheUnitThatItsNameEndsIn) {
  const Texte texte;
  T tabelle;
  tabelle(1, T::Einheit) = "Leitkiste";
  tabelle(1, T::Funktion) = "Air side";
  tabelle(2, T::Einheit) = "Orbiter 2";
  tabelle(2, T::Funktion) = "Fan";
  tabelle(2, T::Name) = "roof";
  tabelle(5, T::Einheit) = " Orbiter 1 ";
  tabelle(5, T::Funktion) = "Two-stage with booster";
  tabelle(5, T::Name) = "machine room";
  tabelle(6, T::Einheit) = "Orbiter 5";
  tabelle(6, T::Funktion) = "Air side";
  tabelle(7, T::Einheit) = "4";
  const Einheitenfunktion f = SP_Zuweis(tabelle, texte.captions);
  EXPECT_EQ(f.Sensor_Code, (std::array<int, 5>{0, 8, 12, 0, 1}));
  EXPECT_EQ(f.Sensor_Zeile, (std::array<int, 5>{0, 5, 2, 0, 7}));
  EXPECT_EQ(f.Sensor_Name[1], "machine room");
  EXPECT_EQ(f.Sensor_Name[2], "roof");
  EXPECT_EQ(f.Sensor_Name[3], "");
  EXPECT_EQ(f.Druck_Art, 0) << "the air sides stand in rows that name no unit 1 to 4";
}

TEST(SPZuweis, ALaterRowOfTheSameUnitCounts) {
  const Texte texte;
  T tabelle = tabelle_mit("Pump");
  tabelle(6, T::Einheit) = "Pump house 1";
  tabelle(6, T::Funktion) = "Fan";
  const Einheitenfunktion f = SP_Zuweis(tabelle, texte.captions);
  EXPECT_EQ(f.Sensor_Code[1], 12);
  EXPECT_EQ(f.Sensor_Zeile[1], 6);
}

TEST(SPZuweis, AnAirSideShowsInThePressureKind) {
  const Texte texte;
  T tabelle = tabelle_mit("Air side");
  EXPECT_EQ(SP_Zuweis(tabelle, texte.captions).Druck_Art, 2);
  tabelle(5, T::Einheit) = "Orbiter 2";
  tabelle(5, T::Funktion) = "Pump";
  EXPECT_EQ(SP_Zuweis(tabelle, texte.captions).Druck_Art, 2) << "a later unit leaves it";
  tabelle(4, T::Funktion) = "Pump";
  EXPECT_EQ(SP_Zuweis(tabelle, texte.captions).Druck_Art, 0);
}

TEST(SPZuweis, AnEmptyTableHasNoUnits) {
  const Texte texte;
  EXPECT_EQ(SP_Zuweis(T{}, texte.captions).Sensor_Code, (std::array<int, 5>{}));
}

TEST(EinheitenStandard, FillsEmptyListsAndNamesOnly) {
  const Texte texte;
  T tabelle;
  tabelle(2, T::Liste) = "Brine cooler";
  tabelle(4, T::Einheit) = "Orbiter 1";
  Einheiten_Standard(tabelle, texte.captions);
  const char* listen[] = {"Compressor",   "Brine cooler", "Evaporator 1", "Evaporator 2",
                          "Evaporator 3", "Evaporator 4", "Evaporator 5"};
  const char* namen[] = {"Leitkiste", "Leitkiste", "Leitkiste", "Orbiter 1",
                         "Orbiter 3", "Orbiter 4", "Orbiter 5"};
  for (int zeile = 1; zeile <= T::Zeilen; ++zeile) {
    EXPECT_EQ(tabelle(zeile, T::Liste), listen[zeile - 1]) << zeile;
    EXPECT_EQ(tabelle(zeile, T::Einheit), namen[zeile - 1]) << zeile;
    for (int spalte : {T::Funktion, T::Name, T::Wert, T::Frei})
      EXPECT_EQ(tabelle(zeile, spalte), "") << zeile;
  }
  EXPECT_EQ(Einheit_Standardliste(2, texte.captions), "Condenser");
  EXPECT_EQ(Einheit_Standardname(4), "Orbiter 2");
}

TEST(Messpunkte, AreNamedByUnitAndPoint) {
  EXPECT_EQ(Messpunkt(1, 9), "- 1.9 -");
  EXPECT_EQ(Messpunkt(3, 16), "- 3.16 -");
}

TEST(Messpunkte, HaveTheirChannelTexts) {
  const char* leitkiste[] = {"t liq.",
                             "t Exp.",
                             "t SL",
                             "t end",
                             "t in1",
                             "t out2",
                             "t in3",
                             "t out4",
                             "Po",
                             "Pc",
                             "Spannung L1 ",
                             "Spannung L2 ",
                             "Spannung L3 ",
                             "Stromstärke L1 ",
                             "Stromstärke L2 ",
                             "Stromstärke L3 "};
  const char* orbiter[] = {"t liq.", "t in1", "t in2", "t out3", "t out4",
                           "t Exp.", "inx7",  "inx8",  "P1",     "P2"};
  for (int punkt = 1; punkt <= 16; ++punkt) {
    EXPECT_EQ(Kanaltext(1, punkt), leitkiste[punkt - 1]);
    const char* erwartet = punkt <= 10 ? orbiter[punkt - 1] : leitkiste[punkt - 1];
    EXPECT_EQ(Kanaltext(2, punkt), erwartet);
    EXPECT_EQ(Kanaltext(3, punkt), erwartet);
  }
  EXPECT_EQ(Kanaltext(1, 0), "");
  EXPECT_EQ(Kanaltext(2, 17), "");
}

}  // namespace
