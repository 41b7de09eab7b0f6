#include "platform/seriell.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <pty.h>
#include <sys/file.h>
#include <sys/wait.h>
#include <termios.h>
#include <unistd.h>

#include <chrono>
#include <filesystem>
#include <thread>

#include "platform/leitung.h"
#include "support/temp_folder.h"

using namespace polarkreis;

namespace {

/// A pseudo terminal whose far end the test holds.
class Gegenstelle {
 public:
  Gegenstelle() {
    char name[128] = {};
    if (::openpty(&fern_, &nah_, name, nullptr, nullptr) != 0) return;
    geraet = name;
    ::fcntl(fern_, F_SETFL, O_NONBLOCK);
  }
  ~Gegenstelle() { reisse_ab(); }
  Gegenstelle(const Gegenstelle&) = delete;
  Gegenstelle& operator=(const Gegenstelle&) = delete;

  void sende(std::string_view text) const {
    EXPECT_EQ(::write(fern_, text.data(), text.size()), static_cast<ssize_t>(text.size()));
  }
  std::string empfange() const {
    std::string text;
    char puffer[4096];
    for (int versuch = 0; versuch < 20; ++versuch, ::usleep(1000))
      while (true) {
        const ssize_t n = ::read(fern_, puffer, sizeof puffer);
        if (n <= 0) break;
        text.append(puffer, static_cast<std::size_t>(n));
      }
    return text;
  }
  void reisse_ab() {
    if (fern_ >= 0) ::close(fern_);
    if (nah_ >= 0) ::close(nah_);
    fern_ = nah_ = -1;
  }

  std::string geraet;

 private:
  int fern_ = -1, nah_ = -1;
};

/// What arrives within a second; the text, once it holds `bis`.
std::string warte_auf(Seriellschnittstelle& port, std::string_view bis) {
  std::string text;
  for (int ms = 0; ms < 1000 && text.find(bis) == std::string::npos; ++ms, ::usleep(1000))
    text += port.Lesen();
  return text;
}

class SeriellTest : public testing::Test {
 protected:
  SeriellTest() {
    port.zuweisen(1, gegenstelle.geraet);
    port.Port(1);
  }
  Gegenstelle gegenstelle;
  Seriellschnittstelle port;
};

}  // namespace

TEST(Leitungseinstellung, ReadsBaudParityDataAndStopBits) {
  EXPECT_EQ(Leitungseinstellung_lesen("9600,N,8,1"), (Leitungseinstellung{9600, 'N', 8, 1}));
  EXPECT_EQ(Leitungseinstellung_lesen("115200,e,7,2"), (Leitungseinstellung{115200, 'E', 7, 2}));
  EXPECT_EQ(Leitungseinstellung_lesen(" 4800 , O , 8 , 1 "),
            (Leitungseinstellung{4800, 'O', 8, 1}));
}

TEST(Leitungseinstellung, FieldsLeftOutAreTheUsualOnes) {
  EXPECT_EQ(Leitungseinstellung_lesen("19200"), (Leitungseinstellung{19200, 'N', 8, 1}));
}

TEST(Leitungseinstellung, RefusesWhatNoLineHas) {
  for (const char* text :
       {"", "fast", "9600 baud", "0", "-9600", "9600,X,8,1", "9600,N,9,1", "9600,N,8,3",
        "9600,N,8,1,1", "9600,,8,1", "9600,N,8,", "99999999999999"})
    EXPECT_FALSE(Leitungseinstellung_lesen(text)) << text;
}

TEST(GeraetVor, ComparesNumbersInNamesByValue) {
  EXPECT_TRUE(Geraet_vor("/dev/ttyS2", "/dev/ttyS10"));
  EXPECT_FALSE(Geraet_vor("/dev/ttyS10", "/dev/ttyS2"));
  EXPECT_FALSE(Geraet_vor("/dev/ttyS2", "/dev/ttyS2"));
  EXPECT_TRUE(Geraet_vor("/dev/ttyACM0", "/dev/ttyS0"));
  EXPECT_TRUE(Geraet_vor("/dev/ttyS9", "/dev/ttyUSB0"));
  EXPECT_TRUE(Geraet_vor("/dev/ttyS", "/dev/ttyS0"));
  EXPECT_TRUE(Geraet_vor("/dev/tty007", "/dev/tty8"));
  EXPECT_TRUE(Geraet_vor("a99999999999999999998", "a99999999999999999999"));
}

TEST(Seriell, ListIsSortedAndNumberedFromOne) {
  const Seriellschnittstelle port;
  const std::vector<Seriellgeraet> liste = port.liste();
  for (std::size_t i = 0; i < liste.size(); ++i) {
    EXPECT_EQ(liste[i].nummer, static_cast<int>(i) + 1);
    EXPECT_FALSE(liste[i].zugewiesen);
    EXPECT_TRUE(i == 0 || Geraet_vor(liste[i - 1].geraet, liste[i].geraet)) << liste[i].geraet;
  }
}

