#include <gtest/gtest.h>

#include "diagnostics/spalten.h"
#include "logger_desk.h"

using namespace polarkreis;

namespace {

using Texte = std::vector<std::string>;

struct LoggerSuche : testing::Test, LoggerDesk {
  void suche() { logger.COM_Search(0, 2); }
};

}  // namespace

TEST_F(LoggerSuche, HighestPortWithALoggerWins) {
  port.geraete = {{3, immer(antwort())}, {7, immer(antwort())}};
  suche();
  EXPECT_EQ(logger.COM_Nr, 7);
  EXPECT_EQ(messung.Combo6, "COM7");
  EXPECT_EQ(logger.Such_laeuft, 0);
  EXPECT_TRUE(dialog.texte.empty());
}

TEST_F(LoggerSuche, AsksPorts1To16InTurnWithItsOwnSettingsAndWaits) {
  messung.Combo7 = "19200";
  port.geraete[16] = immer(antwort());
  suche();
  Texte erwartet;
  for (int n = 1; n <= 16; ++n)
    for (const std::string& schritt :
         {"open " + std::to_string(n) + " 9600,N,8,1", std::string("wait 25"),
          std::string("write ec %*\r"), std::string("wait 25"), std::string("read"),
          std::string("close")})
      erwartet.push_back(schritt);
  EXPECT_EQ(port.ablauf, erwartet);
  EXPECT_EQ(logger.COM_Nr, 16);
}

TEST_F(LoggerSuche, AnythingButTheExactEchoQualifies) {
  port.geraete[2] = immer("ec %*\r");
  suche();
  EXPECT_EQ(logger.COM_Nr, 0);
  port.geraete[2] = immer("ec %*\r\n");
  suche();
  EXPECT_EQ(logger.COM_Nr, 2);
}

TEST_F(LoggerSuche, SilentOrFailingPortDoesNotQualify) {
  port.geraete[2] = immer("");
  suche();
  EXPECT_EQ(logger.COM_Nr, 0);
  port.geraete[2] = immer(antwort());
  port.gestoert = true;
  suche();
  EXPECT_EQ(logger.COM_Nr, 0);
}

TEST_F(LoggerSuche, ReplyWithAnMIsAMonitoringBoxAndRebuildsTheColumns) {
  port.geraete[1] = immer("M " + antwort());
  suche();
  EXPECT_EQ(kanaele.Box_Typ, 1);
  EXPECT_FALSE(zelle(Spalte::p0, 1).empty());
  EXPECT_FALSE(zelle(Spalte::von(Spalte::E_t_liq, 2), 1).empty());
}

TEST_F(LoggerSuche, ReplyWithAnAIsTheOtherClass) {
  port.geraete[1] = immer("a" + antwort());
  suche();
  EXPECT_EQ(kanaele.Box_Typ, 2);
  port.geraete[1] = immer("am" + antwort());
  suche();
  EXPECT_EQ(kanaele.Box_Typ, 1);
}

TEST_F(LoggerSuche, SameClassLeavesTheColumns) {
  port.geraete[1] = immer(antwort());
  suche();
  EXPECT_EQ(kanaele.Box_Typ, 0);
  EXPECT_EQ(zelle(Spalte::p0, 1), "");
  kanaele.Box_Typ = 1;
  suche();
  EXPECT_EQ(kanaele.Box_Typ, 0);
  EXPECT_NE(zelle(Spalte::p0, 1), "");
}

TEST_F(LoggerSuche, FailuresAbove10SetOffLine) {
  logger.COM_Nr = 4;
  for (int n = 1; n <= 10; ++n) suche();
  EXPECT_EQ(logger.COM_Nr, 0);
  EXPECT_EQ(messung.Combo6, "???");
  EXPECT_EQ(logger.Such_Versuche, 10);
  EXPECT_EQ(messung.Off_line_Check, 0);
  suche();
  EXPECT_EQ(logger.Such_Versuche, 11);
  EXPECT_EQ(messung.Off_line_Check, 1);
  port.geraete[1] = immer(antwort());
  suche();
  EXPECT_EQ(logger.Such_Versuche, 0) << "they are counted in a row";
}

TEST_F(LoggerSuche, ShowsTheHourglassWhileItGoes) {
  suche();
  EXPECT_EQ(empfaenger.sanduhr, (std::vector<bool>{true, false}));
}

TEST_F(LoggerSuche, ButtonBeginsTheCountAfreshAndTellsThatThereIsNoLogger) {
  logger.Such_Versuche = 10;
  logger.COM_Such();
  EXPECT_EQ(logger.Such_Versuche, 1);
  EXPECT_EQ(messung.Off_line_Check, 0);
  EXPECT_EQ(dialog.texte, Texte{Kein_Geraet});
  EXPECT_EQ(dialog.titel, Texte{"Polarkreis DiaGnostics"});
  port.geraete[5] = immer(antwort());
  logger.COM_Such();
  EXPECT_EQ(logger.COM_Nr, 5);
  EXPECT_EQ(dialog.texte.size(), 1U);
}

TEST_F(LoggerSuche, IsNotStartedWhileOneRunsOrTheFileFedSourceIsActive) {
  logger.COM_Nr = 78;
  logger.Such_laeuft = 1;
  suche();
  logger.COM_Such();
  logger.Such_laeuft = 0;
  quelle.Quelle_ISS = Messquelle::aktiv;
  suche();
  logger.COM_Such();
  EXPECT_EQ(logger.COM_Nr, 78);
  EXPECT_TRUE(port.ablauf.empty());
  EXPECT_TRUE(dialog.texte.empty());
}

TEST_F(LoggerSuche, PressDuringASearchStartsNoSecondOne) {
  uhr.beim_warten = [this](int) {
    logger.COM_Such();
    logger.Start_Butt1(0);
  };
  logger.COM_Such();
  EXPECT_EQ(port.befehle().size(), 16U);
  EXPECT_EQ(dialog.texte.size(), 1U);
  suche();
  EXPECT_EQ(port.befehle().size(), 32U);
  EXPECT_EQ(dialog.texte.size(), 1U);
}
