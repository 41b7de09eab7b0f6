#include "cycle/mittelliste.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>

#include "katalog_ordner.h"

using namespace polarkreis;

namespace {

/// Catalogues of evaporators, condensers and compressors in "katalg.lst", in this order; record i
/// of the compressors' lists is "list i".
struct Mittelordner : Katalogordner {
  Mittelordner() {
    schreib("katalg.lst",
            "\"FIRNEVD Luftk\xC3\xBChler\"\r\n\"SKADEKD\"\r\n\"BOREALX\"\r\n\"SECONDX\"\r\n");
    bauteile("FIRNEVD", {{51, {"3"}}});
    bauteile("SKADEKD", {{51, {""}}});
    bauteile("BOREALX", {{2, {"A 1"}}, {3, {"A 2"}}, {51, {"0"}}, {68, {"B 1"}}});
    schreib("BOREALXI.rdm", texte(18));
  }
  static std::string texte(int anzahl) {
    std::string bytes;
    for (int i = 1; i <= anzahl; ++i) bytes += gefuellt("list " + std::to_string(i), 128);
    return bytes;
  }
};

/// The index of each position, and the file as it comes of it.
constexpr std::array<int, 18> kIndex{6, 5, 7, 8, 2, 11, 13, 15, 9, 4, 1, 10, 3, 12, 14, 16, 17, 18};

std::string erwartet(const std::string& text_vor_dem_index = "list ") {
  std::string inhalt;
  for (int n = 1; n <= 18; ++n)
    inhalt += "\"BOREALXN.rdm\",\"" + text_vor_dem_index +
              std::to_string(kIndex[static_cast<std::size_t>(n - 1)]) + "\",\"" +
              std::to_string((n - 1) * 66 + 2) + "\"\r\n";
  return inhalt;
}

TEST(Listenindex, IsWorkedOutFromThePositionsSlot) {
  for (int n = 1; n <= 18; ++n) {
    EXPECT_EQ(Listenindex(n, Slotweite::w50), kIndex[static_cast<std::size_t>(n - 1)]) << n;
    EXPECT_EQ(Listenindex(n, Slotweite::w66), kIndex[static_cast<std::size_t>(n - 1)]) << n;
  }
}

TEST(Listenindex, ReachesEachRecordOnce) {
  std::set<int> alle;
  for (int n = 1; n <= 18; ++n) alle.insert(Listenindex(n));
  EXPECT_EQ(alle.size(), 18U);
  EXPECT_EQ(*alle.begin(), 1);
  EXPECT_EQ(*alle.rbegin(), 18);
}

TEST(Listenindex, OfAnyOtherPositionIsZero) {
  for (int n : {0, 19, -1, 1000}) EXPECT_EQ(Listenindex(n), 0) << n;
}

TEST(KMListe, IsMadeOfTheFirstCatalogueOfType0) {
  Mittelordner o;
  const auto liste = KM_Liste(o.dateien, "R134A");
  EXPECT_EQ(o.lies("R134A.LST"), erwartet());
  ASSERT_EQ(liste.size(), 18U);
  EXPECT_EQ(liste[0].Datei, "BOREALXN.rdm");
  EXPECT_EQ(liste[0].Text, "list 6");
  EXPECT_EQ(liste[0].Anfang, 2);
  EXPECT_EQ(liste[17].Text, "list 18");
  EXPECT_EQ(liste[17].Anfang, 1124);
}

TEST(KMListe, OnTheWayGivesCataloguesTheirTypes) {
  Mittelordner o;
  KM_Liste(o.dateien, "R134A");
  EXPECT_EQ(o.lies("SKADEKDN.rdm")[50 * 570], '4');
}

TEST(KMListe, IsNamedByTheDesignationInCapitals) {
  for (const char* name : {"R290", " propan ", "hfo1234yf", "R290_600"}) {
    Mittelordner o;
    EXPECT_EQ(KM_Liste(o.dateien, name).size(), 18U) << name;
  }
  EXPECT_EQ(Mittelliste(" propan "), "PROPAN.LST");
  EXPECT_EQ(Mittelliste("R404a"), "R404A.LST");
}

TEST(KMListe, OfWhatIsNoRefrigerantIsNone) {
  Mittelordner o;
  const auto vorher = o.namen();
  for (const char* name : {"", "  ", "R999", "../R134A", "a\\R134A", "R134A/", "R134A.LST"}) {
    EXPECT_TRUE(KM_Liste(o.dateien, name).empty()) << name;
    EXPECT_EQ(Mittelliste(name), "") << name;
  }
  EXPECT_EQ(o.namen(), vorher);
}

TEST(KMListe, AFileWithContentStays) {
  Mittelordner o;
  o.schreib("R134A.LST", "\"OTHERXXN.rdm\",\"mine\",\"5\"\r\n");
  const auto liste = KM_Liste(o.dateien, "R134a");
  ASSERT_EQ(liste.size(), 1U);
  EXPECT_EQ(liste[0].Datei, "OTHERXXN.rdm");
  EXPECT_EQ(liste[0].Text, "mine");
  EXPECT_EQ(liste[0].Anfang, 5);
  EXPECT_EQ(o.lies("R134A.LST"), "\"OTHERXXN.rdm\",\"mine\",\"5\"\r\n");
}

TEST(KMListe, AnEmptyFileIsFilled) {
  Mittelordner o;
  o.schreib("R134A.LST", "");
  EXPECT_EQ(KM_Liste(o.dateien, "R134A").size(), 18U);
  EXPECT_EQ(o.lies("R134A.LST"), erwartet());
}

TEST(KMListe, TextsComeFromTheCodePageAndKeepTheirQuotes) {
  Mittelordner o;
  std::string texte = Mittelordner::texte(18);
  texte.replace(5 * 128, 128,
                Katalogordner::gefuellt("K\x84lte \"-10 \xF8"
                                        "C\"",
                                        128));
  o.schreib("BOREALXI.rdm", texte);
  EXPECT_EQ(KM_Liste(o.dateien, "R134A")[0].Text, "Kälte \"-10 °C\"");
  EXPECT_TRUE(
      o.lies("R134A.LST").starts_with("\"BOREALXN.rdm\",\"Kälte \"\"-10 °C\"\"\",\"2\"\r\n"));
  EXPECT_EQ(KM_Liste(o.dateien, "R134A")[0].Text, "Kälte \"-10 °C\"");
}

TEST(KMListe, ShortTextsAreBlank) {
  Mittelordner o;
  o.schreib("BOREALXI.rdm", Mittelordner::texte(5) + "cut off");
  const auto liste = KM_Liste(o.dateien, "R134A");
  ASSERT_EQ(liste.size(), 18U);
  for (int n = 1; n <= 18; ++n) {
    const int index = Listenindex(n);
    const std::string soll = index <= 5   ? "list " + std::to_string(index)
                             : index == 6 ? "cut off"
                                          : "";
    EXPECT_EQ(liste[static_cast<std::size_t>(n - 1)].Text, soll) << n;
    EXPECT_EQ(liste[static_cast<std::size_t>(n - 1)].Anfang, (n - 1) * 66 + 2);
  }
  EXPECT_EQ(o.meldungszahl("BOREALXI.rdm: its size is no multiple of 128 bytes"), 1);
}

TEST(KMListe, WithoutACatalogueOfType0IsNoneAndMakesNoFile) {
  Mittelordner o;
  o.schreib("katalg.lst", "\"FIRNEVD\"\r\n\"SKADEKD\"\r\n");
  EXPECT_TRUE(KM_Liste(o.dateien, "R134A").empty());
  EXPECT_FALSE(o.da("R134A.LST"));
  EXPECT_TRUE(o.gemeldet("R134A.LST: not made: katalg.lst names no catalogue of type 0"));
}

TEST(KMListe, WithoutItsTextsIsNoneAndMakesNoFile) {
  Mittelordner o;
  o.schreib("BOREALXI.rdm", "");
  EXPECT_TRUE(KM_Liste(o.dateien, "R134A").empty());
  EXPECT_FALSE(o.da("R134A.LST"));
  EXPECT_EQ(o.lies("BOREALXI.rdm"), "");
  EXPECT_TRUE(o.gemeldet("R134A.LST: not made: BOREALXI.rdm is missing"));
  o.schreib("SECONDXI.rdm", Mittelordner::texte(18));
  EXPECT_TRUE(KM_Liste(o.dateien, "R134A").empty());
}

TEST(KMListe, WhoseTextsCantBeReadIsNoneAndMakesNoFile) {
  Mittelordner o;
  // More than the file store reads: the system keeps a gap, not the bytes.
  std::filesystem::resize_file(o.pfad("BOREALXI.rdm"), (std::uintmax_t{1} << 30) + 128);
  std::string hindernis;
  EXPECT_TRUE(KM_Liste(o.dateien, "R134A", &hindernis).empty());
  EXPECT_FALSE(o.da("R134A.LST"));
  EXPECT_EQ(hindernis, "BOREALXI.rdm can't be read");
  EXPECT_TRUE(o.gemeldet("R134A.LST: not made: BOREALXI.rdm can't be read"));
}

TEST(KMListe, AFileOfWhiteSpaceIsFilled) {
  Mittelordner o;
  o.schreib("R134A.LST", " \r\n\t\n");
  EXPECT_EQ(KM_Liste(o.dateien, "R134A").size(), 18U);
  EXPECT_EQ(o.lies("R134A.LST"), erwartet());
}

TEST(KMListe, RowsMayBeBrokenAnywhere) {
  Mittelordner o;
  o.schreib("R134A.LST",
            "\"OTHERXXN.rdm\"\r\n\"two\r\nlines\",\"5\",\"BOREALXN.rdm\"\r\n\"b\",\"6\"\r\n");
  const auto liste = KM_Liste(o.dateien, "R134A");
  ASSERT_EQ(liste.size(), 2U);
  EXPECT_EQ(liste[0].Text, "two\r\nlines");
  EXPECT_EQ(liste[1].Datei, "BOREALXN.rdm");
  EXPECT_EQ(liste[1].Anfang, 6);
}

TEST(KMListe, TellsWhatStandsInTheWay) {
  const auto hindernis = [](Mittelordner& o) {
    std::string text = "unset";
    KM_Liste(o.dateien, "R134A", &text);
    return text;
  };
  Mittelordner o;
  EXPECT_EQ(hindernis(o), "");
  o.schreib("R134A.LST", "\"OTHERXXN.rdm\",\"mine\"\r\n");
  EXPECT_EQ(hindernis(o), "R134A.LST holds no whole row (delete it, and it is made anew)");
  o.schreib("R134A.LST", "");
  o.schreib("BOREALXI.rdm", "");
  EXPECT_EQ(hindernis(o), "BOREALXI.rdm is missing");
  o.schreib("katalg.lst", "\"FIRNEVD\"\r\n");
  EXPECT_EQ(hindernis(o), "katalg.lst names no catalogue of type 0");
  o.schreib("katalg.lst", "\r\n\"?\"\r\n");
  EXPECT_EQ(hindernis(o), "katalg.lst names no catalogue");
  o.schreib("katalg.lst", "");
  EXPECT_EQ(hindernis(o), "katalg.lst is missing");
}

TEST(KMListe, WithoutAnyCatalogueIsNone) {
  Katalogordner o;
  EXPECT_TRUE(KM_Liste(o.dateien, "R134A").empty());
  EXPECT_TRUE(o.namen().empty());
}

TEST(KMListe, ThatCantBeWrittenIsGivenAllTheSame) {
  Mittelordner o;
  o.schreib("R134A.LST", "");
  ASSERT_EQ(::chmod(o.pfad("R134A.LST").c_str(), 0444), 0);
  EXPECT_EQ(KM_Liste(o.dateien, "R134A").size(), 18U);
  EXPECT_EQ(o.lies("R134A.LST"), "");
  EXPECT_TRUE(o.gemeldet("not written"));
}

TEST(Listenbauteile, GoFromTheListsBeginningToAnEmptyRecord) {
  Mittelordner o;
  const auto liste = KM_Liste(o.dateien, "R134A");
  const auto erste = Listenbauteile(o.dateien, liste[0]);
  ASSERT_EQ(erste.size(), 2U);
  EXPECT_EQ(erste[0].Felder[0], "A 1");
  EXPECT_EQ(erste[1].Satz, 3);
  ASSERT_EQ(Listenbauteile(o.dateien, liste[1]).size(), 1U);
  EXPECT_EQ(Listenbauteile(o.dateien, liste[1])[0].Felder[0], "B 1");
  EXPECT_TRUE(Listenbauteile(o.dateien, liste[2]).empty());
}

TEST(Listenbauteile, EndWhereTheNextListBegins) {
  Mittelordner o;
  std::map<int, std::vector<std::string>> saetze;
  for (int n = 1; n <= 140; ++n) saetze[n] = {"m"};
  o.bauteile("BOREALX", saetze);
  const auto erste = Listenbauteile(o.dateien, {"borealxn.RDM", "", 2});
  EXPECT_EQ(erste.front().Satz, 2);
  EXPECT_EQ(erste.back().Satz, 67);
  EXPECT_EQ(erste.size(), 65U);  // without the type's record
}

TEST(Listenbauteile, OfWhatIsNoCataloguesFileAreNone) {
  Mittelordner o;
  for (const char* datei : {"", "N.rdm", "BOREALX", "BOREALXN.txt", "../BOREN.rdm", "BOREALXI.rdm"})
    EXPECT_TRUE(Listenbauteile(o.dateien, {datei, "", 2}).empty()) << datei;
  EXPECT_TRUE(Listenbauteile(o.dateien, {"BOREALXN.rdm", "", 0}).empty());
}

}  // namespace
