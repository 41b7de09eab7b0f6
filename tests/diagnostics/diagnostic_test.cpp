// The form of the diagnostics: how it begins and ends, and which of its jobs follow one another.

#include "diagnostics/diagnostic.h"

#include <gtest/gtest.h>

#include "diagnostics/diagnostic_desk.h"
#include "diagnostics/messdatei_desk.h"
#include "diagnostics/protokoll.h"

using namespace polarkreis;

namespace {

using Texte = std::vector<std::string>;

struct DiaGnosticForm : testing::Test, DiagnosticDesk {
  /// The working copy of an earlier session: two rows, of a scheme and with a method.
  static Messinhalt arbeitskopie() {
    Messinhalt inhalt;
    inhalt(1) = "Cold store";
    inhalt(3) = "4&$§ENG";
    inhalt(5) = "R134A";
    inhalt(8) = "Two-stage";
    inhalt(9) = "Part load %";
    inhalt.zeile("1", "9");
    inhalt.zeile("1.25", "9.5");
    return inhalt;
  }
  void lege_ab(const Messinhalt& inhalt, const char* name = "FM_diag.dat") const {
    ordner.schreib(name, inhalt.text());
  }
  /// The means of a column: lowest, highest, mean.
  Texte mittelwert(int spalte) const {
    return {m.MittelW_Spread.text(3, spalte), m.MittelW_Spread.text(4, spalte),
            m.MittelW_Spread.text(5, spalte)};
  }
  /// Calls once, when the second sample has been computed.
  void bei_Messwert_2(const std::function<void()>& was) {
    empfaenger.bei_Messwert = [this, was] {
      if (empfaenger.messwerte == 2) was();
    };
  }
};

}  // namespace

// --- The form opens

TEST_F(DiaGnosticForm, OpensWithTheLastState) {
  lege_ab(arbeitskopie());
  form.Form_Load();
  EXPECT_EQ(m.ProjektNam, "Cold store");
  EXPECT_EQ(m.Mess_Zeilen, 4);
  EXPECT_EQ(zelle(Spalte::p0, 4), "1.25");
  EXPECT_TRUE(form.auswahl.Komp2);
  EXPECT_EQ(form.auswahl.Combo3, "Two-stage");
  EXPECT_TRUE(dialog.fragen.empty());
}

TEST_F(DiaGnosticForm, OpensOnAnEmptyFolderWithDefaultsAndWritesNothing) {
  const Texte vorher = ordner.namen();
  form.breiten.Breite.fill(7);
  form.Form_Load();
  EXPECT_EQ(m.Mess_Zeilen, 2);
  EXPECT_EQ(m.Messpunkte(), 0);
  EXPECT_EQ(m.Combo2, "5s");
  EXPECT_EQ(m.OrbiN_spread(5, Einheitentabelle::Einheit), "Orbiter 3");
  EXPECT_EQ(zelle(Spalte::p0, 2), "- 1.9 -");
  EXPECT_EQ(zelle(51, 2), "- 3.1 -");
  EXPECT_EQ(form.breiten.Breite, Spaltenbreiten{}.Breite);
  EXPECT_EQ(ordner.namen(), vorher);
}

TEST_F(DiaGnosticForm, OpensWithTheStoredColumnWidths) {
  std::string text;
  for (int n = 1; n <= 170; ++n) text += "\"" + std::to_string(1000 + n) + "\"\r\n";
  ordner.schreib("Diagopt.dat", text);
  form.Form_Load();
  EXPECT_EQ(form.breiten.Breite[1], 1001);
  EXPECT_EQ(form.breiten.Breite[170], 1170);
}

TEST_F(DiaGnosticForm, OpensWithTheOffsetsOfTheChannels) {
  ordner.schreib("FMD_OFFS.dat", "\"0.5\"\r\n\"-1,25\"\r\n");
  form.Form_Load();
  EXPECT_EQ(form.kanaele.Offset_Wert[1], 0.5);
  EXPECT_EQ(form.kanaele.Offset_Wert[2], -1.25);
}

