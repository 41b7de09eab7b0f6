#include "reports/schaubild_svg.h"

#include <gtest/gtest.h>

#include <cmath>
#include <locale>
#include <random>
#include <regex>

#include "schaubild_bild.h"

using namespace schaubildtest;

TEST(SchaubildSvg, IsACompleteFile) {
  Schaubild bild = gerades_Bild();
  bild.Titel = "A title";
  bild.Untertitel = "and below";
  const std::string svg = SVG_Text(bild);
  EXPECT_TRUE(svg.starts_with("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<svg "));
  EXPECT_TRUE(svg.ends_with("</svg>\n"));
  const SvgLeser leser(svg);
  const SvgElement& wurzel = leser.elemente.front();
  EXPECT_EQ(wurzel.wort("viewBox"), "0 0 1200 800");
  EXPECT_EQ(wurzel.wort("version"), "1.1");
  EXPECT_TRUE(wurzel.wort("font-family").ends_with("sans-serif"));
  EXPECT_EQ(leser.alle("rect").front().wort("fill"), "#ffffff");
  EXPECT_EQ(leser.alle("title").at(0).text, "A title");
  for (const char* text : {"A title", "and below", "x", "y"}) {
    const auto texte = leser.alle("text");
    EXPECT_EQ(std::ranges::count(texte, text, &SvgElement::text), 1) << text;
  }
}

TEST(SchaubildSvg, MarksLieWhereTheAxesPutThem) {
  Schaubild bild = gerades_Bild();
  bild.Marken = {{2.5, 25, "1", {}}, {10, 100, "2", {}}};
  const SvgLeser leser = gelesen(bild);
  EXPECT_DOUBLE_EQ(leser.rahmen().zahl("y"), 24);
  EXPECT_DOUBLE_EQ(leser.rahmen().zahl("height"), 702);
  const auto kreise = leser.alle("circle", "Marken");
  ASSERT_EQ(kreise.size(), 2U);
  EXPECT_DOUBLE_EQ(kreise[0].zahl("cy"), 550.5);  // 726 less a quarter of 702
  EXPECT_DOUBLE_EQ(kreise[1].zahl("cy"), 24);
  erwarte_Ort({kreise[0].zahl("cx"), kreise[0].zahl("cy")}, im_Rahmen(leser, 0.25, 0.25));
  erwarte_Ort({kreise[1].zahl("cx"), kreise[1].zahl("cy")}, im_Rahmen(leser, 1, 1));
}

TEST(SchaubildSvg, LogarithmicPlaces) {
  Schaubild bild = gerades_Bild();
  bild.y = {"p", true, 1, 100};
  bild.Kurven = {Linie(Kurvenart::Isotherme, {{0, 1}, {5, 10}, {10, 31.6227766}})};
  const SvgLeser leser = gelesen(bild);
  const auto orte = Punkte(Zuege(leser).at(0));
  ASSERT_EQ(orte.size(), 3U);
  EXPECT_DOUBLE_EQ(orte[0].y, 726);
  EXPECT_DOUBLE_EQ(orte[1].y, 375);    // the middle
  EXPECT_DOUBLE_EQ(orte[2].y, 199.5);  // three quarters
}

TEST(SchaubildSvg, CurvesEndAtTheFrame) {
  Schaubild bild = gerades_Bild();
  bild.Kurven = {Linie(Kurvenart::Isotherme, {{-10, 50}, {20, 50}}),
                 Linie(Kurvenart::Isotherme, {{5, -100}, {5, 1e9}}),
                 Linie(Kurvenart::Isotherme, {{-5, 50}, {-1, 70}})};
  const SvgLeser leser = gelesen(bild);
  const auto zuege = Zuege(leser);
  ASSERT_EQ(zuege.size(), 2U);
  erwarte_Ort(Punkte(zuege[0]).front(), im_Rahmen(leser, 0, 0.5));
  erwarte_Ort(Punkte(zuege[0]).back(), im_Rahmen(leser, 1, 0.5));
  erwarte_Ort(Punkte(zuege[1]).front(), im_Rahmen(leser, 0.5, 0));
  erwarte_Ort(Punkte(zuege[1]).back(), im_Rahmen(leser, 0.5, 1));
}

