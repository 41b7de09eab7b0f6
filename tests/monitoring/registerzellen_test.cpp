// The register's cells at the desk: editing, blanking, clipboard.

#include <gtest/gtest.h>

#include "ftp_desk.h"

using namespace polarkreis;

namespace {

struct RegisterzellenTest : testing::Test, FtpDesk {
  void waehle(int zeile_, int spalte, int zeile2, int spalte2) {
    desk.FTPSpread_Auswahl = {zeile_, spalte, zeile2, spalte2};
  }
};

}  // namespace

TEST_F(RegisterzellenTest, CellIsEditedByItsText) {
  desk.FTPSpreadText(3, 7, "Aachen");
  EXPECT_EQ(zelle(3, Registerspalte::tw), "Aachen");
  desk.FTPSpreadText(0, 7, "x");
  desk.FTPSpreadText(3, 101, "x");
}

TEST_F(RegisterzellenTest, DeletingBlanksTheSelectionAndNothingElse) {
  for (int z = 1; z <= 4; ++z)
    for (int s = 1; s <= 4; ++s) desk.FTPSpreadText(z, s, "x");
  waehle(2, 2, 3, 3);
  desk.FTPSpreadDelete();
  int belegt = 0;
  for (int z = 1; z <= 4; ++z)
    for (int s = 1; s <= 4; ++s) belegt += desk.FTPSpread.zelle(z, s) == "x";
  EXPECT_EQ(belegt, 12);
  for (int z = 2; z <= 3; ++z)
    for (int s = 2; s <= 3; ++s) EXPECT_EQ(desk.FTPSpread.zelle(z, s), "");
}

TEST_F(RegisterzellenTest, CopyHasTabsBetweenCellsAndCarriageReturnsBetweenRows) {
  desk.FTPSpreadText(1, 1, "K17");
  desk.FTPSpreadText(1, 2, "Kühlhaus 3");
  desk.FTPSpreadText(2, 2, "x");
  waehle(1, 1, 2, 2);
  EXPECT_EQ(desk.FTPSpreadcopy(), "K17\tKühlhaus 3\r\tx");
}

TEST_F(RegisterzellenTest, SelectionDrawnBackwardsIsTheSame) {
  desk.FTPSpreadText(1, 1, "a");
  desk.FTPSpreadText(2, 2, "b");
  waehle(2, 2, 1, 1);
  EXPECT_EQ(desk.FTPSpreadcopy(), "a\t\r\tb");
  desk.FTPSpreadpaste("c\td");
  EXPECT_EQ(desk.FTPSpread.zelle(1, 1), "c");
  EXPECT_EQ(desk.FTPSpread.zelle(1, 2), "d");
  desk.FTPSpreadDelete();
  EXPECT_TRUE(desk.FTPSpread.ist_leer(1));
  EXPECT_TRUE(desk.FTPSpread.ist_leer(2));
}

TEST_F(RegisterzellenTest, PasteBeginsAtTheSelectionsFirstCell) {
  desk.FTPSpreadText(4, 4, "kept");
  waehle(3, 2, 3, 2);
  desk.FTPSpreadpaste("a\tb\rc\td");
  EXPECT_EQ(desk.FTPSpread.zelle(3, 2), "a");
  EXPECT_EQ(desk.FTPSpread.zelle(3, 3), "b");
  EXPECT_EQ(desk.FTPSpread.zelle(4, 2), "c");
  EXPECT_EQ(desk.FTPSpread.zelle(4, 3), "d");
  EXPECT_EQ(desk.FTPSpread.zelle(4, 4), "kept");
  EXPECT_EQ(dialog.texte, Zeilen{});
}

TEST_F(RegisterzellenTest, SingleCellFillsTheSelection) {
  waehle(1, 1, 3, 2);
  desk.FTPSpreadpaste("x\r\n");
  for (int z = 1; z <= 3; ++z)
    for (int s = 1; s <= 2; ++s) EXPECT_EQ(desk.FTPSpread.zelle(z, s), "x");
  EXPECT_EQ(desk.FTPSpread.zelle(1, 3), "");
  EXPECT_EQ(desk.FTPSpread.zelle(4, 1), "");
}

TEST_F(RegisterzellenTest, EmptyCellAtTheEndOfACopyIsPastedToo) {
  desk.FTPSpreadText(1, 1, "a");
  waehle(1, 1, 2, 1);
  const std::string kopie = desk.FTPSpreadcopy();
  desk.FTPSpreadText(6, 1, "old");
  waehle(5, 1, 7, 1);
  desk.FTPSpreadpaste(kopie);
  EXPECT_EQ(desk.FTPSpread.zelle(5, 1), "a");
  EXPECT_EQ(desk.FTPSpread.zelle(6, 1), "");
  EXPECT_EQ(desk.FTPSpread.zelle(7, 1), "");
}

TEST_F(RegisterzellenTest, CellsOutsideTheTableAreCounted) {
  waehle(100, 99, 100, 99);
  desk.FTPSpreadpaste("a\tb\tc\rd\te\tf");
  EXPECT_EQ(desk.FTPSpread.zelle(100, 99), "a");
  EXPECT_EQ(desk.FTPSpread.zelle(100, 100), "b");
  ASSERT_EQ(meldungen.zeilen().size(), 1U);
  EXPECT_TRUE(gemeldet("4"));
}

TEST_F(RegisterzellenTest, EmptyClipboardGivesAMessage) {
  desk.FTPSpreadText(1, 1, "kept");
  desk.FTPSpreadpaste("");
  EXPECT_EQ(dialog.texte, Zeilen{"No Data or Data Limit reached."});
  EXPECT_EQ(desk.FTPSpread.zelle(1, 1), "kept");
}

TEST_F(RegisterzellenTest, CopiedPlantIsTheSameElsewhere) {
  const Zeilen werte = {"K17", "a\tb", "c\r\nd", "\"e\"", "", "f;g"};
  for (int s = 1; s <= 6; ++s) desk.FTPSpreadText(1, s, werte[static_cast<std::size_t>(s - 1)]);
  waehle(1, 1, 1, 100);
  const std::string ablage_text = desk.FTPSpreadcopy();
  waehle(7, 1, 7, 1);
  desk.FTPSpreadpaste(ablage_text);
  for (int s = 1; s <= 100; ++s)
    EXPECT_EQ(desk.FTPSpread.zelle(7, s), desk.FTPSpread.zelle(1, s)) << s;
}
