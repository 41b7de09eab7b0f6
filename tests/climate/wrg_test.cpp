#include "climate/wrg.h"

#include <gtest/gtest.h>

#include "climate_desk.h"

using namespace polarkreis;

namespace {

struct WrgTest : testing::Test {
  ClimateDesk desk;
  WRG form{desk.ablage, desk.captions};
  const std::string ten_blanks = "\"\",\"\",\"\",\"\",\"\",\"\",\"\",\"\",\"\",\"\"\r\n";
  const std::string default_file =
      quoted_lines({"15", "6", "6", "Heating oil", ".55", "10.5", "2.66", "90", "8"}) + ten_blanks +
      quoted_lines({".55", ".71", ".26", ".14", "Heating oil", "Standard boiler",
                    "Distribution moderately insulated"});

  std::string fuel(int n) const {
    return desk.captions.text(Stamm::heatcap, static_cast<int>(Heatcap::Heizoel) + n - 1);
  }
  std::string boiler(int n) const {
    return desk.captions.text(Stamm::heatcap, static_cast<int>(Heatcap::Kessel_alt) + n - 1);
  }
  std::string distribution(int n) const {
    return desk.captions.text(Stamm::heatcap, static_cast<int>(Heatcap::Verteilung_gut) + n - 1);
  }
};

TEST_F(WrgTest, MissingFileIsCreatedWithItsDefaults) {
  form.sicherstellen();
  EXPECT_EQ(desk.folder.lies("SPEZBK.DAT"), default_file);
  const Heizdaten run = form.heizdaten();
  EXPECT_EQ(run.T_Kaltwasser, 15);
  EXPECT_EQ(run.dT_WW, 6);
  EXPECT_EQ(run.dT_Heiz, 6);
  EXPECT_EQ(run.Brennstoff, "Heating oil");
  EXPECT_EQ(run.Preis, .55);
  EXPECT_EQ(run.Heizwert, 10.5);
  EXPECT_EQ(run.CO2, 2.66);
  EXPECT_EQ(run.Wirkungsgrad, 90);
  EXPECT_EQ(run.Verlust, 8);
}

TEST_F(WrgTest, EmptyFileIsReplacedAndAFullOneKept) {
  desk.folder.schreib("SPEZBK.DAT", "");
  form.sicherstellen();
  EXPECT_EQ(desk.folder.lies("SPEZBK.DAT"), default_file);
  const std::string own = quoted_lines({"10", "4", "5"});
  desk.folder.schreib("SPEZBK.DAT", own);
  form.sicherstellen();
  EXPECT_EQ(desk.folder.lies("SPEZBK.DAT"), own);
}

TEST_F(WrgTest, RunTakesAnEmptyItemAsItsDefault) {
  desk.folder.schreib("SPEZBK.DAT", quoted_lines({"10,5", "", "5", " ", "", "9.85", "", "", "11"}));
  const Heizdaten run = form.heizdaten();
  EXPECT_EQ(run.T_Kaltwasser, 10.5);
  EXPECT_EQ(run.dT_WW, 6);
  EXPECT_EQ(run.dT_Heiz, 5);
  EXPECT_EQ(run.Brennstoff, "Heating oil");
  EXPECT_EQ(run.Preis, .55);
  EXPECT_EQ(run.Heizwert, 9.85);
  EXPECT_EQ(run.CO2, 2.66);
  EXPECT_EQ(run.Wirkungsgrad, 90);
  EXPECT_EQ(run.Verlust, 11);
}

TEST_F(WrgTest, UnreadableNumberIsZero) {
  desk.folder.schreib("SPEZBK.DAT", quoted_lines({"cold", "6", "6"}));
  EXPECT_EQ(form.heizdaten().T_Kaltwasser, 0);
}

TEST_F(WrgTest, DialogReadsWhatItWroteBehindTheTenBlanks) {
  form.WRG_laden();
  form.tWasser = "12";
  form.dt_WTenth = "5,5";
  form.DT_verfl = "7";
  form.Combo3_1 = fuel(2);
  form.Combo1_1 = boiler(4);
  form.Combo2_1 = distribution(3);
  form.Text11_14 = {".9", "1,1", ".3", ".35"};
  form.WirkGK = "101";
  form.Verlust = "9";
  EXPECT_TRUE(form.WRG_speichern());
  EXPECT_EQ(desk.folder.lies("SPEZBK.DAT"),
            quoted_lines({"12", "5,5", "7", fuel(2), "1,1", "9.85", "2.02", "101", "9"}) +
                ten_blanks +
                quoted_lines({".9", "1,1", ".3", ".35", fuel(2), boiler(4), distribution(3)}));
  WRG again(desk.ablage, desk.captions);
  again.WRG_laden();
  EXPECT_EQ(again.tWasser, "12");
  EXPECT_EQ(again.dt_WTenth, "5,5");
  EXPECT_EQ(again.DT_verfl, "7");
  EXPECT_EQ(again.Text11_14, form.Text11_14);
  EXPECT_EQ(again.WirkGK, "101");
  EXPECT_EQ(again.Verlust, "9");
  EXPECT_EQ(again.Brennstoff_Nummer(), 2);
  EXPECT_EQ(again.Kessel_Nummer(), 4);
  EXPECT_EQ(again.Verteilung_Nummer(), 3);
}

TEST_F(WrgTest, DialogOpensOnTheDefaultsWithoutAFile) {
  form.WRG_laden();
  EXPECT_EQ(form.tWasser, "15");
  EXPECT_EQ(form.Text11_14, (std::array<std::string, 4>{".55", ".71", ".26", ".14"}));
  EXPECT_EQ(form.Brennstoff_Nummer(), 1);
  EXPECT_EQ(form.Kessel_Nummer(), 2);
  EXPECT_EQ(form.Verteilung_Nummer(), 2);
}

TEST_F(WrgTest, FuelTable) {
  const double heat[] = {10.5, 9.85, 5.6, 1};
  const double co2[] = {2.66, 2.02, .2, .58};
  for (int n = 1; n <= 4; ++n) {
    EXPECT_EQ(form.Heizwert(n, 1), heat[n - 1]);
    EXPECT_EQ(form.Heizwert(n, 2), co2[n - 1]);
  }
  EXPECT_TRUE(ist_leer(form.Heizwert(1, 3)));
}

TEST_F(WrgTest, ElectricitysCo2IsTheEnergyFilesFifthItem) {
  desk.folder.schreib("energk.dat", "\"18\",\".9\",\".18\",\"365\",\"0,41\"\r\n");
  EXPECT_EQ(form.Heizwert(4, 2), .41);
  desk.folder.schreib("energk.dat", "\"18\",\".9\",\".18\",\"365\",\"\"\r\n");
  EXPECT_EQ(form.Heizwert(4, 2), .58);
  desk.folder.schreib("projects/energk.dat", "\"18\",\".9\",\".18\",\"365\",\"0.3\"\r\n");
  form.Energiedatei = desk.folder.pfad("projects/energk.dat");
  EXPECT_EQ(form.Heizwert(4, 2), .3);
}

TEST_F(WrgTest, FifthFuelHasNoFigures) {
  for (const int other : {0, 5, -1}) {
    EXPECT_TRUE(ist_leer(form.Heizwert(other, 1)));
    EXPECT_TRUE(ist_leer(form.Heizwert(other, 2)));
  }
  form.WRG_laden();
  form.Combo3_1 = "Peat";
  EXPECT_EQ(form.Brennstoff_Nummer(), 0);
  form.WRG_speichern();
  EXPECT_TRUE(desk.folder.lies("SPEZBK.DAT")
                  .starts_with(quoted_lines({"15", "6", "6", "Peat", "", "", "", "90", "8"})));
}

TEST_F(WrgTest, ProposedEfficiency) {
  const double pellets[] = {80, 75, 80, 85, 88};
  const double others[] = {90, 80, 90, 96, 105};
  for (int kind = 0; kind <= 4; ++kind) {
    form.Combo1_1 = kind == 0 ? "none of these" : boiler(kind);
    for (const int n : {1, 2, 4}) {
      form.Combo3_1 = fuel(n);
      EXPECT_EQ(form.WirkGK_vorschlag(), others[kind]) << kind << " " << n;
    }
    form.Combo3_1 = fuel(3);
    EXPECT_EQ(form.WirkGK_vorschlag(), pellets[kind]) << kind;
  }
}

TEST_F(WrgTest, FourthBoilerWithTheFirstFuelProposes105) {
  form.WRG_laden();
  form.Combo1_1 = boiler(4);
  form.Auswahl_geaendert();
  EXPECT_EQ(form.WirkGK, "105");
  EXPECT_EQ(form.Verlust, "8");
}

TEST_F(WrgTest, ProposedLossComesWithTheEfficiency) {
  const double loss[] = {8, 6, 8, 12};
  for (int n = 0; n <= 3; ++n) {
    form.WRG_laden();
    form.Combo2_1 = n == 0 ? "none of these" : distribution(n);
    form.WirkGK = "50";
    EXPECT_EQ(form.Verlust_vorschlag(), loss[n]);
    EXPECT_EQ(Wert(form.Verlust), loss[n]);
    EXPECT_EQ(form.WirkGK, "90");
  }
}

TEST_F(WrgTest, FileThatCannotBeWrittenIsTold) {
  form.WRG_laden();
  std::filesystem::remove(desk.folder.pfad("SPEZBK.DAT"));
  std::filesystem::create_directory(desk.folder.pfad("SPEZBK.DAT"));
  EXPECT_FALSE(form.WRG_speichern());
}

TEST(WrgGerman, DefaultsCarryTheLanguagesWords) {
  ClimateDesk desk("GER");
  WRG form(desk.ablage, desk.captions);
  form.sicherstellen();
  EXPECT_EQ(form.heizdaten().Brennstoff, desk.captions.text(Heatcap::Heizoel));
}

}  // namespace

TEST(WRGDialog, OkHandsTheHeatingFieldsToTheProjectAndStores) {
  ClimateDesk desk;
  WRG wrg(desk.ablage, desk.captions);
  std::string Q_heat = "20", T_heat = "45";
  wrg.oeffnen(Q_heat, T_heat);
  EXPECT_EQ(wrg.Qheiz, "20");
  EXPECT_EQ(wrg.T_vorl, "45");
  wrg.Qheiz = "25";
  wrg.T_vorl = "35";
  wrg.tWasser = "12";
  ASSERT_TRUE(wrg.OKbutt(Q_heat, T_heat));
  EXPECT_EQ(Q_heat, "25");
  EXPECT_EQ(T_heat, "35");
  EXPECT_EQ(wrg.heizdaten().T_Kaltwasser, 12);
}
