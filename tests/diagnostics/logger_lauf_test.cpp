#include <gtest/gtest.h>

#include "diagnostics/spalten.h"
#include "logger_desk.h"

using namespace polarkreis;

namespace {

using Texte = std::vector<std::string>;

struct LoggerLauf : testing::Test, LoggerDesk {
  LoggerLauf() { port.geraete[4] = immer(antwort()); }
  void go() { logger.Start_Butt1(Logger::Messen); }
  /// Runs without a working copy, for long runs.
  void nur_rechnen() { datei.Arbeitskopie.clear(); }
  /// Clock times of column 1, from row 3 on.
  Texte zeiten() const {
    Texte alle;
    for (int zeile = 3; !zelle(Spalte::Zeit, zeile).empty(); ++zeile)
      alle.push_back(zelle(Spalte::Zeit, zeile));
    return alle;
  }
  /// Rows of the working copy as another measurement loads them.
  int Zeilen_der_Arbeitskopie() {
    Messung andere;
    Messdatei(andere, ablage, captions, dialog, uhr).LoadDiaG("FM_diag.dat");
    return andere.Messpunkte();
  }
  void expect_bereit() const {
    EXPECT_EQ(logger.Start_BUTT_l.Caption, "GO");
    EXPECT_EQ(logger.Start_BUTT_l.farbe, Logger::Farbe::rot);
    EXPECT_EQ(logger.Mess_laeuft, 0);
    EXPECT_FALSE(logger.belegt());
  }
};

}  // namespace

TEST_F(LoggerLauf, WithoutADeviceDoesNotStart) {
  port.geraete.clear();
  go();
  EXPECT_EQ(dialog.texte, Texte{Kein_Geraet});
  EXPECT_EQ(messung.Combo6, "???");
  EXPECT_EQ(messung.Mess_Zeilen, 2);
  EXPECT_FALSE(ordner.da("FM_diag.dat"));
  expect_bereit();
}

TEST_F(LoggerLauf, ShowsStopInGreenWhileItRuns) {
  empfaenger.bei_Messwert = [this] {
    EXPECT_EQ(logger.Start_BUTT_l.Caption, "STOP");
    EXPECT_EQ(logger.Start_BUTT_l.farbe, Logger::Farbe::gruen);
    EXPECT_EQ(logger.Mess_laeuft, 1);
    EXPECT_TRUE(logger.belegt());
  };
  go();
  EXPECT_EQ(empfaenger.messwerte, 13);
  expect_bereit();
}

TEST_F(LoggerLauf, TakesOneSampleMoreThanPlanned) {
  go();  // 60 s / 5 s = 12
  EXPECT_EQ(empfaenger.messwerte, 13);
  EXPECT_EQ(messung.Mess_Zeilen, 15);
  EXPECT_EQ(messung.Messpunkte(), 13);
}

TEST_F(LoggerLauf, PlannedCountIsNotRounded) {
  messung.Combo2 = "7s";  // 60 / 7 = 8.57: sample 9 exceeds it
  go();
  EXPECT_EQ(empfaenger.messwerte, 9);
}

TEST_F(LoggerLauf, WaitsForTheRestOfTheIntervalInPieces) {
  beim_Ereignis(2, [this] { go(); });  // STOP in the first pass
  go();
  // 16 ports with two waits; the request; 5000 - 25 - 133 = 4842
  std::vector<int> erwartet(32, 25);
  for (int ms : {25, 842, 1000, 1000, 1000, 1000}) erwartet.push_back(ms);
  EXPECT_EQ(uhr.gewartet, erwartet);
  EXPECT_EQ(empfaenger.ereignisse, 1 + 5);
}

TEST_F(LoggerLauf, SlowSampleIsFollowedWithoutAPause) {
  messung.Combo2 = "0.1s";
  beim_Ereignis(2, [this] { go(); });
  go();
  EXPECT_EQ(uhr.gewartet.back(), 0);
  EXPECT_EQ(empfaenger.ereignisse, 2);
}

TEST_F(LoggerLauf, NonsenseIntervalDoesNotKeepARunFromEnding) {
  uhr.beim_warten = nullptr;
  messung.Combo2 = "1e300s";
  beim_Ereignis(2, [this] { go(); });
  go();
  EXPECT_EQ(empfaenger.messwerte, 1);
  EXPECT_EQ(std::count(uhr.gewartet.begin(), uhr.gewartet.end(), 1000), 7 * 24 * 3600);
}

