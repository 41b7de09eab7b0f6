#include "diagnostics/arbeitsmappe.h"

#include <gtest/gtest.h>

#include <cstring>

#include "platform/arbeitsmappen.h"
#include "platform/zeitwert.h"
#include "support/tabellenprogramm.h"

using namespace polarkreis;

namespace {

/// Opens and expects to succeed.
std::unique_ptr<Arbeitsmappe> offen(const std::string& pfad) {
  std::string grund;
  auto mappe = Arbeitsmappen().oeffne(pfad, grund);
  EXPECT_TRUE(mappe) << grund;
  EXPECT_EQ(grund, "");
  return mappe ? std::move(mappe) : std::make_unique<Arbeitsmappe>();
}

std::string grund_von(const std::string& pfad) {
  std::string grund;
  EXPECT_FALSE(Arbeitsmappen().oeffne(pfad, grund));
  return grund;
}

double zahl(const Zellinhalt& zelle) {
  return std::holds_alternative<double>(zelle) ? std::get<double>(zelle) : -1e9;
}
double zeit(const Zellinhalt& zelle) {
  return std::holds_alternative<Zeitwert>(zelle) ? std::get<Zeitwert>(zelle).Tage : -1e9;
}
std::string text(const Zellinhalt& zelle) {
  return std::holds_alternative<std::string>(zelle) ? std::get<std::string>(zelle) : "no text";
}
bool leere(const Zellinhalt& zelle) {
  return std::holds_alternative<std::monostate>(zelle);
}

const std::string Blatt = offenes_Blatt(
    offene_Zeile(Textzelle("Kälteträger °C") + Zahlzelle("1.5") + Zahlzelle("-20") +
                 Textzelle("12") + Textzelle("a &amp; \"b\"")) +
    offene_Zeile(leere_Zellen(88) + Zahlzelle("88.125")) +  // "CK2"
    leere_Zeilen(22) +
    offene_Zeile(leere_Zellen(3) + Datumzelle("2026-11-20T16:25:03") + Uhrzelle("PT06H05M07S") +
                 Uhrzelle("PT00H00M00S") + Zahlzelle("0")));  // row 25

void pruefe(const Arbeitsmappe& mappe) {
  EXPECT_EQ(text(mappe.Range("A1")), "Kälteträger °C");
  EXPECT_EQ(zahl(mappe.Range("B1")), 1.5);
  EXPECT_EQ(zahl(mappe.Range("C1")), -20);
  EXPECT_EQ(text(mappe.Range("D1")), "12");
  EXPECT_EQ(text(mappe.Range("E1")), "a & \"b\"");
  EXPECT_TRUE(leere(mappe.Range("F1")));
  EXPECT_EQ(zahl(mappe.Range("CK2")), 88.125);
  EXPECT_TRUE(leere(mappe.Range("D24")));
  // 20 November 2026 is day 46346 of the count that begins on 30 December 1899.
  EXPECT_NEAR(zeit(mappe.Range("D25")), 46346 + (16 * 3600 + 25 * 60 + 3) / 86400.0, 1e-6);
  EXPECT_NEAR(zeit(mappe.Range("E25")), (6 * 3600 + 5 * 60 + 7) / 86400.0, 1e-6);
  EXPECT_NEAR(zeit(mappe.Range("F25")), 0, 1e-6);
  EXPECT_EQ(zahl(mappe.Range("G25")), 0);
  EXPECT_EQ(mappe.letzte_Zeile(), 25);
}

}  // namespace

// --- Cells by their names

TEST(Arbeitsmappe, NamesGiveRowAndColumn) {
  const auto ort = [](std::string_view name) {
    const Zellort o = Zellort_von(name);
    return std::pair{o.zeile, o.spalte};
  };
  EXPECT_EQ(ort("A1"), (std::pair{1, 1}));
  EXPECT_EQ(ort("E5"), (std::pair{5, 5}));
  EXPECT_EQ(ort("Z10"), (std::pair{10, 26}));
  EXPECT_EQ(ort("AA10"), (std::pair{10, 27}));
  EXPECT_EQ(ort("CK25"), (std::pair{25, 89}));
  EXPECT_EQ(ort("XFD1048576"), (std::pair{1048576, 16384}));
  for (const char* name : {"", "A", "5", "A0", "5A", "a1", "A1B", "A-1", "A1048577", "XFE1",
                           "ZZZZZZZZ1", "A99999999999"})
    EXPECT_EQ(ort(name), (std::pair{0, 0})) << name;
}

TEST(Arbeitsmappe, CellsOutsideAndEmptyOnesAreEmpty) {
  Arbeitsmappe mappe;
  EXPECT_EQ(mappe.letzte_Zeile(), 0);
  mappe.setze(0, 1, 1.0);
  mappe.setze(1, 0, 1.0);
  mappe.setze(1048577, 1, 1.0);
  mappe.setze(1, 16385, 1.0);
  mappe.setze(9, 9, Zellinhalt{});
  EXPECT_EQ(mappe.letzte_Zeile(), 0);
  mappe.setze(7, 3, std::string("x"));
  mappe.setze(7, 1, 2.0);
  mappe.setze(7, 3, 3.0);
  EXPECT_EQ(zahl(mappe.Range("C7")), 3);
  EXPECT_EQ(zahl(mappe.Range("A7")), 2);
  EXPECT_TRUE(leere(mappe.Range("B7")));
  EXPECT_TRUE(leere(mappe.Range("nothing")));
  EXPECT_EQ(mappe.letzte_Zeile(), 7);
}

