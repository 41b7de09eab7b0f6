#include "diagnostics/wiedergabe.h"

#include "messreihe.h"
#include "support/test_uhr.h"

using namespace polarkreis;

namespace {

/// Three rows of a live run: row 5 is the oldest.
class Replay : public ::testing::Test, public Messreihe {
 protected:
  TestUhr uhr;
  Wiedergabe wiedergabe{messung, uhr};
  std::vector<int> gesehen;

  Replay() {
    uhrzeiten({"08:00:20", "08:00:10", "08:00:00"});
    wiedergabe.beim_schritt = [this](Wiedergabeart, int zeile) { gesehen.push_back(zeile); };
  }
};
using Zeilen = std::vector<int>;

}  // namespace

TEST_F(Replay, StepsThroughTheRowsInTimeOrderAndEnds) {
  wiedergabe.Play_DiaG();
  EXPECT_EQ(gesehen, (Zeilen{5, 4, 3}));
  EXPECT_EQ(wiedergabe.zeile, 3);
  EXPECT_FALSE(wiedergabe.laeuft());
}

TEST_F(Replay, PaceIsTheWaitBetweenTwoRows) {
  wiedergabe.Takt_ms = 125;
  wiedergabe.Play_logph();
  EXPECT_EQ(uhr.gewartet, (Zeilen{125, 125}));
}

TEST_F(Replay, NegativePaceIsNone) {
  wiedergabe.Takt_ms = -5;
  wiedergabe.Play_DiaG();
  EXPECT_EQ(uhr.gewartet, (Zeilen{0, 0}));
}

TEST_F(Replay, TellsWhichViewItDrives) {
  std::vector<Wiedergabeart> arten;
  wiedergabe.beim_schritt = [&](Wiedergabeart art, int) { arten.push_back(art); };
  wiedergabe.Play_DiaG();
  wiedergabe.Play_logph();
  EXPECT_EQ(arten.front(), Wiedergabeart::Zeitdiagramm);
  EXPECT_EQ(arten.back(), Wiedergabeart::logph);
}

TEST_F(Replay, PauseMarkTogglesBetweenNoughtAndOne) {
  EXPECT_EQ(wiedergabe.Pause, 0);
  wiedergabe.Pause_Logph();
  EXPECT_EQ(wiedergabe.Pause, 1);
  wiedergabe.Pause_Logph();
  EXPECT_EQ(wiedergabe.Pause, 0);
}

// The pause is pressed in the first wait and again three waits later.
TEST_F(Replay, PauseHoldsTheRowUntilItIsPressedAgain) {
  uhr.beim_warten = [&](int) {
    const std::size_t n = uhr.gewartet.size();
    if (n == 1 || n == 4) wiedergabe.Pause_Logph();
    if (n < 4) {
      EXPECT_EQ(gesehen, (Zeilen{5}));
    }
  };
  wiedergabe.Takt_ms = 500;
  wiedergabe.Play_DiaG();
  EXPECT_EQ(gesehen, (Zeilen{5, 4, 3}));
  EXPECT_EQ(uhr.gewartet, (Zeilen{500, 50, 50, 50, 500}));
}

TEST_F(Replay, StopEndsItAlsoInAPause) {
  wiedergabe.Pause = 1;
  uhr.beim_warten = [&](int) {
    if (uhr.gewartet.size() == 3) wiedergabe.Stopp();
  };
  wiedergabe.Play_DiaG();
  EXPECT_EQ(gesehen, (Zeilen{5}));
  EXPECT_FALSE(wiedergabe.laeuft());
}

TEST_F(Replay, GoesOnBehindTheRowInView) {
  wiedergabe.beim_schritt = [&](Wiedergabeart, int zeile) {
    gesehen.push_back(zeile);
    if (gesehen.size() == 2) wiedergabe.Stopp();
  };
  wiedergabe.Play_DiaG();
  EXPECT_EQ(gesehen, (Zeilen{5, 4}));
  wiedergabe.Play_logph();
  EXPECT_EQ(gesehen, (Zeilen{5, 4, 3}));
  wiedergabe.Play_logph();  // from the first row again
  EXPECT_EQ(gesehen, (Zeilen{5, 4, 3, 5, 4, 3}));
}

TEST_F(Replay, SecondPressDuringAReplayDoesNothing) {
  uhr.beim_warten = [&](int) { wiedergabe.Play_logph(); };
  wiedergabe.Play_DiaG();
  EXPECT_EQ(gesehen, (Zeilen{5, 4, 3}));
}

TEST_F(Replay, TableThatIsClearedEndsIt) {
  uhr.beim_warten = [&](int) { messung.DiaG_loesch(); };
  wiedergabe.Play_DiaG();
  EXPECT_EQ(gesehen, (Zeilen{5}));
}

TEST_F(Replay, EmptyTableShowsNothing) {
  messung.DiaG_loesch();
  wiedergabe.Play_DiaG();
  EXPECT_TRUE(gesehen.empty());
  EXPECT_TRUE(uhr.gewartet.empty());
  EXPECT_EQ(wiedergabe.zeile, 0);
}

TEST_F(Replay, WorksWithoutAView) {
  wiedergabe.beim_schritt = nullptr;
  wiedergabe.Play_DiaG();
  EXPECT_EQ(wiedergabe.zeile, 3);
}
