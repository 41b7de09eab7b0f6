#include <gtest/gtest.h>

#include "schaubild_bild.h"

using namespace schaubildtest;

TEST(SchaubildTafel, TheLegendNamesEachTextOnce) {
  Schaubild bild = gerades_Bild();
  const std::vector<Kurvenpunkt> punkte = {{1, 10}, {9, 90}};
  bild.Kurven = {
      Linie(Kurvenart::Isotherme, punkte, "Isotherms"), Linie(Kurvenart::Prozess, punkte, "Cycle"),
      Linie(Kurvenart::Isotherme, punkte, "Isotherms"), Linie(Kurvenart::Hilfslinie, punkte)};
  const SvgLeser leser = gelesen(bild);
  EXPECT_EQ(leser.texte("Legende"), (std::vector<std::string>{"Isotherms", "Cycle"}));
  const auto muster = leser.alle("line", "Legende");
  ASSERT_EQ(muster.size(), 2U);
  EXPECT_EQ(muster[0].wort("stroke"), Zuege(leser)[0].wort("stroke"));
  EXPECT_EQ(muster[1].wort("stroke"), Zuege(leser)[1].wort("stroke"));
}

TEST(SchaubildTafel, AMarkOutsideTheAxesIsOnlyListed) {
  Schaubild bild = gerades_Bild();
  bild.Marken = {{5, 50, "1", {"inside"}},
                 {50, 50, "2", {"right"}},
                 {-1, 50, "3", {"left"}},
                 {5, 101, "4", {"above"}},
                 {5, -1, "5", {"below"}}};
  const SvgLeser leser = gelesen(bild);
  EXPECT_EQ(leser.alle("circle", "Marken").size(), 1U);
  EXPECT_EQ(leser.texte("Marken"), (std::vector<std::string>{"1"}));
  EXPECT_EQ(leser.texte("Tabelle"), (std::vector<std::string>{"1", "inside", "2", "right", "3",
                                                              "left", "4", "above", "5", "below"}));
}

TEST(SchaubildTafel, TheTableAlignsFiguresAndPutsUnitsBelow) {
  Schaubild bild = gerades_Bild();
  bild.Markenkopf = {"No.", "Point", "p [bar]"};
  bild.Marken = {{1, 1, "1", {"Suction", "2.01"}}, {2, 2, "2", {"Discharge", "10.17", "extra"}}};
  bild.Marken.push_back({3, 3, "3", {"Unknown", " - "}});
  const SvgLeser leser = gelesen(bild);
  const auto texte = leser.alle("text", "Tabelle");
  const auto mit = [&](const char* text) {
    const auto platz = std::ranges::find(texte, text, &SvgElement::text);
    return platz == texte.end() ? SvgElement{} : *platz;
  };
  EXPECT_EQ(mit("2.01").wort("text-anchor"), "end");
  EXPECT_EQ(mit("2.01").zahl("font-size"), 12);
  EXPECT_EQ(mit("2.01").wort("x"), mit("10.17").wort("x"));
  EXPECT_EQ(mit("p").wort("x"), mit("10.17").wort("x"));
  EXPECT_EQ(mit("Suction").wort("text-anchor"), "");
  EXPECT_EQ(mit("Suction").wort("x"), mit("Point").wort("x"));
  EXPECT_EQ(mit("extra").text, "extra");
  EXPECT_GT(mit("[bar]").zahl("y"), mit("p").zahl("y"));
  EXPECT_GT(mit("Discharge").zahl("y"), mit("Suction").zahl("y"));
}

TEST(SchaubildTafel, LongTextsStayInsideThePanel) {
  Schaubild bild = gerades_Bild();
  const std::string lang = "Evaporator outlet of the low stage behind the inner heat exchanger";
  bild.Kurven = {Linie(Kurvenart::Isotherme, {{0, 50}, {10, 50}}, lang + lang)};
  bild.Markenkopf = {"No.", "Point", "p [bar]", "t [°C]", "h [kJ/kg]", "s [kJ/(kg K)]"};
  bild.Marken = {{1, 1, "1", {lang, "2.01", "-10.00", "399.16", "1.7343"}}};
  bild.Texte = {lang + ' ' + lang, lang + "\t12.5 kW", "EER\t" + lang, std::string(200, 'x')};
  const SvgLeser leser = gelesen(bild);
  for (const SvgElement& text : leser.alle("text")) {
    const double breite = Textbreite(text.text, text.zahl("font-size"));
    const double links = text.zahl("x") - (text.wort("text-anchor") == "end" ? breite : 0);
    EXPECT_LE(links + (text.wort("text-anchor") == "middle" ? breite / 2 : breite), 1188)
        << text.text;
    EXPECT_GE(links, 24) << text.text;
  }
  const double tafel = leser.alle("rect", "Tafel").at(0).zahl("x");
  for (const char* gruppe : {"Legende", "Tabelle", "Texte"})
    for (const SvgElement& text : leser.alle("text", gruppe)) {
      const double breite = Textbreite(text.text, text.zahl("font-size"));
      EXPECT_GT(text.zahl("x") - (text.wort("text-anchor") == "end" ? breite : 0), tafel);
    }
  const auto tabelle = leser.alle("text", "Tabelle");
  EXPECT_EQ(std::ranges::find(tabelle, "2.01", &SvgElement::text)->zahl("font-size"), 10.5);
  // Figures are never shortened for the sake of a name.
  for (const char* zahl : {"2.01", "-10.00", "399.16", "1.7343"})
    EXPECT_TRUE(enthaelt(leser.texte("Tabelle"), zahl)) << zahl;
  EXPECT_TRUE(enthaelt(leser.texte("Texte"), "12.5 kW"));
}

TEST(SchaubildTafel, TheSheetGrowsWithThePanel) {
  Schaubild bild = gerades_Bild();
  for (int n = 0; n < 60; ++n) bild.Texte.push_back("Line " + std::to_string(n));
  const SvgLeser leser = gelesen(bild);
  const double hoehe = leser.elemente.front().zahl("height");
  EXPECT_DOUBLE_EQ(hoehe, 24 + 60 * 17 + 14 + 24);
  for (const SvgElement& text : leser.alle("text")) EXPECT_LT(text.zahl("y"), hoehe - 20);
  EXPECT_DOUBLE_EQ(leser.rahmen().zahl("y") + leser.rahmen().zahl("height"), hoehe - 74);
}

TEST(SchaubildTafel, WithoutAPanelThePlotTakesItsPlace) {
  const SvgElement rahmen = gelesen(gerades_Bild()).rahmen();
  EXPECT_DOUBLE_EQ(rahmen.zahl("x") + rahmen.zahl("width"), 1176);
}
