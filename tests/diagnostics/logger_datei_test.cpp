#include <gtest/gtest.h>

#include "diagnostics/spalten.h"
#include "logger_desk.h"

using namespace polarkreis;

namespace {

using Texte = std::vector<std::string>;

/// A logger with a file in its memory; it sends it in the given pieces, and counts in one.
struct LoggerDatei : testing::Test, LoggerDesk {
  std::string liste = "REC1.adc 2026-01-02 12:05: ";
  Texte stuecke;

  LoggerDatei() {
    logger.COM_Nr = 4;
    logger.Text2 = "REC1.adc";
    messung.Combo7 = "19200";
    port.geraete[4] = [this](const std::string& befehl) -> Texte {
      if (befehl == "ls\r") return {liste};
      if (befehl == "up-c aaaa.adc\r") {
        Texte gezaehlt{"x"};  // the first read is thrown away
        gezaehlt.insert(gezaehlt.end(), stuecke.begin(), stuecke.end());
        return gezaehlt;
      }
      if (befehl == "up aaaa.adc\r") return stuecke;
      return {};
    };
  }
  /// A line of the file: its stamp of 20 characters, and the fields.
  static std::string zeile(const std::string& zeit, const std::string& felder) {
    return "02.01.2026  " + zeit + felder + "\r\n";
  }
  static std::string zeilen(int anzahl) {
    std::string text;
    for (int i = 0; i < anzahl; ++i) text += zeile("12:05:09", "\t230\t231");
    return text;
  }
  void erwarte_leere_Tabelle() const { EXPECT_FALSE(messung.DiaSpread.gefuellt(3)); }
};

}  // namespace

TEST_F(LoggerDatei, ListNamesAreCutAtTheirExtensions) {
  liste = "REC1.adc 1024 02.01.2026 12:05: notes.txt 2026 08:00:  LAST.adc";
  logger.COM_Port_FMD_Import();
  EXPECT_EQ(logger.List1, (Texte{"REC1.adc", "notes.txt", "LAST.adc"}));
  EXPECT_EQ(port.ablauf, (Texte{"open 4 19200,N,8,1", "wait 50", "write ls\r", "wait 100", "read",
                                "wait 50", "read", "close", "wait 100", "wait 5", "wait 5"}));
  EXPECT_TRUE(dialog.texte.empty());
}

TEST_F(LoggerDatei, ListNamesLoseTheLinesAndBlanksAround) {
  liste = "ls\r\n REC1.adc 12:05:09\r\nREC2.adc 12:06:09\r\n";
  logger.COM_Port_FMD_Import();
  EXPECT_EQ(logger.List1, (Texte{"REC1.adc", "REC2.adc"}));
}

TEST_F(LoggerDatei, LongListComesPieceByPiece) {
  port.geraete[4] = [](const std::string&) {
    return Texte{"REC1.adc 2026 12:05: RE", "C2.adc 2026 12:05: "};
  };
  logger.COM_Port_FMD_Import();
  EXPECT_EQ(logger.List1, (Texte{"REC1.adc", "REC2.adc"}));
}

TEST_F(LoggerDatei, ListIsAskedForUpToSixTimes) {
  int gefragt = 0;
  port.geraete[4] = [&](const std::string&) {
    return ++gefragt == 6 ? Texte{"REC1.adc"} : Texte{};
  };
  logger.COM_Port_FMD_Import();
  EXPECT_EQ(logger.List1, Texte{"REC1.adc"});
  gefragt = 6;
  logger.COM_Port_FMD_Import();
  EXPECT_EQ(gefragt, 12);
  EXPECT_EQ(logger.List1, Texte{});
  EXPECT_EQ(dialog.texte, Texte{Kein_Geraet});
}

TEST_F(LoggerDatei, ListWithoutAPortIsNoDevice) {
  logger.COM_Nr = 0;
  logger.COM_Port_FMD_Import();
  EXPECT_EQ(dialog.texte, Texte{Kein_Geraet});
  EXPECT_TRUE(port.ablauf.empty());
}

