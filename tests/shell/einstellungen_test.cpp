#include "shell/einstellungen.h"

#include <gtest/gtest.h>

#include "shell/uebergabe.h"
#include "support/temp_folder.h"

using namespace polarkreis;

namespace {

struct EinstellungenTest : testing::Test {
  TempOrdner ordner;
  Meldungen meldungen;
  Ablage ablage{ordner.pfad(), meldungen};
  Einstellungen e{ablage};
};

}  // namespace

TEST_F(EinstellungenTest, FirstStartHasTheDefaults) {
  e.Parameter_Lesen();
  EXPECT_TRUE(e.erster_Start);
  EXPECT_EQ(e[Einstellungen::Datenordner], ordner.pfad());
  EXPECT_EQ(e[Einstellungen::Sprache], "GER");
  EXPECT_EQ(e[Einstellungen::Waehrung], "EUR");
  EXPECT_EQ(e[Einstellungen::Schrift], "Arial");
  EXPECT_EQ(e[Einstellungen::Laufwerk], "C:\\");
  EXPECT_EQ(e[15], "");
  EXPECT_EQ(e[16], "35");
  EXPECT_EQ(e[Einstellungen::Rechenzeit], "2.5");
  EXPECT_EQ(e[Einstellungen::Projektordner], std::filesystem::current_path().string());
  EXPECT_EQ(e[Einstellungen::Bildpfad], ordner.pfad("ctsample.jpg"));
  EXPECT_EQ(e[Einstellungen::Einheiten], "1");
  EXPECT_EQ(e[Einstellungen::Schriftgroesse], "12");
  EXPECT_FALSE(ordner.da("kparam.dat"));
}

TEST_F(EinstellungenTest, EmptyFileIsAFirstStart) {
  ordner.schreib("kparam.dat", "");
  e.Parameter_Lesen();
  EXPECT_TRUE(e.erster_Start);
  EXPECT_EQ(e[Einstellungen::Sprache], "GER");
}

TEST_F(EinstellungenTest, ShortLanguageOfAFileIsEnglish) {
  ordner.schreib("kparam.dat", "\"\",\"\",\"\",\"DE\"\r\n");
  e.Parameter_Lesen();
  EXPECT_FALSE(e.erster_Start);
  EXPECT_EQ(e[Einstellungen::Sprache], "ENG");
  ordner.schreib("KPARAM.DAT", "");
  ordner.schreib("kparam.dat", "\"\",\"\",\"\",\" fra \"\r\n");
  e.Parameter_Lesen();
  EXPECT_EQ(e[Einstellungen::Sprache], "FRA");
}

TEST_F(EinstellungenTest, FileHasThreeLinesThenOneItemALine) {
  for (int i = 1; i <= Einstellungen::Itemzahl; ++i) e[i] = std::to_string(i);
  EXPECT_TRUE(e.Parameter_Schreiben());
  std::string erwartet =
      "\"1\",\"2\",\"3\",\"4\",\"5\",\"6\"\r\n"
      "\"7\",\"8\",\"9\",\"10\",\"11\",\"12\",\"13\"\r\n"
      "\"14\",\"15\",\"16\",\"17\",\"18\",\"19\",\"20\",\"21\",\"22\"\r\n";
  for (int i = 23; i <= 29; ++i) erwartet += "\"" + std::to_string(i) + "\"\r\n";
  EXPECT_EQ(ordner.lies("kparam.dat"), erwartet);
}

TEST_F(EinstellungenTest, EveryItemSurvivesARewrite) {
  for (int i = 1; i <= Einstellungen::Itemzahl; ++i) e[i] = "text " + std::to_string(i);
  e[Einstellungen::Sprache] = "POL";
  e[Einstellungen::Rechenzeit] = "3,5";
  const Einstellungen vorher = e;
  e.Parameter_Schreiben();
  e.Parameter_Lesen();
  for (int i = 1; i <= Einstellungen::Itemzahl; ++i) EXPECT_EQ(e[i], vorher[i]) << i;
}

TEST_F(EinstellungenTest, TooShortADriveIsC) {
  e[Einstellungen::Laufwerk] = "D:\\";
  e.Parameter_Schreiben();
  e.Parameter_Lesen();
  EXPECT_EQ(e[Einstellungen::Laufwerk], "C:\\");
  e[Einstellungen::Laufwerk] = "D:\\x";
  e.Parameter_Schreiben();
  e.Parameter_Lesen();
  EXPECT_EQ(e[Einstellungen::Laufwerk], "D:\\x");
}

