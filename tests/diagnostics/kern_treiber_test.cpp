#include "kern_desk.h"
#include "messreihe.h"

using namespace polarkreis;

namespace {

struct Reihe : KernDesk {
  Schrittzaehler fortschritt;

  explicit Reihe(int zeilen) {
    messung.Hub_Volumen = 30;
    for (int i = 0; i < zeilen; ++i) laufend({{2, Zahl_Text(1 + 0.1 * i)}}, 3 + i);
    messung.Mess_Zeilen = zeilen + 2;
  }
  bool rechenkern() { return kern.rechenkern(fortschritt); }
};

}  // namespace

TEST(Rechenkern, ComputesEveryRowAndThenTheMeans) {
  Reihe d(5);
  EXPECT_TRUE(d.rechenkern());
  for (int zeile = 3; zeile <= 7; ++zeile) EXPECT_NE(d.zelle(139, zeile), "") << zeile;
  EXPECT_EQ(d.zelle(139, 8), "");
  ASSERT_GE(d.fortschritt.texte.size(), 5U);
  EXPECT_EQ(d.fortschritt.texte[0], "1 / 5");
  EXPECT_EQ(d.fortschritt.texte[4], "5 / 5");
  EXPECT_EQ(d.fortschritt.nummern[4], 5);
  EXPECT_EQ(d.messung.MittelW_Spread.text(4, 2), "1.3");  // the last row is left out
  EXPECT_EQ(d.kern.Sum_zeit_messung, 25);
}

TEST(Rechenkern, FilledRowsBehindTheRowsInUseCountToo) {
  Reihe d(5);
  d.messung.Mess_Zeilen = 4;
  EXPECT_TRUE(d.rechenkern());
  EXPECT_NE(d.zelle(139, 7), "");
}

TEST(Rechenkern, ARowWithoutATimeEndsTheTable) {
  Reihe d(5);
  d.messung.DiaSpread.setze(5, Spalte::Zeit, "");
  EXPECT_TRUE(d.rechenkern());
  EXPECT_NE(d.zelle(139, 4), "");
  EXPECT_EQ(d.zelle(139, 5), "");
  EXPECT_EQ(d.zelle(139, 6), "");
}

TEST(Rechenkern, AnEmptyTableIsNothingToDo) {
  Reihe d(0);
  EXPECT_TRUE(d.rechenkern());
  EXPECT_EQ(d.kern.Sum_zeit_messung, 0);
  EXPECT_EQ(d.kern.Zeit_Box, "00:00:00");
  EXPECT_EQ(d.kern.Energie_Box, "0");
}

TEST(Rechenkern, StopsWhereItIsAsked) {
  Reihe d(5);
  d.messung.MittelW_Spread.setze(3, 2, "old");
  d.fortschritt.halt_bei = 3;
  EXPECT_FALSE(d.rechenkern());
  EXPECT_NE(d.zelle(139, 4), "");
  EXPECT_EQ(d.zelle(139, 5), "");
  EXPECT_EQ(d.messung.MittelW_Spread.text(3, 2), "");  // means of other rows would mislead
}

TEST(Rechenkern, ASecondRunGivesTheSameCells) {
  Reihe einmal(6), zweimal(6);
  einmal.rechenkern();
  zweimal.rechenkern();
  const double energie = zweimal.kern.Summe_Energ;
  zweimal.rechenkern();
  EXPECT_EQ(zweimal.kern.Summe_Energ, energie);
  EXPECT_EQ(zweimal.messung.skala, einmal.messung.skala);
  for (int zeile = 3; zeile <= 8; ++zeile)
    for (int spalte = 1; spalte <= Spalte::Gespeichert; ++spalte)
      EXPECT_EQ(zweimal.zelle(spalte, zeile), einmal.zelle(spalte, zeile)) << zeile << spalte;
}

TEST(Rechenkern, TakesTheFunctionsOfTheUnits) {
  Reihe d(1);
  d.einheit(1, VerbCapt::Pumpe);
  d.einheit(2, VerbCapt::Ventilator);
  d.rechenkern();
  EXPECT_EQ(d.kern.Funktion.Sensor_Code[1], F_Pumpe);
  EXPECT_EQ(d.kern.Funktion.Sensor_Code[2], F_Ventilator);
}

TEST(Rechenkern, TakesTheDesignAndTheDriveOfTheMeasurement) {
  Reihe d(1);
  d.messung.Bauart = 3;
  d.messung.Antrieb = 1;
  d.messung.ECO_OPT = 2;
  d.km.z.Antrieb = 3;
  d.rechenkern();
  EXPECT_EQ(d.km.z.Bauart, 3);
  EXPECT_EQ(d.km.z.Antrieb, 1);
  EXPECT_EQ(d.kreis.ECO_OPT, 2);
}

TEST(Rechenkern, EveryRowOfAStretchWithoutATableLeavesOneLineInTheLog) {
  Reihe d(6);
  d.messung.KaelteM = "R999";
  d.rechenkern();
  EXPECT_EQ(d.meldungen.zeilen().size(), 1U);
}
