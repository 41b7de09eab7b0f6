#include "shell/ablage.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "support/temp_folder.h"

using namespace polarkreis;

namespace {

using Namen = std::vector<std::string>;

struct AblageTest : testing::Test {
  TempOrdner ordner;
  Meldungen meldungen;
  Ablage ablage{ordner.pfad(), meldungen};

  Namen items(std::string_view name) {
    Namen alle;
    ablage.Datei_Lesen(name, 9);
    while (!ablage.Ende(9)) alle.push_back(ablage.Eingabe(9));
    ablage.Datei_Schliessen(9);
    return alle;
  }
};

}  // namespace

TEST_F(AblageTest, WhatIsWrittenIsReadBack) {
  ablage.Datei_Schreiben("a.dat", 1);
  ablage.Ausgabe(1, {"x", "1,5"});
  ablage.Ausgabe(1, {"y"});
  EXPECT_TRUE(ablage.Datei_Schliessen(1));
  EXPECT_EQ(ordner.lies("a.dat"), "\"x\",\"1,5\"\r\n\"y\"\r\n");
  EXPECT_EQ(items("a.dat"), (Namen{"x", "1,5", "y"}));
  EXPECT_EQ(ordner.namen(), Namen{"a.dat"});
}

TEST_F(AblageTest, NameWithoutAPathLiesInTheDataFolder) {
  EXPECT_EQ(ablage.pfad("a.dat"), ordner.pfad("a.dat"));
}

TEST_F(AblageTest, NameWithAPathStandsAsItIsWithEitherSign) {
  TempOrdner anderer;
  EXPECT_EQ(ablage.pfad(anderer.pfad("a.dat")), anderer.pfad("a.dat"));
  EXPECT_EQ(ablage.pfad("C:\\x\\a.dat"), "C:/x/a.dat");
  EXPECT_EQ(ablage.pfad("./a.dat"), "./a.dat");
  EXPECT_TRUE(ablage.schreib_ganz(anderer.pfad() + "\\b.dat", "b"));
  EXPECT_EQ(anderer.lies("b.dat"), "b");
}

TEST_F(AblageTest, AbsentFileGivesEmptyTextsAndIsCreatedEmpty) {
  EXPECT_EQ(items("a.dat"), Namen{});
  std::string target = "old";
  ablage.Datei_Lesen("a.dat", 1);
  EXPECT_FALSE(ablage.Eingabe(1, target));
  EXPECT_EQ(target, "old");
  EXPECT_EQ(ablage.Eingabe(1), "");
  EXPECT_TRUE(ordner.da("a.dat"));
  EXPECT_FALSE(ablage.vorhanden("a.dat"));
}

TEST_F(AblageTest, ReadingCreatesNoPathAndNothingWhereForbidden) {
  ablage.Datei_Lesen(ordner.pfad("sub/a.dat"), 1);
  ablage.Datei_Lesen(ordner.pfad("b.dat"), 2);
  ablage.Datei_Lesen("c.dat", 3, false);
  EXPECT_FALSE(ablage.lies_ganz("d.dat").has_value());
  EXPECT_EQ(ablage.Dateigroesse("e.dat"), 0);
  EXPECT_FALSE(ablage.stand("f.dat").da);
  EXPECT_EQ(ablage.liste("", ".dat"), Namen{});
  EXPECT_EQ(ordner.namen(), Namen{});
}

TEST_F(AblageTest, AbsentFolderIsMade) {
  ablage.Datenordner = ordner.pfad("new/data");
  ablage.Datei_Schreiben("a.dat", 1);
  EXPECT_TRUE(std::filesystem::is_directory(ordner.pfad("new/data")));
  EXPECT_TRUE(ablage.Datei_Schliessen(1));
  EXPECT_TRUE(ablage.schreib_ganz(ordner.pfad("other/deep/b.dat"), "b"));
  EXPECT_EQ(ordner.lies("other/deep/b.dat"), "b");
}

TEST_F(AblageTest, OpeningAnOpenNumberClosesItFirst) {
  ablage.Datei_Schreiben("a.dat", 1);
  ablage.Ausgabe(1, {"a"});
  ablage.Datei_Schreiben("b.dat", 1);
  EXPECT_EQ(ordner.lies("a.dat"), "\"a\"\r\n");
  ablage.Ausgabe(1, {"b"});
  ablage.Datei_Lesen("a.dat", 1);
  EXPECT_EQ(ordner.lies("b.dat"), "\"b\"\r\n");
  ablage.Datei_Lesen("b.dat", 1);
  EXPECT_EQ(ablage.Eingabe(1), "b");
}

