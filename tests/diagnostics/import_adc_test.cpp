#include <gtest/gtest.h>

#include "diagnostics/import_desk.h"
#include "diagnostics/spalten.h"
#include "shell/wert.h"

using namespace polarkreis;

// --- Lines and their clock time

TEST(ImportAdc, PositionsGoToTheirColumns) {
  ImportDesk desk;
  const auto ergebnis = desk.adc(logger_zeile("06:05:07", zahlen(16)));
  EXPECT_EQ(ergebnis.grund, "");
  EXPECT_EQ(ergebnis.Zeilen, 1);
  EXPECT_EQ(ergebnis.Teile, 1);
  EXPECT_EQ(desk.zelle(3, Spalte::Zeilenkopf), "1");
  EXPECT_EQ(desk.zelle(3, Spalte::Zeit), "06:05:07");
  EXPECT_EQ(desk.zelle(3, Spalte::U_L1), "1");
  EXPECT_EQ(desk.zelle(3, Spalte::U_L3), "3");
  EXPECT_EQ(desk.zelle(3, Spalte::I_L1), "4");
  EXPECT_EQ(desk.zelle(3, Spalte::I_L3), "6");
  EXPECT_EQ(desk.zelle(3, Spalte::p0), "7");
  EXPECT_EQ(desk.zelle(3, Spalte::pc), "8");
  EXPECT_EQ(desk.zelle(3, Spalte::t_liq), "9");
  EXPECT_EQ(desk.zelle(3, Spalte::t_ein_Verd), "10");
  EXPECT_EQ(desk.zelle(3, Spalte::t_aus_Verd), "11");
  EXPECT_EQ(desk.zelle(3, Spalte::t_Exp), "12");
  EXPECT_EQ(desk.zelle(3, Spalte::t_SL), "13");
  EXPECT_EQ(desk.zelle(3, Spalte::t_ein_Verfl), "14");
  EXPECT_EQ(desk.zelle(3, Spalte::t_aus_Verfl), "15");
  EXPECT_EQ(desk.zelle(3, Spalte::t_end), "16");
  EXPECT_EQ(desk.m.Mess_Zeilen, 1);
}

TEST(ImportAdc, RemoteUnitsAreReadUpToPosition48) {
  ImportDesk desk;
  desk.adc(logger_zeile("06:05:07", zahlen(50)));
  EXPECT_EQ(desk.zelle(3, Spalte::von(Spalte::E_P1, 1)), "23");
  EXPECT_EQ(desk.zelle(3, Spalte::von(Spalte::E_t_liq, 1)), "25");
  EXPECT_EQ(desk.zelle(3, Spalte::von(Spalte::E_P2, 2)), "40");
  EXPECT_EQ(desk.zelle(3, Spalte::von(Spalte::E_inx8, 2)), "48");
  EXPECT_EQ(desk.zelle(3, Spalte::Senke), "");   // where positions 49 and 50 would go
  EXPECT_EQ(desk.zelle(3, Spalte::I_L1), "35");  // the last present value wins
  EXPECT_EQ(desk.zelle(3, Spalte::I_L3), "37");
}

TEST(ImportAdc, AnyLineEndServesAndBlankLinesDontCount) {
  for (const char* ende : {"\r\n", "\n", "\r"}) {
    ImportDesk desk;
    const std::string blank(ende);
    const auto ergebnis =
        desk.adc(blank + logger_zeile("06:00:00", {"1"}, ende) + "  \t" + blank + blank +
                 logger_zeile("06:00:05", {"2"}, ende) + logger_zeile("06:00:10", {"3"}, ""));
    EXPECT_EQ(ergebnis.Zeilen, 3);
    EXPECT_EQ(ergebnis.hinweis, "");
    EXPECT_EQ(desk.m.Mess_Zeilen, 3);
    EXPECT_EQ(desk.zelle(5, Spalte::Zeit), "06:00:10");
    EXPECT_EQ(desk.zelle(5, Spalte::Zeilenkopf), "3");
    EXPECT_EQ(desk.zelle(5, Spalte::U_L1), "3");
    EXPECT_FALSE(desk.m.DiaSpread.gefuellt(6));
  }
}

TEST(ImportAdc, LineOverABlockBorderIsWhole) {
  ImportDesk desk;
  const std::string text = logger_zeilen(100);  // 40 characters a line: lines cross 1000 and 2000
  EXPECT_EQ(desk.adc(text).Zeilen, 100);
  for (int i = 1; i <= 100; ++i) {
    EXPECT_EQ(desk.zelle(i + 2, Spalte::Zeit), "06:00:00");
    EXPECT_EQ(desk.zelle(i + 2, Spalte::t_liq), std::to_string(i));
  }
}

