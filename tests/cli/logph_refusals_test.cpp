#include <gtest/gtest.h>
#include <sys/stat.h>

#include "messordner.h"

namespace {

using Namen = std::vector<std::string>;

constexpr const char* kMarkt = "Supermarket medium temperature.prj";

/// A call that is refused: its status, its reason, nothing on standard output, and no file.
void verweigert(const Datenkopie& daten, const Namen& aufruf, int status,
                const std::string& grund) {
  const auto vorher = daten.inhalt();
  const Antwort a = daten.rufe(aufruf);
  std::string was;
  for (const std::string& wort : aufruf) was += wort + " ";
  EXPECT_EQ(a.status, status) << was << a.fehler;
  EXPECT_TRUE(hat(a.fehler, grund)) << was << a.fehler;
  EXPECT_EQ(a.ausgabe, "") << was;
  EXPECT_EQ(daten.inhalt(), vorher) << was;
}

Namen stoff(const std::string& mittel, const Namen& mehr) {
  Namen alle{"logph", "--refrigerant", mittel};
  alle.insert(alle.end(), mehr.begin(), mehr.end());
  return alle;
}

}  // namespace

TEST(LogphRefusals, OptionsThatDontGoTogether) {
  const Messordner daten;
  verweigert(daten, {"logph", kMarkt, "--refrigerant", "R134A", "--t0", "-10", "--tc", "40"}, 2,
             "--refrigerant: give a file or a refrigerant, not both");
  verweigert(daten, stoff("R134A", {"--tc", "40"}), 2, "--t0: give either --t0 or --p0");
  verweigert(daten, stoff("R134A", {"--t0", "-10"}), 2, "--tc: give either --tc or --pc");
  verweigert(daten, stoff("R134A", {"--t0", "-10", "--p0", "2", "--tc", "40"}), 2,
             "--t0: give either --t0 or --p0");
  verweigert(daten, stoff("R134A", {"--t0", "-10", "--pc", "10", "--tc", "40"}), 2,
             "--tc: give either --tc or --pc");
}

TEST(LogphRefusals, AModeThatDoesntFit) {
  const Messordner daten;
  verweigert(daten, stoff("R134A", {"--t0", "-10", "--tc", "40", "--mode", "DiaG"}), 2,
             "--mode: DiaG doesn't go with --refrigerant: it takes MonoF 2stage SIM_PRO");
  verweigert(daten, {"logph", kMarkt, "--mode", "MonoF"}, 2,
             "--mode: MonoF doesn't go with a project: it takes SIM_PRO");
  verweigert(daten, {"logph", "m.fmd", "--mode", "SIM_PRO"}, 2,
             "--mode: SIM_PRO doesn't go with a measurement: it takes DiaG");
  verweigert(daten, {"logph", kMarkt, "--mode", "KOMP"}, 2, "--mode: KOMP not in");
}

TEST(LogphRefusals, ValuesThatAreNone) {
  const Messordner daten;
  verweigert(daten, stoff("R134A", {"--t0", "cold", "--tc", "40"}), 2, "--t0: \"cold\"");
  verweigert(daten, stoff("R134A", {"--t0", "-10", "--tc", "1e999"}), 2, "--tc: \"1e999\"");
  verweigert(daten, stoff("R134A", {"--t0", "-10", "--tc", "40", "--stages", "3"}), 2,
             "--stages: Value 3");
  verweigert(daten, stoff("R134A", {"--t0", "-10", "--tc", "40", "--economiser", "10"}), 2,
             "--economiser: Value 10");
  verweigert(daten, stoff("R134A", {"--t0", "-10", "--tc", "40", "--bauart", "5"}), 2,
             "--bauart: Value 5");
  verweigert(daten, {"logph", "m.fmd", "--row", "0"}, 2, "--row");
  verweigert(daten, {"logph", "m.fmd", "--row", "two"}, 2, "--row");
}

