// Measurement files by damage: cut off anywhere, filled up with NUL bytes, or no measurement at
// all.

#include <gtest/gtest.h>

#include "diagnostics/messdatei_desk.h"

using namespace polarkreis;

namespace {

struct LoadDiaGDamage : testing::Test {
  MessdateiDesk desk;
  Messung& m = desk.m;
  Messinhalt inhalt;

  void SetUp() override {
    m.Auto_corr_Check = 0;
    inhalt(1) = "Kühlhaus";
    inhalt(3) = "65459&$§ENG";
    for (int n = 1; n <= 3; ++n) {
      inhalt.zeile(std::to_string(n) + ".5", "10.25");
      inhalt.zelle(50, "a \"b\"\r\nc, ü");
      inhalt.zelle(169, "l" + std::to_string(n));
    }
  }
  Messdatei::Ladung lade(std::string_view bytes) {
    std::filesystem::remove(
        desk.ordner.pfad("cut.fmd"));  // a new file is quicker than a shorter one
    desk.ordner.schreib("cut.fmd", bytes);
    return desk.datei.LoadDiaG("cut.fmd");
  }
  /// True if the table holds the first n rows as they were written.
  bool nur_erste(int n) const {
    for (int zeile = 1; zeile <= 3; ++zeile)
      for (int spalte = 1; spalte <= 169; ++spalte) {
        const auto& erwartet =
            inhalt
                .zeilen[static_cast<std::size_t>(zeile - 1)][static_cast<std::size_t>(spalte - 1)];
        if (desk.zelle(zeile + 2, spalte) != (zeile <= n ? erwartet : "")) return false;
      }
    return m.Messpunkte() == n;
  }
};

}  // namespace

TEST_F(LoadDiaGDamage, EveryTruncationGivesWholeRowsOnly) {
  const std::string alles = inhalt.text();
  Messinhalt kopf = inhalt;
  kopf.zeilen.clear();
  const std::size_t anfang = kopf.text().size();
  const std::size_t zeile = (alles.size() - anfang) / 3;
  for (std::size_t n = 0; n <= alles.size(); ++n) {
    lade(std::string_view(alles).substr(0, n));
    // A row is whole when its last cell is: the line end behind that may be missing.
    const std::size_t ganze = n < anfang ? 0 : (n + 2 - anfang) / zeile;
    ASSERT_TRUE(nur_erste(static_cast<int>(ganze))) << n << " of " << alles.size();
    if (n >= anfang) {
      ASSERT_EQ(m.ProjektNam, "Kühlhaus") << n;
    }
  }
}

TEST_F(LoadDiaGDamage, RowThatWasCutOffIsTold) {
  std::string text = inhalt.text();
  lade(text);
  EXPECT_TRUE(desk.meldungen.zeilen().empty());
  text.resize(text.size() - 10);
  lade(text);
  EXPECT_TRUE(nur_erste(2));
  EXPECT_TRUE(desk.gemeldet("cut off"));
}

TEST_F(LoadDiaGDamage, TailOfNulBytesIsLeftOutAndTold) {
  std::string text = inhalt.text();
  lade(text + std::string(5000, '\0'));
  EXPECT_TRUE(nur_erste(3));
  EXPECT_TRUE(desk.gemeldet("NUL"));
  text.resize(text.size() - 400);
  lade(text + std::string(5000, '\0'));
  EXPECT_TRUE(nur_erste(2));
  EXPECT_TRUE(desk.gemeldet("cut off"));
}

TEST_F(LoadDiaGDamage, NothingButNulBytesIsAnEmptyFile) {
  lade(std::string(5000, '\0'));
  EXPECT_EQ(m.Messpunkte(), 0);
  EXPECT_EQ(m.Mess_Zeilen, 2);
}

TEST_F(LoadDiaGDamage, LastRowWithoutALineEndCounts) {
  std::string text = inhalt.text();
  text.resize(text.size() - 2);
  lade(text);
  EXPECT_TRUE(nur_erste(3));
  EXPECT_TRUE(desk.meldungen.zeilen().empty());
}

TEST_F(LoadDiaGDamage, LinesWithoutQuotesAndCarriageReturnsAreRead) {
  std::string text;
  for (int n = 1; n <= 100; ++n) text += n == 3 ? "3\n" : "\n";
  for (int n = 1; n <= 169; ++n) text += n == 2 ? "2,5\n" : n == 6 ? "\"10\"\n" : "\n";
  lade(text);
  // A comma without quotes parts two items, so the pressure is the one before it.
  EXPECT_EQ(desk.zelle(3, Spalte::p0), "2");
}

TEST_F(LoadDiaGDamage, ForeignContentGivesNoRowsAndDoesNoHarm) {
  for (const std::string& text :
       {std::string("\""), std::string("\"\"\""), std::string(",,,,,"), std::string(3000, ','),
        std::string(3000, '"'), std::string(100'000, 'x'), std::string("\x02\x02\x02"),
        std::string("\xFF\xFE\x00\x01", 4)}) {
    lade(text);
    EXPECT_LE(m.Messpunkte(), 0);
    EXPECT_EQ(m.Mess_Zeilen, 2);
  }
}
