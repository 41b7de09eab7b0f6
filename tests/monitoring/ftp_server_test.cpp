// The desk itself: opening and closing, pages, lists.

#include <gtest/gtest.h>

#include <memory>

#include "ftp_desk.h"
#include "monitoring/route.h"

using namespace polarkreis;

namespace {

struct FtpServerTest : testing::Test, FtpDesk {};

const Zeilen kKaeltemittel = {
    "CO2",   "AMMONIAK", "PROPAN", "PROPYLEN", "HFO1234YF", "HFO1234ZE", "R13B1",  "R123",  "R124",
    "R134a", "R152a",    "R227",   "R290",     "R401A",     "R401B",     "R402A",  "R402B", "R403B",
    "R404A", "R407A",    "R407C",  "R407F",    "R408A",     "R409A",     "R410A",  "R413A", "R417A",
    "R422A", "R422D",    "R427A",  "R437A",    "R438A",     "R448A",     "R449A",  "R450A", "R452A",
    "R502",  "R507",     "R508A",  "R508B",    "R513A",     "R600a",     "R717",   "R723",  "R744",
    "R1270", "FX_90",    "ISC_29", "ISC_49",   "ISC_59",    "ISC_69L",   "ISC_79", "ISC_89"};

}  // namespace

TEST_F(FtpServerTest, OpeningMakesTheFolderAndReadsTheRegister) {
  ordner.schreib("FMD_M_Global.ini", zeilen({"K17", "Kühlhaus"}));
  desk.Oeffnen();
  EXPECT_TRUE(desk.offen);
  EXPECT_EQ(modus(ordner.pfad("FMD_Temp")), 0700U);
  EXPECT_EQ(zelle(1, Registerspalte::nm), "Kühlhaus");
  EXPECT_EQ(desk.KalenderSpread[0][0], "1");
  EXPECT_EQ(desk.FTPSpread_Kopf[0], "Frigmont Monitoring ID");
  EXPECT_EQ(klient.rufe, Zeilen{});
  EXPECT_EQ(dialog.texte, Zeilen{});
}

TEST_F(FtpServerTest, OpeningWithoutARegisterMakesNone) {
  desk.Oeffnen();
  desk.Activate();
  EXPECT_EQ(ordner.namen(), (Zeilen{"FMD_Temp", "ftp_default.ini"}));
  EXPECT_EQ(dialog.texte, Zeilen{});
}

TEST_F(FtpServerTest, ComingToTheFrontNeitherReadsNorWrites) {
  desk.Oeffnen();
  ordner.schreib("FMD_Global.ini", "\"x\"\r\n");
  desk.Activate();
  EXPECT_EQ(ordner.lies("FMD_Global.ini"), "\"x\"\r\n");
  EXPECT_TRUE(desk.FTPSpread.ist_leer(1));
}

TEST_F(FtpServerTest, ListsAreNotLongerAfterOpeningTwice) {
  desk.Oeffnen();
  desk.Command3D2();
  desk.Oeffnen();
  EXPECT_EQ(desk.time_combo.size(), 25U);
  EXPECT_EQ(desk.fn_Liste, kKaeltemittel);
  EXPECT_EQ(desk.nt_Liste.size(), 16U);
}

TEST_F(FtpServerTest, SaveButtonSavesAndTheDeskStaysOpen) {
  desk.Oeffnen();
  anlage(1, "K17");
  EXPECT_TRUE(desk.SpeichButt());
  EXPECT_TRUE(desk.offen);
  EXPECT_TRUE(ordner.lies("FMD_M_Global.ini").starts_with("\"K17\"\r\n\"\"\r\n"));
  EXPECT_EQ(modus(ordner.pfad("FMD_M_Global.ini")), 0600U);
}

TEST_F(FtpServerTest, ClosingWithSavingKeepsTheChanges) {
  desk.Oeffnen();
  anlage(1, "K17");
  EXPECT_TRUE(desk.Command3D1());
  EXPECT_FALSE(desk.offen);
  EXPECT_TRUE(ordner.lies("FMD_M_Global.ini").starts_with("\"K17\"\r\n"));
}

