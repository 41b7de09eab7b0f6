#include "platform/tabelle_xlsx.h"

#include <gtest/gtest.h>

#include "platform/arbeitsmappe_xlsx.h"
#include "shell/text.h"
#include "shell/wert.h"
#include "support/tabellenprogramm.h"

using namespace polarkreis;

namespace {

std::string T(const char* text) {
  return text;
}

const Tabelle Messung_Beispiel{"Cold store: [R404A]",
                               {{"Time", "t0 [°C]", "Note"}, {"- 1.1 -", "", ""}},
                               {{T("06:00:00"), -25.125, T("  -")},
                                {T("06:00:05"), leer, T("a,\"b\" <&>")},
                                {Tabellenzelle{}, 1e-7, T("12")}}};

std::string bytes_von(const Tabelle& tabelle) {
  std::string grund;
  const auto bytes = als_Xlsx(tabelle, grund);
  EXPECT_TRUE(bytes) << grund;
  return bytes.value_or("");
}

Arbeitsmappe gelesen(const std::string& bytes) {
  std::string grund;
  const auto mappe = lies_xlsx(bytes, grund);
  EXPECT_TRUE(mappe) << grund;
  return mappe ? *mappe : Arbeitsmappe();
}

}  // namespace

TEST(TabelleXlsx, NumbersAreNumbersAndTextsAreTexts) {
  const Arbeitsmappe mappe = gelesen(bytes_von(Messung_Beispiel));
  EXPECT_EQ(mappe.Range("A1"), Zellinhalt(T("Time")));
  EXPECT_EQ(mappe.Range("B1"), Zellinhalt(T("t0 [°C]")));
  EXPECT_EQ(mappe.Range("A2"), Zellinhalt(T("- 1.1 -")));
  EXPECT_EQ(mappe.Range("B2"), Zellinhalt{});
  EXPECT_EQ(mappe.Range("A3"), Zellinhalt(T("06:00:00")));
  EXPECT_EQ(mappe.Range("B3"), Zellinhalt(-25.125));
  EXPECT_EQ(mappe.Range("B4"), Zellinhalt{});
  EXPECT_EQ(mappe.Range("C4"), Zellinhalt(T("a,\"b\" <&>")));
  EXPECT_EQ(mappe.Range("B5"), Zellinhalt(1e-7));
  EXPECT_EQ(mappe.Range("C5"), Zellinhalt(T("12")));
  EXPECT_EQ(mappe.letzte_Zeile(), 5);
}

TEST(TabelleXlsx, SpreadsheetProgramReadsIt) {
  TempOrdner ordner;
  ordner.schreib("m.xlsx", bytes_von(Messung_Beispiel));
  ASSERT_TRUE(Tabellenprogramm().wandle(ordner, "m.xlsx", "csv"));
  EXPECT_EQ(als_utf8(ordner.lies("m.csv")),
            "Time,t0 [°C],Note\n- 1.1 -,,\n06:00:00,-25.125,  -\n06:00:05,,\"a,\"\"b\"\" <&>\"\n"
            ",0.0000001,12\n");
}

TEST(TabelleXlsx, EqualTablesGiveEqualFiles) {
  EXPECT_EQ(bytes_von(Messung_Beispiel), bytes_von(Messung_Beispiel));
}

TEST(TabelleXlsx, AnyNameMakesASheet) {
  for (const char* name : {"", "a/b\\c?d*e[f]g:h", "'quoted'", "History",
                           "a name of more than thirty-one characters, with Ä"}) {
    Tabelle tabelle;
    tabelle.Name = name;
    tabelle.Zeilen = {{1.0}};
    EXPECT_EQ(gelesen(bytes_von(tabelle)).Range("A1"), Zellinhalt(1.0)) << name;
  }
}

TEST(TabelleXlsx, EmptyTableAndLongTextsAreWritten) {
  EXPECT_EQ(gelesen(bytes_von({})).letzte_Zeile(), 0);
  Tabelle tabelle;
  tabelle.Zeilen = {{std::string(40'000, 'x'), 1.0}};
  const Arbeitsmappe mappe = gelesen(bytes_von(tabelle));
  EXPECT_EQ(std::get<std::string>(mappe.Range("A1")).size(), 32'767U);
  EXPECT_EQ(mappe.Range("B1"), Zellinhalt(1.0));
}

TEST(TabelleXlsx, TableThatIsTooLargeSaysSo) {
  std::string grund;
  Tabelle breit;
  breit.Zeilen = {std::vector<Tabellenzelle>(16'385)};
  EXPECT_FALSE(als_Xlsx(breit, grund));
  EXPECT_EQ(grund, "The table is larger than a worksheet can be.");
  Tabelle lang;
  lang.Zeilen.resize(1'048'577);
  EXPECT_FALSE(als_Xlsx(lang, grund));
}

TEST(TabelleXlsx, DayOfAMeasurementIsWrittenAndReadBack) {
  Tabelle tag;
  tag.Zeilen.assign(8640, std::vector<Tabellenzelle>(40, Tabellenzelle(1.25)));
  const Arbeitsmappe mappe = gelesen(bytes_von(tag));
  EXPECT_EQ(mappe.letzte_Zeile(), 8640);
  EXPECT_EQ(mappe.Range("AN8640"), Zellinhalt(1.25));
}
