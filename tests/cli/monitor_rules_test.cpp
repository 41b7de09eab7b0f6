#include "monitorplatz.h"

namespace {

using namespace monitor_platz;

using MonitorRules = Platz;

TEST_F(MonitorRules, RulesReadAsSentences) {
  Anlagenregister r = zwei_Anlagen();
  r(2, 41) = "c1=tin1;ro=-;c2=tout1;cm=2;vl=0,5;ti=;nt=1;en=0;";
  r(2, 42) = kLeereRegel;
  r(2, 43) = "c1=;ro=;c2=;cm=3;vl=;ti=;nt=3;en=1;";
  r.schreib(daten);
  const Antwort a = rufe({"rules", "K17"});
  EXPECT_EQ(a.status, 0) << a.fehler;
  EXPECT_TRUE(enthaelt(a.ausgabe, "   1  ON     tc > 45 for 10 min: SMS + E-Mail\n")) << a.ausgabe;
  EXPECT_TRUE(enthaelt(a.ausgabe, "   2  OFF    tin1 - tout1 <= 0,5: SMS\n")) << a.ausgabe;
  EXPECT_TRUE(enthaelt(a.ausgabe, "   3         (empty)\n")) << a.ausgabe;
  EXPECT_TRUE(enthaelt(a.ausgabe, "  16         (empty)\n")) << a.ausgabe;
  const json regeln = json_von({"rules", "K17"});
  EXPECT_EQ(regeln["row"], 2);
  ASSERT_EQ(regeln["rules"].size(), 16U);
  const json& erste = regeln["rules"][0];
  EXPECT_EQ(erste["rule"], 1);
  EXPECT_EQ(erste["en"], "ON");
  EXPECT_EQ(erste["c1"], "tc");
  EXPECT_EQ(erste["ro"], "  ");
  EXPECT_EQ(erste["cm"], ">");
  EXPECT_EQ(erste["nt"], "SMS + E-Mail");
  EXPECT_EQ(erste["packed"], kRegel);
  EXPECT_EQ(erste["empty"], false);
  EXPECT_EQ(regeln["rules"][2]["empty"], true);
  EXPECT_EQ(regeln["rules"][3]["empty"], false) << "it is ON";
  EXPECT_EQ(regeln["rules"][15]["packed"], "");
  EXPECT_EQ(registertext(), r.text());
}

TEST_F(MonitorRules, RuleIsPackedIntoItsColumn) {
  Anlagenregister r = zwei_Anlagen();
  r.schreib(daten);
  const Antwort a = rufe({"rule", "K17", "16", "c1=TSL", "ro=+", "c2=po",
                          "cm==", "cm=>=", "vl=-1,5", "ti= 20 ", "nt=e-mail", "en=1"});
  EXPECT_EQ(a.status, 2);  // "=" is no comparison
  EXPECT_EQ(registertext(), r.text());
  const Antwort b = rufe({"rule", "K17", "16", "c1=TSL", "ro=+", "c2=po", "cm===", "vl=-1,5",
                          "ti= 20 ", "nt=e-mail", "en=1"});
  EXPECT_EQ(b.status, 0) << b.fehler;
  EXPECT_TRUE(enthaelt(b.ausgabe, "rule 16 of K17, ON: tSL + po == -1,5 for 20 min: E-Mail"))
      << b.ausgabe;
  for (int s = 41; s < 55; ++s) r(2, s) = kLeereRegel;
  r(2, 55) = "c1=tSL;ro=+;c2=po;cm=5;vl=-1,5;ti=20;nt=2;en=1;";
  EXPECT_EQ(registertext(), r.text());
}

TEST_F(MonitorRules, EmptyChannelsAndJoinAreStoredAsNone) {
  Anlagenregister r = zwei_Anlagen();
  r(2, 40) = "c1=tc;ro=+;c2=po;cm=1;vl=45;ti=10;nt=3;en=1;";
  r.schreib(daten);
  const json regel =
      json_von({"rule", "K17", "1", "ro=", "c2=", "vl=", "ti=", "cm=4", "nt=0", "en=OFF"});
  EXPECT_EQ(regel["packed"], "c1=tc;ro=  ;c2=  ;cm=4;vl=;ti=;nt=0;en=0;");
  EXPECT_EQ(Anlagenregister(daten)(2, 40), "c1=tc;ro=  ;c2=  ;cm=4;vl=;ti=;nt=0;en=0;");
}

TEST_F(MonitorRules, ARuleOfAnUnknownPlantMakesIt) {
  Anlagenregister r = zwei_Anlagen();
  r.schreib(daten);
  const Antwort a = rufe({"rule", "K1", "1", "c1=tc", "en=ON"});
  EXPECT_EQ(a.status, 0) << a.fehler;
  EXPECT_TRUE(enthaelt(a.fehler, "is made in row 1")) << a.fehler;
  r(1, 1) = "K1";
  r(1, 40) = "c1=tc;ro=;c2=;cm=3;vl=;ti=;nt=3;en=1;";
  for (int s = 41; s <= 55; ++s) r(1, s) = kLeereRegel;
  EXPECT_EQ(registertext(), r.text());
}

}  // namespace