TEST(Seriell, AssignedDevicesStandInTheListInPlaceOfTheSystems) {
  Seriellschnittstelle port;
  port.zuweisen(1, "/dev/one");
  port.zuweisen(700, "/dev/far");
  const std::vector<Seriellgeraet> liste = port.liste();
  ASSERT_GE(liste.size(), 2U);
  EXPECT_EQ(liste.front().geraet, "/dev/one");
  EXPECT_TRUE(liste.front().zugewiesen);
  EXPECT_EQ(liste.back().nummer, 700);
  for (std::size_t i = 1; i < liste.size(); ++i) EXPECT_LT(liste[i - 1].nummer, liste[i].nummer);
  port.zuweisen(700, "");
  EXPECT_NE(port.liste().back().nummer, 700);
}

TEST_F(SeriellTest, AReplyThatHasBegunIsReadToItsEnd) {
  port.Ruhe_ms = 500;  // far more than any pause between the pieces
  port.Oeffnen();
  std::thread langsam([this] {
    for (const char* stueck : {"400.1 ", "399.8 ", "400.4 ", "12:05:09ok"}) {
      gegenstelle.sende(stueck);
      ::usleep(5000);
    }
  });
  std::string text;
  while (text.empty()) text = port.Lesen();
  langsam.join();
  EXPECT_EQ(text, "400.1 399.8 400.4 12:05:09ok");
}

TEST_F(SeriellTest, SendsAndReceivesRawBytes) {
  port.Oeffnen();
  ASSERT_FALSE(port.Fehler()) << port.Grund();
  port.Schreiben("ec %*\r\n\x03\x11");
  EXPECT_EQ(gegenstelle.empfange(), "ec %*\r\n\x03\x11");
  gegenstelle.sende("1 2 3\r\n\x04\x13 ok");
  EXPECT_EQ(warte_auf(port, "ok"), "1 2 3\r\n\x04\x13 ok");
  EXPECT_FALSE(port.Fehler()) << port.Grund();
}

TEST_F(SeriellTest, NothingIsEchoed) {
  port.Oeffnen();
  gegenstelle.sende("hello");
  warte_auf(port, "hello");
  EXPECT_EQ(gegenstelle.empfange(), "");
}

TEST_F(SeriellTest, ReadingWithNothingReceivedGivesNothingAtOnce) {
  port.Oeffnen();
  const auto beginn = std::chrono::steady_clock::now();
  EXPECT_EQ(port.Lesen(), "");
  EXPECT_LT(std::chrono::steady_clock::now() - beginn, std::chrono::milliseconds(800));
  EXPECT_FALSE(port.Fehler());
}

