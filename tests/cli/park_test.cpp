#include <gtest/gtest.h>

#include "aufruf.h"

namespace {

using Json = nlohmann::json;

const std::string kPark = "\"84.5\"\r\n\"Swept volume\"\r\n\"1\"\r\n\"2\"\r\n";
const std::string kAnderer = "\"12,5\"\r\n\"Swept volume\"\r\n\"3\"\r\n\"0\"\r\n";

bool hat(const std::string& text, const std::string& teil) {
  return text.find(teil) != std::string::npos;
}

TEST(Park, ShowsItsFourItems) {
  const Datenkopie daten;
  daten.schreib("rack.vdd", kAnderer);
  const auto vorher = daten.inhalt();
  const Json j = daten.rufe({"project", "show", "verdpark.DAT", "--json"}).json();
  EXPECT_EQ(
      j, Json({{"Hub_Volumen", 84.5}, {"Combo4", "Swept volume"}, {"Bauart", 1}, {"Antrieb", 2}}));
  const Json k = daten.rufe({"project", "show", "rack.vdd", "--json"}).json();
  EXPECT_EQ(k["Hub_Volumen"], 12.5);
  EXPECT_EQ(k["Bauart"], 3);
  const std::string text = daten.rufe({"project", "show", "rack.VDD"}).ausgabe;
  for (const char* teil : {"Hub_Volumen", "12,5", "Combo4", "Swept volume", "Bauart", "Antrieb"})
    EXPECT_TRUE(hat(text, teil)) << teil << text;
  EXPECT_EQ(daten.inhalt(), vorher);
}

TEST(Park, WhatIsNoneIsRefused) {
  const Datenkopie daten;
  daten.schreib("cut.VDD", "\"12\"\r\n\"Swept");
  daten.schreib("binary.VDD", kPark + std::string(3, '\0'));
  daten.schreib("empty.VDD", "");
  const auto vorher = daten.inhalt();
  for (const char* datei : {"cut.VDD", "binary.VDD", "empty.VDD", "none.VDD"})
    for (const char* befehl : {"show", "open"}) {
      const Antwort a = daten.rufe({"project", befehl, datei});
      EXPECT_EQ(a.status, 1) << befehl << datei;
      EXPECT_TRUE(hat(a.fehler, datei)) << a.fehler;
    }
  EXPECT_TRUE(hat(daten.rufe({"project", "show", "cut.VDD"}).fehler, "2 of 4 items"));
  EXPECT_EQ(daten.inhalt(), vorher);
}

TEST(Park, OpenedItIsRenamedIntoTheDataFolder) {
  const Datenkopie daten;
  const TempOrdner ziel;
  ziel.schreib("rack.VDD", kAnderer);
  const std::string projekt = daten.lies("Temp_Sim.dat");
  const Antwort a = daten.rufe({"project", "open", ziel.pfad("rack.VDD")});
  EXPECT_EQ(a.status, 0) << a.fehler;
  EXPECT_EQ(daten.lies("VerDpark.dat"), kAnderer);
  EXPECT_FALSE(ziel.da("rack.VDD"));
  EXPECT_EQ(daten.lies("Temp_Sim.dat"), projekt);
  EXPECT_EQ(daten.lies("VerDpark kept.VDD"), kPark);
  EXPECT_TRUE(hat(a.fehler, "kept in the data folder as \"VerDpark kept.VDD\"")) << a.fehler;
  EXPECT_EQ(daten.rufe({"project", "open", "VerDpark kept.VDD"}).status, 0);
  EXPECT_EQ(daten.lies("VerDpark.dat"), kPark);
  EXPECT_EQ(daten.lies("VerDpark kept 2.VDD"), kAnderer);
}

TEST(Park, OpenedWithItsProjectItKeepsTheOneBefore) {
  const Datenkopie daten;
  const TempOrdner ziel;
  ASSERT_EQ(daten.rufe({"project", "save", ziel.pfad("rack.prj"), "--tag", "KOMP"}).status, 0);
  ASSERT_EQ(ziel.lies("rack.VDD"), kPark);
  daten.schreib("VerDpark.dat", kAnderer);
  const Antwort a = daten.rufe({"project", "open", ziel.pfad("rack.prj")});
  EXPECT_EQ(a.status, 0) << a.fehler;
  EXPECT_EQ(daten.lies("VerDpark.dat"), kPark);
  EXPECT_EQ(daten.lies("VerDpark kept.VDD"), kAnderer);
  EXPECT_TRUE(hat(a.fehler, "VerDpark kept.VDD")) << a.fehler;
}

TEST(Park, OpeningTheOneThatIsOpenLosesNothing) {
  const Datenkopie daten;
  EXPECT_EQ(daten.rufe({"project", "open", "VerDpark.dat"}).status, 0);
  EXPECT_EQ(daten.lies("VerDpark.dat"), kPark);
  std::filesystem::rename(daten.pfad("VerDpark.dat"), daten.pfad("rack.VDD"));
  std::filesystem::create_symlink("rack.VDD", daten.pfad("VerDpark.dat"));
  EXPECT_EQ(daten.rufe({"project", "open", "rack.VDD"}).status, 0);
  EXPECT_EQ(daten.lies("VerDpark.dat"), kPark);
}

TEST(Park, SavedItGetsItsOwnNameAndNoOther) {
  const Datenkopie daten;
  const TempOrdner ziel;
  ASSERT_EQ(daten.rufe({"project", "save", ziel.pfad("k.vdd")}).status, 0);
  EXPECT_EQ(ziel.namen(), std::vector<std::string>{"k.vdd"});
  EXPECT_EQ(ziel.lies("k.vdd"), kPark);
  EXPECT_FALSE(daten.da("VerDpark.dat"));
  const Antwort ohne = daten.rufe({"project", "save", ziel.pfad("l.VDD")});
  EXPECT_EQ(ohne.status, 1);
  EXPECT_TRUE(hat(ohne.fehler, "VerDpark.dat")) << ohne.fehler;
  EXPECT_FALSE(ziel.da("l.VDD"));
}

TEST(Park, ATargetThatCanNotBeWrittenLeavesIt) {
  const Datenkopie daten;
  std::filesystem::create_directory(daten.pfad("folder.VDD"));
  EXPECT_EQ(daten.rufe({"project", "save", "folder.VDD"}).status, 1);
  EXPECT_EQ(daten.rufe({"project", "save", ".VDD"}).status, 1);
  EXPECT_EQ(daten.lies("VerDpark.dat"), kPark);
  daten.schreib("rack.VDD", kAnderer);
  EXPECT_EQ(daten.rufe_mit_grenze(0, {"project", "open", "rack.VDD"}).status, 1);
  EXPECT_EQ(daten.lies("VerDpark.dat"), kPark);
  EXPECT_EQ(daten.lies("rack.VDD"), kAnderer);
}

TEST(Park, IsNoProjectOfTheSimulation) {
  const Datenkopie daten;
  for (const std::vector<std::string>& befehl :
       {std::vector<std::string>{"simulate", "VerDpark.dat"},
        {"project", "derive", "VerDpark.dat", "--write"},
        {"project", "translate", "VerDpark.dat", "--to", "GER"}}) {
    const Antwort a = daten.rufe(befehl);
    EXPECT_EQ(a.status, 1);
    EXPECT_TRUE(hat(a.fehler, "compressor park")) << a.fehler;
  }
  EXPECT_EQ(daten.lies("VerDpark.dat"), kPark);
}

TEST(Park, IsListedWithAllFilesAndDeleted) {
  const Datenkopie daten;
  const TempOrdner ordner;
  ordner.schreib("rack.vdd", kAnderer);
  ordner.schreib("VERDPARK.DAT", kPark);
  ordner.schreib("myVerDpark.dat", kPark);
  EXPECT_TRUE(daten.rufe({"project", "list", ordner.pfad(), "--json"}).json().empty());
  const Json j = daten.rufe({"project", "list", ordner.pfad(), "--all", "--json"}).json();
  ASSERT_EQ(j.size(), 2u);
  EXPECT_EQ(j[0]["file"], "rack.vdd");
  EXPECT_EQ(j[0]["tag"], "park");
  EXPECT_EQ(j[1]["file"], "VERDPARK.DAT");
  EXPECT_EQ(daten.rufe({"project", "delete", ordner.pfad("rack.vdd")}).status, 0);
  EXPECT_FALSE(ordner.da("rack.vdd"));
}

}  // namespace
