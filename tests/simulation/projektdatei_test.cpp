// The project on disk: project files, the working project, old and damaged files.

#include <gtest/gtest.h>

#include "projekt_desk.h"

using namespace polarkreis;

namespace {

using Items = std::vector<std::string>;
namespace fs = std::filesystem;

struct Projektdatei : testing::Test {
  ProjektDesk desk;
  Projektdaten& form = desk.form;

  /// A path in a folder beside the data.
  std::string plants(std::string_view name = "") const {
    return desk.folder.pfad("plants/" + std::string(name));
  }
  bool open_items(const Items& items) {
    desk.write_project("plants/a.prj", "SIM_PRO", items);
    return form.Projekt_Oeffnen("SIM_PRO", plants("a.prj"));
  }
  Items fields() const {
    Items all;
    for (const Projektfeld& item : Projektfelder()) all.push_back(form.*item.feld);
    return all;
  }
  static Items first(std::size_t count) {
    Items items = english_items();
    items.resize(count);
    return items;
  }
  /// The item that replaces number n of the English project.
  static Items with(std::size_t number, std::string_view text) {
    Items items = english_items();
    items[number - 1] = text;
    return items;
  }
};

}  // namespace

// --- Opening

TEST_F(Projektdatei, AllItemsAreReadIntoTheirFields) {
  ASSERT_TRUE(open_items(english_items()));
  EXPECT_EQ(fields(), english_items());
  EXPECT_EQ(desk.km.z.RefName.empty(), false);
  EXPECT_TRUE(form.HeißGAbt);
}

TEST_F(Projektdatei, OpeningSetsTheWorkingState) {
  form.JG_fertig = true;
  desk.folder.schreib("plants/energk.dat", "\"10\",\".8\",\".3\",\"200\",\".4\"\r\n");
  ASSERT_TRUE(open_items(english_items()));
  EXPECT_EQ(form.Dateiname_aktuell, "a.prj");
  EXPECT_EQ(form.Projektordner, plants());
  EXPECT_EQ(form.Projektname_aktuell, "Header name");
  EXPECT_EQ(form.energie, (Energiedaten{"10", ".8", ".3", "200", ".4"}));
  EXPECT_FALSE(form.JG_fertig);
}

TEST_F(Projektdatei, OpeningDerivesTheNumbers) {
  ASSERT_TRUE(open_items(english_items()));
  EXPECT_EQ(form.ableitung.Wartung_dT, 3);
  EXPECT_EQ(form.ableitung.f_F, 1.12);
  EXPECT_EQ(form.ableitung.pipe, 1);  // 0.5, doubled in a cold room
  EXPECT_EQ(form.ableitung.Isolier_dT, 10);
  EXPECT_EQ(form.ableitung.Bezug, -8);
  EXPECT_DOUBLE_EQ(form.ableitung.Ueberhitzung, 6.4);
}

TEST_F(Projektdatei, ForeignTagIsRefusedAndNothingChanges) {
  ASSERT_TRUE(open_items(english_items()));
  form.JG_fertig = true;
  for (const char* tag : {"DiaG", "KOMP", "", "sim_pro"}) {
    desk.write_project("plants/b.prj", tag, first(3));
    EXPECT_FALSE(form.Projekt_Oeffnen("SIM_PRO", plants("b.prj"))) << tag;
  }
  EXPECT_EQ(fields(), english_items());
  EXPECT_EQ(form.Dateiname_aktuell, "a.prj");
  EXPECT_TRUE(form.JG_fertig);
}

TEST_F(Projektdatei, EmptyTagIsAcceptedForTwoModulesOnly) {
  desk.write_project("plants/b.prj", "", english_items());
  EXPECT_TRUE(form.Projekt_Oeffnen("KOMP", plants("b.prj")));
  EXPECT_TRUE(form.Projekt_Oeffnen("VERB", plants("b.prj")));
  EXPECT_FALSE(form.Projekt_Oeffnen("HeatP", plants("b.prj")));
}

