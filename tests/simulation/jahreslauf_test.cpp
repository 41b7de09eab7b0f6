#include "simulation/jahreslauf.h"

#include <cmath>
#include <sstream>

#include "shell/items.h"
#include "werkstatt.h"

using namespace polarkreis;

namespace {

/// Keeps every hour.
class Stunden : public Stundenempfaenger {
 public:
  void monat(const Monatszeile& zeile) override { monate.push_back(zeile.Monat); }
  void stunde(const Stundenwerte& werte) override { stunden.push_back(werte); }
  std::vector<std::string> monate;
  std::vector<Stundenwerte> stunden;
};

class Jahr : public ::testing::Test {
 protected:
  Werkstatt w;
  Stunden stunden;
  Laufergebnis rechne() {
    if (!w.projekt.JG_fertig) {
      EXPECT_TRUE(Kurs_machen(w.klima, w.projekt));
    }
    JahresLauf lauf = w.lauf();
    lauf.empfaenger = &stunden;
    return lauf.Jahr_Rechnen(w.projekt);
  }
  /// A course of twelve equal months.
  Laufergebnis rechne(const std::string& tag, const std::string& nacht, const std::string& last) {
    w.rechne_monat(tag, nacht, last, last);
    return rechne();
  }
};

std::vector<std::string> zeilen(const std::string& text) {
  std::vector<std::string> alle;
  std::stringstream strom(text);
  for (std::string zeile; std::getline(strom, zeile);) alle.push_back(zeile);
  return alle;
}

}  // namespace

TEST_F(Jahr, HasTwelveMonthsOf24Hours) {
  const Laufergebnis e = rechne();
  EXPECT_EQ(e.ende, Laufende::fertig);
  ASSERT_EQ(stunden.stunden.size(), 288u);
  EXPECT_EQ(stunden.monate.front(), "January");
  EXPECT_EQ(stunden.monate.back(), "December");
  EXPECT_EQ(stunden.stunden[23].Stunde, 24);
}

// 28 days in February, 30.63 in the others: 364.93 in all.
TEST_F(Jahr, FullLoadGivesTheDaysOfTheYear) {
  const Laufergebnis e = rechne("30", "20", "100");
  EXPECT_NEAR(e.summen.Vollast_Tage, 24 * (11 * 30.63 + 28), 1e-9);
}

TEST_F(Jahr, CondensesAtTheLimitAndAboveItWithTheAir) {
  rechne("30", "5", "50");
  for (const Stundenwerte& s : stunden.stunden) {
    const double dt_c = 14 * 0.5 * 1.04;  // stepped control at half load
    EXPECT_NEAR(s.tc, std::max(25.0, s.t_luft + dt_c), 1e-12);
  }
}

TEST_F(Jahr, CoolingWaterIsConstant) {
  w.projekt.Vfl_typ = w.captions.text(PedCap::Wassergekuehlt);
  w.projekt.t_K_wasser = "22";
  rechne("30", "5", "50");
  for (const Stundenwerte& s : stunden.stunden) EXPECT_NEAR(s.tc, 22 + 14 * 0.5 * 1.04, 1e-12);
}

TEST_F(Jahr, TowerWorksFromTheWetBulbAboveTwentyDegrees) {
  w.projekt.Vfl_typ = "Kühlturm";
  const Laufergebnis e = rechne("32", "16", "50");
  const Stundenwerte heiss = stunden.stunden[14];
  // 32 °C and the humidity of Cologne's January figure: the wet bulb lies some kelvin below.
  EXPECT_LT(heiss.t_luft, 31);
  EXPECT_GT(heiss.t_luft, 15);
  EXPECT_NEAR(heiss.t_luft * 10, std::round(heiss.t_luft * 10), 1e-9);
  EXPECT_NEAR(stunden.stunden[4].t_luft, 16, 1e-12);
  EXPECT_GT(e.summen.Wasser_Adiabat, 0);
}

