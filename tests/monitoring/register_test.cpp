#include "monitoring/register.h"

#include <gtest/gtest.h>

#include "ftp_desk.h"

using namespace polarkreis;

namespace {

struct RegisterTest : testing::Test {
  TempOrdner ordner;
  Meldungen meldungen;
  Ablage ablage{ordner.pfad(), meldungen};
  Register reg;

  static constexpr int Zellen = Register::Zeilen * Register::Spalten;

  /// A file of so many lines that count themselves.
  void schreib_gezaehlt(int anzahl) const {
    std::string text;
    for (int i = 1; i <= anzahl; ++i) text += zeile(std::to_string(i));
    ordner.schreib(Register::Datei, text);
  }
  /// What a second register reads from the saved file.
  Register wieder() {
    Register neu;
    EXPECT_TRUE(reg.schreib(ablage));
    EXPECT_TRUE(neu.lies(ablage));
    return neu;
  }
  static int ungleiche(const Register& a, const Register& b) {
    int anzahl = 0;
    for (int z = 1; z <= Register::Zeilen; ++z)
      for (int s = 1; s <= Register::Spalten; ++s) anzahl += a.zelle(z, s) != b.zelle(z, s);
    return anzahl;
  }
  int zeilen_mit(std::string_view text) const {
    int anzahl = 0;
    for (const std::string& eintrag : meldungen.zeilen())
      anzahl += eintrag.find(text) != std::string::npos;
    return anzahl;
  }
};

}  // namespace

TEST_F(RegisterTest, FileHoldsOneQuotedLineACellRowAfterRow) {
  reg.setze(1, 1, "K17");
  reg.setze(1, 2, "Kühlhaus \"Nord\"");
  reg.setze(2, 1, "K18");
  reg.setze(100, 100, "last");
  ASSERT_TRUE(reg.schreib(ablage));
  std::string erwartet = "\"K17\"\r\n\"Kühlhaus \"\"Nord\"\"\"\r\n";
  for (int i = 3; i <= 100; ++i) erwartet += "\"\"\r\n";
  erwartet += "\"K18\"\r\n";
  for (int i = 102; i < Zellen; ++i) erwartet += "\"\"\r\n";
  erwartet += "\"last\"\r\n";
  EXPECT_EQ(ordner.lies("FMD_M_Global.ini"), erwartet);
  EXPECT_EQ(ordner.namen(), Zeilen{"FMD_M_Global.ini"});
}

TEST_F(RegisterTest, KeepsWhateverACellHolds) {
  const Zeilen werte = {"c1=tc;ro=  ;c2=  ;cm=3;vl=45;ti=10;nt=3;en=1;",
                        "\"",
                        "\"\"",
                        "\"\r\n\"",
                        "\"\r\n\"\"",
                        "\r\n",
                        "\r",
                        "\n",
                        "a\r\nb",
                        "a\r\n\"\r\nb",
                        "a\n\"\"\n",
                        ",",
                        "a,\"b\",c",
                        "\t",
                        "  blanks  ",
                        "Ärger ß € Привет",
                        std::string(5000, 'x'),
                        "",
                        std::string("a\0b", 3),
                        "\"quoted\"",
                        "ends with \"",
                        "\"begins"};
  std::size_t i = 0;
  for (int z = 1; z <= Register::Zeilen; ++z)
    for (int s = 1; s <= Register::Spalten; ++s) reg.setze(z, s, werte[i++ % werte.size()]);
  const Register neu = wieder();
  EXPECT_EQ(ungleiche(reg, neu), 0);
  EXPECT_EQ(neu.zelle(1, 4), "\"\r\n\"");
  EXPECT_EQ(meldungen.zeilen().size(), 0U);
}

TEST_F(RegisterTest, KeepsTenThousandDifferentCells) {
  for (int z = 1; z <= Register::Zeilen; ++z)
    for (int s = 1; s <= Register::Spalten; ++s)
      reg.setze(z, s, std::to_string(z) + ";" + std::to_string(s));
  EXPECT_EQ(ungleiche(reg, wieder()), 0);
}

TEST_F(RegisterTest, CellsCountFromOneAndNothingHappensOutside) {
  for (const auto& [z, s] : {std::pair{0, 1}, {1, 0}, {101, 1}, {1, 101}, {-1, -1}}) {
    reg.setze(z, s, "x");
    EXPECT_EQ(reg.zelle(z, s), "");
  }
  for (int z = 1; z <= Register::Zeilen; ++z) EXPECT_TRUE(reg.ist_leer(z)) << z;
}

TEST_F(RegisterTest, MissingFileLeavesTheTableAndMakesNoFile) {
  reg.setze(3, 4, "kept");
  EXPECT_FALSE(reg.lies(ablage));
  EXPECT_EQ(reg.zelle(3, 4), "kept");
  EXPECT_EQ(ordner.namen(), Zeilen{});
}