TEST_F(EinstellungenTest, CalculationTimeIsPositive) {
  for (const char* text : {"0", "-1", "", "x", "1e999"}) {
    e[Einstellungen::Rechenzeit] = text;
    e.Parameter_Schreiben();
    e.Parameter_Lesen();
    EXPECT_EQ(e[Einstellungen::Rechenzeit], "2.5") << text;
  }
}

TEST_F(EinstellungenTest, ProjectFolderCIsTheCurrentFolder) {
  e[Einstellungen::Projektordner] = "C:\\";
  e.Parameter_Schreiben();
  e.Parameter_Lesen();
  EXPECT_EQ(e[Einstellungen::Projektordner], std::filesystem::current_path().string());
  e[Einstellungen::Projektordner] = "C:\\p";
  e.Parameter_Schreiben();
  e.Parameter_Lesen();
  EXPECT_EQ(e[Einstellungen::Projektordner], "C:\\p");
}

TEST_F(EinstellungenTest, FailingSaveIsTold) {
  std::filesystem::create_directory(ordner.pfad("kparam.dat"));
  EXPECT_FALSE(e.Parameter_Schreiben());
  EXPECT_NE(ablage.letzter_fehler(), "");
}

TEST_F(EinstellungenTest, HandOverIsReadByItemsAndNotChanged) {
  const std::string datei =
      "\"0\"\r\n\"117\"\r\n\"\"\r\n\"-"
      "10\"\r\n\"40\"\r\n\"25\"\r\n\"\"\r\n\"Dairy\"\r\n\"North\"\r\n"
      "\"R404A\"\r\n\"1,5\"\r\n\"1\"\r\n\"2\"\r\n\"3\"\r\n";
  ordner.schreib("FRIGData.dat", datei);
  const Uebergabe daten = Uebergabe_Lesen(ablage);
  EXPECT_TRUE(daten.hat_Daten());
  EXPECT_FALSE(daten.mit_Winter());
  EXPECT_EQ(daten[Uebergabe::t0], "-10");
  EXPECT_EQ(daten[Uebergabe::Tc_oder_Winter], "40");
  EXPECT_EQ(daten[Uebergabe::Q0], "25");
  EXPECT_EQ(daten[Uebergabe::Projektname], "Dairy");
  EXPECT_EQ(daten[Uebergabe::Beschreibung], "North");
  EXPECT_EQ(daten[Uebergabe::Kaeltemittel], "R404A");
  EXPECT_EQ(daten[Uebergabe::PumpCap], "1,5");
  EXPECT_EQ(daten[Uebergabe::Economiser], "1");
  EXPECT_EQ(daten[Uebergabe::Verdichtertyp], "2");
  EXPECT_EQ(daten[Uebergabe::Bauform], "3");
  EXPECT_EQ(daten[15], "");
  EXPECT_EQ(ordner.lies("FRIGData.dat"), datei);
}

TEST_F(EinstellungenTest, OnlyTheTwoStartCodesMeanData) {
  Uebergabe daten;
  EXPECT_FALSE(daten.hat_Daten());
  for (const char* code : {"0", "116", "118", "216", "117,5", "x"}) {
    daten[Uebergabe::Startcode] = code;
    EXPECT_FALSE(daten.hat_Daten()) << code;
  }
  daten[Uebergabe::Startcode] = " 217 ";
  EXPECT_TRUE(daten.hat_Daten());
  EXPECT_TRUE(daten.mit_Winter());
}

TEST_F(EinstellungenTest, AbsentHandOverHasNoDataAndIsNotCreated) {
  EXPECT_FALSE(Uebergabe_Lesen(ablage).hat_Daten());
  EXPECT_TRUE(ordner.namen().empty());
}

TEST_F(EinstellungenTest, TakenHandOverIsTwoZeros) {
  Uebergabe daten;
  daten[Uebergabe::Startcode] = "217";
  EXPECT_TRUE(Daten_Uebergabe(ablage, daten));
  EXPECT_TRUE(Uebergabe_Lesen(ablage).mit_Winter());
  EXPECT_TRUE(Uebergabe_Leeren(ablage));
  EXPECT_EQ(ordner.lies("FRIGData.dat"), "\"0\"\r\n\"0\"\r\n");
  EXPECT_FALSE(Uebergabe_Lesen(ablage).hat_Daten());
}

TEST_F(EinstellungenTest, HandOverHasOneItemALine) {
  Uebergabe daten;
  for (int i = 1; i <= Uebergabe::Itemzahl; ++i) daten[i] = std::to_string(i);
  Daten_Uebergabe(ablage, daten);
  std::string erwartet;
  for (int i = 1; i <= 32; ++i) erwartet += "\"" + std::to_string(i) + "\"\r\n";
  EXPECT_EQ(ordner.lies("FRIGData.dat"), erwartet);
}