TEST_F(Projektdatei, AbsentFileEmptyFileAndFolderAreRefused) {
  EXPECT_FALSE(form.Projekt_Oeffnen("SIM_PRO", plants("a.prj")));
  EXPECT_FALSE(fs::exists(plants("a.prj")));
  desk.folder.schreib("plants/empty.prj", "");
  EXPECT_FALSE(form.Projekt_Oeffnen("KOMP", plants("empty.prj")));
  fs::create_directory(plants("dir.prj"));
  EXPECT_FALSE(form.Projekt_Oeffnen("SIM_PRO", plants("dir.prj")));
  EXPECT_FALSE(form.Projekt_Oeffnen("SIM_PRO", ""));
}

TEST_F(Projektdatei, BareNameIsSoughtInTheDataFolder) {
  desk.write_project("only-in-data.prj", "SIM_PRO", english_items());
  ASSERT_TRUE(form.Projekt_Oeffnen("SIM_PRO", "only-in-data.prj"));
  EXPECT_EQ(form.Projektordner, "");
  EXPECT_EQ(form.Dateiname_aktuell, "only-in-data.prj");
}

TEST_F(Projektdatei, BareNameIsSoughtInTheCurrentFolderFirst) {
  desk.write_project("a.prj", "SIM_PRO", with(2, "1"));
  desk.write_project("plants/a.prj", "SIM_PRO", with(2, "2"));
  const fs::path before = fs::current_path();
  fs::current_path(plants());
  const bool opened = form.Projekt_Oeffnen("SIM_PRO", "a.prj");
  fs::current_path(before);
  ASSERT_TRUE(opened);
  EXPECT_EQ(form.Q0, "2");
  EXPECT_EQ(form.Projektordner, "./");
}

TEST_F(Projektdatei, BinaryFileIsRefused) {
  std::string bytes;
  for (int i = 0; i < 4096; ++i) bytes += static_cast<char>(i * 37 % 256);
  desk.folder.schreib("plants/a.prj", bytes);
  EXPECT_FALSE(form.Projekt_Oeffnen("SIM_PRO", plants("a.prj")));
}

TEST_F(Projektdatei, BinaryItemsBehindAGoodHeaderDoNoHarm) {
  std::string bytes = "\"n\",\"b\",\"\",\"SIM_PRO\"\r\n";
  for (int i = 0; i < 4096; ++i) bytes += static_cast<char>(i * 41 % 256);
  desk.folder.schreib("plants/a.prj", bytes);
  EXPECT_TRUE(form.Projekt_Oeffnen("SIM_PRO", plants("a.prj")));
}

TEST_F(Projektdatei, HugeFileIsRefused) {
  desk.folder.schreib("plants/a.prj", std::string(100'000'000, 'x'));
  EXPECT_FALSE(form.Projekt_Oeffnen("SIM_PRO", plants("a.prj")));
}

TEST_F(Projektdatei, FileCutOffAtAnyByteOpensOrIsRefused) {
  desk.write_project("whole.prj", "SIM_PRO", english_items());
  const std::string whole = desk.folder.lies("whole.prj");
  const std::size_t header = whole.find('\n') + 1;
  for (std::size_t length = 0; length < whole.size(); length += 7) {
    desk.folder.schreib("plants/a.prj", std::string_view(whole).substr(0, length));
    const bool opened = form.Projekt_Oeffnen("SIM_PRO", plants("a.prj"));
    if (length >= header) {
      EXPECT_TRUE(opened) << length;
      EXPECT_FALSE(form.Combo1.empty());
    }
  }
}

// --- Fallbacks

