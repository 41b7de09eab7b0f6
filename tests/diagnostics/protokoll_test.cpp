#include "diagnostics/protokoll.h"

#include "diagnostics/mittelwerte.h"
#include "messreihe.h"
#include "support/temp_folder.h"

using namespace polarkreis;

namespace {

/// A cold store with a pump measured by the first remote unit and a fan by the second.
struct Kuehlhaus : Messreihe {
  Protokollsummen summen{123.456, 1800};

  explicit Kuehlhaus(const std::string& sprache) : Messreihe(sprache) {
    messung.ProjektNam = "Cold store \"North\"";
    messung.ProBeschr = "Line 1\r\nLine 2";
    messung.KaelteM = "R404A";
    messung.Combo2 = "600s";
    messung.Combo3 = captions.text(Caption::Einstufig) + " - Economizer";
    messung.Hub_Volumen = 84.5;
    anlage();
    pumpe();
    ventilator();
    Schrittzaehler fortschritt;
    EXPECT_TRUE(MW_Bildung(messung, fortschritt));
  }

  std::string text() const {
    return Protokoll_Text(messung, captions, SP_Zuweis(messung.OrbiN_spread, captions), summen);
  }

 private:
  // Four rows; the means leave the last one out: (x1 + x2 + x3)/3, cut.
  void anlage() {
    uhrzeiten({"23:40:00", "23:50:00", "00:00:00", "00:10:00"});
    spalte(3, {"-10.5", "-9.5", "-10", "99"});  // mean -10
    spalte(7, {"40", "41", "43", "99"});        // 41.333 -> 41.33
    spalte(10, {"6", "7", "7.5", "99"});        // 6.8333 -> 6.83
    spalte(11, {"3", "2", "4", "99"});          // 3
    spalte(12, {"12", "12.5", "13", "14.5"});   // 12.5; energy 52 kW * 600 s = 8.666 kWh
    spalte(138, {"2.2", "2.3", "2.4", "9"});    // 2.3
    spalte(139, {"800", "810", "820", "900"});  // 810
    spalte(140, {"1.5", "1.75", "1.25", "9"});  // 1.5
    spalte(141, {"2.5", "2.75", "2.25", "9"});  // 2.5
    spalte(143, {"61", "62", "64", "99"});      // 62.333 -> 62.33
    spalte(144, {"30", "32", "31", "99"});      // 31
    spalte(146, {"29", "30.5", "30.5", "99"});  // 30
    spalte(147, {"42", "44", "43", "99"});      // 43
    spalte(148, {"41", "  -", "40", "99"});     // 27
  }
  void pumpe() {
    messung.OrbiN_spread(1, 2) = captions.text(VerbCapt::Pumpe);
    messung.OrbiN_spread(1, 3) = "Brine pump";
    messung.OrbiN_spread(1, 4) = "Orbiter 1";
    spalte(39, {"3", "3.5", "4", "9"});    // 3.5
    spalte(41, {"1", "1.5", "2", "9"});    // 1.5
    spalte(40, {"20", "20", "20", "20"});  // a pump has no saturation temperature
    spalte(49, {"36", "36", "36", "36"});
    spalte(32, {"-2", "-2.5", "-3", "9"});    // -2.5
    spalte(33, {"-", "0", "", "  -"});        // not measured
    spalte(132, {"1.1", "1.2", "1.3", "9"});  // 1.2
    spalte(133, {"0", "0", "0", "0"});        // not measured
    spalte(152, {"2", "2", "2", "2"});
    spalte(153, {"2", "2", "2", "2"});
    spalte(154, {"16", "16", "16", "16"});
  }
  void ventilator() {
    messung.OrbiN_spread(4, 2) = captions.text(VerbCapt::Ventilator);
    messung.OrbiN_spread(4, 4) = "Orbiter 2";
    spalte(59, {"120", "130", "140", "9"});   // 130
    spalte(137, {"0.4", "0.5", "0.6", "9"});  // 0.5
    spalte(157, {"110", "115", "120", "9"});  // 115
  }
};

/// The file's form of lines, with eight blanks in front of all that are not empty.
std::string zeilen(std::initializer_list<std::string> texte) {
  std::string alle;
  for (const std::string& text : texte)
    alle += text.empty() ? "\"\"\r\n" : "\"        " + text + "\"\r\n";
  return alle;
}

}  // namespace

