#include <gtest/gtest.h>

#include "diagnostics/messdatei_desk.h"

using namespace polarkreis;

namespace {

struct LoadDiaG : testing::Test {
  MessdateiDesk desk;
  Messung& m = desk.m;
  Messinhalt inhalt;

  Messdatei::Ladung lade(Fortschritt* fortschritt = nullptr) {
    return ::lade(desk, inhalt, fortschritt);
  }
  void zeilen(int anzahl) {
    while (anzahl-- > 0) inhalt.zeile();
  }
};

struct Zaehler : Fortschritt {
  int nach = 1'000'000;
  std::vector<std::string> texte;
  bool schritt(std::string_view text, int nummer, int anzahl) override {
    EXPECT_LE(nummer, anzahl);
    texte.emplace_back(text);
    return static_cast<int>(texte.size()) < nach;
  }
};

}  // namespace

TEST_F(LoadDiaG, HeadingBecomesTheSettings) {
  inhalt(1) = "Cold store \"North\"";
  inhalt(2) = "Kühlhaus";
  inhalt(3) = "3&$§ENG";
  inhalt(5) = "R404A";
  inhalt(6) = "1";
  inhalt(7) = "12.5§$%4.25§$%-31.5§$%45§$%98.75§$%19,3";
  inhalt(8) = "Single-stage - CO2 Transkritisch";
  inhalt(9) = "Swept volume";
  inhalt(10) = "30 min";
  inhalt(11) = "not wanted";
  inhalt(12) = "10s";
  inhalt(13) = "Two speeds";
  inhalt(18) = "r1c2";
  inhalt(19) = "r1c3";
  inhalt(20) = "r1c5";
  inhalt(38) = "r7c5";
  inhalt(39) = "r1c1";
  inhalt(46) = "r1c4";
  inhalt(52) = "r7c4";
  inhalt(53) = "2345";
  lade();
  EXPECT_EQ(m.ProjektNam, "Cold store \"North\"");
  EXPECT_EQ(m.ProBeschr, "Kühlhaus");
  EXPECT_EQ(m.KaelteM, "R404A");
  EXPECT_EQ(m.Off_line_Check, 1);
  EXPECT_EQ(m.skala, (Skala{12.5, 4.25, -31.5, 45, 98.75, 19.3, 0}));
  EXPECT_EQ(m.Combo3, "Single-stage - CO2 Transkritisch");
  EXPECT_EQ(m.Combo4, "Swept volume");
  EXPECT_EQ(m.Combo5, "30 min");
  EXPECT_EQ(m.Combo2, "10s");
  EXPECT_EQ(m.RGCombo, "Two speeds");
  EXPECT_EQ(m.OrbiN_spread(1, 2), "r1c2");
  EXPECT_EQ(m.OrbiN_spread(1, 3), "r1c3");
  EXPECT_EQ(m.OrbiN_spread(1, 5), "r1c5");
  EXPECT_EQ(m.OrbiN_spread(7, 5), "r7c5");
  EXPECT_EQ(m.OrbiN_spread(1, 1), "r1c1");
  EXPECT_EQ(m.OrbiN_spread(1, 4), "r1c4");
  EXPECT_EQ(m.OrbiN_spread(7, 4), "r7c4");
  EXPECT_EQ(m.OrbiN_spread.Breite_Spalte_3, 2345);
}

TEST_F(LoadDiaG, EmptySettingsTakeTheirDefaults) {
  m.Combo2 = m.Combo5 = m.RGCombo = "old";
  m.skala.Q_max = 99;
  lade();
  EXPECT_EQ(m.Combo2, "5s");
  EXPECT_EQ(m.Combo5, " 1 h");
  EXPECT_EQ(m.RGCombo, "On/off");
  EXPECT_EQ(m.Off_line_Check, 0);
  EXPECT_EQ(m.skala, Skala{});
  EXPECT_EQ(m.OrbiN_spread.Breite_Spalte_3, Einheitentabelle{}.Breite_Spalte_3);
  const auto spalte = [this](int nummer) {
    std::vector<std::string> texte;
    for (int zeile = 1; zeile <= 7; ++zeile) texte.push_back(m.OrbiN_spread(zeile, nummer));
    return texte;
  };
  EXPECT_EQ(spalte(1),
            (std::vector<std::string>{"Compressor", "Condenser", "Evaporator 1", "Evaporator 2",
                                      "Evaporator 3", "Evaporator 4", "Evaporator 5"}));
  EXPECT_EQ(spalte(4), (std::vector<std::string>{"Leitkiste", "Leitkiste", "Leitkiste", "Orbiter 2",
                                                 "Orbiter 3", "Orbiter 4", "Orbiter 5"}));
}

