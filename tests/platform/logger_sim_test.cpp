#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <sstream>

#include "platform/seriell.h"
#include "support/stellvertreter.h"
#include "support/temp_folder.h"

using namespace polarkreis;

namespace {

std::vector<std::string> woerter(const std::string& text) {
  std::istringstream strom(text);
  return {std::istream_iterator<std::string>(strom), {}};
}

/// A conversation with the stand-in over its pseudo terminal, by the program's own serial port.
class Gespraech {
 public:
  explicit Gespraech(std::vector<std::string> argumente) : geraet(std::move(argumente)) {
    port.zuweisen(1, geraet.geraet());
    port.Port(1);
  }

  /// Opens, asks, and closes again. Ends when `bis` has come, or after `ms` milliseconds.
  std::string frage(const std::string& befehl, std::string_view bis, int ms = 2000) {
    port.Oeffnen();
    EXPECT_FALSE(port.Fehler()) << port.Grund();
    port.Schreiben(befehl + "\r");
    std::string text;
    for (int i = 0; i < ms && text.find(bis) == std::string::npos && !port.Fehler(); ++i) {
      ::usleep(1000);
      text += port.Lesen();
    }
    verloren = port.Fehler();
    port.Schliessen();
    return text;
  }
  std::string probe(int ms = 2000) { return frage("ec %*", "ok\r\n", ms); }

  Stellvertreter geraet;
  Seriellschnittstelle port;
  bool verloren = false;
};

/// The value of a position, from 1, of a reply.
double position(const std::string& antwort, std::size_t nummer) {
  const std::vector<std::string> teile = woerter(antwort);
  return nummer <= teile.size() ? std::stod(teile[nummer - 1]) : -999;
}

}  // namespace

TEST(LoggerSim, AnswersTheRequestForASample) {
  Gespraech g({"--plant", "R404A", "--phase", "run", "--step", "5", "--seed", "1"});
  ASSERT_NE(g.geraet.geraet(), "");
  const std::string antwort = g.probe();
  EXPECT_GE(antwort.size(), 25U);
  EXPECT_LE(antwort.size(), 600U);
  const std::vector<std::string> teile = woerter(antwort);
  ASSERT_EQ(teile.size(), 18U) << antwort;
  EXPECT_EQ(teile[16], "T08:00:05");
  EXPECT_EQ(teile[17], "ok");
  EXPECT_EQ(antwort.find("  "), std::string::npos) << "one blank between tokens";
  EXPECT_NEAR(position(antwort, 1), 231, 3);
  EXPECT_GT(position(antwort, 8), position(antwort, 7));
}

TEST(LoggerSim, RemoteUnitsLengthenTheReply) {
  for (const auto& [einheiten, tokens] : {std::pair{"0", 16U}, {"1", 32U}, {"2", 53U}}) {
    Gespraech g({"--orbiter", einheiten, "--phase", "run", "--step", "5", "--seed", "1"});
    const std::string antwort = g.probe();
    EXPECT_EQ(woerter(antwort).size(), tokens + 2) << einheiten;
    EXPECT_LE(antwort.size(), 600U);
    if (tokens < 53) continue;
    for (std::size_t i = 0; i < 3; ++i)  // they share columns with the second unit's values
      EXPECT_EQ(position(antwort, 51 + i), position(antwort, 4 + i));
  }
}

TEST(LoggerSim, ReplyTellsTheClassOfTheBox) {
  const auto hat = [](const std::string& text, char zeichen) {
    return std::any_of(text.begin(), text.end(),
                       [&](char c) { return std::toupper(c) == zeichen; });
  };
  const std::string keine = Gespraech({}).probe();
  EXPECT_FALSE(hat(keine, 'M') || hat(keine, 'A')) << keine;
  const std::string m = Gespraech({"--box", "M", "--plant", "R134A"}).probe();
  EXPECT_TRUE(hat(m, 'M')) << m;
  const std::string a = Gespraech({"--box", "A"}).probe();
  EXPECT_TRUE(hat(a, 'A') && !hat(a, 'M')) << a;
}

TEST(LoggerSim, MonitoringBoxHasItsOwnWiring) {
  const std::vector<std::string> anlage{"--plant", "R134A",  "--phase", "run",   "--step",
                                        "5",       "--seed", "1",       "--box", "M"};
  const std::string antwort = Gespraech(anlage).probe();
  EXPECT_NEAR(position(antwort, 10), position(antwort, 12), 0.5) << "the expansion valve's bulb";
  EXPECT_NEAR(position(antwort, 11), 30, 0.5) << "the condenser's flow";
}

