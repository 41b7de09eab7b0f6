#include "diagnostics/messtabelle.h"

#include <gtest/gtest.h>

#include <limits>

#include "diagnostics/messung.h"

using namespace polarkreis;

namespace {

/// Rows 3 to 5 named by their first cell.
Messtabelle dreizeilig() {
  Messtabelle tabelle;
  tabelle.setze(3, 1, "a");
  tabelle.setze(4, 1, "b");
  tabelle.setze(5, 1, "c");
  return tabelle;
}

/// First cells of rows 3 to 7.
std::string namen(const Messtabelle& tabelle) {
  std::string text;
  for (int zeile = 3; zeile <= 7; ++zeile) {
    const std::string& zelle = tabelle.text(zeile, 1);
    text += zelle.empty() ? "." : zelle;
  }
  return text;
}

}  // namespace

TEST(Messtabelle, HasTwoHundredEmptyRowsAtFirst) {
  const Messtabelle tabelle;
  EXPECT_EQ(tabelle.Zeilenzahl(), 200);
  EXPECT_EQ(tabelle.letzte_gefuellte(), 2);
  EXPECT_EQ(tabelle.text(200, 170), "");
}

TEST(Messtabelle, CellsOutsideAreEmptyAndTakeNothing) {
  Messtabelle tabelle;
  for (const auto& [zeile, spalte] : {std::pair{0, 1}, {-1, 1}, {3, -1}, {3, 171}}) {
    tabelle.setze(zeile, spalte, "x");
    tabelle.setze_Zahl(zeile, spalte, 1);
    EXPECT_EQ(tabelle.text(zeile, spalte), "");
  }
  EXPECT_EQ(tabelle.text(201, 1), "");
  EXPECT_EQ(tabelle.Zeilenzahl(), 200);
}

TEST(Messtabelle, WritingBelowTheTableAllotsTheRow) {
  Messtabelle tabelle;
  tabelle.setze(500, 170, "x");
  EXPECT_EQ(tabelle.Zeilenzahl(), 500);
  EXPECT_EQ(tabelle.text(500, 170), "x");
  tabelle.setze(600, 1, "");
  EXPECT_EQ(tabelle.Zeilenzahl(), 500);
}

TEST(Messtabelle, SurplusRowsGoWithTheirContent) {
  Messtabelle tabelle = dreizeilig();
  tabelle.setze_Zeilenzahl(4);
  tabelle.setze_Zeilenzahl(10);
  EXPECT_EQ(namen(tabelle), "ab...");
  tabelle.setze_Zeilenzahl(-7);
  EXPECT_EQ(tabelle.Zeilenzahl(), 3);
  EXPECT_EQ(namen(tabelle), "a....");
}

TEST(Messtabelle, NumbersGoInAndOutAsText) {
  Messtabelle tabelle;
  tabelle.setze_Zahl(3, 2, 2.50);
  EXPECT_EQ(tabelle.text(3, 2), "2.5");
  tabelle.setze_Zahl(3, 2, leer);
  EXPECT_EQ(tabelle.text(3, 2), "2.5");
  tabelle.setze(3, 2, "1,25");
  EXPECT_EQ(tabelle.zahl(3, 2), 1.25);
  tabelle.setze(3, 2, Kein_Messwert);
  EXPECT_EQ(tabelle.zahl(3, 2), 0);
}

TEST(Messtabelle, TextAmongTheFirstTenCellsFillsARow) {
  Messtabelle tabelle;
  tabelle.setze(3, 0, "1");
  tabelle.setze(3, 11, "x");
  EXPECT_FALSE(tabelle.gefuellt(3));
  tabelle.setze(3, 10, " ");
  EXPECT_TRUE(tabelle.gefuellt(3));
  EXPECT_FALSE(tabelle.gefuellt(0));
  EXPECT_FALSE(tabelle.gefuellt(9999));
}

TEST(Messtabelle, GapEndsTheFilledRows) {
  Messtabelle tabelle = dreizeilig();
  tabelle.setze(7, 1, "e");
  EXPECT_EQ(tabelle.letzte_gefuellte(), 5);
  tabelle.leeren(3);
  EXPECT_EQ(tabelle.letzte_gefuellte(), 2);
}

TEST(Messtabelle, InsertedRowsAreEmptyAndPushTheOthersDown) {
  Messtabelle tabelle = dreizeilig();
  tabelle.einfuegen(4, 2);
  EXPECT_EQ(namen(tabelle), "a..bc");
  EXPECT_EQ(tabelle.Zeilenzahl(), 202);
  tabelle.einfuegen(4, 0);
  tabelle.einfuegen(4, -3);
  tabelle.einfuegen(0, 1);
  EXPECT_EQ(tabelle.Zeilenzahl(), 202);
}