TEST(Zeitwert, TextsOfDatesAndClockTimesAreRead) {
  const auto tage = [](std::string_view text) {
    const auto z = Zeitwert_von(text);
    return z ? z->Tage : -1;
  };
  EXPECT_EQ(tage("1899-12-31"), 1);
  EXPECT_EQ(tage("2026-11-20"), 46346);
  EXPECT_EQ(tage("12:00:00"), 0.5);
  EXPECT_EQ(tage("06:00"), 0.25);
  EXPECT_EQ(tage("2026-11-20 12:00:00"), 46346.5);
  EXPECT_EQ(tage("2026-11-20T12:00:00.123"), 46346.5);
  for (const char* kein : {"", "x", "12", "2026-13-01", "2026-02-30", "2026-11-20 x", "ab:cd:ef",
                           "2026-11", "20.11.2026"})
    EXPECT_EQ(tage(kein), -1) << kein;
}

// --- Files of a real spreadsheet program

TEST(Arbeitsmappen, XlsxOfASpreadsheetProgramIsRead) {
  TempOrdner ordner;
  ordner.schreib("a.fods", Blatt);
  ASSERT_TRUE(Tabellenprogramm().wandle(ordner, "a.fods", "xlsx"));
  pruefe(*offen(ordner.pfad("a.xlsx")));
}

TEST(Arbeitsmappen, XlsOfASpreadsheetProgramIsRead) {
  TempOrdner ordner;
  ordner.schreib("a.fods", Blatt);
  ASSERT_TRUE(Tabellenprogramm().wandle(ordner, "a.fods", "xls"));
  pruefe(*offen(ordner.pfad("a.xls")));
}

TEST(Arbeitsmappen, ContentDecidesNotTheName) {
  TempOrdner ordner;
  std::ifstream xlsx(POLARKREIS_DATA "/Testo 735 condenser.xlsx", std::ios::binary);
  ordner.schreib("a.xls", std::string(std::istreambuf_iterator<char>(xlsx), {}));
  std::ifstream xls(POLARKREIS_DATA "/Testo 735 condenser.xls", std::ios::binary);
  ordner.schreib("b.xlsx", std::string(std::istreambuf_iterator<char>(xls), {}));
  EXPECT_EQ(offen(ordner.pfad("a.xls"))->letzte_Zeile(), 242);
  EXPECT_EQ(offen(ordner.pfad("b.xlsx"))->letzte_Zeile(), 242);
}

// --- Files that can't be read

TEST(Arbeitsmappen, MissingFilesFoldersAndOtherFormatsSayWhy) {
  TempOrdner ordner;
  ordner.schreib("empty.xls", "");
  ordner.schreib("text.xls", "a;b;c\r\n1;2;3\r\n");
  EXPECT_EQ(grund_von(ordner.pfad("none.xlsx")),
            "The worksheet " + ordner.pfad("none.xlsx") +
                " can't be read: it is not there. Check the name and the folder.");
  EXPECT_NE(grund_von(ordner.pfad()).find("a folder has this name"), std::string::npos);
  EXPECT_NE(grund_von(ordner.pfad("empty.xls")).find("it is empty."), std::string::npos);
  EXPECT_NE(grund_von(ordner.pfad("text.xls")).find("it is neither .xls nor .xlsx."),
            std::string::npos);
  EXPECT_FALSE(ordner.da("none.xlsx"));
}

TEST(Arbeitsmappen, CutOffFilesGiveAReasonOrTheirCells) {
  TempOrdner ordner;
  for (const char* name : {"Testo 735 condenser.xls", "Testo 735 condenser.xlsx"}) {
    std::ifstream datei(std::string(POLARKREIS_DATA "/") + name, std::ios::binary);
    const std::string bytes(std::istreambuf_iterator<char>(datei), {});
    for (std::size_t laenge = 8; laenge < bytes.size(); laenge += bytes.size() / 40) {
      ordner.schreib("cut", bytes.substr(0, laenge));
      std::string grund;
      const auto mappe = Arbeitsmappen().oeffne(ordner.pfad("cut"), grund);
      EXPECT_NE(mappe == nullptr, grund.empty()) << name << " " << laenge;
    }
  }
}

TEST(Arbeitsmappen, DamagedFilesGiveAReasonOrTheirCells) {
  TempOrdner ordner;
  std::uint32_t zufall = 12345;
  const auto naechste = [&zufall] { return zufall = zufall * 1664525 + 1013904223; };
  for (const char* name : {"Testo 735 evaporator.xls", "Testo 735 evaporator.xlsx"}) {
    std::ifstream datei(std::string(POLARKREIS_DATA "/") + name, std::ios::binary);
    const std::string bytes(std::istreambuf_iterator<char>(datei), {});
    for (int lauf = 0; lauf < 60; ++lauf) {
      std::string kaputt = bytes;
      for (int i = 0; i < 20; ++i)
        kaputt[8 + (naechste() >> 8) % (kaputt.size() - 8)] = static_cast<char>(naechste() >> 24);
      ordner.schreib("broken", kaputt);
      std::string grund;
      const auto mappe = Arbeitsmappen().oeffne(ordner.pfad("broken"), grund);
      EXPECT_NE(mappe == nullptr, grund.empty()) << name << " " << lauf;
    }
  }
}
