#include "simulation/ergebnis.h"

#include "simulation/bericht.h"
#include "werkstatt.h"

using namespace polarkreis;

namespace {

/// A finished run with round totals, so that each result can be worked out by hand.
class Ergebnisse : public ::testing::Test {
 protected:
  Werkstatt w;
  Laufergebnis lauf;

  Ergebnisse() {
    lauf.ende = Laufende::fertig;
    lauf.art = {1, "SEER/SEPR"};
    lauf.anlage.ableitung.f_F = 1;
    lauf.anlage.WaterCheck = false;
    lauf.Q_WW_Tag = 50;
    Jahressummen& s = lauf.summen;
    s.E_Verd = 80000;
    s.E_Abtau = 4000;
    s.E_VFl_Luefter = 6000;
    s.E_VDa_Luefter = 8000;
    s.E_Pumpe = 2000;
    s.COP_Sum = 24000;
    s.Vollast_Tage = 6000;
    s.COP_min = 2.5;
    s.COP_max = 6.1;
    s.Wasser_Adiabat = 123456;
    s.E_FreeCool_Spar = 25000;
    s.Q_Wasser = 12000;
    s.Q_Heiz = 9000;
    s.Q_Heiz_Bedarf = 10000;
  }
  Ergebnis fuelle() { return Ergebnis_fuellen(w.projekt, lauf); }
};

}  // namespace

// 80000 of 100000 kWh are the compressors': SCOP = 0.8 * 24000/6000.
TEST_F(Ergebnisse, SeasonalFigureIsTheMeanCOPTimesTheCompressorsShare) {
  const Ergebnis e = fuelle();
  EXPECT_DOUBLE_EQ(e.Anteil, 0.8);
  EXPECT_DOUBLE_EQ(e.SCOP, 3.2);
  EXPECT_DOUBLE_EQ(e.LeistZ, 3.2);
  lauf.summen.COP_Sum = 24087;  // 0.8 * 4.0145 = 3.2116
  EXPECT_DOUBLE_EQ(fuelle().LeistZ, 3.21);
  lauf.summen.COP_Sum = 24092;  // 3.21227 -> 3.21; 24120 -> 3.216 -> 3.22
  EXPECT_DOUBLE_EQ(fuelle().LeistZ, 3.21);
  lauf.summen.COP_Sum = 24120;
  EXPECT_DOUBLE_EQ(fuelle().LeistZ, 3.22);
}

// 100000 kWh at 0.18 and 0.5 kg: 18000, 50 t; 18000/(3.2 * 100000) = 0.05625.
TEST_F(Ergebnisse, YearsCostAndCarbonDioxide) {
  w.projekt.energie.Spezco2emission = ".5";
  const Ergebnis e = fuelle();
  EXPECT_EQ(e.kWstunden, 100000);
  EXPECT_EQ(e.BetrKo, 18000);
  EXPECT_EQ(e.co2consum, 50);
  EXPECT_EQ(e.Kaelte_P, 0.056);
}

TEST_F(Ergebnisse, ChargeFactorRaisesTheCompressorsEnergyOnly) {
  lauf.anlage.ableitung.f_F = 1.25;
  const Ergebnis e = fuelle();
  EXPECT_EQ(e.kWstunden, 120000);
  EXPECT_DOUBLE_EQ(e.Anteil_Verd, 83.33);
  EXPECT_DOUBLE_EQ(e.Anteil_VFl, 5);
  EXPECT_DOUBLE_EQ(e.SCOP, 3.2);
}

TEST_F(Ergebnisse, SharesAreCutToTwoDecimals) {
  lauf.summen.E_Pumpe = 2333;
  const Ergebnis e = fuelle();
  EXPECT_EQ(e.kWstunden, 100333);
  EXPECT_DOUBLE_EQ(e.Anteil_Pumpe, 2.32);  // 2.32526
  EXPECT_DOUBLE_EQ(e.Anteil_Abtau, 3.98);  // 3.98672
  EXPECT_DOUBLE_EQ(e.Anteil_VDa, 7.97);    // 7.97345
  EXPECT_DOUBLE_EQ(e.Wasser_m3, 123.4);    // 123456 kg
}

// 25000 of what the year would have used: 100000 + 25000.
TEST_F(Ergebnisse, FreeCoolingShareRefersToTheYearWithoutIt) {
  EXPECT_DOUBLE_EQ(fuelle().Anteil_FreeCool, 20);
}