TEST_F(Jahr, WetBulbMeetsTheAirsEnthalpy) {
  w.projekt.Vfl_typ = "Kühlturm";
  rechne("32", "16", "50");
  const Stundenwerte heiss = stunden.stunden[14];
  w.klima.Land = w.projekt.Land;
  w.klima.Stadt = w.projekt.Stadt;
  w.klima.Monat_aktuell = "January";
  const double phi = w.klima.Klima_Wert(w.projekt.Stadt, 8);
  const double h_a = w.luft.Feuchte_Luft(phi / 100, 32, 1.013)->h;
  // Cut to a tenth of a kelvin: between the reference and the next tenth the enthalpy is met.
  EXPECT_LE(w.luft.Feuchte_Luft(1, heiss.t_luft, 1.013)->h, h_a + 0.1);
  EXPECT_GE(w.luft.Feuchte_Luft(1, heiss.t_luft + 0.1, 1.013)->h, h_a - 0.1);
}

TEST_F(Jahr, AdiabaticPreCoolingGoesHalfTheWay) {
  w.projekt.Vfl_typ = "Kühlturm";
  rechne("32", "16", "50");
  const double turm = stunden.stunden[14].t_luft;
  stunden.stunden.clear();
  w.projekt.Vfl_typ = w.captions.text(PedCap::Luftgekuehlt) + "/adiabt";
  rechne();
  EXPECT_NEAR(stunden.stunden[14].t_luft, 0.45 * (turm + 32), 0.15);
}

TEST_F(Jahr, NoDefrostFromMinusFourUp) {
  for (const auto& [t0, minuten] : {std::pair{"-4", 0.0},
                                    {"-3", 0.0},
                                    {"-4,5", 0.5 / 8 * 30 * (8 * .98) / 8 * .33 * .66},
                                    {"-5.5", 1.5 / 8 * 30 * (8 * .98) / 8 * .66},
                                    {"-8", 4.0 / 8 * 30 * (8 * .98) / 8},
                                    {"-30", 8.0 / 8 * 30 * (8 * .98) / 8}}) {
    w.projekt.t0 = t0;
    const Laufergebnis e = rechne();
    EXPECT_NEAR(e.t_abtau, minuten, 1e-12) << t0;
    EXPECT_EQ(e.summen.E_Abtau > 0, minuten > 0) << t0;
  }
}

TEST_F(Jahr, OnlyElectricDefrostTakesEnergy) {
  w.projekt.HeißGAbt = true;
  EXPECT_EQ(rechne().summen.E_Abtau, 0);
  w.projekt.HeißGAbt = false;
  w.projekt.KaltGAbt = true;
  EXPECT_EQ(rechne().summen.E_Abtau, 0);
}

TEST_F(Jahr, AYearWithoutLoadStillRuns) {
  const Laufergebnis e = rechne("20", "10", "0");
  EXPECT_EQ(stunden.stunden.size(), 288u);
  EXPECT_EQ(e.summen.COP_min, 38);
  EXPECT_EQ(e.summen.COP_max, 0);
  EXPECT_EQ(e.summen.Vollast_Tage, 0);
  EXPECT_EQ(e.summen.E_Verd, 0);
}

TEST_F(Jahr, UncontrolledFansAndPumpsRunWithoutLoadAndTheLogTellsIt) {
  w.projekt.RGartL = w.projekt.RGartP = w.text(JMapCap::Regelung_ohne);
  w.projekt.PumpCap = "2";
  const Laufergebnis e = rechne("30", "20", "0");
  EXPECT_NEAR(e.summen.E_Pumpe, 2 * 24 * 364.93, 1e-6);
  EXPECT_GT(e.summen.E_VFl_Luefter, 0);
  const auto& log = w.log.zeilen();
  EXPECT_TRUE(std::any_of(log.begin(), log.end(), [](const std::string& zeile) {
    return zeile.find("without load") != std::string::npos;
  }));
}

TEST_F(Jahr, EqualDayAndNightLeaveTheHumidityAndTheRunGoesOn) {
  w.projekt.Vfl_typ = "Kühlturm";
  const Laufergebnis e = rechne("25", "25", "50");
  EXPECT_EQ(e.ende, Laufende::fertig);
  for (const Stundenwerte& s : stunden.stunden) EXPECT_TRUE(std::isfinite(s.COP));
}