TEST_F(RegisterTest, ShorterFileLeavesTheCellsBehindItsEnd) {
  reg.setze(1, 2, "old");
  reg.setze(1, 3, "old");
  reg.setze(100, 100, "old");
  ordner.schreib(Register::Datei, "\"a\"\r\n\"\"\r\n");
  EXPECT_TRUE(reg.lies(ablage));
  EXPECT_EQ(reg.zelle(1, 1), "a");
  EXPECT_EQ(reg.zelle(1, 2), "");
  EXPECT_EQ(reg.zelle(1, 3), "old");
  EXPECT_EQ(reg.zelle(100, 100), "old");
}

TEST_F(RegisterTest, FileOf9999LinesLeavesTheLastCell) {
  reg.setze(100, 100, "old");
  schreib_gezaehlt(Zellen - 1);
  EXPECT_TRUE(reg.lies(ablage));
  EXPECT_EQ(reg.zelle(1, 100), "100");
  EXPECT_EQ(reg.zelle(2, 1), "101");
  EXPECT_EQ(reg.zelle(100, 99), "9999");
  EXPECT_EQ(reg.zelle(100, 100), "old");
}

TEST_F(RegisterTest, LinesBeyondTheLastCellAreCountedAndTheFileStays) {
  schreib_gezaehlt(2 * Zellen);
  const std::string vorher = ordner.lies(Register::Datei);
  EXPECT_TRUE(reg.lies(ablage));
  EXPECT_EQ(reg.zelle(100, 100), "10000");
  EXPECT_EQ(reg.zelle(1, 1), "1");
  EXPECT_EQ(zeilen_mit("10000"), 1);
  EXPECT_EQ(reg.ueberzaehlig, 10000);
  EXPECT_EQ(ordner.lies(Register::Datei), vorher);
}

TEST_F(RegisterTest, FullFileIsNoMatterForTheMessageLog) {
  schreib_gezaehlt(Zellen);
  EXPECT_TRUE(reg.lies(ablage));
  EXPECT_EQ(meldungen.zeilen().size(), 0U);
}

TEST_F(RegisterTest, BrokenQuotesSpoilOnlyTheirOwnCell) {
  ordner.schreib(Register::Datei,
                 "\"a\r\n\"b\"\r\n\"c\"d\"\r\n\"e\"\r\nf\"\r\ng\r\n\"\"h\"\r\n\"i\"\r\n");
  const std::string vorher = ordner.lies(Register::Datei);
  EXPECT_TRUE(reg.lies(ablage));
  const Zeilen erwartet = {"a", "b", "c\"d", "e", "f\"", "g", "\"h", "i", ""};
  for (int s = 1; s <= static_cast<int>(erwartet.size()); ++s)
    EXPECT_EQ(reg.zelle(1, s), erwartet[static_cast<std::size_t>(s - 1)]) << s;
  EXPECT_EQ(ordner.lies(Register::Datei), vorher);
}

TEST_F(RegisterTest, FileOfAnotherMachineOpens) {
  ordner.schreib(Register::Datei,
                 "\"K\xFChlhaus\"\n\"Stra\xDF"
                 "e\"\n\"5 \x80\"\n");
  EXPECT_TRUE(reg.lies(ablage));
  EXPECT_EQ(reg.zelle(1, 1), "Kühlhaus");
  EXPECT_EQ(reg.zelle(1, 2), "Straße");
  EXPECT_EQ(reg.zelle(1, 3), "5 €");
}

TEST_F(RegisterTest, FileWithAByteOrderMarkOpens) {
  ordner.schreib(Register::Datei, "\xEF\xBB\xBF\"K17\"\r\n\"x\"\r\n");
  EXPECT_TRUE(reg.lies(ablage));
  EXPECT_EQ(reg.zelle(1, 1), "K17");
}

TEST_F(RegisterTest, ForeignBytesInACellAreReadableText) {
  reg.setze(1, 1, "K\xFChlhaus");
  EXPECT_EQ(reg.zelle(1, 1), "Kühlhaus");
  EXPECT_EQ(wieder().zelle(1, 1), "Kühlhaus");
}

TEST_F(RegisterTest, SavedFileIsItsOwnersAlone) {
  const mode_t maske = ::umask(022);
  EXPECT_TRUE(reg.schreib(ablage));
  EXPECT_EQ(modus(ordner.pfad(Register::Datei)), 0600U);
  ::chmod(ordner.pfad(Register::Datei).c_str(), 0644);
  EXPECT_TRUE(reg.schreib(ablage));
  ::umask(maske);
  EXPECT_EQ(modus(ordner.pfad(Register::Datei)), 0600U);
}

TEST_F(RegisterTest, FailingSaveLeavesTheOldFileAndTellsWhy) {
  schreib_gezaehlt(3);
  ::chmod(ordner.pfad(Register::Datei).c_str(), 0400);
  EXPECT_FALSE(reg.schreib(ablage));
  EXPECT_NE(ablage.letzter_fehler(), "");
  EXPECT_EQ(ordner.lies(Register::Datei), zeilen({"1", "2", "3"}));
}

