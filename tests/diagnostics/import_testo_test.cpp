#include <gtest/gtest.h>

#include "diagnostics/import_desk.h"
#include "diagnostics/spalten.h"

using namespace polarkreis;

namespace {

constexpr const char* Mappe = "/sheets/t.xls";

/// A desk with one workbook whose rows hold "D" to "H".
struct TestoDesk : ImportDesk {
  Arbeitsmappe& blatt = mappen.mappen[Mappe];

  /// Fills a row from column "D" on.
  void zeile(int nummer, const std::vector<Zellinhalt>& werte) {
    int spalte = 4;
    for (const Zellinhalt& wert : werte) blatt.setze(nummer, spalte++, wert);
  }
  Importergebnis lies(int kind) { return import.Testo_Excel_import(Mappe, mappen, kind); }
};

const Zellinhalt nichts;

}  // namespace

TEST(ImportTesto, PairsGiveTheirMeans) {
  TestoDesk desk;
  desk.zeile(3, {20.0, 21.0, 10.0, 11.0, 5.0});
  desk.zeile(4, {20.11, 20.12, 10.11, 10.12, 5.5});
  const auto ergebnis = desk.lies(1);
  EXPECT_EQ(ergebnis.Zeilen, 2);
  EXPECT_EQ(desk.zelle(3, 16), "20.5");
  EXPECT_EQ(desk.zelle(3, 17), "10.5");
  EXPECT_EQ(desk.zelle(3, 4), "5");
  // 100·(20.11 + 20.12)/2 = 2011.5, + 0.05 -> 2011; 100·(10.11 + 10.12)/2 = 1011.5 -> 1011
  EXPECT_EQ(desk.zelle(4, 16), "20.11");
  EXPECT_EQ(desk.zelle(4, 17), "10.11");
  EXPECT_EQ(desk.zelle(4, 4), "5.5");
}

TEST(ImportTesto, SheetOfAnotherInstrumentIsTold) {
  TestoDesk desk;
  desk.zeile(3, {20.0, 21.0});
  for (int zeile = 4; zeile <= 30; ++zeile) desk.zeile(zeile, {20.0, 21.0, 10.0, 11.0, 5.0});
  EXPECT_EQ(Blattform_von(desk.blatt), Importform::Testo);
  EXPECT_EQ(desk.lies(1).eher, Importform::keine);
  const auto als_climacheck =
      desk.import.CC_excel_Import(Mappe, desk.mappen, [](double) { return 0.8; });
  EXPECT_EQ(als_climacheck.eher, Importform::Testo);
  EXPECT_EQ(als_climacheck.Zeilen, 6) << "taken all the same";
  EXPECT_TRUE(desk.gemeldet("a Testo 735 worksheet"));

  desk.blatt = Arbeitsmappe();
  EXPECT_EQ(Blattform_von(desk.blatt), Importform::keine);
  desk.blatt.setze(25, 4, Zeitwert{0.5});
  EXPECT_EQ(Blattform_von(desk.blatt), Importform::keine);
  for (const int spalte : {7, 24}) desk.blatt.setze(25, spalte, 8.5);
  EXPECT_EQ(Blattform_von(desk.blatt), Importform::ClimaCheck);
  desk.blatt.setze(26, 4, Zeitwert{0.6});
  for (const int spalte : {7, 24}) desk.blatt.setze(26, spalte, 8.5);
  desk.blatt.setze(25, 24, std::string("-"));
  EXPECT_EQ(Blattform_von(desk.blatt), Importform::ClimaCheck) << "a gap in its first row";
  const auto als_testo = desk.lies(2);
  EXPECT_NE(als_testo.grund, "");
  EXPECT_EQ(als_testo.eher, Importform::ClimaCheck);
  desk.zeile(3, {20.0, 21.0});
  EXPECT_EQ(Blattform_von(desk.blatt), Importform::ClimaCheck);
}

TEST(ImportTesto, FirstPairIsRaisedBeforeTheCut) {
  TestoDesk desk;
  desk.zeile(3, {20.0196, 20.0196, 20.0196, 20.0196});
  desk.lies(1);
  // 2001.96 + 0.05 = 2002.01 -> 20.02; 2001.96 -> 20.01
  EXPECT_EQ(desk.zelle(3, 16), "20.02");
  EXPECT_EQ(desk.zelle(3, 17), "20.01");
}

