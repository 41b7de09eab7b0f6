#include "logph_platz.h"
#include "shell/text.h"

using namespace polarkreis;

namespace {

std::string name_von(const std::string& mittel) {
  return LogphPlatz(mittel).form.Tabellenname();
}

}  // namespace

TEST(LogphTabellenname, AliasesHaveFilesOfTheirOwn) {
  EXPECT_EQ(name_von("ISC_49"), "R413A.DAT");
  EXPECT_EQ(name_von("R403B"), "ISC_69L.DAT");
  EXPECT_EQ(name_von("R417A"), "ISC_59.DAT");
  EXPECT_EQ(name_von("R422A"), "ISC_79.DAT");
  EXPECT_EQ(name_von("R422D"), "ISC_29.DAT");
  EXPECT_EQ(name_von("R290"), "PROPAN.DAT");
  EXPECT_EQ(name_von("R1270"), "PROPYLEN.DAT");
  EXPECT_EQ(name_von("R744"), "CO2.DAT");
  EXPECT_EQ(name_von("R717"), "AMMONIAK.DAT");
  EXPECT_EQ(name_von("ETHYLEN"), "R1150.DAT");
  EXPECT_EQ(name_von("ETHAN"), "R170.DAT");
}

TEST(LogphTabellenname, MethaneAloneHasALowerCaseExtension) {
  EXPECT_EQ(name_von("METHAN"), "R50.dat");
  EXPECT_EQ(name_von("R50"), "R50.DAT");
}

TEST(LogphTabellenname, AnyOtherDesignationIsItsOwnFile) {
  EXPECT_EQ(name_von("R134A"), "R134A.DAT");
  EXPECT_EQ(name_von("CO2"), "CO2.DAT");
  EXPECT_EQ(name_von("AC9000"), "AC9000.DAT");
  EXPECT_EQ(name_von("no refrigerant"), "NO REFRIGERANT.DAT");
}

TEST(LogphTabellenname, DesignationsAreComparedInCapitalsAndTrimmed) {
  EXPECT_EQ(name_von(" r717 "), "AMMONIAK.DAT");
  EXPECT_EQ(name_von("methan"), "R50.dat");
  EXPECT_EQ(name_von(" r32"), "R32.DAT");
}

// What the catalogue takes is the same file in whatever case; one designation has no file of its
// name.
TEST(LogphTabellenname, AgreesWithTheCatalogue) {
  for (const KMEintrag& e : KM_Katalog()) {
    const std::string name = name_von(std::string(e.name));
    if (e.name == "AC9000")
      EXPECT_NE(gross(name), gross(e.datei));
    else
      EXPECT_EQ(gross(name), gross(e.datei)) << e.name;
  }
}

TEST(LogphTabellenname, HasNoSayInTheCalculation) {
  LogphPlatz unter_anderem_Namen("AC9000"), wie_Katalog("R407C");
  EXPECT_EQ(unter_anderem_Namen.rechne().P, wie_Katalog.rechne().P);
}
