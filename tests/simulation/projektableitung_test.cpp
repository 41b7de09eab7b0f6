// The working numbers that follow from a project's selections, and what a user's change brings.

#include <gtest/gtest.h>

#include "projekt_desk.h"

using namespace polarkreis;

namespace {

struct Projektableitung : testing::Test {
  ProjektDesk desk;
  Projektdaten& form = desk.form;

  /// Changes the item and gives one derived number.
  double derived(std::string_view item, const std::string& text, double Ableitung::*number) {
    EXPECT_TRUE(form.aendern(item, text));
    return form.ableitung.*number;
  }
  /// Evaporator difference and evaporating temperature of a size class.
  std::string evaporator(const std::string& refrigerant, const std::string& size) {
    form.aendern("KaelteM", refrigerant);
    form.aendern("vdsize", size);
    return form.DT_v_combo + " " + form.t0;
  }
  /// Condenser difference of the three size classes.
  std::string condenser(const std::string& refrigerant, const std::string& kind) {
    std::string all;
    form.aendern("KaelteM", refrigerant);
    form.aendern("Vfl_typ", kind);
    for (const std::string& size : {desk.h(8), desk.p(3), desk.h(10)}) {
      form.aendern("VFlsize", size);
      all += (all.empty() ? "" : " ") + form.dtVerfl;
    }
    return all;
  }
  /// The same with `Tc` standing at a value before each derivation.
  std::string condenser_at(const std::string& Tc, const std::string& refrigerant,
                           const std::string& kind) {
    std::string all;
    form.aendern("KaelteM", refrigerant);
    form.aendern("Vfl_typ", kind);
    for (const std::string& size : {desk.h(8), desk.p(3), desk.h(10), std::string("?")}) {
      form.Tc = Tc;
      form.aendern("VFlsize", size);
      all += (all.empty() ? "" : " ") + form.dtVerfl;
    }
    return all;
  }
};

}  // namespace

// --- Numbers of single selections

TEST_F(Projektableitung, MaintenanceRaisesTheCondensingTemperature) {
  const auto number = &Ableitung::Wartung_dT;
  EXPECT_EQ(derived("WartungI", desk.j(24), number), 3);
  EXPECT_EQ(derived("WartungI", desk.j(25), number), 8);
  EXPECT_EQ(derived("WartungI", desk.j(23), number), 0);
  EXPECT_EQ(derived("WartungI", "?", number), 0);
}

TEST_F(Projektableitung, ChargeIsAFactorOnHoursAndEnergy) {
  const auto number = &Ableitung::f_F;
  EXPECT_EQ(derived("Fullzustand", desk.j(27), number), 1.12);
  EXPECT_EQ(derived("Fullzustand", desk.j(28), number), 1.25);
  EXPECT_EQ(derived("Fullzustand", desk.j(26), number), 1);
  EXPECT_EQ(derived("Fullzustand", "?", number), 1);
}

TEST_F(Projektableitung, PipeFactorDoublesInColdRooms) {
  const auto number = &Ableitung::pipe;
  EXPECT_EQ(derived("Leitungsdimension", desk.h(8), number), 2);
  EXPECT_EQ(derived("Leitungsdimension", desk.p(3), number), 1);
  EXPECT_EQ(derived("Leitungsdimension", desk.h(10), number), 0.5);
  EXPECT_EQ(derived("Leitungsdimension", "?", number), 1);
  EXPECT_EQ(derived("AnwendBereich", desk.j(2), number), 2);
  EXPECT_EQ(derived("Leitungsdimension", desk.h(8), number), 4);
  EXPECT_EQ(derived("AnwendBereich", desk.j(31), number), 4);
  EXPECT_EQ(derived("Leitungsdimension", desk.h(10), number), 1);
  EXPECT_EQ(derived("AnwendBereich", desk.j(7), number), 0.5);
}

