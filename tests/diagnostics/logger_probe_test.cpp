#include <gtest/gtest.h>

#include "diagnostics/spalten.h"
#include "logger_desk.h"

using namespace polarkreis;

namespace {

using Texte = std::vector<std::string>;

struct LoggerProbe : testing::Test, LoggerDesk {
  LoggerProbe() {
    logger.COM_Nr = 4;
    logger.COM_Settings = "19200,N,8,1";
    logger.Auto_korr = 1;
  }
  /// One sample of a device that gives these replies in turn.
  void probe(const Texte& antworten, int nr = 1) {
    port.geraete[4] = nacheinander(antworten);
    logger.COM_Search(logger.COM_Nr, 1, nr);
  }
};

}  // namespace

TEST_F(LoggerProbe, OpensAndClosesThePortAroundOneRequest) {
  probe({antwort()});
  EXPECT_EQ(port.ablauf,
            (Texte{"open 4 19200,N,8,1", "write ec %*\r", "wait 25", "read", "close"}));
  EXPECT_EQ(logger.Scan_Status, 0);
}

TEST_F(LoggerProbe, EachPositionGoesToItsColumn) {
  std::map<int, std::string> alle;
  for (int position = 1; position <= 34; ++position) alle[position] = std::to_string(position);
  alle[38] = "38";
  for (int position = 39; position <= 48; ++position) alle[position] = std::to_string(position);
  alle[35] = alle[36] = alle[37] = "0";
  logger.Auto_korr = 0;
  probe({antwort(alle)});
  const std::map<int, int> spalten = {
      {1, 14},  {2, 15},  {3, 16},  {7, 2},   {8, 6},   {9, 9},   {10, 22}, {11, 23},
      {12, 4},  {13, 5},  {14, 26}, {15, 27}, {16, 8},  {17, 43}, {20, 46}, {21, 47},
      {22, 48}, {23, 39}, {24, 41}, {25, 31}, {29, 35}, {30, 36}, {31, 37}, {32, 38},
      {33, 63}, {34, 64}, {38, 68}, {39, 59}, {40, 61}, {41, 51}, {48, 58}};
  for (const auto& [position, spalte] : spalten)
    EXPECT_EQ(zelle(spalte), std::to_string(position)) << position;
}

TEST_F(LoggerProbe, LastPresentCurrentWins) {
  probe({antwort({{4, "11"}, {5, "12"}, {6, "13"}})});
  EXPECT_EQ(zelle(Spalte::I_L1), "11");
  probe({antwort({{4, "11"}, {35, "21"}, {36, "22"}, {37, "23"}})});
  EXPECT_EQ(zelle(Spalte::I_L1), "21");
  EXPECT_EQ(zelle(Spalte::I_L3), "23");
  probe({antwort({{35, "21"}, {37, "23"}, {51, "31"}, {52, "32"}, {53, "-33"}})});
  EXPECT_EQ(zelle(Spalte::I_L1), "31");
  EXPECT_EQ(zelle(Spalte::I_L2), "32");
  EXPECT_EQ(zelle(Spalte::I_L3), "0");
}

TEST_F(LoggerProbe, MonitoringBoxHasThreeInputsElsewhere) {
  kanaele.Box_Typ = 1;
  probe({antwort({{10, "10"}, {11, "11"}, {30, "30"}})});
  EXPECT_EQ(zelle(36), "10");
  EXPECT_EQ(zelle(Spalte::Fluss_Verfl), "11");
  EXPECT_EQ(zelle(72), "30");
  EXPECT_EQ(zelle(Spalte::t_ein_Verd), "");
}

TEST_F(LoggerProbe, NegativeCurrentIs0InTheTable) {
  probe({antwort({{4, "-4.2"}, {20, "-0.1"}})});
  EXPECT_EQ(zelle(Spalte::I_L1), "0");
  EXPECT_EQ(zelle(Spalte::von(Spalte::E_I_L1, 1)), "0");
}

TEST_F(LoggerProbe, TemperaturesOutOfRangeAreNoMeasurement) {
  probe({antwort({{9, "200.0"}, {12, "200.1"}, {13, "-90.0"}, {16, "-90.1"}})});
  EXPECT_EQ(zelle(Spalte::t_liq), "200");
  EXPECT_EQ(zelle(Spalte::t_Exp), "  -");
  EXPECT_EQ(zelle(Spalte::t_SL), "-90");
  EXPECT_EQ(zelle(Spalte::t_end), "  -");
}

