#include "shell/captions.h"

#include <gtest/gtest.h>

#include "support/temp_folder.h"

using namespace polarkreis;

namespace {

struct CaptionsTest : testing::Test {
  TempOrdner ordner;
  Meldungen meldungen;
  Ablage ablage{ordner.pfad(), meldungen};
  Captions captions{ablage};

  /// A caption file of n lines, "<prefix>1", "<prefix>2" ...
  void schreib(const std::string& name, const std::string& vorsatz, int n) const {
    std::string inhalt;
    for (int i = 1; i <= n; ++i) zeile_anhaengen(inhalt, {vorsatz + std::to_string(i)});
    ordner.schreib(name, inhalt);
  }
};

}  // namespace

TEST(Stammformen, StandInLoadOrderWithTheirLineCounts) {
  const std::vector<std::pair<std::string, int>> erwartet = {
      {"VerbCapt", 24}, {"SoleCapt", 28}, {"Caption", 249}, {"HXCapt", 20}, {"AirCoCap", 118},
      {"JMapCap", 67},  {"heatcap", 56},  {"DrawCap", 22},  {"PEDcap", 30}};
  ASSERT_EQ(erwartet.size(), Stammzahl);
  for (std::size_t i = 0; i < Stammzahl; ++i) {
    EXPECT_EQ(stammform(static_cast<Stamm>(i)).name, erwartet[i].first);
    EXPECT_EQ(stammform(static_cast<Stamm>(i)).zeilen, erwartet[i].second);
  }
}

TEST(Sprachcodes, AreTwentyOneOfThreeCapitals) {
  ASSERT_EQ(Sprachen().size(), 21U);
  EXPECT_EQ(Sprachen().front(), "GER");
  EXPECT_EQ(Sprachen()[19], "TWA");
  EXPECT_EQ(Sprachen().back(), "ARA");
}

TEST_F(CaptionsTest, LinesAreReadByPosition) {
  schreib("JMapCap.GER", "J", 67);
  schreib("heatcap.GER", "H", 56);
  captions.Sprache = "GER";
  captions.Captions_Laden();
  EXPECT_EQ(captions.text(JMapCap::Kaelteraum), "J2");
  EXPECT_EQ(captions.text(Stamm::JMapCap, 67), "J67");
  EXPECT_EQ(captions.text(Stamm::heatcap, 1), "H1");
}

TEST_F(CaptionsTest, ShortFileLeavesTheRestEmpty) {
  schreib("JMapCap.GER", "J", 3);
  captions.Sprache = "GER";
  captions.Captions_Laden();
  EXPECT_EQ(captions.text(Stamm::JMapCap, 3), "J3");
  EXPECT_EQ(captions.text(Stamm::JMapCap, 4), "");
  EXPECT_EQ(captions.text(Stamm::JMapCap, 67), "");
}

TEST_F(CaptionsTest, AbsentFileLeavesAllEmptyAndIsNotCreated) {
  captions.Captions_Laden();
  EXPECT_EQ(captions.text(JMapCap::Kaelteraum), "");
  EXPECT_TRUE(ordner.namen().empty());
}

TEST_F(CaptionsTest, LinesBeyondTheCountAreNotRead) {
  schreib("DrawCap.ENG", "D", 40);
  captions.Captions_Laden();
  EXPECT_EQ(captions.text(Stamm::DrawCap, 22), "D22");
  EXPECT_EQ(captions.text(Stamm::DrawCap, 23), "");
  EXPECT_EQ(captions.text(Stamm::DrawCap, 0), "");
  EXPECT_EQ(captions.text(Stamm::DrawCap, -1), "");
}

TEST_F(CaptionsTest, AnotherLanguageLeavesNothingOfTheOldOne) {
  schreib("JMapCap.GER", "J", 67);
  captions.Sprache = "GER";
  captions.Captions_Laden();
  captions.Sprache = "ENG";
  captions.Captions_Laden();
  EXPECT_EQ(captions.text(Stamm::JMapCap, 2), "");
}

TEST_F(CaptionsTest, FileIsFoundInAnyCase) {
  schreib("CAPTION.nor", "n", 249);
  schreib("HEATCAP.NOR", "h", 56);
  captions.Sprache = "NOR";
  captions.Captions_Laden();
  EXPECT_EQ(captions.text(Stamm::Caption, 249), "n249");
  EXPECT_EQ(captions.text(Stamm::heatcap, 56), "h56");
}

TEST_F(CaptionsTest, LanguageThatIsAPathLeadsNowhere) {
  ordner.schreib("JMapCap.x/y", "\"secret\"\r\n");
  captions.Sprache = "x/y";
  captions.Captions_Laden();
  EXPECT_EQ(captions.text(Stamm::JMapCap, 1), "");
}

