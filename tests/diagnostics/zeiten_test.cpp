#include "diagnostics/zeiten.h"

#include <gtest/gtest.h>

using namespace polarkreis;

TEST(MesszeitText, EndsInSecondsAColonAndThreeDigitsOfMilliseconds) {
  EXPECT_EQ(Messzeit_Text({2026, 1, 2, 12, 5, 9, 31}), "12:05:09:031");
  EXPECT_EQ(Messzeit_Text({2026, 1, 2, 0, 0, 0, 0}), "00:00:00:000");
}

TEST(TimeDiff, IsTheDifferenceInMilliseconds) {
  EXPECT_EQ(time_diff("12:05:09:031", "12:05:10:131", 1, 5), 1100);
  EXPECT_EQ(time_diff("12:05:09:031", "12:05:09:031", 1, 5), 0);
}

TEST(TimeDiff, GoesOnAcrossTheMinute) {
  // 0.5 s after 12:06:00 less 59.9 s: 600 ms
  EXPECT_EQ(time_diff("12:05:59:900", "12:06:00:500", 1, 5), 600);
  EXPECT_EQ(time_diff("23:59:59:999", "00:00:00:000", 1, 5), 1);
}

TEST(TimeDiff, WaitsForTheRestOfTheIntervalLessTheFixedAllowance) {
  // 5000 - 250 - 133
  EXPECT_EQ(time_diff("12:05:09:000", "12:05:09:250", 0, 5), 4617);
  EXPECT_EQ(time_diff("12:05:09:000", "12:05:09:000", 0, 0.5), 367);
}

TEST(TimeDiff, NeverWaitsBackwards) {
  EXPECT_EQ(time_diff("12:05:09:000", "12:05:13:867", 0, 5), 0);
  EXPECT_EQ(time_diff("12:05:09:000", "12:05:13:866", 0, 5), 1);
  EXPECT_EQ(time_diff("12:05:09:000", "12:05:40:000", 0, 5), 0);
  EXPECT_EQ(time_diff("12:05:09:000", "12:05:09:000", 0, 0), 0);
}

TEST(TimeDiff, SurvivesTextsThatAreNoTimes) {
  EXPECT_EQ(time_diff("", "", 1, 5), 0);
  EXPECT_EQ(time_diff("7", "x", 1, 5), -7);
  EXPECT_EQ(time_diff("", "9:031", 1, 5), 9031);
  EXPECT_EQ(time_diff("", "", 0, 1e306), 0);
}

TEST(InterVallBer, IsDurationByIntervalAndNotRounded) {
  EXPECT_EQ(InterVall_Ber(5, " 1 h"), 720);
  EXPECT_EQ(InterVall_Ber(5, "24 h"), 17280);
  EXPECT_EQ(InterVall_Ber(10, "30 min"), 180);
  EXPECT_EQ(InterVall_Ber(7, "1 h"), 3600.0 / 7);
  EXPECT_EQ(InterVall_Ber(120, "1 min"), 0.5);
}

TEST(InterVallBer, TakesAnHourForAnEmptyText) {
  EXPECT_EQ(InterVall_Ber(5, ""), 720);
  EXPECT_EQ(InterVall_Ber(5, "  "), 720);
}

TEST(InterVallBer, IsEndlessWhereTheTextHoldsOo) {
  EXPECT_EQ(InterVall_Ber(5, "oo"), 0);
  EXPECT_EQ(InterVall_Ber(5, " oo h"), 0);
}

TEST(InterVallBer, IsEndlessWhereNoNumberComesOut) {
  EXPECT_EQ(InterVall_Ber(0, "1 h"), 0);
  EXPECT_EQ(InterVall_Ber(5, "h"), 0);
  EXPECT_EQ(InterVall_Ber(5, "1e999 h"), 0);
}

TEST(FMTimer, ShowsSecondsBelowAMinute) {
  EXPECT_EQ(FM_timer(0), "00:00:00");
  EXPECT_EQ(FM_timer(9.9), "00:00:09");
  EXPECT_EQ(FM_timer(59), "00:00:59");
}

TEST(FMTimer, ShowsMinutesBelowAnHour) {
  EXPECT_EQ(FM_timer(60), "00:01:00");
  EXPECT_EQ(FM_timer(3599), "00:59:59");
}

TEST(FMTimer, TakesOnlyAMinuteForEachHourFromTheMinutes) {
  // 3600 s: 1 h, left 3600 - 60 = 3540 s: 59 min. 7325 s: 2 h, left 7205 s: 120 min 5 s
  EXPECT_EQ(FM_timer(3600), "01:59:00");
  EXPECT_EQ(FM_timer(7325), "02:120:05");
}

TEST(FMTimer, ShowsNothingForWhatIsNoTime) {
  EXPECT_EQ(FM_timer(-5), "00:00:00");
  EXPECT_EQ(FM_timer(std::numeric_limits<double>::quiet_NaN()), "00:00:00");
}