TEST_F(Projektableitung, InsulationWarmsTheSuctionLine) {
  const auto number = &Ableitung::Isolier_dT;
  EXPECT_EQ(derived("WaermeD", desk.p(15), number), 20);
  EXPECT_EQ(derived("WaermeD", desk.p(2), number), 10);
  EXPECT_EQ(derived("WaermeD", desk.h(15), number), 5);
  EXPECT_EQ(derived("WaermeD", desk.p(4), number), 0);
  EXPECT_EQ(derived("WaermeD", "?", number), 0);
}

TEST_F(Projektableitung, ReferenceFollowsTheRangeInColdRoomsOnly) {
  const auto number = &Ableitung::Bezug;
  EXPECT_EQ(derived("Tempbereich", desk.j(20), number), 5);
  EXPECT_EQ(derived("AnwendBereich", desk.j(3), number), 2);
  for (const int room : {2, 31}) {
    form.aendern("AnwendBereich", desk.j(room));
    EXPECT_EQ(derived("Tempbereich", desk.j(18), number), -2);
    EXPECT_EQ(derived("Tempbereich", desk.j(19), number), -8);
    EXPECT_EQ(derived("Tempbereich", desk.j(20), number), -30);
    EXPECT_EQ(derived("Tempbereich", desk.h(15), number), 5);
  }
  for (const int other : {4, 5, 6, 7})
    EXPECT_EQ(derived("AnwendBereich", desk.j(other), number), 5);
}

TEST_F(Projektableitung, ApplicationMovesTheReferenceButNotTheTemperature) {
  form.t0 = "-3";
  form.aendern("AnwendBereich", desk.j(3));
  EXPECT_EQ(form.ableitung.Bezug, 2);
  EXPECT_EQ(form.t0, "-3");
}

TEST(ProjektableitungWithoutCaptions, EmptySelectionsMeanNothing) {
  ProjektDesk desk("FRA");  // a language without files: every caption is empty
  desk.form.Ableiten();
  EXPECT_EQ(desk.form.ableitung.pipe, 1);
  EXPECT_EQ(desk.form.ableitung.Bezug, 5);
  EXPECT_EQ(desk.form.ableitung.Isolier_dT, 0);
  EXPECT_EQ(desk.form.dtVerfl, "13");
  EXPECT_EQ(Verfluessigerart_von(desk.captions, ""), Verfluessigerart::Luft);
}

// --- Evaporator

TEST_F(Projektableitung, SuperheatFollowsTheSizeWithoutTheRefrigerant) {
  const auto number = &Ableitung::Ueberhitzung;
  for (const char* refrigerant : {"R134a", "R717"}) {
    form.aendern("KaelteM", refrigerant);
    EXPECT_DOUBLE_EQ(derived("vdsize", desk.h(8), number), 8.8);
    EXPECT_DOUBLE_EQ(derived("vdsize", desk.p(3), number), 6.4);
    EXPECT_DOUBLE_EQ(derived("vdsize", desk.h(10), number), 5);
    EXPECT_DOUBLE_EQ(derived("vdsize", "?", number), 6.4);
  }
}

TEST_F(Projektableitung, EvaporatorSetsDifferenceAndTemperature) {
  // The reference of a process is 5 °C: t0 = 13 less the difference.
  form.aendern("AnwendBereich", desk.j(7));
  EXPECT_EQ(evaporator("R134a", desk.h(8)), "11 2");
  EXPECT_EQ(evaporator("R134a", desk.p(3)), "8 5");
  EXPECT_EQ(evaporator("R134a", desk.h(10)), "5 8");
  EXPECT_EQ(evaporator("R134a", "?"), "8 5");
}