TEST_F(LoggerProbe, DecimalCommaCounts) {
  probe({antwort({{7, "1,25"}, {9, "36,5"}})});
  EXPECT_EQ(zelle(Spalte::p0), "1.25");
  EXPECT_EQ(zelle(Spalte::t_liq), "36.5");
}

TEST_F(LoggerProbe, OffsetsAreAddedToPosition7AndTheTemperaturesOfTheBaseUnit) {
  for (int slot = 1; slot <= 48; ++slot) kanaele.Offset_Wert[static_cast<std::size_t>(slot)] = slot;
  kanaele.Offset_Wert[9] = 0.5;
  probe({antwort({{7, "1"}, {8, "9"}, {9, "36"}, {12, "-4"}, {25, "20"}, {23, "2"}})});
  EXPECT_EQ(zelle(Spalte::p0), "1.5");
  EXPECT_EQ(zelle(Spalte::pc), "9") << "position 8 has no slot";
  EXPECT_EQ(zelle(Spalte::t_liq), "37") << "slot 1";
  EXPECT_EQ(zelle(Spalte::t_Exp), "-2") << "slot 2";
  EXPECT_EQ(zelle(Spalte::E_t_liq), "20");
  EXPECT_EQ(zelle(Spalte::E_P1), "2");
}

TEST_F(LoggerProbe, SensorsOfATranscriticalPlantAreConvertedBeforeTheOffset) {
  kern.Funktion.Sensor_Code[1] = F_transkritisch;
  kanaele.Offset_Wert[9] = 0.25;
  // position 7: kind 1, 3/2.5·12.5 = 15; position 8: kind 4, 40/12.5·25 = 80
  probe({antwort({{7, "3"}, {8, "40"}})});
  EXPECT_EQ(zelle(Spalte::p0), "15.25");
  EXPECT_EQ(zelle(Spalte::pc), "80");
}

TEST_F(LoggerProbe, RejectionJudgesValuesBeforeTheConversion) {
  kern.Funktion.Sensor_Code[1] = F_transkritisch;
  probe({antwort({{7, "5"}, {8, "60"}})});  // 25 and 120 bar when converted
  EXPECT_EQ(logger.Scan_Status, 0);
  EXPECT_EQ(zelle(Spalte::p0), "25");
  EXPECT_EQ(zelle(Spalte::pc), "120");
}

TEST_F(LoggerProbe, HighSideOf90IsTakenAgainWithTheCheckOnAndStoredWithItOff) {
  probe({antwort({{8, "90"}}), antwort()});
  EXPECT_EQ(zelle(Spalte::pc), "9");
  EXPECT_EQ(port.befehle().size(), 2U);
  logger.Auto_korr = 0;
  probe({antwort({{8, "90"}})});
  EXPECT_EQ(zelle(Spalte::pc), "90");
}

TEST_F(LoggerProbe, EverySpoiledReplyIsTakenAgainWithoutAMessage) {
  probe({antwort({{1, "750.1"}}), antwort({{2, "751"}}), antwort({{3, "751"}}),
         antwort({{7, "17.1"}}), antwort({{8, "86.1"}}), antwort({{7, "0"}, {8, "0"}}),
         "   " + antwort(), "230 231 232 10 10 10 1 9 36", "ec %*\r", "", antwort({{4, "4"}})});
  EXPECT_EQ(logger.Scan_Status, 0);
  EXPECT_EQ(zelle(Spalte::I_L1), "4");
  EXPECT_EQ(port.befehle().size(), 11U);
  EXPECT_TRUE(dialog.texte.empty());
}

TEST_F(LoggerProbe, WithTheCheckOffOnlyTheFormOfAReplyCounts) {
  logger.Auto_korr = 0;
  probe({antwort({{1, "800"}, {7, "-1"}, {8, "-1"}})});
  EXPECT_EQ(zelle(Spalte::U_L1), "800");
  EXPECT_EQ(zelle(Spalte::p0), "-1");
  probe({"short ok", antwort()});
  EXPECT_EQ(zelle(Spalte::U_L1), "230");
}