TEST_F(DiaGnosticForm, OpeningLooksForALogger) {
  logger_anschliessen();
  form.Form_Load();
  EXPECT_EQ(form.logger.COM_Nr, 4);
  EXPECT_EQ(m.Combo6, "COM4");
  EXPECT_TRUE(dialog.texte.empty());
}

TEST_F(DiaGnosticForm, OpeningWithoutALoggerTellsNobody) {
  form.Form_Load();
  EXPECT_EQ(form.logger.COM_Nr, 0);
  EXPECT_EQ(m.Combo6, "???");
  EXPECT_EQ(form.logger.Such_Versuche, 1);
  EXPECT_TRUE(dialog.texte.empty());
}

TEST_F(DiaGnosticForm, FileFedSourceMakesTheSearchNeedless) {
  form.quelle.Pfad = {ordner.pfad("one.txt"), ordner.pfad("two.txt")};
  ordner.schreib("two.txt", "\"12:00:00\"");
  form.Form_Load();
  EXPECT_EQ(form.quelle.Quelle_ISS, Messquelle::aktiv);
  EXPECT_EQ(form.logger.Quelle_Art, 2);
  EXPECT_TRUE(port.ablauf.empty());
  ordner.schreib("one.txt", "\"12:00:00\"");
  EXPECT_TRUE(form.Quelle_suchen());
  EXPECT_EQ(form.logger.Quelle_Art, 1);
}

TEST_F(DiaGnosticForm, SourceThatIsGoneLeavesNone) {
  form.quelle.Pfad = {ordner.pfad("one.txt"), ordner.pfad("two.txt")};
  ordner.schreib("one.txt", "\"12:00:00\"");
  EXPECT_TRUE(form.Quelle_suchen());
  ordner.schreib("one.txt", "");
  EXPECT_FALSE(form.Quelle_suchen());
  EXPECT_EQ(form.quelle.Quelle_ISS, 0);
}

TEST_F(DiaGnosticForm, LastStateOfMoreThanAThousandRowsIsAskedForAndKeptOnNo) {
  Messinhalt inhalt = arbeitskopie();
  inhalt(3) = "1001&$§ENG";
  lege_ab(inhalt);
  dialog.antwort = false;
  form.Form_Load();
  EXPECT_EQ(dialog.fragen, Texte{"Number of measurements Messpunkte =1001?"});
  EXPECT_EQ(m.Mess_Zeilen, 200);
  EXPECT_EQ(m.Messpunkte(), 0);
  EXPECT_EQ(ordner.lies("FM_diag 2026-01-02 12-00-00.fmd"), inhalt.text());
}

// --- Compressor parameters

TEST_F(DiaGnosticForm, ParkGivesSweptVolumeMethodAndKind) {
  ordner.schreib("VerDpark.dat", "\"84,5\"\r\n\"Part load %\"\r\n\"3\"\r\n\"1\"\r\n");
  form.vorbereiten();
  EXPECT_EQ(m.Hub_Volumen, 84.5);
  EXPECT_EQ(m.Combo4, "Part load %");
  EXPECT_EQ(m.Bauart, 3);
  EXPECT_EQ(m.Antrieb, 1);
}

TEST_F(DiaGnosticForm, SenselessParkIsNone) {
  for (const char* zahl : {"", "abc", "-1", "5", "1E300", "1E400", "0"}) {
    const std::string item = "\"" + std::string(zahl) + "\"\r\n";
    ordner.schreib("VerDpark.dat", "\"1E400\"\r\n\"\"\r\n" + item + item);
    form.vorbereiten();
    EXPECT_EQ(m.Bauart, 0) << zahl;
    EXPECT_EQ(m.Antrieb, 0) << zahl;
    EXPECT_EQ(m.Hub_Volumen, 0) << zahl;
  }
}

TEST_F(DiaGnosticForm, MeasurementsMethodComesBeforeTheParks) {
  ordner.schreib("VerDpark.dat", "\"84.5\"\r\n\" Orbiter 1 inX7\"\r\n");
  form.vorbereiten();
  Messinhalt inhalt = arbeitskopie();
  lege_ab(inhalt, "a.fmd");
  form.laden("a.fmd");
  EXPECT_EQ(m.Combo4, "Part load %");
  EXPECT_EQ(m.Hub_Volumen, 84.5);

  form.vorbereiten();
  inhalt(9) = "";
  lege_ab(inhalt, "b.fmd");
  form.laden("b.fmd");
  EXPECT_EQ(m.Combo4, " Orbiter 1 inX7");
}

