#include <filesystem>
#include <thread>

#include "monitorplatz.h"

namespace {

using namespace monitor_platz;

using MonitorRegister = Platz;

TEST_F(MonitorRegister, RemoveBlanksTheRow) {
  Anlagenregister r = zwei_Anlagen();
  r.schreib(daten);
  const json antwort = json_von({"remove", "K9"});
  EXPECT_EQ(antwort["row"], 4);
  r(4, 1) = r(4, 56) = "";
  EXPECT_EQ(registertext(), r.text());
  const Antwort a = rufe({"remove", "K17"});
  EXPECT_TRUE(enthaelt(a.ausgabe, "Removed: K17, row 2")) << a.ausgabe;
  EXPECT_EQ(registertext(), Anlagenregister().text());
}

TEST_F(MonitorRegister, ARegisterWithTooManyLinesIsReadButNotShortened) {
  const std::string lang = zwei_Anlagen().text() + Anlagenregister().text();
  daten.schreib(Anlagenregister::datei, lang);
  EXPECT_EQ(json_von({"list"}).size(), 2U);
  for (const Argumente& aufruf :
       {Argumente{"set", "K17", "nm=x"}, Argumente{"rule", "K17", "1", "en=OFF"},
        Argumente{"remove", "K17"}, Argumente{"download", "K17", "--save"}}) {
    const Antwort a = rufe(aufruf);
    EXPECT_EQ(a.status, 1) << aufruf.front();
    EXPECT_TRUE(enthaelt(a.fehler, "10000 lines behind")) << a.fehler;
    EXPECT_TRUE(enthaelt(a.fehler, "--force")) << a.fehler;
    EXPECT_EQ(registertext(), lang) << aufruf.front();
  }
  EXPECT_EQ(rufe({"set", "K17", "nm=x", "--force"}).status, 0);
  Anlagenregister soll = zwei_Anlagen();
  soll(2, 2) = "x";
  EXPECT_EQ(registertext(), soll.text());
}

TEST_F(MonitorRegister, AShortRegisterIsReadAndGrowsWithASave) {
  daten.schreib(Anlagenregister::datei, "\"K17\"\n\"Name\"\n\"Street");
  const json gezeigt = json_von({"show", "K17"});
  EXPECT_EQ(gezeigt["nm"], "Name");
  EXPECT_EQ(daten.lies(Anlagenregister::datei), "\"K17\"\n\"Name\"\n\"Street");
  EXPECT_EQ(rufe({"set", "K17", "nt=1"}).status, 0);
  EXPECT_EQ(std::ranges::count(registertext(), '\n'), 10000);
}

TEST_F(MonitorRegister, ARegisterThatCantBeWrittenIsSaidAndStaysWhole) {
  const Anlagenregister r = zwei_Anlagen();
  r.schreib(daten);
  for (const Argumente& aufruf : {Argumente{"monitor", "set", "K17", "nm=x"},
                                  Argumente{"monitor", "rule", "K17", "1", "en=OFF"},
                                  Argumente{"monitor", "remove", "K17"}}) {
    const Antwort a = daten.rufe_mit_grenze(16, aufruf);
    EXPECT_EQ(a.status, 1) << a.fehler;
    EXPECT_TRUE(enthaelt(a.fehler, Anlagenregister::datei)) << a.fehler;
    EXPECT_EQ(a.ausgabe, "");
    EXPECT_EQ(registertext(), r.text());
  }
}

TEST_F(MonitorRegister, ARegisterThatCantBeReadIsNeitherEmptyNorReplaced) {
  daten.schreib(std::string(Anlagenregister::datei) + "/a file", "x");
  for (const Argumente& aufruf :
       {Argumente{"list"}, Argumente{"show", "K17"}, Argumente{"set", "K17", "nm=x"}}) {
    const Antwort a = rufe(aufruf);
    EXPECT_EQ(a.status, 1);
    EXPECT_TRUE(enthaelt(a.fehler, "can't be read")) << a.fehler;
    EXPECT_EQ(a.ausgabe, "");
  }
  EXPECT_TRUE(daten.da(std::string(Anlagenregister::datei) + "/a file"));
}

TEST_F(MonitorRegister, PlantsMadeAtTheSameTimeAreAllKept) {
  constexpr int kAnlagen = 8;
  std::vector<std::thread> rufer;
  for (int i = 1; i <= kAnlagen; ++i)
    rufer.emplace_back([&, i] {
      EXPECT_EQ(rufe({"set", "P" + std::to_string(i), "nm=x"}).status, 0);
    });
  for (std::thread& r : rufer) r.join();
  EXPECT_EQ(json_von({"list"}).size(), std::size_t{kAnlagen});
}

TEST_F(MonitorRegister, AForeignLineSpoilsNoOther) {
  Anlagenregister r = zwei_Anlagen();
  r(3, 2) = "gr\xfcn";
  r(3, 3) = "\xEF\xBB\xBFmarked";
  r.schreib(daten);
  EXPECT_EQ(rufe({"set", "K17", "st=Weg"}).status, 0);
  r(2, 3) = "Weg";
  r(3, 2) = "grün";
  EXPECT_EQ(registertext(), r.text());
}

}  // namespace
