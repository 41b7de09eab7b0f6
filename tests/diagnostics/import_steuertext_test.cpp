#include <gtest/gtest.h>

#include "diagnostics/import_desk.h"
#include "diagnostics/spalten.h"

using namespace polarkreis;

namespace {

/// A row of a control system's file: stamp and values in quotes; fewer than 32 are filled up.
std::string zeile(std::string_view stempel, std::vector<std::string> werte) {
  werte.resize(32, "1");
  std::string text = "\"" + std::string(stempel) + "\"";
  for (const std::string& wert : werte) text += ",\"" + wert + "\"";
  return text + "\r\n";
}

}  // namespace

TEST(ImportSteuertext, ThirtyTwoValuesGoToTheirColumns) {
  ImportDesk desk;
  const auto ergebnis = desk.steuertext(zeile("20.11.2026 16:05:07", zahlen(32)));
  EXPECT_EQ(ergebnis.grund, "");
  EXPECT_EQ(ergebnis.Zeilen, 1);
  EXPECT_EQ(desk.zelle(3, Spalte::Zeilenkopf), "1");
  EXPECT_EQ(desk.zelle(3, Spalte::Zeit), "16:05:07");
  EXPECT_EQ(desk.zelle(3, Spalte::U_L1), "1");
  EXPECT_EQ(desk.zelle(3, Spalte::p0), "7");
  EXPECT_EQ(desk.zelle(3, Spalte::t_end), "16");
  EXPECT_EQ(desk.zelle(3, Spalte::E_P1), "23");
  EXPECT_EQ(desk.zelle(3, Spalte::E_inx8), "32");
  EXPECT_EQ(desk.m.ProjektNam, "control.txt");
}

TEST(ImportSteuertext, TextsThatPlainlyAreOfTheOtherKindAreTakenAndTold) {
  ImportDesk desk;
  const std::string steuertext = zeile("20.11.2026 16:05:07", zahlen(32));
  const std::string logger = logger_zeile("16:05:07", zahlen(16));
  EXPECT_EQ(desk.steuertext(steuertext).eher, Importform::keine);
  EXPECT_EQ(desk.adc(logger).eher, Importform::keine);
  EXPECT_TRUE(desk.meldungen.zeilen().empty());

  const auto als_adc = desk.adc(steuertext);
  EXPECT_EQ(als_adc.eher, Importform::Steuertext);
  EXPECT_EQ(als_adc.Zeilen, 1);
  EXPECT_TRUE(desk.gemeldet("a text file of a control system"));
  const auto als_steuertext = desk.steuertext(logger + logger);
  EXPECT_EQ(als_steuertext.eher, Importform::Logger);
  EXPECT_EQ(als_steuertext.Zeilen, 1);
  EXPECT_TRUE(desk.gemeldet("a logger's own file"));
}

TEST(ImportSteuertext, OneOddLineMakesNoOtherKindOfAFile) {
  const std::string gut = "20.11.2026 16:05:07, 1, 2\r\n";
  EXPECT_EQ(Textform_von("20.11.2026 16:05:00\tstart\r\n" + gut + gut), Importform::Steuertext);
  EXPECT_EQ(Textform_von(gut + "16:05:07\t1\r\n16:05:08\t2\r\n"), Importform::Logger);
  EXPECT_EQ(Textform_von(gut + "16:05:07\t1\r\n"), Importform::keine);
  ImportDesk desk;
  EXPECT_EQ(desk.steuertext("20.11.2026 16:05:00\tstart\r\n" + gut + gut).eher, Importform::keine);
}

TEST(ImportSteuertext, FormOfATextShowsInItsLinesWithAClockTime) {
  EXPECT_EQ(Textform_von("night of 2.3.\r\n02.03.2026  06:00:00\t231,7\t230,5\r\n"),
            Importform::Logger);
  EXPECT_EQ(Textform_von("\"02.03.2026  06:00:00\",\"231\"\n"), Importform::Steuertext);
  EXPECT_EQ(Textform_von("02.03.2026 06:00:00,231.5,230\n"), Importform::Steuertext);
  EXPECT_EQ(Textform_von("\"02.03.2026 06:00:00\"\n\"231\"\n"), Importform::keine);
  EXPECT_EQ(Textform_von("a,b\tc\n"), Importform::keine);
  EXPECT_EQ(Textform_von(""), Importform::keine);
}

TEST(ImportSteuertext, ThirtyThreeItemsAreARowWhateverTheLines) {
  ImportDesk desk;
  std::string text;
  for (const char* uhr : {"16:00:00", "16:00:05"}) {
    text += "\"20.11.2026 " + std::string(uhr) + "\"\r\n";
    for (const std::string& wert : zahlen(32)) text += "\"" + wert + "\"\r\n";
  }
  EXPECT_EQ(desk.steuertext(text).Zeilen, 2);
  EXPECT_EQ(desk.zelle(4, Spalte::Zeit), "16:00:05");
  EXPECT_EQ(desk.zelle(4, Spalte::E_inx8), "32");
}

TEST(ImportSteuertext, RulesOfTheLoggerFileHold) {
  ImportDesk desk;
  desk.kanaele.Offset_Wert[1] = 0.5;
  desk.funktion("CO2 Transkritisch");
  desk.steuertext(
      zeile("20.11.2026 16:00:00", {"-1", "230,5", "1", "1", "1", "1", "10", "10", "20", "200.1"}));
  EXPECT_EQ(desk.zelle(3, Spalte::U_L1), "0");
  EXPECT_EQ(desk.zelle(3, Spalte::U_L2), "230.5");
  EXPECT_EQ(desk.zelle(3, Spalte::p0), "50");
  EXPECT_EQ(desk.zelle(3, Spalte::pc), "20");
  EXPECT_EQ(desk.zelle(3, Spalte::t_liq), "20.5");
  EXPECT_EQ(desk.zelle(3, Spalte::t_ein_Verd), "  -");
}