// --- The form closes

TEST_F(DiaGnosticForm, EndAsksAndStaysOnNo) {
  form.Form_Load();
  const Texte vorher = ordner.namen();
  dialog.antwort = false;
  EXPECT_FALSE(form.endeDiaG(0));
  EXPECT_EQ(dialog.fragen, Texte{"Diagnostics - End?"});
  EXPECT_EQ(ordner.namen(), vorher);
}

TEST_F(DiaGnosticForm, EndStoresTableWidthsAndPark) {
  lege_ab(arbeitskopie());
  form.Form_Load();
  m.Hub_Volumen = 84.5;
  m.Bauart = 3;
  m.Antrieb = 1;
  m.DiaSpread.setze(5, Spalte::p0, "1.5");
  form.breiten.Breite.fill(1234);
  EXPECT_TRUE(form.endeDiaG(1));
  EXPECT_TRUE(dialog.fragen.empty());
  EXPECT_EQ(ordner.lies("VerDpark.dat"), "\"84.5\"\r\n\"Part load %\"\r\n\"3\"\r\n\"1\"\r\n");
  EXPECT_TRUE(ordner.lies("Diagopt.dat").starts_with("\"1234\"\r\n\"1234\"\r\n"));

  DiaGnostic neu(mittel());
  neu.Form_Load();
  EXPECT_EQ(neu.messung.Messpunkte(), 3);
  EXPECT_EQ(neu.messung.DiaSpread.text(5, Spalte::p0), "1.5");
  EXPECT_EQ(neu.messung.ProjektNam, "Cold store");
  EXPECT_EQ(neu.messung.Combo4, "Part load %");
  EXPECT_EQ(neu.messung.Hub_Volumen, 84.5);
  EXPECT_EQ(neu.messung.Bauart, 3);
  EXPECT_EQ(neu.messung.Antrieb, 1);
  EXPECT_EQ(neu.breiten.Breite[170], 1234);
}

TEST_F(DiaGnosticForm, EndStaysWhereTheWorkingCopyCanNotBeWritten) {
  std::filesystem::create_directory(ordner.pfad("FM_diag.dat"));
  EXPECT_FALSE(form.endeDiaG(1));
  EXPECT_FALSE(ablage.letzter_fehler().empty());
  EXPECT_FALSE(ordner.da("Diagopt.dat"));
  EXPECT_FALSE(ordner.da("VerDpark.dat"));
}

TEST_F(DiaGnosticForm, EndDuringARunStopsItAndStays) {
  logger_anschliessen();
  m.Combo5 = "oo";
  bool geendet = true;
  bei_Messwert_2([&] { geendet = form.endeDiaG(1); });
  form.logger.Start_Butt1(Logger::Messen);
  EXPECT_FALSE(geendet);
  EXPECT_EQ(empfaenger.messwerte, 2);
  EXPECT_FALSE(form.logger.belegt());
  EXPECT_TRUE(form.endeDiaG(1));

  DiaGnostic neu(mittel());
  neu.Form_Load();
  EXPECT_EQ(neu.messung.Messpunkte(), 2);
  EXPECT_TRUE(dialog.fragen.empty());
}

// --- Evaluation

TEST_F(DiaGnosticForm, EvaluationComputesRowsAndMeansAndWritesTheProtocol) {
  lege_ab(arbeitskopie(), "a.fmd");
  form.laden("a.fmd");
  ASSERT_TRUE(form.auswerten());
  // Dew points of R134A at 2.013, 2.263 and 10.013 bar.
  EXPECT_NEAR(zahl(Spalte::t0), -9.9, 0.3);
  EXPECT_NEAR(zahl(Spalte::t0, 4), -6.8, 0.3);
  EXPECT_NEAR(zahl(Spalte::tc), 39.4, 0.3);
  EXPECT_EQ(mittelwert(Spalte::p0), (Texte{"1", "1", "1"}));  // the last row is left out
  const std::string protokoll = ordner.lies("ergDiaG.DAT");
  EXPECT_EQ(protokoll, Protokoll_Text(m, captions, form.kern.Funktion,
                                      {form.kern.Summe_Energ, form.kern.Sum_zeit_messung}));
  EXPECT_NE(protokoll.find("\"        Messpunkte§$&2\"\r\n"), std::string::npos);
}

