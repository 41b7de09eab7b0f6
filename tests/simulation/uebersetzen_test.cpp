// A project of one language on the desk of another.

#include "simulation/uebersetzen.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "projekt_desk.h"
#include "simulation/auswahltexte.h"

using namespace polarkreis;

namespace {

std::string lines(const std::vector<std::string>& items) {
  std::string content;
  for (const std::string& item : items) zeile_anhaengen(content, {item});
  return content;
}

Projektsatz record(const std::vector<std::string>& items) {
  Projektsatz satz;
  for (std::size_t i = 0; i < items.size(); ++i) satz.*Projektfelder()[i].feld = items[i];
  return satz;
}

/// One item, translated from English to German.
std::string in_german(ProjektDesk& desk, std::string Projektsatz::*field, std::string_view text) {
  Projektsatz satz;
  satz.*field = text;
  Projektsatz_uebersetzen(desk.captions, satz, "ENG", "GER");
  return satz.*field;
}

}  // namespace

TEST(Projektuebersetzung, WholeProjectIsTranslated) {
  ProjektDesk desk;
  Projektsatz satz = record(english_items());
  Projektsatz_uebersetzen(desk.captions, satz, "ENG", "GER");
  const std::vector<std::string> expected = german_items();
  for (std::size_t i = 0; i < expected.size(); ++i)
    EXPECT_EQ(satz.*Projektfelder()[i].feld, expected[i]) << Projektfelder()[i].name;
}

TEST(Projektuebersetzung, RoundTripGivesTheProjectBack) {
  ProjektDesk desk;
  Projektsatz satz = record(english_items());
  Projektsatz_uebersetzen(desk.captions, satz, "ENG", "GER");
  Projektsatz_uebersetzen(desk.captions, satz, "GER", "ENG");
  EXPECT_EQ(satz, record(english_items()));
}

TEST(Projektuebersetzung, EverySelectionSurvivesARoundTrip) {
  ProjektDesk desk;
  for (const Projektfeld& item : Projektfelder()) {
    if (item.name == "KaelteM") continue;
    for (const std::string& text : desk.form.Auswahl(item.name)) {
      Projektsatz satz;
      satz.*item.feld = text;
      Projektsatz_uebersetzen(desk.captions, satz, "ENG", "GER");
      EXPECT_FALSE((satz.*item.feld).empty());
      Projektsatz_uebersetzen(desk.captions, satz, "GER", "ENG");
      EXPECT_EQ(satz.*item.feld, text) << item.name;
    }
  }
}

TEST(Projektuebersetzung, SelectionsOfBothDesksMatchLineByLine) {
  ProjektDesk english, german("GER");
  for (const Projektfeld& item : Projektfelder()) {
    if (item.name == "KaelteM") continue;
    const auto from = english.form.Auswahl(item.name), to = german.form.Auswahl(item.name);
    ASSERT_EQ(from.size(), to.size());
    for (std::size_t i = 0; i < from.size(); ++i)
      EXPECT_EQ(in_german(english, item.feld, from[i]), to[i]) << item.name;
  }
}

TEST(Projektuebersetzung, FreeTextIsNeverTranslated) {
  ProjektDesk desk;
  for (auto field : {&Projektsatz::ProjektNam, &Projektsatz::ProBeschr, &Projektsatz::Land,
                     &Projektsatz::Stadt, &Projektsatz::Q0, &Projektsatz::t0})
    EXPECT_EQ(in_german(desk, field, "Cold room"), "Cold room");
}

TEST(Projektuebersetzung, OnlyTheLinesOfTheSelectionCount) {
  ProjektDesk desk;
  // "Cold room" is a line of the file, but no state of maintenance.
  EXPECT_EQ(in_german(desk, &Projektsatz::WartungI, "Cold room"), "Cold room");
  EXPECT_EQ(in_german(desk, &Projektsatz::AnwendBereich, "Cold room"), "Kühlraum");
}

TEST(Projektuebersetzung, CaseAndBlanksAroundDontMatter) {
  ProjektDesk desk;
  EXPECT_EQ(in_german(desk, &Projektsatz::AnwendBereich, " COLD ROOM "), "Kühlraum");
}

TEST(Projektuebersetzung, UnknownTextAndEmptyTextStay) {
  ProjektDesk desk;
  EXPECT_EQ(in_german(desk, &Projektsatz::AnwendBereich, "Ice rink"), "Ice rink");
  EXPECT_EQ(in_german(desk, &Projektsatz::AnwendBereich, ""), "");
  EXPECT_EQ(in_german(desk, &Projektsatz::Vfl_typ, "Heat pipe"), "Heat pipe");
  EXPECT_EQ(in_german(desk, &Projektsatz::Anlagenart_Combo, "Magnetic - new"), "Magnetic - new");
}

TEST(Projektuebersetzung, FixedTextsAreTheSameInEveryLanguage) {
  ProjektDesk desk;
  EXPECT_EQ(in_german(desk, &Projektsatz::verdichter_typ, "Scroll"), "Scroll");
  EXPECT_EQ(in_german(desk, &Projektsatz::verdichter_typ, "Turbo"), "Turbo");
  EXPECT_EQ(in_german(desk, &Projektsatz::Vfl_typ, "Kühlturm"), "Kühlturm");
}