TEST_F(Ergebnisse, SavingsNeedHeatRecovery) {
  const Ergebnis e = fuelle();
  EXPECT_TRUE(ist_leer(e.WRGspar));
  EXPECT_TRUE(ist_leer(e.WRgCO2));
  EXPECT_TRUE(ist_leer(e.Anteil_WW));
  EXPECT_TRUE(ist_leer(e.Anteil_Heiz));
}

// 12000 kWh of 50 a day: 65.75 %; 12000/10.5 = 1142.857 l at 0.55 and 2.66 kg.
TEST_F(Ergebnisse, HotWaterSavesFuel) {
  lauf.anlage.WaterCheck = true;
  const Ergebnis e = fuelle();
  EXPECT_DOUBLE_EQ(e.Anteil_WW, 65.7);
  EXPECT_DOUBLE_EQ(e.WRGspar, 628.57);
  EXPECT_DOUBLE_EQ(e.WRgCO2, 3.04);
}

// 9000/10.5 = 857.142857
TEST_F(Ergebnisse, HeatingSavesFuel) {
  lauf.anlage.HeizCheck = true;
  const Ergebnis e = fuelle();
  EXPECT_DOUBLE_EQ(e.Anteil_Heiz, 90);
  EXPECT_DOUBLE_EQ(e.WRGspar, 471.42);
  EXPECT_DOUBLE_EQ(e.WRgCO2, 2.28);  // 2280.0 kg, cut
}

TEST_F(Ergebnisse, BothSaveTheirSum) {
  lauf.anlage.WaterCheck = lauf.anlage.HeizCheck = true;
  EXPECT_DOUBLE_EQ(fuelle().WRGspar, 1100);  // 21000/10.5 * .55
}

// 24000 of 18250 kWh: 131.5 %; 24000/10.5 * .55 = 1257.14, times 100/131.5 = 956.
TEST_F(Ergebnisse, MoreHotWaterThanNeededIsScaledBack) {
  lauf.anlage.WaterCheck = true;
  lauf.summen.Q_Wasser = 24000;
  const Ergebnis e = fuelle();
  EXPECT_DOUBLE_EQ(e.Anteil_WW, 131.5);
  EXPECT_DOUBLE_EQ(e.WRGspar, Int(100 * 1257.14 * 100 / 131.5) / 100);
  EXPECT_DOUBLE_EQ(e.WRgCO2, Int(100 * 6.08 * 100 / 131.5) / 100);
}

namespace {

class Auslegung : public Ergebnisse {
 protected:
  Auslegung() {
    lauf.art = {0, "ESEER"};
    lauf.auslegung.P = 40;
    lauf.auslegung.COP = 3.129;
  }
};

}  // namespace

// 40 kW * 18 h * 365 d * 0.9 = 236520 kWh; * 0.18 = 42573.6; * 0.58 = 137181.6 kg
TEST_F(Auslegung, CostOverTheOperatingHours) {
  const Ergebnis e = fuelle();
  EXPECT_EQ(e.kWstunden, 236520);
  EXPECT_EQ(e.BetrKo, 42573);
  EXPECT_EQ(e.co2consum, 137.181);
  EXPECT_EQ(e.LeistZ, 3.12);
  EXPECT_EQ(e.Kaelte_P, 0.057);  // 0.18/3.129 = 0.0575
  EXPECT_TRUE(ist_leer(e.SCOP));
}

// The charge factor enters hours and load factor: 40 * 18*1.12 * 365 * 0.9*1.12.
TEST_F(Auslegung, ChargeFactorEntersHoursAndLoad) {
  lauf.anlage.ableitung.f_F = 1.12;
  EXPECT_EQ(fuelle().kWstunden, 296690);  // 236520 * 1.2544 = 296690.688
}

TEST_F(Auslegung, SpeedControlRunsAllDay) {
  lauf.anlage.RGart = Regelart::Drehzahl;
  EXPECT_EQ(fuelle().kWstunden, 315360);
}

TEST_F(Ergebnisse, TableHasALinePerConsumerAndPerUseOfHeat) {
  lauf.anlage.WaterCheck = true;
  const Ergebnis e = fuelle();
  const auto zeilen = ERG_Spread(w.projekt, lauf, e);
  ASSERT_EQ(zeilen.size(), 9u);
  EXPECT_EQ(zeilen[0].bezeichnung, "Compressor energy");
  EXPECT_EQ(zeilen[0].wert, "80000");
  EXPECT_EQ(zeilen[0].einheit, "kWh");
  EXPECT_EQ(zeilen[0].anteil, "80 %");
  EXPECT_EQ(zeilen[5].wert, "123.4");
  EXPECT_EQ(zeilen[5].einheit, "m³");
  EXPECT_EQ(zeilen[5].anteil, "");
  EXPECT_EQ(zeilen[6].wert, "12000");
  EXPECT_EQ(zeilen[6].anteil, "65.7 %");
  EXPECT_EQ(zeilen[7].wert, "0");
  EXPECT_EQ(zeilen[8].anteil, "20 %");
}