TEST(SchaubildSvg, TheWindowOfTheCurvesIsTheFrame) {
  const SvgLeser leser = gelesen(gerades_Bild());
  const auto gruppen = leser.alle("g");
  const auto kurven = std::ranges::find_if(
      gruppen, [](const SvgElement& gruppe) { return gruppe.wort("class") == "Kurven"; });
  ASSERT_NE(kurven, gruppen.end());
  EXPECT_EQ(kurven->wort("clip-path"), "url(#Fenster)");
  EXPECT_EQ(leser.alle("clipPath").at(0).wort("id"), "Fenster");
  const auto& elemente = leser.elemente;
  const auto fenster = std::ranges::find(elemente, "clipPath", &SvgElement::name) + 1;
  for (const char* mass : {"x", "y", "width", "height"})
    EXPECT_EQ(fenster->wort(mass), leser.rahmen().wort(mass)) << mass;
}

TEST(SchaubildSvg, APlaceThatCantBeDrawnPartsACurve) {
  Schaubild bild = gerades_Bild();
  bild.y = {"p", true, 1, 100};
  bild.Kurven = {Linie(Kurvenart::Isotherme, {{1, 2}, {2, 2}, {3, 0}, {4, 2}, {5, 2}}),
                 Linie(Kurvenart::Grenze, {{1, 3}, {2, 3}, {leer, 3}, {4, 3}, {HUGE_VAL, 3}}),
                 Linie(Kurvenart::Prozess, {{1, 5}, {2, -5}, {3, 5}})};
  bild.Marken = {{leer, 3, "1", {}}, {3, 0, "2", {}}, {3, 5, "3", {}}};
  const std::string svg = SVG_Text(bild);
  const SvgLeser leser(svg);
  EXPECT_EQ(Zuege(leser).size(), 3U);
  EXPECT_EQ(leser.alle("circle", "Marken").size(), 1U);
  EXPECT_EQ(svg.find("nan"), std::string::npos);
  EXPECT_EQ(svg.find("inf"), std::string::npos);
}

TEST(SchaubildSvg, BoundariesAreLedSmoothlyAndIsothermsKeepTheirCorners) {
  const std::vector<Kurvenpunkt> ecke = {{1, 20}, {5, 80}, {9, 20}};
  Schaubild bild = gerades_Bild();
  bild.Kurven = {Linie(Kurvenart::Grenze, ecke), Linie(Kurvenart::Isotherme, ecke)};
  const auto zuege = Zuege(gelesen(bild));
  EXPECT_GT(Punkte(zuege.at(0)).size(), 20U);
  EXPECT_EQ(Punkte(zuege.at(1)).size(), 3U);
}

TEST(SchaubildSvg, EachKindLooksDifferent) {
  Schaubild bild = gerades_Bild();
  for (const Kurvenart art : {Kurvenart::Grenze, Kurvenart::Isotherme, Kurvenart::Gehalt,
                              Kurvenart::Ueberkritisch, Kurvenart::Prozess, Kurvenart::Hilfslinie})
    bild.Kurven.push_back(Linie(art, {{1, 10}, {9, 90}}));
  std::vector<std::string> farben;
  for (const SvgElement& zug : Zuege(gelesen(bild))) {
    EXPECT_FALSE(enthaelt(farben, zug.wort("stroke")));
    farben.push_back(zug.wort("stroke"));
  }
  EXPECT_EQ(farben.size(), 6U);
  const auto zuege = Zuege(gelesen(bild));
  EXPECT_EQ(zuege[4].zahl("stroke-width"), 3);
  EXPECT_NE(zuege[5].wort("stroke-dasharray"), "");
  EXPECT_EQ(zuege[0].wort("stroke-dasharray"), "");
}

TEST(SchaubildSvg, ArrowsPointTheWayOfTheProcess) {
  Schaubild bild = gerades_Bild();
  bild.Kurven = {Linie(Kurvenart::Prozess, {{8, 50}, {2, 50}, {2, 10}}),
                 Linie(Kurvenart::Isotherme, {{1, 90}, {9, 90}})};
  const SvgLeser leser = gelesen(bild);
  const auto pfeile = leser.alle("polygon", "Kurven");
  ASSERT_EQ(pfeile.size(), 2U);
  const Bildort mitte = im_Rahmen(leser, 0.5, 0.5);
  const auto links = Punkte(pfeile[0]);
  erwarte_Ort(links.at(0), {mitte.x - 9, mitte.y});
  erwarte_Ort(links.at(1), {mitte.x + 7, mitte.y - 6.5});
  erwarte_Ort(links.at(2), {mitte.x + 7, mitte.y + 6.5});
  const Bildort unten = im_Rahmen(leser, 0.2, 0.3);
  erwarte_Ort(Punkte(pfeile[1]).at(0), {unten.x, unten.y + 9});
}

