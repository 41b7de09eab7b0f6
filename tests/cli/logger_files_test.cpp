#include <gtest/gtest.h>

#include "loggerordner.h"

namespace {

using Json = nlohmann::json;
using messdateien::Inhalt;

/// Lines of a logger's file, ten seconds apart from eight o'clock.
std::string adc(int zeilen, const char* p0 = "1.3") {
  std::string text;
  for (int n = 0; n < zeilen; ++n) {
    char zeit[32];
    std::snprintf(zeit, sizeof zeit, "02.01.2026  %02d:%02d:%02d", 8 + n / 360, n / 6 % 60,
                  n % 6 * 10);
    text += std::string(zeit) + "\t231\t230\t232\t16.2\t14.6\t14.7\t" + p0 +
            "\t16.5\t34.5\t-18.1\t-22\t-21\t-16\t24\t29.9\t78.2\r\n";
  }
  return text;
}

/// "logger" with these words on the device.
Antwort logger(const Loggerordner& daten, const Stellvertreter& geraet, Loggerordner::Worte worte) {
  worte.insert(worte.begin(), "logger");
  worte.insert(worte.end(), {"--port", "1=" + geraet.geraet(), "--settings", "s.json"});
  worte = Loggerordner::geduldig(std::move(worte));
  return daten.rufe(worte);
}

TEST(LoggerFiles, AreListed) {
  const Loggerordner daten;
  daten.schreib("x.adc", adc(3));
  const Stellvertreter geraet(
      {"--file", "night.adc=" + daten.pfad("x.adc"), "--file", "notes.txt=" + daten.pfad("x.adc")});
  const Antwort a = logger(daten, geraet, {"files"});
  EXPECT_EQ(a.status, 0) << a.fehler;
  EXPECT_EQ(a.ausgabe, "RECORD01.adc\nnight.adc\nnotes.txt\n");
  EXPECT_EQ(logger(daten, geraet, {"files", "--json"}).json(),
            Json({"RECORD01.adc", "night.adc", "notes.txt"}));
}

TEST(LoggerDownload, GivesTheRowsComputed) {
  const Loggerordner daten;
  daten.schreib("x.adc", adc(5));
  const Stellvertreter geraet({"--file", "night.adc=" + daten.pfad("x.adc")});
  const Antwort a = logger(daten, geraet, {"download", "night.adc", "--out", "night", "--json"});
  ASSERT_EQ(a.status, 0) << a.fehler;
  const Json j = a.json();
  ASSERT_EQ(j["cells"].size(), 5U);
  const Json& erste = j["cells"]["3"];
  EXPECT_EQ(erste["1"], "08:00:00");
  EXPECT_EQ(j["cells"]["7"]["1"], "08:00:40");
  const std::map<const char*, const char*> zellen{
      {"14", "231"}, {"15", "230"}, {"16", "232"},  {"17", "16.2"},  {"18", "14.6"}, {"19", "14.7"},
      {"2", "1.3"},  {"6", "16.5"}, {"9", "34.5"},  {"22", "-18.1"}, {"23", "-22"},  {"4", "-21"},
      {"5", "-16"},  {"26", "24"},  {"27", "29.9"}, {"8", "78.2"}};
  for (const auto& [spalte, text] : zellen) EXPECT_EQ(erste[spalte], text) << spalte;
  EXPECT_TRUE(erste.contains("10")) << "superheat";
  EXPECT_TRUE(daten.da("night.fmd"));
  EXPECT_FALSE(daten.da("FM_diag.dat"));
}

TEST(LoggerDownload, TakesSixHundredLinesAndTellsThatThereAreMore) {
  const Loggerordner daten;
  daten.schreib("x.adc", adc(600));
  daten.schreib("y.adc", adc(601));
  const Stellvertreter geraet(
      {"--file", "x.adc=" + daten.pfad("x.adc"), "--file", "y.adc=" + daten.pfad("y.adc")});
  const Antwort genau = logger(daten, geraet, {"download", "x.adc", "--json"});
  EXPECT_EQ(genau.status, 0) << genau.fehler;
  EXPECT_EQ(genau.json()["cells"].size(), 600U);
  const Antwort mehr = logger(daten, geraet, {"download", "y.adc", "--out", "y.fmd", "--json"});
  EXPECT_EQ(mehr.status, 1);
  EXPECT_TRUE(hat(mehr.fehler, "more than 600 lines")) << mehr.fehler;
  EXPECT_EQ(mehr.json()["cells"].size(), 600U);
  EXPECT_GE(Inhalt(daten.lies("y.fmd")).ganze_Zeilen, 600);
}

TEST(LoggerDownload, OfANameThatIsNotThereGivesNothing) {
  const Loggerordner daten;
  const Stellvertreter geraet({"--step", "5"});
  const Antwort a = logger(daten, geraet, {"download", "none.adc", "--out", "none.fmd"});
  EXPECT_EQ(a.status, 1);
  EXPECT_TRUE(hat(a.fehler, "no file \"none.adc\"")) << a.fehler;
  EXPECT_FALSE(daten.da("none.fmd"));
  EXPECT_EQ(logger(daten, geraet, {"download"}).status, 2);
}

// The device answers with whatever has the transfer name.
TEST(LoggerDownload, OfAFormerTransfersFileIsTold) {
  const Loggerordner daten;
  daten.schreib("x.adc", adc(4));
  const Stellvertreter geraet({"--file", "x.adc=" + daten.pfad("x.adc")});
  EXPECT_FALSE(hat(logger(daten, geraet, {"download", "x.adc"}).fehler, "aaaa.adc"));
  const Antwort noch_einmal = logger(daten, geraet, {"download", "x.adc", "--json"});
  EXPECT_EQ(noch_einmal.status, 0);
  EXPECT_EQ(noch_einmal.json()["cells"].size(), 4U);
  EXPECT_TRUE(hat(noch_einmal.fehler, "does not name \"x.adc\"") &&
              hat(noch_einmal.fehler, "\"aaaa.adc\""))
      << noch_einmal.fehler;
  EXPECT_FALSE(hat(logger(daten, geraet, {"download", "aaaa.adc"}).fehler, "does not name"));
}

TEST(LoggerDownload, OfAnEmptyFileGivesNothing) {
  const Loggerordner daten;
  daten.schreib("x.adc", "");
  const Stellvertreter geraet({"--file", "x.adc=" + daten.pfad("x.adc")});
  const Antwort a = logger(daten, geraet, {"download", "x.adc", "--out", "x.fmd"});
  EXPECT_EQ(a.status, 1);
  EXPECT_TRUE(hat(a.fehler, "sent no rows of \"x.adc\"")) << a.fehler;
  EXPECT_FALSE(daten.da("x.fmd"));
}

// --- Calibration

TEST(LoggerCalibration, PullsAllTemperaturesToTheFirst) {
  const Loggerordner daten;
  daten.schreib("FM_diag.dat", messdateien::kuehlhaus_datei(3).text());
  const std::string kopie = daten.lies("FM_diag.dat");
  const Stellvertreter geraet({"--bath", "20"});
  const Antwort a = logger(daten, geraet, {"calibrate", "temperature", "--json"});
  ASSERT_EQ(a.status, 0) << a.fehler;
  // The bath's errors by input, 0 0.3 -0.2 0.1 -0.4 0.2 -0.1 0.6, in the order of the slots.
  const std::vector<double> erwartet{0, -.1, .4, -.6, -.3, .2, -.2, .1};
  const std::vector<std::string> zeilen = messdateien::items(daten.lies("FMD_OFFS.dat"));
  ASSERT_EQ(zeilen.size(), 48U);
  for (std::size_t n = 0; n < 8; ++n) {
    EXPECT_NEAR(std::stod(zeilen[n]), erwartet[n], 1e-9) << n + 1;
    EXPECT_NEAR(a.json()[std::to_string(n + 1)].get<double>(), erwartet[n], 1e-9) << n + 1;
  }
  for (std::size_t n = 8; n < 48; ++n) EXPECT_EQ(zeilen[n], "0") << n + 1;
  EXPECT_EQ(daten.lies("FM_diag.dat"), kopie);
  EXPECT_TRUE(daten.beiseite().empty());

  // From now on all sensors in the bath read the same.
  daten.planen(2);
  const Json j = daten.rufe(daten.lauf(geraet, {"--json"})).json();
  const std::string erste = j["cells"]["3"]["9"];
  for (const char* spalte : {"4", "5", "8", "22", "23", "26", "27"})
    EXPECT_NEAR(std::stod(j["cells"]["3"][spalte].get<std::string>()), std::stod(erste), 1e-9)
        << spalte;
}

TEST(LoggerCalibration, OfPressuresShowsAndKeepsTheOffsets) {
  const Loggerordner daten;
  const std::string vorher = "\"0.5\"\r\n\"-0.5\"\r\n";
  std::string offsets = vorher;
  for (int n = 2; n < 48; ++n) offsets += "\"0\"\r\n";
  daten.schreib("FMD_OFFS.dat", offsets);
  const Stellvertreter geraet({"--bath", "20"});
  const Antwort a = logger(daten, geraet, {"calibrate", "pressure", "--json"});
  ASSERT_EQ(a.status, 0) << a.fehler;
  ASSERT_EQ(a.json().size(), 1U);
  EXPECT_NEAR(a.json()["7"].get<double>(), -.06, 1e-9);
  EXPECT_EQ(daten.lies("FMD_OFFS.dat"), offsets);
  EXPECT_FALSE(daten.da("FM_diag.dat"));
  EXPECT_TRUE(hat(logger(daten, geraet, {"calibrate", "pressure"}).ausgabe, "bar"));
}

TEST(LoggerCalibration, ThatLosesItsDeviceLeavesTheOffsets) {
  const Loggerordner daten;
  const std::string offsets = "\"0.5\"\r\n";
  daten.schreib("FMD_OFFS.dat", offsets);
  const Stellvertreter geraet({"--bath", "20", "--die-after", "4"});
  const Antwort a = logger(daten, geraet, {"calibrate", "temperature"});
  EXPECT_EQ(a.status, 1);
  EXPECT_TRUE(hat(a.fehler, "offsets stay as they were")) << a.fehler;
  EXPECT_EQ(daten.lies("FMD_OFFS.dat"), offsets);
  EXPECT_FALSE(daten.da("FM_diag.dat"));
}

TEST(LoggerCalibration, OfAnotherKindIsAWrongCall) {
  const Loggerordner daten;
  EXPECT_EQ(daten.rufe({"logger", "calibrate", "humidity"}).status, 2);
  EXPECT_EQ(daten.rufe({"logger", "calibrate"}).status, 2);
}

}  // namespace
