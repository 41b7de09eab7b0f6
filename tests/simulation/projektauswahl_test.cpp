// What the form's selections offer, and the kinds that their texts name.

#include <gtest/gtest.h>

#include <set>

#include "projekt_desk.h"
#include "shell/text.h"

using namespace polarkreis;

namespace {

using Texts = std::vector<std::string>;

struct Projektauswahl : testing::TestWithParam<const char*> {
  ProjektDesk desk{GetParam()};
  Projektdaten& form = desk.form;
};

INSTANTIATE_TEST_SUITE_P(Languages, Projektauswahl, testing::Values("ENG", "GER"));

}  // namespace

TEST_P(Projektauswahl, SelectionsOfferTheirCaptions) {
  const Texts sizes{desk.h(8), desk.p(3), desk.h(10)};
  const Texts controls{desk.j(41), desk.j(42), desk.j(43), desk.j(44), desk.j(45)};
  EXPECT_EQ(form.Auswahl("AnwendBereich"),
            (Texts{desk.j(3), desk.j(4), desk.j(5), desk.j(6), desk.j(7), desk.j(2), desk.j(31)}));
  for (const char* item : {"vdsize", "VFlsize", "AnlGroesse", "Leitungsdimension"})
    EXPECT_EQ(form.Auswahl(item), sizes) << item;
  for (const char* item : {"RGart", "RGartL", "RGartP"})
    EXPECT_EQ(form.Auswahl(item), controls) << item;
  EXPECT_EQ(form.Auswahl("AmbientT"), (Texts{desk.p(2), desk.h(15), desk.p(4), desk.h(17)}));
  EXPECT_EQ(form.Auswahl("Tempbereich"), (Texts{desk.j(18), desk.j(19), desk.j(20), desk.h(15)}));
  EXPECT_EQ(form.Auswahl("WartungI"), (Texts{desk.j(23), desk.j(24), desk.j(25)}));
  EXPECT_EQ(form.Auswahl("Fullzustand"), (Texts{desk.j(26), desk.j(27), desk.j(28)}));
  EXPECT_EQ(form.Auswahl("WaermeD"), (Texts{desk.p(15), desk.p(2), desk.h(15), desk.p(4)}));
  EXPECT_EQ(form.Auswahl("Verdichterbauart"), (Texts{desk.c(86), desk.c(87), desk.c(88)}));
  EXPECT_EQ(form.Auswahl("Combo1"), (Texts{desk.j(48), desk.j(49), desk.c(138)}));
  EXPECT_EQ(form.Auswahl("verdichter_typ"), (Texts{desk.c(89), "Scroll", desk.c(90), "Turbo"}));
}

TEST_P(Projektauswahl, ComposedSelections) {
  EXPECT_EQ(form.Auswahl("Anlagenart_Combo"),
            (Texts{desk.c(134) + " - " + desk.c(217), desk.c(135) + " - " + desk.c(129),
                   desk.c(135) + " - " + desk.c(130)}));
  EXPECT_EQ(form.Auswahl("Vfl_typ"),
            (Texts{desk.p(27), desk.s(24), desk.s(24) + " " + desk.p(27), desk.p(26), "Kühlturm",
                   desk.p(27) + "/adiabt", desk.s(24) + "/adiabt"}));
}

TEST_P(Projektauswahl, NumbersAndClasses) {
  EXPECT_EQ(form.Auswahl("DT_v_combo"),
            (Texts{"3", "4", "5", "6", "7", "8", "9", "10", "11", "12"}));
  EXPECT_EQ(form.Auswahl("VERFL_Eff_combo"), (Texts{"A+", "A", "B", "C", "D", "E", "F"}));
  EXPECT_EQ(form.Auswahl("ErP_Vers"), (Texts{"2016", "2018"}));
  EXPECT_EQ(form.Auswahl("Lamm_AB_combo"), (Texts{"4", "7", "10", "12"}));
  EXPECT_EQ(form.Auswahl("WinterRGart").front(), desk.p(15));
  EXPECT_EQ(form.Auswahl("KaelteM").size(), KM_Katalog().size());
  EXPECT_TRUE(form.Auswahl("Q0").empty());
  EXPECT_TRUE(form.Auswahl("Stadt").empty());
}