TEST(ImportTesto, OneOfAPairCountsAsItStands) {
  TestoDesk desk;
  desk.zeile(3, {20.123, nichts, 10.456, nichts});
  desk.zeile(4, {nichts, 21.123, nichts, 11.456});
  desk.zeile(5, {nichts, nichts, nichts, 11.456});
  EXPECT_EQ(desk.lies(2).Zeilen, 3);
  EXPECT_EQ(desk.zelle(3, 20), "20.123");
  EXPECT_EQ(desk.zelle(3, 21), "10.456");
  EXPECT_EQ(desk.zelle(4, 20), "21.123");  // only "E" is filled
  EXPECT_EQ(desk.zelle(4, 21), "11.456");
  EXPECT_EQ(desk.zelle(5, 20), "");
  EXPECT_EQ(desk.zelle(5, 21), "11.456");
}

TEST(ImportTesto, KindTwoWritesColumns20And21Only) {
  TestoDesk desk;
  desk.zeile(3, {20.0, 20.0, 10.0, 10.0, 5.0});
  desk.lies(2);
  EXPECT_EQ(desk.zelle(3, 20), "20");
  EXPECT_EQ(desk.zelle(3, 21), "10");
  EXPECT_EQ(desk.zelle(3, 16), "");
  EXPECT_EQ(desk.zelle(3, 17), "");
  EXPECT_EQ(desk.zelle(3, 4), "");
}

TEST(ImportTesto, CellThatIsNoNumberCountsAsEmpty) {
  TestoDesk desk;
  desk.zeile(3,
             {std::string("error"), 21.5, std::string("10,5"), std::string("-"), std::string("")});
  desk.lies(1);
  EXPECT_EQ(desk.zelle(3, 16), "21.5");
  EXPECT_EQ(desk.zelle(3, 17), "10.5");
  EXPECT_EQ(desk.zelle(3, 4), "");
}

TEST(ImportTesto, SheetRowIsTableRowAndTheCountFollows) {
  TestoDesk desk;
  desk.zeile(1, {std::string("Testo 735")});
  desk.zeile(2, {std::string("In 1")});
  for (int zeile = 3; zeile < 13; ++zeile) desk.zeile(zeile, {20.0 + zeile});
  EXPECT_EQ(desk.lies(1).Zeilen, 10);
  EXPECT_EQ(desk.m.Mess_Zeilen, 13 - 2);  // the data end in row 13
  EXPECT_EQ(desk.zelle(3, 16), "23");
  EXPECT_EQ(desk.zelle(12, 16), "32");
  EXPECT_EQ(desk.zelle(12, Spalte::Zeilenkopf), "10");
  EXPECT_EQ(desk.m.letzte_Zeile(), 12);
}

TEST(ImportTesto, ZeroInColumnDEndsTheData) {
  for (const Zellinhalt& null : {Zellinhalt{0.0}, Zellinhalt{std::string("0")}}) {
    TestoDesk desk;
    desk.zeile(3, {20.0});
    desk.zeile(4, {null, 21.0});
    desk.zeile(5, {20.0});
    EXPECT_EQ(desk.lies(1).Zeilen, 1);
    EXPECT_EQ(desk.m.Mess_Zeilen, 2);
  }
}

TEST(ImportTesto, RowWithoutAnyValueEndsTheData) {
  TestoDesk desk;
  desk.zeile(3, {20.0});
  desk.zeile(4, {nichts, nichts, nichts, nichts, 5.0});
  desk.zeile(5, {nichts, nichts, nichts, std::string("  ")});
  desk.zeile(6, {20.0});
  EXPECT_EQ(desk.lies(1).Zeilen, 2);
  EXPECT_EQ(desk.zelle(4, 4), "5");
}

TEST(ImportTesto, ClockRunsFromMidnightAtTheInterval) {
  TestoDesk desk;
  for (int zeile = 3; zeile < 8; ++zeile) desk.zeile(zeile, {20.0});
  desk.m.Combo2 = "40s";
  desk.lies(1);
  const std::vector<std::string> zeiten = {"00:00:00", "00:00:40", "00:01:20", "00:02:00",
                                           "00:02:40"};
  for (std::size_t i = 0; i < zeiten.size(); ++i)
    EXPECT_EQ(desk.zelle(static_cast<int>(i) + 3, Spalte::Zeit), zeiten[i]);
}

TEST(ImportTesto, ClockPassesMidnightAndBearsAnyInterval) {
  for (const auto& [intervall, zeit] :
       std::vector<std::pair<std::string, std::string>>{{"", "00:00:05"},
                                                        {"86395s", "23:59:55"},
                                                        {"86400s", "00:00:00"},
                                                        {"0.5s", "00:00:00"},
                                                        {"1e300s", "17:36:00"},
                                                        {"x", "00:00:00"}}) {
    TestoDesk desk;
    desk.zeile(3, {20.0});
    desk.zeile(4, {20.0});
    desk.m.Combo2 = intervall;
    EXPECT_EQ(desk.lies(1).Zeilen, 2);
    EXPECT_EQ(desk.zelle(4, Spalte::Zeit), zeit) << intervall;
  }
}

