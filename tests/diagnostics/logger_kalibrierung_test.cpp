#include <gtest/gtest.h>

#include "diagnostics/spalten.h"
#include "logger_desk.h"

using namespace polarkreis;

namespace {

using Texte = std::vector<std::string>;

struct LoggerKalibrierung : testing::Test, LoggerDesk {
  /// One bath: position 9 reads 20.
  static std::string bad(const std::string& zehn = "19") {
    return antwort({{9, "20"},
                    {10, zehn},
                    {11, "20.5"},
                    {12, "21.25"},
                    {13, "18"},
                    {14, "250"},
                    {15, "249.5"},
                    {16, "850"}});
  }
  LoggerKalibrierung() { port.geraete[4] = immer(bad()); }
  double slot(int n) const { return kanaele.Offset_Wert[static_cast<std::size_t>(n)]; }
};

}  // namespace

TEST_F(LoggerKalibrierung, TakesExactlyFiveSamplesWhateverIsPlanned) {
  for (const char* dauer : {"1 h", "0.1 min", "oo"}) {
    messung.Combo5 = dauer;
    empfaenger.messwerte = 0;
    logger.Start_Butt1(Logger::Kalib_Temperatur);
    EXPECT_EQ(empfaenger.messwerte, 5) << dauer;
    EXPECT_EQ(logger.Start_BUTT_l.Caption, "GO");
  }
}

TEST_F(LoggerKalibrierung, PullsAllInputsToTheFirst) {
  for (double& wert : kanaele.Offset_Wert) wert = 7;
  logger.Start_Kalib();
  // slots of positions 9 to 16: 1, 5, 6, 2, 3, 7, 8, 4
  EXPECT_EQ(slot(1), 0);
  EXPECT_EQ(slot(5), 1);
  EXPECT_EQ(slot(6), -0.5);
  EXPECT_EQ(slot(2), -1.25);
  EXPECT_EQ(slot(3), 2);
  EXPECT_EQ(slot(7), 0) << "250 is an open input";
  EXPECT_EQ(slot(8), -229.5);
  EXPECT_EQ(slot(4), 0) << "an open input";
  EXPECT_EQ(slot(9), 7);
}

TEST_F(LoggerKalibrierung, LastOfTheFiveSamplesCounts) {
  port.geraete[4] = nacheinander({bad(), bad("10"), bad("11"), bad("12"), bad("13"), bad("14")});
  logger.Start_Kalib();
  EXPECT_EQ(slot(5), 6);
}

TEST_F(LoggerKalibrierung, StoresThe48SlotsClearsTheTableAndAsksForTheForm) {
  logger.Start_Kalib();
  const std::string text = ordner.lies("FMD_OFFS.dat");
  EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 48);
  Kanaele gelesen(ablage);
  gelesen.Offset_laden();
  EXPECT_EQ(gelesen.Offset_Wert[3], 2);
  EXPECT_EQ(messung.Mess_Zeilen, 2);
  EXPECT_FALSE(messung.DiaSpread.gefuellt(3));
  EXPECT_TRUE(logger.Offset_zeigen);
  EXPECT_EQ(logger.ProgressBar2, 0);
  EXPECT_FALSE(logger.Picture6);
}

TEST_F(LoggerKalibrierung, BarGrowsByEachProcessedValue) {
  std::vector<int> balken;
  empfaenger.bei_Messwert = [&] {
    balken.push_back(logger.ProgressBar2);
    EXPECT_TRUE(logger.Picture6);
  };
  logger.ProgressBar2 = 99;
  logger.Start_Kalib();
  EXPECT_EQ(balken, (std::vector<int>{8, 16, 24, 32, 40}));
}

TEST_F(LoggerKalibrierung, Tab1CalibratesPressuresAndStoresNoOffsetForThem) {
  for (double& wert : kanaele.Offset_Wert) wert = 0.25;
  const auto vorher = kanaele.Offset_Wert;
  port.geraete[4] = immer(antwort({{7, "5"}, {8, "5.5"}, {23, "6"}, {24, "5.5"}}));
  logger.Kalib_Tab = 1;
  logger.Kalib_Differenz[40] = 1;  // of a run before
  logger.Start_Kalib();
  EXPECT_EQ(empfaenger.messwerte, 5);
  EXPECT_EQ(kanaele.Offset_Wert, vorher);
  EXPECT_EQ(logger.Kalib_Differenz, (std::map<int, double>{{7, 0.5}, {23, -0.5}, {24, 0}}));
  EXPECT_TRUE(logger.Offset_zeigen);
}

TEST_F(LoggerKalibrierung, PressuresWithoutTheirReferenceHaveNoDifference) {
  logger.Kalib_Tab = 1;
  logger.Start_Kalib();
  EXPECT_EQ(logger.Kalib_Differenz, (std::map<int, double>{{7, 8}}));
  port.geraete[4] = immer("231 231 231 10 10 10 5 ok\r\n");  // ends before position 8
  logger.Start_Kalib();
  EXPECT_TRUE(logger.Kalib_Differenz.empty()) << "the reference of the run before is gone";
}

TEST_F(LoggerKalibrierung, OneThatIsStoppedLeavesTheOffsets) {
  for (double& wert : kanaele.Offset_Wert) wert = 7;
  const auto vorher = kanaele.Offset_Wert;
  empfaenger.bei_Messwert = [this] {
    if (empfaenger.messwerte == 3) logger.Start_Butt1(Logger::Kalib_Temperatur);
  };
  logger.Start_Kalib();
  EXPECT_EQ(empfaenger.messwerte, 3);
  EXPECT_EQ(kanaele.Offset_Wert, vorher);
  EXPECT_FALSE(ordner.da("FMD_OFFS.dat"));
  EXPECT_FALSE(logger.Offset_zeigen);
  EXPECT_EQ(messung.Mess_Zeilen, 2);
}

TEST_F(LoggerKalibrierung, DeviceLostAtTheFifthSampleLeavesTheOffsets) {
  port.geraete[4] = nacheinander(Texte(5, bad()));  // one for the search
  logger.Start_Kalib();
  EXPECT_EQ(slot(3), 0);
  EXPECT_FALSE(ordner.da("FMD_OFFS.dat"));
  EXPECT_EQ(messung.Combo6, "???");
}

TEST_F(LoggerKalibrierung, StopInTheFifthSampleIsNotTooEarly) {
  empfaenger.bei_Messwert = [this] {
    if (empfaenger.messwerte == 5) logger.Start_Butt1(Logger::Kalib_Temperatur);
  };
  logger.Start_Kalib();
  EXPECT_EQ(slot(3), 2);
  EXPECT_TRUE(logger.Offset_zeigen);
}

TEST_F(LoggerKalibrierung, OffsetsThatCannotBeStoredAreTold) {
  std::filesystem::create_directory(ordner.pfad("FMD_OFFS.dat"));
  logger.Start_Kalib();
  ASSERT_EQ(dialog.texte.size(), 1U);
  EXPECT_NE(dialog.texte[0].find("FMD_OFFS.dat"), std::string::npos);
}

TEST_F(LoggerKalibrierung, WithoutADeviceHidesItsPanelAgain) {
  port.geraete.clear();
  logger.Start_Kalib();
  EXPECT_EQ(dialog.texte, Texte{Kein_Geraet});
  EXPECT_FALSE(logger.Picture6);
}