TEST_F(LoggerDatei, DownloadWritesItsCommandsInTwoPasses) {
  stuecke = {zeilen(2)};
  EXPECT_EQ(logger.COM_import(), 2);
  EXPECT_EQ(port.ablauf, (Texte{"open 4 19200,N,8,1", "wait 50", "write ls\r", "wait 100", "read",
                                "wait 50", "read", "close",
                                // counting
                                "open 4 19200,N,8,1", "wait 50", "write mv REC1.adc aaaa.adc\r",
                                "read", "write up-c aaaa.adc\r", "wait 25", "read", "read",
                                "wait 25", "read", "wait 25", "close",
                                // the rows
                                "open 4 19200,N,8,1", "wait 100", "write up aaaa.adc\r", "wait 50",
                                "read", "wait 50", "read", "wait 50", "close"}));
  EXPECT_FALSE(logger.ADC_PN);
  EXPECT_EQ(messung.Mess_Zeilen, 2);
  EXPECT_EQ(messung.DiaSpread.Zeilenzahl(), 22);
}

TEST_F(LoggerDatei, FieldsGoToTheColumnsOfPositions1To16) {
  std::string felder;
  for (int position = 1; position <= 18; ++position) felder += "\t" + std::to_string(position);
  stuecke = {zeile("12:05:09", felder) + zeile("12:05:14", "\t\t\t230\t 231.5 \t\t232")};
  logger.COM_import();
  EXPECT_EQ(zelle(Spalte::Zeit), "12:05:09");
  const std::map<int, int> spalten = {{1, 14}, {4, 17}, {7, 2},   {8, 6},
                                      {9, 9},  {12, 4}, {15, 27}, {16, 8}};
  for (const auto& [position, spalte] : spalten) EXPECT_EQ(zelle(spalte), std::to_string(position));
  EXPECT_EQ(zelle(Spalte::von(Spalte::E_U_L1, 1)), "") << "position 17";
  EXPECT_EQ(zelle(Spalte::Zeit, 4), "12:05:14");
  EXPECT_EQ(zelle(Spalte::U_L1, 4), "230");
  EXPECT_EQ(zelle(Spalte::U_L2, 4), "231.5");
  EXPECT_EQ(zelle(Spalte::U_L3, 4), "232");
  EXPECT_EQ(logger.Zeit_Text, "12:05:14");
}

TEST_F(LoggerDatei, StampOf19CharactersAndATabIsReadAsWell) {
  stuecke = {"02.01.2026 12:05:09\t230\t231\r\n"};
  logger.COM_import();
  EXPECT_EQ(zelle(Spalte::Zeit), "12:05:09");
  EXPECT_EQ(zelle(Spalte::U_L1), "230");
}

TEST_F(LoggerDatei, MonitoringBoxHasItsOwnWiring) {
  kanaele.Box_Typ = 1;
  stuecke = {zeile("12:05:09", "\t1\t2\t3\t4\t5\t6\t7\t8\t9\t10\t11")};
  logger.COM_import();
  EXPECT_EQ(zelle(36), "10");
  EXPECT_EQ(zelle(Spalte::Fluss_Verfl), "11");
}

TEST_F(LoggerDatei, LinesMayBeCutAnywhere) {
  const std::string ganz = zeile("12:05:09", "\t230\t231") + zeile("12:05:14", "\t232\t233") +
                           zeile("12:05:19", "\t234");
  for (std::size_t schnitt = 1; schnitt < ganz.size(); ++schnitt) {
    stuecke = {ganz.substr(0, schnitt), ganz.substr(schnitt)};
    ASSERT_EQ(logger.COM_import(), 3) << schnitt;
    EXPECT_EQ(messung.Mess_Zeilen, 3) << schnitt;
    ASSERT_EQ(zelle(Spalte::Zeit, 4), "12:05:14") << schnitt;
    ASSERT_EQ(zelle(Spalte::U_L2, 4), "233") << schnitt;
    ASSERT_EQ(zelle(Spalte::U_L1, 5), "234") << schnitt;
  }
}

TEST_F(LoggerDatei, EchoOfTheCommandIsPassedOver) {
  stuecke = {"up aaaa.adc\r" + zeile("12:05:09", "\t230")};
  EXPECT_EQ(logger.COM_import(), 1);
  EXPECT_EQ(zelle(Spalte::Zeit), "12:05:09");
  EXPECT_EQ(zelle(Spalte::U_L1), "230");
}