TEST(ImportTesto, BothKindsFindRoomInOneTable) {
  TestoDesk desk;
  desk.zeile(3, {20.0, nichts, 10.0});
  desk.lies(1);
  desk.blatt = {};
  desk.zeile(3, {30.0, nichts, 40.0});
  desk.lies(2);
  EXPECT_EQ(desk.zelle(3, 16), "20");
  EXPECT_EQ(desk.zelle(3, 17), "10");
  EXPECT_EQ(desk.zelle(3, 20), "30");
  EXPECT_EQ(desk.zelle(3, 21), "40");
}

TEST(ImportTesto, OtherCellsAndTheirClockStayAndSurplusRowsGo) {
  TestoDesk desk;
  for (int zeile = 3; zeile < 210; ++zeile) {
    desk.m.DiaSpread.setze(zeile, Spalte::Zeit, "10:00:00");
    desk.m.DiaSpread.setze(zeile, Spalte::p0, "2");
    desk.m.DiaSpread.setze(zeile, 16, "99");
  }
  desk.zeile(3, {20.0});
  desk.zeile(4, {nichts, nichts, 10.0});
  desk.lies(1);
  EXPECT_EQ(desk.zelle(3, Spalte::Zeit), "10:00:00");
  EXPECT_EQ(desk.zelle(3, Spalte::p0), "2");
  EXPECT_EQ(desk.zelle(4, 16), "");  // the sheet's columns are the sheet's
  EXPECT_EQ(desk.m.Messpunkte(), 2);
  EXPECT_EQ(desk.m.letzte_Zeile(), 4);
}

TEST(ImportTesto, NothingIsCutFromALongSheet) {
  TestoDesk desk;
  for (int zeile = 3; zeile < 3 + 20000; ++zeile) desk.zeile(zeile, {20.0});
  const auto ergebnis = desk.lies(1);
  EXPECT_EQ(ergebnis.Zeilen, 20000);
  EXPECT_EQ(ergebnis.hinweis, "");
  EXPECT_EQ(desk.m.DiaSpread.Zeilenzahl(), 20002);
  EXPECT_EQ(desk.m.Mess_Zeilen, 20001);
}

TEST(ImportTesto, SheetBeyondTheLongestMeasurementIsCutAndTold) {
  TestoDesk desk;
  for (int zeile = 3; zeile < 3 + 65001; ++zeile) desk.zeile(zeile, {20.0});
  const auto ergebnis = desk.lies(1);
  EXPECT_EQ(ergebnis.Zeilen, 65000);
  EXPECT_EQ(ergebnis.hinweis, "Only the first 65000 rows were taken: please split the worksheet.");
}

TEST(ImportTesto, NameGoesIntoAnEmptyProjectName) {
  TestoDesk desk;
  for (int zeile = 3; zeile < 8; ++zeile) desk.zeile(zeile, {20.0, 21.0});
  desk.blatt.setze(5, 5, std::string("Cold store"));
  desk.lies(1);
  EXPECT_EQ(desk.m.ProjektNam, "Cold store");
  EXPECT_EQ(desk.zelle(5, 16), "20");  // "D" alone counts there
  TestoDesk zahl;
  for (int zeile = 3; zeile < 8; ++zeile) zahl.zeile(zeile, {20.0, 21.0});
  zahl.lies(1);
  EXPECT_EQ(zahl.m.ProjektNam, "");  // a measured value is no name
}

TEST(ImportTesto, MissingAndEmptyWorkbooksLeaveTheTable) {
  TestoDesk desk;
  desk.m.DiaSpread.setze(3, Spalte::Zeit, "01:02:03");
  EXPECT_EQ(desk.import.Testo_Excel_import("/sheets/none.xls", desk.mappen, 1).grund,
            "no such workbook");
  EXPECT_EQ(desk.lies(1).grund, "The worksheet holds no data: columns D to H are empty in row 3.");
  desk.zeile(3, {20.0});
  desk.fortschritt.halt_ab = 1;
  EXPECT_EQ(desk.lies(1).grund, "The import was stopped.");
  EXPECT_EQ(desk.zelle(3, Spalte::Zeit), "01:02:03");
  EXPECT_EQ(desk.zelle(3, 16), "");
}