TEST_F(Projektableitung, EvaporatorFactorOfTheRefrigerantIsCutToOneDecimal) {
  // 11 * 0.92 = 10.12, 8 * 0.92 = 7.36; 11 * 0.88 = 9.68, 8 * 0.88 = 7.04.
  for (const char* name : {"AMMONIAK", "Ammoniak", "R717", " r717 ", "R723"}) {
    EXPECT_EQ(evaporator(name, desk.h(8)), "10.1 2.9") << name;
    EXPECT_EQ(evaporator(name, desk.p(3)), "7.3 5.7") << name;
    EXPECT_EQ(evaporator(name, desk.h(10)), "4.6 8.4") << name;
  }
  for (const char* name : {"R290", "Propan", "R600a", "R290_600", "ETHAN", "ETHYLEN", "METHAN",
                           "R50", "R170", "R1150"}) {
    EXPECT_EQ(evaporator(name, desk.h(8)), "9.6 3.4") << name;
    EXPECT_EQ(evaporator(name, desk.p(3)), "7 6") << name;
    EXPECT_EQ(evaporator(name, desk.h(10)), "4.4 8.6") << name;
  }
  for (const char* name : {"R12", "R11", "R409A", "ISC_49", "R744", "R1270", "PROPYLEN", "R290A"})
    EXPECT_EQ(evaporator(name, desk.p(3)), "8 5") << name;
  EXPECT_EQ(evaporator(desk.j(35), desk.h(8)), "11 2");
}

TEST_F(Projektableitung, RangeMovesTheEvaporatingTemperature) {
  form.aendern("AnwendBereich", desk.j(2));
  form.aendern("Tempbereich", desk.j(20));
  EXPECT_EQ(form.t0, "-30");  // -30 + 8 - 8
  form.aendern("Tempbereich", desk.j(18));
  EXPECT_EQ(form.t0, "-2");
}

// --- Condenser

TEST_F(Projektableitung, ClimateClassSetsTheAmbientTemperature) {
  const std::vector<std::pair<std::string, std::string>> classes{
      {desk.p(2), "30"}, {desk.h(15), "35"}, {desk.p(4), "38"}, {desk.h(17), "40"}, {"?", "35"}};
  for (const auto& [text, temperature] : classes) {
    form.aendern("AmbientT", text);
    EXPECT_EQ(form.tambient, temperature) << text;
  }
}

TEST_F(Projektableitung, ClimateClassMovesTheCondensingTemperature) {
  form.aendern("VFlsize", desk.p(3));
  form.aendern("AmbientT", desk.h(17));
  EXPECT_EQ(form.dtVerfl, "13");
  EXPECT_EQ(form.Tc, "53");
}

TEST_F(Projektableitung, AirCooledAndAdiabaticKindsTakeTheSecondSet) {
  for (const std::string& kind : {desk.p(27), desk.s(24), desk.s(24) + " " + desk.p(27),
                                  desk.p(27) + "/adiabt", desk.s(24) + "/adiabt", std::string()})
    EXPECT_EQ(condenser_at("50", "R404A", kind), "18 13 10 13") << kind;
}

TEST_F(Projektableitung, WaterAndTowerTakeTheThirdSet) {
  for (const std::string& kind : {desk.p(26), std::string("Kühlturm")})
    EXPECT_EQ(condenser_at("50", "R404A", kind), "15 10 7 10") << kind;
}

TEST_F(Projektableitung, TranscriticalGasCoolerOnWaterTakesTheFirstSet) {
  // 7, 5, 3 K times 0.78 are 5.46, 3.9 and 2.34.
  EXPECT_EQ(condenser_at("31.1", "R744", desk.p(26)), "5.4 3.9 2.3 3.9");
  EXPECT_EQ(condenser_at("31,1", "CO2", desk.p(26)), "5.4 3.9 2.3 3.9");
}

TEST_F(Projektableitung, TheOtherSetsHoldForR744Elsewhere) {
  // 15, 10, 7 K times 0.78 are 11.7, 7.8 and 5.46; 18, 13, 10 K are 14.04, 10.14 and 7.8.
  EXPECT_EQ(condenser_at("31", "R744", desk.p(26)), "11.7 7.8 5.4 7.8");
  EXPECT_EQ(condenser_at("40", "R744", "Kühlturm"), "11.7 7.8 5.4 7.8");
  EXPECT_EQ(condenser_at("40", "R744", desk.p(27)), "14 10.1 7.8 10.1");
}