TEST_F(Jahr, FansRunAtAReducedShareBelowTheLimit) {
  const Laufergebnis e = rechne("14", "14", "100");
  const double t_aus = 14 + 14 * 1.04;
  const double f = t_aus < 25 ? 1 - (25 - t_aus) / 13 : 1;
  EXPECT_NEAR(stunden.stunden[0].P_Luefter, f * 1.8, 1e-12);
  EXPECT_GT(e.summen.E_VFl_Luefter, 0);
  stunden.stunden.clear();
  rechne("5", "5", "60");  // 5 + 8.736 lies between 12 and the limit: (13.736 - 12)/13
  EXPECT_NEAR(stunden.stunden[0].P_Luefter, (5 + 14 * .6 * 1.04 - 12) / 13 * 1.8 * .6, 1e-12);
  stunden.stunden.clear();
  rechne("0", "0", "60");
  EXPECT_EQ(stunden.stunden[0].P_Luefter, 0);
}

TEST_F(Jahr, NegativeFanPowerStaysAndTheLogTellsIt) {
  w.projekt.WinterRGart = "10 °C";
  rechne("5", "5", "60");
  EXPECT_LT(stunden.stunden[0].P_Luefter, 0);
  bool gesagt = false;
  for (const std::string& zeile : w.log.zeilen()) {
    gesagt = gesagt || zeile.find("negative power") != std::string::npos;
  }
  EXPECT_TRUE(gesagt);
}

TEST_F(Jahr, FreeCoolingTakesThreePercentForPumpsFromThenOn) {
  w.projekt.t0 = "10";
  w.projekt.FreeC_Check = true;
  w.projekt.PumpCap = "0";
  const Laufergebnis e = rechne("1", "0", "100");
  EXPECT_NEAR(stunden.stunden[0].P_el, 0.03 * 120, 1e-12);
  EXPECT_NEAR(e.summen.E_Pumpe, 0.03 * 120 * 24 * 364.93, 1e-6);
  EXPECT_GT(e.summen.E_FreeCool_Spar, 0);
  EXPECT_EQ(e.anlage.PumpCap, 0);
}

TEST_F(Jahr, HeatDemandFollowsTheAirBelowFifteenDegrees) {
  w.projekt.Q_heat = "30";
  rechne("6", "-6", "50");
  EXPECT_NEAR(stunden.stunden[14].last_heiz, 9, 1e-12);
  EXPECT_NEAR(stunden.stunden[4].last_heiz, 21, 1e-12);
  stunden.stunden.clear();
  rechne("20", "16", "50");
  for (const Stundenwerte& s : stunden.stunden) EXPECT_EQ(s.last_heiz, 0);
}

TEST_F(Jahr, HotWaterOfADayIsTheQuantityTimesItsHeating) {
  w.projekt.M_enth = "1500";
  w.projekt.T_enth = "55";
  EXPECT_NEAR(rechne().Q_WW_Tag, 1500 * 4.19 * 40 / 3600, 1e-12);
}

TEST_F(Jahr, HeatingAloneClearsTheHotWater) {
  w.projekt.WaterCheck = "0";
  w.projekt.HeizCheck = true;
  w.projekt.Q_heat = "20";
  const Laufergebnis e = rechne("5", "0", "80");
  EXPECT_EQ(e.summen.Q_Wasser, 0);
  EXPECT_GT(e.summen.Q_Heiz, 0);
  EXPECT_NEAR(
      e.summen.Q_Heiz_Bedarf,
      12 *
          [&] {
            double tag = 0;
            for (int h = 0; h < 24; ++h)
              tag += stunden.stunden[static_cast<std::size_t>(h)].last_heiz;
            return tag;
          }(),
      1e-9);
}

// A mild night gives no demand: the division fails, and the share keeps the hour before.
TEST_F(Jahr, WithoutDemandTheHeatingShareKeepsItsValue) {
  w.projekt.WaterCheck = "0";
  w.projekt.HeizCheck = true;
  w.projekt.Q_heat = "2000";
  w.projekt.T_heat = "70";  // above the discharge temperature: less than nothing is available
  rechne("16", "14", "80");
  double vorher = 0;
  int ohne_bedarf = 0;
  for (const Stundenwerte& s : stunden.stunden) {
    if (s.last_heiz == 0) {
      EXPECT_EQ(s.k_Heiz, vorher);
      ++ohne_bedarf;
    } else {
      EXPECT_DOUBLE_EQ(s.k_Heiz, std::max(s.P_H / s.last_heiz, 0.0));
    }
    vorher = s.k_Heiz;
  }
  EXPECT_GT(ohne_bedarf, 0);
}

