#include "monitoring/alarmregel.h"

#include <gtest/gtest.h>

#include <utility>

#include "support/texte.h"

using namespace polarkreis;

namespace {

using Liste = std::vector<std::string>;

struct AlarmregelTest : testing::Test {
  Texte texte;
  const Captions& captions = texte.captions;
  Alarmregel regel;

  /// One field of the rule alone, as it is packed.
  std::string gepackt(Regelzeile zeile, const std::string& text) {
    Alarmregel allein;
    allein[zeile] = text;
    const std::string ganz = Regel_packen(captions, allein);
    const std::string kopf = std::string(Regelschluessel(zeile)) + "=";
    for (const std::string& item : Regel_teilen(ganz))
      if (item.starts_with(kopf)) return item;
    return "no such item in " + ganz;
  }
  std::string text(std::string_view item) { return alerts_find(captions, item).Text; }
  int zeile(std::string_view item) { return alerts_find(captions, item).Zeile; }
};

}  // namespace

TEST_F(AlarmregelTest, RuleIsPackedAsEightItemsInTheirOrder) {
  regel.texte = {"ON", "tc", "  ", "  ", ">", "45", "10", "SMS + E-Mail"};
  EXPECT_EQ(Regel_packen(captions, regel), "c1=tc;ro=  ;c2=  ;cm=3;vl=45;ti=10;nt=3;en=1;");
  regel.texte = {"OFF", "po", "-", "tSL", "<=", "-1.5", "", "SMS"};
  EXPECT_EQ(Regel_packen(captions, regel), "c1=po;ro=-;c2=tSL;cm=2;vl=-1.5;ti=;nt=1;en=0;");
}

TEST_F(AlarmregelTest, EmptyRuleIsPackedInItsCodedForm) {
  EXPECT_EQ(Regel_packen(captions, regel), "c1=;ro=;c2=;cm=3;vl=;ti=;nt=3;en=0;");
}

TEST_F(AlarmregelTest, OnlyOnIsOne) {
  EXPECT_EQ(gepackt(Regelzeile::en, "ON"), "en=1;");
  EXPECT_EQ(gepackt(Regelzeile::en, " ON "), "en=1;");
  for (const char* aus : {"OFF", "", "1", "x"}) EXPECT_EQ(gepackt(Regelzeile::en, aus), "en=0;");
}

TEST_F(AlarmregelTest, ComparisonsAreOneToFiveAndAnythingElseThree) {
  const std::pair<const char*, const char*> faelle[] = {
      {"<", "cm=1;"},    {"<=", "cm=2;"}, {">", "cm=3;"}, {">=", "cm=4;"},
      {"==", "cm=5;"},   {"  ", "cm=3;"}, {"", "cm=3;"},  {"=", "cm=3;"},
      {" <= ", "cm=2;"}, {"1", "cm=3;"},  {"<>", "cm=3;"}};
  for (const auto& [eingabe, item] : faelle) EXPECT_EQ(gepackt(Regelzeile::cm, eingabe), item);
}

TEST_F(AlarmregelTest, RecipientsAreZeroToThreeAndAnythingElseThree) {
  const std::pair<const char*, const char*> faelle[] = {
      {"none", "nt=0;"}, {"SMS", "nt=1;"},  {"E-Mail", "nt=2;"}, {"SMS + E-Mail", "nt=3;"},
      {"", "nt=3;"},     {"SMS1", "nt=3;"}, {" SMS ", "nt=1;"},  {"ftp", "nt=3;"}};
  for (const auto& [eingabe, item] : faelle) EXPECT_EQ(gepackt(Regelzeile::nt, eingabe), item);
}

TEST_F(AlarmregelTest, NoneIsTheCaptionOfTheLanguage) {
  const Texte deutsch("GER");
  Alarmregel keine;
  keine[Regelzeile::nt] = "ohne";
  EXPECT_NE(Regel_packen(deutsch.captions, keine).find("nt=0;"), std::string::npos);
  EXPECT_NE(Regel_packen(captions, keine).find("nt=3;"), std::string::npos);
  EXPECT_EQ(alerts_find(deutsch.captions, "nt=0;").Text, "ohne");
  EXPECT_EQ(text("nt=0;"), "none");
}

