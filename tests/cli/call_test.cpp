#include <gtest/gtest.h>

#include <sys/stat.h>

#include "aufruf.h"

namespace {

using Worte = std::vector<std::string>;

bool hat(const std::string& text, const std::string& teil) {
  return text.find(teil) != std::string::npos;
}

TEST(Help, EveryCommandShowsAnExample) {
  const std::vector<Worte> befehle{{},
                                   {"simulate"},
                                   {"point"},
                                   {"fans"},
                                   {"project"},
                                   {"project", "show"},
                                   {"project", "save"},
                                   {"project", "open"},
                                   {"project", "translate"},
                                   {"project", "derive"},
                                   {"project", "delete"},
                                   {"project", "list"},
                                   {"course"},
                                   {"climate"},
                                   {"climate", "countries"},
                                   {"climate", "cities"},
                                   {"climate", "value"},
                                   {"refrigerants"},
                                   {"saturation"},
                                   {"cycle"},
                                   {"calc"}};
  for (Worte befehl : befehle) {
    const std::string name = befehl.empty() ? "" : befehl.back();
    befehl.push_back("--help");
    const Antwort a = rufe(befehl);
    EXPECT_EQ(a.status, 0) << name;
    EXPECT_TRUE(hat(a.ausgabe, "Example")) << name << "\n" << a.ausgabe;
    EXPECT_TRUE(hat(a.ausgabe, "polarkreis-cli ")) << name;
    EXPECT_EQ(a.fehler, "") << name;
  }
}

TEST(Help, NamesEveryControlAndWhatACommandServes) {
  for (const Worte& befehl : {Worte{"simulate", "--help"}, Worte{"point", "--help"}}) {
    const std::string hilfe = rufe(befehl).ausgabe;
    for (const char* name :
         {"HeizCheck", "FreeC_Check", "ParaL_Check", "Check3D1", "ECO_OPT", "Gleitopt", "ErP_Vers",
          "t_K_wasser", "Lamm_AB_combo", "Rechart_combo"})
      EXPECT_TRUE(hat(hilfe, name)) << befehl.front() << " " << name << hilfe;
  }
  for (const char* befehl : {"translate", "derive"})
    EXPECT_TRUE(hat(rufe({"project", befehl, "--help"}).ausgabe, "energy simulation")) << befehl;
}

TEST(WrongUse, EndsWithTwoAndAMessage) {
  const std::vector<Worte> aufrufe{
      {},
      {"nonsense"},
      {"--language", "XYZ", "climate", "countries"},
      {"simulate", "--nonsense"},
      {"simulate", "a.prj", "b.prj"},
      {"point", "--modus", "5"},
      {"point", "--modus", "77"},
      {"point", "--modus", "77", "--volume", "0"},
      {"point", "--volume", "50"},
      {"point", "--modus", "77", "--volume", "1e999"},
      {"point", "--modus", "77", "--volume", "--"},
      {"fans"},
      {"fans", "13"},
      {"fans", "11", "--fin", "5"},
      {"project"},
      {"project", "show"},
      {"project", "translate", "a.prj"},
      {"course", "--country", "Germany", "--city", "Berlin"},
      {"course", "--country", "Germany", "--city", "Berlin", "--application", "8"},
      {"course", "--country", "Germany", "--city", "Berlin", "--application", "1", "--summer", "4"},
      {"climate", "value", "Germany", "Berlin", "10"},
      {"climate", "value", "Germany", "Berlin", "x"}};
  const Datenkopie daten;
  for (const Worte& aufruf : aufrufe) {
    Worte alle{"--data", daten.pfad()};
    alle.insert(alle.end(), aufruf.begin(), aufruf.end());
    const Antwort a = rufe(alle, {}, daten.pfad());
    EXPECT_EQ(a.status, 2) << (aufruf.empty() ? "" : aufruf.front()) << a.fehler;
    EXPECT_NE(a.fehler, "");
    EXPECT_EQ(a.ausgabe, "");
  }
}

TEST(DataFolder, OneThatIsNotThereIsToldAndNotMade) {
  const TempOrdner ordner;
  const Antwort a = rufe({"--data", ordner.pfad("none"), "climate", "countries"});
  EXPECT_EQ(a.status, 1);
  EXPECT_TRUE(hat(a.fehler, ordner.pfad("none")));
  EXPECT_FALSE(ordner.da("none"));
}

TEST(DataFolder, AFileInItsPlaceIsTold) {
  const TempOrdner ordner;
  ordner.schreib("file", "x");
  EXPECT_EQ(rufe({"--data", ordner.pfad("file"), "climate", "countries"}).status, 1);
}

TEST(DataFolder, AnEmptyOneIsNotFilled) {
  const TempOrdner ordner;
  const Antwort a = rufe({"--data", ordner.pfad(), "simulate"});
  EXPECT_EQ(a.status, 1);
  EXPECT_TRUE(hat(a.fehler, "JMapCap"));
  EXPECT_FALSE(ordner.da("COUNTRY.DAT"));
}

TEST(DataFolder, TheOptionBeatsTheStoredOne) {
  const Datenkopie daten;
  const TempOrdner anderer;
  daten.schreib("kparam.dat", "\"\",\"" + anderer.pfad() + "\",\"\",\"ENG\",\"EUR\",\"Arial\"\r\n");
  const Antwort a = rufe({"--data", daten.pfad(), "climate", "cities", "France"});
  EXPECT_EQ(a.status, 0) << a.fehler;
  EXPECT_TRUE(hat(a.ausgabe, "Paris"));
}

TEST(DataFolder, TheUsersOwnIsFilledAtItsFirstUse) {
  const TempOrdner heim;
  ::setenv("XDG_DATA_HOME", heim.pfad().c_str(), 1);
  const Antwort a = rufe({"climate", "cities", "France"});
  ::unsetenv("XDG_DATA_HOME");
  EXPECT_EQ(a.status, 0) << a.fehler;
  EXPECT_TRUE(heim.da("polarkreis/COUNTRY.DAT"));
}

TEST(Language, IsNotStored) {
  const Datenkopie daten;
  daten.schreib("kparam.dat", "\"\",\"\",\"\",\"GER\",\"EUR\",\"Arial\"\r\n");
  const auto vorher = daten.inhalt();
  EXPECT_EQ(daten.rufe({"climate", "countries"}, {}, "eng").status, 0);
  EXPECT_EQ(daten.inhalt(), vorher);
}

TEST(Language, WithoutItsTextsIsTold) {
  const Datenkopie daten;
  const Antwort a = daten.rufe({"climate", "countries"}, {}, "FRA");
  EXPECT_EQ(a.status, 1);
  EXPECT_TRUE(hat(a.fehler, "Caption.FRA"));
}

TEST(Output, ThatCanNotBeWrittenIsAFailure) {
  const Datenkopie daten;
  const Antwort a =
      rufe({"--data", daten.pfad(), "climate", "countries"}, {}, daten.pfad(), "/dev/full");
  EXPECT_EQ(a.status, 1);
  EXPECT_TRUE(hat(a.fehler, "could not be written"));
}

TEST(Verbose, PrintsTheMessageLog) {
  const Datenkopie daten;
  daten.schreib("cut.prj", daten.lies("CO2 supermarket.prj").substr(0, 300));
  const std::string zeile = "the others keep their values";
  EXPECT_FALSE(hat(daten.rufe({"project", "show", "cut.prj"}).fehler, zeile));
  EXPECT_TRUE(hat(daten.rufe({"--verbose", "project", "show", "cut.prj"}).fehler, zeile));
}

}  // namespace
