#include <gtest/gtest.h>

#include <filesystem>
#include <set>

#include "support/kaeltemittel_umgebung.h"
#include "support/temp_folder.h"

using namespace polarkreis;

namespace {

TEST(KMKatalog, HoldsEveryDesignationOnce) {
  std::set<std::string_view> namen;
  for (const KMEintrag& e : KM_Katalog()) {
    EXPECT_TRUE(namen.insert(e.name).second) << e.name;
    EXPECT_LT(e.tmin, e.tmax) << e.name;
    EXPECT_NE(e.zeilen, 0) << e.name;
  }
  EXPECT_EQ(namen.size(), 75u);
}

TEST(KMKatalog, TablesLieUnderTheirExactSpellingWithRowsOfFiveKelvin) {
  for (const KMEintrag& e : KM_Katalog()) {
    const std::string pfad = std::string(POLARKREIS_DATA) + "/" + std::string(e.datei);
    ASSERT_TRUE(std::filesystem::exists(pfad)) << pfad;
    KaeltemittelUmgebung u{std::string(e.name)};
    const SatTabelle t = sat_tabelle_lesen(e.datei, u.ablage.lies_ganz(std::string(e.datei)));
    EXPECT_EQ(t.bruch, 0) << e.datei;
    ASSERT_GT(t.zeilen.size(), 5u) << e.datei;
    for (std::size_t i = 1; i < t.zeilen.size(); ++i)
      EXPECT_NEAR(t.zeilen[i].T - t.zeilen[i - 1].T, 5, 1e-9) << e.datei;
    for (const bool steigt : t.steigt) EXPECT_TRUE(steigt) << e.datei;
    EXPECT_TRUE(u.km.KM_Tabelle_da()) << e.datei;
  }
}

TEST(KMDatei, MethanReadsR50AfterTheFirstLookup) {
  KaeltemittelUmgebung u("METHAN");
  u.km.Sat_Suchen(130, 0);
  EXPECT_EQ(u.km.z.RefName, "R50");
  EXPECT_EQ(u.km.z.RefFile, "R50.DAT");
  EXPECT_EQ(u.km.z.GWP, 21);
  EXPECT_EQ(u.km.KM_Datei(), 17);
}

TEST(KMDatei, CanonicalNamesAreWrittenBackAndOthersStayAsWritten) {
  for (const auto& [geschrieben, danach] : {std::pair{"ETHAN", "R170"},
                                            {"ethylen ", "R1150"},
                                            {" r12", "R12"},
                                            {"r13b1", "R13B1"},
                                            {"r14", "R14"},
                                            {"r13", "R13"},
                                            {"r22", "r22"},
                                            {"CO2", "CO2"},
                                            {" propan ", " propan "},
                                            {"Isc_49", "Isc_49"}}) {
    KaeltemittelUmgebung u(geschrieben);
    EXPECT_NE(u.km.KM_Datei(), 0) << geschrieben;
    EXPECT_EQ(u.km.z.RefName, danach);
  }
}

TEST(KMDatei, UnknownDesignationReturnsZeroAndLeavesFileAndGWP) {
  KaeltemittelUmgebung u("R134A");
  EXPECT_EQ(u.km.KM_Datei(), 28);
  for (const char* name : {"R999", "", "R134", "R134A B"}) {
    u.km.z.RefName = name;
    EXPECT_EQ(u.km.KM_Datei(), 0) << name;
    EXPECT_EQ(u.km.z.RefFile, "R134A.DAT");
    EXPECT_EQ(u.km.z.GWP, 1430);
  }
}

TEST(KMDatei, ChangeOfDesignationTakesEffectAtTheNextCall) {
  KaeltemittelUmgebung u("R22");
  u.km.Sat_Suchen(263.15, 0);
  EXPECT_EQ(u.km.z.Klammer.Oben.p_d, 3.54786);
  u.km.z.RefName = "R404A";
  u.km.Sat_Suchen(263.15, 0);
  EXPECT_EQ(u.km.z.Klammer.Oben.p_d, 4.30764);
  u.km.z.RefName = "R22";
  u.km.Sat_Suchen(263.15, 0);
  EXPECT_EQ(u.km.z.Klammer.Oben.p_d, 3.54786);
}

TEST(KMDatei, R290HasPropansFileAndR290_600ItsOwn) {
  KaeltemittelUmgebung u("R290");
  u.km.KM_Datei();
  EXPECT_EQ(u.km.z.RefFile, "PROPAN.DAT");
  EXPECT_EQ(u.km.z.RefName, "R290");
  u.km.z.RefName = "R290_600";
  u.km.KM_Datei();
  u.km.KM_Grenzen();
  EXPECT_EQ(u.km.z.RefFile, "R290_600.DAT");
  EXPECT_EQ(u.km.z.tmin, -20);
  EXPECT_EQ(u.km.z.tmax, 75);
}

TEST(KMDatei, EthylenAndAmmoniaHaveNoGWP) {
  for (const char* name : {"R1150", "R717"}) {
    KaeltemittelUmgebung u(name);
    u.km.z.GWP = 1430;
    u.km.KM_Datei();
    EXPECT_EQ(u.km.z.GWP, 0) << name;
  }
}

TEST(KMGrenzen, LimitsOfLowTemperatureFluidsLieLow) {
  for (const auto& [name, tmax] : {std::pair{"R744", 55.0},
                                   {"R13", 25.0},
                                   {"R170", 25.0},
                                   {"R14", -50.0},
                                   {"R50", -95.0},
                                   {"R1150", 0.0}}) {
    KaeltemittelUmgebung u(name);
    u.km.KM_Grenzen();
    EXPECT_EQ(u.km.z.tmax, tmax) << name;
  }
}

TEST(KMGrenzen, UnknownDesignationGets65AndKeepsTmin) {
  KaeltemittelUmgebung u("R134A");
  u.km.KM_Grenzen();
  EXPECT_EQ(u.km.z.tmin, -60);
  EXPECT_EQ(u.km.z.tmax, 85);
  u.km.z.RefName = "R999";
  u.km.KM_Grenzen();
  EXPECT_EQ(u.km.z.tmin, -60);
  EXPECT_EQ(u.km.z.tmax, 65);
}

TEST(KMBekannt, TrimsTheRightSideAlone) {
  EXPECT_TRUE(Kaeltemittel::KM_Bekannt("r404a  "));
  EXPECT_TRUE(Kaeltemittel::KM_Bekannt("Propylen"));
  EXPECT_FALSE(Kaeltemittel::KM_Bekannt(" R404A"));
  EXPECT_FALSE(Kaeltemittel::KM_Bekannt("R404"));
  EXPECT_FALSE(Kaeltemittel::KM_Bekannt(""));
}

TEST(KMTabelleDa, NeedsAReadableRowAndForR744BothTables) {
  TempOrdner ordner;
  ordner.schreib("R22.DAT", "");
  ordner.schreib("CO2.DAT", R"("218.15","5","5","1","2","3","4")");
  KaeltemittelUmgebung u("R22", ordner.pfad());
  EXPECT_FALSE(u.km.KM_Tabelle_da());
  u.km.z.RefName = "R744";
  EXPECT_FALSE(u.km.KM_Tabelle_da());
  ordner.schreib("CO2_sh01.dat", R"("30","40","467.15","0.01","1.35","0.0000161")");
  EXPECT_TRUE(u.km.KM_Tabelle_da());
  u.km.z.RefName = "R999";
  EXPECT_FALSE(u.km.KM_Tabelle_da());
}

}  // namespace
