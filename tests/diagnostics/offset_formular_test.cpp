#include "diagnostics/offset_formular.h"

#include <gtest/gtest.h>

#include "shell/wert.h"
#include "support/temp_folder.h"
#include "support/texte.h"

using namespace polarkreis;

namespace {

struct OffsetTest : testing::Test {
  TempOrdner ordner;
  Meldungen meldungen;
  Ablage ablage{ordner.pfad(), meldungen};
  Texte texte;
  Offset formular{ablage, texte.captions};

  /// A row's eight cells, joined.
  std::string zeile(int nummer) const {
    std::string text;
    for (int spalte = 1; spalte <= 8; ++spalte)
      text += (spalte > 1 ? "|" : "") + formular.Offset_Spread(nummer, spalte);
    return text;
  }
  std::string skala(int nummer) const {
    std::string text;
    for (int spalte = 1; spalte <= 4; ++spalte)
      text += (spalte > 1 ? "|" : "") + formular.SP_Spread(nummer, spalte);
    return text;
  }
};

std::string zeilen(int von, int bis) {
  std::string text;
  for (int k = von; k <= bis; ++k) text += "\"" + std::to_string(k) + "\"\r\n";
  return text;
}

TEST_F(OffsetTest, EveryChannelHasItsRow) {
  EXPECT_EQ(zeile(1), "1|DiaGnostics Leitkiste|-1.1|Temperature|PT1000 [°C]|5|0|[K]");
  EXPECT_EQ(zeile(8), "8|DiaGnostics Leitkiste|-1.8|Temperature|PT1000 [°C]|5|0|[K]");
  EXPECT_EQ(zeile(9), "9|DiaGnostics Leitkiste|-1.9|Pressure|bar g [bar g]|1|0|[bar]");
  EXPECT_EQ(zeile(10), "10|DiaGnostics Leitkiste|-1.10|Pressure|bar g [bar g]|1|0|[bar]");
  EXPECT_EQ(zeile(11), "11|DiaGnostics Leitkiste|-1.11|Spannung|Volt [V]|1.4|0|[V]");
  EXPECT_EQ(zeile(13), "13|DiaGnostics Leitkiste|-1.13|Spannung|Volt [V]|1.4|0|[V]");
  EXPECT_EQ(zeile(14), "14|DiaGnostics Leitkiste|-1.14|Stromstärke|Ampere [A]|1.2|0|[A]");
  EXPECT_EQ(zeile(16), "16|DiaGnostics Leitkiste|-1.16|Stromstärke|Ampere [A]|1.2|0|[A]");
  EXPECT_EQ(zeile(17), "17|DiaGnostics Orbiter 1|-2.1|Temperature|PT1000 [°C]|5|0|[K]");
  EXPECT_EQ(zeile(42), "42|DiaGnostics Orbiter 2|-3.10|Pressure|bar g [bar g]|1|0|[bar]");
  EXPECT_EQ(zeile(96), "96|DiaGnostics Orbiter 5|-6.16|Stromstärke|Ampere [A]|1.2|0|[A]");
}

TEST_F(OffsetTest, FreeInputsHaveThreeRowsEach) {
  EXPECT_EQ(skala(0), " Orbiter 1 inX7|Min.|Max.|Units");
  EXPECT_EQ(skala(3), " Orbiter 1 inX8|Min.|Max.|Units");
  EXPECT_EQ(skala(6), " Orbiter 2 inX7|Min.|Max.|Units");
  EXPECT_EQ(skala(9), " Orbiter 2 inX8|Min.|Max.|Units");
  for (int nummer : {1, 2, 4, 5, 7, 8, 10, 11}) EXPECT_EQ(skala(nummer), "|||") << nummer;
}

TEST_F(OffsetTest, TheRowChoosesTheUnits) {
  const std::vector<std::string_view> signal = {"%", "V", "mV", "mA", "Ohm", "mOhm"};
  const std::vector<std::string_view> groesse = {"%", "kg/s", "kg/h", "m³/s", "m³/h"};
  const auto liste = [](int nummer) {
    const auto texte_hier = Offset::Combo2_Liste(nummer);
    return std::vector<std::string_view>(texte_hier.begin(), texte_hier.end());
  };
  for (int nummer : {1, 4, 7, 10}) EXPECT_EQ(liste(nummer), signal) << nummer;
  for (int nummer : {2, 5, 8, 11}) EXPECT_EQ(liste(nummer), groesse) << nummer;
  for (int nummer : {-2, -1, 0, 3, 6, 9, 12, 13}) EXPECT_TRUE(liste(nummer).empty()) << nummer;
}

TEST_F(OffsetTest, TheDropDownWritesTheCellThatItLiesOver) {
  EXPECT_FALSE(formular.Combo2_zeigen(3));
  EXPECT_EQ(formular.Combo2_Zeile, -1);
  formular.Combo2_waehlen("V");
  EXPECT_EQ(skala(3), " Orbiter 1 inX8|Min.|Max.|Units") << "hidden: nothing is chosen";
  EXPECT_TRUE(formular.Combo2_zeigen(4));
  formular.Combo2_waehlen("kg/h");
  EXPECT_EQ(skala(4), "|||") << "no signal comes in kg/h";
  formular.Combo2_waehlen("mA");
  EXPECT_EQ(skala(4), "|||mA");
  EXPECT_EQ(formular.Combo2_Zeile, -1);
}

TEST_F(OffsetTest, HasItsTabsAndClamps) {
  EXPECT_EQ(formular.Reiter_Text(Offset::Offsets), "Calibration");
  EXPECT_EQ(formular.Reiter_Text(Offset::Firmware), "Firmware Leitkiste");
  EXPECT_EQ(formular.Reiter_Text(Offset::COM_Port), "COM Port");
  EXPECT_EQ(formular.Reiter_Text(Offset::Freie_Eingaenge), " inX7/inX8");
  EXPECT_EQ(formular.Upload_Text, "     Upload");
  EXPECT_EQ(Offset::Stromzangen(), (std::vector<std::string>{"Polarkreis DiaGnostics  200A",
                                                             "Polarkreis DiaGnostics  500A",
                                                             "Polarkreis DiaGnostics  1000A"}));
  EXPECT_TRUE(ist_leer(formular.Kalibrier_festleg()));
}

TEST_F(OffsetTest, WritesBothFiles) {
  formular.Offset_Spread(1, Offset::Korrektur) = "0,3";
  formular.Offset_Spread(9, Offset::Korrektur) = "-0.05";
  formular.Offset_Spread(40, Offset::Korrektur) = "";
  formular.Offset_Spread(96, Offset::Korrektur) = "1.25";
  for (int nummer : {1, 2, 4, 5, 7, 8, 10, 11}) {
    formular.SP_Spread(nummer, Offset::SP_Min) = std::to_string(nummer);
    formular.SP_Spread(nummer, Offset::SP_Max) = std::to_string(nummer + 100);
    formular.SP_Spread(nummer, Offset::SP_Units) = nummer % 3 == 1 ? "mA" : "m³/h";
  }
  formular.Monitoring_Check = 1;
  ASSERT_TRUE(formular.Offset_Speich());

  std::string offsets = "\"0,3\"\r\n";
  for (int k = 2; k <= 8; ++k) offsets += "\"0\"\r\n";
  offsets += "\"-0.05\"\r\n";
  for (int k = 10; k <= 39; ++k) offsets += "\"0\"\r\n";
  offsets += "\"\"\r\n";
  for (int k = 41; k <= 95; ++k) offsets += "\"0\"\r\n";
  offsets += "\"1.25\"\r\n";
  EXPECT_EQ(ordner.lies("FMD_OFFS.dat"), offsets);
  EXPECT_EQ(ordner.lies("FMD_SP_CAL.dat"),
            "\"1\"\r\n\"101\"\r\n\"mA\"\r\n\"2\"\r\n\"102\"\r\n\"m³/h\"\r\n"
            "\"4\"\r\n\"104\"\r\n\"mA\"\r\n\"5\"\r\n\"105\"\r\n\"m³/h\"\r\n"
            "\"7\"\r\n\"107\"\r\n\"mA\"\r\n\"8\"\r\n\"108\"\r\n\"m³/h\"\r\n"
            "\"10\"\r\n\"110\"\r\n\"mA\"\r\n\"11\"\r\n\"111\"\r\n\"m³/h\"\r\n"
            "\"1\"\r\n");
}

TEST_F(OffsetTest, ReadsBackWhatItWrote) {
  formular.Offset_Spread(17, Offset::Korrektur) = "0.7";
  formular.SP_Spread(5, Offset::SP_Max) = "1000";
  formular.SP_Spread(5, Offset::SP_Units) = "kg/h";
  formular.Monitoring_Check = 1;
  ASSERT_TRUE(formular.Offset_Speich());
  Offset neu(ablage, texte.captions);
  neu.OFFSET_lad();
  EXPECT_EQ(neu.Offset_Spread, formular.Offset_Spread);
  EXPECT_EQ(neu.SP_Spread, formular.SP_Spread);
  EXPECT_EQ(neu.Monitoring_Check, 1);
}

TEST_F(OffsetTest, AFileOf48LinesLeavesTheRowsBehind) {
  ordner.schreib("FMD_OFFS.dat", zeilen(1, 48));
  formular.Offset_Spread(49, Offset::Korrektur) = "behind";
  formular.OFFSET_lad();
  for (int nummer = 1; nummer <= 48; ++nummer)
    EXPECT_EQ(formular.Offset_Spread(nummer, Offset::Korrektur), std::to_string(nummer));
  EXPECT_EQ(formular.Offset_Spread(49, Offset::Korrektur), "behind");
  EXPECT_EQ(formular.Offset_Spread(96, Offset::Korrektur), "0");
}

TEST_F(OffsetTest, AFileOf96LinesFillsEveryRow) {
  ordner.schreib("FMD_OFFS.dat", zeilen(1, 97));
  formular.OFFSET_lad();
  EXPECT_EQ(formular.Offset_Spread(49, Offset::Korrektur), "49");
  EXPECT_EQ(formular.Offset_Spread(96, Offset::Korrektur), "96");
}

TEST_F(OffsetTest, AFileOfACalibrationRunIsShownAndCompleted) {
  Kanaele kanaele(ablage);
  kanaele.Offset_Wert[4] = -0.4;
  ASSERT_TRUE(kanaele.Offset_Speich());
  formular.OFFSET_lad();
  EXPECT_EQ(formular.Offset_Spread(4, Offset::Korrektur), "-0.4");
  ASSERT_TRUE(formular.Offset_Speich());
  Kanaele neu(ablage);
  neu.Offset_laden();
  EXPECT_EQ(neu.Offset_Wert[4], -0.4);
}

TEST_F(OffsetTest, WithoutFilesTheDefaultsStand) {
  const auto vorher = formular.Offset_Spread;
  const auto skalen_vorher = formular.SP_Spread;
  formular.Offset_Spread(3, Offset::Korrektur) = "7";
  formular.SP_Spread(1, Offset::SP_Max) = "10";
  formular.Monitoring_Check = 1;
  formular.OFFSET_lad();
  EXPECT_EQ(formular.Offset_Spread, vorher);
  EXPECT_EQ(formular.SP_Spread, skalen_vorher);
  EXPECT_EQ(formular.Monitoring_Check, 0);
  EXPECT_TRUE(ordner.namen().empty()) << "reading creates nothing";
}

TEST_F(OffsetTest, AShortFileOfScalingsLeavesWhatLiesBeyond) {
  formular.SP_Spread(1, Offset::SP_Units) = "V";
  formular.Monitoring_Check = 1;
  ordner.schreib("FMD_SP_CAL.dat", "\"4\"\r\n\"20\"\r\n");
  formular.OFFSET_lad();
  EXPECT_EQ(skala(1), "|4|20|V");
  EXPECT_EQ(formular.Monitoring_Check, 1);
}

TEST_F(OffsetTest, AFileThatCannotBeWrittenIsToldAndTheOtherOneIsSaved) {
  ordner.schreib("FMD_OFFS.dat/x", "a folder stands in the way");
  EXPECT_FALSE(formular.Offset_Speich());
  EXPECT_NE(formular.Fehlertext, "");
  EXPECT_TRUE(ordner.lies("FMD_SP_CAL.dat").ends_with("\"0\"\r\n"));
  ordner.schreib("elsewhere", "");
  Ablage andere(ordner.pfad("new"), meldungen);
  Offset gut(andere, texte.captions);
  EXPECT_TRUE(gut.Offset_Speich());
  EXPECT_EQ(gut.Fehlertext, "");
}

TEST(OffsetSprache, KindsFollowTheLanguage) {
  Texte texte("GER");
  Offset formular(texte.ablage, texte.captions);
  EXPECT_EQ(formular.Offset_Spread(1, Offset::Art), texte.captions.text(Caption::Temperatur));
  EXPECT_EQ(formular.Offset_Spread(1, Offset::Art), "Temperatur");
  EXPECT_EQ(formular.Offset_Spread(9, Offset::Art), "Druck");
}

}  // namespace
