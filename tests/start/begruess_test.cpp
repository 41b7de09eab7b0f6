#include "shell/start/begruess.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <set>
#include <string>

#include "support/temp_folder.h"
#include "support/test_dialog.h"

namespace polarkreis {
namespace {

struct BegruessForm : testing::Test {
  TempOrdner daten;
  TestDialog dialog;
  Meldungen meldungen;
  Ablage ablage{daten.pfad(), meldungen};
  Einstellungen einstellungen{ablage};
  Begruess form{ablage, einstellungen, dialog};

  static int option(std::string_view code) {
    int n = 0;
    for (const Begruess::Option& o : Begruess::Optionen()) {
      ++n;
      if (o.code == code) return n;
    }
    return 0;
  }
  std::string gespeichert() {
    Einstellungen neu(ablage);
    neu.Parameter_Lesen();
    return neu[Einstellungen::Sprache];
  }
};

TEST_F(BegruessForm, OffersTheLanguagesInTheirOrder) {
  ASSERT_EQ(Begruess::Optionen().size(), Sprachen().size());
  std::set<std::string_view> texte;
  for (std::size_t i = 0; i < Sprachen().size(); ++i) {
    EXPECT_EQ(Begruess::Optionen()[i].code, Sprachen()[i]);
    texte.insert(Begruess::Optionen()[i].text);
  }
  EXPECT_EQ(texte.size(), 21u);
}

TEST_F(BegruessForm, EachOptionWritesItsCode) {
  einstellungen.Parameter_Lesen();
  for (int n = 1; n <= Begruess::Optionszahl; ++n) {
    EXPECT_TRUE(form.LanguageCheck(n));
    EXPECT_EQ(gespeichert(), Sprachen()[static_cast<std::size_t>(n - 1)]);
    EXPECT_EQ(form.Option_gewaehlt, n);
  }
}

TEST_F(BegruessForm, KeepsTheOtherSettings) {
  daten.schreib("kparam.dat", "\"\",\"\",\"\",\"ENG\",\"CHF\",\"Courier\"\r\n");
  einstellungen.Parameter_Lesen();
  EXPECT_TRUE(form.LanguageCheck(option("FRA")));
  Einstellungen neu(ablage);
  neu.Parameter_Lesen();
  EXPECT_EQ(neu[Einstellungen::Waehrung], "CHF");
  EXPECT_EQ(neu[Einstellungen::Schrift], "Courier");
}

TEST_F(BegruessForm, FindsTheCaptionFileWhateverItsCase) {
  daten.schreib("Caption.FRA", "\"français\"\r\n\"deux\"\r\n");
  daten.schreib("CAPTION.ESP", "\"español\"\r\n");
  daten.schreib("CAPTION.ndl", "\"nederlands\"\r\n");
  daten.schreib("CAPTION.nor", "\"norsk\"\r\n");
  EXPECT_TRUE(form.LanguageCheck(option("FRA")));
  EXPECT_EQ(form.Vorschau, (std::vector<std::string>{"français", "deux"}));
  EXPECT_TRUE(form.LanguageCheck(option("ESP")));
  EXPECT_EQ(form.Vorschau, std::vector<std::string>{"español"});
  EXPECT_TRUE(form.LanguageCheck(option("NDL")));
  EXPECT_EQ(form.Vorschau, std::vector<std::string>{"nederlands"});
  EXPECT_TRUE(form.LanguageCheck(option("NOR")));
  EXPECT_EQ(form.Vorschau, std::vector<std::string>{"norsk"});
}

TEST_F(BegruessForm, TheDeliveredPreviewHasAllLines) {
  std::filesystem::copy_file(std::string(POLARKREIS_DATA) + "/Caption.GER",
                             daten.pfad("Caption.GER"));
  EXPECT_TRUE(form.LanguageCheck(option("GER")));
  EXPECT_EQ(form.Vorschau.size(), 249u);
  EXPECT_EQ(form.Vorschau.front(), "Energiesimulation");
}

TEST_F(BegruessForm, AnAbsentCaptionFileGivesAnEmptyPreviewAndIsNotMade) {
  EXPECT_TRUE(form.LanguageCheck(option("ARA")));
  EXPECT_TRUE(form.Vorschau.empty());
  EXPECT_EQ(daten.namen(), std::vector<std::string>{"kparam.dat"});
}

TEST_F(BegruessForm, AnotherNumberIsNoOption) {
  EXPECT_FALSE(form.LanguageCheck(0));
  EXPECT_FALSE(form.LanguageCheck(22));
  EXPECT_FALSE(daten.da("kparam.dat"));
}

TEST_F(BegruessForm, ALanguageThatCannotBeStoredIsTold) {
  std::filesystem::create_directories(daten.pfad("kparam.dat"));
  einstellungen[Einstellungen::Sprache] = "ENG";
  EXPECT_FALSE(form.LanguageCheck(option("GER")));
  EXPECT_EQ(einstellungen[Einstellungen::Sprache], "ENG");
  EXPECT_EQ(dialog.symbole, std::vector<Symbol>{Symbol::fehler});
}

TEST_F(BegruessForm, OnlyTheTaiwaneseTextNeedsAWiderField) {
  for (const std::string_view code : Sprachen())
    EXPECT_EQ(Begruess::breiter_Text(code), code == "TWA") << code;
}

TEST_F(BegruessForm, TheVersionLineHoldsNameAndVersion) {
  EXPECT_EQ(Begruess::Versionstext(), "Polarkreis 0.1.0");
}

}  // namespace
}  // namespace polarkreis