TEST(SchaubildSvg, TextsAreEscaped) {
  Schaubild bild = gerades_Bild();
  const std::string boese = "<b> & \"q\" 'a'";
  const std::string roh = "<b>\a & \"q\"\n'a'";
  bild.Titel = bild.Untertitel = bild.x.Titel = bild.y.Titel = roh;
  bild.Kurven = {Linie(Kurvenart::Isotherme, {{0, 50}, {10, 50}}, roh, roh)};
  bild.Marken = {{1, 1, "<\x02", {roh}}};
  bild.Markenkopf = {"<", roh};
  bild.Texte = {roh, roh + "\t" + "<&>", "old bytes \xFF"};
  const SvgLeser leser = gelesen(bild);
  int anzahl = 0;
  for (const SvgElement& element : leser.alle("text"))
    if (element.text == boese) ++anzahl;
  EXPECT_EQ(anzahl, 10);  // titles 4, curve 2, cell, heading, text block 2
  EXPECT_TRUE(enthaelt(leser.texte("Texte"), "<&>"));
  EXPECT_TRUE(enthaelt(leser.texte("Texte"), "old bytes ÿ"));
  EXPECT_EQ(leser.texte("Marken"), (std::vector<std::string>{"<"}));
}

TEST(SchaubildSvg, TicksStandAtTheirValues) {
  Schaubild bild = gerades_Bild();
  bild.y = {"p", true, 1, 100};
  const SvgLeser leser = gelesen(bild);
  const auto texte = leser.alle("text", "Achsen");
  const auto zehn = std::ranges::find_if(texte, [](const SvgElement& text) {
    return text.text == "10" && text.wort("text-anchor") == "end";
  });
  ASSERT_NE(zehn, texte.end());
  EXPECT_NEAR(zehn->zahl("y"), 375 + 0.35 * 12, 0.011);
  const auto fuenf = std::ranges::find_if(texte, [](const SvgElement& text) {
    return text.text == "5" && text.wort("text-anchor") == "middle";
  });
  ASSERT_NE(fuenf, texte.end());
  EXPECT_NEAR(fuenf->zahl("x"), im_Rahmen(leser, 0.5, 0).x, 0.011);
  EXPECT_EQ(texte.back().text, "p");
  EXPECT_TRUE(texte.back().wort("transform").starts_with("rotate(-90 "));
}

TEST(SchaubildSvg, ProcessesOfDifferentNamesDifferInColour) {
  Schaubild bild = gerades_Bild();
  const std::vector<Kurvenpunkt> punkte = {{1, 10}, {9, 90}};
  for (const char* name : {"Low stage", "High stage", "Low stage"})
    bild.Kurven.push_back(Linie(Kurvenart::Prozess, punkte, name));
  const auto zuege = Zuege(gelesen(bild));
  EXPECT_NE(zuege[0].wort("stroke"), zuege[1].wort("stroke"));
  EXPECT_EQ(zuege[0].wort("stroke"), zuege[2].wort("stroke"));
}

TEST(SchaubildSvg, ALabelStandsOnItsCurve) {
  Schaubild bild = gerades_Bild();
  bild.Kurven = {Linie(Kurvenart::Isotherme, {{0, 50}, {10, 50}}, "", "40 °C"),
                 Linie(Kurvenart::Isotherme, {{1, 0}, {1, 40}}, "", "upright")};
  const SvgLeser leser = gelesen(bild);
  const auto texte = leser.alle("text", "Kurventexte");
  ASSERT_EQ(texte.size(), 2U);
  EXPECT_EQ(texte[0].text, "40 °C");
  EXPECT_EQ(texte[0].wort("transform"), "");
  erwarte_Ort({texte[0].zahl("x"), texte[0].zahl("y") - 0.35 * 11}, im_Rahmen(leser, 0.5, 0.5));
  EXPECT_TRUE(texte[1].wort("transform").starts_with("rotate(-90 "));
  erwarte_Ort({texte[1].zahl("x"), texte[1].zahl("y") - 0.35 * 11}, im_Rahmen(leser, 0.1, 0.2));
}

TEST(SchaubildSvg, ALabelBesidesAShortCurveAndNoneWithoutAPlace) {
  Schaubild bild = gerades_Bild();
  bild.Kurven = {Linie(Kurvenart::Isotherme, {{9.8, 50}, {9.9, 50}}, "", "beside"),
                 Linie(Kurvenart::Isotherme, {{4, 50}, {4.1, 50}}, "", std::string(300, 'W'))};
  const SvgLeser leser = gelesen(bild);
  const auto texte = leser.alle("text", "Kurventexte");
  ASSERT_EQ(texte.size(), 1U);
  EXPECT_EQ(texte[0].text, "beside");
  EXPECT_LT(texte[0].zahl("x") + Textbreite("beside", 11) / 2, im_Rahmen(leser, 1, 0).x);
}