TEST_F(LoadDiaG, RowsStandFromRowThreeOn) {
  inhalt.zeile("2.5", "11").at(168) = "last";
  inhalt.zelle(100, " a \"b\"\r\n,c ");
  inhalt.zeile("2.6", "12");
  EXPECT_EQ(lade().verworfen, 0);
  EXPECT_EQ(desk.zelle(3, Spalte::p0), "2.5");
  EXPECT_EQ(desk.zelle(3, 100), " a \"b\"\r\n,c ");
  EXPECT_EQ(desk.zelle(3, 169), "last");
  EXPECT_EQ(desk.zelle(4, Spalte::pc), "12");
  EXPECT_EQ(desk.zelle(3, Spalte::Zeilenkopf), "1");
  EXPECT_EQ(desk.zelle(4, Spalte::Zeilenkopf), "2");
  EXPECT_EQ(m.Mess_Zeilen, 4);
  EXPECT_EQ(m.DiaSpread.Zeilenzahl(), 200);
}

TEST_F(LoadDiaG, LongTableIsSizedToItsRows) {
  zeilen(300);
  lade();
  EXPECT_EQ(m.Mess_Zeilen, 302);
  EXPECT_EQ(m.DiaSpread.Zeilenzahl(), 303);
}

TEST_F(LoadDiaG, NothingOfTheOldTableStays) {
  for (int zeile = 3; zeile <= 10; ++zeile) desk.fuelle(zeile);
  m.MittelW_Spread.setze(3, 2, "5");
  zeilen(2);
  lade();
  EXPECT_EQ(m.DiaSpread.letzte_gefuellte(), 4);
  EXPECT_EQ(desk.zelle(5, Spalte::Zeit), "");
  EXPECT_EQ(m.MittelW_Spread.text(3, 2), "");
}

TEST_F(LoadDiaG, CaptionsOfBothUnitsAreWritten) {
  lade();
  EXPECT_EQ(desk.zelle(2, Spalte::p0), "- 1.9 -");
  EXPECT_EQ(desk.zelle(2, 31), "- 2.1 -");
  EXPECT_EQ(desk.zelle(2, 51), "- 3.1 -");
}

TEST_F(LoadDiaG, SavedTableComesBackAsItWas) {
  m.ProjektNam = "a,b \"c\"";
  m.KaelteM = "R134A";
  m.Combo2 = "1s";
  m.Combo3 = "Two-stage - Economizer";
  m.Combo4 = "Part load %";
  m.Combo5 = "oo";
  m.RGCombo = "Continuous";
  m.skala = {1.5, 2.5, -3.5, 4.5, 5.5, 6.5, 0};
  for (int zeile = 1; zeile <= 7; ++zeile)
    for (int spalte = 1; spalte <= 5; ++spalte)
      m.OrbiN_spread(zeile, spalte) = std::to_string(10 * zeile + spalte);
  for (int zeile = 3; zeile <= 250; ++zeile) {
    desk.fuelle(zeile);
    m.DiaSpread.setze(zeile, 13 + zeile % 150, "x\"" + std::to_string(zeile));
  }
  m.Mess_Zeilen = 250;
  ASSERT_TRUE(desk.datei.SaveDiaG("a.fmd"));
  const Skala skala = m.skala;
  const Einheitentabelle einheiten = m.OrbiN_spread;
  std::vector<std::string> vorher;
  for (int zeile = 3; zeile <= 251; ++zeile)
    for (int spalte = 1; spalte <= 169; ++spalte) vorher.push_back(desk.zelle(zeile, spalte));

  m.ProjektNam = m.KaelteM = m.Combo2 = m.Combo3 = m.Combo4 = m.Combo5 = m.RGCombo = "";
  m.OrbiN_spread = {};
  m.DiaG_zurueck_setz();
  desk.datei.LoadDiaG("a.fmd");
  std::vector<std::string> nachher;
  for (int zeile = 3; zeile <= 251; ++zeile)
    for (int spalte = 1; spalte <= 169; ++spalte) nachher.push_back(desk.zelle(zeile, spalte));
  EXPECT_EQ(nachher, vorher);
  EXPECT_EQ(m.ProjektNam, "a,b \"c\"");
  EXPECT_EQ(m.KaelteM, "R134A");
  EXPECT_EQ(m.Combo2, "1s");
  EXPECT_EQ(m.Combo3, "Two-stage - Economizer");
  EXPECT_EQ(m.Combo4, "Part load %");
  EXPECT_EQ(m.Combo5, "oo");
  EXPECT_EQ(m.RGCombo, "Continuous");
  EXPECT_EQ(m.skala, skala);
  EXPECT_EQ(m.OrbiN_spread, einheiten);
  EXPECT_EQ(m.Mess_Zeilen, 250);
}