TEST_F(FtpServerTest, DeskStaysOpenIfTheRegisterCantBeWritten) {
  desk.Oeffnen();
  anlage(1, "K17");
  std::filesystem::create_directory(ordner.pfad("FMD_M_Global.ini"));
  EXPECT_FALSE(desk.SpeichButt());
  EXPECT_FALSE(desk.Command3D1());
  EXPECT_TRUE(desk.offen);
  EXPECT_EQ(zelle(1, Registerspalte::ID), "K17");
}

TEST_F(FtpServerTest, ClosingWithoutSavingLosesTheChanges) {
  ordner.schreib("FMD_M_Global.ini", zeilen({"K17", "old"}));
  desk.Oeffnen();
  desk.FTPSpreadText(1, 2, "new");
  desk.Command3D2();
  EXPECT_FALSE(desk.offen);
  EXPECT_EQ(ordner.lies("FMD_M_Global.ini"), zeilen({"K17", "old"}));
  desk.Oeffnen();
  EXPECT_EQ(zelle(1, Registerspalte::nm), "old");
}

TEST_F(FtpServerTest, CellsChangedWithoutSavingAreNotThereAfterReopening) {
  ordner.schreib("FMD_M_Global.ini", zeilen({"K17"}));
  desk.Oeffnen();
  desk.FTPSpreadText(50, 2, "unsaved");
  desk.Command3D2();
  desk.Oeffnen();
  EXPECT_EQ(desk.FTPSpread.zelle(50, 2), "");
}

TEST_F(FtpServerTest, BothWaysOfClosingCloseTheHandles) {
  for (const bool sichern : {true, false}) {
    desk.Oeffnen();
    anlage(1, "K17");
    desk.set_upload();
    EXPECT_EQ(klient.offene.size(), 2U);
    klient.rufe.clear();
    if (sichern)
      EXPECT_TRUE(desk.Command3D1());
    else
      desk.Command3D2();
    EXPECT_TRUE(klient.offene.empty());
    ASSERT_EQ(klient.rufe.size(), 2U);
    EXPECT_TRUE(klient.rufe[0] > klient.rufe[1]);  // the connection's number is the higher one
  }
}

TEST_F(FtpServerTest, ObjectsEndClosesTheHandles) {
  auto andere = std::make_unique<ftp_server>(ablage, texte.captions, dialog, klient);
  andere->FTPSpread.setze(1, Registerspalte::Server_Wahl, "1");
  andere->set_upload();
  EXPECT_EQ(klient.offene.size(), 2U);
  andere.reset();
  EXPECT_TRUE(klient.offene.empty());
}

TEST_F(FtpServerTest, HeadingsOfTheRegister) {
  desk.start_caption();
  const std::pair<Registerspalte, const char*> feste[] = {
      {Registerspalte::ID, "Frigmont Monitoring ID"},
      {Registerspalte::st, "Straße"},
      {Registerspalte::nu, "Hausnummer"},
      {Registerspalte::co, "Postleitzahl"},
      {Registerspalte::tw, "Stadt"},
      {Registerspalte::th, "Threshold / [kW]"},
      {Registerspalte::s1, "SMS 1 :"},
      {Registerspalte::s2, "SMS 2 :"},
      {Registerspalte::ml, "E-Mail :"},
      {Registerspalte::ip, "FTP IP(xxx.yyy.xx.yy):"},
      {Registerspalte::dr, "FTP IP(xxx.yyy.xx.yy):"},
      {Registerspalte::us, "FTP user :"},
      {Registerspalte::pw, "FTP password :"},
      {Registerspalte::nt, "nt="}};
  const auto kopf = [this](Registerspalte spalte) {
    return desk.FTPSpread_Kopf[static_cast<std::size_t>(spalte) - 1];
  };
  for (const auto& [spalte, text] : feste) EXPECT_EQ(kopf(spalte), text);
  for (const Registerspalte spalte : {Registerspalte::nm, Registerspalte::ad, Registerspalte::fn})
    EXPECT_NE(kopf(spalte), "");
  EXPECT_TRUE(kopf(Registerspalte::pu).ends_with(" Start / [min]"));
  EXPECT_TRUE(kopf(Registerspalte::pd).ends_with(" Stop / [min]"));
  EXPECT_GT(kopf(Registerspalte::pu).size(), std::string(" Start / [min]").size());
  EXPECT_EQ(desk.FTPSpread_Kopf[20], "");
}

