#include <gtest/gtest.h>
#include <sys/stat.h>

#include <set>

#include "aufruf.h"
#include "gespraech.h"

namespace {

using nlohmann::json;

constexpr std::size_t kTypzeichen = 50 * 570;  // the byte of the type in "<code>N.rdm"

bool hat(const std::string& text, const std::string& teil) {
  return text.find(teil) != std::string::npos;
}

/// A data folder without catalogues.
struct Ohne_Kataloge : Datenkopie {
  Ohne_Kataloge() {
    for (const char* name : {"katalg.lst", "I650.DAT", "I600.DAT", "I550.DAT", "VERDICHN.rdm",
                             "VERDICHI.rdm", "LUFTKVDN.rdm", "AXIALKDN.rdm"})
      std::filesystem::remove(pfad(name));
  }
};

TEST(CatalogueLists, NameTheCataloguesWithTypesAndTheMakers) {
  const Datenkopie daten;
  const Antwort a = daten.rufe({"catalogue", "lists", "--json"});
  ASSERT_EQ(a.status, 0) << a.fehler;
  EXPECT_EQ(a.json()["catalogues"],
            json::parse(R"([{"code":"LUFTKVD","type":3,"text":"Air coolers"},
                            {"code":"AXIALKD","type":4,"text":"Air-cooled condensers"},
                            {"code":"VERDICH","type":0,"text":"Compressors"}])"));
  EXPECT_EQ(a.json()["makers"][0], json::parse(R"({"kind":0,"index":"I650.DAT",
                            "makers":["Brunsholm Verdichter","Tornevall Skruv","Südhang Kältetechnik"]})"));
  EXPECT_EQ(a.json()["makers"][1]["index"], "I600.DAT");
  EXPECT_EQ(a.json()["makers"][2]["index"], "I550.DAT");
  const std::string text = daten.rufe({"catalogue", "lists"}).ausgabe;
  EXPECT_TRUE(hat(text, "AXIALKD     4  Air-cooled condensers\n")) << text;
  EXPECT_TRUE(hat(text, "   2  I550.DAT  Grönstad Kyl\n")) << text;
}

TEST(CatalogueLists, WriteAMissingTypeIntoItsCatalogue) {
  const Datenkopie daten;
  std::string soll = daten.lies("AXIALKDN.rdm");
  EXPECT_EQ(soll[kTypzeichen], ' ');
  soll[kTypzeichen] = '4';
  const auto vorher = daten.lies("LUFTKVDN.rdm");
  EXPECT_EQ(daten.rufe({"catalogue", "lists"}).status, 0);
  EXPECT_EQ(daten.lies("AXIALKDN.rdm"), soll);
  EXPECT_EQ(daten.lies("LUFTKVDN.rdm"), vorher);
}

TEST(CatalogueSearch, GoesThroughAllThreeKinds) {
  const Datenkopie daten;
  const json j = daten.rufe({"catalogue", "search", "", "--json"}).json();
  EXPECT_EQ(j["catalogues"].size(), 24U);
  EXPECT_EQ(j["hits"].size(), 24U * 8);
  std::set<int> arten;
  for (const json& hit : j["hits"]) arten.insert(hit["kind"].get<int>());
  EXPECT_EQ(arten, (std::set{0, 1, 2}));
}

TEST(CatalogueSearch, FindsAComponentWithAllItsFields) {
  const Datenkopie daten;
  const json treffer = daten.rufe({"catalogue", "search", "gkv 71", "--json"}).json()["hits"];
  ASSERT_EQ(treffer.size(), 1U);
  EXPECT_EQ(treffer[0]["kind"], 2);
  EXPECT_EQ(treffer[0]["code"], "AXIALKD");
  EXPECT_EQ(treffer[0]["type"], 4);
  EXPECT_EQ(treffer[0]["maker"], "Grönstad Kyl");
  EXPECT_EQ(treffer[0]["catalogue"], "Air-cooled condensers, axial, vertical air");
  EXPECT_EQ(treffer[0]["record"], 104);
  ASSERT_EQ(treffer[0]["fields"].size(), 14U);
  EXPECT_EQ(treffer[0]["fields"][0], "GKV 71.0");
  EXPECT_EQ(treffer[0]["fields"][1], "Grönstad Kyl, GKV");
  EXPECT_EQ(treffer[0]["fields"][3], "Capacity: 71.0 kW");
}

TEST(CatalogueSearch, FindsUmlautsInAnyCase) {
  const Datenkopie daten;
  const json j = daten.rufe({"catalogue", "search", "SÜDHANG KÄLTE", "--json"}).json();
  EXPECT_EQ(j["hits"].size(), 4U * 8);
  for (const json& hit : j["hits"]) EXPECT_EQ(hit["maker"], "Südhang Kältetechnik");
}

TEST(CatalogueSearch, AKindChoosesItsIndex) {
  const Datenkopie daten;
  const auto codes = [&](const std::string& art) {
    std::set<std::string> alle;
    const json j = daten.rufe({"catalogue", "search", "", "--kind", art, "--json"}).json();
    for (const json& zeile : j["catalogues"]) alle.insert(zeile["code"].get<std::string>());
    return alle;
  };
  EXPECT_EQ(codes("0"), std::set<std::string>{"VERDICH"});
  EXPECT_EQ(codes("100"), std::set<std::string>{"VERDICH"});
  EXPECT_EQ(codes("1"), std::set<std::string>{"LUFTKVD"});
  EXPECT_EQ(codes("2"), std::set<std::string>{"AXIALKD"});
  EXPECT_EQ(codes("-7"), std::set<std::string>{"AXIALKD"});
}

TEST(CatalogueSearch, MakerAndCodeNarrowIt) {
  const Datenkopie daten;
  const auto treffer = [&](const char* option, const char* wert) {
    return daten.rufe({"catalogue", "search", "", option, wert, "--json"}).json()["hits"].size();
  };
  EXPECT_EQ(treffer("--maker", "tornevall skruv"), 3U * 8);
  EXPECT_EQ(treffer("--code", "luftkvd"), 3U * 8);
  EXPECT_EQ(treffer("--maker", "nobody"), 0U);
}

TEST(CatalogueSearch, ShowsATableAndWhatItsRowsShareAboveIt) {
  const Datenkopie daten;
  const Antwort a = daten.rufe({"catalogue", "search", "frostmühle", "--kind", "1"});
  ASSERT_EQ(a.status, 0);
  EXPECT_TRUE(hat(a.ausgabe, "Maker     Frostmühle Luftkühler\n")) << a.ausgabe;
  EXPECT_TRUE(hat(a.ausgabe, "Record  Model     Catalogue")) << a.ausgabe;
  EXPECT_TRUE(hat(a.ausgabe, "Capacity [kW]")) << a.ausgabe;
  EXPECT_TRUE(hat(a.ausgabe, "16 components in 3 rows of the index.\n")) << a.ausgabe;
}

TEST(CatalogueSearch, ShowsASingleComponentAsASheet) {
  const Datenkopie daten;
  const std::string text = daten.rufe({"catalogue", "search", "FM4-3.20"}).ausgabe;
  for (const char* zeile :
       {"Record            2\n", "Model             FM4-3.20\n", "Code              LUFTKVD\n",
        "Capacity          3.20 kW\n", "1 component in 24 rows of the index.\n"})
    EXPECT_TRUE(hat(text, zeile)) << zeile << text;
}

TEST(CatalogueSearch, FieldsWithoutLabelsAreNumbered) {
  const Datenkopie daten;
  std::string satz =
      "Model A" + std::string(33, ' ') + "Maker" + std::string(35, ' ') + "free text";
  satz.resize(570, ' ');
  daten.schreib("AXIALKDN.rdm", std::string(570, ' ') + satz);
  const std::string text = daten.rufe({"catalogue", "search", "model a"}).ausgabe;
  EXPECT_TRUE(hat(text, "Maker, series  Maker\n")) << text;
  EXPECT_TRUE(hat(text, "Field 3        free text\n")) << text;
}

TEST(CatalogueSearch, NothingFoundIsSaidAndNoFailure) {
  const Datenkopie daten;
  const Antwort a = daten.rufe({"catalogue", "search", "no such \x1b[31mthing"});
  EXPECT_EQ(a.status, 0);
  EXPECT_EQ(a.ausgabe, "No component with \"no such ?[31mthing\" in 24 rows of the index.\n");
  EXPECT_TRUE(a.fehler.empty()) << a.fehler;
  EXPECT_EQ(daten.rufe({"catalogue", "search", "no such thing", "--json"}).json()["hits"],
            json::array());
}

TEST(CatalogueSearch, HiddenProductsAreLeftOutAndCounted) {
  const Datenkopie daten;
  daten.schreib("Prodhide.dat", "\"ve\"\r\n\"luftkvd\"\r\n");
  const Antwort a = daten.rufe({"catalogue", "search", ""});
  EXPECT_TRUE(
      hat(a.ausgabe, "24 components in 3 rows of the index.\nHidden by Prodhide.dat: 21 rows.\n"))
      << a.ausgabe;
  const json j = daten.rufe({"catalogue", "search", "", "--json"}).json();
  EXPECT_EQ(j["catalogues"].size(), 24U);
  for (const json& zeile : j["catalogues"]) {
    const bool verborgen = zeile["code"] != "AXIALKD";
    EXPECT_EQ(zeile["hidden"], verborgen);
    EXPECT_EQ(zeile["found"], !verborgen);
    EXPECT_EQ(zeile["type"].is_null(), verborgen);
  }
}

TEST(CatalogueSearch, WithoutCataloguesSaysSoAndMakesNoFile) {
  const Ohne_Kataloge daten;
  const auto vorher = daten.inhalt();
  for (const std::vector<std::string>& argumente :
       {std::vector<std::string>{"catalogue", "search", "x"},
        {"catalogue", "lists"},
        {"catalogue", "refrigerant", "R134A"},
        {"catalogue", "refrigerant", "R134A", "--list", "2"}}) {
    const Antwort a = daten.rufe(argumente);
    EXPECT_EQ(a.status, 0);
    EXPECT_TRUE(hat(a.ausgabe, "The data folder ")) << a.ausgabe;
    EXPECT_TRUE(a.fehler.empty()) << a.fehler;
  }
  EXPECT_EQ(daten.rufe({"catalogue", "refrigerant", "R134A"}).ausgabe,
            "The data folder has no lists for R134A: katalg.lst is missing. See "
            "docs/catalogue.md.\n");
  EXPECT_EQ(daten.rufe({"catalogue", "search", "x", "--json"}).json(),
            json::parse(R"({"catalogues":[],"hits":[]})"));
  EXPECT_EQ(daten.rufe({"catalogue", "lists", "--json"}).json()["catalogues"], json::array());
  EXPECT_EQ(daten.rufe({"catalogue", "refrigerant", "R134A", "--json"}).json(), json::array());
  EXPECT_EQ(daten.inhalt(), vorher);
}

TEST(CatalogueSearch, VerboseTellsWhatWasLeftOut) {
  const Datenkopie daten;
  daten.schreib(
      "I550.DAT",
      "\"AXIALKD\",\"M\"\r\n\"SHORT\",\"M\",\"t\",\"2\"\r\n\"AXIALKD\",\"M\",\"t\",\"0\"\r\n");
  daten.schreib("AXIALKDN.rdm", "cut off");
  const Antwort a = daten.rufe({"--verbose", "catalogue", "search", "x", "--kind", "2"});
  EXPECT_EQ(a.status, 0);
  for (const char* teil : {"has 2 of 4 fields", "\"SHORT\" is no code of seven letters",
                           "\"0\" is no record to begin with", "no multiple of 570 bytes"})
    EXPECT_TRUE(hat(a.fehler, teil)) << teil << a.fehler;
}

TEST(CatalogueSearch, NamesTheFilesThatAreMissing) {
  const Datenkopie daten;
  EXPECT_FALSE(hat(daten.rufe({"catalogue", "search", "no such thing"}).ausgabe, "Missing"));
  std::filesystem::remove(daten.pfad("VERDICHN.rdm"));
  std::filesystem::remove(daten.pfad("AXIALKDN.rdm"));
  const Antwort a = daten.rufe({"catalogue", "search", "BHK"});
  EXPECT_EQ(a.status, 0);
  EXPECT_TRUE(hat(a.ausgabe, "Missing, or not to be read: VERDICHN.rdm, AXIALKDN.rdm.\n"))
      << a.ausgabe;
  for (const json& zeile :
       daten.rufe({"catalogue", "search", "BHK", "--json"}).json()["catalogues"])
    EXPECT_EQ(zeile["missing"], zeile["code"] != "LUFTKVD");
}

TEST(CatalogueSearch, NeedsATextAndANumberAsKind) {
  const Datenkopie daten;
  EXPECT_EQ(daten.rufe({"catalogue", "search"}).status, 2);
  EXPECT_EQ(daten.rufe({"catalogue", "search", "x", "--kind", "one"}).status, 2);
  EXPECT_EQ(daten.rufe({"catalogue"}).status, 2);
}

TEST(CatalogueRefrigerant, ListsTheCompressorsAndKeepsTheList) {
  const Datenkopie daten;
  const Antwort a = daten.rufe({"catalogue", "refrigerant", "r290", "--json"});
  ASSERT_EQ(a.status, 0) << a.fehler;
  const json j = a.json();
  ASSERT_EQ(j.size(), 18U);
  EXPECT_EQ(j[14]["list"], 15);
  EXPECT_EQ(j[14]["file"], "VERDICHN.rdm");
  EXPECT_EQ(j[14]["start"], 926);
  EXPECT_TRUE(j[14]["text"].get<std::string>().starts_with("R290: hermetic scroll")) << j[14];
  const std::string datei = daten.lies("R290.LST");
  EXPECT_TRUE(hat(datei, "\",\"926\"\r\n"));
  EXPECT_EQ(daten.lies("AXIALKDN.rdm")[kTypzeichen], '4');
  const std::string text = daten.rufe({"catalogue", "refrigerant", "R290"}).ausgabe;
  EXPECT_TRUE(hat(text, "  15  VERDICHN.rdm 926   R290: hermetic scroll, air conditioning"))
      << text;
  EXPECT_EQ(daten.lies("R290.LST"), datei);
}

TEST(CatalogueRefrigerant, EachListHoldsWhatItsTextSays) {
  const Datenkopie daten;
  for (int n = 1; n <= 18; ++n) {
    const json j =
        daten.rufe({"catalogue", "refrigerant", "R744", "--list", std::to_string(n), "--json"})
            .json();
    EXPECT_EQ(j["list"], n);
    ASSERT_EQ(j["components"].size(), 8U) << n;
    for (const json& b : j["components"]) {
      const auto mittel = b["fields"][2].get<std::string>();
      EXPECT_TRUE(
          j["text"].get<std::string>().starts_with(mittel.substr(mittel.find(": ") + 2) + ": "));
    }
  }
}

TEST(CatalogueRefrigerant, AListIsShownAsATable) {
  const Datenkopie daten;
  const std::string text = daten.rufe({"catalogue", "refrigerant", "R717", "--list", "17"}).ausgabe;
  EXPECT_TRUE(text.starts_with("R717: open screw, process cooling, ")) << text;
  EXPECT_TRUE(hat(text, "Refrigerant    R717\n")) << text;
  EXPECT_TRUE(hat(text, "  1058  TVO-250P ")) << text;
}

TEST(CatalogueRefrigerant, AnEmptyListSaysSo) {
  const Datenkopie daten;
  daten.schreib("R22.LST", "\"VERDICHN.rdm\",\"gone\",\"2000\"\r\n");
  const Antwort a = daten.rufe({"catalogue", "refrigerant", "R22", "--list", "1"});
  EXPECT_EQ(a.status, 0);
  EXPECT_EQ(a.ausgabe, "gone\nThe list holds no components.\n");
  const Antwort b = daten.rufe({"catalogue", "refrigerant", "R22", "--list", "2"});
  EXPECT_EQ(b.status, 1);
  EXPECT_TRUE(hat(b.fehler, "R22.LST holds 1 list.")) << b.fehler;
}

TEST(CatalogueRefrigerant, AListIsOneObjectEvenWithoutLists) {
  const Ohne_Kataloge daten;
  const Antwort a = daten.rufe({"catalogue", "refrigerant", "R22", "--list", "3", "--json"});
  EXPECT_EQ(a.status, 0);
  EXPECT_EQ(a.json(), json::parse(R"({"list":3,"file":"","text":"","components":[]})"));
  EXPECT_TRUE(hat(a.fehler, "no lists for R22: katalg.lst is missing")) << a.fehler;
}

TEST(CatalogueRefrigerant, TellsWhyThereAreNoLists) {
  const Datenkopie daten;
  daten.schreib("R22.LST", "\"VERDICHN.rdm\",\"torn\"\r\n");
  const Antwort a = daten.rufe({"catalogue", "refrigerant", "r22"});
  EXPECT_TRUE(hat(a.ausgabe, "R22.LST holds no whole row")) << a.ausgabe;
  daten.schreib("VERDICHI.rdm", "");
  const Antwort b = daten.rufe({"catalogue", "refrigerant", "R290"});
  EXPECT_TRUE(hat(b.ausgabe, "VERDICHI.rdm is missing")) << b.ausgabe;
}

TEST(CatalogueRefrigerant, AnEditedListMayBeLonger) {
  const Datenkopie daten;
  std::string datei;
  for (int n = 1; n <= 20; ++n)
    datei += "\"VERDICHN.rdm\",\"list " + std::to_string(n) + "\",\"2\"\r\n";
  daten.schreib("R22.LST", datei);
  const Antwort a = daten.rufe({"catalogue", "refrigerant", "R22", "--list", "20", "--json"});
  ASSERT_EQ(a.status, 0) << a.fehler;
  EXPECT_EQ(a.json()["text"], "list 20");
  EXPECT_FALSE(a.json()["components"].empty());
  const Antwort b = daten.rufe({"catalogue", "refrigerant", "R22", "--list", "21"});
  EXPECT_EQ(b.status, 1);
  EXPECT_TRUE(hat(b.fehler, "R22.LST holds 20 lists.")) << b.fehler;
}

TEST(CatalogueRefrigerant, AnUnknownOneIsRefused) {
  const Datenkopie daten;
  const auto vorher = daten.inhalt();
  for (const char* name : {"R999", "../R22", "a\\R22", ""}) {
    const Antwort a = daten.rufe({"catalogue", "refrigerant", name});
    EXPECT_EQ(a.status, 1) << name;
    EXPECT_TRUE(hat(a.fehler, "is not a known refrigerant")) << a.fehler;
    EXPECT_TRUE(a.ausgabe.empty());
  }
  for (const char* n : {"0", "-1", "x"})
    EXPECT_EQ(daten.rufe({"catalogue", "refrigerant", "R22", "--list", n}).status, 2) << n;
  EXPECT_EQ(daten.inhalt(), vorher);
}

TEST(CatalogueRefrigerant, InAReadOnlyFolderTheListIsShownAllTheSame) {
  const Datenkopie daten;
  daten.schreib("R22.LST", "");
  ASSERT_EQ(::chmod(daten.pfad("R22.LST").c_str(), 0444), 0);
  ASSERT_EQ(::chmod(daten.pfad("AXIALKDN.rdm").c_str(), 0444), 0);
  const Antwort a = daten.rufe({"--verbose", "catalogue", "refrigerant", "R22", "--json"});
  EXPECT_EQ(a.status, 0);
  EXPECT_EQ(a.json().size(), 18U);
  EXPECT_TRUE(hat(a.fehler, "R22.LST")) << a.fehler;
  EXPECT_EQ(daten.lies("R22.LST"), "");
}

TEST(CalcCatalogue, CodePageGoesBothWays) {
  const Datenkopie daten;
  EXPECT_EQ(ergebnis(daten, R"({"op":"aus_CP850","hex":"4b846c7465"})"), "Kälte");
  EXPECT_EQ(ergebnis(daten, R"({"op":"nach_CP850","text":"Kälte €"})"), "4B846C7465203F");
  for (const char* hex : {"4", "4g", "zz", "+1", "4B 8"})
    EXPECT_TRUE(letzte(daten, {std::string(R"({"op":"aus_CP850","hex":")") + hex + "\"}"})
                    .contains("error"))
        << hex;
}

TEST(CalcCatalogue, SingleRulesAnswer) {
  const Datenkopie daten;
  EXPECT_EQ(ergebnis(daten, R"({"op":"Indexdatei","Suchart":100})"), "I650.DAT");
  EXPECT_EQ(ergebnis(daten, R"({"op":"Indexdatei","Suchart":1})"), "I600.DAT");
  EXPECT_EQ(ergebnis(daten, R"({"op":"Listenindex","position":1})"), 6);
  EXPECT_EQ(ergebnis(daten, R"({"op":"Listenindex","position":11,"stride":50})"), 1);
  EXPECT_EQ(ergebnis(daten, R"({"op":"Listenindex","position":19})"), 0);
  EXPECT_EQ(ergebnis(daten, R"({"op":"Katalogtyp","code":"KABCDEF"})"), 5);
  EXPECT_EQ(ergebnis(daten, R"({"op":"Katalogtyp","code":"AXIALKD"})"), 4);
  EXPECT_EQ(daten.lies("AXIALKDN.rdm")[kTypzeichen], '4');
  for (const char* zeile : {R"({"op":"Katalogtyp","code":"../../x"})",
                            R"({"op":"Listenindex","position":1,"stride":60})"})
    EXPECT_TRUE(letzte(daten, {zeile}).contains("error")) << zeile;
}

TEST(CalcCatalogue, ListsAndSearchesAnswer) {
  const Datenkopie daten;
  const json listen = ergebnis(daten, R"({"op":"Komp_Listen","Suchart":2})");
  EXPECT_EQ(listen["Kataloglist"].size(), 3U);
  EXPECT_EQ(listen["Herstellerlist"], json({"Windgrube Verflüssiger", "Grönstad Kyl"}));
  const json suche =
      ergebnis(daten, R"({"op":"KompSuch","Suchart":0,"Suchtext":"bhk-9","Katalog":"verdich"})");
  EXPECT_EQ(suche["catalogues"].size(), 18U);
  EXPECT_EQ(suche["hits"].size(), 9U);
  EXPECT_EQ(
      ergebnis(daten, R"({"op":"KompSuch","Suchart":0,"Suchtext":"","Hersteller":"x"})")["hits"],
      json::array());
  const json liste = ergebnis(daten, R"({"op":"KM_Liste","name":"propan"})");
  ASSERT_EQ(liste.size(), 18U);
  EXPECT_TRUE(daten.da("PROPAN.LST"));
  EXPECT_EQ(ergebnis(daten, R"({"op":"KM_Liste","name":"R999"})"), json::array());
  EXPECT_EQ(ergebnis(daten, R"({"op":"Listenbauteile","file":"VERDICHN.rdm","start":"68"})").size(),
            8U);
  EXPECT_EQ(ergebnis(daten, R"({"op":"Listenbauteile","file":"../x","start":2})"), json::array());
}

}  // namespace
