#include <gtest/gtest.h>

#include "messordner.h"

namespace {

using messdateien::kuehlhaus_datei;

TEST(DiagnoseFile, ThatIsNoneIsRefusedAndNothingIsWritten) {
  const Messordner daten;
  std::string binaer;
  for (int n = 0; n < 60000; ++n) binaer += static_cast<char>((n * 7919 + n / 251) % 256);
  daten.schreib("binary.fmd", binaer);
  daten.schreib("empty.fmd", "");
  std::filesystem::create_directory(daten.pfad("folder"));
  const auto vorher = daten.inhalt();
  const std::vector<std::pair<const char*, const char*>> falsch{
      {"none.fmd", "There is no file \"none.fmd\""},
      {"empty.fmd", "\"empty.fmd\" is empty"},
      {"folder", "is a folder"},
      {"binary.fmd", "is no measurement"},
      {"R404A.DAT", "is no measurement"},
      {"R404A cold store.adc", "\"import\""},
      {"ClimaCheck cold store.xls", "is no measurement"}};
  for (const auto& [datei, meldung] : falsch)
    for (const std::vector<std::string>& befehl :
         {std::vector<std::string>{"diagnose", datei, "--yes"},
          {"measurement", "export", datei, "--csv", "o.csv"}}) {
      const Antwort a = daten.rufe(befehl);
      EXPECT_EQ(a.status, 1) << befehl.front() << datei;
      EXPECT_EQ(a.ausgabe, "") << datei;
      EXPECT_TRUE(hat(a.fehler, meldung)) << a.fehler;
    }
  EXPECT_TRUE(daten.inhalt() == vorher);
}

TEST(DiagnoseFile, WithAHeadingAndNoRowsIsAnEmptyMeasurement) {
  const Messordner daten;
  for (const int gezaehlt : {0, 2, 240, 65459}) {
    messdateien::Datei datei;
    datei.gezaehlt = gezaehlt;
    daten.schreib("m.fmd", datei.text());
    const Antwort a = daten.rufe({"diagnose", "m.fmd", "--json"});
    EXPECT_EQ(a.status, 0) << gezaehlt;
    EXPECT_EQ(a.json()["Mess_Zeilen"], 2);
    EXPECT_TRUE(a.json()["cells"].empty());
    EXPECT_TRUE(hat(a.fehler, "holds no measured rows")) << a.fehler;
  }
}

TEST(DiagnoseFile, WithoutAnyPressureTellsHowItsRowsAreTaken) {
  const Messordner daten;
  messdateien::Datei datei = kuehlhaus_datei(3);
  for (messdateien::Zeile& zeile : datei.zeilen) zeile[2] = zeile[6] = "";
  daten.schreib("m.fmd", datei.text());
  const Antwort a = daten.rufe({"diagnose", "m.fmd", "--json"});
  EXPECT_EQ(a.status, 0);
  EXPECT_EQ(a.json()["dropped"], 3);
  EXPECT_TRUE(hat(a.fehler, "3 without were left out") && hat(a.fehler, "\"Auto_corr_Check\" 0"))
      << a.fehler;
  EXPECT_EQ(daten.figuren("m.fmd", R"({"Auto_corr_Check":0})")["cells"].size(), 3U);
}

TEST(DiagnoseFile, OfBeforeLanguagesIsRead) {
  const Messordner daten;
  std::string alt = kuehlhaus_datei(4).text();
  alt.erase(alt.find("&$§ENG"), std::string("&$§ENG").size());
  daten.schreib("m.fmd", alt);
  EXPECT_EQ(daten.figuren()["Mess_Zeilen"], 6);
}

TEST(DiagnoseFile, CutAnywhereGivesItsWholeRows) {
  const Messordner daten;
  const std::string ganz = kuehlhaus_datei(3).text();
  const std::size_t kopf = messdateien::Datei{.gezaehlt = 5}.text().size();
  const std::size_t zeile = (ganz.size() - kopf) / 3;
  for (const std::size_t laenge : {kopf, kopf + 20, kopf + zeile - 5, kopf + zeile + 700,
                                   kopf + 2 * zeile + 1, ganz.size() - 2}) {
    daten.schreib("m.fmd", ganz.substr(0, laenge));
    const Antwort a = daten.rufe({"diagnose", "m.fmd", "--json"});
    ASSERT_EQ(a.status, 0) << laenge << a.fehler;
    // A last row that lacks nothing but its line end counts.
    const std::size_t zeilen = laenge == ganz.size() - 2 ? 3 : (laenge - kopf) / zeile;
    EXPECT_EQ(a.json()["cells"].size(), zeilen) << laenge;
  }
}

}  // namespace
