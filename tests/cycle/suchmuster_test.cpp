#include "cycle/suchmuster.h"

#include <gtest/gtest.h>

#include "shell/cp850.h"
#include "shell/text.h"

using namespace polarkreis;

namespace {

TEST(Suchmuster, IsFoundAsPartInAnyCase) {
  EXPECT_TRUE(Suchmuster("vx").in("A VX 10"));
  EXPECT_TRUE(Suchmuster(" VX 1 ").in("a vx 10"));
  EXPECT_TRUE(Suchmuster("10").in("VX 10"));
  EXPECT_FALSE(Suchmuster("VX10").in("VX 10"));
  EXPECT_FALSE(Suchmuster("VX 100").in("VX 10"));
  EXPECT_FALSE(Suchmuster("x").in(""));
}

TEST(Suchmuster, UmlautsMatch) {
  EXPECT_TRUE(Suchmuster("kälte ÖST").in("K\x8eLTE \x94stlich"));
  EXPECT_FALSE(Suchmuster("kalte").in("K\x8eLTE"));
}

TEST(Suchmuster, TheEmptyTextIsInAll) {
  for (const char* text : {"", "  ", "\t"})
    for (const char* bytes : {"", "x"}) EXPECT_TRUE(Suchmuster(text).in(bytes));
}

TEST(Suchmuster, WhatThePageCantWriteIsInNone) {
  for (const char* text : {"€", "?€", "č", "冷"}) {
    EXPECT_FALSE(Suchmuster(text).in("?")) << text;
    EXPECT_FALSE(Suchmuster(text).in("")) << text;
  }
}

TEST(Suchmuster, AgreesWithTheCapitalsOfBothAsUtf8ForEveryPairOfBytes) {
  for (int a = 0; a < 256; ++a) {
    const std::string gesucht = aus_CP850(std::string(1, static_cast<char>(a)));
    if (getrimmt(gesucht).empty()) continue;
    const Suchmuster muster(gesucht);
    for (int b = 0; b < 256; ++b) {
      const std::string byte(1, static_cast<char>(b));
      EXPECT_EQ(muster.in(byte), gross(aus_CP850(byte)) == gross(gesucht)) << a << " " << b;
    }
  }
}

}  // namespace