TEST_F(SeriellTest, OpeningDropsWhatLiesInTheLine) {
  port.Oeffnen();
  port.Schliessen();
  gegenstelle.sende("late reply ok");
  ::usleep(20'000);
  port.Oeffnen();
  gegenstelle.sende("new");
  EXPECT_EQ(warte_auf(port, "new"), "new");
}

TEST_F(SeriellTest, OpensAndClosesAroundEveryRequest) {
  for (int i = 0; i < 100; ++i) {
    port.Einstellungen(i % 2 == 0 ? "9600,N,8,1" : "19200,N,8,1");
    port.Oeffnen();
    port.Schreiben("?" + std::to_string(i));
    gegenstelle.sende("!" + std::to_string(i) + ".");
    ASSERT_EQ(warte_auf(port, "."), "!" + std::to_string(i) + ".");
    ASSERT_EQ(gegenstelle.empfange(), "?" + std::to_string(i));
    ASSERT_FALSE(port.Fehler()) << port.Grund();
    port.Schliessen();
  }
}

TEST_F(SeriellTest, LinkToADeviceServes) {
  const TempOrdner ordner;
  std::filesystem::create_symlink(gegenstelle.geraet, ordner.pfad("logger"));
  port.zuweisen(1, ordner.pfad("logger"));
  port.Oeffnen();
  EXPECT_FALSE(port.Fehler()) << port.Grund();
}

TEST_F(SeriellTest, MissingDeviceFails) {
  port.zuweisen(3, "/dev/no-such-logger");
  port.Port(3);
  port.Oeffnen();
  EXPECT_TRUE(port.Fehler());
  EXPECT_NE(port.Grund().find("COM3: /dev/no-such-logger"), std::string::npos) << port.Grund();
  port.Schreiben("ec %*\r");
  EXPECT_EQ(port.Lesen(), "");
  port.Schliessen();
  EXPECT_TRUE(port.Fehler());
  EXPECT_NE(port.Grund().find("/dev/no-such-logger"), std::string::npos) << port.Grund();
}

TEST_F(SeriellTest, NumberWithoutAPortFails) {
  for (const int nummer : {0, -1, 100000}) {
    port.Port(nummer);
    port.Oeffnen();
    EXPECT_TRUE(port.Fehler()) << nummer;
  }
  port.Port(1);
  port.Oeffnen();
  EXPECT_FALSE(port.Fehler()) << "the next opening starts afresh";
  EXPECT_EQ(port.Grund(), "");
}

TEST_F(SeriellTest, WhatIsNoSerialPortFails) {
  const TempOrdner ordner;
  ordner.schreib("plain", "text");
  for (const std::string& geraet :
       {ordner.pfad(), ordner.pfad("plain"), std::string("/dev/null")}) {
    port.zuweisen(1, geraet);
    port.Oeffnen();
    EXPECT_TRUE(port.Fehler()) << geraet;
  }
  EXPECT_EQ(ordner.lies("plain"), "text");
}

TEST_F(SeriellTest, SettingsThatAreNoneFail) {
  port.Einstellungen("fast");
  port.Oeffnen();
  EXPECT_TRUE(port.Fehler());
}

TEST_F(SeriellTest, PortInUseByAnotherProgramFails) {
  const int fremd = ::open(gegenstelle.geraet.c_str(), O_RDWR | O_NOCTTY);
  ASSERT_EQ(::flock(fremd, LOCK_EX), 0);
  port.Oeffnen();
  EXPECT_TRUE(port.Fehler());
  ::close(fremd);
  port.Oeffnen();
  EXPECT_FALSE(port.Fehler()) << port.Grund();
}

TEST_F(SeriellTest, SecondUserWaitsForTheFirst) {
  Seriellschnittstelle zweite;
  zweite.zuweisen(1, gegenstelle.geraet);
  zweite.Port(1);
  port.Oeffnen();
  zweite.Oeffnen();
  EXPECT_TRUE(zweite.Fehler());
  port.Schliessen();
  zweite.Oeffnen();
  EXPECT_FALSE(zweite.Fehler()) << zweite.Grund();
}

TEST_F(SeriellTest, WritingToAHungLineEndsWithinASecond) {
  port.Oeffnen();
  const auto beginn = std::chrono::steady_clock::now();
  port.Schreiben(std::string(1'000'000, 'x'));
  port.Schliessen();
  const auto dauer = std::chrono::steady_clock::now() - beginn;
  EXPECT_TRUE(port.Fehler());
  EXPECT_GE(dauer, std::chrono::milliseconds(900));
  EXPECT_LT(dauer, std::chrono::milliseconds(5000));
}

TEST_F(SeriellTest, LineThatDiesInTheMiddleOfAReplyFails) {
  port.Oeffnen();
  gegenstelle.sende("231.4 230.1 23");
  EXPECT_EQ(warte_auf(port, "1 23"), "231.4 230.1 23");
  EXPECT_FALSE(port.Fehler());
  gegenstelle.reisse_ab();
  EXPECT_EQ(port.Lesen(), "");
  EXPECT_TRUE(port.Fehler());
  EXPECT_NE(port.Grund().find("gone"), std::string::npos) << port.Grund();
  port.Schliessen();
  port.Oeffnen();
  EXPECT_TRUE(port.Fehler());
}

TEST_F(SeriellTest, WritingToALineThatDiedFails) {
  port.Oeffnen();
  gegenstelle.reisse_ab();
  port.Schreiben("ec %*\r");
  EXPECT_TRUE(port.Fehler());
}

TEST_F(SeriellTest, ClosedPortGivesNothingAndSaysSo) {
  EXPECT_FALSE(port.Fehler());
  EXPECT_EQ(port.Lesen(), "");
  EXPECT_TRUE(port.Fehler());
  port.Oeffnen();
  EXPECT_FALSE(port.Fehler());
}

TEST_F(SeriellTest, DeviceThatNeverStopsSendingDoesntHoldTheReader) {
  port.Oeffnen();
  const std::string viel(4000, 'x');
  for (int i = 0; i < 3; ++i) {
    gegenstelle.sende(viel);
    EXPECT_LE(port.Lesen().size(), 1U << 19);
  }
  EXPECT_FALSE(port.Fehler());
}

TEST_F(SeriellTest, PortIsNotInheritedByProgramsThatAreStarted) {
  port.Oeffnen();
  int gefunden = 0;
  for (const auto& eintrag : std::filesystem::directory_iterator("/proc/self/fd")) {
    std::error_code fehler;
    if (std::filesystem::read_symlink(eintrag, fehler) != gegenstelle.geraet) continue;
    const int nummer = std::stoi(eintrag.path().filename().string());
    if ((::fcntl(nummer, F_GETFD) & FD_CLOEXEC) != 0) ++gefunden;
  }
  EXPECT_EQ(gefunden, 1);
}

TEST_F(SeriellTest, LineDoesntBecomeTheControllingTerminal) {
  // Only the leader of a session without a terminal could get one by opening a port.
  const pid_t kind = ::fork();
  ASSERT_GE(kind, 0);
  if (kind == 0) {
    ::setsid();
    port.Oeffnen();
    const int terminal = ::open("/dev/tty", O_RDWR);
    ::_exit(port.Fehler() ? 2 : terminal >= 0 ? 1 : 0);
  }
  int stand = 0;
  ::waitpid(kind, &stand, 0);
  EXPECT_TRUE(WIFEXITED(stand));
  EXPECT_EQ(WEXITSTATUS(stand), 0);
}
