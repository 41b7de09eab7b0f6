#include <gtest/gtest.h>

#include <cmath>
#include <sstream>

#include "gespraech.h"
#include "messdateien.h"

namespace {

using messdateien::zelle;
using nlohmann::json;

std::string P_convert(double value, int kind) {
  return R"({"op":"P_convert","kind":)" + std::to_string(kind) + R"(,"value":)" +
         std::to_string(value) + "}";
}

// --- Channels

TEST(CalcChannels, SensorConversionByKind) {
  const Datenkopie daten;
  EXPECT_EQ(ergebnis(daten, P_convert(50, 4)), 100.0);
  EXPECT_EQ(ergebnis(daten, P_convert(50, 5)), 120.0);
  EXPECT_EQ(ergebnis(daten, P_convert(10, 1)), 50.0);
  EXPECT_EQ(ergebnis(daten, P_convert(10, 9)), 50.0);
  EXPECT_EQ(ergebnis(daten, P_convert(1.5, 3)), 150000.0);
  // u = -0.2 / 2.5 + 0.5 = 0.42; (0.42 - 0.5) * 0.125 = -0.01 of a bar, in 1e-5: -1000 Pa
  const json klein = ergebnis(daten, P_convert(-.2, 2));
  EXPECT_NEAR(klein.get<double>(), -1000, 1.001);
  EXPECT_EQ(ergebnis(daten, P_convert(-.31, 2)), 0.0);
  EXPECT_EQ(ergebnis(daten, P_convert(-.1, 1)), 0.0);
}

TEST(CalcChannels, PositionsGoToColumnsAndSlots) {
  const Datenkopie daten;
  const auto ort = [&](int position, int mode, const char* mehr = "") {
    return ergebnis(daten, R"({"op":"Chanel_festleg","position":)" + std::to_string(position) +
                               R"(,"mode":)" + std::to_string(mode) + mehr + "}");
  };
  EXPECT_EQ(ort(7, 1), 2);
  EXPECT_EQ(ort(38, 1), 68);
  EXPECT_EQ(ort(49, 1), 67);
  EXPECT_EQ(ort(10, 1), 22);
  EXPECT_EQ(ort(10, 1, R"(,"Box_Typ":1)"), 36);
  EXPECT_EQ(ort(11, 1, R"(,"Box_Typ":1)"), 25);
  EXPECT_EQ(ort(30, 1, R"(,"Box_Typ":1)"), 72);
  EXPECT_EQ(ort(5, 2), 16);
  EXPECT_EQ(ort(10, 3), 5);
  EXPECT_EQ(ort(17, 3), 0);
}

// 0 to 10 V over 0 to 1000 kg/h is 100 a volt; 2 to 10 V is 1000 / (8 - 2).
TEST(CalcChannels, FreeInputIsScaledByItsFile) {
  const Datenkopie daten;
  std::string datei;
  const auto kanal = [&](const char* a, const char* b, const char* einheit) {
    for (const char* item : {a, b, "V", "0", "1000", einheit})
      datei += "\"" + std::string(item) + "\"\r\n";
  };
  kanal("0", "10", "kg/h");
  kanal("2", "10", "m³/h");
  kanal("0", "10", "kg/s");
  kanal("5", "10", "kg/h");
  daten.schreib("FMD_SP_CAL.dat", datei + "\"1\"\r\n");
  const auto skaliert = [&](double value, int channel) {
    return ergebnis(daten, R"({"op":"Kablib_x7_8","value":)" + std::to_string(value) +
                               R"(,"channel":)" + std::to_string(channel) + "}");
  };
  EXPECT_EQ(skaliert(2.5, 1)["value"], 250.0);
  EXPECT_DOUBLE_EQ(skaliert(3, 2)["value"].get<double>(), 500);
  EXPECT_DOUBLE_EQ(skaliert(1, 3)["value"].get<double>(), 360000);
  EXPECT_TRUE(skaliert(1, 4)["value"].is_null()) << "a slope over nothing";
  EXPECT_EQ(skaliert(1, 1)["Box_Typ"], 1);
  EXPECT_EQ(skaliert(1, 1)["Label21"], "Offline Monitoring Mode");
  daten.schreib("FMD_SP_CAL.dat", datei + "\"0\"\r\n");
  EXPECT_EQ(skaliert(1, 1)["Label21"], "Offline Modus");
}

TEST(CalcChannels, OffsetsAreThirtyTwoOfTheFile) {
  const Datenkopie daten;
  std::string datei;
  for (int n = 1; n <= 48; ++n) datei += "\"" + std::to_string(n) + "\"\r\n";
  daten.schreib("FMD_OFFS.dat", datei);
  const json werte = ergebnis(daten, R"({"op":"Offset_laden"})");
  ASSERT_EQ(werte.size(), 48U);
  for (std::size_t n = 0; n < 48; ++n) EXPECT_EQ(werte[n], n < 32 ? n + 1.0 : 0.0) << n;
}

// --- Link

TEST(CalcLink, ReplyIsJudgedAndTakenApart) {
  const Datenkopie daten;
  const auto antwort = [&](const std::string& text) {
    return ergebnis(daten, json({{"op", "Antwort"}, {"text", text}}).dump());
  };
  const json gut = antwort("231.4 230.2  10.41 M12:05:09 ok");
  EXPECT_EQ(gut["good"], true);
  EXPECT_EQ(gut["Box_Typ"], 1);
  EXPECT_EQ(gut["Zeit_Text"], "12:05:09");
  ASSERT_GE(gut["tokens"].size(), 5U);
  EXPECT_EQ(gut["tokens"][0], "231.4");
  EXPECT_EQ(gut["tokens"][2], "") << "two blanks in a row are a position";
  EXPECT_EQ(gut["tokens"][3], "10.41");
  const auto brauchbar = [&](std::size_t laenge) {
    return antwort(std::string(laenge - 2, '1') + "ok")["good"];
  };
  EXPECT_EQ(brauchbar(24), false);
  EXPECT_EQ(brauchbar(25), true);
  EXPECT_EQ(brauchbar(600), true);
  EXPECT_EQ(brauchbar(601), false);
  EXPECT_EQ(antwort("ec %*\r")["good"], false);
  EXPECT_EQ(antwort(std::string(40, '1') + "OK")["good"], false);
  EXPECT_EQ(antwort(std::string(30, '1') + "A ok")["Box_Typ"], 2);
}

TEST(CalcLink, ClockTextsAndCounts) {
  const Datenkopie daten;
  // 9.031 s to 11.500 s, and over the end of a minute.
  EXPECT_EQ(
      ergebnis(daten, R"({"op":"time_diff","t1":"12:05:09:031","t2":"12:05:11:500","kind":1})"),
      2469.0);
  EXPECT_EQ(
      ergebnis(daten, R"({"op":"time_diff","t1":"12:05:59:900","t2":"12:06:00:100","kind":1})"),
      200.0);
  // What is left of five seconds: 5000 - 2469 - 133; of two it is nothing.
  EXPECT_EQ(
      ergebnis(daten, R"({"op":"time_diff","t1":"12:05:09:031","t2":"12:05:11:500","kind":0})"),
      2398.0);
  EXPECT_EQ(ergebnis(daten, R"({"op":"time_diff","t1":"12:05:09:031","t2":"12:05:11:500",)"
                            R"("kind":0,"interval":2})"),
            0.0);
  const auto zahl = [&](const char* Combo2, const char* Combo5) {
    return ergebnis(daten,
                    json({{"op", "InterVall_Ber"}, {"Combo2", Combo2}, {"Combo5", Combo5}}).dump());
  };
  EXPECT_EQ(zahl("5s", " 1 h"), 720.0);
  EXPECT_EQ(zahl("", ""), 720.0);
  EXPECT_EQ(zahl("10s", "30 min"), 180.0);
  EXPECT_EQ(zahl("7s", "1 min"), 60.0 / 7) << "not rounded";
  EXPECT_EQ(zahl("5s", "oo"), 0.0);
  const auto uhr = [&](int s) {
    return ergebnis(daten, R"({"op":"FM_timer","seconds":)" + std::to_string(s) + "}");
  };
  EXPECT_EQ(uhr(59), "00:00:59");
  EXPECT_EQ(uhr(3599), "00:59:59");
  // 3661 - 60 x 1 = 3601 s: 60 minutes and a second.
  EXPECT_EQ(uhr(3661), "01:60:01");
}

TEST(CalcLink, FileFedSourceIsProbedAndRead) {
  const Datenkopie daten;
  std::string text = "\"02.01.2026 08:00:00\"";
  for (int n = 1; n <= 32; ++n) text += ",\"" + std::to_string(n) + "\"";
  daten.schreib("feed_2.txt", text);
  daten.schreib("empty.txt", "");
  const auto frage = [&](int index, const char* datei) {
    return ergebnis(
        daten,
        json({{"op", "Check_ISS_da"}, {"index", index}, {"kind", 1}, {"path", daten.pfad(datei)}})
            .dump());
  };
  EXPECT_EQ(frage(0, "feed_2.txt")["Quelle_ISS"], 111);
  EXPECT_EQ(frage(0, "feed_2.txt")["reply"], "");
  EXPECT_EQ(frage(0, "empty.txt")["Quelle_ISS"], 0);
  EXPECT_EQ(frage(0, "none.txt")["Quelle_ISS"], 0);
  const std::string antwort = frage(2, "feed.txt")["reply"];
  EXPECT_TRUE(antwort.starts_with("1 2 3 ") && antwort.ends_with("31 32  ok")) << antwort;
}

// --- Kernel

const std::string kAnlage = R"({"op":"Messung","KaelteM":"R404A","Hub_Volumen":60,"Combo2":"10s"})";

TEST(CalcKernel, PowerFactorByDriveAndCurrent) {
  const Datenkopie daten;
  const auto factor = [&](int antrieb, double strom) {
    return letzte(daten, {R"({"op":"Messung","Antrieb":)" + std::to_string(antrieb) + "}",
                          R"({"op":"Cos_phi","current":)" + std::to_string(strom) + "}"})["result"]
        .get<double>();
  };
  EXPECT_DOUBLE_EQ(factor(0, 0), .87 - 2. / 30);
  EXPECT_DOUBLE_EQ(factor(1, 20), .93 - 2. / 60);
  EXPECT_DOUBLE_EQ(factor(3, 50), .805 - 2. / 150);
}

TEST(CalcKernel, ARowIsComputedFromItsCells) {
  const Datenkopie daten;
  const json a = letzte(
      daten, {kAnlage, R"({"op":"Kern_Zeile","cells":{"1":"08:00:00","2":"1.3","4":-26,"5":-16,)"
                       R"("6":16.5,"8":78.2,"9":34.5,"14":231.4,"15":230.2,"16":232,"17":16.2,)"
                       R"("18":14.6,"19":14.7}})"});
  const json& j = a["result"];
  const auto zahl = [&](const char* spalte) {
    return std::stod(j["cells"][spalte].get<std::string>());
  };
  const double cos_phi = .87 - 2 / (3 * (3 * 16.2));
  const double rest = 1.7 * ((231.4 + 230.2 + 232) / 3000) * cos_phi;
  const double P = (231.4 * 16.2 + 230.2 * 14.6 + 232 * 14.7) / 1000 * cos_phi - rest;
  EXPECT_DOUBLE_EQ(zahl("12"), std::floor((P + .0005) * 1000) / 1000);
  EXPECT_DOUBLE_EQ(zahl("10"), std::floor(100 * (-26 - zahl("3"))) / 100);
  EXPECT_EQ(j["red"][0], "sh");
  EXPECT_GT(zahl("139"), 100);
}

TEST(CalcKernel, AllRowsMakeTheSums) {
  const Datenkopie daten;
  std::vector<std::string> zeilen{kAnlage};
  for (int row = 3; row <= 6; ++row)
    zeilen.push_back(R"({"op":"Kern_Zeile","row":)" + std::to_string(row) +
                     R"(,"cells":{"1":"08:00:0)" + std::to_string(row) + R"(","2":)" +
                     std::to_string(row) + R"(,"4":5,"5":5,"6":16.5,"9":34.5}})");
  zeilen.push_back(R"({"op":"rechenkern"})");
  const json j = letzte(daten, zeilen)["result"];
  EXPECT_EQ(j["Sum_zeit_messung"], 40.0);
  // Mess_Zeilen is 6: the pressures 3, 4 and 5 are summed and divided by three.
  EXPECT_EQ(j["means"]["2"], json({{"lowest", 3.0}, {"highest", 5.0}, {"mean", 4.0}}));
  EXPECT_NEAR(j["scale"]["p_max"].get<double>(), 17.513, 1e-9);
}

TEST(CalcKernel, MeanOfReadings) {
  const Datenkopie daten;
  const auto mittel = [&](const char* a, const char* b, const char* c) {
    return ergebnis(daten, json({{"op", "Mittel_wert"}, {"a", a}, {"b", b}, {"c", c}}).dump());
  };
  EXPECT_EQ(mittel("1", "2", "6"), 3.0);
  EXPECT_EQ(mittel("1", "-", "6"), 3.5);
  EXPECT_EQ(mittel("0", "", "6,5"), 6.5);
  EXPECT_EQ(mittel("0", "", "-"), 0.0);
}

TEST(CalcKernel, FunctionsOfTheUnits) {
  const Datenkopie daten;
  const json j = letzte(
      daten, {R"({"op":"Messung","OrbiN_spread":[["","Condenser","","Leitkiste"],)"
              R"(["","Pump","P","Orbiter 1"],["","Fan","F","Orbiter 2"],)"
              R"(["","CO2 Transkritisch","T","Orbiter 3"],["","Air side","A","Orbiter 4"]]})",
              R"({"op":"SP_Zuweis"})"})["result"];
  EXPECT_EQ(j["Sensor_Code"], json({13, 12, 15, 26}));
  EXPECT_EQ(j["Sensor_Zeile"], json({2, 3, 4, 5}));
  EXPECT_EQ(j["Druck_Art"], 2);
  ASSERT_EQ(j["Sensor_Name"].size(), 4U);
}

TEST(CalcKernel, WhatDoesNotFitIsAnErrorAndTheNextLineWorks) {
  const Datenkopie daten;
  const auto a = rechne(
      daten, {R"({"op":"Messung","Bauart":9})", R"({"op":"Messung","nonsense":1})",
              R"({"op":"Kern_Zeile","cells":[1]})", R"({"op":"Kern_Zeile","cells":{"2":[1]}})",
              R"({"op":"Kern_Zeile","row":-7,"cells":{"-3":1,"99999999999":1,"x":2}})",
              R"({"op":"Kern_Zeile","row":1e300})", R"({"op":"rechenkern"})",
              R"({"op":"Cos_phi","current":10})"});
  ASSERT_EQ(a.size(), 8U);
  for (std::size_t n = 0; n < 4; ++n) EXPECT_TRUE(a[n].contains("error")) << a[n];
  EXPECT_EQ(a[7]["result"], .87 - 2. / 30);
}

// --- Secondary fluids

TEST(CalcBrine, ConcentrationRuleAndFigures) {
  const Datenkopie daten;
  const auto rechne_mit = [&](const char* op, json argumente) {
    argumente["op"] = op;
    return ergebnis(daten, argumente.dump());
  };
  EXPECT_EQ(rechne_mit("Sole_Namen", json::object()).size(), 19U);
  EXPECT_EQ(rechne_mit("Sole_Grenzen", {{"name", "TYFOXIT_1.XX"}}), -55.0);
  EXPECT_TRUE(rechne_mit("Sole_Grenzen", {{"name", "beer"}}).is_null());
  // -((-20 - 41.2) / 1.02) = 60
  EXPECT_EQ(rechne_mit("Sole_Konzentration", {{"name", "TYFOXIT_1.XX"}, {"t", -20}}), 60.0);
  // 0.3799 (0.803 + 0.0109 x 5), cut to tenths of a percent: 32.5
  EXPECT_EQ(rechne_mit("Sole_Konzentration", {{"name", "Ethylene glycol"}, {"t", -20}}), 32.5);
  EXPECT_NEAR(rechne_mit("Sole_Gefriertemperatur", {{"name", "Ethylene glycol"}, {"c", 30.5}})
                  .get<double>(),
              -15, .1);
  // Published for 20 °C and 30 % by mass: 1038 kg/m³, 3.70 kJ/(kg K).
  const json zustand{{"name", "Ethylene glycol"}, {"t", 20}, {"c", 30}};
  EXPECT_NEAR(rechne_mit("Sole_Dichte", zustand).get<double>(), 1038, 3);
  EXPECT_NEAR(rechne_mit("Sole_Waermekapazitaet", zustand).get<double>(), 3.7, .05);
}

TEST(CalcBrine, FrostProtectionInput) {
  const Datenkopie daten;
  const auto eingabe = [&](const char* text) {
    return ergebnis(daten,
                    json({{"op", "Frostschutz"}, {"name", "Temper -20"}, {"input", text}}).dump());
  };
  EXPECT_EQ(eingabe("5")["t"], -15.0);
  EXPECT_EQ(eingabe("-18")["t"], -18.0);
  EXPECT_EQ(eingabe("-18")["Konzentration"], 100.0);
  EXPECT_EQ(eingabe("-18")["Meldung"], "");
  EXPECT_TRUE(eingabe("-21")["Konzentration"].is_null());
  EXPECT_TRUE(hat(eingabe("-21")["Meldung"], "-20"));
}

TEST(CalcBrine, WaterAtAtmosphericPressure) {
  const Datenkopie daten;
  const auto wasser = [&](const char* op, int t) {
    return ergebnis(daten, json({{"op", op}, {"t", t}}).dump()).get<double>();
  };
  // Steam tables: 999.97 kg/m³ at 4 °C, 983.2 at 60 °C; 4.184 kJ/(kg K) at 20 °C.
  EXPECT_NEAR(wasser("Wasser_Dichte", 4), 999.97, .05);
  EXPECT_NEAR(wasser("Wasser_Dichte", 60), 983.2, .1);
  EXPECT_NEAR(wasser("Wasser_Waermekapazitaet", 20), 4.184, .004);
}

}  // namespace