TEST_F(LoggerDatei, SixHundredLinesAreTaken) {
  stuecke = {zeilen(600)};
  EXPECT_EQ(logger.COM_import(), 600);
  EXPECT_EQ(messung.Mess_Zeilen, 600);
  EXPECT_EQ(messung.DiaSpread.Zeilenzahl(), 620);
}

TEST_F(LoggerDatei, MoreThan600LinesEndTheTransfer) {
  stuecke = {zeilen(400), zeilen(201), zeilen(5)};
  EXPECT_EQ(logger.COM_import(), -1);
  EXPECT_EQ(messung.Messpunkte(), 600);
  EXPECT_EQ(port.ablauf.back(), "close");
}

TEST_F(LoggerDatei, ErrorEndsATransferAndTheRowsSoFarRemain) {
  stuecke = {zeilen(2), zeilen(1) + "err", "or: memory\r\n" + zeilen(4), zeilen(4)};
  EXPECT_EQ(logger.COM_import(), 3);
  EXPECT_EQ(messung.Messpunkte(), 3);
  EXPECT_EQ(messung.Mess_Zeilen, 3);
}

TEST_F(LoggerDatei, RowsThatTheCountMissedAreInUseAll) {
  // Without a first piece to throw away, the count loses the file's first three lines.
  port.geraete[4] = [this](const std::string& befehl) -> Texte {
    if (befehl == "ls\r") return {liste};
    if (befehl.starts_with("up")) return {zeilen(3), zeilen(1)};
    return {};
  };
  EXPECT_EQ(logger.COM_import(), 4);
  EXPECT_EQ(messung.Mess_Zeilen, 4);
}

TEST_F(LoggerDatei, NoiseWithoutLinesEnds) {
  int gelesen = 0;
  port.geraete[4] = [&](const std::string& befehl) -> Texte {
    if (befehl == "ls\r") return {liste};
    ++gelesen;
    return Texte(1000, std::string(1000, '?'));
  };
  EXPECT_EQ(logger.COM_import(), 0);
  erwarte_leere_Tabelle();
  EXPECT_EQ(messung.Mess_Zeilen, 2);
  EXPECT_LT(port.ablauf.size(), 200U);
}

TEST_F(LoggerDatei, ErrorInTheListIsNoDeviceAndTheTableStays) {
  messung.DiaSpread.setze(3, Spalte::Zeit, "08:00:00");
  for (const char* antwort : {"error: no card\r\n", ""}) {
    liste = antwort;
    dialog.texte.clear();
    messung.Combo6 = "COM4";
    EXPECT_EQ(logger.COM_import(), 0);
    EXPECT_EQ(dialog.texte, Texte{Kein_Geraet});
    EXPECT_EQ(messung.Combo6, "???");
    EXPECT_TRUE(logger.ADC_PN);
    EXPECT_EQ(zelle(Spalte::Zeit), "08:00:00");
  }
}

TEST_F(LoggerDatei, DownloadReplacesTheTable) {
  messung.DiaSpread.setze(3, Spalte::Zeit, "08:00:00");
  messung.DiaSpread.setze(9, Spalte::Zeit, "07:00:00");
  stuecke = {zeilen(1)};
  logger.COM_import();
  EXPECT_EQ(messung.Messpunkte(), 1);
  EXPECT_EQ(zelle(Spalte::Zeit, 9), "");
}

TEST_F(LoggerDatei, NameIsTrimmed) {
  logger.Text2 = "  REC1.adc ";
  stuecke = {zeilen(1)};
  logger.COM_import();
  EXPECT_EQ(zahl_im_Ablauf("write mv REC1.adc aaaa.adc\r"), 1);
}

TEST_F(LoggerDatei, ListAndFileCanBeAskedForOnTheirOwn) {
  std::string text;
  EXPECT_EQ(logger.Port_einlesen("", 0, text), 0);
  EXPECT_EQ(text, liste);
  stuecke = {zeilen(2)};
  EXPECT_EQ(logger.Port_einlesen("REC1.adc", 1, text), 2);
  EXPECT_EQ(messung.Messpunkte(), 2);
}
