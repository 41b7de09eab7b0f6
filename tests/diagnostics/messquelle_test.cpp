#include "diagnostics/messquelle.h"

#include <gtest/gtest.h>

#include "diagnostics/antwort.h"
#include "support/temp_folder.h"

using namespace polarkreis;

namespace {

struct MessquelleTest : testing::Test {
  TempOrdner ordner;
  Meldungen meldungen;
  Ablage ablage{ordner.pfad(), meldungen};
  Messquelle quelle{ablage};

  MessquelleTest() {
    quelle.Pfad = {ordner.pfad("KKP_FMD_TEMP.txt"), ordner.pfad("TK_FMD_TEMP.txt")};
  }
  /// A time stamp and 32 values from `erster` on.
  static std::string datei(int erster) {
    std::string text = "\"02.01.2026 12:05:09\"";
    for (int i = 0; i < 32; ++i) text += ",\"" + std::to_string(erster + i) + "\"";
    return text + "\r\n";
  }
  static std::string antwort(int erster) {
    std::string text;
    for (int i = 0; i < 32; ++i) text += std::to_string(erster + i) + " ";
    return text + " ok";
  }
};

}  // namespace

TEST_F(MessquelleTest, HasTheTwoPathsOfTheControlSystems) {
  EXPECT_EQ(Messquelle(ablage).Pfad[0], "C:\\Daten\\KKP_FMD_TEMP.txt");
  EXPECT_EQ(Messquelle(ablage).Pfad[1], "C:\\TK_output\\TK_FMD_TEMP.txt");
}

TEST_F(MessquelleTest, ProbeOfAnEmptyFileLeavesTheSourceOff) {
  ordner.schreib("KKP_FMD_TEMP.txt", "");
  quelle.Quelle_ISS = Messquelle::aktiv;
  EXPECT_EQ(quelle.Check_ISS_da(0, 1), "");
  EXPECT_EQ(quelle.Quelle_ISS, 0);
}

TEST_F(MessquelleTest, ProbeOfAnAbsentFileLeavesTheSourceOffAndMakesNoFile) {
  quelle.Quelle_ISS = Messquelle::aktiv;
  quelle.Check_ISS_da(0, 2);
  EXPECT_EQ(quelle.Quelle_ISS, 0);
  EXPECT_TRUE(ordner.namen().empty());
}

TEST_F(MessquelleTest, ProbeOfAFileWithContentTurnsTheSourceOn) {
  ordner.schreib("TK_FMD_TEMP.txt", "x");
  EXPECT_EQ(quelle.Check_ISS_da(0, 1), "");
  EXPECT_EQ(quelle.Quelle_ISS, 0);
  EXPECT_EQ(quelle.Check_ISS_da(-1, 2), "");
  EXPECT_EQ(quelle.Quelle_ISS, 111);
}

TEST_F(MessquelleTest, IndexOutside1To5IsAProbeOfItsFile) {
  ordner.schreib("KKP_FMD_TEMP_6.txt", datei(1));
  EXPECT_EQ(quelle.Check_ISS_da(6, 1), "");
  EXPECT_EQ(quelle.Quelle_ISS, 111);
}

TEST_F(MessquelleTest, DropsTheFirstValueAndGivesTheOthersInAReplysGrammar) {
  ordner.schreib("KKP_FMD_TEMP.txt", datei(101));
  EXPECT_EQ(quelle.Check_ISS_da(1, 1), antwort(101));
  EXPECT_TRUE(Antwort_brauchbar(quelle.Check_ISS_da(1, 1)));
  EXPECT_EQ(quelle.Quelle_ISS, 0) << "reading is no probe";
}

TEST_F(MessquelleTest, IndexAbove1StandsBeforeTheExtension) {
  ordner.schreib("KKP_FMD_TEMP.txt", datei(101));
  ordner.schreib("KKP_FMD_TEMP_2.txt", datei(201));
  ordner.schreib("TK_FMD_TEMP_5.txt", datei(501));
  EXPECT_EQ(quelle.Check_ISS_da(2, 1), antwort(201));
  EXPECT_EQ(quelle.Check_ISS_da(5, 2), antwort(501));
}

TEST_F(MessquelleTest, AbsentFileGivesAReplyThatIsNoSample) {
  const std::string text = quelle.Check_ISS_da(3, 1);
  EXPECT_EQ(text, std::string(32, ' ') + " ok");
  EXPECT_FALSE(Antwort_brauchbar(text));
}

TEST_F(MessquelleTest, ShortFileLeavesTheRestEmpty) {
  ordner.schreib("KKP_FMD_TEMP.txt", "\"stamp\",\" 400,5 \",\"3\"\n");
  EXPECT_EQ(quelle.Check_ISS_da(1, 1), "400,5 3 " + std::string(30, ' ') + " ok");
}