TEST(ImportSteuertext, EmptyTimeStampEndsTheImport) {
  for (const char* stempel : {"", "  "}) {
    ImportDesk desk;
    const auto ergebnis = desk.steuertext(zeile("20.11.2026 16:00:00", {}) + zeile(stempel, {}) +
                                          zeile("20.11.2026 16:00:10", {}));
    EXPECT_EQ(ergebnis.Zeilen, 1);
    EXPECT_EQ(desk.m.Mess_Zeilen, 1);
    EXPECT_EQ(ergebnis.hinweis, "");
    EXPECT_FALSE(desk.m.DiaSpread.gefuellt(4));
  }
}

TEST(ImportSteuertext, BlankLastLineEndsTheImport) {
  ImportDesk desk;
  EXPECT_EQ(desk.steuertext(zeile("20.11.2026 16:00:00", {}) + "\r\n").Zeilen, 1);
}

TEST(ImportSteuertext, CutOffLastRowKeepsWhatItHas) {
  ImportDesk desk;
  const auto ergebnis =
      desk.steuertext(zeile("20.11.2026 16:00:00", {}) + "\"20.11.2026 16:00:05\",\"231\",\"23");
  EXPECT_EQ(ergebnis.Zeilen, 2);
  EXPECT_EQ(desk.zelle(4, Spalte::U_L1), "231");
  EXPECT_EQ(desk.zelle(4, Spalte::U_L2), "23");
  EXPECT_EQ(desk.zelle(4, Spalte::U_L3), "");
}

TEST(ImportSteuertext, EmptyValueLetsTheOthersMoveUpAndIsTold) {
  ImportDesk desk;
  const auto ergebnis = desk.steuertext(zeile("20.11.2026 16:00:00", {"231", "", "229"}));
  EXPECT_EQ(desk.zelle(3, Spalte::U_L2), "229");
  EXPECT_EQ(ergebnis.hinweis, "1 row with an empty value, behind which the others move up.");
  EXPECT_TRUE(desk.gemeldet(ergebnis.hinweis));
  ImportDesk am_Ende;
  EXPECT_EQ(am_Ende.steuertext("\"20.11.2026 16:00:00\",\"231\"\r\n").hinweis, "");
}

TEST(ImportSteuertext, RowWithoutAClockTimeIsLeftOutAndTold) {
  ImportDesk desk;
  const auto ergebnis =
      desk.steuertext(zeile("time", {}) + zeile("20.11.2026 16:00:00", {}) + zeile("x", {}));
  EXPECT_EQ(ergebnis.Zeilen, 1);
  EXPECT_EQ(ergebnis.hinweis, "2 rows without a clock time left out.");
  EXPECT_EQ(desk.steuertext(zeile("time", {})).grund,
            "No row of the file begins with date and clock time.");
}

TEST(ImportSteuertext, EightThousandSixHundredAndFortyRowsAreAllotted) {
  ImportDesk desk;
  EXPECT_EQ(desk.steuertext(zeile("20.11.2026 16:00:00", {})).Zeilen, 1);
  EXPECT_EQ(desk.m.DiaSpread.Zeilenzahl(), 8642);  // two rows of captions

  std::string text;
  for (int i = 0; i < 8641; ++i) text += zeile("20.11.2026 16:00:00", {});
  const auto ergebnis = desk.steuertext(text);
  EXPECT_EQ(ergebnis.Zeilen, 8640);
  EXPECT_EQ(desk.m.Mess_Zeilen, 8640);
  EXPECT_EQ(ergebnis.hinweis, "1 row beyond the table's 8640 left out.");
}

TEST(ImportSteuertext, StoppedImportLeavesTheMeasurement) {
  ImportDesk desk;
  desk.m.DiaSpread.setze(3, Spalte::Zeit, "01:02:03");
  desk.fortschritt.halt_ab = 2;
  std::string text;
  for (int i = 0; i < 300; ++i) text += zeile("20.11.2026 16:00:00", {});
  EXPECT_EQ(desk.steuertext(text).grund, "The import was stopped.");
  EXPECT_EQ(desk.zelle(3, Spalte::Zeit), "01:02:03");
}

TEST(ImportSteuertext, MissingFileSaysWhy) {
  ImportDesk desk;
  EXPECT_EQ(desk.import.DiaG_import(desk.ordner.pfad("none.txt"), I_Steuertext).grund,
            "The file " + desk.ordner.pfad("none.txt") + " does not exist.");
}

TEST(ImportSteuertext, SampleOfTwoHoursIsPlausible) {
  ImportDesk desk;
  const auto ergebnis =
      desk.import.DiaG_import(POLARKREIS_DATA "/KKP_FMD_TEMP_2.txt", I_Steuertext);
  EXPECT_EQ(ergebnis.Zeilen, 360);
  EXPECT_EQ(ergebnis.hinweis, "");
  EXPECT_EQ(desk.zelle(3, Spalte::Zeit), "06:00:00");
  EXPECT_EQ(desk.zelle(362, Spalte::Zeit), "07:59:40");
  for (int zeile = 3; zeile <= 362; ++zeile)
    EXPECT_GT(desk.m.DiaSpread.zahl(zeile, Spalte::pc), desk.m.DiaSpread.zahl(zeile, Spalte::p0));
}