TEST(ImportAdc, ClockIsTheEightCharactersThatEndThreePastTheSecondColon) {
  const auto uhr = [](std::string_view text) {
    const auto zeit = Uhrzeit_von(text);
    return zeit ? zeit->text : std::string("none");
  };
  EXPECT_EQ(uhr("02.03.2026 06:05:07"), "06:05:07");   // 19 characters
  EXPECT_EQ(uhr("02.03.2026  06:05:07"), "06:05:07");  // 20
  EXPECT_EQ(uhr("M02.03.2026 06:05:07\t1"), "06:05:07");
  EXPECT_EQ(uhr("2026-03-02T16:05:07"), "16:05:07");
  EXPECT_EQ(uhr("02.03.2026  6:05:07"), "06:05:07");
  EXPECT_EQ(uhr("6:05:07"), "06:05:07");
  EXPECT_EQ(uhr("02.03.2026 06:05"), "none");
  EXPECT_EQ(uhr("02.03.2026 06:05:7"), "none");
  EXPECT_EQ(uhr("02.03.2026 ab:cd:ef"), "none");
  EXPECT_EQ(uhr("Measured on 02.03.2026 06:05:07"), "none");  // behind the head
  EXPECT_EQ(uhr(""), "none");
  EXPECT_EQ(uhr("::"), "none");
}

TEST(ImportAdc, LineWithoutAClockTimeIsLeftOutAndTold) {
  ImportDesk desk;
  const auto ergebnis = desk.adc("time\tU1\tU2\r\n" + logger_zeile("06:00:00", {"1"}) +
                                 std::string(40, '\0') + "\r\n" + "06.03.20");
  EXPECT_EQ(ergebnis.Zeilen, 1);
  EXPECT_EQ(desk.m.Mess_Zeilen, 1);
  EXPECT_EQ(ergebnis.hinweis, "2 lines without a clock time left out.");
  EXPECT_TRUE(desk.gemeldet("2 lines without a clock time left out."));
}

TEST(ImportAdc, HeadOfTwentyCharactersMayEndInAMark) {
  ImportDesk desk;
  desk.adc("02.03.2026 06:05:07M\t231\r\n02.03.2026 06:05:08 \t232\r\n02.03.2026 06:05:09 233\t1");
  EXPECT_EQ(desk.zelle(3, Spalte::U_L1), "231");
  EXPECT_EQ(desk.zelle(4, Spalte::U_L1), "232");
  EXPECT_EQ(desk.zelle(5, Spalte::U_L1), "233");
}

// --- Values

TEST(ImportAdc, LeadingTabsAndRunsOfTabsAreSkipped) {
  ImportDesk desk;
  desk.adc("02.03.2026  06:00:00\t\t\t231\t\t230\t\r\n");
  EXPECT_EQ(desk.zelle(3, Spalte::U_L1), "231");
  EXPECT_EQ(desk.zelle(3, Spalte::U_L2), "230");
  EXPECT_EQ(desk.zelle(3, Spalte::U_L3), "");
}

TEST(ImportAdc, NegativeElectricalValuesAreZero) {
  ImportDesk desk;
  desk.adc(
      logger_zeile("06:00:00", {"-231", "-0.1", "0", "-3", "0.1", "1.50", "-0.9", "-0.5", "-40"}));
  EXPECT_EQ(desk.zelle(3, Spalte::U_L1), "0");
  EXPECT_EQ(desk.zelle(3, Spalte::U_L2), "0");
  EXPECT_EQ(desk.zelle(3, Spalte::I_L1), "0");
  EXPECT_EQ(desk.zelle(3, Spalte::I_L2), "0.1");
  EXPECT_EQ(desk.zelle(3, Spalte::I_L3), "1.5");
  EXPECT_EQ(desk.zelle(3, Spalte::p0), "-0.9");  // pressures and temperatures may be negative
  EXPECT_EQ(desk.zelle(3, Spalte::pc), "-0.5");
  EXPECT_EQ(desk.zelle(3, Spalte::t_liq), "-40");
}

