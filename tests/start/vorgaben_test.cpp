#include "shell/start/vorgaben.h"

#include <filesystem>

#include "start_fixture.h"

namespace polarkreis {
namespace {

struct VorgabenDialog : StartTest {
  Vorgaben& form = start.vorgaben;

  void SetUp() override {
    programm.ablage.Datenordner = daten.pfad();
    daten.schreib("JMapOpt.dat", zeilen({"6", "2,5", "", "1.5"}));
    daten.schreib("SubAct.dat", zeilen({"1", "2", "3", "4", "5", "6", "7", "a", "b", "c", "d"}));
    daten.schreib("energk.dat", "\"10\",\"\",\".3\",\"200\",\".4\"\r\n");
    liefere({"Armstd.rdm"});
  }
  static std::string zeilen(std::initializer_list<std::string_view> items) {
    std::string text;
    for (const std::string_view wert : items) zeile_anhaengen(text, {wert});
    return text;
  }
};

TEST_F(VorgabenDialog, ShowsTheStoredValuesAndTheDefaultsOfEmptyItems) {
  form.oeffnen("SIM_PRO");
  EXPECT_TRUE(form.offen);
  EXPECT_TRUE(form.JMapOpt_sichtbar);
  EXPECT_EQ(form.JMapOpt, (std::array<std::string, 4>{"6", "2,5", "1", "1.5"}));
  EXPECT_EQ(form.SubAct, (std::array<std::string, 7>{"1", "2", "3", "4", "5", "6", "7"}));
  EXPECT_EQ(form.energie, (Energiedaten{"10", ".9", ".3", "200", ".4"}));
}

TEST_F(VorgabenDialog, StoresAndKeepsTheLastFourItemsOfTheFile) {
  form.oeffnen("SIM");
  form.JMapOpt[0] = "8";
  form.SubAct[1] = "2.5";
  form.energie.EnergKost = ".22";
  daten.schreib("SubAct.dat", zeilen({"1", "2", "3", "4", "5", "6", "7", "w", "x", "y", "z"}));
  EXPECT_TRUE(form.Command3D2());
  EXPECT_FALSE(form.offen);
  EXPECT_EQ(daten.lies("JMapOpt.dat"), zeilen({"8", "2,5", "1", "1.5"}));
  EXPECT_EQ(daten.lies("SubAct.dat"),
            zeilen({"1", "2.5", "3", "4", "5", "6", "7", "w", "x", "y", "z"}));
  EXPECT_EQ(daten.lies("energk.dat"), "\"10\",\".9\",\".22\",\"200\",\".4\"\r\n");
  EXPECT_EQ(programm.projekt.energie.EnergKost, ".22");
}

TEST_F(VorgabenDialog, ThePressureDifferencesBelongToTheSimulationAlone) {
  const std::string vorher = daten.lies("JMapOpt.dat");
  for (const char* modul : {"DiaG", "MonoF", "KOMP", ""}) {
    form.oeffnen(modul);
    EXPECT_FALSE(form.JMapOpt_sichtbar) << modul;
    form.JMapOpt[0] = "99";
    form.SubAct[0] = modul;
    EXPECT_TRUE(form.Command3D2());
    EXPECT_EQ(daten.lies("JMapOpt.dat"), vorher);
    EXPECT_EQ(item(daten.lies("SubAct.dat"), 1), modul);
  }
}

TEST_F(VorgabenDialog, LeavingWithoutStoringChangesNothing) {
  const std::string vorher = daten.lies("SubAct.dat");
  form.oeffnen("SIM_PRO");
  form.SubAct[0] = "99";
  form.StandardButt();
  form.Command3D3();
  EXPECT_FALSE(form.offen);
  EXPECT_EQ(daten.lies("SubAct.dat"), vorher);
  EXPECT_EQ(item(daten.lies("JMapOpt.dat"), 1), "6");
  form.oeffnen("SIM_PRO");
  EXPECT_EQ(form.SubAct[0], "1");
}

TEST_F(VorgabenDialog, StandardPutsTheFactoryValuesIntoTheFields) {
  // Records of 5 bytes, the n-th holding its own number.
  std::string saetze;
  for (int n = 1; n <= 40; ++n) {
    std::string satz = std::to_string(n);
    satz.resize(5, ' ');
    saetze += satz;
  }
  daten.schreib("Armstd.rdm", saetze);
  form.oeffnen("SIM_PRO");
  form.StandardButt();
  EXPECT_EQ(form.JMapOpt, (std::array<std::string, 4>{"7", "3", "1", "1"}));
  EXPECT_EQ(form.SubAct, (std::array<std::string, 7>{"24", "25", "26", "33", "34", "35", "0"}));
  EXPECT_EQ(form.energie, (Energiedaten{"18", ".9", ".18", "365", ".58"}));
  EXPECT_EQ(item(daten.lies("SubAct.dat"), 1), "1");
}

TEST_F(VorgabenDialog, TheFactoryValuesAreTheDeliveredOnes) {
  std::filesystem::remove(daten.pfad("SubAct.dat"));
  liefere({"SubAct.dat"});
  form.oeffnen("SIM_PRO");
  const auto geliefert = form.SubAct;
  form.SubAct.fill("9");
  form.StandardButt();
  EXPECT_EQ(form.SubAct, geliefert);
}

TEST_F(VorgabenDialog, WithoutStartValuesTheirFieldsStay) {
  std::filesystem::remove(daten.pfad("Armstd.rdm"));
  form.oeffnen("SIM_PRO");
  form.StandardButt();
  EXPECT_EQ(form.SubAct, (std::array<std::string, 7>{"1", "2", "3", "4", "5", "6", "7"}));
  EXPECT_EQ(form.JMapOpt[0], "7");
  EXPECT_FALSE(daten.da("Armstd.rdm"));
}

TEST_F(VorgabenDialog, AnEmptySubActIsCreatedFromTheStartValues) {
  daten.schreib("SubAct.dat", "");
  form.oeffnen("SIM_PRO");
  EXPECT_EQ(form.SubAct[2], "2");
  EXPECT_EQ(form.SubAct[3], "5");
  EXPECT_GT(programm.ablage.Dateigroesse("SubAct.dat"), 0);
}

TEST_F(VorgabenDialog, CostsBelongToTheProjectsFolder) {
  std::filesystem::create_directories(daten.pfad("plants"));
  programm.projekt.Projektordner = daten.pfad("plants/");
  form.oeffnen("SIM_PRO");
  EXPECT_EQ(form.energie, Energiedaten{});
  form.energie.betrstd = "24";
  EXPECT_TRUE(form.Command3D2());
  EXPECT_EQ(item(daten.lies("plants/energk.dat"), 1), "24");
  EXPECT_EQ(item(daten.lies("energk.dat"), 1), "10");
}

TEST_F(VorgabenDialog, AFailingSaveIsToldAndTheDialogStaysOpen) {
  form.oeffnen("SIM_PRO");
  std::filesystem::permissions(daten.pfad("SubAct.dat"), std::filesystem::perms::owner_read);
  form.SubAct[0] = "99";
  EXPECT_FALSE(form.Command3D2());
  EXPECT_TRUE(form.offen);
  EXPECT_EQ(item(daten.lies("SubAct.dat"), 1), "1");
  ASSERT_EQ(dialog.texte.size(), 1u);
  EXPECT_NE(dialog.texte[0].find("SubAct.dat"), std::string::npos);
  EXPECT_EQ(dialog.symbole, std::vector<Symbol>{Symbol::fehler});
}

}  // namespace
}  // namespace polarkreis