TEST(LoggerSim, EchoesOnRequest) {
  Gespraech mit({"--echo"});
  EXPECT_TRUE(mit.probe().starts_with("ec %*\r"));
  EXPECT_TRUE(mit.frage("ls", ": \r\n").starts_with("ls\r"));
  Gespraech nur({"--echo-only"});
  EXPECT_EQ(nur.frage("ec %*", "\r"), "ec %*\r");
  EXPECT_EQ(nur.probe(100), "ec %*\r") << "and nothing behind it";
  EXPECT_EQ(Gespraech({}).probe().find("ec"), std::string::npos);
}

TEST(LoggerSim, TranscriticalPlantSendsWhatTheStandardSensorWouldGive) {
  Gespraech g({"--plant", "R744", "--phase", "run", "--step", "5", "--seed", "1"});
  const std::string antwort = g.probe();
  // A sensor up to 50 bar reads five times, one up to 100 bar twice what the standard one gives.
  EXPECT_NEAR(position(antwort, 8) * 2, 90, 2);
  EXPECT_NEAR(position(antwort, 7) * 5, 26, 2);
  EXPECT_NEAR(position(antwort, 23) * 5, 26, 2);
  EXPECT_NEAR(position(antwort, 24) * 5, 36, 1);
}

TEST(LoggerSim, SameSeedGivesTheSameSamples) {
  const std::vector<std::string> argumente{"--plant", "R717",    "--step", "60",      "--seed",
                                           "7",       "--spike", "0.3",    "--noise", "0.1"};
  const auto folge = [&] {
    Gespraech g(argumente);
    std::string alle;
    for (int i = 0; i < 10; ++i) alle += g.probe(1000);
    return alle;
  };
  const std::string erste = folge();
  EXPECT_GT(erste.size(), 1000U);
  EXPECT_EQ(folge(), erste);
}

TEST(LoggerSim, ListsAndSendsItsFiles) {
  const TempOrdner ordner;
  std::string inhalt;
  for (int i = 0; i < 500; ++i)
    inhalt += "01.03.2026  08:00:00\t1.5\t2.5\t" + std::to_string(i) + "\r\n";
  ordner.schreib("day", inhalt);
  Gespraech g({"--file", "DAY.adc=" + ordner.pfad("day")});
  const std::string liste = g.frage("ls", "DAY.adc");
  EXPECT_TRUE(liste.starts_with("RECORD01.adc ")) << liste;
  EXPECT_EQ(g.frage("mv DAY.adc aaaa.adc", "error", 50), "");
  EXPECT_EQ(g.frage("up-c aaaa.adc", "\t499\r\n"), inhalt);
  EXPECT_EQ(g.frage("up aaaa.adc", "\t499\r\n"), inhalt);
  EXPECT_NE(g.frage("ls", "aaaa.adc").find("aaaa.adc"), std::string::npos);
}

TEST(LoggerSim, RenamingAnotherFileGivesTheFirstItsNameBack) {
  const TempOrdner ordner;
  ordner.schreib("b", "second file\r\n");
  Gespraech g({"--file", "B.adc=" + ordner.pfad("b")});
  g.frage("mv RECORD01.adc aaaa.adc", "error", 50);
  g.frage("mv RECORD01.adc aaaa.adc", "error", 50);
  g.frage("mv B.adc aaaa.adc", "error", 50);
  const std::string liste = g.frage("ls", ": \r\n");
  EXPECT_NE(liste.find("RECORD01.adc"), std::string::npos) << liste;
  EXPECT_EQ(liste.find("B.adc"), std::string::npos) << liste;
  EXPECT_EQ(g.frage("up aaaa.adc", "\r\n"), "second file\r\n");
}

TEST(LoggerSim, RecordedFileHoldsTimeStampsAndTabs) {
  Gespraech g({});
  const std::string text = g.frage("up RECORD01.adc", "09:59:30");
  EXPECT_EQ(text.substr(0, 21), "01.03.2026  08:00:00\t");
  EXPECT_EQ(
      std::count(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(text.find('\r')), '\t'),
      16);
}

TEST(LoggerSim, WhatIsNotThereIsAnError) {
  Gespraech g({});
  for (const char* befehl :
       {"up NONE.adc", "up-c NONE.adc", "mv NONE.adc aaaa.adc", "hello", "up", "mv"})
    EXPECT_NE(g.frage(befehl, "error").find("error"), std::string::npos) << befehl;
}