TEST(DiaGProtokoll, WholeFileInEnglish) {
  EXPECT_EQ(Kuehlhaus("ENG").text(),
            zeilen({"&$$Polarkreis DiaGnostics : Result of the measurement",
                    "Cold store \"\"North\"\"",
                    "Line 1",
                    "Line 2",
                    "",
                    "Refrigerant§$&R404A",
                    "Plant scheme§$&Single-stage - Economizer",
                    "Duration of the measurement§$&23:40:00 - 00:10:00 / 00:30:00",
                    "Messpunkte§$&4",
                    "",
                    "&%!Min.&%!Max. &%! Average ",
                    "Evaporating temperature /[°C]&%!-10.5&%!-9.5&%!-10",
                    "Condensing temperature /[°C]&%!40&%!43&%!41.33",
                    "Superheat /[K]&%!6&%!7.5&%!6.83",
                    "Subcooling /[K]&%!2&%!4&%!3",
                    "",
                    "&$$Compressor",
                    "Compressor§$&Semi-hermetic, Reciprocating",
                    "Swept volume§$&84.5 m³/h  -  Swept volume",
                    "",
                    "&%!Min.&%!Max. &%! Average ",
                    " COP &%!2.25&%!2.75&%!2.5",
                    "Refrigerating capacity Qo *COP* /[kW]&%!30&%!32&%!31",
                    "Refrigerating capacity Qo*dt* /[kW]&%!29&%!30.5&%!30",
                    "Condenser capacity Qc *COP* /[kW]&%!42&%!44&%!43",
                    "Secondary side of the condenser /[kW]&%!0&%!41&%!27",
                    "Electrical power /[kW]&%!12&%!13&%!12.5",
                    "Rest of the plant /[kW]&%!1.25&%!1.75&%!1.5",
                    "EER Gesamt Anlage&%!2.2&%!2.4&%!2.3",
                    "Efficiency /[%]&%!61&%!64&%!62.33",
                    "Mass flow /[kg/h]&%!800&%!820&%!810",
                    "",
                    "&$$Energy",
                    "Refrigerating capacity§$&123.45 kWh",
                    "Energy used§$&8.66 kWh",
                    "Time§$&00:30:00",
                    "",
                    "&$$Orbiter 1 - Pump",
                    "Measuring unit§$&Brine pump",
                    "&%!Min.&%!Max. &%! Average ",
                    "Pressure P1 /[bar]&%!3&%!4&%!3.5",
                    "Pressure P2 /[bar]&%!1&%!2&%!1.5",
                    "Volume flow /[m³/h]&%!36&%!36&%!36",
                    "t in1 /[°C]&%!-3&%!-2&%!-2.5",
                    "Pump Orbiter 1 L1 /[kW]&%!1.1&%!1.3&%!1.2",
                    "Pressure difference /[bar]&%!2&%!2&%!2",
                    "Hydraulic power /[kW]&%!2&%!2&%!2",
                    "Efficiency /[%]&%!16&%!16&%!16",
                    "",
                    "&$$Orbiter 2 - Fan",
                    "&%!Min.&%!Max. &%! Average ",
                    "Pressure P1 /[Pa]&%!120&%!140&%!130",
                    "Fan Orbiter 2 L3 /[kW]&%!0.4&%!0.6&%!0.5",
                    "Pressure difference /[Pa]&%!110&%!120&%!115",
                    ""}));
}

