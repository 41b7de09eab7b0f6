#include <gtest/gtest.h>

#include "diagnostics/spalten.h"
#include "logger_desk.h"

using namespace polarkreis;

namespace {

using Texte = std::vector<std::string>;

struct QuellenLauf : testing::Test, LoggerDesk {
  QuellenLauf() {
    quelle.Quelle_ISS = Messquelle::aktiv;
    quelle.Pfad[0] = ordner.pfad("feed.txt");
    std::string text = "\"12:05:09\"";
    for (const char* wert :
         {"230", "231", "232", "10", "10", "10", "1", "9", "36", "12", "7", "-4"})
      text += std::string(",\"") + wert + "\"";
    for (int i = 0; i < 20; ++i) text += ",\"20\"";
    ordner.schreib("feed.txt", text);
  }
};

}  // namespace

TEST_F(QuellenLauf, IsPort78AndAsksNoLine) {
  logger.Start_Butt1(Logger::Messen);
  EXPECT_EQ(logger.COM_Nr, 78);
  EXPECT_EQ(messung.Combo6, "COM 78");
  EXPECT_EQ(logger.Start_Fehler, 78);
  EXPECT_EQ(empfaenger.messwerte, 13);
  EXPECT_TRUE(port.befehle().empty());
  EXPECT_EQ(logger.Start_BUTT_l.Caption, "GO");
}

TEST_F(QuellenLauf, ReplyBelow25CharactersIsNoSource) {
  ordner.schreib("feed.txt", "\"12:05:09\"");
  logger.Start_Butt1(Logger::Messen);
  EXPECT_EQ(logger.COM_Nr, 0);
  EXPECT_EQ(messung.Combo6, "???");
  EXPECT_EQ(dialog.texte, Texte{Kein_Geraet});
  EXPECT_EQ(empfaenger.messwerte, 0);
}

TEST_F(QuellenLauf, SourceThatVanishesIsALostDevice) {
  empfaenger.bei_Messwert = [this] {
    if (empfaenger.messwerte == 2) std::filesystem::remove(ordner.pfad("feed.txt"));
  };
  logger.Start_Butt1(Logger::Messen);
  EXPECT_EQ(messung.Mess_Zeilen, 4);
  EXPECT_EQ(messung.Combo6, "???");
}

TEST_F(QuellenLauf, TableIsCutToThePlannedCountLess10) {
  datei.Arbeitskopie.clear();
  messung.Combo2 = "1s";
  messung.Combo5 = "0.5 min";  // 30 planned, 31 taken; cut at 20
  logger.Start_Butt1(Logger::Messen);
  EXPECT_EQ(empfaenger.messwerte, 31);
  EXPECT_EQ(messung.Mess_Zeilen, 21);
  EXPECT_EQ(messung.DiaSpread.Zeilenzahl(), 21);
  EXPECT_EQ(messung.Messpunkte(), 19);
}

TEST_F(QuellenLauf, TableIsNotCutBelowRow3) {
  datei.Arbeitskopie.clear();
  logger.Start_Butt1(Logger::Messen);  // 12 planned
  EXPECT_EQ(messung.Mess_Zeilen, 15);
  messung.DiaG_zurueck_setz();
  messung.Combo2 = "1s";
  messung.Combo5 = "oo";
  empfaenger.bei_Messwert = [this] {
    if (empfaenger.messwerte == 13 + 40) logger.Start_Butt1(Logger::Messen);
  };
  logger.Start_Butt1(Logger::Messen);
  EXPECT_EQ(messung.Mess_Zeilen, 42);
}
