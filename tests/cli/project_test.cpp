#include <gtest/gtest.h>

#include <sys/stat.h>

#include "aufruf.h"

namespace {

using Json = nlohmann::json;

constexpr const char* kMarkt = "Supermarket medium temperature.prj";
constexpr const char* kDairy = "Ammonia process cooling.prj";

bool hat(const std::string& text, const std::string& teil) {
  return text.find(teil) != std::string::npos;
}

TEST(ProjectShow, GivesEveryItemAndTheDerivedNumbers) {
  const Datenkopie daten;
  const auto vorher = daten.inhalt();
  const Antwort a = daten.rufe({"project", "show", kMarkt, "--json"});
  ASSERT_EQ(a.status, 0) << a.fehler;
  const Json j = a.json();
  EXPECT_EQ(j["items"].size(), 46u);
  EXPECT_EQ(j["items"]["KaelteM"], "R448A");
  EXPECT_EQ(j["items"]["VERFL_Eff_combo"], "B");
  // A medium evaporator has 8 K, a cold room twice the pipe figure, a medium range -8 °C.
  EXPECT_DOUBLE_EQ(j["derived"]["Ueberhitzung"].get<double>(), 6.4);
  EXPECT_EQ(j["derived"]["pipe"], 2.0);
  EXPECT_EQ(j["derived"]["Bezug"], -8.0);
  EXPECT_TRUE(hat(daten.rufe({"project", "show", kMarkt}).ausgabe, "LueftcapVerDa"));
  EXPECT_EQ(daten.rufe({"project", "show", "-", "--json"}).json()["items"]["KaelteM"], "R448A");
  EXPECT_EQ(daten.rufe({"project", "show", "Temp_Sim.dat", "--json"}).json()["items"],
            daten.rufe({"project", "show", "-", "--json"}).json()["items"]);
  EXPECT_EQ(daten.inhalt(), vorher);
}

TEST(ProjectShow, ABareNameIsSoughtHereThenInTheDataFolder) {
  const Datenkopie daten;
  const TempOrdner hier;
  const std::vector<std::string> aufruf{"--data",  daten.pfad(), "--language", "ENG",
                                        "project", "show",       kMarkt,       "--json"};
  EXPECT_EQ(rufe(aufruf, {}, hier.pfad()).json()["items"]["KaelteM"], "R448A");
  hier.schreib(kMarkt, daten.lies(kDairy));
  EXPECT_EQ(rufe(aufruf, {}, hier.pfad()).json()["items"]["KaelteM"], "R717");
}

TEST(ProjectShow, AModulesFileShowsItsHeading) {
  const Datenkopie daten;
  daten.schreib("office.prj", "\"Office\",\"third floor\",\"\",\"AC\"\r\n\"1\"\r\n\"2\"\r\n");
  const Json j = daten.rufe({"project", "show", "office.prj", "--json"}).json();
  EXPECT_EQ(j["tag"], "AC");
  EXPECT_EQ(j["name"], "Office");
  EXPECT_EQ(j["lines"], 2);
}

TEST(ProjectSave, TheNameRuleAndTheHeadingHold) {
  const Datenkopie daten;
  const TempOrdner ziel;
  ASSERT_EQ(daten.rufe({"project", "save", ziel.pfad("plant")}).status, 0);
  ASSERT_EQ(daten.rufe({"project", "save", ziel.pfad("north.hall.txt"), "--name", "Hall"}).status,
            0);
  EXPECT_EQ(ziel.namen(), (std::vector<std::string>{"energk.dat", "north.prj", "plant.prj"}));
  EXPECT_TRUE(
      ziel.lies("plant.prj")
          .starts_with("\"Supermarket\",\"Chilled cabinets and cold rooms, R448A, hot water "
                       "from the desuperheater\",\"\",\"SIM_PRO\"\r\n\"R448A\"\r\n"));
  EXPECT_TRUE(ziel.lies("north.prj").starts_with("\"Hall\","));
}

TEST(ProjectSave, ABareNameLiesInTheCurrentFolder) {
  const Datenkopie daten;
  const TempOrdner hier;
  const Antwort a = rufe({"--data", daten.pfad(), "--language", "ENG", "project", "save", "here"},
                         {}, hier.pfad());
  EXPECT_EQ(a.status, 0) << a.fehler;
  EXPECT_TRUE(hier.da("here.prj"));
  EXPECT_FALSE(daten.da("here.prj"));
}

TEST(ProjectSave, AReadOnlyTargetIsRefusedAndStays) {
  const Datenkopie daten;
  daten.schreib("old.prj", "precious");
  ::chmod(daten.pfad("old.prj").c_str(), 0444);
  const Antwort a = daten.rufe({"project", "save", "old.prj"});
  EXPECT_EQ(a.status, 1);
  EXPECT_TRUE(hat(a.fehler, "old.prj"));
  EXPECT_EQ(daten.lies("old.prj"), "precious");
}

TEST(ProjectSave, WithoutANameOrWithAForeignTagIsRefused) {
  const Datenkopie daten;
  EXPECT_EQ(daten.rufe({"project", "save", ".prj"}).status, 1);
  EXPECT_EQ(daten.rufe({"project", "save", daten.pfad() + "/"}).status, 1);
  EXPECT_EQ(daten.rufe({"project", "save", "x.prj", "--tag", "NONE"}).status, 1);
  EXPECT_FALSE(daten.da("x.prj"));
}

TEST(ProjectSave, ALoadModulesLinesComeFromItsLoadFileAndBack) {
  const Datenkopie daten;
  EXPECT_EQ(daten.rufe({"project", "save", "office.prj", "--tag", "AC"}).status, 1);
  daten.schreib("KlimaL.dat", "\"21\"\r\n\"50\"\r\n");
  const Antwort a = daten.rufe(
      {"project", "save", "office.prj", "--tag", "AC", "--name", "Office", "--description", "3rd"});
  ASSERT_EQ(a.status, 0) << a.fehler;
  EXPECT_EQ(daten.lies("office.prj"), "\"Office\",\"3rd\",\"\",\"AC\"\r\n\"21\"\r\n\"50\"\r\n");
  daten.schreib("KlimaL.dat", "other");
  ASSERT_EQ(daten.rufe({"project", "open", "office.prj"}).status, 0);
  EXPECT_EQ(daten.lies("KlimaL.dat"), "\"21\"\r\n\"50\"\r\n");
}

TEST(ProjectSave, ACompressorParkGoesWithItsProjectAndComesBack) {
  const Datenkopie daten;
  const TempOrdner ziel;
  daten.schreib("VerDpark.dat", "park");
  ASSERT_EQ(daten.rufe({"project", "save", ziel.pfad("rack.prj"), "--tag", "KOMP"}).status, 0);
  EXPECT_EQ(ziel.lies("rack.VDD"), "park");
  EXPECT_FALSE(daten.da("VerDpark.dat"));
  ASSERT_EQ(daten.rufe({"project", "open", ziel.pfad("rack.prj")}).status, 0);
  EXPECT_EQ(daten.lies("VerDpark.dat"), "park");
  EXPECT_FALSE(ziel.da("rack.VDD"));
  EXPECT_EQ(daten.rufe({"project", "show", ziel.pfad("rack.prj"), "--json"}).json()["tag"], "KOMP");
}

TEST(ProjectOpen, ALoadProjectWithoutLinesLeavesTheLoadFile) {
  const Datenkopie daten;
  for (const auto& [tag, last] :
       {std::pair{"AC", "KlimaL.dat"}, {"CR", "KuehlL.dat"}, {"HX", "HX_ACT.dat"}}) {
    daten.schreib(last, "\"21\"\r\n");
    for (const char* rest : {"", "\r\n", "\r\n \r\n"}) {
      daten.schreib("office.prj", std::string("\"Office\",\"3rd\",\"\",\"") + tag + "\"" + rest);
      const Antwort a = daten.rufe({"project", "open", "office.prj"});
      EXPECT_EQ(a.status, 1) << tag;
      EXPECT_TRUE(hat(a.fehler, "office.prj") && hat(a.fehler, last)) << a.fehler;
      EXPECT_TRUE(hat(a.fehler, "holds nothing behind its heading")) << a.fehler;
      EXPECT_EQ(daten.lies(last), "\"21\"\r\n");
    }
  }
}

TEST(ProjectOpen, MakesAFileTheWorkingProject) {
  const Datenkopie daten;
  const std::string datei = daten.lies(kDairy);
  ASSERT_EQ(daten.rufe({"project", "open", kDairy}).status, 0);
  EXPECT_EQ(daten.lies("Temp_Sim.dat"), datei.substr(datei.find("\r\n") + 2));
  EXPECT_EQ(daten.lies(kDairy), datei);
}

TEST(ProjectTranslate, ThereAndBackIsTheSameFile) {
  const Datenkopie daten;
  const std::string englisch = daten.lies(kMarkt);
  ASSERT_EQ(daten.rufe({"project", "translate", kMarkt, "--to", "ger"}).status, 0);
  const std::string deutsch = daten.lies(kMarkt);
  EXPECT_TRUE(hat(deutsch, "\"GER\"\r\n"));
  EXPECT_FALSE(hat(deutsch, "Cold room\""));
  EXPECT_TRUE(deutsch.starts_with(englisch.substr(0, englisch.find("\r\n"))));
  ASSERT_EQ(daten.rufe({"project", "translate", kMarkt, "--to", "ENG"}).status, 0);
  EXPECT_EQ(daten.lies(kMarkt), englisch);
}

TEST(ProjectTranslate, TheThirdItemOfTheHeadingIsWrittenEmpty) {
  const Datenkopie daten;
  std::string inhalt = daten.lies(kMarkt);
  const std::size_t ort = inhalt.find("\"\",\"SIM_PRO\"");
  ASSERT_NE(ort, std::string::npos);
  daten.schreib(kMarkt, inhalt.replace(ort, 2, "\"left over\""));
  ASSERT_EQ(daten.rufe({"project", "translate", kMarkt, "--to", "GER"}).status, 0);
  EXPECT_TRUE(hat(daten.lies(kMarkt), ",\"\",\"SIM_PRO\"\r\n"));
}

TEST(ProjectTranslate, TheWorkingProjectKeepsItsForm) {
  const Datenkopie daten;
  const std::string englisch = daten.lies("Temp_Sim.dat");
  ASSERT_EQ(daten.rufe({"project", "translate", "-", "--to", "GER"}).status, 0);
  EXPECT_NE(daten.lies("Temp_Sim.dat"), englisch);
  ASSERT_EQ(daten.rufe({"project", "translate", "Temp_Sim.dat", "--to", "ENG"}).status, 0);
  EXPECT_EQ(daten.lies("Temp_Sim.dat"), englisch);
}

TEST(ProjectTranslate, AnUnknownCodeOrAbsentTextsChangeNothing) {
  const Datenkopie daten;
  const std::string vorher = daten.lies(kMarkt);
  EXPECT_EQ(daten.rufe({"project", "translate", kMarkt, "--to", "XX"}).status, 2);
  EXPECT_EQ(daten.rufe({"project", "translate", kMarkt, "--to", "FRA"}).status, 1);
  EXPECT_EQ(daten.lies(kMarkt), vorher);
}

TEST(ProjectDerive, NumbersFollowTheSelections) {
  const Datenkopie daten;
  const std::string vorher = daten.lies(kMarkt);
  const Antwort a = daten.rufe(
      {"project", "derive", kMarkt, "--set", "KaelteM=R717", "--set", "AmbientT=High", "--json"});
  ASSERT_EQ(a.status, 0) << a.fehler;
  const Json j = a.json();
  // 8 K and 13 K with the factors .92 and .82, cut to one decimal.
  EXPECT_EQ(j["DT_v_combo"], "7.3");
  EXPECT_EQ(j["dtVerfl"], "10.6");
  EXPECT_EQ(j["t0"], "-7.3");
  EXPECT_EQ(j["changed"]["KaelteM"], Json({"R448A", "R717"}));
  EXPECT_EQ(daten.lies(kMarkt), vorher);
}

TEST(ProjectDerive, WriteStoresTheProject) {
  const Datenkopie daten;
  ASSERT_EQ(daten.rufe({"project", "derive", kMarkt, "--set", "Q0=77", "--write"}).status, 0);
  EXPECT_EQ(daten.rufe({"project", "show", kMarkt, "--json"}).json()["items"]["Q0"], "77");
  ASSERT_EQ(daten.rufe({"project", "derive", "-", "--set", "Q0=78", "--write"}).status, 0);
  EXPECT_TRUE(daten.lies("Temp_Sim.dat").starts_with("\"R448A\"\r\n\"78\"\r\n"));
}

TEST(ProjectDerive, WrongChangesAreRefused) {
  const Datenkopie daten;
  const std::string vorher = daten.lies(kMarkt);
  const Antwort a = daten.rufe({"project", "derive", kMarkt, "--set", "Colour=red", "--write"});
  EXPECT_EQ(a.status, 2);
  EXPECT_TRUE(hat(a.fehler, "Lueftcap"));
  EXPECT_EQ(daten.rufe({"project", "derive", kMarkt, "--set", "Q0", "--write"}).status, 2);
  const Antwort b = daten.rufe({"project", "derive", kMarkt, "--set", "KaelteM=R999", "--write"});
  EXPECT_EQ(b.status, 1);
  EXPECT_TRUE(hat(b.fehler, "R999"));
  EXPECT_EQ(daten.lies(kMarkt), vorher);
}

TEST(ProjectDelete, RemovesAProjectFileOnly) {
  const Datenkopie daten;
  EXPECT_EQ(daten.rufe({"project", "delete", kMarkt}).status, 0);
  EXPECT_FALSE(daten.da(kMarkt));
  EXPECT_EQ(daten.rufe({"project", "delete", kMarkt}).status, 1);
  EXPECT_EQ(daten.rufe({"project", "delete", "R448A.DAT"}).status, 1);
  EXPECT_TRUE(daten.da("R448A.DAT"));
}

TEST(ProjectList, ShowsTheFilesOfTheModule) {
  const Datenkopie daten;
  TempOrdner ordner;
  ordner.schreib("b.PRJ", "\"Cold store\",\"two rooms\",\"\",\"SIM_PRO\"\r\n");
  ordner.schreib("a.prj", "\"Office\",\"third floor\",\"\",\"AC\"\r\n");
  ordner.schreib("c.txt", "\"No\",\"\",\"\",\"SIM_PRO\"\r\n");
  const Json j = daten.rufe({"project", "list", ordner.pfad(), "--json"}).json();
  ASSERT_EQ(j.size(), 1u);
  EXPECT_EQ(j[0], Json({{"file", "b.PRJ"},
                        {"tag", "SIM_PRO"},
                        {"name", "Cold store"},
                        {"description", "two rooms"}}));
  EXPECT_EQ(daten.rufe({"project", "list", ordner.pfad(), "--all", "--json"}).json().size(), 2u);
  EXPECT_TRUE(hat(daten.rufe({"project", "list", "."}).ausgabe, "Dairy"));
  EXPECT_EQ(daten.rufe({"project", "list", ordner.pfad("none")}).status, 1);
}

}  // namespace
