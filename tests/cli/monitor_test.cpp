#include "monitorplatz.h"

namespace {

using namespace monitor_platz;

using Monitor = Platz;

// --- list, show

TEST_F(Monitor, AnEmptyRegisterIsSaidAndIsNotMade) {
  const Antwort a = rufe({"list"});
  EXPECT_EQ(a.status, 0) << a.fehler;
  EXPECT_TRUE(enthaelt(a.ausgabe, "holds no plants")) << a.ausgabe;
  EXPECT_EQ(json_von({"list"}), json::array());
  EXPECT_FALSE(daten.da(Anlagenregister::datei));
  EXPECT_FALSE(daten.da("ftp_default.ini"));
  EXPECT_EQ(zugriff(daten.pfad("FMD_Temp")), 0700);
}

TEST_F(Monitor, ListShowsEachRowThatHoldsAnything) {
  Anlagenregister r = zwei_Anlagen();
  r(1, 7) = "no ID";
  r(5, 70) = "only beyond the columns in use";
  r(100, 55) = kRegel;
  r.schreib(daten);
  const Antwort a = rufe({"list"});
  EXPECT_EQ(a.status, 0) << a.fehler;
  for (const char* teil : {"K17", "Kühlhaus 3", "Aachen", "ftp + SMS2", "K9", "no ID"})
    EXPECT_TRUE(enthaelt(a.ausgabe, teil)) << teil << "\n" << a.ausgabe;
  const json liste = json_von({"list"});
  ASSERT_EQ(liste.size(), 4U) << liste;
  EXPECT_EQ(liste[0]["row"], 1);
  EXPECT_EQ(liste[0]["id"], "");
  EXPECT_EQ(liste[1]["row"], 2);
  EXPECT_EQ(liste[1]["server_choice"], 2);
  EXPECT_EQ(liste[1]["rules_on"], 1);
  EXPECT_EQ(liste[2]["id"], "K9");
  EXPECT_TRUE(liste[2]["server_choice"].is_null());
  EXPECT_EQ(liste[2]["rules_on"], 0);
  EXPECT_EQ(liste[3]["row"], 100);
  EXPECT_EQ(liste[3]["rules_on"], 1);
  EXPECT_EQ(registertext(), r.text());
}

TEST_F(Monitor, ShowHidesThePasswordUnlessAskedForIt) {
  zwei_Anlagen().schreib(daten);
  const Antwort a = rufe({"show", "K17"});
  EXPECT_EQ(a.status, 0) << a.fehler;
  EXPECT_TRUE(enthaelt(a.ausgabe, "********")) << a.ausgabe;
  EXPECT_FALSE(enthaelt(a.ausgabe + a.fehler, "s3cret"));
  EXPECT_TRUE(enthaelt(rufe({"show", "K17", "--password"}).ausgabe, "s3cret"));
  const json gezeigt = json_von({"show", " K17 "});
  EXPECT_EQ(gezeigt["row"], 2);
  EXPECT_EQ(gezeigt["id"], "K17");
  EXPECT_EQ(gezeigt["nm"], "Kühlhaus 3");
  EXPECT_EQ(gezeigt["pw"], "********");
  EXPECT_EQ(gezeigt["nt"], "ftp + SMS2");
  EXPECT_EQ(gezeigt["nt_number"].dump(), "10");
  EXPECT_EQ(gezeigt["server_choice"], 2);
  EXPECT_EQ(json_von({"show", "K17", "--password"})["pw"], "s3cret");
  EXPECT_EQ(json_von({"show", "K9"})["pw"], "");
  EXPECT_EQ(registertext(), zwei_Anlagen().text());
  EXPECT_FALSE(enthaelt(daten.lies("log/polarkreis.log"), "s3cret"));
}

TEST_F(Monitor, ABlankRouteIsTheOneThatTellsEverybody) {
  zwei_Anlagen().schreib(daten);
  const json gezeigt = json_von({"show", "K9"});
  EXPECT_EQ(gezeigt["nt"], "ftp + E-Mail + SMS1 + SMS2");
  EXPECT_EQ(gezeigt["nt_number"], 15);
  EXPECT_TRUE(gezeigt["server_choice"].is_null());
}

TEST_F(Monitor, TheFirstOfSeveralRowsWithAnIDCountsAndIsTold) {
  Anlagenregister r = zwei_Anlagen();
  r(7, 1) = " K17 ";
  r(9, 1) = "K17";
  r.schreib(daten);
  const Antwort a = rufe({"show", "K17", "--json"});
  EXPECT_EQ(a.json()["row"], 2);
  EXPECT_TRUE(enthaelt(a.fehler, "row 2 counts. The others: 7, 9.")) << a.fehler;
}

TEST_F(Monitor, AForeignIDWithASlashCanBeShownButNotMade) {
  Anlagenregister r;
  r(3, 1) = "a/b";
  r.schreib(daten);
  EXPECT_EQ(json_von({"show", "a/b"})["row"], 3);
  for (const char* id : {"c/d", "c\\d", ".", "..", "c@d", "c;d", "c#d", "c?d", "50%"}) {
    const Antwort a = rufe({"set", id, "nm=x"});
    EXPECT_EQ(a.status, 1) << id;
    EXPECT_TRUE(enthaelt(a.fehler, "name of a folder")) << a.fehler;
  }
  EXPECT_EQ(registertext(), r.text());
}

TEST_F(Monitor, AnIDThatDiffersByCapitalsOnlyIsNotMade) {
  zwei_Anlagen().schreib(daten);
  for (const Argumente& argumente :
       {Argumente{"set", "k17", "nm=x"}, Argumente{"rule", "k9", "1", "en=ON"},
        Argumente{"set", "K17", "id=k9"}}) {
    const Antwort a = rufe(argumente);
    EXPECT_EQ(a.status, 1) << a.fehler;
    EXPECT_TRUE(enthaelt(a.fehler, "by capitals only")) << a.fehler;
  }
  EXPECT_EQ(registertext(), zwei_Anlagen().text());
  EXPECT_EQ(rufe({"set", "K17", "id=k17"}).status, 0);
  EXPECT_EQ(json_von({"show", "k17"})["row"], 2);
}

TEST_F(Monitor, ControlCharactersOfARegisterDontReachTheTerminal) {
  Anlagenregister r = zwei_Anlagen();
  r(2, 2) = "\x1b[31mred";
  r.schreib(daten);
  EXPECT_FALSE(enthaelt(rufe({"list"}).ausgabe, "\x1b"));
  EXPECT_FALSE(enthaelt(rufe({"show", "K17"}).ausgabe, "\x1b"));
}

// --- set

TEST_F(Monitor, SetMakesAPlantInTheFirstRowWithoutID) {
  const Antwort a = rufe({"set",
                          "K17",
                          "nm=Kühlhaus 3; Halle = 4",
                          "st=Hafenstraße",
                          "nu=7a",
                          "ad=Tor 2",
                          "co=52062",
                          "tw=Aachen",
                          "fn=r404a",
                          "th=12,5",
                          "pu=3",
                          "pd=4",
                          "s1=+49 1",
                          "s2=+49 2",
                          "ml=a@b.example",
                          "ip=127.0.0.9",
                          "dr=ftp.example",
                          "us=u",
                          "pw=p@:;=",
                          "nt=10",
                          "server=2"});
  EXPECT_EQ(a.status, 0) << a.fehler;
  EXPECT_TRUE(enthaelt(a.fehler, "A new plant with the ID \"K17\" is made in row 1.")) << a.fehler;
  EXPECT_TRUE(enthaelt(a.ausgabe, "Saved: K17, row 1")) << a.ausgabe;
  Anlagenregister soll;
  const Argumente texte{"K17",         "Kühlhaus 3; Halle = 4",
                        "Hafenstraße", "7a",
                        "Tor 2",       "52062",
                        "Aachen",      "R404A",
                        "12,5",        "3",
                        "4",           "+49 1",
                        "+49 2",       "a@b.example",
                        "127.0.0.9",   "ftp.example",
                        "u",           "p@:;=",
                        "ftp + SMS2",  "2"};
  for (int s = 1; s <= 20; ++s) soll(1, s) = texte[static_cast<std::size_t>(s) - 1];
  EXPECT_EQ(registertext(), soll.text());
  EXPECT_EQ(std::ranges::count(registertext(), '\n'), 10000);
  EXPECT_EQ(zugriff(daten.pfad(Anlagenregister::datei)), 0600);
  EXPECT_FALSE(enthaelt(a.ausgabe + a.fehler + daten.lies("log/polarkreis.log"), "p@:;="));
}

TEST_F(Monitor, SetChangesOneCellAndKeepsTheOthers) {
  Anlagenregister r = zwei_Anlagen();
  r.schreib(daten);
  const json danach = json_von({"set", "K17", "tw=Köln", "server=1"});
  EXPECT_EQ(danach["tw"], "Köln");
  EXPECT_EQ(danach["server_choice"], 1);
  EXPECT_EQ(danach["pw"], "********");
  r(2, 7) = "Köln";
  r(2, 20) = "1";
  EXPECT_EQ(registertext(), r.text());
}

TEST_F(Monitor, ANewPlantKeepsWhatItsRowHeldAndThatIsTold) {
  Anlagenregister r = zwei_Anlagen();
  r(1, 7) = "Bonn";
  r(1, 41) = kRegel;
  r.schreib(daten);
  const Antwort a = rufe({"set", "K1", "nm=x"});
  EXPECT_EQ(a.status, 0) << a.fehler;
  EXPECT_TRUE(enthaelt(a.fehler, "row 1.")) << a.fehler;
  EXPECT_TRUE(enthaelt(a.fehler, "they are kept")) << a.fehler;
  r(1, 1) = "K1";
  r(1, 2) = "x";
  r(1, 19) = "ftp + E-Mail + SMS1 + SMS2";
  r(1, 20) = "1";
  EXPECT_EQ(registertext(), r.text());
}

TEST_F(Monitor, TheRouteIsTakenAsNumberOrText) {
  zwei_Anlagen().schreib(daten);
  const std::vector<std::pair<std::string, int>> routen{
      {"0", 0}, {"4", 4}, {"15", 15}, {" sms1 + sms2", 3}, {"ftp + E-Mail", 12}};
  for (const auto& [text, nummer] : routen)
    EXPECT_EQ(json_von({"set", "K17", "nt=" + text})["nt_number"], nummer) << text;
}

TEST_F(Monitor, ARenamedPlantKeepsItsRow) {
  Anlagenregister r = zwei_Anlagen();
  r.schreib(daten);
  EXPECT_EQ(rufe({"set", "K17", "id=K18"}).status, 0);
  r(2, 1) = "K18";
  EXPECT_EQ(registertext(), r.text());
  EXPECT_EQ(rufe({"set", "K18", "id=K18"}).status, 0);
  const Antwort vergeben = rufe({"set", "K18", "nm=new", "id=K9"});
  EXPECT_EQ(vergeben.status, 1);
  EXPECT_TRUE(enthaelt(vergeben.fehler, "row 4 has it")) << vergeben.fehler;
  EXPECT_EQ(rufe({"set", "K18", "id=a/b"}).status, 1);
  EXPECT_EQ(rufe({"set", "brand new", "id=K9"}).status, 1);
  EXPECT_EQ(registertext(), r.text());
}

TEST_F(Monitor, WhatLooksWrongButCanBeKeptIsTold) {
  zwei_Anlagen().schreib(daten);
  const Antwort mittel = rufe({"set", "K17", "fn=R999", "th=much", "pu=", "pd=5"});
  EXPECT_EQ(mittel.status, 0);
  EXPECT_TRUE(enthaelt(mittel.fehler, "\"R999\" is none of the listed")) << mittel.fehler;
  EXPECT_TRUE(enthaelt(mittel.fehler, "th: \"much\" is no number")) << mittel.fehler;
  EXPECT_FALSE(enthaelt(mittel.fehler, "pu:"));
  EXPECT_FALSE(enthaelt(mittel.fehler, "pd:"));
  Anlagenregister danach(daten);
  EXPECT_EQ(danach(2, 8), "R999");
  EXPECT_EQ(danach(2, 9), "much");
  EXPECT_EQ(danach(2, 11), "5");
}

TEST_F(Monitor, AWrongCallNamesWhatIsPossibleAndChangesNothing) {
  const Anlagenregister r = zwei_Anlagen();
  r.schreib(daten);
  const std::vector<std::pair<Argumente, std::string>> aufrufe{
      {{"set", "K17"}, "KEY=VALUE"},
      {{"set", "K17", "tw=Bonn", "town=Bonn"}, "nm, st, nu"},
      {{"set", "K17", "tw=Bonn", "Bonn"}, "KEY=VALUE"},
      {{"set", "K17", "NM=x"}, "no key \"NM\""},
      {{"set", "K17", "nt=16"}, "ftp + E-Mail + SMS1 + SMS2"},
      {{"set", "K17", "nt=-1"}, "SMS1"},
      {{"set", "K17", "nt="}, "SMS1"},
      {{"set", "K17", "nt=SMS3"}, "SMS1"},
      {{"set", "K17", "server=3"}, "1 is the default"},
      {{"set", "K17", "server="}, "1 is the default"},
      {{"set", "K17", "tw=a\nb"}, "control characters"},
      {{"set", "K17", "tw=a\tb"}, "control characters"},
      {{"set", "K17", "tw=a\xc2\x85"}, "control characters"},
      {{"set", "K17", "id= "}, "blank"},
      {{"set", " ", "nm=x"}, "blank"},
      {{"set", "", "nm=x"}, "blank"},
      {{"set", "K\r", "nm=x"}, "control characters"},
      {{"show", ""}, "blank"},
      {{"show"}, "ID"},
      {{"rule", "K17", "0", "en=ON"}, "N"},
      {{"rule", "K17", "17", "en=ON"}, "N"},
      {{"rule", "K17", "x", "en=ON"}, "N"},
      {{"rule", "K17", "1"}, "KEY=VALUE"},
      {{"rule", "K17", "1", "en=ON", "xx=1"}, "en, c1, ro"},
      {{"rule", "K17", "1", "en=yes"}, "ON, OFF"},
      {{"rule", "K17", "1", "c1=t9"}, "tSL"},
      {{"rule", "K17", "1", "ro=*"}, "\"+\""},
      {{"rule", "K17", "1", "cm=6"}, "\">=\""},
      {{"rule", "K17", "1", "cm="}, "\">=\""},
      {{"rule", "K17", "1", "vl=4;5"}, "\";\""},
      {{"rule", "K17", "1", "vl=x"}, "number"},
      {{"rule", "K17", "1", "ti=1e999"}, "number"},
      {{"rule", "K17", "1", "nt=4"}, "SMS + E-Mail"},
      {{"upload", "K17", "everything"}, "settings"},
      {{"list", "--password"}, "--password"},
      {{}, "subcommand"}};
  for (const auto& [argumente, hilfe] : aufrufe) {
    const Antwort a = rufe(argumente);
    const std::string alles = testing::PrintToString(argumente) + a.fehler;
    EXPECT_EQ(a.status, 2) << alles;
    EXPECT_TRUE(enthaelt(a.fehler, hilfe)) << alles;
    EXPECT_EQ(a.ausgabe, "") << alles;
  }
  EXPECT_EQ(registertext(), r.text());
}

TEST_F(Monitor, ARefusedPasswordIsNotRepeated) {
  const Antwort a = rufe({"set", "K17", "pw=s3cret\n"});
  EXPECT_EQ(a.status, 2);
  EXPECT_FALSE(enthaelt(a.fehler, "s3cret")) << a.fehler;
}

TEST_F(Monitor, AnUnknownPlantIsSaid) {
  zwei_Anlagen().schreib(daten);
  for (const char* befehl : {"show", "rules", "upload", "download", "remove"}) {
    const Antwort a = rufe({befehl, "K18"});
    EXPECT_EQ(a.status, 1) << befehl;
    EXPECT_TRUE(enthaelt(a.fehler, "no plant with the ID \"K18\"")) << a.fehler;
  }
  EXPECT_EQ(registertext(), zwei_Anlagen().text());
}

TEST_F(Monitor, AFullRegisterTakesNoPlant) {
  Anlagenregister r;
  for (int z = 1; z <= 100; ++z) r(z, 1) = "P" + std::to_string(z);
  r.schreib(daten);
  for (const Argumente& aufruf :
       {Argumente{"set", "K17", "nm=x"}, Argumente{"rule", "K17", "1", "en=ON"}}) {
    const Antwort a = rufe(aufruf);
    EXPECT_EQ(a.status, 1);
    EXPECT_TRUE(enthaelt(a.fehler, "full")) << a.fehler;
  }
  EXPECT_EQ(rufe({"set", "P100", "nm=x"}).status, 0);
  r(100, 2) = "x";
  r(100, 19) = "ftp + E-Mail + SMS1 + SMS2";
  r(100, 20) = "1";
  EXPECT_EQ(registertext(), r.text());
}

TEST_F(Monitor, ARouteOfTheRegisterThatIsNoneIsTold) {
  Anlagenregister r = zwei_Anlagen();
  r(2, 19) = "carrier pigeon";
  r(4, 19) = "ohne";
  r.schreib(daten);
  EXPECT_TRUE(enthaelt(rufe({"show", "K17"}).fehler, "\"carrier pigeon\" is no route"));
  EXPECT_EQ(json_von({"show", "K17"})["nt_number"], 15);
  EXPECT_EQ(rufe({"set", "K9", "nt=0"}).fehler, "");
  EXPECT_FALSE(enthaelt(rufe({"set", "K17", "nt=0"}).fehler, "no route"));
  EXPECT_EQ(rufe({"show", "K9"}).fehler, "");
  EXPECT_EQ(json_von({"show", "K9"})["nt_number"], 0);
}

TEST_F(Monitor, AnIDIsNoLongerThanAFilesNameCanBe) {
  const std::string lang(247, 'K');
  EXPECT_EQ(rufe({"set", lang + "K", "nm=x"}).status, 1);
  EXPECT_FALSE(daten.da(Anlagenregister::datei));
  EXPECT_EQ(rufe({"set", lang, "nm=x"}).status, 0);
}

}  // namespace