TEST_F(DiaGnosticForm, EvaluationThatIsStoppedWritesNoProtocol) {
  lege_ab(arbeitskopie(), "a.fmd");
  form.laden("a.fmd");
  fortschritt.schritte.clear();
  fortschritt.halt_ab = 2;
  EXPECT_FALSE(form.auswerten());
  EXPECT_FALSE(ordner.da("ergDiaG.DAT"));
}

TEST_F(DiaGnosticForm, EvaluationTellsThatTheProtocolIsRefused) {
  ordner.schreib("ergDiaG.DAT/file", "");  // a folder of that name
  EXPECT_FALSE(form.auswerten());
  EXPECT_FALSE(ablage.letzter_fehler().empty());
}

TEST_F(DiaGnosticForm, EvaluationOfAnEmptyTableHasAProtocol) {
  EXPECT_TRUE(form.auswerten());
  EXPECT_NE(ordner.lies("ergDiaG.DAT").find("Messpunkte§$&0\""), std::string::npos);
}

// --- Imports

TEST_F(DiaGnosticForm, LoggerFileIsComputed) {
  EXPECT_EQ(form.DiaG_import(adc(6), I_Logger).Zeilen, 6);
  EXPECT_EQ(zelle(Spalte::p0), "1");
  EXPECT_NEAR(zahl(Spalte::t0), -9.9, 0.3);
  EXPECT_GT(zahl(Spalte::P_el, 5), 0);
  EXPECT_EQ(mittelwert(Spalte::pc)[2], "9");
}

TEST_F(DiaGnosticForm, ControlSystemsTextIsComputed) {
  std::string text = "\"20.11.2026 16:05:07\"";
  for (int n = 0; n < 32; ++n)
    text += ",\"" + (n < 16 ? laufend()[static_cast<std::size_t>(n)] : "1") + "\"";
  ordner.schreib("control.txt", text + "\r\n");
  EXPECT_EQ(form.DiaG_import(ordner.pfad("control.txt"), I_Steuertext).Zeilen, 1);
  EXPECT_NEAR(zahl(Spalte::tc), 39.4, 0.3);
}

TEST_F(DiaGnosticForm, MonitoringBoxesFileHasTheCaptionsOfItsWiring) {
  form.vorbereiten();
  EXPECT_EQ(zelle(36, 2), "- 2.6 -");
  std::string text;
  for (int n = 0; n < 60; ++n) text += logger_zeile("06:00:00", laufend(), "M\r\n");
  ordner.schreib("log.adc", text);
  ASSERT_GT(form.DiaG_import(ordner.pfad("log.adc"), I_Logger).Zeilen, 0);
  ASSERT_EQ(form.kanaele.Box_Typ, 1);
  EXPECT_EQ(zelle(36, 2), "- 1.5 -");
  EXPECT_EQ(zelle(72, 2), "- 2.6 -");
  lege_ab(arbeitskopie(), "a.fmd");
  form.laden("a.fmd");
  EXPECT_EQ(zelle(36, 2), "- 1.5 -");
}

TEST_F(DiaGnosticForm, ClimaCheckWorksheetIsComputed) {
  Arbeitsmappe& blatt = mappen.mappen["/a.xls"];
  for (int zeile : {25, 26}) {
    blatt.setze(zeile, 4, Zeitwert{46000.25 + zeile / 8640.0});
    blatt.setze(zeile, Zellort_von("G1").spalte, 1.0);
    blatt.setze(zeile, Zellort_von("X1").spalte, 9.0);
  }
  EXPECT_EQ(form.CC_excel_Import("/a.xls").Zeilen, 2);
  EXPECT_NEAR(zahl(Spalte::t0, 4), -9.9, 0.3);
  EXPECT_NEAR(zahl(Spalte::tc, 4), 39.4, 0.3);
}