TEST(SchaubildSvg, ALabelNeverLiesOnAProcess) {
  Schaubild bild = gerades_Bild();
  bild.Kurven = {Linie(Kurvenart::Isotherme, {{0, 50}, {10, 50}}, "", "40 °C"),
                 Linie(Kurvenart::Isotherme, {{2, 70}, {8, 70}}, "", "50 °C"),
                 Linie(Kurvenart::Prozess, {{9, 50}, {2, 50}, {2, 70}, {8, 70}}, "", "cycle")};
  const SvgLeser leser = gelesen(bild);
  const auto texte = leser.alle("text", "Kurventexte");
  ASSERT_EQ(texte.size(), 2U);  // none at 50 °C
  EXPECT_EQ(texte[0].text, "40 °C");
  EXPECT_LT(texte[0].zahl("x") + Textbreite("40 °C", 11) / 2, im_Rahmen(leser, 0.2, 0).x);
  EXPECT_EQ(texte[1].text, "cycle");
}

TEST(SchaubildSvg, LabelsOfNeighboursDontCoverOneAnother) {
  Schaubild bild = gerades_Bild();
  for (int n = 0; n < 12; ++n) {
    const double y = 50 + 0.2 * n;  // 1.4 units apart
    bild.Kurven.push_back(Linie(Kurvenart::Isotherme, {{0, y}, {10, y}}, "", "40 °C"));
  }
  const auto texte = gelesen(bild).alle("text", "Kurventexte");
  EXPECT_GE(texte.size(), 8U);
  for (std::size_t a = 0; a < texte.size(); ++a)
    for (std::size_t b = 0; b < a; ++b)
      EXPECT_TRUE(std::abs(texte[a].zahl("x") - texte[b].zahl("x")) >= Textbreite("40 °C", 11) ||
                  std::abs(texte[a].zahl("y") - texte[b].zahl("y")) >= 11)
          << a << ' ' << b;
}

TEST(SchaubildSvg, NumbersOfCrowdedMarksDontCoverOneAnother) {
  Schaubild bild = gerades_Bild();
  bild.Kurven = {Linie(Kurvenart::Prozess, {{2, 20}, {8, 20}, {8, 80}, {2, 80}, {2, 20}})};
  for (int n = 0; n < 12; ++n)
    bild.Marken.push_back({7.9 + 0.02 * n, 79.8 + 0.1 * (n % 4), std::to_string(n + 1), {}});
  bild.Marken.push_back(bild.Marken[0]);
  bild.Marken.push_back({10, 0, "corner", {}});
  const SvgLeser leser = gelesen(bild);
  const auto scheiben = leser.alle("rect", "Marken");
  const auto kreise = leser.alle("circle", "Marken");
  ASSERT_EQ(scheiben.size(), 14U);
  ASSERT_EQ(kreise.size(), 14U);
  const SvgElement rahmen = leser.rahmen();
  const auto rechts = [](const SvgElement& e) { return e.zahl("x") + e.zahl("width"); };
  const auto unten = [](const SvgElement& e) { return e.zahl("y") + e.zahl("height"); };
  for (std::size_t a = 0; a < scheiben.size(); ++a) {
    const SvgElement& s = scheiben[a];
    EXPECT_GE(s.zahl("x"), rahmen.zahl("x"));
    EXPECT_LE(rechts(s), rechts(rahmen));
    EXPECT_LE(unten(s), unten(rahmen));
    for (const SvgElement& k : kreise)
      EXPECT_TRUE(k.zahl("cx") <= s.zahl("x") || k.zahl("cx") >= rechts(s) ||
                  k.zahl("cy") <= s.zahl("y") || k.zahl("cy") >= unten(s));
    for (std::size_t b = 0; b < a; ++b) {
      const SvgElement& t = scheiben[b];
      EXPECT_TRUE(rechts(s) <= t.zahl("x") || rechts(t) <= s.zahl("x") || unten(s) <= t.zahl("y") ||
                  unten(t) <= s.zahl("y"))
          << a << ' ' << b;
    }
  }
}

TEST(SchaubildSvg, AnEmptyChartHasItsAxes) {
  for (const bool log : {false, true}) {
    Schaubild bild;
    bild.x.log = bild.y.log = log;
    const SvgLeser leser = gelesen(bild);
    EXPECT_TRUE(Zuege(leser).empty());
    EXPECT_TRUE(leser.alle("g", "Tafel").empty());
    EXPECT_TRUE(enthaelt(leser.texte("Achsen"), log ? "10" : "0.5"));
  }
}

