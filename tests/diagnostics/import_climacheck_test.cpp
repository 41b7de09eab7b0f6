#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "diagnostics/import_desk.h"
#include "diagnostics/spalten.h"

using namespace polarkreis;

namespace {

constexpr const char* Mappe = "/sheets/a.xls";

/// A desk with one workbook and a plain power factor.
struct ClimaDesk : ImportDesk {
  Arbeitsmappe& blatt = mappen.mappen[Mappe];
  std::vector<double> stroeme;  // the currents for which a power factor was asked

  void setze(const char* name, Zellinhalt inhalt) {
    const Zellort ort = Zellort_von(name);
    blatt.setze(ort.zeile, ort.spalte, std::move(inhalt));
  }
  /// Data rows with a clock time, from sheet row 25 on.
  void zeiten(int anzahl) {
    for (int i = 0; i < anzahl; ++i) blatt.setze(25 + i, 4, Zeitwert{46000.25 + i * 10 / 86400.0});
  }
  Importergebnis lies(double cos_phi = 1) {
    return import.CC_excel_Import(Mappe, mappen, [this, cos_phi](double strom) {
      stroeme.push_back(strom);
      return cos_phi;
    });
  }
};

}  // namespace

TEST(ImportClimaCheck, SheetRow25IsTableRow3) {
  ClimaDesk desk;
  desk.zeiten(4);
  desk.setze("G25", 2.5);
  desk.setze("G28", 2.8);
  const auto ergebnis = desk.lies();
  EXPECT_EQ(ergebnis.Zeilen, 4);
  EXPECT_EQ(desk.m.Mess_Zeilen, 29 - 24);  // D reads 0 in row 29
  EXPECT_EQ(desk.zelle(3, Spalte::p0), "2.5");
  EXPECT_EQ(desk.zelle(6, Spalte::p0), "2.8");
  EXPECT_EQ(desk.zelle(3, Spalte::Zeilenkopf), "1");
  EXPECT_EQ(desk.m.letzte_Zeile(), 6);
  EXPECT_EQ(desk.m.Messpunkte(), 4);
}

TEST(ImportClimaCheck, ColumnsGoWhereTheyBelong) {
  ClimaDesk desk;
  desk.zeiten(1);
  const std::vector<std::tuple<const char*, int, double>> spalten = {
      {"G25", 2, 1.25},  {"Q25", 5, 5.5},    {"CK25", 4, 4.5},   {"X25", 6, 12.345},
      {"AO25", 8, 70.5}, {"AG25", 9, 30.25}, {"CH25", 14, 231},  {"CI25", 15, 230},
      {"CJ25", 16, 229}, {"CD25", 17, 10},   {"CE25", 18, 9.5},  {"CF25", 19, 9.75},
      {"E25", 22, -18},  {"F25", 23, -20.5}, {"V25", 26, 24.75}, {"W25", 27, 29}};
  for (const auto& [zelle, spalte, wert] : spalten) desk.setze(zelle, wert);
  desk.setze("BF25", 99.0);  // read, and not stored
  desk.lies();
  for (const auto& [zelle, spalte, wert] : spalten)
    EXPECT_EQ(desk.m.DiaSpread.zahl(3, spalte), wert) << zelle;
  for (int spalte = 1; spalte <= 170; ++spalte) EXPECT_NE(desk.zelle(3, spalte), "99");
}

TEST(ImportClimaCheck, AllEightTemperaturesAreCutAndPressuresAreNot) {
  ClimaDesk desk;
  desk.zeiten(1);
  for (const char* name : {"Q25", "CK25", "AO25", "AG25", "E25", "F25", "V25"})
    desk.setze(name, 12.349);
  desk.setze("W25", -12.341);
  desk.setze("G25", 1.2345);
  desk.setze("X25", 12.3456);
  desk.lies();
  for (int spalte : {4, 5, 8, 9, 22, 23, 26}) EXPECT_EQ(desk.zelle(3, spalte), "12.34") << spalte;
  EXPECT_EQ(desk.zelle(3, 27), "-12.35");  // downward
  EXPECT_EQ(desk.zelle(3, 2), "1.2345");
  EXPECT_EQ(desk.zelle(3, 6), "12.3456");
}

TEST(ImportClimaCheck, PowerIsThatOfTheThreePhases) {
  ClimaDesk desk;
  desk.zeiten(1);
  for (const auto& [name, wert] : std::vector<std::pair<const char*, double>>{{"CD25", 10.1},
                                                                              {"CE25", 11.3},
                                                                              {"CF25", 12.7},
                                                                              {"CH25", 231},
                                                                              {"CI25", 230},
                                                                              {"CJ25", 229}})
    desk.setze(name, wert);
  desk.lies(0.8);
  // 231·10.1 + 230·11.3 + 229·12.7 = 2333.1 + 2599 + 2908.3 = 7840.4; ·0.8 = 6272.32 -> 6.272
  EXPECT_EQ(desk.zelle(3, Spalte::P_el), "6.272");
  EXPECT_EQ(desk.stroeme, std::vector<double>{12.7});
}

TEST(ImportClimaCheck, ThirdCurrentIsComparedWithTheSecond) {
  ClimaDesk desk;
  desk.zeiten(3);
  const double stroeme[3][3] = {{20, 5, 6}, {20, 25, 6}, {20, 5, 5}};
  for (int i = 0; i < 3; ++i)
    for (int k = 0; k < 3; ++k) desk.blatt.setze(25 + i, 82 + k, stroeme[i][k]);  // "CD" to "CF"
  desk.lies();
  EXPECT_EQ(desk.stroeme, (std::vector<double>{6, 25, 20}));
}