TEST_F(FtpServerTest, HeadingsOfTheRules) {
  desk.start_caption();
  const auto& kopf = desk.AlertSpread_Kopf;
  EXPECT_EQ(kopf[0], "ON/OFF");
  EXPECT_EQ(kopf[1], "CH1");
  EXPECT_EQ(kopf[2], "");
  EXPECT_EQ(kopf[3], "CH2");
  EXPECT_EQ(kopf[4], "=,>,<");
  EXPECT_EQ(kopf[5], "Alarme");
  EXPECT_EQ(kopf[6], "Zeitverzögerung Alarme");
  EXPECT_TRUE(kopf[7].ends_with(" Alarme"));
  EXPECT_GT(kopf[7].size(), std::string(" Alarme").size());
}

TEST_F(FtpServerTest, RefrigerantsAndRoutesToChooseFrom) {
  desk.start_caption();
  EXPECT_EQ(desk.fn_Liste, kKaeltemittel);
  EXPECT_EQ(Zeilen(Monitoring_Kaeltemittel().begin(), Monitoring_Kaeltemittel().end()),
            kKaeltemittel);
  EXPECT_EQ(desk.nt_Liste, Routen(texte.captions));
}

TEST(FtpServerSprache, NoneIsTheCaptionOfTheLanguage) {
  FtpDesk deutsch("GER");
  deutsch.desk.Oeffnen();
  EXPECT_EQ(deutsch.desk.nt_Liste.at(0), "ohne");
  deutsch.anlage(1, "K17");
  deutsch.desk.FTPSpread.setze(1, Registerspalte::nt, "ohne");
  deutsch.desk.handle_settings(1);
  EXPECT_EQ(deutsch.desk.nt_edit, "ohne");
  EXPECT_TRUE(deutsch.desk.Einstellsatz().ends_with("\"nt=0;\"\r\n"));
}

TEST_F(FtpServerTest, CalendarShows31DaysInRowsOfSeven) {
  desk.Kalender(1);
  int tag = 0;
  for (const auto& woche : desk.KalenderSpread)
    for (const std::string& feld : woche) {
      ++tag;
      EXPECT_EQ(feld, tag <= 31 ? std::to_string(tag) : "");
    }
  for (const auto& [reihe, erster] : {std::pair{0, "1"}, {1, "8"}, {2, "15"}, {3, "22"}, {4, "29"}})
    EXPECT_EQ(desk.KalenderSpread[static_cast<std::size_t>(reihe)][0], erster);
}

TEST_F(FtpServerTest, TimeRangesBeginWithTheWholeDay) {
  desk.Kalender(1);
  desk.Kalender(1);
  if (desk.time_combo.empty()) desk.start_caption();
  Zeilen erwartet = {" 0 - 24h"};
  for (int i = 1; i <= 24; ++i) erwartet.push_back(std::to_string(i) + "h");
  EXPECT_EQ(desk.time_combo, erwartet);
}

TEST_F(FtpServerTest, PageIsFilledWhenItIsEntered) {
  desk.Oeffnen();
  anlage(4, "K17");
  desk.FTPSpread.setze(4, Registerspalte::nm, "Kühlhaus");
  desk.FTPSpread.setze(4, Regelspalte(2), "vl=45;");
  desk.Tab_Select(1);
  EXPECT_EQ(desk.SSTab1, 1);
  EXPECT_EQ(desk.nm_edit, "Kühlhaus");
  EXPECT_EQ(desk.AlertSpread[1][Regelzeile::vl], "");
  desk.Tab_Select(2);
  EXPECT_EQ(desk.SSTab1, 2);
  EXPECT_EQ(desk.AlertSpread[1][Regelzeile::vl], "45");
  desk.KalenderSpread[0][0] = "x";
  desk.Tab_Select(3);
  EXPECT_EQ(desk.SSTab1, 3);
  EXPECT_EQ(desk.KalenderSpread[0][0], "1");
}

