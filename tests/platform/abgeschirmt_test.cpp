#include "platform/abgeschirmt.h"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <csignal>
#include <stdexcept>
#include <thread>

using namespace polarkreis;

TEST(Abgeschirmt, ResultComesBackWhole) {
  std::string lang(3'000'000, 'x');
  lang[1'500'000] = '\0';
  EXPECT_EQ(abgeschirmt([&lang] { return lang; }), lang);
  EXPECT_EQ(abgeschirmt([] { return std::string(); }), "");
}

TEST(Abgeschirmt, CrashGivesNothing) {
  EXPECT_EQ(abgeschirmt([]() -> std::string {
              std::raise(SIGSEGV);
              return "never";
            }),
            std::nullopt);
  EXPECT_EQ(abgeschirmt([]() -> std::string {
              std::raise(SIGKILL);
              return "never";
            }),
            std::nullopt);
  EXPECT_EQ(abgeschirmt([]() -> std::string { throw std::runtime_error("x"); }), std::nullopt);
}

TEST(Abgeschirmt, EndlessWorkIsEnded) {
  const auto anfang = std::chrono::steady_clock::now();
  EXPECT_EQ(abgeschirmt(
                []() -> std::string {
                  for (;;) std::this_thread::sleep_for(std::chrono::seconds(1));
                },
                {.sekunden = 1}),
            std::nullopt);
  EXPECT_EQ(abgeschirmt(
                []() -> std::string {
                  for (std::atomic<int> i = 0;; ++i) {
                  }
                },
                {.sekunden = 1}),
            std::nullopt);
  EXPECT_LT(std::chrono::steady_clock::now() - anfang, std::chrono::seconds(20));
}

TEST(Abgeschirmt, TooLongAResultGivesNothing) {
  EXPECT_EQ(abgeschirmt([] { return std::string(2000, 'x'); }, {.ergebnis = 1000}), std::nullopt);
  EXPECT_EQ(abgeschirmt([] { return std::string(1000, 'x'); }, {.ergebnis = 1000})->size(), 1000U);
}

#if !defined(__SANITIZE_ADDRESS__)  // a sanitizer needs the address space for itself
TEST(Abgeschirmt, TooMuchMemoryGivesNothing) {
  const auto nimm = [](std::size_t megabyte) {
    return abgeschirmt(
        [megabyte] {
          const std::string viel(megabyte << 20, 'x');
          return viel.substr(0, 1);
        },
        {.speicher = std::size_t{256} << 20});
  };
  EXPECT_EQ(nimm(100), "x");
  EXPECT_EQ(nimm(400), std::nullopt);
}
#endif

TEST(Abgeschirmt, WorkChangesNothingHere) {
  int wert = 1;
  EXPECT_EQ(abgeschirmt([&wert] {
              wert = 2;
              return std::to_string(wert);
            }),
            "2");
  EXPECT_EQ(wert, 1);
}