TEST_F(CaptionsTest, MonthsStandInLines65To76) {
  schreib("AirCoCap.ENG", "A", 118);
  captions.Captions_Laden();
  EXPECT_EQ(captions.monat(1), "A65");
  EXPECT_EQ(captions.monat(12), "A76");
  EXPECT_EQ(captions.monat(0), "");
  EXPECT_EQ(captions.monat(13), "");
}

namespace {

struct UebersetzenTest : CaptionsTest {
  void SetUp() override {
    ordner.schreib("JMapCap.GER", "\"Titel\"\r\n\"Kühlraum\"\r\n\"Klima\"\r\n\"Klima\"\r\n");
    ordner.schreib("JMapCap.ENG", "\"Title\"\r\n\"Cold room\"\r\n\"Air\"\r\n\"Other\"\r\n");
  }
  std::string von_nach(std::string_view text, std::string_view von = "GER",
                       std::string_view nach = "ENG") const {
    return captions.Caption_Uebersetzen(Stamm::JMapCap, von, nach, text);
  }
};

}  // namespace

TEST_F(UebersetzenTest, TextGetsTheSameLineOfTheNewLanguage) {
  EXPECT_EQ(von_nach("Kühlraum"), "Cold room");
  EXPECT_EQ(von_nach("Cold room", "ENG", "GER"), "Kühlraum");
}

TEST_F(UebersetzenTest, CaseAndOuterBlanksDontCount) {
  EXPECT_EQ(von_nach("  KÜHLRAUM "), "Cold room");
}

TEST_F(UebersetzenTest, FirstLineOfEqualOnesCounts) {
  EXPECT_EQ(von_nach("Klima"), "Air");
}

TEST_F(UebersetzenTest, OnlyTheGivenLinesAreLookedAt) {
  const std::vector<int> zeilen = {4, 0, 900};
  EXPECT_EQ(captions.Caption_Uebersetzen(Stamm::JMapCap, zeilen, "GER", "ENG", "Klima"), "Other");
  EXPECT_EQ(captions.Caption_Uebersetzen(Stamm::JMapCap, zeilen, "GER", "ENG", "Kühlraum"),
            "Kühlraum");
}

TEST_F(UebersetzenTest, UnknownAndEmptyTextsStay) {
  EXPECT_EQ(von_nach("Unknown "), "Unknown ");
  EXPECT_EQ(von_nach(""), "");
  EXPECT_EQ(von_nach("  "), "  ");
  EXPECT_EQ(von_nach("Kühlraum", "ZZZ"), "Kühlraum");
}

TEST_F(UebersetzenTest, TextStaysWhereTheNewLanguageHasNone) {
  EXPECT_EQ(von_nach("Kühlraum", "GER", "ZZZ"), "Kühlraum");
}

namespace {

struct AlleStaemmeTest : CaptionsTest {
  void SetUp() override {
    ordner.schreib("VerbCapt.GER", "\"Verdichter\"\r\n\"Doppelt\"\r\n");
    ordner.schreib("VerbCapt.ENG", "\"Compressor\"\r\n\"First\"\r\n");
    ordner.schreib("Caption.GER", "\"Doppelt\"\r\n\"Einstufig\"\r\n\"Nur alt\"\r\n");
    ordner.schreib("Caption.ENG", "\"Second\"\r\n\"Single-stage\"\r\n");
    ordner.schreib("PEDcap.GER", "\"Niedrig\"\r\n");
    ordner.schreib("PEDcap.ENG", "\"Low\"\r\n");
  }
  std::string neu(std::string_view text) const {
    return captions.Caption_Uebersetzen("GER", "ENG", text);
  }
};

}  // namespace

TEST_F(AlleStaemmeTest, TextIsFoundInAnyFile) {
  EXPECT_EQ(neu("Verdichter"), "Compressor");
  EXPECT_EQ(neu(" EINSTUFIG "), "Single-stage");
  EXPECT_EQ(neu("Niedrig"), "Low");
}

TEST_F(AlleStaemmeTest, FirstFileInLoadOrderCounts) {
  EXPECT_EQ(neu("Doppelt"), "First");
}

TEST_F(AlleStaemmeTest, UnknownAndEmptyTextsStay) {
  EXPECT_EQ(neu("Sonderbau "), "Sonderbau ");
  EXPECT_EQ(neu(""), "");
  EXPECT_EQ(neu(" "), " ");
  EXPECT_EQ(neu("Nur alt"), "Nur alt");
}
