#include "shell/meldungen.h"

#include <gtest/gtest.h>

#include <regex>

#include "support/temp_folder.h"
#include "support/test_dialog.h"

using namespace polarkreis;

TEST(Meldungen, LineHasTimePlaceFileAndRemedy) {
  Meldungen meldungen;
  meldungen.melde("read", "a.dat", "taken as empty");
  ASSERT_EQ(meldungen.zeilen().size(), 1U);
  EXPECT_TRUE(std::regex_match(
      meldungen.zeilen()[0],
      std::regex(R"(\d{4}-\d\d-\d\dT\d\d:\d\d:\d\d read: a\.dat: taken as empty)")));
}

TEST(Meldungen, LineStaysOneLine) {
  Meldungen meldungen;
  meldungen.melde("read", "a\r\nb", "c\td");
  EXPECT_NE(meldungen.zeilen()[0].find("read: a  b: c d"), std::string::npos);
}

TEST(Meldungen, NewestThousandAreKept) {
  Meldungen meldungen;
  for (int i = 0; i < 1500; ++i) meldungen.melde("x", "", std::to_string(i));
  EXPECT_EQ(meldungen.zeilen().size(), 1000U);
  EXPECT_TRUE(meldungen.zeilen().front().ends_with("x: 500"));
  EXPECT_TRUE(meldungen.zeilen().back().ends_with("x: 1499"));
}

TEST(Meldungen, ListenerGetsEachLine) {
  Meldungen meldungen;
  std::vector<std::string> gehoert;
  meldungen.setze_hoerer([&](const std::string& zeile) { gehoert.push_back(zeile); });
  meldungen.melde("x", "y", "z");
  ASSERT_EQ(gehoert.size(), 1U);
  EXPECT_EQ(gehoert[0], meldungen.zeilen()[0]);
}

TEST(Meldungen, FileIsMadeOnDemandAndAppendedTo) {
  TempOrdner ordner;
  Meldungen meldungen;
  meldungen.melde("before", "", "");
  meldungen.setze_ordner(ordner.pfad());
  EXPECT_FALSE(ordner.da("log"));
  meldungen.melde("x", "", "one");
  meldungen.melde("x", "", "two");
  EXPECT_EQ(ordner.lies("log/polarkreis.log"),
            meldungen.zeilen()[1] + "\n" + meldungen.zeilen()[2] + "\n");
}

TEST(Meldungen, FileIsRotatedAtOneMegabyte) {
  TempOrdner ordner;
  ordner.schreib("log/polarkreis.log.1", "older");
  ordner.schreib("log/polarkreis.log", std::string(999'990, 'x'));
  Meldungen meldungen;
  meldungen.setze_ordner(ordner.pfad());
  meldungen.melde("x", "", "new");
  EXPECT_EQ(ordner.lies("log/polarkreis.log"), meldungen.zeilen()[0] + "\n");
  EXPECT_EQ(ordner.lies("log/polarkreis.log.1"), std::string(999'990, 'x'));
}

TEST(Meldungen, LogThatCantBeWrittenIsSilent) {
  TempOrdner ordner;
  ordner.schreib("log", "a file in place of the folder");
  Meldungen meldungen;
  meldungen.setze_ordner(ordner.pfad());
  meldungen.melde("x", "", "one");
  EXPECT_EQ(meldungen.zeilen().size(), 1U);
  meldungen.setze_ordner(ordner.pfad("nowhere"));
  meldungen.melde("x", "", "two");
  EXPECT_FALSE(ordner.da("nowhere"));
}

TEST(Meldungen, FailingStatementsAreToldOnceByPlace) {
  Meldungen meldungen;
  const std::string selber_ort = "KreisPunkt";
  meldungen.zaehle("Verd_Leistung");
  meldungen.zaehle("KreisPunkt");
  meldungen.zaehle(selber_ort.c_str());
  EXPECT_TRUE(meldungen.zeilen().empty());
  meldungen.zaehler_melden();
  ASSERT_EQ(meldungen.zeilen().size(), 2U);
  EXPECT_NE(meldungen.zeilen()[0].find("KreisPunkt: 2 statements failed"), std::string::npos);
  EXPECT_NE(meldungen.zeilen()[1].find("Verd_Leistung: 1 statement failed"), std::string::npos);
  meldungen.zaehler_melden();
  EXPECT_EQ(meldungen.zeilen().size(), 2U);
}

TEST(Fehlertext, HasTheFixedMessages) {
  EXPECT_EQ(fehlertext(Fehler::Datei_fehlt), "Polarkreis error 24: File not existing.");
  EXPECT_EQ(fehlertext(Fehler::Modul_fehlt), "Polarkreis error 32: Module not available.");
  EXPECT_EQ(fehlertext(Fehler::Modul_fehlt, "frigdraw.exe"),
            "Polarkreis error 32: Module not available. - FRIGDRAW.EXE");
  EXPECT_EQ(fehlertext(Fehler::Speicher_voll), "Polarkreis error 427: Out of Memory.");
}

TEST(FehlerBOX, ShowsTheTextWithTheErrorIcon) {
  TestDialog dialog;
  FehlerBOX(dialog, Fehler::Datei_fehlt);
  ASSERT_EQ(dialog.texte.size(), 1U);
  EXPECT_EQ(dialog.texte[0], "Polarkreis error 24: File not existing.");
  EXPECT_EQ(dialog.symbole[0], Symbol::fehler);
  EXPECT_EQ(static_cast<int>(dialog.symbole[0]), 16);
}