TEST(LogphRefusals, NumbersThatNoPlantHas) {
  const Messordner daten;
  const Namen grund{"--t0", "-10", "--tc", "40"};
  for (const char* option :
       {"--superheat", "--subcooling", "--ihx", "--pipe", "--dp-liquid", "--p-high", "--p-int"}) {
    Namen mehr = grund;
    mehr.insert(mehr.end(), {option, "-5"});
    verweigert(daten, stoff("R134A", mehr), 2, std::string(option) + ": must not be below 0");
  }
  verweigert(daten, stoff("R134A", {"--t0", "-10", "--tc", "40", "--t-suction", "-40"}), 1,
             "would be colder than the evaporator");
  verweigert(daten, stoff("R134A", {"--t0", "-10", "--tc", "40", "--subcooling", "60"}), 1,
             "The liquid in front of the expansion valve would be colder");
  verweigert(daten, stoff("R134A", {"--t0", "-10", "--tc", "40", "--dp-liquid", "20000"}), 1,
             "The pressures give no cycle");
  verweigert(daten, stoff("R744", {"--t0", "-10", "--pc", "90"}), 1, "give --tc and --p-high");
  verweigert(daten, stoff("R744", {"--t0", "-10", "--tc", "35", "--ihx", "10"}), 1,
             "ends above the table of R744");
}

TEST(LogphRefusals, OptionsThatWouldCountForNothing) {
  const Messordner daten;
  const Namen grund{"--t0", "-10", "--tc", "40"};
  verweigert(daten, stoff("R134A", {"--t0", "-10", "--tc", "40", "--row", "2"}), 2,
             "--row: is for");
  verweigert(daten, stoff("R134A", {"--t0", "-10", "--tc", "40", "--settings", "no.json"}), 2,
             "--settings: is for a measurement");
  verweigert(daten, stoff("R134A", {"--t0", "-10", "--tc", "40", "--options", "no.json"}), 2,
             "--options: is for a project");
  verweigert(daten, stoff("R134A", {"--t0", "-10", "--tc", "40", "--p-m", "4"}), 2,
             "--p-m: is for --mode 2stage");
  verweigert(daten, {"logph", kMarkt, "--p0", "2"}, 2, "--p0: is for");
  verweigert(daten, {"logph", kMarkt, "--row", "2"}, 2, "--row: is for");
  verweigert(daten, {"logph", "m.fmd", "--t0", "-10"}, 2, "--t0: is for");
  verweigert(daten, {"logph", "m.fmd", "--tc", "40"}, 2, "--tc: is for");
}

TEST(LogphRefusals, ATargetThatIsNoPicture) {
  const Messordner daten;
  verweigert(daten, stoff("R134A", {"--t0", "-10", "--tc", "40", "--svg", kMarkt}), 2,
             "--svg: give a file name that ends in .svg");
}

TEST(LogphRefusals, AnUnknownRefrigerantPointsToTheCatalogue) {
  const Messordner daten;
  verweigert(daten, stoff("R999", {"--t0", "-10", "--tc", "40"}), 1,
             "R999 is not a known refrigerant.");
  verweigert(daten, stoff("R999", {"--t0", "-10", "--tc", "40"}), 1, "polarkreis-cli refrigerants");
}

TEST(LogphRefusals, AMissingTableIsNamed) {
  const Datenkopie daten;
  std::filesystem::remove(daten.pfad("R134A.DAT"));
  std::filesystem::remove(daten.pfad("CO2_sh01.dat"));
  verweigert(daten, stoff("R134A", {"--t0", "-10", "--tc", "40"}), 1, "R134A.DAT");
  verweigert(daten, stoff("R744", {"--t0", "-10", "--tc", "20"}), 1, "CO2_sh01.dat");
}

TEST(LogphRefusals, TemperaturesOutsideTheLimitsAreToldInTheProgramsWords) {
  const Datenkopie daten;
  verweigert(daten, stoff("R134A", {"--t0", "-61", "--tc", "40"}), 1, "tmin = -60 °C !");
  verweigert(daten, stoff("R134A", {"--t0", "-10", "--tc", "86"}), 1, "tmax = 85 °C !");
  verweigert(daten, stoff("R134A", {"--t0", "40", "--tc", "-10"}), 1,
             "Condensing temperature is below the evaporating temperature.");
  verweigert(daten, stoff("R134A", {"--p0", "0.01", "--tc", "40"}), 1,
             "The pressure 0.01 bar lies outside the table R134A.DAT");
  verweigert(daten, stoff("R134A", {"--t0", "-10", "--pc", "60"}), 1,
             "The pressure 60 bar lies outside the table R134A.DAT");
  verweigert(daten, {"logph", kMarkt, "--t0", "-80"}, 1, "tmin = -55 °C !");  // R448A
}

TEST(LogphRefusals, EqualTemperaturesGiveNoCycle) {
  const Datenkopie daten;
  verweigert(daten, stoff("R134A", {"--t0", "10", "--tc", "10"}), 1,
             "The temperatures 10 and 10 °C give no cycle");
}