TEST(Messtabelle, RowsBehindTheEndCanBeInserted) {
  Messtabelle tabelle = dreizeilig();
  tabelle.setze_Zeilenzahl(5);
  tabelle.einfuegen(10, 2);
  EXPECT_EQ(tabelle.Zeilenzahl(), 11);
  EXPECT_EQ(namen(tabelle), "abc..");
}

TEST(Messtabelle, RowsTakenOutPullTheOthersUp) {
  Messtabelle tabelle = dreizeilig();
  tabelle.entfernen(3, 2);
  EXPECT_EQ(namen(tabelle), "c....");
  EXPECT_EQ(tabelle.Zeilenzahl(), 198);
  tabelle.entfernen(190, 1000);
  EXPECT_EQ(tabelle.Zeilenzahl(), 189);
  tabelle.entfernen(1, std::numeric_limits<int>::max());
  EXPECT_EQ(tabelle.Zeilenzahl(), 3);
}

TEST(Messtabelle, ClearingSparesTheCaptions) {
  Messtabelle tabelle = dreizeilig();
  tabelle.setze(1, 2, "caption");
  tabelle.setze(2, 2, "point");
  tabelle.leeren();
  EXPECT_EQ(namen(tabelle), ".....");
  EXPECT_EQ(tabelle.text(1, 2), "caption");
  EXPECT_EQ(tabelle.text(2, 2), "point");
}

TEST(Messtabelle, CopyTakesCellsAndRedMarks) {
  Messtabelle tabelle = dreizeilig();
  tabelle.setze_rot(3, Rot_sh | Rot_eta);
  tabelle.kopieren(3, 5);
  EXPECT_EQ(namen(tabelle), "aba..");
  EXPECT_EQ(tabelle.rot(5), unsigned{Rot_sh | Rot_eta});
  tabelle.kopieren(3, 400);
  EXPECT_EQ(tabelle.text(400, 1), "a");
  tabelle.kopieren(100, 3);
  EXPECT_EQ(namen(tabelle), ".ba..");
  tabelle.kopieren(4, 4);
  EXPECT_EQ(namen(tabelle), ".ba..");
}

TEST(Messung, InsertedRowMakesRoomForTheNewestOnTop) {
  Messung m;
  m.DiaSpread = dreizeilig();
  m.Mess_Zeilen = 5;
  m.Zeile_Ein(4, 1);
  EXPECT_EQ(namen(m.DiaSpread), ".abc.");
  EXPECT_EQ(m.Mess_Zeilen, 6);
}

TEST(Messung, InsertedRowsNeverMoveTheCaptions) {
  Messung m;
  m.DiaSpread = dreizeilig();
  m.DiaSpread.setze(2, 2, "point");
  m.Mess_Zeilen = 5;
  for (int zeile : {3, 1, -7}) m.Zeile_Ein(zeile, 1);
  m.Zeile_Ein(4, 0);
  m.Zeile_Ein(4, -2);
  EXPECT_EQ(m.DiaSpread.text(2, 2), "point");
  EXPECT_EQ(namen(m.DiaSpread), "...ab");
  EXPECT_EQ(m.Mess_Zeilen, 8);
}

TEST(Messung, FilledRowsBehindThoseInUseCount) {
  Messung m;
  m.DiaSpread = dreizeilig();
  EXPECT_EQ(m.Mess_Zeilen, 2);
  EXPECT_EQ(m.letzte_Zeile(), 5);
  EXPECT_EQ(m.Messpunkte(), 3);
  m.Mess_Zeilen = 20;
  EXPECT_EQ(m.letzte_Zeile(), 21);
}

TEST(Messung, ClearedRowsLeaveTheSettings) {
  Messung m;
  m.DiaSpread = dreizeilig();
  m.Mess_Zeilen = 5;
  m.KaelteM = "R134A";
  m.DiaG_loesch();
  EXPECT_EQ(m.Mess_Zeilen, 2);
  EXPECT_EQ(m.Messpunkte(), 0);
  EXPECT_EQ(m.KaelteM, "R134A");
}

TEST(Messung, NewMeasurementStartsWithoutMeansAndScale) {
  Messung m;
  m.DiaSpread.setze(1, 2, "caption");
  m.DiaSpread.setze(400, 2, "x");
  m.MittelW_Spread.setze(3, 2, "5");
  m.skala.EER_max = 4;
  m.DiaG_zurueck_setz();
  EXPECT_EQ(m.DiaSpread.Zeilenzahl(), 200);
  EXPECT_EQ(m.DiaSpread.text(1, 2), "caption");
  EXPECT_EQ(m.MittelW_Spread.text(3, 2), "");
  EXPECT_EQ(m.skala, Skala{});
}

TEST(Messung, ScanIntervalIsTheTextLessItsLastCharacter) {
  Messung m;
  EXPECT_EQ(m.Messintervall_s(), 5);
  m.Combo2 = "10s";
  EXPECT_EQ(m.Messintervall_s(), 10);
  m.Combo2 = "0,5s";
  EXPECT_EQ(m.Messintervall_s(), 0.5);
}