TEST_F(Jahr, UsersValuesComeBackAfterTheYear) {
  w.oeffne("CO2 supermarket.prj");
  const Laufergebnis e = rechne();
  EXPECT_EQ(e.anlage.Tc, 40.1);
  EXPECT_EQ(e.anlage.P_gasK, 102.5);
  EXPECT_EQ(e.auslegung.tc_eff, 40.1);
  EXPECT_EQ(w.km.z.P_hoch, Kaeltemittel::CO2_pOpt(40.1));
  EXPECT_EQ(w.km.z.Zweistufig, 0);
}

TEST_F(Jahr, AnUnknownRefrigerantStopsTheRunAndWritesNothing) {
  w.projekt.KaelteM = "R999";
  const auto vorher = w.ordner.namen();
  EXPECT_EQ(w.rechne().lauf.ende, Laufende::unbekanntes_Kaeltemittel);
  ASSERT_FALSE(w.dialog.texte.empty());
  EXPECT_NE(w.dialog.texte.back().find("R999"), std::string::npos);
  EXPECT_FALSE(w.ordner.da("ERG_TEMP.DAT"));
  EXPECT_FALSE(w.ordner.da("ergEN1.DAT"));
}

TEST_F(Jahr, AMissingTableIsMessage24) {
  std::filesystem::remove(w.ordner.pfad("R448A.DAT"));
  EXPECT_EQ(w.rechne().lauf.ende, Laufende::Tabelle_fehlt);
  EXPECT_EQ(w.dialog.texte.back(), "Polarkreis error 24: File not existing.");
  EXPECT_FALSE(w.ordner.da("R448A.DAT"));
  w.oeffne("CO2 supermarket.prj");
  w.ordner.schreib("CO2_sh01.dat", "");
  EXPECT_EQ(w.rechne().lauf.ende, Laufende::Tabelle_fehlt);
  EXPECT_FALSE(w.ordner.da("ERG_TEMP.DAT"));
}

TEST_F(Jahr, LimitsOfUseAreChecked) {
  w.projekt.t0 = "-55.5";
  EXPECT_EQ(w.rechne().lauf.ende, Laufende::Grenze);
  EXPECT_EQ(w.dialog.texte.back(), w.captions.text(Caption::Unter_tmin) + "\r\ntmin = -55 °C !");
  JahresLauf in_fahrenheit({w.ablage, w.captions, w.kreis, w.klima, w.luft, w.wrg, w.dialog,
                            Einheiten{.angelsaechsisch = true}});
  EXPECT_EQ(in_fahrenheit.pruefen(w.projekt), Laufende::Grenze);
  EXPECT_TRUE(w.dialog.texte.back().ends_with("tmin = -67 °F !"));
  w.projekt.t0 = "-8";
  w.projekt.Tc = "-9";
  EXPECT_EQ(w.rechne().lauf.ende, Laufende::Grenze);
  EXPECT_EQ(w.dialog.texte.back(), w.captions.text(Caption::Tc_unter_t0));
  w.projekt.Tc = "65.1";
  EXPECT_EQ(w.rechne().lauf.ende, Laufende::Grenze);
  EXPECT_EQ(w.dialog.texte.back(), w.captions.text(Caption::Ueber_tmax) + "\r\ntmax = 65 °C !");
  EXPECT_FALSE(w.ordner.da("ergEN1.DAT"));
  w.projekt.Tc = "65";
  EXPECT_EQ(w.rechne().lauf.ende, Laufende::fertig);
}

TEST_F(Jahr, ANumberBeyondTheRangeIsRefused) {
  for (std::string Projektsatz::*feld : {&Projektsatz::t0, &Projektsatz::Tc, &Projektsatz::Q0}) {
    const std::string vorher = w.projekt.*feld;
    w.projekt.*feld = "1e999";
    EXPECT_EQ(w.rechne().lauf.ende, Laufende::Grenze);
    EXPECT_TRUE(w.dialog.texte.back().ends_with(" = 1e999"));
    w.projekt.*feld = vorher;
  }
  EXPECT_FALSE(w.ordner.da("ergEN1.DAT"));
}