TEST_F(Projektdatei, OldFileWithoutTheLastItemsTakesTheirFallbacks) {
  ASSERT_TRUE(open_items(first(35)));
  EXPECT_EQ(form.dt_freeC, "5");
  EXPECT_EQ(form.DT_v_combo, "8");
  EXPECT_EQ(form.VERFL_Eff_combo, "B");
  EXPECT_EQ(form.Anlagenart_Combo, "Single-stage - direct expansion");
  EXPECT_EQ(form.Vfl_typ, "Air-cooled");
  // Without items 37 and 38 the header's name and description stand in.
  EXPECT_EQ(form.ProjektNam, "Header name");
  EXPECT_EQ(form.ProBeschr, "Header text");
  // 13 * 1.08 = 14.04 K above the ambient temperature, cut.
  EXPECT_EQ(form.dtVerfl, "14");
  EXPECT_EQ(form.Tc, "49");
}

TEST_F(Projektdatei, OldFileOpenedOverAnotherProjectTakesTheFallbacksToo) {
  ASSERT_TRUE(open_items(english_items()));
  ASSERT_TRUE(open_items(first(20)));
  EXPECT_EQ(form.Combo1, desk.j(48));
  EXPECT_EQ(form.RGartP, desk.j(42));
  EXPECT_EQ(form.RGartL, desk.j(42));
  EXPECT_EQ(form.WaterCheck, "0");
  EXPECT_EQ(form.dt_freeC, "5");
  EXPECT_EQ(form.Vfl_typ, desk.p(27));
  EXPECT_EQ(form.VERFL_Eff_combo, "B");
}

TEST_F(Projektdatei, ShorterFileLeavesTheOtherFieldsAsTheyWere) {
  ASSERT_TRUE(open_items(english_items()));
  ASSERT_TRUE(open_items({"R404A", "80"}));
  EXPECT_EQ(form.KaelteM, "R404A");
  EXPECT_EQ(form.Q0, "80");
  EXPECT_EQ(form.t0, "-10");
  EXPECT_EQ(form.Lueftcap, "2.5");
  EXPECT_EQ(form.Stadt, "Berlin");
}

TEST_F(Projektdatei, EmptyExpansionDeviceAndControlsTakeTheirFallbacks) {
  Items items = english_items();
  for (const std::size_t number : {22U, 25U, 27U}) items[number - 1].clear();
  ASSERT_TRUE(open_items(items));
  EXPECT_EQ(form.Combo1, "Thermostatic expansion valve");
  EXPECT_EQ(form.RGartP, "On/off");
  EXPECT_EQ(form.RGartL, "On/off");
}

TEST_F(Projektdatei, OtherEmptySelectionsStayEmpty) {
  Items items = english_items();
  for (const std::size_t number : {5U, 6U, 8U, 9U, 10U, 11U, 17U, 18U, 30U})
    items[number - 1].clear();
  ASSERT_TRUE(open_items(items));
  EXPECT_EQ(fields(), items);
}

TEST_F(Projektdatei, ReservedItemIsSkipped) {
  ASSERT_TRUE(open_items(with(15, "something")));
  EXPECT_EQ(form.reserviert, "");
}

TEST_F(Projektdatei, EmptyTemperaturesAreDerivedStoredOnesStay) {
  Items items = english_items();
  items[2].clear();
  items[39].clear();
  ASSERT_TRUE(open_items(items));
  EXPECT_EQ(form.t0, "-8");  // -8 + 8 - 8
  EXPECT_EQ(form.Tc, "49");  // 35 + 14
  EXPECT_EQ(form.dtVerfl, "13");
  EXPECT_EQ(form.tambient, "35");
}

TEST_F(Projektdatei, ItemTwentyOneSelectsTheKindOfCalculation) {
  for (const char* zero : {"0", ""}) {
    ASSERT_TRUE(open_items(with(21, zero)));
    EXPECT_EQ(form.Rechart_combo, desk.j(50) + " VDI 2067");
    EXPECT_TRUE(form.Betriebszahlen_wirksam());
  }
  ASSERT_TRUE(open_items(with(21, "1")));
  EXPECT_EQ(form.Rechart_combo,
            desk.j(51) + ": " + desk.c(81) + " " + desk.a(65) + "-" + desk.a(76));
  EXPECT_FALSE(form.Betriebszahlen_wirksam());
}