TEST(ImportAdc, ExactlyTwoHundredIsKept) {
  ImportDesk desk;
  std::vector<std::string> werte(16, "200");
  desk.adc(logger_zeile("06:00:00", werte));
  EXPECT_EQ(desk.zelle(3, Spalte::pc), "200");
  EXPECT_EQ(desk.zelle(3, Spalte::t_Exp), "200");
  werte.assign(16, "200.1");
  desk.adc(logger_zeile("06:00:00", werte));
  EXPECT_EQ(desk.zelle(3, Spalte::U_L1), "200.1");  // a voltage
  EXPECT_EQ(desk.zelle(3, Spalte::I_L3), "200.1");
  for (int spalte : {Spalte::p0, Spalte::pc, Spalte::t_liq, Spalte::t_Exp, Spalte::t_end})
    EXPECT_EQ(desk.zelle(3, spalte), "  -") << spalte;
  werte.assign(16, "-200");
  desk.adc(logger_zeile("06:00:00", werte));
  EXPECT_EQ(desk.zelle(3, Spalte::t_Exp), "-200");  // no lower limit here
}

TEST(ImportAdc, OffsetsOfTheTemperatureSlotsAreAdded) {
  ImportDesk desk;
  for (std::size_t slot = 1; slot <= 48; ++slot)
    desk.kanaele.Offset_Wert[slot] = static_cast<double>(slot) / 100;
  desk.adc(logger_zeile("06:00:00", std::vector<std::string>(32, "10")));
  // Positions 9 to 16 have the slots 1, 5, 6, 2, 3, 7, 8, 4; no other position has one.
  EXPECT_EQ(desk.zelle(3, Spalte::t_liq), "10.01");
  EXPECT_EQ(desk.zelle(3, Spalte::t_ein_Verd), "10.05");
  EXPECT_EQ(desk.zelle(3, Spalte::t_aus_Verd), "10.06");
  EXPECT_EQ(desk.zelle(3, Spalte::t_Exp), "10.02");
  EXPECT_EQ(desk.zelle(3, Spalte::t_SL), "10.03");
  EXPECT_EQ(desk.zelle(3, Spalte::t_ein_Verfl), "10.07");
  EXPECT_EQ(desk.zelle(3, Spalte::t_aus_Verfl), "10.08");
  EXPECT_EQ(desk.zelle(3, Spalte::t_end), "10.04");
  EXPECT_EQ(desk.zelle(3, Spalte::p0), "10");
  EXPECT_EQ(desk.zelle(3, Spalte::U_L1), "10");
  EXPECT_EQ(desk.zelle(3, Spalte::E_t_liq), "10");
}

TEST(ImportAdc, OffsetCountsBeforeTheLimit) {
  ImportDesk desk;
  desk.kanaele.Offset_Wert[1] = 0.5;
  desk.adc(logger_zeile("06:00:00", std::vector<std::string>(16, "199.9")));
  EXPECT_EQ(desk.zelle(3, Spalte::t_liq), "  -");
  EXPECT_EQ(desk.zelle(3, Spalte::t_Exp), "199.9");
}

TEST(ImportAdc, TranscriticalPressuresAreConverted) {
  ImportDesk desk;
  desk.funktion("CO2 Transkritisch");
  desk.adc(logger_zeile("06:00:00", std::vector<std::string>(24, "10")));
  // Kind 1: u = 10/2.5 + 0.5 = 4.5, (4.5 - 0.5)·12.5 = 50; kind 4: u = 1.3, 0.8·25 = 20.
  EXPECT_EQ(desk.zelle(3, Spalte::p0), "50");
  EXPECT_EQ(desk.zelle(3, Spalte::pc), "20");
  EXPECT_EQ(desk.zelle(3, Spalte::E_P1), "50");
  EXPECT_EQ(desk.zelle(3, Spalte::E_P2), "50");
  EXPECT_EQ(desk.zelle(3, Spalte::t_liq), "10");
}

TEST(ImportAdc, ConvertedValueAboveTheLimitIsNoMeasurement) {
  ImportDesk desk;
  desk.funktion("CO2 Transkritisch");
  // 41·5 = 205 above 200; 40·5 = 200 is not.
  desk.adc(logger_zeile("06:00:00", {"1", "1", "1", "1", "1", "1", "41", "100"}) +
           logger_zeile("06:00:05", {"1", "1", "1", "1", "1", "1", "40", "100.1"}));
  EXPECT_EQ(desk.zelle(3, Spalte::p0), "  -");
  EXPECT_EQ(desk.zelle(3, Spalte::pc), "200");
  EXPECT_EQ(desk.zelle(4, Spalte::p0), "200");
  EXPECT_EQ(desk.zelle(4, Spalte::pc), "  -");
}