TEST_F(Projektableitung, CondenserFactorOfTheRefrigerantIsCutToOneDecimal) {
  // 18 * 1.08 = 19.44, 13 * 1.08 = 14.04, 10 * 1.08 = 10.8
  for (const char* name : {"R409A", "R401A", "R401B", "ISC_49", "R413A", "R134a", "R407C", "R407F",
                           "R448A", "R449A", "R427A"})
    EXPECT_EQ(condenser(name, desk.p(27)), "19.4 14 10.8") << name;
  for (const char* name : {"AMMONIAK", "R717", "R723"})
    EXPECT_EQ(condenser(name, desk.p(27)), "14.7 10.6 8.2") << name;
  // 10 * 0.83 lies just below 8.3 in double precision, so the cut gives 8.2.
  for (const char* name : {"R290", "PROPAN", "R600A", "R290_600", "ETHAN", "ETHYLEN", "METHAN",
                           "R50", "R170", "R1150"})
    EXPECT_EQ(condenser(name, desk.p(27)), "14.9 10.7 8.2") << name;
  for (const char* name : {"R12", "R11", "R404A", "R1270", "nonsense"})
    EXPECT_EQ(condenser(name, desk.p(27)), "18 13 10") << name;
  EXPECT_EQ(condenser(desk.j(35), desk.p(27)), "18 13 10");
}

TEST_F(Projektableitung, AmbientOfZeroCountsAsThirtyFive) {
  form.tambient = "0";
  form.aendern("VFlsize", desk.p(3));
  EXPECT_EQ(form.Tc, "48");
  form.tambient = "32,5";
  form.aendern("VFlsize", desk.p(3));
  EXPECT_EQ(form.Tc, "45.5");
}

TEST_F(Projektableitung, WaterTemperatureIsTheBaseOfTheWaterCooledCondenser) {
  form.tambient = "40";
  form.Vfl_typ = desk.p(26);
  form.aendern("VFlsize", desk.p(3));
  EXPECT_EQ(form.Tc, "38");  // 28 + 10
  form.aendern("t_K_wasser", "20");
  EXPECT_EQ(form.Tc, "38");
  form.aendern("VFlsize", desk.p(3));
  EXPECT_EQ(form.Tc, "30");
}

TEST_F(Projektableitung, TowerStandsOnTheAmbientTemperature) {
  form.tambient = "30";
  form.t_K_wasser = "20";
  form.Vfl_typ = "Kühlturm";
  form.aendern("VFlsize", desk.p(3));
  EXPECT_EQ(form.Tc, "40");
}

TEST_F(Projektableitung, AmbientBeyondAllNumbersLeavesTheCondensingTemperature) {
  form.tambient = "1e999";
  form.Tc = "44";
  form.aendern("VFlsize", desk.p(3));
  EXPECT_EQ(form.Tc, "44");
  EXPECT_EQ(form.dtVerfl, "13");
}

TEST_F(Projektableitung, WinterLimitIsTheLowerOfItselfAndTc) {
  form.tambient = "20";
  form.WinterRGart = "35 °C";
  form.aendern("VFlsize", desk.p(3));  // Tc 33
  EXPECT_EQ(form.WinterRGart, "33 °C");
  form.WinterRGart = "25 °C";
  form.aendern("VFlsize", desk.p(3));
  EXPECT_EQ(form.WinterRGart, "25 °C");
}

TEST_F(Projektableitung, WinterLimitTakesTheWholePartOfTcInTwoDigits) {
  form.WinterRGart = "35 °C";
  form.tambient = "18.9";
  form.aendern("VFlsize", desk.h(10));  // Tc 28.9
  EXPECT_EQ(form.WinterRGart, "28 °C");
  form.tambient = "-2.5";
  form.aendern("VFlsize", desk.h(10));  // Tc 7.5
  EXPECT_EQ(form.WinterRGart, "07 °C");
}

