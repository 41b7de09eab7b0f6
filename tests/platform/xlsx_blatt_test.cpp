#include "platform/xlsx_blatt.h"

#include <gtest/gtest.h>
#include <zip.h>

#include "platform/arbeitsmappe_xlsx.h"
#include "support/temp_folder.h"

using namespace polarkreis;

namespace {

constexpr const char* Dokument = R"(<?xml version="1.0" encoding="UTF-8"?>)";

std::string blatt(const std::string& reihen) {
  return std::string(Dokument) + "<worksheet><sheetData>" + reihen + "</sheetData></worksheet>";
}

/// The sheet's cells; it must be readable.
Arbeitsmappe lies(Xlsxteile teile) {
  std::string grund;
  const auto mappe = Blatt_aus_Teilen(std::move(teile), grund);
  EXPECT_TRUE(mappe) << grund;
  return mappe ? *mappe : Arbeitsmappe();
}
Arbeitsmappe lies(const std::string& reihen) {
  return lies(Xlsxteile{blatt(reihen), "", ""});
}
std::string grund_von(Xlsxteile teile) {
  std::string grund;
  EXPECT_EQ(Blatt_aus_Teilen(std::move(teile), grund), nullptr);
  return grund;
}

bool ist(const Zellinhalt& zelle, const Zellinhalt& erwartet) {
  return zelle == erwartet;
}
Zellinhalt T(const char* text) {
  return std::string(text);
}

/// An archive of these parts.
std::string gezippt(const TempOrdner& ordner,
                    const std::vector<std::pair<std::string, std::string>>& teile) {
  int fehler = 0;
  zip_t* archiv = ::zip_open(ordner.pfad("a.zip").c_str(), ZIP_CREATE | ZIP_TRUNCATE, &fehler);
  for (const auto& [name, inhalt] : teile)
    ::zip_file_add(archiv, name.c_str(),
                   ::zip_source_buffer(archiv, inhalt.data(), inhalt.size(), 0), 0);
  ::zip_close(archiv);
  return ordner.lies("a.zip");
}

std::string eine_Zelle(const std::string& text) {
  return blatt(R"(<row><c t="inlineStr"><is><t>)" + text + "</t></is></c></row>");
}

}  // namespace

// --- Cells

TEST(XlsxBlatt, RowsAndCellsMayLeaveOthersOut) {
  const Arbeitsmappe mappe =
      lies(R"(<row r="3"><c r="B3"><v>1.5</v></c><c r="CK3"><v>2E-1</v></c></row>
              <row r="25"><c r="A25"><v>-7</v></c></row>)");
  EXPECT_TRUE(ist(mappe.Range("B3"), 1.5));
  EXPECT_TRUE(ist(mappe.Range("CK3"), 0.2));
  EXPECT_TRUE(ist(mappe.Range("A25"), -7.0));
  EXPECT_TRUE(ist(mappe.Range("A3"), {}));
  EXPECT_EQ(mappe.letzte_Zeile(), 25);
}

TEST(XlsxBlatt, PlacesThatAreNotNamedFollowTheOneBefore) {
  const Arbeitsmappe mappe =
      lies(R"(<row><c><v>1</v></c><c><v>2</v></c></row><row r="5"><c r="D5"><v>3</v></c>
              <c><v>4</v></c></row><row><c><v>5</v></c></row>)");
  EXPECT_TRUE(ist(mappe.Range("A1"), 1.0));
  EXPECT_TRUE(ist(mappe.Range("B1"), 2.0));
  EXPECT_TRUE(ist(mappe.Range("E5"), 4.0));
  EXPECT_TRUE(ist(mappe.Range("A6"), 5.0));
}

TEST(XlsxBlatt, KindsOfCells) {
  const Arbeitsmappe mappe =
      lies({blatt(R"(<row><c t="s"><v>1</v></c><c t="inlineStr"><is><t>in</t></is></c>
                <c t="str"><f>A1</f><v>formula</v></c><c t="b"><v>1</v></c>
                <c t="e"><v>#DIV/0!</v></c><c t="n"><v>7</v></c><c t="d"><v>1899-12-31</v></c>
                <c t="s"><v>9</v></c><c t="s"><v>x</v></c><c><v>abc</v></c><c><v>1e999</v></c>
                <c/><c><v>nan</v></c></row>)"),
            std::string(Dokument) + "<sst><si><t>zero</t></si><si><t>one</t></si></sst>", ""});
  EXPECT_TRUE(ist(mappe.Range("A1"), T("one")));
  EXPECT_TRUE(ist(mappe.Range("B1"), T("in")));
  EXPECT_TRUE(ist(mappe.Range("C1"), T("formula")));
  EXPECT_TRUE(ist(mappe.Range("D1"), 1.0));
  EXPECT_TRUE(ist(mappe.Range("E1"), {}));
  EXPECT_TRUE(ist(mappe.Range("F1"), 7.0));
  EXPECT_TRUE(ist(mappe.Range("G1"), Zeitwert{1}));
  for (const char* name : {"H1", "I1", "J1", "K1", "L1", "M1"})
    EXPECT_TRUE(ist(mappe.Range(name), {})) << name;
}