TEST(ImportAdc, WordsReadAsZeroAndNumbersBeyondTheRangeAsNothing) {
  ImportDesk desk;
  const auto ergebnis = desk.adc(logger_zeile("06:00:00", {"1e999", "--", "abc", "", "2,5"}));
  EXPECT_EQ(ergebnis.Zeilen, 1);
  EXPECT_EQ(desk.zelle(3, Spalte::U_L1), "");
  EXPECT_EQ(desk.zelle(3, Spalte::U_L2), "0");
  EXPECT_EQ(desk.zelle(3, Spalte::U_L3), "0");
  EXPECT_EQ(desk.zelle(3, Spalte::I_L1), "2.5");
}

// --- Monitoring box

TEST(ImportAdc, MonitoringBoxIsToldByItsLetterInTheSecondBlock) {
  const std::string zeile = logger_zeile("06:00:00", zahlen(16));  // 59 characters
  std::string text;
  while (text.size() < 2000) text += zeile;
  for (const auto& [platz, typ] :
       std::vector<std::pair<std::size_t, int>>{{999, 0}, {1000, 1}, {1999, 1}, {2000, 0}})
    for (char buchstabe : {'M', 'm'}) {
      ImportDesk desk;
      std::string mit = text + zeile;
      mit[platz] = buchstabe;
      ASSERT_GT(desk.adc(mit).Zeilen, 0);
      EXPECT_EQ(desk.kanaele.Box_Typ, typ) << platz;
    }
}

TEST(ImportAdc, WithoutTheLetterTheBoxStays) {
  ImportDesk desk;
  desk.kanaele.Box_Typ = 2;
  desk.adc(logger_zeilen(100));
  EXPECT_EQ(desk.kanaele.Box_Typ, 2);
}

TEST(ImportAdc, MonitoringBoxWiresThreeInputsOtherwise) {
  ImportDesk desk;
  std::string text;
  for (int i = 0; i < 20; ++i)
    text += "M02.03.2026 06:00:00" + logger_zeile("", zahlen(32)).substr(12);
  ASSERT_EQ(desk.adc(text).Zeilen, 20);
  EXPECT_EQ(desk.zelle(3, Spalte::E_t_Exp), "10");
  EXPECT_EQ(desk.zelle(3, Spalte::Fluss_Verfl), "11");
  EXPECT_EQ(desk.zelle(3, 72), "30");
  EXPECT_EQ(desk.zelle(3, Spalte::t_ein_Verd), "");
}

TEST(ImportAdc, FileThatComesToNothingLeavesTheBox) {
  ImportDesk desk;
  EXPECT_EQ(desk.adc(std::string(3000, 'M')).Zeilen, 0);
  EXPECT_EQ(desk.kanaele.Box_Typ, 0);
}

// --- Parts

TEST(ImportAdc, ExactlyEightThousandFiveHundredLinesAreTakenWhole) {
  ImportDesk desk;
  const auto ergebnis = desk.adc(logger_zeilen(8500));
  EXPECT_EQ(ergebnis.Zeilen, 8500);
  EXPECT_EQ(ergebnis.Teile, 1);
  EXPECT_FALSE(ergebnis.Teil_fehlt());
  EXPECT_EQ(desk.m.Mess_Zeilen, 8500);
  EXPECT_EQ(desk.m.Messpunkte(), 8500);
  EXPECT_EQ(desk.m.letzte_Zeile(), 8502);
}

TEST(ImportAdc, OneLineMoreGoesToTheListOfParts) {
  ImportDesk desk;
  desk.m.ProjektNam = "before";
  desk.m.DiaSpread.setze(3, Spalte::Zeit, "01:02:03");
  const auto ergebnis = desk.adc(logger_zeilen(8501));
  EXPECT_TRUE(ergebnis.Teil_fehlt());
  EXPECT_EQ(ergebnis.Teile, 2);
  EXPECT_EQ(ergebnis.Zeilen, 0);
  EXPECT_EQ(desk.zelle(3, Spalte::Zeit), "01:02:03");
  EXPECT_EQ(desk.m.Mess_Zeilen, 2);
}