TEST(DiaGProtokoll, WholeFileInGerman) {
  EXPECT_EQ(Kuehlhaus("GER").text(), zeilen({"&$$Polarkreis DiaGnostics : Ergebnis der Messung",
                                             "Cold store \"\"North\"\"",
                                             "Line 1",
                                             "Line 2",
                                             "",
                                             "Kältemittel§$&R404A",
                                             "Anlagenschema§$&Einstufig - Economizer",
                                             "Dauer der Messung§$&23:40:00 - 00:10:00 / 00:30:00",
                                             "Messpunkte§$&4",
                                             "",
                                             "&%!Min.&%!Max. &%! Average ",
                                             "Verdampfungstemperatur /[°C]&%!-10.5&%!-9.5&%!-10",
                                             "Verflüssigungstemperatur /[°C]&%!40&%!43&%!41.33",
                                             "Überhitzung /[K]&%!6&%!7.5&%!6.83",
                                             "Unterkühlung /[K]&%!2&%!4&%!3",
                                             "",
                                             "&$$Verdichter",
                                             "Verdichter§$&Halbhermetisch, Hubkolben",
                                             "Hubvolumen§$&84.5 m³/h  -  Hubvolumen",
                                             "",
                                             "&%!Min.&%!Max. &%! Average ",
                                             " COP &%!2.25&%!2.75&%!2.5",
                                             "Kälteleistung Qo *COP* /[kW]&%!30&%!32&%!31",
                                             "Kälteleistung Qo*dt* /[kW]&%!29&%!30.5&%!30",
                                             "Verflüssigerleistung Qc *COP* /[kW]&%!42&%!44&%!43",
                                             "Sekundärseite des Verflüssigers /[kW]&%!0&%!41&%!27",
                                             "Elektrische Leistung /[kW]&%!12&%!13&%!12.5",
                                             "Rest der Anlage /[kW]&%!1.25&%!1.75&%!1.5",
                                             "EER Gesamt Anlage&%!2.2&%!2.4&%!2.3",
                                             "Wirkungsgrad /[%]&%!61&%!64&%!62.33",
                                             "Massenstrom /[kg/h]&%!800&%!820&%!810",
                                             "",
                                             "&$$Energie",
                                             "Kälteleistung§$&123.45 kWh",
                                             "Energieverbrauch§$&8.66 kWh",
                                             "Zeit§$&00:30:00",
                                             "",
                                             "&$$Orbiter 1 - Pumpe",
                                             "Messeinheit§$&Brine pump",
                                             "&%!Min.&%!Max. &%! Average ",
                                             "Druck P1 /[bar]&%!3&%!4&%!3.5",
                                             "Druck P2 /[bar]&%!1&%!2&%!1.5",
                                             "Volumenstrom /[m³/h]&%!36&%!36&%!36",
                                             "t in1 /[°C]&%!-3&%!-2&%!-2.5",
                                             "Pumpe Orbiter 1 L1 /[kW]&%!1.1&%!1.3&%!1.2",
                                             "Druckdifferenz /[bar]&%!2&%!2&%!2",
                                             "Hydraulische Leistung /[kW]&%!2&%!2&%!2",
                                             "Wirkungsgrad /[%]&%!16&%!16&%!16",
                                             "",
                                             "&$$Orbiter 2 - Ventilator",
                                             "&%!Min.&%!Max. &%! Average ",
                                             "Druck P1 /[Pa]&%!120&%!140&%!130",
                                             "Ventilator Orbiter 2 L3 /[kW]&%!0.4&%!0.6&%!0.5",
                                             "Druckdifferenz /[Pa]&%!110&%!120&%!115",
                                             ""}));
}

TEST(DiaGProtokoll, CompressorUnitShowsPressuresWithTheirTemperatures) {
  Kuehlhaus k("ENG");
  k.messung.OrbiN_spread(1, 2) = k.captions.text(VerbCapt::Zweistufig_Booster);
  k.spalte(31, {"20", "21", "22", "9"});
  k.spalte(36, {"5", "6", "7", "9"});
  Schrittzaehler fortschritt;
  MW_Bildung(k.messung, fortschritt);
  EXPECT_NE(k.text().find(zeilen(
                {"&$$Orbiter 1 - Two-stage with booster", "Measuring unit§$&Brine pump",
                 "&%!Min.&%!Max. &%! Average ", "Pressure P1 /[bar]&%!3&%!4&%!3.5",
                 "Pressure P2 /[bar]&%!1&%!2&%!1.5", "Temperature P1 /[°C]&%!20&%!20&%!20",
                 "t liq. /[°C]&%!20&%!22&%!21", "t Exp. /[°C]&%!5&%!7&%!6",
                 "Volume flow /[m³/h]&%!36&%!36&%!36", "t in1 /[°C]&%!-3&%!-2&%!-2.5",
                 "Power input Orbiter 1 L1 /[kW]&%!1.1&%!1.3&%!1.2", "", "&$$Orbiter 2 - Fan"})),
            std::string::npos)
      << k.text();
}

