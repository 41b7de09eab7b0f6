#include "shell/start/programm.h"

#include "start_fixture.h"

namespace polarkreis {
namespace {

using EinProgramm = StartTest;

TEST_F(EinProgramm, LoadsSettingsAndCaptionsAndWritesNothing) {
  liefere_captions();
  daten.schreib("kparam.dat", kparam("GER"));
  const std::vector<std::string> vorher = daten.namen();
  Programm eins(daten.pfad(), dialog);
  eins.laden();
  EXPECT_EQ(eins.captions.text(JMapCap::Energiesimulation), "Energiesimulation");
  Programm zwei(daten.pfad(), dialog);
  zwei.laden("eng");
  EXPECT_EQ(zwei.captions.Sprache, "ENG");
  EXPECT_EQ(zwei.einstellungen[Einstellungen::Sprache], "GER");
  zwei.meldungen.melde("place", "file", "kept in memory");
  EXPECT_EQ(daten.namen(), vorher);
}

TEST_F(EinProgramm, HoldsAStateOfItsOwn) {
  liefere({"R134A.DAT", "R404A.DAT"});
  Programm eins(daten.pfad(), dialog), zwei(daten.pfad(), dialog);
  eins.projekt.Kaeltemittel_Uebernehmen("R134A");
  zwei.projekt.Kaeltemittel_Uebernehmen("R404A");
  EXPECT_EQ(eins.kreis.km.z.RefName, "R134A");
  EXPECT_EQ(zwei.kreis.km.z.RefName, "R404A");
  EXPECT_EQ(&eins.kreis.km, &eins.km);
  EXPECT_EQ(&eins.projekt.km, &eins.km);
}

}  // namespace
}  // namespace polarkreis
