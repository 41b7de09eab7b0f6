#include <gtest/gtest.h>

#include "gespraech.h"

namespace {

using nlohmann::json;

TEST(CalcMonitor, FlagFindGoesBothWays) {
  const Datenkopie daten;
  EXPECT_EQ(ergebnis(daten, R"({"op":"Flag_find","Text":" ftp + SMS2 ","Richtung":1})"), 10);
  EXPECT_EQ(ergebnis(daten, R"({"op":"Flag_find","Text":"nobody knows","Richtung":1})"), 15);
  EXPECT_EQ(ergebnis(daten, R"({"op":"Flag_find","Text":"","Richtung":1})"), 15);
  EXPECT_EQ(ergebnis(daten, R"({"op":"Flag_find","Text":6,"Richtung":2})"), "E-Mail + SMS2");
  EXPECT_EQ(ergebnis(daten, R"({"op":"Flag_find","Text":"99","Richtung":"2"})"),
            "ftp + E-Mail + SMS1 + SMS2");
  const json falsch = letzte(daten, {R"({"op":"Flag_find","Text":"6","Richtung":3})"});
  EXPECT_NE(falsch.value("error", "").find("Richtung"), std::string::npos) << falsch;
}

TEST(CalcMonitor, AlertsFindGivesRowAndTextOfAnItem) {
  const Datenkopie daten;
  const auto item = [&](const std::string& text) {
    return ergebnis(daten, R"({"op":"alerts_find","item":")" + text + "\"}");
  };
  EXPECT_EQ(item("en=1;"), (json{{"Zeile", 1}, {"Text", "ON"}}));
  EXPECT_EQ(item("en=;"), (json{{"Zeile", 1}, {"Text", "OFF"}}));
  EXPECT_EQ(item("cm=4;"), (json{{"Zeile", 5}, {"Text", ">="}}));
  EXPECT_EQ(item("vl=4;5;"), (json{{"Zeile", 6}, {"Text", "4"}}));
  EXPECT_EQ(item("nt=9;"), (json{{"Zeile", 8}, {"Text", "SMS + E-Mail"}}));
  EXPECT_EQ(item("xx=1;"), (json{{"Zeile", 0}, {"Text", ""}}));
}

TEST(CalcMonitor, RulesArePackedAndRead) {
  const Datenkopie daten;
  EXPECT_EQ(ergebnis(daten, R"({"op":"Alarm_packen","en":"ON","c1":"tc","ro":"  ","c2":"  ",)"
                            R"("cm":">","vl":45,"ti":"10","nt":"SMS + E-Mail"})"),
            "c1=tc;ro=  ;c2=  ;cm=3;vl=45;ti=10;nt=3;en=1;");
  EXPECT_EQ(ergebnis(daten, R"({"op":"Alarm_packen"})"), "c1=;ro=;c2=;cm=3;vl=;ti=;nt=3;en=0;");
  EXPECT_EQ(ergebnis(daten,
                     R"({"op":"Alarm_lesen","text":"c1=po;ro=-;c2=to;cm=1;vl=2;ti=5;nt=2;en=1;"})"),
            (json{{"en", "ON"},
                  {"c1", "po"},
                  {"ro", "-"},
                  {"c2", "to"},
                  {"cm", "<"},
                  {"vl", "2"},
                  {"ti", "5"},
                  {"nt", "E-Mail"}}));
  EXPECT_EQ(ergebnis(daten, R"({"op":"Alarm_lesen","text":"vl=7;junk"})")["vl"], "7");
}

}  // namespace
