#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "messordner.h"
#include "support/prozess.h"

namespace {

using Json = nlohmann::json;
using messdateien::Inhalt;
using messdateien::kuehlhaus_datei;
using messdateien::zelle;

constexpr const char* kProtokoll = "ergDiaG.DAT";
constexpr const char* kArbeitskopie = "FM_diag.dat";

TEST(Diagnose, JsonHasEveryKeyInItsShape) {
  const Messordner daten;
  const Json j = daten.figuren();
  EXPECT_EQ(j["Mess_Zeilen"], 6);
  EXPECT_EQ(j["ProjektNam"], "Cold store North");
  EXPECT_EQ(j["ProBeschr"], "second rack");
  EXPECT_EQ(j["KaelteM"], "R404A");
  EXPECT_EQ(j["Combo3"], "Single-stage");
  EXPECT_EQ(j["asked"], false);
  EXPECT_EQ(j["dropped"], 0);
  EXPECT_EQ(j["replaced"], 0);
  // The default names of the units' rows 4 to 7 are those of units 2 to 5.
  EXPECT_EQ(j["Sensor_Code"], Json({0, 1, 1, 1}));
  EXPECT_EQ(j["Sum_zeit_messung"], 20.0);
  EXPECT_GT(j["Summe_Energ"].get<double>(), 0);
  for (const char* name : {"Q_max", "EER_max", "t0_min", "tc_max", "t_end_max", "p_max", "dp_max"})
    EXPECT_TRUE(j["scale"][name].is_number()) << name;
  EXPECT_NEAR(j["scale"]["p_max"].get<double>(), 16.5 + 1.013, 1e-9);
  EXPECT_EQ(j["scale"]["t_end_max"], 78.2);
  ASSERT_EQ(j["cells"].size(), 4U);
  for (int zeile = 3; zeile <= 6; ++zeile)
    EXPECT_TRUE(j["cells"].contains(std::to_string(zeile))) << zeile;
  EXPECT_EQ(j["cells"]["3"]["1"], "08:00:00");
  EXPECT_EQ(j["cells"]["6"]["1"], "08:00:15");
  EXPECT_EQ(j["cells"]["3"]["2"], "1.3");
  EXPECT_FALSE(j["cells"]["3"].contains("13")) << "an empty cell";
  EXPECT_TRUE(j["means"]["2"].contains("lowest") && j["means"]["2"].contains("highest") &&
              j["means"]["2"].contains("mean"));
}

// S = 231.4 x 16.2 + 230.2 x 14.6 + 232 x 14.7; the surplus over the smallest current, 1.6 + 0.1 A,
// is the rest of the plant.
TEST(Diagnose, PowerFollowsFromTheThreePhases) {
  const Messordner daten;
  const Json j = daten.figuren();
  const double cos_phi = .87 - 2 / (3 * (3 * 16.2));
  const double rest = 1.7 * ((231.4 + 230.2 + 232) / 3000) * cos_phi;
  const double P = (231.4 * 16.2 + 230.2 * 14.6 + 232 * 14.7) / 1000 * cos_phi - rest;
  EXPECT_DOUBLE_EQ(zelle(j, 3, 12), std::floor((P + .0005) * 1000) / 1000);
  EXPECT_DOUBLE_EQ(zelle(j, 3, 10), std::floor(100 * (-21 - zelle(j, 3, 3))) / 100);
  EXPECT_NEAR(zelle(j, 3, 11), zelle(j, 3, 7) - 34.5, .011);
}

TEST(Diagnose, MeansLeaveTheLastRowsOfTheCountOut) {
  const Messordner daten;
  messdateien::Datei datei = kuehlhaus_datei(4);
  const char* t_end[] = {"70", "71", "74.5", "99"};
  for (std::size_t n = 0; n < 4; ++n) datei.zeilen[n][8] = t_end[n];
  daten.schreib("m.fmd", datei.text());
  // Four rows: the count is 6, rows 3 to 5 are summed.
  const Json mittel = daten.figuren()["means"]["8"];
  EXPECT_EQ(mittel["lowest"], 70.0);
  EXPECT_EQ(mittel["highest"], 74.5);
  EXPECT_EQ(mittel["mean"], 71.83);
}

TEST(Diagnose, RedRowsNameWhatIsOutOfBounds) {
  const Messordner daten;
  messdateien::Datei datei = kuehlhaus_datei(3);
  datei.zeilen[1][4] = "-26";  // superheat near 1 K
  datei.zeilen[2][9] = "45";   // warmer than the condensing temperature
  daten.schreib("m.fmd", datei.text());
  const Json rot = daten.figuren()["red"];
  const auto nennt = [&](const char* zeile, const char* was) {
    return rot.contains(zeile) && std::ranges::find(rot[zeile], was) != rot[zeile].end();
  };
  EXPECT_FALSE(nennt("3", "sh") || nennt("3", "sc"));
  EXPECT_TRUE(nennt("4", "sh"));
  EXPECT_FALSE(nennt("4", "sc"));
  EXPECT_TRUE(nennt("5", "sc"));
}

TEST(Diagnose, RowsWithoutPressuresAndImpossibleOnesAreCounted) {
  const Messordner daten;
  messdateien::Datei datei = kuehlhaus_datei(6);
  datei.zeilen[2][2] = datei.zeilen[2][6] = "0";
  datei.zeilen[4][6] = "120";
  daten.schreib("m.fmd", datei.text());
  const Json j = daten.figuren();
  EXPECT_EQ(j["dropped"], 1);
  EXPECT_EQ(j["replaced"], 1);
  EXPECT_EQ(j["Mess_Zeilen"], 7);
  EXPECT_EQ(j["cells"]["6"]["1"], "08:00:15") << "the row before, once more";

  const Json ohne = daten.figuren("m.fmd", R"({"Auto_corr_Check":0})");
  EXPECT_EQ(ohne["dropped"], 0);
  EXPECT_EQ(ohne["Mess_Zeilen"], 8);
  const Json co2 = daten.figuren("m.fmd", R"({"Combo3":"Single-stage - CO2 Transkritisch"})");
  EXPECT_EQ(co2["replaced"], 1) << "the file's own scheme sets the limits";
}

TEST(Diagnose, ResultIsSavedAndReadBackTheSame) {
  const Messordner daten;
  const Antwort a =
      daten.rufe({"diagnose", "m.fmd", "--settings", "s.json", "--out", "computed", "--json"});
  ASSERT_EQ(a.status, 0) << a.fehler;
  const Inhalt inhalt(daten.lies("computed.fmd"));
  EXPECT_EQ(inhalt.gezaehlt(), 6);
  EXPECT_EQ(inhalt.rest, 0);
  ASSERT_GE(inhalt.ganze_Zeilen, 4);
  EXPECT_EQ(inhalt.zelle(0, 12), a.json()["cells"]["3"]["12"]);
  const Json wieder = daten.figuren("computed.fmd");
  EXPECT_EQ(wieder["cells"], a.json()["cells"]);
  EXPECT_EQ(wieder["means"], a.json()["means"]);
  EXPECT_EQ(wieder["Mess_Zeilen"], 6);
}

TEST(Diagnose, OutputThatCanNotBeWrittenIsToldAndTheFormerOneStays) {
  const Messordner daten;
  std::filesystem::create_directory(daten.pfad("folder.fmd"));
  const Antwort a = daten.rufe({"diagnose", "m.fmd", "--out", "folder.fmd"});
  EXPECT_EQ(a.status, 1);
  EXPECT_TRUE(hat(a.fehler, "folder.fmd")) << a.fehler;
  daten.schreib("old.fmd", "former");
  EXPECT_EQ(daten.rufe_mit_grenze(0, {"diagnose", "m.fmd", "--out", "old.fmd"}).status, 1);
  EXPECT_EQ(daten.lies("old.fmd"), "former");
}

TEST(Diagnose, WritesTheProtocolAndNoWorkingCopy) {
  const Messordner daten;
  const auto vorher = daten.inhalt();
  const Antwort a = daten.rufe({"diagnose", "m.fmd"});
  EXPECT_EQ(a.status, 0) << a.fehler;
  EXPECT_TRUE(hat(a.ausgabe, kProtokoll)) << a.ausgabe;
  const std::string protokoll = daten.lies(kProtokoll);
  for (const char* teil : {"Cold store North", "R404A", "&$$", "§$&", "&%!", "Messpunkte§$&4"})
    EXPECT_TRUE(hat(protokoll, teil)) << teil;
  EXPECT_FALSE(daten.da(kArbeitskopie));
  auto nachher = daten.inhalt();
  nachher.erase(kProtokoll);
  EXPECT_TRUE(nachher == vorher);
}

TEST(Diagnose, ReadsTheWorkingCopyAndLeavesItAlone) {
  const Messordner daten;
  messdateien::Datei datei = kuehlhaus_datei(5);
  datei.gezaehlt = 65459;
  const std::string bytes = datei.text() + "\"08:00:25\"\r\n\"1.3";
  daten.schreib(kArbeitskopie, bytes);
  EXPECT_EQ(daten.figuren(kArbeitskopie)["Mess_Zeilen"], 7);
  EXPECT_EQ(daten.lies(kArbeitskopie), bytes);
}

TEST(Diagnose, ForPeopleShowsTheMeansUnderTheirNames) {
  const Messordner daten;
  const Antwort a = daten.rufe({"diagnose", "m.fmd", "--settings", "s.json"});
  EXPECT_EQ(a.status, 0) << a.fehler;
  for (const char* teil : {"Cold store North", "R404A", "4 rows", "Evaporating temperature",
                           "Superheat", "Compressor power", "1.3"})
    EXPECT_TRUE(hat(a.ausgabe, teil)) << teil << a.ausgabe;
}

// --- The question

struct Langordner : Messordner {
  explicit Langordner(int gezaehlt) {
    messdateien::Datei datei = kuehlhaus_datei(4);
    datei.gezaehlt = gezaehlt;
    schreib("m.fmd", datei.text());
  }
};

TEST(DiagnoseQuestion, ComesAboveAThousandRows) {
  const Langordner genau(1000), mehr(1001);
  const Antwort a = genau.rufe({"diagnose", "m.fmd", "--json"});
  EXPECT_EQ(a.status, 0);
  EXPECT_EQ(a.json()["asked"], false);
  EXPECT_EQ(a.json()["Mess_Zeilen"], 6);
  EXPECT_FALSE(hat(a.fehler, "Messpunkte"));
  const Antwort b = mehr.rufe({"diagnose", "m.fmd", "--yes", "--json"});
  EXPECT_EQ(b.json()["asked"], true);
  EXPECT_EQ(b.json()["Mess_Zeilen"], 6);
  EXPECT_TRUE(hat(b.fehler, " Messpunkte =1001?")) << b.fehler;
}

TEST(DiagnoseQuestion, NoLeavesAnEmptyTableAndTheFormerProtocol) {
  const Langordner daten(1001);
  daten.schreib(kProtokoll, "former");
  for (const std::vector<std::string>& ende :
       {std::vector<std::string>{"--no", "--json"}, {"--json"}}) {
    std::vector<std::string> aufruf{"diagnose", "m.fmd"};
    aufruf.insert(aufruf.end(), ende.begin(), ende.end());
    const Antwort a = daten.rufe(aufruf);
    EXPECT_EQ(a.status, 0) << a.fehler;
    EXPECT_EQ(a.json()["Mess_Zeilen"], 200);
    EXPECT_EQ(a.json()["asked"], true);
    EXPECT_TRUE(a.json()["cells"].empty());
    EXPECT_TRUE(hat(a.fehler, "answered: no")) << a.fehler;
    EXPECT_EQ(hat(a.fehler, "--yes"), ende.size() == 1) << "who said no knows it";
  }
  EXPECT_EQ(daten.lies(kProtokoll), "former");
  EXPECT_EQ(daten.rufe({"diagnose", "m.fmd", "--yes", "--no"}).status, 2);
}

TEST(DiagnoseQuestion, OfARunThatDidNotEndNamesTheTrueCount) {
  const Messordner daten;
  messdateien::Datei datei = kuehlhaus_datei(1001);
  datei.gezaehlt = 65459;
  daten.schreib("m.fmd", datei.text());
  const Antwort a = daten.rufe({"diagnose", "m.fmd", "--yes", "--json"});
  EXPECT_TRUE(hat(a.fehler, " Messpunkte =1001?")) << a.fehler;
  EXPECT_EQ(a.json()["Mess_Zeilen"], 1003);
  datei.zeilen.pop_back();
  daten.schreib("m.fmd", datei.text());
  EXPECT_EQ(daten.rufe({"diagnose", "m.fmd", "--json"}).json()["asked"], false);
}

TEST(DiagnoseQuestion, OnATerminalIsAsked) {
  const Langordner daten(1001);
  for (const auto& [tasten, zeilen] :
       {std::pair{"y\n", 6}, {"Yes\n", 6}, {"j\n", 6}, {"n\n", 200}, {"\n", 200}, {"\x04", 200}}) {
    Prozess p({programmpfad(), "--data", daten.pfad(), "--language", "ENG", "diagnose", "m.fmd",
               "--json"},
              daten.pfad(), Prozess::Art::terminal);
    ASSERT_TRUE(p.warte_auf([&] { return hat(p.fehler(), "Messpunkte =1001? [y/N]"); }))
        << p.fehler();
    EXPECT_EQ(p.ausgabe(), "") << "asked before anything is told";
    ASSERT_TRUE(p.tippe(tasten));
    EXPECT_EQ(p.ende(), 0) << p.fehler();
    EXPECT_EQ(Json::parse(p.ausgabe(), nullptr, false)["Mess_Zeilen"], zeilen) << tasten;
  }
}

}  // namespace