TEST_F(Projektdatei, UnknownRefrigerantOfAFileIsNotToldWhileLoading) {
  ASSERT_TRUE(open_items(with(1, "R999")));
  EXPECT_TRUE(desk.dialog.texte.empty());
  EXPECT_EQ(desk.km.z.RefName, "R999");
}

// --- Languages

TEST_F(Projektdatei, ProjectOfAnotherLanguageIsTranslatedInMemoryOnly) {
  desk.write_project("plants/a.prj", "SIM_PRO", german_items());
  const std::string before = desk.folder.lies("plants/a.prj");
  ASSERT_TRUE(form.Projekt_Oeffnen("SIM_PRO", plants("a.prj")));
  EXPECT_EQ(fields(), english_items());
  EXPECT_EQ(desk.folder.lies("plants/a.prj"), before);
  ASSERT_TRUE(form.Projekt_Speichern("SIM_PRO", plants()));
  EXPECT_NE(desk.folder.lies("plants/a.prj").find("\"Cold room\""), std::string::npos);
}

TEST_F(Projektdatei, OldFileOfAnotherLanguageTakesTheFallbacksOfThisOne) {
  Items items = german_items();
  items.resize(35);
  ASSERT_TRUE(open_items(items));
  EXPECT_EQ(form.Combo1, "Electronic expansion valve");
  EXPECT_EQ(form.Vfl_typ, "Air-cooled");
}

// --- Saving

TEST_F(Projektdatei, SavedFileHasItsHeaderAndOneItemALine) {
  ASSERT_TRUE(open_items(english_items()));
  ASSERT_TRUE(form.Projekt_Speichern("SIM_PRO", plants()));
  std::string expected = "\"Dairy\",\"Cold store \"\"North\"\", hall 2\",\"\",\"SIM_PRO\"\r\n";
  for (const std::string& item : english_items()) zeile_anhaengen(expected, {item});
  EXPECT_EQ(desk.folder.lies("plants/a.prj"), expected);
}

TEST_F(Projektdatei, SavingWritesTheOperatingFiguresBeside) {
  ASSERT_TRUE(open_items(english_items()));
  form.aendern("betrstd", "12");
  ASSERT_TRUE(form.Projekt_Speichern("SIM_PRO", plants()));
  EXPECT_EQ(desk.folder.lies("plants/energk.dat"), "\"12\",\".9\",\".18\",\"365\",\".58\"\r\n");
  EXPECT_FALSE(desk.folder.da("energk.dat"));
}

TEST_F(Projektdatei, ThirdHeaderItemIsWrittenEmptyWhateverWasRead) {
  desk.write_project("plants/a.prj", "SIM_PRO", english_items(), "third");
  ASSERT_TRUE(form.Projekt_Oeffnen("SIM_PRO", plants("a.prj")));
  ASSERT_TRUE(form.Projekt_Speichern("SIM_PRO", plants()));
  EXPECT_EQ(desk.folder.lies("plants/a.prj").find("third"), std::string::npos);
}

TEST_F(Projektdatei, ReservedItemAndLanguageAreWrittenAsTheyShall) {
  form.reserviert = "x";
  form.Sprache = "FRA";
  form.Dateiname_aktuell = "b.prj";
  ASSERT_TRUE(form.Projekt_Speichern("SIM_PRO", plants()));
  ASSERT_TRUE(form.Projekt_Oeffnen("SIM_PRO", plants("b.prj")));
  EXPECT_EQ(form.reserviert, "");
  EXPECT_EQ(form.Sprache, "ENG");
}