TEST_F(Jahr, HoursWithoutACOPAreCounted) {
  // A table that ends after two rows has nothing to give at these temperatures.
  const std::string tabelle = w.ordner.lies("R448A.DAT");
  w.ordner.schreib("R448A.DAT", tabelle.substr(0, tabelle.find('\n') + 1) + "\"x\"\n");
  EXPECT_EQ(rechne().Stunden_ohne_COP, 288);
  w.ordner.schreib("R448A.DAT", tabelle);
  EXPECT_EQ(rechne().Stunden_ohne_COP, 0);
}

TEST_F(Jahr, ACourseOfAnotherLanguageGivesTheSameYear) {
  w.oeffne("Ammonia process cooling.prj");
  const Laufergebnis englisch = rechne();
  std::string kurs = w.ordner.lies("JG_Temp.dat");
  for (const auto& [von, nach] :
       {std::pair{"January", "Januar"}, {"May", "Mai"}, {"July", "Juli"}}) {
    kurs.replace(kurs.find(von), std::string(von).size(), nach);
  }
  w.ordner.schreib("JG_Temp.dat", kurs);
  EXPECT_EQ(rechne().summen.E_Verd, englisch.summen.E_Verd);
}

// Humidity keeps the figure of the hour before where day and night are equal.
TEST_F(Jahr, EqualDayAndNightKeepTheHumidityOfTheMonthBefore) {
  w.projekt.Vfl_typ = "Kühlturm";
  rechne("30", "22", "50");
  std::string kurs = w.ordner.lies("JG_Temp.dat");
  const std::size_t feb = kurs.find("February");
  kurs.replace(kurs.find("\"22\"", feb), 4, "\"30\"");
  w.ordner.schreib("JG_Temp.dat", kurs);
  stunden.stunden.clear();
  rechne();
  // Every February hour has 30 °C and the humidity of January's last hour, and so one wet bulb.
  const double phi = [&] {
    w.klima.Land = w.projekt.Land;
    w.klima.Monat_aktuell = "January";
    const double R = w.klima.Klima_Wert(w.projekt.Stadt, 8);
    return Stundenfeuchte(R, Stundentemperatur(30, 22, 24), 30, 22);
  }();
  const double h_a = w.luft.Feuchte_Luft(phi / 100, 30, 1.013)->h;
  for (std::size_t i = 24; i < 48; ++i) {
    EXPECT_LE(w.luft.Feuchte_Luft(1, stunden.stunden[i].t_luft, 1.013)->h, h_a + 0.1);
    EXPECT_GE(w.luft.Feuchte_Luft(1, stunden.stunden[i].t_luft + 0.1, 1.013)->h, h_a - 0.1);
  }
}

TEST_F(Jahr, ACancelledCourseAbandonsTheRun) {
  JahresLauf lauf = w.lauf();
  lauf.Kurs_oeffnen = [] { return false; };
  w.projekt.JG_fertig = false;
  EXPECT_EQ(rechbutt(lauf, w.projekt, "EUR").lauf.ende, Laufende::abgebrochen);
  EXPECT_FALSE(w.ordner.da("ERG_TEMP.DAT"));
}

namespace {

/// Stops the job at a step.
class Abbruch : public Fortschritt {
 public:
  bool schritt(std::string_view text, int nummer, int anzahl) override {
    letzter = text;
    EXPECT_EQ(anzahl, 288);
    return nummer < 40;
  }
  std::string letzter;
};

}  // namespace

TEST_F(Jahr, ProgressNamesMonthAndHourAndCanStopTheRun) {
  ASSERT_TRUE(Kurs_machen(w.klima, w.projekt));
  JahresLauf lauf = w.lauf();
  Abbruch abbruch;
  lauf.fortschritt = &abbruch;
  EXPECT_EQ(rechbutt(lauf, w.projekt, "EUR").lauf.ende, Laufende::abgebrochen);
  EXPECT_EQ(abbruch.letzter, "Refrigerant R448A / February / 16h");
  EXPECT_FALSE(w.ordner.da("ERG_TEMP.DAT"));
}