TEST_F(LoggerLauf, NewestSampleIsRow3WithItsLocalTime) {
  messung.Combo5 = "0.2 min";  // 2.4 samples: 3 are taken
  go();
  // The search takes 800 ms and a pass 25 + 4842 ms; local time is an hour ahead of 11:00:00 UTC.
  EXPECT_EQ(zeiten(), (Texte{"12:00:10", "12:00:05", "12:00:00"}));
}

TEST_F(LoggerLauf, ComputesEachRow) {
  beim_Ereignis(2, [this] { go(); });
  go();
  EXPECT_NEAR(messung.DiaSpread.zahl(3, Spalte::t0), -10, 1) << "R134A at 2.013 bar";
  EXPECT_FALSE(zelle(Spalte::P_el).empty());
}

TEST_F(LoggerLauf, StopShowsAtOnceAndEndsTheLoopAtItsNextTest) {
  beim_Ereignis(9, [this] {  // the search's, five of sample 1, the third of sample 2
    go();
    EXPECT_EQ(logger.Start_BUTT_l.Caption, "GO");
    EXPECT_EQ(logger.Start_BUTT_l.farbe, Logger::Farbe::rot);
    EXPECT_TRUE(logger.belegt());
  });
  go();
  EXPECT_EQ(empfaenger.messwerte, 2);
  EXPECT_EQ(messung.Mess_Zeilen, 4);
  EXPECT_EQ(Zeilen_der_Arbeitskopie(), 2);
  expect_bereit();
}

TEST_F(LoggerLauf, GoWhileTheStoppedLoopStillWaitsStartsNoSecondRun) {
  beim_Ereignis(3, [this] {
    go();  // STOP
    go();  // GO
    EXPECT_EQ(logger.Mess_laeuft, 0);
  });
  go();
  EXPECT_EQ(empfaenger.messwerte, 1);
  empfaenger.bei_Ereignis = nullptr;
  go();
  EXPECT_EQ(empfaenger.messwerte, 14);
}

TEST_F(LoggerLauf, OtherOperationsWaitUntilItHasEnded) {
  beim_Ereignis(2, [this] {
    const std::size_t vorher = port.ablauf.size();
    logger.COM_Such();
    logger.COM_import();
    logger.COM_Port_FMD_Import();
    logger.Start_Kalib();
    EXPECT_EQ(port.ablauf.size(), vorher);
    EXPECT_EQ(logger.Start_BUTT_l.Caption, "STOP");
    go();
  });
  go();
  EXPECT_EQ(empfaenger.messwerte, 1);
  EXPECT_FALSE(logger.Picture6);
  EXPECT_TRUE(dialog.texte.empty());
}

TEST_F(LoggerLauf, EndlessRunGoesOnUntilStop) {
  nur_rechnen();
  messung.Combo5 = "oo";
  empfaenger.bei_Messwert = [this] {
    if (empfaenger.messwerte == 1000) go();
  };
  go();
  EXPECT_EQ(messung.Mess_Zeilen, 1002);
}

TEST_F(LoggerLauf, ADayTakesMilliseconds) {
  nur_rechnen();
  messung.Combo5 = "24 h";
  messung.Combo2 = "30s";
  const std::int64_t vorher = uhr.ms;
  go();
  EXPECT_EQ(empfaenger.messwerte, 2881);
  EXPECT_EQ(messung.Mess_Zeilen, 2883);
  // each pass takes its interval less the allowance
  EXPECT_EQ(uhr.ms - vorher, 800 + 2881 * (30000 - 133));
}

TEST_F(LoggerLauf, TableWithRowsGetsARowForTheFirstSampleToo) {
  messung.DiaSpread.setze(3, Spalte::Zeit, "08:00:00");
  messung.DiaSpread.setze(4, Spalte::Zeit, "07:59:55");
  messung.Mess_Zeilen = 4;
  beim_Ereignis(2, [this] { go(); });
  go();
  EXPECT_EQ(zeiten(), (Texte{"12:00:00", "08:00:00", "07:59:55"}));
  EXPECT_EQ(messung.Mess_Zeilen, 5);
}