TEST_P(Projektauswahl, TextsOfOneSelectionDiffer) {
  for (const Projektfeld& item : Projektfelder()) {
    std::set<std::string> different;
    const Texts texts = form.Auswahl(item.name);
    for (const std::string& text : texts) {
      EXPECT_FALSE(text.empty()) << item.name;
      different.insert(gross(text));
    }
    EXPECT_EQ(different.size(), texts.size()) << item.name;
  }
}

TEST_P(Projektauswahl, KindsOfCalculationHaveTheirTexts) {
  const std::string sepr = desk.c(81) + " SEPR " + desk.j(7) + " ";
  EXPECT_EQ(form.Rechart_Auswahl(),
            (Texts{desk.j(50) + " VDI 2067",
                   desk.j(51) + ": " + desk.c(81) + " " + desk.a(65) + "-" + desk.a(76),
                   sepr + desk.j(18), sepr + desk.j(19), sepr + desk.j(20),
                   desk.c(81) + " SEER  " + desk.j(3)}));
}

TEST_P(Projektauswahl, KindOfCalculationDecidesValueAndLabel) {
  const Texts kinds = form.Rechart_Auswahl();
  const Texts labels{"ESEER", "SEER/SEPR", "SEPR", "SEPR", "SEPR", "SEER"};
  for (std::size_t i = 0; i < kinds.size(); ++i) {
    const Rechenart art = Rechenart_von(desk.captions, kinds[i]);
    EXPECT_EQ(art.Rechart, i == 0 ? 0 : 1) << kinds[i];
    EXPECT_EQ(art.Bewertung, labels[i]) << kinds[i];
  }
  EXPECT_EQ(Rechenart_von(desk.captions, "anything").Rechart, 1);
  EXPECT_EQ(Rechenart_von(desk.captions, "anything").Bewertung, "SEER/SEPR");
}

TEST_P(Projektauswahl, NormKindSetsItsThreeFieldsAndNothingElse) {
  const Texts kinds = form.Rechart_Auswahl();
  const std::vector<Texts> expected{{desk.j(7), desk.j(18), "3"},
                                    {desk.j(7), desk.j(19), "-10"},
                                    {desk.j(7), desk.j(20), "-35"},
                                    {desk.j(3), desk.h(15), "3"}};
  form.aendern("vdsize", desk.h(8));
  for (std::size_t i = 0; i < expected.size(); ++i) {
    form.DT_v_combo = "6";
    form.aendern("Rechart_combo", kinds[i + 2]);
    EXPECT_EQ((Texts{form.AnwendBereich, form.Tempbereich, form.t0}), expected[i]);
    EXPECT_EQ(form.Rechart, "1");
    EXPECT_EQ(form.DT_v_combo, "6");
  }
}

TEST_P(Projektauswahl, OtherKindsLeaveTheFields) {
  form.AnwendBereich = desk.j(2);
  form.t0 = "-20";
  for (const std::size_t i : {0U, 1U}) {
    form.Rechart_waehlen(form.Rechart_Auswahl()[i]);
    EXPECT_EQ(form.Rechart, i == 0 ? "0" : "1");
    EXPECT_EQ(form.AnwendBereich, desk.j(2));
    EXPECT_EQ(form.t0, "-20");
  }
}

TEST_P(Projektauswahl, AnnualKindGreysTheOperatingFigures) {
  const Texts kinds = form.Rechart_Auswahl();
  for (std::size_t i = 0; i < kinds.size(); ++i) {
    form.Rechart_waehlen(kinds[i]);
    EXPECT_EQ(form.Betriebszahlen_wirksam(), i == 0) << kinds[i];
  }
}

TEST_P(Projektauswahl, CondenserKindIsReadFromItsText) {
  using V = Verfluessigerart;
  const std::vector<V> kinds{V::Luft,      V::Luft,    V::Luft,   V::Wasser,
                             V::Kuehlturm, V::Adiabat, V::Adiabat};
  const Texts texts = form.Auswahl("Vfl_typ");
  ASSERT_EQ(texts.size(), kinds.size());
  for (std::size_t i = 0; i < texts.size(); ++i)
    EXPECT_EQ(Verfluessigerart_von(desk.captions, texts[i]), kinds[i]) << texts[i];
  EXPECT_EQ(Verfluessigerart_von(desk.captions, "anything"), V::Luft);
  EXPECT_EQ(Verfluessigerart_von(desk.captions, " KÜHLTURM "), V::Kuehlturm);
}