TEST_F(Jahr, TheDesignKindLeavesTheHourFileAlone) {
  w.projekt.Rechart_waehlen(w.text(JMapCap::Auslegungspunkt) + " VDI 2067");
  w.ordner.schreib("ERG_TEMP.DAT", "as it was");
  const Rechnung r = w.rechne();
  EXPECT_EQ(r.lauf.art.Rechart, 0);
  EXPECT_EQ(r.lauf.art.Bewertung, "ESEER");
  EXPECT_EQ(w.ordner.lies("ERG_TEMP.DAT"), "as it was");
  EXPECT_TRUE(w.ordner.da("ergEN1.DAT"));
}

TEST_F(Jahr, MissingHeatRecoveryFileLeadsToItsDefaults) {
  std::filesystem::remove(w.ordner.pfad("SPEZBK.DAT"));
  const Laufergebnis e = rechne();
  EXPECT_TRUE(w.ordner.da("SPEZBK.DAT"));
  EXPECT_EQ(e.heizdaten.T_Kaltwasser, 15);
  EXPECT_EQ(e.heizdaten.Heizwert, 10.5);
}

TEST_F(Jahr, ResultDoesNotDependOnParsedCopies) {
  for (const char* sample : {"Supermarket medium temperature.prj", "CO2 supermarket.prj",
                             "Ammonia process cooling.prj"}) {
    w.oeffne(sample);
    ASSERT_TRUE(w.rechne().geschrieben);
    const std::string mit = w.ordner.lies("ERG_TEMP.DAT");
    w.ablage.immer_neu_lesen = true;
    ASSERT_TRUE(w.rechne().geschrieben);
    w.ablage.immer_neu_lesen = false;
    EXPECT_EQ(w.ordner.lies("ERG_TEMP.DAT"), mit) << sample;
  }
}

TEST_F(Jahr, HourFileHoldsMonthLinesOfFiveAndHourLinesOfSixteenItems) {
  ASSERT_TRUE(w.rechne().geschrieben);
  const auto alle = zeilen(w.ordner.lies("ERG_TEMP.DAT"));
  ASSERT_EQ(alle.size(), 12u * 25);
  for (std::size_t i = 0; i < alle.size(); ++i) {
    ItemLeser leser(alle[i]);
    int n = 0;
    for (std::string_view item; leser.lies_blick(item);) ++n;
    EXPECT_EQ(n, i % 25 == 0 ? 5 : 16) << alle[i];
    EXPECT_EQ(alle[i].back(), '\r');
  }
  const Monatstabelle kurs = Monatstabelle_lesen(w.ablage);
  const Monatszeile& januar = kurs.monate[0];
  EXPECT_EQ(alle[0], "\"January\",\"" + januar.T_Tag + "\",\"" + januar.T_Nacht + "\",\"" +
                         januar.Last_Tag + "\",\"" + januar.Last_Nacht + "\"\r");
  EXPECT_TRUE(alle[15].starts_with("\"15h\",\"" + januar.T_Tag + "\","));
}

TEST(Ergebnisdatei, RoundsEachColumnByItsRule) {
  Ergebnisdatei datei;
  Stundenwerte s;
  s.Stunde = 7;
  s.t_luft = 12.345678;
  s.tc = 30.005;
  s.COP = 3.4567;
  s.P_el = 10.994;
  s.E_gesamt = 100.449;
  s.last = 33.333;
  s.P_Luefter = 1.236;
  s.P_VDa_Luefter = 0.004;
  s.P_Abtau = 2;
  s.Q0 = 40.5;
  s.last_heiz = 5.999;
  s.P_H = -3.25;
  s.P_WW_verf = 7.77;
  s.k_Heiz = 0.4567;
  s.deckung = 99.9;
  datei.stunde(s);
  s.k_Heiz = 12;
  datei.stunde(s);
  const auto alle = zeilen(datei.inhalt());
  EXPECT_EQ(alle[0],
            "\"7h\",\"12.345678\",\"30.01\",\"3.46\",\"10.99\",\"100.49\",\"33.333\",\"1.24\","
            "\"0\",\"2\",\"40.5\",\"5.99\",\"-3.25\",\"7.77\",\"45\",\"99.9\"\r");
  EXPECT_NE(alle[1].find(",\"100\",\"99.9\"\r"), std::string::npos);
}