TEST_F(LoggerLauf, EmptyTableThatCounts200RowsBeginsAfresh) {
  messung.Mess_Zeilen = 200;
  go();
  EXPECT_EQ(messung.Mess_Zeilen, 15);
}

TEST_F(LoggerLauf, DeviceThatDiesInMidRunLeavesTheRowsTakenSoFar) {
  Texte antworten(4, antwort());  // one for the search
  port.geraete[4] = nacheinander(antworten);
  go();
  EXPECT_EQ(logger.Scan_Status, 15);
  EXPECT_EQ(logger.COM_Nr, 0);
  EXPECT_EQ(messung.Combo6, "???");
  EXPECT_EQ(zeiten(), (Texte{"12:00:10", "12:00:05", "12:00:00"}));
  EXPECT_EQ(messung.Mess_Zeilen, 5);
  EXPECT_EQ(Zeilen_der_Arbeitskopie(), 3);
  EXPECT_TRUE(gemeldet("the run ended after 3 samples"));
  EXPECT_TRUE(dialog.texte.empty());
  expect_bereit();
}

TEST_F(LoggerLauf, DeviceThatDiesAtOnceLeavesTheTableAsItWas) {
  port.geraete[4] = nacheinander({antwort()});
  go();
  EXPECT_EQ(messung.Mess_Zeilen, 2);
  EXPECT_EQ(zeiten(), Texte{});
  EXPECT_EQ(messung.DiaSpread.Zeilenzahl(), 200);
  EXPECT_EQ(Zeilen_der_Arbeitskopie(), 0);
}

TEST_F(LoggerLauf, RunAfterALostDeviceIsAsAnyOther) {
  port.geraete[4] = nacheinander({antwort()});
  go();
  port.geraete[4] = immer(antwort());
  go();
  EXPECT_EQ(logger.Scan_Status, 0);
  EXPECT_EQ(messung.Mess_Zeilen, 15);
}

TEST_F(LoggerLauf, SampleToBeRepeatedKeepsItsRow) {
  messung.Combo5 = "0.2 min";
  int wiederholt = 0;
  uhr.beim_warten = [this, &wiederholt](int) {
    if (empfaenger.messwerte == 1 && logger.belegt() && messung.Mess_Zeilen == 4 &&
        wiederholt < 2) {
      logger.Scan_Status = 7;
      ++wiederholt;
    }
  };
  go();
  EXPECT_EQ(wiederholt, 2);
  EXPECT_EQ(empfaenger.messwerte, 3);
  EXPECT_EQ(messung.Mess_Zeilen, 5);
  EXPECT_EQ(port.befehle().size(), 16U + 3 + 2);
}

TEST_F(LoggerLauf, CheckBoxIsCopiedAtGo) {
  messung.Auto_corr_Check = 0;
  messung.Combo5 = "0.1 min";
  port.geraete[4] = immer(antwort({{8, "90"}}));
  go();
  EXPECT_EQ(logger.Auto_korr, 0);
  EXPECT_EQ(zelle(Spalte::pc), "90");
  messung.Auto_corr_Check = 1;
  go();
  EXPECT_EQ(logger.Auto_korr, 1);
  EXPECT_EQ(logger.Scan_Status, 15);
}

TEST_F(LoggerLauf, BaudTextSetsTheLine) {
  messung.Combo7 = "19200";
  beim_Ereignis(2, [this] { go(); });
  go();
  EXPECT_EQ(logger.COM_Settings, "19200,N,8,1");
  EXPECT_EQ(zahl_im_Ablauf("open 4 19200,N,8,1"), 1);
  messung.Combo7 = "";
  beim_Ereignis(2, [this] { go(); });
  go();
  EXPECT_EQ(logger.COM_Settings, "9600,N,8,1");
}

TEST_F(LoggerLauf, FunctionsOfTheUnitsAreAssignedAtGo) {
  messung.OrbiN_spread(4, Einheitentabelle::Einheit) = "Orbiter 1";
  messung.OrbiN_spread(4, Einheitentabelle::Funktion) = Text_transkritisch;
  port.geraete[4] = immer(antwort({{7, "3"}, {8, "40"}}));
  beim_Ereignis(2, [this] { go(); });
  go();
  EXPECT_EQ(zelle(Spalte::p0), "15");
  EXPECT_EQ(zelle(Spalte::pc), "80");
}