TEST(LoggerSim, FileWhoseReaderLeftDoesntSpoilTheNextReply) {
  const TempOrdner ordner;
  std::string inhalt;
  for (int i = 0; i < 600; ++i) inhalt += std::to_string(i) + std::string(400, '.') + "\r\n";
  ordner.schreib("big", inhalt + "end");
  Gespraech g({"--file", "BIG.adc=" + ordner.pfad("big")});
  for (int i = 0; i < 3; ++i) {
    g.frage("up-c BIG.adc", "12.", 30);
    ::usleep(60'000);
    EXPECT_EQ(woerter(g.probe()).size(), 18U);
    g.frage("up-c BIG.adc", "12.", 30);
    ::usleep(60'000);
    EXPECT_TRUE(g.frage("up BIG.adc", "end") == inhalt + "end") << "the file from its beginning";
  }
}

TEST(LoggerSim, PlaysARecordedMeasurementLineByLine) {
  const TempOrdner ordner;
  ordner.schreib("m.adc", "01.03.26 08:00:00\t1\t\t2\t3\r\n\r\n01.03.26 08:00:05\t4\t5\t6\r\n");
  Gespraech g({"--adc", ordner.pfad("m.adc"), "--step", "5"});
  EXPECT_EQ(g.probe(), "1 2 3 T08:00:05 ok\r\n");
  EXPECT_EQ(g.probe(), "4 5 6 T08:00:10 ok\r\n");
  EXPECT_EQ(g.probe(), "1 2 3 T08:00:15 ok\r\n");
}

TEST(LoggerSim, ShortAndLongReplies) {
  Gespraech kurz({"--short", "1", "--seed", "1"});
  for (int i = 0; i < 3; ++i) {
    const std::string antwort = kurz.probe(500);
    EXPECT_GT(antwort.size(), 0U);
    EXPECT_LT(antwort.size(), 25U);
  }
  const std::string lang = Gespraech({"--long", "1"}).probe();
  EXPECT_GT(lang.size(), 600U);
  EXPECT_NE(lang.find("ok"), std::string::npos);
}

TEST(LoggerSim, NoiseChangesTheReply) {
  Gespraech ruhig({"--step", "5", "--seed", "1"}),
      gestoert({"--step", "5", "--seed", "1", "--noise", "1"});
  const std::string mit = gestoert.probe(1000), ohne = ruhig.probe();
  EXPECT_EQ(mit.size(), ohne.size());
  EXPECT_NE(mit, ohne);
}

TEST(LoggerSim, SpikesAreValuesThatNoPlantHas) {
  Gespraech g({"--spike", "1", "--step", "5", "--seed", "3"});
  for (int i = 0; i < 20; ++i) {
    const std::string a = g.probe();
    EXPECT_TRUE(position(a, 1) > 750 || position(a, 8) > 86 || position(a, 7) > 17 ||
                (position(a, 7) <= 0 && position(a, 8) <= 0) || position(a, 13) > 200)
        << a;
  }
}

TEST(LoggerSim, LateReplyComesLate) {
  Gespraech g({"--late", "1000"});
  EXPECT_EQ(g.frage("ec %*", "ok", 60), "");
  EXPECT_NE(g.probe().find("ok"), std::string::npos);
}

TEST(LoggerSim, DeadDeviceNeverAnswers) {
  Gespraech g({"--dead"});
  EXPECT_EQ(g.probe(200), "");
  EXPECT_FALSE(g.verloren) << "the line itself stands";
}

TEST(LoggerSim, LineDiesInTheMiddleOfAReply) {
  Gespraech g({"--die-after", "2"});
  EXPECT_NE(g.probe().find("ok"), std::string::npos);
  EXPECT_NE(g.probe().find("ok"), std::string::npos);
  const std::string letzte = g.probe();
  EXPECT_GT(letzte.size(), 25U);
  EXPECT_EQ(letzte.find("ok"), std::string::npos) << letzte;
  EXPECT_TRUE(g.verloren);
  g.port.Oeffnen();
  EXPECT_TRUE(g.port.Fehler());
}

TEST(LoggerSim, LinkIsMadeAndRemoved) {
  const TempOrdner ordner;
  Stellvertreter sim({"--link", ordner.pfad("logger")});
  EXPECT_EQ(std::filesystem::read_symlink(ordner.pfad("logger")), sim.geraet());
  EXPECT_EQ(sim.ende(), 0);
  EXPECT_FALSE(ordner.da("logger"));
}

TEST(LoggerSim, PlantGoesOnWhileNobodyListens) {
  Gespraech g({"--plant", "R404A", "--phase", "start", "--speed", "600"});
  const double vorher = position(g.probe(), 8);
  ::usleep(500'000);  // five minutes of the plant
  EXPECT_GT(position(g.probe(), 8), vorher + 2) << "the high side rises at the start";
}