TEST_F(AlarmregelTest, EmptyCaptionForNoneMatchesNothing) {
  Meldungen meldungen;
  Ablage leer("/nonexistent", meldungen);
  const Captions ohne(leer);
  EXPECT_EQ(Regel_packen(ohne, regel), "c1=;ro=;c2=;cm=3;vl=;ti=;nt=3;en=0;");
}

TEST_F(AlarmregelTest, OtherFieldsAreTakenAsTheyStand) {
  EXPECT_EQ(gepackt(Regelzeile::c1, " tSL "), "c1= tSL ;");
  EXPECT_EQ(gepackt(Regelzeile::ro, "  "), "ro=  ;");
  EXPECT_EQ(gepackt(Regelzeile::c2, "ä\"b"), "c2=ä\"b;");
  EXPECT_EQ(gepackt(Regelzeile::vl, " 4,5 K"), "vl= 4,5 K;");
  EXPECT_EQ(gepackt(Regelzeile::ti, "x=y"), "ti=x=y;");
}

TEST_F(AlarmregelTest, PackedRuleIsPartedBehindEachSemicolon) {
  EXPECT_EQ(Regel_teilen("c1=tc;ro=  ;vl=45;"), (Liste{"c1=tc;", "ro=  ;", "vl=45;"}));
  EXPECT_EQ(Regel_teilen("c1=tc;rest"), Liste{"c1=tc;"});
  EXPECT_EQ(Regel_teilen(";;"), (Liste{";", ";"}));
  EXPECT_EQ(Regel_teilen(""), Liste{});
  EXPECT_EQ(Regel_teilen("no item"), Liste{});
}

TEST_F(AlarmregelTest, ItemGivesItsTextAndItsRow) {
  const std::pair<const char*, int> faelle[] = {{"en=1;", 1},  {"c1=tc;", 2}, {"ro=+;", 3},
                                                {"c2=to;", 4}, {"cm=1;", 5},  {"vl=45;", 6},
                                                {"ti=10;", 7}, {"nt=2;", 8}};
  for (const auto& [item, reihe] : faelle) EXPECT_EQ(zeile(item), reihe) << item;
  EXPECT_EQ(text("c1=tc;"), "tc");
  EXPECT_EQ(text("ro=  ;"), "  ");
  EXPECT_EQ(text("c2=;"), "");
  EXPECT_EQ(text("vl= 4,5 K;"), " 4,5 K");
  EXPECT_EQ(text("ti=10"), "10");
}

TEST_F(AlarmregelTest, CodesGiveTheirTexts) {
  EXPECT_EQ(text("en=1;"), "ON");
  for (const char* aus : {"en=0;", "en=;", "en=2;", "en=ON;", "en=11;"})
    EXPECT_EQ(text(aus), "OFF");
  const char* zeichen[] = {"<", "<=", ">", ">=", "=="};
  for (int i = 1; i <= 5; ++i) EXPECT_EQ(text("cm=" + std::to_string(i) + ";"), zeichen[i - 1]);
  for (const char* fremd : {"cm=0;", "cm=6;", "cm=;", "cm=<;", "cm=-1;", "cm=99999999999;"})
    EXPECT_EQ(text(fremd), ">") << fremd;
  EXPECT_EQ(text("nt=1;"), "SMS");
  EXPECT_EQ(text("nt=2;"), "E-Mail");
  for (const char* fremd : {"nt=3;", "nt=4;", "nt=;", "nt=SMS;", "nt=-1;"})
    EXPECT_EQ(text(fremd), "SMS + E-Mail") << fremd;
}

TEST_F(AlarmregelTest, ValueGoesToTheFirstSemicolon) {
  EXPECT_EQ(text("vl=45;6;"), "45");
  EXPECT_EQ(text("vl=;6;"), "");
}