TEST(SchaubildSvg, ASingleMarkStandsInTheMiddle) {
  Schaubild bild;
  bild.y.log = true;
  bild.Marken = {{250, 10, "1", {}}};
  const SvgLeser leser = gelesen(bild);
  const SvgElement kreis = leser.alle("circle", "Marken").at(0);
  erwarte_Ort({kreis.zahl("cx"), kreis.zahl("cy")}, im_Rahmen(leser, 0.5, 0.5));
}

TEST(SchaubildSvg, FiguresHaveAtMostTwoDecimalsWhateverTheLocale) {
  struct Komma : std::numpunct<char> {
    char do_decimal_point() const override { return ','; }
    char do_thousands_sep() const override { return '.'; }
    std::string do_grouping() const override { return "\3"; }
  };
  Schaubild bild = gerades_Bild();
  bild.Kurven = {Linie(Kurvenart::Grenze, {{1.0 / 3, 100.0 / 7}, {2.0 / 3, 20}, {9, 200.0 / 3}})};
  bild.Marken = {{1.0 / 3, 100.0 / 7, "1", {"1234567.891"}}};
  const std::string vorher = SVG_Text(bild);
  const std::locale alt = std::locale::global(std::locale(std::locale::classic(), new Komma));
  const std::string nachher = SVG_Text(bild);
  std::locale::global(alt);
  EXPECT_EQ(vorher, nachher);
  for (const SvgElement& element : SvgLeser(vorher).elemente)
    for (const auto& [name, wert] : element.attribute)
      EXPECT_FALSE(std::regex_search(wert, std::regex("[0-9]\\.[0-9]{3}"))) << name << ' ' << wert;
}

TEST(SchaubildSvg, EqualChartsGiveEqualFiles) {
  Schaubild bild = gerades_Bild();
  bild.Kurven = {Linie(Kurvenart::Prozess, {{2, 20}, {8, 20}, {8, 80}}, "Cycle", "here")};
  bild.Marken = {{2, 20, "1", {"a"}}, {8, 20, "2", {"b"}}};
  EXPECT_EQ(SVG_Text(bild), SVG_Text(Schaubild(bild)));
}

TEST(SchaubildSvg, WildDataStillMakeAFile) {
  std::mt19937 zufall(4711);
  const std::vector<double> werte = {0,    -0.0, 1,     -1,    1e-300,   1e300, -1e300, leer,
                                     1e12, 5,    5.001, 1e-12, HUGE_VAL, 0.1,   250,    400,
                                     1e-9, 3,    70,    -40,   2e12,     1e-5,  100,    33};
  const auto wert = [&] { return werte[zufall() % werte.size()]; };
  for (int lauf = 0; lauf < 400; ++lauf) {
    Schaubild bild;
    bild.x = {"x", zufall() % 2 == 0, wert(), wert()};
    bild.y = {"y", zufall() % 2 == 0, wert(), wert()};
    for (int k = 0; k < 6; ++k) {
      Kurve kurve{static_cast<Kurvenart>(k), "L" + std::to_string(k), "label", {}};
      for (unsigned n = zufall() % 6; n > 0; --n) kurve.Punkte.push_back({wert(), wert()});
      bild.Kurven.push_back(kurve);
    }
    for (unsigned n = zufall() % 4; n > 0; --n) bild.Marken.push_back({wert(), wert(), "1", {}});
    const std::string svg = SVG_Text(bild);
    ASSERT_NO_THROW(SvgLeser{svg}) << lauf;
    for (const SvgElement& element : SvgLeser(svg).elemente)
      for (const auto& [name, text] : element.attribute) {
        ASSERT_EQ(text.find("nan"), std::string::npos) << lauf << ' ' << name;
        ASSERT_EQ(text.find("inf"), std::string::npos) << lauf << ' ' << name;
        ASSERT_FALSE(name != "font-family" && text.empty()) << lauf << ' ' << name;
      }
    const SvgElement rahmen = SvgLeser(svg).rahmen();
    for (const SvgElement& zug : Zuege(SvgLeser(svg)))
      for (const Bildort& ort : Punkte(zug)) {
        ASSERT_GE(ort.x, rahmen.zahl("x") - 0.01) << lauf;
        ASSERT_LE(ort.x, rahmen.zahl("x") + rahmen.zahl("width") + 0.01) << lauf;
        ASSERT_GE(ort.y, rahmen.zahl("y") - 0.01) << lauf;
        ASSERT_LE(ort.y, rahmen.zahl("y") + rahmen.zahl("height") + 0.01) << lauf;
      }
  }
}