TEST(Projektuebersetzung, WinterLimitKeepsItsDigits) {
  ProjektDesk desk;
  EXPECT_EQ(in_german(desk, &Projektsatz::WinterRGart, "25 °C"), "25 °C");
  EXPECT_EQ(in_german(desk, &Projektsatz::WinterRGart, "none"), "ohne");
}

TEST(Projektuebersetzung, OtherRefrigerantIsTranslatedDesignationsAreNot) {
  ProjektDesk desk;
  EXPECT_EQ(in_german(desk, &Projektsatz::KaelteM, "Other refrigerant"), "Anderes Kältemittel");
  EXPECT_EQ(in_german(desk, &Projektsatz::KaelteM, "R134a"), "R134a");
}

TEST(Projektuebersetzung, MissingLanguageLeavesTheProjectTiedToItsOwn) {
  ProjektDesk desk;
  Projektsatz satz = record(english_items());
  Projektsatz_uebersetzen(desk.captions, satz, "ENG", "FRA");
  EXPECT_EQ(satz.AnwendBereich, "Cold room");
  EXPECT_EQ(satz.Sprache, "ENG");
}

TEST(Projektuebersetzung, WorkingProjectIsRewrittenAndNoBufferStays) {
  ProjektDesk desk("GER");
  desk.folder.schreib("Temp_Sim.dat", lines(english_items()));
  EXPECT_TRUE(Projekt_Uebersetzen(desk.ablage, desk.captions, "ENG", "GER"));
  EXPECT_EQ(desk.folder.lies("Temp_Sim.dat"), lines(german_items()));
  EXPECT_FALSE(desk.folder.da("Puffer.dat"));
}

TEST(Projektuebersetzung, RefusedRewriteLeavesTheOldFileAndItsReason) {
  ProjektDesk desk("GER");
  desk.folder.schreib("Temp_Sim.dat", lines(english_items()));
  std::filesystem::permissions(desk.folder.pfad("Temp_Sim.dat"),
                               std::filesystem::perms::owner_read);
  EXPECT_FALSE(Projekt_Uebersetzen(desk.ablage, desk.captions, "ENG", "GER"));
  EXPECT_EQ(desk.folder.lies("Temp_Sim.dat"), lines(english_items()));
  EXPECT_FALSE(desk.folder.da("Puffer.dat"));
  EXPECT_NE(desk.ablage.letzter_fehler(), "");
}

TEST(Projektuebersetzung, BufferThatCantBeWrittenLeavesTheOldFile) {
  ProjektDesk desk("GER");
  desk.folder.schreib("Temp_Sim.dat", lines(english_items()));
  std::filesystem::create_directory(desk.folder.pfad("Puffer.dat"));
  EXPECT_FALSE(Projekt_Uebersetzen(desk.ablage, desk.captions, "ENG", "GER"));
  EXPECT_EQ(desk.folder.lies("Temp_Sim.dat"), lines(english_items()));
}

TEST(Projektuebersetzung, MissingWorkingProjectIsNothingToDo) {
  ProjektDesk desk;
  EXPECT_TRUE(Projekt_Uebersetzen(desk.ablage, desk.captions, "GER", "ENG"));
  EXPECT_FALSE(desk.folder.da("Temp_Sim.dat"));
  desk.folder.schreib("Temp_Sim.dat", "");
  EXPECT_TRUE(Projekt_Uebersetzen(desk.ablage, desk.captions, "GER", "ENG"));
  EXPECT_EQ(desk.folder.lies("Temp_Sim.dat"), "");
}

TEST(Projektuebersetzung, ProjectOfTheSameOrOfNoLanguageStays) {
  ProjektDesk desk;
  for (const char* code : {"ENG", "eng", "", "EN", "ENGL"}) {
    std::vector<std::string> items = german_items();
    items[22] = code;
    desk.folder.schreib("Temp_Sim.dat", lines(items));
    EXPECT_TRUE(Projekt_Uebersetzen(desk.ablage, desk.captions, "GER", "ENG"));
    EXPECT_EQ(desk.folder.lies("Temp_Sim.dat"), lines(items)) << code;
  }
}

TEST(Projektuebersetzung, ShortFileKeepsItsLengthAndALongerOneItsTail) {
  ProjektDesk desk("GER");
  std::vector<std::string> items = english_items(), expected = german_items();
  items.resize(30);
  expected.resize(30);
  desk.folder.schreib("Temp_Sim.dat", lines(items));
  EXPECT_TRUE(Projekt_Uebersetzen(desk.ablage, desk.captions, "ENG", "GER"));
  EXPECT_EQ(desk.folder.lies("Temp_Sim.dat"), lines(expected));

  items = english_items(), expected = german_items();
  items.push_back("Cold room");
  expected.push_back("Cold room");
  desk.folder.schreib("Temp_Sim.dat", lines(items));
  EXPECT_TRUE(Projekt_Uebersetzen(desk.ablage, desk.captions, "ENG", "GER"));
  EXPECT_EQ(desk.folder.lies("Temp_Sim.dat"), lines(expected));
}
