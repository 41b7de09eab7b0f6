#include "diagnostics/messzeiten.h"

#include "messreihe.h"

using namespace polarkreis;

namespace {

class MesszeitenTest : public ::testing::Test, public Messreihe {};
using Zeiten = std::vector<Messzeit>;

}  // namespace

TEST(Uhrzeit, HoursMinutesAndSeconds) {
  EXPECT_EQ(Uhrzeit_s("00:00:00"), 0);
  EXPECT_EQ(Uhrzeit_s(" 12:34:56 "), 45296);
  EXPECT_EQ(Uhrzeit_s("7:05"), 25500);
}

TEST(Uhrzeit, OtherTextsAreNone) {
  for (const char* text : {"", "  -", "12", "24:00:00", "12:60:00", "12:00:60", "12:00:00:123",
                           "12:00:0x", "-1:00:00", "123:00:00", "12:", "12::10"}) {
    EXPECT_EQ(Uhrzeit_s(text), std::nullopt) << text;
  }
}

TEST(IstMesswert, NumbersOnly) {
  for (const char* text : {"0", "12.5", " -3", "-0,5", ".5", "1E3", "5 bar"})
    EXPECT_TRUE(ist_Messwert(text)) << text;
  for (const char* text : {"", " ", "-", "  -", " - -", " - - - ", "abc", ".", "-."})
    EXPECT_FALSE(ist_Messwert(text)) << text;
}

TEST_F(MesszeitenTest, OldestOnTopStays) {
  uhrzeiten({"08:00:00", "08:00:10", "08:00:20"});
  EXPECT_EQ(Messzeiten(messung), (Zeiten{{3, 28800}, {4, 28810}, {5, 28820}}));
}

TEST_F(MesszeitenTest, NewestOnTopIsTurned) {
  uhrzeiten({"08:00:20", "08:00:10", "08:00:00"});
  EXPECT_EQ(Messzeiten(messung), (Zeiten{{5, 28800}, {4, 28810}, {3, 28820}}));
}

TEST_F(MesszeitenTest, TimeRunsOnAcrossMidnight) {
  uhrzeiten({"23:59:50", "00:00:00", "00:00:10"});
  EXPECT_EQ(Messzeiten(messung), (Zeiten{{3, 86390}, {4, 86400}, {5, 86410}}));
  messung.DiaG_loesch();
  uhrzeiten({"00:00:10", "00:00:00", "23:59:50"});
  EXPECT_EQ(Messzeiten(messung), (Zeiten{{5, 86390}, {4, 86400}, {3, 86410}}));
}

TEST_F(MesszeitenTest, SeveralDaysWithPausesOfANight) {
  uhrzeiten({"08:00:00", "18:00:00", "08:00:00", "18:00:00", "08:00:00"});
  EXPECT_EQ(
      Messzeiten(messung),
      (Zeiten{
          {3, 28800}, {4, 64800}, {5, 28800 + 86400}, {6, 64800 + 86400}, {7, 28800 + 2 * 86400}}));
}

// The clock went back by an hour: the rows keep the times that they tell.
TEST_F(MesszeitenTest, ClockThatWasSetBackDoesNotStartANewDay) {
  uhrzeiten({"02:59:50", "02:00:00", "02:00:10"});
  EXPECT_EQ(Messzeiten(messung), (Zeiten{{4, 7200}, {5, 7210}, {3, 10790}}));
}

// A run that was added to a loaded table: newest on top down to its first row, then the old rows
// from the oldest on.
TEST_F(MesszeitenTest, RunOnALoadedTable) {
  uhrzeiten({"12:00:20", "12:00:10", "12:00:00", "09:00:00", "09:00:10", "09:00:20"});
  EXPECT_EQ(Messzeiten(messung),
            (Zeiten{{6, 32400}, {7, 32410}, {8, 32420}, {5, 43200}, {4, 43210}, {3, 43220}}));
}

TEST_F(MesszeitenTest, EqualTimesKeepTheirOrder) {
  uhrzeiten({"08:00:00", "08:00:00", "08:00:10"});
  EXPECT_EQ(Messzeiten(messung), (Zeiten{{3, 28800}, {4, 28800}, {5, 28810}}));
  messung.DiaG_loesch();
  uhrzeiten({"08:00:10", "08:00:00", "08:00:00"});
  EXPECT_EQ(Messzeiten(messung), (Zeiten{{5, 28800}, {4, 28800}, {3, 28810}}));
}

// The interval is 10 s.
TEST_F(MesszeitenTest, RowsWithoutAClockTimeLieAnIntervalApart) {
  spalte(2, {"1", "1", "1", "1"});
  EXPECT_EQ(Messzeiten(messung), (Zeiten{{3, 0}, {4, 10}, {5, 20}, {6, 30}}));
  messung.DiaSpread.setze(4, 1, "08:00:00");
  messung.DiaSpread.setze(6, 1, "08:00:25");
  EXPECT_EQ(Messzeiten(messung), (Zeiten{{3, 28790}, {4, 28800}, {5, 28810}, {6, 28825}}));
}

TEST_F(MesszeitenTest, RowInFrontOfMidnightIsTheBeginning) {
  spalte(2, {"1", "1"});
  messung.DiaSpread.setze(4, 1, "00:00:05");
  EXPECT_EQ(Messzeiten(messung), (Zeiten{{3, 86395}, {4, 86405}}));
}

TEST_F(MesszeitenTest, EmptyRowsAndAnEmptyTable) {
  EXPECT_TRUE(Messzeiten(messung).empty());
  uhrzeiten({"08:00:00", "08:00:10"});
  messung.DiaSpread.setze(6, 1, "08:00:30");
  messung.Mess_Zeilen = 6;
  EXPECT_EQ(Messzeiten(messung), (Zeiten{{3, 28800}, {4, 28810}, {6, 28830}}));
}

TEST_F(MesszeitenTest, IntervalBeyondSenseIsNoTrap) {
  for (const char* text : {"1E300s", "-5s", "1E999s", "oo"}) {
    messung.Combo2 = text;
    spalte(2, {"1", "1", "1"});
    EXPECT_EQ(Messzeiten(messung).size(), 3U) << text;
  }
}