TEST_F(LoggerProbe, OperationThatFailedSpendsTheAttempt) {
  port.gestoert = true;
  probe({antwort()});
  EXPECT_EQ(logger.Scan_Status, 15);
  EXPECT_EQ(zelle(Spalte::p0), "");
}

TEST_F(LoggerProbe, DeadDeviceIsLostAfter51AttemptsWith25MillisecondsBetween) {
  probe({});
  EXPECT_EQ(logger.Scan_Status, 15);
  EXPECT_EQ(port.befehle(), Texte(51, "ec %*"));
  // 51 waits for the reply and 50 between the attempts: 2.525 s
  EXPECT_EQ(uhr.gewartet, std::vector<int>(101, 25));
  EXPECT_EQ(zahl_im_Ablauf("close"), 51);
}

TEST_F(LoggerProbe, GoodReplyAtTheLastAttemptCounts) {
  Texte antworten(50, "");
  antworten.push_back(antwort());
  probe(antworten);
  EXPECT_EQ(logger.Scan_Status, 0);
  EXPECT_EQ(port.befehle().size(), 51U);
}

TEST_F(LoggerProbe, MissingPortIsSurvived) {
  logger.COM_Search(9, 1, 1);
  EXPECT_EQ(logger.Scan_Status, 15);
}

TEST_F(LoggerProbe, ClosingClockTokenWins) {
  probe({antwort()});
  EXPECT_EQ(logger.Zeit_Text, "12:05:09");
}

TEST_F(LoggerProbe, Position9Of0StaysOnSamples1To4AndRepeatsTheLastTokenFrom5On) {
  logger.Auto_korr = 0;
  probe({antwort({{9, "36.5"}})}, 1);
  for (int nr = 2; nr <= 4; ++nr) {
    probe({antwort({{9, "0"}})}, nr);
    EXPECT_EQ(zelle(Spalte::t_liq), "0") << nr;
  }
  probe({antwort({{9, "0.0"}})}, 5);
  EXPECT_EQ(zelle(Spalte::t_liq), "36.5");
  probe({antwort({{9, ""}})}, 6);
  EXPECT_EQ(zelle(Spalte::t_liq), "36.5");
  probe({antwort({{9, "37"}})}, 7);
  probe({antwort({{9, "0"}})}, 8);
  EXPECT_EQ(zelle(Spalte::t_liq), "37");
}

TEST_F(LoggerProbe, RepeatedTokenOfPosition9IsTheRawOne) {
  kanaele.Offset_Wert[1] = 1.5;
  probe({antwort({{9, "36"}})}, 5);
  EXPECT_EQ(zelle(Spalte::t_liq), "37.5");
  probe({antwort({{9, "0"}})}, 6);
  EXPECT_EQ(zelle(Spalte::t_liq), "37.5");
}

TEST_F(LoggerProbe, Position9WithoutAnyGoodTokenStays0) {
  probe({antwort({{9, "0"}})}, 5);
  EXPECT_EQ(zelle(Spalte::t_liq), "0");
}

TEST_F(LoggerProbe, FileFedSourceStandsInForTheLine) {
  quelle.Quelle_ISS = Messquelle::aktiv;
  quelle.Pfad[1] = ordner.pfad("feed.txt");
  logger.Quelle_Art = 2;
  logger.Quelle_Nr = 3;
  std::string text = "\"12:05:09\"";
  for (int position = 1; position <= 32; ++position)
    text += ",\"" + std::to_string(position) + "\"";
  ordner.schreib("feed_3.txt", text);
  logger.COM_Search(78, 1, 1);
  EXPECT_EQ(logger.Scan_Status, 0);
  EXPECT_EQ(zelle(Spalte::p0), "7");
  EXPECT_EQ(zelle(Spalte::E_inx8), "32");
  EXPECT_TRUE(port.ablauf.empty());
}

TEST_F(LoggerProbe, FileFedSourceThatDriesUpIsLostAfter51Attempts) {
  quelle.Quelle_ISS = Messquelle::aktiv;
  quelle.Pfad[0] = ordner.pfad("feed.txt");
  logger.COM_Search(78, 1, 1);
  EXPECT_EQ(logger.Scan_Status, 15);
  EXPECT_EQ(uhr.gewartet, std::vector<int>(50, 25));
}