TEST_F(FtpServerTest, ReturningToThePageShowsTheTableAgain) {
  desk.Oeffnen();
  anlage(1, "K17");
  desk.Tab_Select(1);
  desk.nm_edit = "not stored";
  desk.Tab_Select(2);
  desk.Tab_Select(1);
  EXPECT_EQ(desk.nm_edit, "");
}

TEST_F(FtpServerTest, CellOfARuleOpensItsList) {
  desk.Oeffnen();
  desk.Tab_Select(2);
  desk.AlertSpreadEdit(static_cast<int>(Regelzeile::cm), 3);
  EXPECT_TRUE(desk.Alert_Combo.sichtbar);
  EXPECT_FALSE(desk.AlertSpreadText.sichtbar);
  EXPECT_EQ(desk.Alert_Combo.Zeile, 5);
  EXPECT_EQ(desk.Alert_Combo.Spalte, 3);
  EXPECT_EQ(desk.Alert_Combo.Liste, Regelauswahl(texte.captions, Regelzeile::cm));
  desk.Alert_Combo_Click(2);
  EXPECT_EQ(desk.AlertSpread[2][Regelzeile::cm], "<=");
  EXPECT_FALSE(desk.Alert_Combo.sichtbar);
}

TEST_F(FtpServerTest, LimitAndDelayAreTyped) {
  desk.Oeffnen();
  desk.Tab_Select(2);
  for (const Regelzeile zeile_ : {Regelzeile::vl, Regelzeile::ti}) {
    desk.AlertSpread[15][zeile_] = "4";
    desk.AlertSpreadEdit(static_cast<int>(zeile_), 16);
    EXPECT_TRUE(desk.AlertSpreadText.sichtbar);
    EXPECT_FALSE(desk.Alert_Combo.sichtbar);
    EXPECT_EQ(desk.AlertSpreadText.Text, "4");
    desk.AlertSpreadText_Change("-1,5 K");
    EXPECT_EQ(desk.AlertSpread[15][zeile_], "-1,5 K");
  }
}

TEST_F(FtpServerTest, CellOutsideTheRulesOpensNothing) {
  desk.Oeffnen();
  desk.Tab_Select(2);
  for (const auto& [zeile_, spalte] : {std::pair{0, 1}, {9, 1}, {1, 0}, {1, 17}, {-1, -1}}) {
    desk.AlertSpreadEdit(zeile_, spalte);
    EXPECT_FALSE(desk.Alert_Combo.sichtbar);
    EXPECT_FALSE(desk.AlertSpreadText.sichtbar);
  }
}

TEST_F(FtpServerTest, EntryOutsideTheListChangesNothing) {
  desk.Oeffnen();
  desk.Tab_Select(2);
  desk.AlertSpread[0][Regelzeile::en] = "ON";
  for (const int eintrag : {-1, 2, 99}) {
    desk.AlertSpreadEdit(1, 1);
    desk.Alert_Combo_Click(eintrag);
    EXPECT_EQ(desk.AlertSpread[0][Regelzeile::en], "ON");
  }
}

TEST_F(FtpServerTest, AnotherPageHidesTheOpenEditors) {
  desk.Oeffnen();
  desk.Tab_Select(2);
  desk.AlertSpreadEdit(1, 1);
  desk.Tab_Select(3);
  EXPECT_FALSE(desk.Alert_Combo.sichtbar);
  desk.AlertSpreadEdit(6, 1);
  desk.HideComponents();
  EXPECT_FALSE(desk.AlertSpreadText.sichtbar);
}