namespace {

const std::string lineal = "        " + std::string(155, '-') + "\r\n";

}  // namespace

TEST_F(Ergebnisse, ReportBeginsWithItsHeadingBetweenRulers) {
  w.projekt.Rechart_combo = "Annual run: Rating January-December";
  const std::string text = Bericht_Text(w.projekt, lauf, fuelle(), "EUR");
  EXPECT_TRUE(text.starts_with(lineal + "        &$$Annual run: Rating January-December\r\n" +
                               lineal +
                               "        Application :§$&Cold room\r\n"
                               "        Temperature range :§$&Medium temperature\r\n"
                               "        Plant size :§$&medium/ 120 kW\r\n"
                               "        Climate class :§$&normal/ 35 °C\r\n" +
                               lineal + lineal +
                               "        &$$Evaporator\r\n"
                               "        Size of the evaporator :§$&medium\r\n"
                               "        Evaporating temperature :§$&-8 °C\r\n"
                               "        Evaporator fans :§$&3.2 kW\r\n" +
                               lineal + "        &$$Condenser Air-cooled\r\n"))
      << text;
  EXPECT_NE(text.find("        Germany :§$&Cologne\r\n"
                      "        SEER/SEPR :  3.2 /  COP min/max [2.5 /6.1]\r\n"
                      "        Price of energy :§$&.18 EUR/kWh\r\n"
                      "        Spez. Emission CO2 :§$&.58 kg CO2/kWh\r\n" +
                      lineal),
            std::string::npos)
      << text;
  EXPECT_NE(text.find("        Compressor energy :§$&80000 kWh  80 %\r\n"), std::string::npos);
  EXPECT_EQ(text.find("Pumps :§$&0 kW"), std::string::npos);
}

TEST_F(Ergebnisse, FanLinesAreLeftOutWithoutPower) {
  w.projekt.Lueftcap = "0";
  w.projekt.LueftcapVerDa = "";
  const std::string text = Bericht_Text(w.projekt, lauf, fuelle(), "EUR");
  EXPECT_EQ(text.find("Evaporator fans :§$&3.2"), std::string::npos);
  EXPECT_EQ(text.find("Condenser fans :§$&1.8"), std::string::npos);
  w.projekt.Lueftcap = "1,8";
  EXPECT_NE(Bericht_Text(w.projekt, lauf, fuelle(), "EUR")
                .find("Condenser fans :§$&1,8 kW  Variable speed (inverter)"),
            std::string::npos);
}

TEST_F(Auslegung, DesignReportNamesTheOperatingHours) {
  const std::string text = Bericht_Text(w.projekt, lauf, fuelle(), "CHF");
  EXPECT_NE(text.find("        Hours of operation :§$&18 h/d\r\n"
                      "        Load factor :§$&.9\r\n"
                      "        Days of operation :§$&365 d/a\r\n"),
            std::string::npos);
  EXPECT_NE(text.find("Annual cost :§$&42573 CHF\r\n"), std::string::npos);
  EXPECT_EQ(text.find("COP min/max"), std::string::npos);
}

TEST_F(Ergebnisse, ReportEditorSplitsLinesAndTurnsPages) {
  ASSERT_TRUE(Ergebnis_Schreiben(w.projekt, lauf, fuelle(), "EUR"));
  ErgebEdit editor(w.ablage);
  ASSERT_TRUE(editor.oeffnen());
  EXPECT_TRUE(editor.zeilen[0].lineal);
  EXPECT_TRUE(editor.zeilen[1].kopf);
  EXPECT_EQ(editor.zeilen[3].text, "Application :");
  EXPECT_EQ(editor.zeilen[3].wert, "Cold room");
  editor.Zeilen_je_Seite = 10;
  EXPECT_GT(editor.Seitenzahl(), 3);
  EXPECT_EQ(editor.seite().size(), 11u);
  editor.Command3D(1);
  EXPECT_EQ(editor.Seite, 2);
  EXPECT_EQ(editor.seite()[1].text, editor.zeilen[10].text);
  editor.Command3D(100);
  EXPECT_EQ(editor.Seite, editor.Seitenzahl());
  editor.Command3D(-100);
  EXPECT_EQ(editor.Seite, 1);
  EXPECT_FALSE(editor.oeffnen("nothing.DAT"));
}