// 231 V and 10 A in each phase are 6930 VA. The power factor is b - 2/(3·10): 0.93 - 0.0667 for
// drive 1 gives 5982.9 W, 0.805 - 0.0667 for drive 3 gives 5116.65 W, both cut to watts. A sensor
// below -90 °C keeps the kernel from working the power out anew.
TEST_F(DiaGnosticForm, PowerFactorOfAWorksheetIsThatOfTheDrive) {
  Arbeitsmappe& blatt = mappen.mappen["/a.xls"];
  blatt.setze(25, 4, Zeitwert{46000.25});
  for (const char* spannung : {"CH25", "CI25", "CJ25"})
    blatt.setze(25, Zellort_von(spannung).spalte, 231.0);
  for (const char* strom : {"CD25", "CE25", "CF25"})
    blatt.setze(25, Zellort_von(strom).spalte, 10.0);
  blatt.setze(25, Zellort_von("CK25").spalte, -95.0);
  m.Antrieb = 1;
  form.CC_excel_Import("/a.xls");
  EXPECT_EQ(zelle(Spalte::P_el), "5.982");
  m.Antrieb = 3;
  form.CC_excel_Import("/a.xls");
  EXPECT_EQ(zelle(Spalte::P_el), "5.116");
}

TEST_F(DiaGnosticForm, TestoWorksheetIsComputed) {
  Arbeitsmappe& blatt = mappen.mappen["/t.xls"];
  for (int zeile : {3, 4, 5})
    for (int spalte = 4; spalte <= 8; ++spalte) blatt.setze(zeile, spalte, 20.0);
  EXPECT_EQ(form.Testo_Excel_import("/t.xls", 1).Zeilen, 3);
  // Without pressures the atmosphere's 1.013 bar: R134A boils at -26.1 °C.
  EXPECT_NEAR(zahl(Spalte::t0), -26.1, 0.3);
  EXPECT_EQ(mittelwert(Spalte::U_L3)[2], "20");
}

TEST_F(DiaGnosticForm, ImportThatComesToNothingLeavesTheMeasurement) {
  lege_ab(arbeitskopie(), "a.fmd");
  form.laden("a.fmd");
  ASSERT_TRUE(form.auswerten());
  const Skala skala = m.skala;
  const Texte mittelwerte = mittelwert(Spalte::p0);
  EXPECT_FALSE(form.CC_excel_Import("/none.xls").grund.empty());
  EXPECT_FALSE(form.Testo_Excel_import("/none.xls", 1).grund.empty());
  EXPECT_FALSE(form.DiaG_import("/none.adc", I_Logger).grund.empty());
  EXPECT_EQ(m.Messpunkte(), 2);
  EXPECT_EQ(m.skala, skala);
  EXPECT_EQ(mittelwert(Spalte::p0), mittelwerte);
}

// --- While the logger is at work

TEST_F(DiaGnosticForm, TableStaysUnderARun) {
  logger_anschliessen();
  lege_ab(arbeitskopie(), "a.fmd");
  const std::string pfad = adc(5);
  bei_Messwert_2([&] {
    EXPECT_TRUE(form.laden("a.fmd").abgelehnt);
    EXPECT_FALSE(form.auswerten());
    for (const Importergebnis& ergebnis :
         {form.DiaG_import(pfad, I_Logger), form.CC_excel_Import("/a.xls"),
          form.Testo_Excel_import("/t.xls", 1)}) {
      EXPECT_EQ(ergebnis.Zeilen, 0);
      EXPECT_EQ(ergebnis.grund, "The logger is at work: please wait until it is done.");
    }
    EXPECT_EQ(m.Messpunkte(), 2);
  });
  form.logger.Start_Butt1(Logger::Messen);
  EXPECT_GT(empfaenger.messwerte, 2);
  EXPECT_EQ(m.Messpunkte(), empfaenger.messwerte);
  EXPECT_FALSE(ordner.da("ergDiaG.DAT"));
  EXPECT_FALSE(form.laden("a.fmd").abgelehnt);
  EXPECT_EQ(m.Messpunkte(), 2);
}