TEST_F(AblageTest, AppendingOnTheNumberOpenForOutputContinuesTheFile) {
  ablage.Datei_Schreiben("a.dat", 1);
  ablage.Ausgabe(1, {"first"});
  ablage.Datei_Anhaengen("a.dat", 1);
  EXPECT_EQ(ordner.lies("a.dat"), "\"first\"\r\n");
  ablage.Ausgabe(1, {"second"});
  EXPECT_TRUE(ablage.Datei_Schliessen(1));
  EXPECT_EQ(items("a.dat"), (Namen{"first", "second"}));
}

TEST_F(AblageTest, AppendingToAnOpenLastLineBeginsANewOne) {
  ordner.schreib("a.dat", "\"first\"");
  ablage.Datei_Anhaengen("a.dat", 1);
  ablage.Ausgabe(1, {"second"});
  ablage.Datei_Schliessen(1);
  EXPECT_EQ(items("a.dat"), (Namen{"first", "second"}));
}

TEST_F(AblageTest, AppendingTurnsAnOldFileIntoUtf8) {
  ordner.schreib("a.dat", "\"K\xFChl\"\r\n");
  ablage.Datei_Anhaengen("a.dat", 1);
  ablage.Ausgabe(1, {"Öl"});
  ablage.Datei_Schliessen(1);
  EXPECT_EQ(items("a.dat"), (Namen{"Kühl", "Öl"}));
}

TEST_F(AblageTest, NothingIsInPlaceBeforeTheNumberIsClosed) {
  ordner.schreib("a.dat", "old");
  ablage.Datei_Schreiben("a.dat", 1);
  ablage.Ausgabe_Text(1, "new");
  EXPECT_EQ(ordner.lies("a.dat"), "old");
  EXPECT_EQ(ordner.namen(), Namen{"a.dat"});
  EXPECT_TRUE(ablage.alle_schliessen());
  EXPECT_EQ(ordner.lies("a.dat"), "new");
}

TEST_F(AblageTest, TheStoresEndClosesEveryNumber) {
  {
    Ablage kurz(ordner.pfad(), meldungen);
    kurz.Datei_Schreiben("a.dat", 1);
    kurz.Ausgabe_Text(1, "kept");
  }
  EXPECT_EQ(ordner.lies("a.dat"), "kept");
}

TEST_F(AblageTest, ClosedAndWrongNumbersTakeAndGiveNothing) {
  ablage.Ausgabe(4, {"x"});
  ablage.Ausgabe_Text(4, "x");
  EXPECT_TRUE(ablage.Datei_Schliessen(4));
  EXPECT_TRUE(ablage.Ende(4));
  EXPECT_EQ(ablage.Eingabe(4), "");
  ordner.schreib("a.dat", "\"a\"");
  ablage.Datei_Lesen("a.dat", 1);
  ablage.Ausgabe(1, {"x"});
  ablage.Satz_Schreiben(1, 1, "x");
  ablage.Datei_Schliessen(1);
  EXPECT_EQ(ordner.lies("a.dat"), "\"a\"");
  ablage.Datei_Schreiben("b.dat", 1);
  EXPECT_TRUE(ablage.Ende(1));
  EXPECT_EQ(ablage.Satz_Lesen(1, 1), "");
}

TEST_F(AblageTest, AnyCaseIsFoundTheExactOneFirst) {
  ordner.schreib("CAPTION.ndl", "upper");
  EXPECT_EQ(ablage.lies_ganz("Caption.NDL"), "upper");
  EXPECT_EQ(ablage.pfad("caption.ndl"), ordner.pfad("CAPTION.ndl"));
  EXPECT_EQ(ablage.Dateigroesse("caption.ndl"), 5);
  ordner.schreib("Caption.NDL", "exact");
  EXPECT_EQ(ablage.lies_ganz("Caption.NDL"), "exact");
  EXPECT_EQ(ablage.lies_ganz("CAPTION.ndl"), "upper");
  // Of several others the first in byte order: no matter how the folder is stored.
  EXPECT_EQ(ablage.lies_ganz("caption.ndl"), "upper");
}

TEST_F(AblageTest, CaseDoesntCountForLettersBeyondAscii) {
  ordner.schreib("KÜHLRAUM.prj", "x");
  EXPECT_EQ(ablage.lies_ganz("kühlraum.PRJ"), "x");
}

TEST_F(AblageTest, CaseDoesntCountBehindAPath) {
  ordner.schreib("sub/Haus.prj", "x");
  EXPECT_EQ(ablage.lies_ganz(ordner.pfad("sub/HAUS.PRJ")), "x");
}

