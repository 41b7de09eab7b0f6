#include <gtest/gtest.h>

#include <sstream>

#include "messdateien.h"

namespace {

using Json = nlohmann::json;
using messdateien::Inhalt;
using messdateien::zelle;
using messdateien::zelle_text;
using Worte = std::vector<std::string>;

/// A data folder with its sample files and settings "s.json".
struct Importordner : Datenkopie {
  Importordner() {
    schreib("s.json", R"({"KaelteM":"R404A","Hub_Volumen":60})");
    schreib("off.json", R"({"Auto_corr_Check":0})");
  }
  Antwort importiere(const std::string& art, const std::string& datei, Worte mehr = {}) const {
    Worte alle{"import", art, datei, "--settings", "s.json", "--out", "out.fmd", "--json"};
    alle.insert(alle.end(), mehr.begin(), mehr.end());
    return rufe(alle);
  }
  /// The figures of an import; what it saved reads back the same, also where it has no pressures.
  Json figuren(const std::string& art, const std::string& datei) const {
    const Antwort a = importiere(art, datei);
    EXPECT_EQ(a.status, 0) << a.fehler;
    const Json wieder =
        rufe({"diagnose", "out.fmd", "--settings", "off.json", "--yes", "--json"}).json();
    EXPECT_EQ(wieder["cells"].size(), a.json()["cells"].size()) << datei;
    return a.json();
  }
};

/// Fields of a line, parted by a character.
Worte felder(const std::string& zeile, char trenner) {
  Worte alle;
  std::istringstream strom(zeile);
  for (std::string feld; std::getline(strom, feld, trenner);) {
    while (!feld.empty() && (feld.back() == '\r' || feld.back() == '"')) feld.pop_back();
    alle.push_back(feld.starts_with('"') ? feld.substr(1) : feld);
  }
  return alle;
}
std::string erste_zeile(const std::string& text) {
  return text.substr(0, text.find('\n'));
}

/// Columns of the positions 1 to 16 of a plain base unit.
constexpr int kSpalten[] = {14, 15, 16, 17, 18, 19, 2, 6, 9, 22, 23, 4, 5, 26, 27, 8};

TEST(ImportAdc, TakesTheColdStoresDay) {
  const Importordner daten;
  const Json j = daten.figuren("adc", "R404A cold store.adc");
  EXPECT_EQ(j["cells"].size(), 1440U);
  EXPECT_EQ(j["ProjektNam"], "R404A cold store.adc");
  EXPECT_EQ(zelle_text(j, 3, 1), "06:00:00");
  EXPECT_EQ(zelle_text(j, 1442, 1), "05:59:00");
  const Worte werte = felder(erste_zeile(daten.lies("R404A cold store.adc")), '\t');
  ASSERT_EQ(werte.size(), 17U);
  for (std::size_t n = 0; n < 16; ++n)
    EXPECT_DOUBLE_EQ(zelle(j, 3, kSpalten[n]), std::stod(werte[n + 1])) << n + 1;
  EXPECT_LT(zelle(j, 50, 3), -20) << "computed behind the import";
  EXPECT_TRUE(j["means"].contains("10"));
  EXPECT_FALSE(daten.da("FM_diag.dat"));
}

TEST(ImportAdc, KnowsTheMonitoringBox) {
  const Importordner daten;
  const Json j = daten.figuren("adc", "R134A monitoring box.adc");
  EXPECT_EQ(j["cells"].size(), 360U);
  EXPECT_EQ(zelle_text(j, 3, 1), "06:00:00");
  EXPECT_DOUBLE_EQ(zelle(j, 3, 36), 14.1) << "position 10 is the bulb";
  EXPECT_DOUBLE_EQ(zelle(j, 3, 25), 30) << "position 11 is the condenser's flow";
  EXPECT_TRUE(std::isnan(zelle(j, 3, 22)));
  EXPECT_DOUBLE_EQ(zelle(j, 3, 31), 32.6) << "liquid of the remote unit";
}

TEST(ImportControl, TakesARowsValuesInTheOrderOfThePositions) {
  const Importordner daten;
  const Json j = daten.figuren("control", "KKP_FMD_TEMP_2.txt");
  EXPECT_EQ(j["cells"].size(), 360U);
  const Worte werte = felder(erste_zeile(daten.lies("KKP_FMD_TEMP_2.txt")), ',');
  ASSERT_EQ(werte.size(), 33U);
  EXPECT_EQ(zelle_text(j, 3, 1), "06:00:00");
  for (std::size_t n = 0; n < 16; ++n)
    EXPECT_DOUBLE_EQ(zelle(j, 3, kSpalten[n]), std::stod(werte[n + 1])) << n + 1;
  EXPECT_DOUBLE_EQ(zelle(j, 3, 43), std::stod(werte[17]));
  EXPECT_DOUBLE_EQ(zelle(j, 3, 38), std::stod(werte[32]));
}

TEST(ImportClimaCheck, TakesBothFormatsAlike) {
  const Importordner daten;
  const Json neu = daten.figuren("climacheck", "ClimaCheck cold store.xlsx");
  const Json alt = daten.figuren("climacheck", "ClimaCheck cold store.xls");
  EXPECT_EQ(neu["cells"], alt["cells"]);
  EXPECT_EQ(neu["cells"].size(), 540U);
  EXPECT_EQ(neu["ProjektNam"], "Cold store");
  // Row 25 of the sheet; temperatures are cut to hundredths downward.
  const std::map<int, double> erwartet{{2, 1.696},    {6, 12.711},  {5, -8.45},    {4, -13.46},
                                       {8, 56.97},    {9, 25},      {14, 231.259}, {15, 230.043},
                                       {16, 231.963}, {17, 17.07},  {18, 15.47},   {19, 15.54},
                                       {22, -17.44},  {23, -19.02}, {26, 25.09},   {27, 26.86}};
  for (const auto& [spalte, wert] : erwartet)
    EXPECT_DOUBLE_EQ(zelle(neu, 3, spalte), wert) << spalte;
  EXPECT_EQ(zelle_text(neu, 3, 1), "06:00:00");
}

TEST(ImportTesto, TakesBothKindsAndFormatsAlike) {
  const Importordner daten;
  const Json verd = daten.figuren("testo-verd", "Testo 735 evaporator.xlsx");
  EXPECT_EQ(verd["cells"], daten.figuren("testo-verd", "Testo 735 evaporator.xls")["cells"]);
  EXPECT_EQ(verd["cells"].size(), 240U);
  EXPECT_EQ(verd["ProjektNam"], "Cold store evaporator");
  EXPECT_NEAR(zelle(verd, 3, 16), -17.45, .011) << "mean of -17.4 and -17.5";
  EXPECT_NEAR(zelle(verd, 3, 17), -18.65, .011) << "mean of -18.7 and -18.6";
  EXPECT_DOUBLE_EQ(zelle(verd, 3, 4), -14.3);
  EXPECT_EQ(zelle_text(verd, 3, 1), "00:00:00");
  EXPECT_EQ(zelle_text(verd, 5, 1), "00:00:10") << "a running clock at the interval";

  const Json verfl = daten.figuren("testo-verfl", "Testo 735 condenser.xlsx");
  EXPECT_EQ(verfl["cells"], daten.figuren("testo-verfl", "Testo 735 condenser.xls")["cells"]);
  EXPECT_DOUBLE_EQ(zelle(verfl, 3, 20), 25.05) << "mean of 25 and 25.1";
  EXPECT_DOUBLE_EQ(zelle(verfl, 3, 21), 26.3);
}

/// A logger's file of so many lines, a second apart.
std::string adc(int zeilen) {
  std::string text;
  for (int n = 0; n < zeilen; ++n) {
    char zeit[32];
    std::snprintf(zeit, sizeof zeit, "02.01.2026  %02d:%02d:%02d", n / 3600, n / 60 % 60, n % 60);
    text += std::string(zeit) + "\t231\t230\t232\t16.2\t14.6\t14.7\t1.3\t16.5\t34.5\r\n";
  }
  return text;
}

TEST(ImportParts, FileOf8500LinesIsTakenWholeAnd8501GoInParts) {
  const Importordner daten;
  daten.schreib("x.adc", adc(8500));
  const Antwort ganz = daten.rufe({"import", "adc", "x.adc", "--out", "whole.fmd"});
  EXPECT_EQ(ganz.status, 0) << ganz.fehler;
  EXPECT_TRUE(hat(ganz.ausgabe, "\n8500 rows\n")) << ganz.ausgabe;
  EXPECT_GE(Inhalt(daten.lies("whole.fmd")).ganze_Zeilen, 8500);

  daten.schreib("x.adc", adc(8501));
  const Antwort ohne = daten.rufe({"import", "adc", "x.adc", "--out", "none.fmd"});
  EXPECT_EQ(ohne.status, 1);
  EXPECT_TRUE(hat(ohne.fehler, "2 parts") && hat(ohne.fehler, "--part")) << ohne.fehler;
  EXPECT_FALSE(daten.da("none.fmd"));

  std::string letzte_Zeit;
  int summe = 0;
  for (const char* teil : {"1", "2"}) {
    const Antwort a = daten.rufe({"import", "adc", "x.adc", "--part", teil, "--out", "p.fmd"});
    ASSERT_EQ(a.status, 0) << a.fehler;
    const Inhalt inhalt(daten.lies("p.fmd"));
    for (int n = 0; n < inhalt.ganze_Zeilen && !inhalt.zelle(n, 1).empty(); ++n) {
      ++summe;
      EXPECT_LT(letzte_Zeit, inhalt.zelle(n, 1));
      letzte_Zeit = inhalt.zelle(n, 1);
    }
  }
  EXPECT_EQ(summe, 8501) << "no line twice, none left out";

  const Antwort drei = daten.rufe({"import", "adc", "x.adc", "--part", "3", "--out", "none.fmd"});
  EXPECT_EQ(drei.status, 1);
  EXPECT_TRUE(hat(drei.fehler, "no part 3, only 2")) << drei.fehler;
}

TEST(ImportParts, ThatAreNoneAreAWrongCall) {
  const Importordner daten;
  for (const char* teil : {"0", "-1", "x"})
    EXPECT_EQ(daten.importiere("adc", "R404A cold store.adc", {"--part", teil}).status, 2) << teil;
  EXPECT_EQ(daten.importiere("control", "KKP_FMD_TEMP_2.txt", {"--part", "1"}).status, 2);
  EXPECT_EQ(daten.importiere("adc", "R404A cold store.adc", {"--part", "2"}).status, 1);
}

TEST(Import, NeedsAKindAndATarget) {
  const Importordner daten;
  EXPECT_EQ(daten.rufe({"import"}).status, 2);
  EXPECT_EQ(daten.rufe({"import", "testo", "x.xls", "--out", "o.fmd"}).status, 2);
  const Antwort a = daten.rufe({"import", "adc", "R404A cold store.adc"});
  EXPECT_EQ(a.status, 2);
  EXPECT_TRUE(hat(a.fehler, "--out")) << a.fehler;
}

TEST(Import, AFileOfNoSuchKindIsToldAndNothingIsWritten) {
  const Importordner daten;
  daten.schreib("empty.adc", "");
  daten.schreib("binary.xls", std::string(5000, '\xd0'));
  daten.schreib("out.fmd", "former");
  const auto vorher = daten.inhalt();
  const std::vector<std::array<const char*, 3>> falsch{
      {"adc", "none.adc", "There is no file \"none.adc\""},
      {"adc", "empty.adc", "is empty"},
      {"adc", "R404A.DAT", "No line of the file begins with date and clock time"},
      {"control", "R404A.DAT", "No row of the file begins with date and clock time"},
      {"climacheck", "R404A.DAT", "neither .xls nor .xlsx"},
      {"climacheck", "binary.xls", "binary.xls"},
      {"testo-verd", "R404A cold store.adc", "neither .xls nor .xlsx"},
      {"testo-verfl", "ClimaCheck cold store.xlsx", "holds no data"},
      {"climacheck", ".", "is a folder"}};
  for (const auto& [art, datei, meldung] : falsch) {
    const Antwort a = daten.importiere(art, datei);
    EXPECT_EQ(a.status, 1) << art << datei;
    EXPECT_EQ(a.ausgabe, "") << art << datei;
    EXPECT_TRUE(hat(a.fehler, meldung)) << a.fehler;
  }
  EXPECT_TRUE(daten.inhalt() == vorher);
}

TEST(Import, AFileThatPlainlyIsOfAnotherKindIsToldWithTheCommandForIt) {
  const Importordner daten;
  const std::vector<std::array<const char*, 3>> paare{
      {"adc", "KKP_FMD_TEMP_2.txt", "a text file of a control system: try \"import control\""},
      {"control", "R404A cold store.adc", "a logger's own file (.adc): try \"import adc\""},
      {"control", "R134A monitoring box.adc", "try \"import adc\""},
      {"climacheck", "Testo 735 condenser.xlsx",
       "a Testo 735 worksheet: try \"import testo-verd\""},
      {"climacheck", "Testo 735 evaporator.xls", "\"import testo-verfl\""},
      {"testo-verd", "ClimaCheck cold store.xls",
       "a ClimaCheck worksheet: try \"import climacheck\""}};
  for (const auto& [art, datei, rat] : paare)
    EXPECT_TRUE(hat(daten.importiere(art, datei).fehler, rat)) << art << datei;
  for (const auto& [art, datei] :
       std::vector<std::array<const char*, 2>>{{"control", "KKP_FMD_TEMP_2.txt"},
                                               {"adc", "R404A cold store.adc"},
                                               {"adc", "R134A monitoring box.adc"},
                                               {"testo-verfl", "Testo 735 condenser.xlsx"},
                                               {"climacheck", "ClimaCheck cold store.xls"}}) {
    const Antwort a = daten.importiere(art, datei);
    EXPECT_EQ(a.status, 0) << datei;
    EXPECT_FALSE(hat(a.fehler, "looks like")) << datei << a.fehler;
  }
}

TEST(Import, OffsetsOfTheDataFolderAreAdded) {
  const Importordner daten;
  // Slots 1 (position 9) and 9 (position 7).
  std::string offsets;
  for (int slot = 1; slot <= 48; ++slot)
    offsets += slot == 1 ? "\"0.5\"\r\n" : slot == 9 ? "\"0.25\"\r\n" : "\"0\"\r\n";
  daten.schreib("FMD_OFFS.dat", offsets);
  daten.schreib("x.adc", adc(2));
  const Json j = daten.importiere("adc", "x.adc").json();
  EXPECT_DOUBLE_EQ(zelle(j, 3, 9), 35);
  EXPECT_EQ(j["cells"].size(), 2U);
}

TEST(Import, ATargetThatCanNotBeWrittenIsTold) {
  const Importordner daten;
  daten.schreib("out.fmd", "former");
  const Antwort a =
      daten.rufe_mit_grenze(20, {"import", "adc", "R404A cold store.adc", "--out", "out.fmd"});
  EXPECT_EQ(a.status, 1);
  EXPECT_TRUE(hat(a.fehler, "out.fmd")) << a.fehler;
  EXPECT_EQ(daten.lies("out.fmd"), "former");
}

}  // namespace
