#include "shell/start/protokolldruck.h"

#include <gtest/gtest.h>

#include "support/temp_folder.h"

using namespace polarkreis;

namespace {

/// A protocol with one line of means, in the report editor.
class Protokolldruck : public ::testing::Test {
 protected:
  TempOrdner ordner;
  Meldungen log;
  Ablage daten{POLARKREIS_DATA, log};
  Ablage ablage{ordner.pfad(), log};
  Captions captions{daten};
  Messung messung;
  ErgebEdit editor{ablage};

  Protokolldruck() {
    captions.Captions_Laden();
    messung.ProjektNam = "Cold \"North\" store";
    messung.KaelteM = "R404A";
    messung.MittelW_Spread.setze(3, 3, "-12");
    messung.MittelW_Spread.setze(4, 3, "-8");
    messung.MittelW_Spread.setze(5, 3, "-10.25");
  }
  void oeffne() {
    ASSERT_TRUE(DiaG_Protokoll(messung, captions, {}, {}, ablage));
    ASSERT_TRUE(DiaG_print(editor));
  }
};

}  // namespace

TEST_F(Protokolldruck, EditorPartsTheLinesAtTheMarks) {
  oeffne();
  const auto& z = editor.zeilen;
  EXPECT_TRUE(z[0].kopf);
  EXPECT_EQ(z[0].text, "Polarkreis DiaGnostics : Result of the measurement");
  EXPECT_EQ(z[1].text, "Cold \"North\" store");
  EXPECT_EQ(z[3].text, "");
  EXPECT_EQ(z[4].text, "Refrigerant");
  EXPECT_EQ(z[4].wert, "R404A");
  EXPECT_TRUE(z[4].spalten.empty());
  EXPECT_EQ(z[9].text, "");
  EXPECT_EQ(z[9].spalten, (std::vector<std::string>{"Min.", "Max.", "Average"}));
  EXPECT_EQ(z[10].text, "Evaporating temperature /[°C]");
  EXPECT_EQ(z[10].wert, "");
  EXPECT_EQ(z[10].spalten, (std::vector<std::string>{"-12", "-8", "-10.25"}));
  EXPECT_EQ(z[11].spalten, (std::vector<std::string>{"", "", ""}));
}

TEST_F(Protokolldruck, PagesCarryTheProtocolsHeading) {
  oeffne();
  editor.Zeilen_je_Seite = 10;
  EXPECT_EQ(editor.Seitenzahl(), (static_cast<int>(editor.zeilen.size()) + 9) / 10);
  EXPECT_EQ(editor.PrintHead(), "Polarkreis DiaGnostics : Result of the measurement  1/" +
                                    std::to_string(editor.Seitenzahl()));
  editor.Command3D(1);
  EXPECT_EQ(editor.seite()[1].text, "Evaporating temperature /[°C]");
}

TEST_F(Protokolldruck, MissingProtocolHasNoLines) {
  EXPECT_FALSE(DiaG_print(editor));
  EXPECT_TRUE(editor.zeilen.empty());
}