TEST(ImportClimaCheck, NegativeVoltagesCountAsZeroInThePower) {
  ClimaDesk desk;
  desk.zeiten(1);
  for (const char* name : {"CD25", "CE25", "CF25"}) desk.setze(name, 10.0);
  desk.setze("CH25", -230.0);
  desk.setze("CI25", 230.0);
  desk.lies();
  EXPECT_EQ(desk.zelle(3, Spalte::P_el), "2.3");
}

TEST(ImportClimaCheck, TimeBecomesAClockTime) {
  ClimaDesk desk;
  desk.setze("D25", Zeitwert{46000.25});  // 06:00:00 of some day
  desk.setze("D26", Zeitwert{0.5});       // noon
  desk.setze("D27", 46000.75);            // a number that isn't formatted as a time
  desk.setze("D28", std::string("20.11.2026 16:05:07"));
  desk.setze("D29", Zeitwert{46000 + 5.4 / 86400});  // to the nearest second
  desk.setze("D30", Zeitwert{46000 + 86399.6 / 86400});
  EXPECT_EQ(desk.lies().Zeilen, 6);
  const std::vector<std::string> zeiten = {"06:00:00", "12:00:00", "18:00:00",
                                           "16:05:07", "00:00:05", "00:00:00"};
  for (std::size_t i = 0; i < zeiten.size(); ++i)
    EXPECT_EQ(desk.zelle(static_cast<int>(i) + 3, Spalte::Zeit), zeiten[i]);
}

TEST(ImportClimaCheck, ZeroInColumnDEndsTheData) {
  for (const Zellinhalt& ende : {Zellinhalt{}, Zellinhalt{0.0}, Zellinhalt{std::string("0")},
                                 Zellinhalt{std::string("end")}}) {
    ClimaDesk desk;
    desk.zeiten(5);
    desk.blatt.setze(27, 4, 0.0);
    desk.blatt.setze(27, 4, ende);
    EXPECT_EQ(desk.lies().Zeilen, 2);
    EXPECT_EQ(desk.m.Mess_Zeilen, 3);
  }
}

TEST(ImportClimaCheck, MidnightDoesNotEndTheData) {
  ClimaDesk desk;
  desk.setze("D25", Zeitwert{86395 / 86400.0});
  desk.setze("D26", Zeitwert{0});
  desk.setze("D27", std::string("00:00:05"));
  EXPECT_EQ(desk.lies().Zeilen, 3);
  EXPECT_EQ(desk.zelle(4, Spalte::Zeit), "00:00:00");
}

TEST(ImportClimaCheck, NameIsThePartBeforeThePoint) {
  for (const auto& [text, name] : std::vector<std::pair<std::string, std::string>>{
           {"Cold store.tpl", "Cold store"}, {"Plant", "Plant"}, {"a.b.c", "a"}, {"", ""}}) {
    ClimaDesk desk;
    desk.zeiten(1);
    desk.setze("E5", text);
    desk.lies();
    EXPECT_EQ(desk.m.ProjektNam, name);
  }
  ClimaDesk benannt;
  benannt.m.ProjektNam = "mine";
  benannt.zeiten(1);
  benannt.setze("E5", std::string("Cold store.tpl"));
  benannt.lies();
  EXPECT_EQ(benannt.m.ProjektNam, "mine");
}

TEST(ImportClimaCheck, CellsThatAreNoNumbersStayEmpty) {
  ClimaDesk desk;
  desk.zeiten(1);
  desk.setze("G25", std::string("n/a"));
  desk.setze("X25", std::string("12,5"));  // a number written as a text
  desk.lies();
  EXPECT_EQ(desk.zelle(3, Spalte::p0), "");
  EXPECT_EQ(desk.zelle(3, Spalte::pc), "12.5");
  EXPECT_EQ(desk.zelle(3, Spalte::t_Exp), "");
  EXPECT_EQ(desk.zelle(3, Spalte::P_el), "0");
}

TEST(ImportClimaCheck, MissingAndEmptyWorkbooksLeaveTheTable) {
  ImportDesk desk;
  desk.m.DiaSpread.setze(3, Spalte::Zeit, "01:02:03");
  const auto eins = [](double) { return 1.0; };
  EXPECT_EQ(desk.import.CC_excel_Import("/sheets/none.xls", desk.mappen, eins).grund,
            "no such workbook");
  desk.mappen.mappen["/sheets/b.xls"];
  const auto ergebnis = desk.import.CC_excel_Import("/sheets/b.xls", desk.mappen, eins);
  EXPECT_EQ(ergebnis.grund, "The worksheet holds no data: column D is empty in row 25.");
  EXPECT_EQ(desk.zelle(3, Spalte::Zeit), "01:02:03");
  EXPECT_EQ(desk.m.Mess_Zeilen, 2);
}

TEST(ImportClimaCheck, StoppedImportLeavesTheMeasurement) {
  ClimaDesk desk;
  desk.zeiten(500);
  desk.fortschritt.halt_ab = 2;
  EXPECT_EQ(desk.lies().grund, "The import was stopped.");
  EXPECT_EQ(desk.m.Messpunkte(), 0);
}

TEST(ImportClimaCheck, SheetBeyondTheLongestMeasurementIsCutAndTold) {
  ClimaDesk desk;
  for (int zeile = 25; zeile < 25 + 65001; ++zeile) desk.blatt.setze(zeile, 4, Zeitwert{0.5});
  const auto ergebnis = desk.lies();
  EXPECT_EQ(ergebnis.Zeilen, 65000);
  EXPECT_EQ(ergebnis.hinweis, "Only the first 65000 rows were taken: please split the worksheet.");
  EXPECT_EQ(desk.m.Mess_Zeilen, 65001);
  EXPECT_LT(desk.m.Mess_Zeilen, Zeilen_unbekannt);
}