TEST_F(LoadDiaG, MissingFileGivesATableWithoutRows) {
  desk.fuelle(3);
  const Messdatei::Ladung ladung = desk.datei.LoadDiaG("none.fmd");
  EXPECT_FALSE(ladung.gefragt);
  EXPECT_EQ(m.Mess_Zeilen, 2);
  EXPECT_EQ(m.Messpunkte(), 0);
  EXPECT_EQ(m.Combo2, "5s");
  EXPECT_FALSE(desk.ordner.da("none.fmd"));
}

TEST_F(LoadDiaG, HeadingWithoutRowsGivesAnEmptyTable) {
  m.Mess_Zeilen = Zeilen_unbekannt;
  ASSERT_TRUE(desk.datei.SaveDiaG("FM_diag.dat"));
  const Messdatei::Ladung ladung = desk.datei.LoadDiaG("FM_diag.dat");
  EXPECT_TRUE(ladung.abgebrochen);
  EXPECT_FALSE(ladung.gefragt);
  EXPECT_EQ(m.Mess_Zeilen, 2);
  EXPECT_EQ(m.Messpunkte(), 0);
}

TEST_F(LoadDiaG, RowWithoutTenFirstCellsEndsTheData) {
  zeilen(2);
  inhalt.zeile("", "").assign(169, "");
  inhalt.zelle(11, "text further right");
  zeilen(1);
  lade();
  EXPECT_EQ(m.Messpunkte(), 2);
  EXPECT_TRUE(desk.gemeldet("first ten columns"));
}

TEST_F(LoadDiaG, EmptyRowsAtTheEndAreNotWorthAWord) {
  zeilen(2);
  inhalt.zeile("", "").assign(169, "");
  lade();
  EXPECT_EQ(m.Messpunkte(), 2);
  EXPECT_TRUE(desk.meldungen.zeilen().empty());
}

TEST_F(LoadDiaG, RowCountOfTheHeadingDoesNotLimitTheRows) {
  inhalt(3) = "3&$§ENG";
  zeilen(5);
  lade();
  EXPECT_EQ(m.Messpunkte(), 5);
}

TEST_F(LoadDiaG, MoreThanAThousandRowsAreAskedFor) {
  inhalt(3) = "1001&$§ENG";
  zeilen(1);
  EXPECT_TRUE(lade().gefragt);
  EXPECT_EQ(desk.dialog.fragen,
            std::vector<std::string>{"Number of measurements Messpunkte =1001?"});
  EXPECT_EQ(m.Messpunkte(), 1);
}

TEST_F(LoadDiaG, ExactlyAThousandRowsAreNot) {
  inhalt(3) = "1000&$§ENG";
  zeilen(1);
  EXPECT_FALSE(lade().gefragt);
  EXPECT_TRUE(desk.dialog.fragen.empty());
}

TEST_F(LoadDiaG, AnswerNoLeavesAnEmptyTableOfTwoHundredRows) {
  for (int zeile = 3; zeile <= 10; ++zeile) desk.fuelle(zeile);
  inhalt(1) = "Project";
  inhalt(3) = "1001&$§ENG";
  zeilen(5);
  desk.dialog.antwort = false;
  const Messdatei::Ladung ladung = lade();
  EXPECT_TRUE(ladung.gefragt);
  EXPECT_TRUE(ladung.abgelehnt);
  EXPECT_EQ(m.Messpunkte(), 0);
  EXPECT_EQ(m.Mess_Zeilen, 200);
  EXPECT_EQ(m.ProjektNam, "Project");
  EXPECT_EQ(desk.dateien(".fmd"), std::vector<std::string>{"test.fmd"});
}

