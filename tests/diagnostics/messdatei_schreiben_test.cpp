#include <gtest/gtest.h>
#include <sys/stat.h>

#include "diagnostics/messdatei_desk.h"

using namespace polarkreis;

namespace {

struct SaveDiaG : testing::Test {
  MessdateiDesk desk;
  Messung& m = desk.m;

  /// The saved file as lines.
  std::vector<std::string> gespeichert() {
    EXPECT_TRUE(desk.datei.SaveDiaG("a.fmd"));
    std::vector<std::string> zeilen;
    const std::string text = desk.ordner.lies("a.fmd");
    for (std::size_t ab = 0, ende; ab < text.size(); ab = ende + 2) {
      ende = text.find("\r\n", ab);
      zeilen.push_back(text.substr(ab, ende - ab));
    }
    return zeilen;
  }
  void fuelle_Einstellungen() {
    m.ProjektNam = "Cold store \"North\"";
    m.ProBeschr = "Kühlhaus, Halle 3";
    m.KaelteM = "R404A";
    m.Off_line_Check = 1;
    m.skala = {12.5, 4.25, -31.5, 45, 98.75, 19.3, 0.4};
    m.Combo2 = "10s";
    m.Combo3 = "Single-stage";
    m.Combo4 = "Swept volume";
    m.Combo5 = " 1 h";
    m.RGCombo = "On/off";
    for (int zeile = 1; zeile <= 7; ++zeile)
      for (int spalte = 1; spalte <= 6; ++spalte)
        m.OrbiN_spread(zeile, spalte) = "r" + std::to_string(zeile) + "c" + std::to_string(spalte);
    m.OrbiN_spread.Breite_Spalte_3 = 1234;
  }
  /// The heading of these settings, as it must stand in the file.
  std::vector<std::string> erwarteter_Kopf(const std::string& zeile_3) const {
    std::vector<std::string> kopf = {R"("Cold store ""North""")",
                                     R"("Kühlhaus, Halle 3")",
                                     zeile_3,
                                     R"("02.01.2026")",
                                     R"("R404A")",
                                     R"("1")",
                                     R"("12.5§$%4.25§$%-31.5§$%45§$%98.75§$%19.3")",
                                     R"("Single-stage")",
                                     R"("Swept volume")",
                                     R"(" 1 h")",
                                     R"("")",
                                     R"("10s")",
                                     R"("On/off")"};
    kopf.insert(kopf.end(), 4, R"("")");
    const auto zelle = [](int zeile, int spalte) {
      return "\"r" + std::to_string(zeile) + "c" + std::to_string(spalte) + "\"";
    };
    for (int zeile = 1; zeile <= 7; ++zeile)
      for (int spalte : {2, 3, 5}) kopf.push_back(zelle(zeile, spalte));
    for (int spalte : {1, 4})
      for (int zeile = 1; zeile <= 7; ++zeile) kopf.push_back(zelle(zeile, spalte));
    kopf.push_back(R"("1234")");
    kopf.insert(kopf.end(), 47, R"("")");
    return kopf;
  }
};

struct Abbruch : Fortschritt {
  int nach;
  std::vector<std::string> texte;
  explicit Abbruch(int n) : nach(n) {}
  bool schritt(std::string_view text, int nummer, int anzahl) override {
    texte.push_back(std::string(text) + "|" + std::to_string(nummer * 99 / anzahl));
    return nummer < nach;
  }
};

}  // namespace

TEST_F(SaveDiaG, HeadingIsAHundredLines) {
  fuelle_Einstellungen();
  m.Mess_Zeilen = Zeilen_unbekannt;
  const std::vector<std::string> kopf = erwarteter_Kopf(R"("65459&$§ENG")");
  ASSERT_EQ(kopf.size(), 100U);
  EXPECT_EQ(gespeichert(), kopf);
}

TEST_F(SaveDiaG, RowsFollowTheHeadingCellByCell) {
  fuelle_Einstellungen();
  for (int zeile : {3, 4})
    for (int spalte = 1; spalte <= 170; ++spalte)
      m.DiaSpread.setze(zeile, spalte, std::to_string(zeile * 1000 + spalte));
  m.Mess_Zeilen = 3;  // rows 3 and 4
  std::vector<std::string> datei = erwarteter_Kopf(R"("3&$§ENG")");
  for (int zeile : {3, 4})
    for (int spalte = 1; spalte <= 169; ++spalte)
      datei.push_back("\"" + std::to_string(zeile * 1000 + spalte) + "\"");
  EXPECT_EQ(gespeichert(), datei);
}

TEST_F(SaveDiaG, LinesEndInCrLfAndCellsAreKeptByteForByte) {
  desk.fuelle(3);
  m.DiaSpread.setze(3, 100, " a \"b\"\r\n,c ");
  m.DiaSpread.setze(3, 101, Kein_Messwert);
  m.Mess_Zeilen = 2;
  ASSERT_TRUE(desk.datei.SaveDiaG("a.fmd"));
  const std::string text = desk.ordner.lies("a.fmd");
  EXPECT_NE(text.find("\"\"\r\n\" a \"\"b\"\"\r\n,c \"\r\n\"  -\"\r\n\"\"\r\n"), std::string::npos);
  EXPECT_TRUE(text.ends_with("\"\"\r\n"));
}

TEST_F(SaveDiaG, RowsInUseAreSavedEvenIfEmpty) {
  m.Mess_Zeilen = 200;  // rows 3 to 201
  EXPECT_EQ(gespeichert().size(), 100U + 199 * 169);
}

TEST_F(SaveDiaG, FilledRowsBehindThoseInUseAreSavedToo) {
  for (int zeile = 3; zeile <= 6; ++zeile) desk.fuelle(zeile);
  desk.fuelle(8);
  m.Mess_Zeilen = 3;
  EXPECT_EQ(gespeichert().size(), 100U + 4 * 169);
}

TEST_F(SaveDiaG, RunsRowCountMeansTheHeadingOnly) {
  for (int zeile = 3; zeile <= 6; ++zeile) desk.fuelle(zeile);
  m.Mess_Zeilen = Zeilen_unbekannt;
  EXPECT_EQ(gespeichert().size(), 100U);
}

TEST_F(SaveDiaG, TableThatReallyIsSoLongKeepsItsRows) {
  m.DiaSpread.setze(Zeilen_unbekannt, Spalte::p0, "1");
  m.Mess_Zeilen = Zeilen_unbekannt;
  ASSERT_TRUE(desk.datei.SaveDiaG("a.fmd"));
  EXPECT_GT(desk.ablage.Dateigroesse("a.fmd"), 65457LL * 169 * 4);
}

TEST_F(SaveDiaG, ProgressTellsRowAndTotalAndTheBarRunsTo99) {
  for (int zeile = 3; zeile <= 5; ++zeile) desk.fuelle(zeile);
  m.Mess_Zeilen = 4;
  Abbruch fortschritt(1000);
  EXPECT_TRUE(desk.datei.SaveDiaG("a.fmd", &fortschritt));
  EXPECT_EQ(fortschritt.texte, (std::vector<std::string>{"1 / 3|33", "2 / 3|66", "3 / 3|99"}));
}

TEST_F(SaveDiaG, StopLeavesTheOldFile) {
  desk.ordner.schreib("a.fmd", "old");
  for (int zeile = 3; zeile <= 5; ++zeile) desk.fuelle(zeile);
  m.Mess_Zeilen = 4;
  Abbruch fortschritt(2);
  EXPECT_FALSE(desk.datei.SaveDiaG("a.fmd", &fortschritt));
  EXPECT_EQ(desk.ordner.lies("a.fmd"), "old");
}

TEST_F(SaveDiaG, FileThatRefusesIsTold) {
  desk.ordner.schreib("a.fmd", "old");
  ::chmod(desk.ordner.pfad("a.fmd").c_str(), 0444);
  desk.fuelle(3);
  EXPECT_FALSE(desk.datei.SaveDiaG("a.fmd"));
  EXPECT_NE(desk.ablage.letzter_fehler(), "");
  EXPECT_EQ(desk.ordner.lies("a.fmd"), "old");
}

TEST_F(SaveDiaG, SaveAsAddsTheEnding) {
  EXPECT_TRUE(desk.datei.Pr_Speich_als("plant"));
  EXPECT_TRUE(desk.datei.Pr_Speich_als("report.v2"));
  EXPECT_TRUE(desk.datei.Pr_Speich_als("OTHER.FMD"));
  EXPECT_EQ(desk.dateien(".fmd"),
            (std::vector<std::string>{"OTHER.FMD", "plant.fmd", "report.v2.fmd"}));
  EXPECT_TRUE(desk.dialog.fragen.empty());
}

TEST_F(SaveDiaG, SaveAsAsksBeforeItOverwrites) {
  desk.ordner.schreib("plant.fmd", "old");
  desk.dialog.antwort = false;
  EXPECT_FALSE(desk.datei.Pr_Speich_als("plant"));
  EXPECT_EQ(desk.ordner.lies("plant.fmd"), "old");
  EXPECT_EQ(desk.dialog.fragen, std::vector<std::string>{"Overwrite the existing file?"});
  desk.dialog.antwort = true;
  EXPECT_TRUE(desk.datei.Pr_Speich_als("plant.fmd"));
  EXPECT_TRUE(desk.ordner.lies("plant.fmd").starts_with("\"\"\r\n"));
}

TEST_F(SaveDiaG, SaveAsWithoutANameSavesNothing) {
  EXPECT_FALSE(desk.datei.Pr_Speich_als(""));
  EXPECT_FALSE(desk.datei.Pr_Speich_als("  "));
  EXPECT_TRUE(desk.dateien(".fmd").empty());
}