TEST_F(AblageTest, ListHasTheFilesOfAnEndingInAnyCase) {
  for (const char* name : {"b.prj", "A.PRJ", "c.prj.bak", ".hidden.prj", "prj", "Z.Prj"})
    ordner.schreib(name, "x");
  ordner.schreib("folder.prj/inside.prj", "x");
  std::filesystem::create_symlink("b.prj", ordner.pfad("link.prj"));
  EXPECT_EQ(ablage.liste("", ".prj"), (Namen{"A.PRJ", "Z.Prj", "b.prj", "link.prj"}));
  EXPECT_EQ(ablage.liste(ordner.pfad("folder.prj"), ".PRJ"), Namen{"inside.prj"});
  EXPECT_EQ(ablage.liste(ordner.pfad("nowhere"), ".prj"), Namen{});
}

TEST_F(AblageTest, FolderInPlaceOfAFileIsReadAsAbsentAndTold) {
  std::filesystem::create_directory(ordner.pfad("a.dat"));
  EXPECT_FALSE(ablage.lies_ganz("a.dat").has_value());
  EXPECT_EQ(ablage.Dateigroesse("a.dat"), 0);
  EXPECT_FALSE(ablage.vorhanden("a.dat"));
  ASSERT_EQ(meldungen.zeilen().size(), 1U);
  EXPECT_NE(meldungen.zeilen()[0].find("folder"), std::string::npos);
  EXPECT_EQ(items("a.dat"), Namen{});
}

TEST_F(AblageTest, AbsentFileIsNotTold) {
  ablage.lies_ganz("a.dat");
  EXPECT_TRUE(meldungen.zeilen().empty());
}

TEST_F(AblageTest, BinaryFilesAreReadToTheEnd) {
  std::string bytes;
  for (int i = 0; i < 5000; ++i) bytes += static_cast<char>(i * 7);
  ordner.schreib("a.dat", bytes);
  EXPECT_FALSE(items("a.dat").empty());
  EXPECT_EQ(ablage.Dateigroesse("a.dat"), 5000);
}

TEST_F(AblageTest, HugeFileIsReadInOneGo) {
  std::string zeile = "\"12.5\",\"K\xC3\xBChl\",3\r\n";
  std::string bytes;
  while (bytes.size() < 100'000'000) bytes += zeile;
  ordner.schreib("a.dat", bytes);
  ablage.Datei_Lesen("a.dat", 1);
  std::size_t anzahl = 0;
  for (std::string item; ablage.Eingabe(1, item);) ++anzahl;
  EXPECT_EQ(anzahl, bytes.size() / zeile.size() * 3);
}

TEST_F(AblageTest, PipeWithoutAWriterIsEmpty) {
  ASSERT_EQ(::mkfifo(ordner.pfad("a.dat").c_str(), 0600), 0);
  EXPECT_EQ(ablage.lies_ganz("a.dat"), "");
}

TEST_F(AblageTest, NameWithANulByteOpensNoOtherFile) {
  ordner.schreib("a.dat", "x");
  EXPECT_FALSE(ablage.lies_ganz(std::string_view("a.dat\0b", 7)).has_value());
}

TEST_F(AblageTest, RecordsHaveTheirLength) {
  ordner.schreib("a.dat", "AAAABB");
  ablage.Datei_Satz("a.dat", 1, 4);
  EXPECT_EQ(ablage.Satz_Lesen(1, 1), "AAAA");
  EXPECT_EQ(ablage.Satz_Lesen(1, 2), "BB  ");
  EXPECT_EQ(ablage.Satz_Lesen(1, 3), "    ");
  EXPECT_EQ(ablage.Satz_Lesen(1, 0), "");
  ablage.Satz_Schreiben(1, 4, "toolong");
  ablage.Satz_Schreiben(1, 1, "x");
  EXPECT_TRUE(ablage.Datei_Schliessen(1));
  EXPECT_EQ(ordner.lies("a.dat"), "x   BB      tool");
}

TEST_F(AblageTest, RecordLengthZeroIsTheDefault) {
  ablage.Datei_Satz("a.dat", 1, 0);
  EXPECT_EQ(ablage.Satz_Lesen(1, 1), std::string(128, ' '));
}

TEST_F(AblageTest, RecordsThatWereOnlyReadLeaveTheFile) {
  ordner.schreib("a.dat", std::string("\xFF\0A", 3));
  ablage.Datei_Satz("a.dat", 1, 8);
  EXPECT_EQ(ablage.Satz_Lesen(1, 1), std::string("\xFF\0A     ", 8));
  EXPECT_TRUE(ablage.Datei_Schliessen(1));
  EXPECT_EQ(ordner.lies("a.dat"), std::string("\xFF\0A", 3));
}

TEST_F(AblageTest, RecordFarOutIsRefused) {
  ablage.Datei_Satz("a.dat", 1, 2'000'000'000);
  ablage.Satz_Schreiben(1, 2'000'000'000, "x");
  EXPECT_NE(ablage.letzter_fehler(), "");
  EXPECT_TRUE(ablage.Datei_Schliessen(1));
  EXPECT_FALSE(ordner.da("a.dat"));
}