TEST_F(LoadDiaG, OldFileWithoutALanguageIsRead) {
  inhalt(3) = "1200";
  inhalt(8) = "Einstufig";
  zeilen(2);
  EXPECT_TRUE(lade().gefragt);
  EXPECT_EQ(desk.dialog.fragen.back(), "Number of measurements Messpunkte =1200?");
  EXPECT_EQ(m.Messpunkte(), 2);
  EXPECT_EQ(m.Combo3, "Einstufig");
}

TEST_F(LoadDiaG, SenselessRowCountIsTakenAsTwoHundred) {
  for (const char* text : {"", "abc", "-5", "1E400", "&$§"}) {
    inhalt(3) = text;
    EXPECT_FALSE(lade().gefragt) << text;
  }
  inhalt(3) = "1E300";
  EXPECT_TRUE(lade().gefragt);
  EXPECT_EQ(m.DiaSpread.Zeilenzahl(), 200);
}

TEST_F(LoadDiaG, FileOfARunThatDidNotEndNamesItsTrueCount) {
  inhalt(3) = "65459&$§ENG";
  zeilen(5);
  Messdatei::Ladung ladung = lade();
  EXPECT_TRUE(ladung.abgebrochen);
  EXPECT_FALSE(ladung.gefragt);
  EXPECT_EQ(m.Mess_Zeilen, 7);
  zeilen(1495);
  ladung = lade();
  EXPECT_TRUE(ladung.gefragt);
  EXPECT_EQ(desk.dialog.fragen,
            std::vector<std::string>{"Number of measurements Messpunkte =1500?"});
  EXPECT_EQ(m.Messpunkte(), 1500);
}

TEST_F(LoadDiaG, RowsBehindTheLongestMeasurementAreLeftOutAndCounted) {
  desk.datei.Hoechstzeilen = 5;
  zeilen(2);
  inhalt.zeile("0", "0");  // dropped, so it takes no row
  zeilen(3);
  EXPECT_EQ(lade().ueberzaehlig, 0);
  EXPECT_EQ(m.Messpunkte(), 5);
  EXPECT_FALSE(desk.gemeldet("left out behind"));

  inhalt.zeile();
  inhalt.zelle(1, "13:00:00");
  zeilen(2);
  const Messdatei::Ladung ladung = lade();
  EXPECT_EQ(ladung.ueberzaehlig, 3);
  EXPECT_EQ(ladung.verworfen, 1);
  EXPECT_EQ(m.Messpunkte(), 5);
  EXPECT_EQ(m.Mess_Zeilen, 7);
  EXPECT_EQ(desk.zelle(7, Spalte::Zeit), "12:00:00");
  EXPECT_TRUE(desk.gemeldet("left out behind the last one that a measurement takes: 3"));
}

TEST_F(LoadDiaG, ProgressTellsTheRows) {
  zeilen(3);
  Zaehler fortschritt;
  lade(&fortschritt);
  ASSERT_EQ(fortschritt.texte.size(), 4U);
  EXPECT_EQ(fortschritt.texte[0], "1 / 200");
  EXPECT_EQ(fortschritt.texte[2], "3 / 200");
}

TEST_F(LoadDiaG, StopLeavesAnEmptyTable) {
  zeilen(30);
  Zaehler fortschritt;
  fortschritt.nach = 10;
  EXPECT_TRUE(lade(&fortschritt).abgelehnt);
  EXPECT_EQ(m.Messpunkte(), 0);
  EXPECT_EQ(m.Mess_Zeilen, 200);
}

TEST_F(LoadDiaG, Windows1252FileOpens) {
  inhalt(1) = "NAME";
  inhalt(3) = "MARK";
  inhalt(8) = "Einstufig";
  zeilen(1);
  std::string bytes = inhalt.text();
  bytes.replace(bytes.find("NAME"), 4, "K\xFChlhaus");
  bytes.replace(bytes.find("MARK"), 4, "1200&$\xA7GER");
  desk.ordner.schreib("old.fmd", bytes);
  EXPECT_TRUE(desk.datei.LoadDiaG("old.fmd").gefragt);
  EXPECT_EQ(m.ProjektNam, "Kühlhaus");
  EXPECT_EQ(m.Combo3, "Single-stage");
  EXPECT_EQ(m.Messpunkte(), 1);
}