TEST_F(RegisterTest, FileThatCantBeReadIsNotReplaced) {
  ordner.schreib(std::string(Register::Datei) + "/a file", "x");
  EXPECT_FALSE(reg.lies(ablage));
  EXPECT_NE(reg.hindernis, "");
  EXPECT_FALSE(reg.schreib(ablage));
  EXPECT_EQ(ordner.lies(std::string(Register::Datei) + "/a file"), "x");
  std::filesystem::remove_all(ordner.pfad(Register::Datei));
  EXPECT_FALSE(reg.schreib(ablage));
  EXPECT_FALSE(reg.lies(ablage));
  EXPECT_EQ(reg.hindernis, "");
  EXPECT_TRUE(reg.schreib(ablage));
}

TEST_F(RegisterTest, LinkToNothingIsNoEmptyRegister) {
  std::filesystem::create_symlink(ordner.pfad("elsewhere"), ordner.pfad(Register::Datei));
  EXPECT_FALSE(reg.lies(ablage));
  EXPECT_NE(reg.hindernis.find("link"), std::string::npos) << reg.hindernis;
  EXPECT_FALSE(reg.schreib(ablage));
  EXPECT_FALSE(ordner.da("elsewhere"));
  std::filesystem::remove(ordner.pfad(Register::Datei));
  ASSERT_EQ(::mkfifo(ordner.pfad(Register::Datei).c_str(), 0600), 0);
  EXPECT_FALSE(reg.lies(ablage));
  EXPECT_NE(reg.hindernis, "");
  EXPECT_FALSE(reg.schreib(ablage));
}

TEST_F(RegisterTest, RegisterMayStandBehindALink) {
  schreib_gezaehlt(3);
  std::filesystem::rename(ordner.pfad(Register::Datei), ordner.pfad("elsewhere"));
  std::filesystem::create_symlink("elsewhere", ordner.pfad(Register::Datei));
  EXPECT_TRUE(reg.lies(ablage));
  EXPECT_EQ(reg.zelle(1, 3), "3");
  EXPECT_TRUE(reg.schreib(ablage));
  EXPECT_TRUE(std::filesystem::is_symlink(ordner.pfad(Register::Datei)));
  EXPECT_EQ(std::filesystem::status(ordner.pfad("elsewhere")).permissions(),
            std::filesystem::perms(0600));
}

TEST_F(RegisterTest, FirstRowCountsWhereNoneIsChosen) {
  EXPECT_EQ(reg.aktive_Zeile(), 1);
  for (const int zeile : {0, -1, 101}) {
    reg.ActiveRow = zeile;
    EXPECT_EQ(reg.aktive_Zeile(), 1);
  }
  reg.ActiveRow = 100;
  EXPECT_EQ(reg.aktive_Zeile(), 100);
}

TEST_F(RegisterTest, PlantIsFoundByItsTrimmedID) {
  reg.setze(2, Registerspalte::ID, " K17 ");
  reg.setze(3, Registerspalte::ID, "K17");
  reg.setze(4, Registerspalte::ID, "K1");
  EXPECT_EQ(reg.suche("K17\t"), 2);
  EXPECT_EQ(reg.suche("K1"), 4);
  EXPECT_EQ(reg.suche("K"), 0);
  EXPECT_EQ(reg.suche(""), 0);
  EXPECT_EQ(reg.suche("  "), 0);
}

TEST_F(RegisterTest, FreeRowIsTheFirstWithABlankID) {
  EXPECT_EQ(reg.freie_Zeile(), 1);
  reg.setze(1, Registerspalte::ID, "K1");
  reg.setze(2, Registerspalte::nm, "a name");
  reg.setze(2, Registerspalte::ID, "  ");
  EXPECT_EQ(reg.freie_Zeile(), 2);
  for (int z = 1; z <= Register::Zeilen; ++z) reg.setze(z, Registerspalte::ID, "x");
  EXPECT_EQ(reg.freie_Zeile(), 0);
}

TEST_F(RegisterTest, RowIsEmptyWhileNoCellHoldsAnything) {
  EXPECT_TRUE(reg.ist_leer(1));
  reg.setze(1, 100, "x");
  EXPECT_FALSE(reg.ist_leer(1));
  EXPECT_TRUE(reg.ist_leer(2));
}

TEST_F(RegisterTest, RulesStandInColumns40To55) {
  EXPECT_EQ(Regelspalte(1), 40);
  EXPECT_EQ(Regelspalte(Regelzahl), 55);
  EXPECT_EQ(static_cast<int>(Registerspalte::pw), 18);
  EXPECT_EQ(static_cast<int>(Registerspalte::nt), 19);
  EXPECT_EQ(static_cast<int>(Registerspalte::Server_Wahl), 20);
}