TEST_F(Projektdatei, NumbersStayAsTyped) {
  ASSERT_TRUE(open_items(with(2, "12,50")));
  ASSERT_TRUE(form.Projekt_Speichern("SIM_PRO", plants()));
  ASSERT_TRUE(form.Projekt_Oeffnen("SIM_PRO", plants("a.prj")));
  EXPECT_EQ(form.Q0, "12,50");
}

TEST_F(Projektdatei, SavingElsewhereMakesThatTheProjectFolder) {
  ASSERT_TRUE(open_items(english_items()));
  const std::string other = desk.folder.pfad("other");
  ASSERT_TRUE(form.Projekt_Speichern("SIM_PRO", other));
  EXPECT_TRUE(desk.folder.da("other/a.prj"));
  EXPECT_TRUE(desk.folder.da("other/energk.dat"));
  EXPECT_EQ(form.Projektordner, other + "/");
}

TEST_F(Projektdatei, SaveWithoutAFileNameFails) {
  EXPECT_FALSE(form.Projekt_Speichern("SIM_PRO", plants()));
  EXPECT_FALSE(desk.folder.da("plants"));
}

TEST_F(Projektdatei, FailingSaveLeavesTheOldFileWhole) {
  ASSERT_TRUE(open_items(english_items()));
  const std::string before = desk.folder.lies("plants/a.prj");
  fs::permissions(plants("a.prj"), fs::perms::owner_read);
  form.aendern("Q0", "99");
  EXPECT_FALSE(form.Projekt_Speichern("SIM_PRO", plants()));
  EXPECT_EQ(desk.folder.lies("plants/a.prj"), before);
  EXPECT_FALSE(desk.folder.da("plants/energk.dat"));
  EXPECT_NE(desk.ablage.letzter_fehler(), "");
}

// --- The working project

TEST_F(Projektdatei, WorkingProjectHasNoHeaderAndItsFiguresInTheDataFolder) {
  ASSERT_TRUE(open_items(english_items()));
  form.aendern("betrstd", "12");
  ASSERT_TRUE(form.Arbeitsprojekt_Schreiben());
  std::string expected;
  for (const std::string& item : english_items()) zeile_anhaengen(expected, {item});
  EXPECT_EQ(desk.folder.lies("Temp_Sim.dat"), expected);
  EXPECT_EQ(desk.folder.lies("energk.dat").substr(0, 5), "\"12\",");
  EXPECT_FALSE(desk.folder.da("plants/energk.dat"));
}

TEST_F(Projektdatei, WorkingProjectSurvivesARestart) {
  ASSERT_TRUE(open_items(english_items()));
  form.aendern("betrstd", "12");
  ASSERT_TRUE(form.Arbeitsprojekt_Schreiben());
  Projektdaten next(desk.ablage, desk.captions, desk.km, desk.dialog);
  next.Arbeitsprojekt_Lesen();
  EXPECT_EQ(static_cast<const Projektsatz&>(next), static_cast<const Projektsatz&>(form));
  EXPECT_EQ(next.energie.betrstd, "12");
  EXPECT_EQ(next.Projektordner, "");
}

TEST_F(Projektdatei, FirstStartWithoutAWorkingProjectGivesTheFallbacks) {
  form.Arbeitsprojekt_Lesen();
  EXPECT_EQ(form.Combo1, desk.j(48));
  EXPECT_EQ(form.WaterCheck, "0");
  EXPECT_EQ(form.tambient, "35");
  EXPECT_EQ(form.energie, Energiedaten{});
  EXPECT_EQ(form.Rechart_combo, desk.j(50) + " VDI 2067");
}

TEST_F(Projektdatei, FailingWriteOfTheWorkingProjectIsTold) {
  fs::create_directory(desk.folder.pfad("Temp_Sim.dat"));
  EXPECT_FALSE(form.Arbeitsprojekt_Schreiben());
  EXPECT_NE(desk.ablage.letzter_fehler(), "");
}