TEST(ImportAdc, EachLineBelongsToThePartInWhichItBegins) {
  const std::string text = logger_zeilen(8501);
  const int bloecke = static_cast<int>((text.size() + 999) / 1000);
  const std::size_t grenze = static_cast<std::size_t>(bloecke / 2 + 1) * 1000;
  int davor = 0;  // lines that begin before the border
  for (std::size_t i = 0; i < grenze; ++i) davor += i == 0 || text[i - 1] == '\n' ? 1 : 0;
  for (int teil : {1, 2}) {
    ImportDesk desk;
    const auto ergebnis = desk.adc(text, teil);
    EXPECT_EQ(ergebnis.Teile, 2);
    EXPECT_EQ(ergebnis.Zeilen, teil == 1 ? davor : 8501 - davor);
    EXPECT_EQ(desk.m.Mess_Zeilen, ergebnis.Zeilen);
    EXPECT_EQ(desk.zelle(3, Spalte::Zeilenkopf), "1");
    EXPECT_EQ(desk.m.DiaSpread.zahl(3, Spalte::t_liq), teil == 1 ? 1 : (davor + 1) % 150);
  }
}

TEST(ImportAdc, TwiceTheLinesGiveThreeParts) {
  ImportDesk desk;
  const std::string text = logger_zeilen(17000);  // 17000/8500 + 1
  EXPECT_EQ(desk.adc(text).Teile, 3);
  int zeilen = 0;
  for (int teil = 1; teil <= 3; ++teil) zeilen += desk.adc(text, teil).Zeilen;
  EXPECT_EQ(zeilen, 17000);
}

TEST(ImportAdc, PartThatIsNotThereIsRefused) {
  ImportDesk desk;
  const std::string text = logger_zeilen(8501);
  EXPECT_EQ(desk.adc(text, 3).grund, "The file has no part 3, only 2.");
  EXPECT_EQ(desk.adc(text, -1).grund, "The file has no part -1, only 2.");
  EXPECT_EQ(desk.adc(logger_zeilen(5), 2).grund, "The file has no part 2, only 1.");
  EXPECT_EQ(desk.adc(logger_zeilen(5), 1).Zeilen, 5);
}

// --- What it does to the measurement

TEST(ImportAdc, FileNameGoesIntoAnEmptyProjectName) {
  ImportDesk desk;
  desk.adc(logger_zeilen(3));
  EXPECT_EQ(desk.m.ProjektNam, "log.adc");
  desk.ordner.schreib("other.adc", logger_zeilen(3));
  desk.import.DiaG_import(desk.ordner.pfad("other.adc"), I_Logger);
  EXPECT_EQ(desk.m.ProjektNam, "log.adc");
}

TEST(ImportAdc, OldRowsGoAndCaptionsStay) {
  ImportDesk desk;
  desk.m.DiaSpread.setze(1, Spalte::Zeit, "Time");
  desk.m.DiaSpread.setze(2, Spalte::p0, "- 1.9 -");
  for (int zeile = 3; zeile < 300; ++zeile) desk.m.DiaSpread.setze(zeile, Spalte::Zeit, "01:00:00");
  desk.m.skala.Q_max = 99;
  desk.adc(logger_zeilen(4));
  EXPECT_EQ(desk.zelle(1, Spalte::Zeit), "Time");
  EXPECT_EQ(desk.zelle(2, Spalte::p0), "- 1.9 -");
  EXPECT_EQ(desk.m.Messpunkte(), 4);
  EXPECT_EQ(desk.m.skala, Skala{});
}

TEST(ImportAdc, ProgressIsShownEveryNinetyEightBlocks) {
  ImportDesk desk;
  const std::string text = logger_zeilen(6000);  // twice the blocks: two passes
  const int bloecke = static_cast<int>((text.size() + 999) / 1000);
  desk.adc(text);
  const int je_Durchgang = bloecke / 98;
  ASSERT_GT(je_Durchgang, 1);
  ASSERT_EQ(desk.fortschritt.schritte.size(), static_cast<std::size_t>(2 * je_Durchgang));
  EXPECT_EQ(desk.fortschritt.schritte[0], (std::pair{98, bloecke}));
  EXPECT_EQ(desk.fortschritt.schritte[1], (std::pair{196, bloecke}));
}

TEST(ImportAdc, StoppedImportLeavesTheMeasurement) {
  for (int halt : {1, 3}) {  // in the first pass, and in the second
    ImportDesk desk;
    desk.m.DiaSpread.setze(3, Spalte::Zeit, "01:02:03");
    desk.fortschritt.halt_ab = halt;
    const auto ergebnis = desk.adc(logger_zeilen(6000));
    EXPECT_EQ(ergebnis.grund, "The import was stopped.");
    EXPECT_EQ(ergebnis.Zeilen, 0);
    EXPECT_EQ(desk.zelle(3, Spalte::Zeit), "01:02:03");
    EXPECT_EQ(desk.m.ProjektNam, "");
  }
}