TEST(LogphRefusals, AnIntermediatePressureOutsideTheOtherTwo) {
  const Datenkopie daten;
  for (const char* p_m : {"0.5", "12"})
    verweigert(
        daten,
        stoff("R134A", {"--t0", "-30", "--tc", "40", "--stages", "2", "--p-m", p_m, "--json"}), 1,
        "The intermediate pressure doesn't lie between");
  verweigert(daten, stoff("R134A", {"--t0", "-30", "--tc", "10", "--stages", "2"}), 1,
             "Give another one with --p-int or --p-m.");
}

TEST(LogphRefusals, AHighPressureBeyondR744sTable) {
  const Datenkopie daten;
  for (const char* stufen : {"1", "2"})
    verweigert(daten,
               stoff("R744", {"--t0", "-10", "--tc", "36", "--p-high", "4000", "--stages", stufen}),
               1, "No cycle comes out at this point");
}

TEST(LogphRefusals, RowsThatAreNoneOrGiveNoCycle) {
  const Messordner daten;
  verweigert(daten, {"logph", "m.fmd", "--row", "5"}, 1,
             "The measurement has no row 5: it holds 4 rows.");
  messdateien::Datei offen = messdateien::kuehlhaus_datei(3);
  offen.zeilen[1][5] = "-99";
  daten.schreib("open.fmd", offen.text());
  verweigert(daten, {"logph", "open.fmd", "--row", "2"}, 1, "Row 2 gives no cycle");
  verweigert(daten, {"logph", "open.fmd", "--row", "2"}, 1, "--row");
  EXPECT_EQ(daten.rufe({"logph", "open.fmd", "--row", "3"}).status, 0);
}

TEST(LogphRefusals, AMeasurementWithoutARefrigerantsTable) {
  const Messordner daten;
  messdateien::Datei fremd = messdateien::kuehlhaus_datei(2);
  fremd.KaelteM = "R999";
  daten.schreib("foreign.fmd", fremd.text());
  verweigert(daten, {"logph", "foreign.fmd"}, 1, "Row 1 gives no cycle");
  daten.schreib("stoff.json", R"({"KaelteM":"R404A"})");
  EXPECT_EQ(daten.rufe({"logph", "foreign.fmd", "--settings", "stoff.json"}).status, 0);
}

TEST(LogphRefusals, FilesThatAreNoPlant) {
  const Messordner daten;
  daten.schreib("empty.fmd", "");
  daten.schreib("text.fmd", "no measurement at all\r\n");
  verweigert(daten, {"logph", "nofile.prj"}, 1, "There is no file \"nofile.prj\".");
  verweigert(daten, {"logph", "nofile.fmd"}, 1, "There is no file \"nofile.fmd\".");
  verweigert(daten, {"logph", "empty.fmd"}, 1, "The file \"empty.fmd\" is empty.");
  verweigert(daten, {"logph", "text.fmd"}, 1, "is no measurement");
  verweigert(daten, {"logph", "R134A.DAT"}, 1, "R134A.DAT");
  daten.schreib("bad.json", R"({"Nonsense":1})");
  verweigert(daten, {"logph", "m.fmd", "--settings", "bad.json"}, 1, "Nonsense");
  verweigert(daten, {"logph", kMarkt, "--options", "bad.json"}, 1, "Nonsense");
}

TEST(LogphRefusals, AProjectWithAnUnknownRefrigerant) {
  const Datenkopie daten;
  daten.setze_item(kMarkt, 1, "R999");
  const Antwort a = daten.rufe({"logph", kMarkt});
  EXPECT_EQ(a.status, 1);
  EXPECT_EQ(a.ausgabe, "");
  EXPECT_TRUE(hat(a.fehler, "The cycle was not worked out.")) << a.fehler;
}

TEST(LogphRefusals, ATargetThatCantBeWritten) {
  const Datenkopie daten;
  daten.schreib("old.svg", "precious");
  ::chmod(daten.pfad("old.svg").c_str(), 0444);
  daten.schreib("file", "no folder");
  for (const char* ziel : {"old.svg", "file/d.svg"}) {
    const auto vorher = daten.inhalt();
    const Antwort a = daten.rufe(stoff("R134A", {"--t0", "-10", "--tc", "40", "--svg", ziel}));
    EXPECT_EQ(a.status, 1) << ziel;
    EXPECT_TRUE(hat(a.fehler, ziel)) << a.fehler;
    EXPECT_FALSE(hat(a.ausgabe, "Diagram:")) << a.ausgabe;
    EXPECT_EQ(daten.inhalt(), vorher) << ziel;
  }
}