TEST(XlsxBlatt, TextInRunsIsOneAndPronunciationIsNone) {
  const Arbeitsmappe mappe =
      lies({blatt(R"(<row><c t="s"><v>0</v></c></row>)"),
            "<sst><si><r><t>Kälte</t></r><r><rPr/><t>träger</t></r><rPh><t>no</t></rPh></si></sst>",
            ""});
  EXPECT_TRUE(ist(mappe.Range("A1"), T("Kälteträger")));
}

TEST(XlsxBlatt, NamespacesOfElementsDontMatter) {
  const Arbeitsmappe mappe = lies(
      {R"(<x:worksheet xmlns:x="y"><x:sheetData><x:row r="2"><x:c r="A2" t="s"><x:v>0</x:v></x:c>
               </x:row></x:sheetData></x:worksheet>)",
       R"(<x:sst xmlns:x="y"><x:si><x:t>text</x:t></x:si></x:sst>)", ""});
  EXPECT_TRUE(ist(mappe.Range("A2"), T("text")));
}

TEST(XlsxBlatt, StylesTellDatesAndClockTimes) {
  const std::vector<std::pair<std::string, bool>> formate = {{"yyyy\\-mm\\-dd\\ hh:mm:ss", true},
                                                             {"[h]:mm", true},
                                                             {"[ss]", true},
                                                             {"hh:mm AM/PM", true},
                                                             {"0.00", false},
                                                             {"[Red]0.0", false},
                                                             {"[Magenta]0", false},
                                                             {"0.0&quot;h&quot;", false},
                                                             {"0\\d", false},
                                                             {"General", false},
                                                             {"#,##0_m", false},
                                                             {"0.00E+00", false},
                                                             {"&quot;open", false},
                                                             {"[open", false},
                                                             {"[$-409]dd.mm.yyyy", true}};
  std::string eigene, stile, zellen;
  for (std::size_t i = 0; i < formate.size(); ++i) {
    const std::string nummer = std::to_string(164 + i);
    eigene += "<numFmt numFmtId=\"" + nummer + "\" formatCode=\"" + formate[i].first + "\"/>";
    stile += "<xf numFmtId=\"" + nummer + "\"/>";
    zellen += "<c s=\"" + std::to_string(i) + "\"><v>0.5</v></c>";
  }
  for (const int eingebaut : {0, 1, 2, 9, 11, 14, 22, 37, 45, 47, 49})
    stile += "<xf numFmtId=\"" + std::to_string(eingebaut) + "\"/>";
  for (std::size_t i = formate.size(); i < formate.size() + 12; ++i)  // the last one has no style
    zellen += "<c s=\"" + std::to_string(i) + "\"><v>0.5</v></c>";
  const Arbeitsmappe mappe =
      lies({blatt("<row>" + zellen + "</row>"), "",
            "<styleSheet><numFmts>" + eigene + "</numFmts><cellStyleXfs><xf numFmtId=\"14\"/>" +
                "</cellStyleXfs><cellXfs>" + stile + "</cellXfs></styleSheet>"});
  int spalte = 0;
  for (const auto& [format, ist_Zeit] : formate)
    EXPECT_EQ(std::holds_alternative<Zeitwert>(mappe.Zelle(1, ++spalte)), ist_Zeit) << format;
  for (const bool ist_Zeit :
       {false, false, false, false, false, true, true, false, true, true, false, false})
    EXPECT_EQ(std::holds_alternative<Zeitwert>(mappe.Zelle(1, ++spalte)), ist_Zeit) << spalte;
}

// --- Hostile parts

TEST(XlsxBlatt, BrokenXmlSaysSo) {
  for (const char* kaputt : {"", "no xml", "<", "<worksheet><sheetData>", "<a></b>", "\xFF\xFE<"})
    EXPECT_EQ(grund_von({kaputt, "", ""}), "it is damaged.") << kaputt;
  EXPECT_EQ(grund_von({blatt(""), "<sst", ""}), "it is damaged.");
  EXPECT_EQ(grund_von({"<chartsheet/>", "", ""}), "it holds no worksheet.");
}

TEST(XlsxBlatt, RowsBeyondTheSheetEndIt) {
  EXPECT_EQ(lies(R"(<row r="2"><c><v>1</v></c></row><row r="1000000000"><c><v>1</v></c></row>)")
                .letzte_Zeile(),
            2);
  EXPECT_EQ(
      lies(R"(<row r="1048576"><c><v>1</v></c></row><row><c><v>1</v></c></row>)").letzte_Zeile(),
      1048576);
  EXPECT_EQ(lies(R"(<row r="99999999999999999999"><c><v>1</v></c></row>)").letzte_Zeile(), 1);
  EXPECT_EQ(lies(R"(<row r="-3"><c><v>1</v></c></row>)").letzte_Zeile(), 0);
}