// --- Files that can't be read

TEST(ImportAdc, MissingFileLeavesTheTableAndSaysWhy) {
  ImportDesk desk;
  desk.m.DiaSpread.setze(3, Spalte::Zeit, "01:02:03");
  const auto ergebnis = desk.import.DiaG_import(desk.ordner.pfad("none.adc"), I_Logger);
  EXPECT_EQ(ergebnis.Zeilen, 0);
  EXPECT_EQ(ergebnis.grund, "The file " + desk.ordner.pfad("none.adc") + " does not exist.");
  EXPECT_FALSE(desk.ordner.da("none.adc"));
  EXPECT_EQ(desk.zelle(3, Spalte::Zeit), "01:02:03");
}

TEST(ImportAdc, EmptyFileFolderAndForeignBytesSayWhy) {
  ImportDesk desk;
  EXPECT_EQ(desk.adc("").grund, "The file " + desk.ordner.pfad("log.adc") + " is empty.");
  EXPECT_EQ(desk.import.DiaG_import(desk.ordner.pfad(), I_Logger).grund,
            "The file " + desk.ordner.pfad() +
                " can't be read: it is a folder, or you have no right to read it.");
  EXPECT_EQ(desk.adc("\r\n\r\n").grund, "No line of the file begins with date and clock time.");
  std::string bytes;
  for (int i = 0; i < 5000; ++i) bytes += static_cast<char>(i * 37 % 256);
  EXPECT_EQ(desk.adc(bytes).grund, "No line of the file begins with date and clock time.");
}

TEST(ImportAdc, UnknownModeIsRefused) {
  ImportDesk desk;
  EXPECT_EQ(desk.import.DiaG_import(desk.ordner.pfad("log.adc"), 161).grund,
            "No text file is imported by the mode 161.");
}

TEST(ImportAdc, OneLineOfTwentyMillionCharactersDoesNoHarm) {
  ImportDesk desk;
  EXPECT_EQ(desk.adc(std::string(20'000'000, '\t')).Zeilen, 0);
  const auto ergebnis = desk.adc("02.03.2026 06:00:00" + std::string(20'000'000, '\t') + "5");
  EXPECT_EQ(ergebnis.Zeilen, 1);
  EXPECT_EQ(desk.zelle(3, Spalte::U_L1), "5");
}

// --- The sample files

TEST(ImportAdc, SampleDayOfAColdStoreIsPlausible) {
  ImportDesk desk;
  const auto ergebnis = desk.import.DiaG_import(POLARKREIS_DATA "/R404A cold store.adc", I_Logger);
  EXPECT_EQ(ergebnis.Zeilen, 1440);
  EXPECT_EQ(ergebnis.hinweis, "");
  EXPECT_EQ(desk.zelle(3, Spalte::Zeit), "06:00:00");
  EXPECT_EQ(desk.zelle(1442, Spalte::Zeit), "05:59:00");
  int laeuft = 0;
  for (int zeile = 3; zeile <= 1442; ++zeile) {
    const Messtabelle& t = desk.m.DiaSpread;
    EXPECT_GT(t.zahl(zeile, Spalte::pc), t.zahl(zeile, Spalte::p0)) << zeile;
    EXPECT_GT(t.zahl(zeile, Spalte::p0), 0) << zeile;
    laeuft += t.zahl(zeile, Spalte::I_L1) > 1 ? 1 : 0;
  }
  EXPECT_GT(laeuft, 900);
  EXPECT_LT(laeuft, 1300);  // it defrosts and stops in between
  EXPECT_EQ(desk.kanaele.Box_Typ, 0);
}

TEST(ImportAdc, SampleOfAMonitoringBoxIsRecognised) {
  ImportDesk desk;
  const auto ergebnis =
      desk.import.DiaG_import(POLARKREIS_DATA "/R134A monitoring box.adc", I_Logger);
  EXPECT_EQ(ergebnis.Zeilen, 360);
  EXPECT_EQ(desk.kanaele.Box_Typ, 1);
  EXPECT_EQ(desk.zelle(3, Spalte::Zeit), "06:00:00");
  EXPECT_GT(desk.m.DiaSpread.zahl(100, Spalte::Fluss_Verfl), 20);  // m³/h of cooling water
}