TEST_F(LoggerLauf, SumsAndScalesBeginAfresh) {
  kern.Summe_Energ = 5;
  kern.Sum_zeit_messung = 50;
  messung.skala.p_max = 99;
  beim_Ereignis(2, [this] { go(); });
  go();
  EXPECT_LT(kern.Summe_Energ, 5);
  EXPECT_LE(kern.Sum_zeit_messung, 5);
  EXPECT_LT(messung.skala.p_max, 99);
}

TEST_F(LoggerLauf, TableRedrawsUnlessAChartIsShowing) {
  for (const auto& [tab, zeichnet] :
       std::map<int, bool>{{0, true}, {2, true}, {3, false}, {4, false}, {5, false}, {6, true}}) {
    logger.SSTab1 = tab;
    beim_Ereignis(2, [this] { go(); });
    go();
    EXPECT_EQ(logger.DiaSpread_Redraw, zeichnet) << tab;
  }
}

TEST_F(LoggerLauf, CursorIsRestoredFromTheSecondPassOn) {
  messung.Combo5 = "0.2 min";
  go();
  EXPECT_EQ(empfaenger.sanduhr, (std::vector<bool>{true, false, false, false}));
}

TEST_F(LoggerLauf, ScanWithoutADeviceTellsSo) {
  logger.Mess_laeuft = 1;
  logger.Start_Scan(Logger::Messen);
  EXPECT_EQ(logger.Start_Fehler, 1);
  EXPECT_EQ(dialog.texte, Texte{Kein_Geraet});
  logger.COM_Nr = 4;
  messung.Combo6 = "???";
  logger.Start_Scan(Logger::Messen);
  EXPECT_EQ(logger.Start_Fehler, 1);
  EXPECT_EQ(empfaenger.messwerte, 0);
}

// --- The working copy

TEST_F(LoggerLauf, WorkingCopyGrowsByEachComputedRow) {
  int nummer = 0;
  empfaenger.bei_Messwert = [this, &nummer] { EXPECT_EQ(Zeilen_der_Arbeitskopie(), ++nummer); };
  messung.Combo5 = "0.2 min";
  go();
  Messung gelesen;
  Messdatei(gelesen, ablage, captions, dialog, uhr).LoadDiaG("FM_diag.dat");
  EXPECT_EQ(gelesen.DiaSpread.text(3, Spalte::Zeit), "12:00:00") << "in the order of time";
  EXPECT_EQ(gelesen.DiaSpread.text(5, Spalte::Zeit), "12:00:10");
  EXPECT_EQ(gelesen.DiaSpread.text(5, Spalte::t0), zelle(Spalte::t0)) << "rows are computed ones";
}

TEST_F(LoggerLauf, WorkingCopyThatCannotBeWrittenIsToldOnceAndKeepsItsRows) {
  std::filesystem::create_directory(ordner.pfad("FM_diag.dat"));
  messung.Combo5 = "0.3 min";  // 3.6: four samples
  empfaenger.bei_Messwert = [this] {
    EXPECT_EQ(dialog.texte.size(), 1U);
    if (empfaenger.messwerte == 2) std::filesystem::remove(ordner.pfad("FM_diag.dat"));
  };
  go();
  ASSERT_EQ(dialog.texte.size(), 1U);
  EXPECT_NE(dialog.texte[0].find("FM_diag.dat"), std::string::npos);
  EXPECT_EQ(dialog.symbole[0], Symbol::fehler);
  EXPECT_EQ(empfaenger.messwerte, 4);
  EXPECT_EQ(Zeilen_der_Arbeitskopie(), 4);
}

TEST_F(LoggerLauf, RowsOfTheRunBeforeAreKeptBeside) {
  messung.Combo5 = "0.2 min";
  go();
  beim_Ereignis(2, [this] { go(); });
  go();
  EXPECT_EQ(Zeilen_der_Arbeitskopie(), 1);
  EXPECT_EQ(ablage.liste("", ".fmd").size(), 1U);
}