TEST_F(Projektableitung, NoWinterLimitAndAnEmptyOneAreLeftAlone) {
  form.tambient = "20";
  for (const std::string& text : {desk.p(15), std::string()}) {
    form.WinterRGart = text;
    form.aendern("VFlsize", desk.p(3));
    EXPECT_EQ(form.WinterRGart, text);
  }
}

TEST_F(Projektableitung, TcOfR744BringsTheBestPressure) {
  form.aendern("KaelteM", "R744");
  form.aendern("Tc", "36");
  EXPECT_EQ(form.P_gasK, "92");
  form.aendern("Tc", "26");
  EXPECT_EQ(form.P_gasK, "67");
  form.tambient = "40";
  form.aendern("VFlsize", desk.h(10));  // Tc 40 + 7.8: 92 + 36 * 11.8 / 14 = 122.34
  EXPECT_EQ(form.P_gasK, "122.3");
}

TEST_F(Projektableitung, TcOfAnotherRefrigerantLeavesThePressure) {
  form.aendern("KaelteM", "R134a");
  form.P_gasK = "88";
  form.aendern("Tc", "36");
  EXPECT_EQ(form.P_gasK, "88");
}

// --- Refrigerant

TEST_F(Projektableitung, RefrigerantBringsBothDerivations) {
  form.aendern("AnwendBereich", desk.j(7));
  form.aendern("vdsize", desk.p(3));
  form.aendern("VFlsize", desk.p(3));
  form.aendern("KaelteM", "R717");
  EXPECT_EQ(desk.km.z.RefName.empty(), false);
  EXPECT_EQ(form.DT_v_combo, "7.3");
  EXPECT_EQ(form.t0, "5.7");
  EXPECT_EQ(form.dtVerfl, "10.6");
  EXPECT_EQ(form.Tc, "45.6");
  EXPECT_TRUE(desk.dialog.texte.empty());
}

TEST_F(Projektableitung, UnknownRefrigerantIsToldAndKept) {
  EXPECT_EQ(form.Kaeltemittel_Uebernehmen("R999"), Projektmeldung::unbekanntes_Kaeltemittel);
  EXPECT_EQ(form.KaelteM, "R999");
  EXPECT_EQ(desk.km.z.RefName, "R999");
  ASSERT_EQ(desk.dialog.texte.size(), 1U);
  EXPECT_EQ(desk.dialog.texte[0],
            "R999 is not a known refrigerant."
            "\r\nPlease choose a refrigerant of the catalogue."
            "\r\nDesignations begin with the letter R, followed by the number, e.g. R134a."
            "\r\nThe calculation is not carried out until a known refrigerant is chosen.");
}

TEST_F(Projektableitung, KnownRefrigerantIsSilent) {
  EXPECT_EQ(form.Kaeltemittel_Uebernehmen("R134a"), Projektmeldung::keine);
  EXPECT_TRUE(desk.dialog.texte.empty());
}

// --- After a load

TEST_F(Projektableitung, StoredTemperaturesAreNotOverwritten) {
  form.vdsize = desk.h(8);
  form.VFlsize = desk.h(8);
  form.tambient = "33";
  form.t0 = "-7";
  form.Tc = "41";
  form.dtVerfl = "9";
  form.Ableiten();
  EXPECT_EQ(form.tambient, "33");
  EXPECT_EQ(form.t0, "-7");
  EXPECT_EQ(form.Tc, "41");
  EXPECT_EQ(form.dtVerfl, "9");
  EXPECT_DOUBLE_EQ(form.ableitung.Ueberhitzung, 8.8);
}

TEST_F(Projektableitung, EmptyTemperaturesAreDerived) {
  form.KaelteM = "R744";
  form.AnwendBereich = desk.j(7);
  form.vdsize = desk.h(10);
  form.VFlsize = desk.h(10);
  form.AmbientT = desk.p(2);
  form.Ableiten();
  EXPECT_EQ(form.tambient, "30");
  EXPECT_EQ(form.t0, "8");
  EXPECT_EQ(form.dtVerfl, "7.8");
  EXPECT_EQ(form.Tc, "37.8");
}
