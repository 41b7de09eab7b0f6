#include "diagnostics/kanaele.h"

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "shell/wert.h"
#include "support/temp_folder.h"

using namespace polarkreis;

namespace {

struct KanaeleTest : testing::Test {
  TempOrdner ordner;
  Meldungen meldungen;
  Ablage ablage{ordner.pfad(), meldungen};
  Kanaele kanaele{ablage};

  /// Writes the file of the scalings: one channel as told, the others 0 to 1 in "%", then the
  /// switch.
  void schreib_skalierung(int kanal, const Skalierung& skalierung, const std::string& schalter) {
    Eingangsskalierung alle;
    for (Skalierung& k : alle.Kanal) k = {{"0", "1", "%"}, {"0", "1", "%"}};
    alle.Kanal[static_cast<std::size_t>(kanal - 1)] = skalierung;
    alle.Monitoring_Check = schalter;
    ordner.schreib("FMD_SP_CAL.dat", Eingangsskalierung_schreiben(alle));
  }
};

/// Numbers 0.5, 1.5 ... one a line.
std::string offsets(int anzahl) {
  std::string text;
  for (int k = 0; k < anzahl; ++k) text += "\"" + std::to_string(k) + ".5\"\r\n";
  return text;
}

TEST(KanalartVon, FollowsTheOrderOfAReply) {
  const auto e = Kanalart::elektrisch, a = Kanalart::analog, t = Kanalart::Temperatur;
  const auto k = Kanalart::keine;
  const std::vector<Kanalart> erwartet = {
      k,                                               // 0
      e, e, e, e, e, e, a, a, t, t, t, t, t, t, t, t,  // base unit
      e, e, e, e, e, e, a, a, t, t, t, t, t, t, t, t,  // first remote unit
      e, e, e, e, e, e, a, a, t, t, t, t, t, t, t, t,  // second one
      k, k, e, e, e, k};
  for (int position = 0; position <= 54; ++position)
    EXPECT_EQ(Kanalart_von(position), erwartet[static_cast<std::size_t>(position)]) << position;
  EXPECT_EQ(Kanalart_von(-1), k);
}

TEST(PConvert, TurnsAStandardReadingIntoTheRealSensors) {
  EXPECT_EQ(P_convert(50, 4), 100);
  EXPECT_EQ(P_convert(50, 5), 120);
  EXPECT_EQ(P_convert(10, 1), 50);
  EXPECT_EQ(P_convert(10, 0), 50) << "every other kind is as kind 1";
  EXPECT_EQ(P_convert(10, 6), 50);
  EXPECT_EQ(P_convert(0, 1), 0);
}

TEST(PConvert, ReadsNothingBelowZero) {
  for (int kind : {1, 4, 5}) EXPECT_EQ(P_convert(-0.001, kind), 0) << kind;
}

TEST(PConvert, GivesASmallDifferentialPressureInPa) {
  // u = 1/2.5 + 0.5 = 0.9, x = 0.4·0.125 = 0.05 bar = 5000 Pa
  EXPECT_NEAR(P_convert(1, 2), 5000, 1);
  // x = -0.08·0.125 = -0.01 bar
  EXPECT_NEAR(P_convert(-0.2, 2), -1000, 1);
  EXPECT_LT(P_convert(-0.3, 2), -1499) << "the limit itself still counts";
  EXPECT_EQ(P_convert(-0.31, 2), 0);
  EXPECT_EQ(P_convert(1.00001, 2), std::floor(P_convert(1.00001, 2))) << "whole Pa";
}

TEST(PConvert, TurnsBarIntoPa) {
  EXPECT_EQ(P_convert(1.5, 3), 150000);
  EXPECT_EQ(P_convert(-0.5, 3), -50000) << "any value, below 0 too";
  EXPECT_EQ(P_convert(0.0000125, 3), 1) << "cut to whole Pa";
}

TEST(PConvert, CutsToThreeDecimals) {
  // 2.4688 bar as the standard sensor sees it: (2.4688/2.5)·12.5 = 12.344
  EXPECT_NEAR(P_convert(2.46879, 1), 12.343, 1e-9);
  EXPECT_NEAR(P_convert(2.46899, 1), 12.344, 1e-9);
}

TEST(PConvert, TakesAnEmptyNumberForNoPressure) {
  for (int kind : {1, 2, 4, 5}) EXPECT_EQ(P_convert(leer, kind), 0) << kind;
  EXPECT_TRUE(ist_leer(P_convert(leer, 3)));
}

TEST(WandlungTest, DependsOnTheFirstUnitsFunction) {
  for (int position = 0; position <= 54; ++position) {
    const bool remote = position == 23 || position == 24;
    EXPECT_EQ(Wandlung(position, 12), remote ? std::optional(2) : std::nullopt) << position;
    std::optional<int> erwartet;
    if (remote || position == 7) erwartet = 1;
    if (position == 8) erwartet = 4;
    EXPECT_EQ(Wandlung(position, 15), erwartet) << position;
    EXPECT_EQ(Wandlung(position, 26), erwartet) << position;
    for (int code : {0, 1, 2, 3, 4, 8, 9, 10, 11, 13})
      EXPECT_EQ(Wandlung(position, code), std::nullopt) << position << " code " << code;
  }
}

TEST_F(KanaeleTest, PositionsGoToTheirColumns) {
  const std::vector<int> spalten = {
      67,                                                              // 0
      14, 15, 16, 17, 18, 19, 2,  6,  9,  22, 23, 4,  5,  26, 27, 8,   // 1-16
      43, 44, 45, 46, 47, 48, 39, 41, 31, 32, 33, 34, 35, 36, 37, 38,  // 17-32
      63, 64, 17, 18, 19, 68, 59, 61, 51, 52, 53, 54, 55, 56, 57, 58,  // 33-48
      67, 67, 17, 18, 19, 67};                                         // 49-54
  for (int position = 0; position <= 54; ++position)
    EXPECT_EQ(kanaele.Chanel_festleg(position, 1), spalten[static_cast<std::size_t>(position)])
        << position;
  EXPECT_EQ(kanaele.Chanel_festleg(-7, 1), 67);
  EXPECT_EQ(kanaele.Chanel_festleg(99999, 1), 67);
}

TEST_F(KanaeleTest, AMonitoringBoxHasThreeInputsElsewhere) {
  std::vector<int> vorher;
  for (int position = 1; position <= 53; ++position)
    vorher.push_back(kanaele.Chanel_festleg(position, 1));
  kanaele.Box_Typ = 1;
  for (int position = 1; position <= 53; ++position) {
    int erwartet = vorher[static_cast<std::size_t>(position - 1)];
    if (position == 10) erwartet = 36;
    if (position == 11) erwartet = 25;
    if (position == 30) erwartet = 72;
    EXPECT_EQ(kanaele.Chanel_festleg(position, 1), erwartet) << position;
  }
  kanaele.Box_Typ = 2;
  EXPECT_EQ(kanaele.Chanel_festleg(10, 1), 22) << "only class 1 is wired otherwise";
}

TEST_F(KanaeleTest, OtherModesGiveForeignColumnsAndOffsetSlots) {
  const int fremd[] = {9, 4, 5, 8, 16, 17, 20, 21};
  for (int position = 1; position <= 8; ++position)
    EXPECT_EQ(kanaele.Chanel_festleg(position, 2), fremd[position - 1]) << position;
  const int slots[] = {1, 5, 6, 2, 3, 7, 8, 4};
  for (int position = 9; position <= 16; ++position)
    EXPECT_EQ(kanaele.Chanel_festleg(position, 3), slots[position - 9]) << position;
  for (int position : {-1, 0, 9, 16}) EXPECT_EQ(kanaele.Chanel_festleg(position, 2), 0);
  for (int position : {-1, 0, 7, 8, 17, 25}) EXPECT_EQ(kanaele.Chanel_festleg(position, 3), 0);
  for (int mode : {-1, 0, 4}) EXPECT_EQ(kanaele.Chanel_festleg(9, mode), 0);
}

TEST_F(KanaeleTest, AFileOf48OffsetsIsReadAs32) {
  ordner.schreib("FMD_OFFS.dat", offsets(48));
  kanaele.Offset_Wert.fill(-7);
  kanaele.Offset_laden();
  EXPECT_EQ(kanaele.Offset_Wert[0], -7) << "index 0 is not used";
  for (std::size_t slot = 1; slot <= 32; ++slot)
    EXPECT_EQ(kanaele.Offset_Wert[slot], static_cast<double>(slot) - 0.5) << slot;
  for (std::size_t slot = 33; slot <= 48; ++slot)
    EXPECT_EQ(kanaele.Offset_Wert[slot], -7) << slot << " is the second remote unit's";
}

TEST_F(KanaeleTest, AFileOf96OffsetsGivesTheSame32) {
  ordner.schreib("FMD_OFFS.dat", offsets(96));
  kanaele.Offset_laden();
  EXPECT_EQ(kanaele.Offset_Wert[32], 31.5);
  EXPECT_EQ(kanaele.Offset_Wert[33], 0);
}

TEST_F(KanaeleTest, AShortFileLeavesTheSlotsBeyondItsEnd) {
  ordner.schreib("FMD_OFFS.dat", "\"1.5\"\r\n\"-2,5\"\r\nrubbish\r\n");
  kanaele.Offset_Wert.fill(9);
  kanaele.Offset_laden();
  EXPECT_EQ(kanaele.Offset_Wert[1], 1.5);
  EXPECT_EQ(kanaele.Offset_Wert[2], -2.5) << "a decimal comma counts as a point";
  EXPECT_EQ(kanaele.Offset_Wert[3], 0) << "no number is 0";
  EXPECT_EQ(kanaele.Offset_Wert[4], 9);
}

TEST_F(KanaeleTest, ANumberBeyondAllRangeLeavesItsSlot) {
  ordner.schreib("FMD_OFFS.dat", "1E999\n2\n");
  kanaele.Offset_Wert.fill(9);
  kanaele.Offset_laden();
  EXPECT_EQ(kanaele.Offset_Wert[1], 9);
  EXPECT_EQ(kanaele.Offset_Wert[2], 2);
}

TEST_F(KanaeleTest, WithoutAFileAllOffsetsAreZero) {
  for (const char* leere_Datei : {"", "FMD_OFFS.dat"}) {
    if (*leere_Datei != '\0') ordner.schreib(leere_Datei, "");
    kanaele.Offset_Wert.fill(9);
    kanaele.Box_Typ = 1;
    kanaele.Offset_laden();
    for (std::size_t slot = 1; slot <= 48; ++slot) EXPECT_EQ(kanaele.Offset_Wert[slot], 0) << slot;
    EXPECT_EQ(kanaele.Box_Typ, 1) << "the class of the base unit has nothing to do with offsets";
  }
}

TEST_F(KanaeleTest, OffsetsAreWrittenAs48Lines) {
  kanaele.Offset_Wert[1] = 0.25;
  kanaele.Offset_Wert[2] = -1.5;
  kanaele.Offset_Wert[9] = 0.1 + 0.2;
  kanaele.Offset_Wert[48] = 1e-7;
  ASSERT_TRUE(kanaele.Offset_Speich());
  std::string erwartet = "\"0.25\"\r\n\"-1.5\"\r\n";
  for (int slot = 3; slot <= 8; ++slot) erwartet += "\"0\"\r\n";
  erwartet += "\"0.3\"\r\n";
  for (int slot = 10; slot <= 47; ++slot) erwartet += "\"0\"\r\n";
  erwartet += "\"1E-07\"\r\n";
  EXPECT_EQ(ordner.lies("FMD_OFFS.dat"), erwartet);
  EXPECT_EQ(ordner.namen(), std::vector<std::string>{"FMD_OFFS.dat"});
}

TEST_F(KanaeleTest, AFileThatCannotBeWrittenIsTold) {
  ordner.schreib("FMD_OFFS.dat/x", "a folder stands in the way");
  EXPECT_FALSE(kanaele.Offset_Speich());
  EXPECT_NE(ablage.letzter_fehler(), "");
}

TEST_F(KanaeleTest, ScalesAFreeInput) {
  // (1000 - 0)/((10 - 0) - 0) = 100 kg/h a volt
  schreib_skalierung(1, {{"0", "10", "V"}, {"0", "1000", "kg/h"}}, "0");
  EXPECT_EQ(kanaele.Kablib_x7_8(1, 0, 1), 100);
  EXPECT_EQ(kanaele.Kablib_x7_8(2.5, 0, 1), 250);
}

TEST_F(KanaeleTest, TheSignalsMinimumCountsTwice) {
  // (1000 - 0)/((10 - 2) - 2) = 1000/6, and no offset for the minimum
  schreib_skalierung(2, {{"2", "10", "V"}, {"0", "1000", "kg/h"}}, "0");
  EXPECT_DOUBLE_EQ(kanaele.Kablib_x7_8(1, 0, 2), 1000.0 / 6);
  EXPECT_DOUBLE_EQ(kanaele.Kablib_x7_8(2, 0, 2), 2000.0 / 6);
}

TEST_F(KanaeleTest, ThePhysicalMinimumOnlyNarrowsTheRange) {
  // (1000 - 200)/10 = 80; at a signal of 0 the result is 0, not 200
  schreib_skalierung(3, {{"0", "10", "V"}, {"200", "1000", "m³/h"}}, "0");
  EXPECT_EQ(kanaele.Kablib_x7_8(1, 0, 3), 80);
  EXPECT_EQ(kanaele.Kablib_x7_8(0, 0, 3), 0);
}

TEST_F(KanaeleTest, OtherUnitsCountAsPerSecond) {
  for (const char* je_Stunde : {"m³/h", "kg/h", " KG/H "}) {
    schreib_skalierung(4, {{"0", "10", "mA"}, {"0", "5", je_Stunde}}, "0");
    EXPECT_EQ(kanaele.Kablib_x7_8(2, 0, 4), 1) << je_Stunde;
  }
  for (const char* sonst : {"m³/s", "kg/s", "%", ""}) {
    schreib_skalierung(4, {{"0", "10", "mA"}, {"0", "5", sonst}}, "0");
    EXPECT_EQ(kanaele.Kablib_x7_8(2, 0, 4), 3600) << sonst;
  }
}

TEST_F(KanaeleTest, AnOldFilesCubicMetresAreUnderstood) {
  std::string alt;
  for (int zeile = 0; zeile < 4; ++zeile) alt += "0\r\n10\r\nV\r\n0\r\n5\r\nm\xB3/h\r\n";
  ordner.schreib("FMD_SP_CAL.dat", alt + "0\r\n");
  EXPECT_EQ(kanaele.Kablib_x7_8(2, 0, 1), 1) << "the superscript in Windows-1252";
}

TEST_F(KanaeleTest, WithoutAScalingTheResultIsEmpty) {
  EXPECT_TRUE(ist_leer(kanaele.Kablib_x7_8(5, 0, 1))) << "no file: 0/0";
  schreib_skalierung(1, {{"5", "10", "V"}, {"0", "1000", "kg/h"}}, "0");
  EXPECT_TRUE(ist_leer(kanaele.Kablib_x7_8(5, 0, 1))) << "(10 - 5) - 5 = 0";
  for (int kanal : {-1, 0, 5}) EXPECT_TRUE(ist_leer(kanaele.Kablib_x7_8(5, 0, kanal))) << kanal;
  EXPECT_TRUE(ist_leer(kanaele.Kablib_x7_8(leer, 0, 2)));
}

TEST_F(KanaeleTest, AnEditedFileTakesEffectAtTheNextCall) {
  schreib_skalierung(1, {{"0", "10", "V"}, {"0", "1000", "kg/h"}}, "0");
  EXPECT_EQ(kanaele.Kablib_x7_8(1, 0, 1), 100);
  schreib_skalierung(1, {{"0", "10", "V"}, {"0", "2000", "kg/h"}}, "0");
  EXPECT_EQ(kanaele.Kablib_x7_8(1, 0, 1), 200);
}

TEST_F(KanaeleTest, TheSwitchSetsTheClassOfTheBaseUnitAndTheCaption) {
  schreib_skalierung(1, {{"0", "10", "V"}, {"0", "1000", "kg/h"}}, "1");
  EXPECT_EQ(kanaele.Kablib_x7_8(1, 0, 1), 100);
  EXPECT_EQ(kanaele.Box_Typ, 1);
  EXPECT_EQ(kanaele.Label21, "Offline Monitoring Mode");
  schreib_skalierung(1, {{"0", "10", "V"}, {"0", "1000", "kg/h"}}, "0");
  kanaele.Kablib_x7_8(1, 0, 99);
  EXPECT_EQ(kanaele.Box_Typ, 0) << "whatever the channel";
  EXPECT_EQ(kanaele.Label21, "Offline Modus");
}

TEST_F(KanaeleTest, AMissingFileGivesClass0) {
  kanaele.Box_Typ = 1;
  kanaele.Kablib_x7_8(1, 0, 1);
  EXPECT_EQ(kanaele.Box_Typ, 0);
  EXPECT_EQ(kanaele.Label21, "Offline Modus");
  EXPECT_FALSE(ordner.da("FMD_SP_CAL.dat")) << "reading creates nothing";
}

TEST_F(KanaeleTest, AFileThatEndsBeforeTheSwitchLeavesTheClass) {
  std::string kurz;
  for (int zeile = 1; zeile <= 24; ++zeile) kurz += "\"1\"\r\n";
  ordner.schreib("FMD_SP_CAL.dat", kurz);
  kanaele.Box_Typ = 2;
  kanaele.Label21 = "as it was";
  kanaele.Kablib_x7_8(1, 0, 1);
  EXPECT_EQ(kanaele.Box_Typ, 2);
  EXPECT_EQ(kanaele.Label21, "as it was");
}

TEST_F(KanaeleTest, ANonsenseSwitchDoesNoHarm) {
  const Skalierung voll{{"0", "10", "V"}, {"0", "1000", "kg/h"}};
  kanaele.Box_Typ = 2;
  for (const char* schalter : {"1E30", "1E999", "-99999"}) {
    schreib_skalierung(1, voll, schalter);
    EXPECT_EQ(kanaele.Kablib_x7_8(1, 0, 1), 100) << schalter;
    EXPECT_EQ(kanaele.Box_Typ, 2) << schalter;
  }
  schreib_skalierung(1, voll, "yes");
  kanaele.Kablib_x7_8(1, 0, 1);
  EXPECT_EQ(kanaele.Box_Typ, 0);
}

TEST_F(KanaeleTest, TheFirstScalingsCanBeShown) {
  schreib_skalierung(1, {{"4", "20", "mA"}, {"0", "12", "m³/h"}}, "0");
  EXPECT_EQ(kanaele.Skalierungen().Kanal[0], (Skalierung{{"4", "20", "mA"}, {"0", "12", "m³/h"}}));
  EXPECT_EQ(kanaele.Skalierungen().Kanal[1], (Skalierung{{"0", "1", "%"}, {"0", "1", "%"}}));
}

TEST(EingangsskalierungTest, IsWrittenLineByLine) {
  Eingangsskalierung s;
  int n = 0;
  const auto naechster = [&n] {
    const int k = n++;
    return Skalierung::Bereich{std::to_string(10 * k), std::to_string(10 * k + 1), "V"};
  };
  for (Skalierung& kanal : s.Kanal) {
    kanal.Signal = naechster();
    kanal.Groesse = naechster();
  }
  s.Kanal[3].Groesse.Units = "m³/h \"wet\"";
  s.Monitoring_Check = "1";
  const std::string erwartet =
      "\"0\"\r\n\"1\"\r\n\"V\"\r\n\"10\"\r\n\"11\"\r\n\"V\"\r\n"
      "\"20\"\r\n\"21\"\r\n\"V\"\r\n\"30\"\r\n\"31\"\r\n\"V\"\r\n"
      "\"40\"\r\n\"41\"\r\n\"V\"\r\n\"50\"\r\n\"51\"\r\n\"V\"\r\n"
      "\"60\"\r\n\"61\"\r\n\"V\"\r\n\"70\"\r\n\"71\"\r\n\"m³/h \"\"wet\"\"\"\r\n"
      "\"1\"\r\n";
  EXPECT_EQ(Eingangsskalierung_schreiben(s), erwartet);
  Eingangsskalierung zurueck;
  Eingangsskalierung_lesen(erwartet, zurueck);
  EXPECT_EQ(zurueck, s);
}

TEST(EingangsskalierungTest, AShortTextLeavesWhatLiesBeyondItsEnd) {
  Eingangsskalierung s;
  s.Kanal[0].Groesse.Min = "left";
  s.Monitoring_Check = "1";
  Eingangsskalierung_lesen("\"a\"\r\n\"b\"\r\n\"c\"\r\n", s);
  EXPECT_EQ(s.Kanal[0].Signal, (Skalierung::Bereich{"a", "b", "c"}));
  EXPECT_EQ(s.Kanal[0].Groesse.Min, "left");
  EXPECT_EQ(s.Monitoring_Check, "1");
  Eingangsskalierung_lesen(std::nullopt, s);
  Eingangsskalierung leere;
  leere.Monitoring_Check = "0";
  EXPECT_EQ(s, leere);
}

}  // namespace
