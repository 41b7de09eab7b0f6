#include <gtest/gtest.h>

#include "diagnostics/import_desk.h"
#include "platform/arbeitsmappen.h"
#include "support/tabellenprogramm.h"

using namespace polarkreis;

namespace {

struct BlattDesk : ImportDesk {
  Arbeitsmappen leser;
  Importergebnis clima(const std::string& pfad) {
    return import.CC_excel_Import(pfad, leser, [](double) { return 0.8; });
  }
  Importergebnis testo(const std::string& pfad, int kind) {
    return import.Testo_Excel_import(pfad, leser, kind);
  }
};

/// Every cell of the measured rows is the same.
void vergleiche(const Messtabelle& a, const Messtabelle& b) {
  ASSERT_EQ(a.letzte_gefuellte(), b.letzte_gefuellte());
  for (int zeile = 3; zeile <= a.letzte_gefuellte(); ++zeile)
    for (int spalte = 0; spalte <= 170; ++spalte)
      ASSERT_EQ(a.text(zeile, spalte), b.text(zeile, spalte)) << zeile << " " << spalte;
}

const std::string Daten = POLARKREIS_DATA;

}  // namespace

TEST(ImportArbeitsblatt, ClimaCheckSampleIsTheSameInBothFormats) {
  BlattDesk alt, neu;
  const auto ergebnis = alt.clima(Daten + "/ClimaCheck cold store.xls");
  EXPECT_EQ(ergebnis.grund, "");
  EXPECT_EQ(ergebnis.Zeilen, 540);
  EXPECT_EQ(alt.m.Mess_Zeilen, 541);
  EXPECT_EQ(alt.m.ProjektNam, "Cold store");
  EXPECT_EQ(neu.clima(Daten + "/ClimaCheck cold store.xlsx").Zeilen, 540);
  vergleiche(alt.m.DiaSpread, neu.m.DiaSpread);
}

TEST(ImportArbeitsblatt, ClimaCheckSampleIsPlausible) {
  BlattDesk desk;
  desk.clima(Daten + "/ClimaCheck cold store.xlsx");
  const Messtabelle& t = desk.m.DiaSpread;
  EXPECT_EQ(t.text(3, Spalte::Zeit), "06:00:00");
  EXPECT_EQ(t.text(542, Spalte::Zeit), "07:29:50");
  for (int zeile = 3; zeile <= 542; ++zeile) {
    EXPECT_GT(t.zahl(zeile, Spalte::pc), t.zahl(zeile, Spalte::p0));
    const double U = 231, I = t.zahl(zeile, Spalte::I_L2);
    EXPECT_NEAR(t.zahl(zeile, Spalte::P_el), 3 * U * I * 0.8 / 1000, 0.4);
  }
}

TEST(ImportArbeitsblatt, TestoSamplesAreTheSameInBothFormats) {
  for (const auto& [name, kind] : std::vector<std::pair<std::string, int>>{
           {"/Testo 735 evaporator", 1}, {"/Testo 735 condenser", 2}}) {
    BlattDesk alt, neu;
    EXPECT_EQ(alt.testo(Daten + name + ".xls", kind).Zeilen, 240) << name;
    EXPECT_EQ(alt.m.Mess_Zeilen, 241);
    EXPECT_EQ(alt.m.ProjektNam.substr(0, 10), "Cold store");
    EXPECT_EQ(neu.testo(Daten + name + ".xlsx", kind).Zeilen, 240);
    vergleiche(alt.m.DiaSpread, neu.m.DiaSpread);
    EXPECT_EQ(alt.zelle(242, Spalte::Zeit), "00:19:55");
  }
}

TEST(ImportArbeitsblatt, RowOfAProgramWithOnlyColumnEIsTaken) {
  TempOrdner ordner;
  ordner.schreib("t.fods",
                 offenes_Blatt(leere_Zeilen(2) + offene_Zeile(leere_Zellen(4) + Zahlzelle("21.5")) +
                               offene_Zeile(leere_Zellen(3) + Zahlzelle("20") + Zahlzelle("21"))));
  const Tabellenprogramm programm;
  for (const char* format : {"xls", "xlsx"}) {
    ASSERT_TRUE(programm.wandle(ordner, "t.fods", format));
    BlattDesk desk;
    EXPECT_EQ(desk.testo(ordner.pfad("t." + std::string(format)), 1).Zeilen, 2);
    EXPECT_EQ(desk.zelle(3, 16), "21.5");
    EXPECT_EQ(desk.zelle(4, 16), "20.5");
  }
}

TEST(ImportArbeitsblatt, ReasonOfTheReaderComesThrough) {
  BlattDesk desk;
  desk.ordner.schreib("a.xls", "no worksheet");
  EXPECT_NE(desk.clima(desk.ordner.pfad("a.xls")).grund.find("neither .xls nor .xlsx"),
            std::string::npos);
  EXPECT_NE(desk.testo(desk.ordner.pfad("none.xls"), 1).grund.find("it is not there"),
            std::string::npos);
  EXPECT_EQ(desk.m.Messpunkte(), 0);
}