TEST(Projektaenderung, ControlsTakeNumbersAndTexts) {
  ProjektDesk desk;
  Projektdaten& form = desk.form;
  for (const char* on : {"1", "true", "TRUE"}) {
    EXPECT_TRUE(form.aendern("HeizCheck", on));
    EXPECT_TRUE(form.HeizCheck) << on;
    EXPECT_TRUE(form.aendern("HeizCheck", "0"));
    EXPECT_FALSE(form.HeizCheck);
  }
  EXPECT_TRUE(form.aendern("FreeC_Check", "1") && form.FreeC_Check);
  EXPECT_TRUE(form.aendern("ParaL_Check", "1") && form.ParaL_Check);
  EXPECT_TRUE(form.aendern("Check3D1", "1") && form.Check3D1);
  EXPECT_TRUE(form.aendern("Gleitopt", "1") && form.Gleitopt);
  EXPECT_FALSE(form.aendern("Gleitopt", "false") && form.Gleitopt);
  EXPECT_TRUE(form.aendern("ECO_OPT", "2"));
  EXPECT_EQ(form.ECO_OPT, 2);
  EXPECT_TRUE(form.aendern("ECO_OPT", "true"));
  EXPECT_EQ(form.ECO_OPT, 1);
  EXPECT_TRUE(form.aendern("ECO_OPT", "1e300"));
  EXPECT_EQ(form.ECO_OPT, 0);
}

TEST(Projektaenderung, TextsAreStoredAsTyped) {
  ProjektDesk desk;
  Projektdaten& form = desk.form;
  EXPECT_TRUE(form.aendern("Q0", "12,50"));
  EXPECT_EQ(form.Q0, "12,50");
  EXPECT_TRUE(form.aendern("ErP_Vers", "2018"));
  EXPECT_EQ(form.ErP_Vers, "2018");
  EXPECT_TRUE(form.aendern("Lamm_AB_combo", "7"));
  EXPECT_EQ(form.Lamm_AB_combo, "7");
  EXPECT_TRUE(form.aendern("VERDA_Eff_combo", "C"));
  EXPECT_EQ(form.VERDA_Eff_combo, "C");
  EXPECT_TRUE(form.aendern("EnergKost", "0,25"));
  EXPECT_EQ(form.energie.EnergKost, "0,25");
  EXPECT_TRUE(form.aendern("WaterCheck", "true"));
  EXPECT_EQ(form.WaterCheck, "1");
}

TEST(Projektaenderung, UnknownNameIsRefusedAndTheReservedItemStaysEmpty) {
  ProjektDesk desk;
  EXPECT_FALSE(desk.form.aendern("Nonsense", "1"));
  EXPECT_FALSE(desk.form.aendern("", "1"));
  EXPECT_TRUE(desk.form.aendern("reserviert", "x"));
  EXPECT_EQ(desk.form.reserviert, "");
}

TEST(Projektaenderung, DefrostKindAndItsButtonsKeepInStep) {
  ProjektDesk desk;
  Projektdaten& form = desk.form;
  form.aendern("Abtauart", "1");
  EXPECT_TRUE(form.HeißGAbt && !form.KaltGAbt);
  form.aendern("Abtauart", "2");
  EXPECT_TRUE(form.KaltGAbt && !form.HeißGAbt);
  form.aendern("HeißGAbt", "1");
  EXPECT_TRUE(form.HeißGAbt && !form.KaltGAbt);
  EXPECT_EQ(form.Abtauart, "1");
  form.aendern("KaltGAbt", "1");
  EXPECT_FALSE(form.HeißGAbt);
  EXPECT_EQ(form.Abtauart, "2");
  form.aendern("HeißGAbt", "0");
  EXPECT_EQ(form.Abtauart, "2");
  form.aendern("KaltGAbt", "0");
  EXPECT_EQ(form.Abtauart, "0");
}

TEST(Projektaenderung, ItemTwentyOneSelectsTheKind) {
  ProjektDesk desk;
  desk.form.aendern("Rechart", "1");
  EXPECT_EQ(desk.form.Rechart_combo, "Annual run: Rating January-December");
  desk.form.aendern("Rechart", "0");
  EXPECT_EQ(desk.form.Rechart_combo, "Design point VDI 2067");
}