TEST(DiaGProtokoll, UnitThatMeasuresNothingIsLeftOut) {
  Kuehlhaus k("ENG");
  k.messung.OrbiN_spread(5, 2) = k.captions.text(VerbCapt::Pumpe);
  k.messung.OrbiN_spread(5, 4) = "Orbiter 3";
  EXPECT_EQ(k.text().find("Orbiter 3"), std::string::npos);
  k.messung.DiaSpread.setze(4, 39 + 40, "2.5");
  EXPECT_NE(k.text().find("Orbiter 3 - Pump"), std::string::npos);
}

TEST(DiaGProtokoll, UnitWithoutAFunctionIsACompressor) {
  Kuehlhaus k("ENG");
  k.messung.OrbiN_spread(4, 2).clear();
  EXPECT_NE(k.text().find("&$$Orbiter 2 - Compressor\""), std::string::npos);
}

TEST(DiaGProtokoll, EmptyMeasurementHasItsHeadingsAndEmptyTables) {
  const Messreihe leere("ENG");
  const std::string text = Protokoll_Text(leere.messung, leere.captions, {}, {});
  EXPECT_NE(text.find(zeilen({"Duration of the measurement§$&", "Messpunkte§$&0", ""})),
            std::string::npos);
  EXPECT_NE(text.find(zeilen({"Superheat /[K]&%!&%!&%!"})), std::string::npos);
  EXPECT_NE(text.find(zeilen({"Energy used§$&0 kWh", "Time§$&00:00:00", ""})), std::string::npos);
}

TEST(DiaGProtokoll, DurationTellsDays) {
  Messreihe r("ENG");
  r.uhrzeiten({"08:00:00", "18:00:00", "08:00:00", "09:30:00"});
  EXPECT_NE(Protokoll_Text(r.messung, r.captions, {}, {}).find("§$&08:00:00 - 09:30:00 + 1 d\""),
            std::string::npos);
}

TEST(DiaGProtokoll, NewestOnTopTellsTheSameDuration) {
  Messreihe r("ENG");
  r.uhrzeiten({"09:00:20", "09:00:10", "09:00:00"});
  EXPECT_NE(Protokoll_Text(r.messung, r.captions, {}, {}).find("§$&09:00:00 - 09:00:20\""),
            std::string::npos);
}

TEST(DiaGProtokoll, LineEndInATextDoesNotPartTheLine) {
  Messreihe r("ENG");
  r.messung.Combo3 = "Single-stage\r\n - plain";
  EXPECT_NE(Protokoll_Text(r.messung, r.captions, {}, {}).find("§$&Single-stage   - plain\"\r\n"),
            std::string::npos);
}

TEST(DiaGProtokoll, KindOfCompressorAndMethodFollowTheSettings) {
  Messreihe r("ENG");
  r.messung.Antrieb = 1;
  r.messung.Bauart = 4;
  r.messung.Hub_Volumen = 0;
  r.messung.Combo4 = " Orbiter 1 inX7";
  EXPECT_NE(
      Protokoll_Text(r.messung, r.captions, {}, {})
          .find(zeilen({"Compressor§$&Open, Turbo", "Swept volume§$&0 m³/h  -   Orbiter 1 inX7"})),
      std::string::npos);
  r.messung.Antrieb = 17;
  r.messung.Bauart = -3;
  EXPECT_NE(Protokoll_Text(r.messung, r.captions, {}, {}).find(zeilen({"Compressor§$&"})),
            std::string::npos);
}

TEST(DiaGProtokoll, FileIsPutInPlaceOrRefused) {
  const Kuehlhaus k("ENG");
  const TempOrdner ordner;
  Meldungen log;
  Ablage ablage(ordner.pfad(), log);
  const Einheitenfunktion funktion = SP_Zuweis(k.messung.OrbiN_spread, k.captions);
  EXPECT_TRUE(DiaG_Protokoll(k.messung, k.captions, funktion, k.summen, ablage));
  EXPECT_EQ(ordner.lies("ergDiaG.DAT"), k.text());
  EXPECT_EQ(ordner.namen(), std::vector<std::string>{"ergDiaG.DAT"});

  const TempOrdner besetzt;
  besetzt.schreib("ergDiaG.DAT/file", "");  // a folder of that name can't be replaced
  Ablage andere(besetzt.pfad(), log);
  EXPECT_FALSE(DiaG_Protokoll(k.messung, k.captions, funktion, k.summen, andere));
  EXPECT_FALSE(andere.letzter_fehler().empty());
}
