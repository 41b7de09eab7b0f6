#include "shell/warten.h"

#include <gtest/gtest.h>

#include "support/test_uhr.h"

using namespace polarkreis;

TEST(Zeitpunkt, ClockTimeHasTwoDigitsEach) {
  EXPECT_EQ(Uhrzeit_Text({2026, 1, 2, 3, 4, 5, 678}), "03:04:05");
  EXPECT_EQ(Uhrzeit_Text({2026, 12, 31, 23, 59, 59, 999}), "23:59:59");
  EXPECT_EQ(Uhrzeit_Text({}), "00:00:00");
}

TEST(Zeitpunkt, DateIsDayMonthYear) {
  EXPECT_EQ(Datum_Text({2026, 1, 2}), "02.01.2026");
  EXPECT_EQ(Datum_Text({2026, 12, 31}), "31.12.2026");
}

TEST(Zeitpunkt, FileNameSortsByTimeAndHoldsNoSeparator) {
  const std::string frueh = Zeitstempel_Dateiname({2026, 1, 2, 3, 4, 5, 678});
  EXPECT_EQ(frueh, "2026-01-02 03-04-05");
  EXPECT_LT(frueh, Zeitstempel_Dateiname({2026, 1, 2, 13, 0, 0}));
  EXPECT_EQ(frueh.find_first_of("/\\:"), std::string::npos);
}

TEST(Zeitpunkt, NumbersBeyondTheirDigitsAreWrittenWhole) {
  EXPECT_EQ(Uhrzeit_Text({2026, 1, 1, 100, 0, 0}), "100:00:00");
  EXPECT_EQ(Datum_Text({12026, 1, 1}), "01.01.12026");
}

TEST(TestUhr, StandsStillButForTheWaits) {
  TestUhr uhr;
  EXPECT_EQ(Uhrzeit_Text(uhr.Ortszeit()), "12:00:00");
  EXPECT_EQ(Uhrzeit_Text(uhr.UTC()), "11:00:00");
  uhr.Warten(61'500);
  uhr.Warten(-5);
  EXPECT_EQ(Uhrzeit_Text(uhr.Ortszeit()), "12:01:01");
  EXPECT_EQ(uhr.Ortszeit().Millisekunde, 500);
  EXPECT_EQ(uhr.gewartet, (std::vector<int>{61'500, -5}));
}