TEST(XlsxBlatt, EntitiesThatGrowAreNotExpanded) {
  const std::string bombe = R"(<?xml version="1.0"?><!DOCTYPE x [<!ENTITY a "aaaaaaaaaa">
      <!ENTITY b "&a;&a;&a;&a;&a;&a;&a;&a;&a;&a;"><!ENTITY c "&b;&b;&b;&b;&b;&b;&b;&b;">]>
      <worksheet><sheetData><row><c t="inlineStr"><is><t>&c;</t></is></c></row></sheetData>
      </worksheet>)";
  EXPECT_TRUE(ist(lies(Xlsxteile{bombe, "", ""}).Range("A1"), T("&c;")));
}

TEST(XlsxBlatt, TreeThatWouldTakeTooMuchMemoryIsRefused) {
  std::string viele(40'000'000, ' ');
  for (std::size_t i = 0; i + 4 <= viele.size(); i += 4) viele.replace(i, 4, "<a/>");
  EXPECT_EQ(grund_von({blatt(viele), "", ""}), "its worksheet is too large: please split it.");
}

TEST(XlsxBlatt, LongTextSharedByManyCellsIsRefused) {
  std::string zellen;
  for (int i = 0; i < 3000; ++i) zellen += R"(<row><c t="s"><v>0</v></c></row>)";
  const std::string lang(100'000, 'x');
  EXPECT_EQ(grund_von({blatt(zellen), "<sst><si><t>" + lang + "</t></si></sst>", ""}),
            "its texts are too long.");
}

TEST(XlsxBlatt, DeeplyNestedElementsDoNoHarm) {
  std::string tief;
  for (int i = 0; i < 500'000; ++i) tief += "<a>";
  tief += "<row/>";
  for (int i = 0; i < 500'000; ++i) tief += "</a>";
  EXPECT_EQ(lies(tief).letzte_Zeile(), 0);
}

// --- Archives

TEST(Xlsx, FirstSheetOfTheWorkbookIsRead) {
  TempOrdner ordner;
  const std::string bytes = gezippt(
      ordner,
      {{"xl/workbook.xml",
        R"(<workbook xmlns:r="x"><sheets><sheet name="B" sheetId="7" r:id="rId9"/>
           <sheet name="A" sheetId="1" r:id="rId1"/></sheets></workbook>)"},
       {"xl/_rels/workbook.xml.rels",
        R"(<Relationships><Relationship Id="rId1" Type="http://x/worksheet" Target="worksheets/sheet1.xml"/>
           <Relationship Id="rId9" Type="http://x/worksheet" Target="/xl/worksheets/other.xml"/>
           <Relationship Id="rId3" Type="http://x/sharedStrings" Target="texts.xml"/></Relationships>)"},
       {"xl/worksheets/sheet1.xml", eine_Zelle("second")},
       {"xl/texts.xml", "<sst><si><t>first</t></si></sst>"},
       {"xl/worksheets/other.xml", blatt(R"(<row><c t="s"><v>0</v></c></row>)")}});
  std::string grund;
  const auto mappe = lies_xlsx(bytes, grund);
  ASSERT_TRUE(mappe) << grund;
  EXPECT_TRUE(ist(mappe->Range("A1"), T("first")));
}

TEST(Xlsx, WithoutAListOfItsPartsTheUsualNamesServe) {
  TempOrdner ordner;
  std::string grund;
  const auto mappe =
      lies_xlsx(gezippt(ordner, {{"xl/worksheets/sheet1.xml", eine_Zelle("here")}}), grund);
  ASSERT_TRUE(mappe) << grund;
  EXPECT_TRUE(ist(mappe->Range("A1"), T("here")));
}

TEST(Xlsx, ArchiveWithoutAWorksheetSaysSo) {
  TempOrdner ordner;
  std::string grund;
  EXPECT_FALSE(lies_xlsx(gezippt(ordner, {{"mimetype", "text"}}), grund));
  EXPECT_EQ(grund, "a part of it is missing, damaged or too large.");
  EXPECT_FALSE(lies_xlsx("PK\x03\x04 and no more", grund));
  EXPECT_EQ(grund, "it is damaged.");
}

TEST(Xlsx, PartThatRefersToItselfIsNoWorksheet) {
  TempOrdner ordner;
  std::string grund;
  EXPECT_FALSE(lies_xlsx(gezippt(ordner, {{"xl/workbook.xml", R"(<workbook><sheets/></workbook>)"},
                                          {"xl/_rels/workbook.xml.rels",
                                           R"(<Relationships><Relationship Id="a" Type="/worksheet"
                       Target="_rels/workbook.xml.rels"/></Relationships>)"},
                                          {"xl/worksheets/sheet1.xml", "<Relationships/>"}}),
                         grund));
  EXPECT_EQ(grund, "it holds no worksheet.");
}

TEST(Xlsx, BombIsRefusedBeforeItFillsTheMemory) {
  TempOrdner ordner;
  const std::string bytes =
      gezippt(ordner, {{"xl/worksheets/sheet1.xml", std::string(300'000'000, ' ')}});
  EXPECT_LT(bytes.size(), 1'000'000U);
  std::string grund;
  EXPECT_FALSE(lies_xlsx(bytes, grund));
  EXPECT_EQ(grund, "a part of it is missing, damaged or too large.");
}