TEST_F(AlarmregelTest, UnknownKeyGivesAnEmptyTextAndChangesNothing) {
  for (const char* item : {"xx=5;", "EN=1;", "e", "", ";", "c1", "vl5;", "=;"}) {
    EXPECT_EQ(text(item), "") << item;
    EXPECT_EQ(zeile(item), 0) << item;
    regel.texte.fill("old");
    Item_uebernehmen(captions, item, regel);
    for (const std::string& feld : regel.texte) EXPECT_EQ(feld, "old") << item;
  }
}

TEST_F(AlarmregelTest, ItemGoesIntoItsFieldOnly) {
  regel.texte.fill("old");
  Item_uebernehmen(captions, "vl=45;", regel);
  EXPECT_EQ(regel[Regelzeile::vl], "45");
  int alte = 0;
  for (const std::string& feld : regel.texte) alte += feld == "old";
  EXPECT_EQ(alte, 7);
}

TEST_F(AlarmregelTest, SemicolonTypedIntoTheLimitLosesWhatIsBehindIt) {
  regel[Regelzeile::vl] = "45;6";
  const std::string gepackt_ = Regel_packen(captions, regel);
  EXPECT_EQ(gepackt_, "c1=;ro=;c2=;cm=3;vl=45;6;ti=;nt=3;en=0;");
  Alarmregel wieder;
  for (const std::string& item : Regel_teilen(gepackt_)) Item_uebernehmen(captions, item, wieder);
  EXPECT_EQ(wieder[Regelzeile::vl], "45");
  EXPECT_EQ(wieder[Regelzeile::nt], "SMS + E-Mail");
}

TEST_F(AlarmregelTest, RuleComesBackAsItWas) {
  regel.texte = {"ON", "tin1", "-", "tout2", "==", "-3.25", "15", "E-Mail"};
  Alarmregel wieder;
  for (const std::string& item : Regel_teilen(Regel_packen(captions, regel)))
    Item_uebernehmen(captions, item, wieder);
  EXPECT_EQ(wieder.texte, regel.texte);
}

TEST_F(AlarmregelTest, UnchosenFieldsComeBackInTheirCodedForm) {
  regel[Regelzeile::cm] = "  ";
  regel[Regelzeile::nt] = "somebody";
  Alarmregel wieder;
  for (const std::string& item : Regel_teilen(Regel_packen(captions, regel)))
    Item_uebernehmen(captions, item, wieder);
  EXPECT_EQ(wieder[Regelzeile::cm], ">");
  EXPECT_EQ(wieder[Regelzeile::nt], "SMS + E-Mail");
  EXPECT_EQ(wieder[Regelzeile::en], "OFF");
}

TEST_F(AlarmregelTest, ListsOfTheFields) {
  const Liste kanaele = {"  ",   "po",   "pc",   "to",   "tc",    "tSL",
                         "tliq", "texp", "tin1", "tin2", "tout1", "tout2"};
  EXPECT_EQ(Liste(Alarmkanaele().begin(), Alarmkanaele().end()), kanaele);
  EXPECT_EQ(Regelauswahl(captions, Regelzeile::en), (Liste{"ON", "OFF"}));
  EXPECT_EQ(Regelauswahl(captions, Regelzeile::c1), kanaele);
  EXPECT_EQ(Regelauswahl(captions, Regelzeile::ro), (Liste{"  ", "+", "-"}));
  EXPECT_EQ(Regelauswahl(captions, Regelzeile::c2), kanaele);
  EXPECT_EQ(Regelauswahl(captions, Regelzeile::cm), (Liste{"  ", "<", "<=", ">", ">=", "=="}));
  EXPECT_EQ(Regelauswahl(captions, Regelzeile::vl), Liste{});
  EXPECT_EQ(Regelauswahl(captions, Regelzeile::ti), Liste{});
  EXPECT_EQ(Regelauswahl(captions, Regelzeile::nt),
            (Liste{"none", "SMS", "E-Mail", "SMS + E-Mail"}));
}

TEST_F(AlarmregelTest, KeysOfTheFields) {
  const char* schluessel[] = {"en", "c1", "ro", "c2", "cm", "vl", "ti", "nt"};
  for (int i = 1; i <= Regelzeilen; ++i)
    EXPECT_EQ(Regelschluessel(static_cast<Regelzeile>(i)), schluessel[i - 1]);
}
